#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/history/change_preview.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 14;
constexpr int kCharacters = 110;
constexpr int kFindCharacters = 30;

wxSizer* Search(ScreenPanel& panel, ChangePreview& screen) {
  Binding& binding = panel.binding();
  const auto middle = wxSizerFlags().CentreVertical();
  const auto beside = wxSizerFlags(middle).Border(wxLEFT, CloseGap(panel));
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  row->Add(MakeFieldLabel(binding, &panel, screen.FilterLabel), middle);
  wxTextCtrl* find =
      NameAfter(binding, screen.FilterLabel, MakeTextBox(binding, &panel, screen.FilterBox));
  SetColumns(*find, kFindCharacters);
  row->Add(find, beside);
  row->Add(MakeFieldLabel(binding, &panel, screen.KindLabel),
           wxSizerFlags(middle).Border(wxLEFT, GroupGap(panel)));
  row->Add(NameAfter(binding, screen.KindLabel, MakeChoice(binding, &panel, screen.KindList)),
           beside);
  return row;
}

wxBoxSizer* Buttons(ScreenPanel& panel, ChangePreview& screen) {
  const auto button = [&](Button& control) {
    return MakeButton(panel.binding(), panel.foot(), control);
  };
  return ButtonRow({.affirmative = button(screen.TransferNowButton),
                    .cancel = button(screen.CloseButton),
                    .aside = {button(screen.CopyButton), button(screen.SaveButton)}});
}

}  // namespace

void FillChangePreview(ScreenPanel& panel, ChangePreview& screen) {
  Binding& binding = panel.binding();
  const int width = LineWidth(panel, kCharacters);
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  wxStaticText* counts = MakeWrappedLabel(binding, &panel, screen.CountsLabel, width);
  MakeBold(*counts);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(counts, wxSizerFlags().Expand());
  content->Add(MakeWrappedLabel(binding, &panel, screen.NoteLabel, width), below);
  content->Add(Search(panel, screen), wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  content->Add(MakeHeading(&panel, "Changes"), wxSizerFlags().Border(wxTOP, GroupGap(panel)));
  wxDataViewCtrl* list =
      MakeList(binding, &panel, screen.ChangeList, SelectedRows::kSeveral, kRowsSeen);
  SetRoom(panel, *Named("Changes", list), kCharacters, kRowsSeen);
  content->Add(list, wxSizerFlags(below).Proportion(1));
  AddToFoot(panel, Buttons(panel, screen));
  FinishWindow(panel, content);
}

}  // namespace golf
