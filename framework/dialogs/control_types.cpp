#include "framework/dialogs/control_types.h"

#include <list>
#include <memory>

#include "framework/controls/bitmap_button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/group_box.h"
#include "framework/controls/pane_controls.h"
#include "framework/controls/panel.h"
#include "framework/controls/radio_button.h"
#include "framework/controls/static_text.h"
#include "framework/controls/tab_control.h"
#include "framework/core/app.h"
#include "framework/table/table.h"

namespace {

using Registry = std::list<const zControlType*>;

Registry& zctd() {
  static Registry types;
  return types;
}

template <class Control>
zChildWin* build(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id) {
  return new Control(parent, sizer, style, title, id);
}

struct Row {
  const char* name;
  zControlType::Builder builder;
};

// By initIntPack, in this order.
constexpr Row packRows[] = {
    {"zCheckBox3dClass", build<zCheckBox>},
    {"zRadioBtn3dClass", build<zRadioButton>},
    {"zStatTxt3dClass", build<zStaticText>},
    {"zGroupBox3dClass", build<zGroupBox>},
    {"zBmpBtnClass", build<zBitmapButton>},
    {"zPanel3dClass", build<zPanel3d>},
    {"zTable", build<zTable>},
};

// By the application object.
constexpr Row paneRows[] = {
    {"zTextPane", build<zTextPane>},
    {"zPaneControl", build<zPaneControl>},
    {"zBitmapPane", build<zBitmapPane>},
    {"zTabCtrl", build<zTabCtrl>},
};

template <std::size_t N>
void registerRows(const Row (&rows)[N]) {
  static std::list<zControlType> owned;
  for (const Row& row : rows) owned.emplace_back(row.name, row.builder);
}

}  // namespace

zControlType::zControlType(const char* name, Builder builder) : name_(name), builder_(builder) {
  zctd().push_back(this);
}

const zControlType* zControlType::find(const std::string& name) {
  for (const zControlType* type : zctd()) {
    if (type->typeName() == name) return type;
  }
  return nullptr;
}

void initIntPack() {
  registerRows(packRows);
}

void ziInitPanes() {
  registerRows(paneRows);
}
