// The applet where something is missing or broken: it comes up, says so, and ends cleanly.
#include <gtest/gtest.h>

#include <X11/keysym.h>

#include "applet_fixture.h"
#include "driver/frame.h"
#include "tests/support/scripted_driver.h"

namespace {

// Brings the applet up in `directory`, finds the line in its log, uses it a little and closes it.
void expectUsable(const std::string& directory, const std::string& line,
                  const std::string& display = "") {
  ProgramRun run(directory, applet(), {.display = display});
  const Person person(display);
  // A driver that hangs keeps it waiting for up to 15 seconds, more than the usual patience.
  person.await(mainTitle);
  const MainWindow main(person);
  ASSERT_NE(main.window, None) << run.errors();
  EXPECT_EQ(run.missing({line, "Starting main timer."}), "");
  main.click(globalButton);
  const Window global = person.await("Global Settings");
  ASSERT_NE(global, None);
  person.closeByManager(global);
  EXPECT_TRUE(run.logged("Starting main timer.", 2));
  main.clickRow(1);
  person.closeByManager(main.window);
  EXPECT_EQ(run.end(), 0) << run.errors();
}

TEST(Hostile, WithoutADriver) {
  const LisimScratch scratch;
  installConfiguration(scratch.file(""));
  expectUsable(scratch.file(""), "dai_open: ioctlDesc: -1  OpenSuccess: 0");
}

TEST(Hostile, SetupWithoutADriverSaysSoAndEditsTheFile) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  const LisimScratch scratch;
  installConfiguration(scratch.file(""));
  ProgramRun run(scratch.file(""), applet());
  const Person person;
  const MainWindow main(person);
  main.click(setupButton);
  ASSERT_NE(person.await("Driver Error"), None);
  EXPECT_TRUE(person.windows("Setup Adapter 0 - -").empty());
  EXPECT_EQ(run.errors().find("Stopping main timer."), std::string::npos);
  person.key(XK_Return);
  const Window setup = person.await("Setup Adapter 0 - -");
  ASSERT_NE(setup, None);
  EXPECT_TRUE(run.logged("Stopping main timer."));
  lisimWaitFor([&] { return person.hasFocus(setup); });
  letFocusMove();
  for (const KeySym key : {XK_Tab, XK_space, XK_Tab, XK_Tab, XK_Return})
    person.key(key);  // SDH, Ok
  EXPECT_TRUE(run.logged("Starting main timer.", 2));
  std::ifstream file(scratch.file("etc/atm/odconf"));
  std::string line;
  while (std::getline(file, line) && line.find("\tFraming") == std::string::npos) continue;
  EXPECT_NE(line.find("= 1"), std::string::npos) << line;
}

TEST(Hostile, DriversThatMisbehave) {
  struct Case {
    const char* scenario;
    const char* line;
  };
  const Case cases[] = {
      {"boards 0", "NumBoards  - 0"},
      {"boards 3\nnumber 200", "NumBoards  - 200"},
      {"boards 3\nboard 2 silent", "Setting MAC Addr for Adapt#2 to Not Installed"},
      {"boards 3\nfault 129 1 untouched", "Dai Request Failure"},
      {"boards 3\nfault 129 2 hangup", "Dai Request Failure"},
      {"boards 3\nfault 129 16 code 9", "  GetRLSInfo: returned NULL!!!"},
      {"boards 3\nfault 129 5 silence times 1", "NumBoards  - 3"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.scenario);
    const Host host(c.scenario);
    expectUsable(host.directory, c.line);
  }
}

TEST(Hostile, WithoutAConfigurationOrAnyFontButFixed) {
  const XServer fixedOnly("/usr/share/fonts/X11/misc");
  const Host host;
  std::filesystem::remove_all(host.directory + "/etc");
  expectUsable(host.directory, "NumBoards  - 6", fixedOnly.name());
}

TEST(Hostile, DriversThatAnswerRubbish) {
  using Script = ScriptedDriver::Script;
  const std::vector<std::uint8_t> noise(3000, 0xff);
  const auto filled = [](WireMessage message, std::uint8_t byte) {
    for (std::size_t i = sizeof(req_param_t); i < message.body.size(); ++i) message.body[i] = byte;
    reinterpret_cast<req_param_t*>(message.body.data())->Resp = 0;
    return message;
  };
  const Script scripts[] = {
      // Accepted, with every word at its largest.
      [&](ScriptedDriver& driver, const WireMessage& request) {
        driver.reply(filled(request, 0xff));
      },
      // Accepted, with texts that have no end.
      [&](ScriptedDriver& driver, const WireMessage& request) {
        driver.reply(filled(request, 'A'));
      },
      // No message of the exchange at all.
      [&](ScriptedDriver& driver, const WireMessage&) { driver.sendRaw(noise); },
      [](ScriptedDriver& driver, const WireMessage&) {
        driver.sendRaw({2, 0, 0});
      },
      // A reply that is longer than what was asked for, and says so.
      [&](ScriptedDriver& driver, const WireMessage& request) {
        driver.sendHead({wireExchange, request.head.serial, 0, 0, 3000}, noise);
      },
  };
  for (const Script& script : scripts) {
    SCOPED_TRACE(&script - scripts);
    const LisimScratch scratch;
    installConfiguration(scratch.file(""));
    ScriptedDriver driver(scratch.file("li"), script);
    expectUsable(scratch.file(""), "GET_PACKAGE_REV");
  }
}

TEST(Hostile, TheXServerGoesAway) {
  XServer server;
  const Host host;
  ProgramRun run(host.directory, applet(), {.display = server.name()});
  {
    const Person person(server.name());
    ASSERT_TRUE(MainWindow(person).rowTurns(2, yellow));
  }
  server.process().send(SIGKILL);
  const auto killed = std::chrono::steady_clock::now();
  EXPECT_TRUE(lisimWaitFor([&] { return !run.running(); }));
  EXPECT_LT(std::chrono::steady_clock::now() - killed, std::chrono::seconds(1));
  EXPECT_TRUE(lisimWaitFor([&] { return host.events("close") == 1; }));
}

}  // namespace
