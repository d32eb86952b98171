// The configuration file as a whole, read into `atmDevices` and written out of it. A key or section
// that is missing leaves the record's value, which is its default: the records are read into once.
//
// Each section that is written is a whole new copy of the file, put in its place when the next one
// is opened. Trouble with a section or key is logged and stops nothing: the file is whole all the
// time, with some sections new and some old.
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

  // Writes one adapter, from 0 to 7, with its side files, and the product record. The sections
  // below the adapter's are created if they are missing, the adapter's own is not.
  void WriteLink(short adapter);
  // WriteLink for each adapter there is.
  void WritePdf();

  // The steps of WriteLink. The last section of each stays open for the next one; closing it, by
  // another or at the end of this object's life, commits it.
  void WriteOndrelle();
  void WritePhysical(short adapter);
  void WriteSig(short adapter);
  void WriteLECs(short adapter);
  void WriteLESs(short adapter);
  void WriteLECS(short adapter);
  void WriteIP1577(short adapter);

  // The side files, over what they held, each of its own and without a temporary file. A list that
  // is empty removes its file.
  void WriteRoutedPVCs(short adapter);
  void WriteBridgedPVCs(short adapter);
  void WriteMappedClients(short adapter);

 private:
  // Reads the keys of the open section into the record at `record`.
  void readKeys(std::span<const SchemaKey> keys, void* record);
  void readNumber(const SchemaKey& key, void* field);
  template <class Integer>
  void readInteger(const SchemaKey& key, void* field);
  void readAddressPart(const SchemaKey& key, atmAddress& address);

  // Writes the keys into the open section from the record at `record`.
  void writeKeys(std::span<const SchemaKey> keys, void* record);
  void writeText(const char* key, std::string text);
  // Gives a service whose record names no side file the default name, in the record and the file.
  // A record that has the default name already gives it to a file that names none.
  void nameSideFile(char* name, short adapter, int suffix);
  // Logs the path, opens the section and writes its keys; false if it can't be opened.
  bool writeSection(const std::string& path, std::span<const SchemaKey> keys, void* record);

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
