#pragma once

#include <array>
#include <optional>
#include <vector>

#include "core/shared_state.h"
#include "transfers/league_course_match.h"

namespace golf {

// Contains a score of a league golfer for the golfer's history in Kelvane.
struct LeagueScore {
  KelvaneTee played;
  DateValue date = 0;
  int score = 0;  // in strokes
};

// Returns the scores of one batch of the open league. They are those of an event, or the non-event
// scores before it.
class LeagueBatch {
 public:
  // Reads the event. `code` is a code of the batch list. Raises the errors of FileTable.
  LeagueBatch(SharedState& state, int code, LeagueCourseMatch& courses);

  // Returns the scores of this batch for the golfer in the league player buffer. For the score of
  // an event it raises error 9 if the event is outside 1 to 50 or the sex is outside 0 to 1. Raises
  // error 6 if the event has no date. Also raises the errors of FileTable.
  std::vector<LeagueScore> ScoresOfGolfer();

  // Returns the strokes of the scores that this batch contains for the golfer in the league player
  // buffer. A golfer who is on a team in the event or has a score for it has one, which may be 0.
  // Unlike ScoresOfGolfer it raises no error and reads no file.
  std::vector<int> StrokesOfGolfer() const;

 private:
  // Contains the course and tees of a team at this event. Tee 2 for men and tee 3 for ladies
  // replace a tee outside 1 to 5.
  struct TeamCourse {
    int course;
    std::array<int, 2> tees;  // men, ladies
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
