// The end of widgets.
#pragma once

#include <X11/Intrinsic.h>

// Takes a widget off the screen and destroys it with all below it. Its procedures have been taken
// off before.
//
// A text that waits for a selection is called back when the answer comes or the time for it is up,
// whether or not it is there still. So while an answer may be outstanding the widgets are kept,
// unseen, until it no longer is.
void ziDestroyWidget(Widget widget);

// To be called when a text begins to ask for a selection.
void ziSelectionAskedFor();
