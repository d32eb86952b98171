#include "framework/controls/bitmap_button.h"

#include <X11/keysym.h>
#include <Xm/DrawingA.h>

namespace {

constexpr int focusGap = 2;  // pixels between a caption and the focus rectangle at its sides

}  // namespace

// The drawn control.

ziCtrlPane::ziCtrlPane(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                       int id)
    : zControl(parent, sizer, style, title, id, subTypeOther) {
  ziSetType(zTypeCtrlPane);
  createArea();
}

ziCtrlPane::ziCtrlPane(zWindow* parent, int id) : zControl(parent, id) {
  ziSetType(zTypeCtrlPane);
}

void ziCtrlPane::createArea() {
  const Widget board = createContainer("CtrlPane");
  std::vector<Arg> args = commonArgs();
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNmarginWidth, 0);
  add(XmNmarginHeight, 0);
  add(XmNresizePolicy, XmRESIZE_NONE);
  add(XmNbackgroundPixmap, None);
  const Widget area = XtCreateManagedWidget("DrawingArea", xmDrawingAreaWidgetClass, board,
                                            args.data(), static_cast<Cardinal>(args.size()));
  adoptWidget(area);
  addCallback(area, XmNexposeCallback, exposeCB);
}

void ziCtrlPane::exposeCB(Widget, XtPointer link, XtPointer callData) {
  auto* pane = controlOf<ziCtrlPane>(link);
  const zRect area = pane->exposure_.gather(callData);
  if (!area.isEmpty()) ziPaintOffscreen(pane, area, [pane](zDrawEvt* event) { pane->draw(event); });
}

void ziCtrlPane::repaint() {
  zRect all;
  getInterior(all);
  ziPaintOffscreen(this, all, [this](zDrawEvt* event) { draw(event); });
}

void ziCtrlPane::vmove(int x, int y, int width, int height) {
  zControl::vmove(x, y, width, height);
  setDirty(nullptr, 0);
}

// The drawing area has no font of its own, unlike the widgets of other controls.
void ziCtrlPane::setFont(std::shared_ptr<zFont> font, int redraw) {
  const bool changed = font != getFont();
  zControl::setFont(std::move(font), redraw);
  if (changed && redraw) setDirty(nullptr, 0);
}

// The button.

zBitmapButton::zBitmapButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                             int id)
    : ziCtrlPane(parent, sizer, style, title, id) {
  setUp();
}

zBitmapButton::zBitmapButton(zWindow* parent, int id, std::unique_ptr<zBitmap> bitmap)
    : ziCtrlPane(parent, id) {
  button_.bitmap(std::move(bitmap), ziVisBmpButtonInternal::stripFrames);
  setUp();
}

void zBitmapButton::setUp() {
  button_.style(static_cast<unsigned>(ctrlStyle()));
  caption_.text(title());
  setHandler(this, &zBitmapButton::ziXmKeybindNP, zMsgKeyDown);
  setHandler(this, &zBitmapButton::ziXmKeybindNP, zMsgKeyUp);
}

int zBitmapButton::check() const {
  if (button_.isDepressed()) return 2;
  return button_.state() == ziVisButton::on ? 1 : 0;
}

void zBitmapButton::check(int on) {
  button_.check(on != 0);
  refresh();
  zEvent event(zMsgCheck);
  event.parm1 = on;
  event.window = this;
  doCommandHandler(&event, this);
}

void zBitmapButton::setDisabled(int disabled) {
  disabled_ = disabled != 0;
  refresh();
}

void zBitmapButton::setBitmap(std::unique_ptr<zBitmap> bitmap, int frames, int place, int redraw) {
  button_.bitmap(std::move(bitmap), frames);
  if (place != keepPlace) {
    styleClear(ziVisText3dBmp::picturePlaceMask);
    styleSet(static_cast<unsigned long>(place) & ziVisText3dBmp::picturePlaceMask);
  }
  if (redraw) repaint();
}

void zBitmapButton::setCtrlStyle(unsigned long bits) {
  if ((bits & ctrlStyleMask) == ctrlStyle()) return;
  styleClear(ctrlStyleMask);
  styleSet(bits & ctrlStyleMask);
  button_.style(static_cast<unsigned>(ctrlStyle()));
  repaint();
}

void zBitmapButton::doText(const char* value) {
  if (title() == value) return;
  ziCtrlPane::doText(value);
  caption_.text(title());
  repaint();
}

int zBitmapButton::enable() {
  disabled_ = false;
  const int done = ziCtrlPane::enable();
  refresh();
  return done;
}

int zBitmapButton::disable() {
  cancelPress();
  const int done = ziCtrlPane::disable();
  refresh();
  return done;
}

int zBitmapButton::show(int visible) {
  if (!visible) cancelPress();
  return ziCtrlPane::show(visible);
}

// Clicks.

int zBitmapButton::mouseButtonDown(zMouseClickEvt* event) {
  if (!event->isButton(1) || button_.isHeld()) return 0;
  heldByKey_ = false;
  button_.press();
  captureMouse(event->xEvent->xbutton.time);
  refresh();
  if (styleValue() & zStyleTabStop) XmProcessTraversal(getWidget(), XmTRAVERSE_CURRENT);
  return 1;
}

int zBitmapButton::mouseMove(zMouseMoveEvt* event) {
  if (!button_.isHeld() || heldByKey_) return 0;
  zRect inside;
  getInterior(inside);
  button_.track(inside.contains(event->pos()));
  refresh();
  return 1;
}

int zBitmapButton::mouseButtonUp(zMouseClickEvt* event) {
  if (!event->isButton(1) || !button_.isHeld() || heldByKey_) return 0;
  zRect inside;
  getInterior(inside);
  release(inside.contains(event->pos()));
  return 1;
}

int zBitmapButton::ziXmKeybindNP(zKeyEvt* event) {
  if (event->code() != XK_space) return 0;
  if (event->message == zMsgKeyUp) {
    if (heldByKey_ && button_.isHeld()) release(true);
    return 1;
  }
  if (event->ctrl() || event->alt()) return 0;
  if (button_.isHeld()) return 1;  // a key that is held down repeats
  heldByKey_ = true;
  button_.press();
  refresh();
  return 1;
}

void zBitmapButton::release(bool inside) {
  releaseMouse();
  button_.track(inside);
  const bool isClick = button_.release();
  refresh();
  if (isClick) clicked();
}

void zBitmapButton::cancelPress() {
  releaseMouse();
  button_.cancel();
  refresh();
}

void zBitmapButton::clicked() {
  zEvent event(zMsgCommand);
  event.codeWord = zNtfClicked;
  event.parm1 = ctrlId();
  event.window = this;
  zWindow* const over = parent();
  zWindowWatch watch(this);
  for (const zEventHandler& own : {callback_, commandMember_}) {
    if (own && (own(&event) || watch.gone())) return;
  }
  if (!doCommandHandler(&event, over) && !watch.gone()) over->dispatch(&event);
}

int zBitmapButton::focus(zFocusEvt* event) {
  focused_ = event->gainFocus();
  if (!focused_ && heldByKey_) button_.cancel();
  refresh();
  return 0;
}

// Drawing.

bool zBitmapButton::showsDisabled() const {
  return disabled_ || !isEnabled();
}

void zBitmapButton::refresh() {
  button_.disabled(showsDisabled());
  const Look now{button_.frame(), button_.isDepressed(), showsDisabled(), focused_};
  if (drawn_ && *drawn_ != now) repaint();
}

void zBitmapButton::arrange() {
  zRect all;
  getInterior(all);
  button_.place(all);
  const auto at =
      static_cast<ziVisText3dBmp::PicturePlace>(ctrlStyle() & ziVisText3dBmp::picturePlaceMask);
  const zDimension text = getFont() ? caption_.size(*getFont()) : zDimension{};
  button_.picturePlace(caption_.arrange(all.inset(button_.inset()), button_.frameSize(), text, at));
}

// The depressed frames show their picture a pixel to the right and down; the caption goes along.
void zBitmapButton::draw(zDrawEvt* event) {
  zDisplay& display = *event->display;
  display.setColor(backgroundColor());
  display.fillRect(event->area);
  arrange();
  button_.disabled(showsDisabled());
  button_.draw(display);
  caption_.disabled(showsDisabled());
  caption_.color(textColor());
  if (button_.isDepressed()) caption_.place(caption_.place().moved(1, 1));
  if (!caption_.place().isEmpty()) caption_.draw(display);
  if (focused_) drawFocus(display);
  drawn_ = Look{button_.frame(), button_.isDepressed(), showsDisabled(), focused_};
}

// Around the caption, or inside the border of a button without one.
void zBitmapButton::drawFocus(zDisplay& display) const {
  const zRect inside = button_.place().inset(button_.inset());
  if (caption_.place().isEmpty()) {
    display.focusRect(inside.inset(1));
    return;
  }
  const zRect text = caption_.textPlace(display.font());
  const zRect around(text.left - focusGap, text.top, text.right + focusGap, text.bottom);
  display.focusRect(around.intersection(inside));
}
