// A session with the adapter driver.
//
// Its life: dai_open on the one control device, any number of dai_req, each a single blocking
// exchange that neither repeats nor reconnects, and dai_close. A request ends when the driver
// answers, when the system's default limit of 15 seconds runs out, or at once when the driver has
// gone; after a limit that ran out the session can still be used, after a driver that went it
// fails every request until it is closed. Several sessions may be open side by side: one opened
// for reading carries queries, one opened for reading and writing control requests as well.
#pragma once

#include <cstdint>

#include "driver/frame.h"

// What Resp becomes when the exchange itself failed.
enum DaiCode : std::uint16_t {
  daiNoDevice = 201,
  daiBusy = 202,
  daiNoAccess = 203,
  daiNoBuffers = 205,
  daiInvalid = 206,
  daiOther = 207,
};

// Pairs of a system error number and its DaiCode, ended by a pair whose second member is 0.
extern const std::int32_t s2dt[][2];

// Opens the control device with the open(2) flags `oflag` (0 reads, 2 reads and writes) and stores
// the descriptor, -1 on failure. The first argument is 0 and ignored. Returns 0, or -1 with errno.
int dai_open(int ignored, int oflag, int* descriptor);

// Closes `descriptor`. The first argument is 0 and ignored. Always returns 0.
int dai_close(int ignored, int descriptor);

// One request: hands all `Size` bytes of `frame` to the driver, which answers in place. The last
// argument is 0 and ignored. Returns 0 if the driver set Resp to 0, otherwise -1; Resp then holds
// the driver's code, or a DaiCode if the exchange failed. A `Size` below the head is not sent.
int dai_req(int descriptor, req_param_t* frame, int ignored);

// The DAI code of a system error number, daiOther for one that has none.
int dai_syserr(int systemError);
