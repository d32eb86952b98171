#include "foundation/odlog.h"

#include "foundation/write_all.h"

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
  if (!writeAll(descriptor_, {pbase(), pptr()})) return -1;
  setp(text_, text_ + sizeof text_);
  return 0;
}
