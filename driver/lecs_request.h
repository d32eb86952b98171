// Control of the LAN Emulation configuration server.
#pragma once

#include "driver/control_request.h"

class lecsRequest : public ControlRequest {
 public:
  lecsRequest(int descriptor, unsigned short link, unsigned short unit)
      : ControlRequest(descriptor, primLecsControl, link, unit,
                       formOf(Control::LecsEnable).frameBytes, lecsDisable) {}

  // All return 0, or not 0 on failure. The forms with `link` and `unit` address the object to them
  // for good.

  // Starts the server: it is stopped first, then set up and set going. Ends at the first of the
  // last two that fails.
  int enable(const lecs_req& record);
  int enable(const lecs_req& record, unsigned char link, unsigned char unit);
  int disable() { return stop(Control::LecsDisable); }
  int disable(unsigned char link, unsigned char unit);

  // One and the same request.
  int go() { return send(Control::LecsGo); }
  int go(unsigned char link, unsigned char unit);
  int restart() { return go(); }
  int restart(unsigned char link, unsigned char unit) { return go(link, unit); }

  // A client mapping; the unit is the client's row.
  int addClient(const lecs_req& client) { return sendDumped(Control::LecsAddClient, client); }
  int addClient(const lecs_req& client, unsigned char link, unsigned char unit);
  int delClient(const lecs_req& client) { return sendDumped(Control::LecsDeleteClient, client); }
  int delClient(const lecs_req& client, unsigned char link, unsigned char unit);
};
