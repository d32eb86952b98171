// The data behind tables: cells by column and row, the attributes that they are shown with, and the
// views that are told of changes.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "framework/core/event_handler.h"

class zTableAttr;
class zTableModel;

// The address of a cell, counted from 1; 0 means no cell.
struct zTableLoc {
  unsigned long x = 0;  // column
  unsigned long y = 0;  // row

  zTableLoc() = default;
  zTableLoc(unsigned long column, unsigned long row) : x(column), y(row) {}
  bool isCell() const { return x > 0 && y > 0; }
  friend bool operator==(const zTableLoc&, const zTableLoc&) = default;
};

// A rectangle of cells; both corners belong to it. May reach beyond the table.
struct zTableRegion {
  zTableLoc topLeft;
  zTableLoc bottomRight;

  zTableRegion() = default;
  explicit zTableRegion(const zTableLoc& cell) : topLeft(cell), bottomRight(cell) {}
  zTableRegion(const zTableLoc& first, const zTableLoc& last) : topLeft(first), bottomRight(last) {}

  bool isEmpty() const {
    return !topLeft.isCell() || bottomRight.x < topLeft.x || bottomRight.y < topLeft.y;
  }
  bool contains(const zTableLoc& cell) const {
    return cell.isCell() && topLeft.x <= cell.x && cell.x <= bottomRight.x && topLeft.y <= cell.y &&
           cell.y <= bottomRight.y;
  }
  // The smallest region around both; an empty one counts for nothing.
  zTableRegion unionWith(const zTableRegion& o) const;
  zTableRegion intersection(const zTableRegion& o) const;
  // The region between two cells, whichever way round they lie.
  static zTableRegion between(const zTableLoc& a, const zTableLoc& b);
  friend bool operator==(const zTableRegion&, const zTableRegion&) = default;
};

class zTableCell {
 public:
  enum Flags : unsigned {
    mustReplace = 0x02,  // a new text takes a new cell
    changed = 0x80,
  };

  virtual ~zTableCell() = default;
  virtual std::string getText() const = 0;
  virtual void setText(const char* text) = 0;

  unsigned getFlags() const { return flags_; }
  void setFlag(unsigned flag) { flags_ |= flag; }

 private:
  unsigned flags_ = 0;
};

class zTableTextCell : public zTableCell {
 public:
  explicit zTableTextCell(const char* text) : text_(text ? text : "") {}
  std::string getText() const override { return text_; }
  void setText(const char* text) override;

 private:
  std::string text_;
};

// What a model and one of its views know of each other. Shared by both, since either may go first.
class ziTableViewNode {
 public:
  // Null once the model is gone or the view is detached.
  zTableModel* model() const { return model_; }
  // For the callbacks: what has changed since the last call. Neighbours that changed one after the
  // other are one region.
  const std::vector<zTableRegion>& regions() const { return regions_; }

 private:
  friend class zTableModel;

  zTableModel* model_ = nullptr;
  const zEvH* view_ = nullptr;
  zAction<int> update_;
  zAction<int> reset_;
  void note(zTableRegion region);
  void callBack();

  std::vector<zTableRegion> regions_;
  std::vector<zTableRegion> pending_;
  bool structureChanged_ = false;
};

// Changes of cells and attributes are only noted; many of them followed by one updateAllViews()
// give one repaint. A change of the dimension reaches the views at once.
class zTableModel : public zEvH {
 public:
  using CellFactory = std::unique_ptr<zTableCell> (*)(const char* text);

  ~zTableModel() override;

  unsigned long getNumCols() const { return cols_; }
  unsigned long getNumRows() const { return rows_; }

  // Null for an empty cell and for one outside the table. Good until the cell is replaced.
  virtual zTableCell* getCell(const zTableLoc& at) const = 0;
  // Returns the cell that was there before. Outside the table nothing happens.
  virtual std::unique_ptr<zTableCell> setCell(const zTableLoc& at,
                                              std::unique_ptr<zTableCell> cell) = 0;
  // Cells beyond the new dimension go.
  virtual void setDimension(unsigned long cols, unsigned long rows) = 0;
  // Insert in front of a row or column, or at the end with the number behind the last one. A number
  // that is out of range changes nothing.
  virtual void deleteRow(unsigned long row) = 0;
  virtual void deleteCol(unsigned long col) = 0;
  virtual void insertRow(unsigned long row) = 0;
  virtual void insertCol(unsigned long col) = 0;

  // Gives a cell a text: a new cell by the factory where there is none or where it must be
  // replaced, else by its setText. Returns the cell replaced, or null. Without a factory, and
  // outside the table, nothing happens.
  std::unique_ptr<zTableCell> textToCell(const zTableLoc& at, const char* text);
  void setCellFactory(CellFactory factory) { factory_ = factory; }

  // Attributes are applied in order of addition, so the last one wins. The pointer is the handle to
  // remove it with; the model owns the attribute until then.
  zTableAttr* addAttr(std::unique_ptr<zTableAttr> attr);
  // Null and an attribute that is not in the list are passed over.
  void removeAttr(zTableAttr* attr);
  const std::vector<std::unique_ptr<zTableAttr>>& attributes() const { return attributes_; }

  // `update` is called after changes in cells, `reset` after a change of the dimension.
  std::shared_ptr<ziTableViewNode> attachView(const zEvH* view, zAction<int> update,
                                              zAction<int> reset);
  void detachView(const zEvH* view);
  // Call each view that has something changed: all of them, all but `view`, or `view` alone.
  void updateAllViews();
  void updateOtherViews(const zEvH* view);
  void updateView(const zEvH* view);

 protected:
  zTableModel(unsigned long cols, unsigned long rows, CellFactory factory)
      : cols_(cols), rows_(rows), factory_(factory) {}

  bool holds(const zTableLoc& at) const { return at.isCell() && at.x <= cols_ && at.y <= rows_; }
  void markChanged(const zTableRegion& region);
  void changeDimension(unsigned long cols, unsigned long rows);

 private:
  unsigned long cols_;
  unsigned long rows_;
  std::vector<std::unique_ptr<zTableAttr>> attributes_;
  std::vector<std::shared_ptr<ziTableViewNode>> views_;
  CellFactory factory_;
};

// Holds its cells in an array of rows; rows and cells come into being when they are first written.
class zTableSmallModel : public zTableModel {
 public:
  zTableSmallModel(unsigned long cols, unsigned long rows);

  zTableCell* getCell(const zTableLoc& at) const override;
  std::unique_ptr<zTableCell> setCell(const zTableLoc& at,
                                      std::unique_ptr<zTableCell> cell) override;
  void setDimension(unsigned long cols, unsigned long rows) override;
  void deleteRow(unsigned long row) override;
  void deleteCol(unsigned long col) override;
  void insertRow(unsigned long row) override;
  void insertCol(unsigned long col) override;

 private:
  using Row = std::vector<std::unique_ptr<zTableCell>>;
  std::vector<Row> cells_;  // may be shorter than the table, as may each row
};
