// Statistics' page of the UNI signalling stack.
#pragma once

#include <array>
#include <memory>

#include "driver/queries.h"
#include "framework/table/table_model.h"
#include "stats/stats_table.h"
#include "stats/timer_page.h"

// The frames of the two signalling circuits, in the order of its rows: ILMI, signalling.
class SignallingPGSigStatsTBL : public StatsTable {
 public:
  static constexpr unsigned long columns = 3;
  static constexpr unsigned long rows = 2;

  SignallingPGSigStatsTBL(zWindow* parent, int id, zTableModel* model, short link);
  // Returns 1.
  short UpdateDisplay(short link, short unit, bool clear);

 private:
  struct Frames {
    std::uint32_t in = 0;
    std::uint32_t out = 0;
  };

  std::unique_ptr<vccInfo> vcInfo_;
  std::array<Frames, rows> baselines_{};
};

class DStatsDlgSignallingPG : public StatsPage {
 public:
  DStatsDlgSignallingPG(zNotebookDialog* notebook, zPageDef* def, short link);
  ~DStatsDlgSignallingPG() override;

  // The lamps and the texts, which know no clearing.
  void UpdateDisplay(short link, short unit);

 private:
  // A layer of the stack: its lamp, and the colour and the text of the state that was read last.
  struct Layer {
    myBitmapButton* lamp = nullptr;
    myEdit* stateField = nullptr;
    std::string stateText;
    unsigned color = 65535;  // none that a layer has
  };
  static constexpr std::size_t layers = 3;

  void createControls();
  void createTable();
  void showLayers(const sig_link_state& state);
  void showColor(std::size_t layer, unsigned color);
  void showAddress(const sig_link_state& state);
  void refresh(bool clear) override;

  std::unique_ptr<sigInfo> sigQuery_;
  std::array<Layer, layers> layers_;
  std::string prefix_;
  std::string esiSelector_;
  myEdit* prefixField_ = nullptr;
  myEdit* esiSelectorField_ = nullptr;
  zTableSmallModel tableModel_{SignallingPGSigStatsTBL::columns, SignallingPGSigStatsTBL::rows};
  SignallingPGSigStatsTBL* table_ = nullptr;
};
