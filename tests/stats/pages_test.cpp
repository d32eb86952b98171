// What the pages show of what the driver serves.
#include "tests/stats/stats_stage.h"

#include <array>
#include <numeric>

namespace {

constexpr int signallingPage = 575;
constexpr int aal5Page = 576;
constexpr int lecPage = 577;
constexpr int lesPage = 578;
constexpr int lecsPage = 579;
constexpr int ipPage = 580;

// ---- Fields

// A record of words, the first of which is 100 and the others one more each.
template <std::size_t count>
std::array<std::uint32_t, count> wordsFrom100() {
  std::array<std::uint32_t, count> words;
  std::iota(words.begin(), words.end(), 100U);
  return words;
}

template <std::size_t count>
std::array<std::uint32_t, count> plus(std::array<std::uint32_t, count> words, std::uint32_t more) {
  for (std::uint32_t& word : words) word += more;
  return words;
}

const std::vector<int> aal5Counters = {214, 215, 216, 217, 231, 233, 232, 237, 235, 236};
const std::vector<int> lecsCounters = {253, 254, 255, 256, 257};
const std::vector<int> ipCounters = {214, 216, 231, 233};

TEST_F(StatsStage, CountersCountFromTheirBaselinesAndWrap) {
  const auto aal = wordsFrom100<25>();
  const auto lecs = wordsFrom100<12>();
  const auto ip = wordsFrom100<40>();
  const auto serve = [&](std::uint32_t more) {
    driver.serve(Query::AalStats, plus(aal, more));
    driver.serve(Query::LecsState, lecs_state{4, 0});
    driver.serve(Query::LecsStats, plus(lecs, more));
    driver.serve(Query::IpState, ip_state{5, {}});
    driver.serve(Query::IpStats, plus(ip, more));
  };
  serve(0);
  StatsPage* pages[] = {&page(aal5Page), &page(lecsPage), &page(ipPage)};
  const auto read = [&](bool clear) {
    for (StatsPage* each : pages) clear ? each->ClearStats() : each->Update();
    return fields(*pages[0], aal5Counters) + " " + fields(*pages[1], lecsCounters) + " " +
           fields(*pages[2], ipCounters);
  };
  EXPECT_EQ(read(false),
            "103|101|102|100|120|122|446|430|119|118 107|108|109|110|111 372|225|1134|354");
  EXPECT_EQ(read(true), "0|0|0|0|0|0|0|0|0|0 0|0|0|0|0 0|0|0|0");
  serve(5);
  EXPECT_EQ(read(false), "5|5|5|5|5|5|20|20|5|5 5|5|5|5|5 15|10|45|15");
  // The driver starts counting anew.
  serve(static_cast<std::uint32_t>(-100));
  EXPECT_EQ(
      read(false),
      "4294967196|4294967196|4294967196|4294967196|4294967196|4294967196|4294966896|4294966896"
      "|4294967196|4294967196 "
      "4294967196|4294967196|4294967196|4294967196|4294967196 -300|-200|-900|-300");
  serve(static_cast<std::uint32_t>(-1));  // and one wraps
  EXPECT_EQ(read(true), "0|0|0|0|0|0|0|0|0|0 0|0|0|0|0 0|0|0|0");
  serve(static_cast<std::uint32_t>(-1) + 7);
  EXPECT_EQ(fields(*pages[0], {214}), "0");
  EXPECT_EQ(read(false), "7|7|7|7|7|7|28|28|7|7 7|7|7|7|7 21|14|63|21");
}

TEST_F(StatsStage, IdentitiesAreShownAndBlankedWithTheirService) {
  lec_stats lec{};
  fillAddress(lec.address, 0x10);
  fillAddress(lec.macAddress, 0xA0);
  std::fill(std::begin(lec.elanName), std::end(lec.elanName), 'n');  // not terminated
  lec.elanType = 2;
  lec.mtuType = 4;
  driver.serve(Query::LecState, lec_state{6, {}, 0});
  driver.serve(Query::LecStats, lec);
  les_stats les{};
  fillAddress(les.address, 0x20);
  fillAddress(les.busAddress, 0x40);
  std::strcpy(les.elanName, "eng");
  les.elanType = 1;
  les.mtuType = 9;
  driver.serve(Query::LesState, les_state{1, 0, 0});
  driver.serve(Query::LesStats, les);
  lecs_stats lecs{};
  fillAddress(lecs.address, 0x60);
  lecs.elanType = 2;
  lecs.etherMtuType = 1;
  lecs.tokenRingMtuType = 3;
  driver.serve(Query::LecsState, lecs_state{1, 0});
  driver.serve(Query::LecsStats, lecs);
  sig_link_state stack{};
  stack.ilmi = 3;
  stack.saal = 3;
  fillAddress(stack.address, 0x80);
  driver.serve(Query::LinkState, stack);

  const std::vector<int> lecFields = {148, 169, 159, 240, 242, 241};
  const std::vector<int> lesFields = {148, 169, 247, 248, 159, 242, 241};
  const std::vector<int> lecsFields = {148, 169, 250, 251, 241};
  const std::vector<int> stackFields = {203, 204, 205, 148, 169};
  EXPECT_EQ(fields(page(lecPage), lecFields),
            "10:11:12:13:14:15:16:17:18:19:1a:1b:1c|1d:1e:1f:20:21:22-23|" + std::string(32, 'n') +
                "|a0:a1:a2:a3:a4:a5|18190|Token Ring");
  EXPECT_EQ(fields(page(lesPage), lesFields),
            "20:21:22:23:24:25:26:27:28:29:2a:2b:2c|2d:2e:2f:30:31:32-33|"
            "40:41:42:43:44:45:46:47:48:49:4a:4b:4c|4d:4e:4f:50:51:52-53|eng|XXXX|Ethernet");
  EXPECT_EQ(fields(page(lecsPage), lecsFields),
            "60:61:62:63:64:65:66:67:68:69:6a:6b:6c|6d:6e:6f:70:71:72-73|1516|9234|Token Ring");
  EXPECT_EQ(fields(page(signallingPage), stackFields),
            "ILMI Static Registration|Outgoing disconnection pending|Signalling Disconnected|"
            "80:81:82:83:84:85:86:87:88:89:8a:8b:8c|8d:8e:8f:90:91:92-93");

  driver.serve(Query::LecState, lec_state{0, {}, 0});
  driver.serve(Query::LesState, les_state{0, 0, 0});
  driver.serve(Query::LecsState, lecs_state{0, 0});
  stack.ilmi = 1;
  driver.serve(Query::LinkState, stack);
  for (const int id : {lecPage, lesPage, lecsPage, signallingPage}) page(id).Update();
  EXPECT_EQ(fields(page(lecPage), lecFields), "|||||");
  EXPECT_EQ(fields(page(lesPage), lesFields), "||||||");
  EXPECT_EQ(fields(page(lecsPage), lecsFields), "||||");
  EXPECT_EQ(fields(page(signallingPage), {148, 169}), "|");
  // A configuration server that stays off is asked again.
  page(lecsPage).Update();
  EXPECT_EQ(fields(page(lecsPage), {250, 253}), "1516|0");
}

TEST_F(StatsStage, TheBoardShowsItsPartAndItsMedium) {
  AtmPhy& board = atmDevices.phy[1];
  suni_stats line{};
  line.answers = 1;
  driver.serve(Query::SuniStats, line);
  struct Case {
    int primary;
    std::uint16_t linkState;
    std::uint32_t medium;
    const char* fields;
    const char* title;
  };
  for (const Case& c :
       {Case{1, 0, 2, "Primary|2|Active", "OC3c MM"},
        Case{1, 1, 3, "Primary|2|Inactive", "OC3c SM"}, Case{1, 2, 4, "Primary|2|Down", "155 UTP"},
        Case{1, 7, 5, "Primary|2|", "Unknown"}}) {
    board.RLPrimary = c.primary;
    board.linkState = c.linkState;
    line.medium = c.medium;
    driver.serve(Query::SuniStats, line);
    open();
    EXPECT_EQ(fields(page(aal5Page), {210, 212, 213}), c.fields);
    EXPECT_EQ(fields(page(aal5Page), {218}), c.title);
  }
  // Without a record of the line the configuration names it, until there is one.
  driver.refuse(Query::SuniStats);
  board.RLPrimary = 0;
  open();
  EXPECT_EQ(fields(page(aal5Page), {210, 218}), "Backup|Sonet");
  board.Framing = 1;
  page(aal5Page).Update();
  EXPECT_EQ(fields(page(aal5Page), {218}), "SDH");
  driver.serve(Query::SuniStats, line);
  page(aal5Page).Update();
  EXPECT_EQ(fields(page(aal5Page), {218}), "Unknown");
}

// ---- Lamps

enum class Picture { grey, red, green, yellow };

// The picture whose colour fills most of the lamp.
Picture pictureOf(const zWindow& page, int id) {
  x_driver::settle();
  const zWindow& lamp = *page.get(id);
  const zRect all({0, 0}, lamp.sizer()->dimension());
  const std::pair<Picture, zColor> colors[] = {{Picture::red, {208, 40, 43}},
                                               {Picture::green, {31, 158, 69}},
                                               {Picture::yellow, {242, 168, 28}}};
  for (const auto& [picture, color] : colors) {
    if (x_driver::countPixels(lamp, all, color) > 50) return picture;
  }
  return Picture::grey;
}

// Whether a lamp that is no layer's looks as its state says.
void expectPicture(const zWindow& page, int id, Lamp lamp) {
  const Picture expected = lamp == Lamp::disabled  ? Picture::grey
                           : lamp == Lamp::checked ? Picture::green
                                                   : Picture::red;
  EXPECT_EQ(pictureOf(page, id), expected) << id;
}

TEST_F(StatsStage, LampsOfTheStackTellWhatItsLayersDo) {
  struct Case {
    std::uint8_t ilmi, saal, signalling;
    Lamp lamps[3];
    Picture pictures[3];
  };
  constexpr auto yellow = Lamp::disabled, green = Lamp::checked, red = Lamp::unchecked;
  constexpr auto y = Picture::yellow, g = Picture::green, r = Picture::red;
  for (const Case& c : {
           Case{255, 255, 255, {red, red, red}, {r, r, r}},
           Case{0, 0, 0, {red, yellow, yellow}, {r, y, y}},
           Case{1, 8, 2, {yellow, yellow, yellow}, {y, y, y}},
           Case{2, 9, 1, {green, green, green}, {g, g, g}},
           Case{3, 10, 254, {green, yellow, yellow}, {g, y, y}},
       }) {
    sig_link_state stack{};
    stack.ilmi = c.ilmi;
    stack.saal = c.saal;
    stack.signalling = c.signalling;
    driver.serve(Query::LinkState, stack);
    StatsPage& stackPage = page(signallingPage);
    ASSERT_TRUE(x_driver::show(*notebook_));
    stackPage.Update();
    for (const int i : {0, 1, 2}) {
      EXPECT_EQ(lamp(stackPage, 199 + i), c.lamps[i]) << int{c.ilmi} << " " << i;
      EXPECT_EQ(pictureOf(stackPage, 199 + i), c.pictures[i]) << int{c.ilmi} << " " << i;
    }
  }
}

TEST_F(StatsStage, AlarmsOfTheLineTakeTheirNeighboursWithThem) {
  suni_stats line{};
  line.medium = 2;
  line.answers = 1;
  driver.serve(Query::SuniStats, line);
  StatsPage& board = page(aal5Page);
  ASSERT_TRUE(x_driver::show(*notebook_));
  const auto lamps = [&] {
    board.Update();
    std::string states;
    for (int id = 225; id <= 230; ++id) {
      const Lamp state = lamp(board, id);
      states += state == Lamp::disabled ? '-' : state == Lamp::checked ? 'G' : 'R';
      expectPicture(board, id, state);
    }
    return states;
  };
  EXPECT_EQ(lamps(), "GGGGGG");
  struct Case {
    std::uint32_t suni_stats::*alarm;
    const char* lamps;  // LOS, LOF, OOF, FERF, AIS, LOP
  };
  for (const Case& c : {Case{&suni_stats::los, "RGGGGG"}, Case{&suni_stats::lof, "GRGRGR"},
                        Case{&suni_stats::oof, "GGRGGG"}, Case{&suni_stats::ferf, "GGGRGG"},
                        Case{&suni_stats::ais, "GGGGRG"}, Case{&suni_stats::lop, "GGGGGR"}}) {
    suni_stats raised = line;
    raised.*c.alarm = 3;
    driver.serve(Query::SuniStats, raised);
    EXPECT_EQ(lamps(), c.lamps);
    driver.serve(Query::SuniStats, line);
    EXPECT_EQ(lamps(), "GGGGGG");
  }
  // An interface that does not answer is not asked again.
  line.answers = 0;
  driver.serve(Query::SuniStats, line);
  EXPECT_EQ(lamps(), "------");
  line.answers = 1;
  driver.serve(Query::SuniStats, line);
  driver.asked();
  EXPECT_EQ(lamps(), "------");
  EXPECT_EQ(driver.asked(), "1/0 GET_AAL_DRV_STATS");
}

TEST_F(StatsStage, A25MbitInterfaceHasTheOneLamp) {
  suni_stats line{};
  line.medium = 1;
  line.los = 1;  // says nothing here, nor does `answers`
  line.linkUp = 1;
  driver.serve(Query::SuniStats, line);
  StatsPage& board = page(aal5Page);
  ASSERT_TRUE(x_driver::show(*notebook_));
  EXPECT_EQ(fields(board, {218, 219}), "25 Mb/s|Link Up");
  for (const int id : {220, 221, 222, 223, 224, 226, 227, 228, 229, 230})
    EXPECT_FALSE(board.get(id)->isShown()) << id;
  EXPECT_EQ(lamp(board, 225), Lamp::checked);
  expectPicture(board, 225, Lamp::checked);
  line.linkUp = 0;
  driver.serve(Query::SuniStats, line);
  board.Update();
  EXPECT_EQ(lamp(board, 225), Lamp::unchecked);
  expectPicture(board, 225, Lamp::unchecked);
}

// State words, what the lamp shows then, and whether there is anything to show beside it.
struct ServiceCase {
  std::uint32_t state, detail;
  Lamp lamp;
  bool hasFields;
};

TEST_F(StatsStage, LampsOfTheServicesFollowTheirStates) {
  constexpr auto off = Lamp::disabled, on = Lamp::checked, half = Lamp::unchecked;
  driver.serve(Query::LecStats, lec_stats{});
  driver.serve(Query::LesStats, les_stats{});
  driver.serve(Query::LecsStats, lecs_stats{});
  driver.serve(Query::IpStats, ip_stats{});
  ASSERT_TRUE(x_driver::show(open()));
  const auto check = [&](int id, const ServiceCase& c, int field) {
    StatsPage& shown = page(id);
    shown.Update();
    EXPECT_EQ(lamp(shown, 239), c.lamp) << id << ": " << c.state << "/" << c.detail;
    expectPicture(shown, 239, c.lamp);
    EXPECT_EQ(!fields(shown, {field}).empty(), c.hasFields) << id << ": " << c.state;
  };
  for (const ServiceCase& c :
       {ServiceCase{0, 1, off, false}, ServiceCase{1, 0, half, true}, ServiceCase{6, 0, on, true},
        ServiceCase{1, 1, on, true}, ServiceCase{2, 1, half, true}, ServiceCase{5, 1, half, true},
        ServiceCase{7, 1, half, true}, ServiceCase{0, 0, off, false}}) {
    driver.serve(Query::LecState, lec_state{c.state, {}, c.detail});
    check(lecPage, c, 148);
  }
  for (const ServiceCase& c :
       {ServiceCase{1, 1, on, true}, ServiceCase{0, 1, off, false}, ServiceCase{1, 0, half, true},
        ServiceCase{1, 1, on, true}, ServiceCase{2, 1, half, true}}) {
    driver.serve(Query::LesState, les_state{c.state, 0, c.detail});
    check(lesPage, c, 148);
  }
  for (const ServiceCase& c : {ServiceCase{4, 0, on, true}, ServiceCase{3, 0, half, true},
                               ServiceCase{0, 0, off, false}, ServiceCase{9, 0, half, true}}) {
    driver.serve(Query::LecsState, lecs_state{c.state, 0});
    check(lecsPage, c, 148);
  }
  for (const ServiceCase& c : {ServiceCase{5, 0, on, true}, ServiceCase{0, 0, off, false},
                               ServiceCase{4, 0, half, true}, ServiceCase{6, 0, half, true}}) {
    driver.serve(Query::IpState, ip_state{c.state, {}});
    check(ipPage, c, 214);
  }
  const auto registration = [&](Lamp expected) {
    page(lecsPage).Update();
    EXPECT_EQ(lamp(page(lecsPage), 252), expected);
    expectPicture(page(lecsPage), 252, expected);
  };
  registration(half);
  lecs_stats registered{};
  registered.registered = 5;
  driver.serve(Query::LecsStats, registered);
  registration(on);
  driver.refuse(Query::LecsStats);
  registration(off);
}

// ---- A driver that fails in the middle

TEST_F(StatsStage, PagesStayBlankOrOldWhenTheDriverFails) {
  driver.serve(Query::LecState, lec_state{6, {}, 0});
  driver.serve(Query::LecStats, lec_stats{});
  driver.serve(Query::LesState, les_state{1, 0, 1});
  driver.serve(Query::LesStats, les_stats{});
  driver.serve(Query::LesTable, les_tbl{});
  driver.serve(Query::IpState, ip_state{5, {}});
  driver.serve(Query::IpStats, ip_stats{});
  driver.serve(Query::AalStats, aal_stats{});
  const auto tick = [&] {
    std::string shown;
    for (const int id : {lecPage, lesPage, ipPage, aal5Page}) page(id).Update();
    for (const int id : {lecPage, lesPage, ipPage})
      shown += lamp(page(id), 239) == Lamp::disabled ? '-' : 'x';
    return shown + " " + fields(page(lecPage), {148}).substr(0, 2) + "|" +
           fields(page(lesPage), {148}).substr(0, 2) + "|" + fields(page(ipPage), {214}) + "|" +
           fields(page(aal5Page), {214});
  };
  EXPECT_EQ(tick(), "xxx 00|00|0|0");
  for (const Query lost : {Query::LecStats, Query::LesStats, Query::IpStats, Query::AalStats})
    driver.refuse(lost);
  EXPECT_EQ(tick(), "xxx |||0") << "the board's counters keep their last text";
  EXPECT_EQ(cells(page(lesPage), 246), "");
  const std::vector<Query> states = {Query::LecState, Query::LesState, Query::IpState};
  for (const Query lost : states) driver.refuse(lost);
  EXPECT_EQ(tick(), "--- |||0");
  driver.serve(Query::LecState, lec_state{6, {}, 0});
  driver.serve(Query::LesState, les_state{1, 0, 1});
  driver.serve(Query::IpState, ip_state{5, {}});
  driver.serve(Query::LecStats, lec_stats{});
  driver.serve(Query::LesStats, les_stats{});
  driver.serve(Query::IpStats, ip_stats{});
  EXPECT_EQ(tick(), "--- |||0") << "a state that is what it was lights no lamp";
  driver.serve(Query::LecState, lec_state{5, {}, 0});
  driver.serve(Query::LesState, les_state{1, 0, 0});
  driver.serve(Query::IpState, ip_state{4, {}});
  EXPECT_EQ(tick(), "xxx 00|00|0|0") << "and another one does";
}

}  // namespace
