#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/courses/deleted_courses.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 10;
constexpr int kCharacters = 70;

}  // namespace

void FillDeletedCourses(ScreenPanel& panel, DeletedCourses& screen) {
  Binding& binding = panel.binding();
  const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
  auto* library = new wxBoxSizer(wxHORIZONTAL);
  library->Add(MakeFieldLabel(binding, &panel, screen.LibraryLabel),
               wxSizerFlags().CentreVertical());
  library->Add(
      NameAfter(binding, screen.LibraryLabel, MakeChoice(binding, &panel, screen.LibraryList)),
      wxSizerFlags().CentreVertical().Border(wxLEFT, CloseGap(panel)));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(library);
  content->Add(MakeFieldLabel(binding, &panel, screen.ListLabel),
               wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  wxDataViewCtrl* list =
      MakeList(binding, &panel, screen.CourseList, SelectedRows::kOne, kRowsSeen);
  SetRoom(panel, *NameAfter(binding, screen.ListLabel, list), kCharacters, kRowsSeen);
  content->Add(list, wxSizerFlags(below).Proportion(1));
  content->Add(MakeLabel(binding, &panel, screen.NoteLabel), below);
  AddToFoot(panel, ButtonRow({.cancel = MakeButton(binding, panel.foot(), screen.ExitButton),
                              .aside = {MakeButton(binding, panel.foot(), screen.RestoreButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
