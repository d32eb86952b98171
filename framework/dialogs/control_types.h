// The control classes that a dialog template names, and how each is built.
#pragma once

#include <string>

class zChildWin;
class zSizer;
class zWindow;

// A named class of control. Each registers itself, for good, when it is constructed.
class zControlType {
 public:
  using Builder = zChildWin* (*)(zWindow* parent, zSizer* sizer, unsigned long style,
                                 const char* title, int id);

  zControlType(const char* name, Builder builder);

  const std::string& typeName() const { return name_; }
  zChildWin* buildNew(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                      int id) const {
    return builder_(parent, sizer, style, title, id);
  }

  // The first registered under `name`, letter case and all, or null.
  static const zControlType* find(const std::string& name);

 private:
  std::string name_;
  Builder builder_;
};

// Registers the panes that every program has.
void ziInitPanes();
