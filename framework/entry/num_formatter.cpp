#include "framework/entry/num_formatter.h"

#include <algorithm>
#include <cstring>

#include "framework/entry/text_class.h"

namespace {

constexpr std::size_t mostPlaces = 256;
constexpr char point = '.';

bool isSign(char c) {
  return c == '-' || c == '+';
}

}  // namespace

// What a text says, without all that is only shown.
struct zNumFormatter::Number {
  std::string digits;              // with the point
  std::size_t start = 0, end = 0;  // the selection, counted in digits
  bool negative = false;
  bool signBefore = false;    // a minus before the caret,
  bool signSelected = false;  // or within the selection

  std::size_t before() const { return std::min(digits.find(point), digits.size()); }
  bool hasPoint() const { return before() < digits.size(); }
  std::size_t after() const { return digits.size() - before() - (hasPoint() ? 1 : 0); }

  void eraseSelection() {
    digits.erase(start, end - start);
    end = start;
    if (signSelected) negative = false;
  }
  void put(char c) {
    digits.insert(start, 1, c);
    end = ++start;
  }
};

const zIntlContext& zIntlContext::standard() {
  static const zIntlContext context;
  return context;
}

zNumFormatter::zNumFormatter(unsigned long style, const char* picture, const zIntlContext& context)
    : zFormatter(style), context_(context) {
  readPlaces(readOptions(picture == nullptr ? "" : picture));
  if (has(fillMode)) left_ = trailing_ = '#';
  countShown();
}

// The start of the digit places, or the end of a picture that cannot be read.
const char* zNumFormatter::readOptions(const char* at) {
  constexpr EntryMode modes[] = {EntryMode::beforePoint, EntryMode::behindPoint, EntryMode::free};
  for (; *at != '\0' && std::strchr("#[0", *at) == nullptr; ++at) {
    const char option = *at;
    if (option == 'L' || option == 'T') {
      const bool both = option == 'L' && at[1] == 'T';
      at += both ? 2 : 1;
      if (!readGuide(*at, option == 'L', option == 'T' || both)) return "";
    } else if (option == 'R') {
      if (*++at < '1' || *at > '3') return "";
      mode_ = modes[*at - '1'];
    } else if (std::strchr(" $+-F", option) == nullptr) {
      return "";
    }
    if (option == '$') hasCurrency_ = true;
    if (isSign(option)) keepsSign_ = true;
    if (option == '+') showsPlus_ = true;
  }
  return at;
}

bool zNumFormatter::readGuide(char guide, bool left, bool trailing) {
  if (guide == '\0' || (guide >= '1' && guide <= '9')) return false;
  if (left) left_ = guide;
  if (trailing) trailing_ = guide;
  return true;
}

void zNumFormatter::readPlaces(const char* at) {
  for (; *at != '\0' && before_.size() + after_.size() < mostPlaces; ++at) {
    if (*at == '#' || *at == '0') {
      (hasPoint_ ? after_ : before_).emplace_back(*at, '0', '9');
    } else if (*at == '[') {
      at = readSet(at + 1);
      if (at == nullptr) return;
    } else if (*at == ',') {
      if (!hasPoint_) separators_.push_back(before_.size());
    } else if (*at == point && !hasPoint_) {
      hasPoint_ = true;
    } else {
      return;
    }
  }
}

// "!n]" or "a-b]"; the closing bracket, or null for anything else.
const char* zNumFormatter::readSet(const char* at) {
  auto& places = hasPoint_ ? after_ : before_;
  if (at[0] == '!' && ziIsDigit(at[1]) && at[2] == ']') {
    places.emplace_back('[', '0', '9', at[1]);
    return at + 2;
  }
  if (!ziIsDigit(at[0]) || at[1] != '-' || !ziIsDigit(at[2]) || at[3] != ']') return nullptr;
  if (at[2] <= at[0]) return nullptr;
  places.emplace_back('[', at[0], at[2]);
  return at + 3;
}

// A guide of "0" stands for zeros that are always shown.
void zNumFormatter::countShown() {
  const auto isShown = [](const zNumPictStrEl& place) { return place.isShown(); };
  const auto first = std::find_if(before_.begin(), before_.end(), isShown);
  const auto last = std::find_if(after_.rbegin(), after_.rend(), isShown);
  shownBefore_ = left_ == '0' ? before_.size() : static_cast<std::size_t>(before_.end() - first);
  shownAfter_ = trailing_ == '0' ? after_.size() : static_cast<std::size_t>(after_.rend() - last);
}

bool zNumFormatter::checkRange(std::size_t before, std::size_t after) const {
  return before <= before_.size() && after <= after_.size();
}

bool zNumFormatter::isInRange(const Number& number) const {
  return checkRange(number.before(), number.after());
}

zNumFormatter::Number zNumFormatter::read(const std::string& text, const zRange& sel) const {
  const int length = static_cast<int>(text.size());
  const int start = std::clamp(sel.start, 0, length), end = std::clamp(sel.end, start, length);
  Number number;
  for (int i = 0; i < length; ++i) {
    const char c = text[static_cast<std::size_t>(i)];
    const bool isPoint = c == context_.decimal && hasPoint_ && !number.hasPoint();
    if (ziIsDigit(c) || isPoint) {
      number.digits += isPoint ? point : c;
      if (i < start) ++number.start;
      if (i < end) ++number.end;
    } else if (c == '-' && keepsSign_) {
      number.negative = true;
      number.signBefore = i < start;
      number.signSelected = i >= start && i < end;
    }
  }
  return number;
}

// Takes away the zeros that are there only because the picture always shows some.
void zNumFormatter::stripPadding(Number& number) const {
  while (number.before() > 0 && number.before() <= shownBefore_ && number.digits[0] == '0') {
    number.digits.erase(0, 1);
    if (number.start > 0) --number.start;
    if (number.end > 0) --number.end;
  }
  while (number.after() > 0 && number.after() <= shownAfter_ && number.digits.back() == '0' &&
         number.digits.size() > number.end) {
    number.digits.pop_back();
  }
}

void zNumFormatter::show(const Number& number, std::string& text, zRange& sel) const {
  const std::size_t before = number.before();
  const std::size_t zeros = std::max(before, shownBefore_);
  const bool padsLeft = left_ != '\0' && left_ != '0';
  text.clear();
  if (number.negative || showsPlus_) text += number.negative ? '-' : '+';
  if (hasCurrency_) text += context_.currency;
  std::size_t caret = text.size();
  for (std::size_t left = padsLeft ? std::max(zeros, before_.size()) : zeros; left > 0; --left) {
    const std::size_t placed = before - std::min(before, left);
    text += left > zeros ? left_ : left > before ? '0' : number.digits[placed];
    if (left > before || placed < number.start) caret = text.size();
    const bool separated = std::any_of(separators_.begin(), separators_.end(), [&](std::size_t s) {
      return before_.size() - s == left - 1;
    });
    if (separated && left > 1) text += left > zeros ? left_ : context_.thousands;
  }
  if (number.hasPoint() || shownAfter_ > 0 || trailing_ != '\0') {
    if (hasPoint_) text += context_.decimal;
    if (number.start > before) caret = text.size();
    for (std::size_t i = before + 1; i < number.digits.size(); ++i) {
      text += number.digits[i];
      if (i < number.start) caret = text.size();
    }
    const std::size_t after = std::max(number.after(), shownAfter_);
    text.append(after - number.after(), '0');
    if (trailing_ != '\0' && after_.size() > after) text.append(after_.size() - after, trailing_);
  }
  sel.start = sel.end = static_cast<int>(caret);
}

int zNumFormatter::addChars(std::string& text, const char* chars, int count, zRange& sel) {
  if (count <= 0 || chars == nullptr) {
    if (!text.empty()) return refused;
    show({}, text, sel);
    sel.start = sel.end = firstWritablePosition(text.c_str());
    return rewritten;
  }
  if (count == 1 || (chars[0] == deletion && count == 2)) {
    return addOne(text, chars[0], count, sel) ? rewritten : refused;
  }
  // Values come with a sign, also where none is shown.
  int i = isSign(chars[0]) && !keepsSign_ ? 1 : 0;
  const int first = i;
  while (i < count && chars[i] != deletion && addOne(text, chars[i], 1, sel)) ++i;
  return i > first ? rewritten : refused;
}

bool zNumFormatter::addOne(std::string& text, char c, int count, zRange& sel) const {
  Number number = read(text, sel);
  const bool wasInRange = isInRange(number);
  const bool isShownOnly =
      (c == context_.thousands && !separators_.empty()) || (c == context_.currency && hasCurrency_);
  if (isShownOnly) return true;
  stripPadding(number);
  if (!(c == deletion ? remove(number, count) : insert(number, c))) return false;
  if (!isInRange(number) && (wasInRange || c != deletion)) return false;
  if (number.digits.size() == 1 && number.hasPoint() && shownAfter_ == 0 && trailing_ == '\0') {
    number.digits.insert(0, 1, '0');
    ++number.start;
  }
  show(number, text, sel);
  return true;
}

bool zNumFormatter::remove(Number& number, int count) const {
  if (number.start < number.end || number.signSelected) {
    number.eraseSelection();
    return true;
  }
  const bool backward = count == 1;
  // The sign stands at the very left, and counts as the last thing there.
  if (number.negative && number.start == 0 && number.signBefore == backward) {
    number.negative = false;
    return true;
  }
  std::size_t at = backward ? number.start - 1 : number.start;
  if (at >= number.digits.size()) return false;
  // A point with digits behind it is passed over.
  if (number.digits[at] == point && number.after() > 0) backward ? --at : ++at;
  if (at >= number.digits.size()) return false;
  number.digits.erase(at, 1);
  number.start = number.end = at;
  return true;
}

bool zNumFormatter::insert(Number& number, char c) const {
  if (isSign(c)) {
    if (!keepsSign_) return false;
    number.eraseSelection();
    number.negative = c == '-' && !number.negative;
    return true;
  }
  if (c == context_.decimal) {
    if (!hasPoint_) return false;
    number.eraseSelection();
    number.start = number.hasPoint() ? number.before() + 1 : number.start;
    if (!number.hasPoint()) number.put(point);
    return true;
  }
  if (!ziIsDigit(c)) return false;
  number.eraseSelection();
  if (hasPoint_ && mode_ == EntryMode::beforePoint) number.start = number.before();
  if (hasPoint_ && mode_ == EntryMode::behindPoint) {
    if (!number.hasPoint()) number.digits += point;
    number.start = number.digits.size();
  }
  number.put(c);
  return true;
}

bool zNumFormatter::isPart(char c, bool pointSeen) const {
  if (ziIsDigit(c)) return true;
  if (c == context_.decimal && hasPoint_) return !pointSeen;
  return (c == context_.thousands && !separators_.empty()) || (isSign(c) && keepsSign_) ||
         (c == context_.currency && hasCurrency_) || (c != '\0' && (c == left_ || c == trailing_));
}

// A number that is required has a digit in every place; any other has one before its point.
bool zNumFormatter::isFilled(const Number& number) const {
  const std::size_t before = number.before();
  if (has(required)) return before == before_.size() && number.after() == after_.size();
  return before > 0 || !number.hasPoint();
}

// The first digit that its place does not take, or npos. The number is in range.
std::size_t zNumFormatter::firstInvalid(const Number& number) const {
  const std::size_t before = number.before();
  for (std::size_t i = 0; i < number.digits.size(); ++i) {
    if (i == before) continue;
    const zNumPictStrEl& place =
        i < before ? before_[before_.size() - before + i] : after_[i - before - 1];
    if (!place.isValid(number.digits[i])) return i;
  }
  return std::string::npos;
}

int zNumFormatter::checkChars(const std::string& text, zRange& sel) {
  const auto fail = [&](std::size_t at) {
    sel.start = sel.end = static_cast<int>(std::min(at, text.size()));
    return 0;
  };
  bool pointSeen = false;
  std::vector<std::size_t> positions;  // of the digits and the point
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!isPart(text[i], pointSeen)) return fail(i);
    const bool isPoint = hasPoint_ && text[i] == context_.decimal;
    pointSeen = pointSeen || isPoint;
    if (isPoint || ziIsDigit(text[i])) positions.push_back(i);
  }
  const Number number = read(text, {});
  if (number.before() > before_.size()) return fail(positions[before_.size()]);
  if (number.after() > after_.size()) return fail(positions[number.before() + after_.size() + 1]);
  if (const std::size_t bad = firstInvalid(number); bad != std::string::npos) {
    return fail(positions[bad]);
  }
  return has(mayBeEmpty) || isFilled(number) ? 1 : fail(text.find(context_.decimal));
}

int zNumFormatter::getChars(std::string& text, unsigned long) {
  const Number number = read(text, {});
  const std::string sign = number.negative ? "-" : keepsSign_ ? "+" : "";
  text = sign + (number.before() == 0 ? "0" : "") + number.digits;
  return 1;
}

int zNumFormatter::firstWritablePosition(const char* text) const {
  const char* at = text;
  while (*at != '\0' && !ziIsDigit(*at) && *at != left_ && *at != trailing_) ++at;
  return static_cast<int>(at - text);
}
