#include "transfers/league_batch.h"

#include <string>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "stores/course/course_layout.h"
#include "stores/zandel/zandel_batches.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

constexpr int kLastTeam = 100;
constexpr std::uint8_t kNonEventTee = 1;

bool IsTeam(int number) { return number >= 1 && number <= kLastTeam; }

int TeeOr(int usual, int tee) { return tee >= 1 && tee <= kShownTees ? tee : usual; }

}  // namespace

LeagueBatch::LeagueBatch(SharedState& state, int code, LeagueCourseMatch& courses)
    : state_(state),
      courses_(courses),
      is_event_(code < kNonEventCode),
      event_(is_event_ ? code : code - kNonEventCode) {
  state.files.Read(kLeagueEventFile, event_, state.Zandel().event);
}

std::vector<LeagueScore> LeagueBatch::ScoresOfGolfer() {
  return is_event_ ? EventScore() : NonEventScores();
}

DateValue LeagueBatch::EventDate() const {
  const DateValue date = state_.Zandel().event.Get<"EventDate">();
  if (IsDate(date)) return date;
  throw NumberedError(ErrorNumber::kOverflow,
                      "Event #" + std::to_string(event_) + " of the league has no date.");
}

std::vector<int> LeagueBatch::StrokesOfGolfer() const {
  const auto& player = state_.Zandel().player;
  std::vector<int> strokes;
  if (!is_event_) {
    for (int slot = 1; slot <= kNonEventScores; ++slot) {
      if (player.Get<"NonEventBefore">(slot) != event_) continue;
      strokes.push_back(player.Get<"NonEventScore">(slot));
    }
  } else if (event_ >= 1 && event_ <= kLeagueEvents) {
    const int score = player.Get<"EventPostScore">(event_);
    if (IsTeam(player.Get<"EventTeam">(event_)) || score != 0) strokes.push_back(score);
  }
  return strokes;
}

const LeagueBatch::TeamCourse& LeagueBatch::CourseOfTeam(int number) {
  auto& known = teams_.at(static_cast<std::size_t>(number));
  if (!known) {
    auto& team = state_.Zandel().team;
    state_.files.Read(kLeagueTeamFile, number, team);
    known = TeamCourse{
        team.Get<"EventCourse">(event_),
        {TeeOr(2, team.Get<"EventTee">(event_, 1)), TeeOr(3, team.Get<"EventTee">(event_, 2))}};
  }
  return *known;
}

std::vector<LeagueScore> LeagueBatch::EventScore() {
  const auto& player = state_.Zandel().player;
  const int team = player.Get<"EventTeam">(event_);
  if (!IsTeam(team)) return {};
  const TeamCourse& course = CourseOfTeam(team);
  const int sex = player.Get<"Sex">();
  const int tee = course.tees[sex == 1 ? 1 : 0];
  const KelvaneTee& played = courses_.Find(course.course, tee, sex);
  return {{played, EventDate(), player.Get<"EventPostScore">(event_)}};
}

std::vector<LeagueScore> LeagueBatch::NonEventScores() {
  const auto& player = state_.Zandel().player;
  std::vector<LeagueScore> scores;
  for (int slot = 1; slot <= kNonEventScores; ++slot) {
    if (player.Get<"NonEventBefore">(slot) != event_) continue;
    const float rating = CheckedSingle(player.Get<"NonEventRating10">(slot) / 10.0);
    scores.push_back({{0, kNonEventTee, rating, player.Get<"NonEventSlope">(slot)},
                      EventDate() - 1,
                      player.Get<"NonEventScore">(slot)});
  }
  return scores;
}

}  // namespace golf
