// The base of all windows.
//
// A window object exists from its constructor; its widget is made by the virtual `create` of the
// derived classes. A parent owns its children: `new zStaticText(this, 100)` is the idiom, and they
// go with it. Every X event and Motif callback reaches a window through its ziControlCB record, so
// that one object can take the place of another without touching the widgets.
#pragma once

#include <X11/Intrinsic.h>

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "framework/core/event.h"
#include "framework/core/notify.h"
#include "framework/core/window_style.h"
#include "framework/drawing/color.h"
#include "framework/drawing/font.h"
#include "framework/layout/sizer.h"

class zCursor;
class zFrameWin;
class zResId;

// The client data of every X event handler and Motif callback of a window: outlives the object when
// another takes its place.
struct ziControlCB {
  zWindow* window = nullptr;
  Widget control = nullptr;
  int kind = 0;
};

// Chooses the constructors that take the place of a generic window.
struct ziAdopt {};

class zWindow : public zEvH {
 public:
  explicit zWindow(zWindow* parent);
  // The sizer, owned from here on, is made when not given, under the parent's.
  zWindow(zWindow* parent, zSizer* sizer, unsigned long style);
  ~zWindow() override;

  // Events. Non-zero means consumed; unless told otherwise the defaults return 0.
  int dispatch(zEvent* event) override;
  virtual int resolveSize(zSizeEvt* event);
  virtual int activate(zActivateEvt* event);
  virtual int size(zSizeEvt* event);
  virtual int move(zMoveEvt* event);
  virtual int kill(zEvent* event);
  virtual int command(zCommandEvt* event);
  virtual int scroll(zEvent* event);
  virtual int mouseMove(zMouseMoveEvt* event);
  virtual int mouseButtonUp(zMouseClickEvt* event);
  virtual int mouseButtonDown(zMouseClickEvt* event);
  virtual int focus(zFocusEvt* event);
  virtual int background(zEvent* event);
  virtual int ch(zKeyEvt* event);
  virtual void ziPreMouseClick(zMouseClickEvt* event);

  // Place and look. Rectangles in pixels: the interior from (0, 0), the exterior on the screen.
  virtual void getInterior(zRect& rect) const;
  virtual void getExterior(zRect& rect) const;
  virtual void getPreferredSize(zDimension& size) const;
  virtual void vmove(int x, int y, int width, int height);
  virtual int showSet(int how);
  virtual int show(int visible);
  virtual void update();
  virtual void setDirty(const zRect* rect, int erase);
  virtual void setDirty(const zRegion& region, int erase);
  virtual void ziBackgroundColor(const zColor& color);
  virtual void setFont(std::shared_ptr<zFont> font, int redraw);
  void backgroundColor(const zColor& color) { ziBackgroundColor(color); }
  // Its own background, else that of its nearest ancestor that has one, else the dialogs' grey.
  zColor backgroundColor() const;
  void setCursor(const zCursor& cursor);
  // Gives the X window its cursor, once it is there.
  void defineCursor();
  void centerWindow(int relativeToParent);
  void mapToWindow(const zWindow* other, zRect& rect) const;

  virtual int enable();
  virtual int disable();
  bool isEnabled() const;
  bool isShown() const { return shown_; }

  // Data transfer. checkData walks the enabled children and, at the first that has something
  // wrong, has it pointed out by invalidData and returns 0. storeData stores all or nothing.
  virtual int checkData();
  virtual int storeData();
  virtual int invalidData(zWindow* window);

  virtual void childFocusChange(zWindow* from, zWindow* to);
  // Takes effect 150 ms later; a second call within that time replaces the first.
  void setFocus();

  // From the capture on the window gets all mouse events, wherever the pointer goes. Without it the
  // windows under the pointer would, since the framework asks for button events on all of them.
  // `time` is that of the press.
  void captureMouse(Time time);
  void releaseMouse();

  // Handlers of any message, whatever its id.
  void setHandler(zEventHandler handler, unsigned message);
  void removeHandler(const zEventHandler& handler, unsigned message);
  template <class T, class M>
  void setHandler(T* object, M member, unsigned message) {
    setHandler(zEventHandler(object, member), message);
  }
  template <class T, class M>
  void removeHandler(T* object, M member, unsigned message) {
    removeHandler(zEventHandler(object, member), message);
  }
  // The same, and the mouse events among them are let through to the handler lists.
  template <class T, class M>
  void setupNotification(T* object, M member, unsigned message) {
    eventMap_ |= eventMapBit(message);
    setHandler(object, member, message);
  }
  template <class T, class M>
  void removeNotification(T* object, M member, unsigned message) {
    removeHandler(object, member, message);
  }
  const std::shared_ptr<zNotifyNodeDlist>& notifyList() const { return notifyList_; }
  const std::shared_ptr<zNotifyNodeDlist>& controlNotifyList() const { return ctrlNotifyList_; }
  bool eventMapHas(unsigned message) const { return (eventMap_ & eventMapBit(message)) != 0; }

  // The window tree.
  zWindow* parent() const { return parent_; }
  std::list<zWindow*>& kidslist() { return kids_; }
  const std::list<zWindow*>& kidslist() const { return kids_; }
  zWindow* get(int id) const;  // the first child with this id, or null
  std::list<zWindow*>::iterator getNode(int id);
  zWindow* nextWin() const;  // among the parent's children, round and round
  zWindow* prevWin() const;
  int ctrlId() const { return ctrlId_; }
  zFrameWin* frame();
  // Whether `window`, which may be gone already, is below this one.
  bool isAncestorOf(const zWindow* window) const;
  // The button that Return in an edit presses: the first default push button among the children.
  zWindow* ziFindDefPushButton() const;

  unsigned long styleValue() const { return style_; }
  void styleSet(unsigned long bits) { style_ |= bits; }
  void styleClear(unsigned long bits) { style_ &= ~bits; }
  const std::string& title() const { return title_; }

  zSizer* sizer() const { return sizer_.get(); }
  // Takes `sizer` for the one at hand, which is deleted.
  void setSizer(zSizer* sizer);

  const std::shared_ptr<zFont>& getFont() const { return font_; }

  bool deleteOnClose() const { return deleteOnClose_; }
  void deleteOnClose(int on) { deleteOnClose_ = on != 0; }

  Widget getWidget() const { return mainWidget_; }
  // Where children go, and what is drawn on.
  virtual Widget childArea() const { return mainWidget_; }
  virtual Widget drawnWidget() const { return scrolledWidget_ ? scrolledWidget_ : mainWidget_; }
  // What takes the keyboard focus for this window.
  virtual Widget focusWidget() const { return drawnWidget(); }

  // Makes the generic controls of a dialog template in this window.
  void populateFromRes(const zResId& id);

  // The widget tree goes or has gone already: nothing of it may be touched any more.
  void setDestroyed() { destroyed_ = true; }
  bool isDestroyed() const { return destroyed_; }
  int madeAt() const { return madeAt_; }  // the loop depth, for the end of the widgets

 protected:
  zWindow(ziAdopt, zWindow* parent);
  // Has the window's widgets draw their texts in its font. Called when that looks new.
  virtual void ziShowFont();

  void setTitle(const std::string& title) { title_ = title; }
  void setCtrlId(int id) { ctrlId_ = id; }
  void setWidgets(Widget main, Widget scrolled);
  void setShown(bool shown) { shown_ = shown; }
  ziControlCB* link() const { return link_.get(); }
  // Put a procedure on a widget of this window, with link() for its data. unlisten() takes all off:
  // a widget that the toolkit is about to destroy goes on getting events in nested loops.
  void listen(Widget widget, EventMask mask, XtEventHandler procedure,
              XtListPosition position = XtListTail);
  void addCallback(Widget widget, const char* list, XtCallbackProc procedure);
  virtual void unlisten();

  void addControlHandler(int id, unsigned code, zEventHandler handler);
  void removeControlHandler(int id, unsigned code, const zEventHandler& handler);
  void addCommandHandler(int id, zEventHandler handler);
  void removeCommandHandler(int id, const zEventHandler& handler);

  // For destructors: the children go first, then `top` and all widgets below it, unless the widget
  // tree has gone already.
  void deleteKids();
  void destroyWidgets(Widget top);

  // For adopting constructors: takes over everything that makes `old` live, and its place among its
  // parent's children; `old` is left without a widget. With null the window joins the children.
  void takeOver(zWindow* old);

 private:
  friend class zChildWin;
  friend void zAppDoSetAllDestroyed(zWindow*);

  static unsigned eventMapBit(unsigned message);
  int setSensitive(bool on);
  static void ziFocusTimeout(XtPointer link, XtIntervalId*);
  void ziSetFocusHandler();
  void cancelPendingFocus();

  bool destroyed_ = false;
  bool shown_ = false;
  bool deleteOnClose_ = false;
  std::shared_ptr<zFont> font_;
  std::string title_;
  int ctrlId_ = -1;
  unsigned eventMap_ = 0;
  std::optional<zColor> background_;
  std::unique_ptr<zSizer> sizer_;
  unsigned long style_ = zStyleClipSiblings | zStyleClipChildren;
  std::unique_ptr<zCursor> cursor_;
  std::shared_ptr<zNotifyNodeDlist> notifyList_;
  std::shared_ptr<zNotifyNodeDlist> ctrlNotifyList_;
  std::list<zWindow*> kids_;
  zWindow* parent_;
  Widget mainWidget_ = nullptr;
  Widget scrolledWidget_ = nullptr;
  XtIntervalId pendingFocus_ = 0;
  bool captured_ = false;
  std::unique_ptr<ziControlCB> link_;
  int madeAt_;
  std::vector<std::function<void()>> takeOff_;  // what unlisten() does
};

// Takes a window and all below it off their widgets, which are still there, as destroyed.
void zAppDoSetAllDestroyed(zWindow* window);

// The event masks of the framework's procedures.
constexpr EventMask ziWindowEventMask = 0x1F7FF7F;    // a window that is not a widget control
constexpr EventMask ziWorkAreaEventMask = 0x1D7FF7F;  // the same less focus changes
constexpr EventMask ziShellFocusMask = 0x200000;      // focus changes
constexpr EventMask ziShellEventMask = 0x220000;      // focus and structure changes

// Client data of both is the window's ziControlCB.
void ziWinProc(Widget widget, XtPointer link, XEvent* event, Boolean* goOn);
void ConfigTopProc(Widget widget, XtPointer link, XEvent* event, Boolean* goOn);

// Focus bookkeeping shared by windows and controls: calls childFocusChange on all ancestors.
void ziChildFocusHelper(zWindow* window, bool gained);
