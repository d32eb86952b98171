// Entry fields, driven by keys, the mouse and other programs' selections.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>

#include "framework/core/errors.h"
#include "tests/framework/edit_form.h"

namespace {

using edit_form::boxId;
using edit_form::firstId;
using edit_form::Form;
using edit_form::play;
using edit_form::secondId;
using edit_form::shown;

constexpr zPoint inText{30, 12};
const std::initializer_list<KeySym> alone{}, withShift{XK_Shift_L}, withControl{XK_Control_L};

TEST(Edit, TellsOfEveryWayToChangeItOnce) {
  Form form;
  zEditLine field(&form, firstId), second(&form, secondId);
  ASSERT_TRUE(form.start(field));
  play(form, field,
       {{'a', alone, "a|"},
        {'B', alone, "aB|"},
        {'c', alone, "aBc|"},
        {XK_BackSpace, alone, "aB|"},
        {'x', withControl, "aB|", ""},
        {XK_Left, withShift, "a{B}", ""},
        {XK_Delete, withShift, "a|"},
        {XK_Insert, withShift, "aB|"},
        {XK_Left, withShift, "a{B}", ""},
        {'c', withControl, "a{B}", ""},
        {'x', withControl, "a|"},
        {'v', withControl, "aB|"},
        {XK_Home, alone, "|aB", ""},
        {XK_Delete, alone, "|B"},
        {XK_Delete, withControl, "|"},
        {XK_BackSpace, alone, "|", ""}});
  second.text("12345");
  second.selection(1, 4);
  form.heard.clear();
  x_driver::click(field, inText, 2);
  ASSERT_TRUE(x_driver::waitUntil([&] { return !form.heard.empty(); }));
  EXPECT_EQ(shown(field), "234|");
  XmTextRemove(second.drawnWidget());  // tells of a deletion by a null pointer
  EXPECT_EQ(second.getText(), "15");
  field.text("set by the program");
  field.text("set by the program");
  EXPECT_EQ(form.heard, "uc");
  field.selection(4, 6);
  play(form, field, {{'X', alone, "set X| the program"}});
  field.selection(0, 4);
  field.replaceSelection("");
  EXPECT_EQ(field.getSelection(), "");
  EXPECT_EQ(field.getText(), "X the program");
}

TEST(Edit, UndoesOneChangeAndRedoesIt) {
  Form form;
  zEditLine field(&form, firstId);
  ASSERT_TRUE(form.start(field));
  EXPECT_EQ(field.undo(), 0);
  struct Case {
    const char* what;
    void (*change)(zEditBase&);
    const char* undone;
    const char* redone;
  };
  const Case cases[] = {
      {"typed run", [](zEditBase&) { x_driver::text("de"); }, "abc|", "abcde|"},
      {"backspace run",
       [](zEditBase&) { x_driver::key(XK_BackSpace), x_driver::key(XK_BackSpace); }, "abc|", "a|"},
      {"typed after moving",
       [](zEditBase&) { x_driver::text("d"), x_driver::key(XK_Home), x_driver::text("e"); },
       "|abcd", "e|abcd"},
      {"cut", [](zEditBase& f) { f.selection(0, 2), f.cut(); }, "ab|c", "|c"},
      {"paste", [](zEditBase& f) { f.paste(); }, "abc|", "abcab|"},
      {"kill", [](zEditBase&) { x_driver::key(XK_Home), x_driver::key(XK_Delete, withControl); },
       "|abc", "|"},
  };
  for (const Case& c : cases) {
    field.text("abc");
    EXPECT_FALSE(field.canUndo()) << c.what;
    c.change(field);
    EXPECT_TRUE(x_driver::waitUntil([&] { return field.canUndo(); })) << c.what;
    form.heard.clear();
    EXPECT_TRUE(field.undo());
    EXPECT_EQ(shown(field), c.undone) << c.what;
    x_driver::key(XK_z, withControl);
    EXPECT_EQ(shown(field), c.redone) << c.what;
    EXPECT_EQ(form.heard, "ucuc");
  }
}

TEST(Edit, TakesTheTextThatItHasWithoutDrawingIt) {
  Form form;
  zEditLine field(&form, firstId);
  zEditBox box(&form, boxId);
  ASSERT_TRUE(form.start(field));
  field.text("one two");
  const unsigned long before = x_driver::requestsSent();
  field.text("one two");
  EXPECT_EQ(x_driver::requestsSent(), before);
  field.selection(1, 3);
  field.text("one two");
  EXPECT_EQ(shown(field), "one two|");
  play(form, field, {{'!', alone, "one two!|"}, {XK_Home, alone, "|one two!", ""}});
  field.text("one two!");
  EXPECT_EQ(shown(field), "one two!|");
  EXPECT_EQ(field.canUndo(), 0);
  const std::string lines = "1\n2\n3\n4\n5\n6\n7\n8\n9";
  box.text(lines.c_str());
  XmTextSetTopCharacter(box.drawnWidget(), 0);
  box.text(lines.c_str());
  EXPECT_GT(XmTextGetTopCharacter(box.drawnWidget()), 0) << "its caret can be seen";
}

TEST(Edit, StylesShapeWhatIsTyped) {
  const std::pair<unsigned long, const char*> cases[] = {
      {zEditStyle::upperCase, "ABC"}, {zEditStyle::lowerCase, "abc"}, {zEditStyle::readOnly, ""}};
  for (const auto& [style, result] : cases) {
    Form form(static_cast<std::uint32_t>(style));
    zEditLine field(&form, firstId);
    ASSERT_TRUE(form.start(field));
    x_driver::text("aBc");
    EXPECT_EQ(field.getText(), result);
  }
}

// Another program's selection: a line with bytes that no widget can show.
Boolean offerLatin1(Widget widget, Atom*, Atom* target, Atom* type, XtPointer* value,
                    unsigned long* length, int* format) {
  static char text[] = "caf\xE9\tx\n";
  static Atom targets[] = {XA_STRING};
  const bool list = *target == XInternAtom(XtDisplay(widget), "TARGETS", False);
  if (!list && *target != XA_STRING) return False;
  *type = list ? XA_ATOM : XA_STRING;
  *value = XtMalloc(sizeof targets);
  std::memcpy(*value, list ? reinterpret_cast<char*>(targets) : text, sizeof targets);
  *length = list ? 1 : sizeof text - 1;
  *format = list ? 32 : 8;
  return True;
}

TEST(Edit, ShowsOnlyWhatAWidgetCanTake) {
  Form form;
  zEditLine field(&form, firstId);
  field.text("caf\xE9\ttab\x01");
  EXPECT_EQ(field.getText(), "caf? tab?");
  ASSERT_TRUE(form.start(field));
  field.text("");
  XtOwnSelection(form.shell(), XA_PRIMARY, XtLastTimestampProcessed(app->display()), offerLatin1,
                 nullptr, nullptr);
  x_driver::click(field, inText, 2);
  ASSERT_TRUE(x_driver::waitUntil([&] { return !form.heard.empty(); }));
  EXPECT_EQ(field.getText(), "caf? x");
  field.limitText(3);
  field.text("");
  form.heard.clear();
  x_driver::text("abcd");
  EXPECT_EQ(field.getText(), "abc");
  EXPECT_EQ(form.heard.substr(0, 7), "ucucucm");
  EXPECT_TRUE(field.undo());
  EXPECT_EQ(field.getText(), "");
  field.limitText(0);
  EXPECT_EQ(XmTextGetMaxLength(field.drawnWidget()), 32000);
}

// Another program that has the primary selection and takes its time.
class SlowOwner {
 public:
  SlowOwner()
      : display_(XOpenDisplay(DisplayString(app->display()))),
        window_(XCreateSimpleWindow(display_, DefaultRootWindow(display_), 0, 0, 1, 1, 0, 0, 0)) {
    XSetErrorHandler([](Display*, XErrorEvent*) { return 0; });  // the field may have gone
    XSetSelectionOwner(display_, XA_PRIMARY, window_, CurrentTime);
    XSync(display_, False);
  }
  ~SlowOwner() {
    XCloseDisplay(display_);
    XSetErrorHandler(zAppXlibErrorHandler);
  }
  bool isAsked() {
    XEvent event;
    if (!XCheckTypedEvent(display_, SelectionRequest, &event)) return false;
    asked_ = event.xselectionrequest;
    return true;
  }
  void answer(const char* text) {
    XChangeProperty(display_, asked_.requestor, asked_.property, XA_STRING, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(text),
                    static_cast<int>(std::strlen(text)));
    XEvent told{};
    told.xselection = {SelectionNotify,
                       0,
                       False,
                       display_,
                       asked_.requestor,
                       asked_.selection,
                       asked_.target,
                       asked_.property,
                       asked_.time};
    XSendEvent(display_, asked_.requestor, False, NoEventMask, &told);
    XSync(display_, False);
  }

 private:
  Display* display_;
  Window window_;
  XSelectionRequestEvent asked_{};
};

TEST(Edit, TakesALateAnswerToItsLastQuestionOnly) {
  SlowOwner owner;
  auto form = std::make_unique<Form>();
  auto* field = new zEditLine(form.get(), firstId);
  ASSERT_TRUE(form->start(*field));
  const auto paste = [&] {
    x_driver::click(*field, inText, 2);
    return x_driver::waitUntil([&] { return owner.isAsked(); });
  };
  field->text("abc");
  ASSERT_TRUE(paste());
  field->selection(0, 2);  // which takes the selection from its owner meanwhile
  owner.answer("late");
  EXPECT_TRUE(x_driver::waitUntil([&] { return field->getText() == "abclate"; }));
  owner.answer("twice");
  x_driver::settle();
  EXPECT_EQ(field->getText(), "abclate");
  SlowOwner next;
  x_driver::click(*field, inText, 2);
  ASSERT_TRUE(x_driver::waitUntil([&] { return next.isAsked(); }));
  form.reset();
  next.answer("too late");
  x_driver::settle();
}

// A field that notes its keys, refuses digits and turns 'x' into 'y'.
class Choosy : public zEditLine {
 public:
  using zEditLine::zEditLine;
  int ch(zKeyEvt* key) override {
    keys += " " + std::to_string(key->ch());
    if (key->ch() == 'x') key->parm1 = 'y';
    return key->ch() >= '0' && key->ch() <= '9';
  }
  int keyDown(zKeyEvt* key) {
    if (key->parm1 == XK_Delete) keys += " Delete";
    return key->parm1 == XK_Delete && consumes;
  }
  std::string keys;
  bool consumes = false;
};

TEST(Edit, OffersKeysToItsClassFirst) {
  Form form(zEditStyle::wantReturn);
  Choosy field(&form, firstId);
  field.setHandler(&field, &Choosy::keyDown, zMsgKeyDown);
  ASSERT_TRUE(form.start(field));
  play(form, field,
       {{'x', alone, "y|"},
        {'1', alone, "y|", ""},
        {XK_Return, alone, "y|", ""},
        {XK_BackSpace, alone, "|"},
        {'a', alone, "a|"},
        {XK_Home, alone, "|a", ""},
        {XK_Delete, alone, "|"}});
  EXPECT_EQ(field.keys, " 120 49 13 8 97 Delete 8");
  field.consumes = true;
  field.text("b");
  field.selection(0, 0);
  play(form, field, {{XK_Delete, alone, "|b", ""}});
  EXPECT_FALSE(form.isFinished());
}

// What the announcement of a change may do to the field.
class Meddler : public Form {
 public:
  int update(zNotifyEvt*) override { return meddle(), 0; }
  std::function<void()> meddle;
};

TEST(Edit, OutlivesWhatTheAnnouncementOfAChangeDoes) {
  auto form = std::make_unique<Meddler>();
  auto* field = new zEditLine(form.get(), firstId);
  ASSERT_TRUE(form->start(*field));
  form->meddle = [&] { field->text("instead"); };
  x_driver::text("a");
  EXPECT_EQ(shown(*field), "instead|");
  EXPECT_EQ(form->heard, "");
  form->meddle = [&] { form.reset(); };
  x_driver::text("b");
  EXPECT_EQ(form, nullptr);
}

class Scrolls : public zEvH {
 public:
  int across(zNotifyEvt*) { return heard += 'h', 0; }
  int down(zNotifyEvt*) { return heard += 'v', 0; }
  std::string heard;
};

TEST(EditBox, ScrollsAndLeavesReturnToTheDialogUnlessItWantsIt) {
  const std::uint32_t bars =
      zEditStyle::multiLine | zEditStyle::horzScroll | zEditStyle::vertScroll;
  for (const bool wants : {true, false}) {
    Form form(0, bars | (wants ? std::uint32_t{zEditStyle::wantReturn} : 0U));
    auto* box = new zEditBox(&form, boxId);
    EXPECT_TRUE(box->isA(zTypeEditBox));
    Scrolls scrolls;
    box->setNotifyHScroll(&scrolls, &Scrolls::across);
    box->setNotifyVScroll(&scrolls, &Scrolls::down);
    for (const int id : {firstId, secondId}) form.get(id)->disable();  // they are empty
    ASSERT_TRUE(form.start(*box));
    x_driver::text("a");
    x_driver::key(XK_Return);
    ASSERT_EQ(form.isFinished(), !wants);
    EXPECT_EQ(box->getText(), wants ? "a\n" : "a");
    if (!wants) continue;
    std::string lines;
    for (int i = 0; i < 20; ++i) lines += std::string(80, 'x') + '\n';
    box->text(lines);
    EXPECT_EQ(scrolls.heard, "");
    Dimension width = 0, height = 0;
    XtVaGetValues(box->drawnWidget(), XmNwidth, &width, XmNheight, &height, nullptr);
    x_driver::click(*box, {width + 14, 8});
    x_driver::click(*box, {20, height + 10});
    EXPECT_TRUE(x_driver::waitUntil([&] { return scrolls.heard.size() >= 2; }));
    EXPECT_EQ(scrolls.heard, "vh");
    box->removeNotifyVScroll(&scrolls, &Scrolls::down);
    x_driver::click(*box, {width + 14, height - 8});
    EXPECT_EQ(scrolls.heard, "vh");
  }
}

}  // namespace
