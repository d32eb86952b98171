// A grid of cells with labels along its top and left, an active cell and a selection, that shows a
// zTableModel. It only displays: what the user picks is told to the owner, nothing can be typed.
//
// The model is not owned and may go before the table. Everything can be set before the table is on
// the screen; sizes and places are pixels.
#pragma once

#include <map>
#include <memory>
#include <string>

#include "framework/controls/pane.h"
#include "framework/table/table_attr.h"
#include "framework/table/table_axis.h"
#include "framework/table/table_image.h"
#include "framework/table/table_model.h"
#include "framework/table/table_scroller.h"

class zCursor;
class zResStrBlock;

enum zTLabelKind { zTLabelColumns = 0, zTLabelRows = 1 };
enum zTLabelType {
  zTLabelNumbers = 0,  // 1, 2, 3: what a table starts with
  zTLabelNone = 1,     // takes no room
  zTLabelText = 2,     // set by setLabelText
  zTLabelLetters = 3,  // A, B, ... Z, AA
};
// Where Return moves the active cell.
enum zTLabelDirection { zTMoveLeft = 0, zTMoveRight = 1, zTMoveUp = 2, zTMoveDown = 3 };

// 1 is A, 26 is Z, 27 is AA; empty for 0.
std::string numToAlphaLabel(unsigned long number);

class zTable : public zPane {
 public:
  zTable(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes the place of the generic table that a dialog template made under `id`.
  zTable(zWindow* parent, int id, zTableModel* model);
  ~zTable() override;

  // Null without a model and once it is gone.
  zTableModel* model() const { return node_ ? node_->model() : nullptr; }

  // Labels. The size is the height of the column labels and the width of the row labels.
  void setLabelSize(const zDimension& size);
  void setLabelType(zTLabelKind kind, zTLabelType type);
  // Numbers the texts from 1. Labels that the block has no text for stay as they are.
  void setLabelText(zTLabelKind kind, const zResStrBlock& texts);
  void setLabelText(zTLabelKind kind, unsigned long number, const char* text);
  std::string getLabelText(zTLabelKind kind, unsigned long number) const;

  // Sizes, for the first 100 columns and rows; 0 gives the default back, which follows the font.
  void setColWidth(unsigned long col, unsigned pixels) { setColWidth(col, col, pixels); }
  void setColWidth(unsigned long first, unsigned long last, unsigned pixels);
  void setRowHeight(unsigned long row, unsigned pixels) { setRowHeight(row, row, pixels); }
  void setRowHeight(unsigned long first, unsigned long last, unsigned pixels);
  int colWidth(unsigned long col) const { return cols_.size(col); }
  int rowHeight(unsigned long row) const { return rows_.size(row); }
  void setGridLineColor(zColor color);
  const zFont& labelFont() const { return *labelFont_; }
  // What the labels leave for cells, with no scroll bar.
  zDimension roomForCells() const;

  // What the user may do. At first only sizing is on, and it needs a resize space.
  void enableMultiSelect(int on) { multiSelect_ = on != 0; }
  void enableLabelSelect(int on) { labelSelect_ = on != 0; }
  void enableMultiLabelSelect(int on) { multiLabelSelect_ = on != 0; }
  void enableRowSizing(int on) { sizing_[zTLabelRows] = on != 0; }
  void enableColSizing(int on) { sizing_[zTLabelColumns] = on != 0; }
  // How near to a label's border a press takes hold of it; 0 for not at all.
  void setResizeSpace(int pixels) { resizeSpace_ = pixels; }

  // The active cell; with (0, 0) none is, and the first cell gets the keyboard's first step. A cell
  // outside the table is refused, but for the first row of an empty table.
  // Setting it scrolls it into view and notifies, even when it was active before. A column one
  // pixel wide is hidden and never scrolled to.
  void setActiveCell(const zTableLoc& cell);
  zTableLoc getActiveCell() const { return active_; }
  void setActiveMoveDirection(zTLabelDirection direction) { moveDirection_ = direction; }
  void moveLeft() { changeCurSelLoc(-1, 0); }
  void moveRight() { changeCurSelLoc(1, 0); }
  void moveUp() { changeCurSelLoc(0, -1); }
  void moveDown() { changeCurSelLoc(0, 1); }

  // The selection follows the active cell unless something larger is selected. Empty at first.
  void setSelection(const zTableRegion& region);
  void getSelection(zTableRegion& region) const { region = selection_; }

  // One of each, replaced by the next call.
  template <class T, class C>
  void setNotifySelChange(T* object, int (C::*member)()) {
    selectionChanged_ = zAction<int>(object, member);
  }
  template <class T, class C>
  void setNotifyActiveCellChange(T* object, int (C::*member)()) {
    activeCellChanged_ = zAction<int>(object, member);
  }

  // Repaints the part of these cells that is seen.
  void setCellsDirty(const zTableRegion& cells);
  void setDirty(const zRect* rect, int erase) override;
  using zPane::setDirty;
  // Takes in what the model has noted, and paints at once.
  void update() override;
  // Where a cell is drawn; may lie outside the part that is seen. Empty for no cell.
  zRect cellRect(const zTableLoc& cell) const;

  int create() override;
  void draw(zDrawEvt* event) override;
  void vmove(int x, int y, int width, int height) override;
  void setFont(std::shared_ptr<zFont> font, int redraw) override;
  void ziBackgroundColor(const zColor& color) override;
  int enable() override;
  int disable() override;
  int resolveSize(zSizeEvt* event) override;
  int size(zSizeEvt* event) override;
  int focus(zFocusEvt* event) override;
  int mouseButtonDown(zMouseClickEvt* event) override;
  int mouseButtonUp(zMouseClickEvt* event) override;
  int mouseMove(zMouseMoveEvt* event) override;
  int keyDownInput(zKeyEvt* event);

 private:
  // What lies under the pointer: a cell, or a label or its far border by kind and number.
  enum class Part { nothing, cell, label, labelBorder };
  struct Hit {
    Part part = Part::nothing;
    zTableLoc cell;
    zTLabelKind kind = zTLabelColumns;
    unsigned long number = 0;
  };
  struct Labels {
    zTLabelType type = zTLabelNumbers;
    std::map<unsigned long, std::string> texts;
  };
  // The labels pressed in.
  struct SelectedLabels {
    bool any = false;
    zTLabelKind kind = zTLabelColumns;
    unsigned long first = 0;
    unsigned long last = 0;
  };

  void setup();
  void listenToModel(zTableModel* model);
  int updateProc();
  int resetProc();

  // Layout.
  static constexpr int zTableBorder = 2;  // the sunken edge around the table
  static constexpr int hiddenWidth = 1;   // a column no wider than this is hidden
  void measureDefaults();
  void arrange();
  void updateScrollers();
  static void scrolledCB(Widget bar, XtPointer link, XtPointer callData);
  void scrollTo(const zPoint& offset);
  void scrollIntoView(const zTableLoc& cell);
  bool takeOffset(const zPoint& offset);
  zPoint furthest() const;
  zDimension roomInside() const;
  zDimension labelRoom() const;
  zRect cellsArea() const;
  zTableRegion calcVisible() const;
  zTableRegion dirtyToLogical(const zRect& area) const;
  ziTableAxis& axis(zTLabelKind kind) { return kind == zTLabelColumns ? cols_ : rows_; }
  const ziTableAxis& axis(zTLabelKind kind) const { return kind == zTLabelColumns ? cols_ : rows_; }
  // How far a point of the drawing area lies from the start of the first column or row.
  int alongAxis(zTLabelKind kind, const zPoint& at) const;
  zRect labelRect(zTLabelKind kind, unsigned long number) const;
  zRect labelStrip(zTLabelKind kind) const;

  // Active cell and selection.
  bool isInTable(const zTableLoc& cell) const;
  void changeActive(const zTableLoc& cell);
  void moveTo(const zTableLoc& cell);
  void changeCurSelLoc(int across, int down);
  void moveInDirection();
  void moveToFirst();
  void moveToLast();
  void pageUp();
  void pageDown();
  unsigned long rowsOfAPage() const;
  void changeSelection(const zTableRegion& region);
  bool showsAsSelected(const zTableLoc& cell) const;
  void clearSelectedLabels();
  void selectLabels(zTLabelKind kind, unsigned long from, unsigned long to);

  // Mouse.
  Hit hitAt(const zPoint& at) const;
  bool findBorder(zTLabelKind kind, const zPoint& at, Hit& hit) const;
  unsigned long nearest(zTLabelKind kind, const zPoint& at) const;
  void pressed(const Hit& hit);
  void dragTo(const zPoint& at);
  void showSizingCursor(const Hit& hit);

  // Drawing.
  void paint(const zRect& area) override;
  void drawCells(zDisplay& display, const zRect& area) const;
  void drawCell(zDisplay& display, const zTableLoc& cell, const zRect& area) const;
  void drawText(zDisplay& display, const std::string& text, const ziTableEnv& env,
                const zRect& inside, const zRect& area) const;
  void drawFocus(zDisplay& display, const zRect& area) const;
  void drawLabels(zDisplay& display, zTLabelKind kind, const zRect& area) const;
  void drawLabel(zDisplay& display, const zRect& place, const std::string& text, bool isPressed,
                 const zRect& area) const;
  ziTableEnv envOf(const zTableLoc& cell) const;
  bool isLabelPressed(zTLabelKind kind, unsigned long number) const;

  std::shared_ptr<ziTableViewNode> node_;
  ziTableAxis cols_;
  ziTableAxis rows_;
  zDimension area_{1, 1};  // the drawing area
  zPoint scroll_;          // pixels of the cells hidden at the left and at the top
  std::unique_ptr<ziTableScroller> scrollers_[2];  // by label kind: across and down
  zTableLoc active_{1, 1};
  zTableRegion selection_;
  zTLabelDirection moveDirection_ = zTMoveDown;
  zDimension labelSize_;
  Labels labels_[2];
  SelectedLabels selectedLabels_;
  std::shared_ptr<const zFont> labelFont_;
  zColor gridColor_{200, 200, 200};
  zAction<int> selectionChanged_;
  zAction<int> activeCellChanged_;
  ziTableImage image_;
  bool drawnEnabled_ = true;  // how the image shows the cells
  bool hasFocus_ = false;
  bool multiSelect_ = false;
  bool labelSelect_ = false;
  bool multiLabelSelect_ = false;
  bool sizing_[2] = {true, true};
  int resizeSpace_ = 0;
  Hit dragged_;                              // what the button went down on, while it is held
  zPoint dragFrom_;                          // where it went down
  int sizeBefore_ = 0;                       // of the column or row whose border is dragged
  zTLabelKind cursorKind_ = zTLabelColumns;  // of the sizing cursor shown
  bool cursorShown_ = false;
  std::unique_ptr<zCursor> sizingCursors_[2];
};
