#include <iomanip>
#include <ostream>

#include "driver/board_records.h"
#include "driver/control_records.h"
#include "driver/service_records.h"

namespace {

template <class Record>
std::ostream& dumpBytes(std::ostream& os, const Record& record) {
  constexpr std::size_t bytesInLine = 10;
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(&record);
  os << std::hex;
  for (std::size_t i = 0; i < sizeof record; ++i) {
    os << std::setw(3) << int{bytes[i]};
    if (i % bytesInLine == bytesInLine - 1) os << std::endl;
  }
  return os << std::dec;
}

}  // namespace

std::ostream& operator<<(std::ostream& os, const lec_tbl_t& row) {
  return dumpBytes(os, row);
}

std::ostream& operator<<(std::ostream& os, const lecs_req& record) {
  return dumpBytes(os, record);
}

std::ostream& operator<<(std::ostream& os, const ip_pvc& record) {
  return dumpBytes(os, record);
}

std::ostream& operator<<(std::ostream& os, const vc_tbl& row) {
  return os << row.vci << " " << row.counterOut << " " << row.counterIn;
}
