// A field for a text, with a picture or without. The variable bound to it may be null, and is used
// as long as the field lives; the field shows it from its construction on.
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
