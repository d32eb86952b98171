#include "simulator/trace.h"

#include <algorithm>
#include <cstring>

#include "simulator/record_text.h"

namespace lisim {

namespace {

std::string hex(ByteView bytes) {
  return bytes.empty() ? "-" : hexText(bytes);
}

std::string field(const char* name, std::uint64_t value) {
  return std::string(" ") + name + "=" + std::to_string(value);
}

std::string quoted(const char* name, const char* words) {
  return std::string(" ") + name + "=\"" + words + "\"";
}

// The head's fields, or nothing when the frame is too short to have one.
std::string headFields(std::span<const std::uint8_t> frame) {
  req_param_t head;
  if (frame.size() < sizeof head) return "";
  std::memcpy(&head, frame.data(), sizeof head);
  return field("prim", head.Prim) + field("type", head.Type) + field("link", head.Link) +
         field("unit", head.Unit) + field("size", head.Size) + field("szio", head.SzIO) +
         field("rowm", head.RowM) + field("nrow", head.NRow) + field("resp", head.Resp);
}

// The bytes behind the head, up to `end` of the frame where the frame has that many.
std::span<const std::uint8_t> payload(std::span<const std::uint8_t> frame, std::size_t end) {
  const std::size_t start = std::min(sizeof(req_param_t), frame.size());
  end = std::clamp(end, start, frame.size());
  return frame.subspan(start, end - start);
}

std::size_t inputEnd(std::span<const std::uint8_t> frame) {
  req_param_t head{};
  if (frame.size() >= sizeof head) std::memcpy(&head, frame.data(), sizeof head);
  return head.SzIO;
}

std::string answerFields(std::span<const std::uint8_t> frame, const Outcome& outcome) {
  if (outcome.delivery == Delivery::silence) return " -> silence";
  if (outcome.delivery == Delivery::hangup) return " -> hangup";
  std::string text = " ->" + field("after", outcome.delay) +
                     field("errno", static_cast<unsigned>(outcome.error)) + headFields(frame) +
                     " out=" + hex(payload(frame, frame.size()));
  req_param_t head{};
  if (outcome.error != 0) return text + quoted("answer", std::strerror(outcome.error));
  std::memcpy(&head, frame.data(), sizeof head);
  return text + quoted("answer", head.Resp == respUntouched ? "untouched" : wordsOf(head.Resp));
}

}  // namespace

bool Trace::writeTo(const std::string& path) {
  file_.reset(std::fopen(path.c_str(), "we"));
  return file_ && std::setvbuf(file_.get(), nullptr, _IOLBF, 0) == 0;
}

void Trace::line(Milliseconds time, unsigned session, const std::string& text) {
  if (!file_) return;
  std::fprintf(file_.get(), "time=%llu session=%u%s\n", static_cast<unsigned long long>(time),
               session, text.c_str());
  std::fflush(file_.get());
}

void Trace::open(unsigned session, std::uint32_t flags, unsigned uid, int error) {
  line(clock_.now(), session,
       " event=open" + field("flags", flags) + field("uid", uid) +
           field("errno", static_cast<unsigned>(error)));
}

void Trace::request(unsigned session, Milliseconds arrived, const WireHead& head,
                    std::span<const std::uint8_t> before, std::span<const std::uint8_t> after,
                    const Outcome& outcome) {
  if (!file_) return;
  line(arrived, session,
       " event=request" + field("serial", head.serial) + field("cmd", head.code) +
           " timeout=" + std::to_string(static_cast<std::int32_t>(head.limit)) +
           field("length", head.length) + headFields(before) +
           " in=" + hex(payload(before, inputEnd(before))) + answerFields(after, outcome));
}

void Trace::malformed(unsigned session, const char* why, std::span<const std::uint8_t> bytes,
                      int error) {
  constexpr std::size_t shown = 64;
  line(clock_.now(), session,
       " event=malformed" + quoted("why", why) +
           " bytes=" + hex(bytes.first(std::min(shown, bytes.size()))) +
           field("errno", static_cast<unsigned>(error)));
}

void Trace::close(unsigned session, const char* why) {
  line(clock_.now(), session, " event=close" + quoted("why", why));
}

}  // namespace lisim
