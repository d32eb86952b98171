// Reads the configuration, changes something in every section of adapter 0 and in its lists, and
// commits the adapter whenever it reads a line. "committed" tells that this is over, behind what
// the library had to say. The calls of a commit stand between two that name no file there is.
#include <unistd.h>

#include <cstdio>
#include <cstring>

#include "atm/devices.h"
#include "store/driver_pdf_edit.h"

namespace {

void changeBoard() {
  atmDevices.phy[0].VPI = 4095;
  atmDevices.phy[0].RLBackup = 10;
  AtmSig& sig = atmDevices.sig[0];
  sig.UniRev = 40;
  sig.cfg.UniRevision = 1004;
  sig.cfg.IlmiEnableAutoConfig = 100;
  std::strcpy(brennwick_driver_revision, "9.9 of a fault sweep");
}

void changeServices() {
  for (int i = 0; i < maxLecs; ++i) {
    std::snprintf(atmDevices.lec[0][i].ElanName, elanNameBytes, "client %d, changed", i);
  }
  for (int i = 0; i < maxLess; ++i) {
    std::snprintf(atmDevices.les[0][i].ElanName, elanNameBytes, "server %d, changed", i);
  }
  atmDevices.lecs[0].EtherMfs = 12345;
  std::strcpy(atmDevices.ip1577[0].IPAddress, "100.101.102.103");
}

// Lists that shrink, vanish, appear and grow.
void changeLists() {
  const AtmBridgedPvc bridged = {{{0, 0, 0x77, 0x88, 0x99, 0xaa}}, 100, 1, 0, 7};
  const AtmRoutedPvc routed = {{{192, 168, 1, 7}}, 200, 1, 0, -1};
  atmDevices.lec[0][0].pvcs = {bridged};
  atmDevices.lec[0][1].pvcs = {};
  atmDevices.lec[0][2].pvcs = {bridged, bridged, bridged};
  atmDevices.ip1577[0].pvcs = {routed, routed, routed};
  atmDevices.les[0][0].clients = {{{1, 2, 3, 4, 5, 6, 7}}, {{7, 6, 5, 4, 3, 2, 1}}, {{9}}};
}

}  // namespace

int main() {
  DriverPdfEdit edit(nullptr, false);
  edit.ReadPdf();
  changeBoard();
  changeServices();
  changeLists();
  while (std::getchar() != EOF) {
    access("commit-starts", F_OK);
    edit.WriteLink(0);
    access("commit-ends", F_OK);
    std::puts("committed");
    std::fflush(stdout);
  }
}
