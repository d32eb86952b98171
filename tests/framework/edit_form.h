// A dialog with two fields, a box and a default button, and keys played into a field step by step.
#pragma once

#include <gtest/gtest.h>
// The X headers define names that the one above uses.
#include <X11/keysym.h>
#include <Xm/Text.h>

#include <string>

#include "framework/controls/edit.h"
#include "framework/core/app.h"
#include "framework/dialogs/form_dialog.h"
#include "framework/resources/resources.h"
#include "tests/support/x_driver.h"

namespace edit_form {

constexpr int firstId = 20, secondId = 21, boxId = 22;
constexpr std::uint32_t tab = 0x50010000;

// The template, with styles of the first field and the box beside those that all have.
inline zResId dialogWith(std::uint32_t field, std::uint32_t box) {
  static zControlRecord controls[] = {
      {zAtomEdit, nullptr, firstId, nullptr, tab, 7, 7, 256, 13},
      {zAtomEdit, nullptr, secondId, nullptr, tab, 7, 25, 256, 13},
      {zAtomEdit, nullptr, boxId, nullptr, tab, 7, 43, 120, 40},
      {zAtomButton, nullptr, 1, "OK", tab | 1, 140, 43, 40, 15},
      {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0},
  };
  static const zDialogTemplate dialogs[] = {
      {controls, 9100, 0x80C80080, 0, 0, 270, 90, "Fields", "Helv", 12, zNoMenu}};
  static const bool known = (ziAddDialogs(dialogs), true);
  controls[0].style = tab | field;
  controls[2].style = tab | box;
  return known ? 9100 : 0;
}

class Form : public zFormDialog {
 public:
  explicit Form(std::uint32_t field = 0, std::uint32_t box = zEditStyle::multiLine)
      : zFormDialog(app->rootWindow(), dialogWith(field, box), 0) {}
  // Brings the dialog up with the focus in the first field, whose notifications are heard.
  bool start(zEditBase& field) {
    field.setNotifyUpdate(this, &Form::update);
    field.setNotifyChange(this, &Form::change);
    field.setNotifyMaxText(this, &Form::maxText);
    show(1);
    return x_driver::show(*this) && x_driver::giveFocus(field);
  }
  bool isFinished() const { return finished(); }
  virtual int update(zNotifyEvt*) { return heard += 'u', 0; }
  int change(zNotifyEvt*) { return heard += 'c', 0; }
  int maxText(zNotifyEvt*) { return heard += 'm', 0; }

  std::string heard;
};

// The text of a field with its caret as '|', or its selection in braces.
inline std::string shown(const zEditBase& field) {
  std::string text = field.getText();
  const zRange range = field.selection();
  if (range.start == range.end) return text.insert(static_cast<std::size_t>(range.end), "|");
  text.insert(static_cast<std::size_t>(range.end), "}");
  return text.insert(static_cast<std::size_t>(range.start), "{");
}

struct Step {
  KeySym key;
  std::initializer_list<KeySym> held;
  const char* shows;
  const char* heard = "uc";
};

inline void play(Form& form, const zEditBase& field, std::initializer_list<Step> steps) {
  int number = 0;
  for (const Step& step : steps) {
    form.heard.clear();
    x_driver::key(step.key, step.held);
    EXPECT_EQ(shown(field), step.shows) << "step " << number;
    EXPECT_EQ(form.heard, step.heard) << "step " << number;
    ++number;
  }
}

}  // namespace edit_form
