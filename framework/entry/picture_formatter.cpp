#include "framework/entry/picture_formatter.h"

#include <algorithm>
#include <bitset>

zPictFormatter::zPictFormatter(unsigned long style, const char* picture)
    : zFormatter(style), elements_(ziReadPicture(picture)) {
  for (int l = findNextLiteral(-1); l >= 0; l = findNextLiteral(l)) literals_.push_back(l);
  map_.reserve(elements_.size());
}

int zPictFormatter::findNextWritable(int from, bool skipFilled) const {
  for (int e = from + 1; e < size(); ++e) {
    if (isWritable(e) && !(skipFilled && current(e) != '\0')) return e;
  }
  return -1;
}

int zPictFormatter::findNextLiteral(int from) const {
  for (int e = from + 1; e < size(); ++e) {
    if (!isWritable(e)) return e;
  }
  return -1;
}

bool zPictFormatter::isLiteral(char c) const {
  return std::any_of(literals_.begin(), literals_.end(), [&](int l) { return current(l) == c; });
}

bool zPictFormatter::accepts(int element, char c) const {
  return element >= 0 && elements_[index(element)]->addChar(c, 1, style());
}

bool zPictFormatter::canHold(int element, char c) const {
  return c != elements_[index(element)]->fill() && accepts(element, c);
}

// The literal that a typed character stands for, to be compared with it: one just passed, or else
// the next.
int zPictFormatter::literalFor(char c, int startElement) const {
  if (!isLiteral(c)) return -1;
  for (int e = startElement - 1; e >= 0 && !isWritable(e); --e) {
    if (current(e) == c) return e;
  }
  return findNextLiteral(startElement);
}

void zPictFormatter::occupy(int element, char c, bool record) {
  elements_[index(element)]->addChar(c, 0, style());
  if (record) map_.push_back(element);
}

int zPictFormatter::mapStrToPict(std::string_view text, int startElement, bool record,
                                 int& lastUsed) {
  const bool typed = text.size() == 1;
  int w = findNextWritable(startElement - 1);
  int l = typed ? literalFor(text[0], startElement) : findNextLiteral(startElement - 1);
  if (record) map_.clear();
  for (const char c : text) {
    const bool asLiteral = accepts(l, c) && (!typed || !accepts(w, c));
    if (!asLiteral && !accepts(w, c)) return 0;
    lastUsed = asLiteral ? l : w;
    occupy(lastUsed, c, record);
    w = findNextWritable(lastUsed);
    l = findNextLiteral(lastUsed);
  }
  return 1;
}

// A text as the formatter shows it has all literals, and is laid out so that each finds its own
// even where a place would take the same character.
bool zPictFormatter::layShownText(std::string_view text) {
  const std::size_t count = elements_.size(), length = text.size();
  if (length > count) return false;
  // fits[i][e]: the text from its i-th character on can be laid over the elements from e on.
  std::vector<std::bitset<mostPictureElements + 1>> fits(length + 1);
  const std::size_t gaps = count - length;
  const auto takes = [&](std::size_t i, std::size_t e) {
    return i < length && fits[i + 1][e + 1] && elements_[e]->addChar(text[i], 1, style());
  };
  for (std::size_t i = length + 1; i-- > 0;) {
    for (std::size_t e = i + gaps + 1; e-- > i;) {
      fits[i][e] =
          e == count ? i == length : takes(i, e) || (elements_[e]->isWritable() && fits[i][e + 1]);
    }
  }
  if (!fits[0][0]) return false;
  map_.clear();
  for (std::size_t i = 0, e = 0; i < length; ++e) {
    if (takes(i, e)) occupy(static_cast<int>(e), text[i++], true);
  }
  return true;
}

bool zPictFormatter::load(const std::string& text) {
  for (const auto& element : elements_) element->delChar();
  int lastUsed = -1;
  return layShownText(text) || mapStrToPict(text, 0, true, lastUsed) != 0;
}

void zPictFormatter::mapPictToStr(std::string& text, unsigned long style) const {
  text.clear();
  for (const auto& element : elements_) {
    if (const char c = element->getChar(style); c != '\0') text += c;
  }
}

int zPictFormatter::findStringPosition(int element) const {
  const auto end = element < 0 ? elements_.end() : elements_.begin() + element;
  return static_cast<int>(std::count_if(elements_.begin(), end, [&](const auto& each) {
    return each->getChar(shownStyle()) != '\0';
  }));
}

int zPictFormatter::getChars(std::string& text, unsigned long style) {
  if (!load(text)) return 0;
  mapPictToStr(text, style & ~static_cast<unsigned long>(fillMode));
  return 1;
}

int zPictFormatter::checkChars(const std::string& text, zRange& sel) {
  const auto fail = [&](std::ptrdiff_t at) { sel.start = sel.end = static_cast<int>(at); };
  if (text.empty()) {
    if (has(mayBeEmpty)) return 1;
    fail(0);
    return 0;
  }
  if (!load(text)) {
    fail(std::ssize(map_));
    return 0;
  }
  const int gap = findNextWritable(-1, true);
  if (gap < 0) return 1;
  fail(std::lower_bound(map_.begin(), map_.end(), gap) - map_.begin());
  const bool isEmpty = std::all_of(elements_.begin(), elements_.end(), [](const auto& element) {
    return !element->isWritable() || element->current() == '\0';
  });
  return (isEmpty ? has(mayBeEmpty) : !has(required)) ? 1 : 0;
}

int zPictFormatter::addChars(std::string& text, const char* chars, int count, zRange& sel) {
  if (count <= 0 || chars == nullptr) {
    if (!text.empty()) return refused;
    load(text);
    show(findNextWritable(-1), text, sel);
    return rewritten;
  }
  const bool deletes = chars[0] == deletion && count <= 2;
  return deletes || count == 1 ? addOne(text, chars[0], count, sel)
                               : addString(text, chars, count, sel);
}

// As if typed, up to the first character that is refused.
int zPictFormatter::addString(std::string& text, const char* chars, int count, zRange& sel) {
  int taken = 0;
  while (taken < count && chars[taken] != deletion &&
         addOne(text, chars[taken], 1, sel) == rewritten) {
    ++taken;
  }
  return taken > 0 ? rewritten : refused;
}

int zPictFormatter::addOne(std::string& text, char c, int count, zRange& sel) {
  const int length = static_cast<int>(text.size());
  zRange range = {std::clamp(sel.start, 0, length), 0};
  range.end = std::clamp(sel.end, range.start, length);
  const bool isSelection = range.start < range.end;
  int element = -1;
  if (load(text)) {
    if (isSelection) element = removeRange(range);
  } else {
    // A text that is not of this picture can only go as a whole.
    if (range != zRange{0, length}) return refused;
    load("");
    element = findNextWritable(-1);
    range = {};
  }
  if (c != deletion) {
    return insert(c, element < 0 ? elementAtCaret(range.start) : element, text, sel);
  }
  if (!isSelection) return removeAt(range.start, count, text, sel);
  if (element < 0) return refused;
  show(element, text, sel);
  return rewritten;
}

// Backward with a count of 1, else forward.
int zPictFormatter::removeAt(int caret, int count, std::string& text, zRange& sel) {
  if (count == 1 && caret == 0) return refused;
  int element = -1;
  if (count > 1) {
    element = elementAtCaret(caret);
    if (element < 0) return refused;
  } else {
    for (int i = caret - 1; i >= 0 && element < 0; --i) {
      if (isWritable(map_[index(i)])) element = map_[index(i)];
    }
  }
  if (element < 0) {
    // Literals alone at the left.
    mapPictToStr(text, shownStyle());
    return rewritten;
  }
  shiftLeft(element);
  show(element, text, sel);
  return rewritten;
}

// Removes the places of the range, the last one first as backspaces would, so that a place that
// refuses what closes up keeps no other from going. The first one, or -1 when there are none.
int zPictFormatter::removeRange(const zRange& range) {
  int first = -1;
  for (int i = range.end - 1; i >= range.start; --i) {
    if (!isWritable(map_[index(i)])) continue;
    first = map_[index(i)];
    shiftLeft(first);
  }
  return first;
}

// The place that a caret before the n-th character of the text stands for.
int zPictFormatter::elementAtCaret(int caret) const {
  if (index(caret) < map_.size() && isWritable(map_[index(caret)])) return map_[index(caret)];
  return findNextWritable(caret > 0 ? map_[index(caret - 1)] : -1);
}

int zPictFormatter::insert(char c, int element, std::string& text, zRange& sel) {
  if (element < 0) return refused;
  const char displaced = current(element);
  const bool mayLose = has(fillMode) || std::ssize(map_) == size();
  int used = element;
  if (mapStrToPict({&c, 1}, element, false, used) == 0) return refused;
  if (used == element && !shiftRight(element, displaced) && !mayLose) return refused;
  const int position = findStringPosition(used);
  const bool isShown = elements_[index(used)]->getChar(shownStyle()) != '\0';
  mapPictToStr(text, shownStyle());
  // Laid out anew the groups have no gaps that are not shown.
  load(text);
  const int next = isShown ? findNextWritable(map_[index(position)]) : used;
  sel.start = sel.end = isShown ? findStringPosition(next) : position;
  return rewritten;
}

bool zPictFormatter::put(int element, char c) {
  if (c == '\0') elements_[index(element)]->delChar();
  return c == '\0' || (canHold(element, c) && elements_[index(element)]->addChar(c, 0, style()));
}

// Whether the place is empty because it refuses what the next one holds.
bool zPictFormatter::keepsOut(int element, int next) const {
  return next >= 0 && current(next) != '\0' && !canHold(element, current(next));
}

bool zPictFormatter::shiftRight(int element, char displaced) {
  // A gap moves along like a character, unless what follows it could not close it: it is then
  // filled, so that putting back what was deleted gives the text as it was.
  for (int next = findNextWritable(element); displaced != '\0' || !keepsOut(element, next);
       element = next, next = findNextWritable(next)) {
    if (next < 0) return displaced == '\0';
    const char moved = displaced;
    displaced = current(next);
    if (!put(next, moved)) return false;
  }
  return true;
}

void zPictFormatter::shiftLeft(int element) {
  elements_[index(element)]->delChar();
  for (int next = findNextWritable(element); next >= 0 && put(element, current(next));
       element = next, next = findNextWritable(next)) {
    elements_[index(next)]->delChar();
  }
}

void zPictFormatter::show(int element, std::string& text, zRange& sel) const {
  mapPictToStr(text, shownStyle());
  sel.start = sel.end = findStringPosition(element);
}
