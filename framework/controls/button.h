// Push buttons and the common base of all buttons that a template makes.
#pragma once

#include "framework/controls/control.h"

class zButton : public zControl {
 public:
  // The low nibble of the style, and the picture button's own number.
  enum ButtonType {
    push = 0,
    defaultPush = 1,
    check = 2,
    checkAuto = 3,
    radio = 4,
    group = 7,
    radioAuto = 9,
    radioAuto2 = 13,
    picture = 16,
  };

  // The generic button of a template; `create` makes its widget.
  zButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zButton(zWindow* parent, int id);

  int create() override;

  template <class T, class M>
  void setNotifyClicked(T* object, M member) {
    setupNotify(object, member, zNtfClicked);
  }
  template <class T, class M>
  void removeNotifyClicked(T* object, M member) {
    removeNotify(object, member, zNtfClicked);
  }
  template <class T, class M>
  void setNotifyDoubleClicked(T* object, M member) {
    setupNotify(object, member, zNtfButtonDoubleClicked);
  }
  template <class T, class M>
  void removeNotifyDoubleClicked(T* object, M member) {
    removeNotify(object, member, zNtfButtonDoubleClicked);
  }

  bool isDefault() const { return buttonType() == defaultPush; }
  int buttonType() const { return static_cast<int>(styleValue() & 0xF); }

 protected:
  void doText(const char* value) override;

 private:
  void createPush();
  static void pushButtonCB(Widget widget, XtPointer link, XtPointer callData);
};

class zPushButton : public zButton {
 public:
  zPushButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
      : zButton(parent, sizer, style, title, id) {
    ziSetType(zTypePushButton);
  }
  zPushButton(zWindow* parent, int id) : zButton(parent, id) { ziSetType(zTypePushButton); }
};

class zDefPushButton : public zButton {
 public:
  zDefPushButton(zWindow* parent, int id) : zButton(parent, id) { ziSetType(zTypeDefPushButton); }
};
