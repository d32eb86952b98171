// The global settings, on a driver that keeps what it is sent.
#include "tests/apply/setup_stage.h"

#include <unistd.h>

#include "applet/my_table.h"
#include "driver/frame.h"
#include "driver/session.h"
#include "foundation/version.h"
#include "framework/controls/check_box.h"
#include "framework/controls/combo_box.h"
#include "shell/global_dialog.h"
#include "tests/support/scripted_driver.h"

namespace {

constexpr int appPage = 581;
constexpr int connectPage = 582;
constexpr int debugPage = 583;

class GlobalDialog : public testing::Test {
 protected:
  GlobalDialog() {
    timerTime = 1000;
    advSettings = ApiDbgCB = SignallingDbgCB = IlmiDbgCB = 0;
    DaiOpenSuccess = dai_open(0, 0, &ioctlDesc) == 0;
  }
  ~GlobalDialog() override {
    dialog_.reset();
    dai_close(0, ioctlDesc);
    DaiOpenSuccess = 0;
  }

  DGlobalDlg& open() {
    dialog_ = std::make_unique<DGlobalDlg>(app->rootWindow());
    EXPECT_TRUE(x_driver::show(*dialog_));
    return *dialog_;
  }
  zDialogPage& page(int id) {
    dialog_->select(dialog_->findPage(id));
    return *dialog_->findPage(id)->page();
  }
  zComboBoxStatic& rates() { return *static_cast<zComboBoxStatic*>(page(appPage).get(265)); }
  void clickIn(int pageId, int id) { x_driver::click(*page(pageId).get(id), {8, 8}); }
  void press(int button) {
    x_driver::click(*dialog_->get(button), {8, 8});
    EXPECT_TRUE(x_driver::waitUntil([&] { return !dialog_->isShown(); }));
  }
  // The bodies of the exchanges, in hexadecimal up to the end of their input.
  std::string sent() {
    std::string text;
    for (const WireMessage& message : driver_.received()) {
      if (message.head.kind != wireExchange) continue;
      EXPECT_EQ(message.body.size(), signallingFrameBytes);
      char byte[4];
      for (std::size_t i = 0; i < 27; ++i) {
        std::snprintf(byte, sizeof byte, "%02x", message.body[i]);
        text += byte;
      }
      text += '\n';
    }
    return text;
  }

  const ScratchDirectory scratch_;
  ScriptedDriver driver_{
      "li", [](ScriptedDriver& driver, const WireMessage& request) { driver.reply(request); }};
  std::unique_ptr<DGlobalDlg> dialog_;
};

TEST_F(GlobalDialog, KeepsWhatIsChosenUntilTheProgramEnds) {
  for (const char* rate : {"250", "4000"}) {
    open();
    EXPECT_EQ(dialog_->caption(), "Global Settings");
    EXPECT_EQ(rates().getText(), std::to_string(timerTime));
    rates().setFocus();
    ASSERT_TRUE(x_driver::waitUntil([&] { return x_driver::hasFocus(rates()); }));
    for (int i = 0; i < 6; ++i) x_driver::key(rate[0] == '2' ? XK_Up : XK_Down);
    EXPECT_EQ(rates().getText(), rate);
    clickIn(appPage, 266);
    const int advanced = 1 - advSettings;
    press(DGlobalDlg::okId);
    EXPECT_TRUE(dialog_->result());
    EXPECT_EQ(std::to_string(timerTime), rate);
    EXPECT_EQ(advSettings, advanced);
  }
  timerTime = 333;  // that is not offered
  open();
  EXPECT_EQ(rates().getText(), "250");
  press(DGlobalDlg::okId);
  EXPECT_EQ(timerTime, 333U);
  EXPECT_EQ(sent(), "");
}

TEST_F(GlobalDialog, CancelKeepsNothing) {
  open();
  rates().selection(0);
  clickIn(appPage, 266);
  clickIn(debugPage, 271);
  press(DGlobalDlg::cancelId);
  EXPECT_FALSE(dialog_->result());
  EXPECT_EQ(timerTime, 1000U);
  EXPECT_EQ(advSettings + ApiDbgCB, 0);
  EXPECT_EQ(sent(), "");
}

TEST_F(GlobalDialog, ShowsTheLimitsAndTheBuild) {
  atmDevices.MaxPtToPt = 4294967295U;
  open();
  EXPECT_EQ(static_cast<zControl*>(page(connectPage).get(268))->getText(), "4294967295");
  x_driver::click(*page(connectPage).get(269), {8, 8});
  x_driver::text("7");
  EXPECT_EQ(static_cast<zControl*>(page(connectPage).get(269))->getText(), "24");
  EXPECT_EQ(static_cast<zControl*>(page(debugPage).get(274))->getText(), "1998060315");
  atmDevices = AtmDevices();
}

TEST_F(GlobalDialog, ATraceThatIsSwitchedSendsAllThree) {
  if (getuid() != 0) GTEST_SKIP() << "needs user 0";
  SignallingDbgCB = 1;
  open();
  clickIn(debugPage, 273);
  const LogText log;
  press(DGlobalDlg::okId);
  EXPECT_EQ(log.startingWith("DaiSigDbgTrace").size(), 3U);
  // Head: primitive 34, type 3, 288 bytes, 27 of input; then the signalling head and the payload.
  const std::string head =
      "2200030000002001"
      "1b00";
  const std::string text = sent();
  ASSERT_EQ(text.size(), 3U * 55);
  const char* const payloads[] = {"000100", "000201", "000401"};
  for (std::size_t i = 0; i < 3; ++i) {
    const std::string frame = text.substr(55 * i, 54);
    EXPECT_EQ(frame.substr(0, 20), head);
    EXPECT_EQ(frame.substr(28),
              "adde"
              "0000000000000000" +
                  std::string(payloads[i]));
  }
  EXPECT_EQ(IlmiDbgCB, 1);
}

TEST_F(GlobalDialog, TracesAreForUser0AndTheRestIsNot) {
  if (setresuid(65534, static_cast<uid_t>(-1), static_cast<uid_t>(-1)) != 0)
    GTEST_SKIP() << "needs user 0, to become another";
  BoxReader boxes;
  open();
  rates().selection(0);
  clickIn(debugPage, 272);
  press(DGlobalDlg::okId);
  EXPECT_EQ(boxes.boxes(), Lines{"Privilege Error: Insufficient Privileges.\nUnable to Modify "
                                 "Signalling Parameters!"});
  EXPECT_FALSE(dialog_->result());
  EXPECT_EQ(SignallingDbgCB, 1);
  EXPECT_EQ(sent(), "");
  ASSERT_EQ(setresuid(0, static_cast<uid_t>(-1), static_cast<uid_t>(-1)), 0);
}

TEST_F(GlobalDialog, WithoutADriverNothingIsSentAndAllIsKept) {
  dai_close(0, ioctlDesc);
  DaiOpenSuccess = 0;
  open();
  clickIn(debugPage, 271);
  press(DGlobalDlg::okId);
  EXPECT_TRUE(dialog_->result());
  EXPECT_EQ(ApiDbgCB, 1);
}

TEST_F(GlobalDialog, TheFontFormSetsTheFontOfTables) {
  const zFontSpec before = tblFontSpec;
  for (const KeySym answer : {KeySym{XK_c}, KeySym{XK_o}}) {
    open();
    const AnswersBox form(
        [&] {
          x_driver::key(XK_Tab);
          x_driver::key(XK_Tab);
          x_driver::key(XK_space);  // bold
          x_driver::key(answer, {XK_Alt_L});
        },
        "Select Font");
    clickIn(appPage, 267);
    EXPECT_TRUE(x_driver::waitUntil([&] { return form.answered(); }));
    EXPECT_EQ(tblFontSpec.isBold(), answer == XK_o);
    dialog_.reset();
  }
  tblFontSpec = before;
}

}  // namespace
