#include "platform/streams.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <unordered_map>

#include "platform/driver_socket.h"

#if __has_include(<stropts.h>)
#include <fcntl.h>
#endif

namespace {

#if __has_include(<stropts.h>)
bool isStreamsNode(const char* path) {
  struct stat node;
  return ::stat(path, &node) == 0 && S_ISCHR(node.st_mode);
}

int openNode(const char* path, int oflag) {
  return ::open(path, oflag | O_CLOEXEC, 0);
}

int nodeExchange(int descriptor, strioctl* exchange) {
  return ::ioctl(descriptor, I_STR, exchange);
}
#else
bool isStreamsNode(const char*) {
  return false;
}

int openNode(const char*, int) {
  errno = ENXIO;
  return -1;
}

int nodeExchange(int, strioctl*) {
  errno = EBADF;
  return -1;
}
#endif

// What is kept of a session on a socket. That its driver has hung up the socket itself knows.
struct Session {
  std::uint32_t serial = 0;  // of the latest exchange
  int limit = 0;             // the receive limit that the socket has
};

std::unordered_map<int, Session>& sessions() {
  static std::unordered_map<int, Session> byDescriptor;
  return byDescriptor;
}

bool isSound(int request, const strioctl* exchange) {
  return request == I_STR && exchange != nullptr && exchange->ic_timout >= noLimit &&
         exchange->ic_len >= 0 && exchange->ic_len <= static_cast<int>(wireMaxBody) &&
         (exchange->ic_dp != nullptr || exchange->ic_len == 0);
}

int exchangeFrame(int socket, Session& session, const strioctl& exchange) {
  if (session.limit != exchange.ic_timout) {
    session.limit = exchange.ic_timout;
    setReceiveLimit(socket, session.limit);
  }
  const auto length = static_cast<std::uint32_t>(exchange.ic_len);
  const WireHead request{wireExchange, ++session.serial,
                         static_cast<std::uint32_t>(exchange.ic_cmd),
                         static_cast<std::uint32_t>(exchange.ic_timout), length};
  return exchangeOnSocket(socket, request,
                          {reinterpret_cast<std::uint8_t*>(exchange.ic_dp), length},
                          Deadline(exchange.ic_timout), Wait::bySocket);
}

}  // namespace

int streams_open(const char* path, int oflag) {
  if (isStreamsNode(path)) return openNode(path, oflag);
  const int descriptor = openDriverSocket(path, oflag, Deadline(0));
  if (descriptor >= 0) sessions()[descriptor] = {};
  return descriptor;
}

int streams_ioctl(int descriptor, int request, strioctl* exchange) {
  const auto session = sessions().find(descriptor);
  if (session == sessions().end()) return nodeExchange(descriptor, exchange);
  const int error =
      isSound(request, exchange) ? exchangeFrame(descriptor, session->second, *exchange) : EINVAL;
  if (error == 0) return 0;
  errno = error;
  return -1;
}

int streams_close(int descriptor) {
  sessions().erase(descriptor);
  return ::close(descriptor);
}
