// Text put together in a fixed buffer: an output stream that never writes past its end.
#pragma once

#include <cstddef>
#include <ostream>
#include <streambuf>

// Writes into `text`, of `size` bytes (at least 1). What does not fit is dropped and sets badbit;
// the last byte is kept for the terminator, which terminate() puts behind the text. The write
// position can be moved with seekp, as the address forms do to take back a separator.
class BoundedStream : public std::ostream {
 public:
  BoundedStream(char* text, std::size_t size) : std::ostream(nullptr), buffer_(text, size) {
    rdbuf(&buffer_);
  }

  // Ends the text at the write position and returns its start.
  const char* terminate() { return buffer_.terminate(); }

 private:
  class Buffer : public std::streambuf {
   public:
    Buffer(char* text, std::size_t size) { setp(text, text + size - 1); }
    const char* terminate() {
      *pptr() = '\0';
      return pbase();
    }

   protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir from,
                     std::ios_base::openmode) override {
      const off_type base = from == std::ios_base::cur   ? pptr() - pbase()
                            : from == std::ios_base::end ? epptr() - pbase()
                                                         : 0;
      const off_type target = base + offset;
      if (target < 0 || target > epptr() - pbase()) return pos_type(off_type(-1));
      pbump(static_cast<int>(target - (pptr() - pbase())));
      return pos_type(target);
    }
    pos_type seekpos(pos_type target, std::ios_base::openmode which) override {
      return seekoff(off_type(target), std::ios_base::beg, which);
    }
  };

  Buffer buffer_;
};
