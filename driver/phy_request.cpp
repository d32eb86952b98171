#include "driver/phy_request.h"

#include <ostream>

#include "foundation/odlog.h"

int phyRequest::set_Framing(long framing) {
  odlog << formOf(Control::PhySetFraming).logLine << framing << std::endl;
  prepare(Control::PhySetFraming, word_req{static_cast<std::uint32_t>(framing)});
  return daiRequest();
}

int phyRequest::setVpi(unsigned int vpi) {
  odlog << formOf(Control::PhySetVpi).logLine << vpi << std::endl;
  prepare(Control::PhySetVpi, word_req{vpi});
  return daiRequest();
}

int phyRequest::setRLS(const rls_req* request) {
  odlog << formOf(Control::PhySetRedundantLink).logLine << request->autoSwitch << std::endl;
  prepare(Control::PhySetRedundantLink, *request);
  return daiRequest();
}

int phyRequest::do_RLS_Switch(unsigned short board) {
  odlog << formOf(Control::PhySwitchLink).logLine << board << ")" << std::endl;
  header().Link = static_cast<std::uint8_t>(board);
  prepare(Control::PhySwitchLink);
  return daiRequest();
}
