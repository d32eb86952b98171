// usage: bare_window FILE
// A Motif window without a framework or a purpose: the widgets that widget_census wrote to FILE,
// with the toolkit's own defaults for all but place and size. It is what a window of so many
// widgets costs at the least.
#include <Xm/BulletinB.h>
#include <Xm/DrawingA.h>
#include <Xm/Frame.h>
#include <Xm/Label.h>
#include <Xm/LabelG.h>
#include <Xm/MainW.h>
#include <Xm/PushB.h>
#include <Xm/RowColumn.h>
#include <Xm/ScrollBar.h>
#include <Xm/Text.h>

#include <cstdio>
#include <cstring>
#include <vector>

namespace {

struct Kind {
  const char* name;
  WidgetClass* widgetClass;
};
const Kind kinds[] = {
    {"XmBulletinBoard", &xmBulletinBoardWidgetClass},
    {"XmDrawingArea", &xmDrawingAreaWidgetClass},
    {"XmFrame", &xmFrameWidgetClass},
    {"XmLabel", &xmLabelWidgetClass},
    {"XmLabelGadget", &xmLabelGadgetClass},
    {"XmMainWindow", &xmMainWindowWidgetClass},
    {"XmPushButton", &xmPushButtonWidgetClass},
    {"XmRowColumn", &xmRowColumnWidgetClass},
    {"XmScrollBar", &xmScrollBarWidgetClass},
    {"XmText", &xmTextWidgetClass},
};

WidgetClass classOf(const char* name) {
  for (const Kind& kind : kinds) {
    if (std::strcmp(kind.name, name) == 0) return *kind.widgetClass;
  }
  return nullptr;
}

// A main window brings its separators along.
bool comesWithParent(const char* name) {
  return std::strcmp(name, "XmSeparatorGadget") == 0;
}

// One line of the census under its parent. Null for a class that is not in the table.
Widget make(const char* name, Widget parent, const int (&place)[4]) {
  const WidgetClass widgetClass = classOf(name);
  if (!widgetClass) {
    std::fprintf(stderr, "bare_window: no %s\n", name);
    return nullptr;
  }
  return XtVaCreateManagedWidget(name, widgetClass, parent, XmNx, place[0], XmNy, place[1],
                                 XmNwidth, place[2], XmNheight, place[3], XmNmarginWidth, 0,
                                 XmNmarginHeight, 0, XmNresizePolicy, XmRESIZE_NONE,
                                 XmNrecomputeSize, False, nullptr);
}

bool build(std::FILE* census, Widget shell) {
  std::vector<Widget> made;
  char name[32];
  int parent = -1;
  int place[4];
  while (std::fscanf(census, "%31s %d %d %d %d %d", name, &parent, &place[0], &place[1], &place[2],
                     &place[3]) == 6) {
    if (parent >= static_cast<int>(made.size())) return false;
    const Widget over = parent < 0 ? shell : made[static_cast<std::size_t>(parent)];
    made.push_back(comesWithParent(name) ? over : make(name, over, place));
    if (!made.back()) return false;
  }
  return !made.empty();
}

}  // namespace

int main(int argc, char** argv) {
  XtAppContext context;
  const Widget shell =
      XtVaAppInitialize(&context, "Bare", nullptr, 0, &argc, argv, nullptr, nullptr);
  std::FILE* census = argc == 2 ? std::fopen(argv[1], "r") : nullptr;
  if (!census || !build(census, shell)) {
    std::fputs("usage: bare_window FILE, as widget_census wrote it\n", stderr);
    return 2;
  }
  std::fclose(census);
  XtRealizeWidget(shell);
  XtAppMainLoop(context);
}
