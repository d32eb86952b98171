// Stands in for the message box: no window, but a record of what would have been shown.
#pragma once

#include <string>
#include <vector>

struct ShownMessage {
  std::string text;
  std::string title;
  unsigned style;
};
extern std::vector<ShownMessage> shownMessages;
