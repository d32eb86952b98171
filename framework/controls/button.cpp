#include "framework/controls/button.h"

#include <Xm/Label.h>
#include <Xm/PushB.h>

#include "framework/core/x_text.h"

namespace {

// Return presses a button that has the focus, as Space does.
XtTranslations pushTranslations() {
  static const XtTranslations parsed =
      XtParseTranslationTable("<Key>Return: ArmAndActivate()\n<Key>osfActivate: ArmAndActivate()");
  return parsed;
}

}  // namespace

zButton::zButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zControl(parent, sizer, style, title, id, subTypeButton) {
  ziSetType(zTypeButton);
}

zButton::zButton(zWindow* parent, int id) : zControl(parent, id) {
  ziSetType(zTypeButton);
}

int zButton::create() {
  switch (buttonType()) {
    case push:
    case defaultPush:
      createPush();
      return 1;
    default:
      return 0;
  }
}

void zButton::createPush() {
  const Widget board = createContainer("PushButton");
  std::vector<Arg> args = commonArgs();
  const ziXmString label(ziParseTitle(title()));
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNlabelString, reinterpret_cast<XtArgVal>(label.get()));
  add(XmNrecomputeSize, False);
  add(XmNmarginWidth, 0);
  add(XmNmarginHeight, 0);
  if (const char mnemonic = ziParseForMnemonic(title())) {
    add(XmNmnemonic, static_cast<unsigned char>(mnemonic));
  }
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  const Widget widget = XtCreateManagedWidget("PushButton", xmPushButtonWidgetClass, board,
                                              args.data(), static_cast<Cardinal>(args.size()));
  XtOverrideTranslations(widget, pushTranslations());
  adoptWidget(widget);
  addCallback(widget, XmNactivateCallback, pushButtonCB);
}

void zButton::pushButtonCB(Widget, XtPointer link, XtPointer callData) {
  const auto* pushed = static_cast<const XmPushButtonCallbackStruct*>(callData);
  const unsigned code = pushed->click_count == 2 ? zNtfButtonDoubleClicked : zNtfClicked;
  notifyParent(controlOf<zButton>(link), code, callData);
}

void zButton::doText(const char* value) {
  zControl::doText(value);
  if (!getWidget() || !XmIsLabel(getWidget())) return;
  const ziXmString label(ziParseTitle(value));
  XtVaSetValues(getWidget(), XmNlabelString, label.get(), nullptr);
}
