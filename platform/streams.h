// The control device of the adapter driver: open, exchange one frame in place, close. Where the
// host has STREAMS and the node is a character device these are the system's own calls; elsewhere
// the node is a socket on which a driver process listens (platform/wire.h).
#pragma once

#if __has_include(<stropts.h>)
#include <stropts.h>
#else
constexpr int I_STR = 21256;  // 0x5308, the request number of a STREAMS message exchange

struct strioctl {
  int ic_cmd;     // the command
  int ic_timout;  // seconds; 0 the system's default of 15, -1 for ever
  int ic_len;     // bytes of the frame
  char* ic_dp;    // the frame, answered in place
};
#endif

// Opens the node at `path` with the open(2) flags `oflag`. Returns a descriptor, or -1 with errno.
int streams_open(const char* path, int oflag);

// One exchange on an open descriptor: `request` is I_STR. Returns 0 or more, or -1 with errno:
// the driver's own error number, ETIME when the limit ran out (the session goes on and the late
// answer will be dropped), ENXIO once the driver has gone, EPROTO for a malformed answer.
int streams_ioctl(int descriptor, int request, strioctl* exchange);

// Closes the session.
int streams_close(int descriptor);
