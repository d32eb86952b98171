// The data behind tables, without a table.
#include "framework/table/table_model.h"

#include <gtest/gtest.h>

#include "framework/entry/formatter.h"
#include "framework/table/table_attr.h"
#include "framework/table/table_axis.h"

namespace {

// Counts what the model tells it.
struct View : zEvH {
  explicit View(zTableModel& model)
      : node(model.attachView(this, {this, &View::update}, {this, &View::reset})) {}
  int update() {
    ++updates;
    return 0;
  }
  int reset() {
    ++resets;
    return 0;
  }
  std::shared_ptr<ziTableViewNode> node;
  int updates = 0;
  int resets = 0;
};

std::string textAt(const zTableModel& model, const zTableLoc& at) {
  const zTableCell* cell = model.getCell(at);
  return cell ? cell->getText() : "none";
}

TEST(TableModel, CellsOutsideTheTableDoNotExist) {
  zTableSmallModel model(3, 2);
  for (const zTableLoc& at : {zTableLoc(0, 1), zTableLoc(1, 0), zTableLoc(0, 0), zTableLoc(4, 1),
                              zTableLoc(3, 3), zTableLoc(~0UL, ~0UL)}) {
    EXPECT_EQ(model.textToCell(at, "x"), nullptr);
    EXPECT_EQ(model.setCell(at, std::make_unique<zTableTextCell>("x")), nullptr);
    EXPECT_EQ(model.getCell(at), nullptr) << at.x << ',' << at.y;
  }
  EXPECT_EQ(model.getCell({3, 2}), nullptr);
  model.textToCell({3, 2}, nullptr);
  EXPECT_EQ(textAt(model, {3, 2}), "");
}

TEST(TableModel, ATextReplacesOnlyACellThatAsksForIt) {
  zTableSmallModel model(2, 2);
  EXPECT_EQ(model.textToCell({1, 1}, "a"), nullptr);
  zTableCell* first = model.getCell({1, 1});
  EXPECT_EQ(model.textToCell({1, 1}, "b"), nullptr);
  EXPECT_EQ(model.getCell({1, 1}), first);
  first->setFlag(zTableCell::mustReplace);
  const auto old = model.textToCell({1, 1}, "c");
  ASSERT_EQ(old.get(), first);
  EXPECT_EQ(old->getText(), "b");
  EXPECT_TRUE(old->getFlags() & zTableCell::changed);
  EXPECT_EQ(textAt(model, {1, 1}), "c");
  model.setCellFactory(nullptr);
  model.textToCell({1, 1}, "d");
  EXPECT_EQ(textAt(model, {1, 1}), "c");
}

TEST(TableModel, RowsAndColumnsMoveTheirCells) {
  zTableSmallModel model(2, 2);
  model.textToCell({1, 1}, "a");
  model.textToCell({2, 2}, "b");
  model.insertRow(1);
  model.insertCol(2);
  EXPECT_EQ(textAt(model, {1, 2}), "a");
  EXPECT_EQ(textAt(model, {3, 3}), "b");
  model.deleteRow(2);
  model.deleteCol(1);
  EXPECT_EQ(textAt(model, {2, 2}), "b");
  for (const unsigned long wrong : {0UL, 4UL}) {
    model.insertRow(wrong);
    model.deleteCol(wrong);
  }
  EXPECT_EQ(model.getNumCols(), 2U);
  EXPECT_EQ(model.getNumRows(), 2U);
  model.setDimension(2, 1);
  model.setDimension(2, 2);
  EXPECT_EQ(model.getCell({2, 2}), nullptr);
}

TEST(TableModel, ManyChangesAreOneUpdate) {
  zTableSmallModel model(5, 5);
  View view(model);
  View other(model);
  model.updateAllViews();
  EXPECT_EQ(view.updates, 0);
  model.textToCell({2, 2}, "a");
  zTableAttr* attr =
      model.addAttr(std::make_unique<zTableReadOnlyAttr>(zTableRegion({3, 3}, {4, 5})));
  model.updateOtherViews(&other);
  EXPECT_EQ(view.updates, 1);
  using Regions = std::vector<zTableRegion>;
  EXPECT_EQ(view.node->regions(), (Regions{zTableRegion({2, 2}), {{3, 3}, {4, 5}}}));
  EXPECT_EQ(other.updates, 0);
  model.removeAttr(attr);
  model.removeAttr(attr);
  model.updateAllViews();
  EXPECT_EQ(view.node->regions(), (Regions{{{3, 3}, {4, 5}}}));
  EXPECT_EQ(other.updates, 1);
  model.setDimension(5, 5);
  EXPECT_EQ(view.resets, 0);
  model.setDimension(5, 0);
  EXPECT_EQ(view.resets, 1);
  model.detachView(&other);
  model.setDimension(5, 1);
  EXPECT_EQ(other.resets, 1);
  EXPECT_EQ(other.node->model(), nullptr);
}

TEST(TableModel, NeighboursThatChangeAreOneRegion) {
  using Regions = std::vector<zTableRegion>;
  const struct {
    std::vector<zTableLoc> changed;
    Regions regions;
  } cases[] = {
      {{{1, 1}, {5, 5}}, {{{1, 1}, {1, 1}}, {{5, 5}, {5, 5}}}},
      {{{2, 1}, {2, 1}, {3, 1}, {1, 1}}, {{{1, 1}, {3, 1}}}},
      {{{3, 1}, {4, 1}, {3, 2}, {4, 2}, {3, 3}, {4, 3}}, {{{3, 1}, {4, 3}}}},
      {{{3, 1}, {4, 1}, {3, 2}, {5, 2}}, {{{3, 1}, {4, 1}}, {{3, 2}, {3, 2}}, {{5, 2}, {5, 2}}}},
      {{{1, 1}, {2, 2}, {1, 2}, {2, 3}}, {{{1, 1}, {1, 1}}, {{1, 2}, {2, 2}}, {{2, 3}, {2, 3}}}},
  };
  for (const auto& c : cases) {
    zTableSmallModel model(5, 5);
    View view(model);
    for (const zTableLoc& at : c.changed) model.textToCell(at, "x");
    model.updateAllViews();
    EXPECT_EQ(view.node->regions(), c.regions);
  }
  zTableSmallModel model(2, 3000);  // so many apart that the last are known by what is around them
  View view(model);
  for (unsigned long row = 1; row <= 3000; row += 2) model.textToCell({row % 4 / 2 + 1, row}, "x");
  model.updateAllViews();
  EXPECT_EQ(view.node->regions().size(), 1000U);
  EXPECT_EQ(view.node->regions().back(), zTableRegion({1, 1999}, {2, 2999}));
}

// Puts a dollar in front, and refuses a text that has one.
struct Dollars : zFormatter {
  Dollars() : zFormatter(0) {}
  int addChars(std::string& text, const char* chars, int count, zRange&) override {
    if (chars[0] == '$') return refused;
    text = "$" + std::string(chars, static_cast<std::size_t>(count));
    return rewritten;
  }
  int checkChars(const std::string& text, zRange&) override { return text.size() > 1; }
};

TEST(TableModel, CellsMayShowAndHoldWhatAFormatterMakesOfTheirText) {
  Dollars dollars;
  ziTableEnv env;
  zTableNumFormatterAttr(zTableRegion({1, 1}), &dollars).setup(env);
  ASSERT_EQ(env.formatter, &dollars);
  EXPECT_EQ(ziFormatted(*env.formatter, "12") + ziFormatted(*env.formatter, "$3"), "$12$3");
  zTableFmtNumCell number(dollars, "1");
  zTableValidatedFmtTextCell checked(dollars, "1");
  for (zTableCell* cell : {static_cast<zTableCell*>(&number), static_cast<zTableCell*>(&checked)}) {
    cell->setText("2");
    cell->setText("");
  }
  EXPECT_EQ(number.getText() + checked.getText(), "$$2");
}

TEST(TableAxis, FindsPlacesAmongSizesOfItsOwnAndDefaults) {
  ziTableAxis axis;
  axis.setDefault(10);
  axis.setCount(105);
  axis.setSize(2, 3, 30);
  axis.setSize(101, 105, 99);  // beyond those that can have their own
  EXPECT_EQ(axis.start(1), 0);
  EXPECT_EQ(axis.start(4), 70);
  EXPECT_EQ(axis.total(), 1090);
  struct {
    int pixel;
    unsigned long number;
    int nextStart;
  } const cases[] = {{-1, 0, 0},        {0, 1, 0},      {9, 1, 10},        {10, 2, 10},
                     {69, 3, 70},       {70, 4, 70},    {1039, 100, 1040}, {1041, 101, 1050},
                     {1089, 105, 1090}, {1090, 0, 1090}};
  for (const auto& c : cases) {
    EXPECT_EQ(axis.at(c.pixel), c.number) << c.pixel;
    EXPECT_EQ(axis.nextStart(c.pixel), c.nextStart) << c.pixel;
  }
  axis.setCount(~0UL);
  EXPECT_GT(axis.total(), 0);
}

}  // namespace
