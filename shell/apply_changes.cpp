#include "shell/apply_changes.h"

#include <cstring>
#include <ostream>
#include <tuple>

#include "applet/run_state.h"
#include "atm/devices.h"
#include "atm/transfer_buffers.h"
#include "driver/ip1577_request.h"
#include "driver/lec_request.h"
#include "driver/lecs_request.h"
#include "driver/les_request.h"
#include "driver/phy_request.h"
#include "driver/session.h"
#include "driver/sig_request.h"
#include "foundation/odlog.h"

namespace {

constexpr int readWriteSession = 2;

// What is compared of each service. The lists of PVCs and clients are not: their editors have told
// the driver already.

auto compared(const LECXferBuffer& lec) {
  return std::tie(lec.Config, lec.EnhancedVC, lec.L3Mtu, lec.Lecs, lec.Enabled, lec.defaultPcr.cps,
                  lec.defaultPcr.units, lec.Mfs, lec.ElanType, lec.passThrough, lec.ElanName,
                  lec.AtmPrefix, lec.AtmEsiSel, lec.AtmPrefix2, lec.AtmEsiSel2);
}

auto compared(const LESXferBuffer& les) {
  return std::tie(les.Mfs, les.Enabled, les.ElanNameStrict, les.MfsStrict, les.ElanType,
                  les.ElanName);
}

auto compared(const LECSXferBuffer& lecs) {
  return std::tie(lecs.EtherMfs, lecs.TRMfs, lecs.Enabled, lecs.ElanType, lecs.AtmPrefix,
                  lecs.AtmEsiSel);
}

auto compared(const SigXferBuffer& sig) {
  return std::tie(sig.Enabled, sig.UniRev, sig.VciLow, sig.VciMax, sig.IlmiEnableAutoConfig,
                  sig.AddressRegistration, sig.PortChangeDetect, sig.RegDiffNetPrefix,
                  sig.NetPrefix);
}

auto compared(const PhyXferBuffer& phy) {
  return std::tie(phy.Framing, phy.VPI, phy.RLPrimary, phy.RLBackup, phy.RLAutoSwitch,
                  phy.linkState, phy.activeLink, phy.InterruptNumber);
}

template <class Buffer>
bool differ(const Buffer& one, const Buffer& other) {
  return compared(one) != compared(other);
}

// The IP service's fields are logged one by one, so all of them are looked at.
bool logDifferences(const IP1577XferBuffer& one, const IP1577XferBuffer& other) {
  const struct {
    bool differs;
    const char* line;
  } fields[] = {
      {one.Enabled != other.Enabled, "1577: != EnableCB"},
      {one.Config != other.Config, "1577: != PvcOnlyCB"},
      {one.EnableServer != other.EnableServer, "1577: != EnableAsServerCB"},
      {one.AtmPrefix != other.AtmPrefix, "1577: != NetworkPrefix"},
      {one.AtmEsiSel != other.AtmEsiSel, "1577: != ESISelector"},
      {one.ServerIPAddress != other.ServerIPAddress, "1577: != ARPServerIPAddr"},
      {one.IPAddress != other.IPAddress, "1577: != ARPClientIPAddr"},
      {one.ServerIPMask != other.ServerIPMask, "1577: != ARPServerIPMask"},
      {one.MacText != other.MacText, "1577: != MacAddress"},
  };
  bool any = false;
  for (const auto& field : fields) {
    if (!field.differs) continue;
    any = true;
    odlog << field.line << std::endl;
  }
  return any;
}

unsigned short linkOf(short adapter) {
  return static_cast<unsigned short>(adapter);
}

// The log's line of a request that failed, with the code that the frame came back with.
void logFailure(const char* line, const reqParam& request) {
  odlog << line << request.header().Resp << ")." << std::endl;
}

void startClient(lecRequest& request, const AtmLEC& lec, int client) {
  if (request.enable(payloadOf<lecReqStruct>(lec)) != 0)
    logFailure("LEC:Enable - DAI returned error(", request);
  for (const AtmBridgedPvc& pvc : lec.pvcs) {
    if (request.addPvc(payloadOf<bdgPvcReqStruct>(pvc)) != 0)
      logFailure("LEC:Add PVC - DAI returned error(", request);
  }
  const std::int16_t enhanced = xferBuffer[client].EnhancedVC;
  if (enhanced == prevLecBuffer[client].EnhancedVC) return;
  odlog << "LEC" << client << " Enhanced VC data changed" << std::endl;
  request.setEnhancedVC(static_cast<unsigned int>(enhanced));
}

void startServer(lesRequest& request, const AtmLES& les) {
  request.disable();
  request.enable(payloadOf<lesReqStruct>(les));
}

// The clients are numbered anew for each server, and which server it is the driver is not told.
void addMappedClients(lecsRequest& request, lecs_req& record, short adapter) {
  for (const AtmLES& les : atmDevices.les[adapter]) {
    std::uint32_t row = 0;
    for (const esiSelector& client : les.clients) {
      std::memcpy(record.esiSelector, client.bytes, sizeof record.esiSelector);
      record.index = row;
      request.header().Unit = static_cast<std::uint8_t>(row++);
      if (request.addClient(record) != 0)
        logFailure("LECS:Add Client - DAI returned error(", request);
    }
  }
}

void startIp1577(ip1577Request& request, const AtmIP1577& ip) {
  request.enable(payloadOf<ip1577ReqStruct>(ip));
  for (const AtmRoutedPvc& pvc : ip.pvcs) {
    if (request.addPvcDumped(payloadOf<rtdPvcReqStruct>(pvc)) != 0)
      logFailure("IP1577:Add PVC - DAI returned error(", request);
  }
}

void sendPhysical(phyRequest& request) {
  const PhyXferBuffer& now = phyXferBuffer;
  const PhyXferBuffer& before = prevPhyBuffer;
  if (now.Framing != before.Framing) request.set_Framing(now.Framing);
  if (now.VPI != before.VPI) request.setVpi(static_cast<unsigned int>(now.VPI));
  if (now.RLAutoSwitch != before.RLAutoSwitch) {
    const rls_req setting{now.RLPrimary, now.RLBackup, now.RLAutoSwitch};
    request.setRLS(&setting);
  }
}

}  // namespace

ChangeSession::ChangeSession() : opened_(dai_open(0, readWriteSession, &descriptor_) != -1) {
  odlog << "dai_open: handle: " << descriptor_ << "  OpenSuccess: " << int{DaiOpenSuccess}
        << std::endl;
}

ChangeSession::~ChangeSession() {
  dai_close(0, descriptor_);
  odlog << "dai_close: handle " << descriptor_ << std::endl;
}

void applyClients(short adapter, const ChangeSession& session) {
  for (int n = 0; n < maxLecs; ++n) {
    AtmLEC& lec = atmDevices.lec[adapter][n];
    lec = xferBuffer[n];
    if (!differ(xferBuffer[n], prevLecBuffer[n])) continue;
    odlog << "Lec" << n << " data changed" << std::endl;
    if (!session.opened()) continue;
    lecRequest request(session.descriptor(), linkOf(adapter), static_cast<unsigned short>(n));
    if (lec.Enabled) {
      startClient(request, lec, n);
    } else {
      request.disable();
    }
  }
}

void applyServers(short adapter, const ChangeSession& session) {
  for (int n = 0; n < maxLess; ++n) {
    AtmLES& les = atmDevices.les[adapter][n];
    les = lesXferBuffer[n];
    if (!differ(lesXferBuffer[n], prevLesBuffer[n])) continue;
    odlog << "Les " << n << " data changed" << std::endl;
    if (!DaiOpenSuccess) continue;
    lesRequest request(session.descriptor(), linkOf(adapter), static_cast<unsigned short>(n));
    if (les.Enabled) {
      startServer(request, les);
    } else {
      request.disable();
    }
  }
}

void applyConfigServer(short adapter, const ChangeSession& session) {
  AtmLECS& lecs = atmDevices.lecs[adapter];
  lecs = lecsXferBuffer;
  if (!differ(lecsXferBuffer, prevLecsBuffer)) return;
  odlog << "Lecs data changed" << std::endl;
  if (!DaiOpenSuccess) return;
  lecsRequest request(session.descriptor(), linkOf(adapter), 0);
  if (!lecs.Enabled) {
    request.disable();
    return;
  }
  auto record = payloadOf<lecsReqStruct>(lecs);
  request.enable(record);
  addMappedClients(request, record, adapter);
}

void applyIp1577(short adapter, const ChangeSession& session) {
  AtmIP1577& ip = atmDevices.ip1577[adapter];
  ip = ip1577XferBuffer;
  if (!logDifferences(ip1577XferBuffer, prevIP1577Buffer)) return;
  odlog << "IP1577 data changed" << std::endl;
  if (!DaiOpenSuccess) return;
  ip1577Request request(session.descriptor(), linkOf(adapter), 0);
  if (ip.Enabled) {
    startIp1577(request, ip);
  } else {
    request.disable();
  }
}

bool applySignalling(short adapter, const ChangeSession& session) {
  AtmSig& sig = atmDevices.sig[adapter];
  sig = sigXferBuffer;
  if (!differ(sigXferBuffer, prevSigBuffer)) return true;
  odlog << "Signalling data changed" << std::endl;
  if (!DaiOpenSuccess) return false;
  sigRequest request(session.descriptor(), linkOf(adapter), 0);
  if (request.UpdateCfg(sig.cfg) != 0)
    logFailure("Signalling:Update Config - DAI returned error(", request);
  request.PortEnableDisable(sig.Enabled ? sigPortEnabled : sigPortDisabled);
  return true;
}

bool applyPhysical(short adapter, const ChangeSession& session) {
  atmDevices.phy[adapter] = phyXferBuffer;
  if (!differ(phyXferBuffer, prevPhyBuffer)) return false;
  odlog << "Physical data changed" << std::endl;
  if (DaiOpenSuccess && BoardIsThere[adapter]) {
    phyRequest request(session.descriptor(), linkOf(adapter), 0);
    sendPhysical(request);
  }
  return true;
}
