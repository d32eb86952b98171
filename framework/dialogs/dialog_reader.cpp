#include "framework/dialogs/dialog_reader.h"

#include <cstdio>

#include "framework/controls/button.h"
#include "framework/controls/combo_box.h"
#include "framework/controls/edit.h"
#include "framework/controls/group_box.h"
#include "framework/controls/list_box.h"
#include "framework/controls/scroll_bar.h"
#include "framework/controls/static_text.h"
#include "framework/core/app.h"
#include "framework/core/frame_window.h"
#include "framework/dialogs/control_types.h"
#include "framework/dialogs/dialog_frame.h"
#include "framework/drawing/display.h"
#include "framework/layout/dialog_unit.h"

namespace {

constexpr unsigned subtypeMask = 0xF;
constexpr unsigned classStyleMask = 0xFFFF;
constexpr unsigned defaultButtonStyle = 1;

template <class Control>
zChildWin* created(zWindow* window, zSizer* place, const zControlRecord& r) {
  auto* control = new Control(window, place, r.style, r.title, static_cast<int>(r.id));
  control->create();
  return control;
}

bool isOrdinaryParent(const zWindow* parent) {
  return parent && parent != app->rootWindow();
}

}  // namespace

ziDialogReader::ziDialogReader(zWindow* window, const zResId& id) : window_(window), id_(id) {
  template_ = static_cast<const zDialogTemplate*>(ziLockResource(id, zResDialog));
  if (!template_) {
    std::fprintf(stderr, "Error: Unable to find dialog resource for id=%d.\n", id.intId());
    return;
  }
  decodeHeader();
}

ziDialogReader::~ziDialogReader() {
  if (template_) ziUnlockResource(zResDialog, template_, id_);
}

void ziDialogReader::decodeHeader() {
  style_ = template_->style & ~zStyleVisible;
  caption_ = template_->title ? template_->title : "";
  hasMenu_ = template_->menuId < zNoMenu;
  if (hasMenu_) menuId_ = zResId(static_cast<int>(template_->menuId));
  if (!font_ && window_) font_ = window_->getFont();
}

void ziDialogReader::recalc() {
  font_.reset();
  if (template_) decodeHeader();
}

std::unique_ptr<zDisplay> ziDialogReader::makeDisplay() const {
  const zWindow* parent = window_ ? window_->parent() : nullptr;
  if (isOrdinaryParent(parent)) return std::make_unique<zWinDisplay>(parent);
  return std::make_unique<ziInfoDisplay>();
}

void ziDialogReader::decodeFonts() {
  if (!template_) return;
  const std::unique_ptr<zDisplay> display = makeDisplay();
  display->lock();
  if (template_->pointSize) {
    const int tenths = (static_cast<int>(template_->pointSize) + ziGlobIncDialogFont) * 10;
    font_ = std::make_shared<zFont>(template_->fontName, zPrPoint(0, tenths),
                                    app->defaultDlgFontWeight());
  }
  if (font_) display->setFont(font_);
  zPoint at = zDialogUnit(template_->x, template_->y, display.get());
  const zWindow* parent = window_ ? window_->parent() : nullptr;
  if (isOrdinaryParent(parent)) {
    zRect over;
    parent->getExterior(over);
    at = {at.x + over.left, at.y + over.top};
  }
  rect_ = {at, zDialogUnit(template_->w, template_->h, display.get())};
  display->unlock();
}

void ziDialogReader::setSize(zSizer* sizer) const {
  if (!template_) return;
  sizer->pos(rect_.pos());
  sizer->dimension(rect_.dimension());
}

void ziDialogReader::createChildren() {
  if (!template_ || !template_->controls) return;
  const std::unique_ptr<zDisplay> display = makeDisplay();
  display->lock();
  if (font_) display->setFont(font_);
  firstButton_ = true;
  if (window_->isA(zTypeDialogFrame)) static_cast<zDialogFrame*>(window_)->clearGroupList();
  for (const zControlRecord* r = template_->controls; r->atom || r->className; ++r) {
    const zPoint at = zDialogUnit(r->x, r->y, display.get());
    const zDimension size = zDialogUnit(r->w, r->h, display.get());
    createBaseTypes(*r, new zSizer(at, size, window_->sizer()));
  }
  display->unlock();
}

void ziDialogReader::createButton(const zControlRecord& r, zSizer* place) {
  const int id = static_cast<int>(r.id);
  if ((r.style & classStyleMask) == defaultButtonStyle && defaultId_ == noDefault) defaultId_ = id;
  const unsigned subtype =
      r.atom == zAtomPictureButton ? unsigned{zButton::picture} : r.style & subtypeMask;
  unsigned long style = (r.style & ~(subtypeMask | zButton::picture)) | subtype;
  if (firstButton_) zButton::resetStaticGroups();
  firstButton_ = false;
  if (subtype == zButton::radio || subtype == zButton::radioAuto ||
      subtype == zButton::radioAuto2) {
    style |= zStyleTabStop;
  }
  if (subtype == zButton::group) {
    auto* box = new zGroupBox(window_, place, style, r.title, id);
    if (window_->isA(zTypeDialogFrame)) static_cast<zDialogFrame*>(window_)->addGroup(box);
    box->show(1);
    return;
  }
  auto* button = new zButton(window_, place, style, r.title, id);
  button->create();
  button->show(1);
}

void ziDialogReader::createBaseTypes(const zControlRecord& r, zSizer* place) {
  const int id = static_cast<int>(r.id);
  zChildWin* made = nullptr;
  switch (r.atom) {
    case zAtomButton:
    case zAtomPictureButton:
      createButton(r, place);
      return;
    case zAtomEdit:
      made = new zEditBase(window_, place, r.style, r.title, id);
      break;
    case zAtomStatic:
      made = new zStaticText(window_, place, r.style, r.title, id);
      break;
    case zAtomListBox:
      made = created<zListBoxBase>(window_, place, r);
      break;
    case zAtomScrollBar:
      made = created<zScrollBarBase>(window_, place, r);
      break;
    case zAtomComboBox:
      made = created<zComboBoxBase>(window_, place, r);
      break;
    default:
      if (const zControlType* type = r.className ? zControlType::find(r.className) : nullptr) {
        made = type->buildNew(window_, place, r.style, r.title, id);
      }
  }
  if (made) {
    made->show(1);
  } else {
    delete place;  // an unknown class makes no control
  }
}
