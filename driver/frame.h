// The frame that carries every request to the adapter driver and its answer back.
#pragma once

#include <cstddef>
#include <cstdint>

// The head of every frame: 16 bytes in little-endian host order, without gaps. The payload starts
// behind it, at offset 16, or at 24 in the signalling frames, which have 8 bytes of their own
// first.
struct req_param_t {
  std::uint16_t Prim;  // the service addressed, a Primitive
  std::uint16_t Type;  // the operation within it
  std::uint8_t Link;   // adapter, 0 to 7
  std::uint8_t Unit;   // instance of the service on the adapter, 0 to 15
  std::uint16_t Size;  // bytes of the whole frame: the room the driver may fill
  std::uint16_t SzIO;  // bytes of it that are input to the driver, head included
  std::uint16_t RowM;  // first row of a table read, from 1; moved on by the driver between pages
  std::uint16_t NRow;  // rows asked for, then rows delivered
  std::uint16_t Resp;  // 0 on success; respUntouched before each request
};
static_assert(sizeof(req_param_t) == 16 && alignof(req_param_t) == 2);
static_assert(offsetof(req_param_t, Link) == 4 && offsetof(req_param_t, Size) == 6 &&
              offsetof(req_param_t, Resp) == 14);

// The one command code of the interface; a request is told from another by Prim and Type.
constexpr int liCommand = 19456;  // 0x4C00

// What Resp holds on the way in, so that a frame the driver never touched is not a success.
constexpr std::uint16_t respUntouched = 57005;  // 0xDEAD

constexpr std::uint16_t plainDataOffset = 16;
constexpr std::uint16_t signallingDataOffset = 24;
constexpr std::uint16_t signallingFrameBytes = 288;

// Service families. The odd one out per service is the query side; the control side changes state.
enum Primitive : std::uint16_t {
  primVccQuery = 1,
  primLecControl = 17,
  primLesControl = 18,
  primLecsControl = 19,
  primLecQuery = 20,
  primLesQuery = 21,
  primLecsQuery = 22,
  primSigQuery = 33,
  primSigControl = 34,
  primIpControl = 65,
  primIpQuery = 66,
  primAalQuery = 129,
  primPhyControl = 130,
};
