#include "simulator/decode.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <istream>
#include <ostream>
#include <string_view>
#include <vector>

#include "driver/control_table.h"
#include "driver/query_table.h"
#include "driver/reply_layouts.h"
#include "simulator/record_text.h"

namespace lisim {

namespace {

using Number = std::uint64_t;

// One side of a trace line: its fields by their names.
class Fields {
 public:
  explicit Fields(std::string_view text) : text_(text) {}

  // What stands behind "name=", up to the next blank or the closing quote.
  std::optional<std::string_view> word(std::string_view name) const {
    const std::string key = " " + std::string(name) + "=";
    const std::size_t at = text_.find(key);
    if (at == std::string_view::npos) return std::nullopt;
    std::string_view rest = text_.substr(at + key.size());
    if (!rest.starts_with('"')) return rest.substr(0, rest.find(' '));
    rest.remove_prefix(1);
    return rest.substr(0, rest.find('"'));
  }

  std::optional<Number> number(std::string_view name) const {
    const auto digits = word(name);
    Number value = 0;
    if (!digits || digits->empty()) return std::nullopt;
    const char* end = digits->data() + digits->size();
    const auto [stop, error] = std::from_chars(digits->data(), end, value);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
  }
  Number numberOr(std::string_view name, Number otherwise) const {
    return number(name).value_or(otherwise);
  }

  // "-" is no bytes.
  std::optional<std::vector<std::uint8_t>> bytes(std::string_view name) const {
    const auto digits = word(name);
    std::vector<std::uint8_t> bytes;
    if (!digits || *digits == "-") return digits ? std::optional(bytes) : std::nullopt;
    for (std::size_t i = 0; i < digits->size(); i += 2) {
      std::uint8_t byte = 0;
      const char* start = digits->data() + i;
      const char* end = start + std::min<std::size_t>(2, digits->size() - i);
      const auto [stop, error] = std::from_chars(start, end, byte, 16);
      if (error != std::errc() || stop != start + 2) return std::nullopt;
      bytes.push_back(byte);
    }
    return bytes;
  }

 private:
  std::string_view text_;
};

// What a primitive addresses, and whether Unit tells one of several.
struct ServiceName {
  Primitive prim;
  const char* name;
  bool hasUnits;
};

constexpr ServiceName serviceNames[] = {
    {primVccQuery, "circuits", false},
    {primLecControl, "LEC", true},
    {primLesControl, "LES", true},
    {primLecsControl, "LECS", false},
    {primLecQuery, "LEC", true},
    {primLesQuery, "LES", true},
    {primLecsQuery, "LECS", false},
    {primSigQuery, "signalling", false},
    {primSigControl, "signalling", false},
    {primIpControl, "IP", false},
    {primIpQuery, "IP", false},
    {primAalQuery, "board", false},
    {primPhyControl, "physical layer", false},
};

// A request of the trace, with the table entry it belongs to.
struct Exchange {
  Number prim, type, link, unit, rowMark, rows;
  std::vector<std::uint8_t> input;
  const ControlForm* control = nullptr;
  const QueryForm* query = nullptr;
  bool counts = false;  // the rows of the query's table
};

std::string number(Number value) {
  return std::to_string(value);
}

std::string rowsText(Number rows) {
  return number(rows) + (rows == 1 ? " row" : " rows");
}

ByteView payloadOf(const Exchange& exchange, ByteView bytes) {
  const std::size_t head =
      dataOffsetOf(static_cast<std::uint16_t>(exchange.prim)) - plainDataOffset;
  return bytes.subspan(std::min(head, bytes.size()));
}

// The entry of a request; that of a row count is its table's.
void findForms(Exchange& exchange) {
  for (const ControlForm& form : controlForms)
    if (form.prim == exchange.prim && form.type == exchange.type) exchange.control = &form;
  for (const QueryForm& form : queryForms) {
    if (form.prim != exchange.prim) continue;
    const bool counts = form.countType != 0 && form.countType == exchange.type;
    if (form.type != exchange.type && !counts) continue;
    exchange.query = &form;
    exchange.counts = counts;
  }
}

std::optional<Exchange> readExchange(const Fields& asked) {
  auto input = asked.bytes("in");
  const auto prim = asked.number("prim");
  const auto type = asked.number("type");
  if (!input || !prim || !type) return std::nullopt;
  Exchange exchange{*prim,
                    *type,
                    asked.numberOr("link", 0),
                    asked.numberOr("unit", 0),
                    asked.numberOr("rowm", 0),
                    asked.numberOr("nrow", 0),
                    *std::move(input)};
  findForms(exchange);
  return exchange;
}

std::string serviceText(const Exchange& exchange) {
  std::string text = "adapter " + number(exchange.link);
  for (const ServiceName& service : serviceNames) {
    if (service.prim != exchange.prim) continue;
    text += std::string(", ") + service.name;
    if (service.hasUnits) text += " " + number(exchange.unit);
    return text;
  }
  return text;
}

std::string controlText(const Exchange& exchange) {
  const ControlForm& form = *exchange.control;
  std::string text = serviceText(exchange) + ", " + form.name;
  if (form.control == Control::LecsAddClient || form.control == Control::LecsDeleteClient)
    text += " in row " + number(exchange.unit);
  const ByteView payload = payloadOf(exchange, exchange.input);
  const std::string record =
      form.payload.empty() && payload.empty() ? "" : describeRecord(form.payload, payload, true);
  return record.empty() ? text : text + ": " + record;
}

std::string queryText(const Exchange& exchange) {
  const QueryForm& form = *exchange.query;
  std::string text = serviceText(exchange) + ", " + replyFormOf(form.query).name;
  if (exchange.counts) return text + " rows";
  if (form.countType != 0)
    text += ", " + rowsText(exchange.rows) + " from " + number(exchange.rowMark);
  if (form.query == Query::BoardMacAddress && !exchange.input.empty())
    text += " of board " + number(exchange.input[0]);
  return text;
}

std::string requestText(const Exchange& exchange) {
  if (exchange.control) return controlText(exchange);
  if (exchange.query) return queryText(exchange);
  return serviceText(exchange) + ", primitive " + number(exchange.prim) + " type " +
         number(exchange.type) + ", " + number(exchange.input.size()) +
         " bytes: " + hexText(exchange.input);
}

// One line a row, as many as the answer says and holds.
std::string tableText(const Exchange& exchange, ByteView payload, Number rows) {
  const std::size_t rowBytes = exchange.query->replyBytes;
  std::string text = ": " + rowsText(rows);
  for (Number row = 0; row < rows; ++row) {
    const std::size_t start = static_cast<std::size_t>(row) * rowBytes;
    if (start + rowBytes > payload.size()) return text + "\n    no bytes of more rows";
    text += "\n    " + describeRecord(replyFormOf(exchange.query->query).fields,
                                      payload.subspan(start, rowBytes), false);
  }
  return text;
}

std::string replyText(const Exchange& exchange, const Fields& answered) {
  if (exchange.query == nullptr) return "";
  const Number rows = answered.numberOr("nrow", 0);
  if (exchange.counts) return ": " + rowsText(rows);
  const auto bytes = answered.bytes("out").value_or(std::vector<std::uint8_t>());
  const ByteView payload = payloadOf(exchange, bytes);
  if (exchange.query->countType != 0) return tableText(exchange, payload, rows);
  return ": " + describeRecord(replyFormOf(exchange.query->query).fields, payload, false);
}

std::string answerText(const Exchange& exchange, std::string_view text) {
  if (text == " silence" || text == " hangup") return std::string(text.substr(1));
  const Fields answered(text);
  std::string late;
  if (const Number after = answered.numberOr("after", 0)) late = " after " + number(after) + " ms";
  const std::string words(answered.word("answer").value_or(""));
  if (const Number error = answered.numberOr("errno", 0))
    return "errno " + number(error) + ": " + words + late;
  const Number resp = answered.numberOr("resp", respUntouched);
  if (resp == respUntouched) return "untouched" + late;
  if (resp != 0) return "code " + number(resp) + ": " + words + late;
  return "done" + late + replyText(exchange, answered);
}

std::optional<std::string> eventText(const Fields& asked, std::string_view answer) {
  const auto event = asked.word("event");
  if (!event) return std::nullopt;
  if (*event == "open") {
    const Number error = asked.numberOr("errno", 0);
    return "open with flags " + number(asked.numberOr("flags", 0)) + " by user " +
           number(asked.numberOr("uid", 0)) + " -> " +
           (error ? "errno " + number(error) : std::string("done"));
  }
  if (*event == "close" || *event == "malformed")
    return std::string(*event) + ": " + std::string(asked.word("why").value_or(""));
  if (*event != "request") return std::nullopt;
  if (!asked.number("prim")) return "a frame without a whole head -> " + answerText({}, answer);
  const auto exchange = readExchange(asked);
  if (!exchange) return std::nullopt;
  return requestText(*exchange) + " -> " + answerText(*exchange, answer);
}

}  // namespace

std::optional<std::string> decodeLine(const std::string& line) {
  // Nothing that a terminal would obey.
  const auto isControl = [](unsigned char byte) { return byte < ' ' || byte == 0x7f; };
  if (std::ranges::any_of(line, isControl)) return std::nullopt;
  const std::string padded = " " + line;
  const std::size_t arrow = padded.find(" ->");
  const Fields asked(std::string_view(padded).substr(0, arrow));
  const std::string_view answer =
      arrow == std::string::npos ? std::string_view() : std::string_view(padded).substr(arrow + 3);
  const auto time = asked.number("time");
  const auto session = asked.number("session");
  if (!time || !session) return std::nullopt;
  const auto text = eventText(asked, answer);
  if (!text) return std::nullopt;
  char start[64];
  std::snprintf(start, sizeof start, "%llu.%03llu s  session %llu  ",
                static_cast<unsigned long long>(*time / 1000),
                static_cast<unsigned long long>(*time % 1000),
                static_cast<unsigned long long>(*session));
  return start + *text;
}

bool decodeTrace(std::istream& in, std::ostream& out, std::ostream& errors) {
  bool good = true;
  std::string line;
  for (int lineNumber = 1; std::getline(in, line); ++lineNumber) {
    if (const auto text = decodeLine(line)) {
      out << *text << '\n';
    } else {
      errors << "lisim: line " << lineNumber << " is no line of a trace\n";
      good = false;
    }
  }
  return good;
}

}  // namespace lisim
