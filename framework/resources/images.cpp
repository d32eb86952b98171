#include "framework/resources/images.h"

#include <algorithm>
#include <iterator>

extern "C" {
extern const unsigned char imageSetup[], imageStats[], imageActivate[], imageGlobal[], imageClose[],
    imageLogo[], imageAdd[], imageModify[], imageDelete[], imageInsert[], imageLayerLamp[],
    imageLamp[], imageCancel[], imageOndrelleIcon[], imageSetupIcon[], imageStatsIcon[],
    imageGlobalIcon[], imageColumnCursor[], imageRowCursor[];
}

namespace images {
namespace {

/// One image and the run of ids that show it.
struct Entry {
  int kind;
  int first;
  int last;
  const unsigned char* data;
};

const Entry kEntries[] = {
    {kCursor, 30000, 30000, imageColumnCursor},
    {kCursor, 30001, 30001, imageRowCursor},
    {kBitmap, 500, 500, imageSetup},
    {kBitmap, 501, 501, imageStats},
    {kBitmap, 502, 502, imageActivate},
    {kBitmap, 503, 503, imageGlobal},
    {kBitmap, 504, 504, imageClose},
    {kBitmap, 505, 505, imageLogo},
    {kBitmap, 506, 506, imageAdd},
    {kBitmap, 507, 507, imageModify},
    {kBitmap, 508, 508, imageDelete},
    {kBitmap, 509, 509, imageAdd},
    {kBitmap, 510, 510, imageInsert},
    {kBitmap, 511, 511, imageDelete},
    {kBitmap, 512, 512, imageAdd},
    {kBitmap, 513, 513, imageModify},
    {kBitmap, 514, 514, imageDelete},
    {kBitmap, 515, 517, imageLayerLamp},
    {kBitmap, 518, 528, imageLamp},
    {kBitmap, 529, 529, imageClose},
    {kBitmap, 530, 530, imageCancel},
    {kBitmap, 531, 531, imageClose},
    {kBitmap, 532, 532, imageCancel},
    {kBitmap, 533, 533, imageClose},
    {kBitmap, 534, 534, imageCancel},
    {kBitmap, 535, 535, imageClose},
    {kBitmap, 536, 536, imageCancel},
    {kIcon, 100, 100, imageOndrelleIcon},
    {kIcon, 101, 101, imageSetupIcon},
    {kIcon, 102, 102, imageStatsIcon},
    {kIcon, 103, 103, imageGlobalIcon},
};

}  // namespace

const unsigned char* findImage(int id, int kind) {
  const auto* found = std::find_if(std::begin(kEntries), std::end(kEntries), [&](const Entry& e) {
    return e.kind == kind && e.first <= id && id <= e.last;
  });
  return found == std::end(kEntries) ? nullptr : found->data;
}

}  // namespace images
