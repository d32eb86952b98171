#include "framework/controls/static_text.h"

#include <Xm/DrawingA.h>
#include <Xm/Label.h>

#include <cstdlib>

#include "framework/core/app.h"
#include "framework/core/x_text.h"
#include "framework/drawing/bitmap.h"
#include "framework/drawing/display.h"
#include "framework/resources/resources.h"

namespace {

bool isDrawn(int subStyle) {
  return subStyle >= zStaticText::blackRect && subStyle <= zStaticText::whiteFrame;
}

// Motif's alignments have the numbers of the sub-styles.
static_assert(XmALIGNMENT_BEGINNING == int{zStaticText::left} &&
              XmALIGNMENT_CENTER == int{zStaticText::centre} &&
              XmALIGNMENT_END == int{zStaticText::right});

}  // namespace

zStaticText::zStaticText(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                         int id)
    : zControl(parent, sizer, style, title, id, subTypeStatic) {
  ziSetType(zTypeStaticText);
  if (isDrawn(subStyle())) {
    createDrawn();
  } else {
    createLabel();
  }
}

zStaticText::zStaticText(zWindow* parent, int id) : zControl(parent, id) {
  ziSetType(zTypeStaticText);
  // The generic control's picture went with it.
  if (getWidget() && subStyle() == icon) doText(title().c_str());
}

zStaticText::~zStaticText() = default;

void zStaticText::createLabel() {
  const Widget board = createContainer("Label");
  std::vector<Arg> args = commonArgs();
  const int alignment = subStyle() <= right ? subStyle() : static_cast<int>(left);
  const auto add = [&args](const char* name, XtArgVal value) {
    args.push_back({const_cast<char*>(name), value});
  };
  add(XmNalignment, alignment);
  add(XmNrecomputeSize, False);
  add(XmNmarginWidth, 0);
  add(XmNmarginHeight, 0);
  add(XmNhighlightThickness, 0);
  if (getFont()) add(XmNfontList, reinterpret_cast<XtArgVal>(getFont()->fontList()));
  const Widget widget = XtCreateManagedWidget("Label", xmLabelWidgetClass, board, args.data(),
                                              static_cast<Cardinal>(args.size()));
  XtVaSetValues(widget, XmNtraversalOn, False, nullptr);
  adoptWidget(widget);
  doText(title().c_str());
}

void zStaticText::createDrawn() {
  const Widget board = createContainer("DrawingArea");
  std::vector<Arg> args = commonArgs();
  const Widget widget = XtCreateManagedWidget("DrawingArea", xmDrawingAreaWidgetClass, board,
                                              args.data(), static_cast<Cardinal>(args.size()));
  XtVaSetValues(widget, XmNtraversalOn, False, nullptr);
  adoptWidget(widget);
  addCallback(widget, XmNexposeCallback, redrawCB);
  addCallback(widget, XmNresizeCallback, resizeCB);
}

void zStaticText::doText(const char* value) {
  zControl::doText(value);
  const Widget widget = getWidget();
  if (!widget || isDrawn(subStyle())) return;
  if (subStyle() == icon && value[0] == '#') {
    showIcon(std::atoi(value + 1));
  } else {
    ziSetLabel(widget, value);
  }
}

// Laid on the background, since a label knows nothing of masks. Without such an icon the label
// stays as it is.
void zStaticText::showIcon(int number) {
  const zIcon source{zResId(number)};
  if (source.pixmap() == None) return;
  zPixmapDisplay image(source.size());
  image.lock();
  image.setColor(backgroundColor());
  image.fillRect({zPoint{}, source.size()});
  image.copy(source.pixmap(), {zPoint{}, source.size()}, {}, source.mask());
  image.unlock();
  auto picture = std::make_unique<zBitmap>(image.release(), source.size());
  XtVaSetValues(getWidget(), XmNlabelType, XmPIXMAP, XmNlabelPixmap, picture->pixmap(), nullptr);
  picture_ = std::move(picture);
}

void zStaticText::redrawCB(Widget, XtPointer link, XtPointer callData) {
  const auto* drawing = static_cast<const XmDrawingAreaCallbackStruct*>(callData);
  if (drawing->reason == XmCR_EXPOSE) controlOf<zStaticText>(link)->drawFrame();
}

void zStaticText::resizeCB(Widget widget, XtPointer, XtPointer) {
  if (XtIsRealized(widget)) {
    XClearArea(XtDisplay(widget), XtWindow(widget), 0, 0, 0, 0, True);
  }
}

void zStaticText::drawFrame() {
  const Widget widget = getWidget();
  Display* display = app->display();
  const int screen = DefaultScreen(display);
  const bool filled = subStyle() <= whiteRect;
  const int shade = (subStyle() - blackRect) % 3;  // black, stippled, white
  XGCValues values{};
  values.foreground = shade == 2 ? WhitePixel(display, screen) : BlackPixel(display, screen);
  values.background = WhitePixel(display, screen);
  const GC gc = XCreateGC(display, XtWindow(widget), GCForeground | GCBackground, &values);
  Pixmap stipple = None;
  if (shade == 1) {
    const auto depth = static_cast<unsigned>(DefaultDepth(display, screen));
    stipple = XmGetPixmapByDepth(XtScreen(widget), const_cast<char*>("50_foreground"),
                                 BlackPixel(display, screen), WhitePixel(display, screen),
                                 static_cast<int>(depth));
    if (stipple != XmUNSPECIFIED_PIXMAP) {
      XSetTile(display, gc, stipple);
      XSetFillStyle(display, gc, FillTiled);
    }
  }
  const auto width = static_cast<unsigned>(std::max(sizer()->width(), 1));
  const auto height = static_cast<unsigned>(std::max(sizer()->height(), 1));
  if (filled || width == 1 || height == 1) {
    XFillRectangle(display, XtWindow(widget), gc, 0, 0, width, height);
  } else {
    XDrawRectangle(display, XtWindow(widget), gc, 0, 0, width - 1, height - 1);
  }
  if (stipple != None && stipple != XmUNSPECIFIED_PIXMAP) {
    XmDestroyPixmap(XtScreen(widget), stipple);
  }
  XFreeGC(display, gc);
}
