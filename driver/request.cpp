#include "driver/request.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "driver/session.h"
#include "foundation/odlog.h"

std::ostream& operator<<(std::ostream& os, const req_param_t& head) {
  if (!os) return os;  // the unattached log is the normal case
  return os << "Prim:" << head.Prim << " Type:" << head.Type << " Link:" << int{head.Link}
            << " Unit:" << int{head.Unit} << " Size:" << head.Size << " SzIO:" << head.SzIO
            << " RowM:" << head.RowM << " NRow:" << head.NRow << " Resp:" << head.Resp;
}

reqParam::reqParam(int descriptor, unsigned short prim, unsigned short type, unsigned short link,
                   unsigned short unit, unsigned short size, unsigned short szIO,
                   unsigned short rowM, unsigned short nRow, unsigned short resp)
    : descriptor_(descriptor) {
  SetupMsg(size);
  *header_ = {prim,
              type,
              static_cast<std::uint8_t>(link),
              static_cast<std::uint8_t>(unit),
              size,
              szIO,
              rowM,
              nRow,
              resp};
}

void reqParam::SetupMsg(unsigned short size) {
  if (capacity_ < size || message_ == nullptr) {
    odlog << "Realloc:Old Size-" << std::setw(6) << capacity_ << " NewSize-" << std::setw(6) << size
          << std::endl;
    // There is always room for the head and the larger offset, whatever size is asked for.
    message_ = std::make_unique<std::uint8_t[]>(std::max(size, signallingDataOffset));
    header_ = reinterpret_cast<req_param_t*>(message_.get());
    capacity_ = size;
  }
  setDataOffset(plainDataOffset);
}

int reqParam::daiRequest() {
  header_->Size = std::min(header_->Size, capacity_);  // the driver may have left anything there
  header_->Resp = respUntouched;
  odlog << "-> " << *header_ << std::endl;
  lastResult_ = dai_req(descriptor_, header_, 0);
  odlog << "<- " << *header_ << std::endl;
  if (lastResult_ != 0) odlog << "Dai Request Failure" << std::endl;
  return lastResult_;
}

void reqParam::setInput(unsigned short type, unsigned short frameBytes) {
  if (capacity_ < frameBytes) growFrame(frameBytes);
  header_->Type = type;
  header_->Size = frameBytes;
  header_->SzIO = frameBytes;
}

void reqParam::setInput(unsigned short type, unsigned short frameBytes, const void* payload,
                        std::size_t payloadBytes) {
  setInput(type, frameBytes);
  std::copy_n(static_cast<const std::uint8_t*>(payload), std::min(payloadBytes, payloadRoom()),
              data_);
}

void reqParam::setTarget(unsigned char link, unsigned char unit) {
  header_->Link = link;
  header_->Unit = unit;
}

void reqParam::setDataOffset(unsigned short offset) {
  dataOffset_ = offset;
  data_ = message_.get() + offset;
}

void reqParam::growFrame(unsigned short size) {
  const req_param_t saved = *header_;
  SetupMsg(size);
  *header_ = saved;
}

std::size_t reqParam::payloadRoom() const {
  const unsigned short bytes = std::min(header_->Size, capacity_);
  return bytes > dataOffset_ ? std::size_t{bytes} - dataOffset_ : 0;
}

void InfoMsgHandler::prepareMsg(unsigned short replyBytes) {
  header().Size = static_cast<unsigned short>(replyBytes + dataOffset());
  header().SzIO = dataOffset();
  growFrame(header().Size);
}

int InfoMsgHandler::GetNumRows(int type) {
  header().Type = static_cast<unsigned short>(type);
  header().NRow = 0;
  odlog << "GET_NROWS" << std::endl;
  prepareMsg(0);
  daiRequest();
  return header().NRow;
}

Enabler::Enabler(reqParam& request, unsigned short enableType, unsigned short disableType,
                 unsigned short enableSize)
    : request_(request),
      enableType_(enableType),
      disableType_(disableType),
      enableSize_(enableSize) {}

int Enabler::Enable() {
  request_.setInput(enableType_, enableSize_);
  return request_.daiRequest();
}

int Enabler::Disable() {
  request_.setInput(disableType_, plainDataOffset);
  return request_.daiRequest();
}
