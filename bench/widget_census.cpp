// usage: widget_census
// Opens the main dialog on $DISPLAY and prints its widgets, a line for each, parents first: the
// class, the line of the parent (-1 for the shell's child), x, y, width, height in pixels.
// bare_window builds the same tree from these lines. Menus and tips, which are shells of their own,
// are left out.
#include <X11/IntrinsicP.h>
#include <X11/StringDefs.h>

#include <cstdio>

#include "framework/core/app.h"
#include "framework/resources/resources.h"
#include "shell/main_dialog.h"

namespace {

constexpr int mainDialog = 564;
constexpr int dialogFontWeight = 700;

int lines = 0;

void print(Widget widget, int parent) {
  const int line = lines++;
  Position x = 0, y = 0;
  Dimension width = 0, height = 0;
  XtVaGetValues(widget, XtNx, &x, XtNy, &y, XtNwidth, &width, XtNheight, &height, nullptr);
  std::printf("%s %d %d %d %d %d\n", XtClass(widget)->core_class.class_name, parent, x, y, width,
              height);
  if (!XtIsComposite(widget)) return;
  WidgetList kids = nullptr;
  Cardinal count = 0;
  XtVaGetValues(widget, XtNchildren, &kids, XtNnumChildren, &count, nullptr);
  for (Cardinal i = 0; i < count; ++i) print(kids[i], line);
}

Widget shellOf(Widget widget) {
  while (!XtIsShell(widget)) widget = XtParent(widget);
  return widget;
}

}  // namespace

int main(int argc, char** argv) {
  ZAPPXMprogname = argv[0];
  app = new zApp(static_cast<unsigned>(argc), argv, "");
  initIntPack();
  app->setDefaultDlgFontWeight(dialogFontWeight);
  const DMainDlg dialog(nullptr, zResId(mainDialog));
  while (!dialog.isShown()) XtAppProcessEvent(app->context(), XtIMAll);
  WidgetList kids = nullptr;
  XtVaGetValues(shellOf(dialog.getWidget()), XtNchildren, &kids, nullptr);
  print(kids[0], -1);
  return 0;
}
