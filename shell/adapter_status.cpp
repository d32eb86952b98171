#include "shell/adapter_status.h"

#include <algorithm>

#include "applet/run_state.h"
#include "foundation/bounded_stream.h"
#include "foundation/odlog.h"

namespace {

// Texts count adapters from 1.
int shown(int adapter) {
  return adapter + 1;
}

bool isPrimary(const AtmPhy& phy) {
  return phy.cfgRLPrimary != 0;
}

std::string macInService(const AtmDevices& devices, const AtmPhy& board) {
  if (board.linkState != linkActive) return "-";
  if (isPrimary(board)) return board.boardText1;
  if (isAdapter(board.activeLink)) return devices.phy[board.activeLink].boardText1;
  return board.boardText1 + " ?";
}

void sayInactivePrimary(const AtmDevices& devices, int adapter, std::ostream& out) {
  const AtmPhy& board = devices.phy[adapter];
  const int other = isAdapter(board.activeLink) ? board.activeLink : board.cfgRLBackup;
  if (!isAdapter(other)) {
    out << "Inactive, not backed up.";
    return;
  }
  const AtmPhy& backup = devices.phy[other];
  if (backup.linkState == linkActive && backup.activeLink == adapter) {
    out << "Inactive, backed up by adapter " << shown(other);
    return;
  }
  out << "Inactive, Backup adapter " << shown(other);
  switch (backup.linkState) {
    case linkActive:
      out << " is Active for adapter " << shown(backup.activeLink);
      break;
    case linkInactive:
      out << " is Inactive.";
      break;
    default:
      out << " is Down.";
  }
}

void sayDownPrimary(const AtmDevices& devices, const AtmPhy& board, std::ostream& out) {
  if (board.cfgRLBackup < 0 || !isAdapter(board.activeLink)) {
    out << "Down";
    return;
  }
  const AtmPhy& backup = devices.phy[board.activeLink];
  if (backup.linkState == linkActive) {
    out << "Down, Backed Up by " << shown(board.activeLink);
    return;
  }
  out << "Down, Backup Adapter " << shown(board.activeLink)
      << (backup.linkState == linkDown ? " is Down." : " is Inactive.");
}

void logBadState(const AtmPhy& board) {
  odlog << "Bad Board status: " << board.linkState << std::endl;
}

void describePrimary(const AtmDevices& devices, int adapter, AdapterStatus& row,
                     std::ostream& out) {
  const AtmPhy& board = devices.phy[adapter];
  row.type = "Primary";
  row.switchConfig = board.cfgRLBackup < 0 ? "" : board.cfgRLAutoSwitch ? "Auto" : "Manual";
  switch (board.linkState) {
    case linkActive:
      row.status = "Active";
      row.color = rowGreen;
      row.dataLink = std::to_string(shown(adapter));
      if (board.cfgRLBackup < 0) {
        out << "Active, no backup.";
      } else {
        out << "Active, backup is adapter " << shown(board.cfgRLBackup);
      }
      break;
    case linkInactive:
      row.status = "Inactive";
      row.color = rowYellow;
      sayInactivePrimary(devices, adapter, out);
      break;
    case linkDown:
      row.status = "Down";
      row.color = rowRed;
      sayDownPrimary(devices, board, out);
      break;
    default:
      row.dataLink = std::to_string(shown(adapter));
      logBadState(board);
  }
}

// The primaries that an available backup stands by for.
void saySparedAdapters(const AtmDevices& devices, int adapter, std::ostream& out) {
  const char* before = ", for adapter ";
  for (int k = 0; k < adapterRows(devices); ++k) {
    const AtmPhy& other = devices.phy[k];
    if (!isPrimary(other) || other.cfgRLBackup != adapter) continue;
    out << before << shown(k);
    before = ", ";
  }
}

void describeActiveBackup(const AtmPhy& board, AdapterStatus& row, std::ostream& out) {
  row.status = "Active";
  row.color = rowGreen;
  if (isAdapter(board.activeLink)) {
    row.dataLink = std::to_string(shown(board.activeLink));
  } else {
    row.dataLink = "?";
    odlog << "Backup switch_link == " << board.activeLink << std::endl;
  }
  out << "Active, for Adapter " << shown(board.activeLink);
}

void describeDownBackup(const AtmPhy& board, AdapterStatus& row, std::ostream& out) {
  row.status = "Down";
  row.color = rowRed;
  if (board.cfgRLBackup < 0 || board.activeLink < 0) {
    out << "Down";
    return;
  }
  odlog << "*** Backup has a Backup !!! ***" << std::endl;
  out << "Backed Up by " << shown(board.activeLink);
}

void describeBackup(const AtmDevices& devices, int adapter, AdapterStatus& row, std::ostream& out) {
  const AtmPhy& board = devices.phy[adapter];
  row.type = "Backup";
  row.switchConfig = " ";
  switch (board.linkState) {
    case linkActive:
      describeActiveBackup(board, row, out);
      break;
    case linkInactive:
      row.status = "Available";
      row.color = rowYellow;
      out << "Available";
      saySparedAdapters(devices, adapter, out);
      break;
    case linkDown:
      describeDownBackup(board, row, out);
      break;
    default:
      logBadState(board);
  }
}

}  // namespace

int adapterRows(const AtmDevices& devices) {
  return static_cast<int>(std::min<std::uint32_t>(devices.numAdapters, maxAdapters));
}

AdapterStatus describeAdapter(const AtmDevices& devices, int adapter) {
  const AtmPhy& board = devices.phy[adapter];
  AdapterStatus row;
  row.macAddress = macInService(devices, board);
  BoundedStream sentence(mainBuffer, mainBufferBytes);
  sentence << "Adapter " << shown(adapter) << ": ";
  if (isPrimary(board)) {
    describePrimary(devices, adapter, row, sentence);
  } else {
    describeBackup(devices, adapter, row, sentence);
  }
  row.sentence = sentence.terminate();
  return row;
}
