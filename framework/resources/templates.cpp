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
constexpr std::uint32_t lamp = label | 0x800;
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

// Statistics. A lamp stands beside its label, and everything only displays.
constexpr zControlRecord signallingStatsControls[] = {
    {0, "zGroupBox3dClass", zNoId, "Signalling State", groupBox, 7, 7, 89, 63},
    {zAtomStatic, nullptr, zNoId, "ILMI:", label, 13, 19, 50, 13},
    {0, "zBmpBtnClass", 199, " ", lamp, 67, 19, 20, 13},
    {zAtomStatic, nullptr, zNoId, "QSAAL:", label, 13, 35, 50, 13},
    {0, "zBmpBtnClass", 200, " ", lamp, 67, 35, 20, 13},
    {zAtomStatic, nullptr, zNoId, "Signalling:", label, 13, 51, 50, 13},
    {0, "zBmpBtnClass", 201, " ", lamp, 67, 51, 20, 13},
    {0, "zGroupBox3dClass", 202, "State Detail", groupBox, 103, 7, 174, 63},
    {zAtomEdit, nullptr, 203, "ILMI Static Registration", readOnlyEdit, 109, 19, 162, 13},
    {zAtomEdit, nullptr, 204, "Outgoing disconnection pending", readOnlyEdit, 109, 35, 162, 13},
    {zAtomEdit, nullptr, 205, "Signalling Disconnected", readOnlyEdit, 109, 51, 162, 13},
    {0, "zGroupBox3dClass", 195, "ATM End Station Address (AESA)", groupBox, 7, 77, 270, 47},
    {zAtomStatic, nullptr, 206, "Network Prefix:", label, 13, 89, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", readOnlyEdit, 79, 89, 192,
     13},
    {zAtomStatic, nullptr, 207, "ESI/Selector:", label, 13, 105, 62, 13},
    {zAtomEdit, nullptr, 169, "11:22:33:44:55:66-01", readOnlyEdit, 79, 105, 104, 13},
    {zAtomStatic, nullptr, 209, "Signalling Statistics:", label, 7, 131, 270, 9},
    {0, "zTable", 208, nullptr, tab, 7, 142, 270, 44},
    end,
};

constexpr zControlRecord aal5StatsControls[] = {
    {zAtomEdit, nullptr, 210, "Primary", readOnlyEdit, 7, 7, 44, 13},
    {zAtomStatic, nullptr, 211, "Adapter", label, 55, 7, 32, 13},
    {zAtomEdit, nullptr, 212, "1", readOnlyEdit, 89, 7, 18, 13},
    {zAtomStatic, nullptr, zNoId, "State:", label, 146, 7, 26, 13},
    {zAtomEdit, nullptr, 213, "Backed Up", readOnlyEdit, 174, 7, 60, 13},
    {0, "zGroupBox3dClass", 202, "AAL5 Statistics", groupBox, 7, 27, 131, 79},
    {zAtomStatic, nullptr, zNoId, "Received Packets:", label, 13, 39, 68, 13},
    {zAtomEdit, nullptr, 214, "0", readOnlyEdit, 83, 39, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Received Cells:", label, 13, 55, 68, 13},
    {zAtomEdit, nullptr, 215, "0", readOnlyEdit, 83, 55, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Transmitted Packets:", label, 13, 71, 68, 13},
    {zAtomEdit, nullptr, 216, "0", readOnlyEdit, 83, 71, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Transmited Cells:", label, 13, 87, 68, 13},
    {zAtomEdit, nullptr, 217, "0", readOnlyEdit, 83, 87, 49, 13},
    {0, "zGroupBox3dClass", 218, "SONET", groupBox, 7, 113, 131, 63},
    {zAtomStatic, nullptr, 219, "LOS:", label, 13, 125, 34, 13},
    {0, "zBmpBtnClass", 225, " ", lamp, 49, 125, 18, 13},
    {zAtomStatic, nullptr, 220, "LOF:", label, 13, 141, 34, 13},
    {0, "zBmpBtnClass", 226, " ", lamp, 49, 141, 18, 13},
    {zAtomStatic, nullptr, 221, "OOF:", label, 13, 157, 34, 13},
    {0, "zBmpBtnClass", 227, " ", lamp, 49, 157, 18, 13},
    {zAtomStatic, nullptr, 222, "FERF:", label, 79, 125, 28, 13},
    {0, "zBmpBtnClass", 228, " ", lamp, 109, 125, 18, 13},
    {zAtomStatic, nullptr, 223, "AIS:", label, 79, 141, 28, 13},
    {0, "zBmpBtnClass", 229, " ", lamp, 109, 141, 18, 13},
    {zAtomStatic, nullptr, 224, "LOP:", label, 79, 157, 28, 13},
    {0, "zBmpBtnClass", 230, " ", lamp, 109, 157, 18, 13},
    {0, "zGroupBox3dClass", 195, "AAL5 Errors", groupBox, 146, 27, 131, 79},
    {zAtomStatic, nullptr, zNoId, "Rx Dropped Packets:", label, 152, 39, 68, 13},
    {zAtomEdit, nullptr, 231, "0", readOnlyEdit, 222, 39, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Rx Frame Errors", label, 152, 55, 68, 13},
    {zAtomEdit, nullptr, 232, "0", readOnlyEdit, 222, 55, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Tx Dropped Packets:", label, 152, 71, 68, 13},
    {zAtomEdit, nullptr, 233, "0", readOnlyEdit, 222, 71, 49, 13},
    {0, "zGroupBox3dClass", 234, "ATM Layer Errors", groupBox, 146, 113, 131, 63},
    {zAtomStatic, nullptr, zNoId, "Invalid VPIs:", label, 152, 125, 68, 13},
    {zAtomEdit, nullptr, 235, "0", readOnlyEdit, 222, 125, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Invalid VCIs:", label, 152, 141, 68, 13},
    {zAtomEdit, nullptr, 236, "0", readOnlyEdit, 222, 141, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Receive Cell Errors:", label, 152, 157, 68, 13},
    {zAtomEdit, nullptr, 237, "0", readOnlyEdit, 222, 157, 49, 13},
    end,
};

constexpr zControlRecord lecStatsControls[] = {
    {0, "zTabCtrl", 175, nullptr, tab, 2, 2, 280, 216},
    {0, "zGroupBox3dClass", 238, "LEC", groupBox, 9, 18, 266, 79},
    {zAtomStatic, nullptr, zNoId, "State", label, 15, 30, 62, 13},
    {0, "zBmpBtnClass", 239, " ", lamp, 79, 30, 20, 13},
    {zAtomStatic, nullptr, zNoId, "ELAN Name:", label, 123, 30, 48, 13},
    {zAtomEdit, nullptr, 159, "Elan1", readOnlyEdit, 173, 30, 96, 13},
    {zAtomStatic, nullptr, zNoId, "MAC Address:", label, 15, 46, 62, 13},
    {zAtomEdit, nullptr, 240, "00:00:00:00:00:00", readOnlyEdit, 79, 46, 84, 13},
    {zAtomStatic, nullptr, zNoId, "ELAN Type:", label, 171, 46, 44, 13},
    {zAtomEdit, nullptr, 241, "Ethernet", readOnlyEdit, 217, 46, 52, 13},
    {zAtomStatic, nullptr, 147, "Network Prefix:", label, 15, 62, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", readOnlyEdit, 79, 62, 190,
     13},
    {zAtomStatic, nullptr, 168, "ESI/Selector:", label, 15, 78, 62, 13},
    {zAtomEdit, nullptr, 169, "00:00:00:00:00:00-00", readOnlyEdit, 79, 78, 104, 13},
    {zAtomStatic, nullptr, zNoId, "MTU:", label, 191, 78, 24, 13},
    {zAtomEdit, nullptr, 242, "1516", readOnlyEdit, 217, 78, 52, 13},
    {0, "zTable", 243, nullptr, tab, 9, 101, 266, 74},
    {0, "zTable", 244, nullptr, tab, 9, 179, 266, 35},
    end,
};

constexpr zControlRecord lesStatsControls[] = {
    {0, "zTabCtrl", 183, nullptr, tab, 2, 2, 280, 216},
    {0, "zGroupBox3dClass", 245, "LES", groupBox, 9, 18, 266, 79},
    {zAtomStatic, nullptr, zNoId, "State", label, 15, 30, 62, 13},
    {0, "zBmpBtnClass", 239, " ", lamp, 79, 30, 20, 13},
    {zAtomStatic, nullptr, zNoId, "ELAN Name:", label, 123, 30, 48, 13},
    {zAtomEdit, nullptr, 159, "Elan0", readOnlyEdit, 173, 30, 96, 13},
    {zAtomStatic, nullptr, zNoId, "ELAN Type:", label, 15, 46, 62, 13},
    {zAtomEdit, nullptr, 241, "Token Ring", readOnlyEdit, 79, 46, 52, 13},
    {zAtomStatic, nullptr, zNoId, "MTU Size:", label, 173, 46, 42, 13},
    {zAtomEdit, nullptr, 242, "1516", readOnlyEdit, 217, 46, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Network Prefix:", label, 15, 62, 62, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", readOnlyEdit, 79, 62, 190,
     13},
    {zAtomStatic, nullptr, zNoId, "ESI/Selector:", label, 15, 78, 62, 13},
    {zAtomEdit, nullptr, 169, "00:00:00:00:00:00-00", readOnlyEdit, 79, 78, 104, 13},
    {0, "zGroupBox3dClass", 195, "BUS ATM Address", groupBox, 9, 101, 266, 47},
    {zAtomStatic, nullptr, zNoId, "Network Prefix:", label, 15, 113, 62, 13},
    {zAtomEdit, nullptr, 247, "47:00:00:00:00:00:00:00:00:00:00:00:00", readOnlyEdit, 79, 113, 190,
     13},
    {zAtomStatic, nullptr, zNoId, "ESI/Selector:", label, 15, 129, 62, 13},
    {zAtomEdit, nullptr, 248, "00:00:00:00:00:00-00", readOnlyEdit, 79, 129, 104, 13},
    {zAtomStatic, nullptr, 140, "Client Service Table:", label, 9, 151, 266, 9},
    {0, "zTable", 246, nullptr, tab, 9, 161, 266, 53},
    end,
};

constexpr zControlRecord lecsStatsControls[] = {
    {0, "zGroupBox3dClass", 249, "LECS", groupBox, 7, 7, 270, 79},
    {zAtomStatic, nullptr, zNoId, "State", label, 13, 19, 24, 13},
    {0, "zBmpBtnClass", 239, " ", lamp, 39, 19, 20, 13},
    {zAtomStatic, nullptr, zNoId, "Def ELAN Type:", label, 147, 19, 70, 13},
    {zAtomEdit, nullptr, 241, "Token Ring", readOnlyEdit, 219, 19, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Def Ethernet MTU:", label, 13, 35, 64, 13},
    {zAtomEdit, nullptr, 250, "1516", readOnlyEdit, 79, 35, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Def Token Ring MTU:", label, 147, 35, 70, 13},
    {zAtomEdit, nullptr, 251, "4544", readOnlyEdit, 219, 35, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Reg", label, 79, 19, 18, 13},
    {0, "zBmpBtnClass", 252, " ", lamp, 99, 19, 20, 13},
    {zAtomStatic, nullptr, zNoId, "Network Prefix:", label, 13, 51, 64, 13},
    {zAtomEdit, nullptr, 148, "47:00:00:00:00:00:00:00:00:00:00:00:00", readOnlyEdit, 79, 51, 192,
     13},
    {zAtomStatic, nullptr, zNoId, "ESI/Selector:", label, 13, 67, 64, 13},
    {zAtomEdit, nullptr, 169, "00:00:00:00:00:00-00", readOnlyEdit, 79, 67, 104, 13},
    {0, "zGroupBox3dClass", zNoId, "LECS Requests", groupBox, 7, 93, 270, 63},
    {zAtomStatic, nullptr, zNoId, "Valid Requests Received:", label, 13, 105, 96, 13},
    {zAtomEdit, nullptr, 253, "0", readOnlyEdit, 111, 105, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Invalid Requests Received:", label, 13, 121, 96, 13},
    {zAtomEdit, nullptr, 254, "0", readOnlyEdit, 111, 121, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Requests Rejected:", label, 13, 137, 96, 13},
    {zAtomEdit, nullptr, 255, "0", readOnlyEdit, 111, 137, 52, 13},
    {0, "zGroupBox3dClass", zNoId, "Connections", groupBox, 7, 163, 270, 47},
    {zAtomStatic, nullptr, zNoId, "Total Made:", label, 13, 175, 96, 13},
    {zAtomEdit, nullptr, 256, "0", readOnlyEdit, 111, 175, 52, 13},
    {zAtomStatic, nullptr, zNoId, "Currently Open:", label, 13, 191, 96, 13},
    {zAtomEdit, nullptr, 257, "0", readOnlyEdit, 111, 191, 52, 13},
    end,
};

constexpr zControlRecord ip1577StatsControls[] = {
    {0, "zTabCtrl", 260, nullptr, tab, 2, 2, 280, 216},
    {0, "zGroupBox3dClass", 195, "1577", groupBox, 9, 18, 266, 31},
    {zAtomStatic, nullptr, zNoId, "State", label, 15, 30, 68, 13},
    {0, "zBmpBtnClass", 239, " ", lamp, 85, 30, 20, 13},
    {0, "zGroupBox3dClass", 190, "1577 Statistics", groupBox, 9, 53, 130, 47},
    {zAtomStatic, nullptr, zNoId, "Received Packets:", label, 15, 65, 68, 13},
    {zAtomEdit, nullptr, 214, "0", readOnlyEdit, 85, 65, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Transmitted Packets:", label, 15, 81, 68, 13},
    {zAtomEdit, nullptr, 216, "0", readOnlyEdit, 85, 81, 49, 13},
    {0, "zGroupBox3dClass", 180, "1577 Errors", groupBox, 145, 53, 130, 47},
    {zAtomStatic, nullptr, zNoId, "Rx Dropped Packets:", label, 151, 65, 68, 13},
    {zAtomEdit, nullptr, 231, "0", readOnlyEdit, 221, 65, 49, 13},
    {zAtomStatic, nullptr, zNoId, "Tx Dropped Packets:", label, 151, 81, 68, 13},
    {zAtomEdit, nullptr, 233, "0", readOnlyEdit, 221, 81, 49, 13},
    {zAtomStatic, nullptr, 264, "Connection Table:", label, 9, 103, 266, 9},
    {0, "zTable", 259, nullptr, tab, 9, 113, 266, 101},
    end,
};

// What holds for the whole run.
constexpr zControlRecord globalAppControls[] = {
    {0, "zGroupBox3dClass", 195, "Ondrelle Settings", groupBox, 7, 7, 186, 63},
    {zAtomStatic, nullptr, zNoId, "Stat Refresh Rate (ms):", label, 13, 19, 98, 13},
    {zAtomComboBox, nullptr, 265, nullptr, dropDownList, 113, 19, 50, 13},
    {zAtomStatic, nullptr, zNoId, "Enable Advanced Settings:", label, 13, 35, 98, 13},
    {zAtomButton, nullptr, 266, " ", checkBox, 113, 35, 20, 13},
    {zAtomButton, nullptr, 267, "Fonts", tab, 113, 51, 50, 13},
    {zAtomStatic, nullptr, zNoId, "Set Table Font:", label, 13, 51, 98, 13},
    end,
};

constexpr zControlRecord globalConnectControls[] = {
    {0, "zGroupBox3dClass", 195, "Global Connections", groupBox, 7, 7, 186, 63},
    {zAtomStatic, nullptr, zNoId, "Pt-to-Pt:", label, 13, 19, 98, 13},
    {zAtomEdit, nullptr, 268, "1024", readOnlyEdit, 113, 19, 50, 13},
    {zAtomStatic, nullptr, zNoId, "Pt-to-Mpt:", label, 13, 35, 98, 13},
    {zAtomEdit, nullptr, 269, "24", readOnlyEdit, 113, 35, 50, 13},
    {zAtomStatic, nullptr, zNoId, "End Pts on a Pt-Mpt:", label, 13, 51, 98, 13},
    {zAtomEdit, nullptr, 270, "256", readOnlyEdit, 113, 51, 50, 13},
    end,
};

constexpr zControlRecord globalDebugControls[] = {
    {zAtomButton, nullptr, zNoId, "Enable Debugging", groupBox, 7, 7, 186, 63},
    {zAtomButton, nullptr, 271, "API", checkBox, 13, 19, 98, 13},
    {zAtomButton, nullptr, 272, "Signalling", checkBox, 13, 35, 98, 13},
    {zAtomButton, nullptr, 273, "ILMI", checkBox, 13, 51, 98, 13},
    {zAtomStatic, nullptr, zNoId, "OD Build", label, 13, 77, 44, 13},
    {zAtomStatic, nullptr, 274, "1997122019", label, 59, 77, 66, 13},
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
    {signallingStatsControls, 575, page, 0, 0, 284, 220, "Signalling", helv, points, zNoMenu},
    {aal5StatsControls, 576, page, 0, 0, 284, 220, "AAL5", helv, points, zNoMenu},
    {lecStatsControls, 577, page, 0, 0, 284, 220, "LEC ...", helv, points, zNoMenu},
    {lesStatsControls, 578, page, 0, 0, 284, 220, "LES ...", helv, points, zNoMenu},
    {lecsStatsControls, 579, page, 0, 0, 284, 220, "LECS", helv, points, zNoMenu},
    {ip1577StatsControls, 580, page, 0, 0, 284, 220, "1577", helv, points, zNoMenu},
    {globalAppControls, 581, page, 0, 0, 200, 100, "Application", helv, points, zNoMenu},
    {globalConnectControls, 582, page, 0, 0, 200, 100, "Connections", helv, points, zNoMenu},
    {globalDebugControls, 583, page, 0, 0, 200, 115, "Debugging", helv, points, zNoMenu},
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
