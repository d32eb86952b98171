#include "framework/core/frame_window.h"

#include <X11/Xutil.h>
#include <Xm/DragDrop.h>
#include <Xm/MwmUtil.h>
#include <Xm/Xm.h>

#include <utility>

#include "framework/core/app.h"
#include "framework/drawing/bitmap.h"

extern "C" void _XEditResCheckMessages(Widget, XtPointer, XEvent*, Boolean*);

namespace {

// Every label and text would be a thing to drag. Nothing of ours takes what is dropped but texts,
// which have the middle button's paste, and the toolkit does not survive it when the source or the
// target of a drag goes before the drag is over.
void refuseDrag(Widget, XtPointer, XtPointer callData) {
  static_cast<XmDragStartCallbackStruct*>(callData)->doit = False;
}

struct StyleHint {
  unsigned long style;  // all of these bits
  int decoration;
  int function;
};
constexpr StyleHint styleHints[] = {
    {zStyleCaption, MWM_DECOR_TITLE, 0},
    {zStyleSysMenu, MWM_DECOR_MENU, 0},
    {zStyleMinimize, MWM_DECOR_MINIMIZE, MWM_FUNC_MINIMIZE},
    {zStyleMaximize, MWM_DECOR_MAXIMIZE, MWM_FUNC_MAXIMIZE},
    {zStyleThickFrame, MWM_DECOR_RESIZEH, MWM_FUNC_RESIZE},
    {0, MWM_DECOR_BORDER, MWM_FUNC_MOVE | MWM_FUNC_CLOSE},
};

}  // namespace

zFrameWin::zFrameWin(zWindow* parent, zSizer* sizer, unsigned long style, const char* title)
    : zWindow(parent, sizer ? sizer : new zSizer(nullptr), style) {
  ziSetType(zTypeFrameWin);
  setTitle(title ? title : "");
  if (!app->rootWindow()) app->setRootWindow(this);
}

zFrameWin::~zFrameWin() {
  if (isRoot()) app->setRootWindow(nullptr);
}

bool zFrameWin::isRoot() const {
  return app->rootWindow() == this;
}

zFrameWin::MwmHints zFrameWin::mwmHints() const {
  MwmHints hints{0, 0};
  for (const StyleHint& h : styleHints) {
    if ((styleValue() & h.style) != h.style) continue;
    hints.decorations |= h.decoration;
    hints.functions |= h.function;
  }
  return hints;
}

int zFrameWin::create() {
  if (isRoot() && !app->toplevel()) createApplicationShell();
  return 1;
}

void zFrameWin::createApplicationShell() {
  const MwmHints hints = mwmHints();
  shell_ = XtVaAppCreateShell(ZAPPXMprogname, app->getAppClassName().c_str(),
                              applicationShellWidgetClass, app->display(), XmNdeleteResponse,
                              XmDO_NOTHING, XmNtitle, title().c_str(), XmNmwmDecorations,
                              hints.decorations, XmNmwmFunctions, hints.functions, nullptr);
  app->setToplevel(shell_);
  const Widget display = XmGetXmDisplay(app->display());
  XtVaSetValues(display, XmNdragInitiatorProtocolStyle, XmDRAG_PREFER_RECEIVER,
                XmNdragReceiverProtocolStyle, XmDRAG_DYNAMIC, nullptr);
  XtAddCallback(display, XmNdragStartCallback, refuseDrag, nullptr);
  XtAddEventHandler(shell_, NoEventMask, True, _XEditResCheckMessages, nullptr);
  app->setScreenDefaults(shell_);
  if (!zAppFontDict) zAppFontDict = new ziFontDict;
  app->altModMaskInit();
  app->readResources();
}

void zFrameWin::caption(const std::string& text) {
  setTitle(text);
  if (shell_) XtVaSetValues(shell_, XmNtitle, text.c_str(), XmNiconName, text.c_str(), nullptr);
}

void zFrameWin::setIcon(std::unique_ptr<zIcon> icon) {
  icon_ = std::move(icon);
  applyIcon();
}

void zFrameWin::applyIcon() {
  if (!icon_ || !shell_) return;
  XtVaSetValues(shell_, XmNiconPixmap, icon_->pixmap(), XmNiconMask, icon_->mask(), nullptr);
}

int zFrameWin::keyLeft(zKeyEvt*) {
  return 0;
}

void zFrameWin::focusFirst() {
  zWindow* wanted = std::exchange(firstFocus_, nullptr);
  if (wanted && isAncestorOf(wanted)) wanted->setFocus();
}

int zFrameWin::showSet(int how) {
  if (!shell_ || !XtIsRealized(shell_)) return 0;
  Display* display = app->display();
  const Window window = XtWindow(shell_);
  switch (how) {
    case 0:
      // Also a window that the window manager is only about to map.
      XWithdrawWindow(display, window, DefaultScreen(display));
      break;
    case 2:
    case 6:
    case 7:
      XIconifyWindow(display, window, DefaultScreen(display));
      break;
    case 3:
      vmove(0, 0, __scrPixWidth, __scrPixHeight);
      [[fallthrough]];
    default:
      XMapWindow(display, window);
      if (!isRoot()) XtPopup(shell_, XtGrabNone);
  }
  return 1;
}

void zFrameWin::getExterior(zRect& rect) const {
  if (!shell_) {
    rect = sizer()->rect();
    return;
  }
  Dimension width = 0, height = 0;
  Position x = 0, y = 0;
  XtVaGetValues(shell_, XmNwidth, &width, XmNheight, &height, nullptr);
  XtTranslateCoords(shell_, 0, 0, &x, &y);
  if (!XtIsRealized(shell_)) {
    x = static_cast<Position>(sizer()->pos().x);
    y = static_cast<Position>(sizer()->pos().y);
  }
  rect = {zPoint{x, y}, {width, height}};
}

void zFrameWin::vmove(int x, int y, int width, int height) {
  zWindow::vmove(x, y, width, height);
  if (!shell_) return;
  XtVaSetValues(shell_, XmNx, x, XmNy, y, XmNwidth, std::max(width, 1), XmNheight,
                std::max(height, 1), nullptr);
}
