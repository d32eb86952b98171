// Fuzz target: what a driver answers. The first byte chooses between the two layers.
//
// Even: the frame's layer. This file stands in for the device, which makes thousands of replies a
// second possible; a reply is put over the front of the frame, as the messages' layer does it. Of
// the input each exchange takes a byte for how it ends, two for how much of the frame comes back,
// and that many; the steps between them take a byte each. When the input is used up the driver has
// gone.
// Odd: the messages' layer. The rest is cut into messages, each behind two bytes of length, that
// wait on a real socket when a request is sent.
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <vector>

#include "driver/queries.h"
#include "platform/driver_socket.h"
#include "platform/streams.h"
#include "require.h"

namespace {

class Input {
 public:
  void set(const std::uint8_t* data, std::size_t size) {
    data_ = data;
    left_ = size;
  }
  bool empty() const { return left_ == 0; }
  std::uint8_t byte() {
    if (empty()) return 0;
    --left_;
    return *data_++;
  }
  std::size_t word() {
    const std::size_t low = byte();
    return low | static_cast<std::size_t>(byte()) << 8;
  }
  void copyTo(void* to, std::size_t count) {
    auto* bytes = static_cast<std::uint8_t*>(to);
    for (std::size_t i = 0; i < count && !empty(); ++i) bytes[i] = byte();
  }

 private:
  const std::uint8_t* data_ = nullptr;
  std::size_t left_ = 0;
};

Input input;

}  // namespace

int streams_open(const char*, int) {
  return 3;
}

int streams_close(int) {
  return 0;
}

int streams_ioctl(int, int, strioctl* exchange) {
  errno = ENXIO;
  if (input.empty()) return -1;
  const std::uint8_t end = input.byte();
  const auto whole = static_cast<std::size_t>(exchange->ic_len);
  input.copyTo(exchange->ic_dp, input.word() % (whole + 1));
  if (end & 1)
    std::memset(exchange->ic_dp + offsetof(req_param_t, Resp), 0, 2);  // so that it counts
  errno = end;
  return (end & 6) == 6 ? -1 : 0;
}

namespace {

volatile unsigned sum;

// Every byte of an answer can be read, and it lies in the object's own frame.
void look(const reqParam& query, const void* answer, std::size_t bytes) {
  if (answer == nullptr) return;
  const auto* start = static_cast<const std::uint8_t*>(answer);
  require(start == query.data(), "an answer is the payload");
  require(query.dataOffset() + bytes <= query.capacity(), "an answer lies in the frame");
  for (std::size_t i = 0; i < bytes; ++i) sum = sum + start[i];
}

template <class Row>
void lookAtRows(const reqParam& query, const Row* rows) {
  if (rows != nullptr) look(query, rows, query.header().NRow * sizeof(Row));
}

template <class Info>
void askTable(Info& query) {
  switch (input.byte() % 5) {
    case 0:
      lookAtRows(query, query.GetTable());
      break;
    case 1:
      lookAtRows(query, query.GetTable(1, static_cast<unsigned short>(input.word())));
      break;
    case 2:
      lookAtRows(query, query.GetTable(input.byte(), input.byte(), 1, 20));
      break;
    case 3:
      lookAtRows(query, query.GetEntireTable());
      break;
    default:
      query.GetNRows(1, 2);
  }
}

template <class Info>
void askService(Info& query) {
  switch (input.byte() % 3) {
    case 0:
      if (const auto* state = query.GetState()) look(query, state, sizeof *state);
      break;
    case 1:
      if (const auto* stats = query.GetStats(1, 2)) look(query, stats, sizeof *stats);
      break;
    default:
      askTable(query);
  }
}

void askBoards(aalInfo& query) {
  switch (input.byte() % 6) {
    case 0:
      return look(query, query.GetBoardState(), sizeof(board_state));
    case 1:
      return look(query, query.GetBoardMacAddress(1), sizeof(board_mac));
    case 2:
      return look(query, query.GetAalStats(), sizeof(aal_stats));
    case 3:
      return look(query, query.GetSuniStats(0, 0), sizeof(suni_stats));
    case 4:
      return look(query, query.GetPackageRev(), packageRevBytes);
    default:
      return look(query, query.GetRLSStatus(7), sizeof(rls_status));
  }
}

void askCircuits(vccInfo& query) {
  query.GetBoardMaxVC();
  askTable(query);
  if (const vc_tbl* row = query.GetVciEntry(static_cast<unsigned short>(input.word())))
    require(reinterpret_cast<const std::uint8_t*>(row + 1) <= query.frame() + query.capacity(),
            "a circuit's row lies in the frame");
}

void askIp(ip1577Info& query) {
  if (input.byte() % 2) return askService(query);
  lookAtRows(query, query.GetPvcTable(1, static_cast<unsigned short>(input.word())));
  lookAtRows(query, query.GetEntirePvcTable());
}

void askQueries() {
  aalInfo boards(3, 0, 0);
  vccInfo circuits(3, 0, 0);
  lecInfo lec(3, 0, 0);
  lesInfo les(3, 0, 0);
  lecsInfo lecs(3, 0, 0);
  ip1577Info ip(3, 0, 0);
  sigInfo signalling(3, 0, 0);
  constexpr int mostSteps = 40;
  for (int step = 0; step < mostSteps && !input.empty(); ++step) {
    switch (input.byte() % 8) {
      case 0:
        askBoards(boards);
        break;
      case 1:
        askCircuits(circuits);
        break;
      case 2:
        askService(lec);
        break;
      case 3:
        askService(les);
        break;
      case 4:
        askService(lecs);
        break;
      case 5:
        askIp(ip);
        break;
      case 6:
        look(signalling, signalling.GetLinkState(), sizeof(sig_link_state));
        break;
      default: {
        reqParam bare(3, 17, 1, 0, 0, 24, 24, 0, 0, respUntouched);
        bare.daiRequest();
        bare.setInput(2, static_cast<unsigned short>(input.word()));
        bare.daiRequest();
        look(bare, bare.data(), 0);
      }
    }
  }
}

// A frame of its exact size, so that a byte too many is seen.
void exchangeMessages() {
  int ends[2];
  if (socketpair(AF_UNIX, SOCK_SEQPACKET, 0, ends) != 0) std::abort();
  const std::size_t bytes = 16 + input.byte();
  const auto frame = std::make_unique<std::uint8_t[]>(bytes);
  while (!input.empty()) {
    std::vector<std::uint8_t> message(input.word() % 4096);
    input.copyTo(message.data(), message.size());
    send(ends[1], message.data(), message.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  }
  shutdown(ends[1], SHUT_WR);
  const WireHead request{wireExchange, 1, 19456, 0, static_cast<std::uint32_t>(bytes)};
  constexpr int requests = 3;  // the later ones meet what the first has left
  for (int i = 0; i < requests; ++i) {
    const Deadline deadline(0);
    exchangeOnSocket(ends[0], request, {frame.get(), bytes}, deadline, Wait::byDeadline);
    require(!deadline.passed(), "what waits on the socket is all there is");
  }
  close(ends[0]);
  close(ends[1]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  input.set(data, size);
  if (input.byte() % 2) {
    exchangeMessages();
  } else {
    askQueries();
  }
  return 0;
}
