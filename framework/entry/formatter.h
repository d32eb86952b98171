// What decides which characters an entry field takes. Formatters know nothing of widgets: they
// rewrite a text and a caret, and the field shows the result.
#pragma once

#include <string>

#include "framework/core/geometry.h"

class zFormatter {
 public:
  enum Style : unsigned long {
    mayBeEmpty = 0x100,
    upperCase = 0x4000,
    lowerCase = 0x8000,
    rawValue = 0x40000,   // getChars leaves the literals out
    required = 0x80000,   // checkChars wants every writable place filled
    fillMode = 0x200000,  // empty places show a fill character, the text has its full length
  };
  enum Answer { refused = 0, letWidget = 1, rewritten = 2 };

  // The character that stands for a deletion: backward with a count of 1, forward or of the
  // selection with a count of 2.
  static constexpr char deletion = 8;

  explicit zFormatter(unsigned long style) : style_(style) {}
  virtual ~zFormatter() = default;
  zFormatter(const zFormatter&) = delete;
  zFormatter& operator=(const zFormatter&) = delete;

  // Puts `count` characters into `text` in place of `sel`, an empty range being the caret. An
  // Answer; refused leaves text and sel as they were.
  virtual int addChars(std::string& text, const char* chars, int count, zRange& sel) = 0;
  // 1 when the text is complete, else 0 with `sel` at the first position that is not.
  virtual int checkChars(const std::string& text, zRange& sel) = 0;
  // Reduces a shown text to the value it stands for, by the style bits of a field. 0 when the text
  // is the value as it is.
  virtual int getChars(std::string& text, unsigned long style);
  // Where the caret of a field goes that has just got its text.
  virtual int firstWritablePosition(const char* text) const;

  unsigned long style() const { return style_; }
  bool has(unsigned long bits) const { return (style_ & bits) != 0; }

 private:
  unsigned long style_;
};
