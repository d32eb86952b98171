// The device: a socket on which sessions are opened and frames exchanged (platform/wire.h).
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "platform/wire.h"
#include "simulator/dispatch.h"
#include "simulator/event_loop.h"
#include "simulator/socket.h"
#include "simulator/trace.h"

namespace lisim {

// A session lives from the connection to its end: the peer closes it, a fault hangs up, a message
// comes that can't be answered, or the peer does not read its answers. Everything passed in must
// outlive the server.
class WireServer {
 public:
  WireServer(EventLoop& loop, Simulator& simulator, Trace& trace)
      : loop_(loop), simulator_(simulator), trace_(trace) {}
  ~WireServer();

  // Starts to listen at `path`. Returns "" or what went wrong.
  std::string listenAt(const std::string& path);

 private:
  struct Session {
    Descriptor socket;
    unsigned uid = 0;
    bool open = false;
    Caller caller;
  };
  using Bytes = std::vector<std::uint8_t>;

  void acceptSession();
  void readMessage(unsigned id);
  void handle(unsigned id, const WireHead& head, Bytes& message, std::size_t length);
  void openSession(unsigned id, const WireHead& head);
  void exchange(unsigned id, const WireHead& head, Bytes& frame);
  void refuse(unsigned id, const WireHead& head, const char* why, const Bytes& message, int error);
  void send(unsigned id, const WireHead& head, const Bytes& body);
  void drop(unsigned id, const char* why);

  EventLoop& loop_;
  Simulator& simulator_;
  Trace& trace_;
  ListeningSocket listener_;
  std::map<unsigned, Session> sessions_;
  unsigned lastId_ = 0;
};

}  // namespace lisim
