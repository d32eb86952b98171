// The trace: one line for each thing that crossed the device, written out at once.
//
//   time=MS session=N event=open flags=F uid=U errno=E
//   time=MS session=N event=request serial=S cmd=C timeout=T length=L HEAD in=HEX
//       -> after=MS errno=E HEAD out=HEX answer="WORDS"
//   time=MS session=N event=malformed why="WORDS" bytes=HEX errno=E
//   time=MS session=N event=close why="WORDS"
//
// on one line each. HEAD is the frame's head, "prim=" to "resp="; "in" is the payload that was
// input and "out" the whole payload as answered, "-" when empty. A request that gets no answer
// has "-> silence" or "-> hangup" in place of the answer.
#pragma once

#include <cstdint>
#include <cstdio>
#include <memory>
#include <span>
#include <string>

#include "platform/wire.h"
#include "simulator/dispatch.h"

namespace lisim {

class Trace {
 public:
  // The clock must outlive the trace.
  explicit Trace(const Clock& clock) : clock_(clock) {}

  // From here on lines go to the file, which is made empty. False with errno if it can't be.
  bool writeTo(const std::string& path);

  void open(unsigned session, std::uint32_t flags, unsigned uid, int error);
  // `arrived` is when the request came, `before` its frame as it came, `after` as it is left.
  void request(unsigned session, Milliseconds arrived, const WireHead& head,
               std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
               const Outcome& outcome);
  void malformed(unsigned session, const char* why, std::span<const std::uint8_t> bytes, int error);
  void close(unsigned session, const char* why);

 private:
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  void line(Milliseconds time, unsigned session, const std::string& text);

  const Clock& clock_;
  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace lisim
