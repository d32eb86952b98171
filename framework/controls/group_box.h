// A titled frame around other controls. It is lowered when it is mapped, so that it never covers
// what stands inside it.
#pragma once

#include "framework/controls/button.h"

class zGroupBox : public zButton {
 public:
  zGroupBox(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zGroupBox(zWindow* parent, int id) : zGroupBox(parent, id, parent ? parent->get(id) : nullptr) {}

  // The title's widget, or null for a box without a title.
  Widget getGroupLabel() const { return label_; }
  void ziBackgroundColor(const zColor& color) override;

 protected:
  Layer layer() const override { return Layer::frame; }
  void doText(const char* value) override;

 private:
  zGroupBox(zWindow* parent, int id, const zWindow* generic);
  void createFrame();
  void createTitle(const char* title);
  void colorTitle(const zColor& background);

  Widget label_ = nullptr;
};
