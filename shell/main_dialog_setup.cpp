// The road of a change through Setup: records to transfer buffers, the dialog, and when it ends the
// buffers to the records, the driver and the file.
#include <unistd.h>

#include <ostream>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "atm/transfer_buffers.h"
#include "foundation/bounded_stream.h"
#include "foundation/odlog.h"
#include "framework/drawing/bitmap.h"
#include "setup/config_dialog.h"
#include "shell/adapter_table.h"
#include "shell/apply_changes.h"
#include "shell/main_dialog.h"

namespace {

constexpr char changeCaption[] = "Configuration Change";

// One element or an array of as many.
template <class Buffer, class Record>
void fillBuffers(Buffer& working, Buffer& previous, const Record& record) {
  working = record;
  previous = record;
}

template <class Buffer, class Record, std::size_t count>
void fillBuffers(Buffer (&working)[count], Buffer (&previous)[count],
                 const Record (&records)[count]) {
  for (std::size_t i = 0; i < count; ++i) fillBuffers(working[i], previous[i], records[i]);
}

void logWrite(const char* line, int adapter) {
  odlog << line << adapter << ") to odconf" << std::endl;
}

bool redundancyDiffers() {
  return phyXferBuffer.RLPrimary != prevPhyBuffer.RLPrimary ||
         phyXferBuffer.RLBackup != prevPhyBuffer.RLBackup;
}

// What has become of the board's place in its pair, in `mainBuffer`.
const char* redundancyNotice() {
  BoundedStream text(mainBuffer, mainBufferBytes);
  text << "Redundant Link Configuration changed!\n";
  if (phyXferBuffer.RLPrimary != prevPhyBuffer.RLPrimary) {
    text << "Board Type changed to " << (phyXferBuffer.RLPrimary ? "Primary" : "Backup");
  } else if (phyXferBuffer.RLBackup >= 0) {
    text << "Backup Board changed to Adapter " << std::int64_t{phyXferBuffer.RLBackup} + 1;
  } else {
    text << "Backup Board changed to `None'";
  }
  text << ".\nYou must reboot for this change to take effect.";
  return text.terminate();
}

}  // namespace

int DMainDlg::clickedSetupBTN(zNotifyEvt*) {
  if (getuid() != 0) {
    noticeBox("Privilege Error", "Insufficient Privileges.\nUnable to Setup ATM Adapter!");
    return 0;
  }
  if (!DaiOpenSuccess) {
    noticeBox("Driver Error", "Atm Driver Not Loaded. \nNo dynamic configuration available!");
  }
  const auto adapter = static_cast<short>(currentAdapter);
  MapDataToXferBuffer(adapter);
  disableTimer();
  DConfigDlg dialog(this);
  dialog.modal();
  setCursor(zCursor(zCursor::watch));
  if (dialog.result()) {
    keepSetup(adapter);
  } else {
    keepSetupLists(adapter);
  }
  setCursor(zCursor(zCursor::arrow));
  enableTimer();
  return 0;
}

void DMainDlg::keepSetup(short adapter) {
  MapXferBufferToData(adapter);
  logWrite(" w> WriteLink(", adapter);
  if (driverPdf_) driverPdf_->WriteLink(adapter);
}

// The editors of circuits and clients have told the driver while Setup was open, so their lists are
// kept whatever became of the rest.
void DMainDlg::keepSetupLists(short adapter) {
  MapXferBufferPVCsToData();
  MapXferBufferELANsToData();
  if (!driverPdf_) return;
  logWrite(" w> WriteRoutedPVCs(", adapter);
  logWrite(" w> WriteBridgedPVCs(", adapter);
  logWrite(" w> WriteMappedClients(", adapter);
  driverPdf_->WriteRoutedPVCs(adapter);
  driverPdf_->WriteBridgedPVCs(adapter);
  driverPdf_->WriteMappedClients(adapter);
}

void DMainDlg::MapDataToXferBuffer(short adapter) {
  odlog << "====== storing current settings in xfer buffer =====" << std::endl;
  fillBuffers(phyXferBuffer, prevPhyBuffer, atmDevices.phy[adapter]);
  fillBuffers(sigXferBuffer, prevSigBuffer, atmDevices.sig[adapter]);
  fillBuffers(xferBuffer, prevLecBuffer, atmDevices.lec[adapter]);
  fillBuffers(lesXferBuffer, prevLesBuffer, atmDevices.les[adapter]);
  fillBuffers(lecsXferBuffer, prevLecsBuffer, atmDevices.lecs[adapter]);
  fillBuffers(ip1577XferBuffer, prevIP1577Buffer, atmDevices.ip1577[adapter]);
}

void DMainDlg::MapXferBufferToData(short adapter) {
  const ChangeSession session;
  applyClients(adapter, session);
  applyServers(adapter, session);
  applyConfigServer(adapter, session);
  applyIp1577(adapter, session);
  if (!applySignalling(adapter, session)) {
    noticeBox(changeCaption,
              "Signalling parameters changed!\nUnable to modify active Signalling,\n"
              "You will need to manually restart signalling.");
  }
  if (!applyPhysical(adapter, session)) return;
  if (DaiOpenSuccess && BoardIsThere[adapter] && redundancyDiffers()) {
    redundancyChanged = 1;
    noticeBox(changeCaption, redundancyNotice());
  }
  table_->Update();
  UpdateActivateBTN();
}

void DMainDlg::MapXferBufferPVCsToData() {
  for (int n = 0; n < maxLecs; ++n) atmDevices.lec[currentAdapter][n].pvcs = xferBuffer[n].pvcs;
  atmDevices.ip1577[currentAdapter].pvcs = ip1577XferBuffer.pvcs;
}

void DMainDlg::MapXferBufferELANsToData() {
  for (int n = 0; n < maxLess; ++n)
    atmDevices.les[currentAdapter][n].clients = lesXferBuffer[n].clients;
}
