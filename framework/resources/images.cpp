#include "framework/resources/images.h"
const unsigned char* findImage(int, int) {
  return nullptr;
}
