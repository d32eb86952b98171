// The applet on a host with a driver that works.
#include <gtest/gtest.h>

#include <X11/keysym.h>

#include "applet_fixture.h"

namespace {

using Lines = std::vector<std::string>;

constexpr char version[] =
    "Brennwick Ondrelle; SunOS 5.5.1 i386; Vers:2.20, Wed 06/03/98 15:12 (CDT).";

const Lines startRequests{
    "129/5/0",                                                   // package revision
    "129/1/0",                                                   // board state
    "129/2/0", "1/5/0", "129/2/0", "1/5/1", "129/2/0", "1/5/2",  // each board's address and
    "129/2/0", "1/5/3", "129/2/0", "1/5/4", "129/2/0",           // circuits; board 6 is silent
};
const Lines pollRequests{"129/16/0", "129/16/1", "129/16/2", "129/16/3", "129/16/4"};

Lines operator+(Lines first, const Lines& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

TEST(MainDialog, StartsAndPolls) {
  const Host host;
  ProgramRun run(host.directory, applet());
  const Person person;
  const MainWindow main(person);
  ASSERT_NE(main.window, None) << run.errors();

  const unsigned long colors[] = {green, yellow, green, red, grey, green, 0xffffff};
  for (int row = 1; row <= 7; ++row) EXPECT_TRUE(main.rowTurns(row, colors[row - 1])) << row;
  ASSERT_TRUE(host.awaitRequests(startRequests.size() + 2 * pollRequests.size()));
  EXPECT_EQ(host.requests(), startRequests + pollRequests + pollRequests);
  int board = 0;
  for (const std::string& line : host.driver.trace()) {
    if (lisimField(line, "prim") != "129" || lisimField(line, "type") != "2") continue;
    EXPECT_EQ(lisimField(line, "in").substr(0, 2), "0" + std::to_string(++board));
  }
  EXPECT_EQ(board, 6);
  EXPECT_NE(run.errors().find("  OpenSuccess: 1\n"), std::string::npos);
  EXPECT_EQ(
      run.missing(
          {"-DEBUG", version, " r> ReadPdf() from odconf", "GET_PACKAGE_REV", "NumBoards  - 6",
           "Board Mask - 0x3f", "Board Max VC == 1024",
           "Setting Status for Adapt#6 to 'Active' status == Adapter 6: Active, no backup.",
           "currentAdapter <-- 0", "  GetRLSInfo: Data Changed.",
           "Setting MAC Addr for Adapt#1 to 02:4c:49:10:00:00",
           "Setting Status for Adapt#2 to 'Inactive' status == Adapter 2: Inactive, backed up by "
           "adapter 3",
           "Setting MAC Addr for Adapt#3 to 02:4c:49:10:20:00",
           "Setting Status for Adapt#4 to 'Down' status == Adapter 4: Down", "Bad Board status: 9",
           "Setting MAC Addr for Adapt#6 to Not Installed", "Starting main timer.",
           "Main Dialog activated.", "GET_RLS_STATUS"}),
      "");

  // Two polls without a change: a request for each board, and no traffic with the X server.
  const std::size_t before = host.requests().size();
  const auto twoPolls = [&] {
    for (const std::size_t polls : {1u, 2u}) {
      EXPECT_TRUE(host.awaitRequests(before + polls * pollRequests.size()));
    }
  };
  EXPECT_EQ(person.requestsDuring(main.window, twoPolls), 0u);
  EXPECT_EQ(host.requests().size(), before + 2 * pollRequests.size());

  const auto sentence = main.statusLine();
  EXPECT_EQ(host.driver.command("board 1 link down"), "ok\n");
  EXPECT_GT(person.requestsDuring(main.window, [&] { EXPECT_TRUE(main.rowTurns(1, red)); }), 0u);
  EXPECT_TRUE(lisimWaitFor([&] { return main.statusLine() != sentence; }));
  EXPECT_TRUE(run.logged("  GetRLSInfo: Data Changed.", 6)) << "five at the start";
  EXPECT_TRUE(main.turnsBlank(activateButton));
}

TEST(MainDialog, OptionsAreFoundInAnyCase) {
  struct Case {
    Lines options;
    std::string output, log;
    bool opensWindow;
  };
  const std::string line = std::string(version) + "\n";
  const Case cases[] = {
      {{"-vers"}, line, "", false},
      {{"-debug", "-VERSION"}, line, "", false},
      {{"-DAIDEBUG"}, "", "", true},
      {{}, "", "", true},
      {{"-DEBUG", "-ADV"}, "", "-DEBUG -ADV\n" + line + "dai_open: ", true},
      {{"-adv", "x-debugger"}, "", "-adv x-debugger\n" + line + "dai_open: ", true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.options));
    const Host host;
    const Person person;
    ProgramRun run(host.directory, applet(c.options));
    if (c.opensWindow) person.closeByManager(MainWindow(person).window);
    EXPECT_EQ(run.end(), 0);
    EXPECT_EQ(run.output(), c.output);
    EXPECT_EQ(run.errors().substr(0, c.log.size()), c.log);
    EXPECT_EQ(run.errors().empty(), c.log.empty()) << run.errors();
    EXPECT_EQ(host.events("open"), c.opensWindow);
  }
}

TEST(MainDialog, FollowsTheSelection) {
  const Host host;
  ProgramRun run(host.directory, applet());
  const Person person;
  const MainWindow main(person);
  ASSERT_TRUE(main.rowTurns(4, red));
  ASSERT_TRUE(run.logged("Main Dialog activated."));
  const auto first = main.statusLine();

  main.clickRow(3);  // the backup that can give its link back
  EXPECT_TRUE(run.logged("currentAdapter <-- 2"));
  EXPECT_TRUE(lisimWaitFor([&] { return main.statusLine() != first; }));
  EXPECT_EQ(run.missing({"currentAdapter <-- 2", "ActivateBTN: show: De-Activate"}), "");
  person.key(XK_Down);  // a backup that is down
  EXPECT_TRUE(run.logged("currentAdapter <-- 3"));
  EXPECT_TRUE(main.turnsBlank(activateButton));
  EXPECT_EQ(run.missing({"currentAdapter <-- 3", "ActivateBTN: hide."}), "");

  const auto enabled = main.face(statsButton);
  person.key(XK_Down);
  person.key(XK_Down);  // the silent board
  EXPECT_TRUE(run.logged("currentAdapter <-- 5"));
  person.key(XK_Down);  // the table ends here
  EXPECT_TRUE(lisimWaitFor([&] { return main.face(statsButton) != enabled; }));
  main.click(statsButton);
  main.click(globalButton);
  const Window global = person.await("Global Settings");
  EXPECT_TRUE(lisimWaitFor([&] { return person.hasFocus(global); }));
  EXPECT_TRUE(person.windows("Statistics Adapter 5 - -").empty());
  person.key(XK_Escape);
  EXPECT_TRUE(run.logged("Starting main timer.", 2));

  main.clickRow(5);
  EXPECT_TRUE(run.logged("currentAdapter <-- 4", 2));
  EXPECT_TRUE(lisimWaitFor([&] { return main.face(statsButton) == enabled; }));

  main.clickRow(1);
  EXPECT_TRUE(lisimWaitFor([&] { return main.statusLine() == first; }));
  EXPECT_EQ(run.errors().find("currentAdapter <-- 6"), std::string::npos);
  EXPECT_FALSE(main.face(activateButton) == std::vector<unsigned long>(80 * 16, grey));
}

Lines switchRequests(const Host& host) {
  Lines switches;
  for (const std::string& request : host.requests()) {
    if (request.starts_with("130/")) switches.push_back(request);
  }
  return switches;
}

// By the button to the primary, by the button to the backup, and by itself to the primary again.
TEST(MainDialog, SwitchesALinkThereAndBack) {
  const Host host;
  ProgramRun run(host.directory, applet());
  const Person person;
  const MainWindow main(person);
  ASSERT_TRUE(main.rowTurns(2, yellow));
  main.clickRow(2);  // carried by the backup, which is the one to ask
  ASSERT_TRUE(run.logged("ActivateBTN: show: Activate"));
  main.click(activateButton);
  EXPECT_TRUE(main.rowTurns(2, green));
  EXPECT_TRUE(main.rowTurns(3, yellow));
  EXPECT_TRUE(
      run.logged("Setting Status for Adapt#3 to 'Available' status == Adapter 3: "
                 "Available, for adapter 2"));
  EXPECT_EQ(switchRequests(host), Lines{"130/4/2"});
  EXPECT_EQ(run.missing({"In clickedActivateBTN, for Adapter: 1", "DAI: RLS_SWITCH (2)",
                         "  GetRLSInfo: Data Changed.", "ActivateBTN: show: De-Activate"}),
            "");

  // Longer than a poll, so that both states are seen.
  EXPECT_EQ(host.driver.command("return-delay 8s\npair 2 3 auto"), "ok\nok\n");
  main.click(activateButton);
  EXPECT_TRUE(main.rowTurns(2, yellow));
  EXPECT_TRUE(main.rowTurns(3, green));
  EXPECT_EQ(switchRequests(host), (Lines{"130/4/2", "130/4/1"}));
  EXPECT_EQ(run.missing({"DAI: RLS_SWITCH (1)",
                         "Setting Status for Adapt#2 to 'Inactive' status == Adapter 2: Inactive, "
                         "backed up by adapter 3",
                         "Setting Status for Adapt#3 to 'Active' status == Adapter 3: Active, for "
                         "Adapter 2",
                         "ActivateBTN: show: Activate"}),
            "");
  EXPECT_TRUE(main.rowTurns(2, green));
  EXPECT_TRUE(main.rowTurns(3, yellow));
  EXPECT_EQ(switchRequests(host).size(), 2U) << "the driver has done it by itself";
}

TEST(MainDialog, SetupIsModalForUser0) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  const Host host;
  ProgramRun run(host.directory, applet());
  const Person person;
  const MainWindow main(person);
  ASSERT_TRUE(run.logged("Main Dialog activated."));
  // Ok by Return in the VPI's field, Cancel by Escape and by the window manager.
  const std::vector<KeySym> ways[] = {{XK_Tab, XK_Tab, XK_Tab, XK_Return}, {XK_Escape}, {}};
  int round = 0;
  for (const std::vector<KeySym>& keys : ways) {
    SCOPED_TRACE(++round);
    main.click(setupButton);
    const Window dialog = person.await(setupTitle);
    ASSERT_NE(dialog, None);
    EXPECT_TRUE(run.logged("Stopping main timer.", round));
    main.click(closeButton);  // out of reach
    lisimWaitFor([&] { return person.hasFocus(dialog); });
    letFocusMove();
    if (keys.empty()) person.closeByManager(dialog);
    for (const KeySym key : keys) person.key(key);
    EXPECT_TRUE(run.logged("Starting main timer.", round + 1));
    EXPECT_TRUE(person.awaitCount(setupTitle, 0));
  }
  EXPECT_TRUE(run.running());

  // Accepted with nothing changed: a session of its own without a request, and the file. Cancelled:
  // the lists alone. Each notebook has a session, too.
  EXPECT_EQ(host.events("open"), 5) << "the program's own, one a notebook, one of the acceptance";
  for (const std::string& request : host.requests())
    EXPECT_TRUE(request.starts_with("129/") || request.starts_with("1/")) << request;
  EXPECT_TRUE(run.logged("====== storing current settings in xfer buffer =====", 3));
  EXPECT_TRUE(run.logged(" w> WriteLink(0) to odconf", 1));
  EXPECT_TRUE(run.logged(" w> WriteMappedClients(0) to odconf", 2));
}

TEST(MainDialog, SetupIsRefusedToOthersAndStatisticsAreNot) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0, to become another";
  const Host host;
  ProgramRun run(host.directory, applet(), {.ordinaryUser = true});
  const Person person;
  const MainWindow main(person);
  ASSERT_NE(main.window, None) << run.errors();
  main.click(setupButton);
  ASSERT_NE(person.await("Privilege Error"), None);
  person.key(XK_Return);
  EXPECT_TRUE(person.awaitCount("Privilege Error", 0));
  main.click(statsButton);
  const Window statistics = person.await("Statistics Adapter 0 - 02:4c:49:10:00:00");
  EXPECT_NE(statistics, None);
  person.closeByManager(statistics);
  EXPECT_TRUE(person.awaitCount("Statistics Adapter 0 - 02:4c:49:10:00:00", 0));
  EXPECT_TRUE(person.windows(setupTitle).empty());
  EXPECT_EQ(run.errors().find("Stopping main timer."), std::string::npos);
  main.click(closeButton);
  EXPECT_EQ(run.end(), 0);
}

void expectOrderlyEnd(const Host& host, ProgramRun& run) {
  EXPECT_EQ(run.end(), 0);
  EXPECT_EQ(run.missing({"Starting main timer.", "Stopping main timer.", "dai_close: ioctlDesc "}),
            "");
  EXPECT_TRUE(lisimWaitFor([&] { return host.events("close") == 1; }));
}

void expectAllWaysOut(const std::string& display) {
  const std::function<void(const Person&, const MainWindow&)> ways[] = {
      [](const Person&, const MainWindow& main) { main.click(closeButton); },
      [](const Person& person, const MainWindow& main) { person.closeByManager(main.window); },
      [](const Person& person, const MainWindow& main) {
        main.clickRow(1);
        for (int i = 0; i < 5; ++i) person.key(XK_Tab);
        person.key(XK_space);
      },
      [](const Person& person, const MainWindow& main) {
        main.clickRow(1);
        person.key(XK_Tab, {XK_Shift_L});
        person.key(XK_space);
      },
  };
  for (const auto& leave : ways) {
    SCOPED_TRACE(&leave - ways);
    const Host host;
    ProgramRun run(host.directory, applet(), {.display = display});
    const Person person(display);
    const MainWindow main(person);
    ASSERT_TRUE(main.rowTurns(2, yellow));
    leave(person, main);
    expectOrderlyEnd(host, run);
  }
}

TEST(MainDialog, EndsInOrderUnderAWindowManager) {
  expectAllWaysOut("");
}

TEST(MainDialog, EndsInOrderWithoutAWindowManager) {
  const XServer bare;
  expectAllWaysOut(bare.name());
}

}  // namespace
