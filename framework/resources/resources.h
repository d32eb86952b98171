// The compiled-in resources: dialogs, pictures and texts, found by kind and number.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

enum zResKind {
  zResCursor = 1,
  zResBitmap = 2,
  zResIcon = 3,
  zResDialog = 5,
  zResString = 6,
  zResAccelerators = 9,
  zResStringBlock = 10,
};

// Identifies a resource: by number, or by name in an external file, which this program has none of.
class zResId {
 public:
  zResId(int number, const char* module = nullptr) : number_(number), module_(module) {}
  explicit zResId(const char* name, const char* module = nullptr) : name_(name), module_(module) {}

  // The number, or the name's pointer for an id that is a string.
  std::intptr_t id() const {
    return isResIdString() ? reinterpret_cast<std::intptr_t>(name_) : number_;
  }
  int intId() const { return number_; }
  bool isResIdString() const { return name_ != nullptr; }
  const char* moduleName() const { return module_; }
  // The string resource of this number; empty if there is none.
  std::string loadStr() const;

 private:
  const char* name_ = nullptr;
  int number_ = 0;
  const char* module_;
};

// A control of a dialog template. Lengths in dialog units.
struct zControlRecord {
  std::uint32_t atom;     // a predefined class, or 0 for the class named
  const char* className;  // used when the atom is 0
  std::uint32_t id;       // all ones: a label that nobody refers to
  const char* title;      // may be null
  std::uint32_t style;    // window style; the low 16 bits are the class's own
  std::int32_t x, y, w, h;
};

// A dialog template. Its control table ends with a record whose atom and class are both zero.
struct zDialogTemplate {
  const zControlRecord* controls;
  std::uint32_t id;
  std::uint32_t style;
  std::int32_t x, y, w, h;  // dialog units
  const char* title;        // may be null
  const char* fontName;
  std::uint32_t pointSize;  // 0: no font of its own
  std::uint32_t menuId;     // all ones: no menu
};
constexpr std::uint32_t zNoMenu = 0xFFFFFFFF;
constexpr std::uint32_t zNoId = 0xFFFFFFFF;

// What zAppFindResource answers: `data` is null when there is no such resource.
struct zFoundResource {
  const void* data = nullptr;
  int id = 0;
};

// The module of resources that an id without one means: all ones for those compiled in, the only
// ones there are.
inline const char* const zCompiledIn = reinterpret_cast<const char*>(~std::uintptr_t{0});
extern const char* zAppDefResource;

// Finds the resource `id` of the given kind. The data are constant and live as long as the program.
zFoundResource zAppFindResource(int id, int kind);

// The same through a resource id; ziUnlockResource has nothing to do for compiled-in data.
const void* ziLockResource(const zResId& id, int kind);
void ziUnlockResource(int kind, const void* data, const zResId& id);

// A block of texts, taken one after the other.
class zUserResource {
 public:
  explicit zUserResource(const zResId& id) : id_(id), data_(ziLockResource(id, zResStringBlock)) {}

 protected:
  const void* data() const { return data_; }

 private:
  zResId id_;
  const void* data_;
};

class zResStrBlock : public zUserResource {
 public:
  explicit zResStrBlock(const zResId& id)
      : zUserResource(id), start_(static_cast<const char*>(data())) {}

  // The next text; null behind the last one, and then from the first again.
  const char* operator()() const;
  void reset() { cursor_ = nullptr; }

 private:
  const char* start_;
  mutable const char* cursor_ = nullptr;  // null: before the first
};

// The parts of the table, each in its own source. Null for an id that they do not hold.
const zDialogTemplate* ziFindDialog(int id);
const char* ziFindString(int id);
const char* ziFindStringBlock(int id);

// Makes a program's own dialogs known beside those compiled in. They must live as long as it does.
void ziAddDialogs(std::span<const zDialogTemplate> dialogs);

// Predefined control classes of the templates.
enum zControlAtom : std::uint32_t {
  zAtomButton = 0x80,
  zAtomEdit = 0x81,
  zAtomStatic = 0x82,
  zAtomListBox = 0x83,
  zAtomScrollBar = 0x84,
  zAtomComboBox = 0x85,
  zAtomPictureButton = 0x86,
};
