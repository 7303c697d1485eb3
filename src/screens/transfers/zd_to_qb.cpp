#include "screens/transfers/zd_to_qb.h"

#include <string>

#include "core/text.h"
#include "screens/remembered_settings.h"
#include "screens/transfers/quenby_rosters.h"
#include "transfers/golfers_zd_to_qb.h"

namespace golf {
namespace {

constexpr std::size_t kBaseLength = 5;

}  // namespace

ZDtoQB::ZDtoQB(const ScreenContext& context)
    : Screen(kName, context),
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
  AddInto(Frame2, {&PreviewButton});
  Message.SetReadOnly(true);
  DestButton.on_click = [this] {
    TournamentRoster.SetText(AskForQuenbyRoster(state(), host(), true, TournamentRoster.text()));
  };
  TransferButton.on_click = [this] { Start(RunEnding::kCommit); };
  PreviewButton.on_click = [this] { Start(RunEnding::kPreview); };
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

// Notifies the operator of names that were cut. Golfers are found by their names, so the next
// transfer does not find a golfer with a cut name.
void ZDtoQB::NotifyOfLongNames(std::int32_t count) {
  if (count == 0) return;
  host().Notify(std::to_string(count) + (count == 1 ? " first name does" : " first names do") +
                " not fit Quenby's 11 characters. Another transfer adds " +
                (count == 1 ? "this golfer" : "these golfers") + " again.");
}

void ZDtoQB::Start(RunEnding ending) {
  bool done = false;
  RunTransfer(*this, state(), host(), ending, [&] { done = Transfer(); });
  if (done) CancelButton.Click();
}

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
  GolfersZdToQbReport report;
  const GolfersZdToQbRequest request{.league = base,
                                     .destination = QuenbyRosterNumber(TournamentRoster.text()),
                                     .doubled = Handicapto18.value(),
                                     .substitutes = TransferSubs.value()};
  RunWhole(
      state(), host(),
      {.working = &Working, .count = &WorkingCount, .button = &TransferButton, .message = &Message},
      {.command = "golfers-zd-to-qb",
       .about = base + " to " + QuenbyRosterTitle(TournamentRoster.text())},
      request, report,
      [](RunHost& run, const CommitFailed& error) { return AskForRetry(run, error); });
  if (report.given_up) host().NoteRunEnded(*report.given_up);
  host().NoteCount("updated", report.updated);
  host().NoteCount("added", report.added);
  Message.SetText(Message.text() + report.log);
  host().Beep();
  host().Ask(Box{.title = "Message",
                 .text = std::to_string(report.updated + report.added) + " golfers transfered.",
                 .icon = BoxIcon::kInformation});
  NotifyOfLongNames(report.long_first_names);
  return true;
}

}  // namespace golf
