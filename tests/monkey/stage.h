// What a program shows on the screen, read through the X server alone.
#pragma once

#include <X11/Xlib.h>

#include <string>
#include <vector>

struct Area {
  int x = 0, y = 0, width = 0, height = 0;  // pixels of the screen

  bool contains(int px, int py) const {
    return px >= x && px < x + width && py >= y && py < y + height;
  }
};

// The windows of one program, which it is known by through its main window. A window that goes
// while it is being read is passed over.
class Stage {
 public:
  // A window of the program that stands on the screen itself, without the frame that the window
  // manager gave it.
  struct TopLevel {
    Window window = None;
    Area area;
    bool managed = false;  // by the window manager; a menu or a tool tip is not
    friend bool operator==(const TopLevel& a, const TopLevel& b) { return a.window == b.window; }
  };

  // `mainTitle` is the title of the main window.
  Stage(Display* display, std::string mainTitle);

  // Looks at the screen. False when the program has no main window there, mapped or not.
  bool look();

  Display* display() const { return display_; }
  Window main() const { return main_; }
  bool isMainShown() const { return mainShown_; }
  // The topmost first.
  const std::vector<TopLevel>& topLevels() const { return topLevels_; }
  // Of the windows inside the topmost one, each control's own among them.
  const std::vector<Area>& insideTopmost() const { return inside_; }
  // Whether what is seen at this point of the screen belongs to the program.
  bool isOurs(int x, int y) const;
  // Whether the program made the window.
  bool made(Window window) const;

 private:
  struct Standing {  // a child of the root window
    Area area;
    bool ours = false;
    TopLevel shown;
  };

  Window findMain(Window below, int depth) const;
  Window findMade(Window below, int depth) const;
  bool areaOf(Window window, Area& area) const;
  std::vector<Window> childrenOf(Window window) const;
  void lookInside(Window window);

  Display* display_;
  std::string mainTitle_;
  Window root_;
  Window main_ = None;
  bool mainShown_ = false;
  std::vector<Standing> standing_;  // the topmost first
  std::vector<TopLevel> topLevels_;
  std::vector<Area> inside_;
  int looksSinceInside_ = 0;
};
