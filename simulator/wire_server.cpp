#include "simulator/wire_server.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "driver/frame.h"

namespace lisim {

namespace {

constexpr std::size_t maxSessions = 64;
constexpr mode_t anyoneMayConnect = 0666;

// -1, the id of no user, when the peer is not to be known.
unsigned peerUid(int socket) {
  ucred peer{};
  socklen_t length = sizeof peer;
  if (getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &length) != 0)
    return static_cast<unsigned>(-1);
  return peer.uid;
}

}  // namespace

WireServer::~WireServer() {
  while (!sessions_.empty()) drop(sessions_.begin()->first, "the simulator ends");
}

std::string WireServer::listenAt(const std::string& path) {
  std::string error = listener_.listenAt(path, SOCK_SEQPACKET, anyoneMayConnect);
  if (error.empty()) loop_.watch(listener_.descriptor(), [this] { acceptSession(); });
  return error;
}

void WireServer::acceptSession() {
  Descriptor socket = listener_.accept();
  if (!socket.valid() || sessions_.size() >= maxSessions) return;
  const unsigned id = ++lastId_;
  loop_.watch(socket.get(), [this, id] { readMessage(id); });
  Session& session = sessions_[id];
  session.uid = peerUid(socket.get());
  session.socket = std::move(socket);
}

void WireServer::readMessage(unsigned id) {
  // One byte more than any message has shows one that is too long.
  Bytes message(sizeof(WireHead) + wireMaxBody + 1);
  const ssize_t got = recv(sessions_[id].socket.get(), message.data(), message.size(), 0);
  if (got < 0 && (errno == EAGAIN || errno == EINTR)) return;
  if (got <= 0) return drop(id, "closed by the peer");
  const auto length = static_cast<std::size_t>(got);
  message.resize(length);
  WireHead head;
  if (length < sizeof head) {
    trace_.malformed(id, "the message is shorter than its head", message, EPROTO);
    return drop(id, "a message that can't be answered");
  }
  std::memcpy(&head, message.data(), sizeof head);
  handle(id, head, message, length);
}

void WireServer::handle(unsigned id, const WireHead& head, Bytes& message, std::size_t length) {
  const Session& session = sessions_[id];
  if (length > sizeof head + wireMaxBody)
    return refuse(id, head, "the message is too long", message, EMSGSIZE);
  if (head.length != length - sizeof head)
    return refuse(id, head, "the length is not the body's", message, EINVAL);
  if (head.kind == wireOpen && !session.open) return openSession(id, head);
  if (head.kind == wireOpen)
    return refuse(id, head, "the session is open already", message, EINVAL);
  if (head.kind != wireExchange) return refuse(id, head, "unknown kind", message, EINVAL);
  if (!session.open) return refuse(id, head, "the session is not open", message, EBADF);
  if (head.code != liCommand) return refuse(id, head, "unknown command", message, EINVAL);
  message.erase(message.begin(), message.begin() + sizeof head);
  exchange(id, head, message);
}

void WireServer::openSession(unsigned id, const WireHead& head) {
  Session& session = sessions_[id];
  const bool wantsWrite = (head.code & O_ACCMODE) != O_RDONLY;
  const bool refused = wantsWrite && session.uid != 0 && session.uid != getuid();
  const int error = refused ? EACCES : 0;
  session.open = !refused;
  session.caller.mayWrite = wantsWrite && !refused;
  trace_.open(id, head.code, session.uid, error);
  send(id, {wireOpen, head.serial, static_cast<std::uint32_t>(error), 0, 0}, {});
}

void WireServer::exchange(unsigned id, const WireHead& head, Bytes& frame) {
  const Bytes before = frame;
  const Milliseconds arrived = loop_.now();
  const Outcome outcome = serveFrame(simulator_, sessions_[id].caller, frame, arrived);
  const WireHead reply{wireExchange, head.serial, static_cast<std::uint32_t>(outcome.error), 0,
                       static_cast<std::uint32_t>(frame.size())};
  auto answer = [this, id, head, reply, arrived, outcome, before, frame] {
    trace_.request(id, arrived, head, before, frame, outcome);
    if (outcome.delivery == Delivery::answer) send(id, reply, frame);
    if (outcome.delivery == Delivery::hangup) drop(id, "hung up by a fault");
  };
  if (outcome.delay == 0) return answer();
  loop_.at(arrived + outcome.delay, [this, id, answer] {
    if (sessions_.contains(id)) answer();
  });
}

// Answers a message that is no use with an error number and an empty body.
void WireServer::refuse(unsigned id, const WireHead& head, const char* why, const Bytes& message,
                        int error) {
  trace_.malformed(id, why, message, error);
  send(id, {head.kind, head.serial, static_cast<std::uint32_t>(error), 0, 0}, {});
}

// A peer whose buffer is full is let go: waiting for one would keep the others waiting.
void WireServer::send(unsigned id, const WireHead& head, const Bytes& body) {
  Bytes message(sizeof head);
  std::memcpy(message.data(), &head, sizeof head);
  message.insert(message.end(), body.begin(), body.end());
  const ssize_t sent = ::send(sessions_[id].socket.get(), message.data(), message.size(),
                              MSG_NOSIGNAL | MSG_DONTWAIT);
  if (sent != static_cast<ssize_t>(message.size())) drop(id, "the peer does not take its answers");
}

void WireServer::drop(unsigned id, const char* why) {
  trace_.close(id, why);
  loop_.unwatch(sessions_[id].socket.get());
  sessions_.erase(id);
}

}  // namespace lisim
