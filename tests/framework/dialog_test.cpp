// Dialogs out of templates, their controls, modal loops and message boxes, driven by keys and
// mouse.
#include <gtest/gtest.h>  // first: X has macros with names that it uses

#include "framework/dialogs/form_dialog.h"

#include <X11/Xatom.h>
#include <X11/keysym.h>
#include <Xm/MwmUtil.h>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

#include "framework/controls/bitmap_button.h"
#include "framework/controls/button.h"
#include "framework/controls/edit.h"
#include "framework/controls/group_box.h"
#include "framework/controls/static_text.h"
#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/dialogs/dialog_reader.h"
#include "framework/dialogs/message.h"
#include "framework/layout/dialog_unit.h"
#include "framework/resources/resources.h"
#include "framework/table/table.h"
#include "tests/framework/behind_a_loop.h"
#include "tests/support/x_driver.h"

namespace {

constexpr int plainForm = 9501;
constexpr int editId = 20;

// A dialog with a control of every kind.
constexpr int everyForm = 9500;
constexpr int multiLineId = 21, readOnlyId = 22, tableId = 102, pictureId = 103;
constexpr std::uint32_t unknownClassId = 104;
constexpr zControlRecord everyControl[] = {
    {zAtomEdit, nullptr, editId, "text", 0x50010000, 11, 20, 60, 14},
    {zAtomEdit, nullptr, multiLineId, "a", 0x50010004, 11, 36, 60, 24},
    {zAtomEdit, nullptr, readOnlyId, "fixed", 0x50010800, 11, 62, 60, 14},
    {zAtomButton, nullptr, 10, "Group", 0x50000007, 7, 7, 68, 76},
    {zAtomStatic, nullptr, 100, "&Label:", 0x50000000, 82, 9, 60, 9},
    {zAtomStatic, nullptr, 101, nullptr, 0x50000007, 82, 20, 60, 5},
    {0, "zTable", tableId, nullptr, 0x50010000, 82, 28, 80, 50},
    {0, "zNoSuchClass", unknownClassId, "none", 0x50010000, 1, 1, 1, 1},
    {0, "zBmpBtnClass", pictureId, "Picture", 0x50010800, 7, 90, 50, 15},
    {zAtomButton, nullptr, 1, "OK", 0x50010000, 62, 90, 50, 15},
    {zAtomButton, nullptr, 2, "Cancel", 0x50010000, 117, 90, 50, 15},
    {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0},
};
constexpr zControlRecord plainControls[] = {
    {zAtomStatic, nullptr, 100, nullptr, 0x50000001, 7, 12, 186, 10},
    {zAtomButton, nullptr, 1, "OK", 0x50010001, 75, 32, 50, 15},
    {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0},
};
constexpr zDialogTemplate testDialogs[] = {
    {everyControl, everyForm, 0x90C80080, 31, 17, 170, 112, "Every", "Helv", 12, zNoMenu},
    {plainControls, plainForm, 0x80C80080, 0, 0, 200, 54, nullptr, "Helv", 12, zNoMenu},
};
const bool dialogsKnown = (ziAddDialogs(testDialogs), true);

// The plain form with an edit in it, bound to `stored`.
class TestForm : public zFormDialog {
 public:
  TestForm() : zFormDialog(app->rootWindow(), zResId(plainForm), 0) {
    new zEditBase(this, new zSizer(10, 8, 150, 26, sizer()), zStyleTabStop, "", editId);
    get(editId)->show(1);
    edit = new zEditLine(this, editId, &stored);
    text = new zStaticText(this, 100);
    ok = new zPushButton(this, okId);
  }
  int kill(zEvent*) override {
    ++closeRequests;
    return refusesToClose;
  }
  bool isFinished() const { return finished(); }

  std::string stored = "before";
  zEditLine* edit;
  zStaticText* text;
  zPushButton* ok;
  int closeRequests = 0;
  int refusesToClose = 0;
};

// The form with every control; some have an action, which is told as a handler is.
class EveryForm : public zFormDialog {
 public:
  explicit EveryForm(zWindow* parent = app->rootWindow())
      : zFormDialog(parent, zResId(everyForm), 0) {
    edit = new zEditLine(this, editId, &stored);
    new zEditBase(this, multiLineId);
    new zEditBase(this, readOnlyId);
    new zGroupBox(this, 10);
    new zStaticText(this, 100);
    new zStaticText(this, 101);
    table = new zTable(this, tableId, &model);
    new zBitmapButton(this, pictureId);
    ok = new zPushButton(this, okId);
    cancel = new zPushButton(this, cancelId);
    edit->setNotifyChange(this, &EveryForm::acts);
    ok->setNotifyClicked(this, &EveryForm::acts);
    table->setupNotification(this, &EveryForm::acts, zMsgDoubleClick);
  }
  int acts(zNotifyEvt*) {
    const auto now = action;  // it may delete the form
    return now ? now() : 0;
  }
  int notes(zEvent* event) { return heard.push_back(event->message), 0; }
  void childFocusChange(zWindow* from, zWindow* to) override { focusMoves.push_back({from, to}); }
  bool isFinished() const { return finished(); }

  std::function<int()> action;
  std::vector<unsigned> heard;
  std::vector<std::pair<zWindow*, zWindow*>> focusMoves;
  std::string stored = "before";
  zTableSmallModel model{3, 4};
  zEditLine* edit;
  zTable* table;
  zPushButton *ok, *cancel;
};

TEST(Template, GivesStyleCaptionSizeAndControls) {
  TestForm form;
  EXPECT_EQ(form.ctrlId(), plainForm);
  EXPECT_EQ(form.styleValue() & zStyleVisible, 0U);
  EXPECT_GT(form.sizer()->width(), 150);
  EXPECT_EQ(form.get(100), form.text);  // the typed control took the generic one's place
  EXPECT_EQ(form.kidslist().size(), 3U);
  form.text->text("changed");
  EXPECT_EQ(form.text->getText(), "changed");
}

// What belongs to fonts; run with several sets of them.
TEST(FontSets, ControlsStandWhereTheArithmeticPutsThem) {
  EveryForm below;
  EveryForm form(&below);
  const zFont& font = *form.getFont();
  const int sample = font.textWidth(zDialogUnit::averageSample);
  const auto measure = [&](int x, int y) {
    return zDimension{zDialogUnit::acrossPixels(x, sample),
                      zDialogUnit::downPixels(y, font.height())};
  };
  ASSERT_TRUE(x_driver::show(below));
  ASSERT_TRUE(x_driver::show(form));
  EXPECT_EQ(form.sizer()->dimension(), measure(170, 112));
  const zDimension at = measure(31, 17);
  EXPECT_EQ(below.sizer()->pos(), (zPoint{at.width, at.height}));  // on the screen
  EXPECT_EQ(form.sizer()->pos(), (zPoint{2 * at.width, 2 * at.height}));
  auto kid = form.kidslist().begin();
  for (const zControlRecord& r : everyControl) {
    if (r.id == unknownClassId || !r.w) continue;
    const zDimension place = measure(r.x, r.y);
    EXPECT_EQ((*kid)->ctrlId(), static_cast<int>(r.id));
    EXPECT_EQ((*kid)->sizer()->rect(), zRect(zPoint{place.width, place.height}, measure(r.w, r.h)));
    ++kid;
  }
  EXPECT_EQ(kid, form.kidslist().end());
  ASSERT_NE(__zAppXfs, nullptr);  // if there is no better one, it is `fixed`
  EXPECT_GT(zDialogUnit(4, 8, static_cast<zDisplay*>(nullptr)).x(), 3);
}

TEST(Template, UnknownNumbersAreHarmless) {
  testing::internal::CaptureStderr();
  {
    zFormDialog form(app->rootWindow(), zResId(9999), 0);
    EXPECT_EQ(form.sizer()->dimension(), (zDimension{100, 100}));
    auto* nothing = new zEditLine(&form, 1234);
    nothing->text("nobody shows this");
    nothing->selection(1, 2);
    nothing->limitText(3);
    nothing->setFocus();
    nothing->show(0);
    EXPECT_EQ(nothing->getText(), "");
    EXPECT_EQ(nothing->enable(), 0);
    EXPECT_FALSE(nothing->isEnabled());
    (new zPushButton(&form, 1235))->text("x");
    (new zGroupBox(&form, 1236))->text("y");
    new zStaticText(&form, 1237);
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Error: Unable to find dialog resource for id=9999.\n");
}

TEST(StringBlock, StartsOverBehindItsEnd) {
  zResStrBlock block(zResId(542));
  EXPECT_STREQ(block(), "Backup");
  EXPECT_STREQ(block(), "Primary");
  EXPECT_EQ(block(), nullptr);
  EXPECT_STREQ(block(), "Backup");
  EXPECT_EQ(zResStrBlock(zResId(1))(), nullptr);
  EXPECT_EQ(zAppFindResource(540, 4).data, nullptr);
  EXPECT_EQ(zResId(537).loadStr(), "Setup");
}

TEST(Form, OkStoresValidDataAndEnds) {
  TestForm form;
  form.setControlsToDefault();
  EXPECT_EQ(form.edit->getText(), "before");
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  ASSERT_TRUE(x_driver::giveFocus(*form.edit));
  x_driver::key(XK_End);
  x_driver::text(" now");
  EXPECT_EQ(form.edit->getText(), "before now");
  EXPECT_EQ(form.stored, "before");
  x_driver::key(XK_Return);  // no default button: as a click on the control 1
  ASSERT_TRUE(x_driver::waitUntil([&] { return form.isFinished(); }));
  EXPECT_EQ(form.completed(), 1);
  EXPECT_EQ(form.stored, "before now");
}

TEST(Form, OkWithInvalidDataStaysAndPutsTheFocusThere) {
  TestForm form;
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  ASSERT_TRUE(x_driver::giveFocus(*form.ok));
  x_driver::key(XK_space);
  ASSERT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(*form.edit); }));
  EXPECT_FALSE(form.isFinished());
  EXPECT_EQ(form.completed(), 0);
  EXPECT_EQ(form.stored, "before");
  form.edit->disable();  // is not checked then
  x_driver::click(*form.ok, {5, 5});
  EXPECT_TRUE(x_driver::waitUntil([&] { return form.isFinished(); }));
}

TEST(Form, MayRefuseToClose) {
  TestForm form;
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  form.refusesToClose = 1;
  form.shutdown();
  EXPECT_FALSE(form.isFinished());
  form.refusesToClose = 0;
  form.shutdown();
  EXPECT_TRUE(form.isFinished());
  EXPECT_EQ(form.closeRequests, 2);
}

TEST(Form, EscapePressesCancelWhereverTheFocusIs) {
  for (const int focused : {editId, multiLineId, readOnlyId, +tableId, pictureId, 1}) {
    EveryForm form;
    form.show(1);
    ASSERT_TRUE(x_driver::show(form));
    ASSERT_TRUE(x_driver::giveFocus(*form.get(focused)));
    form.edit->text("typed");
    form.cancel->disable();
    x_driver::key(XK_Escape);
    form.cancel->enable();
    form.cancel->show(0);
    x_driver::key(XK_Escape);
    EXPECT_FALSE(form.isFinished()) << focused;
    form.cancel->show(1);
    x_driver::key(XK_Escape);
    EXPECT_TRUE(form.isFinished()) << focused;
    EXPECT_EQ(form.completed(), 0);
    EXPECT_EQ(form.stored, "before");
  }
}

// The toolkit goes on delivering events to widgets that it is about to destroy.
TEST(Form, AHandlerMayCloseItsDialogAndOpenAMessageBox) {
  const std::function<void(EveryForm&)> triggers[] = {
      [](EveryForm& form) {
        x_driver::click(*form.ok, {5, 5});
      },
      [](EveryForm& form) {
        x_driver::giveFocus(*form.edit);
        x_driver::key(XK_a);
      },
      [](EveryForm& form) {
        x_driver::doubleClick(*form.table, {20, 40});
      },
  };
  for (const auto& trigger : triggers) {
    auto* form = new EveryForm;
    const zWindowWatch watch(form);
    form->deleteOnClose(1);
    int answer = 0;
    form->action = [&] {
      const Window table = XtWindow(form->table->getWidget());
      const Window edit = XtWindow(form->edit->getWidget());
      form->shutdown();
      EXPECT_TRUE(watch.gone());
      for (const Window dying : {table, edit}) {
        XMapWindow(app->display(), dying);
        XClearArea(app->display(), dying, 0, 0, 0, 0, True);
        XUnmapWindow(app->display(), dying);
      }
      AnswersBox answers([] { x_driver::key(XK_Return); });
      answer = zMessage(app->rootWindow(), "text", "caption", 0x30).result();
      return 1;
    };
    Later acts(100, [&] {
      x_driver::show(*form);
      trigger(*form);
    });
    form->modal();
    EXPECT_EQ(answer, 1);
  }
}

// Whether the window manager has the dialog on the screen.
bool isMapped(const zDialogFrame& dialog) {
  XWindowAttributes now{};
  x_driver::settle();
  return XtIsRealized(dialog.shell()) &&
         XGetWindowAttributes(app->display(), XtWindow(dialog.shell()), &now) &&
         now.map_state == IsViewable;
}

TEST(Form, IsShownAfterAMomentHiddenAndShownAgain) {
  using Clock = std::chrono::steady_clock;
  EveryForm form;
  const auto start = Clock::now();
  form.show(1);
  ASSERT_TRUE(x_driver::waitUntil([&] { return isMapped(form); }));
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(295));
  const struct {
    int how;
    bool mapped;
  } steps[] = {{0, false}, {1, true}, {2, false}, {5, true}, {3, true}};
  for (const auto& step : steps) {
    form.show(step.how);
    EXPECT_TRUE(x_driver::waitUntil([&] { return isMapped(form) == step.mapped; })) << step.how;
  }
  constexpr int frame = 50;  // at most so much goes to the window manager's
  EXPECT_TRUE(x_driver::waitUntil([&] { return form.sizer()->width() > __scrPixWidth - frame; }));
  EveryForm ready;
  ready.show(0);
  EXPECT_TRUE(XtIsRealized(ready.shell()));
  EXPECT_FALSE(x_driver::waitUntil([&] { return isMapped(ready); }, 500));
}

TEST(Form, IsCentredButStaysOnTheScreen) {
  EveryForm below;
  EveryForm form(&below);
  const auto leftAndTop = [&](int relative) {
    form.centerWindow(relative);
    return form.sizer()->pos();
  };
  const int width = form.sizer()->width(), height = form.sizer()->height();
  const zPoint onScreen{(__scrPixWidth - width) / 2, (__scrPixHeight - height) / 2};
  EXPECT_EQ(leftAndTop(0), onScreen);
  below.vmove(200, 100, width + 21, height + 10);
  EXPECT_EQ(leftAndTop(1), (zPoint{210, 105}));
  below.vmove(__scrPixWidth - 9, __scrPixHeight - 9, width, height);
  EXPECT_EQ(leftAndTop(1), (zPoint{__scrPixWidth - width, __scrPixHeight - height}));
  below.vmove(0, 0, 20, 20);
  EXPECT_EQ(leftAndTop(1), (zPoint{0, 0}));
}

// What windows hear of the focus, of the mouse and of keys.
TEST(Events, FocusIsMovedOnceAndTheAncestorsHearOfIt) {
  using Clock = std::chrono::steady_clock;
  EveryForm form;
  ASSERT_TRUE(x_driver::show(form));
  ASSERT_TRUE(x_driver::giveFocus(*form.ok));
  form.focusMoves.clear();
  form.edit->setFocus();
  x_driver::waitUntil([] { return false; }, 100);
  const auto second = Clock::now();
  form.edit->setFocus();
  ASSERT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(*form.edit); }));
  EXPECT_GE(Clock::now() - second, std::chrono::milliseconds(149));
  ASSERT_EQ(form.focusMoves.size(), 1U);
  EXPECT_EQ(form.focusMoves[0].first, form.ok);
  EXPECT_EQ(form.focusMoves[0].second, form.edit);
}

TEST(Events, ReachHandlersOnlyWhereTheyBelong) {
  using Messages = std::vector<unsigned>;
  EveryForm form;
  auto* label = static_cast<zChildWin*>(form.get(100));
  const auto heard = [&] { return std::exchange(form.heard, {}); };
  ASSERT_TRUE(x_driver::show(form));
  for (const auto message : {zMsgButtonDown, zMsgDoubleClick}) {
    form.table->setupNotification(&form, &EveryForm::notes, message);
    label->setupNotification(&form, &EveryForm::notes, message);
  }
  label->setHandler(&form, &EveryForm::notes, zMsgMouseMove);  // nobody has asked for moves
  x_driver::doubleClick(*form.table, {20, 40});
  EXPECT_EQ(heard(), (Messages{zMsgButtonDown, zMsgDoubleClick}));
  x_driver::doubleClick(*label, {5, 5});
  EXPECT_EQ(heard(), (Messages{zMsgButtonDown, zMsgButtonDown}));
  for (const auto message : {zMsgKeyDown, zMsgKeyUp}) {
    form.edit->setHandler(&form, &EveryForm::notes, message);
  }
  ASSERT_TRUE(x_driver::giveFocus(*form.edit));
  x_driver::key(XK_a);  // goes into the text
  EXPECT_EQ(heard(), (Messages{zMsgKeyUp}));
  x_driver::key(XK_F5);
  EXPECT_EQ(heard(), (Messages{zMsgKeyDown, zMsgKeyUp}));
}

TEST(Events, AWindowOutOfSightIsDeletedWhenItIsMarkedSo) {
  EveryForm form;
  auto* pane = new zPane(&form, nullptr, 0, nullptr, 70);
  pane->create();
  pane->show(1);
  EXPECT_EQ(pane->sizer()->dimension(), (zDimension{10, 10}));  // nobody gave it one
  ASSERT_TRUE(x_driver::show(form));
  const zWindowWatch watch(pane);
  pane->deleteOnClose(1);
  pane->show(0);
  XUnmapWindow(app->display(), XtWindow(pane->getWidget()));
  EXPECT_TRUE(x_driver::waitUntil([&] { return watch.gone(); }));
}

TEST(Form, TakesTheDialogsOverItAlong) {
  auto below = std::make_unique<TestForm>();
  below->show(1);
  ASSERT_TRUE(x_driver::show(*below));
  auto* over = new zFormDialog(below.get(), zResId(plainForm), 0);
  over->show(1);
  ASSERT_TRUE(x_driver::show(*over));
  const zWindowWatch watch(over);
  below.reset();
  EXPECT_TRUE(watch.gone());
  x_driver::settle();
}

// A timer whose handler opens a message box, during which it is deleted.
struct Interrupted : zEvH {
  void tick() {
    if (++ticks != 5) return;
    Later deletes(50, [this] { timer.reset(); });
    AnswersBox answers([] { x_driver::key(XK_Return); });
    answer = zMessage(app->rootWindow(), "text", "caption", 0x30).result();
  }
  int ticks = 0;
  int answer = 0;
  std::unique_ptr<zTimer> timer = std::make_unique<zTimer>(this, &Interrupted::tick, 5);
};

TEST(Modal, TimersFireBehindItAndMayGoWhileTheirHandlerRuns) {
  TestForm form;
  Interrupted interrupted;
  Later ends(700, [&] { form.shutdown(); });
  form.modal();
  EXPECT_GE(interrupted.ticks, 5);
  EXPECT_EQ(interrupted.answer, 1);
  EXPECT_EQ(interrupted.timer, nullptr);
}

TEST(Modal, LoopsNestAndTimersRunOnTopOfThem) {
  TestForm outer, inner;
  int ticks = 0;
  bool innerEnded = false;
  Later opens(50, [&] {
    inner.modal();
    innerEnded = true;
    EXPECT_FALSE(outer.isFinished());
    outer.shutdown();
  });
  Later ticksAgain(120, [&] { ticks += ziModalSem == 2; });
  Later ends(200, [&] { inner.shutdown(); });
  outer.modal();
  EXPECT_TRUE(innerEnded);
  EXPECT_EQ(ticks, 1);
  EXPECT_EQ(ziModalSem, 0);
}

void countEnd(Widget, XtPointer ends, XtPointer) {
  ++*static_cast<int*>(ends);
}

// The toolkit goes on using a button whose handler ran the loop.
TEST(Modal, ADialogDeletedInALoopStaysUntilTheLoopEnds) {
  auto dialog = std::make_unique<TestForm>();
  int ends = 0;
  bool loops = true;
  XtAddCallback(dialog->shell(), XmNdestroyCallback, countEnd, &ends);
  Later deletes(20, [&] { dialog.reset(); });
  Later leaves(100, [&] { loops = false; });
  ziRunLoop([&] { return loops; });
  EXPECT_EQ(ends, 0);
  EXPECT_TRUE(x_driver::waitUntil([&] { return ends == 1; }));
}

// Gives up one shell after the other, each in an event that is dispatched inside the one before.
struct Nest {
  static void handle(Widget, XtPointer nest, XEvent* event, Boolean*) {
    auto* self = static_cast<Nest*>(nest);
    ziDestroyWidget(self->given.back(), ziLoopDepth());
    self->given.pop_back();
    if (!self->given.empty()) XtDispatchEvent(event);
  }
  std::vector<Widget> given;
};

// By itself the toolkit destroys one of the inner two twice then.
TEST(Modal, ShellsGivenUpInNestedEventsFromTheInsideOutGoOnce) {
  int ends = 0;
  const auto shellIn = [&](Widget over) {
    const Widget shell = XtCreatePopupShell("shell", transientShellWidgetClass, over, nullptr, 0);
    XtAddCallback(shell, XmNdestroyCallback, countEnd, &ends);
    return shell;
  };
  const Widget root = app->rootWindow()->shell();
  const Widget outer = shellIn(root);
  Nest nest{{outer, shellIn(outer), shellIn(outer)}};
  XtAddEventHandler(root, NoEventMask, True, Nest::handle, &nest);
  XEvent event{};
  event.xclient.type = ClientMessage;
  event.xclient.display = app->display();
  event.xclient.window = XtWindow(root);
  event.xclient.format = 32;
  XtDispatchEvent(&event);
  XtRemoveEventHandler(root, NoEventMask, True, Nest::handle, &nest);
  EXPECT_TRUE(x_driver::waitUntil([&] { return ends == 3; }));
}

struct Refuser : zEvH {
  int refuses(zEvent*) { return 1; }
};

TEST(Modal, EveryLoopEndsWhenTheProgramDoes) {
  TestForm outer, inner;
  Refuser refuser;
  Later opens(30, [&] { inner.modal(); });
  Later ends(100, [&] {
    app->rootWindow()->setHandler(&refuser, &Refuser::refuses, zMsgClose);
    app->quit();
    EXPECT_EQ(zAppKeepRunning, 1);
    app->rootWindow()->removeHandler(&refuser, &Refuser::refuses, zMsgClose);
    app->quit();
  });
  outer.modal();
  EXPECT_FALSE(outer.isFinished());
  EXPECT_EQ(std::exchange(zAppKeepRunning, 1), 0);
}

TEST(Modal, TheWindowBehindTakesNoInput) {
  TestForm behind, front;
  behind.show(1);
  ASSERT_TRUE(x_driver::show(behind));
  bool clicked = false;
  Later tries(600, [&] {
    x_driver::click(*behind.ok, {5, 5});
    clicked = true;
    front.shutdown();
  });
  front.vmove(500, 500, front.sizer()->width(), front.sizer()->height());
  front.modal();
  EXPECT_TRUE(clicked);
  EXPECT_FALSE(behind.isFinished());
  EXPECT_EQ(behind.closeRequests, 0);
}

// Message boxes.

struct BoxCase {
  unsigned style;
  std::initializer_list<KeySym> keys;
  int result;
};

TEST(Message, ReturnsTheAnswerOfEachType) {
  const BoxCase cases[] = {
      {0x30, {XK_Return}, 1},        {0x21, {XK_Return}, 1}, {0x21, {XK_Escape}, 2},
      {0x32, {XK_Tab, XK_space}, 3}, {0x23, {XK_Return}, 6}, {0x24, {XK_Escape}, 7},
      {0x45, {XK_Return}, 4},        {0x0F, {XK_Escape}, 2}, {0x00, {XK_Escape}, 1},
  };
  for (const BoxCase& c : cases) {
    AnswersBox answers([&] {
      for (const KeySym k : c.keys) x_driver::key(k);
    });
    const zMessage box(app->rootWindow(), "Two\nlines", "Caption", c.style);
    if (c.style == 0x32) {
      EXPECT_GE(box.result(), 3);
      EXPECT_LE(box.result(), 5);
    } else {
      EXPECT_EQ(box.result(), c.result) << std::hex << c.style;
    }
  }
}

Widget shownBox() {
  return XtNameToWidget(app->toplevel(), "MessageBox_popup");
}

// The window manager's part: its close command, and what it may do with a box.
TEST(Message, ClosingItIsItsSecondAnswer) {
  const struct {
    unsigned style;
    int result, modality;
  } cases[] = {{0x00, 1, MWM_INPUT_PRIMARY_APPLICATION_MODAL},
               {0x2021, 2, MWM_INPUT_FULL_APPLICATION_MODAL},
               {0x1042, 4, MWM_INPUT_SYSTEM_MODAL},
               {0x0F13, 7, MWM_INPUT_PRIMARY_APPLICATION_MODAL},
               {0x34, 7, MWM_INPUT_PRIMARY_APPLICATION_MODAL},
               {0x05, 2, MWM_INPUT_PRIMARY_APPLICATION_MODAL}};
  for (const auto& c : cases) {
    int modality = 0, decorations = 0;
    AnswersBox closes([&] {
      const Widget box = shownBox();
      XtVaGetValues(box, XmNmwmInputMode, &modality, XmNmwmDecorations, &decorations, nullptr);
      closeAsTheWindowManager(box);
    });
    const zMessage box(app->rootWindow(), "text", "caption", c.style);
    EXPECT_EQ(box.result(), c.result) << std::hex << c.style;
    EXPECT_EQ(modality, c.modality) << std::hex << c.style;
    EXPECT_FALSE(decorations & (MWM_DECOR_RESIZEH | MWM_DECOR_ALL));
    EXPECT_EQ(shownBox(), nullptr);
  }
}

TEST(Message, EndsWithTheWindowItStandsOver) {
  auto form = std::make_unique<TestForm>();
  form->show(1);
  ASSERT_TRUE(x_driver::show(*form));
  Later deletes(300, [&] { form.reset(); });
  EXPECT_EQ(zMessage(form.get(), "text", "caption", 0x24).result(), 7);
  TestForm closed;
  Later closes(300, [&] { closed.shutdown(); });
  EXPECT_EQ(zMessage(closed.edit, "text", "caption", 0x24).result(), 7);
}

// Whose show was still to come would have covered the box.
TEST(Message, StaysInFrontOfAWindowThatHasJustBeenMade) {
  TestForm form;
  form.show(1);
  std::unique_ptr<AnswersBox> answers;
  Later behindTheShow(2 * zDialogFrame::showDelayMs, [&] {
    EXPECT_TRUE(form.isShown());
    answers = std::make_unique<AnswersBox>([] { x_driver::key(XK_Return); });
  });
  Later givesUp(x_driver::patienceMs, [&] { form.shutdown(); });
  EXPECT_EQ(zMessage(&form, "text", "caption", 0x24).result(), 6) << "answered, not given up";
}

TEST(Message, BlocksOnlyTheHandlerThatRaisedIt) {
  TestForm form;
  int answer = 0;
  Later raises(50, [&] {
    AnswersBox answers([] { x_driver::key(XK_Return); });
    answer = zMessage(&form, "text", "caption", 0x30).result();
    form.shutdown();
  });
  form.modal();
  EXPECT_EQ(answer, 1);
  EXPECT_TRUE(form.isFinished());
}

// As when a second click was on its way to the box while the first one ended it.
class AsksTwice : public zEvH {
 public:
  int ask(zNotifyEvt*) {
    Widget first = nullptr;
    AnswersBox answersFirst([&] {
      first = XtNameToWidget(shownBox(), "MessageBox");
      x_driver::key(XK_Return);
    });
    zMessage(app->rootWindow(), "first", "caption", 0x24);
    AnswersBox clicksFirstAgain([&] {
      XmAnyCallbackStruct click{XmCR_OK, nullptr};
      XtCallCallbacks(first, XmNokCallback, &click);
      AnswersBox answersSecond([] { x_driver::key(XK_Escape); });
      x_driver::waitUntil([] { return !shownBox(); }, 1000);
    });
    second = zMessage(app->rootWindow(), "second", "caption", 0x24).result();
    return 0;
  }
  int second = 0;
};

TEST(Message, HearsNothingOfTheOneBefore) {
  TestForm form;
  AsksTwice asks;
  form.ok->setNotifyClicked(&asks, &AsksTwice::ask);
  form.show(1);
  ASSERT_TRUE(x_driver::show(form));
  x_driver::click(*form.ok, {5, 5});
  ASSERT_TRUE(x_driver::waitUntil([&] { return asks.second != 0; }));
  EXPECT_EQ(asks.second, 7);
}

}  // namespace
