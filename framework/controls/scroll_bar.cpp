#include "framework/controls/scroll_bar.h"

#include <Xm/ScrollBar.h>

zScrollBarBase::zScrollBarBase(zWindow* parent, zSizer* sizer, unsigned long style,
                               const char* title, int id)
    : zControl(parent, sizer, style, title, id, subTypeOther) {
  ziSetType(zTypeScrollBarBase);
}

zScrollBarBase::zScrollBarBase(zWindow* parent, int id) : zControl(parent, id) {
  ziSetType(zTypeScrollBarBase);
}

int zScrollBarBase::create() {
  const bool vertical = (styleValue() & verticalStyle) != 0;
  const Widget board = createContainer("ScrollBar");
  std::vector<Arg> args = commonArgs();
  args.push_back({const_cast<char*>(XmNorientation), vertical ? XmVERTICAL : XmHORIZONTAL});
  return adoptWidget(XtCreateManagedWidget("ScrollBar", xmScrollBarWidgetClass, board, args.data(),
                                           static_cast<Cardinal>(args.size())));
}
