#include "framework/core/x_text.h"

#include <Xm/Text.h>

#include <algorithm>

std::string ziSafeText(std::string_view text) {
  std::string safe(text);
  for (char& c : safe) {
    if (c == '\t') c = ' ';
    if (c != '\n' && (c < ' ' || c > '~')) c = '?';
  }
  return safe;
}

std::string ziSafeLine(std::string_view text) {
  if (text.ends_with('\n')) text.remove_suffix(1);
  std::string line = ziSafeText(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line;
}

ziXmString::ziXmString(std::string_view text)
    : string_(XmStringCreateLocalized(ziSafeText(text).data())) {}

void ziSetFontList(Widget widget, XmFontList fonts) {
  XtVaSetValues(widget, XmNfontList, fonts, nullptr);
}

std::string ziParseTitle(std::string_view title) {
  std::string parsed;
  for (std::size_t i = 0; i < title.size(); ++i) {
    if (title[i] == '&' && i + 1 < title.size()) ++i;
    parsed += title[i];
  }
  return parsed;
}

char ziParseForMnemonic(std::string_view title) {
  char mnemonic = 0;
  for (std::size_t i = 0; i + 1 < title.size(); ++i) {
    if (title[i] != '&') continue;
    ++i;
    if (title[i] != '&') mnemonic = title[i];
  }
  return mnemonic;
}

void ziSetLabel(Widget label, std::string_view title) {
  const ziXmString text(ziParseTitle(title));
  const KeySym mnemonic = static_cast<unsigned char>(ziParseForMnemonic(title));
  XmString shown = nullptr;
  KeySym shownMnemonic = NoSymbol;
  XtVaGetValues(label, XmNlabelString, &shown, XmNmnemonic, &shownMnemonic, nullptr);
  const bool same = XmStringCompare(shown, text.get()) && shownMnemonic == mnemonic;
  XmStringFree(shown);
  if (same) return;
  XtVaSetValues(label, XmNlabelString, text.get(), XmNmnemonic, mnemonic, nullptr);
}

namespace {

std::string taken(char* fromMotif) {
  std::string copy(fromMotif ? fromMotif : "");
  XtFree(fromMotif);
  return copy;
}

}  // namespace

std::string ziTextOf(Widget text) {
  return taken(XmTextGetString(text));
}

std::string ziSelectedText(Widget text) {
  return taken(XmTextGetSelection(text));
}

void ziSetText(Widget text, std::string_view value) {
  std::string safe = ziSafeText(value);
  if (ziTextOf(text) == safe) {
    XmTextClearSelection(text, XtLastTimestampProcessed(XtDisplay(text)));
  } else {
    XmTextSetString(text, safe.data());
  }
}

std::string ziInsertedText(const XmTextVerifyCallbackStruct& change) {
  const XmTextBlock block = change.text;
  if (!block || !block->ptr || block->length <= 0) return {};
  return {block->ptr, static_cast<std::size_t>(block->length)};
}
