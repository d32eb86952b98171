// Entry fields over XmText.
//
// Typing becomes key events: a character goes to the virtual `ch`, which may change or refuse it,
// before the widget shows it. A text set by the program causes none.
//
// Life of a change: the widget's modify callback offers it (`ch`, `pasteStr`, or a Delete key for
// what no Backspace deletes); one that is accepted is announced to the parent (0x400), which may
// still set another text instead, and noted for undo; the widget makes it; its changed callback
// puts the caret right and tells the parent (0x300).
#pragma once

#include <Xm/Xm.h>

#include <optional>

#include "framework/controls/control.h"
#include "framework/controls/edit_undo.h"

struct zEditStyle {
  static constexpr unsigned long multiLine = 0x4;
  static constexpr unsigned long upperCase = 0x8;
  static constexpr unsigned long lowerCase = 0x10;
  static constexpr unsigned long readOnly = 0x800;
  static constexpr unsigned long wantReturn = 0x1000;
  static constexpr unsigned long horzScroll = 0x100000;  // both only with multiLine
  static constexpr unsigned long vertScroll = 0x200000;
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
  // A disabled field shows no caret and no selection.
  int enable() override;
  int disable() override;

  std::string getText() const override;
  bool hasChanged() const { return changed_; }
  void hasChanged(int on) { changed_ = on != 0; }
  // At most `length` characters; 0 for 32000.
  void limitText(int length);
  // The colour behind the text.
  void editBackgroundColor(const zColor& color);

  // The selected part, or the caret as an empty range. While a change is offered, what it replaces;
  // there a single character counts as a caret at its end.
  virtual zRange selection() const;
  virtual void selection(int start, int end);
  std::string getSelection() const;
  // Edits as the user makes them, with all that follows; cut, copy and paste answer whether there
  // was something to do.
  void replaceSelection(const char* text);
  int cut();
  int copy();
  int paste();
  // More than one character coming in at once. Non-zero: taken care of, the widget adds nothing.
  virtual int pasteStr(std::string& text);

  // One step: back to the text before the last change by the user, and again to the one behind it;
  // the key is Control-Z. Tells the parent as typing does. A text set by the program leaves nothing
  // to undo.
  int canUndo() const { return undo_.holds(); }
  int undo();
  void emptyUndoBuffer() { undo_.empty(); }

  template <class T, class M>
  void setNotifySetFocus(T* object, M member) {
    setupNotify(object, member, zNtfEditSetFocus);
  }
  template <class T, class M>
  void removeNotifySetFocus(T* object, M member) {
    removeNotify(object, member, zNtfEditSetFocus);
  }
  template <class T, class M>
  void setNotifyKillFocus(T* object, M member) {
    setupNotify(object, member, zNtfEditKillFocus);
  }
  template <class T, class M>
  void removeNotifyKillFocus(T* object, M member) {
    removeNotify(object, member, zNtfEditKillFocus);
  }
  template <class T, class M>
  void setNotifyChange(T* object, M member) {
    setupNotify(object, member, zNtfEditChange);
  }
  template <class T, class M>
  void removeNotifyChange(T* object, M member) {
    removeNotify(object, member, zNtfEditChange);
  }
  template <class T, class M>
  void setNotifyUpdate(T* object, M member) {
    setupNotify(object, member, zNtfEditUpdate);
  }
  template <class T, class M>
  void removeNotifyUpdate(T* object, M member) {
    removeNotify(object, member, zNtfEditUpdate);
  }
  template <class T, class M>
  void setNotifyMaxText(T* object, M member) {
    setupNotify(object, member, zNtfEditMaxText);
  }
  template <class T, class M>
  void removeNotifyMaxText(T* object, M member) {
    removeNotify(object, member, zNtfEditMaxText);
  }
  template <class T, class M>
  void setNotifyHScroll(T* object, M member) {
    setupNotify(object, member, zNtfEditHScroll);
  }
  template <class T, class M>
  void removeNotifyHScroll(T* object, M member) {
    removeNotify(object, member, zNtfEditHScroll);
  }
  template <class T, class M>
  void setNotifyVScroll(T* object, M member) {
    setupNotify(object, member, zNtfEditVScroll);
  }
  template <class T, class M>
  void removeNotifyVScroll(T* object, M member) {
    removeNotify(object, member, zNtfEditVScroll);
  }

 protected:
  void doText(const char* value) override;

  // Whether every change is offered, also one that no X event caused, such as a paste.
  virtual bool takesEveryChange() const { return false; }
  // The change under way, or null.
  const XmTextVerifyCallbackStruct* pendingChange() const { return verify_; }
  // Puts in place what an edit made of the text, with its selection; while a change is offered it
  // goes in instead of that, and once it is announced the change is off.
  void showEdited(const std::string& text, const zRange& selected);
  // The selection that the widget has, whatever is under way.
  zRange widgetSelection() const;

  Widget textWidget() const { return drawnWidget(); }
  unsigned long bindingStyle() const { return bindingStyle_; }

 private:
  // What is under way, so that a callback caused by it is not taken for typing.
  enum Semaphore : unsigned {
    settingText = 0x1,
    announcing = 0x2,
    modifying = 0x4,
    formatting = 0x10
  };
  class Hold;
  struct Edited {
    std::string text;
    zRange selected;
  };

  void createText();
  std::vector<Arg> textArgs() const;
  Widget createLine(Widget board, std::vector<Arg> args);
  Widget createBox(Widget board, std::vector<Arg> args);
  void showCaret(bool enabled) const;
  // The caret goes behind the text unless it has another place.
  void setText(const std::string& value, Semaphore why, std::optional<int> caret = {});
  void placeCaret(int position) const;

  static void modifyCB(Widget widget, XtPointer link, XtPointer callData);
  static void changedCB(Widget widget, XtPointer link, XtPointer callData);
  static void focusCB(Widget widget, XtPointer link, XtPointer callData);
  static void losingFocusCB(Widget widget, XtPointer link, XtPointer callData);
  static void activateCB(Widget widget, XtPointer link, XtPointer callData);
  static void tellScrolled(XtPointer link, unsigned code, XtPointer callData);
  static void horzScrollCB(Widget widget, XtPointer link, XtPointer callData);
  static void vertScrollCB(Widget widget, XtPointer link, XtPointer callData);

  // The steps of a modify callback. False: the change is not made.
  bool modify(XmTextVerifyCallbackStruct& verify);
  bool offer(XmTextVerifyCallbackStruct& verify);
  bool offerDeletion();
  bool offerCharacter(XmTextVerifyCallbackStruct& verify);
  bool replaceByEdited(XmTextVerifyCallbackStruct& verify, const std::string& before);
  void cleanInserted(XmTextVerifyCallbackStruct& verify);
  void setInserted(XmTextVerifyCallbackStruct& verify, const std::string& text);
  int editKey(zKeyEvt* event);
  void updateUndoBuffer(const XmTextVerifyCallbackStruct& verify, const zRange& offered,
                        std::string before);

  std::string* store_ = nullptr;
  unsigned long bindingStyle_ = 0;
  unsigned semaphores_ = 0;
  bool changed_ = false;
  XmTextVerifyCallbackStruct* verify_ = nullptr;  // while a modify callback runs
  std::optional<Edited> edited_;                  // what is to replace the change offered
  std::optional<int> caretAfter_;                 // where the caret goes once the change is made
  bool offeredDeletion_ = false;
  std::string insertedByDeletion_;  // outlives the callback, since the widget reads it later
  ziEditUndo undo_;
  std::optional<ziEditUndo> undoAfter_;  // what undo_ is once the change is made
};

// A field of one line.
class zEditLine : public zEditBase {
 public:
  zEditLine(zWindow* parent, int id, std::string* store = nullptr, unsigned long bindingStyle = 0)
      : zEditBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeEditLine);
  }
};

// A field of several lines, with scroll bars by its style.
class zEditBox : public zEditBase {
 public:
  zEditBox(zWindow* parent, int id, std::string* store = nullptr, unsigned long bindingStyle = 0)
      : zEditBase(parent, id, store, bindingStyle) {
    ziSetType(zTypeEditBox);
  }
};
