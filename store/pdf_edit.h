// Typed keys over the section library: one open section at a time of the one configuration file.
#pragma once

#include <string>

#include "store/section.h"

class zWindow;

class PdfEdit {
 public:
  // Failures may raise message boxes over `parent`, which is not owned, if `displayErrors` is set.
  PdfEdit(zWindow* parent, bool displayErrors);
  // Closes an open section, which commits it.
  virtual ~PdfEdit() = default;

  // Closes the current section, which commits it, and opens another. On failure no section is
  // current, and every value fails until the next good call. `flags` are those of OpenSection;
  // `showError` asks for a message box on failure, here and below.
  bool OpenKey(const char* sectionPath, short flags, bool showError);

  // Reads a value of `size` bytes into `dst`. False if the key is missing or empty, when `dst`
  // keeps what it held (an empty T_STRING clears its first byte).
  bool QueryValue(const char* key, void* dst, short type, long size, bool showError);

  // Writes a value of `size` bytes into the current section, as WriteKey does. False if it could
  // not be written or no section is current.
  bool SetValue(const char* key, void* value, short type, long size, bool showError);

  // Shows a box that says what the trouble is on; returns when the user has answered it.
  void DisplayError(const char* what);

  // The outcome of the last step.
  enum Outcome { good = 0, failed = 2 };
  Outcome status() const { return status_; }

  // The full name of the file.
  const char* fileName() const { return pdfFileName_; }

 protected:
  // Closes the current section, if there is one.
  void closeKey() { section_.reset(); }

 private:
  zWindow* parent_;
  Outcome status_ = good;
  bool displayErrors_;
  SectOwner section_;
  char pdfFileName_[sectNameBytes];
  std::string basePath_;  // the directory with its trailing slash
};
