// A program of the test dialogs alone. With -keep it stays open while a monkey plays with it; -page
// and a number name the page that the notebook comes up with.
#include <cstdlib>
#include <string>

#include "framework/core/app.h"
#include "framework/core/errors.h"
#include "tests/monkey/kept_open.h"
#include "tests/support/every_control.h"

namespace {

class RootDlg : public EveryControlDlg {
 public:
  RootDlg(int firstPage, bool kept) : EveryControlDlg(firstPage), kept_(kept) {}

  int kill(zEvent*) override {
    return kept_ && isKeptOpen(app->display(), XtWindow(shell())) ? 1 : 0;
  }

 private:
  bool kept_;
};

}  // namespace

void zApp::zAppEntry() {
  debugFlags = zDebugTrace;  // a failed assertion is told in the trace, not in a box
  initIntPack();
  setDefaultDlgFontWeight(zFontSpec::weightBold);
  const std::string words = cmdLine();
  const std::size_t page = words.find("-page ");
  RootDlg root(page == std::string::npos ? 0 : std::atoi(words.c_str() + page + sizeof "-page"),
               words.find("-keep") != std::string::npos);
  go();
}
