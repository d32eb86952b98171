// What the pages of the Statistics notebook have in common: only the one that is seen asks the
// driver.
#pragma once

#include <memory>

#include "applet/control_page.h"
#include "applet/my_bitmap_button.h"
#include "applet/my_edit.h"
#include "applet/run_state.h"
#include "framework/core/timer.h"
#include "stats/stat_fields.h"

class TimerPage : public ControlPage {
 public:
  // Start and stop the page's polling; one that polls already goes on as it does.
  virtual void enableTimer() {}
  virtual void disableTimer() { timer_.reset(); }
  // Has the page's counters start from 0.
  virtual void ClearStats() {}

  bool isPolling() const { return timer_ != nullptr; }

 protected:
  using ControlPage::ControlPage;

  std::unique_ptr<zTimer> timer_;  // null while the page does not poll
};

// A page that shows one link. What its driver answers is taken in every `timerTime` milliseconds,
// a period that holds until the polling starts anew.
class StatsPage : public TimerPage {
 public:
  // Takes in what the driver has now. Nothing happens without a driver or without the board.
  void Update();
  void ClearStats() override;
  void enableTimer() override;

 protected:
  StatsPage(zNotebookDialog* notebook, zPageDef* def, short link,
            const zStatusMessage* tips = nullptr);

  short link() const { return link_; }
  // With `clear`, counters count from what they are now.
  virtual void refresh(bool clear) = 0;
  // The fields of a page's table.
  template <class Record>
  void makeFields(StatFields<Record>& fields) {
    fields.create([this](int id, std::string* text) { return make<myEdit>(id, text); });
  }
  // What grows with the page when the notebook is given another size.
  static constexpr unsigned stretching = zExpandSizer::stretchAcross | zExpandSizer::stretchDown;
  static void stretch(zWindow* control);
  // A disabled lamp with the picture of a bitmap resource.
  myBitmapButton* makeLamp(int id, int bitmap);

 private:
  const short link_;
};

// Whether a link can be asked about.
bool isLinkThere(short link);

// A query about a link, or null when it can't be asked about.
template <class Query>
std::unique_ptr<Query> makeQuery(short link) {
  if (!isLinkThere(link)) return nullptr;
  return std::make_unique<Query>(ioctlDesc, static_cast<unsigned short>(link), 0);
}

// A link or unit as the queries take it.
constexpr unsigned char queryByte(short number) {
  return static_cast<unsigned char>(number);
}
