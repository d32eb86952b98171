#include "driver/phy_request.h"

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
