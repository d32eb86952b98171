// The side files: lists of records in the form of their stream operators. What is no plain file,
// and so might block, never end or be no list of ours, is neither read nor written nor removed.
#pragma once

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "foundation/odlog.h"

// A file that is no plain one counts as missing.
bool isPlainFile(const char* name);

// Replaces what the file holds; it is made with mode 0664 if it is missing. Stops at the first
// error, silently, with what has been written so far.
void writePlainFile(const char* name, const std::vector<std::string>& pieces);

// Removes the file if there is one.
void removePlainFile(const char* name);

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
