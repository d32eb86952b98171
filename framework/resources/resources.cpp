#include "framework/resources/resources.h"

#include <cstring>

#include "framework/resources/images.h"

const char* zAppDefResource = zCompiledIn;

zFoundResource zAppFindResource(int id, int kind) {
  switch (kind) {
    case zResCursor:
    case zResBitmap:
    case zResIcon:
      return {ziFindImage(id, kind), id};
    case zResDialog:
      return {ziFindDialog(id), id};
    case zResString:
      return {ziFindString(id), id};
    case zResStringBlock:
      return {ziFindStringBlock(id), id};
    default:
      return {};
  }
}

const void* ziLockResource(const zResId& id, int kind) {
  const char* module = id.moduleName() ? id.moduleName() : zAppDefResource;
  if (module != zCompiledIn || id.isResIdString()) return nullptr;  // there are no external files
  return zAppFindResource(id.intId(), kind).data;
}

void ziUnlockResource(int, const void*, const zResId&) {}

std::string zResId::loadStr() const {
  const auto* text = static_cast<const char*>(ziLockResource(*this, zResString));
  return text ? text : "";
}

const char* zResStrBlock::operator()() const {
  if (!start_) return nullptr;
  cursor_ = cursor_ ? cursor_ + std::strlen(cursor_) + 1 : start_;
  if (!*cursor_) cursor_ = nullptr;
  return cursor_;
}
