#include "simulator/socket.h"

#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace lisim {

namespace {

constexpr int backlog = 16;

std::string failure(const std::string& path, const char* step) {
  return path + ": " + step + ": " + std::strerror(errno);
}

bool connects(const sockaddr_un& address, int type) {
  const Descriptor probe(socket(AF_UNIX, type | SOCK_CLOEXEC, 0));
  return connect(probe.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

// Makes `path` free for a socket. Returns "" or why it is not.
std::string clearStale(const sockaddr_un& address, int type) {
  const std::string path = address.sun_path;
  struct stat node;
  if (lstat(path.c_str(), &node) != 0) return errno == ENOENT ? "" : failure(path, "stat");
  if (!S_ISSOCK(node.st_mode)) return path + ": is there and is not a socket";
  if (connects(address, type)) return path + ": another process listens there";
  if (errno != ECONNREFUSED) return failure(path, "is there and may be in use");
  return unlink(path.c_str()) == 0 ? "" : failure(path, "unlink");
}

}  // namespace

Descriptor::~Descriptor() {
  if (valid()) close(descriptor_);
}

ListeningSocket::~ListeningSocket() {
  struct stat node;
  if (!path_.empty() && lstat(path_.c_str(), &node) == 0 && node.st_dev == node_.st_dev &&
      node.st_ino == node_.st_ino)
    unlink(path_.c_str());
}

std::string ListeningSocket::listenAt(const std::string& path, int type, mode_t mode) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.empty() || path.size() >= sizeof address.sun_path)
    return path + ": a socket's path has 1 to " + std::to_string(sizeof address.sun_path - 1) +
           " characters";
  path.copy(address.sun_path, path.size());
  if (std::string stale = clearStale(address, type); !stale.empty()) return stale;

  socket_ = Descriptor(socket(AF_UNIX, type | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (!socket_.valid()) return failure(path, "socket");
  if (bind(socket_.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
    return failure(path, "bind");
  path_ = path;
  if (lstat(path.c_str(), &node_) != 0 || chmod(path.c_str(), mode) != 0)
    return failure(path, "chmod");
  return listen(socket_.get(), backlog) == 0 ? "" : failure(path, "listen");
}

Descriptor ListeningSocket::accept() const {
  return Descriptor(accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
}

}  // namespace lisim
