#include "desktop/grid_widget.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/history/transfer_history.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 7;
constexpr int kWidth = 860;  // in device-independent pixels
constexpr int kReportLines = 8;

wxTextCtrl* MakeReport(ScreenPanel& panel, TextBox& control) {
  wxTextCtrl* report =
      MakeTextBox(panel.binding(), &panel, control, wxTE_MULTILINE | wxTE_DONTWRAP);
  report->SetMinSize({-1, kReportLines * report->GetCharHeight()});
  return report;
}

wxSizer* Buttons(ScreenPanel& panel, TransferHistory& screen) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  for (Button* control : {&screen.ChangesButton, &screen.UndoButton, &screen.CopyButton,
                          &screen.SaveButton, &screen.ForgetButton}) {
    row->Add(MakeButton(panel.binding(), &panel, *control),
             wxSizerFlags().Border(wxRIGHT, CloseGap(panel)));
  }
  row->Add(ButtonRow({.cancel = MakeButton(panel.binding(), &panel, screen.ExitButton)}),
           wxSizerFlags(1));
  return row;
}

}  // namespace

void FillTransferHistory(ScreenPanel& panel, TransferHistory& screen) {
  Binding& binding = panel.binding();
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeFieldLabel(binding, &panel, screen.ListLabel));
  wxGrid* list = MakeGrid(binding, &panel, screen.RunList, GridMarks::kRows, kRowsSeen);
  list->SetMinSize({panel.FromDIP(kWidth), list->GetMinSize().y});
  content->Add(list, wxSizerFlags(below).Proportion(3));
  content->Add(MakeFieldLabel(binding, &panel, screen.ReportLabel), group);
  content->Add(MakeReport(panel, screen.ReportText), wxSizerFlags(below).Proportion(2));
  content->Add(Buttons(panel, screen), group);
  FinishWindow(panel, content);
}

}  // namespace golf
