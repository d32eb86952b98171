// Handler lists, the order in which they are asked, and what handlers may do while they are.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "framework/core/app.h"
#include "framework/core/child_window.h"
#include "framework/core/frame_window.h"
#include "tests/support/x_driver.h"

namespace {

constexpr int controlId = 7;
constexpr unsigned someCode = 3;

// Writes down which of its handlers were called.
class Listener : public zEvH {
 public:
  int first(zNotifyEvt*) { return called('1'); }
  int second(zNotifyEvt*) { return called('2'); }
  int any(zEvent*) { return called('a'); }
  int runs(zCommandEvt*) {
    called('r');
    action();
    return 0;
  }

  std::string calls;
  int result = 0;
  std::function<void()> action = [] {};

 private:
  int called(char who) {
    calls += who;
    return result;
  }
};

class TargetWindow : public zChildWin {
 public:
  explicit TargetWindow(std::string& log)
      : zChildWin(app->rootWindow(), new zSizer(0, 0, 10, 10, nullptr), 0, "", 70), log_(log) {}
  int command(zCommandEvt*) override {
    log_ += 'v';
    return 1;
  }

 private:
  std::string& log_;
};

class TargetControl : public zChildWin {
 public:
  explicit TargetControl(zWindow* parent) : zChildWin(parent, nullptr, 0, "", controlId) {}
};

class Dispatch : public testing::Test {
 protected:
  Dispatch() : window_(new TargetWindow(virtualCalls_)), control_(new TargetControl(window_)) {}
  ~Dispatch() override { delete window_; }

  int command(unsigned code = someCode, int id = controlId) {
    zEvent event(zMsgCommand);
    event.codeWord = code;
    event.parm1 = id;
    return doCommandHandler(&event, window_);
  }

  std::string virtualCalls_;
  TargetWindow* window_;
  TargetControl* control_;
  Listener listener_;
};

TEST_F(Dispatch, AsksControlListWindowApplicationThenTheVirtual) {
  Listener onWindow, onApp;
  control_->setupNotify(&listener_, &Listener::first, someCode);
  control_->setCommand(&onWindow, &Listener::second);
  app->setHandler(&onApp, &Listener::any, zMsgCommand);
  EXPECT_EQ(command(), 1);
  EXPECT_EQ(listener_.calls + onWindow.calls + onApp.calls + virtualCalls_, "12av");

  EXPECT_EQ(command(someCode + 1), 1);  // another code: not for the control list
  EXPECT_EQ(listener_.calls, "1");
  EXPECT_EQ(onWindow.calls, "22");

  onWindow.result = 1;
  EXPECT_EQ(command(), 1);
  EXPECT_EQ(onApp.calls, "aa");  // nobody behind the one that took it
  app->removeHandler(&onApp, &Listener::any, zMsgCommand);
}

TEST_F(Dispatch, GoesOnToTheNextHandlerUntilOneTakesIt) {
  control_->setupNotify(&listener_, &Listener::first, someCode);
  control_->setupNotify(&listener_, &Listener::second, someCode);
  command();
  EXPECT_EQ(listener_.calls, "12");
  listener_.result = 1;
  command();
  EXPECT_EQ(listener_.calls, "121");
  control_->removeNotify(&listener_, &Listener::first, someCode);
  command();
  EXPECT_EQ(listener_.calls, "1212");
}

TEST_F(Dispatch, OtherMessagesSkipTheControlListAndTheVirtual) {
  window_->setHandler(&listener_, &Listener::any, zMsgClose);
  zEvent close(zMsgClose);
  EXPECT_EQ(doCommandHandler(&close, window_), 0);
  EXPECT_EQ(listener_.calls, "a");
  EXPECT_EQ(virtualCalls_, "");
  EXPECT_EQ(doCommandHandler(&close, nullptr), 0);
}

TEST_F(Dispatch, HandlersMayRemoveHandlersWhileTheyAreAsked) {
  listener_.action = [this] {
    control_->removeCommand(&listener_, &Listener::runs);
    control_->removeCommand(&listener_, &Listener::second);
  };
  control_->setCommand(&listener_, &Listener::runs);
  control_->setCommand(&listener_, &Listener::second);
  control_->setCommand(&listener_, &Listener::first);
  command();
  EXPECT_EQ(listener_.calls, "r1");
  command();
  EXPECT_EQ(listener_.calls, "r11");
}

TEST_F(Dispatch, StopsWhenAHandlerDeletesTheWindow) {
  listener_.action = [this] {
    delete window_;
    window_ = nullptr;
  };
  control_->setCommand(&listener_, &Listener::runs);
  control_->setCommand(&listener_, &Listener::first);
  EXPECT_EQ(command(), 1);
  EXPECT_EQ(listener_.calls, "r");
  EXPECT_EQ(virtualCalls_, "");
}

class DataControl : public TargetControl {
 public:
  DataControl(zWindow* parent, bool valid, std::string& log)
      : TargetControl(parent), valid_(valid), log_(log) {
    setWidgets(XtVaCreateWidget("data", coreWidgetClass, app->rootWindow()->childArea(), XtNwidth,
                                1, XtNheight, 1, nullptr),
               nullptr);
  }
  int checkData() override { return valid_; }
  int storeData() override {
    log_ += 's';
    return 1;
  }
  int invalidData(zWindow* window) override {
    log_ += 'i';
    return zChildWin::invalidData(window);
  }

 private:
  bool valid_;
  std::string& log_;
};

TEST_F(Dispatch, StoresAllControlsOrNone) {
  std::string log;
  new DataControl(window_, true, log);
  auto* bad = new DataControl(window_, false, log);
  new DataControl(window_, true, log);
  EXPECT_EQ(window_->storeData(), 0);
  EXPECT_EQ(log, "i");
  bad->disable();  // a disabled control is neither checked nor stored
  EXPECT_EQ(window_->storeData(), 1);
  EXPECT_EQ(log, "iss");
}

TEST_F(Dispatch, EnablingTellsTheWindowsHandlers) {
  std::string log;
  auto* control = new DataControl(window_, true, log);
  control->setHandler(&listener_, &Listener::any, zMsgEnable);
  control->disable();
  EXPECT_FALSE(control->isEnabled());
  control->enable();
  EXPECT_TRUE(control->isEnabled());
  EXPECT_EQ(listener_.calls, "aa");
  EXPECT_FALSE(control_->isEnabled());  // without a widget
}

// Timers.

class Ticker : public zEvH {
 public:
  void tick() {
    ++ticks;
    if (deletes) timer.reset();
  }
  int ticks = 0;
  bool deletes = false;
  std::unique_ptr<zTimer> timer;
};

struct Killer : zEvH {
  explicit Killer(Ticker& ticker) : victim(ticker) {}
  void tick() { victim.timer.reset(); }
  Ticker& victim;
  zOneShotTimer timer{this, &Killer::tick, 15};
};

TEST(Timers, RepeatUntilTheyAreDeletedEvenByTheirOwnHandler) {
  Ticker every, once, stopped, killed;
  every.timer = std::make_unique<zTimer>(&every, &Ticker::tick, 5);
  once.timer = std::make_unique<zOneShotTimer>(&once, &Ticker::tick, 5);
  stopped.timer = std::make_unique<zTimer>(&stopped, &Ticker::tick, 20);
  stopped.timer.reset();
  killed.timer = std::make_unique<zTimer>(&killed, &Ticker::tick, 30);
  const Killer killer(killed);
  ASSERT_TRUE(x_driver::waitUntil([&] { return every.ticks >= 5; }));
  EXPECT_EQ(once.ticks, 1);
  EXPECT_EQ(once.timer->getID(), 0U);
  EXPECT_EQ(stopped.ticks, 0);
  every.deletes = true;
  const int before = every.ticks;
  x_driver::waitUntil([] { return false; }, 40);
  EXPECT_EQ(every.ticks, before + 1);
  EXPECT_EQ(killed.ticks, 0);

  once.deletes = true;
  once.timer = std::make_unique<zOneShotTimer>(&once, &Ticker::tick, 1);
  EXPECT_TRUE(x_driver::waitUntil([&] { return once.ticks == 2; }));
}

class Worker : public zEvH {
 public:
  int work() { return ++calls == 3; }
  int calls = 0;
};

TEST(IdleTasks, RunUntilTheySayTheyAreDone) {
  Worker worker;
  app->tasks()->add(&worker, &Worker::work);
  EXPECT_TRUE(app->tasks()->busy());
  ASSERT_TRUE(x_driver::waitUntil([&] { return worker.calls == 3; }));
  EXPECT_FALSE(app->tasks()->busy());
}

TEST(CommandLine, IsJoinedByOneBlank) {
  char a[] = "-DEBUG", b[] = "", c[] = "x y";
  char* args[] = {a, b, c};
  EXPECT_EQ(getCommandLine(0, args), "");
  EXPECT_EQ(getCommandLine(3, args), "-DEBUG  x y");
}

}  // namespace
