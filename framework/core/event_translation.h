// Pieces shared by the event procedures of windows, controls and dialogs.
#pragma once

#include <string>

#include "framework/core/event.h"

class zWindow;

// The characters of a key event, with its keysym through `keysym` when given.
std::string ziCharactersOf(XEvent* event, KeySym* keysym = nullptr);

// A key event for `window`: parm1 is the character, or the keysym of a key without one.
zKeyEvt ziKeyEvent(zWindow* window, XEvent* event, unsigned message);

// What is left of a key press that the handlers of `window` did not take: `ch` where the window is
// `typed` into by itself and a character came of it, and then the frame.
void ziKeyLeft(zWindow* window, zKeyEvt& key, bool typed);

// A made-up size event: resolveSize, then size.
void ziSendSize(zWindow* window, const zDimension& size);

// Focus in or out: handlers, then the virtual, then the ancestors' childFocusChange.
void ziFocusEvent(zWindow* window, XEvent* event);

// Mouse events: handlers where the event map has them, then the virtual. Whether it was consumed.
bool ziMouseReleased(zWindow* window, XEvent* event);
bool ziMouseMoved(zWindow* window, XEvent* event);
