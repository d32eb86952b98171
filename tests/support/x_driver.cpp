#include "tests/support/x_driver.h"

#include <X11/Intrinsic.h>
#include <X11/XKBlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <Xm/Xm.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/dialogs/dialog_frame.h"

namespace x_driver {
namespace {

constexpr unsigned long tickMs = 5;
constexpr int dragSteps = 8;

// The connection that plays the person.
Display* person() {
  static Display* const connection = [] {
    Display* display = XOpenDisplay(DisplayString(app->display()));
    int event = 0, error = 0, major = 0, minor = 0;
    if (!display || !XTestQueryExtension(display, &event, &error, &major, &minor)) {
      std::fputs("The X server has no XTEST extension.\n", stderr);
      std::exit(1);
    }
    return display;
  }();
  return connection;
}

void done() {
  XSync(person(), False);
  settle();
}

void fakeKey(KeySym symbol, bool down) {
  XTestFakeKeyEvent(person(), XKeysymToKeycode(person(), symbol), down, CurrentTime);
}

bool needsShift(KeySym symbol) {
  const KeyCode code = XKeysymToKeycode(person(), symbol);
  return XkbKeycodeToKeysym(person(), code, 0, 0) != symbol &&
         XkbKeycodeToKeysym(person(), code, 0, 1) == symbol;
}

zPoint onScreen(const zWindow& window, zPoint at) {
  int x = 0, y = 0;
  Window child = None;
  const Window drawn = XtWindow(window.drawnWidget());
  XTranslateCoordinates(app->display(), drawn, DefaultRootWindow(app->display()), at.x, at.y, &x,
                        &y, &child);
  return {x, y};
}

void fakeMove(zPoint screen) {
  XTestFakeMotionEvent(person(), -1, screen.x, screen.y, CurrentTime);
}

struct ImageDeleter {
  void operator()(XImage* image) const { XDestroyImage(image); }
};
using Picture = std::unique_ptr<XImage, ImageDeleter>;

Picture pictureOf(const zWindow& window, const zRect& area) {
  settle();
  return Picture(XGetImage(app->display(), XtWindow(window.drawnWidget()), area.left, area.top,
                           static_cast<unsigned>(area.width()),
                           static_cast<unsigned>(area.height()), AllPlanes, ZPixmap));
}

zColor colorIn(const Picture& picture, int x, int y) {
  const unsigned long pixel = XGetPixel(picture.get(), x, y);
  return {static_cast<std::uint8_t>(pixel >> 16), static_cast<std::uint8_t>(pixel >> 8),
          static_cast<std::uint8_t>(pixel)};
}

void tick(XtPointer fired, XtIntervalId*) {
  *static_cast<bool*>(fired) = true;
}

}  // namespace

bool waitUntil(const std::function<bool()>& done, int milliseconds) {
  const int ticks = milliseconds / static_cast<int>(tickMs);
  for (int i = 0; i < ticks; ++i) {
    if (done()) return true;
    bool fired = false;
    XtAppAddTimeOut(app->context(), tickMs, tick, &fired);
    while (!fired) ziProcessEvent();
  }
  return done();
}

void handlePending() {
  while (XtAppPending(app->context())) ziProcessEvent();
}

void settle() {
  // What the first round made the program ask for is answered by the second.
  for (int round = 0; round < 3; ++round) {
    XSync(app->display(), False);
    handlePending();
  }
}

void keyDown(KeySym symbol) {
  fakeKey(symbol, true);
  done();
}

void keyUp(KeySym symbol) {
  fakeKey(symbol, false);
  done();
}

void key(KeySym symbol, std::initializer_list<KeySym> held) {
  const bool shift = needsShift(symbol);
  for (const KeySym h : held) fakeKey(h, true);
  if (shift) fakeKey(XK_Shift_L, true);
  fakeKey(symbol, true);
  fakeKey(symbol, false);
  if (shift) fakeKey(XK_Shift_L, false);
  for (const KeySym h : held) fakeKey(h, false);
  done();
}

void text(std::string_view characters) {
  for (const char c : characters) key(static_cast<KeySym>(static_cast<unsigned char>(c)));
}

void moveTo(const zWindow& window, zPoint at) {
  fakeMove(onScreen(window, at));
  done();
}

void press(unsigned button) {
  XTestFakeButtonEvent(person(), button, True, CurrentTime);
  done();
}

void release(unsigned button) {
  XTestFakeButtonEvent(person(), button, False, CurrentTime);
  done();
}

void click(const zWindow& window, zPoint at, unsigned button) {
  moveTo(window, at);
  press(button);
  release(button);
}

void doubleClick(const zWindow& window, zPoint at) {
  outwaitDoubleClick();
  click(window, at);
  click(window, at);
}

void drag(const zWindow& window, zPoint from, zPoint to) {
  moveTo(window, from);
  press();
  for (int step = 1; step <= dragSteps; ++step) {
    moveTo(window, {from.x + (to.x - from.x) * step / dragSteps,
                    from.y + (to.y - from.y) * step / dragSteps});
  }
  release();
}

void outwaitDoubleClick() {
  waitUntil([] { return false; }, XtGetMultiClickTime(app->display()) + 50);
}

zColor pixelAt(const zWindow& window, zPoint at) {
  return colorIn(pictureOf(window, {at, {1, 1}}), 0, 0);
}

int countPixels(const zWindow& window, const zRect& area, const zColor& color) {
  const Picture picture = pictureOf(window, area);
  int count = 0;
  for (int y = 0; y < area.height(); ++y) {
    for (int x = 0; x < area.width(); ++x) count += colorIn(picture, x, y) == color;
  }
  return count;
}

unsigned long requestsSent() {
  return NextRequest(app->display());
}

bool show(zDialogFrame& dialog) {
  dialog.showTimeout();
  const bool shown = waitUntil([&] {
    if (!XtIsRealized(dialog.shell())) return false;
    Window focused = None;
    int revert = 0;
    XGetInputFocus(app->display(), &focused, &revert);
    return focused == XtWindow(dialog.shell());
  });
  settle();  // its first drawing is done, too
  return shown;
}

bool hasFocus(const zWindow& window) {
  return XmGetFocusWidget(window.drawnWidget()) == window.focusWidget();
}

bool giveFocus(zWindow& window) {
  XmProcessTraversal(window.focusWidget(), XmTRAVERSE_CURRENT);
  return waitUntil([&] { return hasFocus(window); });
}

}  // namespace x_driver
