#include "framework/core/x_text.h"

#include <Xm/Text.h>

std::string ziSafeText(std::string_view text) {
  std::string safe(text);
  for (char& c : safe) {
    if (c == '\t') c = ' ';
    if (c != '\n' && (c < ' ' || c > '~')) c = '?';
  }
  return safe;
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
  XtVaSetValues(label, XmNlabelString, text.get(), XmNmnemonic, mnemonic, nullptr);
}

std::string ziTextOf(Widget text) {
  char* value = XmTextGetString(text);
  std::string copy(value ? value : "");
  XtFree(value);
  return copy;
}

void ziSetText(Widget text, std::string_view value) {
  XmTextSetString(text, ziSafeText(value).data());
}
