#include "platform/streams.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>

#include <cerrno>
#include <chrono>

#include "platform/driver_socket.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/scripted_driver.h"

namespace {

using Bytes = std::vector<std::uint8_t>;
using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

class StreamsTest : public testing::Test {
 protected:
  ~StreamsTest() override { streams_close(session_); }

  void startDriver(ScriptedDriver::Script script) {
    driver_ = std::make_unique<ScriptedDriver>("li", std::move(script));
    session_ = streams_open("li", O_RDWR);
    ASSERT_GE(session_, 0);
  }

  // The result's error number, 0 for success.
  int exchange(Bytes& frame, int timeout = 1) {
    strioctl record{0x4C00, timeout, static_cast<int>(frame.size()),
                    reinterpret_cast<char*>(frame.data())};
    errno = 0;
    return streams_ioctl(session_, I_STR, &record) < 0 ? errno : 0;
  }
  int exchange() {
    Bytes frame(4);
    return exchange(frame);
  }

  ScratchDirectory scratch_;
  std::unique_ptr<ScriptedDriver> driver_;
  int session_ = -1;
};

TEST_F(StreamsTest, PutsTheToldWordsOnTheWire) {
  startDriver([](ScriptedDriver& driver, const WireMessage& request) { driver.reply(request); });
  EXPECT_TRUE(fcntl(session_, F_GETFD) & FD_CLOEXEC);
  Bytes frame{1, 2, 3};
  Bytes empty;
  EXPECT_EQ(exchange(frame, 7), 0);
  EXPECT_EQ(exchange(empty, -1), 0);

  const std::uint32_t expected[][5] = {
      {1, 0, O_RDWR, 0, 0}, {2, 1, 19456, 7, 3}, {2, 2, 19456, 0xFFFFFFFF, 0}};
  const auto received = driver_->received();
  ASSERT_EQ(received.size(), std::size(expected));
  for (std::size_t i = 0; i < received.size(); ++i)
    EXPECT_EQ(std::memcmp(&received[i].head, expected[i], sizeof expected[i]), 0) << i;
  EXPECT_EQ(received[1].body, frame);
}

TEST_F(StreamsTest, CopiesTheReplyOverTheFrontOfTheFrameAndNoFurther) {
  Bytes body;
  startDriver([&](ScriptedDriver& driver, WireMessage request) {
    request.body = body;
    driver.reply(request, body.size() == 2 ? ENOBUFS : 0);
  });
  Bytes frame{1, 2, 3, 4};
  body = {9, 8};
  EXPECT_EQ(exchange(frame), ENOBUFS);
  EXPECT_EQ(frame, (Bytes{9, 8, 3, 4}));
  body = {5, 6, 7, 8, 9, 10};
  EXPECT_EQ(exchange(frame), 0);
  EXPECT_EQ(frame, (Bytes{5, 6, 7, 8}));

  Bytes longest(wireMaxBody, 7);
  body.assign(wireMaxBody, 5);
  EXPECT_EQ(exchange(longest), 0);
  EXPECT_EQ(longest, body);
}

TEST_F(StreamsTest, MalformedRepliesAreProtocolErrorsAndTheSessionGoesOn) {
  struct Malformed {
    WireHead head;
    std::size_t bodyBytes;
  } malformed[] = {
      {{2, 1, 0, 0, 1}, 0},                // the length says more than there is
      {{2, 2, 0, 0, 1}, 2},                // and less
      {{1, 3, 0, 0, 0}, 0},                // the answer to an open
      {{2, 4, 0, 0, wireMaxBody}, 66000},  // cut short
  };
  startDriver([&](ScriptedDriver& driver, const WireMessage& request) {
    if (const std::size_t i = request.head.serial - 1; i < std::size(malformed))
      driver.sendHead(malformed[i].head, Bytes(malformed[i].bodyBytes));
    else if (i == std::size(malformed))
      driver.sendRaw(Bytes(19));  // less than a head
    else
      driver.reply(request);
  });
  for (std::size_t i = 0; i <= std::size(malformed); ++i) EXPECT_EQ(exchange(), EPROTO) << i;
  EXPECT_EQ(exchange(), 0);
}

TEST_F(StreamsTest, LateRepliesAreDroppedWithinTheOneLimit) {
  WireMessage late;
  startDriver([&](ScriptedDriver& driver, WireMessage request) {
    if (request.head.serial == 1) {
      late = request;
    } else if (request.head.serial == 2) {
      late.body = {0xBA, 0xD0};
      driver.reply(late, EBUSY);
      request.body = {0x60, 0x0D};
      driver.reply(request);
    } else {
      for (int i = 0; i < 8; ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        driver.reply(late);
      }
    }
  });
  Bytes frame{1, 2};
  auto start = Clock::now();
  EXPECT_EQ(exchange(frame), ETIME);
  EXPECT_EQ(frame, (Bytes{1, 2}));
  EXPECT_GE(secondsSince(start), 0.99);

  EXPECT_EQ(exchange(frame), 0);
  EXPECT_EQ(frame, (Bytes{0x60, 0x0D}));

  start = Clock::now();
  EXPECT_EQ(exchange(frame), ETIME);
  EXPECT_LT(secondsSince(start), 1.5) << "a late reply must not start the limit anew";
  driver_.reset();
}

TEST_F(StreamsTest, HangupIsToldAtOnceAndForEver) {
  startDriver([](ScriptedDriver& driver, const WireMessage&) { driver.hangUp(); });
  const auto start = Clock::now();
  for (int i = 0; i < 3; ++i) {
    Bytes frame(4);
    EXPECT_EQ(exchange(frame, -1), ENXIO);
  }
  EXPECT_LT(secondsSince(start), 5);
}

TEST_F(StreamsTest, SendingToADriverThatReadsNothingEndsToo) {
  const int listener = ScriptedDriver::listenAt("deaf");
  std::thread opener([&] { session_ = streams_open("deaf", 0); });
  const int peer = accept(listener, nullptr, nullptr);
  WireHead open{};
  EXPECT_EQ(recv(peer, &open, sizeof open, 0), 20);
  EXPECT_EQ(send(peer, &(open = {1, 0, 0, 0, 0}), sizeof open, 0), 20);
  opener.join();
  ASSERT_GE(session_, 0);

  const int smallest = 1;
  setsockopt(session_, SOL_SOCKET, SO_SNDBUF, &smallest, sizeof smallest);
  Bytes frame(1500);
  for (int i = 0; i < 4; ++i) {
    const auto start = Clock::now();
    EXPECT_EQ(exchange(frame), ETIME);
    EXPECT_LT(secondsSince(start), 1.9);
  }
  int queued = 0;
  while (recv(peer, frame.data(), frame.size(), MSG_DONTWAIT) > 0) ++queued;
  EXPECT_LT(queued, 4) << "the buffer never filled";
  close(peer);
  EXPECT_EQ(exchange(), ENXIO);
  close(listener);
}

TEST_F(StreamsTest, InterruptionsDoNotEndAWait) {
  startDriver([](ScriptedDriver& driver, const WireMessage& request) {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    driver.reply(request);
  });
  struct sigaction quiet {};
  struct sigaction before {};
  quiet.sa_handler = [](int) {};
  sigaction(SIGALRM, &quiet, &before);
  const itimerval often{{0, 20000}, {0, 20000}};
  const itimerval never{};
  setitimer(ITIMER_REAL, &often, nullptr);
  EXPECT_EQ(exchange(), 0);
  setitimer(ITIMER_REAL, &never, nullptr);
  sigaction(SIGALRM, &before, nullptr);
}

TEST_F(StreamsTest, OpenFailsAsOnADevice) {
  close(ScriptedDriver::listenAt("abandoned"));
  close(open("plain", O_CREAT | O_WRONLY, 0600));
  const ScriptedDriver refusing("refusing", {}, EACCES);
  const struct {
    std::string path;
    int error;
  } cases[] = {
      {"missing", ENOENT},  {"abandoned", ENXIO},  {"plain", ENXIO},
      {"refusing", EACCES}, {"plain/li", ENOTDIR}, {std::string(200, 'x'), ENAMETOOLONG},
  };
  for (const auto& c : cases) {
    errno = 0;
    EXPECT_EQ(streams_open(c.path.c_str(), O_RDONLY), -1) << c.path;
    EXPECT_EQ(errno, c.error) << c.path;
  }
}

TEST_F(StreamsTest, OpenEndsWhenNobodyAnswersOrEvenAccepts) {
  const int listener = ScriptedDriver::listenAt("silent", 0);
  const auto start = Clock::now();
  EXPECT_EQ(openDriverSocket("silent", 0, Deadline(1)), -1);  // now its queue is full
  EXPECT_EQ(errno, ETIME);
  EXPECT_EQ(openDriverSocket("silent", 0, Deadline(1)), -1);
  EXPECT_EQ(errno, ETIME);
  EXPECT_GE(secondsSince(start), 1.98);
  EXPECT_LT(secondsSince(start), 5);
  close(listener);
}

TEST_F(StreamsTest, WhatIsNoSessionOrNoExchangeIsRefused) {
  strioctl record{0x4C00, 1, 0, nullptr};
  EXPECT_EQ(streams_ioctl(-1, I_STR, &record), -1);
  EXPECT_EQ(errno, EBADF);
  EXPECT_EQ(streams_close(-1), -1);
  EXPECT_EQ(errno, EBADF);

  startDriver([](ScriptedDriver& driver, const WireMessage& request) { driver.reply(request); });
  for (const strioctl& bad : {strioctl{0, 1, 4, nullptr}, strioctl{0, -2, 0, nullptr},
                              strioctl{0, 1, -1, nullptr}, strioctl{0, 1, 65536, nullptr}}) {
    record = bad;
    EXPECT_EQ(streams_ioctl(session_, I_STR, &record), -1);
    EXPECT_EQ(errno, EINVAL);
  }
  EXPECT_EQ(exchange(), 0);
}

TEST_F(StreamsTest, TheLimitNobodyNamesIsFifteenSeconds) {
  EXPECT_NEAR(Deadline(0).millisecondsLeft(), 15000, 1000);
  EXPECT_EQ(Deadline(noLimit).millisecondsLeft(), -1);
  EXPECT_FALSE(Deadline(noLimit).passed());
}

}  // namespace
