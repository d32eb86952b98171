// What the text widget reports, and what becomes of it.
//
// What XmText says about a change, by how it was made: the event is null for cut, paste, the middle
// button and every call of the program, and the request for a selection where a move deletes at its
// source. A deletion has an empty text, or a null pointer for one, and the widget has taken its
// selection off before it asks; if it is refused, it comes back. A change may be made another one
// by writing its range and text, and that is the only kind that later steps of the same action (the
// caret, the source of a move) know about. The caret is right from the changed callback on.
#include <X11/keysym.h>
#include <Xm/Text.h>

#include <algorithm>
#include <cctype>
#include <utility>

#include "framework/controls/edit.h"
#include "framework/core/event_translation.h"
#include "framework/core/x_text.h"

namespace {

constexpr char backspace = 8;

bool isKey(const XEvent* event) {
  return event && event->type == KeyPress;
}

bool isBackspace(XEvent* event) {
  if (!isKey(event)) return false;
  KeySym symbol = NoSymbol;
  ziCharactersOf(event, &symbol);
  return symbol == XK_BackSpace;
}

zKeyEvt keyEventOf(zWindow* window, XEvent* event, unsigned message, long character) {
  zKeyEvt key;
  if (isKey(event)) key = ziKeyEvent(window, event, message);
  key.message = message;
  key.window = window;
  key.parm1 = character;
  return key;
}

}  // namespace

int zEditBase::pasteStr(std::string&) {
  return 0;
}

bool zEditBase::offerDeletion() {
  XEvent* const event = verify_->event;
  if (!isBackspace(event)) {
    const zWindowWatch watch(this);
    zKeyEvt key = keyEventOf(this, event, zMsgKeyDown, XK_Delete);
    key.codeWord = XK_Delete;
    if (doCommandHandler(&key, this) || watch.gone()) return false;
  }
  zKeyEvt key = keyEventOf(this, event, zMsgChar, backspace);
  return !ch(&key);
}

bool zEditBase::offerCharacter(XmTextVerifyCallbackStruct& verify) {
  const zWindowWatch watch(this);
  const auto typed = static_cast<unsigned char>(verify.text->ptr[0]);
  zKeyEvt key = keyEventOf(this, verify.event, zMsgChar, typed);
  if (ch(&key) || watch.gone()) return false;
  const int now = key.ch();
  verify.text->ptr[0] = static_cast<char>(now);
  const bool newLine = now == '\n' && (styleValue() & zEditStyle::multiLine);
  return newLine || ziSafeText({verify.text->ptr, 1})[0] == now;
}

bool zEditBase::offer(XmTextVerifyCallbackStruct& verify) {
  if (!verify.event && !takesEveryChange()) return true;
  std::string text = ziInsertedText(verify);
  if (text.empty()) return offerDeletion();
  if (text.size() == 1) return offerCharacter(verify);
  return !pasteStr(text);
}

// Characters that a widget can't show are replaced; in a field of one line, so is the end of a
// line, and the last one dropped. One that is typed is left for `ch` to see, and refused behind it.
void zEditBase::cleanInserted(XmTextVerifyCallbackStruct& verify) {
  const std::string given = ziInsertedText(verify);
  if (given.empty() || (isKey(verify.event) && given.size() == 1 && ziSafeText(given) != given)) {
    return;
  }
  const unsigned long style = styleValue();
  std::string text = style & zEditStyle::multiLine ? ziSafeText(given) : ziSafeLine(given);
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (style & zEditStyle::upperCase) c = static_cast<char>(std::toupper(byte));
    if (style & zEditStyle::lowerCase) c = static_cast<char>(std::tolower(byte));
  }
  if (text != given) setInserted(verify, text);
}

// The widget frees the text of an insertion, but not one that stands in for a deletion.
void zEditBase::setInserted(XmTextVerifyCallbackStruct& verify, const std::string& text) {
  verify.text->length = static_cast<int>(text.size());
  if (offeredDeletion_) {
    insertedByDeletion_ = text;
    verify.text->ptr = insertedByDeletion_.data();
  } else if (!text.empty()) {
    XtFree(verify.text->ptr);
    verify.text->ptr = XtNewString(text.c_str());
  }
}

// Makes the change one that leads to the edited text, and as small as that can be.
bool zEditBase::replaceByEdited(XmTextVerifyCallbackStruct& verify, const std::string& before) {
  const std::string text = ziSafeText(edited_->text);
  if (text == before) {
    XmTextSetInsertionPosition(textWidget(), edited_->selected.end);
    return false;
  }
  const std::size_t shorter = std::min(before.size(), text.size());
  std::size_t head = 0, tail = 0;
  while (head < shorter && before[head] == text[head]) ++head;
  while (tail < shorter - head &&
         before[before.size() - 1 - tail] == text[text.size() - 1 - tail]) {
    ++tail;
  }
  verify.startPos = static_cast<XmTextPosition>(head);
  verify.endPos = static_cast<XmTextPosition>(before.size() - tail);
  setInserted(verify, text.substr(head, text.size() - tail - head));
  caretAfter_ = edited_->selected.end;
  return true;
}

void zEditBase::updateUndoBuffer(const XmTextVerifyCallbackStruct& verify, const zRange& offered,
                                 std::string before) {
  using Kind = ziEditUndo::Kind;
  const int inserted = verify.text ? verify.text->length : 0;
  const bool single = offered.end - offered.start <= 1 && isKey(verify.event);
  Kind kind = Kind::other;
  if (single && !ziInsertedText(verify).empty() && offered.start == offered.end) kind = Kind::typed;
  if (single && offered.start != offered.end) kind = Kind::deleted;
  const int caretAfter = caretAfter_.value_or(static_cast<int>(verify.startPos) + inserted);
  undoAfter_ = undo_;
  undoAfter_->note({std::move(before), static_cast<int>(verify.currInsert)}, kind, offered.start,
                   offered.end, caretAfter);
}

bool zEditBase::modify(XmTextVerifyCallbackStruct& verify) {
  const zWindowWatch watch(this);
  const std::string before = getText();
  const zRange offered{static_cast<int>(verify.startPos), static_cast<int>(verify.endPos)};
  offeredDeletion_ = ziInsertedText(verify).empty();
  cleanInserted(verify);
  if (offered.start == offered.end && ziInsertedText(verify).empty()) return false;
  const bool accepted = offer(verify);
  if (watch.gone() || verify_ != &verify || (!accepted && !edited_)) return false;
  if (edited_ && !replaceByEdited(verify, before)) return false;
  semaphores_ |= announcing;
  notifyParent(this, zNtfEditUpdate, &verify);
  if (watch.gone()) return false;
  semaphores_ &= ~static_cast<unsigned>(announcing);
  if (verify_ != &verify) return false;
  cleanInserted(verify);
  updateUndoBuffer(verify, offered, before);
  return true;
}

void zEditBase::modifyCB(Widget, XtPointer link, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  auto& verify = *static_cast<XmTextVerifyCallbackStruct*>(callData);
  if (edit->semaphores_ & (settingText | modifying | formatting)) return;
  const zWindowWatch watch(edit);
  const bool deletes = ziInsertedText(verify).empty();
  edit->semaphores_ |= modifying;
  edit->verify_ = &verify;
  edit->edited_.reset();
  edit->caretAfter_.reset();
  edit->undoAfter_.reset();
  if (!edit->modify(verify)) {
    verify.doit = False;
    // The widget frees the text of any change that is not made; what stood in for a deletion is the
    // field's own.
    if (deletes && verify.text) *verify.text = {nullptr, 0, verify.text->format};
  }
  if (watch.gone()) return;
  edit->verify_ = nullptr;
  edit->semaphores_ &= ~static_cast<unsigned>(modifying);
}

void zEditBase::changedCB(Widget widget, XtPointer link, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  if (edit->semaphores_ & (settingText | formatting)) return;
  if (edit->caretAfter_) XmTextSetInsertionPosition(widget, *edit->caretAfter_);
  edit->caretAfter_.reset();
  if (edit->undoAfter_) edit->undo_ = *std::exchange(edit->undoAfter_, std::nullopt);
  edit->hasChanged(1);
  const zWindowWatch watch(edit);
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

void zEditBase::tellScrolled(XtPointer link, unsigned code, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  if (!(edit->semaphores_ & (settingText | formatting))) notifyParent(edit, code, callData);
}

void zEditBase::horzScrollCB(Widget, XtPointer link, XtPointer callData) {
  tellScrolled(link, zNtfEditHScroll, callData);
}

void zEditBase::vertScrollCB(Widget, XtPointer link, XtPointer callData) {
  tellScrolled(link, zNtfEditVScroll, callData);
}

// Return in a field presses the dialog's default button, unless the field wants the key.
void zEditBase::activateCB(Widget, XtPointer link, XtPointer callData) {
  auto* edit = controlOf<zEditBase>(link);
  if (edit->styleValue() & zEditStyle::wantReturn) {
    zKeyEvt key =
        keyEventOf(edit, static_cast<XmAnyCallbackStruct*>(callData)->event, zMsgChar, '\r');
    edit->ch(&key);
  } else {
    edit->pressDefaultButton(callData);
  }
}
