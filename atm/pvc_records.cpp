#include "atm/pvc_records.h"

#include <cstring>
#include <iomanip>
#include <istream>
#include <ostream>
#include <sstream>
#include <string>

namespace {

constexpr int maxLineLength = 80;
constexpr int fieldLines = 5;
constexpr char recordHead[] = "[PVC";

using Line = char[maxLineLength + 1];

// Reads a line of at most 80 characters; of a longer one the rest is the next line. Returns false
// at the end of the stream, which then has failed.
bool readLine(std::istream& in, Line& line) {
  in.getline(line, sizeof line);
  if (in.gcount() == 0) return false;
  in.clear();
  return true;
}

bool findRecord(std::istream& in, Line& line) {
  while (readLine(in, line)) {
    if (std::strncmp(line, recordHead, std::strlen(recordHead)) == 0) return true;
  }
  return false;
}

template <class Number>
void readNumber(const char* text, Number& number) {
  std::istringstream in(text);
  Number read;
  if (in >> read) number = read;
}

// One field of a record, by every key's name that stands anywhere in the line.
template <class Pvc, class Address>
void readField(const char* line, const char* value, Pvc& pvc, Address& address) {
  if (std::strstr(line, "VC")) {
    auto vci = static_cast<std::int16_t>(pvc.vci);
    readNumber(value, vci);
    pvc.vci = static_cast<std::uint16_t>(vci);
  }
  if (std::strstr(line, "Addr")) {
    std::istringstream in(value);
    in >> address;
  }
  if (std::strstr(line, "Encap")) readNumber(value, pvc.Encap);
  if (std::strstr(line, "Bcast")) readNumber(value, pvc.Bcast);
  if (std::strstr(line, "Rate")) readNumber(value, pvc.Rate);
}

template <class Pvc, class Address>
std::istream& readPvc(std::istream& in, Pvc& pvc, Address& address) {
  Line line;
  if (!findRecord(in, line)) return in;
  for (int i = 0; i < fieldLines; ++i) {
    if (!readLine(in, line)) {
      in.clear();  // a record cut short counts with what it has
      break;
    }
    line[std::strcspn(line, "#")] = '\0';
    const char* sign = std::strchr(line, '=');
    if (sign != nullptr) readField(line, sign + 1, pvc, address);
  }
  return in;
}

// "\tKey   =value\t#comment\n"
template <class Value>
void writeField(std::ostream& out, const char* key, const Value& value, const char* comment) {
  out << '\t' << std::left << std::setw(6) << key << '=' << value << '\t' << comment << '\n';
}

template <class Pvc, class Address>
std::ostream& writePvc(std::ostream& out, const Pvc& pvc, const Address& address) {
  out << recordHead << '\n';
  writeField(out, "VC", static_cast<std::int16_t>(pvc.vci), "#VC index");
  writeField(out, "Addr", address, "# Format:  0000778899aa=MAC 123.123.123.123=IP");
  writeField(out, "Encap", pvc.Encap, "# 0=Null 1=LLC");
  writeField(out, "Bcast", pvc.Bcast, "# For Bridged PVC only; 1=Broadcast 0=Non-Broadcast");
  writeField(out, "Rate", pvc.Rate, "# MB/s");
  return out << ']';
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const AtmBridgedPvc& pvc) {
  return writePvc(out, pvc, pvc.mac);
}

std::istream& operator>>(std::istream& in, AtmBridgedPvc& pvc) {
  return readPvc(in, pvc, pvc.mac);
}

std::ostream& operator<<(std::ostream& out, const AtmRoutedPvc& pvc) {
  return writePvc(out, pvc, pvc.ip);
}

std::istream& operator>>(std::istream& in, AtmRoutedPvc& pvc) {
  return readPvc(in, pvc, pvc.ip);
}
