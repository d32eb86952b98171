// What holds for any file, tried on generated ones. ONDRELLE_PROPERTY_FILES sets the number of each
// batch, ONDRELLE_PROPERTY_SEED the seed of the first batch's first.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <iostream>
#include <random>
#include <vector>

#include "store/section.h"
#include "store_fixture.h"

namespace {

unsigned setting(const char* name, unsigned otherwise) {
  const char* value = std::getenv(name);
  return value != nullptr ? static_cast<unsigned>(std::strtoul(value, nullptr, 10)) : otherwise;
}

// A key of the file: where it is and the characters of its value.
struct Entry {
  std::string path;
  int next;  // how often to move on from the first section of the path
  std::string key;
  std::size_t start;
  std::size_t length;
  bool touched;  // a comment stands right behind the value
};

// A file of sections and keys, well formed but laid out in every way.
class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed), crlf_(one(8)) {
    fillers();
    for (int i = 0, top = below(3) + 1; i < top; ++i) section("", i, 0);
    fillers();
    if (one(3)) text_ += "# no line end";
  }

  const std::string& text() const { return text_; }
  const std::vector<Entry>& entries() const { return entries_; }

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool one(int in) { return below(in) == 0; }

  // A value with inner blanks and any bytes that a value may hold.
  std::string value() {
    std::string text = "v";
    for (int i = one(30) ? 200 : below(9); i > 0; --i) text += "a7 \"\x80\xe9\xff=;"[below(9)];
    return text + 'w';
  }

 private:
  void blanks() {
    for (int i = below(4); i > 0; --i) text_ += one(3) ? '\t' : ' ';
  }
  void lineEnd() { text_ += crlf_ ? "\r\n" : "\n"; }
  void comment(const char* filling) {
    text_ += '#';
    const std::string words(filling);
    for (int i = one(20) ? 300 : below(12); i > 0; --i) {
      text_ += words[static_cast<std::size_t>(below(static_cast<int>(words.size())))];
    }
  }
  void fillers() {
    for (int i = below(3); i > 0; --i) {
      blanks();
      if (one(2)) comment(" =x\xfc#");
      lineEnd();
    }
  }

  void key(const std::string& path, int next, int number) {
    blanks();
    const std::string name = "Key" + std::to_string(next) + "_" + std::to_string(number);
    text_ += name;
    blanks();
    text_ += "= ";
    const std::string old = one(8) ? "" : value();
    entries_.push_back({path, next, name, text_.size(), old.size(), false});
    text_ += old;
    if (!old.empty() && one(6)) text_ += "\tcut";
    if (one(2)) {
      if (one(2)) text_ += one(3) && !old.empty() ? "\t" : "  ";
      Entry& entry = entries_.back();
      if (old.empty()) entry.start = text_.size();
      entry.touched = text_.size() == entry.start + old.size();
      comment(" .x\xfc#");
    }
    lineEnd();
  }
  void keys(const std::string& path, int next) {
    for (int i = 0, count = below(4); i < count; ++i) {
      fillers();
      key(path, next, i);
    }
    fillers();
  }
  void section(const std::string& parent, int number, int depth) {
    const std::string digit = std::to_string(number), path = parent + "/Sect" + digit;
    blanks();
    text_ += "[Sect";
    if (one(2)) {
      blanks();
      text_ += '=';
      blanks();
    }
    text_ += digit;
    if (one(3)) {
      text_ += " # a ] b [ c";
    }
    lineEnd();
    keys(path, 0);
    for (int i = 0, children = depth == 3 ? 0 : below(3); i < children; ++i) {
      section(path, i, depth + 1);
      keys(path, i + 1);
    }
    blanks();
    text_ += ']';
    if (one(4)) text_ += "# ] [x";
    lineEnd();
  }

  std::minstd_rand random_;
  bool crlf_;
  std::string text_;
  std::vector<Entry> entries_;
};

class SectionProperty : public StoreTest, public testing::WithParamInterface<unsigned> {
 protected:
  // Opens the text that the entry stands in, does something with it and closes it.
  template <class Action>
  static void at(const Entry& entry, Action action) {
    SectHandle* handle = OpenSection(config, entry.path.c_str(), sectWrite);
    for (int i = 0; handle != nullptr && i < entry.next; ++i) {
      ASSERT_EQ(OpenNextSection(handle), handle);
    }
    ASSERT_NE(handle, nullptr);
    action(handle);
    CloseSection(handle);
  }

  static void set(const Entry& entry, const char* key, std::string value, int result = 0) {
    at(entry, [&](SectHandle* handle) {
      EXPECT_EQ(WriteKey(handle, key, value.data(), T_STRING, static_cast<int>(value.size()) + 1),
                result);
    });
  }

  static std::string get(const Entry& entry, int result = 0) {
    std::array<char, 256> value = {};
    at(entry, [&](SectHandle* handle) {
      EXPECT_EQ(ReadKey(handle, entry.key.c_str(), value.data(), T_STRING, 256), result);
    });
    return value.data();
  }

  static ino_t configNode() {
    struct stat status = {};
    stat(config, &status);
    return status.st_ino;
  }

  // Reads, sets the same and something else, all on one file.
  static void tryEntry(const std::string& file, const Entry& entry, const std::string& value) {
    const std::string old = file.substr(entry.start, entry.length);
    const ino_t node = configNode();
    EXPECT_EQ(get(entry, old.empty() ? 1 : 0), old);
    EXPECT_EQ(configNode(), node) << "a rewrite that changes nothing";
    set(entry, entry.key.c_str(), old);
    EXPECT_EQ(read(config), file) << "setting what was there";
    set(entry, entry.key.c_str(), value);
    std::string expected = file;
    expected.replace(entry.start, entry.length, value + (entry.touched ? " " : ""));
    EXPECT_EQ(read(config), expected);
    set(entry, entry.key.c_str(), value);
    EXPECT_EQ(read(config), expected) << "setting it again";
  }

  // A key that is not there, and perhaps no section for it: some lines more, and none for the
  // second time.
  static void tryAddition(const Entry& added, const std::string& value, const char* from,
                          int lines) {
    const std::string file = read(config);
    set(added, added.key.c_str(), value);
    const std::string longer = read(config);
    EXPECT_EQ(get(added), value);
    set(added, added.key.c_str(), value);
    printed([&] { set(added, added.key.c_str(), "not[written", -1); });
    EXPECT_EQ(read(config), longer);
    const std::size_t start = longer.rfind('\n', longer.find(from)) + 1;
    std::size_t end = start;
    for (; lines > 0; --lines) end = longer.find('\n', end) + 1;
    EXPECT_EQ(longer.substr(0, start) + longer.substr(end), file);
  }
};

TEST_P(SectionProperty, EveryEditChangesItsOwnBytesOnly) {
  const unsigned files = setting("ONDRELLE_PROPERTY_FILES", 20000);
  const unsigned seed =
      setting("ONDRELLE_PROPERTY_SEED", std::random_device{}()) + GetParam() * files;
  std::cout << "seed " << seed << ", files " << files << std::endl;
  std::size_t tried = 0;
  for (unsigned i = 0; i < files && !HasFailure(); ++i) {
    Generator generator(seed + i);
    if (generator.entries().empty()) continue;
    ++tried;
    const auto count = static_cast<int>(generator.entries().size());
    const Entry entry = generator.entries()[static_cast<std::size_t>(generator.below(count))];
    SCOPED_TRACE("seed " + std::to_string(seed + i) + " key " + entry.key + " in " + entry.path);
    writeConfig(generator.text());
    tryEntry(generator.text(), entry, generator.value() + "new");
    tryAddition({entry.path, entry.next, "Added", 0, 0, false}, generator.value(), "Added", 1);
    tryAddition({entry.path + "/New", 0, "K", 0, 0, false}, generator.value(), "[New\n", 3);
  }
  EXPECT_GT(tried, files / 2);
}

INSTANTIATE_TEST_SUITE_P(Batch, SectionProperty, testing::Range(0u, 5u));

}  // namespace
