#include "driver/session.h"

#include <cerrno>

#include "platform/names.h"
#include "platform/streams.h"

const std::int32_t s2dt[][2] = {
    {ENOENT, daiNoDevice}, {ENXIO, daiNoDevice},    {ENODEV, daiNoDevice}, {EACCES, daiNoAccess},
    {EINVAL, daiInvalid},  {ENOBUFS, daiNoBuffers}, {EBUSY, daiBusy},      {0, 0},
};

namespace {

int exchange(int descriptor, req_param_t* frame) {
  if (frame->Size < sizeof *frame) {
    errno = EINVAL;
    return -1;
  }
  strioctl record{};
  record.ic_cmd = liCommand;
  record.ic_timout = 0;
  record.ic_len = frame->Size;
  record.ic_dp = reinterpret_cast<char*>(frame);
  return streams_ioctl(descriptor, I_STR, &record);
}

}  // namespace

int dai_open(int, int oflag, int* descriptor) {
  *descriptor = streams_open(devbase, oflag);
  return *descriptor == -1 ? -1 : 0;
}

int dai_close(int, int descriptor) {
  streams_close(descriptor);
  return 0;
}

int dai_req(int descriptor, req_param_t* frame, int) {
  if (frame == nullptr) return -1;
  if (exchange(descriptor, frame) < 0) frame->Resp = static_cast<std::uint16_t>(dai_syserr(errno));
  return frame->Resp == 0 ? 0 : -1;
}

int dai_syserr(int systemError) {
  for (const auto& [error, code] : s2dt) {
    if (code != 0 && error == systemError) return code;
  }
  return daiOther;
}
