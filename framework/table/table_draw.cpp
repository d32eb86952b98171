// What a table looks like.
#include "framework/table/table.h"

#include <utility>

namespace {

constexpr int textMargin = 3;  // pixels between a cell's side and its text
constexpr int topMargin = 2;
constexpr zColor emptyColor = zWhite;
constexpr zColor selectedBack{0, 0, 128};
constexpr zColor labelColor = zDialogGrey;

// Where the baseline of a text of this size starts. A text that does not fit shows its beginning.
zPoint placeOf(const zDimension& text, const zFont& font, unsigned alignment, const zRect& inside) {
  const bool fits = text.width + 2 * textMargin <= inside.width();
  const int across = fits && (alignment & zAlignCenterAcross)
                         ? (inside.width() - text.width) / 2
                         : std::min(textMargin, std::max((inside.width() - text.width) / 2, 1));
  const int down =
      alignment & zAlignCenterDown ? (inside.height() - text.height + 1) / 2 : topMargin;
  return {inside.left + across, inside.top + down + font.ascent()};
}

}  // namespace

void zTable::setDirty(const zRect* rect, int erase) {
  image_.invalidate(rect ? *rect : zRect(zPoint{}, area_));
  zPane::setDirty(rect, erase);
}

void zTable::paint(const zRect& area) {
  const zRect all({0, 0}, area_);
  const zRect seen = area.intersection(all);
  if (seen.isEmpty() || !XtIsRealized(getWidget())) return;
  if (std::exchange(drawnEnabled_, isEnabled()) != isEnabled()) image_.invalidate(all);
  image_.bringUpToDate(this, area_, [this](zDrawEvt* event) { draw(event); });
  image_.show(XtWindow(getWidget()), seen);
}

void zTable::draw(zDrawEvt* event) {
  zDisplay& display = *event->display;
  display.setColor(emptyColor);
  display.fillRect(event->area);
  drawCells(display, event->area.intersection(cellsArea()));
  for (const zTLabelKind kind : {zTLabelColumns, zTLabelRows}) {
    drawLabels(display, kind, event->area.intersection(labelStrip(kind)));
  }
  const zDimension labels = labelRoom();
  const zRect corner({0, 0}, labels);
  const zRect part = event->area.intersection(corner);
  if (!part.isEmpty()) drawLabel(display, corner, {}, false, part);
}

void zTable::drawCells(zDisplay& display, const zRect& area) const {
  const zTableRegion shown = dirtyToLogical(area);
  if (shown.isEmpty()) return;
  display.setClip(area);
  for (unsigned long y = shown.topLeft.y; y <= shown.bottomRight.y; ++y) {
    for (unsigned long x = shown.topLeft.x; x <= shown.bottomRight.x; ++x) {
      drawCell(display, {x, y}, area);
    }
  }
  if (shown.contains(active_)) drawFocus(display, area);
}

ziTableEnv zTable::envOf(const zTableLoc& cell) const {
  ziTableEnv env;
  env.font = getFont() ? getFont() : labelFont_;
  for (const auto& attr : model()->attributes()) {
    if (attr->region().contains(cell)) attr->setup(env);
  }
  if (showsAsSelected(cell)) {
    env.textColor = zWhite;
    env.backColor = selectedBack;
  }
  if (!isEnabled()) env.textColor = zShadowGrey;
  return env;
}

// The active cell is marked by its frame.
bool zTable::showsAsSelected(const zTableLoc& cell) const {
  return selection_.contains(cell) && cell != active_;
}

// A cell ends in a line of the grid at its right and at its bottom.
void zTable::drawCell(zDisplay& display, const zTableLoc& cell, const zRect& area) const {
  if (!model()) return;
  const zRect place = cellRect(cell);
  const zRect inside(place.left, place.top, place.right - 1, place.bottom - 1);
  const ziTableEnv env = envOf(cell);
  display.setColor(env.backColor);
  display.fillRect(inside);
  display.setColor(gridColor_);
  display.line({place.right - 1, place.top}, {place.right - 1, place.bottom - 1});
  display.line({place.left, place.bottom - 1}, {place.right - 1, place.bottom - 1});
  const zTableCell* content = model()->getCell(cell);
  if (!content || inside.isEmpty()) return;
  const std::string text = content->getText();
  drawText(display, env.formatter ? ziFormatted(*env.formatter, text) : text, env, inside, area);
}

void zTable::drawText(zDisplay& display, const std::string& text, const ziTableEnv& env,
                      const zRect& inside, const zRect& area) const {
  if (text.empty()) return;
  display.setFont(env.font);
  display.setColor(env.textColor);
  const zDimension size = display.textDimension(text);
  const bool fits = size.width < inside.width() && size.height < inside.height();
  if (!fits) display.setClip(inside.intersection(area));
  display.text(placeOf(size, *env.font, env.alignment, inside), text);
  if (!fits) display.setClip(area);
}

// Dotted while the keyboard works on the table; a thin line keeps a chosen cell in view otherwise.
void zTable::drawFocus(zDisplay& display, const zRect& area) const {
  const zRect place = cellRect(active_);
  const zRect inside(place.left, place.top, place.right - 1, place.bottom - 1);
  if (inside.intersection(area).isEmpty()) return;
  if (hasFocus_) {
    display.focusRect(inside);
  } else if (!selection_.isEmpty()) {
    display.setColor(zShadowGrey);
    display.frameRect(inside);
  }
}

bool zTable::isLabelPressed(zTLabelKind kind, unsigned long number) const {
  const SelectedLabels& s = selectedLabels_;
  return s.any && s.kind == kind && s.first <= number && number <= s.last;
}

// The rest of the strip, behind the last label, is an empty label.
void zTable::drawLabels(zDisplay& display, zTLabelKind kind, const zRect& area) const {
  if (area.isEmpty()) return;
  const ziTableAxis& numbers = axis(kind);
  const bool isAcross = kind == zTLabelColumns;
  const int first = alongAxis(kind, area.pos());
  for (unsigned long n = std::max(numbers.at(first), 1UL); n <= numbers.count(); ++n) {
    const zRect place = labelRect(kind, n);
    if (isAcross ? place.left >= area.right : place.top >= area.bottom) return;
    drawLabel(display, place, getLabelText(kind, n), isLabelPressed(kind, n), area);
  }
  const zRect strip = labelStrip(kind);
  const zRect after = labelRect(kind, numbers.count() + 1);
  const zRect rest = isAcross ? zRect(after.left, strip.top, strip.right, strip.bottom)
                              : zRect(strip.left, after.top, strip.right, strip.bottom);
  if (!rest.intersection(area).isEmpty()) drawLabel(display, rest, {}, false, area);
}

void zTable::drawLabel(zDisplay& display, const zRect& place, const std::string& text,
                       bool isPressed, const zRect& area) const {
  display.setClip(area);
  display.setColor(labelColor);
  display.fillRect(place);
  if (place.width() > 2) display.edge3d(place, !isPressed);
  if (text.empty()) return;
  ziTableEnv env;
  env.font = labelFont_;
  env.alignment = zAlignCenterAcross | zAlignCenterDown;
  drawText(display, text, env, place.inset(1), area);
}
