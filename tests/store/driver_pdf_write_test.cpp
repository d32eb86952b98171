#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cstring>
#include <regex>

#include "atm/devices.h"
#include "store/driver_pdf_edit.h"
#include "store_fixture.h"

namespace {

using testing::HasSubstr;

class DriverPdfWrite : public StoreTest {
 protected:
  DriverPdfWrite() { atmDevices = AtmDevices{}; }

  static void readAll() {
    atmDevices = AtmDevices{};
    DriverPdfEdit(nullptr, false).ReadPdf();
  }
  static std::string commit(short adapter) {
    return logged([adapter] { DriverPdfEdit(nullptr, false).WriteLink(adapter); });
  }
};

std::vector<std::string> linesOf(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// A service's section and its record of adapter 2.
struct Service {
  const char* path;
  std::span<const SchemaKey> keys;
  void* record;
};
const Service services[] = {{"", physicalKeys, &atmDevices.phy[2]},
                            {"/RedundantLink0", redundantLinkKeys, &atmDevices.phy[2]},
                            {"/LEC0", lecKeys, &atmDevices.lec[2][0]},
                            {"/LEC15", lecKeys, &atmDevices.lec[2][15]},
                            {"/LES15", lesKeys, &atmDevices.les[2][15]},
                            {"/LECS0", lecsKeys, &atmDevices.lecs[2]},
                            {"/IP15770", ip1577Keys, &atmDevices.ip1577[2]}};

// A field's text of its own, as long as the field takes.
std::string textFor(const SchemaKey& key) {
  std::string text = std::string(key.name) + " \xe9";
  text.resize(std::min<std::size_t>(key.width, 40) - 1, 'z');
  return text;
}

void fill(const SchemaKey& key, void* record, std::int32_t number) {
  char* field = static_cast<char*>(record) + key.offset;
  const std::string digits = "0123456789abcdef0123456789abcdef01234567";
  switch (key.form) {
    case KeyForm::number:
      std::memcpy(field, &number, key.width);
      break;
    case KeyForm::text:
      textFor(key).copy(field, key.width);
      break;
    case KeyForm::networkPrefix:
      digits.copy(field, 26);
      break;
    case KeyForm::esiAndSelector:
      digits.copy(field + 26, 14, static_cast<std::size_t>(number) % 20);
      break;
    default:
      break;
  }
}

TEST_F(DriverPdfWrite, WhatIsWrittenIsRead) {
  writeConfig("[Adapter2\n]\n");
  std::int32_t number = -7;
  for (const Service& service : services) {
    for (const SchemaKey& key : service.keys) fill(key, service.record, number += 1001);
  }
  std::vector<std::string> records;
  const auto fieldOf = [](const Service& service, const SchemaKey& key) {
    return std::string(
        static_cast<char*>(service.record) + key.offset,
        key.form == KeyForm::number ? key.width : std::min<std::size_t>(key.width, 40));
  };
  for (const Service& service : services) {
    for (const SchemaKey& key : service.keys) records.push_back(fieldOf(service, key));
  }
  commit(2);
  EXPECT_EQ(atmDevices.lec[2][0].PvcConfFile, std::string("./etc/atm/pvcconf2.0"));
  readAll();
  auto record = records.begin();
  for (const Service& service : services) {
    for (const SchemaKey& key : service.keys) {
      std::string& expected = *record++;
      if (key.form == KeyForm::text) expected[key.width - 2] = '\0';  // read one byte shorter
      if (key.form == KeyForm::sideFile) continue;
      EXPECT_EQ(fieldOf(service, key), expected) << service.path << ' ' << key.name;
    }
  }
  EXPECT_EQ(atmDevices.ip1577[2].PvcConfFile, std::string("./etc/atm/pvcconf2.32"));
  EXPECT_EQ(atmDevices.phy[2].cfgRLBackup, atmDevices.phy[2].RLBackup);
}

TEST_F(DriverPdfWrite, SignallingIsWrittenForBothOfItsReaders) {
  writeConfig("[Adapter0\n]\n");
  AtmSig& sig = atmDevices.sig[0];
  sig.Enabled = 0;
  sig.UniRev = 40;
  sig.cfg.UniRevision = uniCode40;
  sig.cfg.AddressRegistration = 0;
  sig.cfg.PortChangeDetect = 2;
  sig.cfg.RegDiffNetPrefix = 0xff;
  sig.cfg.IlmiEnableAutoConfig = 3;
  const unsigned char prefix[networkPrefixBytes] = {0x39, 0xAA, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
  sig.setNetPrefix(prefix);
  const AtmSig written = sig;
  commit(0);
  EXPECT_THAT(read(config), HasSubstr("\t[Signalling0\n"
                                      "\t\tNetPrefix \t\t= 39aa0102030405060708090a0b\n"
                                      "\t\tEnabled \t\t= 0\n"
                                      "\t\tUniRev \t\t\t= 40\n"
                                      "\t\tAddressRegistration \t= 0\n"
                                      "\t\tPortChangeDetect \t= 2\n"
                                      "\t\tRegDiffNetPrefix \t= -1\n"
                                      "\t\t[Q2931Section0\n"
                                      "\t\t\tUniRev \t\t= 4\n"
                                      "\t\t]\n"
                                      "\t\t[IlmiSection0\n"
                                      "\t\t\tILMIEnableAddressReg = 0\n"
                                      "\t\t\tIlmiEnablePortDetect = 2\n"
                                      "\t\t\tIlmiEnableNonStdPrefixReg = -1\n"
                                      "\t\t\tIlmiEnableAutoConfig = 3\n"
                                      "\t\t]\n"
                                      "\t]\n"));
  readAll();
  EXPECT_EQ(std::memcmp(&sig.cfg, &written.cfg, sizeof sig.cfg), 0);
  EXPECT_EQ(sig.UniRev, 40);
  EXPECT_EQ(sig.Enabled, 0);
}

TEST_F(DriverPdfWrite, ACommitOfWhatWasReadKeepsEveryLine) {
  writeConfig(sample());
  readAll();
  std::strcpy(brennwick_driver_revision, "4.1 (a) b");
  commit(0);
  const std::string once = read(config);
  const std::vector<std::string> before = linesOf(sample()), after = linesOf(once);
  auto at = after.begin();
  for (std::size_t i = 0; i < before.size(); ++i) {
    const bool product = i > 7 && i < 14;
    if (product) continue;
    // A name that was empty is filled in.
    const auto found = std::find_if(at, after.end(), [&](const std::string& line) {
      return line == before[i] || (before[i].ends_with('=') && line.starts_with(before[i]));
    });
    ASSERT_NE(found, after.end()) << "line " << i + 1 << ": " << before[i];
    at = found + 1;
  }
  const std::regex record(
      "\\[Ondrelle0\n.*\n\tODVersion \t\t\t= 2.20\n\tODBuildID \t\t\t= 1998060315\n"
      "\tODBuildDate \t\t\t= Wed_06/03/98_15:12_\\(CDT\\)\n\tODPlatform \t\t\t= SunOS_5.5.1_i386\n"
      "\tODFileUpdated \t\t\t= [A-Z][a-z]{2}_[0-3][0-9],20[0-9]{2}_[0-2][0-9]:[0-5][0-9]\n"
      "\tDriverRevision \t\t\t= 4.1 \\(a\\) b\n\\]");
  EXPECT_TRUE(std::regex_search(once, record)) << once.substr(0, 900);
  readAll();
  commit(0);
  const std::regex updated("ODFileUpdated.*");
  EXPECT_EQ(std::regex_replace(read(config), updated, ""), std::regex_replace(once, updated, ""));
  std::strcpy(brennwick_driver_revision, "");
}

TEST_F(DriverPdfWrite, SectionsAreWrittenInOrder) {
  writeConfig("[Adapter7\n]\n");
  std::string expected =
      "pdfFileName == ./etc/atm/odconf\nOpenKey(/Ondrelle0) failed.\nOpenKey(/Ondrelle0) failed.\n"
      "WriteOndrelle: Key NOT found or created.\n";
  const auto writing = [&](const std::string& section) {
    expected += "Writing Values on - /Adapter7/" + section + '\n';
  };
  for (const char* section :
       {"Signalling0", "Signalling0/Q2931Section0", "Signalling0/IlmiSection0"}) {
    writing(section);
  }
  for (int i = 0; i < maxLecs; ++i) writing("LEC" + std::to_string(i));
  for (int i = 0; i < maxLess; ++i) writing("LES" + std::to_string(i));
  writing("LECS0");
  writing("IP15770");
  EXPECT_EQ(commit(7), expected);
}

TEST_F(DriverPdfWrite, AnAdapterWithoutASectionIsNotCreated) {
  writeConfig("[Adapter0\n]\n");
  atmDevices.lec[3][0].pvcs.resize(1);
  const std::string log = commit(3);
  EXPECT_THAT(log, HasSubstr("OpenKey(/Adapter3) failed.\n"
                             "WritePhysical: error on OpenKey(/Adapter3) failed.\n"
                             "OpenKey(/Adapter3/RedundantLink0) failed.\n"
                             "WritePhysical: OpenKey(/Adapter3/RedundantLink0).\n"
                             "Writing Values on - /Adapter3/Signalling0\n"
                             "OpenKey(/Adapter3/Signalling0) failed.\n"));
  EXPECT_EQ(read(config), "[Adapter0\n]\n");
  atmDevices.numAdapters = 1;
  DriverPdfEdit(nullptr, false).WritePdf();
  EXPECT_THAT(read(config), HasSubstr("[IP15770\n"));
}

TEST_F(DriverPdfWrite, ADefaultNameThatDidNotReachTheFileIsWrittenAgain) {
  const std::string usual = "./etc/atm/pvcconf0.0";
  const struct {
    std::string record, before, after;
  } rows[] = {{"", "", usual},           {"", "other", usual}, {usual, "", usual},
              {usual, "other", "other"}, {"mine", "", ""},     {"mine", "other", "other"}};
  for (const auto& row : rows) {
    writeConfig("[Adapter0\n[LEC0\nPvcConfFile = " + row.before + "\n]\n]\n");
    AtmLEC& lec = atmDevices.lec[0][0] = AtmLEC{};
    row.record.copy(lec.PvcConfFile, fileNameBytes);
    commit(0);
    EXPECT_THAT(read(config), HasSubstr("PvcConfFile = " + row.after + "\n")) << row.record;
    EXPECT_EQ(lec.PvcConfFile, row.record.empty() ? usual : row.record);
  }
}

TEST_F(DriverPdfWrite, SideFiles) {
  write("clients", "old and longer than what comes\n");
  write("gone", "x");
  ASSERT_EQ(mkfifo("pipe", 0600), 0);
  writeConfig(
      "[Adapter1\n[LEC0\nPvcConfFile = gone\n]\n[LEC2\nPvcConfFile = pipe\n]\n"
      "[LEC3\nPvcConfFile = pipe\n]\n[LEC4\nPvcConfFile = no/such/folder\n]\n"
      "[LES0\nElanTbl = clients\n]\n]\n");
  readAll();
  for (const int lec : {1, 3, 4, 5}) {
    atmDevices.lec[1][lec].pvcs = {{{{0, 0, 0x77, 0x88, 0x99, 0xaa}}, 65535, 1, 0, 4000000000u},
                                   {{{}}, 32, 0, 1, 0}};
  }
  atmDevices.ip1577[1].pvcs = {{{{192, 168, 1, 7}}, 100, 1, 0, -1}};
  atmDevices.les[1][0].clients = {{{0, 0xa0, 0x3e, 0, 0, 1, 0}}, {{1, 2, 3, 4, 5, 6, 0xff}}};
  atmDevices.les[1][1].clients = {{{1}}};
  umask(0);
  commit(1);
  umask(022);
  EXPECT_EQ(read("./etc/atm/pvcconf1.1"),
            "[PVC\n\tVC    =-1\t#VC index\n"
            "\tAddr  =0000778899aa\t# Format:  0000778899aa=MAC 123.123.123.123=IP\n"
            "\tEncap =1\t# 0=Null 1=LLC\n"
            "\tBcast =0\t# For Bridged PVC only; 1=Broadcast 0=Non-Broadcast\n"
            "\tRate  =4000000000\t# MB/s\n]\n"
            "[PVC\n\tVC    =32\t#VC index\n"
            "\tAddr  =000000000000\t# Format:  0000778899aa=MAC 123.123.123.123=IP\n"
            "\tEncap =0\t# 0=Null 1=LLC\n"
            "\tBcast =1\t# For Bridged PVC only; 1=Broadcast 0=Non-Broadcast\n"
            "\tRate  =0\t# MB/s\n]\n");
  EXPECT_THAT(read("./etc/atm/pvcconf1.32"), HasSubstr("Addr  =192.168.1.7\t"));
  EXPECT_EQ(read("clients"), "00a03e000001/00\n010203040506/ff\n");
  EXPECT_FALSE(std::filesystem::exists("gone"));
  EXPECT_TRUE(std::filesystem::is_fifo("pipe"));
  struct stat status;
  ASSERT_EQ(stat("./etc/atm/pvcconf1.5", &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0664u);
  const AtmDevices before = atmDevices;
  readAll();
  EXPECT_EQ(atmDevices.lec[1][5].pvcs, before.lec[1][5].pvcs);
  EXPECT_EQ(atmDevices.ip1577[1].pvcs, before.ip1577[1].pvcs);
  EXPECT_EQ(atmDevices.les[1][0].clients, before.les[1][0].clients);
  EXPECT_STREQ(atmDevices.lec[1][0].PvcConfFile, "gone");
  EXPECT_STREQ(atmDevices.les[1][1].ElanTbl, "");
}

}  // namespace
