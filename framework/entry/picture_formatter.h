// The formatter of addresses: a text that fits a picture, whose literals stand by themselves.
#pragma once

#include <string>
#include <string_view>
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
  // Lays `text` over the elements from `startElement` on, its literals there or not; 1, or 0 when
  // a character fits nowhere. With `record` the map says where each went, as far as they fit.
  int mapStrToPict(std::string_view text, int startElement, bool record, int& lastUsed);
  void mapPictToStr(std::string& text, unsigned long style) const;
  // Where the element stands in the text; -1 is behind the last one.
  int findStringPosition(int element) const;
  // Moves on what follows the place, where `displaced` stood. False when a character was lost.
  bool shiftRight(int element, char displaced);
  // Empties the place and closes it with what follows.
  void shiftLeft(int element);

  bool load(const std::string& text);
  bool layShownText(std::string_view text);
  void occupy(int element, char c, bool record);
  int literalFor(char c, int startElement) const;
  bool accepts(int element, char c) const;
  bool canHold(int element, char c) const;
  bool put(int element, char c);
  bool keepsOut(int element, int next) const;

  int addString(std::string& text, const char* chars, int count, zRange& sel);
  int addOne(std::string& text, char c, int count, zRange& sel);
  int insert(char c, int element, std::string& text, zRange& sel);
  int elementAtCaret(int caret) const;
  int removeAt(int caret, int count, std::string& text, zRange& sel);
  int removeRange(const zRange& range);
  void show(int element, std::string& text, zRange& sel) const;

  int size() const { return static_cast<int>(elements_.size()); }
  bool isWritable(int element) const { return elements_[index(element)]->isWritable(); }
  char current(int element) const { return elements_[index(element)]->current(); }
  unsigned long shownStyle() const { return style() & ~static_cast<unsigned long>(rawValue); }
  static std::size_t index(int i) { return static_cast<std::size_t>(i); }

  zPicture elements_;
  std::vector<int> literals_;
  std::vector<int> map_;  // the n-th character of the text sits at element map_[n]
};
