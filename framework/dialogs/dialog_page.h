// The pages of a notebook dialog and the definitions they are made from.
//
// A page class derives from zDialogPage and adopts its controls in its constructor, as a dialog
// does. Pages are made up front, with `new ThePage(notebook, def)` behind `add(def)`, or by the
// notebook's createPage when they are first selected.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "framework/controls/pane_controls.h"
#include "framework/layout/sizer.h"

class ziDialogReader;
class zDialogPage;
class zNotebookDialog;
class zResId;
class zTab;
class ziTabNoteCtrl;

class zPageDef {
 public:
  // A page out of dialog template `id`; `pageId` tells the notebook's pages apart.
  zPageDef(const zResId& id, int pageId);
  // A page that exists already.
  zPageDef(zDialogPage* page, int pageId);
  ~zPageDef();
  zPageDef(const zPageDef&) = delete;
  zPageDef& operator=(const zPageDef&) = delete;

  int id() const { return id_; }
  zDialogPage* page() const { return page_; }  // null until it is made
  // The text of the tab: the template's title.
  const std::string& caption() const { return caption_; }
  // The template's style as that of a child.
  unsigned long getStyle() const;
  // Whether the Apply button can be pressed while the page is shown.
  bool allowApply() const { return allowApply_; }
  void allowApply(int on) { allowApply_ = on != 0; }
  // Null for a page without a template.
  ziDialogReader* reader() const { return reader_.get(); }

  // Makes `page` the definition's page, deleting another one at hand, and aims the reader at it.
  void setPage(zDialogPage* page);
  // Makes the template's controls in the page.
  void load();

 private:
  friend class zDialogPage;
  friend class ziTabNoteCtrl;

  std::unique_ptr<ziDialogReader> reader_;
  int id_;
  zDialogPage* page_ = nullptr;
  std::string caption_;
  bool allowApply_ = false;
  zTab* tab_ = nullptr;
};

using zPageDefDList = std::list<std::unique_ptr<zPageDef>>;

class zDialogPage : public zPaneControl {
 public:
  // A child of the notebook's tab control, hidden at first, with the controls of the definition's
  // template; without a definition it is empty.
  zDialogPage(zNotebookDialog* notebook, zPageDef* def, unsigned long style = 0);
  ~zDialogPage() override;

  zPageDef* def() const { return def_; }

  // Brings the page up, with the focus on the control that has something wrong.
  int invalidData(zWindow* window) override;
  // Passes the focus on to the first control that can take it.
  int focus(zFocusEvt* event) override;
  int size(zSizeEvt* event) override;
  // Passes the command on to the notebook.
  int command(zCommandEvt* event) override;
  Widget childArea() const override { return getWidget(); }
  Widget focusWidget() const override;

  // Has ziKeyDown called for the keys pressed in the page's controls, or no longer.
  void ziHandleTabs(int on);
  virtual int ziKeyDown(zKeyEvt* event);

 private:
  friend class zPageDef;
  friend class ziTabNoteCtrl;

  // Lays the page out in `area` of the tab control; for the first time in `firstArea` before that,
  // which is what the sizes of its stretching parts are reckoned from.
  void layOut(const zRect& firstArea, const zRect& area);
  zWindow* firstStop() const;

  zPageDef* def_ = nullptr;
  bool laidOut_ = false;
  zExpandLayout layout_;
};
