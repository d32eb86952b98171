#include "atm/transfer_buffers.h"

#include <gtest/gtest.h>

#include <cstring>
#include <tuple>

#include "atm/devices.h"

namespace {

// The record after a round through its buffer, over a record of other values.
template <class Buffer, class Record>
Record roundTrip(const Record& record, Record over = {}) {
  Buffer buffer;
  buffer = record;
  over = buffer;
  return over;
}

TEST(TransferBuffers, PhysicalKeepsTheConfiguredPair) {
  AtmPhy edited;
  edited.RLPrimary = 0;
  edited.RLBackup = 3;
  edited.RLAutoSwitch = 1;
  edited.InterruptNumber = 9;
  edited.setLink(2, 5);
  const AtmPhy phy = roundTrip<PhyXferBuffer>(edited);
  EXPECT_EQ(phy.RLPrimary, 0);
  EXPECT_EQ(phy.RLBackup, 3);
  EXPECT_EQ(phy.cfgRLPrimary, 1);
  EXPECT_EQ(phy.cfgRLBackup, -1);
  EXPECT_EQ(phy.cfgRLAutoSwitch, 1);
  EXPECT_EQ(phy.InterruptNumber, 9);
  EXPECT_EQ(phy.linkState, 2);
  EXPECT_EQ(phy.activeLink, 5);
}

TEST(TransferBuffers, SignallingVersions) {
  const std::tuple<std::int32_t, std::int32_t, std::int16_t, std::int32_t, std::int32_t> rows[] = {
      {30, 0, 0, 30, 2}, {31, 0, 1, 31, 3}, {40, 0, 2, 40, 4},
      {1, 0, 1, 31, 3},  {41, 9, 3, 41, 9}, {-31, 9, -31, -1, 9}};
  for (const auto& [number, code, place, numberBack, codeBack] : rows) {
    AtmSig sig;
    sig.UniRev = number;
    sig.cfg.UniRevision = code;
    SigXferBuffer buffer;
    buffer = sig;
    EXPECT_EQ(buffer.UniRev, place) << number;
    sig = buffer;
    EXPECT_EQ(sig.UniRev, numberBack) << number;
    EXPECT_EQ(sig.cfg.UniRevision, codeBack) << number;
  }
}

TEST(TransferBuffers, SignallingValues) {
  AtmSig sig;
  SigXferBuffer buffer;
  buffer = sig;
  EXPECT_EQ(buffer.VciMax, 1023);
  EXPECT_EQ(buffer.NetPrefix, "47000000000000000000000000");
  buffer.VciLow = 99;
  buffer.VciMax = 500;
  buffer.AddressRegistration = 0x100;
  buffer.NetPrefix = "39aa";
  sig = buffer;
  EXPECT_EQ(sig.VciLow, 32) << "not written back";
  EXPECT_EQ(sig.VciHigh, 501);
  EXPECT_EQ(sig.cfg.AddressRegistration, 0) << "the low byte";
  EXPECT_EQ(sig.cfg.addressForm, 2);
  EXPECT_STREQ(sig.GetNetworkPrefix(), "39aa0000000000000000000000");
  buffer.NetPrefix.clear();
  sig = buffer;
  EXPECT_STREQ(sig.GetNetworkPrefix(), "40000000000000000000000000");
}

TEST(TransferBuffers, Client) {
  AtmLEC lec;
  lec.Mfs = 3;
  lec.ElanType = 1;
  lec.L3Mtu = 1500;
  lec.passThrough = 7;
  lec.mac = {{0x01, 0x80, 0, 0, 0, 0xff}};
  lec.pvcs.resize(2);
  lec.defaultPcr = {147, 64, kilobitsPerSecond};
  lec.address = "47007900000000000000000000 00A03E00000100";
  lec.address2 = "39010203040506070809101112 13141516171819";
  LECXferBuffer buffer;
  buffer = lec;
  EXPECT_EQ(buffer.Mfs, 2);
  EXPECT_EQ(buffer.MacText, "80:01:00:00:00:ff");
  EXPECT_EQ(buffer.AtmEsiSel, "00A03E00000100");
  buffer.ElanName = std::string(32, 'n');
  AtmLEC back;
  back = buffer;
  EXPECT_EQ(back.Mfs, 3);
  EXPECT_EQ(back.address, lec.address);
  EXPECT_EQ(std::string(back.address2.text, 40), "1314151617181907080910111200000000000000");
  EXPECT_EQ(std::string(back.ElanName), std::string(31, 'n'));
  EXPECT_EQ(buffer.ElanName.size(), 32u);
  EXPECT_EQ(back.passThrough, 7);
  EXPECT_EQ(back.pvcs, lec.pvcs);
  EXPECT_EQ(back.defaultPcr, lec.defaultPcr);
  EXPECT_EQ(back.mac, macAddress{}) << "the buffer has no address to give back";
  buffer.AtmPrefix = "39";
  buffer.AtmEsiSel.clear();
  back = buffer;
  EXPECT_EQ(std::string(back.address.text, 40), "3900790000000000000000000000A03E00000100");
}

TEST(TransferBuffers, Servers) {
  AtmLES les;
  les.Mfs = 2;
  std::strcpy(les.ElanName, "plant floor");
  std::strcpy(les.ElanTbl, "clients");
  les.clients = {{{1, 2, 3, 4, 5, 6, 7}}};
  const AtmLES lesBack = roundTrip<LESXferBuffer>(les);
  EXPECT_EQ(lesBack.Mfs, 2);
  EXPECT_STREQ(lesBack.ElanName, "plant floor");
  EXPECT_STREQ(lesBack.ElanTbl, "");
  EXPECT_EQ(lesBack.clients, les.clients);

  AtmLECS lecs;
  lecs.EtherMfs = 3;
  lecs.address = "47007900000000000000000000 00A03E00000100";
  const AtmLECS lecsBack = roundTrip<LECSXferBuffer>(lecs);
  EXPECT_EQ(lecsBack.EtherMfs, 3);
  EXPECT_EQ(lecsBack.TRMfs, 1);
  EXPECT_EQ(lecsBack.address, lecs.address);
}

TEST(TransferBuffers, IpIsItsOwnServerByItsAddress) {
  AtmIP1577 ip;
  IP1577XferBuffer buffer;
  buffer = ip;
  EXPECT_EQ(buffer.EnableServer, 1) << "two empty texts are equal";
  std::strcpy(ip.IPAddress, "10.0.0.1");
  std::strcpy(ip.ServerIPAddress, "10.0.0.11");
  ip.mac = {{0, 0x20, 0x48, 0, 0, 1}};
  buffer = ip;
  EXPECT_EQ(buffer.EnableServer, 0);
  EXPECT_EQ(buffer.MacText, "00:20:48:00:00:01");
  buffer.ServerIPMask = std::string(40, '9');
  ip = buffer;
  EXPECT_EQ(std::string(ip.ServerIPMask), std::string(17, '9'));
  EXPECT_STREQ(ip.IPAddress, "10.0.0.1");
}

}  // namespace
