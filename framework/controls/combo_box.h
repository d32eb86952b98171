// Combo boxes: a line of text with a list to choose it from.
//
// A drop-down is one line high: a height of more than two lines, of a template that counts the open
// list in, is taken for one. The simple kind fills its height with the line and the list.
//
// Keys of a drop-down: Up, Down, Page Up and Page Down move the selection, open or closed. Alt or
// Control with Up or Down, and F4, open and close the list; so does Space where nothing is typed.
// With the list open the keys only mark an item, which Return takes, or Space where nothing is
// typed, and which Escape leaves. Where nothing is typed, Home and End go to the first and the last
// item, and a character to the next item that begins with it.
#pragma once

#include <memory>

#include "framework/controls/drop_list.h"
#include "framework/controls/item_control.h"

class zComboBoxBase : public ziItemControl {
 public:
  // The low nibble of the style.
  enum Subtype { simple = 1, dropDown = 2, dropDownList = 3 };

  // The generic combo box of a template; `create` makes its widgets.
  zComboBoxBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes its place.
  zComboBoxBase(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0);
  ~zComboBoxBase() override;

  int create() override;
  int subtype() const { return static_cast<int>(styleValue() & 0xF); }

  // Opens and closes the drop list; both do nothing where there is none or it is so already.
  void drop();
  void pop();
  // Closes the list that is open in the program, if one is.
  static void ziResetPopup();

  int selection(int index) override;
  using ziItemControl::selection;
  // What is typed or, as it was given, the item selected.
  std::string getText() const override;
  void editBackgroundColor(const zColor& color);

  // False for a drop-down list with nothing selected, where the binding wants something.
  int checkData() override;

  int show(int visible) override;
  int disable() override;
  void vmove(int x, int y, int width, int height) override;
  void ziBackgroundColor(const zColor& color) override;
  int mouseButtonDown(zMouseClickEvt* event) override;

  template <class T, class M>
  void setNotifySetFocus(T* object, M member) {
    setupNotify(object, member, zNtfComboSetFocus);
  }
  template <class T, class M>
  void removeNotifySetFocus(T* object, M member) {
    removeNotify(object, member, zNtfComboSetFocus);
  }
  template <class T, class M>
  void setNotifyKillFocus(T* object, M member) {
    setupNotify(object, member, zNtfComboKillFocus);
  }
  template <class T, class M>
  void removeNotifyKillFocus(T* object, M member) {
    removeNotify(object, member, zNtfComboKillFocus);
  }
  template <class T, class M>
  void setNotifyEditChange(T* object, M member) {
    setupNotify(object, member, zNtfComboEditChange);
  }
  template <class T, class M>
  void removeNotifyEditChange(T* object, M member) {
    removeNotify(object, member, zNtfComboEditChange);
  }
  template <class T, class M>
  void setNotifyEditUpdate(T* object, M member) {
    setupNotify(object, member, zNtfComboEditUpdate);
  }
  template <class T, class M>
  void removeNotifyEditUpdate(T* object, M member) {
    removeNotify(object, member, zNtfComboEditUpdate);
  }
  // Told before the list is seen, so that a handler can fill it.
  template <class T, class M>
  void setNotifyDropDown(T* object, M member) {
    setupNotify(object, member, zNtfComboDropDown);
  }
  template <class T, class M>
  void removeNotifyDropDown(T* object, M member) {
    removeNotify(object, member, zNtfComboDropDown);
  }

 protected:
  void doText(const char* value) override;
  void ziShowFont() override;
  void currentRemoved() override;
  void selectStored(const std::string& text) override;

 private:
  // What is under way, so that a callback caused by it is not taken for typing.
  enum Semaphore : unsigned { settingText = 0x8 };
  struct Key;

  Widget textWidget() const { return drawnWidget(); }
  bool typesText() const { return subtype() != dropDownList; }
  bool isOpen() const { return drop_ && drop_->isOpen(); }
  int lineHeight(int height) const;

  void createArrow(Widget form, int height);
  Widget createText(Widget form, int height);
  void createLists(Widget form, Widget text, int line);
  zDimension dropSize() const;

  void showText(const std::string& text);
  // The user's choice: shown, the list closed, and the parent told.
  void choose(int index, void* callData);
  // The same while the list is closed, for an item other than the current one; else only marks it.
  void moveTo(int index);

  bool handleKey(const zKeyEvt& key);
  bool handleCharacter(const zKeyEvt& key);
  void toggle(int);
  void step(int items);
  void stepPage(int pages);
  void goToEnd(int last);
  int marked() const;  // the item that the list shows as selected, or -1
  bool takeMarked();

  static void arrowCB(Widget widget, XtPointer link, XtPointer callData);
  static void textKeyCB(Widget widget, XtPointer link, XEvent* event, Boolean* goOn);
  static void cbSelCB(Widget widget, XtPointer link, XtPointer callData);
  static void cbDblClickCB(Widget widget, XtPointer link, XtPointer callData);
  static void modifyCB(Widget widget, XtPointer link, XtPointer callData);
  static void changedCB(Widget widget, XtPointer link, XtPointer callData);
  static void activateCB(Widget widget, XtPointer link, XtPointer callData);
  static void focusCB(Widget widget, XtPointer link, XtPointer callData);
  static void losingFocusCB(Widget widget, XtPointer link, XtPointer callData);

  Widget arrow_ = nullptr;
  std::unique_ptr<ziDropList> drop_;  // null for the simple kind
  unsigned semaphores_ = 0;
};

// The combo box whose list is open, or null.
extern zComboBoxBase* ziActiveCombo;

// With its list always in view.
class zComboBox : public zComboBoxBase {
 public:
  zComboBox(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0)
      : zComboBoxBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeComboBox);
  }
};

// Drop-down whose text can be typed.
class zComboBoxFull : public zComboBoxBase {
 public:
  zComboBoxFull(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0)
      : zComboBoxBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeComboBoxFull);
  }
};

// Drop-down list: one of the items, nothing typed.
class zComboBoxStatic : public zComboBoxBase {
 public:
  zComboBoxStatic(zWindow* parent, int id, ziItemStore store = {}, unsigned long bindingStyle = 0)
      : zComboBoxBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeComboBoxStatic);
  }
};
