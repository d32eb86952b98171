#include "framework/entry/formatted_edit.h"

#include <X11/keysym.h>
#include <Xm/Xm.h>

#include "framework/core/x_text.h"

namespace {

constexpr char carriageReturn = 13;
constexpr char escape = 27;
constexpr int backward = 1;  // counts of a deletion
constexpr int forward = 2;
constexpr zRange wholeText{0, 32767};

}  // namespace

zFormattedEdit::zFormattedEdit(zWindow* parent, int id, std::unique_ptr<zFormatter> formatter,
                               unsigned long style)
    : zEditLine(parent, id, nullptr, style) {
  setHandler(this, &zFormattedEdit::keyDown, zMsgKeyDown);
  if (formatter) setFormatter(std::move(formatter));
}

void zFormattedEdit::setFormatter(std::unique_ptr<zFormatter> formatter) {
  formatter_ = std::move(formatter);
  showEmpty();
}

void zFormattedEdit::showEmpty() {
  zRange caret;
  const std::string text = textOf("", caret);
  showEdited(text, caret);
}

std::string zFormattedEdit::textOf(const std::string& value, zRange& caret) const {
  if (!formatter_) return value;
  std::string text;
  formatter_->addChars(text, "", 0, caret);
  const std::string shown = ziSafeText(value);
  const int length = static_cast<int>(shown.size());
  if (length) formatter_->addChars(text, shown.c_str(), length, caret);
  return text;
}

std::string zFormattedEdit::textOf(const std::string& value) const {
  zRange caret;
  return textOf(value, caret);
}

std::string zFormattedEdit::getRawText(unsigned long style) const {
  std::string text = getText();
  if (formatter_) formatter_->getChars(text, style);
  return text;
}

// What a change offered replaces. The widget tells of one character removed, whether it was
// selected or stands at the caret; which of them it was decides what the formatter may pass over.
// Before a key the widget has taken its selection off already.
zRange zFormattedEdit::editedRange() const {
  const XmTextVerifyCallbackStruct* change = pendingChange();
  if (!change) return selection();
  const zRange range{static_cast<int>(change->startPos), static_cast<int>(change->endPos)};
  const bool insertion = change->text && change->text->length > 0;
  if (insertion || range.end - range.start != 1 || range == widgetSelection()) return range;
  if (change->event && change->event->type == KeyPress && range == selectedBeforeKey_) return range;
  const int caret = change->currInsert == range.start ? range.start : range.end;
  return {caret, caret};
}

int zFormattedEdit::edit(const char* chars, int count, const zRange& range) {
  std::string text = getText();
  zRange after = range;
  const int answer = formatter_->addChars(text, chars, count, after);
  if (answer == zFormatter::rewritten) showEdited(text, after);
  return answer;
}

int zFormattedEdit::ch(zKeyEvt* event) {
  if (!formatter_) return zEditLine::ch(event);
  const char typed = static_cast<char>(event->ch());
  if (typed == carriageReturn || typed == escape) return 1;
  const zRange range = editedRange();
  const bool deletesRange = typed == zFormatter::deletion && range.start != range.end;
  switch (edit(&typed, deletesRange ? forward : backward, range)) {
    case zFormatter::rewritten:
    case zFormatter::refused:
      return 1;
    case zFormatter::letWidget:
      return zEditLine::ch(event);
    default:
      return 0;
  }
}

int zFormattedEdit::keyDown(zKeyEvt* event) {
  const bool realKey = event->xEvent && !pendingChange();  // the widget has yet to take it
  if (realKey) selectedBeforeKey_ = widgetSelection();
  if (realKey || !formatter_ || event->parm1 != XK_Delete) return 0;
  const zRange range = editedRange();
  if (range.start >= static_cast<int>(getText().size())) return 1;
  return edit(&zFormatter::deletion, forward, range) != zFormatter::letWidget;
}

int zFormattedEdit::pasteStr(std::string& text) {
  if (!formatter_) return zEditLine::pasteStr(text);
  return edit(text.c_str(), static_cast<int>(text.size()), editedRange()) != zFormatter::letWidget;
}

int zFormattedEdit::checkData() {
  if (!formatter_) return zEditLine::checkData();
  zRange range = wholeText;
  if (formatter_->checkChars(getText(), range)) return 1;
  selection(range.start, range.end);
  return 0;
}
