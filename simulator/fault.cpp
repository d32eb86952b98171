#include "simulator/fault.h"

#include <iterator>

namespace lisim {

namespace {

// In the order of FaultKind; without a value the word says it all.
struct KindWord {
  const char* word;
  bool hasValue;
};
constexpr KindWord kindWords[] = {{"code", true},   {"errno", true},    {"untouched", false},
                                  {"delay", true},  {"silence", false}, {"rows", true},
                                  {"hangup", false}};
static_assert(std::size(kindWords) == static_cast<std::size_t>(FaultKind::hangup) + 1);

template <class Wanted, class Found>
bool hits(const std::optional<Wanted>& wanted, Found found) {
  return !wanted || *wanted == found;
}

template <class Number>
std::string numberOrAny(const std::optional<Number>& number) {
  return number ? std::to_string(*number) : "*";
}

}  // namespace

std::optional<Fault> Faults::take(const req_param_t& head, std::uint32_t page) {
  for (auto fault = faults_.begin(); fault != faults_.end(); ++fault) {
    if (!hits(fault->primitive, head.Prim) || !hits(fault->type, head.Type) ||
        !hits(fault->link, head.Link) || !hits(fault->page, page))
      continue;
    if (fault->after > 0) {
      --fault->after;
      continue;
    }
    const Fault taken = *fault;
    if (fault->times && --*fault->times == 0) faults_.erase(fault);
    return taken;
  }
  return std::nullopt;
}

std::string Faults::describe() const {
  std::string text;
  for (const Fault& fault : faults_) {
    const KindWord& kind = kindWords[static_cast<std::size_t>(fault.kind)];
    text += "fault " + numberOrAny(fault.primitive) + " " + numberOrAny(fault.type);
    if (fault.link) text += " board " + std::to_string(*fault.link + 1);
    if (fault.page) text += " page " + std::to_string(*fault.page);
    if (fault.after) text += " after " + std::to_string(fault.after);
    text += std::string(" ") + kind.word;
    if (kind.hasValue) text += " " + std::to_string(fault.value);
    if (fault.times) text += " times " + std::to_string(*fault.times);
    text += "\n";
  }
  return text;
}

}  // namespace lisim
