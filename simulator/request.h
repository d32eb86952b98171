// One frame on its way through the driver, and the table entry that serves it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

#include "driver/control_table.h"
#include "driver/frame.h"
#include "driver/query_table.h"
#include "simulator/answer_code.h"
#include "simulator/simulator.h"

namespace lisim {

// A frame taken apart, with what a handler needs to serve it.
struct Request {
  Simulator& simulator;
  Milliseconds now;
  req_param_t head;                 // written back into the frame after serving
  std::span<std::uint8_t> payload;  // what follows the head, up to Size
  std::size_t inputBytes;           // of the payload that are input
  std::uint16_t rowLimit;           // a fault can hold table reads short
  Board& board() { return simulator.adapters.board(head.Link); }
  vc_tbl vcRow(std::uint16_t vci) { return vcRowOf(board(), vci, now, simulator.adapters.seed); }
  ServiceView services() { return serviceView(board(), now, simulator.adapters.joinStep); }

  // Puts a record at `offset` of the payload. The dispatcher has made sure of the room.
  template <class Record>
  void reply(const Record& record, std::size_t offset = 0) {
    std::memcpy(payload.data() + offset, &record, sizeof record);
  }

  // Takes one from `offset` of the payload; the dispatcher has made sure of the input.
  template <class Record>
  Record input(std::size_t offset = 0) const {
    Record record;
    std::memcpy(&record, payload.data() + offset, sizeof record);
    return record;
  }
};

// Serves a table read: rows from RowM on, as many as were asked for, are left and fit. `rowAt` is
// called with a row's index from 0 and gives the record. RowM moves on by the rows delivered, so
// that the frame sent back as it is reads the next page.
template <class RowAt>
Answer deliverRows(Request& request, std::size_t rows, RowAt rowAt) {
  using Record = decltype(rowAt(std::size_t{0}));
  req_param_t& head = request.head;
  if (head.RowM == 0) return Answer::badRow;
  const std::size_t first = head.RowM - 1U;
  const std::size_t left = first < rows ? rows - first : 0;
  const std::size_t room = request.payload.size() / sizeof(Record);
  const std::size_t count =
      std::min({left, room, std::size_t{head.NRow}, std::size_t{request.rowLimit}});
  for (std::size_t i = 0; i < count; ++i) request.reply(rowAt(first + i), i * sizeof(Record));
  head.NRow = static_cast<std::uint16_t>(count);
  head.RowM = static_cast<std::uint16_t>(head.RowM + count);
  return Answer::done;
}

// Payloads of signalling frames start with a head of their own.
constexpr std::uint16_t sigHeadBytes = signallingDataOffset - plainDataOffset;

enum class OperationKind { plain, rowCount, table };

// What a request is about: no board, the one in Link, or a service of it that there is one of,
// whose Unit is a row of its table or left over from one.
enum class Target { driver, board, singleService };

// One entry of a dispatch table.
struct Operation {
  std::uint16_t primitive;
  std::uint16_t type;
  Target target;
  OperationKind kind;
  std::uint16_t inputBytes;  // of payload that must be input
  std::uint16_t replyBytes;  // of payload that must have room
  Answer (*serve)(Request&);
};

// A control request's entry, with the input that its frame carries.
constexpr Operation controlOperation(Control control, Target target, Answer (*serve)(Request&)) {
  const ControlForm& form = formOf(control);
  const auto input = static_cast<std::uint16_t>(form.inputBytes - plainDataOffset);
  return {form.prim, form.type, target, OperationKind::plain, input, 0, serve};
}

// A query's entry: the whole record has to find room.
constexpr Operation queryOperation(Query query, Answer (*serve)(Request&)) {
  const QueryForm& form = formOf(query);
  return {form.prim, form.type, Target::board, OperationKind::plain, 0, form.replyBytes, serve};
}

// The two entries of a table.
constexpr Operation countOperation(Query query, Answer (*serve)(Request&)) {
  const QueryForm& form = formOf(query);
  return {form.prim, form.countType, Target::board, OperationKind::rowCount, 0, 0, serve};
}
constexpr Operation tableOperation(Query query, Answer (*serve)(Request&)) {
  const QueryForm& form = formOf(query);
  return {form.prim, form.type, Target::board, OperationKind::table, 0, 0, serve};
}

// The tables, one per family of services.
std::span<const Operation> boardOperations();
std::span<const Operation> lanEmulationOperations();
std::span<const Operation> ipOperations();
std::span<const Operation> signallingOperations();

}  // namespace lisim
