// Windows that draw themselves on a drawing area.
#pragma once

#include <functional>

#include "framework/core/child_window.h"
#include "framework/drawing/display.h"

// Paints the part `area` of a window's drawing area: `draw` fills an off-screen image, which is
// then copied, so that nothing flickers. Does nothing before the window is realized.
void ziPaintOffscreen(zWindow* window, const zRect& area,
                      const std::function<void(zDrawEvt*)>& draw);

// Gathers the exposed parts of a drawing area into one rectangle.
class ziExposure {
 public:
  // To be given the call data of each expose callback. The rectangle around all parts with the last
  // of a series, and an empty one before that.
  zRect gather(XtPointer callData);

 private:
  zRect exposed_;
};

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

  // Brings this part of the drawing area on the screen.
  virtual void paint(const zRect& area);

 private:
  static void exposeCB(Widget widget, XtPointer link, XtPointer callData);

  ziExposure exposure_;
};
