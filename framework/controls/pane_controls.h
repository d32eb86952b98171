// Panes that stand where a template's controls stand.
#pragma once

#include <memory>
#include <string>

#include "framework/controls/pane.h"
#include "framework/drawing/bitmap.h"

// A pane that acts as a control. Its place comes from its sizer, which lays the children out, too;
// what the server tells later of the size is no news.
class zPaneControl : public zPane {
 public:
  zPaneControl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes the place of the generic pane that a dialog template made under `id`.
  zPaneControl(zWindow* parent, int id);

  int resolveSize(zSizeEvt* event) override;
  int size(zSizeEvt* event) override;
  // A colour other than the one at hand goes on to the children.
  void ziBackgroundColor(const zColor& color) override;
  int enable() override;
  int disable() override;

 protected:
  // Sends a command event with a notification code to the parent. Non-zero when it was consumed.
  int notifyParent(unsigned code);
};

// Shows its title, line by line.
class zTextPane : public zPane {
 public:
  // The low nibble of the style.
  enum Alignment : unsigned long { left = 0, centre = 1, right = 2 };

  zTextPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zTextPane(zWindow* parent, int id);

  std::string getText() const override { return title(); }
  void text(const std::string& value);
  void draw(zDrawEvt* event) override;
};

// Shows a bitmap in its middle. In a template the title is '#' and the number of a bitmap.
class zBitmapPane : public zPane {
 public:
  zBitmapPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zBitmapPane(zWindow* parent, int id);

  // Null shows nothing.
  void setBitmap(std::unique_ptr<zBitmap> bitmap);
  void draw(zDrawEvt* event) override;

 private:
  void loadFromTitle();

  std::unique_ptr<zBitmap> bitmap_;
};
