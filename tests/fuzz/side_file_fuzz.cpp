// Fuzz target: the input as a side file of every kind, and as the text of every address.
#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "atm/address.h"
#include "atm/pvc_records.h"
#include "require.h"

namespace {

constexpr std::size_t longestLine = 80;

// The records of a list, read as the pages' lists are.
template <class Record>
std::vector<Record> readList(const std::string& text) {
  std::istringstream in(text);
  std::vector<Record> list;
  Record record = {};
  std::size_t reads = 0;
  while (in.good()) {
    require(++reads <= text.size() + 1, "each reading takes a character");
    in >> record;
    if (in.good()) list.push_back(record);
  }
  return list;
}

template <class Record>
void roundTrip(const std::string& text) {
  const std::vector<Record> list = readList<Record>(text);
  std::ostringstream out;
  for (const Record& record : list) out << record << '\n';
  require(readList<Record>(out.str()) == list, "what was written reads the same");
  std::istringstream lines(out.str());
  for (std::string line; std::getline(lines, line);) {
    require(line.size() <= longestLine, "a line that is written is read as one");
  }
}

// The form of the entry fields.
template <class Address>
void assign(const std::string& text, char* (Address::*form)(char*) const) {
  Address address = {}, again = {};
  address = text.c_str();
  char shown[addressTextBytes];
  again = (address.*form)(shown);
  require(again == address, "the form shown is read the same");
}

void assignAtmAddress(const std::string& text) {
  atmAddress address = dfltAtmAddress, again = dfltAtmAddress;
  address = text.c_str();
  char prefix[addressTextBytes], selector[addressTextBytes];
  address.GetFNetworkPrefix(prefix);
  again = (std::string(prefix) + address.GetFESISelector(selector)).c_str();
  require(again == address, "the two forms shown are read the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  roundTrip<AtmBridgedPvc>(text);
  roundTrip<AtmRoutedPvc>(text);
  roundTrip<esiSelector>(text);
  assign<macAddress>(text, &macAddress::GetFMacAddress);
  assign<esiSelector>(text, &esiSelector::GetF2EsiSelector);
  assign<ipAddress>(text, &ipAddress::GetFIPAddress);
  assignAtmAddress(text);
  return 0;
}
