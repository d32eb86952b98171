// How text gets from a selection into a text widget.
#pragma once

#include <X11/Intrinsic.h>

// Makes every paste into an XmText (by key, middle button or call) one of the program's own: Motif
// begins it, and is told that it is done. Its own transfer, and the toolkit's below it, end in
// freed memory when a selection changes hands before the answer, or when the text goes.
//
// The owner is asked for a STRING of up to 256 KB at once. The answer, whenever it comes, replaces
// the selection, or is inserted where the pointer was pressed; a paste that moves has the owner
// delete its text then. A later paste into the same text takes an unanswered one's place. For the
// widget's callbacks it is a change by the program.
void ziTakePastes(Widget text);
