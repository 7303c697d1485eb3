#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/courses/course_table.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 14;
constexpr int kListCharacters = 56;

}  // namespace

void FillCourseTable(ScreenPanel& panel, CourseTable& screen) {
  const auto button = [&](Button& control) { return MakeButton(panel.binding(), &panel, control); };
  auto* list = new wxBoxSizer(wxVERTICAL);
  list->Add(MakeHeading(&panel, "Courses"), wxSizerFlags().Border(wxBOTTOM, CloseGap(panel)));
  wxDataViewCtrl* courses =
      MakeList(panel.binding(), &panel, screen.CourseGrid, SelectedRows::kOne, kRowsSeen);
  SetRoom(panel, *Named("Courses", courses), kListCharacters, kRowsSeen);
  list->Add(courses, wxSizerFlags(1).Expand());
  auto* buttons = new wxBoxSizer(wxVERTICAL);
  buttons->Add(Column({button(screen.AddCourseButton), button(screen.EditCourseButton),
                       button(screen.DeleteCourseButton), button(screen.Help)}),
               wxSizerFlags().Expand());
  buttons->AddStretchSpacer();
  buttons->Add(button(screen.CloseButton), wxSizerFlags().Expand());
  auto* content = new wxBoxSizer(wxHORIZONTAL);
  content->Add(list, wxSizerFlags(1).Expand().Border(wxRIGHT, GroupGap(panel)));
  content->Add(buttons, wxSizerFlags().Expand());
  FinishWindow(panel, content);
}

}  // namespace golf
