#include "framework/controls/text_transfer.h"

#include <X11/Xatom.h>
#include <Xm/Text.h>
#include <Xm/Transfer.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "framework/core/app.h"
#include "framework/core/frame_window.h"
#include "framework/core/x_text.h"

namespace {

constexpr long longestPaste = 256 * 1024;  // bytes

struct Question {
  Atom selection;
  Time time;
  bool moves;
  std::optional<XmTextPosition> place;  // where the pointer was
};

// What a text has asked for and got no answer to. Belongs to the widget.
using Pending = std::optional<Question>;

Atom atom(Widget widget, const char* name) {
  return XInternAtom(XtDisplay(widget), name, False);
}

Atom answerProperty(Widget text) {
  return atom(text, "TEXT_PASTE");
}

void convert(Widget text, const Question& question, Atom target) {
  XConvertSelection(XtDisplay(text), question.selection, target, answerProperty(text),
                    XtWindow(text), question.time);
}

// The range that a paste replaces. None when that would put a selection into itself.
std::optional<std::pair<XmTextPosition, XmTextPosition>> rangeFor(Widget text,
                                                                  const Question& question) {
  XmTextPosition left = 0, right = 0;
  const bool selected = XmTextGetSelectionPosition(text, &left, &right) && left != right;
  const bool itself = selected && question.selection == XA_PRIMARY;
  const XmTextPosition at = std::min(question.place.value_or(XmTextGetInsertionPosition(text)),
                                     XmTextGetLastPosition(text));
  if (itself && left < at && at < right) return std::nullopt;
  if (selected && !itself && !question.place) return {{left, right}};
  return {{at, at}};
}

std::string answerTo(Widget text) {
  Atom type = None;
  int format = 0;
  unsigned long length = 0, left = 0;
  unsigned char* value = nullptr;
  XGetWindowProperty(XtDisplay(text), XtWindow(text), answerProperty(text), 0, longestPaste / 4,
                     True, AnyPropertyType, &type, &format, &length, &left, &value);
  const std::unique_ptr<unsigned char, int (*)(void*)> owned(value, XFree);
  if (!value || type != XA_STRING || format != 8) return {};
  const std::string_view given(reinterpret_cast<const char*>(value), length);
  int mode = 0;
  XtVaGetValues(text, XmNeditMode, &mode, nullptr);
  return mode == XmSINGLE_LINE_EDIT ? ziSafeLine(given) : ziSafeText(given);
}

void insert(Widget text, const Question& question, std::string answer) {
  if (answer.empty() || !XmTextGetEditable(text) || !XtIsSensitive(text)) return;
  const auto range = rangeFor(text, question);
  if (!range) return;
  XmTextSetInsertionPosition(text, range->second);
  XmTextReplace(text, range->first, range->second, answer.data());
  if (question.moves) convert(text, question, atom(text, "DELETE"));
}

void answered(Widget text, XtPointer data, XEvent* event, Boolean*) {
  if (event->type != SelectionNotify) return;
  auto& pending = *static_cast<Pending*>(data);
  const XSelectionEvent& answer = event->xselection;
  if (!pending || answer.selection != pending->selection || answer.time != pending->time) return;
  if (answer.property != None && answer.property != answerProperty(text)) return;
  const Question question = *pending;
  pending.reset();
  if (answer.property != None) insert(text, question, answerTo(text));
}

void pasteBegins(Widget text, XtPointer data, XtPointer callData) {
  const auto& paste = *static_cast<XmDestinationCallbackStruct*>(callData);
  Question question{paste.selection, paste.time, paste.operation == XmMOVE, {}};
  // The widget makes a place for its own transfer, whose end would have freed it.
  const std::unique_ptr<XPoint, void (*)(XPoint*)> at(
      static_cast<XPoint*>(paste.location_data),
      [](XPoint* place) { XtFree(reinterpret_cast<char*>(place)); });
  XmTransferDone(paste.transfer_id, XmTRANSFER_DONE_FAIL);
  if (at) question.place = XmTextXYToPos(text, at->x, at->y);
  if (!XtIsRealized(text)) return;
  *static_cast<Pending*>(data) = question;
  convert(text, question, XA_STRING);
}

void textGoes(Widget, XtPointer pending, XtPointer) {
  delete static_cast<Pending*>(pending);
}

// The clipboard.

std::string& clipboard() {
  static std::string text;
  return text;
}

template <class T>
void give(const T* from, std::size_t count, XtPointer* value, unsigned long* length) {
  *value = XtMalloc(static_cast<Cardinal>(std::max(count * sizeof(T), sizeof(T))));
  std::copy_n(from, count, static_cast<T*>(*value));
  *length = count;
}

Boolean offerClipboard(Widget owner, Atom*, Atom* target, Atom* type, XtPointer* value,
                       unsigned long* length, int* format) {
  const Atom targets = atom(owner, "TARGETS"), utf8 = atom(owner, "UTF8_STRING");
  if (*target == targets) {
    const Atom known[] = {targets, XA_STRING, utf8};
    give(known, std::size(known), value, length);
    *type = XA_ATOM;
    *format = 32;
    return True;
  }
  if (*target != XA_STRING && *target != utf8) return False;
  give(clipboard().data(), clipboard().size(), value, length);
  *type = *target;
  *format = 8;
  return True;
}

void copyAction(Widget text, XEvent*, String*, Cardinal*) {
  ziCopyText(text);
}

void cutAction(Widget text, XEvent*, String*, Cardinal*) {
  ziCutText(text);
}

// The widget would insert the control characters of some keys, and has a clipboard of its own for
// the others.
XtTranslations clipboardKeys() {
  static XtActionsRec actions[] = {{const_cast<char*>("ziCopy"), copyAction},
                                   {const_cast<char*>("ziCut"), cutAction}};
  static const XtTranslations parsed =
      (XtAppAddActions(app->context(), actions, XtNumber(actions)),
       XtParseTranslationTable(":s <Key>osfDelete: ziCut()\n:<Key>osfCut: ziCut()\n"
                               ":c <Key>osfInsert: ziCopy()\n:<Key>osfCopy: ziCopy()\n"
                               "c ~s ~m ~a <Key>x: ziCut()\nc ~s ~m ~a <Key>c: ziCopy()\n"
                               "c ~s ~m ~a <Key>v: paste-clipboard()"));
  return parsed;
}

}  // namespace

bool ziCopyText(Widget text) {
  const std::string selected = ziSelectedText(text);
  if (selected.empty()) return false;
  const Widget owner = app->rootWindow()->shell();
  clipboard() = selected;
  return XtOwnSelection(owner, atom(owner, "CLIPBOARD"), XtLastTimestampProcessed(app->display()),
                        offerClipboard, nullptr, nullptr);
}

bool ziCutText(Widget text) {
  if (!XmTextGetEditable(text) || !ziCopyText(text)) return false;
  XmTextRemove(text);
  return true;
}

void ziUseSelections(Widget text) {
  auto* pending = new Pending;
  XtAddCallback(text, XmNdestinationCallback, pasteBegins, pending);
  XtAddEventHandler(text, NoEventMask, True, answered, pending);
  XtAddCallback(text, XmNdestroyCallback, textGoes, pending);
  XtOverrideTranslations(text, clipboardKeys());
}
