#include "driver/sig_request.h"

sigRequest::sigRequest(int descriptor, unsigned short link, unsigned short unit)
    : ControlRequest(descriptor, primSigControl, link, unit, signallingFrameBytes, 0) {
  setDataOffset(signallingDataOffset);
}

int sigRequest::UpdateCfg(const sigPortCfg_s& cfg) {
  sigPortCfg_s update = cfg;
  update.updateFlag = 1;
  update.port = header().Link;
  return send(Control::SigUpdate, update);
}

int sigRequest::PortEnableDisable(unsigned char state) {
  prepare(Control::SigPort, sig_port_req{1, header().Link, state});
  odlog << formOf(Control::SigPort).logLine << state << std::endl;
  const int result = daiRequest();
  if (result != 0) {
    odlog << "PortDisableEnable, dai_req() system err: " << result
          << ", internal err: " << header().Resp << std::endl;
  }
  return result;
}

int sigRequest::setDebugTrace(unsigned char selector, unsigned char state) {
  return send(Control::SigDebugTrace, sig_trace_req{0, selector, state});
}
