// Tool tips: a small window with a text, near the pointer that rests on a control.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "framework/core/notify.h"
#include "framework/core/timer.h"
#include "framework/core/window.h"

class zChildWin;
class zFont;

// The tip of a control. A table ends with a row whose text is null.
struct zStatusMessage {
  int id;
  const char* text;
};

// Refers to a table, which must outlive it.
class zStatusMessageTable {
 public:
  explicit zStatusMessageTable(const zStatusMessage* rows = nullptr) : rows_(rows) {}
  bool isEmpty() const { return !rows_ || !rows_->text; }
  // The text of the first row with this id, or null.
  const char* lookup(int id) const;

 private:
  const zStatusMessage* rows_;
};

// The window that shows a tip. It stands in no dialog, so that it may go beyond its edges.
class ziToolHelper {
 public:
  explicit ziToolHelper(const zFont* font);
  ~ziToolHelper();
  ziToolHelper(const ziToolHelper&) = delete;
  ziToolHelper& operator=(const ziToolHelper&) = delete;

  void text(const std::string& text);
  // Its top left on the screen; where that leaves too little room the tip goes to the left, and
  // above `pointerY` instead of below it.
  void show(zPoint at, int pointerY);
  void hide();
  bool isShown() const { return shown_; }

 private:
  Widget shell_;
  Widget label_;
  bool shown_ = false;
};

// Shows tips for the controls added to it: once the pointer has rested on one for 400 ms, or at
// once when it comes from one that shows its tip; until it leaves, a button is pressed, or 5.5 s
// have gone by. A control that is deleted is forgotten.
class zToolTipCtrl : public zEvH {
 public:
  // For controls below `window`; tips come only while its frame is active.
  explicit zToolTipCtrl(zWindow* window);
  ~zToolTipCtrl() override;

  void add(zChildWin* window);
  void remove(zChildWin* window);
  // Texts by control id. A control that it does not have shows its getText().
  void setTipMessageTable(const zStatusMessage* rows) { table_ = zStatusMessageTable(rows); }
  void enable(int on);

 private:
  struct Listed {
    explicit Listed(zChildWin* child);
    zChildWin* window;
    Widget widget;
    zWindowWatch watch;
  };

  int doActive(zActivateEvt* event);
  int doDown(zMouseClickEvt* event);
  int doMove(zMouseMoveEvt* event);
  static void doLeave(Widget widget, XtPointer self, XEvent*, Boolean*);
  void enter(Listed* listed, zPoint at, Time when);
  // The tip is to come up there, once the pointer has rested.
  void startAt(zPoint at);
  void startT();
  void smallT();
  void goAwayT();
  void showTip();
  void hideTip();
  std::string tipOf(const zChildWin* window) const;
  static bool pointerIsOn(const Listed& listed);
  Listed* find(Widget widget);
  void stopListening(Listed& listed);
  void forget(std::list<Listed>::iterator listed);
  void forgetDeleted();
  bool isTipShown() const { return helper_ && helper_->isShown(); }

  zFrameWin* frame_;
  zWindowWatch frameWatch_;
  std::list<Listed> windows_;
  Listed* current_ = nullptr;
  const Listed* lastShown_ = nullptr;
  zPoint tipPosition_;        // in the current window
  zPoint lastMouse_{-1, -1};  // on the screen
  Time tipLeftAt_ = 0;        // when the pointer left a control that showed its tip
  std::string text_;
  std::unique_ptr<ziToolHelper> helper_;
  bool active_ = true;
  bool enabled_ = true;
  std::unique_ptr<zTimer> poll_;
  std::unique_ptr<zTimer> start_;
  std::unique_ptr<zTimer> goAway_;
  zStatusMessageTable table_;
};
