// A plain client of the device exchange, which can send what no well-behaved one would.
#pragma once

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "driver/frame.h"
#include "platform/wire.h"
#include "tests/support/lisim_process.h"

using LisimBytes = std::vector<std::uint8_t>;

template <class Record>
LisimBytes lisimBytesOf(const Record& record) {
  const auto* start = reinterpret_cast<const std::uint8_t*>(&record);
  return LisimBytes(start, start + sizeof record);
}

struct LisimAnswer {
  WireHead wire{};
  req_param_t head{};
  LisimBytes payload;

  template <class Record>
  Record as(std::size_t offset = 0) const {
    Record record{};
    if (offset + sizeof record <= payload.size())
      std::memcpy(&record, payload.data() + offset, sizeof record);
    return record;
  }
};

class LisimClient {
 public:
  explicit LisimClient(const std::string& path) : socket_(lisimConnect(path, SOCK_SEQPACKET)) {}
  // Connects and opens with `flags`.
  LisimClient(const std::string& path, std::uint32_t flags) : LisimClient(path) { open(flags); }
  ~LisimClient() { close(socket_); }
  LisimClient(const LisimClient&) = delete;
  LisimClient& operator=(const LisimClient&) = delete;

  // The reply's error number.
  std::uint32_t open(std::uint32_t flags) {
    sendMessage({wireOpen, 0, flags, 0, 0}, {});
    const auto answer = receive();
    return answer ? answer->wire.code : 9999;
  }

  bool sendRaw(const LisimBytes& message) {
    return send(socket_, message.data(), message.size(), MSG_NOSIGNAL | MSG_DONTWAIT) ==
           static_cast<ssize_t>(message.size());
  }

  bool sendMessage(const WireHead& head, const LisimBytes& body) {
    LisimBytes message = lisimBytesOf(head);
    message.insert(message.end(), body.begin(), body.end());
    return sendRaw(message);
  }

  // The next message, or nothing when the simulator has hung up or `milliseconds` went by.
  std::optional<LisimAnswer> receive(int milliseconds = lisimPatienceMs) {
    LisimBytes message(70000);
    if (!lisimReadable(socket_, milliseconds)) return std::nullopt;
    const ssize_t got = recv(socket_, message.data(), message.size(), 0);
    LisimAnswer answer;
    if (got < static_cast<ssize_t>(sizeof answer.wire)) {
      hungUp_ = got <= 0;
      return std::nullopt;
    }
    std::memcpy(&answer.wire, message.data(), sizeof answer.wire);
    message.resize(static_cast<std::size_t>(got));
    message.erase(message.begin(), message.begin() + sizeof answer.wire);
    if (message.size() >= sizeof answer.head) {
      std::memcpy(&answer.head, message.data(), sizeof answer.head);
      answer.payload.assign(message.begin() + sizeof answer.head, message.end());
    }
    return answer;
  }
  bool hungUp() const { return hungUp_; }

  // Sends a frame: `head` with the payload behind it.
  bool post(const req_param_t& head, const LisimBytes& payload) {
    LisimBytes frame = lisimBytesOf(head);
    frame.insert(frame.end(), payload.begin(), payload.end());
    return sendMessage(
        {wireExchange, ++serial_, liCommand, 0, static_cast<std::uint32_t>(frame.size())}, frame);
  }

  // One exchange; a code of 9999 when no answer came.
  LisimAnswer exchange(const req_param_t& head, const LisimBytes& payload) {
    const LisimAnswer none{{0, 0, 9999, 0, 0}, {}, {}};
    return post(head, payload) ? receive().value_or(none) : none;
  }

  // A query about `link` with room for `room` bytes and without input.
  LisimAnswer query(Primitive prim, std::uint16_t type, std::uint8_t link, std::size_t room = 0) {
    return exchange(lisimHead(prim, type, link, 16 + room, 16), LisimBytes(room));
  }

  // A request whose payload is all input.
  LisimAnswer request(Primitive prim, std::uint16_t type, std::uint8_t link,
                      const LisimBytes& input = {}) {
    const std::size_t size = 16 + input.size();
    return exchange(lisimHead(prim, type, link, size, size), input);
  }

  static req_param_t lisimHead(Primitive prim, std::uint16_t type, std::uint8_t link,
                               std::size_t size, std::size_t input) {
    return {prim,
            type,
            link,
            0,
            static_cast<std::uint16_t>(size),
            static_cast<std::uint16_t>(input),
            1,
            0,
            respUntouched};
  }

 private:
  int socket_;
  std::uint32_t serial_ = 0;
  bool hungUp_ = false;
};
