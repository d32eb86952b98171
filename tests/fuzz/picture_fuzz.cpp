// Fuzz target: any edits of the fields of any picture.
//
// The first byte is the style, then comes the picture up to an end of line, then the keys: those of
// EntryField, and 's' with two bytes for a selection, 'p' with a count and as many bytes for a
// paste.
#include <algorithm>
#include <string>

#include "framework/entry/mask_formatter.h"
#include "framework/entry/num_formatter.h"
#include "framework/entry/picture_formatter.h"
#include "require.h"
#include "tests/support/entry_field.h"

namespace {

constexpr unsigned long styles[] = {0, 0x200000, 0x280000, 0x2C0000, 0x4000, 0x8100, 0x2, 0x30};
constexpr std::size_t mostKeys = 300;

int edit(EntryField& field, const std::string& keys, std::size_t& at) {
  const char key = keys[at++];
  const auto next = [&] { return at < keys.size() ? static_cast<unsigned char>(keys[at++]) : 0; };
  const auto length = static_cast<int>(field.text.size());
  if (key == 's') {
    field.sel.start = std::min<int>(next(), length);
    field.sel.end = std::min(field.sel.start + next(), length);
    return zFormatter::letWidget;
  }
  if (key != 'p') return field.press(key);
  const std::string pasted = keys.substr(at, static_cast<std::size_t>(2 + next() % 64));
  at += std::min(pasted.size(), keys.size() - at);
  return field.paste(pasted);
}

// Which of two places a character belongs to can be open where nothing shows an empty one.
void requireLaidOut(const EntryField& field, unsigned long style) {
  zFormatter& formatter = field.formatter;
  std::string shown = field.text;
  require(formatter.getChars(shown, style) == 1, "the text fits the picture");
  if ((style & zFormatter::fillMode) != 0) {
    require(field.text.size() == EntryField(field.formatter).text.size(), "it has its length");
  } else if (style == 0) {
    std::string again = shown;
    require(formatter.getChars(again, style) == 1 && again == shown, "it keeps its place");
  }
}

void run(zFormatter& formatter, unsigned long style, const std::string& keys, bool isPicture) {
  EntryField field(formatter);
  for (std::size_t at = 0, count = 0; at < keys.size() && count < mostKeys; ++count) {
    EntryField before = field;
    const int answer = edit(field, keys, at);
    if (answer == zFormatter::letWidget) continue;
    const std::string broken = brokenRule(field, answer, before.text, before.sel);
    require(broken.empty(), broken.c_str());
    if (isPicture) requireLaidOut(field, style);
    zRange bad;
    formatter.checkChars(field.text, bad);
    require(bad.start >= 0 && bad.end <= static_cast<int>(field.text.size()), "it is in the text");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string input(reinterpret_cast<const char*>(data + 1), size - 1);
  const unsigned long style = styles[data[0] % std::size(styles)];
  const std::size_t end = std::min(input.find('\n'), input.size());
  const std::string picture = input.substr(0, end);
  const std::string keys = input.substr(std::min(end + 1, input.size()));
  zPictFormatter pict(style, picture.c_str());
  zNumFormatter number(style, picture.c_str());
  zMaskFormatter mask(style);
  run(pict, style, keys, true);
  run(number, style, keys, false);
  run(mask, style, keys, false);
  EntryField any(pict);
  any.text = keys;
  any.sel = {0, static_cast<int>(keys.size())};
  if (any.press('>') == zFormatter::rewritten && pict.findNextWritable(-1) >= 0) {
    require(any.text == EntryField(pict).text, "any text can be deleted");
  }
  return 0;
}
