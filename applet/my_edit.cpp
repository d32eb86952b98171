#include "applet/my_edit.h"

#include <Xm/Xm.h>

namespace {

constexpr int longestText = 30;  // characters, which a page may change

const char* const reactions[] = {
    XmNmodifyVerifyCallback, XmNvalueChangedCallback, XmNfocusCallback,
    XmNlosingFocusCallback,  XmNactivateCallback,
};

}  // namespace

myEdit::myEdit(zWindow* parent, int id, std::string* store)
    : zEditBase(parent, id, store), shown_(store) {
  if (!textWidget()) return;
  text("Ondrelle");
  for (const char* reaction : reactions) XtRemoveAllCallbacks(textWidget(), reaction);
  limitText(longestText);
}

void myEdit::showText(const char* value) {
  if (*shown_ == value) return;
  *shown_ = value;
  text(value);
}
