// Entry fields over XmText.
//
// Typing becomes key events: a character goes to the virtual `ch`, which may change or refuse it,
// before the widget shows it. A text set by the program causes none.
#pragma once

#include "framework/controls/control.h"

struct zEditStyle {
  static constexpr unsigned long multiLine = 0x4;
  static constexpr unsigned long upperCase = 0x8;
  static constexpr unsigned long lowerCase = 0x10;
  static constexpr unsigned long readOnly = 0x800;
  static constexpr unsigned long wantReturn = 0x1000;
};

class zEditBase : public zControl {
 public:
  // Bits of the binding's own style word.
  enum BindingStyle : unsigned long { mayStayEmpty = 0x100 };
  static constexpr int maxTextWhenUnlimited = 32000;

  // The generic edit of a template.
  zEditBase(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes its place; `store`, which may be null, is the variable bound to the field.
  zEditBase(zWindow* parent, int id, std::string* store = nullptr, unsigned long bindingStyle = 0);

  void setStoreAddr(std::string* store) { store_ = store; }
  void setToDefault() override;
  int checkData() override;
  int storeData() override;

  std::string getText() const override;
  bool hasChanged() const { return changed_; }
  void hasChanged(int on) { changed_ = on != 0; }
  // At most `length` characters; 0 for 32000.
  void limitText(int length);
  // The selected part, or the caret as an empty range.
  virtual zRange selection() const;
  virtual void selection(int start, int end);
  std::string getSelection() const;
  void replaceSelection(const char* text);
  int cut();
  int copy();
  int paste();
  // The colour behind the text.
  void editBackgroundColor(const zColor& color);

  template <class T, class M>
  void setNotifySetFocus(T* object, M member) {
    setupNotify(object, member, zNtfEditSetFocus);
  }
  template <class T, class M>
  void setNotifyKillFocus(T* object, M member) {
    setupNotify(object, member, zNtfEditKillFocus);
  }
  template <class T, class M>
  void setNotifyChange(T* object, M member) {
    setupNotify(object, member, zNtfEditChange);
  }
  template <class T, class M>
  void setNotifyUpdate(T* object, M member) {
    setupNotify(object, member, zNtfEditUpdate);
  }
  template <class T, class M>
  void setNotifyMaxText(T* object, M member) {
    setupNotify(object, member, zNtfEditMaxText);
  }
  template <class T, class M>
  void removeNotifyChange(T* object, M member) {
    removeNotify(object, member, zNtfEditChange);
  }

 protected:
  void doText(const char* value) override;
  // More than one character coming in at once. Non-zero: taken care of, the widget adds nothing.
  virtual int pasteStr(const char* text);

  Widget textWidget() const { return drawnWidget(); }
  bool bindingAllowsEmpty() const { return (bindingStyle_ & mayStayEmpty) != 0; }

 private:
  // What is under way, so that a callback caused by it is not taken for typing.
  enum Semaphore : unsigned { settingText = 0x1, modifying = 0x4 };

  void createText();
  static void modifyCB(Widget widget, XtPointer link, XtPointer callData);
  static void changedCB(Widget widget, XtPointer link, XtPointer callData);
  static void focusCB(Widget widget, XtPointer link, XtPointer callData);
  static void losingFocusCB(Widget widget, XtPointer link, XtPointer callData);
  static void activateCB(Widget widget, XtPointer link, XtPointer callData);
  // Offers one typed character, or 8 for a deletion, to `ch`. False: refused.
  bool offerTyped(void* verify);
  void applyCase(char* text, int length) const;

  std::string* store_ = nullptr;
  unsigned long bindingStyle_ = 0;
  unsigned semaphores_ = 0;
  bool changed_ = false;
  void* verify_ = nullptr;  // the modify callback's structure while it runs
};

// A field of one line.
class zEditLine : public zEditBase {
 public:
  zEditLine(zWindow* parent, int id, std::string* store = nullptr, unsigned long bindingStyle = 0)
      : zEditBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeEditLine);
  }
};
