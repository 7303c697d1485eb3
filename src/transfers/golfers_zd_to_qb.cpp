#include "transfers/golfers_zd_to_qb.h"

#include <algorithm>
#include <functional>
#include <string>
#include <unordered_map>

#include "core/number_text.h"
#include "core/text.h"
#include "stores/quenby/free_golfer_places.h"
#include "stores/quenby/tournament_players.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

constexpr std::int32_t kHighestID = 99999;
constexpr std::size_t kQuenbyFirstName = 11;  // in characters

// Lists the errors of a disk. The operator may be able to remove their cause.
constexpr ErrorNumber kDiskErrors[] = {ErrorNumber::kDeviceFault,      ErrorNumber::kDiskFull,
                                       ErrorNumber::kPermissionDenied, ErrorNumber::kDiskNotReady,
                                       ErrorNumber::kPathAccess,       ErrorNumber::kPathNotFound};

bool IsOfDisk(const NumberedError& error) {
  return std::any_of(std::begin(kDiskErrors), std::end(kDiskErrors),
                     [&](ErrorNumber number) { return error.Is(number); });
}

// Returns the key for finding a golfer in both programs.
std::string NameKey(std::string_view last, std::string_view first) {
  return UpperCase(std::string(Trim(last)) + std::string(Trim(first)));
}

// Copies those fields of a league's golfer that Quenby has too. Sets the index to 0.
void CopyGolferToQuenby(const Record<LeaguePlayerLayout>& from, int event, bool doubled,
                        RosterPlayers& to) {
  to.SetNameLast(from.Get<"LastName">());
  to.SetNameFirst(from.Get<"FirstName">());
  to.Setsex(from.Get<"Sex">() == 1 ? "F" : "M");
  to.SetAddressHomeLine(1, from.Get<"AddressLine1">());
  to.SetAddressHomeLine(2, from.Get<"AddressLine2">());
  to.SetAddressHomeLine(3, from.Get<"AddressLine3">());
  to.SetPhoneHome(from.Get<"PhoneHome">());
  to.SetPhoneWork(from.Get<"PhoneWork">());
  to.SetIndex(0);
  to.SetHandicap(from.Get<"EventHandicap">(event));
  if (doubled) to.SetHandicap(2 * LeadingNumber(to.HandicapValue(true)));
}

// Copies the golfers of the open league in a loop. A private function that returns false ends the
// run, because the operator did not retry an operation.
class GolferCopy {
 public:
  GolferCopy(SharedState& state, RunHost& host, const GolfersZdToQbRequest& request,
             GolfersZdToQbReport& report, std::int32_t length)
      : state_(state),
        host_(host),
        request_(request),
        report_(report),
        length_(length),
        places_(length) {}

  void CopyAll() {
    const auto& control = state_.Zandel().control;
    players_ = control.Get<"PlayerFactor1">() * control.Get<"PlayerFactor2">();
    std::int32_t last_substitute = request_.substitutes ? control.Get<"LastSubRecord">() : 0;
    if (!ReadQuenby() || !Try([&] { LimitToFile(players_, kLeaguePlayerFile); }) ||
        !Try([&] { LimitToFile(last_substitute, kLeagueSubstituteFile); })) {
      return report_.left_out.Add("All golfers of the league", left_out::kNotReached);
    }
    players_ = std::max(players_, 0);
    total_ = players_ + std::max(last_substitute - kFirstSubstitute + 1, 0);
    const auto title = [this](std::int64_t number) { return TitleOf(number); };
    const auto copy = [&](std::int64_t number) {
      const bool goes_on = CopyGolfer(number);
      if (!goes_on) LeaveOutStopped(report_, number, *report_.given_up, title);
      return goes_on;
    };
    TakeInOrder(report_, total_, copy, title);
    if (!request_.substitutes) LeaveOutSubstitutes();
  }

 private:
  // Runs an operation. Repeats it after a disk error as long as the operator answers Retry.
  bool Try(const std::function<void()>& operation) {
    for (;;) {
      try {
        operation();
        return true;
      } catch (const NumberedError& error) {
        if (!IsOfDisk(error)) throw;
        if (AskForRetry(host_, error)) continue;
        report_.given_up = error;
        return false;
      }
    }
  }

  bool ReadQuenby() {
    TournamentPlayers& player = state_.PlayerRecords();
    IdNumberList& ids = state_.id_numbers;
    ids.Clear();
    for (std::int32_t record = kFirstGolferRecord; record <= length_; ++record) {
      if (!Try([&] { player.GetRecord(record, false); })) return false;
      places_.Note(record, player.StoredID());
      if (!player.PlayerExists()) continue;
      ids.Append(player.StoredID());
      by_name_.emplace(NameKey(player.NameLast(), player.NameFirst()), record);
    }
    return true;
  }

  // Limits the number of the last record to the end of the file. No golfers are stored beyond it.
  void LimitToFile(std::int32_t& last, int file) {
    last = std::min(last, state_.files.RecordCount<LeaguePlayerLayout>(file));
  }

  // Reads a golfer by number. The substitutes follow the players.
  void ReadGolfer(std::int64_t number) {
    auto& golfer = state_.Zandel().player;
    if (number <= players_) return state_.files.Read(kLeaguePlayerFile, number, golfer);
    state_.files.Read(kLeagueSubstituteFile, number - players_ + kFirstSubstitute - 1, golfer);
  }

  std::string TitleOf(std::int64_t number) {
    ReadGolfer(number);
    const auto& golfer = state_.Zandel().player;
    return HasLastName(golfer) ? LeagueGolferNameLF(golfer) : std::string();
  }

  // Adds the substitutes, whom the operator has excluded, to the report. An error while reading
  // them does not concern the run.
  void LeaveOutSubstitutes() {
    std::int32_t last = state_.Zandel().control.Get<"LastSubRecord">();
    const ResumeNext anyway(nullptr);
    if (!anyway([&] { LimitToFile(last, kLeagueSubstituteFile); })) return;
    const std::int64_t substitutes = std::max(last - kFirstSubstitute + 1, 0);
    LeaveOutRest(
        report_, players_ + 1, players_ + substitutes,
        [this](std::int64_t number) { return TitleOf(number); }, left_out::kSubstitute);
  }

  bool CopyGolfer(std::int64_t number) {
    if (!Try([&] { ReadGolfer(number); })) return false;
    done_ = number;
    return Copy(state_.Zandel().player);
  }

  bool Copy(const Record<LeaguePlayerLayout>& golfer) {
    const std::string last_name = golfer.Get<"LastName">();
    const std::string first_name = golfer.Get<"FirstName">();
    if (!HasLastName(golfer)) {
      const bool is_golfer = golfer.Get<"GolferID">() > 0 && !WithoutPadding(first_name).empty();
      if (is_golfer) report_.left_out.Add(LeagueGolferNameLF(golfer), left_out::kNoLastName);
      return true;
    }
    host_.Report(
        {done_, total_,
         "Transfering: " + std::string(Trim(first_name)) + " " + std::string(Trim(last_name))});
    host_.Group(LeagueGolferName(golfer));
    if (Trim(first_name).size() > kQuenbyFirstName) ++report_.long_first_names;
    const auto found = by_name_.find(NameKey(last_name, first_name));
    return found == by_name_.end() ? AddNew(golfer) : Update(golfer, found->second);
  }

  bool Update(const Record<LeaguePlayerLayout>& golfer, std::int32_t record) {
    TournamentPlayers& player = state_.PlayerRecords();
    if (!Try([&] { player.GetRecord(record, false); })) return false;
    CopyGolferToQuenby(golfer, Event(), request_.doubled, player);
    if (!Try([&] { player.SaveRecord(record, false); })) return false;
    CountUp(report_.updated);
    return true;
  }

  bool AddNew(const Record<LeaguePlayerLayout>& golfer) {
    TournamentPlayers& player = state_.PlayerRecords();
    IdNumberList& ids = state_.id_numbers;
    const std::int32_t record = places_.First();
    const std::int32_t id = ids.NextFree(kHighestID);
    player.BlankPlayerRecord();
    player.SetIDNum(id);
    ids.Append(id);
    player.SetRosters(3, request_.destination);
    CopyGolferToQuenby(golfer, Event(), request_.doubled, player);
    CountUp(report_.added);
    if (!Try([&] { player.SaveRecord(record, false); })) return false;
    places_.Note(record, id);
    return true;
  }

  int Event() const { return state_.Zandel().control.Get<"CurrentEvent">(); }

  SharedState& state_;
  RunHost& host_;
  const GolfersZdToQbRequest& request_;
  GolfersZdToQbReport& report_;
  // These members are an index of Quenby's golfers before the run. Golfers added by the run are not
  // in it. A search for a name finds its first record in the file.
  std::int32_t length_;
  std::unordered_map<std::string, std::int32_t> by_name_;
  FreeGolferPlaces places_;
  std::int32_t players_ = 0;
  std::int64_t done_ = 0;
  std::int64_t total_ = 0;
};

std::string Log(const GolfersZdToQbReport& report) {
  std::string log = " Transfered";
  log.append(kReportLineEnd);
  return log + GolferCountLines(report.updated, report.added);
}

}  // namespace

bool AskForRetry(RunHost& host, const NumberedError& error) {
  if (!IsOfDisk(error)) return false;
  host.Beep();
  const Box box{.title = "Message",
                .text = error.Is(ErrorNumber::kDiskFull)
                            ? "DISK IS FULL - You may need to delete nonessential"
                            : "DISK ERROR" + NumberText(error.number()),
                .buttons = {BoxButton::kRetry, BoxButton::kCancel},
                .default_button = 1};
  return host.Ask(box) == BoxButton::kRetry;
}

void Run(SharedState& state, RunHost& host, const GolfersZdToQbRequest& request,
         GolfersZdToQbReport& report) {
  state.InitSharedObjects();
  OpenLeagueGolfers(state, request.league);
  host.Begin();
  state.PlayerRecords().OpenRosterFile();
  const std::int32_t length = state.PlayerRecords().RosterFileLength();
  GolferCopy(state, host, request, report, length).CopyAll();
  state.InitSharedObjects();
  report.log = Log(report);
  report.end = RunEnd::kDone;
}

}  // namespace golf
