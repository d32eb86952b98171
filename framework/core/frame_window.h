// Top-level windows. The first one constructed in the process is the root window, which stands in
// the application's own shell; all others are dialogs over it.
#pragma once

#include <memory>
#include <string>

#include "framework/core/window.h"

class zIcon;

class zFrameWin : public zWindow {
 public:
  zFrameWin(zWindow* parent, zSizer* sizer, unsigned long style, const char* title);
  ~zFrameWin() override;

  // The text in the title bar.
  virtual const std::string& caption() const { return title(); }
  virtual void caption(const std::string& text);
  virtual void caption(const char* text) { caption(std::string(text ? text : "")); }

  // Makes the shell: of the application for the first frame window.
  virtual int create();

  // The picture that stands for the window when it is iconified. Owned from here on.
  void setIcon(std::unique_ptr<zIcon> icon);

  // 0 unmaps; 2, 6 and 7 iconify; 3 takes the whole screen; any other value maps.
  int showSet(int how) override;
  void getExterior(zRect& rect) const override;
  void vmove(int x, int y, int width, int height) override;

  // A key that no handler and no virtual of the window with the focus took. Non-zero: taken.
  virtual int keyLeft(zKeyEvt* key);

  // The window in this frame that gets the focus once the frame is on the screen.
  void focusWhenShown(zWindow* window) { firstFocus_ = window; }

  Widget shell() const { return shell_; }
  bool isRoot() const;

 protected:
  // Gives the focus to the window that asked for it before there was anything to see.
  void focusFirst();
  void setShell(Widget shell) { shell_ = shell; }
  void applyIcon();

  // Motif window manager decorations and functions for the window's style bits.
  struct MwmHints {
    int decorations;
    int functions;
  };
  MwmHints mwmHints() const;

 private:
  void createApplicationShell();

  zWindow* firstFocus_ = nullptr;  // looked up among the children before it is used
  Widget shell_ = nullptr;
  std::unique_ptr<zIcon> icon_;
};
