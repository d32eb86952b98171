#include "store/section.h"

#include <sys/stat.h>

#include <cstring>
#include <tuple>

#include "store/section_internal.h"
#include "store_fixture.h"

namespace {

// A key as text: "missing", "empty", or the value.
std::string value(SectHandle* handle, const char* key) {
  char text[256] = "untouched";
  switch (ReadKey(handle, key, text, T_STRING, sizeof text)) {
    case 0:
      return text;
    case 1:
      return *text == '\0' ? "empty" : "empty, but not cleared";
    default:
      return std::strcmp(text, "untouched") == 0 ? "missing" : "missing, but changed";
  }
}

class Section : public StoreTest {
 protected:
  static SectOwner open(const char* path) { return SectOwner(OpenSection(config, path, sectRead)); }

  // The key's value in the first section of the path, or "no section".
  static std::string lookUp(const char* path, const char* key) {
    const SectOwner handle = open(path);
    return handle ? value(handle.get(), key) : "no section";
  }
};

TEST_F(Section, FindsTheSectionOfAPath) {
  struct {
    const char* file;
    const char* path;
    const char* k;
  } const rows[] = {
      {"[Adapter0\nK = 1\n]\n", "/Adapter0", "1"},
      {"[Adapter = 0\nK = 1\n]\n", "/Adapter0", "1"},
      {"[Adapter\t=\t0 # first\nK = 1\n]\n", "/Adapter0", "1"},
      {"[Adapter=0\nK = 1\n]\n", "/Adapter0", "1"},
      {"[Adapter =\nK = 1\n]\n", "/Adapter", "1"},
      {"[A # x\nK = 1\n]\n", "/A", "1"},
      {"[A#x\nK = 1\n]\n", "/A", "1"},
      {"[A\r\nK = 1\r\n]\r\n", "/A", "1"},
      {"[A\nK = 1", "/A", "1"},
      {"  \t[A\n\t[B\n[C\nK = 1\n]]]", "/A/B/C", "1"},
      {"[A\n[B\n]\n]\n[B\nK = 1\n]\n", "/B", "1"},
      {"[A\n[B\nK = 1\n]\n]\n", "/B", "no section"},
      {"# [A\n[B # ]\nK = 1\n]", "/B", "1"},
      {"[\nK = 1\n]\n", "/", "1"},
      {"]]\n]\n[A\nK = 1\n]", "/A", "1"},
      {"x[A\nK = 1\n]", "/A", "1"},
      {"[A]\n[B\nK = 1\n]", "/B", "1"},
      {"[A\nK = 1\n", "/a", "no section"},
      {"[A\n[B C\nK = 1\n]\n", "/A/B", "no section"},
      {"", "/A", "no section"},
      {"[A\nL = 1\n]\n[A\nK = 1\n]\n", "/A", "missing"},
      {"[A\n[B\n]\nK = 1\n]\n", "/A", "missing"},
      {"[A\nL = 1 # [x]\nK = 1\n]\n", "/A", "missing"},
  };
  for (const auto& row : rows) {
    writeConfig(row.file);
    printed([&] { EXPECT_EQ(lookUp(row.path, "K"), row.k) << row.file << row.path; });
  }
}

TEST_F(Section, FindsKeys) {
  const std::tuple<const char*, const char*> rows[] = {
      {"K=1\n", "1"},
      {"\tK \t = \t a b  c  \t# d\n", "a b  c"},
      {"K = a#b\n", "a"},
      {"K = a\tb\n", "a"},
      {"K = \xe9\xa0\n", "\xe9\xa0"},
      {"K =\n", "empty"},
      {"K = # none\n", "empty"},
      {"K\n", "missing"},
      {"K\n= 1\n", "missing"},
      {"K x = 1\n", "1"},
      {"KK = 1\nk = 2\nK = 3\nK = 4\n", "3"},
      {"# K = 1\nK = 2\n", "2"},
      {"L = K\nK = 2\n", "2"},
      {"L = K # x\nK = 2\n", "missing"},
      {"L = 5 K = 6\n", "6"},
      {"L = 5# K = 6\n", "6"},
      {"L = 5 # K = 6\n", "missing"},
      {"K # = 6\n", "6"},
      {"== K = 6\n", "6"},
  };
  for (const auto& [data, k] : rows) {
    writeConfig(std::string("[A\n") + data + "]\n");
    EXPECT_EQ(lookUp("/A", "K"), k) << data;
  }
}

TEST_F(Section, ConvertsByType) {
  const std::tuple<const char*, int, int, int, const char*> rows[] = {
      {"-2", T_CHAR, 1, 0, "fe......"},
      {"300", T_CHAR, 1, 0, "2c......"},
      {"-2", T_SHORT, 2, 0, "feff...."},
      {"65537", T_SHORT, 2, 0, "0100...."},
      {"305419896", T_INT, 4, 0, "78563412"},
      {"-1 7", T_LONG, 4, 0, "ffffffff"},
      {"12x", T_INT, 4, 0, "0c000000"},
      {"x", T_INT, 4, 0, "00000000"},
      {"0aF1", T_HEX, 4, 0, "0af1...."},
      {"0aF1", T_HEX, 1, 0, "0a......"},
      {"0a f1", T_HEX, 4, 0, "0a......"},
      {"0ag1", T_HEX, 4, 0, "0a......"},
      {"0af", T_HEX, 4, 0, "0a......"},
      {"xx", T_HEX, 4, 0, "........"},
      {"abcdef", T_STRING, 4, 0, "61626300"},
      {"a", T_STRING, 4, 0, "61000000"},
      {"a", T_STRING, 0, 0, "........"},
      {"", T_STRING, 4, 1, "00......"},
      {"1.2.3.4", T_IPADDR, 4, 0, "01020304"},
      {"", T_LONG, 4, 1, "........"},
      {"1", 0, 4, -1, "........"},
      {"1", 8, 4, -1, "........"},
  };
  for (const auto& [text, type, len, result, expected] : rows) {
    writeConfig(std::string("[A\nK = ") + text + "\n]\n");
    const SectOwner handle = open("/A");
    ASSERT_TRUE(handle);
    unsigned char target[4] = {0x2e, 0x2e, 0x2e, 0x2e};
    EXPECT_EQ(ReadKey(handle.get(), "K", target, type, len), result) << text;
    std::string bytes;
    for (const unsigned byte : target) {
      char digits[3] = "..";
      if (byte != 0x2e) std::snprintf(digits, sizeof digits, "%02x", byte);
      bytes += digits;
    }
    EXPECT_EQ(bytes, expected) << text << " as type " << type;
  }
}

TEST_F(Section, MovesOnToLaterTextOfThePath) {
  writeConfig("[A\nK = 1\n[B\nK = b\n]\nK = 2\n[C\n]\n# c\nK = 3\n]\n[D\n]\n[A\nK = 4\n]\n");
  SectOwner handle = open("/A");
  for (const char* expected : {"1", "2", "3", "4"}) {
    ASSERT_TRUE(handle);
    EXPECT_EQ(value(handle.get(), "K"), expected);
    EXPECT_EQ(OpenNextSection(handle.get()), *expected == '4' ? nullptr : handle.get());
  }
  EXPECT_EQ(OpenNextSection(handle.get()), nullptr);
  handle = open("/A/B");
  EXPECT_EQ(value(handle.get(), "K"), "b");
  EXPECT_EQ(OpenNextSection(handle.get()), nullptr);
}

TEST_F(Section, TellsWhatIsWrong) {
  struct {
    std::string file;
    const char* path;
    const char* text;
  } const rows[] = {
      {"[A\nK = 1\n]\n", "/B", ""},
      {"\n[A B\n]\n[C = 1 2\n[D\"\n", "/B", "SectNameFwd: syntax error @ line 2\n"},
      {"[" + std::string(127, 'x') + "\n]\n", "/B", "SectNameFwd: Section Name Exceeds Buffer\n"},
      {"[" + std::string(126, 'x') + "\n]\n", "/B", ""},
      {"[" + std::string(100, 'x') + " = " + std::string(27, 'y') + "\n", "/B",
       "SectNameFwd: Section Name Exceeds Buffer\n"},
      {"[A\n" + std::string(5475, ' ') + "\n]", "/A", "ReadSectData: Buffer Exceeded\n"},
      {"[A\n" + std::string(5474, ' ') + "\n]", "/A", ""},
  };
  for (const auto& row : rows) {
    writeConfig(row.file);
    EXPECT_EQ(printed([&] { open(row.path); }), row.text) << row.file.substr(0, 20);
  }
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  for (const std::string& name : {std::string("no/file"), std::string(300, 'f'), std::string("etc"),
                                  std::string("pipe"), std::string("/dev/zero")}) {
    EXPECT_EQ(printed([&] { EXPECT_EQ(OpenSection(name.c_str(), "/A", sectRead), nullptr); }),
              "OpenSection: Error Opening File " + name + "\n");
  }
}

TEST_F(Section, KeepsWithinItsBounds) {
  const std::string name(126, 'n'), key(127, 'k'), text(250, 'v');
  writeConfig("[" + name + "\n" + key + "=" + std::string(90, '7') + "\n" + key + "x=2\nK=" + text +
              "\nS=" + std::string(300, 's') + "\nL = 1\n]\n");
  const SectOwner handle = open(("/" + name).c_str());
  ASSERT_TRUE(handle);
  EXPECT_EQ(value(handle.get(), key.c_str()), std::string(90, '7'));
  EXPECT_EQ(value(handle.get(), (key + "x").c_str()), "missing");
  EXPECT_EQ(value(handle.get(), "K"), text);
  EXPECT_EQ(value(handle.get(), "S"), std::string(255, 's'));
  EXPECT_EQ(handle->line, 8) << "one line counts as two";
  EXPECT_EQ(value(handle.get(), "L"), "1");
}

TEST_F(Section, NulsAreBytesLikeOthers) {
  using namespace std::string_literals;
  writeConfig("\0\n[A\0B\n]\n[A\n\0K = 1\nK\0 = 2\nK = 3\n\0\0]\n[C\nK = 4\n]\n"s);
  EXPECT_EQ(printed([] { EXPECT_EQ(lookUp("/A", "K"), "3"); }),
            "SectNameFwd: syntax error @ line 2\n");
  printed([] { EXPECT_EQ(lookUp("/C", "K"), "4"); });
}

TEST_F(Section, HandlesTellWhetherTheyLive) {
  writeConfig("[A\nK = 1\n]\n");
  SectHandle dead = {};
  EXPECT_EQ(ValidHandle(nullptr), nullptr);
  EXPECT_EQ(ValidHandle(&dead), nullptr);
  CloseSection(nullptr);
  CloseSection(&dead);
  EXPECT_EQ(OpenNextSection(nullptr), nullptr);
  EXPECT_EQ(ReadKey(nullptr, "K", nullptr, T_INT, 4), -1);
  const SectOwner handle = open("/A");
  EXPECT_EQ(ValidHandle(handle.get()), handle.get());
  EXPECT_STREQ(handle->section, "/A");
  EXPECT_STREQ(handle->data, "K = 1\n]\n");
  EXPECT_EQ(handle->nest, 1);
  const std::string dump = printed([&] { SectDump(handle.get()); });
  EXPECT_NE(dump.find("cookie  deadbeef\n"), std::string::npos) << dump;
  EXPECT_NE(dump.find("section /A\n"), std::string::npos) << dump;
  EXPECT_EQ(std::strspn(SectDmsg, "="), 74u);
}

TEST_F(Section, TracesUnderTheFlag) {
  writeConfig("[A\nK = 1\n]\n");
  const std::string trace = printed([] {
    dV = 1;
    lookUp("/A", "K");
    std::int32_t number = 2;
    WriteKey(SectOwner(OpenSection(config, "/A/B", sectWrite)).get(), "K", &number, T_INT, 4);
    dV = 0;
  });
  for (const char* line :
       {"OpenSection(./etc/atm/odconf,/A,0x1)\n", "OpenSection: rfn=./etc/atm/odconf\n",
        "OpenSection: search=/A\n", "line 1   [A\n", "SectNameFwd: sect=/A  nest=1\n",
        "ReadSectData: Section data\nK = 1\n]\n\n", "FindKey: key=K\n", "ReadKey: val=1\n",
        "CloseSection: rfn=./etc/atm/odconf\n", "OpenSection: wfn=./etc/atmOD",
        "calling CreateSection...for '/A/B'\nCreateSection: /A/B\n",
        "CreateSectionOk: /A/B nest=1 rflg=6\n", " key=K rflg=6\n", "WriteKey: wflg=1\n",
        " flg=1\n"}) {
    EXPECT_NE(trace.find(line), std::string::npos) << line << trace;
  }
}

}  // namespace
