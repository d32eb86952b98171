// The elements of a picture: what may stand at each place of a formatted text.
#pragma once

#include <bitset>
#include <cstdint>
#include <memory>
#include <vector>

// A set of characters, by their codes.
using zBitVector = std::bitset<256>;

// One place of a picture.
class zPictStrEl {
 public:
  enum Flag : std::uint16_t { literal = 1, writable = 2 };

  zPictStrEl(std::uint16_t flags, char picture) : flags_(flags), picture_(picture) {}
  virtual ~zPictStrEl() = default;
  zPictStrEl& operator=(const zPictStrEl&) = delete;

  // Whether `c` may stand here; with `checkOnly` 0 it does from now on. The styles are those of
  // zFormatter.
  virtual bool addChar(char c, int checkOnly, unsigned long style) = 0;
  // What is shown in the given style; 0 for nothing.
  virtual char getChar(unsigned long style) const = 0;
  virtual void delChar() {}
  // The character that the place holds, 0 when it is empty.
  virtual char current() const = 0;
  // The character that stands for an empty place, 0 for a literal.
  virtual char fill() const { return 0; }
  virtual std::unique_ptr<zPictStrEl> clone() const = 0;

  bool isLiteral() const { return (flags_ & literal) != 0; }
  bool isWritable() const { return (flags_ & writable) != 0; }
  // The character of the picture that made the element, the literal's own or that of a class.
  char picture() const { return picture_; }

 protected:
  zPictStrEl(const zPictStrEl&) = default;

 private:
  std::uint16_t flags_;
  char picture_;
};

using zPicture = std::vector<std::unique_ptr<zPictStrEl>>;

// A fixed character; a raw value leaves it out.
class zPictStrLiteral : public zPictStrEl {
 public:
  explicit zPictStrLiteral(char c) : zPictStrEl(literal, c) {}
  bool addChar(char c, int checkOnly, unsigned long style) override;
  char getChar(unsigned long style) const override;
  char current() const override { return picture(); }
  std::unique_ptr<zPictStrEl> clone() const override;
};

// A place to be filled. Its fill character stands for an empty one, shown and typed.
class ziPictStrPlace : public zPictStrEl {
 public:
  ziPictStrPlace(char picture, char fill) : zPictStrEl(writable, picture), fill_(fill) {}
  bool addChar(char c, int checkOnly, unsigned long style) override;
  void delChar() override { current_ = 0; }
  char current() const override { return current_; }
  char fill() const override { return fill_; }

 protected:
  virtual bool isInClass(char c) const = 0;
  virtual char stored(char c, unsigned long style) const;

 private:
  bool accepts(char c, unsigned long style) const;

  char fill_;
  char current_ = 0;
};

// A place of one of the classes "!", "#", "9", "A", "N" and "X".
class zPictStrMaskEl : public ziPictStrPlace {
 public:
  explicit zPictStrMaskEl(char mask);
  static bool isMask(char c);
  char getChar(unsigned long style) const override;
  std::unique_ptr<zPictStrEl> clone() const override;

 private:
  bool isInClass(char c) const override;
  char stored(char c, unsigned long style) const override;
};

// A place for the characters of a set, or with `negated` for all others.
class zPictStrSetEl : public ziPictStrPlace {
 public:
  zPictStrSetEl(const zBitVector& set, bool negated);
  char getChar(unsigned long style) const override;
  std::unique_ptr<zPictStrEl> clone() const override;

 private:
  bool isInClass(char c) const override;

  zBitVector set_;
  bool negated_;
};

// No picture is longer.
constexpr int mostPictureElements = 256;

// Reads a picture: mask characters, 'literals', [sets] and the count (n) of the place before it.
// What is none of these is passed over; a set that cannot be read takes its fill character alone.
zPicture ziReadPicture(const char* picture);
