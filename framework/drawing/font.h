// Fonts: the description a program keeps, and the X fonts behind it.
#pragma once

#include <Xm/Xm.h>

#include <array>
#include <forward_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "framework/core/geometry.h"

// A pair of printer points: tenths of a typographic point, the unit that X names font sizes in. As
// the size of a font it goes into a zDimension as it is; the sign of a height is of no account.
struct zPrPoint {
  int x = 0;
  int y = 0;
  zPrPoint(int xTenths, int yTenths) : x(xTenths), y(yTenths) {}
  operator zDimension() const { return {x, y}; }
};

enum zFntFam { zFamDontCare = 0x00, zFamRoman = 0x10, zFamSwiss = 0x20, zFamModern = 0x30 };
enum zFntPitch { zPitchDefault = 0, zPitchFixed = 1, zPitchVariable = 2 };
// Kept in the record and of no account on this screen: the server has one way to draw a font.
enum zChSet : unsigned char { zChSetAnsi = 0, zChSetSymbol = 2, zChSetOem = 255 };
enum zOutPrec : unsigned char { zOutPrecDefault = 0 };
enum zClipPrec : unsigned char { zClipPrecDefault = 0 };
enum zOutQual : unsigned char { zOutQualDefault = 0, zOutQualDraft = 1, zOutQualProof = 2 };

// The description of a font, a storable record with the fields of a LOGFONT.
class zFontSpec {
 public:
  enum StyleBits { italicBit = 1, underlineBit = 2, strikeOutBit = 4 };
  static constexpr int weightNormal = 400;
  static constexpr int weightBold = 700;

  // `size` in tenths of a point; a negative height is taken as its absolute value when used.
  zFontSpec(const char* face, zDimension size, int weight = weightNormal,
            zFntFam family = zFamDontCare, zFntPitch pitch = zPitchDefault, int styleBits = 0,
            int escapement = 0, int orientation = 0, zChSet charSet = zChSetAnsi,
            zOutPrec outPrecision = zOutPrecDefault, zClipPrec clipPrecision = zClipPrecDefault,
            zOutQual quality = zOutQualDefault);

  const std::string& faceName() const { return faceName_; }
  // Tenths of a point, above 0 unless no size was given.
  int pointSize() const { return height_ < 0 ? -height_ : height_; }
  int weight() const { return weight_; }
  bool isBold() const { return weight_ >= 600; }
  bool isItalic() const { return italic_ != 0; }

  friend bool operator==(const zFontSpec&, const zFontSpec&) = default;

 private:
  int height_;
  int width_;
  int escapement_;
  int orientation_;
  int weight_;
  unsigned char italic_;
  unsigned char underline_;
  unsigned char strikeOut_;
  unsigned char charSet_;
  unsigned char outPrecision_;
  unsigned char clipPrecision_;
  unsigned char quality_;
  unsigned char pitchAndFamily_;
  std::string faceName_;
};

// A font of the server: loaded once for each description and kept until the program ends.
class ziRealFont {
 public:
  ziRealFont(const zFontSpec& spec, XFontStruct* font);
  ~ziRealFont();
  ziRealFont(const ziRealFont&) = delete;
  ziRealFont& operator=(const ziRealFont&) = delete;

  const zFontSpec spec;
  XFontStruct* const font;  // never null
  XmFontList list;
};

// A face and a size of it that can be had, in tenths of a point.
struct ziFontEntry {
  std::string face;
  int tenths;
};

// The fonts in use, found by description.
class ziFontDict {
 public:
  // Loads the font if it is new. The nearest size of the family stands in for a size that the
  // server lacks, the plain style for a bold or italic that the family lacks, and `fixed` for a
  // family that the server lacks. Never null.
  const ziRealFont* find(const zFontSpec& spec);

  // What a person can choose from: the fonts in use, then those of the server, which is asked once.
  // A face whose sizes are free is listed with the usual ones.
  std::vector<ziFontEntry> entries();

 private:
  static constexpr std::size_t buckets = 25;
  std::array<std::forward_list<std::unique_ptr<ziRealFont>>, buckets> fonts_;
  std::optional<std::vector<ziFontEntry>> serverFonts_;
};

// Made with the application shell.
extern ziFontDict* zAppFontDict;

// A font as windows hold it: a description that is realised on first use.
class zFont {
 public:
  zFont(const char* face, zDimension size, int weight = zFontSpec::weightNormal,
        zFntFam family = zFamDontCare, zFntPitch pitch = zPitchDefault, int styleBits = 0)
      : spec_(face, size, weight, family, pitch, styleBits) {}
  explicit zFont(const zFontSpec& spec) : spec_(spec) {}

  const zFontSpec& spec() const { return spec_; }
  XFontStruct* xFont() const { return real()->font; }
  XmFontList fontList() const { return real()->list; }

  // Pixels.
  int ascent() const { return xFont()->ascent; }
  int descent() const { return xFont()->descent; }
  int height() const { return ascent() + descent(); }
  int textWidth(std::string_view text) const;

  // Whether texts look the same in both.
  bool looksLike(const zFont& other) const { return real() == other.real(); }

  friend bool operator==(const zFont& a, const zFont& b) { return a.spec_ == b.spec_; }

 private:
  const ziRealFont* real() const;

  zFontSpec spec_;
  mutable const ziRealFont* real_ = nullptr;
};
