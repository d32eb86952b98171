// Runs the simulated driver as a process of its own in a scratch directory.
#pragma once

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

constexpr int lisimPatienceMs = 10000;

// Waits for `condition`, which is looked at every few milliseconds. False when patience ran out.
inline bool lisimWaitFor(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(lisimPatienceMs);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  return true;
}

// A field of a trace line; of a request, before the answer's.
inline std::string lisimField(const std::string& line, const std::string& name) {
  const std::size_t at = line.find(" " + name + "=");
  if (at == std::string::npos) return "";
  const std::size_t start = at + name.size() + 2;
  return line.substr(start, line.find(' ', start) - start);
}

// Waits until `descriptor` can be read, up to `milliseconds`.
inline bool lisimReadable(int descriptor, int milliseconds = lisimPatienceMs) {
  pollfd one{descriptor, POLLIN, 0};
  return poll(&one, 1, milliseconds) == 1;
}

// A connection to the Unix socket at `path`, or -1 with errno.
inline int lisimConnect(const std::string& path, int type) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  path.copy(address.sun_path, sizeof address.sun_path - 1);
  const int socket = ::socket(AF_UNIX, type | SOCK_CLOEXEC, 0);
  if (connect(socket, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0) return socket;
  close(socket);
  return -1;
}

// A directory of its own for one test, which any user may pass through; gone with the object.
class LisimScratch {
 public:
  LisimScratch() {
    std::string name = "/tmp/lisim-XXXXXX";
    path_ = mkdtemp(name.data());
    chmod(path_.c_str(), 0711);
  }
  ~LisimScratch() { std::filesystem::remove_all(path_); }
  LisimScratch(const LisimScratch&) = delete;
  LisimScratch& operator=(const LisimScratch&) = delete;

  std::string file(const std::string& name) const { return path_ + "/" + name; }
  std::string write(const std::string& name, const std::string& text) const {
    std::ofstream(file(name)) << text;
    return file(name);
  }

 private:
  std::string path_;
};

// One run of the program `lisim`. Its two outputs come back as one text.
class LisimRun {
 public:
  explicit LisimRun(std::vector<std::string> arguments) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) std::abort();
    output_ = ends[0];
    arguments.insert(arguments.begin(), ONDRELLE_BUILD_DIR "/lisim");
    std::vector<char*> words;
    for (std::string& argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    process_ = fork();
    if (process_ == 0) {
      dup2(ends[1], STDOUT_FILENO);
      dup2(ends[1], STDERR_FILENO);
      execv(words[0], words.data());
      _exit(127);
    }
    close(ends[1]);
  }
  ~LisimRun() {
    end(SIGKILL);
    close(output_);
  }
  LisimRun(const LisimRun&) = delete;
  LisimRun& operator=(const LisimRun&) = delete;

  // The next line it prints, without its end; what there is when the program ends first.
  std::string line() {
    std::string text;
    for (char c = 0; lisimReadable(output_) && read(output_, &c, 1) == 1 && c != '\n';) text += c;
    return text;
  }

  // Waits for its end, after `signal` unless that is 0. Returns the exit status, or -1 when it did
  // not exit by itself.
  int end(int signal) {
    if (process_ <= 0) return status_;
    if (signal != 0) kill(process_, signal);
    int status = 0;
    const bool ended =
        lisimWaitFor([&] { return waitpid(process_, &status, WNOHANG) == process_; });
    if (!ended) {
      kill(process_, SIGKILL);
      waitpid(process_, &status, 0);
    }
    process_ = 0;
    return status_ = ended && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  int output_ = -1;
  pid_t process_ = 0;
  int status_ = -1;
};

// A simulator that is up, with its control socket and its trace, on `scenario`'s commands.
class LisimProcess {
 public:
  explicit LisimProcess(const std::string& scenario = "")
      : run_({"--device", device(), "--control", scratch_.file("control"), "--trace",
              scratch_.file("trace"), "--scenario", scratch_.write("scenario", scenario)}) {
    readyLine_ = run_.line();
  }

  std::string device() const { return scratch_.file("li"); }
  const std::string& readyLine() const { return readyLine_; }
  LisimRun& run() { return run_; }

  // The answer to one command line on the control socket, up to its "ok" or "error: ...".
  std::string command(const std::string& line) const {
    const int socket = lisimConnect(scratch_.file("control"), SOCK_STREAM);
    const std::string text = line + "\n";
    std::string answer;
    char part[4096];
    ssize_t got = send(socket, text.data(), text.size(), MSG_NOSIGNAL);
    shutdown(socket, SHUT_WR);
    while (got > 0 && lisimReadable(socket)) {
      got = recv(socket, part, sizeof part, 0);
      if (got > 0) answer.append(part, static_cast<std::size_t>(got));
    }
    close(socket);
    return answer;
  }

  std::vector<std::string> trace() const {
    std::vector<std::string> lines;
    std::ifstream file(scratch_.file("trace"));
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    return lines;
  }

 private:
  LisimScratch scratch_;
  LisimRun run_;
  std::string readyLine_;
};
