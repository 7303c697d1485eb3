#include "screens/transfers/kv_to_qb.h"

#include <utility>

#include "core/number_text.h"
#include "core/resume_next.h"
#include "core/text.h"
#include "scoring/tournament_class.h"
#include "screens/remembered_settings.h"
#include "screens/rosters/load_roster.h"
#include "screens/tip_box.h"
#include "screens/transfers/quenby_rosters.h"
#include "stores/kelvane/kelvane_files.h"
#include "stores/quenby/program_class.h"
#include "transfers/tournament_update.h"

namespace golf {

KVtoQB::KVtoQB(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Transfer GOLFERS from Kelvane to Quenby");
  Add({&Label1[0], &HandicapRoster, &SourceButton, &Label1[1], &TournamentRoster, &DestButton,
       &MarkedtoPrint, &Convert18Hcpto9Hcp, &Convert9Hcpto18Hcp, &grid1, &Label1[2], &Working,
       &TransferButton, &ExitButton, &PreviewButton});
  TransferButton.SetDefault(true);
  ExitButton.SetCancel(true);
  SourceButton.on_click = [this] { FindSource(); };
  DestButton.on_click = [this] { FindDestination(); };
  TransferButton.on_click = [this] { Start(RunEnding::kCommit); };
  PreviewButton.on_click = [this] { Start(RunEnding::kPreview); };
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
  ReadRememberedHeader();
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

void KVtoQB::ReadRosterHeader() {
  state().InitSharedObjects();
  if (OpenKVRoster(state(), HandicapRoster.text())) {
    state().files.Read(kKelvaneHeaderFile, 1, state().Kelvane().header);
  }
}

// Shows the items without the names of the remembered roster if another program has it open and the
// host opens the screen nevertheless.
void KVtoQB::ReadRememberedHeader() {
  try {
    ReadRosterHeader();
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kPermissionDenied) ||
        !host().OpensDespite(HeldRosterText(HandicapRoster.text(), error))) {
      throw;
    }
    CloseKVFiles(state());
  }
}

void KVtoQB::FillItemGrid() {
  auto& header = state().Kelvane().header;
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
  // Trims the name in the header as well.
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
  HandicapRoster.SetText(AskForKelvaneRoster(state(), host(), HandicapRoster.text()));
  ReadRosterHeader();
  FillItemGrid();
}

void KVtoQB::FindDestination() {
  TournamentRoster.SetText(AskForQuenbyRoster(state(), host(), false, TournamentRoster.text()));
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

void KVtoQB::Start(RunEnding ending) {
  RunTransfer(*this, state(), host(), ending, [&] { Transfer(ending); });
}

void KVtoQB::Transfer(RunEnding ending) {
  if (IsBlankText(HandicapRoster.text())) {
    return ShowNotice("You must select a Kelvane roster before you can transfer golfers.");
  }
  if (IsBlankText(TournamentRoster.text())) {
    return ShowNotice("You must select a Quenby roster before you can transfer golfers.");
  }
  const GolfersKvToQbRequest request{.roster = HandicapRoster.text(),
                                     .destination = QuenbyRosterNumber(TournamentRoster.text()),
                                     .marked_only = MarkedtoPrint.value(),
                                     .choice = Choice()};
  const bool preview = ending == RunEnding::kPreview;
  GolfersKvToQbReport report;
  if (!CopyGolfers(request, ending, report)) return;
  if (report.end == RunEnd::kNoRoster) return ShowNotice("Cannot open Handicap Roster.");
  std::string updated;
  if (preview) updated = PreviewWithUpdate(report);
  host().Beep();
  TransferButton.SetVisible(true);
  host().NoteCount("updated", report.updated);
  host().NoteCount("added", report.added);
  // These steps belong to the run, which continues after a fault.
  const ResumeNext next([this](const NumberedError& fault) {
    if (dynamic_cast<const CommitFailed*>(&fault) != nullptr) throw;
    host().NoteFault(fault);
  });
  next([&] { ShowReport(report.log); });
  next([&] {
    if (!preview) updated = UpdateTournament(report.left_out);
    if (!updated.empty()) ShowNotice("Tournament '" + updated + "' handicaps updated.");
  });
  next([&] { host().Unload(*this); });
}

// Adds the update of the tournament to the preview, so that the operator sees one list and one
// commit applies both. Returns the name of the tournament if it is updated, and otherwise an empty
// text.
std::string KVtoQB::PreviewWithUpdate(const GolfersKvToQbReport& golfers) {
  std::string updated;
  PreviewNotes notes{.left_out = golfers.left_out};
  const ResumeNext next([this](const NumberedError& fault) { host().NoteFault(fault); });
  next([&] { updated = UpdateTournament(notes.left_out); });
  CommitPreview(notes);
  return updated;
}

void KVtoQB::CommitPreview(const PreviewNotes& notes) {
  try {
    ConfirmPreview(state(), host(), notes);
    state().transactions->Commit("");
    host().NoteLeftOut(notes.left_out);
  } catch (...) {
    TransferButton.SetVisible(true);  // nothing was transferred
    throw;
  }
}

// Runs the transfer. After an error, shows it to the operator and returns false. The button that
// the run has hidden stays hidden then.
bool KVtoQB::CopyGolfers(const GolfersKvToQbRequest& request, RunEnding ending,
                         GolfersKvToQbReport& report) {
  try {
    RunWhole(state(), host(),
             {.working = &Working,
              .button = &TransferButton,
              .begin = [this] { TransferButton.SetVisible(false); },
              .previewed_later = true},
             {.command = "golfers-kv-to-qb",
              .about = request.roster + " to " + QuenbyRosterTitle(TournamentRoster.text())},
             request, report);
    return true;
  } catch (const CommitFailed&) {
    throw;
  } catch (const NumberedError& error) {
    host().NoteRunEnded(error);
    if (error.Is(ErrorNumber::kPermissionDenied)) {
      ShowNotice(
          "The Kelvane is currently open.  You must close this program before you can transfer "
          "golfers.");
    } else {
      host().Ask(Box{.title = "Error",
                     .text = "Error # " + NumberText(error.number()) + " was generated by " +
                             error.source() + "\r" + error.description()});
    }
    if (ending == RunEnding::kPreview) CommitPreview({report.left_out, &error});
    return false;
  }
}

void KVtoQB::ShowReport(const std::string& log) {
  TipBox& box = SharedTipBox(host());
  box.SetMessageType(TipBox::kLastingNotice);
  box.SetMessageTitle("Golfers Transfered");
  box.SetMessageText(log);
}

void KVtoQB::ShowNotice(std::string text) {
  host().Ask(Box{.title = "Notice", .text = std::move(text), .icon = BoxIcon::kInformation});
}

// Asks whether to update the active tournament, and updates it. Returns its name if it is updated,
// and otherwise an empty text.
std::string KVtoQB::UpdateTournament(LeftOut& left_out) {
  // In a preview, the new objects read the changes that are held.
  state().InitSharedObjects();
  OpenQuenbyRosters(state());
  const std::int32_t number = state().Program().ActiveTournament();
  if (number <= 0) return {};
  TournamentControl& tournament = state().Tournament();
  tournament.OpenTournamentControlFile(number);
  tournament.GetRecord();
  const std::string name = tournament.Name();
  const std::string answer = host().Ask(
      InputBox{.title = "Update Handicaps?",
               .text = "Type 'YES' if you also want to update handicaps and indexes from the "
                       "Membership Roster to the active tournament '" +
                       name + "'.",
               .default_answer = "No"});
  if (!EqualIgnoringCase(std::string_view(answer).substr(0, 3), "Yes")) return {};
  TournamentUpdateReport report;
  RunWhole(state(), host(), {.previewed_later = true},
           {.command = "golfers-kv-to-qb", .about = name}, TournamentUpdateRequest{number}, report);
  left_out.Append(report.left_out);
  return state().Tournament().Name();
}

}  // namespace golf
