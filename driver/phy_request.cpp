#include "driver/phy_request.h"

#include "driver/query_types.h"
#include "foundation/odlog.h"

namespace {

constexpr unsigned short wordFrameBytes = plainDataOffset + sizeof(std::uint32_t);
constexpr unsigned short rlsFrameBytes = plainDataOffset + sizeof(rls_req);

}  // namespace

phyRequest::phyRequest(int descriptor, unsigned short link, unsigned short unit)
    : reqParam(descriptor, primPhyControl, phySetFraming, link, unit, wordFrameBytes,
               wordFrameBytes, 0, 0, respUntouched),
      Enabler(*this, phySetFraming, 0, wordFrameBytes) {}

int phyRequest::setWord(unsigned short type, std::uint32_t value) {
  setInput(type, wordFrameBytes, &value, sizeof value);
  return daiRequest();
}

int phyRequest::set_Framing(long framing) {
  odlog << "DAI: SET_SUNI_FRAMING : " << framing << std::endl;
  return setWord(phySetFraming, static_cast<std::uint32_t>(framing));
}

int phyRequest::setVpi(unsigned int vpi) {
  odlog << "DAI: SET_VPI : " << vpi << std::endl;
  return setWord(phySetVpi, vpi);
}

int phyRequest::setRLS(rls_req* request) {
  odlog << "DAI: SET_RLS : autoswitch: " << request->autoSwitch << std::endl;
  setInput(phySetRedundantLink, rlsFrameBytes, request, sizeof *request);
  return daiRequest();
}

int phyRequest::do_RLS_Switch(unsigned short board) {
  odlog << "DAI: RLS_SWITCH (" << board << ")" << std::endl;
  header().Link = static_cast<std::uint8_t>(board);
  setInput(phySwitchLink, plainDataOffset);
  return daiRequest();
}
