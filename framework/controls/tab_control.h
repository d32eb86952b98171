// A row of tabs over a framed area, for the pages of a notebook or for whatever the owner shows
// there. One tab is selected, by mouse, arrow keys or program; another one's selection is told to
// the virtuals and to the parent.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <vector>

#include "framework/controls/pane_controls.h"
#include "framework/controls/visual.h"

class zTabCtrl;

// One tab; its place is within the control.
class zTab : public ziVisual {
 public:
  zTab(zTabCtrl* owner, int index, const std::string& text);

  zTabCtrl* owner() const { return owner_; }
  int index() const { return index_; }
  const std::string& text() const { return text_; }
  bool isSelected() const { return selected_; }
  // Gives the control the focus.
  void setFocus();
  void draw(zDisplay& display) const override;

 private:
  friend class zTabCtrl;
  zRect drawnArea() const;
  void drawEdges(zDisplay& display, const zRect& edge) const;

  zTabCtrl* owner_;
  int index_;
  std::string text_;
  bool selected_ = false;
};

using zTabDList = std::list<std::unique_ptr<zTab>>;

class zTabCtrl : public zPaneControl {
 public:
  static constexpr int noTab = -1;  // the index that stands for none
  static constexpr unsigned long trapezoidal = 0x4;

  // What the control keeps around its inner area, in pixels; the tabs stand in the top one.
  struct Margins {
    int left = 10;
    int top = 25;
    int right = 10;
    int bottom = 10;
  };

  zTabCtrl(zWindow* parent, zSizer* sizer, unsigned long style, const char* title, int id);
  // Takes the place of the generic control that a dialog template made under `id`; `store`, which
  // may be null, is bound to the index of the selected tab.
  zTabCtrl(zWindow* parent, int id, int* store = nullptr);

  // A new last tab, which the control owns.
  zTab* add(int index, const std::string& text);
  // Removes and deletes the tab; when it was selected, no tab is.
  void remove(zTab* tab);
  zTab* find(int index) const;  // the first with this index, or null
  const zTabDList& tabList() const { return tabs_; }

  // Selects the tab unless onAllowPageChange refuses. When it was not the selected one before,
  // onPageChange and the notification zNtfSelChange follow. Null and an unknown index do nothing.
  void select(zTab* tab);
  void select(int index) { select(find(index)); }
  zTab* selectedTab() const { return selected_; }
  int selectedIndex() const { return selected_ ? selected_->index() : noTab; }

  template <class T, class M>
  void setNotifySelChange(T* object, M member) {
    setupNotify(object, member, zNtfSelChange);
  }
  template <class T, class M>
  void removeNotifySelChange(T* object, M member) {
    removeNotify(object, member, zNtfSelChange);
  }

  // Called with noTab as the old index when none was selected.
  virtual void onPageChange(int newIndex, int oldIndex);
  virtual int onAllowPageChange(int newIndex, int oldIndex);

  bool isTrapezoidal() const { return (styleValue() & trapezoidal) != 0; }
  void margins(const Margins& margins);
  // The area inside the margins.
  zRect innerArea() const;
  // Whether the focus mark is shown on the selected tab.
  bool showsFocus() const { return hasFocus_; }

  // Left, Right, Up, Down, Home and End select another tab. Non-zero for one of these.
  virtual int doKeyboard(KeySym key);

  void setToDefault() override;
  int storeData() override;
  void draw(zDrawEvt* event) override;
  void vmove(int x, int y, int width, int height) override;
  void setFont(std::shared_ptr<zFont> font, int redraw) override;
  int focus(zFocusEvt* event) override;
  int mouseButtonDown(zMouseClickEvt* event) override;

 protected:
  Layer layer() const override { return Layer::tabs; }

 private:
  int keyDown(zKeyEvt* event);
  void arrange();
  // The frame around the inner area; the tabs stand on its upper edge.
  zRect body() const;
  void redraw(const zTab* tab);
  // The tab before (-1) or behind (1) the selected one, or null at the ends.
  zTab* neighbour(int step) const;

  zTabDList tabs_;
  zTab* selected_ = nullptr;
  zRect tabArea_;
  Margins margins_;
  int* store_ = nullptr;
  bool hasFocus_ = false;
};

// Widths for tabs that want these, together at most `room`: the widest give way first.
std::vector<int> ziShareOut(const std::vector<int>& wanted, int room);
