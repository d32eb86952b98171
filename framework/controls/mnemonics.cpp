#include "framework/controls/mnemonics.h"

#include <X11/Xutil.h>
#include <Xm/Xm.h>

#include <cctype>

#include "framework/controls/button.h"
#include "framework/core/app.h"
#include "framework/core/x_text.h"
#include "framework/dialogs/dialog_frame.h"

namespace {

// The letter that comes with Alt, in lower case; 0 for any other key.
char mnemonicOf(const zKeyEvt& key) {
  const unsigned held = key.xEvent ? key.xEvent->xkey.state : 0;
  const auto alt = static_cast<unsigned>(app->altModMask());
  const bool alone = (held & alt) && !(held & ControlMask);
  const bool printable = key.code() > ' ' && key.code() <= '~';
  return alone && printable ? static_cast<char>(std::tolower(static_cast<int>(key.code()))) : '\0';
}

bool isOnScreen(const zWindow* window) {
  const Widget widget = window->getWidget();
  XWindowAttributes now;
  return widget && XtIsRealized(widget) &&
         XGetWindowAttributes(app->display(), XtWindow(widget), &now) &&
         now.map_state == IsViewable;
}

bool hasMnemonic(const zWindow* window, char letter) {
  if (!window->isA(zTypeButton) && !window->isA(zTypeStaticText)) return false;
  const auto own = static_cast<unsigned char>(ziParseForMnemonic(window->title()));
  return std::tolower(own) == letter && window->isEnabled() && isOnScreen(window);
}

bool inShell(const zWindow* window, Widget shell) {
  return getTopShell(window->getWidget()) == shell;
}

zWindow* find(const zWindow* above, Widget shell, char letter) {
  for (zWindow* kid : above->kidslist()) {
    if (!inShell(kid, shell)) continue;
    if (hasMnemonic(kid, letter)) return kid;
    if (zWindow* below = find(kid, shell, letter)) return below;
  }
  return nullptr;
}

// The next control in tab order behind a label or the title of a group.
void focusBehind(const zWindow* label) {
  for (const zWindow* w = label->nextWin(); w != label; w = w->nextWin()) {
    if ((w->styleValue() & zStyleTabStop) && w->isEnabled() && isOnScreen(w)) {
      XmProcessTraversal(w->focusWidget(), XmTRAVERSE_CURRENT);
      return;
    }
  }
}

}  // namespace

bool ziPressMnemonic(zWindow* window, const zKeyEvt& key) {
  const char letter = mnemonicOf(key);
  if (!letter) return false;
  const Widget shell = getTopShell(window->getWidget());
  zWindow* found = nullptr;
  for (const zWindow* w = window; !found && w && inShell(w, shell); w = w->parent()) {
    found = find(w, shell, letter);
  }
  if (!found) return false;
  if (found->isA(zTypeButton) && !found->isA(zTypeGroupBox)) {
    static_cast<zButton*>(found)->pressByKey(key.xEvent);
  } else {
    focusBehind(found);
  }
  return true;
}
