// The application object.
//
// Life of a program: `main` builds the one zApp, which connects to the X server; zAppEntry,
// supplied by the application, builds the root window, which makes the application shell, and runs
// go(); go() returns when the root window has been closed; zAppEntry deletes the root window and
// returns; `main` deletes zApp and closes the display. Everything runs on one thread inside
// XtAppProcessEvent, in go() or in the loop of a modal dialog on top of it.
#pragma once

#include <X11/Intrinsic.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/core/event_handler.h"
#include "framework/core/notify.h"
#include "framework/core/task.h"
#include "framework/core/timer.h"
#include "framework/resources/resources.h"

class zFrameWin;

extern int zargc;  // the arguments as the toolkit left them
extern char** zargv;

class zApp {
 public:
  // `cmdLine` is the joined command line, without the program's name.
  zApp(unsigned argc, char** argv, std::string cmdLine);
  ~zApp();
  zApp(const zApp&) = delete;
  zApp& operator=(const zApp&) = delete;

  // Supplied by the application.
  void zAppEntry();

  // The main loop: until zAppKeepRunning is 0.
  void go();
  // Asks the root window to close: a handler of the close event or its `kill` may refuse.
  void quit();

  const char* cmdLine() const { return cmdLine_.c_str(); }
  // The arguments that the toolkit left: all but the options it knows. The last is followed by
  // null.
  int getNumArgs() const { return zargc; }
  char** getCmdArgs() const { return zargv; }
  void ziSetNumArgs(int count) { zargc = count; }
  Display* display() const { return display_; }
  XtAppContext context() const { return context_; }
  Widget toplevel() const { return toplevel_; }
  zFrameWin* rootWindow() const { return rootWindow_; }
  void setRootWindow(zFrameWin* window) { rootWindow_ = window; }
  zTaskDev* tasks() { return &tasks_; }
  zTimerDev* timers() const { return timers_.get(); }
  void timers(std::unique_ptr<zTimerDev> device) { timers_ = std::move(device); }
  const std::shared_ptr<zNotifyNodeDlist>& notifyDlist() const { return notifyDlist_; }
  const std::string& getAppClassName() const { return className_; }
  int debugOn() const;
  void debugOn(int on);
  int defaultDlgFontWeight() const { return defaultDlgFontWeight_; }
  // -1 means the normal weight, 400.
  void setDefaultDlgFontWeight(int weight) {
    defaultDlgFontWeight_ = weight == -1 ? normalWeight : weight;
  }
  int ready() const { return ready_; }
  int altModMask() const { return altModMask_; }
  XComposeStatus* composeStatus() { return &compose_; }
  void beep(int volume) { XBell(display_, volume); }

  // Stores a copy of a null-terminated list and connects anew, so that it takes effect.
  void setAppFallbackResources(const char** list);
  // The program's resources hold no accelerator table: always 0.
  int loadAccelerator(const zResId& id);

  // Handlers asked after a window's own.
  template <class T, class M>
  void setHandler(T* object, M member, unsigned message) {
    addHandler(zEventHandler(object, member), message);
  }
  template <class T, class M>
  void removeHandler(T* object, M member, unsigned message) {
    dropHandler(zEventHandler(object, member), message);
  }

  // Where resources without a module of their own are looked for from now on.
  void setDefaultResourceModule(const char* module) { zAppDefResource = module; }

  // Called once by the first frame window: the shell it made, and what is read then.
  void setToplevel(Widget shell);
  void setScreenDefaults(Widget shell);
  void altModMaskInit();
  void readResources();

 private:
  static constexpr int normalWeight = 400;

  void ziMotifInitialize(int restart, int argc, char** argv);
  void connect(int argc, char** argv);
  void disconnect();
  void loadMeasuringFont();
  // An integer, or 1 for "True"; `missing` without the resource.
  int intResource(const char* key, int missing) const;
  bool resource(const char* name, const char* resourceClass, std::string& value) const;
  void addHandler(zEventHandler handler, unsigned message);
  void dropHandler(const zEventHandler& handler, unsigned message);

  std::string cmdLine_;
  int argc_;
  char** argv_;
  std::vector<char*> arguments_;  // what zargv points to
  zFrameWin* rootWindow_ = nullptr;
  zTaskDev tasks_;
  std::unique_ptr<zTimerDev> timers_;
  std::shared_ptr<zNotifyNodeDlist> notifyDlist_;
  int defaultDlgFontWeight_ = normalWeight;
  int ready_ = 0;
  Display* display_ = nullptr;
  std::string className_ = "XBrennwick";
  std::vector<std::string> fallbackTexts_;
  std::vector<char*> fallbacks_;
  XtAppContext context_ = nullptr;
  Widget toplevel_ = nullptr;
  int altModMask_ = 0;
  XComposeStatus compose_{};
};

extern zApp* app;                // the application object
extern int zAppKeepRunning;      // every loop ends when it is 0
extern char* ZAPPXMprogname;     // argv[0]
extern int ziModalSem;           // modal loops now running
extern Widget ziActiveDialog;    // work area of the dialog shown last
extern char zDlgSizXFont[200];   // X name of the font that sizes dialog units
extern XFontStruct* __zAppXfs;   // that font, or null
extern int ziGlobIncDialogFont;  // points added to every dialog font
extern int _ziPositionIsFrameWorkaround;

// The screen's measures.
extern int __scrPixWidth, __scrPixHeight, __scrMmWidth, __scrMmHeight;
extern int __scrPixPerInchX, __scrPixPerInchY;

// The arguments joined with one blank between neighbours.
std::string getCommandLine(unsigned count, char** args);

// Registers the control classes of the dialog templates; called before the first dialog exists.
void initIntPack();
