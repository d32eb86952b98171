// The base of the control classes: a frame that is made from the table of controls, apart from
// sending it, and the on and off of the service.
#pragma once

#include <ostream>

#include "driver/control_table.h"
#include "driver/request.h"
#include "foundation/odlog.h"

class ControlRequest : public reqParam, public Enabler {
 protected:
  // For an open session, an adapter and an instance on it. `frameBytes` is what the service is
  // started with; a service that is not stopped this way has no `disableType`.
  ControlRequest(int descriptor, Primitive prim, unsigned short link, unsigned short unit,
                 unsigned short frameBytes, unsigned short disableType);

  // Makes the frame that of `control`, without a payload or with `record` as its payload. The link,
  // the unit and the rest of the head are kept.
  void prepare(Control control);
  template <class Record>
  void prepare(Control control, const Record& record) {
    fill(formOf(control), &record, sizeof record);
  }

  // prepare, the control's line in the log, and the request. Returns what daiRequest returned.
  int send(Control control);
  template <class Record>
  int send(Control control, const Record& record) {
    prepare(control, record);
    logLine(control);
    return daiRequest();
  }

  // send, with the record's dump behind the line in the log.
  template <class Record>
  int sendDumped(Control control, const Record& record) {
    prepare(control, record);
    logLine(control);
    odlog << record << std::endl;
    return daiRequest();
  }

  // send for a request that carries one word, which stands in the log's line.
  template <class Value>
  int sendWord(Control control, Value value) {
    prepare(control, word_req{static_cast<std::uint32_t>(value)});
    odlog << formOf(control).logLine << value << std::endl;
    return daiRequest();
  }

  // The on and off of the service, with their lines in the log. Both return what daiRequest
  // returned.
  template <class Record>
  int start(Control control, const Record& record) {
    prepare(control, record);
    logLine(control);
    return Enable();
  }
  int stop(Control control);

 private:
  static void logLine(Control control);
  void fill(const ControlForm& form, const void* record, std::size_t bytes);
};
