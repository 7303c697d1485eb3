#include "desktop/accessible.h"
#include "desktop/labelled.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/courses/deleted_courses.h"

namespace golf {
namespace {

constexpr Room kList{.characters = 70, .lines = 10, .share = 1};

}  // namespace

void FillDeletedCourses(ScreenPanel& panel, DeletedCourses& screen) {
  Binding& binding = panel.binding();
  auto* library = new wxBoxSizer(wxHORIZONTAL);
  library->Add(MakeFieldLabel(binding, &panel, screen.LibraryLabel),
               wxSizerFlags().CentreVertical());
  library->Add(
      NameAfter(binding, screen.LibraryLabel, MakeChoice(binding, &panel, screen.LibraryList)),
      wxSizerFlags().CentreVertical().Border(wxLEFT, CloseGap(panel)));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(library);
  AddLabelledList(*content, panel, screen.ListLabel, screen.CourseList, SelectedRows::kOne, kList);
  content->Add(MakeLabel(binding, &panel, screen.NoteLabel),
               wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel)));
  AddToFoot(panel, ButtonRow({.cancel = MakeButton(binding, panel.foot(), screen.ExitButton),
                              .aside = {MakeButton(binding, panel.foot(), screen.RestoreButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
