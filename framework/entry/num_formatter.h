// The formatter of numbers: digits with a sign, a point, separators and a currency as a picture
// wants them.
#pragma once

#include <string>
#include <vector>

#include "framework/entry/formatter.h"

// The characters that a number is written with.
struct zIntlContext {
  char decimal = '.';
  char thousands = ',';
  char currency = '$';

  // The one that serves where no other is given.
  static const zIntlContext& standard();
};

// The place of one digit.
class zNumPictStrEl {
 public:
  // `kind` is the picture's "#", "0" or "[".
  zNumPictStrEl(char kind, char first, char last, char except = 0)
      : kind_(kind), first_(first), last_(last), except_(except) {}
  bool isValid(char digit) const { return digit >= first_ && digit <= last_ && digit != except_; }
  // "0": a zero is shown where no digit is.
  bool isShown() const { return kind_ == '0'; }

 private:
  char kind_;
  char first_;
  char last_;
  char except_;
};

// Digits before the point are counted from it to the left, as the places are. The point is shown
// when it was typed, or when digits or guides behind it always are.
class zNumFormatter : public zFormatter {
 public:
  // `picture`: options, then digit places ("#" a digit or nothing, "0" one that is always shown,
  // "[!n]" any but n, "[a-b]" one of a range), "," and one ".". Reading ends at what is neither.
  // Options: "$" a currency, "-" a sign, "+" one that is shown always, "Lc" and "Tc" guide
  // characters for the places left empty before and behind the point ("LTc" for both), "R1" and
  // "R2" to write before or behind the point alone. `context` must outlive the formatter.
  zNumFormatter(unsigned long style, const char* picture,
                const zIntlContext& context = zIntlContext::standard());

  int addChars(std::string& text, const char* chars, int count, zRange& sel) override;
  int checkChars(const std::string& text, zRange& sel) override;
  // Digits with their sign and point alone; an empty number is 0.
  int getChars(std::string& text, unsigned long style) override;
  int firstWritablePosition(const char* text) const override;

  // Places behind the point.
  int getFracDigits() const { return static_cast<int>(after_.size()); }
  // Whether the picture has places for so many digits before and behind the point.
  bool checkRange(std::size_t before, std::size_t after) const;

 private:
  struct Number;
  enum class EntryMode { free, beforePoint, behindPoint };

  const char* readOptions(const char* at);
  bool readGuide(char guide, bool left, bool trailing);
  void readPlaces(const char* at);
  const char* readSet(const char* at);
  void countShown();

  Number read(const std::string& text, const zRange& sel) const;
  void show(const Number& number, std::string& text, zRange& sel) const;
  void stripPadding(Number& number) const;
  bool isInRange(const Number& number) const;
  bool isPart(char c, bool pointSeen) const;
  bool addOne(std::string& text, char c, int count, zRange& sel) const;
  bool remove(Number& number, int count) const;
  bool insert(Number& number, char c) const;
  bool isFilled(const Number& number) const;
  std::size_t firstInvalid(const Number& number) const;

  const zIntlContext& context_;
  bool hasCurrency_ = false;
  bool keepsSign_ = false;
  bool showsPlus_ = false;
  bool hasPoint_ = false;
  EntryMode mode_ = EntryMode::free;
  char left_ = 0;  // the guides, 0 for none
  char trailing_ = 0;
  std::vector<zNumPictStrEl> before_;
  std::vector<zNumPictStrEl> after_;
  std::vector<std::size_t> separators_;  // the places before the point when each was read
  std::size_t shownBefore_ = 0;          // digits that are there at least
  std::size_t shownAfter_ = 0;
};
