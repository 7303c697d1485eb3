#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/outlets/check_data.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 10;
constexpr int kCharacters = 130;
constexpr int kDetailCharacters = 80;
constexpr int kDetailLines = 4;

wxSizer* Kinds(ScreenPanel& panel, CheckData& screen) {
  Binding& binding = panel.binding();
  const auto middle = wxSizerFlags().CentreVertical();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(MakeFieldLabel(binding, &panel, screen.KindLabel), middle);
  row->Add(NameAfter(binding, screen.KindLabel, MakeChoice(binding, &panel, screen.KindList)),
           wxSizerFlags(middle).Border(wxLEFT, CloseGap(panel)));
  return row;
}

wxBoxSizer* Buttons(ScreenPanel& panel, CheckData& screen) {
  const auto button = [&](Button& control) {
    return MakeButton(panel.binding(), panel.foot(), control);
  };
  return ButtonRow(
      {.cancel = button(screen.ExitButton),
       .aside = {button(screen.OpenButton), button(screen.CopyButton), button(screen.SaveButton)}});
}

}  // namespace

void FillCheckData(ScreenPanel& panel, CheckData& screen) {
  Binding& binding = panel.binding();
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  AddCancellableRun(*content, panel, screen.CheckButton, screen.run);
  wxStaticText* summary =
      MakeWrappedLabel(binding, &panel, screen.SummaryLabel, LineWidth(panel, kCharacters));
  MakeBold(*summary);
  content->Add(summary, group);
  content->Add(Kinds(panel, screen), below);
  content->Add(MakeFieldLabel(binding, &panel, screen.FindingLabel), group);
  wxDataViewCtrl* list =
      MakeList(binding, &panel, screen.FindingList, SelectedRows::kOne, kRowsSeen);
  SetRoom(panel, *NameAfter(binding, screen.FindingLabel, list), kCharacters, kRowsSeen);
  content->Add(list, wxSizerFlags(below).Proportion(3));
  content->Add(MakeFieldLabel(binding, &panel, screen.DetailLabel), group);
  wxTextCtrl* detail = NameAfter(binding, screen.DetailLabel,
                                 MakeTextBox(binding, &panel, screen.DetailText, wxTE_MULTILINE));
  SetRoom(panel, *detail, kDetailCharacters, kDetailLines);
  content->Add(detail, wxSizerFlags(below).Proportion(1));
  AddToFoot(panel, Buttons(panel, screen));
  FinishWindow(panel, content);
}

}  // namespace golf
