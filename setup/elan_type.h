// The choice between the two kinds of emulated LAN on the pages of the servers, whose records count
// them from 1.
#pragma once

#include <cstdint>

constexpr int ethernetButton = 176;
constexpr int tokenRingButton = 177;

constexpr int buttonOfElanType(std::int16_t type) {
  return type == 1 ? ethernetButton : tokenRingButton;
}

constexpr std::int16_t elanTypeOfButton(int button) {
  return button == ethernetButton ? 1 : 2;
}
