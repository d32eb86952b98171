#include "framework/controls/panel.h"

void zPanel3d::draw(zDrawEvt* event) {
  zPane::draw(event);
  zRect all;
  getInterior(all);
  event->display->edge3d(all, true);
}
