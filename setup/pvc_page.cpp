#include "setup/pvc_page.h"

#include <string>

#include "framework/dialogs/message.h"

bool changesListAnyway(zWindow* page, const char* verb) {
  const std::string text = std::string("Unable to Dynamically ") + verb +
                           " PVC\nDo you still want to modify Static Configuration?";
  return zMessage(page, text.c_str(), "PVC Error", 0x21).result() == 1;
}
