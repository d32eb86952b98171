#include "simulator/control_server.h"

#include <cerrno>

namespace lisim {

namespace {

constexpr std::size_t maxClients = 32;
constexpr std::size_t longestLine = 4096;
constexpr char tooLong[] = "the line is too long";
constexpr mode_t ownerOnly = 0600;

}  // namespace

std::string ControlServer::listenAt(const std::string& path) {
  std::string error = listener_.listenAt(path, SOCK_STREAM, ownerOnly);
  if (error.empty()) loop_.watch(listener_.descriptor(), [this] { acceptClient(); });
  return error;
}

void ControlServer::acceptClient() {
  Descriptor socket = listener_.accept();
  if (!socket.valid() || clients_.size() >= maxClients) return;
  const unsigned id = ++lastId_;
  loop_.watch(socket.get(), [this, id] { readLines(id); });
  clients_[id].socket = std::move(socket);
}

void ControlServer::readLines(unsigned id) {
  char text[1024];
  const ssize_t got = recv(clients_[id].socket.get(), text, sizeof text, 0);
  if (got < 0 && (errno == EAGAIN || errno == EINTR)) return;
  std::string& pending = clients_[id].pending;
  if (got > 0) {
    pending.append(text, static_cast<std::size_t>(got));
    answerLines(id);
    return;
  }
  // The last line counts also without its end.
  if (got == 0 && !pending.empty()) pending += '\n';
  if (answerLines(id)) drop(id);
}

// Answers every whole line; false when the client is gone.
bool ControlServer::answerLines(unsigned id) {
  std::string& pending = clients_[id].pending;
  for (auto end = pending.find('\n'); end != pending.npos; end = pending.find('\n')) {
    const std::string line = pending.substr(0, end);
    pending.erase(0, end + 1);
    if (!answer(id, line)) return false;
  }
  if (pending.size() <= longestLine) return true;
  send(id, std::string("error: ") + tooLong + "\n");
  if (clients_.contains(id)) drop(id);
  return false;
}

bool ControlServer::answer(unsigned id, const std::string& line) {
  const Reply reply = line.size() > longestLine ? Reply{"", tooLong} : runner_.run(line, "control");
  return send(id, reply.lines + (reply.error.empty() ? "ok\n" : "error: " + reply.error + "\n"));
}

bool ControlServer::send(unsigned id, const std::string& text) {
  const ssize_t sent =
      ::send(clients_[id].socket.get(), text.data(), text.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
  if (sent == static_cast<ssize_t>(text.size())) return true;
  drop(id);
  return false;
}

void ControlServer::drop(unsigned id) {
  loop_.unwatch(clients_[id].socket.get());
  clients_.erase(id);
}

}  // namespace lisim
