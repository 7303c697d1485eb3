#include "transfers/zd_to_qb.h"

#include <algorithm>
#include <string>
#include <unordered_map>

#include "core/number_text.h"
#include "core/text.h"
#include "scoring/player/player_class.h"
#include "screens/remembered_settings.h"
#include "stores/quenby/free_golfer_places.h"
#include "stores/zandel/zandel_files.h"
#include "transfers/quenby_rosters.h"
#include "transfers/transfer_run.h"

namespace golf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kBaseLength = 5;
constexpr std::int32_t kHighestID = 99999;

// Errors of a disk, about which the operator may be able to do something.
constexpr int kDiskErrors[] = {57, 61, 70, 71, 75, 76};
constexpr int kDiskFull = 61;

bool IsOfDisk(const NumberedError& error) {
  return std::find(std::begin(kDiskErrors), std::end(kDiskErrors), error.number()) !=
         std::end(kDiskErrors);
}

// What a golfer is known by in both programs.
std::string NameKey(std::string_view last, std::string_view first) {
  return UpperCase(std::string(Trim(last)) + std::string(Trim(first)));
}

}  // namespace

// What a run knows of Quenby's golfers as they stood before it; one whom it adds is not found. A
// name leads to the first record that has it, as a walk over all records would.
struct ZDtoQB::Run {
  Run(std::int32_t records, Counts& all_counts)
      : length(records), places(records), counts(all_counts) {}

  std::int32_t length;
  std::unordered_map<std::string, std::int32_t> by_name;
  FreeGolferPlaces places;
  Counts& counts;
  std::int64_t done = 0;
  std::int64_t total = 0;
};

ZDtoQB::ZDtoQB(const ScreenContext& context)
    : Screen("ZDtoQB", context),
      picker(context.state, *this,
             {.panel = "Frame1",
              .tag = "SOURCE",
              .label = "Select the SOURCE League",
              .main = Frame2,
              .finder = SourceButton,
              .leave = CancelButton,
              .take = [this](std::string league) {
                LeagueRoster.SetText(std::move(league));
                MoveFocus(&TransferButton);
              }}) {
  SetCaption("Transfer GOLFERS from Zandel to Quenby");
  Add({&Frame2, &picker.Panel});
  AddInto(Frame2, {&SourceButton, &LeagueRoster, &DestButton, &TournamentRoster, &Handicapto18,
                   &TransferSubs, &TransferButton, &CancelButton, &Message, &Working, &WorkingCount,
                   &Label1[0], &Label1[1], &Label1[2], &Label1[3]});
  AddInto(picker.Panel, picker.Controls());
  Message.SetReadOnly(true);
  DestButton.on_click = [this] {
    TournamentRoster.SetText(AskForQuenbyRoster(state(), host(), true));
  };
  TransferButton.on_click = [this] {
    bool done = false;
    RunTransfer(*this, state(), host(), [&] { done = Transfer(); });
    if (done) CancelButton.Click();
  };
  CancelButton.on_click = [this] { host().Unload(*this); };
}

std::array<Control*, 6> ZDtoQB::Remembered() {
  return {&LeagueRoster, &TournamentRoster, &Handicapto18,
          &TransferSubs, &Message,          &picker.LeagueList};
}

void ZDtoQB::OnLoad() {
  state().StoreDataPath = state().QBDataPath;
  ReadSettings(state(), *this, Remembered());
  Message.SetText("");
  picker.Fill();
  OpenQuenbyRosters(state());
}

void ZDtoQB::OnUnload() { WriteSettings(state(), *this, Remembered()); }

void ZDtoQB::OpenAgain() { OpenQuenbyRosters(state()); }

bool ZDtoQB::Transfer() {
  const std::string base(LastCharacters(Trim(LeagueRoster.text()), kBaseLength));
  if (CompareIgnoringCase(base, " ") <= 0) {
    host().Beep();
    host().Ask(Box{.title = "Message", .text = "First select the source league"});
    MoveFocus(&SourceButton);
    return false;
  }
  if (IsBlankText(TournamentRoster.text())) {
    host().Ask(Box{.title = "Notice",
                   .text = "You must select a Quenby roster before you can transfer golfers."});
    return false;
  }
  state().InitSharedObjects();
  OpenLeagueGolfers(state(), base);
  Counts counts;
  CopyGolfers(counts);
  state().InitSharedObjects();
  Report(counts);
  return true;
}

bool ZDtoQB::Try(const std::function<void()>& operation) {
  for (;;) {
    try {
      operation();
      return true;
    } catch (const NumberedError& error) {
      if (!IsOfDisk(error)) throw;
      host().Beep();
      const BoxButton answer = host().Ask(Box{
          .title = "Message",
          .text = error.number() == kDiskFull ? "DISK IS FULL - You may need to delete nonessential"
                                              : "DISK ERROR" + NumberText(error.number()),
          .buttons = {BoxButton::kRetry, BoxButton::kCancel},
          .default_button = 1});
      if (answer == BoxButton::kRetry) continue;
      host().TellRunEnded(error);
      return false;
    }
  }
}

bool ZDtoQB::CopyGolfers(Counts& counts) {
  const CopyingLook look(host(), {&Working, &WorkingCount});
  state().Player().OpenRosterFile();
  Run run(state().Player().RosterFileLength(), counts);
  const auto& control = state().Zandel().control;
  std::int32_t players = control.Get<"PlayerFactor1">() * control.Get<"PlayerFactor2">();
  std::int32_t last_substitute = TransferSubs.value() ? control.Get<"LastSubRecord">() : 0;
  // Behind the end of a file stands nobody.
  const auto limit = [this](std::int32_t& last, int file) {
    last = std::min(last, state().files.RecordCount<LeaguePlayerLayout>(file));
  };
  if (!ReadQuenby(run) || !Try([&] { limit(players, kLeaguePlayerFile); }) ||
      !Try([&] { limit(last_substitute, kLeagueSubstituteFile); })) {
    return false;
  }
  run.total = std::max(players, 0) + std::max(last_substitute - kFirstSubstitute + 1, 0);
  return CopyRecords(run, kLeaguePlayerFile, 1, players) &&
         CopyRecords(run, kLeagueSubstituteFile, kFirstSubstitute, last_substitute);
}

bool ZDtoQB::ReadQuenby(Run& run) {
  TournamentPlayers& player = state().Player();
  IdNumberList& ids = state().id_numbers;
  ids.Run(IdNumberList::kSize, run.length);
  for (std::int32_t record = kFirstGolferRecord; record <= run.length; ++record) {
    if (!Try([&] { player.GetRecord(record, false); })) return false;
    run.places.Tell(record, player.StoredID());
    if (!player.PlayerExists()) continue;
    ids.Run(IdNumberList::kAppend, player.StoredID());
    run.by_name.emplace(NameKey(player.NameLast(), player.NameFirst()), record);
  }
  return true;
}

bool ZDtoQB::CopyRecords(Run& run, int file, std::int32_t first, std::int32_t last) {
  auto& golfer = state().Zandel().player;
  for (std::int32_t record = first; record <= last; ++record) {
    if (!Try([&] { state().files.Read(file, record, golfer); })) return false;
    ++run.done;
    if (!CopyGolfer(run)) return false;
  }
  return true;
}

bool ZDtoQB::CopyGolfer(Run& run) {
  const auto& golfer = state().Zandel().player;
  const std::string last_name = golfer.Get<"LastName">();
  const std::string first_name = golfer.Get<"FirstName">();
  if (CompareIgnoringCase(Trim(last_name), " ") <= 0) return true;
  Working.SetCaption("Transfering: " + std::string(Trim(first_name)) + " " +
                     std::string(Trim(last_name)));
  WorkingCount.SetCaption(std::to_string(run.done));
  host().RepaintNow(Working);
  host().Tell({run.done, run.total, Working.caption()});
  const auto found = run.by_name.find(NameKey(last_name, first_name));
  return found == run.by_name.end() ? AddNew(run) : Update(run, found->second);
}

bool ZDtoQB::Update(Run& run, std::int32_t record) {
  TournamentPlayers& player = state().Player();
  if (!Try([&] { player.GetRecord(record, false); })) return false;
  CopyFields();
  if (!Try([&] { player.SaveRecord(record, false); })) return false;
  CountUp(run.counts.updated);
  return true;
}

bool ZDtoQB::AddNew(Run& run) {
  TournamentPlayers& player = state().Player();
  IdNumberList& ids = state().id_numbers;
  const std::int32_t record = run.places.First();
  const std::int32_t id = ids.Run(IdNumberList::kNextFree, kHighestID);
  player.BlankPlayerRecord();
  player.SetIDNum(id);
  ids.Run(IdNumberList::kAppend, id);
  player.SetRosters(3, QuenbyRosterNumber(TournamentRoster.text()));
  CopyFields();
  CountUp(run.counts.added);
  if (!Try([&] { player.SaveRecord(record, false); })) return false;
  run.places.Tell(record, id);
  return true;
}

void ZDtoQB::CopyFields() {
  const auto& from = state().Zandel().player;
  TournamentPlayers& to = state().Player();
  to.SetNameLast(from.Get<"LastName">());
  to.SetNameFirst(from.Get<"FirstName">());
  to.Setsex(from.Get<"Sex">() == 1 ? "F" : "M");
  to.SetAddressHomeLine(1, from.Get<"AddressLine1">());
  to.SetAddressHomeLine(2, from.Get<"AddressLine2">());
  to.SetAddressHomeLine(3, from.Get<"AddressLine3">());
  to.SetPhoneHome(from.Get<"PhoneHome">());
  to.SetPhoneWork(from.Get<"PhoneWork">());
  to.SetIndex(0);
  to.SetHandicap(from.Get<"EventHandicap">(state().Zandel().control.Get<"CurrentEvent">()));
  if (Handicapto18.value()) to.SetHandicap(2 * LeadingNumber(to.HandicapValue(true)));
}

void ZDtoQB::Report(const Counts& counts) {
  host().TellCount("updated", counts.updated);
  host().TellCount("added", counts.added);
  std::string text = Message.text() + " Transfered";
  text.append(kLineEnd);
  text.append(std::to_string(counts.updated) + " golfers updated.").append(kLineEnd);
  text.append(std::to_string(counts.added) + " new golfers added.").append(kLineEnd);
  text.append(30, '=').append(kLineEnd);
  Message.SetText(std::move(text));
  host().Beep();
  host().Ask(Box{.title = "Message",
                 .text = std::to_string(counts.updated + counts.added) + " golfers transfered.",
                 .icon = BoxIcon::kInformation});
}

}  // namespace golf
