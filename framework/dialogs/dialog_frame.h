// Dialogs: frame windows whose contents come from a template.
//
// Life of a dialog: constructed (widgets exist, not managed; the derived class adopts its
// controls), shown, finished (the shell is down), deleted. It is used once. Without an explicit
// modal() it is modeless. A dialog that is marked deleteOnClose is gone when shutdown() returns.
#pragma once

#include <list>
#include <memory>

#include "framework/core/frame_window.h"

class ziDialogReader;
class zGroupBox;

enum zModalStyle { zModalApplication = 0, zModalSystem = 1 };

class zDialogFrame : public zFrameWin {
 public:
  static constexpr unsigned long showDelayMs = 300;
  static constexpr int okId = 1;
  static constexpr int cancelId = 2;

  // From template `id`, which gives the style and the title. With `noCreate` the widgets are left
  // to a later create().
  zDialogFrame(zWindow* parent, const zResId& id, unsigned long style, int noCreate);
  zDialogFrame(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
               int noCreate);
  ~zDialogFrame() override;

  int create() override;
  // Called before the dialog is shown.
  virtual void init();

  // Brings the dialog up after 300 ms; with 0 makes it ready without showing it.
  int show(int visible) override;
  void showTimeout();
  // Does at once what show(1) has been asked for and still waits.
  void showIfPending();
  // Shows the dialog at once and runs a loop of its own until it is finished.
  void modal(int style = zModalApplication);
  // Ends the dialog unless a handler of the close event or `kill` refuses. Closing the root window
  // ends the program's loops.
  virtual void shutdown();
  // Escape is a click on Cancel.
  int keyLeft(zKeyEvt* key) override;
  // As a click on the control `id`: tells its handlers. 0 when there is none that can be clicked.
  int pressButton(int id);
  // Runs the application's main loop.
  void go();

  int defaultButton() const { return defaultId_; }
  Widget getBBoard() const { return workArea_; }
  Widget childArea() const override { return workArea_; }
  // Bounds below which the user can't make the window, in pixels.
  void setMinimumSize(const zDimension& size);

  void ziBackgroundColor(const zColor& color) override;
  void getInterior(zRect& rect) const override;
  void vmove(int x, int y, int width, int height) override;
  int move(zMoveEvt* event) override;

  // The template's group boxes and the area that each covers, below its title.
  struct Group {
    zPoint at;
    zDimension size;
    zGroupBox* box;
  };
  void clearGroupList() { groups_.clear(); }
  void addGroup(zGroupBox* box);
  // Another object has taken a box's place.
  void groupTakenOver(const zWindow* before, zGroupBox* now);
  const std::list<Group>& getGroupList() const { return groups_; }

 protected:
  ziDialogReader* reader() { return reader_.get(); }
  bool finished() const { return finished_; }

 private:
  void createBoards(Widget shell);
  void sizeBoards(int width, int height);
  void createShell();
  void createFromTemplate();
  void bringUp();
  void doClose();
  bool isBehindModal() const;
  static void closeCB(Widget widget, XtPointer link, XtPointer callData);
  static void ziShowTimeout(XtPointer link, XtIntervalId*);
  void cancelPendingShow();
  void unlisten() override;

  std::unique_ptr<ziDialogReader> reader_;
  bool finished_ = false;
  std::list<Group> groups_;
  XtIntervalId pendingShow_ = 0;
  int defaultId_;
  Widget outerBoard_ = nullptr;
  Widget workArea_ = nullptr;
};

// The shell that `widget` stands in.
Widget getTopShell(Widget widget);
