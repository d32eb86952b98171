// The dialogs of the program, in dialog units. Reading order is tab order.
#include "framework/resources/resources.h"

#include <vector>

namespace {

constexpr char helv[] = "Helv";
constexpr std::uint32_t points = 12;

constexpr std::uint32_t label = 0x50000000;     // a child that is visible
constexpr std::uint32_t tab = label | 0x10000;  // and in the tab order
constexpr std::uint32_t readOnlyEdit = label | 0x800;
constexpr std::uint32_t panelFrame = label | 7;
constexpr std::uint32_t separator = label | 8;
constexpr std::uint32_t groupBox = label | 7;
constexpr std::uint32_t pictureLeft = tab | 0x800;
constexpr std::uint32_t pictureLeftToggle = pictureLeft | 0x220;

// The maker's picture: clickable, flat, and no stop for Tab.
constexpr std::uint32_t logo = label | 0x2000;

constexpr zControlRecord end{0, nullptr, 0, nullptr, 0, 0, 0, 0, 0};

constexpr zControlRecord mainControls[] = {
    {zAtomStatic, nullptr, 100, "ATM Adapter Interfaces:", label, 7, 7, 208, 9},
    {0, "zTable", 101, nullptr, tab, 7, 18, 208, 72},
    {zAtomStatic, nullptr, 102, nullptr, panelFrame, 7, 97, 208, 20},
    {zAtomStatic, nullptr, 112, "Driver Version:", label, 13, 100, 52, 13},
    {zAtomEdit, nullptr, 103, nullptr, readOnlyEdit, 67, 100, 142, 13},
    {0, "zGroupBox3dClass", 104, "Actions", groupBox, 221, 7, 58, 110},
    {0, "zBmpBtnClass", 107, "De-Activate", pictureLeftToggle, 225, 19, 50, 15},
    {0, "zBmpBtnClass", 105, " Setup", pictureLeft, 225, 37, 50, 15},
    {0, "zBmpBtnClass", 106, " Stats", pictureLeft, 225, 55, 50, 15},
    {0, "zBmpBtnClass", 108, " Global", pictureLeft, 225, 73, 50, 15},
    {zAtomStatic, nullptr, 109, nullptr, separator, 225, 92, 50, 1},
    {0, "zBmpBtnClass", 110, "Close", pictureLeft, 225, 96, 50, 15},
    {0, "zBmpBtnClass", 111, " ", logo, 7, 124, 272, 19},
    end,
};

constexpr zControlRecord unavailableControls[] = {
    {zAtomStatic, nullptr, 100, nullptr, label | 1, 7, 12, 186, 10},
    {zAtomButton, nullptr, 1, "OK", tab | 1, 75, 32, 50, 15},
    end,
};

constexpr zControlRecord fontControls[] = {
    {zAtomStatic, nullptr, zNoId, "&Font:", label, 7, 7, 33, 14},
    {zAtomComboBox, nullptr, 100, nullptr, tab | 3, 44, 7, 120, 14},
    {zAtomStatic, nullptr, zNoId, "Si&ze:", label, 7, 25, 33, 14},
    {zAtomComboBox, nullptr, 101, nullptr, tab | 2, 44, 25, 50, 14},
    {zAtomStatic, nullptr, zNoId, "Style:", label, 7, 43, 33, 14},
    {0, "zCheckBox3dClass", 102, "&Bold", tab | 3, 44, 43, 50, 14},
    {0, "zCheckBox3dClass", 103, "&Italic", tab | 3, 98, 43, 50, 14},
    {zAtomStatic, nullptr, zNoId, "Sample:", label, 7, 61, 33, 14},
    {zAtomStatic, nullptr, 104, nullptr, label, 44, 61, 169, 40},
    {zAtomButton, nullptr, 1, "&Ok", tab | 1, 109, 108, 50, 15},
    {zAtomButton, nullptr, 2, "&Cancel", tab, 163, 108, 50, 15},
    end,
};

constexpr zDialogTemplate dialogs[] = {
    {mainControls, 564, 0x80CE0000, 0, 0, 286, 158, "Ondrelle v2.20", helv, points, zNoMenu},
    {unavailableControls, 584, 0x80C80080, 0, 0, 200, 54, nullptr, helv, points, zNoMenu},
    {fontControls, 600, 0x80C80080, 0, 0, 220, 130, "Select Font", helv, points, zNoMenu},
};

std::vector<std::span<const zDialogTemplate>>& tables() {
  static std::vector<std::span<const zDialogTemplate>> known{dialogs};
  return known;
}

}  // namespace

void ziAddDialogs(std::span<const zDialogTemplate> added) {
  tables().push_back(added);
}

const zDialogTemplate* ziFindDialog(int id) {
  for (const auto& table : tables()) {
    for (const zDialogTemplate& dialog : table) {
      if (dialog.id == static_cast<std::uint32_t>(id)) return &dialog;
    }
  }
  return nullptr;
}
