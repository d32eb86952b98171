// The tables of permanent circuits.
#pragma once

#include <cstdint>
#include <vector>

#include "applet/my_table.h"

// One row a circuit: the far end's address in the first column, then "VPI / VCI" and the
// encapsulation. Rows are numbered at the left, and no row is active at first.
class PvcTable : public myTable {
 protected:
  // Labels the columns of `model` with a string block.
  PvcTable(zWindow* parent, int id, zTableModel* model, int labelBlock);

  // Gives the model a row for each circuit, as `writeRow(row, circuit)` fills it, and shows that.
  // The active cell stays where it is.
  template <class Pvc, class WriteRow>
  void show(const std::vector<Pvc>& pvcs, WriteRow writeRow) {
    model()->setDimension(model()->getNumCols(), pvcs.size());
    unsigned long row = 0;
    for (const Pvc& pvc : pvcs) writeRow(++row, pvc);
    model()->updateAllViews();
  }
  // The columns that all of them have.
  template <class Pvc>
  void writeCommon(unsigned long row, const char* address, const Pvc& pvc) {
    writeCells(row, address, pvc.vci, pvc.Encap == 1);
  }
  // The room that a column needs for a sample, for its label and for the widest circuit that it can
  // be asked to show, with `padding`.
  unsigned columnFor(unsigned long column, const char* sample, int padding) const;

 private:
  void writeCells(unsigned long row, const char* address, std::uint16_t vci, bool isLlc);
};
