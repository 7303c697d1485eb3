#pragma once

#include "core/record.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {

// The one buffer of the process for each Kelvane record. They outlive InitSharedObjects.
struct KelvaneBuffers {
  KelvaneBuffers();  // fills the texts of the header with blanks, as without a roster

  Record<KelvaneSystemLayout> system;
  Record<KelvaneHeaderLayout> header;
  Record<KelvaneGolferLayout> golfer;    // the current golfer
  Record<KelvaneHistoryLayout> history;  // the score history of that golfer
  Record<KelvaneScoreLayout> score;      // the working entry

  // Read or replace an entry of the history, 1 to 300. Error 9 for any other number.
  Record<KelvaneScoreLayout> Entry(int i) const;
  void SetEntry(int i, const Record<KelvaneScoreLayout>& entry);
};

}  // namespace golf
