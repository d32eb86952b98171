// The strips of tabs on the statistics pages.
#pragma once

#include "framework/controls/tab_control.h"

class myTabCtrl : public zTabCtrl {
 public:
  using zTabCtrl::zTabCtrl;
};
