// Drawing contexts: on a window, on an off-screen image, or for measuring alone.
#pragma once

#include <X11/Xlib.h>

#include <memory>
#include <string_view>

#include "framework/core/geometry.h"
#include "framework/drawing/color.h"
#include "framework/drawing/font.h"

class zWindow;

// A font, a colour and a clip rectangle, and the operations on a drawable with them. Between lock()
// and unlock() the context is ready for use; the pairs nest. A context without a drawable measures
// and draws nothing.
class zDisplay {
 public:
  virtual ~zDisplay();
  zDisplay(const zDisplay&) = delete;
  zDisplay& operator=(const zDisplay&) = delete;

  void lock();
  void unlock();

  void setFont(std::shared_ptr<const zFont> font);
  const zFont& font() const { return *font_; }
  bool hasFont() const { return font_ != nullptr; }
  void setColor(const zColor& color);
  // Draws are cut to `area` until clearClip().
  void setClip(const zRect& area);
  void clearClip();

  zDimension textDimension(std::string_view text) const;

  void fillRect(const zRect& area);
  // One pixel wide, along the inside of the rectangle.
  void frameRect(const zRect& area);
  void focusRect(const zRect& area);
  void line(const zPoint& from, const zPoint& to);
  // The left end of the text's baseline stands at `at`.
  void text(const zPoint& at, std::string_view text);
  // A border one pixel wide, light at the top left when raised, dark when sunken.
  void edge3d(const zRect& area, bool raised);
  // A pixmap's part `from`, with its top left at `to`. Of one with a mask only what the mask's bits
  // cover, and clipping ends.
  void copy(Drawable source, const zRect& from, const zPoint& to, Pixmap mask = None);

  Drawable drawable() const { return drawable_; }

 protected:
  zDisplay() = default;
  void setDrawable(Drawable drawable) { drawable_ = drawable; }

 private:
  friend class zPixmapDisplay;

  Drawable drawable_ = 0;
  GC gc_ = nullptr;
  int locks_ = 0;
  std::shared_ptr<const zFont> font_;
};

// On a window that has been realized; before that, for measuring. Starts with the window's font.
class zWinDisplay : public zDisplay {
 public:
  explicit zWinDisplay(const zWindow* window);
};

// For measuring.
class ziInfoDisplay : public zDisplay {
 public:
  ziInfoDisplay() = default;
};

// On a pixmap of its own, as deep as the screen; `drawable()` is the pixmap.
class zPixmapDisplay : public zDisplay {
 public:
  explicit zPixmapDisplay(const zDimension& size);
  ~zPixmapDisplay() override;
  const zDimension& size() const { return size_; }
  // Copies a part of it to the same place of a drawable of the same depth.
  void copyTo(Drawable target, const zRect& part) const;
  // Gives the pixmap away; nothing can be drawn any more.
  Pixmap release();

 private:
  zDimension size_;
};
