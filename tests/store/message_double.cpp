#include "message_double.h"

#include "framework/dialogs/message.h"

std::vector<ShownMessage> shownMessages;

zMessage::zMessage(zWindow*, const char* text, const char* title, unsigned style) {
  shownMessages.push_back({text, title, style});
}
