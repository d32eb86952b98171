// List boxes over XmScrolledList.
#pragma once

#include "framework/controls/item_control.h"

struct zListBoxStyle {
  static constexpr unsigned long sort = ziItemControl::sortStyle;
  static constexpr unsigned long multiple = 0x8;    // a click turns a row on or off
  static constexpr unsigned long extended = 0x800;  // with `multiple`: by Shift, Control and drag
};

class zListBoxBase : public ziItemControl {
 public:
  // The generic list of a template; `create` makes its widget.
  zListBoxBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes its place.
  zListBoxBase(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0);

  int create() override;

  // Of several rows selected, the one that was clicked last.
  int selection() const override;
  int selection(int index) override;
  using ziItemControl::selection;

  // False when there are items, none is selected, and the binding wants one.
  int checkData() override;

 private:
  static void lbSelCB(Widget widget, XtPointer link, XtPointer callData);
  static void lbDblClickCB(Widget widget, XtPointer link, XtPointer callData);
  static void lbFocusCB(Widget widget, XtPointer link, XEvent* event, Boolean* goOn);
};

class zListBox : public zListBoxBase {
 public:
  zListBox(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0)
      : zListBoxBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeListBox);
  }
};

// Appends, whatever the template's style says.
class zListBoxUnsorted : public zListBox {
 public:
  zListBoxUnsorted(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0)
      : zListBox(parent, id, store, bindingStyle) {
    ziSetType(zTypeListBoxUnsorted);
    styleClear(zListBoxStyle::sort);
  }
};
