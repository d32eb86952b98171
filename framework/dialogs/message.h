// Blocking message boxes.
#pragma once

#include <Xm/Xm.h>

class zFrameWin;
class zWindow;

// Shows a box over `parent` and runs a loop of its own until it is answered; the constructor
// returns then. The low nibble of `style` chooses the buttons and so the results:
//   0 OK (1); 1 OK, Cancel (1, 2); 2 Abort, Retry, Ignore (3, 4, 5); 3 Yes, No, Cancel (6, 7, 2);
//   4 Yes, No (6, 7); 5 Retry, Cancel (4, 2); others as 1.
// Bits 0xF0 choose the picture: 0x10 error, 0x20 question, 0x30 warning, 0x40 information, none
// otherwise. Bits 0xF000: 0x2000 blocks the whole application, 0x1000 the whole screen.
class zMessage {
 public:
  zMessage(zWindow* parent, const char* text, const char* title, unsigned style);
  zMessage(const zMessage&) = delete;
  zMessage& operator=(const zMessage&) = delete;

  // The answer: closing the box counts as its second button, or its only one.
  int result() const { return result_; }

  // Closes the boxes that are open over windows of this frame, which is being closed itself.
  static void closeOver(zFrameWin* frame);

 private:
  static void buttonCB(Widget widget, XtPointer message, XtPointer callData);
  static void doClose(Widget widget, XtPointer message, XtPointer callData);
  Widget createBox(Widget shell, const char* text, const char* title, unsigned style);
  void labelButtons(Widget box, unsigned style);
  void answer(int button);

  int result_ = 0;
  int buttonResults_[3] = {};
  bool done_ = false;
};
