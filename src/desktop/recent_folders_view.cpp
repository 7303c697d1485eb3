#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/menu/recent_folders.h"

namespace golf {
namespace {

constexpr int kCharacters = 60;
constexpr int kLines = 6;

}  // namespace

void FillRecentFolders(ScreenPanel& panel, RecentFolders& screen) {
  Binding& binding = panel.binding();
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeFieldLabel(binding, &panel, screen.ListLabel));
  wxListBox* list =
      NameAfter(binding, screen.ListLabel, MakeListBox(binding, &panel, screen.FolderList));
  SetRoom(panel, *list, kCharacters, kLines);
  content->Add(list, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  AddToFoot(panel, ButtonRow({.affirmative = button(screen.OpenButton),
                              .cancel = button(screen.CancelButton),
                              .aside = {button(screen.RemoveButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
