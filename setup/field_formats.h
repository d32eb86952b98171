// The pictures and styles of Setup's entry fields.
#pragma once

#include "framework/entry/formatter.h"

// The 13 bytes of a network prefix; the first digit is not 0.
constexpr char networkPrefixPicture[] =
    "[1-9A-Fa-f][0-9A-Fa-f]':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'"
    "[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'"
    "[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)";
// An end system identifier and its selector.
constexpr char esiSelectorPicture[] =
    "[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'[0-9A-Fa-f](2)':'"
    "[0-9A-Fa-f](2)'-'[0-9A-Fa-f](2)";
constexpr char macAddressPicture[] =
    "[0-9A-Fa-f][0-9A-Fa-f]':'[0-9A-Fa-f][0-9A-Fa-f]':'[0-9A-Fa-f][0-9A-Fa-f]':'"
    "[0-9A-Fa-f][0-9A-Fa-f]':'[0-9A-Fa-f][0-9A-Fa-f]':'[0-9A-Fa-f][0-9A-Fa-f]";
constexpr char ipAddressPicture[] = "[0-9](3)'.'[0-9](3)'.'[0-9](3)'.'[0-9](3)";

// Every place shown, filled or not; all of them wanted; and stored with the literals or without.
constexpr unsigned long shownWhole = zFormatter::fillMode;
constexpr unsigned long wholeText = shownWhole | zFormatter::required;
constexpr unsigned long wholeDigits = wholeText | zFormatter::rawValue;
