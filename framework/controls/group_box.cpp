#include "framework/controls/group_box.h"

#include <Xm/BulletinB.h>
#include <Xm/Frame.h>
#include <Xm/LabelG.h>

#include "framework/core/x_text.h"
#include "framework/dialogs/dialog_frame.h"

zGroupBox::zGroupBox(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id)
    : zButton(parent, sizer, style, title, id) {
  ziSetType(zTypeGroupBox);
  styleClear(zStyleClipSiblings | zStyleTabStop);
  createFrame();
}

// `generic` is gone by now and only tells which of the dialog's groups this one is.
zGroupBox::zGroupBox(zWindow* parent, int id, const zWindow* generic) : zButton(parent, id) {
  ziSetType(zTypeGroupBox);
  if (generic && parent->isA(zTypeDialogFrame)) {
    static_cast<zDialogFrame*>(parent)->groupTakenOver(generic, this);
  }
  if (getWidget()) label_ = XtNameToWidget(getWidget(), "Title");
}

void zGroupBox::createFrame() {
  const Widget board = createContainer("Frame");
  const std::vector<Arg> args = commonArgs();
  const Widget frame =
      XtCreateManagedWidget("Frame", xmFrameWidgetClass, board, const_cast<Arg*>(args.data()),
                            static_cast<Cardinal>(args.size()));
  XtVaSetValues(frame, XmNshadowType, XmSHADOW_ETCHED_IN, XmNtraversalOn, False, nullptr);
  XtVaCreateManagedWidget("WorkArea", xmBulletinBoardWidgetClass, frame, XmNbackground,
                          ziClrm->pixel(backgroundColor()), XmNmarginWidth, 0, XmNmarginHeight, 0,
                          XmNresizePolicy, XmRESIZE_NONE, XmNtraversalOn, False, nullptr);
  adoptWidget(frame);
  if (!title().empty()) createTitle(title().c_str());
}

void zGroupBox::createTitle(const char* title) {
  label_ = XtVaCreateManagedWidget(
      "Title", xmLabelGadgetClass, getWidget(), XmNframeChildType, XmFRAME_TITLE_CHILD,
      XmNchildHorizontalAlignment, XmALIGNMENT_BEGINNING, XmNchildVerticalAlignment,
      XmALIGNMENT_CENTER, XmNfontList, getFont() ? getFont()->fontList() : nullptr, nullptr);
  ziSetLabel(label_, title);
  colorTitle(backgroundColor());
}

void zGroupBox::colorTitle(const zColor& background) {
  XtVaSetValues(label_, XmNbackground, ziClrm->pixel(background), XmNforeground,
                ziClrm->pixel(textColor()), nullptr);
}

void zGroupBox::doText(const char* value) {
  zControl::doText(value);
  if (!getWidget()) return;
  if (!label_) {
    if (*value) createTitle(value);
    return;
  }
  ziSetLabel(label_, value);
}

void zGroupBox::ziBackgroundColor(const zColor& color) {
  zButton::ziBackgroundColor(color);
  if (!getWidget()) return;
  if (label_) colorTitle(color);
  const Widget area = XtNameToWidget(getWidget(), "WorkArea");
  if (area) XmChangeColor(area, ziClrm->pixel(color));
}
