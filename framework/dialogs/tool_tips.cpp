#include "framework/dialogs/tool_tips.h"

#include <X11/Shell.h>
#include <Xm/Label.h>

#include "framework/core/app.h"
#include "framework/core/child_window.h"
#include "framework/core/event_loop.h"
#include "framework/core/frame_window.h"
#include "framework/core/x_text.h"

namespace {

constexpr unsigned long pollMs = 250;
constexpr unsigned long startMs = 400;
constexpr unsigned long goAwayMs = 5500;
constexpr Time neighbourMs = 250;   // from one control to the next, for its tip to come at once
constexpr zPoint tipOffset{3, 16};  // from the pointer, pixels
constexpr int abovePointer = 4;     // pixels between the pointer and a tip above it
constexpr zColor tipBackground{255, 255, 225};
constexpr unsigned anyMouseButton =
    Button1Mask | Button2Mask | Button3Mask | Button4Mask | Button5Mask;

}  // namespace

const char* zStatusMessageTable::lookup(int id) const {
  for (const zStatusMessage* row = rows_; row && row->text; ++row) {
    if (row->id == id) return row->text;
  }
  return nullptr;
}

// The tip's window.

ziToolHelper::ziToolHelper(const zFont* font)
    : shell_(XtVaCreatePopupShell("ToolTip", overrideShellWidgetClass, app->toplevel(),
                                  XmNallowShellResize, True, XmNsaveUnder, True, XmNborderWidth, 1,
                                  XmNborderColor, ziClrm->pixel(zBlack), XmNbackground,
                                  ziClrm->pixel(tipBackground), nullptr)),
      label_(XtVaCreateManagedWidget(
          "Label", xmLabelWidgetClass, shell_, XmNbackground, ziClrm->pixel(tipBackground),
          XmNforeground, ziClrm->pixel(zBlack), XmNmarginWidth, 3, XmNmarginHeight, 1,
          XmNhighlightThickness, 0, XmNshadowThickness, 0, XmNrecomputeSize, True, nullptr)) {
  if (font) ziSetFontList(label_, font->fontList());
}

ziToolHelper::~ziToolHelper() {
  ziDestroyWidget(shell_, ziLoopDepth());
}

void ziToolHelper::text(const std::string& text) {
  const ziXmString label(text);
  XtVaSetValues(label_, XmNlabelString, label.get(), nullptr);
}

void ziToolHelper::show(zPoint at, int pointerY) {
  XtRealizeWidget(shell_);
  Dimension width = 0, height = 0, border = 0;
  XtVaGetValues(shell_, XmNwidth, &width, XmNheight, &height, XmNborderWidth, &border, nullptr);
  const int fullWidth = width + 2 * border;
  const int fullHeight = height + 2 * border;
  if (at.y + fullHeight > __scrPixHeight) at.y = pointerY - abovePointer - fullHeight;
  at.x = std::max(std::min(at.x, __scrPixWidth - fullWidth), 0);
  XtVaSetValues(shell_, XmNx, at.x, XmNy, std::max(at.y, 0), nullptr);
  XtPopup(shell_, XtGrabNone);
  shown_ = true;
}

void ziToolHelper::hide() {
  if (shown_) XtPopdown(shell_);
  shown_ = false;
}

// The control of the tips.

zToolTipCtrl::Listed::Listed(zChildWin* child)
    : window(child), widget(child->drawnWidget()), watch(child) {}

zToolTipCtrl::zToolTipCtrl(zWindow* window) : frame_(window->frame()), frameWatch_(frame_) {
  if (frame_) frame_->setHandler(this, &zToolTipCtrl::doActive, zMsgActivate);
}

zToolTipCtrl::~zToolTipCtrl() {
  if (!frameWatch_.gone()) frame_->removeHandler(this, &zToolTipCtrl::doActive, zMsgActivate);
  while (!windows_.empty()) forget(windows_.begin());
}

void zToolTipCtrl::add(zChildWin* window) {
  if (!window->drawnWidget() || find(window->drawnWidget())) return;
  Listed& listed = windows_.emplace_back(window);
  window->setupNotification(this, &zToolTipCtrl::doDown, zMsgButtonDown);
  window->setupNotification(this, &zToolTipCtrl::doMove, zMsgMouseMove);
  XtAddEventHandler(listed.widget, LeaveWindowMask, False, doLeave, this);
}

void zToolTipCtrl::remove(zChildWin* window) {
  forgetDeleted();
  for (auto it = windows_.begin(); it != windows_.end(); ++it) {
    if (it->window != window) continue;
    forget(it);
    return;
  }
}

void zToolTipCtrl::stopListening(Listed& listed) {
  if (listed.watch.gone()) return;
  listed.window->removeNotification(this, &zToolTipCtrl::doDown, zMsgButtonDown);
  listed.window->removeNotification(this, &zToolTipCtrl::doMove, zMsgMouseMove);
  if (listed.window->isDestroyed()) return;  // the widget has gone with its dialog
  XtRemoveEventHandler(listed.widget, LeaveWindowMask, False, doLeave, this);
}

void zToolTipCtrl::forget(std::list<Listed>::iterator listed) {
  if (current_ == &*listed) hideTip();
  if (lastShown_ == &*listed) lastShown_ = nullptr;
  stopListening(*listed);
  windows_.erase(listed);
}

void zToolTipCtrl::forgetDeleted() {
  for (auto it = windows_.begin(); it != windows_.end();) {
    const auto listed = it++;
    if (listed->watch.gone()) forget(listed);
  }
}

zToolTipCtrl::Listed* zToolTipCtrl::find(Widget widget) {
  forgetDeleted();
  for (Listed& listed : windows_) {
    if (listed.widget == widget) return &listed;
  }
  return nullptr;
}

void zToolTipCtrl::enable(int on) {
  enabled_ = on != 0;
  if (!enabled_) hideTip();
}

int zToolTipCtrl::doActive(zActivateEvt* event) {
  active_ = event->active();
  if (!active_) hideTip();
  return 0;
}

int zToolTipCtrl::doDown(zMouseClickEvt*) {
  hideTip();
  return 0;
}

void zToolTipCtrl::doLeave(Widget widget, XtPointer self, XEvent* event, Boolean*) {
  auto* tips = static_cast<zToolTipCtrl*>(self);
  if (!tips->current_ || tips->current_->widget != widget) return;
  const bool wasShown = tips->isTipShown();
  tips->hideTip();
  if (wasShown) tips->tipLeftAt_ = event->xcrossing.time;
}

int zToolTipCtrl::doMove(zMouseMoveEvt* event) {
  const XMotionEvent& motion = event->xEvent->xmotion;
  const zPoint mouse{motion.x_root, motion.y_root};
  if (!enabled_ || (motion.state & anyMouseButton) || mouse == lastMouse_) return 0;
  lastMouse_ = mouse;
  lastShown_ = nullptr;
  Listed* listed = find(event->window->drawnWidget());
  if (!listed) return 0;
  if (listed != current_) {
    enter(listed, event->pos(), motion.time);
  } else if (start_) {
    startAt(event->pos());
  }
  return 0;
}

void zToolTipCtrl::enter(Listed* listed, zPoint at, Time when) {
  const bool wasShown = isTipShown() || (tipLeftAt_ && when - tipLeftAt_ < neighbourMs);
  hideTip();
  current_ = listed;
  text_ = tipOf(listed->window);
  if (wasShown) {
    tipPosition_ = at;
    showTip();
  } else {
    startAt(at);
  }
}

void zToolTipCtrl::startAt(zPoint at) {
  tipPosition_ = at;
  start_ = std::make_unique<zOneShotTimer>(this, &zToolTipCtrl::startT, startMs);
}

std::string zToolTipCtrl::tipOf(const zChildWin* window) const {
  const char* text = table_.lookup(window->ctrlId());
  return text ? text : window->getText();
}

bool zToolTipCtrl::pointerIsOn(const Listed& listed) {
  if (!listed.window->isShown() || !XtIsRealized(listed.widget)) return false;
  Window root = None, child = None;
  int rootX = 0, rootY = 0;
  zPoint at;
  unsigned state = 0;
  XQueryPointer(app->display(), XtWindow(listed.widget), &root, &child, &rootX, &rootY, &at.x,
                &at.y, &state);
  zRect inside;
  listed.window->getInterior(inside);
  return inside.contains(at);
}

void zToolTipCtrl::startT() {
  start_.reset();
  forgetDeleted();
  if (current_ && pointerIsOn(*current_)) {
    showTip();
  } else {
    hideTip();
  }
}

void zToolTipCtrl::smallT() {
  forgetDeleted();
  if (!current_ || !pointerIsOn(*current_)) hideTip();
}

void zToolTipCtrl::goAwayT() {
  forgetDeleted();
  const Listed* resting = current_;
  hideTip();
  lastShown_ = resting;
}

void zToolTipCtrl::showTip() {
  if (!active_ || !current_ || current_ == lastShown_ || text_.empty()) return;
  if (!helper_) {
    const zWindow* styled = frame_ ? frame_ : static_cast<zWindow*>(current_->window);
    helper_ = std::make_unique<ziToolHelper>(styled->getFont().get());
  }
  helper_->text(text_);
  zRect outside;
  current_->window->getExterior(outside);
  const zPoint pointer{outside.left + tipPosition_.x, outside.top + tipPosition_.y};
  helper_->show({pointer.x + tipOffset.x, pointer.y + tipOffset.y}, pointer.y);
  if (!poll_) poll_ = std::make_unique<zTimer>(this, &zToolTipCtrl::smallT, pollMs);
  goAway_ = std::make_unique<zOneShotTimer>(this, &zToolTipCtrl::goAwayT, goAwayMs);
}

void zToolTipCtrl::hideTip() {
  if (helper_) helper_->hide();
  tipLeftAt_ = 0;
  current_ = nullptr;
  text_.clear();
  poll_.reset();
  start_.reset();
  goAway_.reset();
}
