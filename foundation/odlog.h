// The diagnostic log. Every part of the program writes its lines to `odlog`; without a file
// attached, which is the normal case, an insertion costs one failed stream operation.
#pragma once

#include <ostream>
#include <streambuf>

// An output stream on a file descriptor that it does not own. Built unattached: every insertion
// fails in silence until attach() is called. Lines are ended with std::endl, which writes them out.
class LogStream : public std::ostream {
 public:
  LogStream();

  // From here on lines go to `descriptor`, which stays open for the stream's life.
  void attach(int descriptor);

 private:
  class Buffer : public std::streambuf {
   public:
    void attach(int descriptor);

   protected:
    int_type overflow(int_type c) override;
    int sync() override;

   private:
    int descriptor_ = -1;
    char text_[1024];
  };

  Buffer buffer_;
};

extern LogStream odlog;
