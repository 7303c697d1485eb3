// This file finds the course, the tee and the team that a golfer plays in a round.

#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "stores/course/course_class.h"

namespace golf {

bool PlayerClass::LoadCoursePlayed(int round) {
  state().Course().GetRecord(state().TournamentRecord().CourseNumberPlayed(round));
  return true;
}

bool PlayerClass::LoadTeamForRound(int round) {
  const int team = TourTeamOn(round);
  if (team < 1 || team > kMostTeams) return false;
  state().Team1().GetRecord(team);
  return true;
}

// SexIndice may correct the golfer's sex. It is called first, since the tee group depends on the
// sex.
PlayerClass::PlayedTee PlayerClass::TeePlayed(int round) {
  const int group = SexIndice();
  const int tee_group = TourGroupTee(round);
  return {group, tee_group, state().TournamentRecord().TeeNumberPlayed(group, tee_group, round)};
}

PlayerClass::PlayedTee PlayerClass::LoadTeePlayed(OptionalRound round) {
  LoadCoursePlayed(RoundOr(round));
  return TeePlayed(RoundOr(round));
}

std::int16_t PlayerClass::TourCoursePlayedNumber(OptionalRound round) {
  LoadCoursePlayed(RoundOr(round));
  return state().TournamentRecord().CourseNumberPlayed(round);
}

std::string PlayerClass::TourCoursePlayedName(OptionalRound round) {
  LoadCoursePlayed(RoundOr(round));
  return state().Course().Name();
}

std::int16_t PlayerClass::TourCourseTeePlayedNumber(OptionalRound round) {
  return static_cast<std::int16_t>(LoadTeePlayed(round).tee);
}

std::string PlayerClass::TourCourseTeePlayedAbrv(OptionalRound round) {
  const PlayedTee played = LoadTeePlayed(round);
  return state().Course().TeeNameAbv(int{played.tee});
}

std::string PlayerClass::TourCourseTeePlayedName(OptionalRound round) {
  const PlayedTee played = LoadTeePlayed(round);
  return state().Course().TeeName(int{played.tee});
}

std::string PlayerClass::TourCourseTeePlayedRating(OptionalRound round) {
  const PlayedTee played = LoadTeePlayed(round);
  return state().Course().Rating(played.tee, played.group);
}

std::string PlayerClass::TourCourseTeePlayedSlope(OptionalRound round) {
  const PlayedTee played = LoadTeePlayed(round);
  return state().Course().slope(played.tee, played.group);
}

std::string PlayerClass::TourTeeTime(OptionalRound round) {
  const int of = RoundOr(round);
  return LoadTeamForRound(of) ? state().Team1().TeeTimeHHMMAMPM(of) : "None";
}

std::string PlayerClass::TourTeeStartHole(OptionalRound round) {
  const int of = RoundOr(round);
  return LoadTeamForRound(of) ? state().Team1().TeeStartHole(of) : "None";
}

}  // namespace golf
