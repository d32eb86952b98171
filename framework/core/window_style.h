// Window styles: the bits of a Windows dialog template that mean something here.
#pragma once

enum zWindowStyle : unsigned long {
  zStylePopup = 0x80000000,
  zStyleChild = 0x40000000,
  zStyleVisible = 0x10000000,
  zStyleDisabled = 0x08000000,
  zStyleClipSiblings = 0x04000000,
  zStyleClipChildren = 0x02000000,
  zStyleCaption = 0x00C00000,
  zStyleVScroll = 0x00200000,
  zStyleHScroll = 0x00100000,
  zStyleSysMenu = 0x00080000,
  zStyleThickFrame = 0x00040000,
  zStyleGroup = 0x00020000,     // of a control: the first of a group
  zStyleMinimize = 0x00020000,  // of a frame
  zStyleTabStop = 0x00010000,   // of a control: in the tab order
  zStyleMaximize = 0x00010000,  // of a frame
};
