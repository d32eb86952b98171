#include "framework/core/window.h"

#include <Xm/Xm.h>

#include <utility>

#include "framework/controls/button.h"
#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/core/frame_window.h"
#include "framework/core/x_text.h"
#include "framework/dialogs/dialog_reader.h"
#include "framework/drawing/bitmap.h"

namespace {

constexpr unsigned long focusDelayMs = 150;

zWindow* focusWindow = nullptr;  // the window that had the focus last

}  // namespace

zWindow::zWindow(zWindow* parent) : zWindow(parent, nullptr, 0) {}

zWindow::zWindow(zWindow* parent, zSizer* sizer, unsigned long style) : zWindow(ziAdopt{}, parent) {
  style_ |= style;
  setSizer(sizer ? sizer : new zSizer(parent ? parent->sizer() : nullptr));
  takeOver(nullptr);
}

zWindow::zWindow(ziAdopt, zWindow* parent)
    : parent_(parent), link_(std::make_unique<ziControlCB>()), madeAt_(ziLoopDepth()) {
  ziSetType(zTypeWindow);
  link_->window = this;
  if (parent) font_ = parent->font_;
}

zWindow::~zWindow() {
  zWindowWatch::windowDeleted(this);
  if (focusWindow == this) focusWindow = nullptr;
  deleteOnClose_ = false;
  cancelPendingFocus();
  if (parent_) parent_->kids_.remove(this);
  deleteKids();
  destroyWidgets(mainWidget_);
}

void zWindow::destroyWidgets(Widget top) {
  if (!destroyed_ && top) {
    unlisten();
    ziDestroyWidget(top, madeAt_);
  }
  mainWidget_ = nullptr;
  scrolledWidget_ = nullptr;
}

void zWindow::deleteKids() {
  while (!kids_.empty()) {
    zWindow* kid = kids_.front();
    kids_.pop_front();
    kid->parent_ = nullptr;
    delete kid;
  }
}

void zWindow::takeOver(zWindow* old) {
  if (!old) {
    if (!sizer_) setSizer(new zSizer(0, 0, 0, 0, nullptr));
    if (parent_) parent_->kids_.push_back(this);
    return;
  }
  *std::find(parent_->kids_.begin(), parent_->kids_.end(), old) = this;
  old->parent_ = nullptr;
  link_ = std::move(old->link_);
  link_->window = this;
  notifyList_ = std::move(old->notifyList_);
  ctrlNotifyList_ = std::move(old->ctrlNotifyList_);
  if (notifyList_) notifyList_->removeTarget(old);
  if (ctrlNotifyList_) ctrlNotifyList_->removeTarget(old);
  kids_.swap(old->kids_);
  for (zWindow* kid : kids_) kid->parent_ = this;
  takeOff_.swap(old->takeOff_);
  cursor_ = std::move(old->cursor_);
  setSizer(old->sizer_.release());
  shown_ = old->shown_;
  font_ = old->font_;
  title_ = old->title_;
  ctrlId_ = old->ctrlId_;
  eventMap_ = old->eventMap_;
  madeAt_ = old->madeAt_;
  background_ = old->background_;
  style_ = old->style_;
  mainWidget_ = std::exchange(old->mainWidget_, nullptr);
  scrolledWidget_ = std::exchange(old->scrolledWidget_, nullptr);
  pendingFocus_ = std::exchange(old->pendingFocus_, 0);
  old->destroyed_ = true;
  setWidgets(mainWidget_, scrolledWidget_);
}

void zWindow::setWidgets(Widget main, Widget scrolled) {
  mainWidget_ = main;
  scrolledWidget_ = scrolled;
  for (Widget widget : {main, scrolled}) {
    if (widget) XtVaSetValues(widget, XmNuserData, this, nullptr);
  }
}

void zWindow::listen(Widget widget, EventMask mask, XtEventHandler procedure,
                     XtListPosition position) {
  ziControlCB* data = link();
  XtInsertEventHandler(widget, mask, False, procedure, data, position);
  takeOff_.emplace_back([=] { XtRemoveEventHandler(widget, mask, False, procedure, data); });
}

void zWindow::addCallback(Widget widget, const char* list, XtCallbackProc procedure) {
  ziControlCB* data = link();
  XtAddCallback(widget, list, procedure, data);
  takeOff_.emplace_back([=] { XtRemoveCallback(widget, list, procedure, data); });
}

void zWindow::unlisten() {
  releaseMouse();
  for (const auto& takeOff : takeOff_) takeOff();
  takeOff_.clear();
}

void zWindow::setSizer(zSizer* sizer) {
  sizer_.reset(sizer);
  if (sizer) sizer->setOwned(this);
}

// Events: what a window does with those that nobody took before.

int zWindow::dispatch(zEvent*) {
  return 0;
}
int zWindow::activate(zActivateEvt*) {
  return 0;
}
int zWindow::move(zMoveEvt*) {
  return 0;
}
int zWindow::kill(zEvent*) {
  return 0;
}
int zWindow::command(zCommandEvt*) {
  return 0;
}
int zWindow::scroll(zEvent*) {
  return 0;
}
int zWindow::mouseMove(zMouseMoveEvt*) {
  return 0;
}
int zWindow::mouseButtonUp(zMouseClickEvt*) {
  return 0;
}
int zWindow::mouseButtonDown(zMouseClickEvt*) {
  return 0;
}
int zWindow::focus(zFocusEvt*) {
  return 0;
}
int zWindow::background(zEvent*) {
  return 1;
}
int zWindow::ch(zKeyEvt*) {
  return 0;
}
void zWindow::ziPreMouseClick(zMouseClickEvt*) {}
void zWindow::childFocusChange(zWindow*, zWindow*) {}

int zWindow::size(zSizeEvt* event) {
  sizer()->dimension(event->size());
  return 0;
}

int zWindow::resolveSize(zSizeEvt* event) {
  sizer()->dimension(event->size());
  for (zWindow* kid : kids_) kid->sizer()->resize(kid, event);
  const zRect area(sizer()->pos(), event->size());
  sizer()->update(&area);
  return 0;
}

// Place and look.

void zWindow::getInterior(zRect& rect) const {
  rect = {};
  if (!mainWidget_) return;
  Dimension width = 0;
  Dimension height = 0;
  XtVaGetValues(mainWidget_, XmNwidth, &width, XmNheight, &height, nullptr);
  rect = {0, 0, width, height};
}

void zWindow::getExterior(zRect& rect) const {
  getInterior(rect);
}

void zWindow::getPreferredSize(zDimension& size) const {
  size = sizer()->dimension();
}

void zWindow::vmove(int x, int y, int width, int height) {
  sizer()->pos({x, y});
  sizer()->dimension({width, height});
}

int zWindow::showSet(int) {
  return 0;
}

int zWindow::show(int visible) {
  shown_ = visible != 0;
  if (visible) styleSet(zStyleVisible);
  return 1;
}

void zWindow::update() {
  if (mainWidget_ && XtIsRealized(mainWidget_)) XmUpdateDisplay(mainWidget_);
}

// A window that draws itself covers all of its area, so nothing is erased apart.
void zWindow::setDirty(const zRect* rect, int) {
  const Widget widget = drawnWidget();
  if (!widget || !XtIsRealized(widget)) return;
  zRect all;
  if (!rect) getInterior(all);
  const zRect& area = rect ? *rect : all;
  if (area.isEmpty()) return;
  XClearArea(XtDisplay(widget), XtWindow(widget), area.left, area.top,
             static_cast<unsigned>(area.width()), static_cast<unsigned>(area.height()), True);
}

void zWindow::setDirty(const zRegion& region, int erase) {
  for (const zRect& rect : region.rects()) setDirty(&rect, erase);
}

zColor zWindow::backgroundColor() const {
  if (background_) return *background_;
  return parent_ ? parent_->backgroundColor() : zDialogGrey;
}

void zWindow::ziBackgroundColor(const zColor& color) {
  background_ = color;
  if (mainWidget_) XmChangeColor(mainWidget_, ziClrm->pixel(color));
  if (scrolledWidget_) XmChangeColor(scrolledWidget_, ziClrm->pixel(color));
}

void zWindow::ziShowFont() {
  if (mainWidget_) ziSetFontList(drawnWidget(), font_->fontList());
}

void zWindow::setFont(std::shared_ptr<zFont> font, int redraw) {
  if (font == font_) return;
  const bool looksNew = font && !(font_ && font->looksLike(*font_));
  font_ = std::move(font);
  if (looksNew) ziShowFont();
  for (zWindow* kid : kids_) kid->setFont(font_, redraw);
}

void zWindow::setCursor(const zCursor& cursor) {
  cursor_ = std::make_unique<zCursor>(cursor);
  if (!mainWidget_ || !XtIsRealized(mainWidget_)) return;
  XDefineCursor(app->display(), XtWindow(mainWidget_), cursor_->cursor());
  XFlush(app->display());
}

void zWindow::defineCursor() {
  if (cursor_ && mainWidget_ && XtIsRealized(mainWidget_)) {
    XDefineCursor(app->display(), XtWindow(mainWidget_), cursor_->cursor());
  }
}

void zWindow::centerWindow(int relativeToParent) {
  zRect mine;
  getExterior(mine);
  const zRect screen(0, 0, __scrPixWidth, __scrPixHeight);
  zRect over = screen;
  const bool onParent = relativeToParent && parent_;
  if (onParent) parent_->getExterior(over);
  int x = over.left + (over.width() - mine.width()) / 2;
  int y = over.top + (over.height() - mine.height()) / 2;
  if (onParent) {
    x = std::min(x, screen.right - mine.width());
    y = std::min(y, screen.bottom - mine.height());
  }
  vmove(std::max(x, 0), std::max(y, 0), mine.width(), mine.height());
}

void zWindow::mapToWindow(const zWindow* other, zRect& rect) const {
  const Widget from = drawnWidget();
  const Widget to = other ? other->drawnWidget() : nullptr;
  if (!from || !to) return;
  Position fromX = 0, fromY = 0, toX = 0, toY = 0;
  XtTranslateCoords(from, 0, 0, &fromX, &fromY);
  XtTranslateCoords(to, 0, 0, &toX, &toY);
  rect = rect.moved(fromX - toX, fromY - toY);
}

int zWindow::enable() {
  return setSensitive(true);
}
int zWindow::disable() {
  return setSensitive(false);
}

int zWindow::setSensitive(bool on) {
  if (!mainWidget_) return 0;
  XtSetSensitive(mainWidget_, on);
  zEvent event(zMsgEnable);
  event.parm1 = on;
  event.window = this;
  doCommandHandler(&event, this);
  return 1;
}

bool zWindow::isEnabled() const {
  return mainWidget_ && XtIsSensitive(mainWidget_);
}

// Data transfer.

int zWindow::checkData() {
  for (zWindow* kid : kids_) {
    if (!kid->isEnabled() || kid->checkData()) continue;
    if (!kid->invalidData(kid) && kid->parent()) kid->parent()->invalidData(kid);
    return 0;
  }
  return 1;
}

int zWindow::storeData() {
  if (!checkData()) return 0;
  for (zWindow* kid : kids_) {
    if (kid->isEnabled()) kid->storeData();
  }
  return 1;
}

int zWindow::invalidData(zWindow* window) {
  if (window == this) return 0;
  window->setFocus();
  return 1;
}

// Focus.

void zWindow::setFocus() {
  cancelPendingFocus();
  pendingFocus_ = XtAppAddTimeOut(app->context(), focusDelayMs, ziFocusTimeout, link());
}

void zWindow::cancelPendingFocus() {
  if (pendingFocus_) XtRemoveTimeOut(pendingFocus_);
  pendingFocus_ = 0;
}

void zWindow::ziFocusTimeout(XtPointer link, XtIntervalId*) {
  static_cast<ziControlCB*>(link)->window->ziSetFocusHandler();
}

void zWindow::ziSetFocusHandler() {
  pendingFocus_ = 0;
  zFrameWin* top = frame();
  if (top && top != this && !top->isShown()) {
    top->focusWhenShown(this);
    return;
  }
  const Widget widget = focusWidget();
  if (!widget) return;
  XmProcessTraversal(widget, XmTRAVERSE_CURRENT);  // moves to the tab group
  XmProcessTraversal(widget, XmTRAVERSE_CURRENT);  // and inside it
}

// Mouse.

void zWindow::captureMouse(Time time) {
  constexpr unsigned mask =
      ButtonPressMask | ButtonReleaseMask | PointerMotionMask | EnterWindowMask | LeaveWindowMask;
  captured_ = drawnWidget() && XtGrabPointer(drawnWidget(), False, mask, GrabModeAsync,
                                             GrabModeAsync, None, None, time) == GrabSuccess;
}

void zWindow::releaseMouse() {
  if (captured_ && drawnWidget()) XtUngrabPointer(drawnWidget(), CurrentTime);
  captured_ = false;
}

void ziChildFocusHelper(zWindow* window, bool gained) {
  if (!gained) return;
  zWindow* previous = focusWindow;
  focusWindow = window;
  for (zWindow* up = window->parent(); up; up = up->parent())
    up->childFocusChange(previous, window);
}

// Handlers.

unsigned zWindow::eventMapBit(unsigned message) {
  switch (message) {
    case zMsgActivate:
      return 0x40;
    case zMsgFocusGained:
      return 0x200;
    case zMsgClose:
      return 0x80;
    case zMsgMouseMove:
      return 0x20;
    case zMsgButtonDown:
    case zMsgDoubleClick:  // a press of the button, too
      return 0x100;
    case zMsgButtonUp:
      return 0x10;
    default:
      return 0;
  }
}

namespace {

zNotifyNodeDlist& made(std::shared_ptr<zNotifyNodeDlist>& list) {
  if (!list) list = std::make_shared<zNotifyNodeDlist>();
  return *list;
}

}  // namespace

void zWindow::setHandler(zEventHandler handler, unsigned message) {
  made(notifyList_)
      .append(std::make_unique<zNotifyNode>(message, 0UL, zNotifyNode::anyId, handler));
}

void zWindow::removeHandler(const zEventHandler& handler, unsigned message) {
  made(notifyList_).removeFirst([&](const zNotifyNode& node) {
    return node.checkIdent(message, handler);
  });
}

void zWindow::addCommandHandler(int id, zEventHandler handler) {
  const auto only = static_cast<unsigned long>(id);
  made(notifyList_).append(std::make_unique<zNotifyNode>(zMsgCommand, only, only, handler));
}

void zWindow::removeCommandHandler(int id, const zEventHandler& handler) {
  zEvent probe(zMsgCommand);
  probe.parm1 = id;
  made(notifyList_).removeFirst([&](const zNotifyNode& node) {
    return node.check(&probe) && node.checkIdent(zMsgCommand, handler);
  });
}

void zWindow::addControlHandler(int id, unsigned code, zEventHandler handler) {
  made(ctrlNotifyList_).append(std::make_unique<zCtrlNotifyNode>(id, code, handler));
}

void zWindow::removeControlHandler(int id, unsigned code, const zEventHandler& handler) {
  made(ctrlNotifyList_).removeFirst([&](const zNotifyNode& node) {
    return static_cast<const zCtrlNotifyNode&>(node).checkCtrl(id, code, handler);
  });
}

// The window tree.

std::list<zWindow*>::iterator zWindow::getNode(int id) {
  return std::find_if(kids_.begin(), kids_.end(),
                      [id](const zWindow* kid) { return kid->ctrlId_ == id; });
}

zWindow* zWindow::get(int id) const {
  for (zWindow* kid : kids_) {
    if (kid->ctrlId_ == id) return kid;
  }
  return nullptr;
}

zWindow* zWindow::nextWin() const {
  if (!parent_) return nullptr;
  auto here = std::find(parent_->kids_.begin(), parent_->kids_.end(), this);
  return ++here == parent_->kids_.end() ? parent_->kids_.front() : *here;
}

zWindow* zWindow::prevWin() const {
  if (!parent_) return nullptr;
  const auto here = std::find(parent_->kids_.begin(), parent_->kids_.end(), this);
  return here == parent_->kids_.begin() ? parent_->kids_.back() : *std::prev(here);
}

zFrameWin* zWindow::frame() {
  for (zWindow* w = this; w; w = w->parent_) {
    if (w->isA(zTypeFrameWin)) return static_cast<zFrameWin*>(w);
  }
  return nullptr;
}

bool zWindow::isAncestorOf(const zWindow* window) const {
  return std::any_of(kids_.begin(), kids_.end(), [window](const zWindow* kid) {
    return kid == window || kid->isAncestorOf(window);
  });
}

zWindow* zWindow::ziFindDefPushButton() const {
  for (zWindow* kid : kids_) {
    if (kid->isA(zTypeButton) && static_cast<zButton*>(kid)->isDefault()) return kid;
  }
  return nullptr;
}

void zWindow::populateFromRes(const zResId& id) {
  ziDialogReader reader(this, id);
  reader.decodeFonts();
  if (reader.getFont()) setFont(reader.getFont(), 0);
  reader.createChildren();
}

void zAppDoSetAllDestroyed(zWindow* window) {
  window->unlisten();
  window->setDestroyed();
  for (zWindow* kid : window->kids_) zAppDoSetAllDestroyed(kid);
}
