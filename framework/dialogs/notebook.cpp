#include "framework/dialogs/notebook.h"

#include <algorithm>
#include <utility>

#include "framework/controls/button.h"
#include "framework/core/app.h"
#include "framework/dialogs/dialog_reader.h"
#include "framework/layout/dialog_unit.h"

namespace {

// Dialog units of the measuring font.
constexpr int buttonWidth = 40;
constexpr int buttonHeight = 12;
constexpr int roomForButtons = 17;
// Pixels.
constexpr int roomForTabs = 60;
constexpr int roomBesidePages = 20;
constexpr zTabCtrl::Margins pageMargins{10, 25, 10, 10};

const zPrPoint smallPoints(0, 80);

zDialogUnit measured(int x, int y) {
  return {x, y, static_cast<zDisplay*>(nullptr)};
}

bool keyIsBeingHandled() {
  const XEvent* last = XtLastEventProcessed(app->display());
  return last && last->type == KeyPress;
}

}  // namespace

// Tabs and pages.

ziTabNoteCtrl::ziTabNoteCtrl(zNotebookDialog* notebook, zSizer* sizer, unsigned long style)
    : zTabCtrl(notebook, sizer, style, nullptr, controlId), notebook_(notebook) {
  this->sizer()->layout(&layout_);
  margins(pageMargins);
}

// The pages look at their definitions when they go.
ziTabNoteCtrl::~ziTabNoteCtrl() {
  deleteKids();
}

zPageDef* ziTabNoteCtrl::add(zPageDef* def) {
  defs_.emplace_back(def);
  def->tab_ = add(def->id(), def->caption());
  if (def == firstPage() && notebook_->isShown()) select(def);
  return def;
}

void ziTabNoteCtrl::remove(zPageDef* def) {
  const auto here =
      std::find_if(defs_.begin(), defs_.end(), [def](const auto& one) { return one.get() == def; });
  if (here == defs_.end()) return;
  zWindowWatch watch(this);
  const std::unique_ptr<zPageDef> removed = std::move(*here);
  const auto behind = defs_.erase(here);
  if (current_ == def) {
    current_ = nullptr;
    if (!defs_.empty()) select(behind == defs_.end() ? defs_.back().get() : behind->get());
  }
  if (watch.gone()) return;
  zTabCtrl::remove(def->tab_);
  delete def->page_;
}

zPageDef* ziTabNoteCtrl::findPage(int pageId) const {
  for (const auto& def : defs_) {
    if (def->id() == pageId) return def.get();
  }
  return nullptr;
}

zPageDef* ziTabNoteCtrl::defOf(const zTab* tab) const {
  for (const auto& def : defs_) {
    if (def->tab_ == tab) return def.get();
  }
  return nullptr;
}

zDialogPage* ziTabNoteCtrl::createPage(zPageDef*) {
  return nullptr;
}

void ziTabNoteCtrl::makePage(zPageDef* def) {
  zDialogPage* made = notebook_->createPage(def);
  if (!made) made = createPage(def);
  if (!made) made = new zDialogPage(notebook_, def);
  if (def->page() != made) def->setPage(made);
}

// The new page comes up before the old one goes, so that what is behind them is not painted.
void ziTabNoteCtrl::select(zPageDef* def) {
  if (!def) return;
  zPageDef* before = std::exchange(current_, def);
  if (!def->page()) makePage(def);
  def->page()->show(1);
  layOutSelected();
  if (before && before != def && before->page()) before->page()->show(0);
  notebook_->ziWasSelected(def);
  zTabCtrl::select(def->tab_);
}

void ziTabNoteCtrl::onPageChange(int, int) {
  select(defOf(selectedTab()));
}

void ziTabNoteCtrl::layOutSelected() {
  if (firstArea_.isEmpty()) firstArea_ = innerArea();
  if (current_ && current_->page()) current_->page()->layOut(firstArea_, innerArea());
}

void ziTabNoteCtrl::Pages::allocate(const zRect&, unsigned, const zSizerDlist&) {
  owner_->layOutSelected();
}

int ziTabNoteCtrl::checkData() {
  for (const auto& def : defs_) {
    if (def->page() && def->page()->isEnabled() && !def->page()->checkData()) return 0;
  }
  return 1;
}

int ziTabNoteCtrl::storeData() {
  if (!checkData()) return 0;
  for (const auto& def : defs_) {
    if (def->page() && def->page()->isEnabled()) def->page()->storeData();
  }
  return 1;
}

// By the keyboard the tabs are a stop of their own, where the arrow keys turn the pages. Whatever
// else brings the focus here means the page.
int ziTabNoteCtrl::focus(zFocusEvt* event) {
  zTabCtrl::focus(event);
  const bool passOn = event->gainFocus() && !keyIsBeingHandled();
  if (passOn && current_ && current_->page()) current_->page()->setFocus();
  return 0;
}

int ziTabNoteCtrl::command(zCommandEvt* event) {
  return doCommandHandler(event, parent());
}

// The notebook.

zNotebookDialog::zNotebookDialog(zWindow* parent, zPageDef* sizingPage, unsigned long style,
                                 const char* title)
    : zDialogFrame(parent, nullptr, style, title, 1),
      smallFont_(std::make_shared<zFont>("Helv", smallPoints)) {
  const std::unique_ptr<zPageDef> sizing(sizingPage);
  if (isRoot()) zFrameWin::create();
  if (sizing) takeSize(*sizing);
  zNotebookDialog::create();
}

void zNotebookDialog::takeSize(const zPageDef& sizingPage) {
  ziDialogReader* reader = sizingPage.reader();
  if (!reader || !reader->isValid()) return;
  reader->decodeFonts();
  zRect place = reader->rect();
  if (parent()) {
    zRect over;
    parent()->getExterior(over);
    place = place.moved(over.left, over.top);
  }
  place.right += roomBesidePages;
  place.bottom += measured(0, roomForButtons).y() + roomForTabs;
  sizer()->pos(place.pos());
  sizer()->dimension(place.dimension());
}

int zNotebookDialog::create() {
  zDialogFrame::create();
  ziSetup();
  return 1;
}

// The sizers stand in the order in which they take their strips; the windows in the order in which
// Tab visits them.
void zNotebookDialog::ziSetup() {
  const zDialogUnit du = measured(buttonWidth, buttonHeight);
  const int gap = du.x() / 5;
  new zGravSizer(zGravBottom, du.y() / 3, sizer());
  auto* bar = new zGravSizer(zGravBottom, du.y(), sizer());
  new zGravSizer(zGravBottom, du.y() / 3, sizer());
  new zGravSizer(zGravLeft, gap, bar);
  const auto place = [&] {
    new zGravSizer(zGravRight, gap, bar);
    return new zGravSizer(zGravRight, du.x(), bar);
  };
  zSizer* helpPlace = styleValue() & helpButton ? place() : nullptr;
  zSizer* applyPlace = styleValue() & noApplyButton ? nullptr : place();
  zSizer* cancelPlace = place();
  zSizer* okPlace = place();

  tabs_ =
      new ziTabNoteCtrl(this, new zGravSizer(zGravAll, 0, sizer()), styleValue() & trapezoidTabs);
  tabs_->show(1);
  ok_ = makeButton(okPlace, "Ok", okId, &zNotebookDialog::ziOnOk);
  cancel_ = makeButton(cancelPlace, "Cancel", cancelId, &zNotebookDialog::ziOnCancel);
  if (applyPlace) {
    apply_ = makeButton(applyPlace, "Apply", applyOrHelpId, &zNotebookDialog::ziOnApply);
    apply_->disable();
  }
  if (helpPlace) help_ = makeButton(helpPlace, "Help", applyOrHelpId, &zNotebookDialog::ziOnHelp);
  sizer()->update(nullptr);
}

zPushButton* zNotebookDialog::makeButton(zSizer* place, const char* label, int id,
                                         int (zNotebookDialog::*pressed)(zEvent*)) {
  auto* button = new zPushButton(this, place, zStyleTabStop, label, id);
  button->setFont(smallFont_, 0);
  button->create();
  button->show(1);
  button->setCommand(this, pressed);
  return button;
}

void zNotebookDialog::setFont(std::shared_ptr<zFont> font, int redraw) {
  zDialogFrame::setFont(std::move(font), redraw);
  for (zPushButton* button : {ok_, cancel_, apply_, help_}) {
    if (button) button->setFont(smallFont_, redraw);
  }
}

void zNotebookDialog::setAllowApply(int on) {
  if (selected()) selected()->allowApply(on);
  if (!apply_) return;
  if (on) {
    apply_->enable();
  } else {
    apply_->disable();
  }
}

// Tab visits what it stops at in the order in which Motif was told of it, and the pages come after
// the buttons.
void zNotebookDialog::buttonsLast() {
  for (const zPushButton* button : {ok_, cancel_, apply_, help_}) {
    if (!button) continue;
    for (const bool stop : {false, true}) {
      XtVaSetValues(button->getWidget(), XmNnavigationType, ziNavigation(stop), nullptr);
    }
  }
}

void zNotebookDialog::ziWasSelected(const zPageDef* def) {
  buttonsLast();
  if (!apply_ || apply_->isEnabled() == def->allowApply()) return;
  setAllowApply(def->allowApply());
}

void zNotebookDialog::changeButtonLabels(const char* ok, const char* cancel, const char* apply,
                                         const char* help) {
  const struct {
    zPushButton* button;
    const char* label;
  } changes[] = {{ok_, ok}, {cancel_, cancel}, {apply_, apply}, {help_, help}};
  for (const auto& change : changes) {
    if (change.button && change.label) change.button->text(change.label);
  }
}

int zNotebookDialog::show(int visible) {
  zWindowWatch watch(this);
  if (!isShown()) select(tabs_->firstPage());
  if (watch.gone()) return 0;
  const int shown = zDialogFrame::show(visible);
  sizer()->update(nullptr);
  return shown;
}

Widget zNotebookDialog::focusWidget() const {
  const zPageDef* def = selected();
  return def && def->page() ? def->page()->focusWidget() : zDialogFrame::focusWidget();
}

// The buttons.

zDialogPage* zNotebookDialog::createPage(zPageDef*) {
  return nullptr;
}
int zNotebookDialog::onCancel(zEvent*) {
  return 0;
}
int zNotebookDialog::onHelp(zEvent*) {
  return 0;
}
int zNotebookDialog::onApply(zEvent*) {
  return 0;
}
int zNotebookDialog::onOk(zEvent*) {
  return 0;
}

int zNotebookDialog::ziOnOk(zEvent* event) {
  zWindowWatch watch(this);
  if (onOk(event) || watch.gone()) return 1;
  if (tabs_->storeData() && !watch.gone()) shutdown();
  return 1;
}

int zNotebookDialog::ziOnCancel(zEvent* event) {
  zWindowWatch watch(this);
  if (!onCancel(event) && !watch.gone()) shutdown();
  return 1;
}

// Apply and Help have one number, so the window tells which one was pressed.
int zNotebookDialog::ziOnApply(zEvent* event) {
  if (event->window != apply_) return 0;
  onApply(event);
  return 1;
}

int zNotebookDialog::ziOnHelp(zEvent* event) {
  if (event->window != help_) return 0;
  onHelp(event);
  return 1;
}
