// A plain scroll bar.
#pragma once

#include "framework/controls/control.h"

class zScrollBarBase : public zControl {
 public:
  static constexpr unsigned long verticalStyle = 0x1;

  // The generic scroll bar of a template; `create` makes its widget.
  zScrollBarBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zScrollBarBase(zWindow* parent, int id);

  int create() override;
};
