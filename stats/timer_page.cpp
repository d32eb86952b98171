#include "stats/timer_page.h"

#include "framework/drawing/bitmap.h"
#include "framework/resources/resources.h"

bool isLinkThere(short link) {
  return DaiOpenSuccess && link >= 0 && link < maxAdapters && BoardIsThere[link];
}

StatsPage::StatsPage(zNotebookDialog* notebook, zPageDef* def, short link,
                     const zStatusMessage* tips)
    : TimerPage(notebook, def, tips), link_(link) {}

void StatsPage::Update() {
  if (isLinkThere(link_)) refresh(false);
}

void StatsPage::ClearStats() {
  if (isLinkThere(link_)) refresh(true);
}

void StatsPage::enableTimer() {
  if (!timer_) timer_ = std::make_unique<zTimer>(this, &StatsPage::Update, timerTime);
}

myBitmapButton* StatsPage::makeLamp(int id, int bitmap) {
  auto* lamp = make<myBitmapButton>(id, std::make_unique<zBitmap>(zResId(bitmap)));
  lamp->setLamp(Lamp::disabled);
  return lamp;
}

void StatsPage::stretch(zWindow* control) {
  auto* sizer = new zExpandSizer(stretching, nullptr);
  sizer->limits(control->sizer()->dimension(), {zExpandSizer::noLimit, zExpandSizer::noLimit});
  control->sizer()->replace(sizer);
}
