// The side files: lists of records in the form of their stream operators.
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/odlog.h"
#include "store/plain_file.h"

// Appends the file's records to a list and logs each behind the note. A field missing from a record
// is that of the record before it.
template <class Record>
void readSideFile(const char* name, std::vector<Record>& list, const char* note) {
  if (!isPlainFile(name)) return;
  std::ifstream in(name);
  Record record = {};
  while (in >> record) {
    odlog << note << record << std::endl;
    list.push_back(record);
  }
}

// Makes the file hold the list, or removes it if the list is empty.
template <class Record>
void writeSideFile(const char* name, const std::vector<Record>& list) {
  if (list.empty()) return removePlainFile(name);
  std::vector<std::string> pieces;
  for (const Record& record : list) {
    std::ostringstream text;
    text << record << '\n';
    pieces.push_back(text.str());
  }
  writePlainFile(name, pieces);
}
