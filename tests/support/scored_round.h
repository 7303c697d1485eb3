#pragma once

#include "scoring/open_tournament.h"
#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/course/course_class.h"

namespace golf {

// A golfer, his entry in tournament 1, the tournament's options and its course, as records. A test
// changes them before it loads them. At first every round is played from tee 1 of course 1, with 18
// holes of par 4, hole n the n-th hardest, and slope 113. The points are those of a new tournament,
// and nothing is scored.
struct ScoredRound {
  ScoredRound() {
    control.Set<"NumRounds">(5);
    control.Set<"RoundType">(18);
    control.Set<"PointQuotaFromHandicap">(36);
    control.Set<"ActiveRound">(1);
    control.Set<"Version">("2005");
    control.Fill<"CourseNumberPlayed">(1);
    control.Fill<"TeeNumberPlayed">(1);
    control.Fill<"TeeHandicapPercent">(100);
    control.Fill<"HandicapMax">(36);
    constexpr std::int16_t kPoints[] = {8, 8, 8, 8, 4, 2, 1, 0, 0, 0, 0};
    for (int d = -5; d <= 5; ++d) control.Set<"PointsGiven">({d}, kPoints[d + 5]);
    course.Fill<"HolePar">(4);
    course.Fill<"slope">(113);
    for (int tee = 1; tee <= kTeeSlots; ++tee) {
      for (int hole = 1; hole <= kHoles; ++hole) {
        course.Set<"HoleHandicap">({tee, hole}, static_cast<std::int16_t>(hole));
        course.Set<"StrkSqnc">({tee, hole}, static_cast<std::int16_t>(hole));
      }
    }
    golfer.Set<"IDNum">(1);
    entry.Set<"TourRosterRecordPointer">(1);
  }

  // Scores 5, 6 and 4 in turn on the holes 1 to `holes` of a round.
  void PlayInTurn(int round, int holes) {
    constexpr std::int16_t kScores[] = {4, 5, 6};
    for (int hole = 1; hole <= holes; ++hole) {
      entry.Set<"TourScoreGross">({hole, round}, kScores[hole % 3]);
    }
  }

  // Writes the records through the shared files, opens the tournament and reads its one entry.
  PlayerClass& Load(SharedState& state) const {
    state.InitSharedObjects();
    Write(state, "qbcrs.dat", course);
    Write(state, "X0001.Q9C", control);
    Write(state, "QBGOLFER.Q9D", golfer);
    Write(state, "X0001.Q9G", entry);
    OpenTournament(state, 1);
    state.Player().GetRecord(1, true);
    return state.Player();
  }

  Record<CourseLayout> course;
  Record<TournamentLayout> control;
  Record<PlayerLayout> golfer;
  Record<TournamentPlayerLayout> entry;

 private:
  template <class Layout>
  static void Write(SharedState& state, const std::string& name, const Record<Layout>& record) {
    const int number = state.files.FreeNumber();
    state.files.Open(number, state.QBDataPath + name, Layout::kLength);
    state.files.Write(number, 1, record);
    state.files.Close(number);
  }
};

}  // namespace golf
