// Fields for whole numbers. The variable bound to one may be null, and is used as long as the field
// lives; the field shows it from its construction on.
#pragma once

#include <memory>

#include "framework/entry/formatted_edit.h"

// What is stored lies within the range of an int, whatever the type.
template <class Number>
class ziNumberEdit : public zFormattedEdit {
 public:
  ziNumberEdit(zWindow* parent, int id, Number* store, const char* picture, unsigned long style);
  ziNumberEdit(zWindow* parent, int id, Number* store, std::unique_ptr<zFormatter> formatter,
               unsigned long style);
  // By the picture of the type: up to five digits, with a sign for an int, or ten for an unsigned
  // long.
  ziNumberEdit(zWindow* parent, int id, Number* store, unsigned long style = 0);

  void setStoreAddr(Number* store) { store_ = store; }
  void setToDefault() override;
  int storeData() override;

 private:
  Number* store_;
};

class zIntEdit : public ziNumberEdit<int> {
 public:
  using ziNumberEdit::ziNumberEdit;
};

class zUnsignedIntEdit : public ziNumberEdit<unsigned> {
 public:
  using ziNumberEdit::ziNumberEdit;
};

class zUnsignedLongEdit : public ziNumberEdit<unsigned long> {
 public:
  using ziNumberEdit::ziNumberEdit;
};
