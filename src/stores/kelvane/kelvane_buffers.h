#pragma once

#include "core/record.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {

// The one buffer of the process for each Kelvane record. They outlive InitSharedObjects.
struct KelvaneBuffers {
  KelvaneBuffers();  // texts of the header blank, so that names of no roster show as nothing

  Record<KelvaneSystemLayout> system;
  Record<KelvaneHeaderLayout> header;
  Record<KelvaneGolferLayout> golfer;    // the golfer in hand
  Record<KelvaneHistoryLayout> history;  // and the scores of that golfer
  Record<KelvaneScoreLayout> score;      // the working entry

  // Entries of the history, 1 to 300. Error 9 for any other number.
  Record<KelvaneScoreLayout> Entry(int i) const;
  void SetEntry(int i, const Record<KelvaneScoreLayout>& entry);
};

}  // namespace golf
