// The tables of the statistics pages.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>

#include "applet/my_table.h"
#include "stats/timer_page.h"

class StatsTable : public myTable {
 public:
  // Takes all rows away.
  void empty();

 protected:
  // Rows are numbered, or labelled with a string block.
  static constexpr int numberedRows = 0;
  StatsTable(zWindow* parent, int id, zTableModel* model, int columnLabels,
             int rowLabels = numberedRows);

  // Room for the row labels from a sample, and for the column labels, with `padding` in pixels.
  void measureLabels(const char* sample, int padding);
  // Room in each column for its sample and its label.
  void measureColumns(std::initializer_list<const char*> samples);

  void setRowCount(unsigned long rows);
  // Has a row for each of the query's table, as `writeRow(row, record)` writes it. Returns 0 if
  // nothing was read; the query may be null.
  template <class Info, class WriteRow>
  short showTable(Info* query, short link, short unit, WriteRow writeRow) {
    const auto* records = query ? query->GetEntireTable(queryByte(link), queryByte(unit)) : nullptr;
    if (!records) return 0;
    const unsigned long count = query->header().NRow;
    setRowCount(count);
    for (unsigned long row = 1; row <= count; ++row) writeRow(row, records[row - 1]);
    model()->updateAllViews();
    return 1;
  }
  void writeCount(unsigned long column, unsigned long row, std::uint32_t count);
  void writeCircuit(unsigned long column, unsigned long row, short link, std::uint16_t vci);
  // An ATM address in two columns, from `column` on.
  void writeAddress(unsigned long column, unsigned long row, const std::uint8_t* address);
  // The same for a connection of a kind; a permanent one has no address.
  void writeFarEnd(unsigned long column, unsigned long row, std::uint16_t connectionKind,
                   const std::uint8_t* address);

 private:
  int labelPadding_ = 0;
  zDimension labelSize_;
};

// Samples for columns.
constexpr char circuitSample[] = "255/65535";
constexpr char countSample[] = "4294967295";
constexpr char macSample[] = "00:00:00:00:00:00";
constexpr char prefixSample[] = "00:00:00:00:00:00:00:00:00:00:00:00:00";
constexpr char esiSelectorSample[] = "00:00:00:00:00:00-00";
