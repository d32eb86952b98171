#include <X11/keysym.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "framework/controls/bitmap_button.h"
#include "framework/core/app.h"
#include "framework/dialogs/control_types.h"
#include "framework/dialogs/dialog_frame.h"
#include "tests/support/x_driver.h"

namespace {

using testing::ElementsAre;

constexpr zDimension frameSize{12, 10};
constexpr zDimension buttonSize{60, 30};
constexpr zPoint middle{30, 15};
constexpr zPoint outside{30, 45};

// The middle of each frame of the strip.
constexpr zColor frameColors[] = {{200, 0, 0},   {0, 200, 0},   {0, 0, 200},
                                  {200, 200, 0}, {200, 0, 200}, {0, 200, 200}};

std::unique_ptr<zBitmap> strip() {
  const zDimension size{6 * frameSize.width, frameSize.height};
  zPixmapDisplay image(size);
  image.lock();
  for (int i = 0; i < 6; ++i) {
    image.setColor(frameColors[i]);
    image.fillRect({zPoint{i * frameSize.width, 0}, frameSize});
  }
  image.unlock();
  return std::make_unique<zBitmap>(image.release(), size);
}

class Form : public zDialogFrame {
 public:
  Form() : zDialogFrame(app->rootWindow(), new zSizer(40, 40, 200, 160, nullptr), 0, "Form", 0) {}

  // A button as a template makes it, adopted.
  zBitmapButton* button(int id, unsigned long style, const char* title = " ") {
    const zPoint at{20, 20 + 40 * (id - 1)};
    zControlType::find("zBmpBtnClass")
        ->buildNew(this, new zSizer(at, buttonSize, sizer()), style, title, id)
        ->show(1);
    return new zBitmapButton(this, id, strip());
  }

  int dispatch(zEvent*) override {
    heard.push_back("dispatch");
    return 0;
  }
  int direct(zNotifyEvt*) { return hear("direct"); }
  int member(zEvent*) { return hear("member"); }
  int notified(zNotifyEvt*) { return hear("notified"); }
  int checked(zEvent* event) {
    return hear("check " + std::to_string(event->parm1) + " " + std::to_string(event->codeWord));
  }

  std::vector<std::string> heard;
  std::string consumer;

 private:
  int hear(const std::string& what) {
    heard.push_back(what);
    return what == consumer;
  }
};

int frameShown(const zBitmapButton& button) {
  const zColor color = x_driver::pixelAt(button, middle);
  return static_cast<int>(std::find(frameColors, std::end(frameColors), color) - frameColors);
}

TEST(BitmapButton, PlacesPictureAndCaption) {
  const zDimension picture{11, 10};
  const zDimension caption{20, 6};
  struct Case {
    ziVisText3dBmp::PicturePlace at;
    zDimension inside, picture, caption;
    zPoint pictureAt, captionAt;
  };
  const Case cases[] = {
      {ziVisText3dBmp::left, {51, 21}, picture, caption, {9, 5}, {21, 7}},
      {ziVisText3dBmp::right, {51, 21}, picture, caption, {30, 5}, {9, 7}},
      {ziVisText3dBmp::above, {51, 22}, picture, caption, {20, 2}, {15, 13}},
      {ziVisText3dBmp::below, {51, 22}, picture, caption, {20, 9}, {15, 2}},
      {ziVisText3dBmp::left, {20, 8}, picture, caption, {0, 0}, {12, 1}},
      {ziVisText3dBmp::left, {52, 21}, picture, {}, {20, 5}, {31, 10}},
      {ziVisText3dBmp::left, {5, 21}, picture, {}, {0, 5}, {11, 10}},
      {ziVisText3dBmp::left, {51, 21}, {}, caption, {15, 10}, {15, 7}},
  };
  for (const Case& c : cases) {
    ziVisText3dBmp visual;
    const zPoint origin{100, 50};
    const zRect placed = visual.arrange({origin, c.inside}, c.picture, c.caption, c.at);
    const auto index = &c - cases;
    EXPECT_EQ(placed.moved(-100, -50), zRect(c.pictureAt, c.picture)) << index;
    EXPECT_EQ(visual.place().moved(-100, -50), zRect(c.captionAt, c.caption)) << index;
  }
}

TEST(BitmapButton, ShowsTheFrameOfItsState) {
  Form form;
  zBitmapButton* plain = form.button(1, 0);
  zBitmapButton* lit = form.button(2, ziVisBmpButtonInternal::showsOn);
  ASSERT_TRUE(x_driver::show(form));
  struct Case {
    bool checked, enabled;
    int plain, lit;
  };
  for (const Case& c :
       {Case{false, true, 0, 0}, {true, true, 0, 4}, {false, false, 1, 1}, {true, false, 1, 5}}) {
    for (zBitmapButton* button : {plain, lit}) {
      button->check(c.checked);
      c.enabled ? button->enable() : button->disable();
      EXPECT_EQ(frameShown(*button), button == lit ? c.lit : c.plain) << c.checked << c.enabled;
    }
  }
  lit->enable();
  lit->setDisabled(1);
  EXPECT_EQ(frameShown(*lit), 5);
  EXPECT_TRUE(lit->isEnabled());
}

TEST(BitmapButton, FollowsThePointer) {
  Form form;
  zBitmapButton* button = form.button(1, zStyleTabStop);
  button->setNotifyClicked(&form, &Form::notified);
  form.consumer = "notified";
  ASSERT_TRUE(x_driver::show(form));

  x_driver::moveTo(*button, middle);
  x_driver::press();
  EXPECT_EQ(frameShown(*button), 3);
  EXPECT_EQ(button->check(), 2);
  EXPECT_TRUE(x_driver::hasFocus(*button));
  x_driver::moveTo(*button, outside);
  EXPECT_EQ(frameShown(*button), 0);
  x_driver::release();
  EXPECT_THAT(form.heard, ElementsAre()) << "let go outside";

  x_driver::moveTo(*button, middle);
  x_driver::press();
  x_driver::moveTo(*button, outside);
  x_driver::moveTo(*button, middle);
  EXPECT_EQ(frameShown(*button), 3);
  x_driver::release();
  EXPECT_EQ(frameShown(*button), 0);
  EXPECT_THAT(form.heard, ElementsAre("notified"));

  x_driver::click(*button, middle, 3);
  x_driver::press();
  button->disable();
  x_driver::release();
  button->enable();
  x_driver::moveTo(*button, {31, 15});
  EXPECT_EQ(frameShown(*button), 0);
  EXPECT_THAT(form.heard, ElementsAre("notified")) << "right button, or disabled while pressed";
}

TEST(BitmapButton, TogglesByClicksWithAutoCheck) {
  Form form;
  zBitmapButton* toggle =
      form.button(1, ziVisBmpButtonInternal::autoCheck | ziVisBmpButtonInternal::showsOn);
  ASSERT_TRUE(x_driver::show(form));
  x_driver::click(*toggle, middle);
  EXPECT_EQ(toggle->check(), 1);
  EXPECT_EQ(frameShown(*toggle), 4);
  x_driver::press();
  EXPECT_EQ(frameShown(*toggle), 2);
  x_driver::release();
  EXPECT_EQ(toggle->check(), 0);
}

TEST(BitmapButton, IsReachedByTabAndPressedBySpace) {
  Form form;
  zBitmapButton* first = form.button(1, zStyleTabStop);
  form.button(2, zStyleChild);
  zBitmapButton* last = form.button(3, zStyleTabStop);
  last->setNotifyClicked(&form, &Form::notified);
  form.consumer = "notified";
  ASSERT_TRUE(x_driver::show(form));
  ASSERT_TRUE(x_driver::giveFocus(*first));
  x_driver::key(XK_Tab);
  EXPECT_TRUE(x_driver::hasFocus(*last)) << "the one in between is not in the tab order";

  x_driver::keyDown(XK_space);
  EXPECT_EQ(frameShown(*last), 3);
  x_driver::waitUntil([] { return false; }, 1000);  // the server repeats the key
  EXPECT_THAT(form.heard, ElementsAre());
  x_driver::keyUp(XK_space);
  EXPECT_EQ(frameShown(*last), 0);
  EXPECT_THAT(form.heard, ElementsAre("notified"));

  for (const KeySym lock : {KeySym{XK_Num_Lock}, KeySym{XK_Caps_Lock}}) {
    form.heard.clear();
    x_driver::key(lock);
    x_driver::key(XK_space);
    x_driver::key(lock);
    EXPECT_THAT(form.heard, ElementsAre("notified")) << lock;
  }
}

TEST(BitmapButton, OffersAClickUntilItIsConsumed) {
  Form form;
  zBitmapButton* button = form.button(1, 0);
  button->setCallback(&form, &Form::direct);
  button->setCommandMember(&form, &Form::member);
  button->setNotifyClicked(&form, &Form::notified);
  ASSERT_TRUE(x_driver::show(form));
  const std::vector<std::string> all{"direct", "member", "notified", "dispatch"};
  for (std::size_t i = 0; i < all.size(); ++i) {
    form.heard.clear();
    form.consumer = all[i];
    x_driver::click(*button, middle);
    EXPECT_EQ(form.heard, std::vector<std::string>(all.data(), all.data() + i + 1));
  }
}

TEST(BitmapButton, TellsOfAnewStateAndDrawsOnlyChanges) {
  Form form;
  zBitmapButton* button = form.button(1, ziVisBmpButtonInternal::showsOn, "Ready");
  button->setHandler(&form, &Form::checked, zMsgCheck);
  ASSERT_TRUE(x_driver::show(form));
  x_driver::settle();
  button->check(1);
  const unsigned long before = x_driver::requestsSent();
  button->check(1);
  button->text("Ready");
  button->setDisabled(0);
  EXPECT_EQ(x_driver::requestsSent(), before);
  button->text("Again");
  EXPECT_GT(x_driver::requestsSent(), before);
  button->check(0);
  EXPECT_THAT(form.heard, ElementsAre("check 1 0", "check 1 0", "check 0 0"));
}

TEST(BitmapButton, DoesWithoutAPicture) {
  Form form;
  zBitmapButton* button = form.button(1, 0, "&Ok");
  button->setBitmap(nullptr);
  ASSERT_TRUE(x_driver::show(form));
  EXPECT_GT(x_driver::countPixels(*button, {0, 0, 60, 30}, zBlack), 20);
  EXPECT_EQ(x_driver::countPixels(*button, {0, 0, 60, 30}, frameColors[0]), 0);
}

}  // namespace
