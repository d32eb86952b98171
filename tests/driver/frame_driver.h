// A scripted driver that answers frames, and the session on it.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <sstream>

#include "driver/session.h"
#include "foundation/odlog.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/scripted_driver.h"

using Payload = std::vector<std::uint8_t>;

class FrameDriverTest : public testing::Test {
 protected:
  // Answers a frame in place: changes the head and what stands behind it; returns an errno or 0.
  using Answer = std::function<int(req_param_t& head, Payload& payload)>;

  ~FrameDriverTest() override {
    dai_close(0, session_);
    odlog.rdbuf(nullptr);
  }

  void startDriver(Answer answer) {
    driver_ = std::make_unique<ScriptedDriver>(
        "li", [answer = std::move(answer)](ScriptedDriver& driver, WireMessage request) {
          auto [head, payload] = takeApart(request);
          const int error = answer(head, payload);
          std::memcpy(request.body.data(), &head, sizeof head);
          request.body.resize(sizeof head);
          request.body.insert(request.body.end(), payload.begin(), payload.end());
          driver.reply(request, error);
        });
    ASSERT_EQ(dai_open(0, 0, &session_), 0);
  }

  struct Frame {
    req_param_t head{};
    Payload payload;
  };

  // The frames that came so far.
  std::vector<Frame> frames() {
    std::vector<Frame> frames;
    for (const WireMessage& message : driver_->received()) {
      if (message.head.kind == wireExchange) frames.push_back(takeApart(message));
    }
    return frames;
  }

  // What has been logged since.
  void captureLog() { odlog.rdbuf(log_.rdbuf()); }
  std::string log() const { return log_.str(); }

  ScratchDirectory scratch_;
  std::unique_ptr<ScriptedDriver> driver_;
  int session_ = -1;

 private:
  static Frame takeApart(const WireMessage& message) {
    Frame frame;
    std::memcpy(&frame.head, message.body.data(), sizeof frame.head);
    frame.payload.assign(message.body.begin() + sizeof frame.head, message.body.end());
    return frame;
  }

  std::ostringstream log_;
};
