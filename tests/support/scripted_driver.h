// A driver process in a thread of the test: it listens on a real node and answers by a script.
#pragma once

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <atomic>
#include <cstdint>
#include <cstring>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/wire.h"

struct WireMessage {
  WireHead head{};
  std::vector<std::uint8_t> body;
};

class ScriptedDriver {
 public:
  // Called for each exchange, in the driver's thread; answers by reply, sendRaw or hangUp.
  using Script = std::function<void(ScriptedDriver&, const WireMessage&)>;

  ScriptedDriver(const std::string& path, Script script, int openError = 0)
      : script_(std::move(script)), openError_(openError), listener_(listenAt(path)) {
    thread_ = std::thread([this] { serve(); });
  }
  ~ScriptedDriver() {
    ending_ = true;
    shutdown(listener_, SHUT_RDWR);
    hangUp();
    thread_.join();
    close(listener_);
  }
  ScriptedDriver(const ScriptedDriver&) = delete;
  ScriptedDriver& operator=(const ScriptedDriver&) = delete;

  // Answers `request`, whose body the script may have changed in its copy.
  void reply(const WireMessage& request, int error = 0) {
    const auto length = static_cast<std::uint32_t>(request.body.size());
    sendHead({request.head.kind, request.head.serial, static_cast<std::uint32_t>(error), 0, length},
             request.body);
  }

  // Sends any head before any body, whether they fit or not.
  void sendHead(const WireHead& head, const std::vector<std::uint8_t>& body = {}) {
    std::vector<std::uint8_t> message(sizeof head + body.size());
    std::memcpy(message.data(), &head, sizeof head);
    std::copy(body.begin(), body.end(), message.begin() + sizeof head);
    sendRaw(message);
  }
  void sendRaw(const std::vector<std::uint8_t>& message) {
    send(session_, message.data(), message.size(), MSG_NOSIGNAL);
  }
  void hangUp() { shutdown(session_, SHUT_RDWR); }

  // Everything that came, opens included.
  std::vector<WireMessage> received() {
    const std::lock_guard lock(mutex_);
    return received_;
  }

  static int listenAt(const std::string& path, int backlog = 8) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int listener = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
    bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof address);
    listen(listener, backlog);
    return listener;
  }

 private:
  void serve() {
    while (!ending_) {
      const int session = accept(listener_, nullptr, nullptr);
      if (session < 0) return;
      session_ = session;
      while (!ending_ && serveOne()) continue;
      close(session_.exchange(-1));
    }
  }

  bool serveOne() {
    std::vector<std::uint8_t> bytes(sizeof(WireHead) + wireMaxBody);
    const ssize_t got = recv(session_, bytes.data(), bytes.size(), 0);
    if (got < static_cast<ssize_t>(sizeof(WireHead))) return false;
    WireMessage message;
    std::memcpy(&message.head, bytes.data(), sizeof message.head);
    message.body.assign(bytes.begin() + sizeof message.head, bytes.begin() + got);
    {
      const std::lock_guard lock(mutex_);
      received_.push_back(message);
    }
    if (message.head.kind == wireOpen)
      reply(message, openError_);
    else
      script_(*this, message);
    return true;
  }

  Script script_;
  int openError_;
  int listener_;
  std::atomic<int> session_ = -1;
  std::atomic<bool> ending_ = false;
  std::mutex mutex_;
  std::vector<WireMessage> received_;
  std::thread thread_;
};
