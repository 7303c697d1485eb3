#include "desktop/accessible.h"
#include "desktop/labelled.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/outlets/check_data.h"

namespace golf {
namespace {

constexpr Room kFindings{.characters = 130, .lines = 10, .share = 3};
constexpr Room kDetail{.characters = 80, .lines = 4, .share = 1};

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
  wxStaticText* summary = MakeWrappedLabel(binding, &panel, screen.SummaryLabel,
                                           LineWidth(panel, kFindings.characters));
  MakeBold(*summary);
  content->Add(summary, group);
  content->Add(Kinds(panel, screen), below);
  AddLabelledList(*content, panel, screen.FindingLabel, screen.FindingList, SelectedRows::kOne,
                  kFindings);
  AddLabelledText(*content, panel, screen.DetailLabel, screen.DetailText, kDetail);
  AddToFoot(panel, Buttons(panel, screen));
  FinishWindow(panel, content);
}

}  // namespace golf
