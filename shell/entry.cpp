// The start of the application proper: options, log, main dialog, main loop.
#include <strings.h>

#include <cstdlib>
#include <iostream>
#include <memory>

#include "applet/run_state.h"
#include "foundation/odlog.h"
#include "foundation/version.h"
#include "framework/core/app.h"
#include "framework/resources/resources.h"
#include "shell/main_dialog.h"

namespace {

constexpr int dialogFontWeight = 700;
constexpr int mainDialog = 564;

void printVersion(const std::string&) {
  std::cout << versionText() << std::endl;
  std::exit(0);
}

void startLog(const std::string& commandLine) {
  constexpr int standardError = 2;
  odlog.attach(standardError);
  odlog << commandLine << std::endl;
}

void offerAdvanced(const std::string&) {
  advSettings = 1;
}

// Looked for in this order on every run, anywhere in the command line and in any letter case.
struct Option {
  const char* word;
  void (*effect)(const std::string& commandLine);  // null: accepted without effect
};
constexpr Option options[] = {
    {"-VERS", printVersion},
    {"-DAIDEBUG", nullptr},
    {"-DEBUG", startLog},
    {"-ADV", offerAdvanced},
};

bool holds(const std::string& line, std::string_view word) {
  for (std::size_t at = 0; at + word.size() <= line.size(); ++at) {
    if (strncasecmp(line.c_str() + at, word.data(), word.size()) == 0) return true;
  }
  return false;
}

}  // namespace

void zApp::zAppEntry() {
  initIntPack();
  setDefaultDlgFontWeight(dialogFontWeight);
  const std::string commandLine = cmdLine();
  for (const Option& option : options) {
    if (option.effect && holds(commandLine, option.word)) option.effect(commandLine);
  }
  odlog << versionText() << std::endl;
  auto main = std::make_unique<DMainDlg>(nullptr, zResId(mainDialog));
  go();
}
