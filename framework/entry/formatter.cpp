#include "framework/entry/formatter.h"

int zFormatter::getChars(std::string&, unsigned long) {
  return 0;
}

int zFormatter::firstWritablePosition(const char*) const {
  return 0;
}
