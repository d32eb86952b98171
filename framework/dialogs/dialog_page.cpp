#include "framework/dialogs/dialog_page.h"

#include "framework/core/app.h"
#include "framework/core/frame_window.h"
#include "framework/dialogs/dialog_reader.h"
#include "framework/dialogs/notebook.h"

namespace {

constexpr unsigned long bitsOfAPage = 0x7F33FFFF;  // all but popup, caption and frame

zSizer* sizerOfAPage(const ziTabNoteCtrl* tabs) {
  auto* sizer = new zGravSizer(zGravAll, 0, tabs->sizer());
  const zRect area = tabs->innerArea();
  sizer->pos(area.pos());
  sizer->dimension(area.dimension());
  return sizer;
}

}  // namespace

// The definition.

zPageDef::zPageDef(const zResId& id, int pageId)
    : reader_(std::make_unique<ziDialogReader>(app->rootWindow(), id)),
      id_(pageId),
      caption_(reader_->getCaption()) {}

zPageDef::zPageDef(zDialogPage* page, int pageId) : id_(pageId) {
  setPage(page);
}

zPageDef::~zPageDef() {
  if (page_) page_->def_ = nullptr;
}

unsigned long zPageDef::getStyle() const {
  return ((reader_ ? reader_->getStyle() : 0) & bitsOfAPage) | zStyleChild;
}

void zPageDef::setPage(zDialogPage* page) {
  if (page_ != page) delete page_;
  page_ = page;
  if (!page) return;
  page->def_ = this;
  if (!reader_) {
    caption_ = page->title();
    return;
  }
  reader_->setWindow(page);
  reader_->recalc();
  reader_->decodeFonts();
  caption_ = reader_->getCaption();
  page->setFont(reader_->getFont(), 0);
}

void zPageDef::load() {
  if (reader_) reader_->createChildren();
}

// The page.

zDialogPage::zDialogPage(zNotebookDialog* notebook, zPageDef* def, unsigned long style)
    : zPaneControl(notebook->tabs(), sizerOfAPage(notebook->tabs()), style | zStyleTabStop,
                   def ? def->caption().c_str() : nullptr, def ? def->id() : zTabCtrl::noTab) {
  sizer()->layout(&layout_);
  if (def) {
    def->setPage(this);
    def->load();
  }
  show(0);
}

zDialogPage::~zDialogPage() {
  if (def_) def_->page_ = nullptr;
}

void zDialogPage::layOut(const zRect& firstArea, const zRect& area) {
  if (!laidOut_ && firstArea != area) sizer()->setArea(firstArea, 0);
  laidOut_ = true;
  sizer()->setArea(area, 0);
}

int zDialogPage::invalidData(zWindow* window) {
  if (window == this) return 0;
  if (def_) static_cast<ziTabNoteCtrl*>(parent())->select(def_);
  window->setFocus();
  return 1;
}

zWindow* zDialogPage::firstStop() const {
  for (zWindow* kid : kidslist()) {
    const bool stop = (kid->styleValue() & zStyleTabStop) != 0;
    if (stop && kid->isShown() && kid->isEnabled()) return kid;
  }
  return kidslist().empty() ? nullptr : kidslist().front();
}

Widget zDialogPage::focusWidget() const {
  const zWindow* first = firstStop();
  return first ? first->focusWidget() : zPaneControl::focusWidget();
}

int zDialogPage::focus(zFocusEvt* event) {
  zWindow* first = event->gainFocus() ? firstStop() : nullptr;
  if (first) first->setFocus();
  return 0;
}

int zDialogPage::size(zSizeEvt*) {
  for (zWindow* kid : kidslist()) kid->setDirty(nullptr, 1);
  return 0;
}

int zDialogPage::command(zCommandEvt* event) {
  return doCommandHandler(event, parent());
}

void zDialogPage::ziHandleTabs(int on) {
  for (zWindow* kid : kidslist()) {
    if (on) {
      kid->setHandler(this, &zDialogPage::ziKeyDown, zMsgKeyDown);
    } else {
      kid->removeHandler(this, &zDialogPage::ziKeyDown, zMsgKeyDown);
    }
  }
}

int zDialogPage::ziKeyDown(zKeyEvt*) {
  return 0;
}
