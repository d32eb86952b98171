// Unix-domain sockets that are named in the file system.
#pragma once

#include <sys/socket.h>
#include <sys/stat.h>

#include <string>
#include <utility>

namespace lisim {

// An open descriptor, closed at the end of its life.
class Descriptor {
 public:
  explicit Descriptor(int descriptor = -1) : descriptor_(descriptor) {}
  Descriptor(Descriptor&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(descriptor_, other.descriptor_);
    return *this;
  }
  ~Descriptor();

  int get() const { return descriptor_; }
  bool valid() const { return descriptor_ >= 0; }

 private:
  int descriptor_;
};

// A socket that listens under a name, which it takes away again at the end of its life.
class ListeningSocket {
 public:
  ListeningSocket() = default;
  ListeningSocket(const ListeningSocket&) = delete;
  ListeningSocket& operator=(const ListeningSocket&) = delete;
  ~ListeningSocket();

  // Listens at `path` on a socket of `type` with the node's permission bits `mode`. A socket that
  // nobody listens on any more is replaced, and nothing else is. Returns "" or what went wrong.
  std::string listenAt(const std::string& path, int type, mode_t mode);

  // The next connection, not blocking, or an invalid descriptor when there is none.
  Descriptor accept() const;
  int descriptor() const { return socket_.get(); }

 private:
  Descriptor socket_;
  std::string path_;
  struct stat node_ {};  // as made, so that nobody else's node is taken away
};

}  // namespace lisim
