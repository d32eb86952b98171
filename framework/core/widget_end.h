// The end of widgets.
#pragma once

#include <X11/Intrinsic.h>

// Takes a widget off the screen and destroys it with all below it. Its procedures have been taken
// off before.
//
// What the toolkit began for a widget it finishes whether or not the widget is there still: a text
// that waits for a selection is called back when the answer comes or the time for it is up, and a
// drag when it ends. So a drag is given up here, and while an answer may be outstanding the widgets
// are kept, unseen, until it no longer is.
void ziDestroyWidget(Widget widget);

// To be called when a text begins to ask for a selection.
void ziSelectionAskedFor();
