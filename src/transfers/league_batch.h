#pragma once

#include <array>
#include <optional>
#include <vector>

#include "core/shared_state.h"
#include "transfers/league_course_match.h"

namespace golf {

// A score of a league golfer for his history in Kelvane.
struct LeagueScore {
  KelvaneTee played;
  DateValue date = 0;
  int score = 0;
};

// The scores of one batch of the open league: those of an event, or those played before it.
class LeagueBatch {
 public:
  // A code of the batch list. Reads the event. Errors as FileTable.
  LeagueBatch(SharedState& state, int code, LeagueCourseMatch& courses);

  // Those that the golfer in the league player buffer has in this batch. Error 9 for an event or a
  // sex that the league's records do not have, 6 where the event has no date.
  std::vector<LeagueScore> ScoresOfGolfer();

 private:
  // What a team played at this event. A tee that no course has is replaced by the usual one.
  struct TeamCourse {
    int course;
    std::array<int, 2> tees;  // men's, ladies'
  };

  std::vector<LeagueScore> EventScore();
  std::vector<LeagueScore> NonEventScores();
  const TeamCourse& CourseOfTeam(int team);
  DateValue EventDate() const;

  SharedState& state_;
  LeagueCourseMatch& courses_;
  bool is_event_;
  int event_;
  std::array<std::optional<TeamCourse>, 101> teams_;  // by number, from 1
};

}  // namespace golf
