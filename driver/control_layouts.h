// The fields of the control requests' payloads: name, place and reading, in the order in which they
// stand in the frame.
#pragma once

#include "driver/control_records.h"
#include "driver/record_layout.h"
#include "driver/value_words.h"

// clang-format off
inline constexpr RecordField lecReqFields[] = {
    RECORD_FIELD(lecReqStruct, lecs, 0, "LECS", FieldKind::words, words::offOn),
    RECORD_FIELD(lecReqStruct, address, 4, "address", FieldKind::atmAddress),
    RECORD_FIELD(lecReqStruct, mfs, 24, "MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lecReqStruct, elanName, 28, "ELAN", FieldKind::text),
    RECORD_FIELD(lecReqStruct, elanType, 60, "ELAN type", FieldKind::words, words::clientElanTypes),
    RECORD_FIELD(lecReqStruct, config, 64, "PVC only", FieldKind::words, words::offOn),
    RECORD_FIELD(lecReqStruct, l3Mtu, 68, "layer 3 MTU", FieldKind::number),
    RECORD_FIELD(lecReqStruct, defaultPcr, 72, "default PCR", FieldKind::number),
};
static_assert(isLaidOut<lecReqStruct>(lecReqFields, true));

inline constexpr RecordField bdgPvcReqFields[] = {
    RECORD_FIELD(bdgPvcReqStruct, macAddress, 0, "MAC", FieldKind::macAddress),
    RECORD_FIELD(bdgPvcReqStruct, vcIndex, 6, "VC", FieldKind::number),
    RECORD_FIELD(bdgPvcReqStruct, encapsulation, 8, "encapsulation", FieldKind::words, words::encapsulations),
    RECORD_FIELD(bdgPvcReqStruct, broadcast, 9, "broadcast", FieldKind::words, words::offOn),
    RECORD_FIELD(bdgPvcReqStruct, reserved, 10, "reserved", FieldKind::reserved),
};
static_assert(isLaidOut<bdgPvcReqStruct>(bdgPvcReqFields, true));

inline constexpr RecordField lesReqFields[] = {
    RECORD_FIELD(lesReqStruct, elanName, 0, "ELAN", FieldKind::text),
    RECORD_FIELD(lesReqStruct, elanNameStrict, 32, "name strict", FieldKind::words, words::offOn),
    RECORD_FIELD(lesReqStruct, mfs, 36, "MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lesReqStruct, mfsStrict, 40, "MTU strict", FieldKind::words, words::offOn),
    RECORD_FIELD(lesReqStruct, elanType, 44, "ELAN type", FieldKind::words, words::serverElanTypes),
    RECORD_FIELD(lesReqStruct, reserved, 48, "reserved", FieldKind::reserved),
};
static_assert(isLaidOut<lesReqStruct>(lesReqFields, true));

inline constexpr RecordField lecsReqFields[] = {
    RECORD_FIELD(lecs_req, address, 0, "address", FieldKind::atmAddress),
    RECORD_FIELD(lecs_req, elanType, 20, "ELAN type", FieldKind::words, words::serverElanTypes),
    RECORD_FIELD(lecs_req, etherMfs, 24, "Ethernet MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lecs_req, tokenRingMfs, 28, "Token Ring MTU", FieldKind::words, words::frameSizes),
    RECORD_FIELD(lecs_req, esiSelector, 32, "ESI/selector", FieldKind::esiSelector),
    RECORD_FIELD(lecs_req, reserved, 39, "reserved", FieldKind::reserved),
    RECORD_FIELD(lecs_req, index, 40, "index", FieldKind::number),
};
static_assert(isLaidOut<lecs_req>(lecsReqFields, true));

inline constexpr RecordField ip1577ReqFields[] = {
    RECORD_FIELD(ip1577ReqStruct, reserved0, 0, "reserved", FieldKind::reserved),
    RECORD_FIELD(ip1577ReqStruct, reserved2, 2, "reserved", FieldKind::reserved),
    RECORD_FIELD(ip1577ReqStruct, serverIpAddress, 4, "ARP server", FieldKind::ipNumber),
    RECORD_FIELD(ip1577ReqStruct, serverIpMask, 8, "mask", FieldKind::ipNumber),
    RECORD_FIELD(ip1577ReqStruct, ipAddress, 12, "IP", FieldKind::ipNumber),
    RECORD_FIELD(ip1577ReqStruct, address, 16, "ARP server address", FieldKind::atmAddress),
    RECORD_FIELD(ip1577ReqStruct, config, 36, "PVC only", FieldKind::words, words::offOn),
};
static_assert(isLaidOut<ip1577ReqStruct>(ip1577ReqFields, true));

inline constexpr RecordField rtdPvcReqFields[] = {
    RECORD_FIELD(ip_pvc, ipAddress, 0, "IP", FieldKind::ipBytes),
    RECORD_FIELD(ip_pvc, vcIndex, 4, "VC", FieldKind::number),
    RECORD_FIELD(ip_pvc, encapsulation, 6, "encapsulation", FieldKind::words, words::encapsulations),
    RECORD_FIELD(ip_pvc, reserved, 7, "reserved", FieldKind::reserved),
};
static_assert(isLaidOut<ip_pvc>(rtdPvcReqFields, true));

inline constexpr RecordField sigPortReqFields[] = {
    RECORD_FIELD(sig_port_req, run, 0, "run", FieldKind::number),
    RECORD_FIELD(sig_port_req, port, 1, "port", FieldKind::number),
    RECORD_FIELD(sig_port_req, state, 2, "state", FieldKind::words, words::portStates),
};
static_assert(isLaidOut<sig_port_req>(sigPortReqFields, true));

inline constexpr RecordField sigTraceReqFields[] = {
    RECORD_FIELD(sig_trace_req, reserved, 0, "reserved", FieldKind::reserved),
    RECORD_FIELD(sig_trace_req, selector, 1, "trace", FieldKind::words, words::traceSelectors),
    RECORD_FIELD(sig_trace_req, state, 2, "state", FieldKind::words, words::offOn),
};
static_assert(isLaidOut<sig_trace_req>(sigTraceReqFields, true));

inline constexpr RecordField rlsReqFields[] = {
    RECORD_FIELD(rls_req, primary, 0, "board type", FieldKind::words, words::boardTypes),
    RECORD_FIELD(rls_req, backup, 4, "backup", FieldKind::signedNumber),
    RECORD_FIELD(rls_req, autoSwitch, 8, "auto-switch", FieldKind::words, words::offOn),
};
static_assert(isLaidOut<rls_req>(rlsReqFields, true));

inline constexpr RecordField enhancedFields[] = {
    RECORD_FIELD(word_req, value, 0, "enhanced VC", FieldKind::words, words::offOn),
};
inline constexpr RecordField framingFields[] = {
    RECORD_FIELD(word_req, value, 0, "framing", FieldKind::words, words::framings),
};
inline constexpr RecordField vpiFields[] = {
    RECORD_FIELD(word_req, value, 0, "VPI", FieldKind::number),
};

#define SIG_FIELD(member, ...) RECORD_FIELD(sigPortCfg_s, member, __VA_ARGS__)
inline constexpr RecordField sigPortCfgFields[] = {
    SIG_FIELD(runFlag, 0, "run flag", FieldKind::number),
    SIG_FIELD(updateFlag, 1, "update", FieldKind::number),
    SIG_FIELD(port, 2, "port", FieldKind::number),
    SIG_FIELD(DaiAdminStatus, 3, "DaiAdminStatus", FieldKind::number),
    SIG_FIELD(runFlag4, 4, "run flag 2", FieldKind::number),
    SIG_FIELD(UniRevision, 8, "UNI", FieldKind::words, words::uniCodes),
    SIG_FIELD(SvcRangeStartVci, 12, "SvcRangeStartVci", FieldKind::number),
    SIG_FIELD(SvcRangeEndVci, 14, "SvcRangeEndVci", FieldKind::number),
    SIG_FIELD(PvcRangeStartVci, 16, "PvcRangeStartVci", FieldKind::number),
    SIG_FIELD(PvcRangeEndVci, 18, "PvcRangeEndVci", FieldKind::number),
    SIG_FIELD(SigVpciNumber, 20, "SigVpciNumber", FieldKind::number),
    SIG_FIELD(SigVciNumber, 22, "SigVciNumber", FieldKind::number),
    SIG_FIELD(SigTmrT301, 24, "SigTmrT301", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT303, 28, "SigTmrT303", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT304, 32, "SigTmrT304", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT308, 36, "SigTmrT308", FieldKind::signedNumber),
    SIG_FIELD(timer40, 40, "timer 40", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT313, 44, "SigTmrT313", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT322, 48, "SigTmrT322", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT309, 52, "SigTmrT309", FieldKind::signedNumber),
    SIG_FIELD(SigTmrTCon, 56, "SigTmrTCon", FieldKind::signedNumber),
    SIG_FIELD(SigTmrTRecon, 60, "SigTmrTRecon", FieldKind::signedNumber),
    SIG_FIELD(SigTmrTDisc, 64, "SigTmrTDisc", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT316, 68, "SigTmrT316", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT316c, 72, "SigTmrT316c", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT316p, 76, "SigTmrT316p", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT397, 80, "SigTmrT397", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT398, 84, "SigTmrT398", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT399, 88, "SigTmrT399", FieldKind::signedNumber),
    SIG_FIELD(SigTmrT331, 92, "SigTmrT331", FieldKind::signedNumber),
    SIG_FIELD(SigVcRateServCat, 96, "SigVcRateServCat", FieldKind::number),
    SIG_FIELD(SigVcPeakCellRate_0, 100, "SigVcPeakCellRate_0", FieldKind::signedNumber),
    SIG_FIELD(SigVcPeakCellRate_01, 104, "SigVcPeakCellRate_01", FieldKind::signedNumber),
    SIG_FIELD(SigVcSustCellRate_0, 108, "SigVcSustCellRate_0", FieldKind::signedNumber),
    SIG_FIELD(SigVcSustCellRate_01, 112, "SigVcSustCellRate_01", FieldKind::signedNumber),
    SIG_FIELD(SigVcMaxBurstSize_0, 116, "SigVcMaxBurstSize_0", FieldKind::signedNumber),
    SIG_FIELD(SigVcMaxBurstSize_01, 120, "SigVcMaxBurstSize_01", FieldKind::signedNumber),
    SIG_FIELD(sigVcLimits, 124, "signalling VC limits", FieldKind::wordList),
    SIG_FIELD(QSaalMaxCC, 132, "QSaalMaxCC", FieldKind::signedNumber),
    SIG_FIELD(QSaalMaxPD, 136, "QSaalMaxPD", FieldKind::signedNumber),
    SIG_FIELD(QSaalMaxSTAMT, 140, "QSaalMaxSTAMT", FieldKind::signedNumber),
    SIG_FIELD(QSaalTmrPoll, 144, "QSaalTmrPoll", FieldKind::signedNumber),
    SIG_FIELD(QSaalTmrKeepAlive, 148, "QSaalTmrKeepAlive", FieldKind::signedNumber),
    SIG_FIELD(QSaalTmrNoResponse, 152, "QSaalTmrNoResponse", FieldKind::signedNumber),
    SIG_FIELD(QSaalTmrCC, 156, "QSaalTmrCC", FieldKind::signedNumber),
    SIG_FIELD(QSaalTmrIdle, 160, "QSaalTmrIdle", FieldKind::signedNumber),
    SIG_FIELD(AddressRegistration, 164, "AddressRegistration", FieldKind::number),
    SIG_FIELD(PortChangeDetect, 165, "PortChangeDetect", FieldKind::number),
    SIG_FIELD(RegDiffNetPrefix, 166, "RegDiffNetPrefix", FieldKind::number),
    SIG_FIELD(IlmiEnableAutoConfig, 167, "IlmiEnableAutoConfig", FieldKind::number),
    SIG_FIELD(IlmiSNMPRetries, 168, "IlmiSNMPRetries", FieldKind::number),
    SIG_FIELD(IlmiILMIRev, 172, "IlmiILMIRev", FieldKind::signedNumber),
    SIG_FIELD(IlmiTmrSNMPRetry, 176, "IlmiTmrSNMPRetry", FieldKind::signedNumber),
    SIG_FIELD(IlmiTmrILMIPortDetect, 180, "IlmiTmrILMIPortDetect", FieldKind::signedNumber),
    SIG_FIELD(IlmiTmrNoNetPrefixSet, 184, "IlmiTmrNoNetPrefixSet", FieldKind::signedNumber),
    SIG_FIELD(addressHead, 188, "address head", FieldKind::hex),
    SIG_FIELD(addressForm, 190, "address form", FieldKind::number),
    SIG_FIELD(addressLength, 191, "address length", FieldKind::number),
    SIG_FIELD(NetPrefix, 192, "NetPrefix", FieldKind::networkPrefix),
    SIG_FIELD(reserved205, 205, "reserved", FieldKind::reserved),
    SIG_FIELD(IlmiLmisigVCServCat, 212, "IlmiLmisigVCServCat", FieldKind::number),
    SIG_FIELD(IlmiPeakCellRate_0, 216, "IlmiPeakCellRate_0", FieldKind::signedNumber),
    SIG_FIELD(IlmiPeakCellRate_01, 220, "IlmiPeakCellRate_01", FieldKind::signedNumber),
    SIG_FIELD(IlmiSustCellRate_0, 224, "IlmiSustCellRate_0", FieldKind::signedNumber),
    SIG_FIELD(IlmiSustCellRate_01, 228, "IlmiSustCellRate_01", FieldKind::signedNumber),
    SIG_FIELD(IlmiMaxBurstSize_0, 232, "IlmiMaxBurstSize_0", FieldKind::signedNumber),
    SIG_FIELD(IlmiMaxBurstSize_01, 236, "IlmiMaxBurstSize_01", FieldKind::signedNumber),
    SIG_FIELD(ilmiVcLimits, 240, "ILMI VC limits", FieldKind::wordList),
    SIG_FIELD(reserved248, 248, "reserved", FieldKind::reserved),
};
#undef SIG_FIELD
static_assert(isLaidOut<sigPortCfg_s>(sigPortCfgFields, true));
// clang-format on
