// An adapter's physical layer and its place in a redundant pair.
#pragma once

#include <cstdint>
#include <string>

struct PhyXferBuffer;

// Link states of a board, as the driver numbers them.
enum LinkState : std::uint16_t { linkActive = 0, linkInactive = 1, linkDown = 2 };

struct AtmPhy {
  std::int32_t Framing = 0;  // 0 SONET, 1 SDH
  std::int32_t VPI = 0;

  // What the running driver was started with, as read from the file.
  std::int32_t cfgRLPrimary = 1;  // 1 primary, 0 backup
  std::int32_t cfgRLBackup = -1;  // adapter number of the backup, -1 none
  std::int32_t cfgRLAutoSwitch = 0;

  // What the file will hold: from the configured values until a reboot takes a change up.
  std::int32_t RLPrimary = 1;
  std::int32_t RLBackup = -1;
  std::int32_t RLAutoSwitch = 0;

  // As the driver last reported them.
  std::uint16_t linkState = linkActive;
  std::int16_t activeLink = -1;  // the adapter whose partner or traffic this is, -1 none

  std::string boardText1 = "-";  // shown in the adapter table
  std::string boardText2;
  std::int32_t InterruptNumber = -1;  // -1 detected by the driver

  // Takes the edited values; of the configured ones only RLAutoSwitch.
  AtmPhy& operator=(const PhyXferBuffer& buffer);

  void setLink(std::uint16_t state, std::int16_t active) {
    linkState = state;
    activeLink = active;
  }
};
