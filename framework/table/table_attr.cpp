#include "framework/table/table_attr.h"

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
