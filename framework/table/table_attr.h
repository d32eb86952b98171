// Attributes: how the cells of a region are shown.
#pragma once

#include <memory>

#include "framework/drawing/color.h"
#include "framework/drawing/font.h"
#include "framework/table/table_model.h"

class zFormatter;

// How a cell is drawn. The table starts each cell with its own settings and lets every attribute
// that covers the cell change them, in the model's order.
struct ziTableEnv {
  zColor textColor = zBlack;
  zColor backColor = zWhite;
  std::shared_ptr<const zFont> font;
  unsigned alignment = 0;  // bits of ZTEXT_ALIGN
  bool readOnly = false;
  zFormatter* formatter = nullptr;  // shows the text its way
};

// What `formatter` makes of a text that is typed into an empty field; the text itself when it
// refuses the beginning or leaves it to the field.
std::string ziFormatted(zFormatter& formatter, const std::string& text);

// Each attribute adds its bit, so that the two go together. Without a bit the text stands at the
// left, or at the top.
enum ZTEXT_ALIGN : unsigned {
  zAlignCenterAcross = 2,
  zAlignCenterDown = 4,
};

class zTableAttr {
 public:
  explicit zTableAttr(const zTableRegion& region) : region_(region) {}
  virtual ~zTableAttr() = default;

  const zTableRegion& region() const { return region_; }
  virtual void setup(ziTableEnv& env) const = 0;

 private:
  zTableRegion region_;
};

class zTableTextColorAttr : public zTableAttr {
 public:
  zTableTextColorAttr(zColor color, const zTableRegion& region)
      : zTableAttr(region), color_(color) {}
  void setup(ziTableEnv& env) const override;

 private:
  zColor color_;
};

class zTableBackColorAttr : public zTableAttr {
 public:
  zTableBackColorAttr(zColor color, const zTableRegion& region)
      : zTableAttr(region), color_(color) {}
  void setup(ziTableEnv& env) const override;

 private:
  zColor color_;
};

class zTableFontAttr : public zTableAttr {
 public:
  zTableFontAttr(std::shared_ptr<const zFont> font, const zTableRegion& region)
      : zTableAttr(region), font_(std::move(font)) {}
  void setup(ziTableEnv& env) const override;

 private:
  std::shared_ptr<const zFont> font_;
};

// No cell of a table that this framework shows can be typed into; the attribute says so of a cell.
class zTableReadOnlyAttr : public zTableAttr {
 public:
  explicit zTableReadOnlyAttr(const zTableRegion& region) : zTableAttr(region) {}
  void setup(ziTableEnv& env) const override;
};

class zTableTextAlignmentAttr : public zTableAttr {
 public:
  zTableTextAlignmentAttr(ZTEXT_ALIGN alignment, const zTableRegion& region)
      : zTableAttr(region), alignment_(alignment) {}
  void setup(ziTableEnv& env) const override;

 private:
  ZTEXT_ALIGN alignment_;
};

// Shows the text of its cells as the formatter, which must outlive the attribute, would. The cells
// keep their text as it is.
class zTableFormatterAttr : public zTableAttr {
 public:
  zTableFormatterAttr(zFormatter* formatter, const zTableRegion& region)
      : zTableAttr(region), formatter_(formatter) {}
  void setup(ziTableEnv& env) const override;

 private:
  zFormatter* formatter_;
};

// The same for numbers, by a formatter of numbers.
class zTableNumFormatterAttr : public zTableFormatterAttr {
 public:
  zTableNumFormatterAttr(const zTableRegion& region, zFormatter* formatter)
      : zTableFormatterAttr(formatter, region) {}
};

// A cell whose text goes through a formatter, which must outlive it: it holds what comes out.
class zTableFmtNumCell : public zTableTextCell {
 public:
  zTableFmtNumCell(zFormatter& formatter, const char* text)
      : zTableTextCell(ziFormatted(formatter, text ? text : "").c_str()), formatter_(formatter) {}
  void setText(const char* text) override;

 protected:
  zFormatter& formatter() const { return formatter_; }

 private:
  zFormatter& formatter_;
};

// The same, and a new text that the formatter does not find complete is not taken.
class zTableValidatedFmtTextCell : public zTableFmtNumCell {
 public:
  using zTableFmtNumCell::zTableFmtNumCell;
  void setText(const char* text) override;
};
