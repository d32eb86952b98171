// Turns a dialog template into generic controls, measured in dialog units of the dialog's font.
#pragma once

#include <memory>
#include <string>

#include "framework/drawing/font.h"
#include "framework/resources/resources.h"

class zDisplay;
class zSizer;
class zWindow;

class ziDialogReader {
 public:
  static constexpr int noDefault = 0xFFFF;

  // Reads the header of dialog `id`. Without such a dialog a line goes to standard error and the
  // reader is not valid: it makes no controls and gives no size.
  ziDialogReader(zWindow* window, const zResId& id);
  ~ziDialogReader();
  ziDialogReader(const ziDialogReader&) = delete;
  ziDialogReader& operator=(const ziDialogReader&) = delete;

  bool isValid() const { return template_ != nullptr; }

  // Makes the dialog's font and works out its rectangle in pixels, relative to the screen.
  void decodeFonts();
  // Makes every control of the template in the window, in the template's order.
  void createChildren();
  // Gives the rectangle to a sizer.
  void setSize(zSizer* sizer) const;
  const zRect& rect() const { return rect_; }

  // Aims the reader at another window; recalc() reads the header anew for it.
  void setWindow(zWindow* window) { window_ = window; }
  void recalc();
  zWindow* parent() const { return window_; }

  std::shared_ptr<zFont> getFont() const { return font_; }
  const std::string& getCaption() const { return caption_; }
  unsigned long getStyle() const { return style_; }
  int getDefault() const { return defaultId_; }
  const zResId& getMenuResId() const { return menuId_; }
  bool hasMenu() const { return hasMenu_; }

 private:
  void decodeHeader();
  std::unique_ptr<zDisplay> makeDisplay() const;
  void createBaseTypes(const zControlRecord& record, zSizer* place);
  void createButton(const zControlRecord& record, zSizer* place);

  zWindow* window_;
  zRect rect_;
  std::shared_ptr<zFont> font_;
  int defaultId_ = noDefault;
  zResId id_;
  std::string caption_;
  bool hasMenu_ = false;
  bool firstButton_ = true;  // none made of this template yet
  unsigned long style_ = 0;
  zResId menuId_{0};
  const zDialogTemplate* template_ = nullptr;
};
