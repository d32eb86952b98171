// The frame of a request and the bases of all query and control classes.
//
// An object is built with the adapter and instance it addresses and then serves any number of
// requests: set the operation and the payload, call daiRequest, read the answer from the payload
// and the head. The driver answers in place, and what a step does not set keeps its last value,
// the driver's writes included; a payload holds until the next request.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>

#include "driver/frame.h"

// The log's form of a frame's head: nine labels, each directly followed by its decimal value.
std::ostream& operator<<(std::ostream& os, const req_param_t& head);

class reqParam {
 public:
  // Builds a zeroed frame of `size` bytes with the given head. `descriptor` is a session of
  // driver/session.h that the object uses and does not own.
  reqParam(int descriptor, unsigned short prim, unsigned short type, unsigned short link,
           unsigned short unit, unsigned short size, unsigned short szIO, unsigned short rowM,
           unsigned short nRow, unsigned short resp);
  reqParam(const reqParam&) = delete;
  reqParam& operator=(const reqParam&) = delete;
  ~reqParam() = default;

  // Makes sure the frame holds `size` bytes and puts the payload back to offset 16. A frame that
  // has to grow is zeroed, head and all; it never shrinks.
  void SetupMsg(unsigned short size);

  // Sends the frame and takes the answer. Returns 0 on success, -1 otherwise (see dai_req).
  int daiRequest();

  // Makes the frame the input of operation `type`: `frameBytes` long, head included. The rest of
  // the head is kept, and the payload unless the frame has to grow.
  void setInput(unsigned short type, unsigned short frameBytes);

  // The same with the `payloadBytes` at `payload` in it, cut to what such a frame carries.
  void setInput(unsigned short type, unsigned short frameBytes, const void* payload,
                std::size_t payloadBytes);

  // Addresses the requests from here on to an adapter and an instance on it.
  void setTarget(unsigned char link, unsigned char unit);

  req_param_t& header() { return *header_; }
  const req_param_t& header() const { return *header_; }
  std::uint8_t* frame() { return message_.get(); }  // capacity() bytes
  std::uint8_t* data() { return data_; }            // the payload, dataOffset() into the frame
  const std::uint8_t* data() const { return data_; }
  unsigned short capacity() const { return capacity_; }
  unsigned short dataOffset() const { return dataOffset_; }
  int lastResult() const { return lastResult_; }  // of the latest daiRequest

 protected:
  // Moves the payload; `offset` is plainDataOffset or signallingDataOffset.
  void setDataOffset(unsigned short offset);

  // As SetupMsg, but the head stays as it is.
  void growFrame(unsigned short size);

  // Bytes of payload that a frame of the present Size carries.
  std::size_t payloadRoom() const;

 private:
  std::unique_ptr<std::uint8_t[]> message_;
  unsigned short capacity_ = 0;
  int descriptor_;
  int lastResult_ = 0;
  std::uint8_t* data_ = nullptr;
  unsigned short dataOffset_ = plainDataOffset;
  req_param_t* header_ = nullptr;
};

// The base of the queries.
class InfoMsgHandler : public reqParam {
 public:
  using reqParam::reqParam;

  // Sets Size and SzIO, and the frame's room, for a query without input whose answer carries
  // `replyBytes` of payload. The sum with the head wraps in 16 bits.
  virtual void prepareMsg(unsigned short replyBytes);

  // The row count of the table whose count operation is `type`, also left in NRow; 0 on failure,
  // unless the driver wrote something else there.
  virtual int GetNumRows(int type);

  virtual ~InfoMsgHandler() = default;
};

// The second base of the controls of a service: starting and stopping it.
class Enabler {
 public:
  // For the service that `request` controls, with the types of the two operations and the bytes
  // of the enable frame. `request` has to outlive this object, as its sibling base does.
  Enabler(reqParam& request, unsigned short enableType, unsigned short disableType,
          unsigned short enableSize);
  Enabler(const Enabler&) = delete;
  Enabler& operator=(const Enabler&) = delete;

  // Both return what daiRequest returned. The payload is the caller's to fill before Enable.
  virtual int Enable();
  virtual int Disable();

  virtual ~Enabler() = default;

 private:
  reqParam& request_;
  unsigned short enableType_;
  unsigned short disableType_;
  unsigned short enableSize_;
};
