// A driver that serves the records a test has set, and a Statistics notebook on it without a main
// dialog.
#pragma once

#include <gtest/gtest.h>  // first: X has macros with names that it uses

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "applet/my_bitmap_button.h"
#include "applet/run_state.h"
#include "atm/devices.h"
#include "driver/query_table.h"
#include "driver/session.h"
#include "foundation/odlog.h"
#include "framework/core/app.h"
#include "framework/table/table.h"
#include "stats/stats_dialog.h"
#include "stats/timer_page.h"
#include "tests/support/scratch_directory.h"
#include "tests/support/scripted_driver.h"
#include "tests/support/x_driver.h"

// Answers queries of any link. What it has no record for is refused.
class ServedDriver {
 public:
  static constexpr std::uint16_t refusal = 7;

  ServedDriver() : driver_("li", [this](auto&, const WireMessage& request) { answer(request); }) {}

  template <class Record>
  void serve(Query query, const Record& record, int unit = 0) {
    serveRows(query, std::vector<Record>{record}, unit);
  }
  template <class Row>
  void serveRows(Query query, const std::vector<Row>& rows, int unit = 0) {
    const auto* start = reinterpret_cast<const std::uint8_t*>(rows.data());
    const std::lock_guard lock(mutex_);
    served_[{query, unit}] = {start, start + rows.size() * sizeof(Row)};
  }
  void refuse(Query query, int unit = 0) {
    const std::lock_guard lock(mutex_);
    served_.erase({query, unit});
  }
  // The queries since the last call, "LINK/UNIT NAME" by the name in the log, "#" for a count of
  // rows; joined by ", ".
  std::string asked() {
    const std::lock_guard lock(mutex_);
    return std::exchange(asked_, {});
  }

 private:
  static const QueryForm* formOf(const req_param_t& head) {
    for (const QueryForm& form : queryForms) {
      if (form.prim == head.Prim && (form.type == head.Type || form.countType == head.Type))
        return &form;
    }
    return nullptr;
  }

  void answer(WireMessage request) {
    req_param_t head;
    std::memcpy(&head, request.body.data(), sizeof head);
    if (const QueryForm* form = formOf(head)) {
      const std::lock_guard lock(mutex_);
      note(head, *form);
      const auto known = served_.find({form->query, head.Unit});
      head.Resp = known == served_.end() ? refusal : 0;
      if (known != served_.end()) fill(head, *form, known->second, request.body);
    }
    std::memcpy(request.body.data(), &head, sizeof head);
    driver_.reply(request);
  }

  void note(const req_param_t& head, const QueryForm& form) {
    if (!asked_.empty()) asked_ += ", ";
    asked_ += std::to_string(head.Link) + "/" + std::to_string(head.Unit) + " " + form.logLine;
    if (head.Type == form.countType) asked_ += "#";
  }

  static void fill(req_param_t& head, const QueryForm& form, const std::vector<std::uint8_t>& bytes,
                   std::vector<std::uint8_t>& body) {
    const auto rows = static_cast<std::uint16_t>(bytes.size() / form.replyBytes);
    if (form.countType == 0) {
      const std::size_t start = head.Prim == primSigQuery ? signallingDataOffset : plainDataOffset;
      std::copy(bytes.begin(), bytes.end(), body.begin() + static_cast<long>(start));
    } else if (head.Type == form.countType) {
      head.NRow = rows;
    } else {
      const int first = head.RowM - 1;
      head.NRow = static_cast<std::uint16_t>(std::clamp<int>(rows - first, 0, head.NRow));
      std::copy_n(bytes.begin() + first * form.replyBytes, head.NRow * form.replyBytes,
                  body.begin() + plainDataOffset);
      head.RowM = static_cast<std::uint16_t>(head.RowM + head.NRow);
    }
  }

  std::mutex mutex_;
  std::map<std::pair<Query, int>, std::vector<std::uint8_t>> served_;
  std::string asked_;
  ScriptedDriver driver_;
};

// Adapters 0 to 2 with their boards, of which adapter 1 is selected.
class StatsStage : public testing::Test {
 protected:
  StatsStage() {
    atmDevices = AtmDevices();
    for (const int adapter : {0, 1, 2}) BoardIsThere[adapter] = 1;
    currentAdapter = 1;
    advSettings = 1;
    timerTime = 1000;
    dlgTitle = "Adapter 1 - 02:4c:49:00:00:00";
    DaiOpenSuccess = dai_open(0, 0, &ioctlDesc) == 0;
  }
  ~StatsStage() override {
    notebook_.reset();
    if (DaiOpenSuccess) dai_close(0, ioctlDesc);
    DaiOpenSuccess = 0;
    std::fill(std::begin(BoardIsThere), std::end(BoardIsThere), std::uint8_t{0});
  }

  DStatsDlg& open(unsigned short adapter = 1) {
    notebook_ = std::make_unique<DStatsDlg>(app->rootWindow(), adapter);
    return *notebook_;
  }
  // The page of a template, brought up and without its timer: a test ticks it with Update().
  StatsPage& page(int id) {
    if (!notebook_) open();
    notebook_->select(notebook_->findPage(id));
    auto& page = *static_cast<StatsPage*>(notebook_->findPage(id)->page());
    page.disableTimer();
    driver.asked();
    return page;
  }

  // What fields show, joined by "|".
  static std::string fields(const zWindow& page, const std::vector<int>& ids) {
    std::string texts;
    for (const int id : ids) texts += static_cast<zControl*>(page.get(id))->getText() + "|";
    return texts.substr(0, texts.size() - 1);
  }
  static Lamp lamp(const zWindow& page, int id) {
    return static_cast<myBitmapButton*>(page.get(id))->lamp();
  }
  // The rows of a table, each as "cell|cell|...;".
  static std::string cells(const zWindow& page, int id) {
    const zTableModel& model = *static_cast<zTable*>(page.get(id))->model();
    std::string texts;
    for (unsigned long y = 1; y <= model.getNumRows(); ++y) {
      for (unsigned long x = 1; x <= model.getNumCols(); ++x) {
        const zTableCell* cell = model.getCell({x, y});
        texts += (cell ? cell->getText() : "") + (x < model.getNumCols() ? "|" : ";");
      }
    }
    return texts;
  }

  const ScratchDirectory scratch;
  ServedDriver driver;
  std::unique_ptr<DStatsDlg> notebook_;
};

// An ATM address whose bytes count up from `first`, and how its parts read.
template <std::size_t size>
void fillAddress(std::uint8_t (&address)[size], int first) {
  for (std::uint8_t& byte : address) byte = static_cast<std::uint8_t>(first++);
}
