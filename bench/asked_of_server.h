// What a program on $DISPLAY asks of the X server.
#pragma once

#include <benchmark/benchmark.h>

// So many requests, and so many waits for a reply among them.
struct AskedOfServer {
  long requests = 0;
  long waits = 0;

  AskedOfServer operator-(const AskedOfServer& other) const {
    return {requests - other.requests, waits - other.waits};
  }
  AskedOfServer& operator+=(const AskedOfServer& other) {
    requests += other.requests;
    waits += other.waits;
    return *this;
  }
};

// All that the program has asked so far.
AskedOfServer askedOfServer();

// Returns when the server has drawn what was asked for, and what its exposures made the program
// draw. Asks for `askedBySettling` itself.
void settle();
constexpr AskedOfServer askedBySettling{2, 2};

// Ends the program if what is asked for does not get counted.
void checkCounting();

// Sets the counters `requests` and `waits` of each iteration.
void countPerIteration(benchmark::State& state, const AskedOfServer& ofAllIterations);
