#include "platform/driver_socket.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstring>

static_assert(std::endian::native == std::endian::little, "words cross the wire as they stand");

std::chrono::milliseconds defaultLimit{15000};

namespace {

struct ReplyMessage {
  WireHead head;
  std::uint8_t body[wireMaxBody];
};
constexpr std::size_t replyCapacity = offsetof(ReplyMessage, body) + wireMaxBody;

std::chrono::milliseconds limitOf(int seconds) {
  return seconds == 0 ? defaultLimit : std::chrono::seconds(seconds);
}

// The driver has gone. Shutting the socket down makes every later send fail at once.
int hangUp(int socket) {
  ::shutdown(socket, SHUT_RDWR);
  return ENXIO;
}

// Waits until `socket` can take or give a message, or is broken. Returns 0 or an error number.
int waitFor(int socket, short events, const Deadline& deadline) {
  pollfd wanted{socket, events, 0};
  while (!deadline.passed()) {
    const int ready = ::poll(&wanted, 1, deadline.millisecondsLeft());
    if (ready > 0) return 0;
    if (ready < 0 && errno != EINTR) return errno;
  }
  return ETIME;
}

int sendRequest(int socket, WireHead& head, std::span<std::uint8_t> body,
                const Deadline& deadline) {
  iovec parts[] = {{&head, sizeof head}, {body.data(), body.size()}};
  msghdr message{};
  message.msg_iov = parts;
  message.msg_iovlen = std::size(parts);
  while (::sendmsg(socket, &message, MSG_NOSIGNAL | MSG_DONTWAIT) < 0) {
    if (errno == EPIPE || errno == ECONNRESET) return hangUp(socket);
    if (errno == EINTR) continue;
    if (errno != EAGAIN) return errno;
    if (const int error = waitFor(socket, POLLOUT, deadline)) return error;
  }
  return 0;
}

// Takes the next message, whatever it is; `bytes` becomes its length. Returns 0 or an error number.
int receiveMessage(int socket, ReplyMessage& reply, std::size_t& bytes, const Deadline& deadline,
                   Wait wait) {
  iovec room{&reply, replyCapacity};
  msghdr message{};
  message.msg_iov = &room;
  message.msg_iovlen = 1;
  for (;; wait = Wait::byDeadline) {
    if (wait == Wait::byDeadline) {
      if (const int error = waitFor(socket, POLLIN, deadline)) return error;
    }
    const int flags = wait == Wait::byDeadline ? MSG_DONTWAIT : 0;
    const ssize_t received = ::recvmsg(socket, &message, flags);
    if (received > 0) {
      bytes = static_cast<std::size_t>(received);
      return (message.msg_flags & MSG_TRUNC) != 0 ? EPROTO : 0;
    }
    if (received == 0 || errno == ECONNRESET) return hangUp(socket);
    if (errno != EINTR && errno != EAGAIN) return errno;
  }
}

bool isWellFormed(const ReplyMessage& reply, std::size_t bytes, std::uint32_t kind) {
  return bytes >= sizeof(WireHead) && reply.head.length == bytes - sizeof(WireHead) &&
         reply.head.kind == kind;
}

// Waits for the reply to `request`, dropping the late ones to requests given up before it.
int awaitReply(int socket, const WireHead& request, std::span<std::uint8_t> frame,
               const Deadline& deadline, Wait wait) {
  ReplyMessage reply;
  do {
    std::size_t bytes = 0;
    if (const int error = receiveMessage(socket, reply, bytes, deadline, wait)) return error;
    wait = Wait::byDeadline;
    if (!isWellFormed(reply, bytes, request.kind)) return EPROTO;
  } while (reply.head.serial != request.serial);
  std::copy_n(reply.body, std::min<std::size_t>(reply.head.length, frame.size()), frame.data());
  return static_cast<int>(reply.head.code);
}

// Connects, waiting while the driver's queue of callers is full. Returns 0 or an error number.
int connectBy(int socket, const sockaddr_un& address, const Deadline& deadline) {
  while (!deadline.passed()) {
    const int left = std::max(deadline.millisecondsLeft(), 0);  // a limit of 0 is none
    const timeval limit{left / 1000, left % 1000 * 1000};
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
      return 0;
    if (errno == ECONNREFUSED || errno == EPROTOTYPE) return ENXIO;  // a node without a driver
    if (errno != EINTR && errno != EAGAIN) return errno;
  }
  return ETIME;
}

int openSession(int socket, const sockaddr_un& address, int oflag, const Deadline& deadline) {
  if (const int error = connectBy(socket, address, deadline)) return error;
  const WireHead request{wireOpen, 0, static_cast<std::uint32_t>(oflag), 0, 0};
  const int error = exchangeOnSocket(socket, request, {}, deadline, Wait::byDeadline);
  setReceiveLimit(socket, 0);
  return error;
}

}  // namespace

Deadline::Deadline(int seconds)
    : endless_(seconds == noLimit), end_(Clock::now() + limitOf(seconds)) {}

bool Deadline::passed() const {
  return !endless_ && Clock::now() >= end_;
}

int Deadline::millisecondsLeft() const {
  if (endless_) return -1;
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now()).count();
  return static_cast<int>(std::clamp<long long>(left, 0, INT_MAX));
}

void setReceiveLimit(int socket, int seconds) {
  const auto microseconds =
      seconds == noLimit ? 0 : std::chrono::microseconds(limitOf(seconds)).count();
  const timeval limit{microseconds / 1000000, microseconds % 1000000};
  ::setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
}

int openDriverSocket(const char* path, int oflag, const Deadline& deadline) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::size_t length = std::strlen(path);
  if (length >= sizeof address.sun_path) {
    errno = ENAMETOOLONG;
    return -1;
  }
  std::memcpy(address.sun_path, path, length);

  const int socket = ::socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
  if (socket < 0) return -1;
  if (const int error = openSession(socket, address, oflag, deadline)) {
    ::close(socket);
    errno = error;
    return -1;
  }
  return socket;
}

int exchangeOnSocket(int socket, WireHead request, std::span<std::uint8_t> frame,
                     const Deadline& deadline, Wait wait) {
  if (const int error = sendRequest(socket, request, frame, deadline)) return error;
  return awaitReply(socket, request, frame, deadline, wait);
}
