#include "framework/controls/edit.h"

#include <Xm/RowColumn.h>
#include <Xm/Text.h>

#include <cctype>

#include "framework/core/app.h"
#include "framework/core/x_text.h"

namespace {

constexpr char backspace = 8;

}  // namespace

zEditBase::zEditBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zControl(parent, sizer, style, title, id, subTypeEdit) {
  ziSetType(zTypeEditBase);
  createText();
}

zEditBase::zEditBase(zWindow* parent, int id, std::string* store, unsigned long bindingStyle)
    : zControl(parent, id), store_(store), bindingStyle_(bindingStyle) {
  ziSetType(zTypeEditBase);
}

void zEditBase::createText() {
  const Widget board = createContainer("TextField");
  const unsigned long style = styleValue();
  const bool multiLine = (style & zEditStyle::multiLine) != 0;
  const bool readOnly = (style & zEditStyle::readOnly) != 0;
  const Widget row = XtVaCreateManagedWidget(
      "RowColumn", xmRowColumnWidgetClass, board, XmNmarginWidth, 0, XmNmarginHeight, 0, XmNspacing,
      0, XmNresizeWidth, False, XmNresizeHeight, False, XmNadjustLast, True, XmNwidth,
      std::max(sizer()->width(), 1), XmNheight, std::max(sizer()->height(), 1), XmNbackground,
      ziClrm->pixel(backgroundColor()), nullptr);
  std::vector<Arg> args = commonArgs();
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNeditMode, multiLine ? XmMULTI_LINE_EDIT : XmSINGLE_LINE_EDIT);
  add(XmNeditable, !readOnly);
  add(XmNcursorPositionVisible, !readOnly);
  add(XmNmarginHeight, 0);
  add(XmNmarginWidth, 3);
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  const Widget text = XtCreateManagedWidget("TextField", xmTextWidgetClass, row, args.data(),
                                            static_cast<Cardinal>(args.size()));
  if (!multiLine) centreLine(text, sizer()->height());
  ziSetText(text, title());
  adoptWidget(row, text);
  if (!readOnly) setColors(text, zWhite);
  addCallback(text, XmNmodifyVerifyCallback, modifyCB);
  addCallback(text, XmNvalueChangedCallback, changedCB);
  addCallback(text, XmNfocusCallback, focusCB);
  addCallback(text, XmNlosingFocusCallback, losingFocusCB);
  addCallback(text, XmNactivateCallback, activateCB);
}

// Data transfer.

void zEditBase::setToDefault() {
  if (store_) text(*store_);
}

int zEditBase::checkData() {
  return bindingAllowsEmpty() || !getText().empty();
}

int zEditBase::storeData() {
  if (store_) *store_ = getText();
  return 1;
}

std::string zEditBase::getText() const {
  return textWidget() ? ziTextOf(textWidget()) : "";
}

void zEditBase::doText(const char* value) {
  const Widget text = textWidget();
  if (!text) return;
  semaphores_ |= settingText;
  if (XtIsManaged(text)) {
    ziSetText(text, value);
    XmTextSetInsertionPosition(text, XmTextGetLastPosition(text));
  } else {
    XtVaSetValues(text, XmNvalue, ziSafeText(value).c_str(), nullptr);
  }
  semaphores_ &= ~static_cast<unsigned>(settingText);
}

void zEditBase::limitText(int length) {
  if (textWidget()) XmTextSetMaxLength(textWidget(), length ? length : maxTextWhenUnlimited);
}

void zEditBase::editBackgroundColor(const zColor& color) {
  if (textWidget()) setColors(textWidget(), color);
}

// Selection and clipboard.

zRange zEditBase::selection() const {
  if (verify_) {
    const auto* verify = static_cast<const XmTextVerifyCallbackStruct*>(verify_);
    int start = static_cast<int>(std::min(verify->startPos, verify->endPos));
    const int end = static_cast<int>(std::max(verify->startPos, verify->endPos));
    if (end - start == 1) start = end;
    return {start, end};
  }
  if (!textWidget()) return {};
  XmTextPosition left = 0, right = 0;
  if (XmTextGetSelectionPosition(textWidget(), &left, &right) && left != right) {
    return {static_cast<int>(left), static_cast<int>(right)};
  }
  const int caret = static_cast<int>(XmTextGetInsertionPosition(textWidget()));
  return {caret, caret};
}

void zEditBase::selection(int start, int end) {
  const Widget text = textWidget();
  if (!text) return;
  if (XtIsRealized(text)) {
    const XmTextPosition last = XmTextGetLastPosition(text);
    XmTextSetSelection(text, start, std::min<XmTextPosition>(end, last),
                       XtLastTimestampProcessed(app->display()));
  }
  XmTextSetInsertionPosition(text, end);
}

std::string zEditBase::getSelection() const {
  char* chosen = textWidget() ? XmTextGetSelection(textWidget()) : nullptr;
  std::string copy(chosen ? chosen : "");
  XtFree(chosen);
  return copy;
}

void zEditBase::replaceSelection(const char* text) {
  if (!textWidget()) return;
  const zRange range = selection();
  XmTextReplace(textWidget(), range.start, range.end, ziSafeText(text).data());
}

int zEditBase::cut() {
  return textWidget() && XmTextCut(textWidget(), XtLastTimestampProcessed(app->display()));
}

int zEditBase::copy() {
  return textWidget() && XmTextCopy(textWidget(), XtLastTimestampProcessed(app->display()));
}

int zEditBase::paste() {
  return textWidget() && XmTextPaste(textWidget());
}

// Callbacks.

int zEditBase::pasteStr(const char*) {
  return 0;
}

void zEditBase::applyCase(char* text, int length) const {
  const unsigned long style = styleValue();
  for (int i = 0; i < length; ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (style & zEditStyle::upperCase) text[i] = static_cast<char>(std::toupper(c));
    if (style & zEditStyle::lowerCase) text[i] = static_cast<char>(std::tolower(c));
  }
}

bool zEditBase::offerTyped(void* data) {
  auto* verify = static_cast<XmTextVerifyCallbackStruct*>(data);
  const bool deletion = !verify->text || !verify->text->ptr || verify->text->length == 0;
  if (!deletion && verify->text->length > 1) return pasteStr(verify->text->ptr) == 0;
  zKeyEvt key;
  key.xEvent = verify->event;
  key.message = zMsgChar;
  key.window = this;
  if (!deletion) applyCase(verify->text->ptr, 1);
  const char typed = deletion ? backspace : verify->text->ptr[0];
  key.parm1 = static_cast<unsigned char>(typed);
  if (ch(&key)) return false;
  if (!deletion) verify->text->ptr[0] = static_cast<char>(key.parm1);
  return true;
}

void zEditBase::modifyCB(Widget, XtPointer link, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  auto* verify = static_cast<XmTextVerifyCallbackStruct*>(callData);
  if (edit->semaphores_ & (settingText | modifying)) return;
  edit->semaphores_ |= modifying;
  edit->verify_ = callData;
  if (verify->event && !edit->offerTyped(callData)) verify->doit = False;
  if (verify->doit) {
    notifyParent(edit, zNtfEditUpdate, callData);
    if (verify->text && verify->text->ptr) {
      edit->applyCase(verify->text->ptr, verify->text->length);
    }
  }
  edit->verify_ = nullptr;
  edit->semaphores_ &= ~static_cast<unsigned>(modifying);
}

void zEditBase::changedCB(Widget widget, XtPointer link, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  if (edit->semaphores_ & settingText) return;
  edit->hasChanged(1);
  zWindowWatch watch(edit);
  notifyParent(edit, zNtfEditChange, callData);
  if (!watch.gone() && XmTextGetLastPosition(widget) >= XmTextGetMaxLength(widget)) {
    notifyParent(edit, zNtfEditMaxText, callData);
  }
}

void zEditBase::focusCB(Widget, XtPointer link, XtPointer callData) {
  notifyParent(controlOf<zEditBase>(link), zNtfEditSetFocus, callData);
}

void zEditBase::losingFocusCB(Widget, XtPointer link, XtPointer callData) {
  notifyParent(controlOf<zEditBase>(link), zNtfEditKillFocus, callData);
}

// Return in a field presses the dialog's default button.
void zEditBase::activateCB(Widget, XtPointer link, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  if (!(edit->styleValue() & zEditStyle::wantReturn)) edit->pressDefaultButton(callData);
}
