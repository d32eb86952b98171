#include "framework/controls/combo_box.h"

#include <Xm/ArrowB.h>
#include <Xm/Form.h>
#include <Xm/List.h>
#include <Xm/Text.h>

#include "framework/controls/text_transfer.h"
#include "framework/core/app.h"
#include "framework/core/x_text.h"

zComboBoxBase* ziActiveCombo = nullptr;

namespace {

constexpr int itemsInView = 8;
constexpr int highlight = 2;  // pixels, as are the others
constexpr int shadow = 2;
constexpr int textMargin = 3;
constexpr int roomAroundLine = 2 * (highlight + shadow + 2);

}  // namespace

zComboBoxBase::zComboBoxBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                             int id)
    : ziItemControl(parent, sizer, style, title, id) {
  ziSetType(zTypeComboBoxBase);
}

zComboBoxBase::zComboBoxBase(zWindow* parent, int id, ziItemStore store, unsigned long bindingStyle)
    : ziItemControl(parent, id, zTypeComboBoxBase, store, bindingStyle) {
  ziSetType(zTypeComboBoxBase);
  if (husk() && husk()->isA(zTypeComboBoxBase)) {
    auto* old = static_cast<zComboBoxBase*>(husk());
    arrow_ = old->arrow_;
    drop_ = std::move(old->drop_);
  }
  bury();
}

zComboBoxBase::~zComboBoxBase() {
  if (ziActiveCombo == this) ziActiveCombo = nullptr;
  if (drop_ && !isDestroyed()) drop_->close();
}

// Making the widgets.

int zComboBoxBase::lineHeight(int height) const {
  const int line = (getFont() ? getFont()->height() : height) + roomAroundLine;
  const bool countsMore = subtype() == simple ? height > line : height > 2 * line;
  return countsMore ? line : height;
}

int zComboBoxBase::create() {
  const int height = lineHeight(sizer()->height());
  if (subtype() != simple) sizer()->dimension({sizer()->width(), height});
  const Widget board = createContainer("ComboBox");
  const Widget form = XtVaCreateManagedWidget(
      "Form", xmFormWidgetClass, board, XmNwidth, std::max(sizer()->width(), 1), XmNheight,
      std::max(sizer()->height(), 1), XmNmarginWidth, 0, XmNmarginHeight, 0, XmNshadowThickness, 0,
      XmNresizePolicy, XmRESIZE_NONE, XmNbackground, ziClrm->pixel(backgroundColor()), XmNsensitive,
      !(styleValue() & zStyleDisabled), nullptr);
  if (subtype() != simple) createArrow(form, height);
  const Widget text = createText(form, height);
  adoptWidget(form, text);
  setColors(text, zWhite);
  listen(text, KeyPressMask, textKeyCB, XtListHead);
  addCallback(text, XmNmodifyVerifyCallback, modifyCB);
  addCallback(text, XmNvalueChangedCallback, changedCB);
  addCallback(text, XmNfocusCallback, focusCB);
  addCallback(text, XmNlosingFocusCallback, losingFocusCB);
  addCallback(text, XmNactivateCallback, activateCB);
  ziUseSelections(text);
  createLists(form, text, height);
  return 1;
}

void zComboBoxBase::createArrow(Widget form, int height) {
  arrow_ = XtVaCreateManagedWidget("ArrowButton", xmArrowButtonWidgetClass, form, XmNarrowDirection,
                                   XmARROW_DOWN, XmNtraversalOn, False, XmNhighlightThickness,
                                   highlight, XmNshadowThickness, shadow, XmNwidth, height,
                                   XmNtopAttachment, XmATTACH_FORM, XmNbottomAttachment,
                                   XmATTACH_FORM, XmNrightAttachment, XmATTACH_FORM, nullptr);
  setColors(arrow_, backgroundColor());
  addCallback(arrow_, XmNarmCallback, arrowCB);
}

Widget zComboBoxBase::createText(Widget form, int height) {
  std::vector<Arg> args = commonArgs();
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNheight, static_cast<XtArgVal>(height));
  add(XmNeditable, typesText());
  add(XmNcursorPositionVisible, typesText());
  add(XmNhighlightThickness, highlight);
  add(XmNshadowThickness, shadow);
  add(XmNmarginWidth, textMargin);
  add(XmNmarginHeight, 0);
  add(XmNtopAttachment, XmATTACH_FORM);
  add(XmNleftAttachment, XmATTACH_FORM);
  add(XmNbottomAttachment, arrow_ ? XmATTACH_FORM : XmATTACH_NONE);
  add(XmNrightAttachment, arrow_ ? XmATTACH_WIDGET : XmATTACH_FORM);
  if (arrow_) add(XmNrightWidget, reinterpret_cast<XtArgVal>(arrow_));
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  const Widget text = XtCreateManagedWidget("Text", xmTextWidgetClass, form, args.data(),
                                            static_cast<Cardinal>(args.size()));
  centreLine(text, height);
  return text;
}

void zComboBoxBase::createLists(Widget form, Widget text, int line) {
  if (subtype() != simple) drop_ = std::make_unique<ziDropList>(form);
  const Widget place = drop_ ? drop_->shell() : form;
  createList(place, "ScrolledList", XmBROWSE_SELECT, false);
  if (!drop_) {
    XtVaSetValues(XtParent(list()), XmNtopAttachment, XmATTACH_WIDGET, XmNtopWidget, text,
                  XmNleftAttachment, XmATTACH_FORM, XmNrightAttachment, XmATTACH_FORM,
                  XmNbottomAttachment, XmATTACH_FORM, XmNleftOffset, highlight, XmNrightOffset,
                  highlight, XmNheight, std::max(sizer()->height() - line, 1), nullptr);
  }
  addCallback(list(), XmNbrowseSelectionCallback, cbSelCB);
  addCallback(list(), XmNdefaultActionCallback, drop_ ? cbSelCB : cbDblClickCB);
}

// Place and look.

int zComboBoxBase::show(int visible) {
  if (!visible) pop();
  return ziItemControl::show(visible);
}

int zComboBoxBase::disable() {
  pop();
  return ziItemControl::disable();
}

void zComboBoxBase::vmove(int x, int y, int width, int height) {
  pop();
  ziItemControl::vmove(x, y, width, subtype() == simple ? height : lineHeight(height));
}

void zComboBoxBase::ziShowFont() {
  ziItemControl::ziShowFont();
  if (textWidget()) ziSetFontList(textWidget(), getFont()->fontList());
}

void zComboBoxBase::ziBackgroundColor(const zColor& color) {
  zWindow::ziBackgroundColor(color);
  if (arrow_) XmChangeColor(arrow_, ziClrm->pixel(color));
  editBackgroundColor(zWhite);
}

void zComboBoxBase::editBackgroundColor(const zColor& color) {
  if (textWidget()) setColors(textWidget(), color);
}

// The drop list.

// As wide as the control, or as its longest item; as high as its items, up to a number of them.
zDimension zComboBoxBase::dropSize() const {
  const int seen = std::clamp(count(), 1, itemsInView);
  const Widget frame = XtParent(list());
  Widget bar = nullptr;
  Dimension own = 0, barWidth = 0, gap = 0, margin = 0;
  XtVaSetValues(list(), XmNvisibleItemCount, seen, nullptr);
  XtVaGetValues(getWidget(), XmNwidth, &own, nullptr);
  XtVaGetValues(frame, XmNverticalScrollBar, &bar, XmNspacing, &gap, nullptr);
  XtVaGetValues(bar, XmNwidth, &barWidth, nullptr);
  XtVaGetValues(list(), XmNlistMarginWidth, &margin, nullptr);
  XtWidgetGeometry wanted{};
  XtQueryGeometry(list(), nullptr, &wanted);
  int longest = 0;
  for (const std::string& item : texts()) {
    longest = std::max(longest, getFont() ? getFont()->textWidth(ziSafeText(item)) : 0);
  }
  const int roomForBar = count() > seen ? barWidth + gap : 0;
  return {std::max<int>(own, longest + 2 * (margin + shadow + highlight) + roomForBar),
          wanted.height};
}

void zComboBoxBase::drop() {
  if (!drop_ || isOpen() || !isEnabled() || !isShown() || !XtIsRealized(getWidget())) return;
  ziResetPopup();
  zWindowWatch watch(this);
  notifyParent(this, zNtfComboDropDown, nullptr);
  if (watch.gone() || isOpen() || !isEnabled() || !isShown()) return;
  setListColors(zWhite);
  const zDimension size = dropSize();
  drop_->open(size, zAction<void>(this, &zComboBoxBase::pop));
  ziActiveCombo = this;
  if (count() > 0) XmListSetPos(list(), 1);
  showSelected(selection());
}

void zComboBoxBase::pop() {
  if (!isOpen()) return;
  ziActiveCombo = nullptr;
  drop_->close();
  showSelected(selection());
}

void zComboBoxBase::ziResetPopup() {
  if (ziActiveCombo) ziActiveCombo->pop();
}

// Selection and text.

int zComboBoxBase::selection(int index) {
  if (!list() || index < -1 || index >= count()) return -1;
  setCurrent(index);
  showSelected(index);
  showText(itemText(index));
  return index;
}

// A text in the field of the focus is selected, so that typing replaces it.
void zComboBoxBase::showText(const std::string& shown) {
  const Widget text = textWidget();
  semaphores_ |= settingText;
  ziSetText(text, shown);
  const XmTextPosition end = XmTextGetLastPosition(text);
  if (XmGetFocusWidget(text) == text && end > 0) {
    XmTextSetSelection(text, 0, end, XtLastTimestampProcessed(app->display()));
  }
  if (XmTextGetInsertionPosition(text) != end) XmTextSetInsertionPosition(text, end);
  semaphores_ &= ~static_cast<unsigned>(settingText);
}

std::string zComboBoxBase::getText() const {
  if (selection() >= 0) return itemText(selection());
  return textWidget() ? ziTextOf(textWidget()) : "";
}

void zComboBoxBase::doText(const char* value) {
  if (!list()) return;
  const int same = findExact(value);
  selection(same);
  if (same < 0) showText(value);
}

void zComboBoxBase::currentRemoved() {
  showText("");
}

void zComboBoxBase::selectStored(const std::string& stored) {
  if (typesText()) {
    text(stored);
  } else {
    ziItemControl::selectStored(stored);
  }
}

int zComboBoxBase::checkData() {
  if (typesText() || bindingAllowsEmpty()) return 1;
  return selection() >= 0 && !getText().empty();
}

// What the user does.

void zComboBoxBase::choose(int index, void* callData) {
  selection(index);
  pop();
  notifyParent(this, zNtfSelChange, callData);
}

void zComboBoxBase::moveTo(int index) {
  if (!hasItem(index)) return;
  if (isOpen()) {
    showSelected(index);
  } else if (index != selection()) {
    choose(index, nullptr);
  }
}

void zComboBoxBase::toggle(int) {
  if (isOpen()) {
    pop();
  } else {
    drop();
  }
}

int zComboBoxBase::marked() const {
  int* positions = nullptr;
  int count = 0;
  if (!XmListGetSelectedPos(list(), &positions, &count)) return -1;
  const int index = positions[0] - 1;
  XtFree(reinterpret_cast<char*>(positions));
  return index;
}

void zComboBoxBase::step(int items) {
  moveTo(std::clamp(marked() + items, 0, std::max(count() - 1, 0)));
}

void zComboBoxBase::stepPage(int pages) {
  step(pages * (itemsInView - 1));
}

void zComboBoxBase::goToEnd(int last) {
  moveTo(last ? count() - 1 : 0);
}

bool zComboBoxBase::takeMarked() {
  if (!isOpen()) return false;
  if (marked() < 0) {
    pop();
  } else {
    choose(marked(), nullptr);
  }
  return true;
}

void zComboBoxBase::cbSelCB(Widget, XtPointer link, XtPointer callData) {
  auto* combo = controlOf<zComboBoxBase>(link);
  const auto* chosen = static_cast<const XmListCallbackStruct*>(callData);
  combo->choose(chosen->item_position - 1, callData);
}

void zComboBoxBase::cbDblClickCB(Widget, XtPointer link, XtPointer callData) {
  notifyParent(controlOf<zComboBoxBase>(link), zNtfListDoubleClick, callData);
}

void zComboBoxBase::arrowCB(Widget, XtPointer link, XtPointer) {
  auto* combo = controlOf<zComboBoxBase>(link);
  zWindowWatch watch(combo);
  XmProcessTraversal(combo->textWidget(), XmTRAVERSE_CURRENT);
  if (!watch.gone()) combo->drop();
}

// Where nothing is typed, the whole field is a button that drops the list.
int zComboBoxBase::mouseButtonDown(zMouseClickEvt* event) {
  if (typesText() || !event->isButton(Button1)) return 0;
  arrowCB(arrow_, link(), nullptr);
  return 1;
}

// Typing.

void zComboBoxBase::modifyCB(Widget, XtPointer link, XtPointer callData) {
  auto* combo = controlOf<zComboBoxBase>(link);
  if (combo->semaphores_ & settingText) return;
  auto& change = *static_cast<XmTextVerifyCallbackStruct*>(callData);
  const std::string inserted = ziInsertedText(change);
  if (ziSafeText(inserted) != inserted) {
    change.doit = False;  // a control character: a key that nobody took
  } else {
    notifyParent(combo, zNtfComboEditUpdate, callData);
  }
}

void zComboBoxBase::changedCB(Widget, XtPointer link, XtPointer callData) {
  auto* combo = controlOf<zComboBoxBase>(link);
  if (combo->semaphores_ & settingText) return;
  const int before = combo->selection();
  const bool leftItem =
      before >= 0 && ziTextOf(combo->textWidget()) != ziSafeText(combo->itemText(before));
  if (leftItem) {
    combo->setCurrent(-1);
    combo->showSelected(-1);
  }
  zWindowWatch watch(combo);
  notifyParent(combo, zNtfComboEditChange, callData);
  if (leftItem && !watch.gone()) notifyParent(combo, zNtfSelChange, callData);
}

void zComboBoxBase::focusCB(Widget, XtPointer link, XtPointer callData) {
  notifyParent(controlOf<zComboBoxBase>(link), zNtfComboSetFocus, callData);
}

void zComboBoxBase::activateCB(Widget, XtPointer link, XtPointer callData) {
  controlOf<zComboBoxBase>(link)->pressDefaultButton(callData);
}

void zComboBoxBase::losingFocusCB(Widget text, XtPointer link, XtPointer callData) {
  auto* combo = controlOf<zComboBoxBase>(link);
  combo->pop();
  XmTextClearSelection(text, XtLastTimestampProcessed(app->display()));
  notifyParent(combo, zNtfComboKillFocus, callData);
}
