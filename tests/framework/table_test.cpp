// Tables on the screen, as a person sees and drives them.
#include <gtest/gtest.h>  // first: X has macros with names that it uses

#include "framework/table/table.h"

#include <X11/keysym.h>

#include <utility>

#include "framework/controls/button.h"
#include "framework/core/app.h"
#include "framework/dialogs/control_types.h"
#include "framework/dialogs/dialog_frame.h"
#include "framework/resources/resources.h"
#include "tests/support/x_driver.h"

namespace {

constexpr unsigned long dialogStyle = 0x80C80000;
constexpr unsigned long childStyle = 0x50010000;
constexpr int tableId = 101;
constexpr int rowHeight = 20;
constexpr int colWidth = 50;
constexpr int labelHeight = 25;
constexpr int rowsSeen = 6;
constexpr zColor red{255, 0, 0};

// Counts the notifications of a table.
struct Listener : zEvH {
  int activeChanged() { return ++activeChanges, 0; }
  int selectionChanged() { return ++selectionChanges, 0; }
  int clicked(zNotifyEvt*) { return ++clicks, 0; }
  int clicks = 0;
  int activeChanges = 0;
  int selectionChanges = 0;
};

// Notes the parts that it draws.
struct WatchedTable : zTable {
  using zTable::zTable;
  void draw(zDrawEvt* event) override {
    drawn.push_back(event->area);
    zTable::draw(event);
  }
  // The parts since the last time.
  std::vector<zRect> drawnNow() {
    x_driver::settle();
    return std::exchange(drawn, {});
  }
  std::vector<zRect> drawn;
};

// A table of 3 columns in room for 6 rows and all columns, adopted as a dialog does it.
class TableTest : public testing::Test {
 protected:
  explicit TableTest(unsigned long rows = 4) : model(3, rows) {}

  void SetUp() override {
    dialog.setFont(std::make_shared<zFont>("Helv", zPrPoint(0, 120)), 0);
    const zControlType* type = zControlType::find("zTable");
    ASSERT_NE(type, nullptr);
    auto* place = new zSizer(10, 10, 204, labelHeight + rowsSeen * rowHeight + 4, nullptr);
    generic = type->buildNew(&dialog, place, childStyle, "", tableId);
    generic->show(1);
    widget = generic->getWidget();
    table = new WatchedTable(&dialog, tableId, &model);
    table->setLabelType(zTLabelRows, zTLabelNone);
    table->setLabelSize({0, labelHeight});
    table->setColWidth(1, 3, colWidth);
    table->setRowHeight(1, 100, rowHeight);
    table->setNotifyActiveCellChange(&heard, &Listener::activeChanged);
    table->setNotifySelChange(&heard, &Listener::selectionChanged);
    ASSERT_TRUE(x_driver::show(dialog));
  }

  static zPoint middle(unsigned long col, unsigned long rowSeen) {
    return {static_cast<int>(col) * colWidth - colWidth / 2,
            labelHeight + static_cast<int>(rowSeen) * rowHeight - rowHeight / 2};
  }

  zTableSmallModel model;
  zDialogFrame dialog{app->rootWindow(), new zSizer(100, 100, 240, 240, nullptr), dialogStyle,
                      "Table", 0};
  zWindow* generic = nullptr;
  Widget widget = nullptr;
  WatchedTable* table = nullptr;
  Listener heard;
};

struct LongTableTest : TableTest {
  LongTableTest() : TableTest(50) {}
};

struct HugeTableTest : TableTest {
  HugeTableTest() : TableTest(900) {}
};

TEST_F(TableTest, AnAdoptedTableWorksOnTheGenericOnesWidgets) {
  EXPECT_EQ(table->getWidget(), widget);
  EXPECT_EQ(dialog.get(tableId), table);
  ASSERT_TRUE(x_driver::giveFocus(*table));
  x_driver::key(XK_Down);
  EXPECT_EQ(heard.activeChanges, 1);  // once, although the generic table listened before
  zTable missing(&dialog, 999, &model);
  missing.setActiveCell({2, 2});
  model.textToCell({1, 1}, "x");
  missing.update();
}

TEST_F(LongTableTest, KeysMoveTheActiveCellWithinTheTable) {
  ASSERT_TRUE(x_driver::giveFocus(*table));
  const struct {
    KeySym key;
    zTableLoc to;
  } steps[] = {{XK_Left, {1, 1}},    {XK_Up, {1, 1}},         {XK_Right, {2, 1}},
               {XK_Down, {2, 2}},    {XK_Return, {2, 3}},     {XK_Page_Down, {2, 9}},
               {XK_Page_Up, {2, 3}}, {XK_Page_Up, {2, 1}},    {XK_End, {3, 50}},
               {XK_Right, {3, 50}},  {XK_Page_Down, {3, 50}}, {XK_Down, {3, 50}},
               {XK_Home, {1, 1}}};
  for (const auto& step : steps) {
    const zTableLoc from = table->getActiveCell();
    heard.activeChanges = 0;
    x_driver::key(step.key);
    EXPECT_EQ(table->getActiveCell(), step.to) << XKeysymToString(step.key);
    EXPECT_EQ(heard.activeChanges, from == step.to ? 0 : 1) << XKeysymToString(step.key);
  }
  table->setActiveMoveDirection(zTMoveRight);
  for (const KeySym lock : {KeySym{XK_Num_Lock}, KeySym{XK_Caps_Lock}}) {
    x_driver::key(lock);
    x_driver::key(XK_Return);
    x_driver::key(lock);
  }
  EXPECT_EQ(table->getActiveCell(), zTableLoc(3, 1));
}

TEST_F(TableTest, AClickPicksACellAndTakesTheFocus) {
  x_driver::click(*table, middle(2, 3));
  EXPECT_EQ(table->getActiveCell(), zTableLoc(2, 3));
  EXPECT_EQ(heard.activeChanges, 1);
  EXPECT_EQ(heard.selectionChanges, 1);
  EXPECT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(*table); }));
  for (const zPoint outside : {middle(4, 1), middle(1, 5), middle(2, 0)}) {
    x_driver::click(*table, outside);
  }
  EXPECT_EQ(heard.activeChanges, 1);
  table->setActiveCell({2, 3});  // tells even of the same cell
  EXPECT_EQ(heard.activeChanges, 2);
  for (const zTableLoc& refused : {zTableLoc(0, 1), zTableLoc(1, 0), zTableLoc(4, 1)}) {
    table->setActiveCell(refused);
  }
  EXPECT_EQ(table->getActiveCell(), zTableLoc(2, 3));
}

TEST_F(TableTest, TabPassesThroughAndReturnPressesNoButton) {
  zButton other(&dialog, new zSizer(10, 190, 80, 30, nullptr), childStyle | zButton::defaultPush,
                "Other", 1);
  other.create();
  other.show(1);
  other.setNotifyClicked(&heard, &Listener::clicked);
  ASSERT_TRUE(x_driver::giveFocus(*table));
  x_driver::key(XK_Return);
  EXPECT_EQ(heard.clicks, 0);
  x_driver::key(XK_Tab);
  EXPECT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(other); }));
  x_driver::key(XK_Tab, {XK_Shift_L});
  EXPECT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(*table); }));
  table->disable();
  x_driver::key(XK_Down);
  x_driver::click(*table, middle(2, 3));
  EXPECT_EQ(table->getActiveCell(), zTableLoc(1, 2));
}

TEST_F(TableTest, DragsSelectOnlyWhereThatIsAllowed) {
  zTableRegion selection;
  x_driver::drag(*table, middle(1, 1), middle(3, 2));
  table->getSelection(selection);
  EXPECT_EQ(selection, zTableRegion(zTableLoc(1, 1)));
  x_driver::drag(*table, middle(1, 0), middle(2, 0));
  EXPECT_EQ(heard.selectionChanges, 1);
  table->enableMultiSelect(1);
  table->enableLabelSelect(1);
  table->enableMultiLabelSelect(1);
  x_driver::drag(*table, middle(3, 3), middle(2, 1));
  table->getSelection(selection);
  EXPECT_EQ(selection, zTableRegion({2, 1}, {3, 3}));
  x_driver::drag(*table, middle(2, 0), middle(3, 0));
  table->getSelection(selection);
  EXPECT_EQ(selection, zTableRegion({2, 1}, {3, 4}));
}

TEST_F(TableTest, ALabelsBorderDragsItsColumnsWidth) {
  const zPoint border{2 * colWidth - 1, 10};
  x_driver::drag(*table, border, {border.x + 20, border.y});
  EXPECT_EQ(table->colWidth(2), colWidth);
  table->setResizeSpace(5);
  x_driver::drag(*table, {border.x + 2, border.y}, {border.x + 22, border.y});
  EXPECT_EQ(table->colWidth(2), colWidth + 20);
  x_driver::drag(*table, {border.x + 20, border.y}, {-100, border.y});
  EXPECT_GT(table->colWidth(2), 0);
  EXPECT_LT(table->colWidth(2), colWidth);
}

TEST_F(LongTableTest, ScrollsByWheelByBarAndToTheActiveCell) {
  const auto topOf = [&](unsigned long row) { return table->cellRect({1, row}).top; };
  EXPECT_EQ(topOf(1), labelHeight);
  x_driver::click(*table, middle(1, 1), 5);
  EXPECT_EQ(topOf(4), labelHeight);
  x_driver::click(*table, middle(1, 1), 4);
  EXPECT_EQ(topOf(1), labelHeight);
  table->setActiveCell({1, 50});
  EXPECT_EQ(topOf(50), labelHeight + (rowsSeen - 1) * rowHeight);
  table->setActiveCell({1, 1});
  const zPoint arrowDown{204 - 4 - 8, labelHeight + rowsSeen * rowHeight - 8};
  x_driver::click(*table, arrowDown);
  EXPECT_TRUE(x_driver::waitUntil([&] { return topOf(2) == labelHeight; }));
  model.setDimension(3, 2);
  EXPECT_EQ(topOf(1), labelHeight);
}

TEST_F(TableTest, ShrinkingTakesTheActiveCellAlong) {
  table->setActiveCell({3, 4});
  heard.activeChanges = 0;
  model.setDimension(3, 2);
  EXPECT_EQ(table->getActiveCell(), zTableLoc(3, 2));
  EXPECT_EQ(heard.activeChanges, 1);
  model.setDimension(3, 0);
  table->setActiveCell({1, 1});
  EXPECT_EQ(table->getActiveCell(), zTableLoc(1, 1));
}

TEST_F(TableTest, AttributesColourTheirRegionUntilRemoved) {
  const zPoint corner{colWidth + 3, labelHeight + rowHeight + 3};
  EXPECT_EQ(x_driver::pixelAt(*table, corner), zWhite);
  const zTableRegion region({2, 2}, {100, 2});
  zTableAttr* attr = model.addAttr(std::make_unique<zTableBackColorAttr>(red, region));
  model.addAttr(std::make_unique<zTableTextColorAttr>(zColor{0, 0, 255}, region));
  model.textToCell({2, 2}, "M");
  model.updateAllViews();
  EXPECT_EQ(x_driver::pixelAt(*table, corner), red);
  EXPECT_EQ(x_driver::pixelAt(*table, {corner.x - colWidth, corner.y}), zWhite);
  EXPECT_GT(x_driver::countPixels(*table, table->cellRect({2, 2}), {0, 0, 255}), 5);
  model.removeAttr(attr);
  model.updateAllViews();
  EXPECT_EQ(x_driver::pixelAt(*table, corner), zWhite);
}

TEST_F(LongTableTest, DrawsOnlyWhatChangedAndIsSeen) {
  model.addAttr(std::make_unique<zTableBackColorAttr>(red, zTableRegion({1, 1}, {3, 50})));
  x_driver::settle();  // the attribute is noted and not yet shown
  const unsigned long before = x_driver::requestsSent();
  model.textToCell({1, 40}, "below");
  table->setCellsDirty({{1, 40}, {3, 50}});
  EXPECT_EQ(x_driver::requestsSent(), before);
  table->setCellsDirty(zTableRegion({2, 2}));
  x_driver::settle();
  EXPECT_EQ(x_driver::pixelAt(*table, {colWidth + 3, labelHeight + rowHeight + 3}), red);
  EXPECT_EQ(x_driver::pixelAt(*table, {3, labelHeight + rowHeight + 3}), zWhite);
  table->update();
  EXPECT_EQ(x_driver::pixelAt(*table, {3, labelHeight + rowHeight + 3}), red);
}

TEST_F(HugeTableTest, DrawsNothingTwice) {
  const auto fill = [&] {
    for (unsigned long row = 1; row <= 900; ++row) {
      for (unsigned long col = 1; col <= 3; ++col) model.textToCell({col, row}, "text");
    }
    model.updateAllViews();
  };
  using Parts = std::vector<zRect>;
  const zRect cells(0, labelHeight, 3 * colWidth, labelHeight + rowsSeen * rowHeight);
  table->drawnNow();
  const unsigned long answered = XLastKnownRequestProcessed(app->display());
  const unsigned long sent = x_driver::requestsSent();
  fill();
  EXPECT_EQ(x_driver::requestsSent(), sent + 1);  // asks the server for one expose event
  EXPECT_EQ(XLastKnownRequestProcessed(app->display()), answered);
  EXPECT_EQ(table->drawnNow(), Parts{cells});
  model.updateAllViews();
  model.textToCell({2, 500}, "not seen");
  model.updateAllViews();
  XClearArea(app->display(), XtWindow(widget), 0, 0, 0, 0, True);  // as if it had been covered
  EXPECT_EQ(table->drawnNow(), Parts{});
  model.textToCell({2, 3}, "seen");
  model.addAttr(std::make_unique<zTableBackColorAttr>(red, zTableRegion({2, 3})));
  model.updateAllViews();
  EXPECT_EQ(table->drawnNow(), Parts{table->cellRect({2, 3})});
  model.textToCell({1, 1}, "seen");
  model.textToCell({3, 5}, "seen");
  model.updateAllViews();
  EXPECT_EQ(table->drawnNow(), (Parts{table->cellRect({1, 1}), table->cellRect({3, 5})}));

  model.addAttr(std::make_unique<zTableBackColorAttr>(red, zTableRegion({1, 8})));
  model.updateAllViews();
  model.textToCell({2, 3}, "moves");  // changed, and not drawn yet when the table scrolls
  model.updateAllViews();
  table->setActiveCell({1, 8});  // two rows up
  const Parts after = table->drawnNow();
  for (const zRect& part : after) {
    EXPECT_TRUE(part == table->cellRect({2, 3}) || part.top == labelHeight + 4 * rowHeight ||
                part.intersection(cells).bottom <= labelHeight + rowHeight)
        << part.left << ',' << part.top << ',' << part.right << ',' << part.bottom;
  }
  EXPECT_EQ(x_driver::pixelAt(*table, {colWidth + 3, labelHeight + 3}), red);
  EXPECT_EQ(x_driver::pixelAt(*table, {6, labelHeight + 5 * rowHeight + 4}), red);
  const int before = x_driver::countPixels(*table, cells, zBlack);
  table->setDirty(nullptr, 0);
  EXPECT_EQ(x_driver::countPixels(*table, cells, zBlack), before);
}

TEST_F(TableTest, LabelsWithoutATextInTheBlockStay) {
  table->setLabelType(zTLabelColumns, zTLabelText);
  table->setLabelText(zTLabelColumns, 3, "kept");
  table->setLabelText(zTLabelColumns, zResStrBlock(554));
  EXPECT_EQ(table->getLabelText(zTLabelColumns, 1), "ILMI");
  EXPECT_EQ(table->getLabelText(zTLabelColumns, 2), "Signalling");
  EXPECT_EQ(table->getLabelText(zTLabelColumns, 3), "kept");
  EXPECT_EQ(table->getLabelText(zTLabelColumns, 4), "");
  EXPECT_EQ(numToAlphaLabel(26) + numToAlphaLabel(27) + numToAlphaLabel(703), "ZAAAAA");
}

TEST_F(TableTest, TheModelMayGoFirst) {
  auto own = std::make_unique<zTableSmallModel>(2, 2);
  new zTable(&dialog, new zSizer(0, 0, 50, 50, nullptr), childStyle, "", 102);
  auto* adopted = new zTable(&dialog, 102, own.get());
  own.reset();
  EXPECT_EQ(adopted->model(), nullptr);
  adopted->setActiveCell({1, 1});
  adopted->update();
}

}  // namespace
