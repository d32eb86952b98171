#include "tests/monkey/monkey.h"

#include <X11/XKBlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>

#include "tests/monkey/kept_open.h"

namespace {

constexpr int eventsBetweenLooks = 25;
constexpr int triesForAPlace = 8;
constexpr int dragSteps = 5;
constexpr unsigned buttons = 5;
constexpr unsigned wheelUp = 4;
constexpr unsigned longestTurn = 6;
constexpr unsigned smallestWindow = 20;  // pixels
constexpr unsigned shownOfTopmost = 4;   // of so many places, all but one are in the topmost window
constexpr int roundsOfClosing = 200;
constexpr std::chrono::milliseconds pauseBetweenRounds(50);

constexpr char characters[] = "abcdefghijklmnopqrstuvwxyz0123456789 .,:;-+/'[]=";
constexpr KeySym controlKeys[] = {
    XK_Tab,    XK_Tab,  XK_Return,   XK_Return,    XK_Escape, XK_space, XK_space, XK_Up,    XK_Down,
    XK_Down,   XK_Left, XK_Right,    XK_BackSpace, XK_Delete, XK_Home,  XK_End,   XK_Prior, XK_Next,
    XK_Insert, XK_Menu, XK_KP_Enter, XK_KP_5,      XK_Help,   XK_F1,    XK_F2,    XK_F3,    XK_F4,
    XK_F5,     XK_F6,   XK_F7,       XK_F8,        XK_F9,     XK_F10,   XK_F11,   XK_F12,
};
// Control and Alt together would reach mwm, which has a key of its own there that no configuration
// takes away: it would go back to its built-in behaviour.
const std::vector<KeySym> modifiers[] = {
    {XK_Shift_L}, {XK_Control_L}, {XK_Alt_L}, {XK_Shift_L, XK_Control_L}, {XK_Shift_L, XK_Alt_L}};
constexpr KeySym locks[] = {XK_Caps_Lock, XK_Num_Lock};

}  // namespace

const Monkey::Trick Monkey::tricks[] = {
    {"character", 220, &Monkey::typeCharacter},
    {"control key", 200, &Monkey::typeControl},
    {"combination", 100, &Monkey::typeCombination},
    {"lock", 5, &Monkey::toggleLock},
    {"click", 220, &Monkey::click},
    {"double click", 50, &Monkey::doubleClick},
    {"drag", 50, &Monkey::drag},
    {"move", 100, &Monkey::movePointer},
    {"wheel", 30, &Monkey::turnWheel},
    {"move window", 6, &Monkey::moveWindow},
    {"resize window", 6, &Monkey::resizeWindow},
    {"iconify", 1, &Monkey::iconify},
    {"close window", 12, &Monkey::closeWindow},
};

Monkey::Monkey(Stage& stage, std::uint64_t seed, bool tells)
    : stage_(stage), display_(stage.display()), random_(seed), tells_(tells) {}

bool Monkey::play() {
  if (untilLook_-- <= 0 && !lookAround()) return false;
  unsigned all = 0;
  for (const Trick& t : tricks) all += t.weight;
  unsigned left = below(all);
  const Trick* chosen = tricks;
  for (; left >= chosen->weight; ++chosen) left -= chosen->weight;
  ++played_;
  if (tells_) std::printf("%ld: %s", played_, chosen->name);
  (this->*chosen->play)();
  if (tells_) std::printf("\n");
  return true;
}

bool Monkey::lookAround() {
  untilLook_ = eventsBetweenLooks;
  if (!stage_.look()) return false;
  keepInPlay();
  return true;
}

// Brings the main window back when it is not shown, and the keyboard when another program has it.
void Monkey::keepInPlay() {
  if (!stage_.isMainShown()) XMapWindow(display_, stage_.main());
  Window focused = None;
  int revert = 0;
  XGetInputFocus(display_, &focused, &revert);
  if (stage_.made(focused)) return;
  if (const Stage::TopLevel* window = someManaged()) {
    XSetInputFocus(display_, window->window, RevertToParent, CurrentTime);
  }
}

void Monkey::finish() {
  XkbLockModifiers(display_, XkbUseCoreKbd, ~0U, 0);
  const Atom done = XInternAtom(display_, monkeyDone, False);
  XChangeProperty(display_, stage_.main(), done, done, 32, PropModeReplace, nullptr, 0);
  // A window that a modal one blocks takes its turn when that has gone, and a late one when it
  // comes.
  for (int round = 0; round < roundsOfClosing && lookAround(); ++round) {
    for (const Stage::TopLevel& t : stage_.topLevels()) {
      if (t.managed) send(t.window, "WM_DELETE_WINDOW");
    }
    XSync(display_, False);
    std::this_thread::sleep_for(pauseBetweenRounds);
  }
}

// Chance.

unsigned Monkey::below(std::size_t end) {
  return static_cast<unsigned>(random_() % end);
}

Monkey::Place Monkey::inside(const Area& area) {
  return {area.x + static_cast<int>(below(static_cast<std::size_t>(area.width))),
          area.y + static_cast<int>(below(static_cast<std::size_t>(area.height)))};
}

Monkey::Place Monkey::somewhere() {
  const auto& shown = stage_.topLevels();
  const auto& topmost = stage_.insideTopmost();
  for (int i = 0; i < triesForAPlace && !shown.empty(); ++i) {
    const bool anywhere = topmost.empty() || below(shownOfTopmost) == 0;
    const Place place = inside(anywhere ? oneOf(shown).area : oneOf(topmost));
    if (!stage_.isOurs(place.x, place.y)) continue;
    last_ = place;
    break;
  }
  return last_;
}

const Stage::TopLevel* Monkey::someManaged() {
  std::vector<const Stage::TopLevel*> found;
  for (const Stage::TopLevel& t : stage_.topLevels()) {
    if (t.managed) found.push_back(&t);
  }
  return found.empty() ? nullptr : oneOf(found);
}

// Keys.

void Monkey::typeCharacter() {
  const char typed = characters[below(sizeof characters - 1)];
  key(static_cast<KeySym>(static_cast<unsigned char>(typed)));
}

void Monkey::typeControl() {
  key(oneOf(controlKeys));
}

void Monkey::typeCombination() {
  const std::vector<KeySym>& held = oneOf(modifiers);
  const bool character = below(2) == 0;
  key(character ? static_cast<KeySym>(characters[below(sizeof characters - 1)])
                : oneOf(controlKeys),
      held);
}

void Monkey::toggleLock() {
  key(oneOf(locks));
}

void Monkey::key(KeySym symbol, const std::vector<KeySym>& held) {
  if (tells_) {
    for (const KeySym h : held) std::printf(" %s", XKeysymToString(h));
    std::printf(" %s", XKeysymToString(symbol));
  }
  const auto fake = [this](KeySym s, Bool down) {
    XTestFakeKeyEvent(display_, XKeysymToKeycode(display_, s), down, CurrentTime);
  };
  for (const KeySym h : held) fake(h, True);
  fake(symbol, True);
  fake(symbol, False);
  for (auto h = held.rbegin(); h != held.rend(); ++h) fake(*h, False);
}

// Mouse.

void Monkey::goTo(const Place& at) {
  if (tells_) std::printf(" %d,%d", at.x, at.y);
  XTestFakeMotionEvent(display_, -1, at.x, at.y, CurrentTime);
}

void Monkey::press(unsigned button, bool down) {
  if (tells_ && down) std::printf(" button %u", button);
  XTestFakeButtonEvent(display_, button, down, CurrentTime);
}

void Monkey::pressAndRelease(unsigned button) {
  press(button, true);
  press(button, false);
}

void Monkey::click() {
  goTo(somewhere());
  pressAndRelease(below(2) == 0 ? 1 : 1 + below(buttons));
}

void Monkey::doubleClick() {
  goTo(somewhere());
  const unsigned button = below(3) > 0 ? 1 : 1 + below(buttons);
  pressAndRelease(button);
  pressAndRelease(button);
}

void Monkey::drag() {
  goTo(somewhere());
  const unsigned button = below(3) > 0 ? 1 : 1 + below(buttons);
  press(button, true);
  for (int step = 0; step < dragSteps; ++step) goTo(somewhere());
  press(button, false);
}

void Monkey::movePointer() {
  goTo(somewhere());
}

void Monkey::turnWheel() {
  goTo(somewhere());
  const unsigned button = wheelUp + below(2);
  for (unsigned turn = 1 + below(longestTurn); turn > 0; --turn) pressAndRelease(button);
}

// What the window manager does for a person.

void Monkey::moveWindow() {
  const Stage::TopLevel* window = someManaged();
  if (!window) return;
  const int screen = DefaultScreen(display_);
  const Place to = inside({0, 0, std::max(DisplayWidth(display_, screen) - window->area.width, 1),
                           std::max(DisplayHeight(display_, screen) - window->area.height, 1)});
  if (tells_) std::printf(" %#lx %d,%d", window->window, to.x, to.y);
  XMoveWindow(display_, window->window, to.x, to.y);
  untilLook_ = 0;
}

void Monkey::resizeWindow() {
  const Stage::TopLevel* window = someManaged();
  if (!window) return;
  const int screen = DefaultScreen(display_);
  const unsigned width =
      smallestWindow + below(static_cast<unsigned>(DisplayWidth(display_, screen)));
  const unsigned height =
      smallestWindow + below(static_cast<unsigned>(DisplayHeight(display_, screen)));
  if (tells_) std::printf(" %#lx %ux%u", window->window, width, height);
  XResizeWindow(display_, window->window, width, height);
  untilLook_ = 0;
}

// Comes back with the next look around.
void Monkey::iconify() {
  XIconifyWindow(display_, stage_.main(), DefaultScreen(display_));
  untilLook_ = 1;
}

void Monkey::closeWindow() {
  const Stage::TopLevel* window = someManaged();
  if (!window) return;
  if (tells_) std::printf(" %#lx", window->window);
  send(window->window, "WM_DELETE_WINDOW");
}

void Monkey::send(Window window, const char* protocol) {
  XEvent message{};
  message.xclient.type = ClientMessage;
  message.xclient.window = window;
  message.xclient.message_type = XInternAtom(display_, "WM_PROTOCOLS", False);
  message.xclient.format = 32;
  message.xclient.data.l[0] = static_cast<long>(XInternAtom(display_, protocol, False));
  message.xclient.data.l[1] = CurrentTime;
  XSendEvent(display_, window, False, NoEventMask, &message);
}
