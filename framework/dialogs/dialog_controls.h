// What is done to several controls of a dialog, a page or a form at a time.
#pragma once

#include <initializer_list>

class zWindow;

// Ids that `dialog` does not have are passed over.
void hideControls(zWindow* dialog, std::initializer_list<int> ids);
void enableControls(zWindow* dialog, std::initializer_list<int> ids, bool on);
