// Notebook dialogs, their tabs and pages, driven by keys and mouse.
#include <gtest/gtest.h>
#include <malloc.h>

#include <climits>
#include <memory>

#include <X11/Intrinsic.h>
#include <X11/extensions/XRes.h>
#include <X11/keysym.h>

#include "framework/controls/button.h"
#include "framework/controls/edit.h"
#include "framework/core/app.h"
#include "framework/dialogs/message.h"
#include "framework/dialogs/notebook.h"
#include "framework/resources/resources.h"
#include "framework/table/table.h"
#include "tests/framework/behind_a_loop.h"
#include "tests/support/live_timers.h"
#include "tests/support/x_driver.h"

namespace {

constexpr int editId = 20, tableId = 21, tabsId = 22;
constexpr std::uint32_t child = 0x50000000, stop = child | zStyleTabStop;
constexpr unsigned long style = 0x80CE0000 | zNotebookDialog::noApplyButton;

constexpr zControlRecord controls[] = {
    {0, "zGroupBox3dClass", zNoId, "Group", child | 7, 4, 4, 190, 24},
    {zAtomEdit, nullptr, editId, "kept", stop, 10, 12, 80, 13},
    {0, "zTable", tableId, nullptr, stop, 7, 34, 186, 40},
    {0, "zTabCtrl", tabsId, nullptr, stop, 7, 80, 186, 40},
    {0, nullptr, 0, nullptr, 0, 0, 0, 0, 0}};
constexpr zDialogTemplate dialogs[] = {
    {controls, 9200, 0x80C80080, 0, 0, 200, 120, "&First", "Helv", 12, zNoMenu},
    {controls, 9201, 0x80C80080, 0, 0, 200, 120, "Second", "Helv", 12, zNoMenu},
    {nullptr, 9202, 0x80C80080, 0, 0, 200, 120, "", "Helv", 12, zNoMenu}};
const bool known = (ziAddDialogs(dialogs), true);

class Page : public zDialogPage {
 public:
  Page(zNotebookDialog* notebook, zPageDef* def)
      : zDialogPage(notebook, def, def->getStyle()),
        edit(new zEditLine(this, editId, &stored)),
        table(new zTable(this, tableId, nullptr)),
        tabs(new zTabCtrl(this, tabsId, &chosen)) {
    constexpr unsigned both = zExpandSizer::stretchAcross | zExpandSizer::stretchDown;
    table->sizer()->replace(new zExpandSizer(both, nullptr));
    for (int i = 1; i <= 16; ++i) tabs->add(i, "A long title " + std::to_string(i));
  }
  bool isMapped() const {
    XWindowAttributes now{};
    return XtIsRealized(getWidget()) &&
           XGetWindowAttributes(app->display(), XtWindow(getWidget()), &now) &&
           now.map_state == IsViewable;
  }

  std::string stored = "before";
  int chosen = 16;
  zEditLine* edit;
  zTable* table;
  zTabCtrl* tabs;
};

// Two pages made up front and one, without controls, made when it is needed.
class Notebook : public zNotebookDialog {
 public:
  explicit Notebook(unsigned long bits = style)
      : zNotebookDialog(app->rootWindow(), new zPageDef(zResId(9200), 0), bits, "Notebook"),
        first(new Page(this, add(new zPageDef(zResId(9200), 0)))),
        second(new Page(this, add(new zPageDef(zResId(9201), 1)))),
        lazy(add(new zPageDef(zResId(9202), 2))) {
    tabs()->setNotifySelChange(this, &Notebook::changed);
    zNotebookDialog::show(1);
  }
  zDialogPage* createPage(zPageDef* def) override {
    ++made;
    return new zDialogPage(this, def);
  }
  int onOk(zEvent*) override {
    ++asked;
    if (!endsInOnOk) return refuses;
    shutdown();
    return 1;
  }
  int onCancel(zEvent*) override { return ++asked, refuses; }
  int onApply(zEvent*) override { return log += "apply ", 0; }
  int onHelp(zEvent*) override { return log += "help ", 0; }
  int changed(zNotifyEvt*) { return ++changes, 0; }
  bool isFinished() const { return finished(); }
  zWindow* button(int id) const { return get(id); }
  bool isOn(const zDialogPage* page) const { return selected()->page() == page; }

  Page* first;
  Page* second;
  zPageDef* lazy;
  std::string log;
  int made = 0, asked = 0, changes = 0, refuses = 0;
  bool endsInOnOk = false;
};

zPoint middleOf(const zTab* tab) {
  return {tab->place().left + tab->place().width() / 2, tab->place().top + 8};
}

bool focusIn(const zWindow& window) {
  return x_driver::waitUntil([&] { return x_driver::hasFocus(window); });
}

TEST(Tabs, ShareARowThatIsTooShort) {
  const struct {
    std::vector<int> wanted;
    int room;
    std::vector<int> given;
  } cases[] = {{{30, 50, 20}, 100, {30, 50, 20}},
               {{30, 50, 20}, 90, {30, 40, 20}},
               {{30, 50, 20}, 30, {10, 10, 10}},
               {{30}, -5, {0}},
               {{}, 5, {}}};
  for (const auto& c : cases) EXPECT_EQ(ziShareOut(c.wanted, c.room), c.given) << c.room;
}

TEST(Tabs, StandInATemplate) {
  ASSERT_TRUE(known);
  Notebook notebook(style | zNotebookDialog::trapezoidTabs);
  ASSERT_TRUE(x_driver::show(notebook));
  zTabCtrl& tabs = *notebook.first->tabs;
  EXPECT_LE(tabs.tabList().back()->place().right, tabs.sizer()->width());
  tabs.setToDefault();
  EXPECT_EQ(tabs.selectedIndex(), 16);
  x_driver::click(tabs, middleOf(tabs.find(3)), 3);  // not this button
  x_driver::click(tabs, {20, 40});                   // not on a tab
  EXPECT_EQ(tabs.selectedIndex(), 16);
  x_driver::click(tabs, middleOf(tabs.find(3)));
  ASSERT_TRUE(focusIn(tabs));
  for (const KeySym k : {XK_Left, XK_Up, XK_Left, XK_Down}) x_driver::key(k);
  tabs.storeData();
  EXPECT_EQ(notebook.first->chosen, 2);
  tabs.remove(tabs.selectedTab());
  EXPECT_EQ(tabs.selectedIndex(), zTabCtrl::noTab);
  EXPECT_EQ(tabs.find(2), nullptr);
}

TEST(Tabs, DrawWhatChangesAlone) {
  Notebook notebook;
  ASSERT_TRUE(x_driver::show(notebook));
  zTabCtrl& tabs = *notebook.first->tabs;
  tabs.select(1);
  x_driver::settle();
  const auto cost = [&](const std::function<void()>& change) {
    const unsigned long before = x_driver::requestsSent();
    change();
    x_driver::settle();
    return x_driver::requestsSent() - before;
  };
  const unsigned long all = cost([&] { tabs.setDirty(nullptr, 0); });
  EXPECT_LT(cost([&] { tabs.select(2); }), all / 2);
}

TEST(Notebook, TurnsItsPagesByMouseAndKeyboard) {
  Notebook notebook;
  EXPECT_EQ(notebook.changes, 1);  // the first page
  ASSERT_TRUE(x_driver::show(notebook));
  ASSERT_TRUE(focusIn(*notebook.first->edit));
  notebook.first->edit->text("");  // invalid, and stays
  const zTabCtrl& tabs = *notebook.tabs();
  EXPECT_EQ(tabs.tabList().front()->text(), "First");
  x_driver::click(tabs, middleOf(tabs.find(1)));
  EXPECT_TRUE(focusIn(*notebook.second->edit));
  EXPECT_TRUE(notebook.second->isMapped());
  EXPECT_FALSE(notebook.first->isMapped());
  EXPECT_EQ(notebook.made, 0);
  notebook.second->tabs->disable();
  const zWindow* const stops[] = {notebook.second->table, notebook.button(1), notebook.button(2),
                                  &tabs};
  for (const zWindow* next : stops) {
    x_driver::key(XK_Tab);
    ASSERT_TRUE(focusIn(*next));
  }
  const int marked = x_driver::countPixels(tabs, tabs.find(1)->place(), zBlack);
  x_driver::key(XK_Right);
  EXPECT_TRUE(notebook.isOn(notebook.lazy->page()));
  EXPECT_LT(x_driver::countPixels(tabs, tabs.find(1)->place(), zBlack), marked);
  x_driver::key(XK_Home);
  x_driver::key(XK_End);
  EXPECT_EQ(notebook.made, 1);
  EXPECT_TRUE(notebook.isOn(notebook.lazy->page()));
  x_driver::key(XK_Home);
  EXPECT_TRUE(notebook.first->isMapped());
  EXPECT_EQ(notebook.first->edit->getText(), "");
  EXPECT_EQ(notebook.changes, 6);
  notebook.remove(notebook.selected());
  EXPECT_TRUE(notebook.isOn(notebook.second));
  EXPECT_EQ(notebook.findPage(0), nullptr);
  EXPECT_EQ(tabs.tabList().size(), 2U);
}

TEST(Notebook, OkBringsUpTheFieldThatIsWrong) {
  for (const bool enabled : {true, false}) {
    Notebook notebook;
    notebook.first->edit->text("");
    if (!enabled) notebook.first->edit->disable();
    notebook.select(notebook.findPage(1));  // which show() took back
    ASSERT_TRUE(x_driver::show(notebook));
    ASSERT_TRUE(x_driver::giveFocus(*notebook.second->edit));
    x_driver::key(XK_Return);  // as a press of Ok
    if (enabled) {
      ASSERT_TRUE(focusIn(*notebook.first->edit));
      EXPECT_TRUE(notebook.isOn(notebook.first));
      EXPECT_EQ(notebook.second->stored, "before");
      x_driver::text("x");
      x_driver::click(*notebook.button(zNotebookDialog::okId), {5, 5});
    }
    EXPECT_TRUE(notebook.isFinished());
    EXPECT_EQ(notebook.first->stored, enabled ? "x" : "before");
    EXPECT_EQ(notebook.second->stored, "kept");
  }
}

// How a notebook is ended, and what the application's hook says to that.
struct Ending {
  int button;  // 0 is the window manager's close
  int refuses;
  bool endsInOnOk;
  int asked;
  bool ended;
  const char* stored;
};

TEST(Notebook, AsksTheApplicationBeforeItEnds) {
  constexpr Ending endings[] = {
      {1, 0, false, 1, true, "kept"},    {1, 1, false, 1, false, "before"},
      {1, 0, true, 1, true, "before"},   {2, 0, false, 1, true, "before"},
      {2, 1, false, 1, false, "before"}, {0, 1, false, 0, true, "before"}};
  for (const Ending& e : endings) {
    for (const int deletes : {0, 1}) {
      auto* notebook = new Notebook;
      ASSERT_TRUE(x_driver::show(*notebook));
      const zWindowWatch watch(notebook);
      notebook->deleteOnClose(deletes);
      notebook->refuses = e.refuses;
      notebook->endsInOnOk = e.endsInOnOk;
      if (e.button) {
        x_driver::click(*notebook->button(e.button), {5, 5});
      } else {
        closeAsTheWindowManager(notebook->shell());
      }
      x_driver::settle();
      EXPECT_EQ(watch.gone(), deletes && e.ended) << e.button;
      if (watch.gone()) continue;
      EXPECT_EQ(notebook->isFinished(), e.ended) << e.button;
      EXPECT_EQ(notebook->asked, e.asked) << e.button;
      EXPECT_EQ(notebook->first->stored, e.stored) << e.button;
      delete notebook;
    }
  }
}

TEST(Notebook, TellsApplyFromHelp) {
  Notebook notebook(0x80CE0000 | zNotebookDialog::helpButton);
  ASSERT_TRUE(x_driver::show(notebook));
  auto button = notebook.kidslist().rbegin();
  const zWindow& help = **button++;
  zWindow& apply = **button;
  x_driver::click(help, {5, 5});
  x_driver::click(apply, {5, 5});  // not allowed yet
  notebook.setAllowApply(1);
  x_driver::click(apply, {5, 5});
  EXPECT_EQ(notebook.log, "help apply ");
  notebook.select(notebook.findPage(1));
  EXPECT_FALSE(apply.isEnabled());
  notebook.select(notebook.findPage(0));
  EXPECT_TRUE(apply.isEnabled());
  notebook.changeButtonLabels("Clear", nullptr, "", nullptr);
  EXPECT_EQ(static_cast<zChildWin*>(notebook.get(1))->getText(), "Clear");
  EXPECT_EQ(static_cast<zChildWin*>(notebook.get(2))->getText(), "Cancel");
}

TEST(Notebook, StretchesItsPages) {
  Notebook notebook;
  ASSERT_TRUE(x_driver::show(notebook));
  const zDimension before = notebook.sizer()->dimension();
  const zDimension table = notebook.first->table->sizer()->dimension();
  const zRect edit = notebook.first->edit->sizer()->rect();
  const auto resize = [&](int width, int height) {
    XResizeWindow(app->display(), XtWindow(notebook.shell()), static_cast<unsigned>(width),
                  static_cast<unsigned>(height));
    XFlush(app->display());
  };
  for (int i = 1; i <= 20; ++i) resize(before.width + 5 * i, before.height + 3 * i);
  const zDimension grown{table.width + 100, table.height + 60};
  zRect shown;
  ASSERT_TRUE(x_driver::waitUntil([&] {
    notebook.first->table->getInterior(shown);
    return shown.width() == grown.width - 4 && shown.height() == grown.height - 4;
  }));
  EXPECT_EQ(notebook.first->edit->sizer()->rect(), edit);
  EXPECT_GT(notebook.button(2)->sizer()->pos().x, before.width);
  notebook.select(notebook.findPage(1));
  EXPECT_EQ(notebook.second->table->sizer()->dimension(), grown);
  x_driver::settle();
  const unsigned long requests = x_driver::requestsSent();
  x_driver::settle();
  EXPECT_LT(x_driver::requestsSent(), requests + 10);  // the sizes have come to rest
  resize(8, 8);
  ASSERT_TRUE(x_driver::waitUntil([&] { return notebook.sizer()->width() < before.width; }));
}

TEST(Notebook, PaintsThePageThatIsShownAlone) {
  Notebook notebook;
  ASSERT_TRUE(x_driver::show(notebook));
  const auto cost = [&](const std::function<void()>& change) {
    const unsigned long before = x_driver::requestsSent();
    change();
    x_driver::settle();
    return x_driver::requestsSent() - before;
  };
  for (int page : {2, 0, 2}) notebook.select(notebook.findPage(page));
  const unsigned long full = cost([&] { notebook.select(notebook.findPage(0)); });
  EXPECT_LT(cost([&] { notebook.select(notebook.lazy); }), full / 2) << "there is nothing on it";
  EXPECT_LT(cost([&] {
              for (zWindow* hidden : notebook.first->kidslist()) hidden->setDirty(nullptr, 1);
            }),
            10U);
}

TEST(Notebook, IsModalBelowAMessage) {
  Notebook notebook;
  int answer = 0;
  Later raises(500, [&] {
    AnswersBox answers([] { x_driver::key(XK_Return); });
    answer = zMessage(&notebook, "text", "caption", 0x30).result();
    EXPECT_FALSE(notebook.isFinished());
    app->quit();
  });
  notebook.modal();
  EXPECT_EQ(answer, 1);
  EXPECT_FALSE(notebook.isFinished());
  zAppKeepRunning = 1;
}

// What the program holds on the server, of all kinds.
int serverResources() {
  x_driver::settle();
  int kinds = 0;
  XResType* types = nullptr;
  XResQueryClientResources(app->display(), XtWindow(app->rootWindow()->shell()), &kinds, &types);
  int sum = 0;
  for (int i = 0; i < kinds; ++i) sum += static_cast<int>(types[i].count);
  XFree(types);
  return sum;
}

long heapInUse() {
  return static_cast<long>(mallinfo2().uordblks);  // 0 under the address sanitizer
}

// What the library keeps of a notebook's widgets that are gone, in bytes: an entry for each of its
// two push buttons and of the two row columns around its edits, in a table that it files their
// translations in, and, of every fourth notebook, a drawing context for each button seen.
constexpr long keptByTheLibrary = 4 * 48 + 2 * 112 / 4;

TEST(Notebook, LeavesNothingBehind) {
  constexpr int windows = 5, cycles = 40;
  int resources = 0;
  const int timers = liveTimers();
  long grown = LONG_MAX;  // by a cycle; the least of some windows, as what comes once is no leak
  for (int window = 0; window <= windows; ++window) {
    const long before = heapInUse();
    for (int i = 0; i < cycles; ++i) {
      Notebook notebook;  // which is to come up soon
      if (i % 4 == 0) notebook.showTimeout();
      notebook.select(notebook.lazy);
      notebook.first->edit->setFocus();  // soon, too
      x_driver::settle();
    }
    if (window == 0) {
      resources = serverResources();
    } else {
      grown = std::min(grown, (heapInUse() - before) / cycles);
    }
  }
  EXPECT_LE(grown, keptByTheLibrary);
  EXPECT_EQ(serverResources(), resources);
  // Nothing that was to happen soon looks for a window that is gone.
  x_driver::waitUntil([] { return false; }, zDialogFrame::showDelayMs + 100);
  EXPECT_EQ(liveTimers(), timers);
}

}  // namespace
