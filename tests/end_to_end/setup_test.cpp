// Setup as an administrator goes through it, judged by what the driver got, by the file and by what
// the pages show when they are opened again.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <map>

#include <X11/keysym.h>

#include "tests/end_to_end/applet_fixture.h"

namespace {

using Lines = std::vector<std::string>;

constexpr char editorTitle[] = "PVC Settings";

enum Page { physicalPage, signallingPage, lecPage, lesPage, lecsPage, ip1577Page };

// What a command prints.
std::string printed(const std::string& command) {
  std::string text;
  FILE* pipe = popen(command.c_str(), "r");
  for (int c = pipe ? fgetc(pipe) : EOF; c != EOF; c = fgetc(pipe)) text += static_cast<char>(c);
  if (pipe) pclose(pipe);
  return text;
}

std::string fileText(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The configuration without the line that tells the minute in which it was written.
std::string settings(const std::string& path) {
  std::ifstream file(path);
  std::string text;
  for (std::string line; std::getline(file, line);) {
    if (line.find("ODFileUpdated") == std::string::npos) text += line + "\n";
  }
  return text;
}

// The notebook of adapter 1 of the table, which Setup has just opened.
class SetupWindow {
 public:
  SetupWindow(const Person& person, const MainWindow& main, const std::string& title = setupTitle)
      : window(person.await(title)), person_(person), unit_(person.size(main.window)) {
    lisimWaitFor([&] { return person.hasFocus(window); });
  }

  // Clicks a place of the page that is shown, in its dialog units.
  void click(Spot spot) const {
    constexpr int left = 10, top = 25;  // of the pages in the window, in pixels
    constexpr int mainWidth = 286, mainHeight = 158;
    person_.click(window, left + spot.x * unit_.width / mainWidth,
                  top + spot.y * unit_.height / mainHeight);
  }
  void key(KeySym symbol, int times = 1) const {
    while (times-- > 0) person_.key(symbol);
  }
  void type(const std::string& text) const {
    for (const char c : text) person_.key(static_cast<KeySym>(static_cast<unsigned char>(c)));
  }
  // Puts a text in place of the one in the field there.
  void enter(Spot field, const std::string& text, int charactersBefore) const {
    click(field);
    key(XK_End);
    key(XK_BackSpace, charactersBefore);
    type(text);
  }
  // Chooses an item of the list there, counted from 1.
  void choose(Spot list, int item) const {
    click(list);
    key(XK_Home);
    key(XK_Down, item - 1);
    key(XK_Return);
  }
  // Turns to a page: the first tab, which passes the focus to its page after a while, and the keys.
  void turnTo(Page page) const {
    person_.click(window, 30, 12);
    letFocusMove();
    person_.key(XK_Tab, {XK_Shift_L});
    key(XK_Home);
    key(XK_Right, page);
  }
  // The tabs of a page, counted from 1.
  void turnToTab(int tab) const {
    click({8, 8});
    letFocusMove();
    key(XK_Home);
    key(XK_Right, tab - 1);
  }
  void pressOk() const { pressButton(432); }
  void pressCancel() const { pressButton(510); }

  const Window window;

 private:
  void pressButton(int x) const { person_.click(window, x, person_.size(window).height - 20); }

  const Person& person_;
  const Person::Size unit_;
};

// A program with the advanced pages, and the driver's view of what it does.
class SetupRun {
 public:
  // The circuits of adapter 1's first client are kept in this file, if it has a name.
  explicit SetupRun(const std::string& circuits = "")
      : run(withCircuits(circuits), applet({"-DEBUG", "-ADV"})), main(person) {
    EXPECT_TRUE(run.logged("Main Dialog activated."));
  }

  SetupWindow open() {
    main.click(setupButton);
    return SetupWindow(person, main);
  }
  // Waits until what was accepted or cancelled is done with.
  void awaitEnd() {
    EXPECT_TRUE(run.logged("Starting main timer.", ++closed_ + 1)) << run.errors();
  }

  std::string value(const std::string& section, const std::string& key) const {
    const std::string text =
        printed(ONDRELLE_BUILD_DIR "/odsect-demo " + file() + " get " + section + " " + key);
    return text.substr(0, text.find('\n'));
  }
  std::string file() const { return host.directory + "/etc/atm/odconf"; }
  // Control requests as the decoder tells them.
  Lines controls() const {
    Lines found;
    const std::string all =
        printed(ONDRELLE_BUILD_DIR "/lisim --decode " + host.directory + "/trace");
    std::istringstream in(all);
    for (std::string line; std::getline(in, line);) {
      for (const char* word : {", enable: ", ", disable", ", add ", ", delete ", ", set ", ", port",
                               ", update configuration", ", go"}) {
        if (line.find(word) == std::string::npos) continue;
        found.push_back(line.substr(line.find("adapter")));
        break;
      }
    }
    return found;
  }

  Host host;
  ProgramRun run;
  const Person person;
  const MainWindow main;

 private:
  const std::string& withCircuits(const std::string& name) const {
    std::string text = fileText(file());
    text.insert(text.find('=', text.find("PvcConfFile")) + 1, name);
    std::ofstream(file()) << text;
    return host.directory;
  }

  int closed_ = 0;
};

void editPhysical(const SetupWindow& setup) {
  setup.turnTo(physicalPage);
  setup.click({75, 25});  // SDH
  setup.enter({105, 63}, "7", 3);
  setup.click({18, 133});  // no automatic return
}

void editSignalling(const SetupWindow& setup) {
  setup.turnTo(signallingPage);
  setup.click({18, 95});  // no automatic configuration
  setup.choose({101, 41}, 1);
  setup.click({18, 111});  // no registration
  setup.enter({150, 127}, "39840f8001bc61df00070d0f00", 26);
}

void editLec(const SetupWindow& setup) {
  setup.turnTo(lecPage);
  setup.turnToTab(3);
  setup.click({20, 36});  // on
  setup.enter({150, 68}, "third floor", 31);
  setup.choose({110, 84}, 1);  // Ethernet
  setup.choose({240, 84}, 2);
  setup.click({85, 119});  // LES
  setup.enter({100, 151}, "00204800000901", 14);
  setup.turnToTab(4);
  setup.click({20, 36});
  setup.click({85, 36});  // circuits alone
}

void editLes(const SetupWindow& setup) {
  setup.turnTo(lesPage);
  setup.turnToTab(3);
  setup.click({20, 36});
  setup.enter({150, 52}, "ring", 31);
  setup.choose({100, 68}, 3);
  setup.click({77, 103});   // Token Ring
  setup.click({157, 103});  // strict name
}

void editLecs(const SetupWindow& setup) {
  setup.turnTo(lecsPage);
  setup.enter({100, 73}, "00204800000a00", 14);
  setup.click({18, 41});  // the well-known address, and back to what was typed
  setup.click({18, 41});
  setup.choose({100, 111}, 2);
  setup.click({158, 127});  // Token Ring
}

void editIp(const SetupWindow& setup) {
  setup.turnTo(ip1577Page);
  setup.enter({100, 52}, "010020030040", 12);
  setup.enter({230, 52}, "255255000000", 12);
  setup.click({20, 87});  // no ARP server any more
}

// A circuit of the client on display, in the editor that comes up empty.
void addCircuit(const SetupWindow& setup, const Person& person) {
  setup.click({250, 184});  // Add
  const Window editor = person.await(editorTitle);
  ASSERT_NE(editor, None);
  lisimWaitFor([&] { return person.hasFocus(editor); });
  setup.type("020000000001");
  setup.key(XK_Tab);
  setup.key(XK_End);
  setup.key(XK_BackSpace);
  setup.type("77");
  setup.key(XK_Return);
  EXPECT_TRUE(person.awaitCount(editorTitle, 0));
}

using testing::_;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;

TEST(Setup, EditsOnEveryPageReachTheDriverAndTheFile) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  SetupRun stage;
  {
    const SetupWindow setup = stage.open();
    ASSERT_NE(setup.window, None);
    editPhysical(setup);
    editSignalling(setup);
    editLec(setup);
    editLes(setup);
    editLecs(setup);
    editIp(setup);
    setup.pressOk();
    stage.awaitEnd();
  }
  const Lines controls = stage.controls();
  EXPECT_THAT(controls, Contains(AllOf(
                            HasSubstr("LEC 2, enable: LECS off"), HasSubstr("00:20:48:00:00:09:01"),
                            HasSubstr("MTU 4544, ELAN \"third floor\", ELAN type Ethernet"))));
  EXPECT_THAT(controls, Contains(AllOf(HasSubstr("LEC 3, enable"), HasSubstr("PVC only on"),
                                       HasSubstr("layer 3 MTU 1500"))));
  EXPECT_THAT(controls,
              Contains(AllOf(HasSubstr("LES 2, enable: ELAN \"ring\", name strict on"),
                             HasSubstr("MTU 9234, MTU strict off"), HasSubstr("Token Ring"))));
  EXPECT_THAT(controls, Contains(AllOf(HasSubstr("LECS, enable"),
                                       HasSubstr("ELAN type Token Ring, Ethernet MTU 4544"),
                                       HasSubstr("00:20:48:00:00:0a"))));
  EXPECT_THAT(controls, Contains(HasSubstr("IP, enable: ARP server 192.168.10.1, "
                                           "mask 255.255.0.0, IP 10.20.30.40")));
  EXPECT_THAT(controls, Contains(AllOf(
                            HasSubstr("signalling, update configuration"), HasSubstr(", UNI 3.0, "),
                            HasSubstr(", NetPrefix 39:84:0f:80:01:bc:61:df:00:07:0d:0f:00"))));
  EXPECT_THAT(controls, Contains(HasSubstr("set framing: framing SDH")));
  EXPECT_THAT(controls, Contains(HasSubstr("set VPI: VPI 7")));
  EXPECT_THAT(controls,
              Contains(AllOf(HasSubstr("set redundant link"), HasSubstr("auto-switch off"))));
  const std::map<std::pair<std::string, std::string>, std::string> values = {
      {{"/Adapter0", "Framing"}, "1"},
      {{"/Adapter0", "VPI"}, "7"},
      {{"/Adapter0/RedundantLink0", "RLAutoSwitch"}, "0"},
      {{"/Adapter0/Signalling0", "UniRev"}, "30"},
      {{"/Adapter0/Signalling0", "AddressRegistration"}, "0"},
      {{"/Adapter0/Signalling0/IlmiSection0", "IlmiEnableAutoConfig"}, "0"},
      {{"/Adapter0/Signalling0", "NetPrefix"}, "39840f8001bc61df00070d0f00"},
      {{"/Adapter0/LEC2", "ElanName"}, "third floor"},
      {{"/Adapter0/LEC2", "Mfs"}, "2"},
      {{"/Adapter0/LEC2", "ElanType"}, "0"},
      {{"/Adapter0/LEC3", "L3Mtu"}, "1500"},
      {{"/Adapter0/LES2", "ElanType"}, "2"},
      {{"/Adapter0/LECS0", "AtmEsiSel"}, "00204800000a00"},
      {{"/Adapter0/LECS0", "EtherMfs"}, "2"},
      {{"/Adapter0/IP15770", "IPAddress"}, "010.020.030.040"},
      {{"/Adapter0/IP15770", "ServerIPMask"}, "255.255.000.000"},
  };
  for (const auto& [where, value] : values)
    EXPECT_EQ(stage.value(where.first, where.second), value) << where.first << ' ' << where.second;
  // The pages show what was stored: accepted as they are, they change nothing.
  const std::string before = settings(stage.file());
  const SetupWindow again = stage.open();
  ASSERT_NE(again.window, None);
  again.turnTo(ip1577Page);
  again.pressOk();
  stage.awaitEnd();
  EXPECT_EQ(stage.controls(), controls);
  EXPECT_EQ(settings(stage.file()), before);
}

TEST(Setup, CancelKeepsNothingButCircuits) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  SetupRun stage("./etc/atm/circuits");
  const std::string before = fileText(stage.file());
  const auto expectCircuitAlone = [&] {
    EXPECT_EQ(stage.controls(), Lines());
    EXPECT_THAT(fileText(stage.host.directory + "/etc/atm/circuits"),
                AllOf(HasSubstr("VC    =77"), HasSubstr("=020000000001")));
  };
  {
    const SetupWindow setup = stage.open();
    ASSERT_NE(setup.window, None);
    editPhysical(setup);
    editSignalling(setup);
    editIp(setup);
    setup.turnTo(lecPage);
    addCircuit(setup, stage.person);
    ASSERT_NE(stage.person.await("PVC Error"), None) << "the first Setup has no session yet";
    setup.key(XK_Return);
    ASSERT_TRUE(stage.person.awaitCount("PVC Error", 0));
    setup.turnToTab(2);
    setup.pressCancel();
    stage.awaitEnd();
  }
  EXPECT_EQ(fileText(stage.file()), before);
  expectCircuitAlone();
  stage.open().pressOk();
  stage.awaitEnd();
  EXPECT_EQ(stage.value("/Adapter0", "Framing"), "0");
  expectCircuitAlone();
}

TEST(Setup, TellsTheDriverOfCircuitsAtOnceFromTheSecondTimeOn) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  SetupRun stage;
  {
    const SetupWindow setup = stage.open();
    ASSERT_NE(setup.window, None);
    setup.turnTo(lecPage);
    setup.enter({150, 68}, "first floor", 31);
    setup.turnToTab(2);
    setup.turnToTab(1);  // what was typed is still there, and goes with Ok
    setup.turnTo(lecsPage);
    setup.enter({100, 73}, "00204800000a00", 14);
    setup.pressOk();
    stage.awaitEnd();
  }
  const auto configServerAt = [](const std::string& esi) {
    return HasSubstr("LECS, enable: address 47:00:79:00:00:00:00:00:00:00:00:00:00:" + esi);
  };
  const auto off = HasSubstr("LECS, disable"), go = HasSubstr("LECS, go");
  EXPECT_THAT(stage.controls(),
              testing::ElementsAre(
                  AllOf(HasSubstr("LEC 0, enable"), HasSubstr("MTU 1516, ELAN \"first floor\"")),
                  off, configServerAt("00:20:48:00:00:0a:00"), go));
  const SetupWindow setup = stage.open();
  ASSERT_NE(setup.window, None);
  setup.turnTo(lecPage);
  addCircuit(setup, stage.person);
  const auto circuit = HasSubstr("adapter 0, LEC 0, add PVC: MAC 02:00:00:00:00:01, VC 77");
  EXPECT_TRUE(lisimWaitFor([&] { return stage.controls().size() == 5; }));
  EXPECT_THAT(stage.controls().back(), circuit);
  EXPECT_TRUE(stage.person.windows("PVC Error").empty());
  setup.turnTo(lecsPage);
  setup.click({18, 41});  // the well-known address
  setup.pressOk();
  stage.awaitEnd();
  EXPECT_THAT(stage.controls(), testing::ElementsAre(_, _, _, _, circuit, off,
                                                     configServerAt("00:a0:3e:00:00:01:00"), go));
  EXPECT_THAT(fileText(stage.host.directory + "/etc/atm/pvcconf0.0"), HasSubstr("=020000000001"));
}

TEST(Setup, OffersABackupThePhysicalPageAlone) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  SetupRun stage;
  stage.main.clickRow(4);
  stage.main.click(setupButton);
  const SetupWindow setup(stage.person, stage.main, "Setup Adapter 3 - Backup");
  ASSERT_NE(setup.window, None);
  setup.turnTo(ip1577Page);
  setup.click({20, 25});  // SONET, if this is the page
  setup.pressOk();
  stage.awaitEnd();
  EXPECT_EQ(stage.value("/Adapter3", "Framing"), "0");
  EXPECT_THAT(
      stage.controls(),
      testing::ElementsAre(HasSubstr("adapter 3, physical layer, set framing: framing SONET")));
}

// From the main dialog on, without the mouse.
TEST(Setup, ByTheKeyboardAlone) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  SetupRun stage;
  const Person& person = stage.person;
  const auto press = [&](KeySym key, int times = 1) {
    while (times-- > 0) person.key(key);
  };
  lisimWaitFor([&] { return person.hasFocus(stage.main.window); });
  press(XK_Tab, 2);  // from the table over Activate
  press(XK_space);
  const Window window = person.await(setupTitle);
  ASSERT_NE(window, None);
  lisimWaitFor([&] { return person.hasFocus(window); });
  letFocusMove();
  press(XK_Tab);
  press(XK_space);  // SDH
  press(XK_Tab, 2);
  press(XK_End);
  person.key('9');
  const auto back = [&](int times) {
    while (times-- > 0) person.key(XK_Tab, {XK_Shift_L});
  };
  back(4);  // to the tabs
  // On each page, from the tabs: how far it is to the box that turns the service off.
  for (const int stops : {1, 2, 2, 1, 2}) {
    press(XK_Right);
    press(XK_Tab, stops);
    press(XK_space);
    if (stops == 2) back(1);
    back(1);
  }
  // To Ok, over the two things of the last page that can still be used.
  press(XK_Tab, 3);
  press(XK_space);
  stage.awaitEnd();
  EXPECT_THAT(stage.controls(),
              testing::ElementsAre(HasSubstr("LEC 0, disable"), HasSubstr("LES 0, disable"),
                                   HasSubstr("LECS, disable"), HasSubstr("IP, disable"),
                                   HasSubstr("signalling, update configuration"),
                                   HasSubstr("state disabled"), HasSubstr("framing SDH"),
                                   HasSubstr("VPI 9")));
  for (const char* service : {"Signalling0", "LEC0", "LES0", "LECS0", "IP15770"})
    EXPECT_EQ(stage.value(std::string("/Adapter0/") + service, "Enabled"), "0") << service;
  EXPECT_EQ(stage.value("/Adapter0", "Framing"), "1");
  EXPECT_EQ(stage.value("/Adapter0", "VPI"), "9");
}

}  // namespace
