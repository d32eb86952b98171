#include "framework/table/table_attr.h"

#include "framework/entry/formatter.h"

std::string ziFormatted(zFormatter& formatter, const std::string& text) {
  std::string shown;
  zRange caret;
  const int answer = formatter.addChars(shown, text.data(), static_cast<int>(text.size()), caret);
  return answer == zFormatter::rewritten ? shown : text;
}

void zTableTextColorAttr::setup(ziTableEnv& env) const {
  env.textColor = color_;
}

void zTableBackColorAttr::setup(ziTableEnv& env) const {
  env.backColor = color_;
}

void zTableFontAttr::setup(ziTableEnv& env) const {
  if (font_) env.font = font_;
}

void zTableReadOnlyAttr::setup(ziTableEnv& env) const {
  env.readOnly = true;
}

void zTableTextAlignmentAttr::setup(ziTableEnv& env) const {
  env.alignment |= alignment_;
}

void zTableFormatterAttr::setup(ziTableEnv& env) const {
  env.formatter = formatter_;
}

void zTableFmtNumCell::setText(const char* text) {
  zTableTextCell::setText(ziFormatted(formatter_, text ? text : "").c_str());
}

void zTableValidatedFmtTextCell::setText(const char* text) {
  zRange wrong;
  const std::string shown = ziFormatted(formatter(), text ? text : "");
  if (formatter().checkChars(shown, wrong)) zTableTextCell::setText(shown.c_str());
}
