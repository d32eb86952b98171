#include "framework/controls/radio_button.h"

zRadioButton::zRadioButton(zWindow* parent, zSizer* sizer, unsigned long style, const char* title,
                           int id)
    : zButton(parent, sizer, (style & ~typeMask) | radioAuto | zStyleTabStop, title, id) {
  ziSetType(zTypeRadioButton);
  zButton::create();
}

// Nothing in the binding's style is about radio buttons.
zRadioController::zRadioController(zWindow* parent, int firstId, int lastId, int* store,
                                   unsigned long)
    : parent_(parent), parentWatch_(parent), firstId_(firstId), lastId_(lastId), store_(store) {
  for (zButton* button : buttons()) {
    button->setNotifyClicked(this, &zRadioController::processClicks);
  }
}

zRadioController::~zRadioController() {
  for (zButton* button : buttons()) {
    button->removeNotifyClicked(this, &zRadioController::processClicks);
  }
}

std::vector<zButton*> zRadioController::buttons() const {
  std::vector<zButton*> found;
  if (!parent_ || parentWatch_.gone()) return found;
  for (zWindow* kid : parent_->kidslist()) {
    if (!kid->isA(zTypeButton) || kid->ctrlId() < firstId_ || kid->ctrlId() > lastId_) continue;
    found.push_back(static_cast<zButton*>(kid));
  }
  return found;
}

void zRadioController::toggle(int id, bool on) const {
  for (zButton* button : buttons()) {
    if (button->ctrlId() == id) button->toggle(on);
  }
}

void zRadioController::makeCurrent(int id) {
  const int before = current_ ? current_ : firstId_;
  if (before != id) toggle(before, false);
  current_ = id;
  toggle(id, true);
}

// The client may close the dialog, and this device with it.
int zRadioController::processClicks(zNotifyEvt* event) {
  const int id = event->cmd();
  int* const store = store_;
  makeCurrent(id);
  const zWindowWatch dialog(parent_);
  if (client_) client_(event);
  if (dialog.gone()) return 1;
  if (store) *store = id;
  return 0;
}

void zRadioController::setToDefault() {
  if (store_ && *store_ >= firstId_ && *store_ <= lastId_) makeCurrent(*store_);
}

int zRadioController::storeData() {
  if (store_ && current_) *store_ = current_;
  return 1;
}
