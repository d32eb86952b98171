// What the framework draws itself: small items with a place each, put together by the control that
// shows them.
#pragma once

#include <memory>
#include <string>

#include "framework/core/geometry.h"
#include "framework/drawing/bitmap.h"
#include "framework/drawing/color.h"

class zDisplay;
class zFont;

class ziVisual {
 public:
  virtual ~ziVisual() = default;
  // In pixels of the window it is drawn on.
  const zRect& place() const { return place_; }
  void place(const zRect& rect) { place_ = rect; }
  virtual void draw(zDisplay& display) const = 0;

 private:
  zRect place_;
};

// A caption of one line in the display's font, embossed when it is disabled.
class ziVisText3d : public ziVisual {
 public:
  // Drops the mnemonic marks of a title.
  static std::string stripAmpersand(const std::string& title);

  void text(const std::string& title) { text_ = stripAmpersand(title); }
  // In pixels; empty for a caption of blanks alone.
  zDimension size(const zFont& font) const;
  // Where the characters stand when it has been placed: without the blanks in front.
  zRect textPlace(const zFont& font) const;
  void color(const zColor& color) { color_ = color; }
  void disabled(bool isDisabled) { disabled_ = isDisabled; }
  void draw(zDisplay& display) const override;

 private:
  std::string text_;
  zColor color_ = zBlack;
  bool disabled_ = false;
};

// A caption beside a picture.
class ziVisText3dBmp : public ziVisText3d {
 public:
  // Where the picture stands: the numbers are those of the template's style bits.
  enum PicturePlace : unsigned { right = 0, above = 0x400, left = 0x800, below = 0xC00 };
  static constexpr unsigned picturePlaceMask = 0xC00;

  // Centres a picture and a caption of these sizes in `inside`, as a pair with one pixel between,
  // or the one that is not empty alone; what does not fit starts at the top left. Takes the
  // caption's place and returns the picture's.
  zRect arrange(const zRect& inside, const zDimension& picture, const zDimension& caption,
                PicturePlace at);
};

// The click logic of a button: press, drag out and back, release.
class ziVisButton : public ziVisual {
 public:
  enum State { on = 0, off = 1, depressed = 2, depressedFromOn = 3 };

  State state() const;
  bool isDepressed() const { return held_ && inside_; }
  // Sets the state that holds when the button is not depressed.
  void check(bool checked) { checked_ = checked; }

  // A check box is not returned to off by a click, and toggled by it if it is also `auto`.
  void setIsAuto(bool isAuto) { auto_ = isAuto; }
  void setIsCheckBox(bool isCheckBox) { checkBox_ = isCheckBox; }

  bool isHeld() const { return held_; }
  void press() { held_ = inside_ = true; }
  // The pointer of a held button has moved in or out.
  void track(bool inside) { inside_ = inside; }
  // Whether this was a click: a held button let go inside.
  bool release();
  void cancel() { held_ = false; }

 private:
  bool checked_ = false;
  bool held_ = false;
  bool inside_ = false;
  bool auto_ = false;
  bool checkBox_ = false;
};

// A button's picture and the border around it.
class ziVisBmpButtonInternal : public ziVisButton {
 public:
  static constexpr int stripFrames = 6;

  enum StyleBits : unsigned {
    showsOnMask = 0x30,
    showsOn = 0x20,        // in this mask: 0x20 and 0x30 have the on frames shown
    autoCheck = 0x200,     // every click toggles
    moreBorder = 0x1000,   // one dark pixel around all
    noShadeMask = 0x6000,  // any of these: no shaded border
  };

  void style(unsigned bits);
  // The picture: a strip of `stripFrames` frames side by side, or, with 1, one frame for all
  // states.
  void bitmap(std::unique_ptr<zBitmap> bitmap, int frames);
  zDimension frameSize() const;
  // Pixels that the border takes on each side.
  int inset() const;
  void picturePlace(const zRect& rect) { picturePlace_ = rect; }
  void disabled(bool isDisabled) { disabled_ = isDisabled; }
  // The number of the frame shown.
  int frame() const;
  void draw(zDisplay& display) const override;

 private:
  const zBitmap* shownBitmap() const;

  unsigned style_ = 0;
  std::unique_ptr<zBitmap> bitmap_;
  std::unique_ptr<zBitmap> disabledBitmap_;  // of a single frame
  int frames_ = stripFrames;
  zRect picturePlace_;
  bool disabled_ = false;
};

// A copy of a picture that is greyed out: every other pixel has the colour of the background.
std::unique_ptr<zBitmap> createDisabledBmp(const zBitmap& enabled);
