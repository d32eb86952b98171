// Drives the program under test through the X server, as a person would: real key presses, clicks
// and pointer moves by the XTEST extension, on a connection of its own, and a look at the picture
// that results. Input calls return when the server has taken them and the program has handled what
// arrived so far; anything later is waited for with waitUntil.
#pragma once

#include <X11/X.h>

#include <functional>
#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>

#include "framework/core/geometry.h"
#include "framework/drawing/color.h"

class zDialogFrame;
class zWindow;

namespace x_driver {

constexpr int patienceMs = 5000;

// Runs the program's loop until `done` answers true; false when the time ran out first.
bool waitUntil(const std::function<bool()>& done, int milliseconds = patienceMs);
// Handles all that is on its way from the server. Sends requests itself.
void settle();
// Handles what has arrived already, without asking the server.
void handlePending();

// Presses and releases a key while others are held. A capital or shifted character brings its Shift
// along.
void key(KeySym symbol, std::initializer_list<KeySym> held = {});
void keyDown(KeySym symbol);
void keyUp(KeySym symbol);
// Types printable ASCII.
void text(std::string_view characters);

// Points are pixels in the window's drawn area.
void moveTo(const zWindow& window, zPoint at);
void press(unsigned button = 1);
void release(unsigned button = 1);
void click(const zWindow& window, zPoint at, unsigned button = 1);
// Two clicks well within the multi-click time.
void doubleClick(const zWindow& window, zPoint at);
// Presses at `from`, moves to `to` in steps and lets go.
void drag(const zWindow& window, zPoint from, zPoint to);
// Makes sure that the next press does not count as the second of a double click.
void outwaitDoubleClick();

// The colour on the screen at a point of the window's drawn area.
zColor pixelAt(const zWindow& window, zPoint at);
// How many pixels of a part of the drawn area have the colour.
int countPixels(const zWindow& window, const zRect& area, const zColor& color);
// Requests that the program has sent to the server so far.
unsigned long requestsSent();

// Brings a dialog up and waits until it is drawn on the screen with the input focus in it.
bool show(zDialogFrame& dialog);
// Whether the keyboard focus of the dialog lies in this window.
bool hasFocus(const zWindow& window);
// Gives the window the keyboard focus as Tab would, and waits for it.
bool giveFocus(zWindow& window);

}  // namespace x_driver

inline std::ostream& operator<<(std::ostream& out, const zColor& c) {
  return out << int{c.red} << ',' << int{c.green} << ',' << int{c.blue};
}
