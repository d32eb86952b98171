// From X events to virtual calls, for windows that are not widget controls, and for shells.
#include <X11/Xutil.h>

#include <cstdio>

#include "framework/controls/combo_box.h"
#include "framework/controls/mnemonics.h"
#include "framework/core/app.h"
#include "framework/core/event_translation.h"
#include "framework/core/frame_window.h"
#include "framework/core/window.h"

namespace {

Time lastPressTime = 0;

void keyPressed(zWindow* window, XEvent* event) {
  zKeyEvt key = ziKeyEvent(window, event, zMsgKeyDown);
  zWindowWatch watch(window);
  if (doCommandHandler(&key, window) || watch.gone() || ziPressMnemonic(window, key)) return;
  ziKeyLeft(window, key, true);
}

void buttonPressed(zWindow* window, XEvent* event) {
  const Time since = event->xbutton.time - lastPressTime;
  const auto multiClick = static_cast<Time>(XtGetMultiClickTime(app->display()));
  zMouseClickEvt click;
  click.xEvent = event;
  click.window = window;
  click.message = lastPressTime && since < multiClick ? zMsgDoubleClick : zMsgButtonDown;
  lastPressTime = event->xbutton.time;
  zWindowWatch watch(window);
  window->ziPreMouseClick(&click);
  if (watch.gone()) return;
  const bool handled = window->eventMapHas(zMsgButtonDown) && doHandler(&click, window);
  if (!handled && !watch.gone()) window->mouseButtonDown(&click);
}

void sizeFromServer(zWindow* window, XEvent* event) {
  XWindowAttributes now;
  if (!XGetWindowAttributes(event->xmap.display, event->xmap.window, &now)) return;
  ziSendSize(window, {now.width, now.height});
}

void mapped(zWindow* window, XEvent* event) {
  window->defineCursor();
  if (window == app->rootWindow()) sizeFromServer(window, event);
}

// Whether a widget has got another size since the event was made. Taken over it would give the
// widget back the size it had, and of two such events each would undo the other for ever.
bool isOutdated(const XEvent* event) {
  const Widget widget = XtWindowToWidget(event->xany.display, event->xconfigure.window);
  if (!widget) return false;
  Dimension width = 0, height = 0;
  XtVaGetValues(widget, XmNwidth, &width, XmNheight, &height, nullptr);
  return event->xconfigure.width != width || event->xconfigure.height != height;
}

void configured(zWindow* window, XEvent* event) {
  if (isOutdated(event)) return;
  const bool realized = window->getWidget() && XtIsRealized(window->getWidget());
  if (realized) {
    zMoveEvt moved;
    moved.xEvent = event;
    window->move(&moved);
  }
  zSizeEvt sized;
  sized.xEvent = event;
  window->resolveSize(&sized);
  if (realized) window->size(&sized);
}

void unmapped(zWindow* window) {
  if (window->deleteOnClose()) delete window;
}

}  // namespace

std::string ziCharactersOf(XEvent* event, KeySym* keysym) {
  char text[32];
  KeySym symbol = NoSymbol;
  const int count = XLookupString(&event->xkey, text, sizeof text, &symbol, app->composeStatus());
  if (keysym) *keysym = symbol;
  return {text, static_cast<std::size_t>(std::max(count, 0))};
}

zKeyEvt ziKeyEvent(zWindow* window, XEvent* event, unsigned message) {
  KeySym symbol = NoSymbol;
  const std::string characters = ziCharactersOf(event, &symbol);
  zKeyEvt key;
  key.xEvent = event;
  key.message = message;
  key.codeWord = symbol;
  key.parm1 = characters.empty() ? static_cast<long>(symbol)
                                 : static_cast<long>(static_cast<unsigned char>(characters[0]));
  key.window = window;
  return key;
}

void ziKeyLeft(zWindow* window, zKeyEvt& key, bool typed) {
  zWindowWatch watch(window);
  const std::string characters = ziCharactersOf(key.xEvent);
  if (typed && !characters.empty()) {
    zKeyEvt character = key;
    character.message = zMsgChar;
    character.parm1 = static_cast<unsigned char>(characters[0]);
    if (window->ch(&character) || watch.gone()) return;
  }
  if (zFrameWin* frame = window->frame()) frame->keyLeft(&key);
}

void ziSendSize(zWindow* window, const zDimension& size) {
  XEvent made{};
  made.type = ConfigureNotify;
  made.xconfigure.display = app->display();
  made.xconfigure.width = size.width;
  made.xconfigure.height = size.height;
  zSizeEvt sized;
  sized.xEvent = &made;
  window->resolveSize(&sized);
  window->size(&sized);
}

void ziFocusEvent(zWindow* window, XEvent* event) {
  const bool gained = event->type == FocusIn;
  zFocusEvt focus;
  focus.xEvent = event;
  focus.message = gained ? zMsgFocusGained : zMsgFocusLost;
  focus.window = window;
  zWindowWatch watch(window);
  if (!doHandler(&focus, window) && !watch.gone()) window->focus(&focus);
  if (!watch.gone()) ziChildFocusHelper(window, gained);
}

namespace {

// Handlers where the event map has the message, then the virtual. Whether it was consumed.
template <class View>
bool offerMouse(zWindow* window, XEvent* event, unsigned message, int (zWindow::*take)(View*)) {
  View mouse;
  mouse.xEvent = event;
  mouse.window = window;
  mouse.message = message;
  zWindowWatch watch(window);
  if (window->eventMapHas(message) && doHandler(&mouse, window)) return true;
  return !watch.gone() && (window->*take)(&mouse);
}

}  // namespace

bool ziMouseReleased(zWindow* window, XEvent* event) {
  return offerMouse(window, event, zMsgButtonUp, &zWindow::mouseButtonUp);
}

bool ziMouseMoved(zWindow* window, XEvent* event) {
  return offerMouse(window, event, zMsgMouseMove, &zWindow::mouseMove);
}

void ziWinProc(Widget, XtPointer link, XEvent* event, Boolean*) {
  zWindow* window = static_cast<ziControlCB*>(link)->window;
  if (!window) return;
  switch (event->type) {
    case KeyPress:
      keyPressed(window, event);
      break;
    case KeyRelease: {
      zKeyEvt key = ziKeyEvent(window, event, zMsgKeyUp);
      doCommandHandler(&key, window);
      break;
    }
    case ButtonPress:
      buttonPressed(window, event);
      break;
    case ButtonRelease:
      ziMouseReleased(window, event);
      break;
    case MotionNotify:
      ziMouseMoved(window, event);
      break;
    case FocusIn:
    case FocusOut:
      ziFocusEvent(window, event);
      break;
    case UnmapNotify:
      unmapped(window);
      break;
    case MapNotify:
      mapped(window, event);
      break;
    case ConfigureNotify:
      configured(window, event);
      break;
    default:
      if (event->type < KeyPress || event->type > MappingNotify) {
        std::fputs("Invalid event type\n", stderr);
      }
  }
}

void ConfigTopProc(Widget, XtPointer link, XEvent* event, Boolean*) {
  zWindow* window = static_cast<ziControlCB*>(link)->window;
  if (!window) return;
  if (event->type == ConfigureNotify || event->type == FocusOut) zComboBoxBase::ziResetPopup();
  zWindowWatch watch(window);
  if (event->type == FocusIn || event->type == FocusOut) {
    zActivateEvt activation;
    activation.xEvent = event;
    activation.message = zMsgActivate;
    activation.parm1 = event->type == FocusIn;
    if (!doHandler(&activation, window) && !watch.gone()) window->activate(&activation);
  } else if (event->type == ConfigureNotify) {
    zMoveEvt moved;
    moved.xEvent = event;
    window->move(&moved);
  }
}
