#include "framework/controls/pane.h"

#include <Xm/DrawingA.h>

#include <utility>

#include "framework/core/app.h"

zPane::zPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zChildWin(parent, sizer, style, title, id) {
  ziSetType(zTypePane);
}

zPane::zPane(zWindow* parent, int id) : zPane(ziAdopt{}, parent, id) {
  bury();
}

zPane::zPane(ziAdopt, zWindow* parent, int id) : zChildWin(parent, id) {
  ziSetType(zTypePane);
}

int zPane::create() {
  const Widget board = createContainer("Pane");
  const zRect place = sizer()->rect();
  const bool tabStop = (styleValue() & zStyleTabStop) != 0;
  const Widget area = XtVaCreateManagedWidget(
      "DrawingArea", xmDrawingAreaWidgetClass, board, XmNwidth, std::max(place.width(), 1),
      XmNheight, std::max(place.height(), 1), XmNmarginWidth, 0, XmNmarginHeight, 0,
      XmNresizePolicy, XmRESIZE_NONE, XmNbackground, ziClrm->pixel(backgroundColor()),
      XmNbackgroundPixmap, None, XmNtraversalOn, tabStop, XmNnavigationType, ziNavigation(tabStop),
      XmNsensitive, !(styleValue() & zStyleDisabled), nullptr);
  setWidgets(area, nullptr);
  link()->control = area;
  listen(area, ziWindowEventMask, ziWinProc);
  addCallback(area, XmNexposeCallback, exposeCB);
  return 1;
}

Widget zPane::childArea() const {
  return getContainer();
}

void zPane::vmove(int x, int y, int width, int height) {
  zChildWin::vmove(x, y, width, height);
  setDirty(nullptr, 0);
}

void zPane::draw(zDrawEvt* event) {
  event->display->setColor(backgroundColor());
  event->display->fillRect(event->area);
}

void zPane::exposeCB(Widget, XtPointer link, XtPointer callData) {
  auto* pane = static_cast<zPane*>(static_cast<ziControlCB*>(link)->window);
  const zRect area = pane->exposure_.gather(callData);
  if (!area.isEmpty()) pane->paint(area);
}

void zPane::paint(const zRect& area) {
  ziPaintOffscreen(this, area, [this](zDrawEvt* event) { draw(event); });
}

zRect ziExposure::gather(XtPointer callData) {
  const XEvent* event = static_cast<const XmDrawingAreaCallbackStruct*>(callData)->event;
  if (!event || event->type != Expose) return {};
  const XExposeEvent& e = event->xexpose;
  exposed_ = exposed_.unionWith({zPoint{e.x, e.y}, {e.width, e.height}});
  return e.count > 0 ? zRect() : std::exchange(exposed_, zRect());
}

void ziPaintOffscreen(zWindow* window, const zRect& area,
                      const std::function<void(zDrawEvt*)>& draw) {
  if (!window->drawnWidget() || !XtIsRealized(window->drawnWidget())) return;
  zRect inside;
  window->getInterior(inside);
  const zRect seen = area.intersection(inside);
  if (seen.isEmpty()) return;
  zPixmapDisplay image({inside.width(), inside.height()});
  image.setFont(window->getFont());
  image.lock();
  image.setClip(seen);
  zDrawEvt event;
  event.area = seen;
  event.display = &image;
  event.window = window;
  draw(&event);
  image.unlock();
  zWinDisplay target(window);
  target.lock();
  target.copy(image.drawable(), seen, seen.pos());
  target.unlock();
}
