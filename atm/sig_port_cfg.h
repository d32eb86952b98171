// The signalling record of a board's port: what the configuration file's signalling sections fill
// and the driver is handed, in the driver's layout. Integers are little-endian; timers are in the
// driver's units and passed on as they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "atm/address.h"

// Protocol code of a UNI version.
enum UniCode : std::int32_t { uniCode30 = 2, uniCode31 = 3, uniCode40 = 4 };

// Initial values are those of a board that the file says nothing of. "In the low byte" marks bytes
// that the driver's record aligns to a word.
struct sigPortCfg_s {
  std::uint8_t runFlag = 1;
  std::uint8_t updateFlag = 0;  // 1 in a frame that updates the record
  std::uint8_t port = 0;        // adapter
  std::uint8_t DaiAdminStatus = 1;
  std::uint32_t runFlag4 = 0;  // in the low byte

  // Q.2931 call control.
  std::int32_t UniRevision = uniCode30;
  std::uint16_t SvcRangeStartVci = 32;
  std::uint16_t SvcRangeEndVci = 1023;
  std::uint16_t PvcRangeStartVci = 0;
  std::uint16_t PvcRangeEndVci = 0;
  std::uint16_t SigVpciNumber = 0;
  std::uint16_t SigVciNumber = 5;
  std::int32_t SigTmrT301 = 180;
  std::int32_t SigTmrT303 = 4;
  std::int32_t SigTmrT304 = 20;
  std::int32_t SigTmrT308 = 30;
  std::int32_t timer40 = 10;  // no key sets it
  std::int32_t SigTmrT313 = 4;
  std::int32_t SigTmrT322 = 4;
  std::int32_t SigTmrT309 = 90;
  std::int32_t SigTmrTCon = 20;
  std::int32_t SigTmrTRecon = 5;
  std::int32_t SigTmrTDisc = 20;
  std::int32_t SigTmrT316 = 120;
  std::int32_t SigTmrT316c = 60;
  std::int32_t SigTmrT316p = 60;
  std::int32_t SigTmrT397 = 180;
  std::int32_t SigTmrT398 = 4;
  std::int32_t SigTmrT399 = 14;
  std::int32_t SigTmrT331 = 60;

  // The signalling channel's traffic, rates in cells per second.
  std::uint32_t SigVcRateServCat = 6;  // in the low byte
  std::int32_t SigVcPeakCellRate_0 = 0;
  std::int32_t SigVcPeakCellRate_01 = 2825660;
  std::int32_t SigVcSustCellRate_0 = 0;
  std::int32_t SigVcSustCellRate_01 = 0;
  std::int32_t SigVcMaxBurstSize_0 = 0;
  std::int32_t SigVcMaxBurstSize_01 = 0;
  std::int32_t sigVcLimits[2] = {65535, 65536};  // no key sets them

  // QSAAL, the signalling channel's assured transport.
  std::int32_t QSaalMaxCC = 4;
  std::int32_t QSaalMaxPD = 25;
  std::int32_t QSaalMaxSTAMT = 67;
  std::int32_t QSaalTmrPoll = 7;
  std::int32_t QSaalTmrKeepAlive = 20;
  std::int32_t QSaalTmrNoResponse = 70;
  std::int32_t QSaalTmrCC = 10;
  std::int32_t QSaalTmrIdle = 150;

  // ILMI, the interim local management interface.
  std::uint8_t AddressRegistration = 1;
  std::uint8_t PortChangeDetect = 1;
  std::uint8_t RegDiffNetPrefix = 0;
  std::uint8_t IlmiEnableAutoConfig = 1;
  std::uint32_t IlmiSNMPRetries = 5;  // in the low byte
  std::int32_t IlmiILMIRev = 1;
  std::int32_t IlmiTmrSNMPRetry = 50;
  std::int32_t IlmiTmrILMIPortDetect = 100;
  std::int32_t IlmiTmrNoNetPrefixSet = 100;
  std::uint8_t addressHead[2] = {0x10, 0x00};
  std::uint8_t addressForm = 0x09;    // 2 once a prefix has been set
  std::uint8_t addressLength = 0x0D;  // bytes of NetPrefix that count
  std::uint8_t NetPrefix[networkPrefixBytes] = {0x47};
  std::uint8_t reserved205[7] = {};
  std::uint32_t IlmiLmisigVCServCat = 6;  // in the low byte
  std::int32_t IlmiPeakCellRate_0 = 0;
  std::int32_t IlmiPeakCellRate_01 = 2825660;
  std::int32_t IlmiSustCellRate_0 = 0;
  std::int32_t IlmiSustCellRate_01 = 0;
  std::int32_t IlmiMaxBurstSize_0 = 0;
  std::int32_t IlmiMaxBurstSize_01 = 0;
  std::int32_t ilmiVcLimits[2] = {65535, 65536};  // no key sets them
  std::uint8_t reserved248[16] = {};
};

static_assert(sizeof(sigPortCfg_s) == 264);
static_assert(std::is_standard_layout_v<sigPortCfg_s> &&
              std::is_trivially_copyable_v<sigPortCfg_s>);
static_assert(offsetof(sigPortCfg_s, port) == 2 && offsetof(sigPortCfg_s, DaiAdminStatus) == 3);
static_assert(offsetof(sigPortCfg_s, UniRevision) == 8);
static_assert(offsetof(sigPortCfg_s, SvcRangeStartVci) == 12);
static_assert(offsetof(sigPortCfg_s, SigVpciNumber) == 20);
static_assert(offsetof(sigPortCfg_s, SigTmrT301) == 24);
static_assert(offsetof(sigPortCfg_s, timer40) == 40 && offsetof(sigPortCfg_s, SigTmrT313) == 44);
static_assert(offsetof(sigPortCfg_s, SigTmrT331) == 92);
static_assert(offsetof(sigPortCfg_s, SigVcRateServCat) == 96);
static_assert(offsetof(sigPortCfg_s, SigVcPeakCellRate_0) == 100);
static_assert(offsetof(sigPortCfg_s, sigVcLimits) == 124);
static_assert(offsetof(sigPortCfg_s, QSaalMaxCC) == 132);
static_assert(offsetof(sigPortCfg_s, AddressRegistration) == 164);
static_assert(offsetof(sigPortCfg_s, IlmiEnableAutoConfig) == 167);
static_assert(offsetof(sigPortCfg_s, IlmiSNMPRetries) == 168);
static_assert(offsetof(sigPortCfg_s, IlmiILMIRev) == 172);
static_assert(offsetof(sigPortCfg_s, addressHead) == 188);
static_assert(offsetof(sigPortCfg_s, NetPrefix) == 192);
static_assert(offsetof(sigPortCfg_s, IlmiLmisigVCServCat) == 212);
static_assert(offsetof(sigPortCfg_s, IlmiPeakCellRate_0) == 216);
static_assert(offsetof(sigPortCfg_s, ilmiVcLimits) == 240);
static_assert(offsetof(sigPortCfg_s, reserved248) == 248);
