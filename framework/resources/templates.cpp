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
constexpr std::uint32_t checkBox = tab | 3;
constexpr std::uint32_t radioButton = tab | 9;
constexpr std::uint32_t dropDownList = tab | 3;
constexpr std::uint32_t pictureLeft = tab | 0x800;
constexpr std::uint32_t pictureLeftToggle = pictureLeft | 0x220;

// The frames of pages, forms and forms that can be given another size.
constexpr std::uint32_t page = 0x80C80080;
constexpr std::uint32_t form = 0x80C80080;
constexpr std::uint32_t sizeableForm = 0x80CC0080;

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

// Setup: the physical layer. What is never shown stands at the end.
constexpr zControlRecord physicalControls[] = {
    {0, "zGroupBox3dClass", 113, "Framing", groupBox, 7, 7, 131, 31},
    {0, "zCheckBox3dClass", 114, "SONET", checkBox, 13, 19, 50, 13},
    {0, "zCheckBox3dClass", 115, "SDH", checkBox, 69, 19, 50, 13},
    {0, "zGroupBox3dClass", 116, "Packet Reassembly", groupBox, 146, 7, 131, 31},
    {zAtomComboBox, nullptr, 117, nullptr, dropDownList, 152, 19, 64, 13},
    {0, "zGroupBox3dClass", 118, "ATM", groupBox, 7, 45, 270, 31},
    {zAtomStatic, nullptr, 119, "VPI:", label, 13, 57, 80, 13},
    {zAtomEdit, nullptr, 120, "0", tab, 97, 57, 32, 13},
    {0, "zGroupBox3dClass", 121, "Redundancy", groupBox, 7, 83, 270, 63},
    {zAtomStatic, nullptr, 122, "Board Type:", label, 13, 95, 80, 13},
    {zAtomComboBox, nullptr, 123, nullptr, dropDownList, 97, 95, 64, 13},
    {zAtomStatic, nullptr, 124, "Backup Adapter No.:", label, 13, 111, 80, 13},
    {zAtomComboBox, nullptr, 125, nullptr, dropDownList, 97, 111, 64, 13},
    {0, "zCheckBox3dClass", 126, "Automatically Switch Back to Primary", checkBox, 13, 127, 200,
     13},
    {0, "zCheckBox3dClass", 128, "Use MAC Address", checkBox, 0, 0, 80, 13},
    {zAtomStatic, nullptr, 127, "Board Label:", label, 0, 0, 60, 13},
    {zAtomStatic, nullptr, 130, "Use Label:", label, 0, 0, 60, 13},
    {zAtomEdit, nullptr, 131, "Blue Board On Top", tab, 0, 0, 80, 13},
    {zAtomEdit, nullptr, 129, "AA:AA:AA:AA:AA:AA", tab, 0, 0, 80, 13},
    {zAtomStatic, nullptr, 133, "Interrupt Level:", label, 0, 0, 60, 13},
    {zAtomComboBox, nullptr, 132, nullptr, dropDownList, 0, 0, 64, 13},
    end,
};

constexpr zControlRecord signallingControls[] = {
    {0, "zGroupBox3dClass", 134, "Signalling", groupBox, 7, 7, 270, 63},
    {0, "zCheckBox3dClass", 135, "Enabled", checkBox, 13, 19, 60, 13},
    {zAtomStatic, nullptr, 136, "UNI Revision:", label, 13, 35, 62, 13},
    {zAtomComboBox, nullptr, 137, nullptr, dropDownList, 79, 35, 44, 13},
    {zAtomStatic, nullptr, 138, "SVC Range:", label, 13, 51, 62, 13},
    {zAtomStatic, nullptr, 139, "VPI:", label, 79, 51, 18, 13},
    {zAtomEdit, nullptr, 120, "0", readOnlyEdit, 99, 51, 28, 13},
    {zAtomStatic, nullptr, 140, "VCI:", label, 137, 51, 18, 13},
    {zAtomEdit, nullptr, 141, "32", readOnlyEdit, 157, 51, 34, 13},
    {zAtomStatic, nullptr, 142, "thru", label | 1, 193, 51, 22, 13},
    {zAtomEdit, nullptr, 143, "1023", readOnlyEdit, 217, 51, 34, 13},
    {0, "zGroupBox3dClass", 144, "ILMI", groupBox, 7, 77, 270, 95},
    {0, "zCheckBox3dClass", 145, "Enable UNI Auto-Configuration", checkBox, 13, 89, 200, 13},
    {0, "zCheckBox3dClass", 146, "Enable Address Registration", checkBox, 13, 105, 200, 13},
    {zAtomStatic, nullptr, 147, "Network Prefix:", label, 13, 121, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", tab, 79, 121, 192, 13},
    {0, "zCheckBox3dClass", 149, "ILMI Port Change Detection", checkBox, 13, 137, 200, 13},
    {0, "zCheckBox3dClass", 150, "Register Nonstandard Prefixes", checkBox, 13, 153, 200, 13},
    end,
};

constexpr zControlRecord lecControls[] = {
    {0, "zTabCtrl", 175, nullptr, tab, 2, 2, 280, 222},
    {0, "zGroupBox3dClass", zNoId, "LEC", groupBox, 9, 18, 266, 79},
    {0, "zCheckBox3dClass", 151, "Enable", checkBox, 15, 30, 56, 13},
    {0, "zCheckBox3dClass", 152, "PVC Only", checkBox, 79, 30, 60, 13},
    {0, "zCheckBox3dClass", 154, "Enhanced VC", checkBox, 169, 30, 80, 13},
    {zAtomStatic, nullptr, 153, "MAC Address:", label, 15, 46, 62, 13},
    {zAtomEdit, nullptr, 129, "00:00:00:00:00:00", readOnlyEdit, 79, 46, 84, 13},
    {zAtomStatic, nullptr, 164, "L3 MTU Size:", label, 169, 46, 58, 13},
    {zAtomEdit, nullptr, 165, nullptr, tab, 229, 46, 40, 13},
    {zAtomStatic, nullptr, 158, "ELAN Name:", label, 15, 62, 62, 13},
    {zAtomEdit, nullptr, 159, nullptr, tab, 79, 62, 190, 13},
    {zAtomStatic, nullptr, 160, "ELAN Type:", label, 15, 78, 62, 13},
    {zAtomComboBox, nullptr, 161, nullptr, dropDownList, 79, 78, 84, 13},
    {zAtomStatic, nullptr, 162, "ELAN MTU Size:", label, 169, 78, 58, 13},
    {zAtomComboBox, nullptr, 163, nullptr, dropDownList, 229, 78, 40, 13},
    {0, "zGroupBox3dClass", zNoId, "LECS / LES ATM Address", groupBox, 9, 101, 266, 63},
    {0, "zRadioBtn3dClass", 166, "LECS", radioButton, 15, 113, 56, 13},
    {0, "zRadioBtn3dClass", 167, "LES", radioButton, 79, 113, 56, 13},
    {zAtomStatic, nullptr, 147, "Network Prefix:", label, 15, 129, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", tab, 79, 129, 190, 13},
    {zAtomStatic, nullptr, 168, "ESI/Selector:", label, 15, 145, 62, 13},
    {zAtomEdit, nullptr, 169, "00:00:00:00:00:00-00", tab, 79, 145, 104, 13},
    {zAtomStatic, nullptr, 170, "PVC Table:", label, 9, 167, 80, 9},
    {0, "zTable", 171, nullptr, tab, 9, 177, 212, 44},
    {0, "zBmpBtnClass", 172, "Add", pictureLeft, 225, 177, 50, 14},
    {0, "zBmpBtnClass", 173, "Modify", pictureLeft, 225, 192, 50, 14},
    {0, "zBmpBtnClass", 174, "Delete", pictureLeft, 225, 207, 50, 14},
    {zAtomStatic, nullptr, 155, "Default Peak Cell Rate:", label, 0, 0, 80, 13},
    {zAtomEdit, nullptr, 156, "155520000", tab, 0, 0, 60, 13},
    {zAtomComboBox, nullptr, 157, nullptr, dropDownList, 0, 0, 50, 13},
    end,
};

constexpr zControlRecord lesControls[] = {
    {0, "zTabCtrl", 183, nullptr, tab, 2, 2, 280, 220},
    {0, "zGroupBox3dClass", zNoId, "LES", groupBox, 9, 18, 266, 63},
    {0, "zCheckBox3dClass", 151, "Enable", checkBox, 15, 30, 56, 13},
    {zAtomStatic, nullptr, 158, "ELAN Name:", label, 15, 46, 62, 13},
    {zAtomEdit, nullptr, 159, nullptr, tab, 79, 46, 190, 13},
    {zAtomStatic, nullptr, 162, "ELAN MTU Size:", label, 15, 62, 62, 13},
    {zAtomComboBox, nullptr, 163, nullptr, dropDownList, 79, 62, 52, 13},
    {0, "zGroupBox3dClass", zNoId, "ELAN Type", groupBox, 9, 85, 130, 31},
    {0, "zRadioBtn3dClass", 176, "Ethernet", radioButton, 15, 97, 54, 13},
    {0, "zRadioBtn3dClass", 177, "Token Ring", radioButton, 71, 97, 62, 13},
    {0, "zGroupBox3dClass", zNoId, "Strict", groupBox, 145, 85, 130, 31},
    {0, "zCheckBox3dClass", 178, "ELAN Name", checkBox, 151, 97, 60, 13},
    {0, "zCheckBox3dClass", 179, "MTU Size", checkBox, 215, 97, 54, 13},
    {0, "zGroupBox3dClass", 180, "ELAN Client Mappings", groupBox, 9, 120, 266, 97},
    {zAtomListBox, nullptr, 181, nullptr, tab, 15, 132, 200, 79},
    {0, "zBmpBtnClass", 172, "Add", pictureLeft, 219, 132, 50, 15},
    {0, "zBmpBtnClass", 182, "Insert", pictureLeft, 219, 150, 50, 15},
    {0, "zBmpBtnClass", 174, "Delete", pictureLeft, 219, 168, 50, 15},
    end,
};

constexpr zControlRecord lecsControls[] = {
    {0, "zGroupBox3dClass", zNoId, "LECS", groupBox, 7, 7, 270, 79},
    {0, "zCheckBox3dClass", 151, "Enable", checkBox, 13, 19, 60, 13},
    {0, "zCheckBox3dClass", 184, "Use 'Well Known Address'", checkBox, 13, 35, 160, 13},
    {zAtomStatic, nullptr, 147, "Network Prefix:", label, 13, 51, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", tab, 79, 51, 192, 13},
    {zAtomStatic, nullptr, 168, "ESI / Selector:", label, 13, 67, 62, 13},
    {zAtomEdit, nullptr, 169, "00:00:00:00:00:00-00", tab, 79, 67, 104, 13},
    {0, "zGroupBox3dClass", zNoId, "Default MTU Sizes", groupBox, 7, 93, 131, 47},
    {zAtomStatic, nullptr, 185, "Ethernet:", label, 13, 105, 60, 13},
    {zAtomComboBox, nullptr, 186, nullptr, dropDownList, 79, 105, 52, 13},
    {zAtomStatic, nullptr, 187, "Token Ring:", label, 13, 121, 60, 13},
    {zAtomComboBox, nullptr, 188, nullptr, dropDownList, 79, 121, 52, 13},
    {0, "zGroupBox3dClass", zNoId, "Default ELAN Type", groupBox, 146, 93, 131, 47},
    {0, "zRadioBtn3dClass", 176, "Ethernet", radioButton, 152, 105, 80, 13},
    {0, "zRadioBtn3dClass", 177, "Token Ring", radioButton, 152, 121, 80, 13},
    end,
};

constexpr zControlRecord ip1577Controls[] = {
    {0, "zTabCtrl", 189, nullptr, tab, 2, 2, 280, 220},
    {0, "zGroupBox3dClass", 190, "1577", groupBox, 9, 18, 266, 47},
    {0, "zCheckBox3dClass", 151, "Enable", checkBox, 15, 30, 56, 13},
    {0, "zCheckBox3dClass", 152, "PVC Only", checkBox, 79, 30, 60, 13},
    {zAtomStatic, nullptr, 191, "IP Address:", label, 15, 46, 62, 13},
    {zAtomEdit, nullptr, 192, nullptr, tab, 79, 46, 66, 13},
    {zAtomStatic, nullptr, 193, "Subnet Mask:", label, 149, 46, 52, 13},
    {zAtomEdit, nullptr, 194, "255.255.255.0", tab, 203, 46, 66, 13},
    {0, "zGroupBox3dClass", 195, "ARP Server", groupBox, 9, 69, 266, 79},
    {0, "zCheckBox3dClass", 196, "Enable", checkBox, 15, 81, 56, 13},
    {zAtomStatic, nullptr, 197, "IP Address:", label, 15, 97, 62, 13},
    {zAtomEdit, nullptr, 198, nullptr, tab, 79, 97, 66, 13},
    {zAtomStatic, nullptr, 147, "Network Prefix:", label, 15, 113, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", tab, 79, 113, 190, 13},
    {zAtomStatic, nullptr, 168, "ESI/Selector:", label, 15, 129, 62, 13},
    {zAtomEdit, nullptr, 169, "11:22:33:44:55:66-01", tab, 79, 129, 104, 13},
    {zAtomStatic, nullptr, 170, "PVC Table:", label, 9, 151, 80, 9},
    {0, "zTable", 171, nullptr, tab, 9, 161, 212, 58},
    {0, "zBmpBtnClass", 172, "Add", pictureLeft, 225, 161, 50, 15},
    {0, "zBmpBtnClass", 173, "Modify", pictureLeft, 225, 179, 50, 15},
    {0, "zBmpBtnClass", 174, "Delete", pictureLeft, 225, 197, 50, 15},
    end,
};

// Setup's editors.
constexpr zControlRecord ipPvcControls[] = {
    {zAtomStatic, nullptr, 197, "IP Address:", label, 7, 7, 58, 13},
    {zAtomEdit, nullptr, 198, nullptr, tab, 67, 7, 84, 13},
    {zAtomStatic, nullptr, zNoId, "VCI:", label, 7, 25, 58, 13},
    {zAtomEdit, nullptr, 275, nullptr, tab, 67, 25, 36, 13},
    {0, "zGroupBox3dClass", 195, "Encapsulation", groupBox, 7, 45, 202, 31},
    {0, "zRadioBtn3dClass", 281, "LLC_Snap", radioButton, 13, 57, 54, 13},
    {0, "zRadioBtn3dClass", 282, "Null", radioButton, 73, 57, 54, 13},
    {0, "zBmpBtnClass", 283, "OK", pictureLeft, 105, 115, 50, 15},
    {0, "zBmpBtnClass", 284, "Cancel", pictureLeft, 159, 115, 50, 15},
    {zAtomStatic, nullptr, 276, "Service:", label, 0, 0, 50, 13},
    {zAtomComboBox, nullptr, 277, nullptr, dropDownList, 0, 0, 50, 13},
    {zAtomStatic, nullptr, 278, "Rate:", label, 0, 0, 50, 13},
    {zAtomEdit, nullptr, 279, "155520000", tab, 0, 0, 60, 13},
    {zAtomButton, nullptr, 280, "Cells/s", tab, 0, 0, 50, 13},
    end,
};

constexpr zControlRecord lecPvcControls[] = {
    {zAtomStatic, nullptr, 289, "MAC Address:", label, 7, 7, 58, 13},
    {zAtomEdit, nullptr, 240, nullptr, tab, 67, 7, 84, 13},
    {zAtomStatic, nullptr, 290, "VCI:", label, 7, 25, 58, 13},
    {zAtomEdit, nullptr, 275, nullptr, tab, 67, 25, 36, 13},
    {0, "zGroupBox3dClass", 195, "Encapsulation", groupBox, 7, 45, 202, 31},
    {0, "zRadioBtn3dClass", 281, "LLC_Snap", radioButton, 13, 57, 54, 13},
    {0, "zRadioBtn3dClass", 282, "Null", radioButton, 73, 57, 54, 13},
    {0, "zCheckBox3dClass", 288, "BroadCast", checkBox, 7, 83, 80, 13},
    {0, "zBmpBtnClass", 283, "OK", pictureLeft, 105, 115, 50, 15},
    {0, "zBmpBtnClass", 284, "Cancel", pictureLeft, 159, 115, 50, 15},
    {0, "zCheckBox3dClass", 285, "Default PVC", checkBox, 0, 0, 80, 13},
    {zAtomStatic, nullptr, 276, "Service:", label, 0, 0, 50, 13},
    {zAtomComboBox, nullptr, 277, nullptr, dropDownList, 0, 0, 50, 13},
    {zAtomStatic, nullptr, 286, "Rate:", label, 0, 0, 50, 13},
    {zAtomEdit, nullptr, 287, "155520000", tab, 0, 0, 60, 13},
    {zAtomButton, nullptr, 280, "Cells/s", tab, 0, 0, 50, 13},
    end,
};

constexpr zControlRecord elanClientControls[] = {
    {zAtomStatic, nullptr, 168, "ESI/Selector:", label, 7, 7, 131, 9},
    {zAtomEdit, nullptr, 169, "00:00:00:00:00:00-00", tab, 7, 18, 131, 13},
    {0, "zBmpBtnClass", 283, "OK", pictureLeft, 34, 68, 50, 15},
    {0, "zBmpBtnClass", 284, "Cancel", pictureLeft, 88, 68, 50, 15},
    end,
};

constexpr zControlRecord insertClientsControls[] = {
    {zAtomStatic, nullptr, 133, "Clients Available:", label, 7, 7, 133, 9},
    {zAtomListBox, nullptr, 291, nullptr, tab, 7, 18, 133, 111},
    {0, "zBmpBtnClass", 283, "OK", pictureLeft, 7, 136, 50, 15},
    {0, "zBmpBtnClass", 284, "Cancel", pictureLeft, 90, 136, 50, 15},
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
    {ipPvcControls, 565, form, 0, 0, 216, 137, "PVC Settings", helv, points, zNoMenu},
    {lecPvcControls, 566, form, 0, 0, 216, 137, "PVC Settings", helv, points, zNoMenu},
    {elanClientControls, 567, form, 0, 0, 145, 90, "Add ELAN Client", helv, points, zNoMenu},
    {insertClientsControls, 568, sizeableForm, 0, 0, 147, 158, "Insert ELAN Client(s)", helv,
     points, zNoMenu},
    {physicalControls, 569, page, 0, 0, 284, 220, "Physical", helv, points, zNoMenu},
    {signallingControls, 570, page, 0, 0, 284, 220, "Signalling", helv, points, zNoMenu},
    {lecControls, 571, page, 0, 0, 284, 230, "LEC...", helv, points, zNoMenu},
    {lesControls, 572, page, 0, 0, 284, 220, "LES...", helv, points, zNoMenu},
    {lecsControls, 573, page, 0, 0, 284, 219, "LECS", helv, points, zNoMenu},
    {ip1577Controls, 574, page, 0, 0, 284, 220, "1577", helv, points, zNoMenu},
    {unavailableControls, 584, form, 0, 0, 200, 54, nullptr, helv, points, zNoMenu},
    {fontControls, 600, form, 0, 0, 220, 130, "Select Font", helv, points, zNoMenu},
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
