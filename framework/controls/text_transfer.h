// Text on its way between the widgets and the selections of the display.
#pragma once

#include <X11/Intrinsic.h>

// Joins an XmText to the selections. Control-X, C and V, and the keys that the toolkit has for
// them, cut, copy and paste.
//
// Every paste (by key, middle button or call) becomes one of the program's own: Motif begins it,
// and is told that it is done. Its own transfer, and the toolkit's below it, end in freed memory
// when a selection changes hands before the answer, or when the text goes.
//
// The owner is asked for a STRING of up to 256 KB at once. The answer, whenever it comes, replaces
// the selection, or is inserted where the pointer was pressed; a paste that moves has the owner
// delete its text then. A later paste into the same text takes an unanswered one's place. For the
// widget's callbacks it is a change by the program.
void ziUseSelections(Widget text);

// Put what is selected on the clipboard, for as long as the program runs or until somebody else
// copies; the second takes it out of the text, where that can be edited. False when there was
// nothing to do or the display refuses.
bool ziCopyText(Widget text);
bool ziCutText(Widget text);
