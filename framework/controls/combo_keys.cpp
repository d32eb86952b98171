// The keyboard in a combo box.
#include <X11/keysym.h>
#include <Xm/Xm.h>

#include <cctype>

#include "framework/controls/combo_box.h"
#include "framework/core/event_translation.h"

struct zComboBoxBase::Key {
  KeySym symbol;
  KeySym onKeypad;
  bool held;         // with Alt or Control
  bool whileTyping;  // where text can be typed, too
  void (zComboBoxBase::*act)(int);
  int argument;
};

bool zComboBoxBase::handleKey(const zKeyEvt& key) {
  static constexpr Key keys[] = {
      {XK_Up, XK_KP_Up, true, true, &zComboBoxBase::toggle, 0},
      {XK_Down, XK_KP_Down, true, true, &zComboBoxBase::toggle, 0},
      {XK_F4, XK_F4, false, true, &zComboBoxBase::toggle, 0},
      {XK_Up, XK_KP_Up, false, true, &zComboBoxBase::step, -1},
      {XK_Down, XK_KP_Down, false, true, &zComboBoxBase::step, 1},
      {XK_Page_Up, XK_KP_Page_Up, false, true, &zComboBoxBase::stepPage, -1},
      {XK_Page_Down, XK_KP_Page_Down, false, true, &zComboBoxBase::stepPage, 1},
      {XK_Home, XK_KP_Home, false, false, &zComboBoxBase::goToEnd, 0},
      {XK_End, XK_KP_End, false, false, &zComboBoxBase::goToEnd, 1},
  };
  const bool held = key.alt() || key.ctrl();
  for (const Key& k : keys) {
    if (key.code() != k.symbol && key.code() != k.onKeypad) continue;
    if (held != k.held || (typesText() && !k.whileTyping)) continue;
    (this->*k.act)(k.argument);
    return true;
  }
  if (held) return false;
  switch (key.code()) {
    case XK_Escape:
      if (!isOpen()) return false;
      pop();
      return true;
    case XK_Return:
    case XK_KP_Enter:
      return takeMarked();
    default:
      return !typesText() && handleCharacter(key);
  }
}

bool zComboBoxBase::handleCharacter(const zKeyEvt& key) {
  if (key.code() == XK_space) {
    if (!takeMarked()) drop();
    return true;
  }
  const std::string typed = ziCharactersOf(key.xEvent);
  if (typed.size() != 1 || !std::isprint(static_cast<unsigned char>(typed[0]))) return false;
  moveTo(findPrefix(typed, marked() + 1));
  return true;
}

void zComboBoxBase::textKeyCB(Widget, XtPointer link, XEvent* event, Boolean* goOn) {
  auto* combo = controlOf<zComboBoxBase>(link);
  if (combo->handleKey(ziKeyEvent(combo, event, zMsgKeyDown))) *goOn = False;
}
