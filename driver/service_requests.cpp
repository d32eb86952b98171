// The control requests of the LAN Emulation and IP services.
#include <ostream>

#include "driver/ip1577_request.h"
#include "driver/lec_request.h"
#include "driver/lecs_request.h"
#include "foundation/odlog.h"

int lecRequest::setEnhancedVC(unsigned int enhanced) {
  prepare(Control::LecSetEnhanced, word_req{enhanced});
  odlog << formOf(Control::LecSetEnhanced).logLine << enhanced << std::endl;
  return daiRequest();
}

int lecsRequest::enable(const lecs_req& record) {
  disable();
  if (start(Control::LecsEnable, record) != 0) return -1;
  return go() != 0 ? -1 : 0;
}

int lecsRequest::enable(const lecs_req& record, unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return enable(record);
}

int lecsRequest::disable(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return disable();
}

int lecsRequest::go(unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return go();
}

int lecsRequest::addClient(const lecs_req& client, unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return addClient(client);
}

int lecsRequest::delClient(const lecs_req& client, unsigned char link, unsigned char unit) {
  setTarget(link, unit);
  return delClient(client);
}

int lecsRequest::sendClient(Control control, const lecs_req& client) {
  prepare(control, client);
  logLine(control);
  odlog << client << std::endl;
  return daiRequest();
}

int ip1577Request::addPvc(const rtdPvcReqStruct& record) {
  prepare(Control::IpAddPvc, record);
  logLine(Control::IpAddPvc);
  odlog << record << std::endl;
  return daiRequest();
}
