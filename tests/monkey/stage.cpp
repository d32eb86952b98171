#include "tests/monkey/stage.h"

#include <X11/Xutil.h>

#include <algorithm>
#include <memory>

namespace {

// The server numbers what a client makes with these bits, and the client with those above.
constexpr XID numberBits = 0x1FFFFF;

constexpr int frameDepth = 3;  // windows that a window manager puts around one
constexpr int looksBetweenInside = 20;

struct Freed {
  void operator()(void* data) const { XFree(data); }
};

}  // namespace

Stage::Stage(Display* display, std::string mainTitle)
    : display_(display), mainTitle_(std::move(mainTitle)), root_(DefaultRootWindow(display)) {}

bool Stage::made(Window window) const {
  return main_ != None && (window & ~numberBits) == (main_ & ~numberBits);
}

bool Stage::isOurs(int x, int y) const {
  for (const Standing& s : standing_) {
    if (s.area.contains(x, y)) return s.ours && s.shown.area.contains(x, y);
  }
  return false;
}

std::vector<Window> Stage::childrenOf(Window window) const {
  Window root = None, parent = None;
  Window* children = nullptr;
  unsigned count = 0;
  if (!XQueryTree(display_, window, &root, &parent, &children, &count)) return {};
  const std::unique_ptr<Window, Freed> owned(children);
  return {children, children + count};
}

// The part of the window that is on the screen; false when it isn't viewable.
bool Stage::areaOf(Window window, Area& area) const {
  XWindowAttributes now;
  if (!XGetWindowAttributes(display_, window, &now) || now.map_state != IsViewable) return false;
  int left = 0, top = 0;
  Window child = None;
  if (!XTranslateCoordinates(display_, window, root_, 0, 0, &left, &top, &child)) return false;
  const int screen = DefaultScreen(display_);
  const int right = std::min(left + now.width, DisplayWidth(display_, screen));
  const int bottom = std::min(top + now.height, DisplayHeight(display_, screen));
  area = {std::max(left, 0), std::max(top, 0), 0, 0};
  area.width = right - area.x;
  area.height = bottom - area.y;
  return area.width > 0 && area.height > 0;
}

Window Stage::findMain(Window below, int depth) const {
  for (const Window child : childrenOf(below)) {
    char* title = nullptr;
    const bool named = XFetchName(display_, child, &title) && title;
    const std::unique_ptr<char, Freed> owned(title);
    if (named && mainTitle_ == title) return child;
    const Window found = depth > 0 ? findMain(child, depth - 1) : None;
    if (found != None) return found;
  }
  return None;
}

// The window of the program inside a frame.
Window Stage::findMade(Window below, int depth) const {
  if (made(below)) return below;
  if (depth == 0) return None;
  for (const Window child : childrenOf(below)) {
    const Window found = findMade(child, depth - 1);
    if (found != None) return found;
  }
  return None;
}

bool Stage::look() {
  XWindowAttributes now;
  if (main_ == None || !XGetWindowAttributes(display_, main_, &now)) {
    main_ = findMain(root_, frameDepth);
    if (main_ == None || !XGetWindowAttributes(display_, main_, &now)) return false;
  }
  mainShown_ = now.map_state == IsViewable;
  const std::vector<TopLevel> before = std::move(topLevels_);
  standing_.clear();
  topLevels_.clear();
  const std::vector<Window> children = childrenOf(root_);
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    Standing s;
    if (!areaOf(*child, s.area)) continue;
    s.shown.window = findMade(*child, frameDepth);
    s.shown.managed = s.shown.window != *child;
    s.ours = s.shown.window != None && areaOf(s.shown.window, s.shown.area);
    if (s.ours) topLevels_.push_back(s.shown);
    standing_.push_back(s);
  }
  if (topLevels_ != before || ++looksSinceInside_ > looksBetweenInside) {
    inside_.clear();
    looksSinceInside_ = 0;
    if (!topLevels_.empty()) lookInside(topLevels_.front().window);
  }
  return true;
}

void Stage::lookInside(Window window) {
  Area area;
  if (!areaOf(window, area)) return;
  inside_.push_back(area);
  for (const Window child : childrenOf(window)) lookInside(child);
}
