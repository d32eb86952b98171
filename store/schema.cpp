#include "store/schema.h"

#include <type_traits>

#include "atm/devices.h"

// Where a member stands in its record, and its size.
#define FIELD(Record, member) offsetof(Record, member), sizeof(Record::member)

static_assert(std::is_standard_layout_v<AtmDevices> && std::is_standard_layout_v<AtmPhy> &&
              std::is_standard_layout_v<AtmSig> && std::is_standard_layout_v<AtmLEC> &&
              std::is_standard_layout_v<AtmLES> && std::is_standard_layout_v<AtmLECS> &&
              std::is_standard_layout_v<AtmIP1577>);

namespace {

using enum KeyForm;

constexpr SchemaKey globalSig[] = {
    {"DaiRev", T_CHAR, number, FIELD(AtmDevices, DaiRev)},
    {"MaxUsrSaps", T_SHORT, number, FIELD(AtmDevices, MaxUsrSaps)},
    {"MaxMptEndpts", T_LONG, number, FIELD(AtmDevices, MaxMptEndpts)},
    {"MaxPtToMpt", T_LONG, number, FIELD(AtmDevices, MaxPtToMpt)},
    {"MaxPtToPt", T_LONG, number, FIELD(AtmDevices, MaxPtToPt)},
};

constexpr SchemaKey physical[] = {
    {"InterruptNumber", T_LONG, number, FIELD(AtmPhy, InterruptNumber)},
    {"Framing", T_LONG, number, FIELD(AtmPhy, Framing)},
    {"VPI", T_LONG, number, FIELD(AtmPhy, VPI)},
};

constexpr SchemaKey redundantLink[] = {
    {"RLPrimary", T_INT, number, FIELD(AtmPhy, RLPrimary)},
    {"RLBackup", T_INT, number, FIELD(AtmPhy, RLBackup)},
    {"RLAutoSwitch", T_INT, number, FIELD(AtmPhy, RLAutoSwitch)},
};

constexpr SchemaKey lec[] = {
    {"Enabled", T_LONG, number, FIELD(AtmLEC, Enabled)},
    {"Config", T_LONG, number, FIELD(AtmLEC, Config)},
    {"EnhancedVC", T_LONG, number, FIELD(AtmLEC, EnhancedVC)},
    {"Default_UBR_PCR", T_LONG, number, FIELD(AtmLEC, defaultPcr.cps)},
    {"DefUBRPCR_Units", T_LONG, number, FIELD(AtmLEC, defaultPcr.units)},
    {"Mfs", T_LONG, number, FIELD(AtmLEC, Mfs)},
    {"L3Mtu", T_LONG, number, FIELD(AtmLEC, L3Mtu)},
    {"ElanType", T_LONG, number, FIELD(AtmLEC, ElanType)},
    {"Lecs", T_LONG, number, FIELD(AtmLEC, Lecs)},
    {"ElanName", T_STRING, text, FIELD(AtmLEC, ElanName)},
    {"AtmPrefix", T_HEX, networkPrefix, FIELD(AtmLEC, address)},
    {"AtmEsiSel", T_HEX, esiAndSelector, FIELD(AtmLEC, address)},
    {"PvcConfFile", T_STRING, sideFile, FIELD(AtmLEC, PvcConfFile)},
};

constexpr SchemaKey les[] = {
    {"Enabled", T_LONG, number, FIELD(AtmLES, Enabled)},
    {"Mfs", T_LONG, number, FIELD(AtmLES, Mfs)},
    {"MfsStrict", T_LONG, number, FIELD(AtmLES, MfsStrict)},
    {"ElanNameStrict", T_LONG, number, FIELD(AtmLES, ElanNameStrict)},
    {"ElanName", T_STRING, text, FIELD(AtmLES, ElanName)},
    {"ElanType", T_LONG, number, FIELD(AtmLES, ElanType)},
    {"ElanTbl", T_STRING, sideFile, FIELD(AtmLES, ElanTbl)},
};

constexpr SchemaKey lecs[] = {
    {"AtmPrefix", T_HEX, networkPrefix, FIELD(AtmLECS, address)},
    {"AtmEsiSel", T_HEX, esiAndSelector, FIELD(AtmLECS, address)},
    {"Enabled", T_LONG, number, FIELD(AtmLECS, Enabled)},
    {"EtherMfs", T_LONG, number, FIELD(AtmLECS, EtherMfs)},
    {"TRMfs", T_LONG, number, FIELD(AtmLECS, TRMfs)},
    {"ElanType", T_LONG, number, FIELD(AtmLECS, ElanType)},
};

constexpr SchemaKey ip1577[] = {
    {"AtmPrefix", T_HEX, networkPrefix, FIELD(AtmIP1577, address)},
    {"AtmEsiSel", T_HEX, esiAndSelector, FIELD(AtmIP1577, address)},
    {"Enabled", T_LONG, number, FIELD(AtmIP1577, Enabled)},
    {"Config", T_LONG, number, FIELD(AtmIP1577, Config)},
    {"ServerIPAddress", T_STRING, text, FIELD(AtmIP1577, ServerIPAddress)},
    {"ServerIPMask", T_STRING, text, FIELD(AtmIP1577, ServerIPMask)},
    {"IPAddress", T_STRING, text, FIELD(AtmIP1577, IPAddress)},
    {"PvcConfFile", T_STRING, sideFile, FIELD(AtmIP1577, PvcConfFile)},
};

constexpr SchemaKey signalling[] = {
    {"Enabled", T_LONG, number, FIELD(AtmSig, Enabled)},
    {"UniRev", T_LONG, number, FIELD(AtmSig, UniRev)},
};

constexpr SchemaKey q2931[] = {
    {"SvcRangeStartVci", T_SHORT, number, FIELD(sigPortCfg_s, SvcRangeStartVci)},
    {"SvcRangeEndVci", T_SHORT, number, FIELD(sigPortCfg_s, SvcRangeEndVci)},
    {"PvcRangeStartVci", T_SHORT, number, FIELD(sigPortCfg_s, PvcRangeStartVci)},
    {"PvcRangeEndVci", T_SHORT, number, FIELD(sigPortCfg_s, PvcRangeEndVci)},
    {"SigVpciNumber", T_CHAR, number, FIELD(sigPortCfg_s, SigVpciNumber)},
    {"SigVciNumber", T_CHAR, number, FIELD(sigPortCfg_s, SigVciNumber)},
    {"SigTmrT301", T_INT, number, FIELD(sigPortCfg_s, SigTmrT301)},
    {"SigTmrT303", T_INT, number, FIELD(sigPortCfg_s, SigTmrT303)},
    {"SigTmrT304", T_INT, number, FIELD(sigPortCfg_s, SigTmrT304)},
    {"SigTmrT308", T_INT, number, FIELD(sigPortCfg_s, SigTmrT308)},
    {"SigTmrT313", T_INT, number, FIELD(sigPortCfg_s, SigTmrT313)},
    {"SigTmrT322", T_INT, number, FIELD(sigPortCfg_s, SigTmrT322)},
    {"SigTmrT309", T_INT, number, FIELD(sigPortCfg_s, SigTmrT309)},
    {"SigTmrTCon", T_INT, number, FIELD(sigPortCfg_s, SigTmrTCon)},
    {"SigTmrTRecon", T_INT, number, FIELD(sigPortCfg_s, SigTmrTRecon)},
    {"SigTmrTDisc", T_INT, number, FIELD(sigPortCfg_s, SigTmrTDisc)},
    {"SigTmrT316", T_INT, number, FIELD(sigPortCfg_s, SigTmrT316)},
    {"SigTmrT316p", T_INT, number, FIELD(sigPortCfg_s, SigTmrT316p)},
    {"SigTmrT316c", T_INT, number, FIELD(sigPortCfg_s, SigTmrT316c)},
    {"SigTmrT397", T_INT, number, FIELD(sigPortCfg_s, SigTmrT397)},
    {"SigTmrT398", T_INT, number, FIELD(sigPortCfg_s, SigTmrT398)},
    {"SigTmrT399", T_INT, number, FIELD(sigPortCfg_s, SigTmrT399)},
    {"SigTmrT331", T_INT, number, FIELD(sigPortCfg_s, SigTmrT331)},
    {"SigVcRateServCat", T_CHAR, number, FIELD(sigPortCfg_s, SigVcRateServCat)},
    {"SigVcPeakCellRate_0", T_INT, number, FIELD(sigPortCfg_s, SigVcPeakCellRate_0)},
    {"SigVcPeakCellRate_01", T_INT, number, FIELD(sigPortCfg_s, SigVcPeakCellRate_01)},
    {"SigVcSustCellRate_0", T_INT, number, FIELD(sigPortCfg_s, SigVcSustCellRate_0)},
    {"SigVcSustCellRate_01", T_INT, number, FIELD(sigPortCfg_s, SigVcSustCellRate_01)},
    {"SigVcMaxBurstSize_0", T_INT, number, FIELD(sigPortCfg_s, SigVcMaxBurstSize_0)},
    {"SigVcMaxBurstSize_01", T_INT, number, FIELD(sigPortCfg_s, SigVcMaxBurstSize_01)},
};

constexpr SchemaKey qSaal[] = {
    {"QSaalMaxCC", T_INT, number, FIELD(sigPortCfg_s, QSaalMaxCC)},
    {"QSaalMaxPD", T_INT, number, FIELD(sigPortCfg_s, QSaalMaxPD)},
    {"QSaalMaxSTAMT", T_INT, number, FIELD(sigPortCfg_s, QSaalMaxSTAMT)},
    {"QSaalTmrPoll", T_INT, number, FIELD(sigPortCfg_s, QSaalTmrPoll)},
    {"QSaalTmrKeepAlive", T_INT, number, FIELD(sigPortCfg_s, QSaalTmrKeepAlive)},
    {"QSaalTmrNoResponse", T_INT, number, FIELD(sigPortCfg_s, QSaalTmrNoResponse)},
    {"QSaalTmrCC", T_INT, number, FIELD(sigPortCfg_s, QSaalTmrCC)},
    {"QSaalTmrIdle", T_INT, number, FIELD(sigPortCfg_s, QSaalTmrIdle)},
};

constexpr SchemaKey ilmi[] = {
    {"IlmiEnableAutoConfig", T_CHAR, number, FIELD(sigPortCfg_s, IlmiEnableAutoConfig)},
    {"IlmiSNMPRetries", T_INT, number, offsetof(sigPortCfg_s, IlmiSNMPRetries), 1},
    {"IlmiILMIRev", T_INT, number, FIELD(sigPortCfg_s, IlmiILMIRev)},
    {"IlmiTmrSNMPRetry", T_INT, number, FIELD(sigPortCfg_s, IlmiTmrSNMPRetry)},
    {"IlmiTmrILMIPortDetect", T_INT, number, FIELD(sigPortCfg_s, IlmiTmrILMIPortDetect)},
    {"IlmiTmrNoNetPrefixSet", T_INT, number, FIELD(sigPortCfg_s, IlmiTmrNoNetPrefixSet)},
    {"IlmiLmisigVCServCat", T_CHAR, number, FIELD(sigPortCfg_s, IlmiLmisigVCServCat)},
    {"IlmiPeakCellRate_0", T_INT, number, FIELD(sigPortCfg_s, IlmiPeakCellRate_0)},
    {"IlmiPeakCellRate_01", T_INT, number, FIELD(sigPortCfg_s, IlmiPeakCellRate_01)},
    {"IlmiSustCellRate_0", T_INT, number, FIELD(sigPortCfg_s, IlmiSustCellRate_0)},
    {"IlmiSustCellRate_01", T_INT, number, FIELD(sigPortCfg_s, IlmiSustCellRate_01)},
    {"IlmiMaxBurstSize_0", T_INT, number, FIELD(sigPortCfg_s, IlmiMaxBurstSize_0)},
    {"IlmiMaxBurstSize_01", T_INT, number, FIELD(sigPortCfg_s, IlmiMaxBurstSize_01)},
};

// A member of the driver's record inside AtmSig.
#define CFG_FIELD(member) \
  offsetof(AtmSig, cfg) + offsetof(sigPortCfg_s, member), sizeof(sigPortCfg_s::member)

constexpr SchemaKey signallingOut[] = {
    {"NetPrefix", T_STRING, sigPrefix, 0, sizeof(AtmSig)},
    {"Enabled", T_LONG, number, FIELD(AtmSig, Enabled)},
    {"UniRev", T_LONG, number, FIELD(AtmSig, UniRev)},
    {"AddressRegistration", T_CHAR, number, CFG_FIELD(AddressRegistration)},
    {"PortChangeDetect", T_CHAR, number, CFG_FIELD(PortChangeDetect)},
    {"RegDiffNetPrefix", T_CHAR, number, CFG_FIELD(RegDiffNetPrefix)},
};

constexpr SchemaKey q2931Out[] = {
    {"UniRev", T_LONG, number, CFG_FIELD(UniRevision)},
};

// The first three are for another reader of the file.
constexpr SchemaKey ilmiOut[] = {
    {"ILMIEnableAddressReg", T_CHAR, number, CFG_FIELD(AddressRegistration)},
    {"IlmiEnablePortDetect", T_CHAR, number, CFG_FIELD(PortChangeDetect)},
    {"IlmiEnableNonStdPrefixReg", T_CHAR, number, CFG_FIELD(RegDiffNetPrefix)},
    {"IlmiEnableAutoConfig", T_CHAR, number, CFG_FIELD(IlmiEnableAutoConfig)},
};

// Numbers are written out of their fields, so these have their types' widths.
constexpr bool fieldsFit(std::span<const SchemaKey> keys) {
  for (const SchemaKey& key : keys) {
    const std::size_t width = key.type == T_CHAR ? 1 : key.type == T_SHORT ? 2 : 4;
    if (key.form == number && key.width != width) return false;
  }
  return true;
}
static_assert(fieldsFit(physical) && fieldsFit(redundantLink) && fieldsFit(lec) && fieldsFit(les) &&
              fieldsFit(lecs) && fieldsFit(ip1577) && fieldsFit(signallingOut) &&
              fieldsFit(q2931Out) && fieldsFit(ilmiOut));

constexpr UniVersion versions[] = {{30, uniCode30}, {31, uniCode31}, {40, uniCode40}};

}  // namespace

std::string adapterPath(short adapter) {
  return "/Adapter" + std::to_string(adapter);
}

std::string servicePath(short adapter, const char* service, int instance) {
  return adapterPath(adapter) + '/' + service + std::to_string(instance);
}

const std::span<const SchemaKey> globalSigKeys = globalSig;
const std::span<const SchemaKey> physicalKeys = physical;
const std::span<const SchemaKey> redundantLinkKeys = redundantLink;
const std::span<const SchemaKey> lecKeys = lec;
const std::span<const SchemaKey> lesKeys = les;
const std::span<const SchemaKey> lecsKeys = lecs;
const std::span<const SchemaKey> ip1577Keys = ip1577;
const std::span<const SchemaKey> signallingKeys = signalling;
const std::span<const SchemaKey> q2931Keys = q2931;
const std::span<const SchemaKey> qSaalKeys = qSaal;
const std::span<const SchemaKey> ilmiKeys = ilmi;
const std::span<const SchemaKey> signallingWritten = signallingOut;
const std::span<const SchemaKey> q2931Written = q2931Out;
const std::span<const SchemaKey> ilmiWritten = ilmiOut;
const std::span<const UniVersion> uniVersions = versions;
