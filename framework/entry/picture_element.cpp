#include "framework/entry/picture_element.h"

#include <algorithm>
#include <cstring>

#include "framework/entry/formatter.h"
#include "framework/entry/text_class.h"

namespace {

unsigned char code(char c) {
  return static_cast<unsigned char>(c);
}

class PictureReader {
 public:
  explicit PictureReader(const char* picture) : at_(picture) {}

  zPicture read() {
    while (*at_ != '\0') readOne();
    return std::move(elements_);
  }

 private:
  void readOne() {
    const char c = *at_++;
    if (zPictStrMaskEl::isMask(c)) add(std::make_unique<zPictStrMaskEl>(c));
    if (c == '\'') readLiterals();
    if (c == '(') readCount();
    if (c == '[') readSet();
  }

  void add(std::unique_ptr<zPictStrEl> element) {
    if (elements_.size() < mostPictureElements) elements_.push_back(std::move(element));
  }

  // Up to the closing quote, two quotes standing for one of the text.
  void readLiterals() {
    for (; *at_ != '\0'; ++at_) {
      if (*at_ == '\'' && *++at_ != '\'') return;
      add(std::make_unique<zPictStrLiteral>(*at_));
    }
  }

  void readCount() {
    int count = 0;
    const char* end = at_;
    for (; ziIsDigit(*end); ++end) count = std::min(count * 10 + *end - '0', mostPictureElements);
    if (end == at_ || *end != ')') return;
    at_ = end + 1;
    if (elements_.empty() || !elements_.back()->isWritable()) return;
    for (; count > 1; --count) add(elements_.back()->clone());
  }

  void readSet() {
    const bool negated = *at_ == '!';
    if (negated) at_ += 1 + std::strspn(at_ + 1, " ");
    zBitVector set;
    bool good = true;
    while (good && *at_ != '\0' && *at_ != ']') good = readItem(set);
    at_ += std::strcspn(at_, "]");
    good = good && *at_ == ']';
    if (*at_ == ']') ++at_;
    add(std::make_unique<zPictStrSetEl>(good ? set : zBitVector(), good && negated));
  }

  // A character or an ascending range of them; false for anything else.
  bool readItem(zBitVector& set) {
    const int first = readSetChar();
    int last = first;
    if (first >= 0 && *at_ == '-' && at_[1] != '\0' && at_[1] != ']') {
      ++at_;
      last = readSetChar();
      if (last <= first) return false;
    }
    for (int c = std::max(first, 0); c <= last; ++c) set.set(static_cast<std::size_t>(c));
    return first >= 0;
  }

  // A character, plain or quoted; -1 for a quote without its end.
  int readSetChar() {
    if (*at_ != '\'') return code(*at_++);
    if (at_[1] == '\0' || at_[2] != '\'') return -1;
    at_ += 3;
    return code(at_[-2]);
  }

  const char* at_;
  zPicture elements_;
};

}  // namespace

bool zPictStrLiteral::addChar(char c, int, unsigned long) {
  return c == picture();
}

char zPictStrLiteral::getChar(unsigned long style) const {
  return (style & zFormatter::rawValue) != 0 ? '\0' : picture();
}

std::unique_ptr<zPictStrEl> zPictStrLiteral::clone() const {
  return std::make_unique<zPictStrLiteral>(*this);
}

char ziPictStrPlace::stored(char c, unsigned long style) const {
  return ziForcedCase(c, style);
}

// A text that is laid out again holds what was stored, in the case that the style forces.
bool ziPictStrPlace::accepts(char c, unsigned long style) const {
  if (c == '\0') return false;
  if (isInClass(c)) return true;
  return (style & (zFormatter::lowerCase | zFormatter::upperCase)) != 0 && stored(c, style) == c &&
         (isInClass(ziLower(c)) || isInClass(ziUpper(c)));
}

bool ziPictStrPlace::addChar(char c, int checkOnly, unsigned long style) {
  if (c != fill_ && !accepts(c, style)) return false;
  if (checkOnly == 0) current_ = c == fill_ ? '\0' : stored(c, style);
  return true;
}

bool zPictStrMaskEl::isMask(char c) {
  return c != '\0' && std::strchr("!#9ANX", c) != nullptr;
}

zPictStrMaskEl::zPictStrMaskEl(char mask)
    : ziPictStrPlace(mask, mask == '#' || mask == '9' ? '#' : '_') {}

bool zPictStrMaskEl::isInClass(char c) const {
  switch (picture()) {
    case '#':
      return ziIsDigit(c) || c == '-' || c == '+' || c == ' ';
    case '9':
      return ziIsDigit(c);
    case 'A':
      return ziIsLetter(c) || c == ' ';
    case 'N':
      return ziIsLetter(c) || ziIsDigit(c);
    default:
      return true;
  }
}

char zPictStrMaskEl::stored(char c, unsigned long style) const {
  return ziPictStrPlace::stored(picture() == '!' ? ziUpper(c) : c, style);
}

char zPictStrMaskEl::getChar(unsigned long style) const {
  if (current() != '\0') return current();
  return (style & (zFormatter::fillMode | zFormatter::rawValue)) == zFormatter::fillMode ? fill()
                                                                                         : '\0';
}

std::unique_ptr<zPictStrEl> zPictStrMaskEl::clone() const {
  return std::make_unique<zPictStrMaskEl>(*this);
}

zPictStrSetEl::zPictStrSetEl(const zBitVector& set, bool negated)
    : ziPictStrPlace('[', '_'), set_(set), negated_(negated) {}

bool zPictStrSetEl::isInClass(char c) const {
  return set_.test(code(c)) != negated_;
}

char zPictStrSetEl::getChar(unsigned long style) const {
  if (current() != '\0') return current();
  return (style & zFormatter::fillMode) != 0 ? fill() : '\0';
}

std::unique_ptr<zPictStrEl> zPictStrSetEl::clone() const {
  return std::make_unique<zPictStrSetEl>(*this);
}

zPicture ziReadPicture(const char* picture) {
  return PictureReader(picture == nullptr ? "" : picture).read();
}
