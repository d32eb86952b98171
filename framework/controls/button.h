// Push buttons and the common base of all buttons that a template makes.
//
// Radio buttons are kept in groups: a button with zStyleGroup in its style starts the next one. The
// groups of one template are known until the next template with buttons is read; after that a
// zRadioController keeps its buttons apart.
#pragma once

#include "framework/controls/control.h"

class zButton : public zControl {
 public:
  // The low nibble of the style, and beyond it the button with one of Motif's message pictures.
  enum ButtonType {
    push = 0,
    defaultPush = 1,
    check = 2,
    checkAuto = 3,
    radio = 4,
    group = 7,
    radioAuto = 9,
    radioAuto2 = 13,
    picture = 0x10,
  };

  // The generic button of a template; `create` makes its widget: none for a group box, for a number
  // that is no kind of button, and for a picture button whose id is not OK (1), Cancel (2) or Help
  // (8).
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
  int buttonType() const { return static_cast<int>(styleValue() & typeMask); }
  bool isRadio() const;

  // The state of a check box or radio button; others are always off. Setting it tells nobody.
  bool isToggledOn() const;
  void toggle(bool on);

  // What the button's mnemonic does: takes the focus and is pressed. `event` is the key's.
  void pressByKey(XEvent* event);

  // Forgets all radio groups; called before the first button of a template is made.
  static void resetStaticGroups();

  void ziBackgroundColor(const zColor& color) override;

 protected:
  // The part of the style that holds the ButtonType.
  static constexpr unsigned long typeMask = 0x1F;

  void doText(const char* value) override;

 private:
  std::vector<Arg> labelArgs(int marginWidth) const;
  void createPush();
  void createPicture();
  void createToggle();
  void joinGroup(Widget toggle) const;
  void finish(Widget widget, const char* callback, XtCallbackProc procedure);
  void applyColors(Widget widget) const;
  static void pushButtonCB(Widget widget, XtPointer link, XtPointer callData);
  static void checkCB(Widget widget, XtPointer link, XtPointer callData);
  static void radioCB(Widget widget, XtPointer link, XtPointer callData);
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
