// The line of status texts at the bottom of a window.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "framework/controls/pane.h"
#include "framework/controls/visual.h"

class zStatusLine;

// One field of a status line. It adds itself to the line, which owns it from then on.
class zStatusItem : public ziVisual {
 public:
  static constexpr std::size_t textBytes = 500;  // with the terminating zero
  enum StyleBits : unsigned long { alignRight = 0x2, centred = 0x4, noSpaceBeside = 0x800 };

  zStatusItem(zStatusLine* line, unsigned long style, int id);

  int id() const { return id_; }
  unsigned long style() const { return style_; }
  const std::string& text() const { return text_; }
  // Null is an empty text; what goes beyond textBytes is cut off. A text that is shown already
  // changes nothing.
  void text(const char* text);

 private:
  zStatusLine* line_;
  unsigned long style_;
  int id_;
  std::string text_;
};

class zStatusItemText : public zStatusItem {
 public:
  using zStatusItem::zStatusItem;
  void draw(zDisplay& display) const override;
};

using zStatusItemDlist = std::list<std::unique_ptr<zStatusItem>>;

class zStatusLine : public zPane {
 public:
  // The line's height goes to the sizer. Without a font, "Helv" of 12 points.
  zStatusLine(zWindow* parent, zGravSizer* sizer, unsigned long style, unsigned long windowStyle,
              std::shared_ptr<zFont> font);

  // The first item with this id, or null.
  zStatusItem* getItem(int id) const;
  // Sets the text of the item with this id, if there is one.
  void text(int id, const char* text);
  void addStatusItem(std::unique_ptr<zStatusItem> item);
  // Null when the item is not in the line.
  std::unique_ptr<zStatusItem> removeStatusItem(const zStatusItem* item);
  void deleteStatusItem(int id);

  void draw(zDrawEvt* event) override;

 private:
  friend class zStatusItem;
  void itemChanged(const zStatusItem* item);
  int lineHeight() const;
  // Gives the items equal parts of the line inside its border.
  void arrange();

  std::shared_ptr<zFont> lineFont_;
  zStatusItemDlist items_;
};

// A status line with ready-made items.
class zStatusLineEZ : public zStatusLine {
 public:
  static constexpr unsigned long textItem = 0x100;  // a zStatusItemText with id 0

  zStatusLineEZ(zWindow* parent, zGravSizer* sizer, unsigned long style, unsigned long windowStyle,
                std::shared_ptr<zFont> font);
};
