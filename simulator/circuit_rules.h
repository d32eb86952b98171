// What holds for the permanent circuits of all services.
#pragma once

#include <algorithm>

#include "simulator/request.h"

namespace lisim {

// Gives a service the circuit in the request, if the service runs and the board can take it.
template <class Service>
Answer addCircuit(Request& request, Service& service) {
  const auto pvc = request.input<typename decltype(service.pvcs)::value_type>();
  if (!service.enabled) return Answer::notRunning;
  if (pvc.vcIndex == 0 || pvc.vcIndex >= request.board().maxVc) return Answer::badVc;
  const auto vcis = vcisOf(request.board(), request.services());
  if (std::ranges::find(vcis, pvc.vcIndex) != vcis.end() ||
      isKeptForPeer(request.board().services, pvc.vcIndex))
    return Answer::vcInUse;
  service.pvcs.push_back(pvc);
  return Answer::done;
}

// Takes the circuit with the request's VCI from a service.
template <class Service>
Answer deleteCircuit(Request& request, Service& service) {
  const auto named = request.input<typename decltype(service.pvcs)::value_type>();
  const auto isNamed = [&](const auto& pvc) { return pvc.vcIndex == named.vcIndex; };
  return std::erase_if(service.pvcs, isNamed) == 0 ? Answer::noSuchEntry : Answer::done;
}

// What the tables of connections tell of each in the same way.
template <class Row>
Row connectionRow(Request& request, std::uint16_t kind, std::uint16_t vci) {
  const vc_tbl counts = request.vcRow(vci);
  Row row{};
  row.connectionKind = kind;
  row.vci = vci;
  row.txPackets = counts.counterOut;
  row.rxPackets = counts.counterIn;
  return row;
}

// A flag or a number of a list in a request's record.
inline bool isOneOf(std::uint32_t value, std::uint32_t first, std::uint32_t last) {
  return value >= first && value <= last;
}

constexpr std::uint32_t smallestFrame = 1;
constexpr std::uint32_t largestFrame = 4;

// What marks a table's row as that of a switched and of a permanent circuit.
constexpr std::uint16_t switchedConnection = 1;
constexpr std::uint16_t permanentConnection = 2;

}  // namespace lisim
