#include "transfers/kv_to_zd.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

#include "core/number_text.h"
#include "core/take_records.h"
#include "core/text.h"
#include "screens/rosters/load_roster.h"
#include "screens/settings_file.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/zandel/zandel_files.h"
#include "transfers/transfer_run.h"

namespace golf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLeagueInLog = 30;  // characters
constexpr int kLeastPercent = 10;
constexpr int kMostPercent = 100;

// Records of a league by the ID that ties a golfer to Kelvane. No ID changes in a run, so one pass
// over a file finds what a search for each golfer would.
using RecordsById = std::unordered_map<std::int32_t, std::int32_t>;

// How Kelvane's handicap becomes that of the league.
struct HandicapRule {
  int percent;
  bool halved;

  float Of(float handicap) const {
    double value = percent / 100.0 * double{handicap};
    if (halved) value /= 2;
    return CheckedSingle(value + 0.001);  // so that a half is not rounded down later
  }
};

// Copies the golfer in the Kelvane buffer into the league's; what is not copied stays as it was.
void CopyGolferToZd(SharedState& state, const HandicapRule& rule) {
  const auto& from = state.Kelvane().golfer;
  auto& to = state.Zandel().player;
  to.Set<"LastName">(from.Get<"NameLast">());
  to.Set<"FirstName">(from.Get<"NameFirst">());
  to.Set<"AddressLine1">(from.Get<"AddressHomeLine">(1));
  to.Set<"AddressLine2">(from.Get<"AddressHomeLine">(2));
  to.Set<"AddressLine3">(from.Get<"AddressHomeLine">(3));
  to.Set<"PhoneHome">(from.Get<"PhoneHome">());
  to.Set<"PhoneWork">(from.Get<"PhoneWork">());
  to.Set<"Email">(from.Get<"Email">());
  to.Set<"Sex">(from.Get<"Sex">() != 0 ? 1 : 0);
  to.Set<"EventHandicap">({state.Zandel().control.Get<"CurrentEvent">()},
                          rule.Of(from.Get<"Handicap">()));
}

}  // namespace

// The league as it stands before the run.
struct KVtoZD::League {
  RecordsById players;      // a search begins at record 1
  RecordsById substitutes;  // a search begins at the last one and goes down
  int scores = 0;           // that the players have for the current event
  // Records that cannot be read. Whose they are is not known.
  std::vector<std::int32_t> unread_players;
  std::vector<std::int32_t> unread_substitutes;

  // Error 9 where there are players and no such event.
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

KVtoZD::KVtoZD(const ScreenContext& context)
    : Screen("KVtoZD", context),
      picker(context.state, *this,
             {.panel = "Frame2",
              .tag = "DEST",
              .label = "Select the DESTINATION League",
              .main = Frame1,
              .finder = FindZDButton,
              .leave = CancelButton,
              .take = [this](std::string league) { DestLabel.SetCaption(std::move(league)); }}) {
  SetCaption("Transfer GOLFERS from Kelvane to Zandel");
  Add({&Frame1, &picker.Panel});
  AddInto(Frame1, {&FindKVMButton,   &SourcePath,   &FindZDButton, &DestLabel, &HandicapType[0],
                   &HandicapType[1], &HandicapPrct, &Label1[0],    &Label1[1], &Label1[2],
                   &Label1[3],       &Label1[4],    &Label1[5],    &Label1[6], &Label1[7],
                   &TransferButton,  &CancelButton, &Message,      &Working,   &WorkingCount});
  AddInto(picker.Panel, picker.Controls());
  Message.SetReadOnly(true);
  HandicapType[1].SetValue(true);
  for (std::size_t type = 0; type < HandicapType.size(); ++type) {
    HandicapType[type].on_click = [this, type] { SelectHandicap(type); };
  }
  FindKVMButton.on_click = [this] { FindSource(); };
  TransferButton.on_click = [this] { RunTransfer(*this, state(), host(), [this] { Transfer(); }); };
  CancelButton.on_click = [this] { host().Unload(*this); };
}

void KVtoZD::OnLoad() {
  picker.Fill();
  ReadOwnSettings();
}

void KVtoZD::OnUnload() {
  SettingsWriter to;
  to.Text(SourcePath.caption());
  to.Text(DestLabel.caption());
  to.Word(HandicapType[0].value() ? "True" : "False");
  to.Text(HandicapPrct.text());
  WriteSettingsFile(state(), SettingsPath(), to);
}

// Beside the program, unlike the settings of other screens.
std::string KVtoZD::SettingsPath() const { return state().ProgramPath + "KVtoZD.DAT"; }

void KVtoZD::ReadOwnSettings() {
  SettingsReader from = ReadSettingsFile(state(), SettingsPath());
  if (const auto roster = from.Text()) {
    state().KVRosterName = *roster;
    SourcePath.SetCaption(*roster);
  }
  if (const auto league = from.Text()) DestLabel.SetCaption(*league);
  // It is written as a word but read as a number, which a word is not: the screen always comes up
  // with handicaps of 18 holes, as operators are used to.
  if (const auto nine = from.Word()) SelectHandicap(LeadingNumber(*nine) == 0 ? 1 : 0);
  if (const auto percent = from.Text()) HandicapPrct.SetText(*percent);
}

void KVtoZD::FindSource() {
  auto& rosters = dynamic_cast<LoadRoster&>(host().Load("LoadRoster"));
  rosters.SetTag("OPENONLY");
  host().ShowModal(rosters);
  SourcePath.SetCaption(state().KVRosterName);
}

void KVtoZD::SelectHandicap(std::size_t type) {
  HandicapType[type].SetValue(true);
  HandicapType[1 - type].SetValue(false);
}

void KVtoZD::Transfer() {
  if (IsBlankText(SourcePath.caption()) || IsBlankText(DestLabel.caption())) {
    host().Ask(Box{.title = "Info",
                   .text = "You must select both source roster and destination league before you "
                           "can transfer golfers.",
                   .icon = BoxIcon::kInformation});
    return;
  }
  state().files.CloseAll();
  const JoinedWrites joined(state().files);
  if (!OpenKVRoster(state(), SourcePath.caption())) {
    host().Ask(Box{.title = "Notice", .text = "Cannot open the Kelvane roster"});
    return Report("", 0);
  }
  OpenLeagueGolfers(state(), LeagueBase(DestLabel.caption()));
  League league(state());
  if (league.scores > 0) {
    if (!ScoresMayStand(league.scores)) return state().files.CloseAll();
    league = League(state());  // others may have worked on it meanwhile
  }
  TellUnread(league);
  std::string log = SourcePath.caption();
  log.append(kLineEnd).append("<< TRANSFERED TO >>").append(kLineEnd);
  log.append(DestLabel.caption().substr(0, kLeagueInLog)).append(kLineEnd).append(kLineEnd);
  const std::int16_t transferred = CopyGolfers(league, log);
  state().files.CloseAll();
  host().TellCount("transferred", transferred);
  Report(std::move(log), transferred);
}

// Whoever stands there is left out.
void KVtoZD::TellUnread(const League& league) {
  const auto tell = [this](const std::vector<std::int32_t>& records, const char* whose) {
    for (const std::int32_t record : records) {
      host().TellFault(LeftOut("Record " + std::to_string(record) + " of the league's " + whose,
                               {ErrorNumber::kDeviceFault, "It cannot be read."}));
    }
  };
  tell(league.unread_players, "players");
  tell(league.unread_substitutes, "substitutes");
}

bool KVtoZD::ScoresMayStand(int scores) {
  const int event = state().Zandel().control.Get<"CurrentEvent">();
  host().Beep();
  const BoxButton answer =
      host().Ask(Box{.title = "Question",
                     .text = NumberText(scores) + " scores have already been entered for event" +
                             NumberText(event) +
                             ".  Do you really want to assign a new handicap for this event?  Goto "
                             "ZD and move to the next event to be played before transferring "
                             "handicaps.",
                     .icon = BoxIcon::kQuestion,
                     .buttons = {BoxButton::kYes, BoxButton::kNo},
                     .default_button = 1});
  return answer == BoxButton::kYes;
}

int KVtoZD::Percent() {
  const double entered = std::clamp(LeadingNumber(HandicapPrct.text()), 0.0, 1000.0);
  int percent = RoundToInt16(entered);
  if (percent < kLeastPercent || percent > kMostPercent) percent = kMostPercent;
  HandicapPrct.SetText(std::to_string(percent));
  return percent;
}

std::int16_t KVtoZD::CopyGolfers(const League& league, std::string& log) {
  const CopyingLook look(host(), {&Working, &WorkingCount}, &TransferButton);
  const HandicapRule rule{Percent(), HandicapType[0].value()};
  FileTable& files = state().files;
  auto& golfer = state().Kelvane().golfer;
  auto& player = state().Zandel().player;
  std::int16_t transferred = 0;

  const auto update = [&](int file, const RecordsById& records) {
    const auto found = records.find(golfer.Get<"IDNum">());
    if (found == records.end()) return;
    const bool read = ReadOrLeaveOut(
        host(), [&] { files.Read(file, found->second, player); },
        [&] { return KVGolferName(golfer); });
    if (!read) return;
    CopyGolferToZd(state(), rule);
    files.Write(file, found->second, player);
    log.append(golfer.Get<"NameFirst">()).append(golfer.Get<"NameLast">());
    log.append(" TRANSFERRED").append(kLineEnd);
    CountUp(transferred);
  };
  const std::int32_t places = KVGolferPlaces(state());
  for (std::int32_t place = 1; place <= places; ++place) {
    const bool read = ReadOrLeaveOut(
        host(), [&] { files.Read(kKelvaneGolferFile, place, golfer); },
        [&] { return "The golfer at place " + std::to_string(place); });
    if (!read || golfer.Get<"Status">() < 1 || golfer.Get<"IDNum">() < 1) continue;
    Working.SetCaption("SEARCHING for " + golfer.Get<"NameLast">());
    WorkingCount.SetCaption(std::to_string(place));
    host().RepaintNow(Working);
    host().Tell({place, places, Working.caption()});
    update(kLeaguePlayerFile, league.players);
    update(kLeagueSubstituteFile, league.substitutes);
  }
  return transferred;
}

void KVtoZD::Report(std::string log, std::int16_t transferred) {
  Message.SetText(std::move(log) + std::to_string(transferred) + " golfers transferred.");
}

}  // namespace golf
