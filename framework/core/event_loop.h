// Loops of events, and the end of widgets inside them.
#pragma once

#include <X11/Intrinsic.h>

#include <functional>

// Waits for the application's next event and handles it: a step of the main loop.
void ziProcessEvent();

// For a timer that has run: what the user did meanwhile comes before the next timer. The toolkit
// takes timers that are due first, so that handlers slower than their periods would keep it from
// ever coming to the events.
void ziLetEventsCatchUp();

// Handles events while `goesOn`: a loop inside the main one, in a handler or before it begins.
void ziRunLoop(const std::function<bool()>& goesOn);

// How many loops run inside the main one, each in a handler of the one before.
int ziLoopDepth();

// Takes a widget off the screen and destroys it with all below it. Its procedures have been taken
// off before. `madeAt` is the loop depth at which it was made.
//
// Inside a deeper loop one of the widget's procedures may be under way in the toolkit, which uses
// the widget when the loop has ended; so it stays, unseen, until then. It also waits for the end of
// what was destroyed before it and is below it, since the toolkit would destroy that twice when
// the two come from different depths.
void ziDestroyWidget(Widget widget, int madeAt);
