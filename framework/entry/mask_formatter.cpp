#include "framework/entry/mask_formatter.h"

#include <algorithm>

#include "framework/entry/text_class.h"

bool zMaskFormatter::isInClass(char c) const {
  const bool isLetter = ziIsLetter(c), isDigit = ziIsDigit(c), isBlank = c == ' ';
  if (c == '\0' || c == deletion) return false;
  if (has(plainOnly) && !isLetter && !isDigit && !isBlank && c != '-' && c != '+') return false;
  if (has(lettersOnly) && !isLetter && !isBlank) return false;
  return !has(digitsOnly) || isDigit;
}

char zMaskFormatter::stored(char c, char before) const {
  c = ziForcedCase(c, style());
  return has(capitalWords) && before == ' ' ? ziUpper(c) : c;
}

int zMaskFormatter::addChars(std::string& text, const char* chars, int count, zRange& sel) {
  const int length = static_cast<int>(text.size());
  int start = std::clamp(sel.start, 0, length);
  int end = std::clamp(sel.end, start, length);
  if (count <= 0 || chars == nullptr) return refused;
  std::string added;
  if (chars[0] == deletion && count <= 2) {
    if (start == end) count == 1 ? --start : ++end;
    if (start < 0 || end > length) return refused;
  } else {
    char before = start > 0 ? text[static_cast<std::size_t>(start - 1)] : ' ';
    for (int i = 0; i < count && isInClass(chars[i]); ++i) {
      before = stored(chars[i], before);
      added += before;
    }
    if (added.empty()) return refused;
  }
  text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start), added);
  sel.start = sel.end = start + static_cast<int>(added.size());
  return rewritten;
}

int zMaskFormatter::checkChars(const std::string& text, zRange& sel) {
  const auto bad = std::find_if(text.begin(), text.end(), [&](char c) { return !isInClass(c); });
  if (!text.empty() && bad == text.end()) return 1;
  if (text.empty() && has(mayBeEmpty)) return 1;
  sel.start = sel.end = static_cast<int>(bad - text.begin());
  return 0;
}
