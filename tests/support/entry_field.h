// A formatter with the text and the selection of its field, driven as a keyboard would, and what
// must hold after every key.
#pragma once

#include <cstring>
#include <string>

#include "framework/entry/formatter.h"

struct EntryField {
  zFormatter& formatter;
  std::string text = {};
  zRange sel = {};

  explicit EntryField(zFormatter& of) : formatter(of) { formatter.addChars(text, "", 0, sel); }

  // The keys: '<' backspace, '>' Delete, '{' Home, '}' End, '*' all selected; others are typed.
  int press(char key) {
    const char deletion[] = {zFormatter::deletion, '\0'};
    const int end = static_cast<int>(text.size());
    if (key == '{') sel = {};
    if (key == '}') sel = {end, end};
    if (key == '*') sel = {0, end};
    if (std::strchr("{}*", key) != nullptr) return zFormatter::letWidget;
    const bool selected = sel.start < sel.end;
    if (key == '<') return formatter.addChars(text, deletion, selected ? 2 : 1, sel);
    if (key == '>') return formatter.addChars(text, deletion, 2, sel);
    return formatter.addChars(text, &key, 1, sel);
  }
  int paste(const std::string& what) {
    return formatter.addChars(text, what.c_str(), static_cast<int>(what.size()), sel);
  }
  // The text with '|' at the caret, or around the selection.
  std::string shown() const {
    std::string all = text;
    if (sel.end > sel.start) all.insert(static_cast<std::size_t>(sel.end), "|");
    return all.insert(static_cast<std::size_t>(sel.start), "|");
  }
};

// Empty, or what does not hold of a field after a key with this answer that met `text` and `sel`.
inline std::string brokenRule(const EntryField& field, int answer, const std::string& text,
                              const zRange& sel) {
  const int length = static_cast<int>(field.text.size());
  if (answer == zFormatter::refused && (field.text != text || field.sel != sel)) {
    return "a refused key changes nothing";
  }
  if (field.sel.start < 0 || field.sel.end < field.sel.start || field.sel.end > length) {
    return "the caret is within the text";
  }
  return "";
}
