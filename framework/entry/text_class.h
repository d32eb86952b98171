// Classes of characters that do not depend on the locale.
#pragma once

#include "framework/entry/formatter.h"

inline bool ziIsDigit(char c) {
  return c >= '0' && c <= '9';
}

inline bool ziIsCapital(char c) {
  return c >= 'A' && c <= 'Z';
}

inline bool ziIsSmall(char c) {
  return c >= 'a' && c <= 'z';
}

inline bool ziIsLetter(char c) {
  return ziIsCapital(c) || ziIsSmall(c);
}

inline char ziUpper(char c) {
  return ziIsSmall(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

inline char ziLower(char c) {
  return ziIsCapital(c) ? static_cast<char>(c - 'A' + 'a') : c;
}

// The character in the case that a formatter's style forces.
inline char ziForcedCase(char c, unsigned long style) {
  if ((style & zFormatter::lowerCase) != 0) c = ziLower(c);
  return (style & zFormatter::upperCase) != 0 ? ziUpper(c) : c;
}
