#include "framework/controls/edit.h"

#include <X11/keysym.h>
#include <Xm/RowColumn.h>
#include <Xm/Text.h>

#include "framework/controls/text_transfer.h"
#include "framework/core/app.h"
#include "framework/core/x_text.h"

namespace {

constexpr int textMarginWidth = 3;

// A scroll bar tells of each move by the first of these that anybody listens to, and the text
// widget listens to all.
const char* const scrollMoves[] = {
    XmNvalueChangedCallback,  XmNdragCallback,          XmNincrementCallback, XmNdecrementCallback,
    XmNpageIncrementCallback, XmNpageDecrementCallback, XmNtoTopCallback,     XmNtoBottomCallback,
};

// In a field of several lines that leaves Return to the dialog.
XtTranslations returnActivates() {
  static const XtTranslations parsed = XtParseTranslationTable(
      "<Key>Return: activate()\n<Key>KP_Enter: activate()\n<Key>osfActivate: activate()");
  return parsed;
}

}  // namespace

// Raises a semaphore for as long as it lives. The field must outlive it.
class zEditBase::Hold {
 public:
  Hold(zEditBase& edit, Semaphore semaphore) : edit_(edit), before_(edit.semaphores_) {
    edit.semaphores_ |= semaphore;
  }
  ~Hold() { edit_.semaphores_ = before_; }
  Hold(const Hold&) = delete;
  Hold& operator=(const Hold&) = delete;

 private:
  zEditBase& edit_;
  unsigned before_;
};

zEditBase::zEditBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zControl(parent, sizer, style, title, id, subTypeEdit) {
  ziSetType(zTypeEditBase);
  createText();
}

zEditBase::zEditBase(zWindow* parent, int id, std::string* store, unsigned long bindingStyle)
    : zControl(parent, id), store_(store), bindingStyle_(bindingStyle) {
  ziSetType(zTypeEditBase);
  setHandler(this, &zEditBase::editKey, zMsgKeyDown);
}

std::vector<Arg> zEditBase::textArgs() const {
  const bool multiLine = (styleValue() & zEditStyle::multiLine) != 0;
  const bool readOnly = (styleValue() & zEditStyle::readOnly) != 0;
  std::vector<Arg> args = commonArgs();
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNeditMode, multiLine ? XmMULTI_LINE_EDIT : XmSINGLE_LINE_EDIT);
  add(XmNeditable, !readOnly);
  add(XmNcursorPositionVisible, !readOnly && !(styleValue() & zStyleDisabled));
  add(XmNverifyBell, False);
  add(XmNmarginHeight, 0);
  add(XmNmarginWidth, textMarginWidth);
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  return args;
}

Widget zEditBase::createLine(Widget board, std::vector<Arg> args) {
  const Widget row = XtVaCreateManagedWidget(
      "RowColumn", xmRowColumnWidgetClass, board, XmNmarginWidth, 0, XmNmarginHeight, 0, XmNspacing,
      0, XmNresizeWidth, False, XmNresizeHeight, False, XmNadjustLast, True, XmNwidth,
      std::max(sizer()->width(), 1), XmNheight, std::max(sizer()->height(), 1), XmNbackground,
      ziClrm->pixel(backgroundColor()), nullptr);
  const Widget text = XtCreateManagedWidget("TextField", xmTextWidgetClass, row, args.data(),
                                            static_cast<Cardinal>(args.size()));
  centreLine(text, sizer()->height());
  adoptWidget(row, text);
  return text;
}

Widget zEditBase::createBox(Widget board, std::vector<Arg> args) {
  const bool across = (styleValue() & zEditStyle::horzScroll) != 0;
  const bool down = (styleValue() & zEditStyle::vertScroll) != 0;
  for (const Arg& arg : {Arg{const_cast<char*>(XmNscrollHorizontal), across},
                         Arg{const_cast<char*>(XmNscrollVertical), down},
                         Arg{const_cast<char*>(XmNwordWrap), !across}}) {
    args.push_back(arg);
  }
  const Widget text = XmCreateScrolledText(board, const_cast<char*>("TextField"), args.data(),
                                           static_cast<Cardinal>(args.size()));
  const Widget scrolled = XtParent(text);
  XtVaSetValues(scrolled, XmNwidth, std::max(sizer()->width(), 1), XmNheight,
                std::max(sizer()->height(), 1), nullptr);
  XtManageChild(text);
  setColors(scrolled, backgroundColor());
  Widget bars[2] = {};
  XtVaGetValues(scrolled, XmNhorizontalScrollBar, &bars[0], XmNverticalScrollBar, &bars[1],
                nullptr);
  const XtCallbackProc tells[] = {horzScrollCB, vertScrollCB};
  for (int i = 0; i < 2; ++i) {
    if (!bars[i]) continue;
    XmChangeColor(bars[i], ziClrm->pixel(backgroundColor()));
    for (const char* move : scrollMoves) addCallback(bars[i], move, tells[i]);
  }
  if (!(styleValue() & zEditStyle::wantReturn)) XtOverrideTranslations(text, returnActivates());
  adoptWidget(scrolled, text);
  return text;
}

void zEditBase::createText() {
  const Widget board = createContainer("TextField");
  const bool multiLine = (styleValue() & zEditStyle::multiLine) != 0;
  const Widget text = multiLine ? createBox(board, textArgs()) : createLine(board, textArgs());
  ziSetText(text, title());
  if (!(styleValue() & zEditStyle::readOnly)) setColors(text, zWhite);
  addCallback(text, XmNmodifyVerifyCallback, modifyCB);
  addCallback(text, XmNvalueChangedCallback, changedCB);
  addCallback(text, XmNfocusCallback, focusCB);
  addCallback(text, XmNlosingFocusCallback, losingFocusCB);
  addCallback(text, XmNactivateCallback, activateCB);
  ziUseSelections(text);
}

// Data transfer.

void zEditBase::setToDefault() {
  if (store_) text(*store_);
}

int zEditBase::checkData() {
  return (bindingStyle_ & mayStayEmpty) || !getText().empty();
}

// A text that can't be shown as it is stays what it was until another one is entered.
int zEditBase::storeData() {
  const std::string text = getText();
  if (store_ && ziSafeText(*store_) != text) *store_ = text;
  return 1;
}

std::string zEditBase::getText() const {
  return textWidget() ? ziTextOf(textWidget()) : "";
}

// A text that can only be read shows its start, and does not make the field the one that the next
// paste goes to, as placing its caret would.
void zEditBase::doText(const char* value) {
  const bool readOnly = (styleValue() & zEditStyle::readOnly) != 0;
  setText(value, settingText, readOnly ? std::optional(0) : std::nullopt);
}

// A handler may set a text while a change is offered: that change is void then.
void zEditBase::setText(const std::string& value, Semaphore why, std::optional<int> caret) {
  verify_ = nullptr;
  undo_.empty();
  const Widget text = textWidget();
  if (!text) return;
  const Hold hold(*this, why);
  if (XtIsManaged(text)) {
    ziSetText(text, value);
    placeCaret(caret.value_or(static_cast<int>(XmTextGetLastPosition(text))));
  } else {
    XtVaSetValues(text, XmNvalue, ziSafeText(value).c_str(), nullptr);
  }
}

// A field of one line always shows its caret; in a box it may have been scrolled out of sight.
void zEditBase::placeCaret(int position) const {
  const bool multiLine = (styleValue() & zEditStyle::multiLine) != 0;
  if (!multiLine && XmTextGetInsertionPosition(textWidget()) == position) return;
  XmTextSetInsertionPosition(textWidget(), position);
}

void zEditBase::showEdited(const std::string& text, const zRange& selected) {
  if (verify_ && !(semaphores_ & announcing)) {
    edited_ = {text, selected};
  } else {
    setText(text, formatting, selected.end);
    selection(selected.start, selected.end);
  }
}

void zEditBase::limitText(int length) {
  if (textWidget()) XmTextSetMaxLength(textWidget(), length ? length : maxTextWhenUnlimited);
}

int zEditBase::enable() {
  showCaret(true);
  return zControl::enable();
}

int zEditBase::disable() {
  showCaret(false);
  if (textWidget()) {
    XmTextClearSelection(textWidget(), XtLastTimestampProcessed(app->display()));
  }
  return zControl::disable();
}

void zEditBase::showCaret(bool enabled) const {
  const bool visible = enabled && !(styleValue() & zEditStyle::readOnly);
  if (textWidget()) XtVaSetValues(textWidget(), XmNcursorPositionVisible, visible, nullptr);
}

void zEditBase::editBackgroundColor(const zColor& color) {
  if (textWidget()) setColors(textWidget(), color);
}

// Selection and clipboard.

zRange zEditBase::selection() const {
  if (!verify_) return widgetSelection();
  int start = static_cast<int>(std::min(verify_->startPos, verify_->endPos));
  const int end = static_cast<int>(std::max(verify_->startPos, verify_->endPos));
  if (end - start == 1) start = end;
  return {start, end};
}

zRange zEditBase::widgetSelection() const {
  if (!textWidget()) return {};
  XmTextPosition left = 0, right = 0;
  if (XmTextGetSelectionPosition(textWidget(), &left, &right) && left != right) {
    return {static_cast<int>(left), static_cast<int>(right)};
  }
  const int caret = static_cast<int>(XmTextGetInsertionPosition(textWidget()));
  return {caret, caret};
}

// An empty range must not go to the widget as a selection: it would take the primary selection from
// whoever has it.
void zEditBase::selection(int start, int end) {
  const Widget text = textWidget();
  if (!text) return;
  const Time time = XtLastTimestampProcessed(app->display());
  if (XtIsRealized(text)) {
    const int last = std::min(end, static_cast<int>(XmTextGetLastPosition(text)));
    if (start < last) {
      XmTextSetSelection(text, start, last, time);
    } else {
      XmTextClearSelection(text, time);
    }
  }
  placeCaret(end);
}

std::string zEditBase::getSelection() const {
  return textWidget() ? ziSelectedText(textWidget()) : "";
}

void zEditBase::replaceSelection(const char* text) {
  if (!textWidget()) return;
  const zRange range = selection();
  XmTextReplace(textWidget(), range.start, range.end, ziSafeText(text).data());
}

int zEditBase::cut() {
  return textWidget() && ziCutText(textWidget());
}

int zEditBase::copy() {
  return textWidget() && ziCopyText(textWidget());
}

int zEditBase::paste() {
  return textWidget() && XmTextPaste(textWidget());
}

// Undo.

int zEditBase::editKey(zKeyEvt* event) {
  KeySym plain = NoSymbol, capital = NoSymbol;
  XConvertCase(event->code(), &plain, &capital);  // Caps Lock makes no difference
  const bool undoes = plain == XK_z && event->ctrl() && !event->alt() && !event->shift();
  return undoes && undo();
}

int zEditBase::undo() {
  if (!canUndo() || !textWidget()) return 0;
  const zWindowWatch watch(this);
  notifyParent(this, zNtfEditUpdate, nullptr);
  if (watch.gone() || !canUndo()) return 1;
  ziEditUndo undo = undo_;
  const ziEditState before = undo.exchange({getText(), widgetSelection().end});
  setText(before.text, settingText);
  XmTextSetInsertionPosition(textWidget(), before.caret);
  undo_ = undo;
  hasChanged(1);
  notifyParent(this, zNtfEditChange, nullptr);
  return 1;
}
