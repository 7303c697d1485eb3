#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/courses/course_form.h"

namespace golf {
namespace {

constexpr int kTextCharacters = 40;

// Lays out the texts of the course, each with its name before it.
wxSizer* Texts(ScreenPanel& panel, CourseForm& screen) {
  Binding& binding = panel.binding();
  auto* fields = new wxFlexGridSizer(2, CloseGap(panel), GroupGap(panel));
  fields->AddGrowableCol(1);
  std::size_t i = 0;
  const auto name = [&] {
    fields->Add(MakeLabel(binding, &panel, screen.lblLabels[i++]), wxSizerFlags().CentreVertical());
  };
  name();
  fields->Add(MakeLabel(binding, &panel, screen.FCourseNum), wxSizerFlags().Expand());
  for (TextBox* text : {&screen.FCourseName, &screen.FAddress1, &screen.FAddress2, &screen.FCity,
                        &screen.FState, &screen.FZipcode, &screen.FPhone, &screen.FGolfPro}) {
    name();
    wxTextCtrl* box =
        NameAfter(binding, screen.lblLabels[i - 1], MakeTextBox(binding, &panel, *text));
    SetColumns(*box, kTextCharacters);
    SetRoom(panel, *box);
    fields->Add(box, wxSizerFlags().Expand());
  }
  return fields;
}

wxPanel* Holes(ScreenPanel& panel, CourseForm& screen) {
  wxPanel* frame = MakeFrame(panel.binding(), &panel, screen.HolesFrame);
  wxSizer* column = Column({MakeHeading(frame, "Holes")});
  long style = wxRB_GROUP;
  for (OptionButton& option : screen.FHoleNum) {
    column->Add(MakeOption(panel.binding(), frame, option, style),
                wxSizerFlags().Border(wxTOP, CloseGap(panel)));
    style = 0;
  }
  frame->SetSizer(column);
  return frame;
}

}  // namespace

void FillCourseForm(ScreenPanel& panel, CourseForm& screen) {
  Binding& binding = panel.binding();
  auto* top = new wxBoxSizer(wxHORIZONTAL);
  top->Add(Texts(panel, screen), wxSizerFlags(1).Expand().Border(wxRIGHT, 2 * GroupGap(panel)));
  top->Add(Holes(panel, screen));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(top, wxSizerFlags().Expand());
  content->Add(MakeHeading(&panel, "Tees"), wxSizerFlags().Border(wxTOP, GroupGap(panel)));
  wxDataViewCtrl* tees =
      MakeList(binding, &panel, screen.grid1, SelectedRows::kOne, screen.grid1.rows());
  SetRoom(panel, *Named("Tees", tees));
  content->Add(tees, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel)));
  content->Add(MakeButton(binding, &panel, screen.EditTeeButton),
               wxSizerFlags().Border(wxTOP, CloseGap(panel)));
  AddToFoot(panel, ButtonRow({.affirmative = MakeButton(binding, panel.foot(), screen.OKButton),
                              .cancel = MakeButton(binding, panel.foot(), screen.CancelButton),
                              .aside = {MakeButton(binding, panel.foot(), screen.Help)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
