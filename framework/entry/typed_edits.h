// Fields for values of one type, with the formatter that suits it. The variable bound to one may be
// null, and is used as long as the field lives; the field shows it from its construction on.
#pragma once

#include <memory>
#include <string>

#include "framework/entry/formatted_edit.h"

class zStringEdit : public zFormattedEdit {
 public:
  // By a picture; `style` serves the field and the formatter.
  zStringEdit(zWindow* parent, int id, std::string* store, const char* picture,
              unsigned long style);
  zStringEdit(zWindow* parent, int id, std::string* store, std::unique_ptr<zFormatter> formatter,
              unsigned long style);
  // A free text.
  zStringEdit(zWindow* parent, int id, std::string* store, unsigned long style = 0);

  void setStoreAddr(std::string* store) { store_ = store; }
  void setToDefault() override;
  int storeData() override;

 private:
  std::string* store_;
};

// A whole number. What is stored lies within the range of an int, whatever the type.
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
