#include "simulator/argument.h"

#include <cerrno>
#include <charconv>
#include <iterator>

namespace lisim {

const char* const alarmNames[alarmKinds] = {"los", "lof", "oof", "ferf", "ais", "lop"};

const char* const counterWords[counterNames] = {
    "cells-in",    "cells-out",     "packets-in",    "packets-out", "cell-errors", "frame-errors",
    "invalid-vci", "invalid-vpi",   "dropped-in",    "dropped-out", "vc-in",       "vc-out",
    "lecs-valid",  "lecs-invalid",  "lecs-rejected", "lecs-made",   "lecs-open",   "ip-in",
    "ip-out",      "ip-dropped-in", "ip-dropped-out"};

namespace {

struct Choice {
  const char* word;
  long long number;
};

constexpr Choice mediums[] = {{"unknown", mediumUnknown},
                              {"25", medium25},
                              {"oc3-mm", mediumOc3MultiMode},
                              {"oc3-sm", mediumOc3SingleMode},
                              {"utp", medium155Utp}};
constexpr Choice onOff[] = {{"off", 0}, {"on", 1}};
constexpr Choice upDown[] = {{"down", 0}, {"up", 1}};
constexpr Choice framings[] = {{"sonet", 0}, {"sdh", 1}};
constexpr Choice modes[] = {{"manual", 0}, {"auto", 1}};
constexpr Choice elanTypes[] = {{"ethernet", 0}, {"token-ring", 1}};
constexpr Choice frameSizes[] = {{"1516", 1}, {"4544", 2}, {"9234", 3}, {"18190", 4}};
constexpr Choice errors[] = {{"EPERM", EPERM},   {"ENOENT", ENOENT}, {"EINTR", EINTR},
                             {"EIO", EIO},       {"ENXIO", ENXIO},   {"EAGAIN", EAGAIN},
                             {"ENOMEM", ENOMEM}, {"EACCES", EACCES}, {"EBUSY", EBUSY},
                             {"ENODEV", ENODEV}, {"EINVAL", EINVAL}, {"ENOBUFS", ENOBUFS},
                             {"EPROTO", EPROTO}, {"ETIME", ETIME}};

bool readNumber(std::string_view word, long long low, long long high, Value& value) {
  const auto [end, error] =
      std::from_chars(word.data(), word.data() + word.size(), value.number, 10);
  return error == std::errc() && end == word.data() + word.size() && value.number >= low &&
         value.number <= high;
}

bool readChoice(std::string_view word, std::span<const Choice> choices, Value& value) {
  for (const Choice& choice : choices)
    if (word == choice.word) {
      value.number = choice.number;
      return true;
    }
  return false;
}

std::string listed(std::span<const Choice> choices) {
  std::string text;
  for (const Choice& choice : choices)
    text += (text.empty() ? "" : ", ") + std::string(choice.word);
  return "one of " + text;
}

template <std::size_t count>
bool readName(std::string_view word, const char* const (&names)[count], Value& value) {
  for (std::size_t i = 0; i < count; ++i)
    if (word == names[i]) {
      value.number = static_cast<long long>(i);
      return true;
    }
  return false;
}

template <std::size_t count>
std::string listed(const char* const (&names)[count]) {
  std::string text;
  for (const char* name : names) text += (text.empty() ? "" : ", ") + std::string(name);
  return "one of " + text;
}

// Boards are numbered from 1 as their administrator sees them, and from 0 within.
bool readBoard(std::string_view word, Value& value) {
  const bool good = readNumber(word, 1, boardSlots, value);
  --value.number;
  return good;
}

// A board number that may be out of range, or none.
bool readActive(std::string_view word, Value& value) {
  if (word == "none" || word == "-1") {
    value.number = noBoard;
    return true;
  }
  const bool good = readNumber(word, 1, 32767, value);
  --value.number;
  return good;
}

bool readMac(std::string_view word, Value& value) {
  constexpr std::size_t length = 17;
  if (word.size() != length) return false;
  value.number = 0;
  for (std::size_t at = 0; at < length; at += 3) {
    unsigned byte = 0;
    const char* start = word.data() + at;
    const auto [end, error] = std::from_chars(start, start + 2, byte, 16);
    if (error != std::errc() || end != start + 2) return false;
    if (at + 2 < length && word[at + 2] != ':') return false;
    value.number = value.number << 8 | byte;
  }
  return true;
}

bool readIp(std::string_view word, Value& value) {
  value.number = 0;
  const char* at = word.data();
  const char* const end = at + word.size();
  for (int part = 0; part < 4; ++part) {
    if (part > 0 && (at == end || *at++ != '.')) return false;
    std::uint8_t byte = 0;
    const auto [behind, error] = std::from_chars(at, end, byte);
    if (error != std::errc()) return false;
    at = behind;
    value.number = value.number << 8 | byte;
  }
  return at == end;
}

// Any 16-bit number, or "*" for all, which counts as not given.
bool readPattern(std::string_view word, Value& value) {
  if (word != "*") return readNumber(word, 0, 65535, value);
  value.given = false;
  return true;
}

bool readError(std::string_view word, Value& value) {
  return readChoice(word, errors, value) || readNumber(word, 1, 4095, value);
}

// "250ms", "5s" or a bare number of milliseconds.
bool readTime(std::string_view word, Value& value) {
  long long factor = 1;
  if (word.ends_with("ms")) {
    word.remove_suffix(2);
  } else if (word.ends_with("s")) {
    word.remove_suffix(1);
    factor = 1000;
  }
  constexpr long long longest = 7LL * 24 * 3600;
  const bool good = readNumber(word, 0, longest, value);
  value.number *= factor;
  return good;
}

// The text itself is what counts.
bool readPrefix(std::string_view word, Value&) {
  return word.size() == 2U * networkPrefixBytes &&
         word.find_first_not_of("0123456789ABCDEFabcdef") == word.npos;
}

bool readPeriod(std::string_view word, Value& value) {
  return readTime(word, value) && value.number > 0;
}

template <long long low, long long high>
bool readRange(std::string_view word, Value& value) {
  return readNumber(word, low, high, value);
}

template <const auto& choices>
bool readOneOf(std::string_view word, Value& value) {
  return readChoice(word, choices, value);
}

struct ArgumentKind {
  std::string_view name;
  bool (*read)(std::string_view word, Value& value);
  std::string expected;
};

std::span<const ArgumentKind> argumentKinds() {
  static const ArgumentKind kinds[] = {
      {"board", readBoard, "a board number from 1 to 8"},
      {"active", readActive, "a board number from 1, or none"},
      {"mac", readMac, "a MAC address such as 02:4C:49:00:01:00"},
      {"ip", readIp, "an IP address such as 10.0.0.1"},
      {"slots", readRange<0, boardSlots>, "a number from 0 to 8"},
      {"server", readRange<0, unitSlots - 1>, "a server's number from 0 to 15"},
      {"unit", readRange<0, unitSlots - 1>, "a client's or server's number from 0 to 15"},
      {"rows", readRange<0, maxVcRows>, "a number of rows from 0 to 65534"},
      {"byte", readRange<0, 255>, "a number from 0 to 255"},
      {"short", readRange<0, 65535>, "a number from 0 to 65535"},
      {"word", readRange<0, 4294967295>, "a number from 0 to 4294967295"},
      {"count", readRange<1, 4294967295>, "a number from 1"},
      {"pattern", readPattern, "a number from 0 to 65535, or *"},
      {"time", readTime, "a time such as 250ms or 5s, of a week at most"},
      {"elan-type", readOneOf<elanTypes>, listed(elanTypes)},
      {"frame-size", readOneOf<frameSizes>, listed(frameSizes)},
      {"prefix", readPrefix, "a network prefix of 26 hexadecimal digits"},
      {"period", readPeriod, "a time such as 250ms or 5s, above 0 and of a week at most"},
      {"errno", readError, listed(errors) + " or a number from 1 to 4095"},
      {"medium", readOneOf<mediums>, listed(mediums)},
      {"framing", readOneOf<framings>, listed(framings)},
      {"up/down", readOneOf<upDown>, listed(upDown)},
      {"on/off", readOneOf<onOff>, listed(onOff)},
      {"mode", readOneOf<modes>, listed(modes)},
      {"alarm",
       [](std::string_view word, Value& value) { return readName(word, alarmNames, value); },
       listed(alarmNames)},
      {"counter",
       [](std::string_view word, Value& value) { return readName(word, counterWords, value); },
       listed(counterWords)},
  };
  return kinds;
}

}  // namespace

const char* mediumName(std::uint32_t medium) {
  for (const Choice& choice : mediums)
    if (choice.number == medium) return choice.word;
  return "unknown";
}

std::string readArgument(std::string_view kind, std::string_view word, Value& value) {
  value.given = true;
  value.text = word;
  for (const ArgumentKind& known : argumentKinds())
    if (known.name == kind) return known.read(word, value) ? "" : known.expected;
  return "";
}

}  // namespace lisim
