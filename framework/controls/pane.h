// Windows that draw themselves on a drawing area.
#pragma once

#include "framework/core/child_window.h"
#include "framework/drawing/display.h"

class zPane : public zChildWin {
 public:
  zPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes the place of the generic pane that a dialog template made under `id`.
  zPane(zWindow* parent, int id);

  int create() override;
  // Paints `event->area`, to which `event->display` is clipped. It covers all of the area: the
  // server leaves what was there before.
  virtual void draw(zDrawEvt* event);
  void vmove(int x, int y, int width, int height) override;
  Widget childArea() const override;

 protected:
  // The same, and leaves it to the derived class to take the husk's state and bury it.
  zPane(ziAdopt, zWindow* parent, int id);

  // Exposed parts are gathered into one rectangle, drawn on an off-screen image and copied, so that
  // nothing flickers.
  void paint(const zRect& area);

 private:
  static void exposeCB(Widget widget, XtPointer link, XtPointer callData);

  zRect exposed_;
};
