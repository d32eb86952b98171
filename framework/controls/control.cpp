#include "framework/controls/control.h"

#include <X11/keysym.h>
#include <Xm/Text.h>

#include "framework/controls/mnemonics.h"
#include "framework/core/app.h"
#include "framework/core/errors.h"
#include "framework/core/event_translation.h"
#include "framework/core/x_text.h"

zControl::zControl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id,
                   int subType)
    : zChildWin(parent, sizer, style ? style : static_cast<unsigned long>(zStyleTabStop), title,
                id),
      subType_(subType) {
  ziSetType(zTypeControl);
}

zControl::zControl(zWindow* parent, int id) : zControl(ziAdopt{}, parent, id) {
  bury();
}

zControl::zControl(ziAdopt, zWindow* parent, int id)
    : zChildWin(parent, id), subType_(subTypeOther) {
  ziSetType(zTypeControl);
  if (husk() && husk()->isA(zTypeControl)) {
    const auto* old = static_cast<const zControl*>(husk());
    textColor_ = old->textColor_;
    subType_ = old->subType_;
  }
}

// The shadows among them: a disabled label keeps those that it was made with for its text.
std::vector<Arg> zControl::commonArgs() const {
  const bool tabStop = (styleValue() & zStyleTabStop) != 0;
  const unsigned long background = ziClrm->pixel(backgroundColor());
  Pixel foreground = 0, top = 0, bottom = 0, select = 0;
  Screen* screen = DefaultScreenOfDisplay(app->display());
  XmGetColors(screen, DefaultColormapOfScreen(screen), background, &foreground, &top, &bottom,
              &select);
  std::vector<Arg> args(9);
  XtSetArg(args[0], XmNbackground, background);
  XtSetArg(args[1], XmNforeground, ziClrm->pixel(textColor_));
  XtSetArg(args[2], XmNtraversalOn, tabStop);
  XtSetArg(args[3], XmNwidth, std::max(sizer()->width(), 1));
  XtSetArg(args[4], XmNheight, std::max(sizer()->height(), 1));
  XtSetArg(args[5], XmNsensitive, !(styleValue() & zStyleDisabled));
  XtSetArg(args[6], XmNnavigationType, ziNavigation(tabStop));
  XtSetArg(args[7], XmNtopShadowColor, top);
  XtSetArg(args[8], XmNbottomShadowColor, bottom);
  return args;
}

int zControl::adoptWidget(Widget real, Widget scrolled) {
  setWidgets(real, scrolled);
  const Widget target = drawnWidget();
  setColors(target, backgroundColor());
  link()->control = target;
  link()->kind = subType_;
  listen(target, ziWindowEventMask, CtrlProc, XtListHead);
  return 1;
}

// Shadows included, so that nothing in the resource database shows through.
void zControl::setColors(Widget widget, const zColor& background) const {
  XmChangeColor(widget, ziClrm->pixel(background));
  XtVaSetValues(widget, XmNforeground, ziClrm->pixel(textColor_), nullptr);
}

int zControl::notifyParent(zWindow* control, unsigned code, void* callData) {
  zEvent event(zMsgCommand);
  event.callData = callData;
  event.codeWord = code;
  event.parm1 = control->ctrlId();
  event.window = control;
  return doCommandHandler(&event, control->parent());
}

void zControl::pressDefaultButton(void* callData) {
  constexpr int withoutDefault = 1;
  if (!parent()) return;
  const zWindow* button = parent()->ziFindDefPushButton();
  // One that takes no clicks takes none from the keyboard.
  if (button && button->getWidget() && !(button->isEnabled() && button->isShown())) return;
  zEvent event(zMsgCommand);
  event.callData = callData;
  event.codeWord = zNtfClicked;
  event.parm1 = button ? button->ctrlId() : withoutDefault;
  event.window = this;
  doCommandHandler(&event, parent());
}

void zControl::centreLine(Widget text, int height) const {
  if (!getFont()) return;
  const int labelBaseline = (height - getFont()->height()) / 2 + getFont()->ascent();
  const int margin = labelBaseline - XmTextGetBaseline(text);
  XtVaSetValues(text, XmNmarginHeight, std::max(margin, 0), nullptr);
}

void zControl::doText(const char* value) {
  setTitle(value);
}

void zControl::textColor(const zColor& color) {
  textColor_ = color;
  if (drawnWidget()) {
    XtVaSetValues(drawnWidget(), XmNforeground, ziClrm->pixel(color), nullptr);
  }
}

bool zControl::leavesTypingToWidget() const {
  return subType_ == subTypeEdit || isA(zTypeComboBoxFull);
}

// Where a text widget does the typing, only keys that are no plain characters are offered.
bool zControl::keyReachesHandlers(const zControl* control, const zKeyEvt& key) {
  if (!control->leavesTypingToWidget()) return true;
  const bool plain = key.code() < XK_BackSpace || key.code() == XK_Multi_key;
  return !plain || key.alt() || key.ctrl();
}

void zControl::keyPressedOrReleased(XEvent* event, Boolean* goOn) {
  const bool pressed = event->type == KeyPress;
  zKeyEvt key = ziKeyEvent(this, event, pressed ? zMsgKeyDown : zMsgKeyUp);
  if (pressed && !keyReachesHandlers(this, key)) return;
  zWindowWatch watch(this);
  if (doCommandHandler(&key, this) || watch.gone()) return;
  if (!pressed) return;
  if (ziPressMnemonic(this, key)) {
    *goOn = False;
    return;
  }
  ziKeyLeft(this, key, !leavesTypingToWidget());
}

void zControl::crossed(XEvent* event) {
  zEvent crossing;
  crossing.xEvent = event;
  crossing.window = this;
  dispatch(&crossing);
}

void zControl::mousePressed(XEvent* event, Boolean* goOn) {
  zMouseClickEvt click;
  click.xEvent = event;
  click.window = this;
  click.message = zMsgButtonDown;
  zWindowWatch watch(this);
  ziPreMouseClick(&click);
  const bool handled = !watch.gone() && eventMapHas(zMsgButtonDown) && doHandler(&click, this);
  if (handled || watch.gone() || mouseButtonDown(&click)) {
    *goOn = False;
  } else if (click.isButton(1) || click.isButton(2)) {
    captureMouse(event->xbutton.time);
  }
}

void zControl::CtrlProc(Widget, XtPointer link, XEvent* event, Boolean* goOn) {
  auto* control = controlOf<zControl>(link);
  if (!control) return;
  switch (event->type) {
    case KeyPress:
    case KeyRelease:
      control->keyPressedOrReleased(event, goOn);
      break;
    case ButtonPress:
      control->mousePressed(event, goOn);
      break;
    case ButtonRelease:
      control->releaseMouse();
      if (ziMouseReleased(control, event)) *goOn = False;
      break;
    case MotionNotify:
      if (ziMouseMoved(control, event)) *goOn = False;
      break;
    case FocusIn:
    case FocusOut:
      ziFocusEvent(control, event);
      break;
    case EnterNotify:
    case LeaveNotify:
      control->crossed(event);
      break;
    case MapNotify:
      control->defineCursor();
      break;
    default:
      if (event->type < KeyPress || event->type > MappingNotify) debug("Invalid event type");
  }
}
