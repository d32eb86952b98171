// What all the tables of the applet have in common.
#pragma once

#include "framework/table/table.h"

// The font of tables built from now on.
extern zFontSpec tblFontSpec;

class myTable : public zTable {
 public:
  // Takes the place of the generic table `id` of the template. `model` is not owned.
  myTable(zWindow* parent, int id, zTableModel* model);

  // Writes a text that differs from the one in the cell; leaves the model alone otherwise, so that
  // a refresh that changes nothing draws nothing.
  void SetCellText(zTableLoc cell, const char* text);
};
