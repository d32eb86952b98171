// Fields that only display.
#pragma once

#include "framework/controls/edit.h"

class myEdit : public zEditBase {
 public:
  // Takes the place of the generic field `id` of the template, and reacts to nothing that is done
  // in it. `store` is the text it shows; the field is empty until it has one.
  myEdit(zWindow* parent, int id, std::string* store);

  // Writes a text that differs from the one it shows; otherwise nothing is drawn.
  void showText(const char* text);

 private:
  std::string* shown_;
};
