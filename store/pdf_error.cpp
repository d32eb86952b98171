// The one place of the store that shows a window.
#include "foundation/bounded_stream.h"
#include "framework/dialogs/message.h"
#include "store/pdf_edit.h"

void PdfEdit::DisplayError(const char* what) {
  constexpr unsigned noticeStyle = 0x30;
  char text[256];
  BoundedStream stream(text, sizeof text);
  stream << "Pdf Error On - " << what;
  zMessage(parent_, stream.terminate(), "Pdf Error", noticeStyle);
}
