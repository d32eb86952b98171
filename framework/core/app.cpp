#include "framework/core/app.h"

#include <X11/XKBlib.h>
#include <X11/Xresource.h>
#include <X11/keysym.h>
#include <Xm/RepType.h>
#include <Xm/Xm.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "framework/controls/button.h"
#include "framework/core/errors.h"
#include "framework/core/event_loop.h"
#include "framework/core/frame_window.h"
#include "framework/dialogs/control_types.h"
#include "framework/drawing/color.h"
#include "framework/drawing/font.h"
#include "framework/layout/dialog_unit.h"

zApp* app = nullptr;
int zAppKeepRunning = 1;
int zargc = 0;
char** zargv = nullptr;
char* ZAPPXMprogname = nullptr;
int ziModalSem = 0;
Widget ziActiveDialog = nullptr;
char zDlgSizXFont[200] = "";
XFontStruct* __zAppXfs = nullptr;
int ziGlobIncDialogFont = 0;
int _ziPositionIsFrameWorkaround = 0;
int __scrPixWidth, __scrPixHeight, __scrMmWidth, __scrMmHeight;
int __scrPixPerInchX, __scrPixPerInchY;

namespace {

// The font that sizes dialog units, when the resources name none, and the next best ones. The last
// is on every server.
constexpr const char* measuringFonts[] = {"-*-helvetica-bold-r-*--10-*",
                                          "-*-helvetica-bold-r-*-*-10-*", "fixed"};

// The name of the display that the command line asked for, for the message that it can't be opened:
// what follows the last argument that begins with "-d".
const char* displayArgument(int argc, char** argv) {
  const char* name = nullptr;
  for (int i = 1; i + 1 < argc; ++i) {
    if (std::strncmp(argv[i], "-d", 2) == 0) name = argv[++i];
  }
  return name;
}

int perInch(int pixels, int millimetres) {
  return millimetres > 0 ? static_cast<int>(pixels / (millimetres / 25.4)) : 0;
}

}  // namespace

std::string getCommandLine(unsigned count, char** args) {
  std::string line;
  for (unsigned i = 0; i < count; ++i) {
    if (i) line += ' ';
    line += args[i];
  }
  return line;
}

zApp::zApp(unsigned argc, char** argv, std::string cmdLine)
    : cmdLine_(std::move(cmdLine)), argc_(static_cast<int>(argc)), argv_(argv) {
  app = this;
  ziClrm = new zColorMap;
  XSetErrorHandler(zAppXlibErrorHandler);
  ziMotifInitialize(0, argc_, argv_);
  ziInitPanes();
}

zApp::~zApp() {
  if (__zAppXfs) XFreeFont(display_, __zAppXfs);
  __zAppXfs = nullptr;
  delete ziClrm;
  ziClrm = nullptr;
  delete zAppFontDict;
  zAppFontDict = nullptr;
  zButton::resetStaticGroups();
  app = nullptr;
}

void zApp::ziMotifInitialize(int restart, int argc, char** argv) {
  if (restart) {
    disconnect();
  } else {
    XtToolkitInitialize();
    XtInitializeWidgetClass(applicationShellWidgetClass);
    XmRepTypeInstallTearOffModelConverter();
  }
  connect(argc, argv);
  XtInitializeWidgetClass(applicationShellWidgetClass);
  XmRepTypeInstallTearOffModelConverter();
  loadMeasuringFont();
}

void zApp::disconnect() {
  XtAppSetWarningHandler(context_, zAppErrorHandler);
  if (__zAppXfs) XFreeFont(display_, __zAppXfs);
  __zAppXfs = nullptr;
  XtCloseDisplay(display_);
  XtDestroyApplicationContext(context_);
}

void zApp::connect(int argc, char** argv) {
  context_ = XtCreateApplicationContext();
  if (!context_) {
    std::fputs("Error: unable to create application context.\n", stderr);
    std::exit(1);
  }
  if (!fallbacks_.empty()) XtAppSetFallbackResources(context_, fallbacks_.data());
  // The toolkit takes the options it knows out of the vector it is given.
  arguments_.assign(argv, argv + argc);
  arguments_.push_back(nullptr);
  zargc = argc;
  zargv = arguments_.data();
  display_ =
      XtOpenDisplay(context_, nullptr, nullptr, className_.c_str(), nullptr, 0, &zargc, zargv);
  if (display_) {
    // A key that is held down repeats its press, without releases in between.
    XkbSetDetectableAutoRepeat(display_, True, nullptr);
    return;
  }
  std::fprintf(stderr, "Error:  unable to open display \"%s\".\n",
               XDisplayName(displayArgument(argc, argv)));
  std::exit(1);
}

bool zApp::resource(const char* name, const char* resourceClass, std::string& value) const {
  char* type = nullptr;
  XrmValue found{};
  if (!XrmGetResource(XtDatabase(display_), name, resourceClass, &type, &found)) return false;
  value = found.addr;
  return true;
}

void zApp::loadMeasuringFont() {
  std::string name;
  if (resource((className_ + ".XmMainWindow.FontList").c_str(), "?.MainWindow.fontList", name)) {
    std::snprintf(zDlgSizXFont, sizeof zDlgSizXFont, "%s", name.c_str());
  } else {
    std::snprintf(zDlgSizXFont, sizeof zDlgSizXFont, "%s", measuringFonts[0]);
  }
  __zAppXfs = XLoadQueryFont(display_, zDlgSizXFont);
  for (std::size_t i = 1; !__zAppXfs && i < std::size(measuringFonts); ++i) {
    __zAppXfs = XLoadQueryFont(display_, measuringFonts[i]);
  }
}

void zApp::setAppFallbackResources(const char** list) {
  if (!list) return;
  fallbackTexts_.clear();
  for (; *list; ++list) fallbackTexts_.emplace_back(*list);
  fallbacks_.clear();
  for (std::string& text : fallbackTexts_) fallbacks_.push_back(text.data());
  fallbacks_.push_back(nullptr);
  ziMotifInitialize(1, argc_, argv_);
}

void zApp::setToplevel(Widget shell) {
  toplevel_ = shell;
}

void zApp::setScreenDefaults(Widget shell) {
  display_ = XtDisplay(shell);
  const Screen* screen = XtScreen(shell);
  __scrPixWidth = WidthOfScreen(screen);
  __scrPixHeight = HeightOfScreen(screen);
  __scrMmWidth = WidthMMOfScreen(screen);
  __scrMmHeight = HeightMMOfScreen(screen);
  __scrPixPerInchX = perInch(__scrPixWidth, __scrMmWidth);
  __scrPixPerInchY = perInch(__scrPixHeight, __scrMmHeight);
  ready_ = 1;
}

void zApp::altModMaskInit() {
  constexpr int modifiers = 8;
  XModifierKeymap* map = XGetModifierMapping(display_);
  for (int i = 0; i < modifiers * map->max_keypermod; ++i) {
    const KeyCode code = map->modifiermap[i];
    const KeySym symbol = code ? XkbKeycodeToKeysym(display_, code, 0, 0) : NoSymbol;
    if (symbol == XK_Alt_L || symbol == XK_Alt_R) altModMask_ = 1 << (i / map->max_keypermod);
  }
  XFreeModifiermap(map);
}

int zApp::intResource(const char* key, int missing) const {
  const std::string name = className_ + "." + key;
  std::string value;
  if (!resource(name.c_str(), name.c_str(), value)) return missing;
  return value == "True" || value == "true" ? 1 : std::atoi(value.c_str());
}

void zApp::readResources() {
  if (_debugOn == -1) _debugOn = intResource("debugOn", 0);
  _ziPositionIsFrameWorkaround = intResource("positionIsFrameWorkaround", 0);
  const std::string name = className_ + ".incFontInDialogBy";
  std::string value;
  if (resource(name.c_str(), name.c_str(), value)) ziGlobIncDialogFont = std::atoi(value.c_str());
}

int zApp::debugOn() const {
  return _debugOn;
}

void zApp::debugOn(int on) {
  _debugOn = on;
}

int zApp::loadAccelerator(const zResId&) {
  return 0;
}

void zApp::addHandler(zEventHandler handler, unsigned message) {
  if (!notifyDlist_) notifyDlist_ = std::make_shared<zNotifyNodeDlist>();
  notifyDlist_->append(std::make_unique<zNotifyNode>(message, 0UL, zNotifyNode::anyId, handler));
}

void zApp::dropHandler(const zEventHandler& handler, unsigned message) {
  if (!notifyDlist_) return;
  notifyDlist_->removeFirst(
      [&](const zNotifyNode& node) { return node.checkIdent(message, handler); });
}

void zApp::go() {
  XtAppSetWarningHandler(context_, zAppErrorHandler);
  XtAppSetErrorHandler(context_, zAppFatalErrorHandler);
  XSetErrorHandler(zAppXlibErrorHandler);
  while (zAppKeepRunning) ziProcessEvent();
}

void zApp::quit() {
  if (!rootWindow_) return;
  zEvent close(zMsgClose);
  zWindowWatch root(rootWindow_);
  if (doCommandHandler(&close, rootWindow_)) return;
  if (root.gone() || rootWindow_->kill(&close)) return;
  zAppKeepRunning = 0;
}
