#include "framework/entry/picture_formatter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <random>
#include <vector>

#include "framework/entry/mask_formatter.h"
#include "framework/entry/num_formatter.h"
#include "tests/support/entry_field.h"

namespace {

constexpr unsigned long fill = 0x200000, needed = 0x280000, raw = 0x2C0000, plain = 0;

const std::string ip = "[0-9](3)'.'[0-9](3)'.'[0-9](3)'.'[0-9](3)";

std::string repeated(const std::string& text, int times) {
  return times == 0 ? "" : text + repeated(text, times - 1);
}

const std::string hex = "[0-9A-Fa-f]", counted = "':'" + hex + "(2)", pair = hex + hex;
const std::string mac = pair + repeated("':'" + pair, 5);
const std::string prefix = "[1-9A-Fa-f]" + hex + repeated(counted, 12);
const std::string selector = hex + "(2)" + repeated(counted, 5) + "'-'" + hex + "(2)";

// Every picture and style of the program, and some that none of its fields has.
struct Picture {
  unsigned long style;
  std::string picture;
};
const Picture pictures[] = {
    {raw, prefix},
    {raw, "[1-9A-Fa-f]" + hex + repeated("':'" + pair, 12)},
    {raw, selector},
    {raw, mac + "'-'" + pair},
    {needed, mac + "'-'" + pair},
    {needed, mac},
    {needed, ip},
    {fill, ip},
    {plain, ip},
    {plain, prefix},
    {plain, "X(3)'-'X(3)'--'9A"},
    {fill, "'('!A')'[!0-9'-']N#'-'X(2)"},
    {0x4000, "[1-9a-f]A'.'[1-9](2)'.'"},
};

TEST(Picture, TypedText) {
  const struct {
    unsigned long style;
    std::string picture, keys, shown;
  } cases[] = {
      {fill, ip, "", "|___.___.___.___"},
      {fill, ip, "1.2", "1__.2|__.___.___"},
      {fill, ip, "10.0.0.1", "10_.0__.0__.1|__"},
      {fill, ip, "192168001254", "192.168.001.254|"},
      {fill, ip, "192.168.001.2549", "192.168.001.254|"},
      {fill, ip, "123.<", "12|_.___.___.___"},
      {fill, ip, "1234{5", "5|12.34_.___.___"},
      {fill, ip, "1234{.", "123.|4__.___.___"},
      {fill, ip, "1234{>", "|234.___.___.___"},
      {fill, ip, "10.0.0.1{1<", "|10_.0__.0__.1__"},
      {fill, ip, "1.2*>", "|___.___.___.___"},
      {fill, ip, "1.2*9", "9|__.___.___.___"},
      {fill, ip, "1.2*x", "|1__.2__.___.___|"},
      {fill, ip, "a:-1", "1|__.___.___.___"},
      {fill, mac, "12:34:56", "12:34:56:|__:__:__"},
      {fill, mac, "123456<<", "12:34:|__:__:__:__"},
      {fill, mac, "0A1b2c3d4e5f{7", "7|0:A1:b2:c3:d4:e5"},
      {fill, prefix, "0a", "a|_:__:__:__:__:__:__:__:__:__:__:__:__"},
      {fill, hex + "(4)'-'" + hex, "ab-", "ab__-|_"},
      {fill, "[1-9]9':'99", "4000*>", "|_#:##"},
      {fill, "[1-9]9':'99", "4000{>", "|_0:00"},
      {fill, "[1-9]9':'99", "4000{>5", "5|0:00"},
      {fill, "[1-9]9':'99", "4000{>>39", "39:|00"},
      {fill, "'('9')'(3)9", "<", "(|#)#"},
      {fill, "'('9')'(3)9", "12", "(1)2|"},
      {fill, "'it''s'[z-a]9", "3", "it's|_#"},
      {fill, "[z-a][a", "_z", "_|_"},
      {fill, "9 (2)(3)?9(2)", "123456", "123456|"},
      {fill, "!A#N", "aB+9", "AB+9|"},
      {plain, "99':'99", "", "|:"},
      {plain, "99':'99", "1:3", "1:3|"},
      {plain, "99':'99", "123<", "12:|"},
      {plain, "99':'99", "123<<", "1|:"},
      {plain, "99':'99", "1:34{9", "|1:34"},
      {plain, "99':'99", "1234{>", "|23:4"},
      {0x4000, "[a-f]':'A", "ab", "A:B|"},
  };
  for (const auto& test : cases) {
    zPictFormatter formatter(test.style, test.picture.c_str());
    EntryField field(formatter);
    for (const char key : test.keys) field.press(key);
    EXPECT_EQ(field.shown(), test.shown) << test.picture << " after " << test.keys;
  }
}

TEST(Picture, SelectionsAndPastes) {
  const struct {
    std::string picture, start;
    zRange sel;
    std::string pasted, shown;  // an empty paste is the Delete key
    int answer;
  } cases[] = {
      {mac, "12:34:56", {1, 4}, "", "1|4:56:__:__:__:__", 2},
      {mac, "12:34:56", {2, 3}, "", "12|:|34:56:__:__:__", 0},
      {mac, "12:34:56", {1, 7}, "ab", "1a:b|6:__:__:__:__", 2},
      {mac, "12:34:56", {1, 7}, "x1", "1|2:34:5|6:__:__:__", 0},
      {mac, "", {0, 0}, "0011223344ff", "00:11:22:33:44:ff|", 2},
      {mac, "", {0, 0}, "00:11:22:33:44:ff\n", "00:11:22:33:44:ff|", 2},
      {mac, "ab:cd:ef", {0, 0}, "00:11:22:33:44:55", "00:11:22:33:44:55|", 2},
      {mac, "", {0, 0}, "rubbish", "|__:__:__:__:__:__", 0},
      {mac, "", {0, 0}, "12rubbish", "12:|__:__:__:__:__", 2},
      {ip, "", {0, 0}, "192.168.1.20", "192.168.1__.20|_", 2},
      {ip, "1.2.3.4", {0, 900}, "10.0", "10_.0|__.___.___", 2},
      {ip, "1.2.3.4", {0, 900}, "", "|___.___.___.___", 2},
      {"[1-9]9':'99", "4000", {0, 2}, "", "|_0:0#", 2},
      {"[1-9]9':'99", "4000", {0, 2}, "39", "39:|00", 2},
  };
  for (const auto& test : cases) {
    zPictFormatter formatter(fill, test.picture.c_str());
    EntryField field(formatter);
    field.paste(test.start);
    field.sel = test.sel;
    EXPECT_EQ(test.pasted.empty() ? field.press('>') : field.paste(test.pasted), test.answer);
    EXPECT_EQ(field.shown(), test.shown) << test.start << " with " << test.pasted;
  }
}

TEST(Picture, Values) {
  const struct {
    unsigned long style;
    std::string picture, text;
    int checked, at;
    std::string value;
  } cases[] = {
      {needed, ip, "___.___.___.___", 0, 0, "..."},
      {needed, ip, "1__.2__.3__.4__", 0, 1, "1.2.3.4"},
      {needed, ip, "192.168.001.020", 1, -1, "192.168.001.020"},
      {fill, ip, "1__.2__.3__.4__", 1, 1, "1.2.3.4"},
      {fill, ip, "___.___.___.___", 0, 0, "..."},
      {fill | 0x100, ip, "", 1, -1, "..."},
      {needed | 0x100, ip, "___.___.___.___", 1, 0, "..."},
      {needed | 0x100, ip, "1__.___.___.___", 0, 1, "1..."},
      {fill, ip, "1_x.___.___.___", 0, 2, "1_x.___.___.___"},
      {raw, mac, "12:34:56:78:9a:bc", 1, -1, "123456789abc"},
      {0x40000, "99':'99", "12:34", 1, -1, "1234"},
      {0x80000, "99':'99", "1:34", 0, 1, "134"},
      {plain, "99':'99", "1234", 1, -1, "12:34"},
      {plain, "9", "", 0, 0, ""},
  };
  for (auto test : cases) {
    zPictFormatter formatter(test.style, test.picture.c_str());
    zRange sel = {-1, -1};
    EXPECT_EQ(formatter.checkChars(test.text, sel), test.checked) << test.text;
    EXPECT_EQ(sel, (zRange{test.at, test.at})) << test.text;
    const unsigned long style = test.value == "134" ? 0x40000 : test.style;
    formatter.getChars(test.text, style);
    EXPECT_EQ(test.text, test.value);
  }
}

TEST(Mask, ClassesAndCases) {
  const struct {
    unsigned long style;
    std::string keys, shown;
  } cases[] = {
      {0, "ab{<>c", "c|b"},   {0x2, "1a2", "12|"},   {0x1, "a b1", "a b|"},
      {0x10, "a-+*.x", "x|"}, {0x4000, "aB", "AB|"}, {0x8020, "jOHN dOE", "John Doe|"},
      {0, "abc*<", "|"},
  };
  for (const auto& test : cases) {
    zMaskFormatter formatter(test.style);
    EntryField field(formatter);
    for (const char key : test.keys) field.press(key);
    EXPECT_EQ(field.shown(), test.shown) << test.keys;
  }
  zMaskFormatter digits(0x2);
  zRange sel;
  EXPECT_EQ(digits.checkChars("12a", sel), 0);
  EXPECT_EQ(sel, (zRange{2, 2}));
}

// The elements of a picture, read a second time for comparison.
std::string brokenPicture(const Picture& of, EntryField& field) {
  zPicture elements = ziReadPicture(of.picture.c_str());
  zRange sel;
  std::string value = field.text, rawValue = field.text;
  if (field.formatter.getChars(value, 0) == 0) return "the text maps onto the picture";
  if ((of.style & fill) != 0) {
    if (field.text.size() != elements.size()) return "the text has its full length";
    bool complete = true, empty = true;
    std::string bare;
    for (std::size_t i = 0; i < elements.size(); ++i) {
      const char c = field.text[i];
      if (!elements[i]->addChar(c, 0, of.style)) return "each place is in its class";
      if (elements[i]->isWritable() && c != elements[i]->fill()) bare += c, empty = false;
      if (elements[i]->isWritable() && c == elements[i]->fill()) complete = false;
    }
    const bool good = complete || (!empty && (of.style & 0x80000) == 0);
    if ((field.formatter.checkChars(field.text, sel) == 1) != good) return "the check says so";
    field.formatter.getChars(rawValue, 0x40000);
    if (bare != rawValue) return "the raw value is what was filled in";
  }
  const zRange all = {0, 900};
  EntryField refilled = field;
  refilled.sel = all;
  refilled.press('>');
  if (refilled.text != EntryField(field.formatter).text) return "all can be deleted";
  refilled.sel = {};
  refilled.paste(field.text);
  // A place may refuse where another character stood, or take a literal for its own.
  const bool isPlain = of.picture.find_first_of("!XA#") == std::string::npos;
  if ((of.style & fill) != 0 && isPlain && refilled.text != field.text) return "it can be refilled";
  return "";
}

unsigned seedOf() {
  const char* given = std::getenv("ONDRELLE_SEED");
  const unsigned seed =
      given != nullptr ? static_cast<unsigned>(std::atoi(given)) : std::random_device{}();
  std::cout << "ONDRELLE_SEED=" << seed << std::endl;
  return seed;
}

void moveCaret(EntryField& field, std::mt19937& random) {
  const int length = static_cast<int>(field.text.size());
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  if (below(3) == 0) field.sel.start = field.sel.end = below(length + 1);
  if (below(6) == 0) field.sel.end = std::min(field.sel.start + below(7), length);
}

int randomEdit(EntryField& field, std::mt19937& random, const std::string& alphabet) {
  const auto any = [&] { return alphabet[random() % alphabet.size()]; };
  const auto kind = random() % 16;
  if (kind < 9) return field.press(any());
  if (kind < 14) return field.press(kind < 12 ? '<' : '>');
  std::string pasted(2 + random() % 30, ' ');
  for (char& c : pasted) c = any();
  return field.paste(pasted);
}

TEST(Picture, AMillionEdits) {
  constexpr int editsOfEach = 80000;
  std::mt19937 random(seedOf());
  const std::string alphabet = "0123456789abcdefABCDEF0123456789::..--_#(z ";
  for (const Picture& of : pictures) {
    zPictFormatter formatter(of.style, of.picture.c_str());
    EntryField field(formatter);
    for (int i = 0; i < editsOfEach; ++i) {
      moveCaret(field, random);
      const std::string text = field.text;
      const zRange sel = field.sel;
      const int answer = randomEdit(field, random, alphabet);
      std::string broken = brokenRule(field, answer, text, sel);
      if (broken.empty() && i % 32 == 0) broken = brokenPicture(of, field);
      ASSERT_EQ(broken, "") << of.picture << ": " << text << " to " << field.shown();
    }
  }
}

TEST(Number, TypedText) {
  const struct {
    unsigned long style;
    std::string picture, keys, shown;
    int checked;
    std::string value;
  } cases[] = {
      {0, "####", "", "|", 1, "0"},
      {0, "####", "12345", "1234|", 1, "1234"},
      {0, "####", "-1+.2", "12|", 1, "12"},
      {0, "####", "007{>", "|07", 1, "07"},
      {0, "####", "123<<", "1|", 1, "1"},
      {0, "####", "123*9", "9|", 1, "9"},
      {0, "####", "123*-", "|123|", 1, "123"},
      {0x80000, "###", "", "|", 0, "0"},
      {0x80000, "###", "32", "32|", 0, "32"},
      {0x80000, "###", "032", "032|", 1, "032"},
      {0x80100, "###", "", "|", 1, "0"},
      {0x40000, "####.###", "1234.5678", "1234.567|", 1, "1234.567"},
      {0x40000, "####.###", ".5", "0.5|", 1, "0.5"},
      {0x40000, "####.###", "12.<", "12|", 1, "12"},
      {0x40000, "####.###", "12.5{.<", "1|.5", 1, "1.5"},
      {0, "-#####", "5-", "-5|", 1, "-5"},
      {0, "-#####", "-5-", "5|", 1, "+5"},
      {0, "-#####", "-<7", "7|", 1, "+7"},
      {0, "-#####", "-12*>", "|", 1, "+0"},
      {0, "$#,###,##0.00", "1234567.8", "$1,234,567.8|0", 1, "1234567.80"},
      {0, "##0.00", "57.25", "57.25|", 1, "57.25"},
      {0x200000, "####", "57", "##57|", 1, "57"},
      {0, "+L*###", "1", "+**1|", 1, "+1"},
      {0, "[1-2][!5]", "15", "15|", 0, "15"},
      {0, "R1##.##", "1.2", "12|.", 1, "12."},
      {0, "?##", "1", "|", 1, "0"},
  };
  for (const auto& test : cases) {
    zNumFormatter formatter(test.style, test.picture.c_str());
    EntryField field(formatter);
    for (const char key : test.keys) field.press(key);
    EXPECT_EQ(field.shown(), test.shown) << test.picture << " after " << test.keys;
    zRange sel;
    EXPECT_EQ(formatter.checkChars(field.text, sel), test.checked) << field.text;
    formatter.getChars(field.text, test.style);
    EXPECT_EQ(field.text, test.value) << test.keys;
  }
  for (const char* picture : {"####", "-####"}) {
    zNumFormatter formatter(0, picture);
    EntryField field(formatter);
    EXPECT_EQ(field.paste("-12"), 2);
    EXPECT_EQ(field.text, *picture == '-' ? "-12" : "12");
  }
}

TEST(Number, RandomEdits) {
  constexpr int editsOfEach = 40000;
  std::mt19937 random(seedOf());
  for (const std::string picture : {"##", "###", "####", "##########", "####.###", "-#####",
                                    "$#,###,##0.00", "LT*+#,###.##", "[1-2][!5].[3-9]"}) {
    for (const unsigned long style : {0UL, 0x40000UL, 0x80000UL, 0x200000UL}) {
      zNumFormatter formatter(style, picture.c_str());
      EntryField field(formatter);
      for (int i = 0; i < editsOfEach; ++i) {
        moveCaret(field, random);
        const std::string text = field.text;
        const zRange sel = field.sel;
        const int answer = randomEdit(field, random, "0123456789012345678901234567-+.,$x#");
        ASSERT_EQ(brokenRule(field, answer, text, sel), "") << picture << ": " << text;
        std::string value = field.text;
        formatter.getChars(value, style);
        EntryField refilled(formatter);
        refilled.paste(value);
        std::string again = refilled.text;
        formatter.getChars(again, style);
        ASSERT_EQ(std::atof(again.c_str()), std::atof(value.c_str())) << picture << ": " << text;
        refilled.sel = {0, 900};
        refilled.press('>');
        ASSERT_EQ(refilled.text, EntryField(formatter).text) << picture;
      }
    }
  }
}

}  // namespace
