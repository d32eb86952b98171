#include "framework/controls/status_line.h"

#include <cstring>

#include "framework/core/x_text.h"

namespace {

constexpr int noId = -1;

// Pixels.
constexpr int borderWidth = 2;
constexpr int topMargin = 2;
constexpr int otherMargin = 0;  // bottom, left and right
constexpr int leading = 2;      // what an item is higher than its font
constexpr int besideItems = 5;
constexpr int betweenItems = 5;
constexpr int textIndent = 3;

std::shared_ptr<zFont> orDefault(std::shared_ptr<zFont> font) {
  return font ? font : std::make_shared<zFont>("Helv", zPrPoint(0, 120));
}

}  // namespace

// Items.

zStatusItem::zStatusItem(zStatusLine* line, unsigned long style, int id)
    : line_(line), style_(style), id_(id) {
  line->addStatusItem(std::unique_ptr<zStatusItem>(this));
}

void zStatusItem::text(const char* text) {
  const std::string bounded(text ? text : "", text ? strnlen(text, textBytes - 1) : 0);
  if (bounded == text_) return;
  text_ = bounded;
  line_->itemChanged(this);
}

void zStatusItemText::draw(zDisplay& display) const {
  const std::string shown = ziSafeText(text());
  const zDimension size = display.textDimension(shown);
  const zRect inside(place().left + textIndent, place().top, place().right - textIndent,
                     place().bottom);
  int x = inside.left;
  if (style() & centred) x += (inside.width() - size.width) / 2;
  if (style() & alignRight) x = inside.right - size.width;
  const int top = inside.top + (inside.height() - size.height) / 2;
  display.setClip(inside);
  display.setColor(zBlack);
  display.text({std::max(x, inside.left), top + display.font().ascent()}, shown);
  display.clearClip();
}

// The line.

zStatusLine::zStatusLine(zWindow* parent, zGravSizer* sizer, unsigned long style,
                         unsigned long windowStyle, std::shared_ptr<zFont> font)
    : zPane(parent, sizer, style | windowStyle, nullptr, noId),
      lineFont_(orDefault(std::move(font))) {
  backgroundColor(zDialogGrey);
  sizer->useArea({0, lineHeight()});
  zPane::create();
}

int zStatusLine::lineHeight() const {
  return 2 * borderWidth + lineFont_->height() + topMargin + leading + otherMargin;
}

zStatusItem* zStatusLine::getItem(int id) const {
  for (const auto& item : items_) {
    if (item->id() == id) return item.get();
  }
  return nullptr;
}

void zStatusLine::text(int id, const char* text) {
  if (zStatusItem* item = getItem(id)) item->text(text);
}

void zStatusLine::addStatusItem(std::unique_ptr<zStatusItem> item) {
  items_.push_back(std::move(item));
  setDirty(nullptr, 1);
}

std::unique_ptr<zStatusItem> zStatusLine::removeStatusItem(const zStatusItem* item) {
  std::unique_ptr<zStatusItem> removed;
  for (auto it = items_.begin(); it != items_.end() && !removed; ++it) {
    if (it->get() == item) removed = std::move(*it);
  }
  items_.remove(nullptr);
  if (removed) setDirty(nullptr, 1);
  return removed;
}

void zStatusLine::deleteStatusItem(int id) {
  removeStatusItem(getItem(id));
}

void zStatusLine::itemChanged(const zStatusItem* item) {
  arrange();
  setDirty(&item->place(), 1);
}

void zStatusLine::arrange() {
  zRect all;
  getInterior(all);
  const int side = otherMargin + besideItems;
  const zRect inside(all.left + side, all.top + borderWidth + topMargin, all.right - side,
                     all.bottom - borderWidth - otherMargin);
  const int count = static_cast<int>(items_.size());
  int index = 0;
  for (const auto& item : items_) {
    const int start = inside.left + inside.width() * index / count;
    const int end = inside.left + inside.width() * ++index / count;
    const bool spaced = index < count && !(item->style() & zStatusItem::noSpaceBeside);
    item->place({start, inside.top, end - (spaced ? betweenItems : 0), inside.bottom});
  }
}

void zStatusLine::draw(zDrawEvt* event) {
  zDisplay& display = *event->display;
  display.setFont(lineFont_);
  zPane::draw(event);
  arrange();
  for (const auto& item : items_) {
    display.edge3d(item->place().inset(-1), false);
    item->draw(display);
  }
}

zStatusLineEZ::zStatusLineEZ(zWindow* parent, zGravSizer* sizer, unsigned long style,
                             unsigned long windowStyle, std::shared_ptr<zFont> font)
    : zStatusLine(parent, sizer, style, windowStyle, std::move(font)) {
  if (style & textItem) new zStatusItemText(this, 0, 0);
}
