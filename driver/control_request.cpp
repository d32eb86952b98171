#include "driver/control_request.h"

namespace {

constexpr unsigned short enableType = 1;

}  // namespace

ControlRequest::ControlRequest(int descriptor, Primitive prim, unsigned short link,
                               unsigned short unit, unsigned short frameBytes,
                               unsigned short disableType)
    : reqParam(descriptor, prim, enableType, link, unit, frameBytes, frameBytes, 0, 0,
               respUntouched),
      Enabler(*this, enableType, disableType, frameBytes) {}

void ControlRequest::prepare(Control control) {
  fill(formOf(control), nullptr, 0);
}

int ControlRequest::send(Control control) {
  prepare(control);
  logLine(control);
  return daiRequest();
}

int ControlRequest::stop(Control control) {
  logLine(control);
  return Disable();
}

void ControlRequest::logLine(Control control) {
  odlog << formOf(control).logLine << std::endl;
}

void ControlRequest::fill(const ControlForm& form, const void* record, std::size_t bytes) {
  setInput(form.type, form.frameBytes, record, bytes);
  header().SzIO = form.inputBytes;
}
