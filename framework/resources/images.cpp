#include "framework/resources/images.h"

#include <algorithm>
#include <iterator>

#include "framework/resources/resources.h"

extern "C" {
extern const unsigned char imageSetup[], imageStats[], imageActivate[], imageGlobal[], imageClose[],
    imageLogo[], imageAdd[], imageModify[], imageDelete[], imageInsert[], imageLayerLamp[],
    imageLamp[], imageCancel[], imageOndrelleIcon[], imageSetupIcon[], imageStatsIcon[],
    imageGlobalIcon[], imageColumnCursor[], imageRowCursor[];
}

namespace {

// One image and the run of ids that show it.
struct Entry {
  int kind;
  int first;
  int last;
  const unsigned char* data;
};

const Entry entries[] = {
    {zResCursor, 30000, 30000, imageColumnCursor},
    {zResCursor, 30001, 30001, imageRowCursor},
    {zResBitmap, 500, 500, imageSetup},
    {zResBitmap, 501, 501, imageStats},
    {zResBitmap, 502, 502, imageActivate},
    {zResBitmap, 503, 503, imageGlobal},
    {zResBitmap, 504, 504, imageClose},
    {zResBitmap, 505, 505, imageLogo},
    {zResBitmap, 506, 506, imageAdd},
    {zResBitmap, 507, 507, imageModify},
    {zResBitmap, 508, 508, imageDelete},
    {zResBitmap, 509, 509, imageAdd},
    {zResBitmap, 510, 510, imageInsert},
    {zResBitmap, 511, 511, imageDelete},
    {zResBitmap, 512, 512, imageAdd},
    {zResBitmap, 513, 513, imageModify},
    {zResBitmap, 514, 514, imageDelete},
    {zResBitmap, 515, 517, imageLayerLamp},
    {zResBitmap, 518, 528, imageLamp},
    {zResBitmap, 529, 529, imageClose},
    {zResBitmap, 530, 530, imageCancel},
    {zResBitmap, 531, 531, imageClose},
    {zResBitmap, 532, 532, imageCancel},
    {zResBitmap, 533, 533, imageClose},
    {zResBitmap, 534, 534, imageCancel},
    {zResBitmap, 535, 535, imageClose},
    {zResBitmap, 536, 536, imageCancel},
    {zResIcon, 100, 100, imageOndrelleIcon},
    {zResIcon, 101, 101, imageSetupIcon},
    {zResIcon, 102, 102, imageStatsIcon},
    {zResIcon, 103, 103, imageGlobalIcon},
};

}  // namespace

const unsigned char* ziFindImage(int id, int kind) {
  const auto* found = std::find_if(std::begin(entries), std::end(entries), [&](const Entry& e) {
    return e.kind == kind && e.first <= id && id <= e.last;
  });
  return found == std::end(entries) ? nullptr : found->data;
}
