// Which controls can be used, by what the boxes of a page say.
#include "tests/setup/notebook_stage.h"

#include <set>

#include "setup/ip1577_page.h"
#include "setup/lec_page.h"
#include "setup/lecs_page.h"
#include "setup/les_page.h"
#include "setup/physical_page.h"
#include "setup/signal_page.h"

namespace {

using Ids = std::set<int>;

Ids dimOnes(const zWindow& page) {
  Ids dim;
  for (const zWindow* kid : page.kidslist()) {
    if (kid->ctrlId() > 0 && !kid->isEnabled()) dim.insert(kid->ctrlId());
  }
  return dim;
}

struct Rule {
  int page;
  Ids boxes;  // of the page's boxes, those that are checked
  Ids clear;  // and those that are not
  Ids dim;
};

const Ids lecOff = {152, 154, 159, 158, 161, 160, 163, 162, 147, 148, 168, 169,
                    164, 165, 155, 156, 157, 167, 166, 170, 172, 173, 174};
const Ids lecPvcOnly = {167, 166, 159, 158, 161, 160, 163, 162, 147, 148, 168, 169, 154, 173};
const Ids ipOff = {152, 147, 168, 148, 169, 196, 172, 173, 174,
                   170, 171, 197, 198, 193, 194, 191, 192};
const Ids ipPvcOnly = {196, 147, 148, 168, 169, 197, 198, 173};
const Ids ipServer = {147, 148, 168, 169, 197, 198, 173};

const Rule rules[] = {
    {570,
     {},
     {135, 145, 146},
     {148, 147, 149, 150, 137, 136, 138, 139, 120, 140, 141, 142, 143, 146, 145, 144}},
    {570,
     {145, 146},
     {135},
     {148, 147, 149, 150, 137, 136, 138, 139, 120, 140, 141, 142, 143, 146, 145, 144}},
    {570, {135}, {145, 146}, {149, 150}},
    {570, {135, 145}, {146}, {137, 149, 150}},
    {570, {135, 146}, {145}, {147, 148}},
    {570, {135, 145, 146}, {}, {137, 147, 148}},
    {571, {}, {151, 152}, lecOff},
    {571, {152}, {151}, lecOff},
    {571, {151}, {152}, {173}},
    {571, {151, 152}, {}, lecPvcOnly},
    {572, {}, {151}, {162, 179, 158, 159, 178, 163, 176, 177, 172, 182, 174, 181}},
    {572, {151}, {}, {}},
    {573, {}, {151}, {147, 148, 168, 169, 184, 188, 185, 186, 187, 176, 177}},
    {573, {151}, {}, {}},
    {574, {}, {151, 152, 196}, ipOff},
    {574, {152, 196}, {151}, ipOff},
    {574, {151}, {152, 196}, {173}},
    {574, {151, 196}, {152}, ipServer},
    {574, {151, 152}, {196}, ipPvcOnly},
    {574, {151, 152, 196}, {}, ipPvcOnly},
};

void toggle(DConfigDlg& notebook, int page) {
  switch (page) {
    case 570:
      return pageOf<DConfigDlgSignalPG>(notebook, page).ToggleControls();
    case 571:
      return pageOf<DConfigDlgLECPG>(notebook, page).ToggleControls();
    case 572:
      return pageOf<DConfigDlgLESPG>(notebook, page).ToggleControls();
    case 573:
      return pageOf<DConfigDlgLECSPG>(notebook, page).ToggleControls();
    default:
      return pageOf<DConfigDlgI1577PG>(notebook, page).ToggleControls();
  }
}

TEST(EnableRules, FollowTheBoxes) {
  const NotebookStage stage;
  DConfigDlg notebook(app->rootWindow());
  for (const int round : {1, 2}) {  // from whatever the rule before left
    for (const Rule& rule : rules) {
      const zWindow& page = *notebook.findPage(rule.page)->page();
      for (const int id : rule.boxes) box(page, id).check(1);
      for (const int id : rule.clear) box(page, id).check(0);
      toggle(notebook, rule.page);
      EXPECT_EQ(dimOnes(page), rule.dim)
          << rule.page << ", rule " << &rule - rules << ", round " << round;
    }
  }
}

// What a record says, from the construction on.
TEST(EnableRules, HoldWhenThePagesOpen) {
  const NotebookStage stage;
  sigXferBuffer.Enabled = sigXferBuffer.IlmiEnableAutoConfig = 1;
  sigXferBuffer.AddressRegistration = 1;
  xferBuffer[0].Enabled = xferBuffer[0].Config = 1;
  lesXferBuffer[0].Enabled = 1;
  lecsXferBuffer.Enabled = 0;
  ip1577XferBuffer.Enabled = ip1577XferBuffer.EnableServer = 1;
  ip1577XferBuffer.ServerIPAddress = "010.000.000.009";
  DConfigDlg notebook(app->rootWindow());
  const auto dim = [&](int page) { return dimOnes(*notebook.findPage(page)->page()); };
  EXPECT_EQ(dim(569), Ids());
  EXPECT_EQ(dim(570), (Ids{137, 147, 148}));
  EXPECT_EQ(dim(571), lecPvcOnly);
  EXPECT_EQ(dim(572), Ids());
  EXPECT_EQ(dim(573).size(), 11U);
  EXPECT_EQ(dim(574), ipServer);
  EXPECT_EQ(control(*notebook.findPage(574)->page(), 198).getText(), "010.000.000.009")
      << "nothing is copied at the opening";
}

TEST(EnableRules, OfTheBoardType) {
  const Ids primaryOnly = {116, 117, 118, 119, 120, 124, 125, 126};
  for (const int primary : {0, 1}) {
    const NotebookStage stage;
    phyXferBuffer.RLPrimary = primary;
    DConfigDlg notebook(app->rootWindow());
    auto& page = pageOf<DConfigDlgPhysicalPG>(notebook, 569);
    EXPECT_EQ(dimOnes(page), primary ? Ids() : primaryOnly);
    EXPECT_EQ(notebook.tabs()->pages().size(), primary ? 6U : 1U);
    for (const int type : {1, 0, 1}) {
      choice(page, 123).selection(type);
      page.selChangeBoardTypeCBO(nullptr);
      EXPECT_EQ(dimOnes(page), type ? Ids() : primaryOnly);
    }
  }
}

}  // namespace
