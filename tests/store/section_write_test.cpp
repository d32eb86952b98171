#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstring>

#include "store/section.h"
#include "store_fixture.h"

namespace {

using testing::HasSubstr;

std::string temporaryName() {
  char name[64];
  std::snprintf(name, sizeof name, "./etc/atmOD%x", static_cast<unsigned>(getpid()));
  return name;
}

int setText(SectHandle* handle, const char* key, std::string text) {
  return WriteKey(handle, key, text.data(), T_STRING, static_cast<int>(text.size()) + 1);
}

class SectionWrite : public StoreTest {
 protected:
  void TearDown() override {
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::symlink_status(temporaryName())));
  }

  static SectOwner open(const char* path) {
    return SectOwner(OpenSection(config, path, sectWrite));
  }

  // What the file holds after a text was set in the section of the path; the messages go unseen.
  static std::string afterSet(const std::string& file, const char* path, const char* key,
                              const std::string& text, int result = 0) {
    writeConfig(file);
    printed([&] {
      const SectOwner handle = open(path);
      ASSERT_TRUE(handle) << file;
      EXPECT_EQ(setText(handle.get(), key, text), result) << file << text;
    });
    return read(config);
  }
};

TEST_F(SectionWrite, ChangesAValueInPlace) {
  struct {
    const char* before;
    const char* text;
    const char* after;
  } const rows[] = {
      {"K=1\n", "22", "K=22\n"},
      {"\tK \t= old one  # c\r\n", "new", "\tK \t= new  # c\r\n"},
      {"K = a#c\n", "b", "K = b #c\n"},
      {"K = a#c\n", "a", "K = a#c\n"},
      {"K =#c\n", "a", "K = a #c\n"},
      {"K = \n", "a", "K = a\n"},
      {"K =   \n", "a", "K =   a\n"},
      {"K =\n", "", "K =\n"},
      {"K = a b \n", "", "K =  \n"},
      {"K = a\tb\n", "c", "K = c\tb\n"},
      {"K = a \n", "  a   ", "K = a \n"},
      {"K = \xe9 z\n", "\xfc  \xa0", "K = \xfc  \xa0\n"},
      {"K = a]b\n", "a]b", "K = a]b\n"},
      {"# K = 0\nL = 1\nK = 1\nK = 2\n", "3", "# K = 0\nL = 1\nK = 3\nK = 2\n"},
  };
  for (const auto& row : rows) {
    const std::string head = "#\n[A # x\n", tail = "[B\nK = b\n]\nK = 9\n] # end\n";
    EXPECT_EQ(afterSet(head + row.before + tail, "/A", "K", row.text), head + row.after + tail);
  }
}

TEST_F(SectionWrite, FormatsByType) {
  const std::tuple<const char*, int, int, const char*> rows[] = {
      {"\xfe", T_CHAR, 1, "-2"},
      {"\xfe\xff", T_SHORT, 2, "-2"},
      {"\x78\x56\x34\x12", T_INT, 0, "305419896"},
      {"\xff\xff\xff\xff", T_LONG, 4, "-1"},
      {"\x0a\xf1", T_HEX, 2, "0af1"},
      {"\xc0\x01\x02\xff", T_IPADDR, 4, "192.1.2.255"},
      {"ab c", T_STRING, 5, "ab c"},
      {"ab c", T_STRING, 3, "ab"},
      {"ab c", T_STRING, 1, ""},
      {"ab c", T_STRING, 0, ""},
  };
  for (const auto& [bytes, type, len, text] : rows) {
    writeConfig("[A\nK = old words\n]\n");
    char value[8] = {};
    std::string(bytes).copy(value, sizeof value);
    EXPECT_EQ(WriteKey(open("/A").get(), "K", value, type, len), 0);
    const std::string rest = type == T_STRING ? "" : " words";
    EXPECT_EQ(read(config), "[A\nK = " + std::string(text) + rest + "\n]\n");
    EXPECT_TRUE(type != T_STRING || len == 0 || value[len - 1] == '\0') << "the caller's text";
  }
  char value[4] = {};
  const SectOwner handle = open("/A");
  EXPECT_EQ(WriteKey(handle.get(), "K", value, T_HEX, 0), -1);
  EXPECT_EQ(WriteKey(handle.get(), "K", value, 8, 4), -1);
  EXPECT_EQ(WriteKey(nullptr, "K", value, T_INT, 4), -1);
}

TEST_F(SectionWrite, AddsALineForANewKey) {
  const std::string value250(250, 'v');
  struct {
    std::string before;
    const char* path;
    const char* key;
    std::string after;
  } const rows[] = {
      {"[A\n]\n", "/A", "K", "[A\n\tK \t\t\t\t= v\n]\n"},
      {"[A\n\tL = 1\n\t]\n", "/A", "SixInt", "[A\n\tL = 1\n\tSixInt \t\t\t\t= v\n\t]\n"},
      {"[A\n]\n", "/A", "SevenIn", "[A\n\tSevenIn \t\t\t= v\n]\n"},
      {"[A\n]\n", "/A", "KeyOfThirtyOneCharactersInAll31",
       "[A\n\tKeyOfThirtyOneCharactersInAll31 = v\n]\n"},
      {"[A\n[B\n[C\n]\n]\n]\n", "/A/B", "K", "[A\n[B\n\t\tK \t\t\t= v\n[C\n]\n]\n]\n"},
      {"[A\nL = 1 # [x]\nK = 2\n]\n", "/A", "K", "[A\n\tK \t\t\t\t= v\nL = 1 # [x]\nK = 2\n]\n"},
      {"[A\nL = 1", "/A", "K", "[A\nL = 1\n\tK \t\t\t\t= v\n"},
      {"[A", "/A", "K", "[A\n\tK \t\t\t\t= v\n"},
      {"[A/B\n]]\n]\n", "", "K", "[A/B\n]]\nK \t\t\t\t\t= v\n]\n"},
      {"[A\nL = " + value250 + value250 + " ]\n", "/A", "K",
       "[A\n\tK \t\t\t\t= v\nL = " + value250 + value250 + " ]\n"},
      {"[A #!" + value250 + "]x\n]\n", "/A", "K",
       "[A #!" + value250 + "\n\tK \t\t\t\t= v\n]x\n]\n"},
  };
  for (const auto& row : rows) EXPECT_EQ(afterSet(row.before, row.path, row.key, "v"), row.after);
}

TEST_F(SectionWrite, CreatesSections) {
  struct {
    const char* before;
    const char* path;
    const char* after;  // null where none can be created
  } const rows[] = {
      {"[A\nL = 1\n]\n# end", "/A/B", "[A\nL = 1\n\t[B\n\t\tK \t\t\t= v\n\t]\n]\n# end"},
      {"[A\n\t[C\n\t]\n\t] # a\n[A\n]\n", "/A/B",
       "[A\n\t[C\n\t]\n\t[B\n\t\tK \t\t\t= v\n\t]\n\t] # a\n[A\n]\n"},
      {"[A\n[C\n]\n]\n", "/A/C/B", "[A\n[C\n\t\t[B\n\t\t\tK \t\t= v\n\t\t]\n]\n]\n"},
      {"[A\n[C\n]] ]\n", "/A/B", "[A\n[C\n]\n\t[B\n\t\tK \t\t\t= v\n\t]\n] ]\n"},
      {"[A = 1 ]\n", "/A1/B", "[A = 1 \n\t[B\n\t\tK \t\t\t= v\n\t]\n]\n"},
      {"[A\nL = 1 ]", "/A/B", "[A\nL = 1 \n\t[B\n\t\tK \t\t\t= v\n\t]\n]"},
      {"[A]\n", "/A]/B", nullptr},
      {"[A\n[C x\n]\n]\n", "/A/B", nullptr},
      {"[A\n]\n", "/B", nullptr},
      {"[A\n]\n]\n", "/B", "[A\n]\n[B\n\tK \t\t\t\t= v\n]\n]\n"},
      {"[A/B\n]]\n]\n", "/C", "[A/B\n]]\n[C\nK \t\t\t\t\t= v\n]\n]\n"},
      {"[A\n]\n", "/B/C", nullptr},
      {"[A\n[C\n]\n", "/A/B", nullptr},
      {"[A\n]\n", "B", nullptr},
      {"[A\n]\n", "/A/B C", nullptr},
      {"[A ]\n", "/B", nullptr},
      {"", "/A", nullptr},
  };
  for (const auto& row : rows) {
    writeConfig(row.before);
    printed([&] {
      const SectOwner handle = open(row.path);
      ASSERT_EQ(handle != nullptr, row.after != nullptr) << row.before << row.path;
      EXPECT_EQ(handle ? setText(handle.get(), "K", "v") : 0, 0);
      EXPECT_EQ(OpenNextSection(handle.get()), nullptr);
    });
    EXPECT_EQ(read(config), row.after != nullptr ? row.after : row.before);
    if (row.after == nullptr) continue;
    EXPECT_EQ(afterSet(row.after, row.path, "K", "v"), row.after);
  }
  const std::string path = "/A/" + std::string(125, 'n');
  EXPECT_EQ(printed([&] { EXPECT_FALSE(open(path.c_str())); }),
            "CreateSection: Section Name Exceeds Buffer\n");
}

TEST_F(SectionWrite, EditsLaterTextOfThePath) {
  writeConfig("[A\nK = 1\n[B\n]\nK = 2\n]\n[A\nK = 3\n]\n# end\n");
  SectOwner handle = open("/A");
  for (const char* text : {"x", "yy", "z"}) {
    EXPECT_EQ(setText(handle.get(), "K", text), 0);
    EXPECT_EQ(OpenNextSection(handle.get()), *text == 'z' ? nullptr : handle.get());
  }
  printed([&] { EXPECT_EQ(setText(handle.get(), "K", "past the end"), -1); });
  handle.reset();
  EXPECT_EQ(read(config), "[A\nK = x\n[B\n]\nK = yy\n]\n[A\nK = z\n]\n# end\n");
}

TEST_F(SectionWrite, RefusesWhatWouldLoseSomething) {
  const std::string comment = "K = 1 # " + std::string(245, '.') + "]";
  struct {
    std::string file;
    std::string key;
    std::string text;
    const char* why;
  } const rows[] = {
      {"[A\n]\n", "K", "a#b", "Bad Character In Value"},
      {"[A\n]\n", "K", "a]", "Bad Character In Value"},
      {"[A\nK = 1\n]\n", "K", "a\nb", "Bad Character In Value"},
      {"[A\n]\n", "K", std::string(255, 'v'), "Value Exceeds Buffer"},
      {"[A\n]\n", std::string(128, 'k'), "1", "Key Exceeds Buffer"},
      {"[A\n[B = 1\n]\n]\n", "[B", "2", "Bad Character In Key"},
      {"[A\n]\n", "", "2", "Bad Character In Key"},
      {"[A\nK = 1 ]\n", "K", "2", "Bracket In Old Value"},
      {"[A\nK = a\tb\n]\n", "K", "", "Text Behind The Value"},
      {"[A\nK [B = 1\n]\n]\n", "K", "2", "Head In Front Of The Value"},
      {"[A\nL = K # c\n]\n", "K", "1", "Key Hidden By A Value"},
      {"[A\nL = 1\n" + comment + "\n]\n", "K", "12", "Line Exceeds Buffer"},
      {"[A\n" + std::string(5473, '#') + "\n]\n", "K", "1", "Buffer Exceeded"},
      {"[A\nK = 1\n" + std::string(5467, '#') + "\n]\n", "K", "12", "Buffer Exceeded"},
      {"[A\nK = 1\n" + std::string(5473, '#') + "\n]\n", "K", "2", "Section Exceeds Buffer"},
      {"[A = 1 ]\n[B\nK = 1\n]\n", "K", "1", "Section Shares The Line Of Its Head"},
  };
  for (const auto& row : rows) {
    writeConfig(row.file);
    const char* path = row.file[2] == ' ' ? "/A1" : "/A";
    const std::string text = printed([&] {
      const SectOwner handle = open(path);
      EXPECT_EQ(setText(handle.get(), row.key.c_str(), row.text), -1) << row.why;
    });
    EXPECT_THAT(text, HasSubstr(std::string("WriteKey: ") + row.why + " key=" + row.key));
    EXPECT_EQ(read(config), row.file);
  }
  for (const char* file : {"[A\nK = 1", "[A\nK = 1 ", "[A\nK ="}) {
    EXPECT_EQ(afterSet(file, "/A", "K", "2", -1), file) << "a value at the very end";
  }
  EXPECT_EQ(afterSet("[A\nK = 1\t", "/A", "K", "", -1), "[A\nK = 1\t");
}

TEST_F(SectionWrite, FillsASectionToTheByte) {
  const std::string full = "[A\nK = 1\n" + std::string(5466, '#') + "\n]\n";
  EXPECT_EQ(afterSet(full, "/A", "K", "12").size(), full.size() + 1);
  writeConfig("[A\n]\n");
  printed([] {
    const SectOwner handle = open("/A/B");
    int keys = 0;
    while (setText(handle.get(), ("Key" + std::to_string(keys)).c_str(), "value") == 0) ++keys;
    EXPECT_GT(keys, 200);
  });
  EXPECT_EQ(printed([] { EXPECT_TRUE(open("/A/B")); }), "") << "what was written can be read";
  const std::string file = "[A\nK = 1\n]\n[A\nL = 1\n" + std::string(5476, '.') + "\n]\n[B\n]\n";
  writeConfig(file);
  printed([] {
    const SectOwner handle = open("/A");
    EXPECT_EQ(setText(handle.get(), "K", "2"), 0);
    EXPECT_EQ(OpenNextSection(handle.get()), nullptr);
    EXPECT_EQ(setText(handle.get(), "L", "2"), -1);
  });
  EXPECT_EQ(read(config), std::string(file).replace(7, 1, "2")) << "nothing is cut off";
}

TEST_F(SectionWrite, LeavesTheFileAloneUnlessAKeyWasWritten) {
  writeConfig("[A\nK = 1\n]\n");
  ASSERT_EQ(chmod(config, 0640), 0);
  const auto longAgo = std::filesystem::file_time_type{} + std::chrono::hours(24);
  std::filesystem::last_write_time(config, longAgo);
  printed([] {
    { const SectOwner handle = open("/A"); }
    { const SectOwner handle = open("/A/B"); }
    EXPECT_EQ(setText(open("/A").get(), "K", "#"), -1);
    EXPECT_FALSE(open("/C"));
  });
  EXPECT_EQ(std::filesystem::last_write_time(config), longAgo);
  EXPECT_EQ(setText(open("/A").get(), "K", "2"), 0);
  EXPECT_NE(std::filesystem::last_write_time(config), longAgo);
  struct stat status;
  ASSERT_EQ(stat(config, &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
  if (getuid() != 0) return;
  ASSERT_EQ(chown(config, 12, 34), 0);
  EXPECT_EQ(setText(open("/A").get(), "K", "3"), 0);
  ASSERT_EQ(stat(config, &status), 0);
  EXPECT_EQ(status.st_uid, 12u);
  EXPECT_EQ(status.st_gid, 34u);

  std::filesystem::permissions(".", std::filesystem::perms(0755));
  for (const char* name : {"etc", "etc/atm"}) ASSERT_EQ(chown(name, 56, 78), 0);
  ASSERT_EQ(chmod(config, 0604), 0);
  ASSERT_EQ(seteuid(56), 0);
  EXPECT_EQ(setText(open("/A").get(), "K", "4"), 0);
  ASSERT_EQ(seteuid(0), 0);
  ASSERT_EQ(stat(config, &status), 0);
  EXPECT_EQ(status.st_uid, 56u) << "who may not give the file away keeps it";
  EXPECT_EQ(status.st_mode & 07777, 0604u);
  EXPECT_EQ(read(config), "[A\nK = 4\n]\n");
}

TEST_F(SectionWrite, TakesOnlyAPlainFileForItsLeftover) {
  const std::string file = "[A\nK = 1\n]\n", name = temporaryName();
  write("here", file);
  EXPECT_EQ(setText(SectOwner(OpenSection("here", "/A", sectWrite)).get(), "K", "2"), 0);
  EXPECT_EQ(read("here"), "[A\nK = 2\n]\n") << "a file without a folder in its name";
  const std::string message = "OpenSection: Error Opening File " + name + "\n";
  writeConfig(file);
  write("victim", "precious");
  std::filesystem::create_symlink("../victim", name);
  EXPECT_EQ(printed([] { EXPECT_FALSE(open("/A")); }), message);
  std::filesystem::remove(name);
  std::filesystem::create_directory(name);
  EXPECT_EQ(printed([] { EXPECT_FALSE(open("/A")); }), message);
  std::filesystem::remove(name);
  EXPECT_EQ(read("victim"), "precious");
  EXPECT_EQ(read(config), file);
  write(name, "left by a crash");
  const SectOwner handle = open("/A");
  EXPECT_TRUE(handle);
  EXPECT_EQ(printed([] { EXPECT_FALSE(open("/A")); }), message) << "one writer at a time";
}

TEST_F(SectionWrite, TroubleLeavesTheOldFile) {
  std::string file = "[A\nK = 1\n]\n";
  writeConfig(file);
  SectOwner handle = open("/A");
  EXPECT_EQ(setText(handle.get(), "K", "2"), 0);
  std::filesystem::remove(config);
  std::filesystem::create_directory(config);
  EXPECT_EQ(printed([&] { EXPECT_EQ(CommitSection(handle.release()), -1); }),
            "CloseSection: Rename Error\n\n");
  EXPECT_EQ(printed([] { EXPECT_FALSE(open("/A")); }),
            "OpenSection: Error Opening File ./etc/atm/odconf\n");
  std::filesystem::remove(config);

  writeConfig(file);
  handle = open("/A");
  EXPECT_EQ(setText(handle.get(), "K", "2"), 0);
  std::filesystem::rename("etc", "moved");
  EXPECT_EQ(printed([&] { handle.reset(); }), "CloseSection: Rename Error\n\n");
  EXPECT_EQ(printed([] { EXPECT_FALSE(open("/A")); }),
            "OpenSection: Error Opening File ./etc/atm/odconf\n");
  std::filesystem::rename("moved", "etc");
  EXPECT_EQ(read(config), file);
  EXPECT_TRUE(std::filesystem::remove(temporaryName())) << "left where it could not be found";

  const std::string name = temporaryName(), padding = std::string(70, '#') + "\n";
  for (int i = 0; i < 1000; ++i) file += padding;
  writeConfig(file + "[B\n]\n");
  const rlimit limit = {16384, RLIM_INFINITY}, none = {RLIM_INFINITY, RLIM_INFINITY};
  std::signal(SIGXFSZ, SIG_IGN);
  const std::string opening = "OpenSection: Error Writing File " + name + "\n\nCreate",
                    closing = "CloseSection: Error Writing File " + name + "\n\n";
  for (const char* path : {"/A", "/B", "/A/C"}) {
    EXPECT_EQ(printed([&] {
                setrlimit(RLIMIT_FSIZE, &limit);
                handle = open(path);
                if (handle) setText(handle.get(), "K", "2");
                handle.reset();
                setrlimit(RLIMIT_FSIZE, &none);
              }),
              path == std::string("/A") ? closing : opening + "Section" + closing.substr(12));
  }
  EXPECT_EQ(printed([&] {
              handle = open("/A");
              EXPECT_EQ(setText(handle.get(), "K", "2"), 0);
              setrlimit(RLIMIT_FSIZE, &limit);
              EXPECT_EQ(OpenNextSection(handle.get()), nullptr);
              setrlimit(RLIMIT_FSIZE, &none);
              EXPECT_EQ(setText(handle.get(), "K", "3"), -1);
              EXPECT_EQ(CommitSection(handle.release()), -1);
            }),
            "OpenNext: Error Writing File " + name +
                "\n\nReadSectData: Buffer Exceeded\nWriteKey: File Error key=K sect=\n");
  EXPECT_EQ(read(config), file + "[B\n]\n");
  if (getuid() == 0) return;
  std::filesystem::permissions("etc", std::filesystem::perms(0500));
  EXPECT_EQ(printed([] { EXPECT_FALSE(open("/A")); }),
            "OpenSection: Error Opening File " + name + "\n");
  std::filesystem::permissions("etc", std::filesystem::perms(0700));
}

}  // namespace
