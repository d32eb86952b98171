#include "framework/drawing/font.h"

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

// An X font name for the description with `tenths` (or every size, as "*") in its size field.
std::string xName(const zFontSpec& spec, const std::string& tenths) {
  char name[256];
  std::snprintf(name, sizeof name, "-*-%.100s-%s-%s-normal-*-*-%s-*-*-*-*-iso8859-1",
                familyOf(spec.faceName()), spec.isBold() ? "bold" : "medium",
                spec.isItalic() ? "[io]" : "r", tenths.c_str());
  return name;
}

// The size field of an X font name in tenths of a point, 0 if it has none.
int sizeField(const char* name) {
  for (int hyphens = 0; *name && hyphens < 8; ++name) hyphens += *name == '-';
  return std::atoi(name);
}

// Whether one X font realises both.
bool looksAlike(const zFontSpec& a, const zFontSpec& b) {
  return a.pointSize() == b.pointSize() && a.isBold() == b.isBold() &&
         a.isItalic() == b.isItalic() && a.faceName() == b.faceName();
}

// The bitmap font of this family whose size is nearest, or null. Scaled ones are passed over.
XFontStruct* loadNearest(Display* display, const zFontSpec& spec) {
  int count = 0;
  char** names = XListFonts(display, xName(spec, "*").c_str(), 1000, &count);
  const char* best = nullptr;
  int bestDistance = INT_MAX;
  for (int i = 0; i < count; ++i) {
    const int size = sizeField(names[i]);
    const int distance = std::abs(size - spec.pointSize());
    if (size <= 0 || distance >= bestDistance) continue;
    best = names[i];
    bestDistance = distance;
  }
  XFontStruct* font = best ? XLoadQueryFont(display, best) : nullptr;
  if (names) XFreeFontNames(names);
  return font;
}

XFontStruct* load(Display* display, const zFontSpec& spec) {
  XFontStruct* font =
      XLoadQueryFont(display, xName(spec, std::to_string(spec.pointSize())).c_str());
  if (!font) font = loadNearest(display, spec);
  if (!font) font = XLoadQueryFont(display, "fixed");
  if (!font) {
    std::fprintf(stderr, "Error:  the X server has no font, not even \"fixed\".\n");
    std::exit(1);
  }
  return font;
}

}  // namespace

zFontSpec::zFontSpec(const char* face, zDimension size, int weight, zFntFam family, zFntPitch pitch,
                     int styleBits, int escapement, int orientation, unsigned char charSet,
                     unsigned char outPrecision, unsigned char clipPrecision, unsigned char quality)
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

const ziRealFont* zFont::real() const {
  if (!real_) real_ = zAppFontDict->find(spec_);
  return real_;
}

int zFont::textWidth(std::string_view text) const {
  return XTextWidth(xFont(), text.data(), static_cast<int>(text.size()));
}
