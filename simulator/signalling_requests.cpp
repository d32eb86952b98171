// The requests about a board's signalling, and the driver's own debug trace.
#include "simulator/request.h"

namespace lisim {

namespace {

Answer linkState(Request& request) {
  request.reply(request.services().linkState(), sigHeadBytes);
  return Answer::done;
}

Answer update(Request& request) {
  const auto cfg = request.input<sigPortCfg_s>(sigHeadBytes);
  if (cfg.port != request.head.Link) return Answer::badValue;
  request.board().services.signalling.cfg = cfg;
  return Answer::done;
}

Answer enablePort(Request& request) {
  const auto setting = request.input<sig_port_req>(sigHeadBytes);
  if (setting.port != request.head.Link) return Answer::badValue;
  if (setting.state != sigPortEnabled && setting.state != sigPortDisabled) return Answer::badValue;
  request.board().services.signalling.enablePort(setting.state == sigPortEnabled, request.now);
  return Answer::done;
}

Answer debugTrace(Request& request) {
  const auto setting = request.input<sig_trace_req>(sigHeadBytes);
  constexpr std::uint8_t selectors = 1 | 2 | 4;
  if ((setting.selector & ~selectors) != 0) return Answer::badValue;
  std::uint32_t& traces = request.simulator.debugTrace;
  traces = setting.state ? traces | setting.selector
                         : traces & ~static_cast<std::uint32_t>(setting.selector);
  return Answer::done;
}

constexpr Operation linkStateOperation() {
  Operation operation = queryOperation(Query::LinkState, linkState);
  operation.replyBytes += sigHeadBytes;
  return operation;
}

constexpr Operation operations[] = {
    linkStateOperation(),
    controlOperation(Control::SigUpdate, Target::board, update),
    controlOperation(Control::SigPort, Target::board, enablePort),
    controlOperation(Control::SigDebugTrace, Target::driver, debugTrace),
};

}  // namespace

std::span<const Operation> signallingOperations() {
  return operations;
}

}  // namespace lisim
