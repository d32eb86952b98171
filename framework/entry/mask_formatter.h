// The formatter of a free text of any length, whose characters may be limited to a class.
#pragma once

#include <string>

#include "framework/entry/formatter.h"

class zMaskFormatter : public zFormatter {
 public:
  enum MaskStyle : unsigned long {
    lettersOnly = 0x1,  // and blanks
    digitsOnly = 0x2,
    plainOnly = 0x10,     // letters, digits, blanks, "-" and "+"
    capitalWords = 0x20,  // the first letter of each word is a capital
  };

  explicit zMaskFormatter(unsigned long style) : zFormatter(style) {}

  int addChars(std::string& text, const char* chars, int count, zRange& sel) override;
  int checkChars(const std::string& text, zRange& sel) override;

 private:
  bool isInClass(char c) const;
  char stored(char c, char before) const;
};
