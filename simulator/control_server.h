// The control socket: command lines in, and for each "ok" or "error: " with words out, behind what
// the command has to show.
#pragma once

#include <map>
#include <string>

#include "simulator/command_runner.h"
#include "simulator/event_loop.h"
#include "simulator/socket.h"

namespace lisim {

// Everything passed in must outlive the server.
class ControlServer {
 public:
  ControlServer(EventLoop& loop, CommandRunner& runner) : loop_(loop), runner_(runner) {}

  // Starts to listen at `path`, for the simulator's own user. Returns "" or what went wrong.
  std::string listenAt(const std::string& path);

 private:
  struct Client {
    Descriptor socket;
    std::string pending;  // a line not yet whole
  };

  void acceptClient();
  void readLines(unsigned id);
  bool answerLines(unsigned id);
  bool answer(unsigned id, const std::string& line);
  bool send(unsigned id, const std::string& text);
  void drop(unsigned id);

  EventLoop& loop_;
  CommandRunner& runner_;
  ListeningSocket listener_;
  std::map<unsigned, Client> clients_;
  unsigned lastId_ = 0;
};

}  // namespace lisim
