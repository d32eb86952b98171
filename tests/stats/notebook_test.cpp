// The notebook as a whole: its pages, its links, and who polls.
#include "tests/stats/stats_stage.h"

#include "applet/my_table.h"
#include "stats/aal5_page.h"
#include "stats/ip1577_page.h"
#include "stats/signalling_page.h"
#include "tests/support/live_timers.h"

namespace {

std::string tabsOf(const DStatsDlg& notebook) {
  std::string tabs;
  for (const auto& def : notebook.tabs()->pages()) tabs += def->caption() + "|";
  return tabs;
}

TEST_F(StatsStage, TheBoardsPartDecidesOnPagesAndLinks) {
  struct Case {
    std::uint16_t linkState;
    int primary;
    std::int16_t activeLink;
    int advanced;
    const char* tabs;
    const char* firstAsked;
    const char* boardAsked;
  };
  constexpr char all[] = "Signalling|AAL5|LEC ...|LES ...|LECS|1577|";
  constexpr char plain[] = "Signalling|AAL5|LEC ...|1577|";
  for (const Case& c : {Case{0, 1, -1, 1, all, "1/0 DaiSigLnkStatus", "1/0 GET_SUNI_STATS"},
                        Case{0, 1, 2, 0, plain, "1/0 DaiSigLnkStatus", "1/0 GET_SUNI_STATS"},
                        Case{0, 0, 2, 0, plain, "2/0 DaiSigLnkStatus", "1/0 GET_SUNI_STATS"},
                        Case{0, 0, -1, 1, "AAL5|", "1/0 GET_SUNI_STATS", "1/0 GET_SUNI_STATS"},
                        Case{0, 0, 300, 1, "AAL5|", "1/0 GET_SUNI_STATS", "1/0 GET_SUNI_STATS"},
                        Case{1, 1, 2, 1, "AAL5|", "1/0 GET_SUNI_STATS", "1/0 GET_SUNI_STATS"},
                        Case{2, 0, 2, 1, "AAL5|", "1/0 GET_SUNI_STATS", "1/0 GET_SUNI_STATS"}}) {
    AtmPhy& board = atmDevices.phy[1];
    board.setLink(c.linkState, c.activeLink);
    board.RLPrimary = c.primary;
    advSettings = c.advanced;
    notebook_.reset();
    driver.asked();
    const DStatsDlg& notebook = open();
    EXPECT_EQ(tabsOf(notebook), c.tabs);
    const std::string asked = driver.asked();
    EXPECT_EQ(asked.substr(0, asked.find(',')), c.firstAsked) << c.tabs;
    EXPECT_NE(asked.find(c.boardAsked), std::string::npos);
  }
  EXPECT_EQ(notebook_->caption(), "Statistics Adapter 1 - 02:4c:49:00:00:00");
  atmDevices = AtmDevices();
}

TEST_F(StatsStage, OnlyThePageThatIsSeenPolls) {
  timerTime = 50;
  const int before = liveTimers();
  DStatsDlg& notebook = open();
  const auto polls = [&](std::vector<std::string> names) {
    driver.asked();
    std::string asked;
    return x_driver::waitUntil([&] {
      asked += driver.asked() + ", ";
      return std::ranges::all_of(
          names, [&](const auto& name) { return asked.find(name) != std::string::npos; });
    });
  };
  const auto pollsOnly = [&](const std::string& name) {
    driver.asked();
    for (int i = 0; i < 3; ++i) {
      if (!polls({name})) return false;
    }
    return true;
  };
  EXPECT_TRUE(notebook.signallingPage()->isPolling());
  EXPECT_FALSE(notebook.aal5Page()->isPolling());
  EXPECT_TRUE(pollsOnly("1/0 DaiSigLnkStatus"));
  notebook.select(notebook.findPage(576));
  EXPECT_FALSE(notebook.signallingPage()->isPolling());
  driver.asked();
  ASSERT_TRUE(polls({"GET_AAL_DRV_STATS"}));
  for (int i = 0; i < 5; ++i) {
    std::string asked;
    x_driver::waitUntil([&] { return !(asked = driver.asked()).empty(); });
    EXPECT_EQ(asked.find("DaiSigLnkStatus"), std::string::npos);
  }
  // A rate set meanwhile takes hold with the next page.
  timerTime = 60000;
  EXPECT_TRUE(polls({"GET_SUNI_STATS", "GET_AAL_DRV_STATS"}));
  notebook.select(notebook.findPage(580));
  EXPECT_TRUE(notebook.ip1577Page()->isPolling());
  driver.asked();
  x_driver::waitUntil([] { return false; }, 200);
  EXPECT_EQ(driver.asked(), "");
  // Clear is for the page that is seen, and the notebook stays.
  zEvent pressed(zMsgCommand);
  EXPECT_EQ(notebook.onOk(&pressed), 1);
  EXPECT_EQ(driver.asked(), "1/0 GET_IP_STATE");
  notebook_.reset();
  EXPECT_EQ(liveTimers(), before);
}

TEST_F(StatsStage, WithoutItsBoardOrItsDriverAPageStaysAsItWasMade) {
  BoardIsThere[1] = 0;
  open();
  EXPECT_EQ(driver.asked(), "");
  EXPECT_EQ(tabsOf(*notebook_), "Signalling|AAL5|LEC ...|LES ...|LECS|1577|");
  BoardIsThere[1] = 1;  // comes later, and is not asked: the page has no queries
  for (const int id : {575, 576, 577, 578, 579, 580}) {
    page(id).Update();
    page(id).ClearStats();
  }
  EXPECT_EQ(driver.asked(), "");
  EXPECT_EQ(fields(page(579), {148, 253}), "|");
  notebook_.reset();
  DaiOpenSuccess = 0;
  EXPECT_EQ(fields(page(576), {218, 214}), "SONET|");
  DaiOpenSuccess = 1;
}

TEST_F(StatsStage, FieldsAndLampsTakeNoInput) {
  sig_link_state stack{};
  stack.ilmi = 2;
  driver.serve(Query::LinkState, stack);
  StatsPage& shown = page(575);
  ASSERT_TRUE(x_driver::show(*notebook_));
  x_driver::click(*shown.get(203), {20, 8});
  x_driver::text("typed");
  x_driver::click(*shown.get(199), {8, 8});
  EXPECT_EQ(fields(shown, {203}), "ILMI Registered");
  EXPECT_EQ(lamp(shown, 199), Lamp::checked);
  EXPECT_EQ(static_cast<zBitmapButton*>(shown.get(199))->check(), 1);
}

// What the notebook gains goes to the tables.
TEST_F(StatsStage, TablesGrowWithTheNotebook) {
  for (const int tableSize : {120, 240}) {
    tblFontSpec = zFontSpec("Helv", zPrPoint(0, tableSize));
    open();
    StatsPage& lec = page(577);
    ASSERT_TRUE(x_driver::show(*notebook_));
    const auto height = [&](int id) { return lec.get(id)->sizer()->height(); };
    const int upper = height(243), lower = height(244), strip = height(175);
    EXPECT_EQ(upper, 5 * (11 * (tableSize / 10) / 10) + 69);
    notebook_->vmove(10, 10, notebook_->sizer()->width() + 60, notebook_->sizer()->height() + 100);
    ASSERT_TRUE(x_driver::waitUntil([&] { return height(244) == lower + 100; })) << height(244);
    EXPECT_EQ(height(243), upper);
    EXPECT_EQ(height(175), strip + 100);
  }
  tblFontSpec = zFontSpec("Helv", zPrPoint(0, -120), zFontSpec::weightNormal);
}

}  // namespace
