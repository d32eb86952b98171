#include "simulator/command.h"

#include <utility>

#include "simulator/argument.h"

namespace lisim {

namespace {

constexpr std::string_view blanks = " \t\r";

// The next word of `rest`, which is moved behind it; empty at the end.
std::string_view nextWord(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(blanks), rest.size()));
  const std::string_view word = rest.substr(0, rest.find_first_of(blanks));
  rest.remove_prefix(word.size());
  return word;
}

std::string_view peekWord(std::string_view rest) {
  return nextWord(rest);
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// A comment starts with a # that starts a word.
std::string_view withoutComment(std::string_view line) {
  for (std::size_t at = line.find('#'); at != line.npos; at = line.find('#', at + 1))
    if (at == 0 || blanks.find(line[at - 1]) != blanks.npos) return line.substr(0, at);
  return line;
}

// How far a line follows a form, and what stopped it.
struct Match {
  bool complete = false;
  std::size_t words = 0;
  bool wrongArgument = false;  // the form is the one meant, but for an argument
  std::string error;
  Values values;
};

// Walks one form's pattern along one line.
class Matcher {
 public:
  Matcher(std::string_view pattern, std::string_view line) : pattern_(pattern), line_(line) {}

  Match match() {
    for (auto token = nextWord(pattern_); !token.empty(); token = nextWord(pattern_))
      if (!step(token)) return std::move(match_);
    const std::string_view left = nextWord(line_);
    match_.complete = left.empty();
    if (!left.empty()) match_.error = "'" + std::string(left) + "' is too much here";
    return std::move(match_);
  }

 private:
  bool step(std::string_view token) {
    if (token.front() == '[') return optional(token.substr(1));
    if (token.front() == '{') return argument(token.substr(1, token.find('}') - 1));
    return literal(token);
  }

  bool literal(std::string_view token) {
    const std::string_view word = nextWord(line_);
    if (word == token) {
      ++match_.words;
      return true;
    }
    match_.error =
        word.empty() ? "the line ends too soon" : "'" + std::string(word) + "' is not known here";
    return false;
  }

  // A word and its argument, "[word {kind}]", both there or both left out.
  bool optional(std::string_view token) {
    if (peekWord(line_) == token) return literal(token);
    nextWord(pattern_);
    match_.values.emplace_back();
    return true;
  }

  bool argument(std::string_view kind) {
    Value value;
    if (kind == "text") {
      value.text = trimmed(std::exchange(line_, {}));
      value.given = true;
    } else {
      const std::string_view word = nextWord(line_);
      const std::string expected = readArgument(kind, word, value);
      if (!expected.empty()) return wrong(word, expected);
    }
    match_.values.push_back(std::move(value));
    ++match_.words;
    return true;
  }

  bool wrong(std::string_view word, const std::string& expected) {
    match_.wrongArgument = true;
    match_.error =
        "expected " + expected +
        (word.empty() ? std::string(" at the end") : ", not '" + std::string(word) + "'");
    return false;
  }

  std::string_view pattern_;
  std::string_view line_;
  Match match_;
};

bool nearer(const Match& one, const Match& other) {
  if (one.words != other.words) return one.words > other.words;
  return one.wrongArgument && !other.wrongArgument;
}

std::optional<Command> parseForm(std::string_view line, std::string& error) {
  Match best;
  for (const auto& forms : {commandForms(), serviceCommandForms()}) {
    for (const CommandForm& form : forms) {
      Match match = Matcher(form.pattern, line).match();
      if (match.complete) return Command{&form, std::move(match.values)};
      if (best.error.empty() || nearer(match, best)) best = std::move(match);
    }
  }
  error = best.words == 0 ? "unknown command '" + std::string(peekWord(line)) + "'" : best.error;
  return std::nullopt;
}

// Takes "WORD TIME" off the start of `rest`, if it starts with the word. 0 when it does not.
Milliseconds takeTime(std::string_view& rest, std::string_view word, std::string_view kind,
                      std::string& error) {
  if (!error.empty() || peekWord(rest) != word) return 0;
  nextWord(rest);
  Value time;
  const std::string expected = readArgument(kind, nextWord(rest), time);
  if (!expected.empty()) error = "expected " + expected + " behind '" + std::string(word) + "'";
  if (error.empty() && peekWord(rest).empty())
    error = "no command behind '" + std::string(word) + "'";
  return static_cast<Milliseconds>(time.number);
}

}  // namespace

std::optional<Command> parseCommand(std::string_view line, std::string& error) {
  error.clear();
  std::string_view rest = trimmed(withoutComment(line));
  if (rest.empty()) return std::nullopt;
  const Milliseconds delay = takeTime(rest, "at", "time", error);
  const Milliseconds period = takeTime(rest, "every", "period", error);
  if (!error.empty()) return std::nullopt;
  auto command = parseForm(rest, error);
  if (!command) return std::nullopt;
  command->delay = delay;
  command->period = period;
  return command;
}

Reply runCommand(Simulator& simulator, const Command& command, Milliseconds now) {
  simulator.adapters.advance(now);
  Reply reply = command.form->run(simulator, command.values, now);
  simulator.adapters.advance(now);
  return reply;
}

}  // namespace lisim
