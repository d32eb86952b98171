// What it costs to fill, refresh and scroll a table of many rows in a dialog on $DISPLAY, until the
// server has drawn it, beside the same picture drawn by bare calls of Xlib and, for one changed
// row, beside a list of Motif.
//
// Each row tells what the program asked of the server: `requests`, `waits` for a reply, and
// `cells`, the area painted in cells of a table. What the measuring itself sends, to learn when the
// server is ready, is left out of the counts; its time, the same for both sides, is in: it is what
// bareNothing takes.
#include <X11/Xlib.h>
#include <Xm/List.h>
#include <Xm/ScrollBar.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <vector>

#include "applet/my_table.h"
#include "bench/asked_of_server.h"
#include "framework/core/app.h"
#include "framework/core/x_text.h"
#include "framework/dialogs/control_types.h"
#include "framework/dialogs/dialog_frame.h"
#include "tests/support/x_driver.h"

namespace {

constexpr unsigned long dialogStyle = 0x80CE0000;
constexpr unsigned long childStyle = 0x50010000;
constexpr int tableId = 101;
constexpr unsigned long columns = 6;
constexpr unsigned long rows = 900;
constexpr zDimension tableSize{600, 384};  // shows 20 whole rows, as the bare drawing does
constexpr zDimension listSize{300, 300};
constexpr zPoint besideTheDialog{640, 100};
constexpr zPoint belowTheDialog{640, 600};
constexpr int generations = 2;

double cellsPainted = 0;

// The texts that the cells change between.
const std::string& text(int generation, unsigned long column, unsigned long row) {
  static const std::vector<std::string> texts = [] {
    std::vector<std::string> all;
    for (unsigned long i = 0; i < generations * columns * rows; ++i) {
      all.push_back(std::to_string(100000 + i));
    }
    return all;
  }();
  return texts[(static_cast<unsigned long>(generation) * rows + row - 1) * columns + column - 1];
}

// Moves a scroll bar as the user does, and behind its end to the start.
void moveBar(Widget bar, int by, Boolean notify) {
  int value = 0, slider = 0, step = 0, page = 0, most = 0;
  XmScrollBarGetValues(bar, &value, &slider, &step, &page);
  XtVaGetValues(bar, XmNmaximum, &most, nullptr);
  value += by;
  XmScrollBarSetValues(bar, value > most - slider ? 0 : value, slider, step, page, notify);
}

// The side under test.

class WatchedTable : public myTable {
 public:
  using myTable::myTable;

  void draw(zDrawEvt* event) override {
    cellsPainted += static_cast<double>(event->area.width() * event->area.height()) /
                    (colWidth(1) * rowHeight(1));
    myTable::draw(event);
  }
};

class TableStage {
 public:
  TableStage() {
    dialog_.setFont(std::make_shared<zFont>("Helv", zPrPoint(0, 120)), 0);
    auto* const place = new zSizer(10, 10, tableSize.width, tableSize.height, nullptr);
    zControlType::find("zTable")->buildNew(&dialog_, place, childStyle, "", tableId)->show(1);
    table_ = new WatchedTable(&dialog_, tableId, &model_);
    if (!x_driver::show(dialog_)) std::abort();
    bar_ = XtNameToWidget(XtParent(table_->getWidget()), "*VScroll");
  }

  void fill(int generation) {
    for (unsigned long row = 1; row <= rows; ++row) {
      for (unsigned long column = 1; column <= columns; ++column) {
        table_->SetCellText({column, row}, text(generation, column, row).c_str());
      }
    }
    model_.updateAllViews();
  }
  void changeOne(int generation) {
    table_->SetCellText({2, 3}, text(generation, 2, 3).c_str());
    model_.updateAllViews();
  }
  void empty() {
    model_.setDimension(columns, 0);
    model_.setDimension(columns, rows);
  }
  void scroll(unsigned long byRows) {
    moveBar(bar_, static_cast<int>(byRows) * table_->rowHeight(1), True);
  }
  void scrollToStart() { scroll(rows); }
  // How many rows are seen whole.
  unsigned long rowsShown() const {
    return static_cast<unsigned long>(table_->roomForCells().height / table_->rowHeight(1));
  }
  WatchedTable& table() { return *table_; }

 private:
  zTableSmallModel model_{columns, rows};
  zDialogFrame dialog_{app->rootWindow(), new zSizer(10, 40, 620, 420, nullptr), dialogStyle,
                       "Table", 0};
  WatchedTable* table_ = nullptr;
  Widget bar_ = nullptr;
};

// The bare sides, of the same measures.

class Drawing {
 public:
  Drawing(const WatchedTable& table, unsigned long rowsShown)
      : cell_{table.colWidth(1), table.rowHeight(1)}, font_(table.getFont()), shown_(rowsShown) {
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    window_ = XCreateWindow(display_, DefaultRootWindow(display_), besideTheDialog.x,
                            besideTheDialog.y, width(), height(), 0, CopyFromParent, InputOutput,
                            nullptr, CWOverrideRedirect, &attributes);
    XMapWindow(display_, window_);
    image_ = XCreatePixmap(display_, window_, width(), height(),
                           static_cast<unsigned>(DefaultDepth(display_, DefaultScreen(display_))));
    gc_ = XCreateGC(display_, image_, 0, nullptr);
    XSetGraphicsExposures(display_, gc_, False);
    XSetFont(display_, gc_, font_->xFont()->fid);
    settle();
  }
  ~Drawing() {
    XFreeGC(display_, gc_);
    XFreePixmap(display_, image_);
    XDestroyWindow(display_, window_);
  }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;

  void drawAll(int generation) {
    drawRows(generation, 1, shown_);
    show({{0, 0}, tableSize});
  }
  void drawOne(int generation) {
    drawCell(generation, 2, 3);
    show({{cell_.width, 2 * cell_.height}, cell_});
  }
  void scrollByARow(int generation) {
    const int kept = static_cast<int>(shown_ - 1) * cell_.height;
    XCopyArea(display_, image_, image_, gc_, 0, cell_.height, width(), static_cast<unsigned>(kept),
              0, 0);
    drawRows(generation, shown_, shown_);
    show({{0, 0}, tableSize});
  }

 private:
  static unsigned width() { return static_cast<unsigned>(tableSize.width); }
  static unsigned height() { return static_cast<unsigned>(tableSize.height); }

  void drawRows(int generation, unsigned long first, unsigned long last) {
    for (unsigned long row = first; row <= last; ++row) {
      for (unsigned long column = 1; column <= columns; ++column) drawCell(generation, column, row);
    }
  }
  void drawCell(int generation, unsigned long column, unsigned long row) {
    const zRect place(
        {static_cast<int>(column - 1) * cell_.width, static_cast<int>(row - 1) * cell_.height},
        cell_);
    const std::string& shown = text(generation, column, row);
    ++cellsPainted;
    XSetForeground(display_, gc_, ziClrm->pixel(zWhite));
    XFillRectangle(display_, image_, gc_, place.left, place.top, static_cast<unsigned>(cell_.width),
                   static_cast<unsigned>(cell_.height));
    XSetForeground(display_, gc_, ziClrm->pixel(zDialogGrey));
    XDrawLine(display_, image_, gc_, place.right - 1, place.top, place.right - 1, place.bottom - 1);
    XDrawLine(display_, image_, gc_, place.left, place.bottom - 1, place.right - 1,
              place.bottom - 1);
    XSetForeground(display_, gc_, ziClrm->pixel(zBlack));
    XDrawString(display_, image_, gc_, place.left + (cell_.width - font_->textWidth(shown)) / 2,
                place.top + font_->ascent(), shown.data(), static_cast<int>(shown.size()));
  }
  void show(const zRect& area) {
    XCopyArea(display_, image_, window_, gc_, area.left, area.top,
              static_cast<unsigned>(area.width()), static_cast<unsigned>(area.height()), area.left,
              area.top);
  }

  Display* display_ = app->display();
  zDimension cell_;
  std::shared_ptr<const zFont> font_;
  unsigned long shown_;
  Window window_ = None;
  Pixmap image_ = None;
  GC gc_ = nullptr;
};

class MotifList {
 public:
  MotifList() {
    const Widget shell = XtVaAppCreateShell(
        nullptr, "Bench", applicationShellWidgetClass, app->display(), XmNx, belowTheDialog.x, XmNy,
        belowTheDialog.y, XmNwidth, listSize.width, XmNheight, listSize.height, nullptr);
    list_ = XmCreateScrolledList(shell, const_cast<char*>("List"), nullptr, 0);
    XtManageChild(list_);
    for (unsigned long row = 1; row <= rows; ++row) {
      XmListAddItemUnselected(list_, ziXmString(text(0, 2, row)).get(), 0);
    }
    XtRealizeWidget(shell);
    XtVaGetValues(XtParent(list_), XmNverticalScrollBar, &bar_, nullptr);
    x_driver::settle();
  }

  void changeOne(int generation) {
    const ziXmString item(text(generation, 2, 3));
    XmString items[] = {item.get()};
    XmListReplaceItemsPos(list_, items, 1, 3);
  }
  // The bar alone, and not the list.
  void scrollBar() { moveBar(bar_, 1, False); }

 private:
  Widget list_ = nullptr;
  Widget bar_ = nullptr;
};

// All of them stand as long as the measuring goes on.
struct Stage {
  TableStage table;
  Drawing drawing{table.table(), table.rowsShown()};
  MotifList list;
};
Stage* stage = nullptr;

// Takes the time of `act` until it can be seen; `prepare`, before it, is not counted. Both get the
// number of the texts to show, which changes from one time to the next.
using Step = std::function<void(int generation)>;
void measure(benchmark::State& state, const Step& prepare, const Step& act) {
  using Clock = std::chrono::steady_clock;
  AskedOfServer asked;
  double cells = 0;
  int generation = 0;
  stage->table.scrollToStart();
  while (state.KeepRunning()) {
    generation = (generation + 1) % generations;
    prepare(generation);
    x_driver::settle();
    cellsPainted = 0;
    const AskedOfServer before = askedOfServer();
    const Clock::time_point start = Clock::now();
    act(generation);
    settle();
    state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    asked += askedOfServer() - before - askedBySettling;
    cells += cellsPainted;
  }
  countPerIteration(state, asked);
  state.counters["cells"] = benchmark::Counter(cells, benchmark::Counter::kAvgIterations);
}

void nothing(int) {}

void firstFill(benchmark::State& state) {
  measure(
      state, [](int) { stage->table.empty(); },
      [](int generation) { stage->table.fill(generation); });
}
void unchanged(benchmark::State& state) {
  const auto fill = [](int) { stage->table.fill(0); };
  measure(state, fill, fill);
}
void oneChanged(benchmark::State& state) {
  stage->table.fill(0);
  measure(state, nothing, [](int generation) { stage->table.changeOne(generation); });
}
void allChanged(benchmark::State& state) {
  measure(state, nothing, [](int generation) { stage->table.fill(generation); });
}
void scrollByARow(benchmark::State& state) {
  measure(state, nothing, [](int) { stage->table.scroll(1); });
}
void scrollByAPage(benchmark::State& state) {
  measure(state, nothing, [](int) { stage->table.scroll(stage->table.rowsShown() - 1); });
}

void bareAll(benchmark::State& state) {
  measure(state, nothing, [](int generation) { stage->drawing.drawAll(generation); });
}
void bareNothing(benchmark::State& state) {
  measure(state, nothing, nothing);
}
void bareOne(benchmark::State& state) {
  measure(state, nothing, [](int generation) { stage->drawing.drawOne(generation); });
}
void bareScroll(benchmark::State& state) {
  measure(state, nothing, [](int generation) {
    stage->drawing.scrollByARow(generation);
    stage->list.scrollBar();
  });
}
void listOne(benchmark::State& state) {
  measure(state, nothing, [](int generation) { stage->list.changeOne(generation); });
}

#define TABLE_BENCHMARK(name) BENCHMARK(name)->UseManualTime()->Unit(benchmark::kMicrosecond)
TABLE_BENCHMARK(firstFill);
TABLE_BENCHMARK(unchanged);
TABLE_BENCHMARK(bareNothing);
TABLE_BENCHMARK(oneChanged);
TABLE_BENCHMARK(bareOne);
TABLE_BENCHMARK(listOne);
TABLE_BENCHMARK(allChanged);
TABLE_BENCHMARK(bareAll);
TABLE_BENCHMARK(scrollByARow);
TABLE_BENCHMARK(bareScroll);
TABLE_BENCHMARK(scrollByAPage);

}  // namespace

// The table's dialog stands over app->rootWindow().
void zApp::zAppEntry() {
  initIntPack();
  zDialogFrame root(nullptr, new zSizer(10, 600, 120, 40, nullptr), dialogStyle, "Bench", 0);
  if (!x_driver::show(root)) std::abort();
  checkCounting();
  Stage everything;
  stage = &everything;
  benchmark::RunSpecifiedBenchmarks();
}
