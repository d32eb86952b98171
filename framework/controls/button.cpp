#include "framework/controls/button.h"

#include <Xm/Label.h>
#include <Xm/PushB.h>
#include <Xm/ToggleB.h>

#include <algorithm>

#include "framework/core/app.h"
#include "framework/core/x_text.h"
#include "framework/resources/images/cancel_button.xbm"
#include "framework/resources/images/help_button.xbm"
#include "framework/resources/images/ok_button.xbm"

namespace {

// Pixels.
constexpr int focusMark = 1;
constexpr int indicatorGap = 5;
constexpr int toggleMargin = 2;  // between the mark of the focus and the indicator

// Return presses a button that has the focus, as Space does.
XtTranslations pushTranslations() {
  static const XtTranslations parsed =
      XtParseTranslationTable("<Key>Return: ArmAndActivate()\n<Key>osfActivate: ArmAndActivate()");
  return parsed;
}

// The radio buttons of the template read last, and the number of the group that the next one joins.
struct RadioRecord {
  int group;
  Widget parent;
  Widget toggle;
};
std::vector<RadioRecord> radioRecords;
int radioGroup = 0;

void forgetToggle(Widget destroyed, XtPointer, XtPointer) {
  std::erase_if(radioRecords, [=](const RadioRecord& r) { return r.toggle == destroyed; });
}

void turnOthersOff(Widget toggle) {
  const auto self = std::find_if(radioRecords.begin(), radioRecords.end(),
                                 [=](const RadioRecord& r) { return r.toggle == toggle; });
  if (self == radioRecords.end()) return;
  for (const RadioRecord& r : radioRecords) {
    const bool sameGroup = r.group == self->group && r.parent == self->parent;
    if (sameGroup && r.toggle != toggle && XmToggleButtonGetState(r.toggle)) {
      XmToggleButtonSetState(r.toggle, False, False);
    }
  }
}

// The picture of a picture button, or null for an id that has none.
struct ButtonPicture {
  int id;
  const char* name;
  unsigned char* bits;
};
constexpr ButtonPicture buttonPictures[] = {
    {1, "zOkButton", ok_button_bits},
    {2, "zCancelButton", cancel_button_bits},
    {8, "zHelpButton", help_button_bits},
};

void installPicture(const ButtonPicture& picture) {
  static XImage images[std::size(buttonPictures)];  // Motif keeps the pointers
  XImage& image = images[&picture - buttonPictures];
  if (image.data) return;
  image.width = ok_button_width;
  image.height = ok_button_height;
  image.data = reinterpret_cast<char*>(picture.bits);
  image.byte_order = image.bitmap_bit_order = LSBFirst;
  image.bitmap_unit = image.bitmap_pad = 8;
  image.depth = image.bits_per_pixel = 1;
  image.bytes_per_line = ok_button_width / 8;
  image.format = XYBitmap;
  XmInstallImage(&image, const_cast<char*>(picture.name));
}

const ButtonPicture* pictureFor(int id) {
  const auto* found = std::find_if(std::begin(buttonPictures), std::end(buttonPictures),
                                   [=](const ButtonPicture& p) { return p.id == id; });
  if (found == std::end(buttonPictures)) return nullptr;
  installPicture(*found);
  return found;
}

}  // namespace

zButton::zButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zControl(parent, sizer, style, title, id, subTypeButton) {
  ziSetType(zTypeButton);
}

zButton::zButton(zWindow* parent, int id) : zControl(parent, id) {
  ziSetType(zTypeButton);
}

// Making the widget.

int zButton::create() {
  if (styleValue() & zStyleGroup) ++radioGroup;
  switch (buttonType()) {
    case push:
    case defaultPush:
      createPush();
      break;
    case picture:
      createPicture();
      break;
    case check:
    case checkAuto:
    case radio:
    case radioAuto:
    case radioAuto2:
      createToggle();
      break;
    default:
      break;
  }
  return getWidget() != nullptr;
}

bool zButton::isRadio() const {
  return buttonType() == radio || buttonType() == radioAuto || buttonType() == radioAuto2;
}

std::vector<Arg> zButton::labelArgs(int marginWidth) const {
  std::vector<Arg> args = commonArgs();
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNrecomputeSize, False);
  add(XmNmarginWidth, marginWidth);
  add(XmNmarginHeight, 0);
  add(XmNhighlightThickness, focusMark);
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  return args;
}

void zButton::finish(Widget widget, const char* callback, XtCallbackProc procedure) {
  adoptWidget(widget);
  applyColors(widget);
  addCallback(widget, callback, procedure);
}

void zButton::createPush() {
  std::vector<Arg> args = labelArgs(0);
  const Widget widget =
      XtCreateManagedWidget("PushButton", xmPushButtonWidgetClass, createContainer("PushButton"),
                            args.data(), static_cast<Cardinal>(args.size()));
  ziSetLabel(widget, title());
  XtOverrideTranslations(widget, pushTranslations());
  finish(widget, XmNactivateCallback, pushButtonCB);
}

void zButton::createPicture() {
  const ButtonPicture* shown = pictureFor(ctrlId());
  if (!shown) return;
  createPush();
  int depth = 0;
  XtVaGetValues(getWidget(), XmNdepth, &depth, nullptr);
  const Pixmap pixmap =
      XmGetPixmapByDepth(XtScreen(getWidget()), const_cast<char*>(shown->name),
                         ziClrm->pixel(textColor()), ziClrm->pixel(backgroundColor()), depth);
  XtVaSetValues(getWidget(), XmNlabelType, XmPIXMAP, XmNlabelPixmap, pixmap, nullptr);
}

void zButton::createToggle() {
  std::vector<Arg> args = labelArgs(toggleMargin);
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNalignment, XmALIGNMENT_BEGINNING);
  add(XmNspacing, indicatorGap);
  add(XmNvisibleWhenOff, True);
  add(XmNfillOnSelect, True);
  add(XmNindicatorOn, isRadio() ? XmINDICATOR_FILL : XmINDICATOR_CHECK_BOX);
  add(XmNindicatorType, isRadio() ? XmONE_OF_MANY_ROUND : XmN_OF_MANY);
  add(XmNset, XmUNSET);
  const char* name = isRadio() ? "RadioButton" : "CheckBox";
  const Widget toggle =
      XtCreateManagedWidget(name, xmToggleButtonWidgetClass, createContainer(name), args.data(),
                            static_cast<Cardinal>(args.size()));
  ziSetLabel(toggle, title());
  if (isRadio()) joinGroup(toggle);
  finish(toggle, XmNvalueChangedCallback, isRadio() ? radioCB : checkCB);
}

void zButton::joinGroup(Widget toggle) const {
  radioRecords.push_back({radioGroup, parent()->childArea(), toggle});
  XtAddCallback(toggle, XmNdestroyCallback, forgetToggle, nullptr);
}

void zButton::resetStaticGroups() {
  radioRecords.clear();
  radioGroup = 0;
}

// Look.

// What Motif would otherwise take from the resource database or reckon from the background.
void zButton::applyColors(Widget widget) const {
  XtVaSetValues(widget, XmNhighlightColor, ziClrm->pixel(zBlack), XmNhighlightPixmap,
                XmUNSPECIFIED_PIXMAP, nullptr);
  if (!XmIsToggleButton(widget)) return;
  XtVaSetValues(widget, XmNselectColor, ziClrm->pixel(isRadio() ? zBlack : zWhite),
                XmNunselectColor, ziClrm->pixel(zWhite), nullptr);
}

void zButton::ziBackgroundColor(const zColor& color) {
  zControl::ziBackgroundColor(color);
  if (getWidget() && XmIsLabel(getWidget())) applyColors(getWidget());
}

void zButton::doText(const char* value) {
  zControl::doText(value);
  if (getWidget() && XmIsLabel(getWidget())) ziSetLabel(getWidget(), value);
}

// State.

bool zButton::isToggledOn() const {
  return getWidget() && XmIsToggleButton(getWidget()) && XmToggleButtonGetState(getWidget());
}

void zButton::toggle(bool on) {
  if (getWidget() && XmIsToggleButton(getWidget())) XmToggleButtonSetState(getWidget(), on, False);
}

void zButton::pressByKey(XEvent* event) {
  if (!getWidget() || !XmIsLabel(getWidget())) return;
  zWindowWatch watch(this);
  XmProcessTraversal(getWidget(), XmTRAVERSE_CURRENT);
  if (!watch.gone()) XtCallActionProc(getWidget(), "ArmAndActivate", event, nullptr, 0);
}

// Callbacks.

void zButton::pushButtonCB(Widget, XtPointer link, XtPointer callData) {
  const auto* pushed = static_cast<const XmPushButtonCallbackStruct*>(callData);
  const unsigned code = pushed->click_count == 2 ? zNtfButtonDoubleClicked : zNtfClicked;
  notifyParent(controlOf<zButton>(link), code, callData);
}

void zButton::checkCB(Widget, XtPointer link, XtPointer callData) {
  notifyParent(controlOf<zButton>(link), zNtfClicked, callData);
}

// A click does not turn a radio button off: it stays set, and is heard all the same.
void zButton::radioCB(Widget toggle, XtPointer link, XtPointer callData) {
  auto* button = controlOf<zButton>(link);
  if (button->buttonType() != radio) {
    const bool on = static_cast<const XmToggleButtonCallbackStruct*>(callData)->set != XmUNSET;
    if (on) {
      turnOthersOff(toggle);
    } else {
      XmToggleButtonSetState(toggle, True, False);
    }
  }
  notifyParent(button, zNtfClicked, callData);
}
