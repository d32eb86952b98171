// The messages of platform/wire.h over the socket of a driver process, each within a time limit.
// Private to this folder: everybody else goes through platform/streams.h.
#pragma once

#include <chrono>
#include <cstdint>
#include <span>

#include "platform/wire.h"

// Of an open, and of an exchange that names none. It stays as it is but in a test of silence.
extern std::chrono::milliseconds defaultLimit;
constexpr int noLimit = -1;

// A point on the monotonic clock by which a wait has to end, or none.
class Deadline {
 public:
  // `seconds` from now, 0 standing for the default limit and noLimit for never.
  explicit Deadline(int seconds);

  bool passed() const;

  // What is left in milliseconds, rounded up, for poll(2): -1 without an end.
  int millisecondsLeft() const;

 private:
  using Clock = std::chrono::steady_clock;

  bool endless_;
  Clock::time_point end_;
};

// Connects to the driver process listening at `path` and asks it for a session with the open(2)
// flags `oflag`. Returns a close-on-exec descriptor, or -1 with errno: the driver's refusal, ENOENT
// or ENXIO when nobody is there, ETIME when nobody answered by the deadline.
int openDriverSocket(const char* path, int oflag, const Deadline& deadline);

// Sets how long a receive waits on the socket; `seconds` as an exchange's limit is given. A new
// session has the default.
void setReceiveLimit(int socket, int seconds);

// What bounds the wait for a reply: the limit that the socket has, with which one call both waits
// and receives, or the deadline alone.
enum class Wait { bySocket, byDeadline };

// Sends `request` with the whole of `frame` as its body and waits for the reply, whose body comes
// to stand over the front of `frame`. Returns 0, the error number of the reply, or what befell the
// exchange: ETIME, EPROTO, or ENXIO once the driver has gone, then and ever after.
int exchangeOnSocket(int socket, WireHead request, std::span<std::uint8_t> frame,
                     const Deadline& deadline, Wait wait);
