// Control of the classical IP over ATM service (RFC 1577).
#pragma once

#include "driver/control_request.h"

class ip1577Request : public ControlRequest {
 public:
  ip1577Request(int descriptor, unsigned short link, unsigned short unit)
      : ControlRequest(descriptor, primIpControl, link, unit, formOf(Control::IpEnable).frameBytes,
                       ipDisable) {}

  // Each sends one request and returns what daiRequest returned.

  // Starts the service, anew if it runs.
  int enable(const ip1577ReqStruct& record) { return start(Control::IpEnable, record); }
  int disable() { return stop(Control::IpDisable); }
  int addPvc(const rtdPvcReqStruct& record) { return send(Control::IpAddPvc, record); }
  int addPvcDumped(const rtdPvcReqStruct& record) { return sendDumped(Control::IpAddPvc, record); }
  int deletePvc(const rtdPvcReqStruct& record) { return send(Control::IpDeletePvc, record); }
};
