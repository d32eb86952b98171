// odsect: reads, writes and lists what a file of sections holds, for scripts and for looking.
#include <arpa/inet.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sysexits.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "platform/names.h"
#include "store/section.h"
#include "store/section_internal.h"

namespace {

constexpr char usageText[] =
    "usage: odsect FILE get SECTION KEY [TYPE] [--length N] [--next K]\n"
    "       odsect FILE set SECTION KEY VALUE [TYPE] [--length N] [--next K]\n"
    "       odsect FILE list\n"
    "TYPE is char, short, int, long, hex, string (the default) or ipaddr.\n"
    "  --length N  bytes of a hex or string value, with the terminator of a string\n"
    "  --next K    go on to the next text of the section K times first\n"
    "  --          what stands behind is no option\n";

// The exit status.
enum Status {
  done = 0,
  emptyValue = 1,
  keyTrouble = 2,  // a key that is missing, or a value that was not written
  notOpened = 3,
  wrongUsage = EX_USAGE,
  noOutput = EX_IOERR,
};

struct TypeRow {
  std::string_view name;
  ValueType type;
  int length;  // bytes to read, where no other number is given
  long least;  // the range of a number
  long most;
};

template <class Integer>
constexpr TypeRow numberType(std::string_view name, ValueType type) {
  using Limits = std::numeric_limits<Integer>;
  return {name, type, sizeof(Integer), Limits::min(), Limits::max()};
}

constexpr TypeRow types[] = {numberType<std::int8_t>("char", T_CHAR),
                             numberType<std::int16_t>("short", T_SHORT),
                             numberType<std::int32_t>("int", T_INT),
                             numberType<std::int32_t>("long", T_LONG),
                             {"hex", T_HEX, 13, 0, 0},
                             {"string", T_STRING, 255, 0, 0},
                             {"ipaddr", T_IPADDR, 4, 0, 0}};

// What the command line asks for. The words are those of main.
struct Request {
  const char* file = nullptr;
  std::vector<const char*> operands;
  const TypeRow* type = nullptr;
  int length = 0;  // 0 for none given
  int next = 0;
  std::FILE* out = nullptr;
};

bool hasLength(const Request& request) {
  return request.length > 0 && (request.type->type == T_HEX || request.type->type == T_STRING);
}

// A whole word as a decimal number.
bool readNumber(std::string_view word, long least, long most, long& number) {
  const char* end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, number);
  return error == std::errc() && stop == end && number >= least && number <= most;
}

std::string copyFolder() {
  const std::string directory = atmDirectory;
  return directory.substr(0, directory.rfind('/'));
}

// Whether this user may make copies in the folder; says so if not.
bool folderTakesCopies(const char* file) {
  const std::string folder = copyFolder();
  if (access(folder.c_str(), W_OK) == 0) return true;
  std::fprintf(stderr, "odsect: %s: the changed copy is made in %s: %s\n", file, folder.c_str(),
               std::strerror(errno));
  return false;
}

// A file is rewritten by way of a copy beside the program's own directory, from where no rename
// reaches a file on another file system. Whoever changes one there will not know that.
void explainCommit(const char* file) {
  const std::string folder = copyFolder();
  struct stat own, other;
  if (stat(file, &own) != 0 || stat(folder.c_str(), &other) != 0 || own.st_dev == other.st_dev) {
    return;
  }
  std::fprintf(stderr,
               "odsect: %s is not on the file system of %s, where the changed copy is made, so the "
               "copy can't take its place\n",
               file, folder.c_str());
}

// The library has told what file it can't open, and says nothing of a section.
void explainOpening(const Request& request, int flags) {
  if (access(request.file, R_OK) != 0) return;
  if ((flags & sectWrite) != 0 && !folderTakesCopies(request.file)) return;
  std::fprintf(stderr, "odsect: %s: no section %s%s\n", request.file, request.operands[0],
               request.next > 0 ? " so often" : "");
}

// The section, or null with a message.
SectOwner openAt(const Request& request, int flags) {
  SectOwner handle(OpenSection(request.file, request.operands[0], flags));
  for (int i = 0; handle && i < request.next; ++i) {
    if (OpenNextSection(handle.get()) == nullptr) handle.reset();
  }
  if (!handle) explainOpening(request, flags);
  return handle;
}

// Of a hex value only the bytes that are there.
std::string valueText(const Request& request, SectHandle* handle, std::string& bytes) {
  const TypeRow& type = *request.type;
  int length = static_cast<int>(bytes.size());
  if (type.type == T_HEX) {
    const char* value = FindKey(handle, request.operands[1]);
    length = SectHexDecode(SectValueAt(handle, value, T_HEX),
                           reinterpret_cast<unsigned char*>(bytes.data()), length);
  }
  return SectFormatValue(bytes.data(), type.type, length);
}

Status getKey(const Request& request) {
  const SectOwner handle = openAt(request, sectRead);
  if (!handle) return notOpened;
  const int length = hasLength(request) ? request.length : request.type->length;
  std::string bytes(static_cast<std::size_t>(length), '\0');
  const char* key = request.operands[1];
  const int result = ReadKey(handle.get(), key, bytes.data(), request.type->type, length);
  if (result == 1) return emptyValue;
  if (result != 0) {
    std::fprintf(stderr, "odsect: %s: no key %s in %s\n", request.file, key, request.operands[0]);
    return keyTrouble;
  }
  std::fprintf(request.out, "%s\n", valueText(request, handle.get(), bytes).c_str());
  return done;
}

// The value's bytes as WriteKey takes them; false, with a message, if it is no such value.
bool numberBytes(const TypeRow& type, const char* value, std::string& bytes) {
  long number = 0;
  if (!readNumber(value, type.least, type.most, number)) {
    std::fprintf(stderr, "odsect: '%s' is no number from %ld to %ld\n", value, type.least,
                 type.most);
    return false;
  }
  const auto byte = static_cast<std::int8_t>(number);
  const auto half = static_cast<std::int16_t>(number);
  const auto word = static_cast<std::int32_t>(number);
  const void* source = type.type == T_CHAR    ? static_cast<const void*>(&byte)
                       : type.type == T_SHORT ? static_cast<const void*>(&half)
                                              : &word;
  bytes.assign(static_cast<const char*>(source), static_cast<std::size_t>(type.length));
  return true;
}

bool hexBytes(std::string_view value, std::string& bytes) {
  bytes.resize(value.size() / 2);
  const int decoded = SectHexDecode(value, reinterpret_cast<unsigned char*>(bytes.data()),
                                    static_cast<int>(bytes.size()));
  if (value.size() % 2 == 0 && static_cast<std::size_t>(decoded) == bytes.size()) return true;
  std::fprintf(stderr, "odsect: '%s' is not pairs of hexadecimal digits\n", value.data());
  return false;
}

bool addressBytes(const char* value, std::string& bytes) {
  bytes.resize(4);
  if (inet_pton(AF_INET, value, bytes.data()) == 1) return true;
  std::fprintf(stderr, "odsect: '%s' is no address such as 192.168.1.7\n", value);
  return false;
}

bool valueBytes(const Request& request, std::string& bytes) {
  const char* value = request.operands[2];
  const auto length = static_cast<std::size_t>(request.length);
  switch (request.type->type) {
    case T_HEX:
      if (!hexBytes(value, bytes)) return false;
      if (length > 0) bytes.resize(length);
      return true;
    case T_STRING:
      bytes.assign(value);
      bytes.resize(length > 0 ? length : bytes.size() + 1);
      return true;
    case T_IPADDR:
      return addressBytes(value, bytes);
    default:
      return numberBytes(*request.type, value, bytes);
  }
}

Status setKey(const Request& request) {
  std::string bytes;
  if (!valueBytes(request, bytes)) return keyTrouble;
  SectOwner handle = openAt(request, sectWrite);
  if (!handle) return notOpened;
  const char* key = request.operands[1];
  const bool written = WriteKey(handle.get(), key, bytes.data(), request.type->type,
                                static_cast<int>(bytes.size())) == 0;
  const bool committed = CommitSection(handle.release()) == 0;
  if (written && committed) return done;
  std::fprintf(stderr, "odsect: %s: key %s not written\n", request.file, key);
  if (!committed) explainCommit(request.file);
  return keyTrouble;
}

Status listSections(const Request& request) {
  std::vector<std::string> paths;
  if (!SectListPaths(request.file, paths)) return notOpened;
  for (const std::string& path : paths) std::fprintf(request.out, "%s\n", path.c_str());
  return done;
}

// The operands that a command needs, and whether a type may stand behind them.
constexpr struct Command {
  std::string_view name;
  std::size_t operands;
  bool typed;
  Status (*run)(const Request&);
} commands[] = {
    {"get", 2, true, getKey}, {"set", 3, true, setKey}, {"list", 0, false, listSections}};

const TypeRow* findType(std::string_view name) {
  const auto* row = std::ranges::find(types, name, &TypeRow::name);
  return row == std::end(types) ? nullptr : row;
}

// Sorts the words behind the command. Only the options' whole names are no operands, so that keys
// and values may start as options do.
bool readWords(char** words, const Command& command, Request& request) {
  struct {
    std::string_view name;
    int& figure;
    long least;
    long most;
  } const options[] = {{"--length", request.length, 1, sectDataBytes},
                       {"--next", request.next, 0, std::numeric_limits<int>::max()}};
  bool optionsEnd = !command.typed;
  for (; *words != nullptr; ++words) {
    const std::string_view word = *words;
    const auto* option = std::ranges::find_if(options, [&](auto& o) { return o.name == word; });
    if (optionsEnd || (option == std::end(options) && word != "--")) {
      request.operands.push_back(*words);
    } else if (word == "--") {
      optionsEnd = true;
    } else {
      long figure = 0;
      const char* text = *++words;
      if (text == nullptr || !readNumber(text, option->least, option->most, figure)) return false;
      option->figure = static_cast<int>(figure);
    }
  }
  return true;
}

// Takes the type from behind the operands, and checks how many there are.
bool takeType(const Command& command, Request& request) {
  request.type = findType("string");
  if (command.typed && request.operands.size() == command.operands + 1) {
    request.type = findType(request.operands.back());
    request.operands.pop_back();
  }
  return request.type != nullptr && request.operands.size() == command.operands;
}

Status run(int argc, char** argv, std::FILE* out) {
  if (argc == 2 && std::string_view(argv[1]) == "--help") {
    std::fputs(usageText, out);
    return done;
  }
  Request request;
  request.out = out;
  if (argc >= 3) {
    request.file = argv[1];
    const auto* command = std::ranges::find(commands, argv[2], &Command::name);
    if (command != std::end(commands) && readWords(argv + 3, *command, request) &&
        takeType(*command, request)) {
      return command->run(request);
    }
  }
  std::fputs(usageText, stderr);
  return wrongUsage;
}

// Values alone go to standard output. The section library tells its troubles there too, so it is
// given standard error in its place, line by line to stay in order with the messages of this file.
std::FILE* divertMessages() {
  std::FILE* out = fdopen(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1), "w");
  dup2(STDERR_FILENO, STDOUT_FILENO);
  setvbuf(stdout, nullptr, _IOLBF, BUFSIZ);
  return out;
}

// A standard descriptor that is closed would go to the next file that is opened, and messages into
// that file. Writing to what takes its place fails, as it does to a closed one.
void fillStandardDescriptors() {
  int descriptor = open("/dev/null", O_RDONLY);
  while (descriptor >= 0 && descriptor <= STDERR_FILENO) descriptor = open("/dev/null", O_RDONLY);
  if (descriptor >= 0) close(descriptor);
}

}  // namespace

int main(int argc, char** argv) {
  fillStandardDescriptors();
  std::FILE* out = divertMessages();
  if (out != nullptr) {
    const Status status = run(argc, argv, out);
    const bool failed = std::ferror(out) != 0;
    if (std::fclose(out) == 0 && !failed) return status;
  }
  std::perror("odsect: standard output");
  return noOutput;
}
