#include "desktop/accessible.h"
#include "desktop/labelled.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/history/transfer_history.h"

namespace golf {
namespace {

constexpr Room kRuns{.characters = 110, .lines = 7, .share = 3};
constexpr int kReportCharacters = 80;
constexpr int kReportLines = 8;

wxBoxSizer* Buttons(ScreenPanel& panel, TransferHistory& screen) {
  const auto button = [&](Button& control) {
    return MakeButton(panel.binding(), panel.foot(), control);
  };
  return ButtonRow(
      {.cancel = button(screen.ExitButton),
       .aside = {button(screen.ChangesButton), button(screen.UndoButton), button(screen.CopyButton),
                 button(screen.SaveButton), button(screen.ForgetButton)}});
}

}  // namespace

void FillTransferHistory(ScreenPanel& panel, TransferHistory& screen) {
  Binding& binding = panel.binding();
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  AddLabelledList(*content, panel, screen.ListLabel, screen.RunList, SelectedRows::kOne, kRuns);
  content->Add(MakeFieldLabel(binding, &panel, screen.ReportLabel), group);
  content->Add(
      NameAfter(binding, screen.ReportLabel,
                MakeLog(panel, &panel, screen.ReportText, kReportCharacters, kReportLines)),
      wxSizerFlags(below).Proportion(2));
  AddToFoot(panel, Buttons(panel, screen));
  FinishWindow(panel, content);
}

}  // namespace golf
