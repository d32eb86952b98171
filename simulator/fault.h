// Faults put in from outside: a rule says which requests it hits and what becomes of them.
#pragma once

#include <cstdint>
#include <list>
#include <optional>
#include <string>

#include "driver/frame.h"

namespace lisim {

enum class FaultKind { code, error, untouched, delay, silence, rows, hangup };

struct Fault {
  std::optional<std::uint16_t> primitive;  // unset: every one
  std::optional<std::uint16_t> type;
  std::optional<std::uint8_t> link;  // adapter from 0
  std::optional<std::uint32_t> page;
  std::uint32_t after = 0;             // fitting requests to let pass first
  std::optional<std::uint32_t> times;  // hits left; unset: for ever
  FaultKind kind = FaultKind::code;
  std::uint32_t value = 0;  // the code, error number, milliseconds or rows
};

class Faults {
 public:
  void add(const Fault& fault) { faults_.push_back(fault); }
  void clear() { faults_.clear(); }

  // The first fault that hits a request, with one of its times used up. `page` counts the table
  // reads since the session last asked for a row count, from 1; 0 for other requests.
  std::optional<Fault> take(const req_param_t& head, std::uint32_t page);

  // One line per fault, for `show`.
  std::string describe() const;

 private:
  std::list<Fault> faults_;
};

}  // namespace lisim
