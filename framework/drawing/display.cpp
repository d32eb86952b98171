#include "framework/drawing/display.h"

#include <X11/Intrinsic.h>

#include "framework/core/app.h"
#include "framework/core/window.h"

namespace {

unsigned extent(int pixels) {
  return static_cast<unsigned>(std::max(pixels, 0));
}

Window rootOf(Display* display) {
  return DefaultRootWindow(display);
}

}  // namespace

zDisplay::~zDisplay() {
  if (gc_) XFreeGC(app->display(), gc_);
}

void zDisplay::lock() {
  if (locks_++ > 0 || gc_ || !drawable_) return;
  gc_ = XCreateGC(app->display(), drawable_, 0, nullptr);
  XSetGraphicsExposures(app->display(), gc_, False);
  if (font_) XSetFont(app->display(), gc_, font_->xFont()->fid);
}

void zDisplay::unlock() {
  if (locks_ > 0) --locks_;
}

void zDisplay::setFont(std::shared_ptr<const zFont> font) {
  font_ = std::move(font);
  if (gc_ && font_) XSetFont(app->display(), gc_, font_->xFont()->fid);
}

void zDisplay::setColor(const zColor& color) {
  if (gc_) XSetForeground(app->display(), gc_, ziClrm->pixel(color));
}

void zDisplay::setClip(const zRect& area) {
  if (!gc_) return;
  XRectangle r{static_cast<short>(area.left), static_cast<short>(area.top),
               static_cast<unsigned short>(std::max(area.width(), 0)),
               static_cast<unsigned short>(std::max(area.height(), 0))};
  XSetClipRectangles(app->display(), gc_, 0, 0, &r, 1, Unsorted);
}

void zDisplay::clearClip() {
  if (gc_) XSetClipMask(app->display(), gc_, None);
}

zDimension zDisplay::textDimension(std::string_view text) const {
  if (!font_) return {};
  return {font_->textWidth(text), font_->height()};
}

void zDisplay::fillRect(const zRect& area) {
  if (!gc_ || area.isEmpty()) return;
  XFillRectangle(app->display(), drawable_, gc_, area.left, area.top, extent(area.width()),
                 extent(area.height()));
}

void zDisplay::frameRect(const zRect& area) {
  if (!gc_ || area.isEmpty()) return;
  XDrawRectangle(app->display(), drawable_, gc_, area.left, area.top, extent(area.width() - 1),
                 extent(area.height() - 1));
}

void zDisplay::focusRect(const zRect& area) {
  if (!gc_ || area.isEmpty()) return;
  constexpr char dots[] = {1, 1};
  setColor(zBlack);
  XSetLineAttributes(app->display(), gc_, 1, LineOnOffDash, CapButt, JoinMiter);
  XSetDashes(app->display(), gc_, 0, dots, sizeof dots);
  frameRect(area);
  XSetLineAttributes(app->display(), gc_, 0, LineSolid, CapButt, JoinMiter);
}

void zDisplay::line(const zPoint& from, const zPoint& to) {
  if (gc_) XDrawLine(app->display(), drawable_, gc_, from.x, from.y, to.x, to.y);
}

void zDisplay::text(const zPoint& at, std::string_view text) {
  if (!gc_ || text.empty()) return;
  XDrawString(app->display(), drawable_, gc_, at.x, at.y, text.data(),
              static_cast<int>(text.size()));
}

void zDisplay::edge3d(const zRect& area, bool raised) {
  setColor(raised ? zWhite : zShadowGrey);
  line({area.left, area.top}, {area.right - 1, area.top});
  line({area.left, area.top}, {area.left, area.bottom - 1});
  setColor(raised ? zShadowGrey : zWhite);
  line({area.left, area.bottom - 1}, {area.right - 1, area.bottom - 1});
  line({area.right - 1, area.top}, {area.right - 1, area.bottom - 1});
}

void zDisplay::copy(Drawable source, const zRect& from, const zPoint& to, Pixmap mask) {
  if (!gc_ || from.isEmpty()) return;
  if (mask != None) {
    XSetClipMask(app->display(), gc_, mask);
    XSetClipOrigin(app->display(), gc_, to.x - from.left, to.y - from.top);
  }
  XCopyArea(app->display(), source, drawable_, gc_, from.left, from.top, extent(from.width()),
            extent(from.height()), to.x, to.y);
  if (mask != None) clearClip();
}

zWinDisplay::zWinDisplay(const zWindow* window) {
  const Widget widget = window->drawnWidget();
  if (widget && XtIsRealized(widget)) setDrawable(XtWindow(widget));
  setFont(window->getFont());
}

zPixmapDisplay::zPixmapDisplay(const zDimension& size) : size_(size) {
  Display* display = app->display();
  setDrawable(XCreatePixmap(display, rootOf(display), extent(std::max(size.width, 1)),
                            extent(std::max(size.height, 1)),
                            static_cast<unsigned>(DefaultDepth(display, DefaultScreen(display)))));
}

zPixmapDisplay::~zPixmapDisplay() {
  if (drawable()) XFreePixmap(app->display(), drawable());
}

void zPixmapDisplay::copyTo(Drawable target, const zRect& part) const {
  if (!gc_ || part.isEmpty()) return;
  XCopyArea(app->display(), drawable(), target, gc_, part.left, part.top, extent(part.width()),
            extent(part.height()), part.left, part.top);
}

Pixmap zPixmapDisplay::release() {
  const Pixmap pixmap = drawable();
  setDrawable(0);
  return pixmap;
}
