// Notebook dialogs: pages behind tabs, over a bar of Ok, Cancel, Apply and Help buttons.
//
// Life of a notebook: constructed with a page definition that gives the size alone; for each page
// `add(new zPageDef(...))` and, unless createPage is to make it later, `new ThePage(notebook,
// def)`; show(1), modal(0), delete. The notebook owns the definitions, the window tree the pages.
// Only the selected page is mapped. Pages may be left with invalid contents: they are checked at
// Ok.
#pragma once

#include "framework/controls/tab_control.h"
#include "framework/dialogs/dialog_frame.h"
#include "framework/dialogs/dialog_page.h"

class zPushButton;

// The notebook's tabs and the pages behind them.
class ziTabNoteCtrl : public zTabCtrl {
 public:
  static constexpr int controlId = 0xFFFE;  // beyond the ids of the controls on pages

  ziTabNoteCtrl(zNotebookDialog* notebook, zSizer* sizer, unsigned long style);
  ~ziTabNoteCtrl() override;

  using zTabCtrl::add;
  using zTabCtrl::remove;
  using zTabCtrl::select;

  // Appends a page, owned from here on, and its tab. The first one is selected at once when the
  // notebook is on the screen already. Returns `def`.
  zPageDef* add(zPageDef* def);
  // Deletes the definition and its page. When it was selected, its neighbour is from then on.
  void remove(zPageDef* def);
  // Brings the page up, making it when there is none yet. Null does nothing.
  void select(zPageDef* def);
  zPageDef* selectedPage() const { return current_; }
  zPageDef* firstPage() const { return defs_.empty() ? nullptr : defs_.front().get(); }
  zPageDef* findPage(int pageId) const;  // the first with this id, or null
  const zPageDefDList& pages() const { return defs_; }

  // Makes the page of `def` in a way of its own, or returns null.
  virtual zDialogPage* createPage(zPageDef* def);

  // Of all pages that exist and are enabled: nothing is stored unless all of it is valid.
  int checkData() override;
  int storeData() override;

  void onPageChange(int newIndex, int oldIndex) override;
  int focus(zFocusEvt* event) override;
  // Passes the command on to the notebook.
  int command(zCommandEvt* event) override;

 private:
  // Gives the selected page the inner area; the others are laid out when their turn comes.
  class Pages : public zNormalLayout {
   public:
    explicit Pages(ziTabNoteCtrl* owner) : owner_(owner) {}
    void allocate(const zRect& rect, unsigned flags, const zSizerDlist& children) override;

   private:
    ziTabNoteCtrl* owner_;
  };

  void layOutSelected();
  void makePage(zPageDef* def);
  zPageDef* defOf(const zTab* tab) const;

  zNotebookDialog* notebook_;
  zPageDefDList defs_;
  zPageDef* current_ = nullptr;
  zRect firstArea_;
  Pages layout_{this};
};

class zNotebookDialog : public zDialogFrame {
 public:
  static constexpr int okId = 1;
  static constexpr int cancelId = 2;
  static constexpr int applyOrHelpId = 5;

  // Bits of the constructor's style; the others are those of a window.
  enum StyleBits : unsigned long { helpButton = 0x1, noApplyButton = 0x2, trapezoidTabs = 0x4 };

  // `sizingPage` gives the size of the pages and is deleted here; with null a small size is taken.
  zNotebookDialog(zWindow* parent, zPageDef* sizingPage, unsigned long style, const char* title);

  ziTabNoteCtrl* tabs() const { return tabs_; }

  // As the tab control's. The definition is owned from here on, and returned.
  zPageDef* add(zPageDef* def) { return tabs_->add(def); }
  void remove(zPageDef* def) { tabs_->remove(def); }
  void select(zPageDef* def) { tabs_->select(def); }
  zPageDef* selected() const { return tabs_->selectedPage(); }
  zPageDef* findPage(int pageId) const { return tabs_->findPage(pageId); }

  // Whether Apply can be pressed while the selected page is shown.
  void setAllowApply(int on);
  // Null leaves a label as it is.
  void changeButtonLabels(const char* ok, const char* cancel, const char* apply, const char* help);

  int create() override;
  // Selects the first page, too.
  int show(int visible) override;
  // The buttons keep their small font.
  void setFont(std::shared_ptr<zFont> font, int redraw) override;
  // The focus of the dialog is that of the selected page.
  Widget focusWidget() const override;

  // Makes the page of `def` when it is first selected. With null a plain page is made.
  virtual zDialogPage* createPage(zPageDef* def);
  // Called before the notebook does its part: non-zero keeps it from doing so, and all else is up
  // to the override, which may have called shutdown().
  virtual int onCancel(zEvent* event);
  virtual int onHelp(zEvent* event);
  virtual int onApply(zEvent* event);
  virtual int onOk(zEvent* event);

 private:
  friend class ziTabNoteCtrl;

  void takeSize(const zPageDef& sizingPage);
  void ziSetup();
  zPushButton* makeButton(zSizer* place, const char* label, int id,
                          int (zNotebookDialog::*pressed)(zEvent*));
  void buttonsLast();
  void ziWasSelected(const zPageDef* def);
  int ziOnOk(zEvent* event);
  int ziOnCancel(zEvent* event);
  int ziOnApply(zEvent* event);
  int ziOnHelp(zEvent* event);

  std::shared_ptr<zFont> smallFont_;
  zPushButton* cancel_ = nullptr;
  zPushButton* help_ = nullptr;
  zPushButton* apply_ = nullptr;
  zPushButton* ok_ = nullptr;
  ziTabNoteCtrl* tabs_ = nullptr;
};
