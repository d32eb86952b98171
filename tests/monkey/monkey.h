// Random input for a program, as a person at the keyboard and the mouse could give it.
//
// Every event is a whole: what it presses it also lets go, so that nothing stays down between two
// of them. Places are chosen inside the windows of the program, the topmost one mostly, and never
// where another window covers them. The main window is moved, iconified and asked to close like the
// others; that it stays is the program's own business.
#pragma once

#include <X11/X.h>

#include <cstdint>
#include <random>
#include <vector>

#include "tests/monkey/stage.h"

class Monkey {
 public:
  // With `tells` each event is written to the standard output before it is sent.
  Monkey(Stage& stage, std::uint64_t seed, bool tells);

  // Sends the next event. False when the program has gone.
  bool play();
  // Turns the locks off, lets the program end, and closes its windows until it does.
  void finish();

  long eventsPlayed() const { return played_; }

 private:
  struct Trick {
    const char* name;
    unsigned weight;
    void (Monkey::*play)();
  };
  static const Trick tricks[];

  struct Place {
    int x = 0, y = 0;
  };

  bool lookAround();
  void keepInPlay();

  void typeCharacter();
  void typeControl();
  void typeCombination();
  void toggleLock();
  void click();
  void doubleClick();
  void drag();
  void movePointer();
  void turnWheel();
  void moveWindow();
  void resizeWindow();
  void iconify();
  void closeWindow();

  // A number below `end`, which is not 0.
  unsigned below(std::size_t end);
  template <class Table>
  const auto& oneOf(const Table& table) {
    return table[below(std::size(table))];
  }
  // Within the program's windows; the last one again when none is found.
  Place somewhere();
  Place inside(const Area& area);
  // A window with a frame; null when there is none.
  const Stage::TopLevel* someManaged();

  void key(KeySym symbol, const std::vector<KeySym>& held = {});
  void goTo(const Place& at);
  void press(unsigned button, bool down);
  void pressAndRelease(unsigned button);
  void send(Window window, const char* protocol);

  Stage& stage_;
  Display* display_;
  std::mt19937_64 random_;
  bool tells_;
  long played_ = 0;
  int untilLook_ = 0;
  Place last_;
};
