// Mnemonics of controls in dialogs: Motif underlines them but acts on those in menus only.
#pragma once

#include "framework/core/event.h"

// For a key that `window` got and nobody took: Alt and a letter press the button, or give the focus
// to the control behind the label, that has this mnemonic. Letter case and the lock keys are of no
// account, hidden and disabled controls neither. The nearest in the window tree counts, within the
// window's shell. Whether there was one; `window` may be gone then.
bool ziPressMnemonic(zWindow* window, const zKeyEvt& key);
