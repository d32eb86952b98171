// A host to run the applet on, and the applet's main window in the test's hands.
#pragma once

#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

#include "tests/support/applet_process.h"

constexpr char mainTitle[] = "Ondrelle v2.20";
constexpr char setupTitle[] = "Setup Adapter 0 - 02:4c:49:10:00:00";  // of the demo's first board

constexpr unsigned long green = 0x00ff00;
constexpr unsigned long yellow = 0xffff00;
constexpr unsigned long red = 0xff0000;
constexpr unsigned long grey = 0xc0c0c0;

// A place in the main dialog, in dialog units.
struct Spot {
  int x, y;
};
constexpr Spot activateButton{250, 26};
constexpr Spot setupButton{250, 44};
constexpr Spot statsButton{250, 62};
constexpr Spot globalButton{250, 80};
constexpr Spot closeButton{250, 103};

inline std::string sourceText(const std::string& name) {
  std::ifstream file(ONDRELLE_SOURCE_DIR "/data/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

// The applet moves the keyboard's focus within a window 150 ms after what asked for it, and nothing
// to be seen from outside tells when.
inline void letFocusMove() {
  usleep(1000000);
}

// The folder that the applet takes for its host, with the sample configuration.
inline void installConfiguration(const std::string& directory) {
  std::filesystem::create_directories(directory + "/etc/atm");
  std::ofstream(directory + "/etc/atm/odconf") << sourceText("odconf.sample");
}

inline std::vector<std::string> applet(std::vector<std::string> options = {"-DEBUG"}) {
  options.insert(options.begin(), ONDRELLE_BUILD_DIR "/ondrelle-demo");
  return options;
}

// A host with a driver. The demo's boards unless a scenario is given.
class Host {
 public:
  explicit Host(const std::string& scenario = sourceText("demo.scenario")) : driver(scenario) {
    installConfiguration(directory);
  }

  // The requests that the driver got, as "PRIMITIVE/TYPE/LINK".
  std::vector<std::string> requests() const {
    std::vector<std::string> found;
    for (const std::string& line : driver.trace()) {
      if (line.find(" event=request ") == std::string::npos) continue;
      found.push_back(lisimField(line, "prim") + "/" + lisimField(line, "type") + "/" +
                      lisimField(line, "link"));
    }
    return found;
  }
  bool awaitRequests(std::size_t count) const {
    return lisimWaitFor([&] { return requests().size() >= count; });
  }
  // How many trace lines tell of this event.
  int events(const std::string& name) const {
    int count = 0;
    for (const std::string& line : driver.trace()) count += lisimField(line, "event") == name;
    return count;
  }

  LisimProcess driver;
  const std::string directory = std::filesystem::path(driver.device()).parent_path();
};

class MainWindow {
 public:
  explicit MainWindow(const Person& person) : window(person.await(mainTitle)), person_(person) {}

  void click(Spot spot) const {
    const auto [x, y] = pixels(spot);
    person_.click(window, x, y);
  }
  void clickRow(int row) const { person_.click(window, rowX, rowY(row)); }
  bool rowTurns(int row, unsigned long color) const {
    return lisimWaitFor([&] {
      return person_.picture(window, rowX, rowY(row), 1, 1) == std::vector<unsigned long>{color};
    });
  }
  // What the middle of a button's place looks like, and whether there is nothing but background.
  std::vector<unsigned long> face(Spot spot) const {
    const auto [x, y] = pixels(spot);
    return person_.picture(window, x - 40, y - 8, 80, 16);
  }
  bool turnsBlank(Spot spot) const {
    return lisimWaitFor([&] { return face(spot) == std::vector<unsigned long>(80 * 16, grey); });
  }
  std::vector<unsigned long> statusLine() const {
    const auto [width, height] = person_.size(window);
    return person_.picture(window, 0, height - 20, width, 20);
  }

  const Window window;

 private:
  static constexpr int dialogWidth = 286;
  static constexpr int dialogHeight = 158;
  // Of the table, with the 75 dpi fonts.
  static constexpr int rowX = 18;
  static constexpr int firstRowY = 73;
  static constexpr int rowHeight = 18;

  static int rowY(int row) { return firstRowY + (row - 1) * rowHeight; }
  Spot pixels(Spot spot) const {
    const auto [width, height] = person_.size(window);
    return {spot.x * width / dialogWidth, spot.y * height / dialogHeight};
  }

  const Person& person_;
};
