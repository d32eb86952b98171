#include "framework/dialogs/message.h"

#include <X11/Shell.h>
#include <Xm/MessageB.h>
#include <Xm/MwmUtil.h>
#include <Xm/Protocols.h>

#include "framework/core/app.h"
#include "framework/core/event_loop.h"
#include "framework/core/frame_window.h"
#include "framework/core/x_text.h"
#include "framework/dialogs/dialog_frame.h"

namespace {

struct Button {
  const char* label;  // null: the box has no such button
  int result;
};

struct BoxType {
  Button buttons[3];
};

constexpr Button none{nullptr, 0};
constexpr BoxType boxTypes[] = {
    {{{"OK", 1}, none, none}},
    {{{"OK", 1}, {"Cancel", 2}, none}},
    {{{"Abort", 3}, {"Retry", 4}, {"Ignore", 5}}},
    {{{"Yes", 6}, {"No", 7}, {"Cancel", 2}}},
    {{{"Yes", 6}, {"No", 7}, none}},
    {{{"Retry", 4}, {"Cancel", 2}, none}},
};
constexpr unsigned okCancel = 1;
constexpr int buttonMargin = 12;  // pixels beside a label

// Motif's three buttons, in the order of a box's buttons.
struct Slot {
  unsigned char child;
  const char* label;
  const char* callback;
};
const Slot slots[] = {
    {XmDIALOG_OK_BUTTON, XmNokLabelString, XmNokCallback},
    {XmDIALOG_CANCEL_BUTTON, XmNcancelLabelString, XmNcancelCallback},
    {XmDIALOG_HELP_BUTTON, XmNhelpLabelString, XmNhelpCallback},
};

using Creator = Widget (*)(Widget, char*, Arg*, Cardinal);

Creator creatorFor(unsigned style) {
  switch (style & 0xF0) {
    case 0x10:
      return XmCreateErrorDialog;
    case 0x20:
      return XmCreateQuestionDialog;
    case 0x30:
      return XmCreateWarningDialog;
    case 0x40:
      return XmCreateInformationDialog;
    default:
      return XmCreateMessageDialog;
  }
}

int modalityFor(unsigned style) {
  switch (style & 0xF000) {
    case 0x1000:
      return XmDIALOG_SYSTEM_MODAL;
    case 0x2000:
      return XmDIALOG_FULL_APPLICATION_MODAL;
    default:
      return XmDIALOG_PRIMARY_APPLICATION_MODAL;
  }
}

const BoxType& typeFor(unsigned style) {
  const unsigned type = style & 0xF;
  return boxTypes[type < std::size(boxTypes) ? type : okCancel];
}

// The nearest shell of the window, or the application's.
Widget shellOf(zWindow* window) {
  Widget widget = nullptr;
  if (zFrameWin* frame = window ? window->frame() : nullptr) widget = frame->shell();
  return widget ? widget : app->toplevel();
}

void useFont(Widget box, XmFontList fonts) {
  XtVaSetValues(box, XmNlabelFontList, fonts, XmNbuttonFontList, fonts, nullptr);
  ziSetFontList(XmMessageBoxGetChild(box, XmDIALOG_MESSAGE_LABEL), fonts);
  for (const Slot& slot : slots) ziSetFontList(XmMessageBoxGetChild(box, slot.child), fonts);
}

// A window that came up later would cover the box, which nobody could answer then.
void bringUpFirst(zWindow* window) {
  auto* dialog = dynamic_cast<zDialogFrame*>(window ? window->frame() : nullptr);
  if (dialog) dialog->showIfPending();
}

// A box on the screen, and the window that it stands over, which may go before it.
struct OpenBox {
  OpenBox(zMessage* message, zWindow* over);
  ~OpenBox();
  bool isOver(const zFrameWin* frame) const {
    return parent && !watch.gone() && parent->frame() == frame;
  }

  zMessage* box;
  zWindow* parent;
  zWindowWatch watch;
};
std::vector<OpenBox*> openBoxes;

OpenBox::OpenBox(zMessage* message, zWindow* over) : box(message), parent(over), watch(over) {
  openBoxes.push_back(this);
}

OpenBox::~OpenBox() {
  std::erase(openBoxes, this);
}

}  // namespace

zMessage::zMessage(zWindow* parent, const char* text, const char* title, unsigned style) {
  const Widget shell = shellOf(parent);
  if (!shell) return;
  const OpenBox open(this, parent);
  bringUpFirst(parent);
  const Widget box = createBox(shell, text, title, style);
  labelButtons(box, style);
  if (parent && parent->getFont()) useFont(box, parent->getFont()->fontList());
  const Atom close = XmInternAtom(app->display(), const_cast<char*>("WM_DELETE_WINDOW"), False);
  XmAddWMProtocolCallback(XtParent(box), close, doClose, this);
  // What it says fits, so there is nothing to gain by another size.
  XtVaSetValues(XtParent(box), XmNmwmDecorations,
                MWM_DECOR_BORDER | MWM_DECOR_TITLE | MWM_DECOR_MENU, XmNmwmFunctions,
                MWM_FUNC_MOVE | MWM_FUNC_CLOSE, nullptr);
  XtManageChild(box);
  XtPopup(XtParent(box), XtGrabNone);
  ziRunLoop([this] { return !done_; });
  // A widget hears what the user did up to now until it is gone, which may be long after this.
  for (const Slot& slot : slots) XtRemoveCallback(box, slot.callback, buttonCB, this);
  XmRemoveWMProtocolCallback(XtParent(box), close, doClose, this);
  XtUnmanageChild(box);
  ziDestroyWidget(XtParent(box), ziLoopDepth());
}

// One that stayed would go off the screen with the frame, and nobody could answer it.
void zMessage::closeOver(zFrameWin* frame) {
  for (const OpenBox* open : openBoxes) {
    if (open->isOver(frame)) open->box->answer(1);
  }
}

Widget zMessage::createBox(Widget shell, const char* text, const char* title, unsigned style) {
  const ziXmString message(text);
  const ziXmString caption(title);
  const unsigned long grey = ziClrm->pixel(zDialogGrey);
  Arg args[] = {
      {const_cast<char*>(XmNmessageString), reinterpret_cast<XtArgVal>(message.get())},
      {const_cast<char*>(XmNdialogTitle), reinterpret_cast<XtArgVal>(caption.get())},
      {const_cast<char*>(XmNdialogStyle), modalityFor(style)},
      {const_cast<char*>(XmNdeleteResponse), XmDO_NOTHING},
      {const_cast<char*>(XmNautoUnmanage), False},
      {const_cast<char*>(XmNbackground), static_cast<XtArgVal>(grey)},
      {const_cast<char*>(XmNuserData), reinterpret_cast<XtArgVal>(this)},
  };
  const Widget box =
      creatorFor(style)(shell, const_cast<char*>("MessageBox"), args, XtNumber(args));
  for (const Slot& slot : slots) {
    XmChangeColor(XmMessageBoxGetChild(box, slot.child), grey);
    XtAddCallback(box, slot.callback, buttonCB, this);
  }
  XmChangeColor(XmMessageBoxGetChild(box, XmDIALOG_MESSAGE_LABEL), grey);
  return box;
}

void zMessage::labelButtons(Widget box, unsigned style) {
  const BoxType& type = typeFor(style);
  for (std::size_t i = 0; i < std::size(slots); ++i) {
    const Widget button = XmMessageBoxGetChild(box, slots[i].child);
    const Button& wanted = type.buttons[i];
    if (!wanted.label) {
      XtUnmanageChild(button);
      continue;
    }
    const ziXmString label(wanted.label);
    XtVaSetValues(box, slots[i].label, label.get(), nullptr);
    XtVaSetValues(button, XmNtraversalOn, True, XmNmarginWidth, buttonMargin, nullptr);
    buttonResults_[i] = wanted.result;
  }
}

void zMessage::answer(int button) {
  const int chosen = buttonResults_[button];
  result_ = chosen ? chosen : buttonResults_[0];
  done_ = true;
}

void zMessage::buttonCB(Widget, XtPointer message, XtPointer callData) {
  const int reason = static_cast<const XmAnyCallbackStruct*>(callData)->reason;
  const int button = reason == XmCR_OK ? 0 : reason == XmCR_CANCEL ? 1 : 2;
  static_cast<zMessage*>(message)->answer(button);
}

void zMessage::doClose(Widget, XtPointer message, XtPointer) {
  static_cast<zMessage*>(message)->answer(1);
}
