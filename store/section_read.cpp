// Reading the file, ahead in pieces of many lines.
#include <algorithm>
#include <cstring>

#include "store/section.h"
#include "store/section_internal.h"

namespace {

constexpr std::size_t longestLine = sectLineBytes - 1;

std::string_view ahead(const SectHandle* handle) {
  return {handle->ahead + handle->aheadStart,
          static_cast<std::size_t>(handle->aheadEnd - handle->aheadStart)};
}

void take(SectHandle* handle, std::size_t length) {
  handle->aheadStart += static_cast<std::int32_t>(length);
}

// Reads on until a line of full length is ahead, or all that is left of the file.
void readAhead(SectHandle* handle) {
  const std::string_view left = ahead(handle);
  const bool ended = std::feof(handle->rfd) != 0 || std::ferror(handle->rfd) != 0;
  if (ended || left.size() >= longestLine) return;
  std::memmove(handle->ahead, left.data(), left.size());
  const std::size_t read =
      std::fread(handle->ahead + left.size(), 1, sizeof handle->ahead - left.size(), handle->rfd);
  handle->aheadStart = 0;
  handle->aheadEnd = static_cast<std::int32_t>(left.size() + read);
  if (std::ferror(handle->rfd) == 0) return;
  std::printf("SectReadLine: Error Reading File %s\n\n", handle->rfn);
  SectDamage(handle);
  SectForgetAhead(handle);
}

// The length of the line that the text starts with, its end included.
std::size_t lineLength(std::string_view text) {
  text = text.substr(0, longestLine);
  return std::min(text.find('\n'), text.size() - 1) + 1;
}

// The length of the whole lines in front of the first bracket.
std::size_t plainLength(std::string_view text) {
  text = text.substr(0, text.find('['));
  text = text.substr(0, text.find(']'));
  return text.rfind('\n') + 1;
}

}  // namespace

void SectForgetAhead(SectHandle* handle) {
  handle->aheadStart = handle->aheadEnd = 0;
}

int SectReadLine(SectHandle* handle) {
  readAhead(handle);
  const std::string_view text = ahead(handle);
  const std::size_t length = text.empty() ? 0 : lineLength(text);
  text.copy(handle->linebuf, length);
  handle->linebuf[length] = '\0';
  handle->lineLength = static_cast<std::int32_t>(length);
  if (length == 0) return 0;
  take(handle, length);
  ++handle->line;
  sectTrace("line %-3d %s", handle->line, handle->linebuf);
  return handle->lineLength;
}

bool SectSkipLines(SectHandle* handle) {
  if (dV != 0) return true;  // the traces show every line
  readAhead(handle);
  std::string_view lines = ahead(handle);
  lines = lines.substr(0, plainLength(lines));
  if (!SectPut(handle, lines)) return false;
  take(handle, lines.size());
  for (; !lines.empty(); lines.remove_prefix(lineLength(lines))) ++handle->line;
  return true;
}

bool SectPutRest(SectHandle* handle) {
  for (readAhead(handle); !ahead(handle).empty(); readAhead(handle)) {
    if (!SectPut(handle, ahead(handle))) return false;
    SectForgetAhead(handle);
  }
  return !handle->damaged;
}
