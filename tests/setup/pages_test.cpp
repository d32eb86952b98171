// The notebook as a whole, and what its pages make of their buffers and of what is entered.
#include "tests/setup/notebook_stage.h"

#include "setup/ip1577_page.h"
#include "setup/lec_page.h"
#include "setup/les_page.h"
#include "setup/physical_page.h"
#include "setup/signal_page.h"

namespace {

TEST(Notebook, IsBuiltInOrderAndKnowsTheDriverFromTheSecondOneOn) {
  const NotebookStage stage;
  const LogText log;
  { DConfigDlg first(app->rootWindow()); }
  const Lines lines = log.lines();
  const auto at = [&](const std::string& start) {
    return std::find_if(lines.begin(), lines.end(),
                        [&](const std::string& line) { return line.starts_with(start); }) -
           lines.begin();
  };
  long last = -1;
  for (const char* line :
       {"creating Physical page", "About to create Signalling config page ...",
        "creating Signalling Config page", "creating LEC Config Page", "creating LES Config page",
        "creating LECS Config page", "creating 1577 Config page", "Finished config 1577 page setup",
        "dai_open Desc: ", "dai_close: SetupIoctlDesc "}) {
    EXPECT_GT(at(line), last) << line;
    last = at(line);
  }
  EXPECT_EQ(ConfDaiOpenSuccess, 1);
  EXPECT_EQ(log.startingWith("dai_open Desc: ")[0],
            "dai_open Desc: " + std::to_string(SetupIoctlDesc) + "  Success: 1");
  advSettings = 0;
  DConfigDlg second(app->rootWindow());
  EXPECT_EQ(second.caption(), "Setup Adapter 1 - 02:4c:49:00:00:00");
  std::string tabs;
  for (const auto& def : second.tabs()->pages()) tabs += def->caption() + "|";
  EXPECT_EQ(tabs, "Physical|Signalling|LEC...|1577|");
}

// Every page stores what it was given.
TEST(Notebook, OkOnUntouchedPagesKeepsTheBuffers) {
  const NotebookStage stage;
  phyXferBuffer.Framing = 1;
  phyXferBuffer.VPI = 255;
  phyXferBuffer.RLAutoSwitch = 1;
  sigXferBuffer.Enabled = 1;
  sigXferBuffer.UniRev = 2;  // that no list offers
  sigXferBuffer.VciMax = 511;
  sigXferBuffer.PortChangeDetect = 0;
  LECXferBuffer& lec = xferBuffer[0];
  lec.Enabled = lec.Config = lec.EnhancedVC = lec.Lecs = 1;
  lec.ElanName = std::string("Z\xfcrich ") + std::string(24, 'x');  // not a text of this locale
  lec.ElanType = 1;
  lec.Mfs = 3;  // that no list offers
  lec.L3Mtu = 9180;
  lec.defaultPcr.conv2cps(lec.defaultPcr.value = 5000, lec.defaultPcr.units = kilobitsPerSecond);
  xferBuffer[15].ElanName = "last";
  LESXferBuffer& les = lesXferBuffer[0];
  les.Enabled = les.MfsStrict = les.ElanNameStrict = 1;
  les.ElanType = 2;
  les.Mfs = 2;
  les.ElanName = "server";
  lecsXferBuffer.Enabled = 1;
  lecsXferBuffer.ElanType = 2;
  lecsXferBuffer.EtherMfs = 1;
  ip1577XferBuffer.Enabled = 1;
  ip1577XferBuffer.IPAddress = "010.000.000.001";
  ip1577XferBuffer.ServerIPAddress = "010.000.000.254";
  ip1577XferBuffer.ServerIPMask = "255.255.255.000";
  const PhyXferBuffer phy = phyXferBuffer;
  const SigXferBuffer sig = sigXferBuffer;
  const LECXferBuffer lecs[2] = {xferBuffer[0], xferBuffer[15]};
  const LESXferBuffer server = les;
  const LECSXferBuffer configServer = lecsXferBuffer;
  const IP1577XferBuffer ip = ip1577XferBuffer;

  DConfigDlg notebook(app->rootWindow());
  auto& clients = *static_cast<zTabCtrl*>(notebook.lecPage()->get(175));
  for (const int tab : {16, 2, 1}) clients.select(tab);
  EXPECT_EQ(choice(*notebook.lecPage(), 163).getText(), "");
  notebook.onOk(nullptr);

  EXPECT_EQ(notebook.result(), 1);
  EXPECT_EQ(std::tie(phyXferBuffer.Framing, phyXferBuffer.VPI, phyXferBuffer.RLPrimary,
                     phyXferBuffer.RLBackup, phyXferBuffer.RLAutoSwitch),
            std::tie(phy.Framing, phy.VPI, phy.RLPrimary, phy.RLBackup, phy.RLAutoSwitch));
  const auto ofSig = [](const SigXferBuffer& b) {
    return std::tie(b.Enabled, b.UniRev, b.VciLow, b.VciMax, b.IlmiEnableAutoConfig,
                    b.AddressRegistration, b.PortChangeDetect, b.RegDiffNetPrefix, b.NetPrefix);
  };
  EXPECT_EQ(ofSig(sigXferBuffer), ofSig(sig));
  const auto ofLec = [](const LECXferBuffer& b) {
    return std::tie(b.ElanName, b.AtmPrefix, b.AtmEsiSel, b.MacText, b.L3Mtu, b.Lecs, b.Enabled,
                    b.Config, b.EnhancedVC, b.defaultPcr, b.Mfs, b.ElanType);
  };
  EXPECT_EQ(ofLec(xferBuffer[0]), ofLec(lecs[0]));
  EXPECT_EQ(ofLec(xferBuffer[15]), ofLec(lecs[1]));
  const auto ofLes = [](const LESXferBuffer& b) {
    return std::tie(b.Mfs, b.Enabled, b.MfsStrict, b.ElanNameStrict, b.ElanType, b.ElanName);
  };
  EXPECT_EQ(ofLes(lesXferBuffer[0]), ofLes(server));
  const auto ofLecs = [](const LECSXferBuffer& b) {
    return std::tie(b.EtherMfs, b.TRMfs, b.Enabled, b.ElanType, b.AtmPrefix, b.AtmEsiSel);
  };
  EXPECT_EQ(ofLecs(lecsXferBuffer), ofLecs(configServer));
  const auto ofIp = [](const IP1577XferBuffer& b) {
    return std::tie(b.Enabled, b.Config, b.AtmPrefix, b.AtmEsiSel, b.ServerIPAddress, b.IPAddress,
                    b.ServerIPMask);
  };
  EXPECT_EQ(ofIp(ip1577XferBuffer), ofIp(ip));
}

TEST(Notebook, StoresWhatIsShortAsItStands) {
  const NotebookStage stage;
  sigXferBuffer.NetPrefix = "4700";
  ip1577XferBuffer.IPAddress = "";
  DConfigDlg notebook(app->rootWindow());
  control(*notebook.findPage(569)->page(), 120).text("");
  notebook.onOk(nullptr);
  EXPECT_EQ(phyXferBuffer.VPI, 0);
  EXPECT_EQ(sigXferBuffer.NetPrefix, "4700");
  EXPECT_EQ(ip1577XferBuffer.IPAddress, "...") << "the literals of an empty field";
}

// The record says which pages there are to store, whatever the page of the board type says.
TEST(Notebook, OkOfABackupStoresThePhysicalPageAlone) {
  for (const int recorded : {0, 1}) {
    const NotebookStage stage;
    atmDevices.phy[1].RLPrimary = recorded;
    DConfigDlg notebook(app->rootWindow());
    auto& page = pageOf<DConfigDlgPhysicalPG>(notebook, 569);
    choice(page, 123).selection(0);
    page.selChangeBoardTypeCBO(nullptr);
    sigXferBuffer.Enabled = 7;
    notebook.onOk(nullptr);
    EXPECT_EQ(phyXferBuffer.RLPrimary, 0);
    EXPECT_EQ(sigXferBuffer.Enabled == 7, recorded == 0);
  }
}

// The physical page.

TEST(PhysicalPage, ListsTheOtherAdaptersAsBackups) {
  const NotebookStage stage;
  advSettings = 0;
  const struct {
    int adapter, backup;
    const char* shown;
    int kept;
  } cases[] = {{0, -1, "None", -1}, {0, 1, "2", 1}, {0, 7, "8", 7}, {1, 2, "3", 2}, {1, 7, "8", 7},
               {2, 1, "2", 1},      {2, 3, "4", 3}, {7, 6, "7", 6}, {3, 9, "", 9}};
  for (const auto& c : cases) {
    currentAdapter = c.adapter;
    phyXferBuffer.RLPrimary = 1;
    phyXferBuffer.RLBackup = c.backup;
    DConfigDlg notebook(app->rootWindow());
    auto& page = pageOf<DConfigDlgPhysicalPG>(notebook, 569);
    zComboBoxStatic& list = choice(page, 125);
    EXPECT_EQ(list.getText(), c.shown) << c.adapter << ' ' << c.backup;
    page.storeDefaults();
    EXPECT_EQ(phyXferBuffer.RLBackup, c.kept) << c.adapter << ' ' << c.backup;
  }
}

TEST(PhysicalPage, TakesItsInputByMouseAndKeys) {
  const NotebookStage stage;
  xferBuffer[0].pvcs = {{{{2, 0, 0, 0, 0, 1}}, 100, 1, 1, 0}};
  DConfigDlg notebook(app->rootWindow());
  ASSERT_TRUE(x_driver::show(notebook));
  auto& page = pageOf<DConfigDlgPhysicalPG>(notebook, 569);
  for (const int id : {115, 115, 114, 114}) {
    clickOn(page, id);
    EXPECT_EQ(box(page, 115).check(), id == 115);
    EXPECT_EQ(box(page, 114).check(), id == 114);
  }
  zControl& vpi = control(page, 120);
  ASSERT_TRUE(x_driver::giveFocus(vpi));
  x_driver::key(XK_End);
  x_driver::key(XK_BackSpace);
  x_driver::text("25");
  EXPECT_EQ(BoardVPI, 25U);
  x_driver::text("6");
  EXPECT_EQ(vpi.getText(), "25") << "256 is none";
  ASSERT_TRUE(x_driver::giveFocus(box(page, 126)));
  EXPECT_EQ(control(*notebook.signalPage(), 120).getText(), "25");
  auto& table = *static_cast<LECPGPvcTBL*>(notebook.lecPage()->get(171));
  EXPECT_EQ(table.model()->getCell({2, 1})->getText(), "25 / 100");
  // From the field to another page at one go.
  ASSERT_TRUE(x_driver::giveFocus(vpi));
  x_driver::key(XK_End);
  x_driver::key(XK_BackSpace);
  notebook.select(notebook.findPage(570));
  ASSERT_TRUE(x_driver::giveFocus(*notebook.signalPage()->get(135)));
  EXPECT_EQ(control(*notebook.signalPage(), 120).getText(), "2");
}

TEST(PhysicalPage, KeepsTheFirstAdapterAPrimary) {
  const NotebookStage stage;
  currentAdapter = 0;
  phyXferBuffer.RLPrimary = 1;
  DConfigDlg notebook(app->rootWindow());
  ASSERT_TRUE(x_driver::show(notebook));
  auto& page = pageOf<DConfigDlgPhysicalPG>(notebook, 569);
  const BoxReader boxes;
  choice(page, 123).selection(0);
  page.selChangeBoardTypeCBO(nullptr);
  EXPECT_EQ(boxes.boxes(), Lines{"Restriction: Not Allowed!\nAdapter 1 may NOT be a Backup."});
  EXPECT_EQ(choice(page, 123).selection(), 1);
  page.SetInterrupt(11);
  EXPECT_EQ(page.GetInterrupt(), 11);
  page.SetInterrupt(6);
  EXPECT_EQ(page.GetInterrupt(), -1);
}

// The clients' page.

TEST(LecPage, CouplesPvcOnlyAndTheFrameSize) {
  const NotebookStage stage;
  xferBuffer[0].Enabled = 1;
  DConfigDlg notebook(app->rootWindow());
  ASSERT_TRUE(x_driver::show(notebook));
  notebook.select(notebook.findPage(571));
  DConfigDlgLECPG& page = *notebook.lecPage();
  zControl& mtu = control(page, 165);
  clickOn(page, 152);
  EXPECT_EQ(mtu.getText(), "1500");
  mtu.text("9180");
  clickOn(page, 152);
  EXPECT_EQ(mtu.getText(), "0");
  mtu.text("576");
  clickOn(page, 152);
  EXPECT_EQ(mtu.getText(), "576");
}

TEST(LecPage, ShowsTheWellKnownAddressAndTheOneBefore) {
  const NotebookStage stage;
  xferBuffer[0].Enabled = 1;
  xferBuffer[0].Lecs = 0;
  DConfigDlg notebook(app->rootWindow());
  ASSERT_TRUE(x_driver::show(notebook));
  notebook.select(notebook.findPage(571));
  DConfigDlgLECPG& page = *notebook.lecPage();
  const std::string typed = "39:84:0f:80:01:bc:61:df:00:07:0d:0f:00";
  control(page, 148).text(typed);
  control(page, 169).text("00:20:48:00:00:01-02");
  clickOn(page, 166);
  EXPECT_EQ(control(page, 148).getText(), "47:00:79:00:00:00:00:00:00:00:00:00:00");
  EXPECT_EQ(control(page, 169).getText(), "00:A0:3E:00:00:01-00");
  clickOn(page, 167);
  EXPECT_EQ(control(page, 148).getText(), typed);
  EXPECT_EQ(control(page, 169).getText(), "00:20:48:00:00:01-02");
  // Tabs keep what was entered.
  control(page, 159).text("half edi");
  auto& tabs = *static_cast<zTabCtrl*>(page.get(175));
  tabs.select(2);
  EXPECT_EQ(control(page, 159).getText(), "");
  tabs.select(1);
  EXPECT_EQ(control(page, 159).getText(), "half edi");
  EXPECT_EQ(control(page, 148).getText(), typed);
  EXPECT_EQ(xferBuffer[0].Lecs, 0);
  page.storeDefaults(0);
  EXPECT_EQ(xferBuffer[0].AtmPrefix, "39840f8001bc61df00070d0f00");
}

// The IP page.

TEST(IpPage, IsItsOwnArpServer) {
  const NotebookStage stage;
  ip1577XferBuffer.Enabled = 1;
  ip1577XferBuffer.EnableServer = 0;
  ip1577XferBuffer.IPAddress = "010.000.000.001";
  ip1577XferBuffer.ServerIPAddress = "010.000.000.254";
  DConfigDlg notebook(app->rootWindow());
  ASSERT_TRUE(x_driver::show(notebook));
  notebook.select(notebook.findPage(574));
  DConfigDlgI1577PG& page = *notebook.ip1577Page();
  control(page, 192).text("010.000.000.007");  // not stored yet
  control(page, 198).text("010.000.000.099");
  clickOn(page, 196);
  EXPECT_EQ(control(page, 198).getText(), "010.000.000.001");
  EXPECT_FALSE(control(page, 198).isEnabled() || control(page, 148).isEnabled());
  clickOn(page, 196);
  EXPECT_EQ(control(page, 198).getText(), "010.000.000.099");
  EXPECT_TRUE(control(page, 198).isEnabled() && control(page, 148).isEnabled());
}

}  // namespace
