// The control requests, in one table: what each is called on the wire and in the log, how long its
// frame is and what it carries.
#pragma once

#include <cstddef>
#include <cstdint>

#include "driver/control_layouts.h"
#include "driver/control_types.h"
#include "driver/frame.h"

enum class Control : std::uint16_t {
  LecEnable,
  LecDisable,
  LecAddPvc,
  LecDeletePvc,
  LecSetEnhanced,
  LesEnable,
  LesDisable,
  LecsEnable,
  LecsDisable,
  LecsAddClient,
  LecsDeleteClient,
  LecsGo,
  IpEnable,
  IpDisable,
  IpAddPvc,
  IpDeletePvc,
  SigUpdate,
  SigDebugTrace,
  SigPort,
  PhySetFraming,
  PhySetVpi,
  PhySetRedundantLink,
  PhySwitchLink,
};

struct ControlForm {
  Control control;
  Primitive prim;
  std::uint16_t type;
  std::uint16_t frameBytes;  // of the whole frame, head included
  std::uint16_t inputBytes;  // of it that are input
  const char* name;          // what it does
  const char* logLine;       // or the line's start, when a value follows
  RecordLayout payload;      // behind the head, or behind the signalling head
};

// clang-format off
inline constexpr ControlForm controlForms[] = {
    {Control::LecEnable, primLecControl, lecEnable, 92, 92, "enable", "LEC_INIT", lecReqFields},
    {Control::LecDisable, primLecControl, lecDisable, 16, 16, "disable", "LEC_DISABLE", {}},
    {Control::LecAddPvc, primLecControl, lecAddPvc, 76, 76, "add PVC", "BRDG_PVCADD", bdgPvcReqFields},
    {Control::LecDeletePvc, primLecControl, lecDeletePvc, 76, 76, "delete PVC", "BRDG_PVCDEL", bdgPvcReqFields},
    {Control::LecSetEnhanced, primLecControl, lecSetEnhanced, 20, 20, "set enhanced VC", "set_ENHANCED: ", enhancedFields},
    {Control::LesEnable, primLesControl, lesEnable, 68, 68, "enable", "LES_ENABLE", lesReqFields},
    {Control::LesDisable, primLesControl, lesDisable, 16, 16, "disable", "LES_DISABLE", {}},
    {Control::LecsEnable, primLecsControl, lecsEnable, 60, 60, "enable", "LECS_ENABLE", lecsReqFields},
    {Control::LecsDisable, primLecsControl, lecsDisable, 16, 16, "disable", "LECS_DISABLE", {}},
    {Control::LecsAddClient, primLecsControl, lecsAddClient, 60, 60, "add client", "LECS_SET_ADDR", lecsReqFields},
    {Control::LecsDeleteClient, primLecsControl, lecsDeleteClient, 60, 60, "delete client", "LECS_DEL_ADDR", lecsReqFields},
    {Control::LecsGo, primLecsControl, lecsGo, 16, 16, "go", "LECS_GO", {}},
    {Control::IpEnable, primIpControl, ipEnable, 56, 56, "enable", "IPATM_INIT", ip1577ReqFields},
    {Control::IpDisable, primIpControl, ipDisable, 16, 16, "disable", "IPATM_DISABLE", {}},
    {Control::IpAddPvc, primIpControl, ipAddPvc, 72, 72, "add PVC", "IPATM_PVCADD", rtdPvcReqFields},
    {Control::IpDeletePvc, primIpControl, ipDeletePvc, 72, 72, "delete PVC", "IPATM_PVCDEL", rtdPvcReqFields},
    {Control::SigUpdate, primSigControl, sigUpdate, 288, 288, "update configuration", "DaiSigPortCfg", sigPortCfgFields},
    {Control::SigDebugTrace, primSigControl, sigDebugTrace, 288, 27, "debug trace", "DaiSigDbgTrace", sigTraceReqFields},
    {Control::SigPort, primSigControl, sigPort, 27, 27, "port", "DaiSigPortDisableEnable", sigPortReqFields},
    {Control::PhySetFraming, primPhyControl, phySetFraming, 20, 20, "set framing", "DAI: SET_SUNI_FRAMING : ", framingFields},
    {Control::PhySetVpi, primPhyControl, phySetVpi, 20, 20, "set VPI", "DAI: SET_VPI : ", vpiFields},
    {Control::PhySetRedundantLink, primPhyControl, phySetRedundantLink, 28, 28, "set redundant link", "DAI: SET_RLS : autoswitch: ", rlsReqFields},
    {Control::PhySwitchLink, primPhyControl, phySwitchLink, 16, 16, "switch link", "DAI: RLS_SWITCH (", {}},
};
// clang-format on

// The table is in the order of the enumeration, so that a control is its own place in it.
constexpr const ControlForm& formOf(Control control) {
  return controlForms[static_cast<std::size_t>(control)];
}

// Where a frame of this primitive has its payload.
constexpr std::uint16_t dataOffsetOf(std::uint16_t prim) {
  return prim == primSigControl || prim == primSigQuery ? signallingDataOffset : plainDataOffset;
}

// Every control is in its place, and its input is its payload and nothing else.
static_assert([] {
  std::size_t place = 0;
  for (const ControlForm& form : controlForms) {
    if (static_cast<std::size_t>(form.control) != place++) return false;
    std::size_t end = form.payload.empty() ? plainDataOffset : dataOffsetOf(form.prim);
    if (!form.payload.empty()) end += form.payload.back().offset + form.payload.back().bytes;
    if (end != form.inputBytes || form.inputBytes > form.frameBytes) return false;
    if (!hasItsWords(form.payload)) return false;
  }
  return place == static_cast<std::size_t>(Control::PhySwitchLink) + 1;
}());
