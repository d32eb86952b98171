#pragma once

// The pictures compiled into the program: buttons, lamps, icons and cursors.

// The image of a Windows file, alive and unchanging for the program's run, or null when the kind
// has no such id.
//   zResCursor  30000 and 30001: .cur, 32 by 32 pixels, 1 bit each
//   zResBitmap  500 to 536: .bmp ("BM"), 4 bits each, six frames side by side; some share an image
//   zResIcon    100 to 103: .ico; 100 is 32 by 32 of 8 bits, the others 16 by 16 of 4 bits
const unsigned char* ziFindImage(int id, int kind);
