#include "stats/stat_fields.h"

#include "applet/my_edit.h"
#include "stats/stat_texts.h"

void ShownFields::write(const Shown& shown, const char* text) {
  shown.field->showText(text);
}

void ShownFields::writeCount(Shown& shown, std::uint32_t count, bool isSigned, bool clear) {
  if (clear) shown.baseline = count;
  const std::uint32_t since = count - shown.baseline;
  write(shown, isSigned ? signedCountText(since) : countText(since));
}

void ShownFields::blankAll() {
  for (const Shown& shown : shown_) write(shown, "");
}
