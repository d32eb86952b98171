// What one exchange with a driver process looks like where the host has no STREAMS: messages over
// a Unix-domain SOCK_SEQPACKET socket, each five 32-bit little-endian words and a body.
#pragma once

#include <cstdint>

enum WireKind : std::uint32_t { wireOpen = 1, wireExchange = 2 };

// The head of every message, in both directions.
//
//            open request      open reply            exchange request   exchange reply
//   kind     1                 1                     2                  2
//   serial   0                 0                     from 1 upwards     the request's
//   code     the open flags    0 or an errno         ic_cmd             0 or the ioctl's errno
//   limit    0                 0                     ic_timout          0
//   length   0                 0                     bytes of body      bytes of body
//   body     none              none                  the frame          the frame as answered
struct WireHead {
  std::uint32_t kind;
  std::uint32_t serial;
  std::uint32_t code;
  std::uint32_t limit;
  std::uint32_t length;
};
static_assert(sizeof(WireHead) == 20);

// A frame's own length is a 16-bit count, so no body is longer.
constexpr std::uint32_t wireMaxBody = 65535;
