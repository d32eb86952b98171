#include "framework/dialogs/font_form.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "framework/controls/button.h"
#include "framework/controls/check_box.h"
#include "framework/controls/combo_box.h"
#include "framework/core/app.h"

namespace {

// The template and its controls.
constexpr int fontForm = 600;
enum Id { faceId = 100, sizeId, boldId, italicId, sampleId };

constexpr int largestTenths = 3990;
constexpr char largestText[] = "399";
constexpr char sizeAtFirst[] = " 10";
constexpr char sampleText[] = "AaBbCcDdEeFfGg 0123456789";
constexpr int sampleMargin = 4;  // pixels

bool sameText(const std::string& a, const std::string& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

std::string sizeText(int tenths) {
  char text[32];
  if (tenths % 10) {
    std::snprintf(text, sizeof text, "%3d.%d", tenths / 10, tenths % 10);
  } else {
    std::snprintf(text, sizeof text, "%3d", tenths / 10);
  }
  return text;
}

// What was typed, in tenths of a point; 0 for what is no size.
int typedTenths(const std::string& text) {
  const double tenths = std::atof(text.c_str()) * 10;
  if (!(tenths > 0)) return 0;
  return static_cast<int>(std::lround(std::min(tenths, largestTenths + 1.0)));
}

}  // namespace

// The sample.

ziFontSelPane::ziFontSelPane(zWindow* parent, zSizer* sizer, const zColor& textColor)
    : zPane(parent, sizer, 0, nullptr, -1), textColor_(textColor) {
  backgroundColor(zWhite);
  zPane::create();
}

void ziFontSelPane::sample(std::shared_ptr<zFont> font) {
  sample_ = std::move(font);
  setDirty(nullptr, 1);
}

// In the middle; a text that is too wide starts at the left.
void ziFontSelPane::draw(zDrawEvt* event) {
  zPane::draw(event);
  zRect all;
  getInterior(all);
  zDisplay& display = *event->display;
  display.edge3d(all, false);
  if (!sample_) return;
  display.setFont(sample_);
  display.setColor(textColor_);
  const zRect room = all.inset(sampleMargin).intersection(event->area);
  if (room.isEmpty()) return;
  display.setClip(room);
  const zDimension size = display.textDimension(sampleText);
  display.text({std::max((all.width() - size.width) / 2, sampleMargin),
                (all.height() - size.height) / 2 + sample_->ascent()},
               sampleText);
}

// The dialog.

zFontSelForm::zFontSelForm(zWindow* parent, zColor color, zFontSpec* spec)
    : zFormDialog(parent, zResId(fontForm), 0),
      spec_(spec),
      color_(color),
      faces_(getFaces(spec->faceName())),
      face_(spec->faceName()),
      bold_(spec->isBold()),
      italic_(spec->isItalic()),
      faceBox_(new zComboBoxStatic(this, faceId, &face_)),
      sizeBox_(new zComboBoxFull(this, sizeId)),
      boldBox_(new zCheckBox(this, boldId, &bold_)),
      italicBox_(new zCheckBox(this, italicId, &italic_)) {
  new zDefPushButton(this, okId);
  new zPushButton(this, cancelId);
  const zSizer* place = get(sampleId)->sizer();
  pane_ = new ziFontSelPane(this, new zSizer(place->pos(), place->dimension(), sizer()), color_);
  pane_->show(1);
  const zFontSpec before = *spec_;
  fillControls();
  centerWindow(1);
  show(1);
  modal();
  if (!completed()) *spec_ = before;
}

void zFontSelForm::fillControls() {
  faceBox_->addStrSlist(faces_);
  setControlsToDefault();
  fillSizes();
  sizeBox_->text(sizeText(spec_->pointSize()));
  pane_->sample(std::make_shared<zFont>(*spec_));
  faceBox_->setNotifySelChange(this, &zFontSelForm::pickFont);
  sizeBox_->setNotifySelChange(this, &zFontSelForm::pickSize);
  sizeBox_->setNotifyEditChange(this, &zFontSelForm::pickSize);
  boldBox_->setNotifyClicked(this, &zFontSelForm::pickSize);
  italicBox_->setNotifyClicked(this, &zFontSelForm::pickSize);
}

// Lists.

bool zFontSelForm::alreadyOnList(const std::vector<std::string>& list, const std::string& text) {
  return std::any_of(list.begin(), list.end(),
                     [&](const std::string& item) { return sameText(item, text); });
}

std::vector<std::string> zFontSelForm::getFaces(const std::string& current) {
  std::vector<std::string> faces{current};
  for (const ziFontEntry& entry : zAppFontDict->entries()) {
    if (!alreadyOnList(faces, entry.face)) faces.push_back(entry.face);
  }
  std::sort(faces.begin(), faces.end());
  return faces;
}

std::vector<std::string> zFontSelForm::getSizes(const std::string& face) {
  std::vector<int> tenths;
  for (const ziFontEntry& entry : zAppFontDict->entries()) {
    if (entry.tenths > 0 && sameText(entry.face, face)) tenths.push_back(entry.tenths);
  }
  std::sort(tenths.begin(), tenths.end());
  std::vector<std::string> sizes;
  for (const int size : tenths) {
    if (const std::string text = sizeText(size); !alreadyOnList(sizes, text)) sizes.push_back(text);
  }
  return sizes;
}

void zFontSelForm::fillSizes() {
  sizeBox_->reset();
  sizes_ = getSizes(face_);
  sizeBox_->addStrSlist(sizes_);
}

// What was chosen.

int zFontSelForm::pickFont(zNotifyEvt* event) {
  faceBox_->storeData();
  fillSizes();
  // A face without the usual size starts with its first.
  if (sizeBox_->selection(sizeAtFirst) < 0) sizeBox_->selection(0);
  return pickSize(event);
}

int zFontSelForm::pickSize(zNotifyEvt*) {
  int tenths = typedTenths(sizeBox_->getText());
  if (tenths > largestTenths) {
    tenths = largestTenths;
    sizeBox_->text(largestText);
  }
  boldBox_->storeData();
  italicBox_->storeData();
  const auto font = std::make_shared<zFont>(
      face_.c_str(), zPrPoint(0, tenths), bold_ ? zFontSpec::weightBold : zFontSpec::weightNormal,
      zFamDontCare, zPitchDefault, italic_ ? zFontSpec::italicBit : 0);
  pane_->sample(font);
  *spec_ = font->spec();
  return 0;
}
