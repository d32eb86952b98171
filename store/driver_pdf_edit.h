// The configuration file as a whole, read into `atmDevices`. A key or section that is missing
// leaves the record's value, which is its default: the records are read into once.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "atm/sig_record.h"
#include "store/pdf_edit.h"
#include "store/schema.h"

class DriverPdfEdit : public PdfEdit {
 public:
  using PdfEdit::PdfEdit;

  // Reads everything, adapters 0 to 7 whether or not there are such boards.
  void ReadPdf();

  void ReadGlobalSig();

  // One service of one adapter, from 0 to 7. Those with lists read the side files too, if the
  // file names any; a side file that is missing gives an empty list.
  void ReadPhysical(short adapter);
  void ReadSig(short adapter);
  void ReadLECs(short adapter);
  void ReadLESs(short adapter);
  void ReadLECS(short adapter);
  void ReadIP1577(short adapter);

 private:
  // Reads the keys of the open section into the record at `record`.
  void readKeys(std::span<const SchemaKey> keys, void* record);
  void readNumber(const SchemaKey& key, void* field);
  template <class Integer>
  void readInteger(const SchemaKey& key, void* field);
  void readAddressPart(const SchemaKey& key, atmAddress& address);

  bool openForReading(const std::string& path);
  // Reads a number if the key is there.
  bool queryInt(const char* key, std::int32_t& number);

  // The parts of ReadSig.
  void readSigFlags(short adapter, AtmSig& sig, unsigned char* prefix);
  void readSigFlag(const char* key, const char* oldKey, std::uint8_t& flag);
  void readNetPrefix(short adapter, unsigned char* prefix);
  void readFirstPass(short adapter, AtmSig& sig);
  void readUniVersion(AtmSig& sig);
  void readUniCode(AtmSig& sig);
};
