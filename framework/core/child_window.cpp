#include "framework/core/child_window.h"

#include <Xm/BulletinB.h>

#include <utility>

namespace {

constexpr int sizeWhenNotSet = 10;

}  // namespace

// A container's window goes above its siblings when it is mapped. What is drawn around others goes
// below them, and what is drawn around that stays lowest.
void zChildWin::stackOnMap(Widget widget, XtPointer link, XEvent* event, Boolean*) {
  if (event->type != MapNotify) return;
  const auto* mapped = static_cast<zChildWin*>(static_cast<ziControlCB*>(link)->window);
  if (mapped->layer() == Layer::control) {
    XRaiseWindow(XtDisplay(widget), XtWindow(widget));
    return;
  }
  XLowerWindow(XtDisplay(widget), XtWindow(widget));
  for (const zWindow* kid : mapped->parent()->kidslist()) {
    if (!kid->isA(zTypeChildWin)) continue;
    const auto* sibling = static_cast<const zChildWin*>(kid);
    const Widget container = sibling->container_;
    if (sibling->layer() > mapped->layer() && container && XtIsRealized(container))
      XLowerWindow(XtDisplay(container), XtWindow(container));
  }
}

zChildWin::zChildWin(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zWindow(parent, sizer, style | zStyleChild) {
  ziSetType(zTypeChildWin);
  setTitle(title ? title : "");
  setCtrlId(id);
}

zChildWin::zChildWin(zWindow* parent, int id) : zWindow(ziAdopt{}, parent) {
  ziSetType(zTypeChildWin);
  auto* old = static_cast<zChildWin*>(parent ? parent->get(id) : nullptr);
  takeOver(old);
  setCtrlId(id);
  if (!old) return;
  husk_.reset(old);
  container_ = std::exchange(old->container_, nullptr);
  if (container_) XtVaSetValues(container_, XmNuserData, static_cast<zWindow*>(this), nullptr);
}

zChildWin::~zChildWin() {
  deleteKids();
  destroyWidgets(container_ ? container_ : getWidget());
}

int zChildWin::create() {
  return 1;
}

void zChildWin::setToDefault() {}

Widget zChildWin::createContainer(const char* name) {
  if (!sizer()->hasSize()) sizer()->dimension({sizeWhenNotSet, sizeWhenNotSet});
  const zRect place = sizer()->rect();
  container_ = XtVaCreateWidget(
      name, xmBulletinBoardWidgetClass, parent()->childArea(), XmNx, place.left, XmNy, place.top,
      XmNwidth, std::max(place.width(), 1), XmNheight, std::max(place.height(), 1), XmNmarginWidth,
      0, XmNmarginHeight, 0, XmNresizePolicy, XmRESIZE_NONE, XmNshadowThickness, 0, XmNautoUnmanage,
      False, XmNbackground, ziClrm->pixel(backgroundColor()), XmNuserData,
      static_cast<zWindow*>(this), nullptr);
  listen(container_, StructureNotifyMask, stackOnMap);
  return container_;
}

int zChildWin::show(int visible) {
  zWindow::show(visible);
  const Widget top = container_ ? container_ : getWidget();
  if (!top) return 0;
  if (visible) {
    XtManageChild(top);
  } else {
    XtUnmanageChild(top);
  }
  return 1;
}

void zChildWin::vmove(int x, int y, int width, int height) {
  zWindow::vmove(x, y, width, height);
  const Widget top = container_ ? container_ : getWidget();
  if (!top) return;
  const int w = std::max(width, 1);
  const int h = std::max(height, 1);
  XtVaSetValues(top, XmNx, x, XmNy, y, XmNwidth, w, XmNheight, h, nullptr);
  if (container_ && getWidget() && getWidget() != container_) {
    XtVaSetValues(getWidget(), XmNwidth, w, XmNheight, h, nullptr);
  }
}

void zChildWin::getExterior(zRect& rect) const {
  getInterior(rect);
  const Widget widget = getWidget();
  if (!widget) return;
  Position x = 0, y = 0;
  XtTranslateCoords(widget, 0, 0, &x, &y);
  rect = rect.moved(x, y);
}
