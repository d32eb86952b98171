// A host with the simulated driver and the sample configuration, and the real main dialog on it,
// whose adapter 2 (number 1) goes through Setup without anybody to press buttons.
#pragma once

#include <gtest/gtest.h>  // first: X has macros with names that it uses

#include <Xm/MessageB.h>

#include <cstring>
#include <fstream>
#include <sstream>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "atm/transfer_buffers.h"
#include "foundation/odlog.h"
#include "framework/resources/resources.h"
#include "shell/main_dialog.h"
#include "tests/framework/behind_a_loop.h"
#include "tests/support/lisim_process.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/x_driver.h"

using Lines = std::vector<std::string>;

inline std::string fileText(const std::string& path) {
  std::ifstream file(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Sends the log into a text for as long as it lives.
class LogText {
 public:
  LogText() {
    odlog.rdbuf(text_.rdbuf());
    odlog.width(0);  // set for something that nobody saw
  }
  ~LogText() { odlog.rdbuf(nullptr); }
  LogText(const LogText&) = delete;
  LogText& operator=(const LogText&) = delete;

  Lines lines() const {
    Lines lines;
    std::istringstream in(text_.str());
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
  }
  // Those that start like this.
  Lines startingWith(const std::string& start) const {
    Lines found;
    for (const std::string& line : lines())
      if (line.starts_with(start)) found.push_back(line);
    return found;
  }

 private:
  std::ostringstream text_;
};

// Presses a key in every message box that comes up, and keeps what they said.
class BoxReader {
 public:
  explicit BoxReader(KeySym answer = XK_Return) : answer_(answer) { wait(); }
  const Lines& boxes() const { return boxes_; }  // "caption: text"

 private:
  void wait() {
    answers_ = std::make_unique<AnswersBox>([this] {
      boxes_.push_back(read());
      x_driver::key(answer_);
      next_ = std::make_unique<Later>(1, [this] { wait(); });
    });
  }

  static std::string read() {
    Window focused = None;
    int revert = 0;
    XGetInputFocus(app->display(), &focused, &revert);
    Widget shell = XtWindowToWidget(app->display(), focused);
    while (!XtIsShell(shell)) shell = XtParent(shell);
    char* title = nullptr;
    WidgetList children = nullptr;
    XtVaGetValues(shell, XmNtitle, &title, XmNchildren, &children, nullptr);
    XmString label = nullptr;
    XtVaGetValues(XmMessageBoxGetChild(children[0], XmDIALOG_MESSAGE_LABEL), XmNlabelString, &label,
                  nullptr);
    Arg mapping[] = {{const_cast<char*>(XmNpattern), reinterpret_cast<XtArgVal>("\n")},
                     {const_cast<char*>(XmNpatternType), XmCHARSET_TEXT},
                     {const_cast<char*>(XmNsubstitute), 0},
                     {const_cast<char*>(XmNincludeStatus), XmINSERT}};
    XmString separator = XmStringSeparatorCreate();
    mapping[2].value = reinterpret_cast<XtArgVal>(separator);
    XmParseMapping lines = XmParseMappingCreate(mapping, XtNumber(mapping));
    auto* text = static_cast<char*>(
        XmStringUnparse(label, nullptr, XmCHARSET_TEXT, XmCHARSET_TEXT, &lines, 1, XmOUTPUT_ALL));
    XmParseMappingFree(lines);
    XmStringFree(separator);
    const std::string read = std::string(title) + ": " + text;
    XtFree(text);
    XmStringFree(label);
    return read;
  }

  KeySym answer_;
  Lines boxes_;
  std::unique_ptr<AnswersBox> answers_;
  std::unique_ptr<Later> next_;
};

// The configuration in the working directory, before any main dialog reads it.
class Folder {
 public:
  explicit Folder(const std::string& directory) : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(directory);
    std::filesystem::create_directories("etc/atm");
    std::filesystem::copy_file(ONDRELLE_SOURCE_DIR "/data/odconf.sample", "etc/atm/odconf");
    atmDevices = AtmDevices();
  }
  ~Folder() { std::filesystem::current_path(before_); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

 private:
  std::filesystem::path before_;
};

class Stage {
 public:
  static constexpr short adapter = 1;

  explicit Stage(const std::string& scenario)
      : driver(scenario), folder_(std::filesystem::path(driver.device()).parent_path()) {
    main = std::make_unique<DMainDlg>(app->rootWindow(), zResId(564));
    main->disableTimer();
    currentAdapter = adapter;
  }

  // Setup of the adapter with these edits of the transfer buffers, accepted. Returns the requests
  // that the driver got for it, as "PRIMITIVE/TYPE/LINK/UNIT" joined by blanks.
  std::string apply(const std::function<void()>& edit) {
    const std::size_t before = driver.trace().size();
    main->MapDataToXferBuffer(adapter);
    edit();
    main->MapXferBufferToData(adapter);
    return requestsSince(before);
  }

  std::string requestsSince(std::size_t line) const {
    std::string requests;
    const Lines trace = driver.trace();
    for (; line < trace.size(); ++line) {
      if (lisimField(trace[line], "event") != "request") continue;
      if (!requests.empty()) requests += ' ';
      requests += lisimField(trace[line], "prim") + '/' + lisimField(trace[line], "type") + '/' +
                  lisimField(trace[line], "link") + '/' + lisimField(trace[line], "unit");
    }
    return requests;
  }

  LisimProcess driver;

 private:
  Folder folder_;

 public:
  std::unique_ptr<DMainDlg> main;
};

// An adapter with something running of every kind, and something not.
inline void configureServices(short adapter) {
  const auto pvc = [](unsigned char last, std::uint16_t vci) {
    return AtmBridgedPvc{{{2, 0, 0, 0, 0, last}}, vci, 1, 0, 0};
  };
  for (const int n : {3, 4}) {
    AtmLEC& lec = atmDevices.lec[adapter][n];
    lec = AtmLEC();
    lec.Enabled = n == 3;
    std::strcpy(lec.ElanName, "eng");
    lec.pvcs = {pvc(1, static_cast<std::uint16_t>(100 + 2 * n)),
                pvc(2, static_cast<std::uint16_t>(101 + 2 * n))};
  }
  for (const int n : {2, 5, 6}) {
    AtmLES& les = atmDevices.les[adapter][n];
    les = AtmLES();
    les.Enabled = n == 2;
    std::strcpy(les.ElanName, "eng");
    const auto number = static_cast<unsigned char>(n);
    if (n != 6) les.clients = {{{0, 1, 2, 3, 4, number, 1}}, {{0, 1, 2, 3, 4, number, 2}}};
  }
  atmDevices.lecs[adapter] = AtmLECS();
  atmDevices.lecs[adapter].Enabled = 1;
  AtmIP1577& ip = atmDevices.ip1577[adapter];
  ip = AtmIP1577();
  ip.Enabled = 1;
  std::strcpy(ip.IPAddress, "10.0.0.1");
  ip.pvcs = {{{{10, 0, 0, 2}}, 120, 1, 0, 0}, {{{10, 0, 0, 3}}, 121, 0, 0, 0}};
  atmDevices.sig[adapter] = AtmSig();
  AtmPhy& phy = atmDevices.phy[adapter];
  phy.Framing = phy.VPI = 0;
  phy.cfgRLPrimary = phy.RLPrimary = 1;
  phy.cfgRLBackup = phy.RLBackup = 2;
  phy.cfgRLAutoSwitch = phy.RLAutoSwitch = 0;
}
