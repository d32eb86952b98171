// Answers of the LAN Emulation, IP over ATM and signalling queries, each laid out here and nowhere
// else. All integers are little-endian. An ATM address is its 20 raw bytes, a name is terminated
// unless it fills its field, and counters wrap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>

// ---- LAN Emulation client

struct lec_state {
  std::uint32_t state;  // 0 off, 6 operational, between them joining
  std::uint32_t reserved4[2];
  std::uint32_t ready;  // nonzero in state 1 when nothing is amiss
};
static_assert(sizeof(lec_state) == 16 && offsetof(lec_state, ready) == 12);

struct lec_stats {
  std::uint8_t address[20];
  std::uint8_t elanType;  // ElanTypeToString
  std::uint8_t mtuType;   // MtuTypeToString
  std::uint8_t reserved22[6];
  char elanName[32];
  std::uint8_t reserved60;
  std::uint8_t macAddress[6];
  std::uint8_t reserved67[9];
  std::uint8_t controlDirectAddress[20];
  std::uint8_t reserved96[704];
  std::uint8_t controlDistributeAddress[20];
  std::uint16_t controlDirectVci;
  std::uint16_t controlDistributeVci;
  std::uint8_t multicastSendAddress[20];
  std::uint8_t multicastForwardAddress[20];
  std::uint16_t multicastSendVci;
  std::uint16_t multicastForwardVci;
  std::uint8_t reserved868[72];
};
static_assert(sizeof(lec_stats) == 940 && offsetof(lec_stats, elanName) == 28 &&
              offsetof(lec_stats, macAddress) == 61 &&
              offsetof(lec_stats, controlDirectAddress) == 76 &&
              offsetof(lec_stats, controlDistributeAddress) == 800 &&
              offsetof(lec_stats, controlDirectVci) == 820 &&
              offsetof(lec_stats, multicastForwardAddress) == 844 &&
              offsetof(lec_stats, multicastSendVci) == 864);

// A data-direct connection of a client.
struct lec_tbl_t {
  std::uint8_t macAddress[6];
  std::uint8_t reserved6[2];
  std::uint16_t connectionKind;  // 1 switched, otherwise a PVC
  std::uint8_t reserved10[5];
  std::uint8_t address[20];
  std::uint8_t reserved35[3];
  std::uint16_t vci;
  std::uint8_t reserved40[8];
  std::uint32_t txPackets;
  std::uint32_t rxPackets;
  std::uint8_t reserved56[16];
};
static_assert(sizeof(lec_tbl_t) == 72 && offsetof(lec_tbl_t, connectionKind) == 8 &&
              offsetof(lec_tbl_t, address) == 15 && offsetof(lec_tbl_t, vci) == 38 &&
              offsetof(lec_tbl_t, txPackets) == 48 && offsetof(lec_tbl_t, rxPackets) == 52);

// The log's form: every byte in hexadecimal, three columns each, ten to a line.
std::ostream& operator<<(std::ostream& os, const lec_tbl_t& row);

// ---- LAN Emulation server

struct les_state {
  std::uint32_t state;  // 0 off, 1 running
  std::uint32_t reserved4;
  std::uint32_t serving;  // nonzero when it is in full service
};
static_assert(sizeof(les_state) == 12 && offsetof(les_state, serving) == 8);

struct les_stats {
  std::uint8_t address[20];
  std::uint8_t elanType;
  std::uint8_t mtuType;
  std::uint8_t reserved22[10];
  std::uint8_t busAddress[20];
  std::uint8_t reserved52[28];
  char elanName[32];
  std::uint8_t reserved112[4];
};
static_assert(sizeof(les_stats) == 116 && offsetof(les_stats, elanType) == 20 &&
              offsetof(les_stats, busAddress) == 32 && offsetof(les_stats, elanName) == 80);

// A client that joined a server.
struct les_tbl {
  std::uint8_t reserved0[2];
  std::uint8_t macAddress[6];
  std::uint8_t address[20];
  std::uint8_t reserved28[8];
  std::uint16_t state;  // BusStateToString
  std::uint8_t reserved38[2];
  std::uint16_t controlDirectVci;
  std::uint8_t reserved42[2];
  std::uint32_t controlDirectTx;
  std::uint32_t controlDirectRx;
  std::uint16_t multicastSendVci;
  std::uint8_t reserved54[2];
  std::uint32_t multicastSendTx;
  std::uint32_t multicastSendRx;
};
static_assert(sizeof(les_tbl) == 64 && offsetof(les_tbl, address) == 8 &&
              offsetof(les_tbl, state) == 36 && offsetof(les_tbl, controlDirectVci) == 40 &&
              offsetof(les_tbl, controlDirectTx) == 44 &&
              offsetof(les_tbl, multicastSendVci) == 52 &&
              offsetof(les_tbl, multicastSendTx) == 56);

// ---- LAN Emulation configuration server

struct lecs_state {
  std::uint32_t state;  // 0 off, 4 operational
  std::uint32_t reserved4;
};
static_assert(sizeof(lecs_state) == 8);

struct lecs_stats {
  std::uint8_t address[20];
  std::uint8_t elanType;
  std::uint8_t etherMtuType;
  std::uint8_t tokenRingMtuType;
  std::uint8_t reserved23;
  std::uint32_t registered;  // nonzero when its address is
  std::uint32_t validRequests;
  std::uint32_t invalidRequests;
  std::uint32_t rejectedRequests;
  std::uint32_t connectionsMade;
  std::uint32_t connectionsOpen;
};
static_assert(sizeof(lecs_stats) == 48 && offsetof(lecs_stats, registered) == 24 &&
              offsetof(lecs_stats, connectionsOpen) == 44);

// A client mapping.
enum class Mapping : std::uint8_t {
  configured = 1,
  learnt = 2,  // by the running server itself: the configuration does not hold it
};
struct lecs_tbl {
  std::uint8_t esiSelector[7];
  std::uint8_t les;  // index of its server
  Mapping kind;
};
static_assert(sizeof(lecs_tbl) == 9 && offsetof(lecs_tbl, les) == 7);

// ---- IP over ATM

struct ip_state {
  std::uint32_t state;  // 0 off, 5 operational
  std::uint32_t reserved4[3];
};
static_assert(sizeof(ip_state) == 16);

// Counters by what became of a packet; those of an array are shown as their sum, receivedOther with
// received.
struct ip_stats {
  std::uint32_t reserved0[12];
  std::uint32_t transmitted[2];
  std::uint32_t reserved56[3];
  std::uint32_t txDropped[3];
  std::uint32_t received[2];
  std::uint32_t rxDropped[9];
  std::uint32_t receivedOther;
  std::uint32_t reserved128[8];
};
static_assert(sizeof(ip_stats) == 160 && offsetof(ip_stats, transmitted) == 48 &&
              offsetof(ip_stats, txDropped) == 68 && offsetof(ip_stats, received) == 80 &&
              offsetof(ip_stats, rxDropped) == 88 && offsetof(ip_stats, receivedOther) == 124);

// A connection of the IP client.
struct ip_tbl {
  std::uint16_t state;           // LmacStateToString
  std::uint16_t connectionKind;  // 1 switched, otherwise a PVC
  std::uint8_t reserved4[8];
  std::uint16_t vci;
  std::uint8_t reserved14[6];
  std::uint32_t txPackets;
  std::uint32_t rxPackets;
  std::uint8_t reserved28[2];
  std::uint8_t ipAddress[4];
  std::uint8_t address[20];
  std::uint8_t reserved54[2];
};
static_assert(sizeof(ip_tbl) == 56 && offsetof(ip_tbl, vci) == 12 &&
              offsetof(ip_tbl, txPackets) == 20 && offsetof(ip_tbl, ipAddress) == 30 &&
              offsetof(ip_tbl, address) == 34);

// A PVC of the IP service as the driver lists it; its fields are the driver's own.
struct ip_pvc_tbl {
  std::uint8_t bytes[20];
};
static_assert(sizeof(ip_pvc_tbl) == 20);

// ---- Signalling

struct sig_link_state {
  std::uint8_t reserved0[2];
  std::uint8_t ilmi;        // IlmiStateToString
  std::uint8_t saal;        // SaalStateToString
  std::uint8_t signalling;  // SigStateToString
  std::uint8_t reserved5[4];
  std::uint8_t address[20];  // as ILMI registered it
  std::uint8_t reserved29[235];
};
static_assert(sizeof(sig_link_state) == 264 && offsetof(sig_link_state, ilmi) == 2 &&
              offsetof(sig_link_state, address) == 9);
