// What an entry field keeps of its last change: one step back, and from there one forward again.
#pragma once

#include <string>

// A text with its caret.
struct ziEditState {
  std::string text;
  int caret = 0;
};

class ziEditUndo {
 public:
  // A run of characters typed, or deleted, one behind the other counts as one change.
  enum class Kind { typed, deleted, other };

  bool holds() const { return kept_; }
  void empty() { *this = {}; }

  // Called before a change of the characters from `start` to `end`, which leaves the caret at
  // `caretAfter`.
  void note(ziEditState now, Kind kind, int start, int end, int caretAfter) {
    const bool goesOn =
        kept_ && kind != Kind::other && kind == kind_ && (start == runsOnAt_ || end == runsOnAt_);
    if (!goesOn) state_ = std::move(now);
    kept_ = true;
    kind_ = kind;
    runsOnAt_ = caretAfter;
  }

  // Gives back the state before the change, and keeps the one at hand in its place.
  ziEditState exchange(ziEditState now) {
    std::swap(now, state_);
    kind_ = Kind::other;
    return now;
  }

 private:
  ziEditState state_;
  bool kept_ = false;
  Kind kind_ = Kind::other;
  int runsOnAt_ = 0;
};
