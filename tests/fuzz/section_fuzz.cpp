// Fuzz target: sessions of the section library on any file.
//
// The input is a script, an empty line and the file. A line of the script is a step:
//
//     o2/Adapter0      open the section with the flags 2
//     g69Key           read the key as type 6 into lengths[9] bytes
//     s69Key=value     write it, of the bytes of the value
//     n                move on to the next text of the path
//     c                close; so do another `o` and the end
//     t                turn the traces on or off, which changes how lines are passed over
#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "require.h"
#include "store/section.h"
#include "tests/support/scratch_directory.h"

namespace {

namespace fs = std::filesystem;

constexpr char config[] = "./etc/atm/odconf";
constexpr int lengths[] = {0, 1, 2, 4, 7, 16, 64, 127, 250, 6000};
constexpr int mostSteps = 50;
constexpr char untouched = '.';

std::string fileText() {
  std::ifstream stream(config, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

struct Key {
  std::string name;
  int type;
  int len;

  bool operator==(const Key&) const = default;
  std::size_t width() const {
    return static_cast<std::size_t>(type == T_CHAR                                        ? 1
                                    : type == T_SHORT                                     ? 2
                                    : type == T_INT || type == T_LONG || type == T_IPADDR ? 4
                                                                                          : len);
  }
};

// A block of exactly the width, so that the address checks see one byte more.
std::unique_ptr<char[]> blockOf(const std::string& bytes) {
  std::unique_ptr<char[]> block(new char[bytes.size()]);
  bytes.copy(block.get(), bytes.size());
  return block;
}

struct Answer {
  int result;
  std::string bytes;

  bool operator==(const Answer&) const = default;
};

Answer ask(SectHandle* handle, const Key& key) {
  const std::string before(key.width(), untouched);
  const auto target = blockOf(before);
  const int result = ReadKey(handle, key.name.c_str(), target.get(), key.type, key.len);
  const Answer answer = {result, {target.get(), before.size()}};
  if (result == 1 && key.type == T_STRING && key.len > 0) {
    require(answer.bytes[0] == '\0', "an empty text empties the target");
  } else if (result != 0) {
    require(answer.bytes == before, "a target without a value keeps its own");
  } else if (key.type == T_STRING && key.len > 0) {
    require(answer.bytes.back() == '\0', "a text is terminated");
  }
  return answer;
}

// A key that was written, and what it holds in the text it stands in.
struct Written {
  int moves;
  Key key;
  Answer answer;
};

class Session {
 public:
  Session(std::string path, int flags)
      : path_(std::move(path)), writes_((flags & sectWrite) != 0), before_(fileText()) {
    handle_ = OpenSection(config, path_.c_str(), flags);
  }
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  ~Session() {
    if (handle_ != nullptr) leaveText();
    CloseSection(handle_);
    require(std::distance(fs::directory_iterator("etc"), fs::directory_iterator()) == 1,
            "no temporary file is left");
    const std::string after = fileText();
    if (!writes_ || keysWritten_ == 0) {
      require(after == before_, "nothing written, nothing changed");
      return;
    }
    if (keysWritten_ == 1) requireOneEdit(after);
    dV = !dV;
    for (const Written& written : written_) requireKept(written);
    dV = !dV;
  }

  void read(const Key& key) {
    if (handle_ != nullptr) ask(handle_, key);
  }

  void write(const Key& key, std::string value) {
    if (handle_ == nullptr) return;
    value.resize(key.width());
    const auto source = blockOf(value);
    if (WriteKey(handle_, key.name.c_str(), source.get(), key.type, key.len) != 0) return;
    ++keysWritten_;
    const bool isText = key.type == T_STRING;
    const Key asked = isText ? Key{key.name, T_STRING, sectLineBytes} : key;
    const std::string expected = isText ? textRead(value) : value;
    const Answer answer = ask(handle_, asked);
    require(answer.result == (isText && expected.empty() ? 1 : 0), "a key written is there");
    require((isText ? answer.bytes.c_str() : answer.bytes) == expected, "it reads as written");
    if (std::find(here_.begin(), here_.end(), asked) == here_.end()) here_.push_back(asked);
  }

  void next() {
    if (handle_ == nullptr) return;
    // A handle stays on a section that it has created.
    const bool stays = (handle_->rflg & (sectWrite | sectCreated)) == (sectWrite | sectCreated);
    if (!stays) leaveText();
    OpenNextSection(handle_);
    if (!stays) ++moves_;
  }

 private:
  // What a text reads as: its last byte is taken for the terminator, and blanks around it go.
  static std::string textRead(const std::string& value) {
    if (value.empty()) return "";
    std::string text = value.substr(0, value.size() - 1).c_str();
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
  }

  // Keeps what the keys hold now: a later one's value may have hidden an earlier one.
  void leaveText() {
    for (const Key& key : here_) written_.push_back({moves_, key, ask(handle_, key)});
    here_.clear();
  }

  void requireKept(const Written& written) const {
    SectHandle* handle = OpenSection(config, path_.c_str(), sectRead);
    require(handle != nullptr, "the section is found again");
    for (int i = 0; i < written.moves; ++i) OpenNextSection(handle);
    require(ask(handle, written.key) == written.answer, "the file keeps what was written");
    CloseSection(handle);
  }

  // One edit takes away a part of a value at most.
  void requireOneEdit(std::string_view after) const {
    const std::string_view before = before_;
    const auto head = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const std::string_view rest(head.first, before.end()), newRest(head.second, after.end());
    const auto tail =
        std::mismatch(rest.rbegin(), rest.rend(), newRest.rbegin(), newRest.rend()).first;
    const std::string_view removed(rest.begin(), tail.base());
    require(removed.find_first_of("\r\n\t#[]") == removed.npos, "the rest is as it was");
  }

  const std::string path_;
  const bool writes_;
  const std::string before_;
  SectHandle* handle_ = nullptr;
  int moves_ = 0;
  int keysWritten_ = 0;
  std::vector<Key> here_;
  std::vector<Written> written_;
};

void run(std::unique_ptr<Session>& session, std::string line) {
  const std::size_t written = line.size();
  line.resize(std::max<std::size_t>(written, 3), '0');
  const auto digit = [&](std::size_t i) { return static_cast<unsigned char>(line[i] - '0') % 10; };
  const std::size_t sign = std::min(line.find('=', 3), line.size());
  const Key key = {line.substr(3, sign - 3), digit(1), lengths[digit(2)]};
  if (line[0] == 'c' || line[0] == 'o') session.reset();
  if (line[0] == 'o') {
    session = std::make_unique<Session>(written > 2 ? line.substr(2) : "", digit(1));
  }
  if (line[0] == 't') dV = !dV;
  if (session == nullptr) return;
  if (line[0] == 'n') session->next();
  if (line[0] == 'g') session->read(key);
  if (line[0] == 's') session->write(key, sign < line.size() ? line.substr(sign + 1) : "");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool silent =
      std::freopen("/dev/null", "w", stdout) != nullptr && setenv("TMPDIR", "/dev/shm", 0) == 0;
  require(silent, "standard output can be silenced");
  const ScratchDirectory folder;
  fs::create_directories("etc/atm");
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t end = std::min(input.find("\n\n"), input.size());
  std::ofstream(config, std::ios::binary) << input.substr(std::min(end + 2, input.size()));
  dV = 0;
  std::istringstream script(std::string(input.substr(0, end)));
  std::unique_ptr<Session> session;
  std::string line;
  for (int steps = 0; steps < mostSteps && std::getline(script, line); ++steps) run(session, line);
  return 0;
}
