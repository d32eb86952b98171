// The dialogs of the program, in dialog units. Reading order is tab order.
#include "framework/resources/resources.h"

namespace {

constexpr char helv[] = "Helv";
constexpr std::uint32_t points = 12;

constexpr std::uint32_t label = 0x50000000;     // a child that is visible
constexpr std::uint32_t tab = label | 0x10000;  // and in the tab order
constexpr std::uint32_t readOnlyEdit = label | 0x800;
constexpr std::uint32_t panelFrame = label | 7;
constexpr std::uint32_t separator = label | 7;
constexpr std::uint32_t groupBox = label | 7;
constexpr std::uint32_t pictureLeft = tab | 0x800;
constexpr std::uint32_t pictureLeftToggle = pictureLeft | 0x200;

constexpr zControlRecord end{0, nullptr, 0, nullptr, 0, 0, 0, 0, 0};

constexpr zControlRecord mainControls[] = {
    {zAtomStatic, nullptr, 100, "ATM Adapter Interfaces:", label, 7, 7, 208, 8},
    {0, "zTable", 101, nullptr, tab, 7, 17, 208, 72},
    {zAtomStatic, nullptr, 102, nullptr, panelFrame, 7, 96, 208, 18},
    {zAtomStatic, nullptr, 112, "Driver Version:", label, 12, 101, 52, 8},
    {zAtomEdit, nullptr, 103, nullptr, readOnlyEdit, 66, 99, 144, 12},
    {0, "zGroupBox3dClass", 104, "Actions", groupBox, 221, 7, 58, 107},
    {0, "zBmpBtnClass", 107, "De-Activate", pictureLeftToggle, 225, 17, 50, 14},
    {0, "zBmpBtnClass", 105, " Setup", pictureLeft, 225, 35, 50, 14},
    {0, "zBmpBtnClass", 106, " Stats", pictureLeft, 225, 53, 50, 14},
    {0, "zBmpBtnClass", 108, " Global", pictureLeft, 225, 71, 50, 14},
    {zAtomStatic, nullptr, 109, nullptr, separator, 225, 90, 50, 1},
    {0, "zBmpBtnClass", 110, "Close", pictureLeft, 225, 95, 50, 14},
    {0, "zBmpBtnClass", 111, " ", label, 7, 121, 272, 22},
    end,
};

constexpr zControlRecord unavailableControls[] = {
    {zAtomStatic, nullptr, 100, nullptr, label | 1, 7, 12, 186, 10},
    {zAtomButton, nullptr, 1, "OK", tab | 1, 75, 32, 50, 15},
    end,
};

constexpr zDialogTemplate dialogs[] = {
    {mainControls, 564, 0x80CE0000, 0, 0, 286, 158, "Ondrelle v2.20", helv, points, zNoMenu},
    {unavailableControls, 584, 0x80C80080, 0, 0, 200, 54, nullptr, helv, points, zNoMenu},
};

}  // namespace

const zDialogTemplate* ziFindDialog(int id) {
  for (const zDialogTemplate& dialog : dialogs) {
    if (dialog.id == static_cast<std::uint32_t>(id)) return &dialog;
  }
  return nullptr;
}
