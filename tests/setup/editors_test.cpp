// Circuits and clients: their forms, and what the pages do with them at once.
#include "tests/setup/notebook_stage.h"

#include "driver/ip1577_request.h"
#include "driver/lec_request.h"
#include "driver/lecs_request.h"
#include "framework/controls/list_box.h"
#include "framework/controls/multi_list.h"
#include "setup/elan_dialogs.h"
#include "setup/ip1577_page.h"
#include "setup/lec_page.h"
#include "setup/les_page.h"

namespace {

constexpr char services[] = "boards 3\njoin-delay 0\nboard 2 signalling up\n";
constexpr char lecQuestion[] =
    "PVC Error: Unable to Dynamically Add PVC\nDo you still want to modify Static Configuration?";

// Presses a key in the form with this title, as soon as that has the keyboard.
AnswersBox inForm(const char* title, KeySym key) {
  return AnswersBox([key] { x_driver::key(key); }, title);
}

AtmBridgedPvc bridged(unsigned char last, std::uint16_t vci) {
  return {{{2, 0, 0, 0, 0, last}}, vci, 1, 0, 155520000};
}

esiSelector client(unsigned char last) {
  return {{0, 0x20, 0x48, 0, 0, last, 1}};
}

std::size_t requestsOf(const LisimProcess& driver, const std::string& primAndType) {
  std::size_t count = 0;
  for (const std::string& line : driver.trace())
    count += lisimField(line, "event") == "request" &&
             lisimField(line, "prim") + "/" + lisimField(line, "type") == primAndType;
  return count;
}

// The forms.

TEST(PvcEditors, TakeTheBufferAndGiveItBack) {
  const NotebookStage stage;
  bridgedPvcXferBuffer = {{{0, 0xA, 0xB, 0xC, 0xD, 0xE}}, 9999, 3, 1, 155520000};
  {
    DLecPvcDLG form(app->rootWindow(), zResId(566));
    EXPECT_EQ(control(form, 240).getText(), "00:0a:0b:0c:0d:0e");
    EXPECT_EQ(control(form, 275).getText(), "9999");
    EXPECT_EQ(box(form, 288).check(), 1);
    form.clickedOkBTN(nullptr);
    EXPECT_EQ(form.completed(), 1);
  }
  EXPECT_EQ(bridgedPvcXferBuffer,
            (AtmBridgedPvc{{{0, 0xA, 0xB, 0xC, 0xD, 0xE}}, 9999, 1, 1, 155520000}))
      << "any encapsulation but none is LLC, and the rate is kept";
  pvcXferBuffer = {{{10, 0, 0, 1}}, 100, 3, 1, 25};
  {
    DIpPvcDLG form(app->rootWindow(), zResId(565));
    EXPECT_EQ(control(form, 198).getText(), "10_.0__.0__.1__");
    control(form, 198).text("300.000.000.999");
    control(form, 275).text("0");
    form.clickedOkBTN(nullptr);
  }
  EXPECT_EQ(pvcXferBuffer, (AtmRoutedPvc{{{300 % 256, 0, 0, 999 % 256}}, 0, 0, 1, 0}))
      << "only 1 is LLC here, and the rate is not";
}

TEST(PvcEditors, EndByKeysAndKeepTheBufferWhenCancelled) {
  const NotebookStage stage;
  const AtmBridgedPvc before = bridgedPvcXferBuffer = bridged(1, 100);
  for (const KeySym key : {XK_Escape, XK_Return}) {
    DLecPvcDLG form(app->rootWindow(), zResId(566));
    control(form, 275).text("7");
    x_driver::show(form);
    ASSERT_TRUE(x_driver::giveFocus(control(form, 275)));
    const AnswersBox end = inForm("PVC Settings", key);
    form.modal();
    EXPECT_EQ(form.completed(), key == XK_Return);
    EXPECT_EQ(bridgedPvcXferBuffer == before, key == XK_Escape);
  }
}

TEST(ClientForms, ExchangeTheirBuffers) {
  const NotebookStage stage;
  esiSelectorXferBuffer = client(7);
  {
    DElandlg form(app->rootWindow(), zResId(567));
    EXPECT_EQ(control(form, 169).getText(), "00:20:48:00:00:07-01");
    control(form, 169).text("00:20:48:00:00:08-ff");
    form.clickedOkBTN(nullptr);
  }
  EXPECT_EQ(esiSelectorXferBuffer, (esiSelector{{0, 0x20, 0x48, 0, 0, 8, 0xff}}));
  const std::vector<int> none, some = {2, 0};
  for (const auto& chosen : {some, none}) {
    esiXferBuffer = {client(1), client(2), client(3)};
    indexXferBuffer = {4, 5, 15};
    permXferBuffer = {true, false, false};
    DMvClientDLG form(app->rootWindow(), zResId(568));
    auto& list = *static_cast<zMultiList*>(form.get(291));
    EXPECT_EQ(list.text(2), "00:20:48:00:00:03-01 - LES 15");
    list.setSelection(chosen);
    form.clickedOkBTN(nullptr);
    EXPECT_EQ(esiXferBuffer,
              chosen.empty() ? std::vector<esiSelector>() : (std::vector{client(1), client(3)}));
    EXPECT_EQ(indexXferBuffer, chosen.empty() ? none : (std::vector{4, 15}));
    EXPECT_EQ(permXferBuffer.size(), chosen.size());
  }
}

// Circuits on the pages.

TEST(Circuits, OfTheFirstNotebookAreAskedAbout) {
  const NotebookStage stage(services);
  DConfigDlg notebook(app->rootWindow());
  ASSERT_TRUE(x_driver::show(notebook));
  DConfigDlgLECPG& page = *notebook.lecPage();
  notebook.select(notebook.findPage(571));
  bridgedPvcXferBuffer = bridged(1, 100);
  for (const KeySym answer : {XK_Escape, XK_Return}) {
    const AnswersBox form = inForm("PVC Settings", XK_Return);
    const BoxReader boxes(answer);
    page.clickedAddBTN(nullptr);
    EXPECT_EQ(boxes.boxes(), Lines{lecQuestion});
    EXPECT_EQ(xferBuffer[0].pvcs.size(), answer == XK_Return ? 1U : 0U);
  }
  page.clickedDeleteBTN(nullptr);
  EXPECT_EQ(xferBuffer[0].pvcs.size(), 1U) << "no row is active";
  auto& table = *static_cast<LECPGPvcTBL*>(page.get(171));
  EXPECT_EQ(table.model()->getCell({1, 1})->getText(), "02:00:00:00:00:01");
  EXPECT_EQ(table.model()->getCell({3, 1})->getText(), "LLC_SNAP");
  EXPECT_EQ(table.model()->getCell({4, 1})->getText(), "FALSE");
}

TEST(Circuits, GoToTheDriverAtOnceFromTheSecondNotebookOn) {
  NotebookStage stage(services);
  xferBuffer[2].Enabled = 1;
  for (unsigned char n = 1; n <= 3; ++n) xferBuffer[2].pvcs.push_back(bridged(n, 99 + n));
  ip1577XferBuffer.Enabled = 1;
  const auto notebook = stage.connected();
  ASSERT_TRUE(x_driver::show(*notebook));
  DConfigDlgLECPG& page = *notebook->lecPage();
  notebook->select(notebook->findPage(571));
  static_cast<zTabCtrl*>(page.get(175))->select(3);
  auto& table = *static_cast<LECPGPvcTBL*>(page.get(171));
  {
    lecRequest client(SetupIoctlDesc, 1, 2);
    ASSERT_EQ(client.enable(payloadOf<lecReqStruct>(AtmLEC())), 0);
    for (const AtmBridgedPvc& pvc : xferBuffer[2].pvcs)
      ASSERT_EQ(client.addPvc(payloadOf<bdgPvcReqStruct>(pvc)), 0);
  }
  bridgedPvcXferBuffer = bridged(9, 200);
  const BoxReader boxes(XK_Escape);
  {
    const AnswersBox form = inForm("PVC Settings", XK_Return);
    page.clickedAddBTN(nullptr);
  }
  EXPECT_EQ(xferBuffer[2].pvcs.size(), 4U);
  EXPECT_EQ(requestsOf(stage.driver, "17/3"), 4U);
  const std::string sent = stage.driver.trace().back();
  EXPECT_EQ(lisimField(sent, "link") + "/" + lisimField(sent, "unit"), "1/2");
  table.setActiveCell({2, 2});
  page.clickedDeleteBTN(nullptr);
  EXPECT_EQ(requestsOf(stage.driver, "17/5"), 1U);
  ASSERT_EQ(xferBuffer[2].pvcs.size(), 3U);
  EXPECT_EQ(xferBuffer[2].pvcs[1], bridged(3, 102)) << "the second row went";
  // The active cell stays in the table, so the button can be pressed again and again.
  table.setActiveCell({1, 3});
  for (int left = 2; left >= 0; --left) {
    page.clickedDeleteBTN(nullptr);
    EXPECT_EQ(xferBuffer[2].pvcs.size(), static_cast<std::size_t>(left));
  }
  page.clickedDeleteBTN(nullptr);
  EXPECT_TRUE(boxes.boxes().empty());
  // Refused by the driver: the circuit is not known there.
  xferBuffer[2].pvcs = {bridged(77, 177)};
  page.updatePvcTable();
  table.setActiveCell({1, 1});
  page.clickedDeleteBTN(nullptr);
  EXPECT_EQ(boxes.boxes().size(), 1U);
  EXPECT_EQ(xferBuffer[2].pvcs.size(), 1U);
  // A circuit is changed in the list alone.
  {
    bridgedPvcXferBuffer = {};
    const AnswersBox form = inForm("PVC Settings", XK_Return);
    page.clickedModifyBTN(nullptr);
  }
  EXPECT_EQ(xferBuffer[2].pvcs, std::vector{bridged(77, 177)});
  EXPECT_EQ(boxes.boxes().size(), 1U);
}

TEST(Circuits, OfIpGoToTheDriverAtOnceToo) {
  NotebookStage stage(services);
  ip1577XferBuffer.Enabled = 1;
  const auto notebook = stage.connected();
  ASSERT_TRUE(x_driver::show(*notebook));
  DConfigDlgI1577PG& page = *notebook->ip1577Page();
  notebook->select(notebook->findPage(574));
  ip1577Request ip(SetupIoctlDesc, 1, 0);
  ASSERT_EQ(ip.enable(payloadOf<ip1577ReqStruct>(AtmIP1577())), 0);
  const AtmRoutedPvc circuit = {{{10, 1, 2, 3}}, 321, 1, 1, 0};
  const BoxReader boxes(XK_Escape);
  // The driver takes a circuit once, and knows no circuit twice.
  for (const std::size_t questions : {0, 1}) {
    pvcXferBuffer = circuit;
    const AnswersBox form = inForm("PVC Settings", XK_Return);
    page.clickedAddBTN(nullptr);
    EXPECT_EQ(ip1577XferBuffer.pvcs, std::vector{circuit});
    EXPECT_EQ(boxes.boxes().size(), questions);
  }
  static_cast<I1577PGPvcTBL*>(page.get(171))->setActiveCell({1, 1});
  page.clickedDeleteBTN(nullptr);
  EXPECT_TRUE(ip1577XferBuffer.pvcs.empty());
  EXPECT_EQ(boxes.boxes().size(), 1U);
  EXPECT_EQ(requestsOf(stage.driver, "65/4"), 2U);
  EXPECT_EQ(requestsOf(stage.driver, "65/5"), 1U);
}

TEST(Circuits, OfAListOfManyRows) {
  const NotebookStage stage;
  for (int n = 0; n < 500; ++n) {
    const auto vci = static_cast<std::uint16_t>(32 + n);
    ip1577XferBuffer.pvcs.push_back({{{10, 0, 1, 1}}, vci, n % 2, 0, 0});
  }
  DConfigDlg notebook(app->rootWindow());
  auto& table = *static_cast<I1577PGPvcTBL*>(notebook.ip1577Page()->get(171));
  ASSERT_EQ(table.model()->getNumRows(), 500U);
  EXPECT_EQ(table.model()->getCell({2, 500})->getText(), "0 / 531");
  EXPECT_EQ(table.model()->getCell({3, 500})->getText(), "LLC_SNAP");
  EXPECT_EQ(table.model()->getCell({3, 499})->getText(), "NULL");
}

// Clients on the servers' page.

Lines linesOf(DConfigDlgLESPG& page) {
  auto& list = *static_cast<zListBoxUnsorted*>(page.get(181));
  Lines lines;
  for (int i = 0; i < list.count(); ++i) lines.push_back(list.text(i));
  return lines;
}

constexpr char addQuestion[] =
    "ELAN Client Error: Unable to Dynamically Add 00:20:48:00:00:09-01\n"
    "Do you still want to modify Static Configuration?";

TEST(Clients, AreListedAddedAndDeleted) {
  NotebookStage stage(services);
  for (const int les : {0, 3}) lesXferBuffer[les].Enabled = 1;
  lesXferBuffer[0].clients = {client(1), client(2)};
  lesXferBuffer[3].clients = {client(4)};
  const auto notebook = stage.connected();
  ASSERT_TRUE(x_driver::show(*notebook));
  auto& page = pageOf<DConfigDlgLESPG>(*notebook, 572);
  notebook->select(notebook->findPage(572));
  auto& list = *static_cast<zListBoxUnsorted*>(page.get(181));
  const Lines permanent = {"00:20:48:00:00:01-01  PERM", "00:20:48:00:00:02-01  PERM"};
  EXPECT_EQ(linesOf(page), permanent);
  // The configuration server does not run.
  for (const KeySym answer : {XK_Escape, XK_Return}) {
    const BoxReader boxes(answer);
    page.addClient(client(9), 0);
    EXPECT_EQ(boxes.boxes(), Lines{addQuestion});
    EXPECT_EQ(linesOf(page).size(), answer == XK_Return ? 3U : 2U);
  }
  lecsRequest server(SetupIoctlDesc, 1, 0);
  ASSERT_EQ(server.enable(payloadOf<lecsReqStruct>(AtmLECS())), 0);
  EXPECT_EQ(stage.driver.command("board 2 mapping 0 00:20:48:00:00:0A 1"), "ok\n");
  EXPECT_EQ(stage.driver.command("board 2 mapping 3 00:20:48:00:00:0B 1"), "ok\n");
  page.UpdateClientLB(0);
  EXPECT_EQ(linesOf(page).back(), "00:20:48:00:00:0a-01  TEMP");
  EXPECT_EQ(linesOf(page).size(), 4U);
  const BoxReader boxes(XK_Escape);
  esiSelectorXferBuffer = esiSelector();
  list.selection(1);
  {
    const AnswersBox form =
        inForm("Add ELAN Client", XK_Return);  // with what the list has selected
    page.clickedAddBTN(nullptr);
  }
  EXPECT_TRUE(boxes.boxes().empty());
  EXPECT_EQ(lesXferBuffer[0].clients.back(), client(2));
  EXPECT_EQ(lisimField(stage.driver.trace().back(), "event"), "request");
  // Deleted: one that is in the list and that the driver knows.
  list.selection(1);
  page.clickedDeleteBTN(nullptr);
  EXPECT_EQ(lesXferBuffer[0].clients, (std::vector{client(1), client(9), client(2)}))
      << "the first of two equal ones";
  EXPECT_EQ(list.selection(), 0);
  // One that is in no list and that the driver has forgotten: a notice, and nothing changes.
  lecs_req gone;
  std::memcpy(gone.esiSelector, esiSelector{{0, 0x20, 0x48, 0, 0, 0xA, 1}}.bytes, 7);
  ASSERT_EQ(server.delClient(gone), 0);
  list.selection(3);
  page.clickedDeleteBTN(nullptr);
  EXPECT_EQ(boxes.boxes(),
            Lines{"ELAN Client Error: Unable to Dynamically Delete 00:20:48:00:00:0a-01"});
  EXPECT_EQ(lesXferBuffer[0].clients.size(), 3U);
  // A server that is off lists those of the configuration alone.
  box(page, 151).check(0);
  page.UpdateClientLB(3);
  EXPECT_EQ(linesOf(page), Lines{"00:20:48:00:00:04-01  PERM"});
}

TEST(Clients, MoveFromOtherServers) {
  NotebookStage stage(services);
  lesXferBuffer[0].Enabled = 1;
  lesXferBuffer[0].clients = {client(1)};
  lesXferBuffer[3].clients = {client(4), client(5)};
  const auto notebook = stage.connected();
  ASSERT_TRUE(x_driver::show(*notebook));
  auto& page = pageOf<DConfigDlgLESPG>(*notebook, 572);
  notebook->select(notebook->findPage(572));
  lecsRequest server(SetupIoctlDesc, 1, 0);
  ASSERT_EQ(server.enable(payloadOf<lecsReqStruct>(AtmLECS())), 0);
  lecs_req known;
  std::memcpy(known.esiSelector, client(4).bytes, sizeof known.esiSelector);
  ASSERT_EQ(server.addClient(known), 0);
  ASSERT_EQ(stage.driver.command("board 2 mapping 7 00:20:48:00:00:0B 1"), "ok\n");
  ASSERT_EQ(stage.driver.command("board 2 mapping 0 00:20:48:00:00:0C 1"), "ok\n");
  const BoxReader boxes(XK_Escape);
  const LogText log;
  {
    AnswersBox form = inForm("Insert ELAN Client(s)", XK_Escape);
    page.clickedMoveBTN(nullptr);
    EXPECT_TRUE(form.answered());
  }
  EXPECT_EQ(esiXferBuffer, (std::vector{client(4), client(5), client(0xB)}));
  EXPECT_EQ(indexXferBuffer, (std::vector{3, 3, 7}));
  EXPECT_EQ(permXferBuffer, (std::vector{true, true, false}));
  EXPECT_EQ(log.startingWith("getting perm entries: LES").size(), 15U);
  EXPECT_EQ(log.startingWith("getting temp entries").size(), 1U);
  // All of them, by the keyboard. One is not known to the driver, and the answer is no: its address
  // then stands in both lists.
  Later choose(700, [] {
    for (const KeySym key : {XK_space, XK_Down, XK_space, XK_Down, XK_space, XK_Tab, XK_space})
      x_driver::key(key);
  });
  page.clickedMoveBTN(nullptr);
  EXPECT_EQ(boxes.boxes(),
            Lines{"ELAN Client Error: Unable to Dynamically Delete 00:20:48:00:00:05-01\n"
                  "Do you still want to modify Static Configuration?"});
  EXPECT_EQ(lesXferBuffer[0].clients, (std::vector{client(1), client(4), client(5), client(0xB)}));
  EXPECT_EQ(lesXferBuffer[3].clients, std::vector{client(5)});
}

}  // namespace
