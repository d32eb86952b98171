// Drivers that are as small as can be, in processes of the benchmark's own.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <functional>

#include "driver/frame.h"

// A process that ends with the object, and with the benchmark.
class Child {
 public:
  explicit Child(const std::function<void()>& work);
  ~Child();
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

 private:
  pid_t pid_;
};

// Listens on the device, which is made in the working directory. Ends the program if it can't.
int listenOnNode();
// Connects to it without the program's own driver sessions.
int connectToNode();

// Answers a frame in place; `payload` is what stands behind the head.
using AnswerFrame = void (*)(req_param_t& head, std::uint8_t* payload);
// Answers every session's exchanges, one session after the other in a process each.
void serveSessions(int listener, AnswerFrame answer);

// One message there and the answer back into it.
bool roundTrip(int socket, std::uint8_t* message, std::size_t bytes);

// Memory of `bytes` zeroes that the benchmark shares with its children. Ends the program if there
// is none.
void* sharedMemory(std::size_t bytes);

// Both ends of an exchange take turns, so one processor does; it keeps the cost of waking another,
// which differs by the moment, out of the figures.
void stayOnOneProcessor();
