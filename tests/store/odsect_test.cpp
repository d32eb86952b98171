// The program odsect, run as a script would run it.
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstring>
#include <sstream>
#include <tuple>

#include "store_fixture.h"

namespace {

using testing::HasSubstr;

class Odsect : public StoreTest {
 protected:
  Odsect() { writeConfig(first); }

  // Runs the program with these words of the shell; returns the exit status.
  static int run(const std::string& words, const std::string& setting = "") {
    const std::string command =
        setting + "'" ONDRELLE_BUILD_DIR "/odsect-demo' >out 2>err " + words;
    const int status = std::system(command.c_str());
    std::filesystem::directory_iterator beside("etc");
    EXPECT_EQ(std::distance(begin(beside), end(beside)), 1) << "a copy is left: " << words;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  static constexpr char first[] =
      "[A # [x\n\tN = -2\n\tM = 300\n\tH = 0AfGff\n\tS = a b  # c\n\tE =\n\tI = 10.0.0.1\n"
      "\t-k = 7\n\tX = zz\n[B=1 [C\n]\n]\n\tN = 3\n]\n[D E\n[A\n\tN = 4\n]";
};

TEST_F(Odsect, Gets) {
  const std::tuple<const char*, const char*, int> rows[] = {
      {"get /A N int", "-2\n", 0},
      {"get /A M char", "44\n", 0},
      {"get /A --length 3 S", "a \n", 0},
      {"get /A H hex", "0a\n", 0},
      {"get /A I hex --length 1", "10\n", 0},
      {"get /A X hex", "\n", 0},
      {"get /A I ipaddr", "10.0.0.1\n", 0},
      {"get /A -k int", "7\n", 0},
      {"get --next 1 /A N int", "3\n", 0},
      {"get /A --next 2 -- N", "4\n", 0},
      {"get /A E", "", 1},
      {"get /A Z", "", 2},
      {"get /A N --next 3", "", 3},
      {"get /B N", "", 3},
      {"list", "/A\n/A/B1\n/A/B1/C\n/A\n", 0},
  };
  for (const auto& [words, output, status] : rows) {
    EXPECT_EQ(run(std::string(config) + ' ' + words), status) << words << read("err");
    EXPECT_EQ(read("out"), output) << words;
  }
  EXPECT_EQ(read(config), first);
}

TEST_F(Odsect, Sets) {
  struct {
    const char* words;
    const char* before;
    const char* after;
  } const rows[] = {
      {"set /A N -1", "N = -2", "N = -1"},
      {"set /A N -128 char", "N = -2", "N = -128"},
      {"set /A H 0A1b hex --length 3", "0AfGff", "0a1b00"},
      {"set /A H 0a1b hex --length 1", "0AfGff", "0a"},
      {"set /A S wxyz --length 3", "a b  #", "wx  #"},
      {"set /A S -- --next", "a b  #", "--next  #"},
      {"set /A I 255.1.2.3 ipaddr", "10.0.0.1", "255.1.2.3"},
      {"set /A N 5 --next 2", "N = 4", "N = 5"},
      {"set /A/F K v", "\tN = 3\n", "\tN = 3\n\t[F\n\t\tK \t\t\t= v\n\t]\n"},
  };
  for (const auto& row : rows) {
    writeConfig(first);
    EXPECT_EQ(run(std::string(config) + ' ' + row.words), 0) << row.words << read("err");
    EXPECT_EQ(read("out"), "") << row.words;
    std::string expected = first;
    expected.replace(expected.find(row.before), std::strlen(row.before), row.after);
    EXPECT_EQ(read(config), expected) << row.words;
  }
}

TEST_F(Odsect, RefusesAndSaysWhy) {
  const std::string file = config;
  const std::tuple<std::string, int, const char*> rows[] = {
      {file + " set /A N 12x int", 2, "'12x' is no number from -2147483648 to 2147483647"},
      {file + " set /A N 128 char", 2, "from -128 to 127"},
      {file + " set /A N 2147483648 long", 2, "is no number"},
      {file + " set /A H 0a1 hex", 2, "'0a1' is not pairs of hexadecimal digits"},
      {file + " set /A H '' hex", 2, "key H not written"},
      {file + " set /A I 1.2.3 ipaddr", 2, "'1.2.3' is no address"},
      {file + " set /A S 'a]'", 2, "Bad Character In Value key=S"},
      {file + " set /F/G K v", 3, "no section /F/G"},
      {file + " set /A N 5 --next 3", 3, "no section /A so often"},
      {"nothing list", 3, "Error Opening File nothing"},
      {file + " get /A N >/dev/full", 74, "No space left"},
      {file + " get /A N >&-", 74, "standard output"},
      {"", 64, "usage"},
      {file + " get /A N word", 64, "usage"},
      {file + " get /A N --next x", 64, "usage"},
      {file + " get /A N --length 0", 64, "usage"},
  };
  for (const auto& [words, status, why] : rows) {
    EXPECT_EQ(run(words), status) << words;
    EXPECT_THAT(read("err"), HasSubstr(why)) << words;
    EXPECT_EQ(read("out"), "") << words;
  }
  EXPECT_EQ(read(config), first);
  EXPECT_EQ(run("--help"), 0);
  EXPECT_THAT(read("out"), HasSubstr("usage"));
}

TEST_F(Odsect, TellsThatTheFileWasNotReplaced) {
  const std::string file = first + std::string(5000, '#');
  writeConfig(file);
  EXPECT_EQ(run(std::string(config) + " set /A N 5", "trap '' XFSZ; ulimit -f 1; "), 2);
  EXPECT_THAT(read("err"), HasSubstr("key N not written"));
  EXPECT_EQ(read(config), file);

  const std::string far = "/tmp/" + std::filesystem::current_path().filename().string() + ".conf";
  write(far, first);
  struct stat here, there;
  if (stat("etc", &here) == 0 && stat(far.c_str(), &there) == 0 && here.st_dev != there.st_dev) {
    EXPECT_EQ(run(far + " set /A N 5"), 2);
    EXPECT_THAT(read("err"), HasSubstr("not on the file system of ./etc"));
    EXPECT_EQ(read(far), first);
  }
  std::filesystem::remove(far);
}

TEST_F(Odsect, ListsThePathsThatCanBeOpened) {
  const std::string sample = "'" ONDRELLE_SOURCE_DIR "/data/odconf.sample' ";
  EXPECT_EQ(run(sample + "list"), 0);
  std::istringstream paths(read("out"));
  int count = 0;
  for (std::string path; std::getline(paths, path); ++count) {
    EXPECT_EQ(run(sample + "get " + path + " none"), 2) << path;
  }
  EXPECT_GT(count, 20);
}

}  // namespace
