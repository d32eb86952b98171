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
  zNumPictStrEl(char first, char last) : first_(first), last_(last) {}
  zNumPictStrEl(char first, char last, char except) : first_(first), last_(last), except_(except) {}
  bool isValid(char digit) const { return digit >= first_ && digit <= last_ && digit != except_; }

 private:
  char first_;
  char last_;
  char except_ = 0;
};

class zNumFormatter : public zFormatter {
 public:
  // `picture`: options, then digit places ("#" a digit or nothing, "0" one that is always shown,
  // "[!n]" any but n, "[a-b]" one of a range), "," and one ".". Reading ends at what is neither.
  // `context` must outlive the formatter.
  zNumFormatter(unsigned long style, const char* picture,
                const zIntlContext& context = zIntlContext::standard());

  int addChars(std::string& text, const char* chars, int count, zRange& sel) override;
  int checkChars(const std::string& text, zRange& sel) override;
  // Digits with their sign and point alone; an empty number is 0.
  int getChars(std::string& text, unsigned long style) override;
  int firstWritablePosition(const char* text) const override;

  // Digits behind the point.
  int getFracDigits() const { return static_cast<int>(after_.size()); }
  // Whether the picture has places for so many digits before and behind the point.
  bool checkRange(int before, int after) const;

 private:
  const zIntlContext& context_;
  std::vector<zNumPictStrEl> before_;
  std::vector<zNumPictStrEl> after_;
};
