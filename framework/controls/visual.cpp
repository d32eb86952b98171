#include "framework/controls/visual.h"

#include "framework/core/x_text.h"
#include "framework/drawing/display.h"

namespace {

// The top left corner of something of this size in the middle of `inside`.
zPoint centred(const zRect& inside, const zDimension& size) {
  return {inside.left + std::max((inside.width() - size.width) / 2, 0),
          inside.top + std::max((inside.height() - size.height) / 2, 0)};
}

bool isEmpty(const zDimension& size) {
  return size.width <= 0 || size.height <= 0;
}

}  // namespace

// The caption.

std::string ziVisText3d::stripAmpersand(const std::string& title) {
  return ziSafeText(ziParseTitle(title));
}

zDimension ziVisText3d::size(const zFont& font) const {
  if (text_.find_first_not_of(' ') == std::string::npos) return {};
  return {font.textWidth(text_), font.height()};
}

zRect ziVisText3d::textPlace(const zFont& font) const {
  const std::size_t blanks = std::min(text_.find_first_not_of(' '), text_.size());
  zRect rect = place();
  rect.left += font.textWidth(std::string_view(text_).substr(0, blanks));
  return rect;
}

void ziVisText3d::draw(zDisplay& display) const {
  const zPoint baseline{place().left, place().top + display.font().ascent()};
  if (disabled_) {
    display.setColor(zWhite);
    display.text({baseline.x + 1, baseline.y + 1}, text_);
  }
  display.setColor(disabled_ ? zShadowGrey : color_);
  display.text(baseline, text_);
}

zRect ziVisText3dBmp::arrange(const zRect& inside, const zDimension& picture,
                              const zDimension& caption, PicturePlace at) {
  const int gap = isEmpty(picture) || isEmpty(caption) ? 0 : 1;
  const bool stacked = at == above || at == below;
  const bool pictureFirst = at == above || at == left;
  zPoint pictureAt = centred(inside, picture);
  zPoint captionAt = centred(inside, caption);
  if (stacked) {
    const int height = picture.height + gap + caption.height;
    const int top = centred(inside, {0, height}).y;
    pictureAt.y = pictureFirst ? top : top + caption.height + gap;
    captionAt.y = pictureFirst ? top + picture.height + gap : top;
  } else {
    const int width = picture.width + gap + caption.width;
    const int start = centred(inside, {width, 0}).x;
    pictureAt.x = pictureFirst ? start : start + caption.width + gap;
    captionAt.x = pictureFirst ? start + picture.width + gap : start;
  }
  place({captionAt, caption});
  return {pictureAt, picture};
}

// The button.

ziVisButton::State ziVisButton::state() const {
  if (isDepressed()) return checked_ ? depressedFromOn : depressed;
  return checked_ ? on : off;
}

bool ziVisButton::release() {
  const bool clicked = isDepressed();
  held_ = false;
  if (clicked && !checkBox_) checked_ = false;
  if (clicked && checkBox_ && auto_) checked_ = !checked_;
  return clicked;
}

void ziVisBmpButtonInternal::style(unsigned bits) {
  style_ = bits;
  setIsAuto((bits & autoCheck) != 0);
  setIsCheckBox((bits & autoCheck) != 0);
}

void ziVisBmpButtonInternal::bitmap(std::unique_ptr<zBitmap> bitmap, int frames) {
  bitmap_ = std::move(bitmap);
  frames_ = std::max(frames, 1);
  disabledBitmap_ = bitmap_ && frames_ == 1 ? createDisabledBmp(*bitmap_) : nullptr;
}

zDimension ziVisBmpButtonInternal::frameSize() const {
  if (!bitmap_) return {};
  return {bitmap_->size().width / frames_, bitmap_->size().height};
}

int ziVisBmpButtonInternal::inset() const {
  return (style_ & moreBorder ? 1 : 0) + (style_ & noShadeMask ? 0 : 2);
}

int ziVisBmpButtonInternal::frame() const {
  enum Frame { offEnabled, offDisabled, pressedFromOn, pressed, onEnabled, onDisabled };
  const bool lit = state() == on && (style_ & showsOnMask) >= showsOn;
  if (disabled_) return lit ? onDisabled : offDisabled;
  switch (state()) {
    case depressed:
      return pressed;
    case depressedFromOn:
      return pressedFromOn;
    default:
      return lit ? onEnabled : offEnabled;
  }
}

const zBitmap* ziVisBmpButtonInternal::shownBitmap() const {
  return disabled_ && disabledBitmap_ ? disabledBitmap_.get() : bitmap_.get();
}

void ziVisBmpButtonInternal::draw(zDisplay& display) const {
  zRect edge = place();
  if (style_ & moreBorder) {
    display.setColor(zBlack);
    display.frameRect(edge);
    edge = edge.inset(1);
  }
  if (!(style_ & noShadeMask)) display.edge3d(edge, !isDepressed());
  const zBitmap* bitmap = shownBitmap();
  if (!bitmap || bitmap->pixmap() == None) return;
  const int across = frames_ > 1 ? frame() * frameSize().width : 0;
  const zRect room = picturePlace_.intersection(place().inset(inset()));
  display.copy(bitmap->pixmap(), {zPoint{across, 0}, room.dimension()}, room.pos());
}

std::unique_ptr<zBitmap> createDisabledBmp(const zBitmap& enabled) {
  if (enabled.pixmap() == None) return nullptr;
  zPixmapDisplay image(enabled.size());
  image.lock();
  image.copy(enabled.pixmap(), {zPoint{}, enabled.size()}, {});
  image.setColor(zDialogGrey);
  const int diagonals = enabled.size().width + enabled.size().height;
  for (int i = 1; i < diagonals; i += 2) image.line({i, 0}, {0, i});
  image.unlock();
  return std::make_unique<zBitmap>(image.release(), enabled.size());
}
