// The program's one top-level window.
//
// Its life: it opens the driver for reading, reads the configuration file once, asks the driver for
// its boards, fills the adapter table and starts the main timer, which polls the boards' link
// states. Setup and Global stop the timer for as long as they run; Close and the destructor stop it
// for good. The driver session lives as long as the dialog.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "atm/limits.h"
#include "driver/queries.h"
#include "framework/core/timer.h"
#include "framework/dialogs/form_dialog.h"
#include "store/driver_pdf_edit.h"

class MainDlgAdapterInfoTBL;
class zBitmapButton;
class zEditLine;
class zStatusItem;
class zStatusLineEZ;
class zTableModel;
class zToolTipCtrl;

class DMainDlg : public zFormDialog {
 public:
  DMainDlg(zWindow* parent, const zResId& id);
  ~DMainDlg() override;

  // Makes the caption text of the selected adapter's dialogs, `dlgTitle`.
  void SetDlgTitle();
  // The main timer's call.
  void Update();
  // One poll of the boards' link states; the table is redone if one has changed. 0 when the driver
  // gave no answer, else 1.
  int UpdateDisplay();
  // Shows or hides the Activate button, and the selected adapter's sentence in the status line.
  void UpdateActivateBTN();

  void enableTimer();
  void disableTimer();

  // What stands between the records of an adapter and Setup. The first fills the transfer buffers
  // and their previous copies; the second takes accepted buffers into the records and the driver,
  // and says what the driver could not take. The others take from the buffers of the selected
  // adapter only what its editors have changed at once, circuits and client mappings.
  void MapDataToXferBuffer(short adapter);
  void MapXferBufferToData(short adapter);
  void MapXferBufferPVCsToData();
  void MapXferBufferELANsToData();

  // The end of a Setup of `adapter`, accepted and cancelled: what is kept goes to the records, the
  // driver and the file.
  void keepSetup(short adapter);
  void keepSetupLists(short adapter);

  int clickedSetupBTN(zNotifyEvt* event);
  int clickedStatsBTN(zNotifyEvt* event);
  int clickedActivateBTN(zNotifyEvt* event);
  int clickedGlobalBTN(zNotifyEvt* event);
  int clickedCloseBTN(zNotifyEvt* event);
  int clickedBrennwickLogoBTN(zNotifyEvt* event);
  int doubleClickAdapterInfoTBL(zNotifyEvt* event);
  int selChangeAdapterInfoTBL();
  int activate(zActivateEvt* event) override;

 private:
  // Reads the file and the inventory of boards.
  void setup();
  void findBoards(aalInfo& query);
  void findBoard(int adapter);
  void stampMacAddresses(int adapter, const std::uint8_t* macAddress);
  void readMaxVc(int adapter);

  void createStatusLine();
  void createTable();
  void createLabels();
  void createButtons();
  void noticeBox(const char* caption, const char* text);

  std::unique_ptr<zTableModel> model_;
  std::unique_ptr<zToolTipCtrl> toolTips_;
  MainDlgAdapterInfoTBL* table_ = nullptr;
  zEditLine* version_ = nullptr;
  zBitmapButton* stats_ = nullptr;
  zBitmapButton* activate_ = nullptr;
  std::unique_ptr<zTimer> mainTimer_;  // null: not running
  zStatusLineEZ* statusLine_ = nullptr;
  zStatusItem* statusItem_ = nullptr;
  std::string versionText_;
  // Null when the driver did not open.
  std::unique_ptr<vccInfo> vccQuery_;
  std::unique_ptr<aalInfo> aalQuery_;
  std::unique_ptr<DriverPdfEdit> driverPdf_;
  std::uint8_t redundancyChanged = 0;  // a board type or backup has changed since the start
  std::uint8_t rollbackInProgress[maxAdapters] = {};  // a link switch of that board is under way
};
