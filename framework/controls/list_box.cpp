#include "framework/controls/list_box.h"

#include <Xm/List.h>

namespace {

unsigned char policyOf(unsigned long style) {
  if (!(style & zListBoxStyle::multiple)) return XmBROWSE_SELECT;
  return style & zListBoxStyle::extended ? XmEXTENDED_SELECT : XmMULTIPLE_SELECT;
}

}  // namespace

zListBoxBase::zListBoxBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                           int id)
    : ziItemControl(parent, sizer, style, title, id) {
  ziSetType(zTypeListBoxBase);
}

zListBoxBase::zListBoxBase(zWindow* parent, int id, ziItemStore store, unsigned long bindingStyle)
    : ziItemControl(parent, id, zTypeListBoxBase, store, bindingStyle) {
  ziSetType(zTypeListBoxBase);
  bury();
}

int zListBoxBase::create() {
  const Widget board = createContainer("ListBox");
  const bool tabStop = (styleValue() & zStyleTabStop) != 0;
  const Widget list = createList(board, "ScrolledListBox", policyOf(styleValue()), tabStop);
  const Widget frame = XtParent(list);
  XtVaSetValues(frame, XmNwidth, std::max(sizer()->width(), 1), XmNheight,
                std::max(sizer()->height(), 1), XmNsensitive, !(styleValue() & zStyleDisabled),
                nullptr);
  adoptWidget(frame, list);
  setListColors(zWhite);
  for (const char* selected : {XmNbrowseSelectionCallback, XmNsingleSelectionCallback,
                               XmNmultipleSelectionCallback, XmNextendedSelectionCallback}) {
    addCallback(list, selected, lbSelCB);
  }
  addCallback(list, XmNdefaultActionCallback, lbDblClickCB);
  listen(list, FocusChangeMask, lbFocusCB);
  return 1;
}

int zListBoxBase::selection() const {
  const int index = ziItemControl::selection();
  return hasItem(index) && XmListPosSelected(list(), index + 1) ? index : -1;
}

int zListBoxBase::selection(int index) {
  if (!list() || index < -1 || index >= count()) return -1;
  setCurrent(index);
  showSelected(index);
  return index;
}

int zListBoxBase::checkData() {
  return bindingAllowsEmpty() || count() == 0 || selection() >= 0;
}

void zListBoxBase::lbSelCB(Widget, XtPointer link, XtPointer callData) {
  auto* box = controlOf<zListBoxBase>(link);
  const auto* chosen = static_cast<const XmListCallbackStruct*>(callData);
  if (chosen->item_position) box->setCurrent(chosen->item_position - 1);
  notifyParent(box, zNtfSelChange, callData);
}

void zListBoxBase::lbDblClickCB(Widget, XtPointer link, XtPointer callData) {
  notifyParent(controlOf<zListBoxBase>(link), zNtfListDoubleClick, callData);
}

// The keyboard goes on from where the selection is.
void zListBoxBase::lbFocusCB(Widget list, XtPointer link, XEvent* event, Boolean*) {
  const int index = controlOf<zListBoxBase>(link)->selection();
  if (event->type == FocusIn && index >= 0) XmListSetKbdItemPos(list, index + 1);
}
