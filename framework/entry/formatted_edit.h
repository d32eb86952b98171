// A field whose text a formatter rewrites with every change: typing, deletions, cut, paste, the
// middle button and drops alike. What the formatter refuses changes nothing and tells nobody.
#pragma once

#include <memory>

#include "framework/controls/edit.h"
#include "framework/entry/formatter.h"

class zFormattedEdit : public zEditLine {
 public:
  // `style` is the binding's. Without a formatter the field is a zEditLine.
  zFormattedEdit(zWindow* parent, int id, std::unique_ptr<zFormatter> formatter,
                 unsigned long style);

  // Replaces the formatter, and shows the text that it starts with.
  void setFormatter(std::unique_ptr<zFormatter> formatter);
  zFormatter* getFormatter() const { return formatter_.get(); }
  // The value that the text stands for, by the style bits of a formatter.
  std::string getRawText(unsigned long style) const;

  int ch(zKeyEvt* event) override;
  // For messages 0x100: deletes at the caret when parm1 is the keysym of Delete.
  int keyDown(zKeyEvt* event);
  // Puts the string in, as far as the formatter takes it, in place of the selection. Called by the
  // program it tells nobody.
  int pasteStr(std::string& text) override;
  // Puts the caret on the first character that is not right, if there is one.
  int checkData() override;

 protected:
  bool takesEveryChange() const override { return formatter_ != nullptr; }
  // `value` as the formatter puts it into an empty field, or nothing of it when it refuses it.
  std::string textOf(const std::string& value) const;
  // Shows the text that an empty field has.
  void showEmpty();

 private:
  // With the caret where the formatter has it then.
  std::string textOf(const std::string& value, zRange& caret) const;
  int edit(const char* chars, int count, const zRange& range);
  zRange editedRange() const;

  std::unique_ptr<zFormatter> formatter_;
  zRange selectedBeforeKey_;
};
