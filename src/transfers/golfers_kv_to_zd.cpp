#include "transfers/golfers_kv_to_zd.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "core/number_text.h"
#include "core/take_records.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

constexpr std::size_t kLeagueInLog = 30;  // in characters

// Contains the record number of each league golfer by Kelvane ID number. No ID number changes
// during a run, so one search of each file is enough.
using RecordsById = std::unordered_map<std::int32_t, std::int32_t>;

// Converts Kelvane's handicap to the league's. Both are in strokes.
struct HandicapRule {
  int percent;
  bool halved;

  float Of(float handicap) const {
    double value = percent / 100.0 * double{handicap};
    if (halved) value /= 2;
    return CheckedSingle(value + 0.001);  // keeps a later step from rounding a half down
  }
};

// Copies a Kelvane golfer into a league's record, with the handicap for one event. Leaves all other
// fields unchanged.
void CopyGolferToZd(const Record<KelvaneGolferLayout>& from, const HandicapRule& rule, int event,
                    Record<LeaguePlayerLayout>& to) {
  to.Set<"LastName">(from.Get<"NameLast">());
  to.Set<"FirstName">(from.Get<"NameFirst">());
  to.Set<"AddressLine1">(from.Get<"AddressHomeLine">(1));
  to.Set<"AddressLine2">(from.Get<"AddressHomeLine">(2));
  to.Set<"AddressLine3">(from.Get<"AddressHomeLine">(3));
  to.Set<"PhoneHome">(from.Get<"PhoneHome">());
  to.Set<"PhoneWork">(from.Get<"PhoneWork">());
  to.Set<"Email">(from.Get<"Email">());
  to.Set<"Sex">(from.Get<"Sex">() != 0 ? 1 : 0);
  to.Set<"EventHandicap">({event}, rule.Of(from.Get<"Handicap">()));
}

// Finds the league's golfers as they were before the run.
struct League {
  RecordsById players;      // the lowest record of each ID
  RecordsById substitutes;  // the highest record of each ID
  int scores = 0;           // number of players with a score for the current event
  // These records cannot be read, so their golfers are unknown.
  std::vector<std::int32_t> unread_players;
  std::vector<std::int32_t> unread_substitutes;

  // Reads the league. Raises error 9 if there are players and the current event is outside 1 to 50.
  explicit League(SharedState& state) {
    const auto& control = state.Zandel().control;
    auto& player = state.Zandel().player;
    FileTable& files = state.files;
    const auto take = [&](int file, std::int32_t first, std::int32_t last, auto&& keep) {
      return TakeRecords(first, last, [&](std::int32_t record) {
        files.Read(file, record, player);
        keep(player.Get<"GolferID">(), record);
      });
    };
    unread_players =
        take(kLeaguePlayerFile, 1, files.RecordCount<LeaguePlayerLayout>(kLeaguePlayerFile),
             [&](std::int32_t id, std::int32_t record) {
               if (player.Get<"EventScore">(control.Get<"CurrentEvent">()) > 0) ++scores;
               const auto first = players.emplace(id, record).first;
               first->second = std::min(first->second, record);
             });
    const auto last =
        std::min<std::int32_t>(control.Get<"LastSubRecord">(),
                               files.RecordCount<LeaguePlayerLayout>(kLeagueSubstituteFile));
    unread_substitutes = take(kLeagueSubstituteFile, kFirstSubstitute, last,
                              [&](std::int32_t id, std::int32_t record) {
                                std::int32_t& latest = substitutes[id];
                                latest = std::max(latest, record);
                              });
  }
};

bool ScoresMayStand(RunHost& host, int scores, int event) {
  host.Beep();
  const Box box{.title = "Question",
                .text = NumberText(scores) + " scores have already been entered for event" +
                        NumberText(event) +
                        ".  Do you really want to assign a new handicap for this event?  Goto "
                        "ZD and move to the next event to be played before transferring "
                        "handicaps.",
                .icon = BoxIcon::kQuestion,
                .buttons = {BoxButton::kYes, BoxButton::kNo},
                .default_button = 1};
  return host.Ask(box) == BoxButton::kYes;
}

void LeaveOutUnread(RunHost& host, RunReport& report, const std::vector<std::int32_t>& records,
                    const char* whose) {
  for (const std::int32_t record : records) {
    LeaveOut(host, report, Who("Record " + std::to_string(record) + " of the league's " + whose),
             {ErrorNumber::kDeviceFault, "It cannot be read."});
  }
}

// Copies the golfers of the open roster in a loop.
class GolferCopy {
 public:
  GolferCopy(SharedState& state, RunHost& host, const GolfersKvToZdRequest& request,
             GolfersKvToZdReport& report)
      : state_(state),
        host_(host),
        rule_{request.percent, request.halved},
        event_(state.Zandel().control.Get<"CurrentEvent">()),
        report_(report) {}

  void CopyAll(const League& league) {
    const auto& golfer = state_.Kelvane().golfer;
    const std::int32_t places = KVGolferPlaces(state_);
    const auto copy = [&](std::int64_t place) {
      if (!IsWanted(place)) return true;
      host_.Report({place, places, "SEARCHING for " + golfer.Get<"NameLast">()});
      host_.Group(KVGolferName(golfer));
      const bool plays = Update(kLeaguePlayerFile, league.players);
      const bool substitutes = Update(kLeagueSubstituteFile, league.substitutes);
      if (!plays && !substitutes) {
        report_.left_out.Add(KVGolferNameLF(golfer), left_out::kNotInLeague);
      }
      return true;
    };
    TakeInOrder(report_, places, copy,
                [this](std::int64_t place) { return ReadKVGolferNameLF(state_, place); });
  }

 private:
  bool IsWanted(std::int64_t place) {
    auto& golfer = state_.Kelvane().golfer;
    const bool read = ReadOrLeaveOut(
        host_, report_, [&] { state_.files.Read(kKelvaneGolferFile, place, golfer); },
        [&] { return Who("The golfer at place " + std::to_string(place)); });
    if (!read || !IsGolfer(golfer)) return false;
    if (golfer.Get<"IDNum">() >= 1) return true;
    report_.left_out.Add(KVGolferNameLF(golfer), left_out::kNoIdNumber);
    return false;
  }

  // Updates the golfer's record in a file of the league. Returns false if the file has no record of
  // the golfer. If the record cannot be read, leaves out the golfer.
  bool Update(int file, const RecordsById& records) {
    const auto& golfer = state_.Kelvane().golfer;
    auto& player = state_.Zandel().player;
    const auto found = records.find(golfer.Get<"IDNum">());
    if (found == records.end()) return false;
    const bool read = ReadOrLeaveOut(
        host_, report_, [&] { state_.files.Read(file, found->second, player); },
        [&] { return Who(KVGolferNameLF(golfer), KVGolferName(golfer)); });
    if (!read) return true;
    CopyGolferToZd(golfer, rule_, event_, player);
    state_.files.Write(file, found->second, player);
    report_.log.append(golfer.Get<"NameFirst">()).append(golfer.Get<"NameLast">());
    report_.log.append(" TRANSFERRED").append(kReportLineEnd);
    CountUp(report_.transferred);
    return true;
  }

  SharedState& state_;
  RunHost& host_;
  HandicapRule rule_;
  int event_;
  GolfersKvToZdReport& report_;
};

}  // namespace

void Run(SharedState& state, RunHost& host, const GolfersKvToZdRequest& request,
         GolfersKvToZdReport& report) {
  state.files.CloseAll();
  if (!OpenKVRoster(state, request.roster)) {
    report.end = RunEnd::kNoRoster;
    return;
  }
  OpenLeagueGolfers(state, request.league);
  League league(state);
  if (league.scores > 0) {
    const int event = state.Zandel().control.Get<"CurrentEvent">();
    if (!ScoresMayStand(host, league.scores, event)) return state.files.CloseAll();
    league = League(state);  // other programs may have changed it during the question
  }
  LeaveOutUnread(host, report, league.unread_players, "players");
  LeaveOutUnread(host, report, league.unread_substitutes, "substitutes");
  report.log = request.roster;
  report.log.append(kReportLineEnd).append("<< TRANSFERED TO >>").append(kReportLineEnd);
  report.log.append(request.league_text.substr(0, kLeagueInLog));
  report.log.append(kReportLineEnd).append(kReportLineEnd);
  host.Begin();
  GolferCopy(state, host, request, report).CopyAll(league);
  state.files.CloseAll();
  report.end = RunEnd::kDone;
}

}  // namespace golf
