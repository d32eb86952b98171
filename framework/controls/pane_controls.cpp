#include "framework/controls/pane_controls.h"

#include <Xm/Xm.h>

#include <cstdlib>

#include "framework/controls/visual.h"
#include "framework/core/x_text.h"
#include "framework/resources/resources.h"

zPaneControl::zPaneControl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                           int id)
    : zPane(parent, sizer, style, title, id) {
  zPane::create();
}

zPaneControl::zPaneControl(zWindow* parent, int id) : zPane(parent, id) {}

int zPaneControl::resolveSize(zSizeEvt*) {
  return 0;
}

int zPaneControl::size(zSizeEvt*) {
  return 0;
}

void zPaneControl::ziBackgroundColor(const zColor& color) {
  Pixel before = 0;
  if (getContainer()) XtVaGetValues(getContainer(), XmNbackground, &before, nullptr);
  zPane::ziBackgroundColor(color);
  if (!getContainer() || before == ziClrm->pixel(color)) return;
  XmChangeColor(getContainer(), ziClrm->pixel(color));
  for (zWindow* kid : kidslist()) kid->ziBackgroundColor(color);
  setDirty(nullptr, 0);
}

int zPaneControl::enable() {
  setDirty(nullptr, 0);
  return zPane::enable();
}

int zPaneControl::disable() {
  setDirty(nullptr, 0);
  return zPane::disable();
}

int zPaneControl::notifyParent(unsigned code) {
  zEvent event(zMsgCommand);
  event.codeWord = code;
  event.parm1 = ctrlId();
  event.window = this;
  return doCommandHandler(&event, parent());
}

// Text.

zTextPane::zTextPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zPane(parent, sizer, style, title, id) {
  ziSetType(zTypeTextPane);
  zPane::create();
}

zTextPane::zTextPane(zWindow* parent, int id) : zPane(parent, id) {
  ziSetType(zTypeTextPane);
}

void zTextPane::text(const std::string& value) {
  setTitle(value);
  setDirty(nullptr, 0);
}

void zTextPane::draw(zDrawEvt* event) {
  zPane::draw(event);
  zDisplay& display = *event->display;
  if (!display.hasFont()) return;
  zRect all;
  getInterior(all);
  display.setColor(isEnabled() ? zBlack : zShadowGrey);
  const std::string shown = ziSafeText(ziParseTitle(title()));
  int baseline = display.font().ascent();
  for (std::size_t start = 0; start <= shown.size(); baseline += display.font().height()) {
    const std::size_t end = std::min(shown.find('\n', start), shown.size());
    const std::string line = shown.substr(start, end - start);
    const int spare = all.width() - display.textDimension(line).width;
    const auto halves = static_cast<int>(styleValue() & 0x3);
    display.text({std::max(spare, 0) * std::min(halves, 2) / 2, baseline}, line);
    start = end + 1;
  }
}

// Bitmaps.

zBitmapPane::zBitmapPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                         int id)
    : zPane(parent, sizer, style, title, id) {
  zPane::create();
  loadFromTitle();
}

zBitmapPane::zBitmapPane(zWindow* parent, int id) : zPane(parent, id) {
  loadFromTitle();
}

void zBitmapPane::loadFromTitle() {
  if (title().starts_with('#')) {
    bitmap_ = std::make_unique<zBitmap>(zResId(std::atoi(title().c_str() + 1)));
  }
}

void zBitmapPane::setBitmap(std::unique_ptr<zBitmap> bitmap) {
  bitmap_ = std::move(bitmap);
  setDirty(nullptr, 0);
}

void zBitmapPane::draw(zDrawEvt* event) {
  zPane::draw(event);
  if (!bitmap_ || bitmap_->pixmap() == None) return;
  zRect all;
  getInterior(all);
  ziVisText3dBmp place;
  const zRect shown = place.arrange(all, bitmap_->size(), {}, ziVisText3dBmp::left);
  event->display->copy(bitmap_->pixmap(), {zPoint{}, shown.dimension()}, shown.pos());
}
