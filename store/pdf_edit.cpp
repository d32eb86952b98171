#include "store/pdf_edit.h"

#include "foundation/bounded_stream.h"
#include "foundation/odlog.h"
#include "platform/names.h"

namespace {

constexpr char pdfName[] = "odconf";

// The sizes that numbers must have, and what the log calls their types.
constexpr struct {
  short type;
  const char* name;
  long size;
} numberSizes[] = {
    {T_CHAR, "T_CHAR", 1}, {T_SHORT, "T_SHORT", 2}, {T_INT, "T_LONG", 4}, {T_LONG, "T_LONG", 4}};

// Logs a size that doesn't fit its type. The check only informs.
void checkSize(const char* call, const char* key, short type, long size) {
  for (const auto& row : numberSizes) {
    if (row.type != type || row.size == size) continue;
    odlog << call << '(' << key << "): " << row.name << " size is '" << size << "'" << std::endl;
  }
}

}  // namespace

PdfEdit::PdfEdit(zWindow* parent, bool displayErrors)
    : parent_(parent), displayErrors_(displayErrors), basePath_(atmDirectory) {
  basePath_ += '/';
  BoundedStream name(pdfFileName_, sizeof pdfFileName_);
  name << basePath_ << pdfName;
  name.terminate();
  odlog << "pdfFileName == " << pdfFileName_ << std::endl;
}

bool PdfEdit::OpenKey(const char* sectionPath, short flags, bool showError) {
  closeKey();
  section_.reset(OpenSection(pdfFileName_, sectionPath, flags));
  if (section_ != nullptr) {
    status_ = good;
    return true;
  }
  status_ = failed;
  if (displayErrors_ && showError) DisplayError(sectionPath);
  odlog << "OpenKey(" << sectionPath << ") failed." << std::endl;
  return false;
}

bool PdfEdit::QueryValue(const char* key, void* dst, short type, long size, bool showError) {
  status_ = failed;
  checkSize("QueryValue", key, type, size);
  if (section_ != nullptr && ReadKey(section_.get(), key, dst, type, static_cast<int>(size)) == 0) {
    status_ = good;
    return true;
  }
  if (displayErrors_ && showError) DisplayError(key);
  return false;
}

bool PdfEdit::SetValue(const char* key, void* value, short type, long size, bool showError) {
  status_ = failed;
  checkSize("SetValue", key, type, size);
  if (section_ != nullptr &&
      WriteKey(section_.get(), key, value, type, static_cast<int>(size)) == 0) {
    status_ = good;
    return true;
  }
  odlog << "WriteKey error: " << key << ": " << status_ << std::endl;
  if (displayErrors_ && showError) DisplayError(key);
  odlog << "SetValue(" << key << ") failure." << std::endl;
  return false;
}
