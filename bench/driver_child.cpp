#include "bench/driver_child.h"

#include <sched.h>
#include <signal.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "platform/wire.h"

namespace {

constexpr sockaddr_un node{AF_UNIX, "./li"};
const auto* const nodeAddress = reinterpret_cast<const sockaddr*>(&node);

void answerMessage(std::uint8_t* message, AnswerFrame answer) {
  WireHead wire;
  std::memcpy(&wire, message, sizeof wire);
  wire.code = wire.limit = 0;
  std::memcpy(message, &wire, sizeof wire);
  if (wire.kind != wireExchange) return;
  std::uint8_t* const frame = message + sizeof wire;
  req_param_t head;
  std::memcpy(&head, frame, sizeof head);
  answer(head, frame + sizeof head);
  std::memcpy(frame, &head, sizeof head);
}

void serveSession(int session, AnswerFrame answer) {
  static std::uint8_t message[sizeof(WireHead) + wireMaxBody];
  for (ssize_t got; (got = recv(session, message, sizeof message, 0)) > 0;) {
    answerMessage(message, answer);
    send(session, message, static_cast<std::size_t>(got), MSG_NOSIGNAL);
  }
}

}  // namespace

Child::Child(const std::function<void()>& work) : pid_(fork()) {
  if (pid_ != 0) return;
  prctl(PR_SET_PDEATHSIG, SIGKILL);
  work();
  _exit(1);
}

Child::~Child() {
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
}

int listenOnNode() {
  const int listener = socket(AF_UNIX, SOCK_SEQPACKET, 0);
  if (bind(listener, nodeAddress, sizeof node) != 0 || listen(listener, 8) != 0) {
    std::perror("./li");
    std::exit(1);
  }
  return listener;
}

int connectToNode() {
  const int session = socket(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0);
  if (connect(session, nodeAddress, sizeof node) != 0) {
    std::perror("./li");
    std::exit(1);
  }
  return session;
}

void serveSessions(int listener, AnswerFrame answer) {
  signal(SIGCHLD, SIG_IGN);  // nobody waits for them
  for (int session; (session = accept(listener, nullptr, nullptr)) >= 0; close(session)) {
    if (fork() != 0) continue;
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    serveSession(session, answer);
    _exit(0);
  }
}

bool roundTrip(int socket, std::uint8_t* message, std::size_t bytes) {
  return send(socket, message, bytes, MSG_NOSIGNAL) == static_cast<ssize_t>(bytes) &&
         recv(socket, message, bytes, 0) == static_cast<ssize_t>(bytes);
}

void* sharedMemory(std::size_t bytes) {
  void* shared = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (shared == MAP_FAILED) std::abort();
  return shared;
}

void stayOnOneProcessor() {
  cpu_set_t one;
  CPU_ZERO(&one);
  CPU_SET(0, &one);
  sched_setaffinity(0, sizeof one, &one);
}
