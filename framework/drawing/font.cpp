#include "framework/drawing/font.h"

#include <cctype>
#include <climits>
#include <cstdio>
#include <cstdlib>

#include "framework/core/app.h"

ziFontDict* zAppFontDict = nullptr;

namespace {

// The core font families behind the face names of the templates.
struct FaceFamily {
  const char* face;
  const char* family;
};
constexpr FaceFamily families[] = {{"Helv", "helvetica"}, {"System", "helvetica"}};

const char* familyOf(const std::string& face) {
  for (const FaceFamily& f : families) {
    if (face == f.face) return f.family;
  }
  return face.c_str();
}

// What a style is called in X font names: the usual word first.
struct Style {
  const char* weight;
  const char* slant;
};
constexpr Style plainStyle{"medium", "r"};
constexpr Style boldStyles[] = {{"bold", "r"}, {"demibold", "r"}};
constexpr Style italicStyles[] = {{"medium", "i"}, {"medium", "o"}};
constexpr Style boldItalicStyles[] = {
    {"bold", "i"}, {"bold", "o"}, {"demibold", "i"}, {"demibold", "o"}};

// The plain style stands in for one that the face lacks.
std::vector<Style> stylesOf(const zFontSpec& spec) {
  std::vector<Style> styles;
  if (spec.isBold() && spec.isItalic()) {
    styles.assign(std::begin(boldItalicStyles), std::end(boldItalicStyles));
  } else if (spec.isBold()) {
    styles.assign(std::begin(boldStyles), std::end(boldStyles));
  } else if (spec.isItalic()) {
    styles.assign(std::begin(italicStyles), std::end(italicStyles));
  }
  styles.push_back(plainStyle);
  return styles;
}

// An X font name with `tenths` (or every size, as "*") in its size field.
std::string xName(const std::string& face, const Style& style, const std::string& tenths) {
  char name[256];
  std::snprintf(name, sizeof name, "-*-%.100s-%s-%s-normal-*-*-%s-*-*-*-*-iso8859-1",
                familyOf(face), style.weight, style.slant, tenths.c_str());
  return name;
}

// Fields of an X font name, each behind that many hyphens.
enum NameField { familyField = 2, sizeField = 8, resolutionField = 9 };

std::string_view fieldOf(std::string_view name, NameField field) {
  for (int hyphens = 0; hyphens < field; ++hyphens) {
    const std::size_t hyphen = name.find('-');
    if (hyphen == name.npos) return {};
    name.remove_prefix(hyphen + 1);
  }
  return name.substr(0, name.find('-'));
}

// 0 for a field without a number.
int numberIn(const char* name, NameField field) {
  return std::atoi(std::string(fieldOf(name, field)).c_str());
}

// The face name under which a person knows a family: with capitals.
std::string faceOf(std::string_view family) {
  for (const FaceFamily& f : families) {
    if (family == f.family) return f.face;
  }
  std::string face(family);
  for (std::size_t i = 0; i < face.size(); ++i) {
    if (i && face[i - 1] != ' ') continue;
    face[i] = static_cast<char>(std::toupper(static_cast<unsigned char>(face[i])));
  }
  return face;
}

// Outline fonts, which come in any size, have a name without a size and a resolution.
std::vector<ziFontEntry> listServerFonts() {
  constexpr int atMost = 2000;
  constexpr int usualSizes[] = {80, 100, 120, 140, 180, 240};
  std::vector<ziFontEntry> found;
  int count = 0;
  char** names = XListFonts(app->display(), xName("*", plainStyle, "*").c_str(), atMost, &count);
  for (int i = 0; i < count; ++i) {
    const std::string face = faceOf(fieldOf(names[i], familyField));
    if (face.empty()) continue;
    const int tenths = numberIn(names[i], sizeField);
    if (tenths > 0) {
      found.push_back({face, tenths});
    } else if (numberIn(names[i], resolutionField) == 0) {
      for (const int usual : usualSizes) found.push_back({face, usual});
    }
  }
  if (names) XFreeFontNames(names);
  return found;
}

// Whether one X font realises both.
bool looksAlike(const zFontSpec& a, const zFontSpec& b) {
  return a.pointSize() == b.pointSize() && a.isBold() == b.isBold() &&
         a.isItalic() == b.isItalic() && a.faceName() == b.faceName();
}

// The bitmap font of this name whose size is nearest, or null. Scaled ones are passed over.
XFontStruct* loadNearest(Display* display, const std::string& ofEverySize, int tenths) {
  int count = 0;
  char** names = XListFonts(display, ofEverySize.c_str(), 1000, &count);
  const char* best = nullptr;
  int bestDistance = INT_MAX;
  for (int i = 0; i < count; ++i) {
    const int size = numberIn(names[i], sizeField);
    const int distance = std::abs(size - tenths);
    if (size <= 0 || distance >= bestDistance) continue;
    best = names[i];
    bestDistance = distance;
  }
  XFontStruct* font = best ? XLoadQueryFont(display, best) : nullptr;
  if (names) XFreeFontNames(names);
  return font;
}

XFontStruct* load(Display* display, const zFontSpec& spec) {
  const std::string& face = spec.faceName();
  const int tenths = spec.pointSize();
  XFontStruct* font = nullptr;
  for (const Style& style : stylesOf(spec)) {
    font = XLoadQueryFont(display, xName(face, style, std::to_string(tenths)).c_str());
    if (!font) font = loadNearest(display, xName(face, style, "*"), tenths);
    if (font) return font;
  }
  font = XLoadQueryFont(display, "fixed");
  if (!font) {
    std::fprintf(stderr, "Error:  the X server has no font, not even \"fixed\".\n");
    std::exit(1);
  }
  return font;
}

}  // namespace

zFontSpec::zFontSpec(const char* face, zDimension size, int weight, zFntFam family, zFntPitch pitch,
                     int styleBits, int escapement, int orientation, zChSet charSet,
                     zOutPrec outPrecision, zClipPrec clipPrecision, zOutQual quality)
    : height_(size.height),
      width_(size.width),
      escapement_(escapement),
      orientation_(orientation),
      weight_(weight),
      italic_((styleBits & italicBit) != 0),
      underline_((styleBits & underlineBit) != 0),
      strikeOut_((styleBits & strikeOutBit) != 0),
      charSet_(charSet),
      outPrecision_(outPrecision),
      clipPrecision_(clipPrecision),
      quality_(quality),
      pitchAndFamily_(static_cast<unsigned char>(int{family} | int{pitch})),
      faceName_(face) {}

ziRealFont::ziRealFont(const zFontSpec& description, XFontStruct* loaded)
    : spec(description), font(loaded) {
  const XmFontListEntry entry =
      XmFontListEntryCreate(const_cast<char*>(XmFONTLIST_DEFAULT_TAG), XmFONT_IS_FONT, font);
  list = XmFontListAppendEntry(nullptr, entry);
  XmFontListEntry used = entry;
  XmFontListEntryFree(&used);
}

ziRealFont::~ziRealFont() {
  XmFontListFree(list);
  XFreeFont(app->display(), font);
}

const ziRealFont* ziFontDict::find(const zFontSpec& spec) {
  const auto hash = std::hash<std::string>{}(spec.faceName()) +
                    static_cast<std::size_t>(spec.pointSize() * 2 + spec.isBold());
  auto& bucket = fonts_[hash % buckets];
  for (const auto& font : bucket) {
    if (looksAlike(font->spec, spec)) return font.get();
  }
  bucket.push_front(std::make_unique<ziRealFont>(spec, load(app->display(), spec)));
  return bucket.front().get();
}

std::vector<ziFontEntry> ziFontDict::entries() {
  if (!serverFonts_) serverFonts_ = listServerFonts();
  std::vector<ziFontEntry> all;
  for (const auto& bucket : fonts_) {
    for (const auto& font : bucket) all.push_back({font->spec.faceName(), font->spec.pointSize()});
  }
  all.insert(all.end(), serverFonts_->begin(), serverFonts_->end());
  return all;
}

const ziRealFont* zFont::real() const {
  if (!real_) real_ = zAppFontDict->find(spec_);
  return real_;
}

int zFont::textWidth(std::string_view text) const {
  return XTextWidth(xFont(), text.data(), static_cast<int>(text.size()));
}
