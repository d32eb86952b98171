// What list boxes and combo boxes share: a row of texts shown by an XmList, one of them selected,
// and a variable bound to that selection.
//
// Items are counted from 0. The texts are kept as they were given; the widget shows what it can of
// them.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "framework/controls/control.h"
#include "framework/resources/resources.h"

// The caller's variable: the index (-1 for none) or the text. The position in the list is the kind.
using ziItemStore = std::variant<std::monostate, int*, std::string*>;

class ziItemControl : public zControl {
 public:
  // Bits of the binding's own style word.
  enum BindingStyle : unsigned long { mayStayEmpty = 0x100 };
  // A bit of the window style; the subtype of a drop-down combo box has it, too.
  static constexpr unsigned long sortStyle = 0x2;
  static constexpr int atEnd = -1;

  // Filling. `add` keeps the items in order where the style asks for it, by their upper case and
  // those equal in that by their own, and otherwise appends; `insert` appends for a position that
  // is none. Both return the new item's index, or -1 without a widget.
  int add(const char* text);
  int add(const std::string& text) { return add(text.c_str()); }
  int insert(const char* text, int position = atEnd);
  int insert(const std::string& text, int position = atEnd) {
    return insert(text.c_str(), position);
  }
  // Append all at once, in the order given. The array ends with a null pointer.
  void addStrBlock(const zResStrBlock& block);
  void addStrSlist(const std::vector<std::string>& texts);
  void addCharStrings(const char* const* texts);

  // The number of items left, or -1 for an index that is none.
  int del(int index);
  void clear();
  void reset() { clear(); }

  int count() const { return static_cast<int>(texts_.size()); }
  // The text of an item; empty, and 0, for an index that is none. Not const: text(0) would be
  // ambiguous.
  using zControl::text;
  std::string text(int index) { return itemText(index); }
  int getItem(std::string& text, int index) const;

  // The index selected, -1 for none. Setting tells nobody; it returns the index selected by it, -1
  // for none. -1 clears the selection, an index that is none leaves it. A text selects the first
  // item that begins with it, letter case aside; an empty text clears the selection and one that
  // begins no item leaves it.
  virtual int selection() const { return index_; }
  virtual int selection(int index) = 0;
  int selection(const char* text);
  int selection(const std::string& text) { return selection(text.c_str()); }

  // Data transfer. A bound text selects the item that equals it, else as selection(text) does.
  void setStoreAddr(ziItemStore store) { store_ = store; }
  void setToDefault() override;
  int storeData() override;

  std::string getText() const override { return itemText(selection()); }

  template <class T, class M>
  void setNotifySelChange(T* object, M member) {
    setupNotify(object, member, zNtfSelChange);
  }
  template <class T, class M>
  void removeNotifySelChange(T* object, M member) {
    removeNotify(object, member, zNtfSelChange);
  }
  template <class T, class M>
  void setNotifyDoubleClick(T* object, M member) {
    setupNotify(object, member, zNtfListDoubleClick);
  }
  template <class T, class M>
  void removeNotifyDoubleClick(T* object, M member) {
    removeNotify(object, member, zNtfListDoubleClick);
  }

 protected:
  ziItemControl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
      : zControl(parent, sizer, style, title, id, subTypeOther) {}
  // Takes the place of the generic control `id` if that is of class `type`, with its items. Leaves
  // bury() to the derived class.
  ziItemControl(zWindow* parent, int id, unsigned type, ziItemStore store,
                unsigned long bindingStyle);

  void ziShowFont() override;

  // Makes a white XmList in a scrolled window; the list is the one of this control from here on.
  // Returns the list.
  Widget createList(Widget parent, const char* name, unsigned char policy, bool tabStop);
  Widget list() const { return list_; }
  // Gives the list and its scroll bars their colours.
  void setListColors(const zColor& background) const;

  std::string itemText(int index) const;
  bool hasItem(int index) const { return index >= 0 && index < count(); }
  // What list() shows as selected, alone and in view; nobody is told. -1 for nothing.
  void showSelected(int index);
  // Makes an index the current one, without showing it.
  void setCurrent(int index) { index_ = index; }
  // Tells that the current item was removed.
  virtual void currentRemoved() {}

  // The first item, from `start` on and round, that begins with a text, letter case aside, or -1.
  int findPrefix(std::string_view text, int start = 0) const;
  int findExact(std::string_view text) const;
  // Selects by the bound text.
  virtual void selectStored(const std::string& text);

  const std::vector<std::string>& texts() const { return texts_; }
  bool bindingAllowsEmpty() const { return (bindingStyle_ & mayStayEmpty) != 0; }

 private:
  void append(const std::vector<std::string>& texts);
  static void wheelCB(Widget widget, XtPointer link, XEvent* event, Boolean* goOn);

  std::vector<std::string> texts_;
  int index_ = -1;
  Widget list_ = nullptr;
  ziItemStore store_;
  unsigned long bindingStyle_ = 0;
};
