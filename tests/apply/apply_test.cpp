// What an accepted Setup makes of each service: the requests it sends, what it keeps, and what it
// says, with the simulated driver as the judge.
#include "tests/apply/setup_stage.h"

namespace {

constexpr char threeBoards[] = "boards 3\npair 2 3 manual\n";

const std::string startLec = "17/1/1/3 17/3/1/3 17/3/1/3";
const std::string stopLec = "17/2/1/3";
const std::string restartLes = "18/2/1/2 18/1/1/2";
const std::string restartLecs = "19/2/1/0 19/1/1/0 19/5/1/0 19/3/1/0 19/3/1/1 19/3/1/0 19/3/1/1";
const std::string startIp = "65/1/1/0 65/4/1/0 65/4/1/0";
const std::string updateSig = "34/2/1/0 34/5/1/0";

struct FieldCase {
  const char* name;
  std::function<void()> edit;
  std::string requests;
};

const FieldCase fieldCases[] = {
    {"nothing", [] {}, ""},
    {"LEC Config", [] { xferBuffer[3].Config = 1; }, startLec},
    {"LEC EnhancedVC", [] { xferBuffer[3].EnhancedVC = 1; }, startLec + " 17/7/1/3"},
    {"LEC L3Mtu", [] { xferBuffer[3].L3Mtu = 1500; }, startLec},
    {"LEC Lecs", [] { xferBuffer[3].Lecs = 0; }, startLec},
    {"LEC Enabled", [] { xferBuffer[3].Enabled = 0; }, stopLec},
    {"LEC PCR", [] { xferBuffer[3].defaultPcr.cps = 7; }, startLec},
    {"LEC PCR units", [] { xferBuffer[3].defaultPcr.units = kilobitsPerSecond; }, startLec},
    {"LEC Mfs", [] { xferBuffer[3].Mfs = 2; }, startLec},
    {"LEC ElanType", [] { xferBuffer[3].ElanType = 1; }, startLec},
    {"LEC pass-through", [] { xferBuffer[3].passThrough = 1; }, startLec},
    {"LEC ElanName", [] { xferBuffer[3].ElanName = "engi"; }, startLec},
    {"LEC prefix", [] { xferBuffer[3].AtmPrefix[25] = '1'; }, startLec},
    {"LEC ESI", [] { xferBuffer[3].AtmEsiSel[13] = '1'; }, startLec},
    {"LEC second prefix", [] { xferBuffer[3].AtmPrefix2[25] = '1'; }, startLec},
    {"LEC second ESI", [] { xferBuffer[3].AtmEsiSel2[13] = '1'; }, startLec},
    {"LEC MAC text", [] { xferBuffer[3].MacText = "other"; }, ""},
    {"LEC PVCs", [] { xferBuffer[3].pvcs.pop_back(); }, ""},
    {"LEC typed PCR", [] { xferBuffer[3].defaultPcr.value = 7; }, ""},
    {"stopped LEC, name", [] { xferBuffer[4].ElanName = "x"; }, "17/2/1/4"},
    {"stopped LEC, EnhancedVC", [] { xferBuffer[4].EnhancedVC = 1; }, "17/2/1/4"},
    {"LEC started", [] { xferBuffer[4].Enabled = 1; }, "17/1/1/4 17/3/1/4 17/3/1/4"},

    {"LES Mfs", [] { lesXferBuffer[2].Mfs = 2; }, restartLes},
    {"LES Enabled", [] { lesXferBuffer[2].Enabled = 0; }, "18/2/1/2"},
    {"LES ElanNameStrict", [] { lesXferBuffer[2].ElanNameStrict = 1; }, restartLes},
    {"LES MfsStrict", [] { lesXferBuffer[2].MfsStrict = 1; }, restartLes},
    {"LES ElanType", [] { lesXferBuffer[2].ElanType = 2; }, restartLes},
    {"LES ElanName", [] { lesXferBuffer[2].ElanName = "en"; }, restartLes},
    {"LES clients", [] { lesXferBuffer[2].clients.pop_back(); }, ""},
    {"stopped LES, name", [] { lesXferBuffer[6].ElanName = "x"; }, "18/2/1/6"},

    {"LECS EtherMfs", [] { lecsXferBuffer.EtherMfs = 1; }, restartLecs},
    {"LECS TRMfs", [] { lecsXferBuffer.TRMfs = 1; }, restartLecs},
    {"LECS Enabled", [] { lecsXferBuffer.Enabled = 0; }, "19/2/1/0"},
    {"LECS ElanType", [] { lecsXferBuffer.ElanType = 2; }, restartLecs},
    {"LECS prefix", [] { lecsXferBuffer.AtmPrefix[25] = '1'; }, restartLecs},
    {"LECS ESI", [] { lecsXferBuffer.AtmEsiSel[13] = '1'; }, restartLecs},

    {"IP Enabled", [] { ip1577XferBuffer.Enabled = 0; }, "65/2/1/0"},
    {"IP Config", [] { ip1577XferBuffer.Config = 1; }, startIp},
    {"IP EnableServer", [] { ip1577XferBuffer.EnableServer = 1; }, startIp},
    {"IP prefix", [] { ip1577XferBuffer.AtmPrefix[25] = '1'; }, startIp},
    {"IP ESI", [] { ip1577XferBuffer.AtmEsiSel[13] = '1'; }, startIp},
    {"IP server", [] { ip1577XferBuffer.ServerIPAddress = "10.0.0.9"; }, startIp},
    {"IP address", [] { ip1577XferBuffer.IPAddress = "10.0.0.9"; }, startIp},
    {"IP mask", [] { ip1577XferBuffer.ServerIPMask = "255.0.0.0"; }, startIp},
    {"IP MAC text", [] { ip1577XferBuffer.MacText = "other"; }, startIp},
    {"IP PVCs", [] { ip1577XferBuffer.pvcs.pop_back(); }, ""},

    {"signalling Enabled", [] { sigXferBuffer.Enabled = 0; }, updateSig},
    {"signalling UniRev", [] { sigXferBuffer.UniRev = 2; }, updateSig},
    {"signalling VciLow", [] { sigXferBuffer.VciLow = 33; }, updateSig},
    {"signalling VciMax", [] { sigXferBuffer.VciMax = 900; }, updateSig},
    {"signalling auto-config", [] { sigXferBuffer.IlmiEnableAutoConfig = 0; }, updateSig},
    {"signalling registration", [] { sigXferBuffer.AddressRegistration = 0; }, updateSig},
    {"signalling port change", [] { sigXferBuffer.PortChangeDetect = 0; }, updateSig},
    {"signalling prefix kind", [] { sigXferBuffer.RegDiffNetPrefix = 1; }, updateSig},
    {"signalling prefix", [] { sigXferBuffer.NetPrefix[25] = '1'; }, updateSig},

    {"framing", [] { phyXferBuffer.Framing = 1; }, "130/1/1/0"},
    {"VPI", [] { phyXferBuffer.VPI = 9; }, "130/2/1/0"},
    {"auto-switch", [] { phyXferBuffer.RLAutoSwitch = 1; }, "130/3/1/0"},
    {"link state", [] { phyXferBuffer.linkState = 1; }, ""},
    {"interrupt", [] { phyXferBuffer.InterruptNumber = 5; }, ""},
};

TEST(Apply, EachFieldAloneBringsExactlyItsRequests) {
  Stage stage(threeBoards);
  for (const FieldCase& c : fieldCases) {
    SCOPED_TRACE(c.name);
    configureServices(Stage::adapter);
    EXPECT_EQ(stage.apply(c.edit), c.requests);
    EXPECT_EQ(stage.apply([] {}), "") << "the buffers are the records now";
  }
}

// Several services at once: their order, the log's lines and what the driver then shows.
TEST(Apply, MixedEditsGoOutServiceByService) {
  Stage stage(threeBoards);
  configureServices(Stage::adapter);
  const LogText log;
  const std::string requests = stage.apply([] {
    phyXferBuffer.VPI = 200;
    phyXferBuffer.RLAutoSwitch = 1;
    phyXferBuffer.Framing = 1;
    sigXferBuffer.Enabled = 0;
    ip1577XferBuffer.Config = 1;
    ip1577XferBuffer.ServerIPMask = "255.255.0.0";
    lecsXferBuffer.TRMfs = 2;
    lesXferBuffer[2].ElanName = std::string(40, 's');
    lesXferBuffer[6].Mfs = 1;
    xferBuffer[3].ElanName = "plant floor";
    xferBuffer[3].EnhancedVC = 1;
    xferBuffer[15].Enabled = 1;
  });
  EXPECT_EQ(requests, startLec + " 17/7/1/3 17/1/1/15 " + restartLes + " 18/2/1/6 " + restartLecs +
                          " " + startIp + " " + updateSig + " 130/1/1/0 130/2/1/0 130/3/1/0");
  const Lines expected{"Lec3 data changed",
                       "LEC_INIT",
                       "BRDG_PVCADD",
                       "BRDG_PVCADD",
                       "LEC3 Enhanced VC data changed",
                       "set_ENHANCED: 1",
                       "Lec15 data changed",
                       "LEC_INIT",
                       "Les 2 data changed",
                       "LES_DISABLE",
                       "LES_ENABLE",
                       "Les 6 data changed",
                       "LES_DISABLE",
                       "Lecs data changed",
                       "LECS_DISABLE",
                       "LECS_ENABLE",
                       "LECS_GO",
                       "LECS_SET_ADDR",
                       "LECS_SET_ADDR",
                       "LECS_SET_ADDR",
                       "LECS_SET_ADDR",
                       "1577: != PvcOnlyCB",
                       "1577: != ARPServerIPMask",
                       "IP1577 data changed",
                       "IPATM_INIT",
                       "IPATM_PVCADD",
                       "IPATM_PVCADD",
                       "Signalling data changed",
                       "DaiSigPortCfg",
                       "DaiSigPortDisableEnable\2",
                       "Physical data changed",
                       "DAI: SET_SUNI_FRAMING : 1",
                       "DAI: SET_VPI : 200",
                       "DAI: SET_RLS : autoswitch: 1"};
  Lines said;
  for (const std::string& line : log.lines())
    if (std::find(expected.begin(), expected.end(), line) != expected.end()) said.push_back(line);
  EXPECT_EQ(said, expected);
  EXPECT_EQ(log.startingWith("Dai Request Failure"), Lines());
  EXPECT_EQ(log.startingWith("dai_open: handle: ").size(), 1U);
  EXPECT_EQ(log.startingWith("dai_close: handle ").size(), 1U);

  EXPECT_STREQ(atmDevices.les[1][2].ElanName, std::string(31, 's').c_str());
  const std::string shown = stage.driver.command("show");
  EXPECT_NE(shown.find("with backup 3 auto"), std::string::npos) << shown;
  EXPECT_NE(shown.find("framing sdh vpi 200"), std::string::npos) << shown;
}

TEST(Apply, RedundancyChangesAskForAReboot) {
  struct Case {
    const char* name;
    std::function<void()> edit;
    std::string requests;
    const char* change;  // null: no box
  };
  const Case cases[] = {
      {"auto-switch alone", [] { phyXferBuffer.RLAutoSwitch = 1; }, "130/3/1/0", nullptr},
      {"backup", [] { phyXferBuffer.RLBackup = 7; }, "", "Backup Board changed to Adapter 8."},
      {"no backup", [] { phyXferBuffer.RLBackup = -1; }, "", "Backup Board changed to `None'."},
      {"type and backup",
       [] {
         phyXferBuffer.RLPrimary = 0;
         phyXferBuffer.RLBackup = -1;
       },
       "", "Board Type changed to Backup."},
      {"type back, and VPI",
       [] {
         phyXferBuffer.RLPrimary = 1;
         phyXferBuffer.VPI = 1;
       },
       "130/2/1/0", "Board Type changed to Primary."},
  };
  Stage stage(threeBoards);
  configureServices(Stage::adapter);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    BoxReader reader;
    EXPECT_EQ(stage.apply(c.edit), c.requests);
    const Lines boxes =
        c.change
            ? Lines{std::string("Configuration Change: Redundant Link Configuration changed!\n") +
                    c.change + "\nYou must reboot for this change to take effect."}
            : Lines();
    EXPECT_EQ(reader.boxes(), boxes);
    const AtmPhy& phy = atmDevices.phy[Stage::adapter];
    EXPECT_EQ(phy.cfgRLPrimary, 1);
    EXPECT_EQ(phy.cfgRLBackup, 2) << "what the driver was started with";
    EXPECT_EQ(phy.cfgRLAutoSwitch, phyXferBuffer.RLAutoSwitch);
    EXPECT_EQ(phy.RLBackup, phyXferBuffer.RLBackup);
  }
  BoxReader reader;
  stage.main->clickedCloseBTN(nullptr);
  zAppKeepRunning = 1;  // for what comes after this test
  EXPECT_EQ(reader.boxes(), Lines{"Redundancy Configuration Change: ATM Redundancy parameters "
                                  "changed!\nYou will need to reboot your system."});
}

void changeEverything() {
  xferBuffer[3].ElanName = "new";
  lesXferBuffer[2].ElanName = "new";
  lecsXferBuffer.TRMfs = 2;
  ip1577XferBuffer.Config = 1;
  sigXferBuffer.UniRev = 2;
  phyXferBuffer.VPI = 77;
  phyXferBuffer.RLBackup = -1;
}

void expectEverythingKept() {
  EXPECT_STREQ(atmDevices.lec[1][3].ElanName, "new");
  EXPECT_STREQ(atmDevices.les[1][2].ElanName, "new");
  EXPECT_EQ(atmDevices.lecs[1].TRMfs, 3);
  EXPECT_EQ(atmDevices.ip1577[1].Config, 1);
  EXPECT_EQ(atmDevices.sig[1].UniRev, 40);
  EXPECT_EQ(atmDevices.phy[1].VPI, 77);
}

void expectEverythingInTheFile() {
  atmDevices = AtmDevices();
  DriverPdfEdit(app->rootWindow(), false).ReadPdf();
  EXPECT_STREQ(atmDevices.lec[1][3].ElanName, "new");
  EXPECT_EQ(atmDevices.lec[1][3].pvcs.size(), 2U);
  EXPECT_EQ(atmDevices.phy[1].VPI, 77);
  EXPECT_EQ(atmDevices.phy[1].cfgRLBackup, -1);
}

TEST(Apply, WithoutADriverAllIsKeptAndSignallingSaysSo) {
  const LisimScratch scratch;
  const Folder folder(scratch.file(""));
  DMainDlg main(app->rootWindow(), zResId(564));
  main.disableTimer();
  currentAdapter = 1;
  configureServices(1);
  main.MapDataToXferBuffer(1);
  changeEverything();
  {
    const LogText log;
    BoxReader reader;
    main.keepSetup(1);
    EXPECT_EQ(reader.boxes(),
              Lines{"Configuration Change: Signalling parameters changed!\nUnable to modify active "
                    "Signalling,\nYou will need to manually restart signalling."});
    EXPECT_EQ(log.startingWith("-> "), Lines());
    EXPECT_EQ(log.startingWith("dai_open: handle: "),
              Lines{"dai_open: handle: -1  OpenSuccess: 0"});
    EXPECT_EQ(log.startingWith("dai_close: handle "), Lines{"dai_close: handle -1"});
    EXPECT_EQ(log.startingWith(" w> WriteLink"), Lines{" w> WriteLink(1) to odconf"});
  }
  expectEverythingKept();
  expectEverythingInTheFile();
}

// The clients alone look at the private session; the others send, in vain.
TEST(Apply, WithoutTheRightToWriteClientsAreSkippedAndTheRestFails) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0, to become another";
  Stage stage(threeBoards);
  configureServices(Stage::adapter);
  {
    const LogText log;
    BoxReader reader;
    ASSERT_EQ(seteuid(65534), 0);
    EXPECT_EQ(stage.apply(changeEverything), "");
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_EQ(log.startingWith("LEC_INIT"), Lines());
    EXPECT_EQ(log.startingWith("-> Prim:18").size(), 2U);
    EXPECT_EQ(log.startingWith("Signalling:Update Config - DAI"),
              Lines{"Signalling:Update Config - DAI returned error(207)."});
    EXPECT_EQ(reader.boxes().size(), 1U) << "the driver and the board are there";
  }
  expectEverythingKept();
}

TEST(Apply, AnAbsentBoardIsStoredAndNotSent) {
  Stage stage("boards 1\n");
  configureServices(Stage::adapter);
  BoxReader reader;
  EXPECT_EQ(stage.apply([] {
    phyXferBuffer.VPI = 3;
    phyXferBuffer.RLBackup = -1;
  }),
            "");
  EXPECT_EQ(reader.boxes(), Lines());
  EXPECT_EQ(atmDevices.phy[Stage::adapter].VPI, 3);
  EXPECT_TRUE(lisimWaitFor([&] {
    return lisimField(stage.driver.trace().back(), "event") == "close";
  })) << "the private session is over";
}

// Cancel keeps the lists that the editors change at once, and nothing else.
TEST(Apply, CancelKeepsTheLists) {
  Stage stage(threeBoards);
  configureServices(Stage::adapter);
  const std::string before = fileText("etc/atm/odconf");
  stage.main->MapDataToXferBuffer(Stage::adapter);
  changeEverything();
  xferBuffer[3].pvcs.pop_back();
  ip1577XferBuffer.pvcs.clear();
  lesXferBuffer[2].clients.pop_back();
  const LogText log;
  stage.main->keepSetupLists(Stage::adapter);
  EXPECT_EQ(atmDevices.lec[1][3].pvcs.size(), 1U);
  EXPECT_EQ(atmDevices.ip1577[1].pvcs.size(), 0U);
  EXPECT_EQ(atmDevices.les[1][2].clients.size(), 1U);
  EXPECT_STREQ(atmDevices.lec[1][3].ElanName, "eng");
  EXPECT_EQ(atmDevices.phy[1].VPI, 0);
  EXPECT_EQ(fileText("etc/atm/odconf"), before);
  EXPECT_EQ(log.startingWith(" w> "),
            (Lines{" w> WriteRoutedPVCs(1) to odconf", " w> WriteBridgedPVCs(1) to odconf",
                   " w> WriteMappedClients(1) to odconf"}));
}

}  // namespace
