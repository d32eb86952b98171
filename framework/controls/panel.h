// A raised area that other controls stand on; in a template it comes before them.
#pragma once

#include "framework/controls/pane.h"

class zPanel3d : public zPane {
 public:
  // With its widget.
  zPanel3d(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
      : zPane(parent, sizer, style, title, id) {
    zPane::create();
  }
  zPanel3d(zWindow* parent, int id) : zPane(parent, id) {}

  void draw(zDrawEvt* event) override;
};
