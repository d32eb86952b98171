// Statistics as an administrator watches it, judged by what the driver is asked and when.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <X11/keysym.h>

#include "driver/frame.h"
#include "driver/query_types.h"
#include "tests/end_to_end/applet_fixture.h"
#include "tests/support/scripted_driver.h"

namespace {

constexpr char title0[] = "Statistics Adapter 0 - 02:4c:49:10:00:00";
constexpr char title2[] = "Statistics Adapter 2 - Backup: 02:4c:49:10:20:00";
constexpr char setupTitle2[] = "Setup Adapter 2 - Backup: 02:4c:49:10:20:00";

// A scenario of six boards without an alarm, on which signalling runs.
constexpr char host6[] =
    "boards 6\nboard 1 mac 02:4C:49:10:00:00\npair 1 4 auto\nboard 2 mac 02:4C:49:10:20:00\n"
    "pair 2 3 manual\nswitch 2\nboard 1 signalling up\nboard 2 signalling up\n";

enum Page { signallingPage, aal5Page, lecPage, lesPage, lecsPage, ipPage };

class StatsWindow {
 public:
  // Presses the button, waits for the notebook that is one more with this title, and takes it off
  // the main dialog.
  StatsWindow(const Person& person, const MainWindow& main, const std::string& title = title0)
      : person_(person) {
    const auto before = person.windows(title);
    main.click(statsButton);
    person.awaitCount(title, before.size() + 1);
    for (const Window each : person.windows(title)) {
      if (std::ranges::find(before, each) == before.end()) window = each;
    }
    lisimWaitFor([&] { return person.hasFocus(window); });
    person.place(window, asideX, 20);
  }

  void turnTo(Page page) const {
    constexpr int tabs[] = {40, 94, 148, 204, 251, 302};  // with the 75 dpi fonts
    person_.click(window, tabs[page], 12);
  }
  void clear() const { press(432); }
  void close() const { press(510); }

  Window window = None;

 private:
  static constexpr int asideX = 620;

  void press(int x) const { person_.click(window, x, person_.size(window).height - 20); }

  const Person& person_;
};

// A run of the program with the advanced pages.
struct StatsRun {
  explicit StatsRun(const std::string& directory) : run(directory, applet({"-DEBUG", "-ADV"})) {
    person.place(main.window, 0, 20);
  }

  ProgramRun run;
  const Person person;
  const MainWindow main{person};
};

// The requests of so many seconds, as "PRIMITIVE/TYPE/LINK" each with its number.
std::map<std::string, int> requestsIn(const Host& host, double seconds) {
  const std::size_t before = host.requests().size();
  usleep(static_cast<useconds_t>(seconds * 1e6));
  std::map<std::string, int> counts;
  const auto requests = host.requests();
  for (std::size_t i = before; i < requests.size(); ++i) ++counts[requests[i]];
  return counts;
}

std::vector<std::string> kinds(const std::map<std::string, int>& counts) {
  std::vector<std::string> kinds;
  kinds.reserve(counts.size());
  for (const auto& [kind, count] : counts) kinds.push_back(kind);
  return kinds;
}

using testing::Contains;
using testing::Not;
using testing::UnorderedElementsAre;

// Three notebooks, of an adapter twice and of the backup that stands in for another one.
TEST(Statistics, EachNotebookPollsItsPageBesideTheMainDialog) {
  const Host host(host6);
  StatsRun applet(host.directory);
  const StatsWindow first(applet.person, applet.main);
  EXPECT_THAT(kinds(requestsIn(host, 2.5)), testing::IsSupersetOf({"33/1/0", "1/4/0"}));
  first.turnTo(aal5Page);
  letFocusMove();
  auto counts = requestsIn(host, 3);
  EXPECT_THAT(kinds(counts), Not(Contains("33/1/0"))) << "the page that is not seen any more";
  EXPECT_NEAR(counts["129/3/0"], 3, 1);
  EXPECT_EQ(counts["129/3/0"], counts["129/4/0"]);

  const StatsWindow second(applet.person, applet.main);
  applet.main.clickRow(3);
  const StatsWindow third(applet.person, applet.main, title2);
  ASSERT_NE(third.window, None);
  third.turnTo(ipPage);
  letFocusMove();
  counts = requestsIn(host, 7);
  EXPECT_THAT(kinds(counts),
              UnorderedElementsAre("129/3/0", "129/4/0", "33/1/0", "1/4/0", "66/1/1", "129/16/0",
                                   "129/16/1", "129/16/2", "129/16/3", "129/16/4", "129/16/5"));

  // Setup and Global stop the main dialog's own timer and no other one.
  const std::pair<Spot, const char*> dialogs[] = {{setupButton, setupTitle2},
                                                  {globalButton, "Global Settings"}};
  for (const auto& [button, title] : dialogs) {
    applet.main.click(button);
    const Window dialog = applet.person.await(title);
    ASSERT_TRUE(lisimWaitFor([&] { return applet.person.hasFocus(dialog); })) << title;
    counts = requestsIn(host, 7);
    EXPECT_THAT(kinds(counts),
                UnorderedElementsAre("129/3/0", "129/4/0", "33/1/0", "1/4/0", "66/1/1"));
    if (button.y == setupButton.y) {
      applet.person.key(XK_Escape);
    } else {
      applet.person.key(XK_Home);  // the highest rate
      applet.person.click(dialog, applet.person.size(dialog).width - 124,
                          applet.person.size(dialog).height - 20);
    }
    EXPECT_TRUE(applet.person.awaitCount(title, 0)) << title;
  }
  EXPECT_NEAR(requestsIn(host, 3)["66/1/1"], 3, 1) << "a page that polls already keeps its rate";
  third.turnTo(aal5Page);
  third.turnTo(ipPage);
  letFocusMove();
  EXPECT_NEAR(requestsIn(host, 3)["66/1/1"], 12, 2);

  third.close();
  EXPECT_TRUE(applet.person.awaitCount(title2, 0));
  applet.person.closeByManager(second.window);
  EXPECT_TRUE(applet.person.awaitCount(title0, 1));
  counts = requestsIn(host, 7);
  EXPECT_THAT(kinds(counts), Contains("129/3/0"));
  EXPECT_THAT(kinds(counts), Not(testing::AnyOf(Contains("33/1/0"), Contains("66/1/1"))));
  const StatsWindow fourth(applet.person, applet.main, title2),
      fifth(applet.person, applet.main, title2);
  applet.main.click(closeButton);
  EXPECT_EQ(applet.run.end(), 0);
  EXPECT_TRUE(lisimWaitFor([&] { return host.events("close") == host.events("open"); }));
}

// What goes wrong in the middle of a poll holds the program up no longer than the exchange.
TEST(Statistics, AFaultyAnswerIsOverWithItsPoll) {
  const Host host(host6);
  StatsRun applet(host.directory);
  const StatsWindow notebook(applet.person, applet.main);
  for (const char* fault :
       {"fault 33 1 delay 2s times 1", "fault 33 1 code 9 times 2", "fault 33 1 errno 5 times 2",
        "fault 1 4 untouched times 2", "fault 1 4 rows 1 times 2", "fault 33 1 silence times 1"}) {
    SCOPED_TRACE(fault);
    EXPECT_EQ(host.driver.command(fault), "ok\n");
    const std::size_t before = host.requests().size();
    EXPECT_TRUE(lisimWaitFor([&] { return host.requests().size() > before; }));
    const bool again = lisimWaitFor([&] { return host.requests().size() >= before + 6; }) ||
                       lisimWaitFor([&] { return host.requests().size() >= before + 6; });
    EXPECT_TRUE(again);
    notebook.clear();
  }
  // A driver that is gone leaves the windows as they are.
  host.driver.command("fault 33 1 hangup");
  EXPECT_TRUE(applet.run.logged("Dai Request Failure"));
  for (const Page page : {aal5Page, lecPage, lesPage, lecsPage, ipPage}) {
    notebook.turnTo(page);
    notebook.clear();
  }
  notebook.close();
  EXPECT_TRUE(applet.person.awaitCount(title0, 0));
  applet.main.click(closeButton);
  EXPECT_EQ(applet.run.end(), 0);
}

// Polls that are always late leave the user a turn between them.
TEST(Statistics, ADriverSlowerThanThePollsCanBeLeft) {
  const Host host(host6);
  StatsRun applet(host.directory);
  const StatsWindow notebook(applet.person, applet.main);
  host.driver.command("fault 33 1 delay 1500ms");
  letFocusMove();
  const std::size_t before = host.requests().size();
  EXPECT_TRUE(host.awaitRequests(before + 3));
  notebook.close();
  EXPECT_TRUE(applet.person.awaitCount(title0, 0));
  applet.main.click(closeButton);
  EXPECT_EQ(applet.run.end(), 0);
}

// Active boards whose services answer with every word at its largest, or with endless texts.
TEST(Statistics, ADriverThatAnswersRubbishIsShown) {
  for (const int value : {0xff, 0x41}) {
    SCOPED_TRACE(value);
    const auto byte = static_cast<std::uint8_t>(value);
    const LisimScratch scratch;
    installConfiguration(scratch.file(""));
    ScriptedDriver driver(scratch.file("li"), [byte](ScriptedDriver& answers, WireMessage request) {
      auto& head = *reinterpret_cast<req_param_t*>(request.body.data());
      const bool isStatus = head.Prim == primAalQuery && head.Type == aalRlsStatus;
      std::fill(request.body.begin() + sizeof head, request.body.end(),
                isStatus ? std::uint8_t{0} : byte);
      if (head.Type == serviceNRows) head.NRow = 900;
      head.Resp = 0;
      answers.reply(request);
    });
    StatsRun applet(scratch.file(""));
    ASSERT_NE(applet.main.window, None);
    applet.main.click(statsButton);
    const std::string title = std::string("Statistics Adapter 0 - ") +
                              (value == 0xff ? "ff:ff:ff:ff:ff:ff" : "41:41:41:41:41:41");
    const Window notebook = applet.person.await(title);
    ASSERT_NE(notebook, None);
    for (const int tab : {94, 148, 204, 251, 302}) {
      applet.person.click(notebook, tab, 12);
      applet.person.click(notebook, 432, applet.person.size(notebook).height - 20);
    }
    applet.person.closeByManager(notebook);
    EXPECT_TRUE(applet.person.awaitCount(title, 0));
    applet.main.click(closeButton);
    EXPECT_EQ(applet.run.end(), 0);
  }
}

}  // namespace
