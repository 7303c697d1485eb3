#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/about.h"

namespace golf {
namespace {

constexpr int kCharacters = 80;
constexpr int kPlacesLines = 9;
constexpr int kLibrariesLines = 12;

}  // namespace

void FillAbout(ScreenPanel& panel, About& screen) {
  Binding& binding = panel.binding();
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  wxStaticText* version = MakeLabel(binding, &panel, screen.VersionLabel);
  MakeBold(*version);
  content->Add(version, wxSizerFlags().Expand());
  content->Add(MakeLabel(binding, &panel, screen.CopyrightLabel), below);
  const auto add = [&](Label& label, TextBox& text, int lines) {
    content->Add(MakeFieldLabel(binding, &panel, label), group);
    wxTextCtrl* box = NameAfter(binding, label, MakeTextBox(binding, &panel, text, wxTE_MULTILINE));
    SetRoom(panel, *box, kCharacters, lines);
    content->Add(box, wxSizerFlags(below).Proportion(1));
  };
  add(screen.PlacesLabel, screen.PlacesText, kPlacesLines);
  add(screen.LibrariesLabel, screen.LibrariesText, kLibrariesLines);
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  wxButton* close = button(screen.ExitButton);
  AddToFoot(panel, ButtonRow({.cancel = close, .aside = {button(screen.CopyButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
