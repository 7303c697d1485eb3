#include "transfers/kv_to_qb.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

#include "core/number_text.h"
#include "core/take_records.h"
#include "core/text.h"
#include "scoring/player/player_class.h"
#include "scoring/tournament_class.h"
#include "screens/remembered_settings.h"
#include "screens/rosters/load_roster.h"
#include "screens/tip_box.h"
#include "stores/course/course_class.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/quenby/free_golfer_places.h"
#include "stores/quenby/program_class.h"
#include "transfers/quenby_rosters.h"
#include "transfers/transfer_run.h"

namespace golf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

void TellNotice(ScreenHost& host, std::string text) {
  host.Ask(Box{.title = "Notice", .text = std::move(text), .icon = BoxIcon::kInformation});
}

// Quenby's golfers as the file stood before the run: where an ID is found first, as a walk from the
// first record would find it, and where golfers can be added. Golfers added in the run are not
// found. An ID of 0 finds the first record without a golfer.
class QuenbyGolfers {
 public:
  QuenbyGolfers(TournamentPlayers& player, std::int32_t length) : places(length) {
    unread_ = TakeRecords(kFirstGolferRecord, length, [&](std::int32_t record) {
      player.GetRecord(record, false);
      places.Tell(record, player.StoredID());
      const auto first = first_.emplace(std::max(player.StoredID(), 0), record).first;
      first->second = std::min(first->second, record);
    });
  }

  // Error where a golfer who was not found may stand in a record that cannot be read. To add him
  // anew could make two of him.
  void CheckAllRead() const {
    if (unread_.empty()) return;
    throw ReadError({ErrorNumber::kDeviceFault,
                     "Record " + std::to_string(unread_.front()) +
                         " of Quenby's golfer file cannot be read, and he may stand there."});
  }
  // 0 if there is none.
  std::int32_t Find(std::int32_t id) const {
    const auto found = first_.find(id);
    return found == first_.end() ? 0 : found->second;
  }

  FreeGolferPlaces places;

 private:
  std::unordered_map<std::int32_t, std::int32_t> first_;
  std::vector<std::int32_t> unread_;
};

}  // namespace

KVtoQB::KVtoQB(const ScreenContext& context) : Screen("KVtoQB", context) {
  SetCaption("Transfer GOLFERS from Kelvane to Quenby");
  Add({&Label1[0], &HandicapRoster, &SourceButton, &Label1[1], &TournamentRoster, &DestButton,
       &MarkedtoPrint, &Convert18Hcpto9Hcp, &Convert9Hcpto18Hcp, &grid1, &Label1[2], &Working,
       &TransferButton, &ExitButton});
  TransferButton.SetDefault(true);
  ExitButton.SetCancel(true);
  SourceButton.on_click = [this] { FindSource(); };
  DestButton.on_click = [this] { FindDestination(); };
  TransferButton.on_click = [this] { RunTransfer(*this, state(), host(), [this] { Transfer(); }); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

std::array<Control*, 6> KVtoQB::Remembered() {
  return {&Convert9Hcpto18Hcp, &Convert18Hcpto9Hcp, &TournamentRoster,
          &HandicapRoster,     &MarkedtoPrint,      &grid1};
}

void KVtoQB::OnLoad() {
  SetUpGrid();
  state().StoreDataPath = state().QBDataPath;
  ReadSettings(state(), *this, Remembered());
  FillItemGrid();
}

void KVtoQB::OnUnload() { WriteSettings(state(), *this, Remembered()); }

void KVtoQB::SetUpGrid() {
  grid1.SetHeading(kItemColumn, "Kelvane Items");
  grid1.SetHeading(kTickColumn, "Copy to >>");
  grid1.SetHeading(kQuenbyItemColumn, "Quenby Items");
  grid1.SetHidden(0, true);
  grid1.SetCellType(kTickColumn, CellType::kCheckBox);
  for (const int column : {0, kItemColumn, kQuenbyItemColumn}) grid1.LockColumn(column, true);
  grid1.SetRows(GolferToQbChoice::kRows);
  for (int row = 1; row <= grid1.rows(); ++row) grid1.SetText(kTickColumn, row, "0");
  grid1.SetText(kTickColumn, 1, "1");
  grid1.LockRow(1, true);
}

void KVtoQB::ShowItem(int row, const std::string& kelvane, const std::string& quenby) {
  grid1.SetText(kItemColumn, row, kelvane);
  grid1.SetText(kQuenbyItemColumn, row, quenby);
}

void KVtoQB::FillItemGrid() {
  state().InitSharedObjects();
  auto& header = state().Kelvane().header;
  if (OpenKVRoster(state(), HandicapRoster.text())) {
    state().files.Read(kKelvaneHeaderFile, 1, header);
  }
  const bool eighteen = header.Get<"Holes">() == 18;
  Convert18Hcpto9Hcp.SetVisible(eighteen);
  Convert9Hcpto18Hcp.SetVisible(!eighteen);
  OpenQuenbyRosters(state());
  const ProgramClass& program = state().Program();

  constexpr const char* kAlways = "ID#, name, addresses, phone#s, email, hcp, index";
  ShowItem(1, kAlways, kAlways);
  ShowItem(2, "Flight", "Flight");
  ShowItem(3, "Group #", "Tee Group");
  ShowItem(4, "Group Text", "Group Text");
  // The name goes back trimmed into the header.
  const auto trimmed = [&]<FieldName kName>(int i) {
    const std::string name(Trim(header.Get<kName>(i)));
    header.Set<kName>({i}, name);
    return name;
  };
  for (int i = 1; i <= 2; ++i) {
    ShowItem(4 + i, trimmed.operator()<"MiscDateName">(i), program.MiscDateFieldName(i));
  }
  for (int i = 1; i <= 5; ++i) {
    ShowItem(6 + i, trimmed.operator()<"MiscTextName">(i), program.MiscTextFieldName(i));
    ShowItem(11 + i, trimmed.operator()<"MiscCurrName">(i), program.MiscCurrFieldName(i));
  }
}

void KVtoQB::FindSource() {
  auto& picker = dynamic_cast<LoadRoster&>(host().Load("LoadRoster"));
  picker.SetTag("OPENONLY");
  picker.NewButton.SetVisible(false);
  host().ShowModal(picker);
  HandicapRoster.SetText(state().KVRosterName);
  FillItemGrid();
}

void KVtoQB::FindDestination() {
  TournamentRoster.SetText(AskForQuenbyRoster(state(), host(), false));
}

GolferToQbChoice KVtoQB::Choice() const {
  GolferToQbChoice choice;
  choice.halve_handicap = Convert18Hcpto9Hcp.visible() && Convert18Hcpto9Hcp.value();
  choice.double_handicap = Convert9Hcpto18Hcp.visible() && Convert9Hcpto18Hcp.value();
  for (int row = 1; row <= GolferToQbChoice::kRows; ++row) {
    choice.item[static_cast<std::size_t>(row)] = LeadingNumber(grid1.text(kTickColumn, row)) != 0;
  }
  return choice;
}

void KVtoQB::Transfer() {
  if (IsBlankText(HandicapRoster.text())) {
    return TellNotice(host(), "You must select a Kelvane roster before you can transfer golfers.");
  }
  if (IsBlankText(TournamentRoster.text())) {
    return TellNotice(host(), "You must select a Quenby roster before you can transfer golfers.");
  }
  if (const auto quenby_golfers = OpenFiles()) CopyGolfers(*quenby_golfers);
}

std::optional<std::int32_t> KVtoQB::OpenFiles() {
  try {
    if (!OpenKVRoster(state(), HandicapRoster.text())) {
      TellNotice(host(), "Cannot open Handicap Roster.");
      return std::nullopt;
    }
    TransferButton.SetVisible(false);
    host().SetPointer(Pointer::kBusy);
    state().files.Read(kKelvaneHeaderFile, 1, state().Kelvane().header);
    state().Player().OpenRosterFile();
    return state().Player().RosterFileLength();
  } catch (const NumberedError& error) {
    host().SetPointer(Pointer::kNormal);
    host().TellRunEnded(error);
    if (error.Is(ErrorNumber::kPermissionDenied)) {
      TellNotice(host(),
                 "The Kelvane is currently open.  You must close this program before you can "
                 "transfer golfers.");
    } else {
      host().Ask(Box{.title = "Error",
                     .text = "Error # " + NumberText(error.number()) + " was generated by " +
                             error.source() + "\r" + error.description()});
    }
    return std::nullopt;
  }
}

void KVtoQB::CopyGolfers(std::int32_t length) {
  const ResumeNext next([this](const NumberedError& fault) {
    host().SetPointer(Pointer::kNormal);
    host().TellFault(fault);
  });
  const auto read = [this](auto&& statement, auto&& who) {
    const bool done = ReadOrLeaveOut(host(), statement, who);
    if (!done) host().SetPointer(Pointer::kNormal);
    return done;
  };
  FileTable& files = state().files;
  TournamentPlayers& player = state().Player();
  auto& golfer = state().Kelvane().golfer;
  const GolferToQbChoice choice = Choice();
  const double destination = QuenbyRosterNumber(TournamentRoster.text());

  QuenbyGolfers quenby(player, length);

  // A golfer without an ID leaves his record free, even one that was not before.
  const auto save = [&](std::int32_t record) {
    player.SaveRecord(record, false);
    quenby.places.Tell(record, player.StoredID());
  };

  Counts counts;
  std::int32_t places = 0;
  next([&] { places = KVGolferPlaces(state()); });
  for (std::int32_t place = 1; place <= places; ++place) {
    const bool there = read([&] { files.Read(kKelvaneGolferFile, place, golfer); },
                            [&] { return "The golfer at place " + std::to_string(place); });
    if (!there) continue;
    const bool wanted = !MarkedtoPrint.value() || golfer.Get<"MarkedToPrint">() != 0;
    if (!wanted || golfer.Get<"Status">() < 1) continue;
    Working.SetCaption("Transferring: " + std::to_string(counts.updated + counts.added) + " " +
                       golfer.Get<"NameLast">());
    host().RepaintNow(Working);
    host().Tell({place, places, Working.caption()});
    const std::int32_t found = quenby.Find(golfer.Get<"IDNum">());
    const auto prepare = [&] {
      if (found > 0) {
        player.GetRecord(found, false);
      } else {
        quenby.CheckAllRead();
        player.BlankPlayerRecord();
      }
    };
    if (!read(prepare, [&] { return KVGolferName(golfer); })) continue;
    if (found > 0) {
      CopyGolferToQb(state(), choice, next);
      next([&] { player.SetRosters(3, destination); });
      next([&] { save(found); });
      ++counts.updated;
    } else {
      const std::int32_t free = quenby.places.First();
      CopyGolferToQb(state(), choice, next);
      next([&] { player.SetRosters(3, destination); });
      ++counts.added;
      next([&] { save(free); });
    }
  }
  Working.SetCaption("");
  host().Beep();
  TransferButton.SetVisible(true);
  host().SetPointer(Pointer::kNormal);
  host().TellCount("updated", counts.updated);
  host().TellCount("added", counts.added);
  next([&] { Report(counts); });
  next([&] { AskTournamentUpdate(); });
  next([&] { host().Unload(*this); });
}

void KVtoQB::Report(const Counts& counts) {
  std::string text = HandicapRoster.text() + " TRANSFERED:";
  text.append(kLineEnd);
  text.append(std::to_string(counts.updated) + " golfers updated.").append(kLineEnd);
  text.append(std::to_string(counts.added) + " new golfers added.").append(kLineEnd);
  text.append(30, '=').append(kLineEnd);
  TipBox& box = SharedTipBox(host());
  box.SetMessageType(TipBox::kLastingNotice);
  box.SetMessageTitle("Golfers Transfered");
  box.SetMessageText(std::move(text));
}

void KVtoQB::AskTournamentUpdate() {
  state().InitSharedObjects();
  OpenQuenbyRosters(state());
  const std::int32_t number = state().Program().ActiveTournament();
  if (number <= 0) return;
  TournamentControl& tournament = state().Tournament();
  tournament.OpenTournamentControlFile(number);
  tournament.GetRecord();
  const std::string answer = host().Ask(
      InputBox{.title = "Update Handicaps?",
               .text = "Type 'YES' if you also want to update handicaps and indexes from the "
                       "Membership Roster to the active tournament '" +
                       tournament.Name() + "'.",
               .default_answer = "No"});
  if (!EqualIgnoringCase(std::string_view(answer).substr(0, 3), "Yes")) return;
  UpdateTournament(number);
  TellNotice(host(), "Tournament '" + tournament.Name() + "' handicaps updated.");
}

void KVtoQB::UpdateTournament(std::int32_t number) {
  state().CourseDataPath = state().QBDataPath;
  state().Course().OpenCourseFile();
  TournamentPlayers& player = state().Player();
  player.OpenRosterFile();
  player.TourOpenTournamentFile(number);
  const std::int32_t entries = player.TourFileLength();
  for (std::int32_t entry = 1; entry <= entries; ++entry) {
    const bool read = ReadOrLeaveOut(
        host(), [&] { player.GetRecord(entry, true); },
        [&] { return "Entry " + std::to_string(entry) + " of the tournament"; });
    if (!read || player.TourRosterRecordPointer() <= 0) continue;
    for (int round = 1; round <= kRounds; ++round) {
      player.SetTourIndex(round, LeadingNumber(player.IndexValue()));
      player.SetTourGrossHandicap(round, LeadingNumber(player.HandicapValue(true)));
    }
    player.SaveRecord(entry, true);
  }
}

}  // namespace golf
