#include "screens/transfers/zd_to_kv.h"

#include "core/text.h"
#include "screens/remembered_settings.h"
#include "screens/rosters/load_roster.h"
#include "stores/zandel/zandel_batches.h"
#include "transfers/scores_zd_to_kv.h"

namespace golf {

ZDtoKV::ZDtoKV(const ScreenContext& context)
    : Screen(kName, context),
      picker(context.state, *this,
             {.panel = "Frame1",
              .tag = "SOURCE",
              .label = "Select the SOURCE League",
              .main = Frame2,
              .finder = SourceButton,
              .leave = ExitButton,
              .take = [this](std::string league) { TakeLeague(std::move(league)); },
              .pick_gives_escape_back = false}) {
  SetCaption("Transfer Zandel Scores to Kelvane");
  Add({&Frame2, &picker.Panel});
  AddInto(Frame2,
          {&SourceButton, &LeagueRoster, &EventList, &DestButton, &HandicapRoster, &TransferButton,
           &ExitButton, &Message, &Working, &Label1[0], &Label1[1], &Label1[2]});
  AddInto(picker.Panel, picker.Controls());
  AddInto(Frame2, {&PreviewButton});
  Message.SetReadOnly(true);
  EventList.on_click = [this] { TransferButton.SetVisible(true); };
  DestButton.on_click = [this] { FindDestination(); };
  TransferButton.on_click = [this] { Start(RunEnding::kCommit); };
  PreviewButton.on_click = [this] { Start(RunEnding::kPreview); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

std::array<Control*, 5> ZDtoKV::Remembered() {
  return {&LeagueRoster, &EventList, &HandicapRoster, &Message, &picker.LeagueList};
}

void ZDtoKV::OnLoad() {
  state().StoreDataPath = state().ZDDataPath;
  picker.Fill();
  ReadSettings(state(), *this, Remembered());
  LoadEventList();
  Message.SetText("");
  MoveFocus(&SourceButton);
}

void ZDtoKV::OnUnload() { WriteSettings(state(), *this, Remembered()); }

// Opens the league's files again and leaves the list and the chosen batch unchanged.
void ZDtoKV::OpenAgain() { LoadScoreBatches(state(), listed_league_); }

void ZDtoKV::TakeLeague(std::string league) {
  LeagueRoster.SetText(std::move(league));
  LoadEventList();
  MoveFocus(&TransferButton);
}

void ZDtoKV::LoadEventList() {
  listed_league_.clear();
  const auto batches = LoadScoreBatches(state(), LeagueRoster.text());
  if (!batches) return;
  listed_league_ = LeagueRoster.text();
  EventList.Clear();
  for (const ScoreBatch& batch : batches->list) EventList.AddItem(batch.Item());
  EventList.Select(batches->selected);
}

void ZDtoKV::FindDestination() {
  HandicapRoster.SetText(AskForKelvaneRoster(state(), host(), HandicapRoster.text()));
  TransferButton.SetVisible(true);
}

void ZDtoKV::Start(RunEnding ending) {
  RunTransfer(*this, state(), host(), ending, [this] { Transfer(); });
}

void ZDtoKV::Transfer() {
  if (IsBlankText(HandicapRoster.text()) || IsBlankText(LeagueRoster.text())) {
    host().Ask(Box{.title = "Info",
                   .text = "You must select both source league and destination roster before you "
                           "can transfer scores."});
    return;
  }
  ScoresZdToKvReport report;
  PostScores(report);
  if (report.end == RunEnd::kRefused) return;
  host().NoteCount("transferred", report.transferred);
  host().Ask(Box{
      .title = "Notice",
      .text = "Transfer Complete..." + std::to_string(report.transferred) + " scores transfered."});
  TransferButton.SetVisible(false);
}

// Posts the scores and shows the log, also after an error.
void ZDtoKV::PostScores(ScoresZdToKvReport& report) {
  const auto show_log = [&] {
    if (!report.log.empty()) Message.SetText(report.log);
  };
  const ScoresZdToKvRequest request{.roster = HandicapRoster.text(),
                                    .batch = BatchCode(EventList.text())};
  try {
    RunWhole(
        state(), host(),
        {.working = &Working, .button = &TransferButton, .message = &Message, .shows_log = true},
        {.command = "scores-zd-to-kv",
         .about = std::string(LastCharacters(Trim(LeagueRoster.text()), 5)) + ", batch " +
                  std::to_string(request.batch) + ", to " + request.roster},
        request, report);
  } catch (const CommitFailed&) {
    throw;
  } catch (const NumberedError&) {
    show_log();
    throw;
  }
  show_log();
}

}  // namespace golf
