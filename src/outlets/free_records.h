#pragma once

#include "core/record.h"
#include "stores/course/course_layout.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"
#include "stores/zandel/zandel_files.h"
#include "stores/zandel/zandel_layouts.h"

namespace golf {

// IsFree returns true for a record that contains no golfer, roster, course or league. Records of
// other kinds are never free.
inline bool IsFree(const Record<KelvaneGolferLayout>& golfer) { return golfer.Get<"Status">() < 1; }
inline bool IsFree(const Record<PlayerLayout>& golfer) { return golfer.Get<"IDNum">() < 1; }
inline bool IsFree(const Record<RosterLayout>& roster) {
  return roster.Get<"IsRosterActive">() == 0;
}
inline bool IsFree(const Record<CourseLayout>& course) { return course.Get<"activeflag">() == 0; }
inline bool IsFree(const Record<TournamentPlayerLayout>& entry) {
  return entry.Get<"TourRosterRecordPointer">() < 1;
}
inline bool IsFree(const Record<LeaguePlayerLayout>& player) {
  return !HasLastName(player) && player.Get<"GolferID">() < 1;
}
template <class Layout>
bool IsFree(const Record<Layout>&) {
  return false;
}

}  // namespace golf
