#include "screens/transfers/kv_to_zd.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/text.h"
#include "screens/history/preview.h"
#include "screens/rosters/load_roster.h"
#include "screens/settings_file.h"
#include "stores/zandel/zandel_files.h"
#include "transfers/golfers_kv_to_zd.h"

namespace golf {
namespace {

constexpr int kLeastPercent = 10;
constexpr int kMostPercent = 100;

}  // namespace

KVtoZD::KVtoZD(const ScreenContext& context)
    : Screen(kName, context),
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
  AddInto(Frame1, {&PreviewButton});
  Message.SetReadOnly(true);
  HandicapType[1].SetValue(true);
  for (std::size_t type = 0; type < HandicapType.size(); ++type) {
    HandicapType[type].on_click = [this, type] { SelectHandicap(type); };
  }
  FindKVMButton.on_click = [this] { FindSource(); };
  TransferButton.on_click = [this] { Start(RunEnding::kCommit); };
  PreviewButton.on_click = [this] { Start(RunEnding::kPreview); };
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

// Returns the path of the settings file. It is in the program's folder, unlike the settings files
// of other screens.
std::string KVtoZD::SettingsPath() const { return state().ProgramPath + "KVtoZD.DAT"; }

void KVtoZD::ReadOwnSettings() {
  SettingsReader from = ReadSettingsFile(state(), SettingsPath());
  if (const auto roster = from.Text()) {
    state().KVRosterName = *roster;
    SourcePath.SetCaption(*roster);
  }
  if (const auto league = from.Text()) DestLabel.SetCaption(*league);
  // The value is written as a word but read as a number, and a word reads as 0. The screen
  // therefore always opens with handicaps of 18 holes, which operators expect.
  if (const auto nine = from.Word()) SelectHandicap(LeadingNumber(*nine) == 0 ? 1 : 0);
  if (const auto percent = from.Text()) HandicapPrct.SetText(*percent);
}

void KVtoZD::FindSource() {
  SourcePath.SetCaption(AskForKelvaneRoster(state(), host(), SourcePath.caption()));
}

void KVtoZD::SelectHandicap(std::size_t type) {
  HandicapType[type].SetValue(true);
  HandicapType[1 - type].SetValue(false);
}

void KVtoZD::Start(RunEnding ending) {
  RunTransfer(*this, state(), host(), ending, [this] { Transfer(); });
}

void KVtoZD::Transfer() {
  if (IsBlankText(SourcePath.caption()) || IsBlankText(DestLabel.caption())) {
    host().Ask(Box{.title = "Info",
                   .text = "You must select both source roster and destination league before you "
                           "can transfer golfers.",
                   .icon = BoxIcon::kInformation});
    return;
  }
  GolfersKvToZdReport report;
  const GolfersKvToZdRequest request{.roster = SourcePath.caption(),
                                     .league = LeagueBase(DestLabel.caption()),
                                     .league_text = DestLabel.caption(),
                                     .percent = Percent(),
                                     .halved = HandicapType[0].value()};
  const std::string percent = HandicapPrct.text();
  try {
    RunWhole(state(), host(),
             {.working = &Working,
              .count = &WorkingCount,
              .button = &TransferButton,
              .hides_button = true,
              .message = &Message,
              .begin = [this] { HandicapPrct.SetText(std::to_string(Percent())); }},
             {.command = "golfers-kv-to-zd", .about = request.roster + " to " + request.league},
             request, report);
  } catch (const PreviewClosed&) {
    HandicapPrct.SetText(percent);
    throw;
  }
  if (report.end == RunEnd::kRefused) return;
  if (report.end == RunEnd::kNoRoster) {
    host().Ask(Box{.title = "Notice", .text = "Cannot open the Kelvane roster"});
  } else {
    host().NoteCount("transferred", report.transferred);
  }
  Message.SetText(report.log + std::to_string(report.transferred) + " golfers transferred.");
}

// A number outside the range is replaced by the highest percentage.
int KVtoZD::Percent() const {
  const double entered = std::clamp(LeadingNumber(HandicapPrct.text()), 0.0, 1000.0);
  const int percent = RoundToInt16(entered);
  return percent < kLeastPercent || percent > kMostPercent ? kMostPercent : percent;
}

}  // namespace golf
