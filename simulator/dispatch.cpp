#include "simulator/dispatch.h"

#include <bit>
#include <cerrno>
#include <limits>

#include "driver/control_types.h"
#include "driver/query_types.h"
#include "simulator/request.h"

namespace lisim {

namespace {

static_assert(std::endian::native == std::endian::little, "frames are in host order");

constexpr std::uint8_t lastUnit = 15;

constexpr std::uint16_t controlPrimitives[] = {primLecControl, primLesControl, primLecsControl,
                                               primIpControl,  primSigControl, primPhyControl};

// The control requests that a session without the right to write may send all the same.
constexpr struct {
  std::uint16_t primitive;
  std::uint16_t type;
} openToReaders[] = {{primPhyControl, phySwitchLink}, {primSigControl, sigDebugTrace}};

bool needsWriteRight(const req_param_t& head) {
  for (const auto& open : openToReaders)
    if (open.primitive == head.Prim && open.type == head.Type) return false;
  return std::ranges::find(controlPrimitives, head.Prim) != std::end(controlPrimitives);
}

struct Lookup {
  const Operation* operation = nullptr;
  Answer failure = Answer::unknownPrimitive;
};

Lookup findOperation(const req_param_t& head) {
  Lookup found;
  for (const auto table :
       {boardOperations(), lanEmulationOperations(), ipOperations(), signallingOperations()})
    for (const Operation& operation : table) {
      if (operation.primitive != head.Prim) continue;
      found.failure = Answer::unknownType;
      if (operation.type == head.Type) return {&operation, Answer::done};
    }
  return found;
}

Answer checkSizes(const req_param_t& head, std::size_t length) {
  if (head.Size != length) return Answer::badSize;
  if (head.SzIO < sizeof(req_param_t) || head.SzIO > head.Size) return Answer::badInput;
  return Answer::done;
}

Answer checkBoard(const Board& board) {
  if (board.presence == Presence::absent) return Answer::noBoard;
  return board.presence == Presence::silent ? Answer::boardSilent : Answer::done;
}

Answer serve(const Lookup& found, Request& request) {
  if (found.operation == nullptr) return found.failure;
  const Operation& operation = *found.operation;
  if (request.head.Link >= boardSlots) return Answer::badLink;
  if (request.head.Unit > lastUnit && operation.target != Target::singleService)
    return Answer::badUnit;
  if (operation.target != Target::driver)
    if (const Answer answer = checkBoard(request.board()); answer != Answer::done) return answer;
  if (request.inputBytes < operation.inputBytes) return Answer::badInput;
  if (request.payload.size() < operation.replyBytes) return Answer::noRoom;
  return operation.serve(request);
}

void countPage(const Operation* operation, Caller& caller) {
  if (operation == nullptr) return;
  if (operation->kind == OperationKind::rowCount) caller.page = 0;
  if (operation->kind == OperationKind::table) ++caller.page;
}

// What a fault makes of the request in place of serving it; nothing when it is served after all.
std::optional<Outcome> divert(const Fault& fault, req_param_t& head) {
  switch (fault.kind) {
    case FaultKind::code:
      head.Resp = static_cast<std::uint16_t>(fault.value);
      return Outcome{};
    case FaultKind::error:
      return Outcome{.error = static_cast<int>(fault.value)};
    case FaultKind::untouched:
      return Outcome{};
    case FaultKind::silence:
      return Outcome{.delivery = Delivery::silence};
    case FaultKind::hangup:
      return Outcome{.delivery = Delivery::hangup};
    case FaultKind::delay:
    case FaultKind::rows:
      break;
  }
  return std::nullopt;
}

Outcome serveOrFail(Simulator& simulator, Caller& caller, Request& request) {
  const Lookup found = findOperation(request.head);
  countPage(found.operation, caller);
  const bool table = found.operation && found.operation->kind == OperationKind::table;
  const auto fault = simulator.faults.take(request.head, table ? caller.page : 0);
  Outcome outcome;
  if (fault) {
    if (const auto diverted = divert(*fault, request.head)) return *diverted;
    if (fault->kind == FaultKind::delay) outcome.delay = fault->value;
    if (fault->kind == FaultKind::rows) request.rowLimit = static_cast<std::uint16_t>(fault->value);
  }
  request.head.Resp = static_cast<std::uint16_t>(serve(found, request));
  return outcome;
}

}  // namespace

Outcome serveFrame(Simulator& simulator, Caller& caller, std::vector<std::uint8_t>& frame,
                   Milliseconds now) {
  req_param_t head;
  if (frame.size() < sizeof head) return {.error = EINVAL};
  std::memcpy(&head, frame.data(), sizeof head);
  Request request{.simulator = simulator,
                  .now = now,
                  .head = head,
                  .payload = std::span(frame).subspan(sizeof head),
                  .inputBytes = 0,
                  .rowLimit = std::numeric_limits<std::uint16_t>::max()};
  Outcome outcome;
  if (const Answer sizes = checkSizes(head, frame.size()); sizes != Answer::done) {
    request.head.Resp = static_cast<std::uint16_t>(sizes);
  } else if (!caller.mayWrite && needsWriteRight(head)) {
    return {.error = EACCES};
  } else {
    request.inputBytes = head.SzIO - sizeof head;
    simulator.adapters.advance(now);
    outcome = serveOrFail(simulator, caller, request);
    simulator.adapters.advance(now);
  }
  std::memcpy(frame.data(), &request.head, sizeof request.head);
  return outcome;
}

}  // namespace lisim
