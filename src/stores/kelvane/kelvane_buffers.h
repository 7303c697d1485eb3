#pragma once

#include "core/record.h"
#include "stores/kelvane/kelvane_layouts.h"

namespace golf {

// Contains one buffer for each Kelvane record. There is one such object in the process. It remains
// when InitSharedObjects replaces the other objects.
struct KelvaneBuffers {
  KelvaneBuffers();  // fills the texts of the header with blanks

  Record<KelvaneSystemLayout> system;
  Record<KelvaneHeaderLayout> header;
  Record<KelvaneGolferLayout> golfer;    // the current golfer
  Record<KelvaneHistoryLayout> history;  // the score history of that golfer
  Record<KelvaneScoreLayout> score;      // the working entry

  // Read or replace entry `i` of the history, 1 to 300. Raise error 9 for any other number.
  Record<KelvaneScoreLayout> Entry(int i) const;
  void SetEntry(int i, const Record<KelvaneScoreLayout>& entry);
};

}  // namespace golf
