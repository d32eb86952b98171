// The formatter of addresses: a text that fits a picture, whose literals stand by themselves.
#pragma once

#include <string>
#include <vector>

#include "framework/entry/formatter.h"
#include "framework/entry/picture_element.h"

// Nothing but the text is kept between calls: each lays it over the elements anew. In fill mode the
// n-th character belongs to the n-th element; otherwise empty places are not shown, and within
// their group of places between two literals they come last.
class zPictFormatter : public zFormatter {
 public:
  // The language of `picture` is told at ziReadPicture; 256 elements at most are read.
  zPictFormatter(unsigned long style, const char* picture);

  int addChars(std::string& text, const char* chars, int count, zRange& sel) override;
  int checkChars(const std::string& text, zRange& sel) override;
  // The text without fill characters, and with rawValue in `style` without literals. 0 when it
  // does not fit the picture, which leaves it alone.
  int getChars(std::string& text, unsigned long style) override;

  // The next element after `from`, from -1 on; -1 when there is none. With `skipFilled` the place
  // is an empty one.
  int findNextWritable(int from, bool skipFilled = false) const;
  int findNextLiteral(int from) const;
  // Whether any literal is this character.
  bool isLiteral(char c) const;

 private:
  // Lays `length` characters over the elements from `startElement` on; 1, or 0 when one of them
  // fits nowhere. With `record` the map says afterwards where each went, to the first that did not.
  int mapStrToPict(const char* text, int length, int startElement, bool record, int& lastUsed);
  void mapPictToStr(std::string& text, unsigned long style) const;
  bool shiftRight(int element, char displaced);
  void shiftLeft(int element);
  int findStringPosition(int element) const;

  bool load(const std::string& text);
  bool layShownText(const std::string& text);
  int literalFor(char c, int startElement) const;
  bool put(int element, char c);
  bool holdsBack(int element, int next) const;
  int addString(std::string& text, const char* chars, int count, zRange& sel);
  int addOne(std::string& text, char c, int count, zRange& sel);
  int elementAtCaret(int caret) const;
  int elements() const { return static_cast<int>(elements_.size()); }
  bool at(int element, char c) const;

  zPicture elements_;
  std::vector<int> literals_;
  std::vector<int> map_;  // the n-th character of the text sits at element map_[n]
};
