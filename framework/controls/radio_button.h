// Radio buttons, and the device that binds a row of them to a variable.
#pragma once

#include "framework/controls/button.h"
#include "framework/core/device.h"

class zRadioButton : public zButton {
 public:
  // As a template names it by class; the widget is made at once.
  zRadioButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  zRadioButton(zWindow* parent, int id) : zButton(parent, id) { ziSetType(zTypeRadioButton); }

  int check() const { return isToggledOn() ? 1 : 0; }
  // Tells nobody and leaves the others of the group alone.
  void check(int on) { toggle(on != 0); }
};

// Keeps one of the radio buttons `firstId` to `lastId` of a window set. The variable bound to it
// holds the id of that button and is written with every click. Made once the window has its
// controls; may be deleted before or after the window.
class zRadioController : public zDevice {
 public:
  // `store` may be null.
  zRadioController(zWindow* parent, int firstId, int lastId, int* store,
                   unsigned long bindingStyle = 0);
  ~zRadioController() override;

  // The handler of every click, called before the variable is written. The event's parm1 is the id.
  template <class T, class M>
  void setNotifyClicked(T* object, M member) {
    client_ = zEventHandler(object, member);
  }

  // The id of the button that is set; 0 before one was.
  int current() const { return current_; }
  void setStoreAddr(int* store) { store_ = store; }
  // Leaves the buttons as they are when the variable holds none of their ids.
  void setToDefault() override;
  int storeData() override;

 private:
  std::vector<zButton*> buttons() const;
  void toggle(int id, bool on) const;
  int processClicks(zNotifyEvt* event);
  void makeCurrent(int id);

  zWindow* parent_;
  zWindowWatch parentWatch_;
  int firstId_;
  int lastId_;
  int* store_;
  int current_ = 0;
  zEventHandler client_;
};
