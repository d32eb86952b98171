#include "foundation/odlog.h"

#include <unistd.h>

#include <cerrno>

LogStream odlog;

LogStream::LogStream() : std::ostream(nullptr) {}

void LogStream::attach(int descriptor) {
  buffer_.attach(descriptor);
  rdbuf(&buffer_);  // also clears the state that made every insertion fail
}

void LogStream::Buffer::attach(int descriptor) {
  descriptor_ = descriptor;
  setp(text_, text_ + sizeof text_);
}

LogStream::Buffer::int_type LogStream::Buffer::overflow(int_type c) {
  if (sync() != 0) return traits_type::eof();
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  *pptr() = traits_type::to_char_type(c);
  pbump(1);
  return c;
}

int LogStream::Buffer::sync() {
  const char* from = pbase();
  while (from < pptr()) {
    const ssize_t written = ::write(descriptor_, from, static_cast<size_t>(pptr() - from));
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return -1;
    from += written;
  }
  setp(text_, text_ + sizeof text_);
  return 0;
}
