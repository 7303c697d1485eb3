#include "desktop/labelled.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/about.h"

namespace golf {
namespace {

constexpr Room kPlaces{.characters = 80, .lines = 9, .share = 1};
constexpr Room kLibraries{.characters = 80, .lines = 12, .share = 1};

}  // namespace

void FillAbout(ScreenPanel& panel, About& screen) {
  Binding& binding = panel.binding();
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  wxStaticText* version = MakeLabel(binding, &panel, screen.VersionLabel);
  MakeBold(*version);
  content->Add(version, wxSizerFlags().Expand());
  content->Add(MakeLabel(binding, &panel, screen.CopyrightLabel), below);
  AddLabelledText(*content, panel, screen.PlacesLabel, screen.PlacesText, kPlaces);
  AddLabelledText(*content, panel, screen.LibrariesLabel, screen.LibrariesText, kLibraries);
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  wxButton* close = button(screen.ExitButton);
  AddToFoot(panel, ButtonRow({.cancel = close, .aside = {button(screen.CopyButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
