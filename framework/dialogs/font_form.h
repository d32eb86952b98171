// The dialog in which a person chooses a font.
#pragma once

#include <string>
#include <vector>

#include "framework/controls/pane.h"
#include "framework/dialogs/form_dialog.h"

class zCheckBox;
class zComboBoxFull;
class zComboBoxStatic;

// Shows what the chosen font looks like.
class ziFontSelPane : public zPane {
 public:
  // With its widget.
  ziFontSelPane(zWindow* parent, zSizer* sizer, const zColor& textColor);

  // Shows the sample in another font.
  void sample(std::shared_ptr<zFont> font);
  void draw(zDrawEvt* event) override;

 private:
  zColor textColor_;
  std::shared_ptr<zFont> sample_;
};

class zFontSelForm : public zFormDialog {
 public:
  // Starts with the font in `spec` and runs until it is answered; the constructor returns then.
  // `spec` follows every choice while the dialog is up. If it doesn't end with OK, `spec` is again
  // what it was. The sample is drawn in `color`.
  zFontSelForm(zWindow* parent, zColor color, zFontSpec* spec);

  const zColor& color() const { return color_; }
  const zFontSpec& fontSpec() const { return *spec_; }

  // The sizes of a face in points, smallest first, with tenths where they aren't whole: " 12.5".
  static std::vector<std::string> getSizes(const std::string& face);

 private:
  static std::vector<std::string> getFaces(const std::string& current);
  static bool alreadyOnList(const std::vector<std::string>& list, const std::string& text);

  void fillControls();
  void fillSizes();
  // Handlers of another face, and of another size or style.
  int pickFont(zNotifyEvt* event);
  int pickSize(zNotifyEvt* event);

  zFontSpec* spec_;
  zColor color_;
  std::vector<std::string> faces_;
  std::vector<std::string> sizes_;
  std::string face_;
  int bold_;
  int italic_;
  zComboBoxStatic* faceBox_;
  zComboBoxFull* sizeBox_;
  zCheckBox* boldBox_;
  zCheckBox* italicBox_;
  ziFontSelPane* pane_;
};
