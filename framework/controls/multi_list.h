// A list box of which several rows can be selected.
#pragma once

#include "framework/controls/list_box.h"

class zMultiList : public zListBoxBase {
 public:
  // The caller's variable: row numbers from 0, or the rows' texts.
  using Store = std::variant<std::monostate, std::vector<int>*, std::vector<std::string>*>;

  // Takes the place of a template's list; one that was made for a single row lets the user select
  // several from here on.
  zMultiList(zWindow* parent, int id, Store store = {}, unsigned long bindingStyle = 0);

  void setStoreAddr(Store store) { rows_ = store; }
  // Replace the contents with what is selected, in the list's order. Return the number of rows;
  // with null 0.
  int getSelection(std::vector<int>* rows) const;
  int getSelection(std::vector<std::string>* texts) const;
  // Select these rows and no others; numbers and texts that are none are passed over.
  void setSelection(const std::vector<int>& rows);
  void setSelection(const std::vector<std::string>& texts);

  void setToDefault() override;
  // True when a row is selected or the binding allows none.
  int checkData() override;
  int storeData() override;

 private:
  Store rows_;
};
