#include "desktop/accessible.h"
#include "desktop/labelled.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/outlets/export_data.h"

namespace golf {
namespace {

constexpr Room kTables{.characters = 90, .lines = 8, .share = 2};
constexpr Room kNotes{.characters = 90, .lines = 4, .share = 1};
constexpr int kTargetCharacters = 50;

// Lays out the format and the target, each with its name before it.
wxSizer* Choices(ScreenPanel& panel, ExportData& screen) {
  Binding& binding = panel.binding();
  const auto middle = wxSizerFlags().CentreVertical();
  auto* fields = new wxFlexGridSizer(2, CloseGap(panel), GroupGap(panel));
  fields->AddGrowableCol(1);
  fields->Add(MakeFieldLabel(binding, &panel, screen.FormatLabel), middle);
  fields->Add(
      NameAfter(binding, screen.FormatLabel, MakeChoice(binding, &panel, screen.FormatList)));
  fields->Add(MakeFieldLabel(binding, &panel, screen.TargetLabel), middle);
  auto* target = new wxBoxSizer(wxHORIZONTAL);
  wxTextCtrl* path =
      NameAfter(binding, screen.TargetLabel, MakeTextBox(binding, &panel, screen.TargetText));
  SetColumns(*path, kTargetCharacters);
  target->Add(path, wxSizerFlags(1).CentreVertical());
  target->Add(MakeButton(binding, &panel, screen.ChooseButton),
              wxSizerFlags(middle).Border(wxLEFT, CloseGap(panel)));
  fields->Add(target, wxSizerFlags().Expand());
  return fields;
}

wxSizer* Ticks(ScreenPanel& panel, ExportData& screen) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(MakeCheckBox(panel.binding(), &panel, screen.DeletedCheck));
  row->Add(MakeCheckBox(panel.binding(), &panel, screen.ReplaceCheck),
           wxSizerFlags().Border(wxLEFT, GroupGap(panel)));
  return row;
}

}  // namespace

void FillExportData(ScreenPanel& panel, ExportData& screen) {
  Binding& binding = panel.binding();
  const int width = LineWidth(panel, kTables.characters);
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Choices(panel, screen), wxSizerFlags().Expand());
  content->Add(Ticks(panel, screen), below);
  content->Add(MakeWarning(panel, screen.MessageLabel, width), below);
  auto* run = new wxBoxSizer(wxVERTICAL);
  AddCancellableRun(*run, panel, screen.ExportButton, screen.run);
  content->Add(run, group);
  wxStaticText* summary = MakeWrappedLabel(binding, &panel, screen.SummaryLabel, width);
  MakeBold(*summary);
  content->Add(summary, group);
  AddLabelledList(*content, panel, screen.TableLabel, screen.TableList, SelectedRows::kSeveral,
                  kTables);
  AddLabelledText(*content, panel, screen.NotesLabel, screen.NotesText, kNotes);
  AddToFoot(panel, ButtonRow({.cancel = MakeButton(binding, panel.foot(), screen.ExitButton)}));
  FinishWindow(panel, content);
}

}  // namespace golf
