// A page with a table of permanent circuits and buttons that add and delete them, in the driver at
// once and in the list that the configuration keeps.
#pragma once

#include <cstddef>
#include <vector>

#include "framework/resources/resources.h"
#include "setup/setup_page.h"

// Asks whether the list is to be changed although the driver was not; `verb` is what it was to do.
bool changesListAnyway(zWindow* page, const char* verb);

// `Editor`, on its template, is the dialog that edits the circuit in `edited()`.
template <class Pvc, class Editor, int editorTemplate>
class PvcPage : public SetupPage {
 public:
  // Fills the table from the list.
  virtual void updatePvcTable() = 0;

  int clickedAddBTN(zNotifyEvt*) {
    if (!isEdited()) return 0;
    const Pvc pvc = edited();
    if (!addsToDriver(pvc) && !changesListAnyway(this, "Add")) return 0;
    pvcs().push_back(pvc);
    updatePvcTable();
    return 0;
  }

  int clickedDeleteBTN(zNotifyEvt*) {
    const int index = chosenPvc();
    if (index < 0) return 0;
    if (!deletesFromDriver(pvcs()[at(index)]) && !changesListAnyway(this, "Delete")) return 0;
    pvcs().erase(pvcs().begin() + index);
    updatePvcTable();
    return 0;
  }

  // No driver can change a circuit, so this one changes the list alone.
  int clickedModifyBTN(zNotifyEvt*) {
    const int index = chosenPvc();
    if (index < 0) return 0;
    edited() = pvcs()[at(index)];
    if (isEdited() && (hasDriver() || changesListAnyway(this, "Modify")))
      pvcs()[at(index)] = edited();
    updatePvcTable();
    return 0;
  }

 protected:
  using SetupPage::SetupPage;

  virtual std::vector<Pvc>& pvcs() = 0;
  virtual Pvc& edited() = 0;
  virtual bool hasDriver() const = 0;
  // Whether the driver has done it.
  virtual bool addsToDriver(const Pvc& pvc) = 0;
  virtual bool deletesFromDriver(const Pvc& pvc) = 0;

  // The table's row that is active, from 1; 0 for none.
  void choosePvcRow(unsigned long row) { pvcRow_ = static_cast<short>(row); }

 private:
  static constexpr std::size_t at(int index) { return static_cast<std::size_t>(index); }

  // The circuit of the active row, or -1.
  int chosenPvc() {
    const int index = pvcRow_ - 1;
    return index < static_cast<int>(pvcs().size()) ? index : -1;
  }

  bool isEdited() {
    Editor editor(this, zResId(editorTemplate));
    editor.modal();
    return editor.completed();
  }

  short pvcRow_ = 0;
};
