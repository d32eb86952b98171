// The operations of the control primitives (Type in the frame's head).
#pragma once

#include <cstdint>

// On primLecControl.
enum LecControlType : std::uint16_t {
  lecEnable = 1,
  lecDisable = 2,
  lecAddPvc = 3,
  lecDeletePvc = 5,
  lecSetEnhanced = 7,
};

// On primLesControl.
enum LesControlType : std::uint16_t { lesEnable = 1, lesDisable = 2 };

// On primLecsControl.
enum LecsControlType : std::uint16_t {
  lecsEnable = 1,
  lecsDisable = 2,
  lecsAddClient = 3,
  lecsDeleteClient = 4,
  lecsGo = 5,
};

// On primIpControl.
enum IpControlType : std::uint16_t { ipEnable = 1, ipDisable = 2, ipAddPvc = 4, ipDeletePvc = 5 };

// On primSigControl.
enum SigControlType : std::uint16_t { sigUpdate = 2, sigDebugTrace = 3, sigPort = 5 };

// On primPhyControl.
enum PhyControlType : std::uint16_t {
  phySetFraming = 1,
  phySetVpi = 2,
  phySetRedundantLink = 3,
  phySwitchLink = 4,
};
