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
  int score = 0;  // strokes
};

// The scores of one batch of the open league: those of an event, or the non-event scores before it.
class LeagueBatch {
 public:
  // Takes a code of the batch list and reads the event. Raises the errors of FileTable.
  LeagueBatch(SharedState& state, int code, LeagueCourseMatch& courses);

  // Returns the scores of this batch for the golfer in the league player buffer. For the score of
  // an event, error 9 is raised for an event outside 1 to 50 and for a sex outside 0 to 1. Error 6
  // is raised if the event has no date. Raises the errors of FileTable.
  std::vector<LeagueScore> ScoresOfGolfer();

 private:
  // The course and tees of a team at this event. A tee outside 1 to 5 is replaced by tee 2 for men
  // and tee 3 for ladies.
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
  std::array<std::optional<TeamCourse>, 101> teams_;  // by team number, from 1
};

}  // namespace golf
