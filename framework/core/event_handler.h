// The root of everything that can be the target of an event or a timer.
#pragma once

#include <bitset>
#include <concepts>

struct zEvent;

// The classes that tell themselves apart at run time; the number is the bit in the type set.
enum ziTypeNumber : unsigned {
  zTypeEvH = 1,
  zTypeWindow = 2,
  zTypeFrameWin = 3,
  zTypeChildWin = 4,
  zTypeDialogFrame = 6,
  zTypeFormDialog = 7,
  zTypePane = 8,
  zTypeControl = 10,
  zTypeTextPane = 11,
  zTypeStaticText = 16,
  zTypeButton = 17,
  zTypePushButton = 18,
  zTypeDefPushButton = 19,
  zTypeCheckBox = 20,
  zTypeRadioButton = 21,
  zTypeGroupBox = 22,
  zTypeEditBase = 23,
  zTypeEditLine = 24,
  zTypeEditBox = 25,
  zTypeListBoxBase = 26,
  zTypeListBox = 27,
  zTypeListBoxUnsorted = 28,
  zTypeComboBoxBase = 29,
  zTypeComboBox = 30,
  zTypeComboBoxFull = 31,
  zTypeComboBoxStatic = 32,
  zTypeScrollBarBase = 33,
  zTypeCtrlPane = 42,
};

class zEvH {
 public:
  zEvH() { ziSetType(zTypeEvH); }
  zEvH(const zEvH&) = delete;
  zEvH& operator=(const zEvH&) = delete;
  virtual ~zEvH() = default;

  // Offered an event that nobody else took. Non-zero means handled.
  virtual int dispatch(zEvent*) { return 0; }

  // Whether the object is of the class numbered `type`, or of one derived from it.
  bool isA(unsigned type) const { return type < types_.size() && types_.test(type); }

 protected:
  void ziSetType(unsigned type) { types_.set(type); }

 private:
  std::bitset<96> types_;
};

// A class C whose members can be handlers on an object of class T.
template <class T, class C>
concept zHandlerOn = std::derived_from<C, zEvH> && std::derived_from<T, C>;

// A typed pair of object and member function without arguments: what a timer, an idle task or a
// table calls. Two are equal when both halves are; virtual members compare by their slot.
template <class Result>
class zAction {
 public:
  zAction() = default;

  template <class T, class C>
  requires zHandlerOn<T, C> zAction(T* object, Result (C::*member)())
      : object_(object), member_(static_cast<Member>(member)) {}

  explicit operator bool() const { return object_ != nullptr; }
  Result operator()() const { return (object_->*member_)(); }
  friend bool operator==(const zAction&, const zAction&) = default;

 private:
  using Member = Result (zEvH::*)();
  zEvH* object_ = nullptr;
  Member member_ = nullptr;
};

// The same for a handler of events: a member function that takes zEvent* or one of its typed
// views and returns non-zero when the event is consumed.
class zEventHandler {
 public:
  zEventHandler() = default;

  template <class T, class C, std::derived_from<zEvent> View>
  requires zHandlerOn<T, C> zEventHandler(T* object, int (C::*member)(View*))
      : object_(object),
        member_(reinterpret_cast<Member>(static_cast<int (zEvH::*)(View*)>(member))),
        call_(&callAs<View>) {}

  explicit operator bool() const { return object_ != nullptr; }
  int operator()(zEvent* event) const { return call_(*this, event); }
  const zEvH* object() const { return object_; }
  friend bool operator==(const zEventHandler& a, const zEventHandler& b) {
    return a.object_ == b.object_ && a.member_ == b.member_;
  }

 private:
  using Member = int (zEvH::*)(zEvent*);

  // The member goes back to the type it came from before it is called.
  template <class View>
  static int callAs(const zEventHandler& h, zEvent* event) {
    return (h.object_->*reinterpret_cast<int (zEvH::*)(View*)>(h.member_))(
        static_cast<View*>(event));
  }

  zEvH* object_ = nullptr;
  Member member_ = nullptr;
  int (*call_)(const zEventHandler&, zEvent*) = nullptr;
};
