#include "simulator/options.h"

#include <charconv>
#include <limits>
#include <string_view>

#include "simulator/board.h"

namespace lisim {

const char helpText[] =
    "usage: lisim --device PATH [--scenario FILE] [--control PATH] [--trace FILE]\n"
    "             [--boards N] [--seed N]\n"
    "       lisim --decode TRACE\n"
    "Plays an adapter driver on the socket PATH until it is told to end.\n"
    "  --device PATH    the socket that takes the place of the control device\n"
    "  --scenario FILE  commands to start with\n"
    "  --control PATH   a socket that takes commands while running\n"
    "  --trace FILE     write a line for each open, request and close\n"
    "  --boards N       boards at the start, 0 to 8; 2 unless given\n"
    "  --seed N         let counters wander about their rates; 0, the default, keeps them exact\n"
    "  --decode TRACE   print a trace for a person, '-' being the standard input, and end\n"
    "  --help           show this text\n"
    "  --version        show the version\n"
    "The commands are told in lisim(8).\n";

const char versionText[] = "lisim 2.20\n";

namespace {

template <std::string Options::*member>
bool takeText(std::string_view word, Options& options) {
  options.*member = word;
  return !word.empty();
}

template <auto member, auto highest>
bool takeNumber(std::string_view word, Options& options) {
  const char* end = word.data() + word.size();
  auto& number = options.*member;
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  return error == std::errc() && stop == end && number >= 0 && number <= highest;
}

struct Option {
  std::string_view name;
  bool (*take)(std::string_view word, Options& options);
  const char* expected;
};

constexpr Option valued[] = {
    {"--device", takeText<&Options::device>, "a path"},
    {"--scenario", takeText<&Options::scenario>, "a file"},
    {"--control", takeText<&Options::control>, "a path"},
    {"--trace", takeText<&Options::trace>, "a file"},
    {"--decode", takeText<&Options::decode>, "a file"},
    {"--boards", takeNumber<&Options::boards, boardSlots>, "a number from 0 to 8"},
    {"--seed", takeNumber<&Options::seed, std::numeric_limits<std::uint32_t>::max()>,
     "a number from 0 to 4294967295"},
};

constexpr struct {
  std::string_view name;
  bool Options::*flag;
} flags[] = {{"--help", &Options::help}, {"--version", &Options::version}};

bool takeFlag(std::string_view word, Options& options) {
  for (const auto& known : flags)
    if (word == known.name) return options.*known.flag = true;
  return false;
}

const Option* findOption(std::string_view word) {
  for (const Option& known : valued)
    if (word == known.name) return &known;
  return nullptr;
}

}  // namespace

std::string readOptions(int count, const char* const* words, Options& options) {
  for (int i = 1; i < count; ++i) {
    const std::string word = words[i];
    if (takeFlag(word, options)) continue;
    const Option* option = findOption(word);
    if (option == nullptr) return "unknown option '" + word + "'";
    if (i + 1 >= count || !option->take(words[++i], options))
      return word + " wants " + option->expected;
  }
  const bool plays = !options.help && !options.version && options.decode.empty();
  if (plays && options.device.empty()) return "--device is missing";
  return "";
}

}  // namespace lisim
