#include "store/driver_pdf_edit.h"

#include <cstring>
#include <random>
#include <sstream>
#include <tuple>
#include <vector>

#include "atm/devices.h"
#include "store_fixture.h"

namespace {

template <class Value>
std::string text(const Value& value) {
  std::ostringstream out;
  out << value;
  return out.str();
}

class DriverPdf : public StoreTest {
 protected:
  DriverPdf() { atmDevices = AtmDevices{}; }

  void read(const std::string& file) {
    writeConfig(file);
    atmDevices = AtmDevices{};
    DriverPdfEdit(nullptr, false).ReadPdf();
  }
  // Reads adapter 0's signalling out of the text of "/Adapter0" and returns the log.
  std::string readSig(const std::string& adapter) {
    writeConfig("[Adapter0\n" + adapter + "]\n");
    atmDevices = AtmDevices{};
    return logged([] { DriverPdfEdit(nullptr, false).ReadSig(0); });
  }

  const AtmSig& sig = atmDevices.sig[0];
};

TEST_F(DriverPdf, ReadsTheSample) {
  write("./etc/atm/elan0.0", "00a03e000001/00\n00a03e000002/0f\n");
  EXPECT_EQ(printed([&] { read(sample()); }), "");
  struct {
    int primary, backup, autoSwitch, interrupt, framing;
  } const links[] = {
      {1, 3, 1, -1, 0}, {1, 2, 0, -1, 0}, {0, -1, 0, -1, 0}, {0, -1, 0, 5, 1}, {1, -1, 0, -1, 0}};
  for (int i = 0; i < 5; ++i) {
    const AtmPhy& phy = atmDevices.phy[i];
    EXPECT_EQ(phy.RLPrimary, links[i].primary) << i;
    EXPECT_EQ(phy.RLBackup, links[i].backup) << i;
    EXPECT_EQ(phy.RLAutoSwitch, links[i].autoSwitch) << i;
    EXPECT_EQ(phy.cfgRLPrimary, links[i].primary) << i;
    EXPECT_EQ(phy.cfgRLBackup, links[i].backup) << i;
    EXPECT_EQ(phy.cfgRLAutoSwitch, links[i].autoSwitch) << i;
    EXPECT_EQ(phy.InterruptNumber, links[i].interrupt) << i;
    EXPECT_EQ(phy.Framing, links[i].framing) << i;
  }
  EXPECT_EQ(sig.UniRev, 31);
  EXPECT_EQ(sig.cfg.UniRevision, uniCode31);
  EXPECT_EQ(atmDevices.sig[1].UniRev, 40);
  EXPECT_EQ(atmDevices.sig[3].cfg.port, 3);
  EXPECT_EQ(text(atmDevices.lec[0][1].ElanName), "plant floor");
  EXPECT_EQ(atmDevices.lec[0][1].ElanType, 1);
  EXPECT_EQ(atmDevices.lec[1][0].defaultPcr, (CellRateValue{147, 65, kilobitsPerSecond}));
  EXPECT_EQ(atmDevices.lec[1][2].L3Mtu, 1500);
  EXPECT_STREQ(atmDevices.lec[0][2].address.GetESISelector(), "0020481a2b3c02");
  EXPECT_EQ(atmDevices.les[0][1].MfsStrict, 1);
  ASSERT_EQ(atmDevices.les[0][0].clients.size(), 2u);
  EXPECT_EQ(text(atmDevices.les[0][0].clients[1]), "00a03e000002/0f");
  EXPECT_EQ(atmDevices.lecs[0].Enabled, 1);
  EXPECT_STREQ(atmDevices.lecs[0].address.GetFESISelector(), "00:a0:3e:00:00:01-00");
  EXPECT_STREQ(atmDevices.ip1577[1].IPAddress, "192.168.10.17");
  EXPECT_EQ(atmDevices.ip1577[0].address, [] {
    atmAddress address = dfltAtmAddress;
    address = "47000580ffe1000000f21a26d80020481a2b3c00";
    address.text[40] = '\0';
    return address;
  }());
}

// The records' initial state and the keys' names are two tables of one set of figures: a file with
// every key at its default changes nothing, and one with every value changed changes every field.
TEST_F(DriverPdf, EveryKeyHasItsField) {
  struct {
    const char* section;
    std::span<const SchemaKey> keys;
  } const sections[] = {
      {"Q2931Section0", q2931Keys}, {"QSaalSection0", qSaalKeys}, {"IlmiSection0", ilmiKeys}};
  std::string file = "[Signalling0\nNetPrefix = 47\n";
  std::vector<bool> covered(sizeof(sigPortCfg_s));
  int number = 1;
  for (const auto& section : sections) {
    file += std::string("[") + section.section + '\n';
    for (const SchemaKey& key : section.keys) {
      file += std::string(key.name) + " = " + std::to_string(100 + number++) + '\n';
    }
    file += "]\n";
  }
  readSig(file + "]\n");
  number = 1;
  for (const auto& section : sections) {
    for (const SchemaKey& key : section.keys) {
      std::uint32_t value = 0;
      std::memcpy(&value, reinterpret_cast<const char*>(&sig.cfg) + key.offset, key.width);
      EXPECT_EQ(value, 100u + static_cast<unsigned>(number++)) << key.name;
      EXPECT_FALSE(covered[key.offset]) << key.name << " shares a field";
      covered[key.offset] = true;
    }
  }
}

TEST_F(DriverPdf, WithoutAFileEverythingIsDefault) {
  const std::string log =
      logged([&] { printed([&] { DriverPdfEdit(nullptr, false).ReadPdf(); }); });
  EXPECT_NE(log.find("Reading PDF.\n"), std::string::npos);
  EXPECT_NE(log.find("ReadPdf: OpenKey(/Adapter7) failed.\n"), std::string::npos);
  EXPECT_EQ(sig.UniRev, 1);
  EXPECT_EQ(sig.cfg.UniRevision, uniCode30);
  EXPECT_EQ(atmDevices.phy[7].RLPrimary, 1);
}

TEST_F(DriverPdf, LimitsOfTheDriver) {
  read(
      "[GlobalSigParams0\nDaiRev = 255\nMaxUsrSaps = 65535\nMaxMptEndpts = 1\nMaxPtToMpt = 2\n"
      "MaxPtToPt = 3\n]\n");
  EXPECT_EQ(atmDevices.DaiRev, 255);
  EXPECT_EQ(atmDevices.MaxUsrSaps, 65535);
  EXPECT_EQ(atmDevices.MaxMptEndpts, 1u);
  EXPECT_EQ(atmDevices.MaxPtToMpt, 2u);
  EXPECT_EQ(atmDevices.MaxPtToPt, 3u);
}

TEST_F(DriverPdf, SignallingVersion) {
  const std::tuple<const char*, int, int> rows[] = {
      {"[Signalling0\nUniRev = 30\n]\n", 30, 2},
      {"[Signalling0\nUniRev = 40\n]\n", 40, 4},
      {"[Signalling0\n]\n", 31, 3},
      {"[Signalling0\nUniRev = 35\n]\n", 35, 2},
      {"[Signalling0\nUniRev = 35\n[Q2931Section0\nSigTmrT301 = 1\n]\n]\n", 35, 2},
      {"[Signalling0\nUniRev = 40\n[Q2931Section0\nUniRev = 3\n]\n]\n", 31, 3},
      {"[Signalling0\nUniRev = 40\n[Q2931Section0\nUniRev = 7\n]\n]\n", 40, 7},
      {"[Signalling\nUniRev = 40\n]\n", 1, 2},
  };
  for (const auto& [adapter, number, code] : rows) {
    readSig(adapter);
    EXPECT_EQ(sig.UniRev, number) << adapter;
    EXPECT_EQ(sig.cfg.UniRevision, code) << adapter;
  }
}

TEST_F(DriverPdf, SignallingKeysOfOldAndNewNames) {
  const std::string update = "Please update odconf to use KEY ";
  const std::tuple<const char*, int, int, const char*, std::string> rows[] = {
      {"[Signalling0\nIlmi = 0\nNoMibSync = 1\nIlmiPrefix = 39aa\n]\n", 1, 1,
       "39aa0000000000000000000000",
       update + "AddressRegistration instead of Ilmi\n" + update +
           "PortChangeDetect instead of NoMibSync\n" + update +
           "NetPrefix instead of IlmiPrefix\n"},
      {"[Signalling0\nAddressRegistration = 256\nIlmi = 1\nPortChangeDetect = 2\n"
       "NetPrefix = 39\nIlmiPrefix = 45\n]\n",
       0, 2, "39000000000000000000000000",
       "Open /Adapter0/Signalling0/Q2931 section fail, USING DEFAULT\n"},
      {"[Signalling\nAddressRegistration = 0\nNetPrefix = 39\n]\n", 0, 1,
       "47000000000000000000000000", "Open /Adapter0/Signalling0 section failed, USING DEFAULTs\n"},
      {"[Signalling0\n]\n", 1, 1, "47000000000000000000000000",
       "\nWARNING: link 0, Address Registration disabled,\nbut no NetPrefix configured\n"
       "\tUsing  atm_addr: G"},
  };
  for (const auto& [adapter, registration, detect, prefix, line] : rows) {
    const std::string log = readSig(adapter);
    EXPECT_EQ(sig.cfg.AddressRegistration, registration) << adapter;
    EXPECT_EQ(sig.cfg.PortChangeDetect, detect) << adapter;
    EXPECT_STREQ(atmDevices.sig[0].GetNetworkPrefix(), prefix) << adapter;
    EXPECT_NE(log.find(line), std::string::npos) << adapter << log;
  }
  EXPECT_EQ(sig.cfg.addressForm, 2);
  EXPECT_EQ(sig.cfg.addressLength, 13);
}

TEST_F(DriverPdf, TextsAndAddresses) {
  const std::string name31(31, 'n'), file(254, 'f');
  read("[Adapter2\n[LEC15\nElanName = " + name31 +
       "\nAtmPrefix = 39AAzz\nPvcConfFile=" + file.substr(0, 240) +
       "\nDefault_UBR_PCR = -1\nDefUBRPCR_Units = 77\n]\n[IP15770\n"
       "IPAddress = 123.123.123.123.123.123\nAtmEsiSel = 0102030405060708\n]\n]\n");
  const AtmLEC& lec = atmDevices.lec[2][15];
  EXPECT_STREQ(lec.ElanName, name31.substr(1).c_str());
  EXPECT_STREQ(lec.address.GetNetworkPrefix(), "39aa0000000000000000000000");
  EXPECT_EQ(std::string(lec.PvcConfFile), file.substr(0, 240));
  EXPECT_EQ(lec.defaultPcr.cps, 0xFFFFFFFFu);
  EXPECT_EQ(lec.defaultPcr.units, 77u);
  EXPECT_STREQ(atmDevices.ip1577[2].IPAddress, "123.123.123.123.");
  EXPECT_STREQ(atmDevices.ip1577[2].address.GetESISelector(), "01020304050607");
}

TEST_F(DriverPdf, ListsOfCircuits) {
  write("pvcs", std::string(100, 'j') +
                    "\n[PVC more\n\tRate=7\nAddr =0000778899aa # x\nVC=-1\nBcast=1#\nEncap=1\n]\n"
                    "[PVC\n\tVC    =100\t#VC index\n# Rate =9\n\nx\ny\nRate=9\n[PVC\nVC=5");
  write("ips", "[PVC\nAddr=10.0.0.1\nVC=9\nRate=-3\nEncap=1\nBcast=0\n]\n");
  read(
      "[Adapter0\n[LEC0\nPvcConfFile = pvcs\n]\n[LEC1\nPvcConfFile = /dev/zero\n]\n"
      "[IP15770\nPvcConfFile = ips\n]\n]\n");
  const auto& pvcs = atmDevices.lec[0][0].pvcs;
  const macAddress mac = {{0, 0, 0x77, 0x88, 0x99, 0xaa}};
  ASSERT_EQ(pvcs.size(), 3u);
  EXPECT_EQ(pvcs[0], (AtmBridgedPvc{mac, 65535, 1, 1, 7}));
  EXPECT_EQ(pvcs[1], (AtmBridgedPvc{mac, 100, 1, 1, 7})) << "what is missing is the last record's";
  EXPECT_EQ(pvcs[2], (AtmBridgedPvc{mac, 5, 1, 1, 7})) << "cut short";
  EXPECT_TRUE(atmDevices.lec[0][1].pvcs.empty());
  ASSERT_EQ(atmDevices.ip1577[0].pvcs.size(), 1u);
  EXPECT_EQ(atmDevices.ip1577[0].pvcs[0], (AtmRoutedPvc{{{10, 0, 0, 1}}, 9, 1, 0, -3}));
}

TEST_F(DriverPdf, DamagedFilesDoNoHarm) {
  std::mt19937 random(20);
  const std::string whole = sample();
  const std::string pieces[] = {"[",
                                "]",
                                "#",
                                "=",
                                "\n",
                                "\r\n",
                                std::string(1, '\0'),
                                std::string(400, 'x'),
                                "[" + std::string(200, 'y'),
                                std::string(7000, ' '),
                                "K = "};
  for (int round = 0; round < 40; ++round) {
    std::string file = whole.substr(0, random() % whole.size());
    for (int change = 0; change < 30 && !file.empty(); ++change) {
      file.insert(random() % file.size(), pieces[random() % std::size(pieces)]);
    }
    printed([&] { read(file); });
    EXPECT_LE(std::strlen(atmDevices.lec[0][0].ElanName), 30u);
  }
}

}  // namespace
