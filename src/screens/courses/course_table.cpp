#include "screens/courses/course_table.h"

#include <algorithm>
#include <string>
#include <vector>

#include "core/number_text.h"
#include "core/text.h"
#include "screens/courses/course_form.h"
#include "screens/file_changes.h"
#include "stores/course/course_class.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

constexpr int kNumberColumn = 0;
constexpr int kNameColumn = 1;
constexpr int kHolesColumn = 2;
constexpr int kKelvaneColumn = 3;

}  // namespace

CourseTable::CourseTable(const ScreenContext& context) : Screen(kName, context) {
  Add({&CourseGrid, &AddCourseButton, &EditCourseButton, &DeleteCourseButton, &CloseButton, &Help});
  CourseGrid.SetHeading(kNameColumn, "Course Name");
  CourseGrid.SetHeading(kHolesColumn, "# of holes");
  CourseGrid.SetHeading(kKelvaneColumn, "KV Course");
  CourseGrid.SetHidden(kNumberColumn, true);
  for (const int column : {kHolesColumn, kKelvaneColumn}) CourseGrid.SetCentred(column, true);
  for (int column = 0; column <= CourseGrid.columns(); ++column) {
    CourseGrid.LockColumn(column, true);
  }
  CloseButton.SetCancel(true);
  const auto press = [](const Button& button) {
    if (!button.IsShown()) return false;
    button.Click();
    return true;
  };
  CourseGrid.on_key = [this, press](std::string_view key) {
    if (EqualIgnoringCase(key, "Insert")) return press(AddCourseButton);
    return EqualIgnoringCase(key, "Delete") && press(DeleteCourseButton);
  };
  CourseGrid.on_double_click = [this, press] { press(EditCourseButton); };
  AddCourseButton.on_click = [this] { AddCourse(); };
  EditCourseButton.on_click = [this] { EditCourse(); };
  DeleteCourseButton.on_click = [this] { DeleteCourse(); };
  CloseButton.on_click = [this] { Close(); };
  Help.on_click = [this] {
    host().Ask(Box{.title = "Course library",
                   .text = "Insert adds a course, Delete deletes the marked one, a double click "
                           "edits it. A deleted course keeps its number, which is never given "
                           "again. Close brings the lists of courses up to date.",
                   .icon = BoxIcon::kInformation,
                   .window_help = name()});
  };
}

void CourseTable::OnLoad() {
  const CourseLibrary* library = FindCourseLibrary(state().Course().ActiveProgram());
  SetCaption("Course library - " +
             (library == nullptr ? std::string() : CourseFilePath(state(), *library)));
  kelvane_installed_ = state().Course().ActiveProgram() == "QB" &&
                       state().files.FileExists(state().ProgramPath + "KVM.EXE");
  CourseGrid.SetHidden(kKelvaneColumn, !kelvane_installed_);
  LoadGrid(0);
}

void CourseTable::OnActivate() {
  if (focus() == nullptr) MoveFocus(&CourseGrid);
}

void CourseTable::LoadGrid(std::int32_t course_in_hand) {
  CourseClass& course = state().Course();
  const int row_before = CourseGrid.active_row();
  const std::vector<std::int32_t> records = course.ActiveCoursesByName();
  const int rows = static_cast<int>(records.size());
  int row = 0;
  int row_in_hand = 0;
  CourseGrid.SetRepainting(false);
  CourseGrid.SetRows(rows);
  for (const std::int32_t record : records) {
    const CourseDigest& listed = *course.FindDigest(record);
    ++row;
    if (record == course_in_hand) row_in_hand = row;
    CourseGrid.SetText(kNumberColumn, row, std::to_string(record));
    CourseGrid.SetText(kNameColumn, row, std::string(Trim(listed.Name())));
    CourseGrid.SetText(kHolesColumn, row, HolesText(listed.hole_num_flag));
    CourseGrid.SetText(kKelvaneColumn, row, listed.kv_course_num > 0 ? "Yes" : "No");
  }
  CourseGrid.SetRepainting(true);
  EditCourseButton.SetVisible(rows > 0);
  DeleteCourseButton.SetVisible(rows > 0);
  if (row_in_hand == 0) row_in_hand = std::clamp(row_before, std::min(rows, 1), rows);
  CourseGrid.SetActiveRow(row_in_hand);
}

std::int32_t CourseTable::ChosenCourse() const {
  return RoundToInt32(LeadingNumber(CourseGrid.text(kNumberColumn, CourseGrid.active_row())));
}

// Warns that the course was transferred from Kelvane. Returns true if the operator cancels. `what`
// is "edit" or "delete".
bool CourseTable::IsCancelledByWarning(std::string_view what) {
  const std::string done(what == "edit" ? "new 'edited'" : "'deleted'");
  const BoxButton answer = host().Ask(
      Box{.title = "Notice",
          .text = "Note: This course was transferred from the Kelvane.  It is "
                  "recommended that you '" +
                  std::string(what) + "' this course in the Kelvane and retransfer the " + done +
                  " course to the Quenby.\r\rClick OK to continue anyway.",
          .buttons = {BoxButton::kOk, BoxButton::kCancel},
          .default_button = 1});
  return answer == BoxButton::kCancel;
}

bool CourseTable::FormAccepted(Screen& form) {
  const auto alive = form.shared_from_this();
  host().ShowModal(form);
  return form.tag() == "OK";
}

void CourseTable::AddCourse() {
  CourseClass& course = state().Course();
  course.BuildBlankRecord();
  form_used_ = true;
  auto& form = Load<CourseForm>(host());
  const auto alive = form.shared_from_this();
  form.BeginAdd();
  if (!FormAccepted(form)) return;
  form.CopyToRecord();
  course.Setactiveflag(1);
  const std::int32_t record = course.CourseFileLength() + 1;
  Save("add-course", record);
  LoadGrid(record);
}

void CourseTable::EditCourse() {
  CourseClass& course = state().Course();
  const std::int32_t record = ChosenCourse();
  course.GetRecord(record);
  if (kelvane_installed_ && course.KVCourseNum() > 0 && IsCancelledByWarning("edit")) return;
  form_used_ = true;
  auto& form = Load<CourseForm>(host());
  const auto alive = form.shared_from_this();
  form.BeginEdit(record);
  if (FormAccepted(form)) {
    form.CopyToRecord();
    course.Setactiveflag(1);
    Save("edit-course", record);
  }
  LoadGrid(record);
}

void CourseTable::DeleteCourse() {
  const int row = CourseGrid.active_row();
  const bool from_kelvane = CourseGrid.text(kKelvaneColumn, row) == "Yes";
  if (kelvane_installed_ && from_kelvane && IsCancelledByWarning("delete")) return;
  const std::string answer = host().Ask(InputBox{
      .title = "DELETE COURSE?",
      .text = "Type 'YES' if you want to\rdelete course: " + CourseGrid.text(kNameColumn, row),
      .default_answer = "NO"});
  if (!MeansYes(answer)) return;
  CourseClass& course = state().Course();
  const std::int32_t record = ChosenCourse();
  course.GetRecord(record);
  course.Setactiveflag(0);
  Save("delete-course", record);
  LoadGrid(0);
}

// Saves the course in the buffer as a transaction.
void CourseTable::Save(const char* command, std::int32_t record) {
  CourseClass& course = state().Course();
  ChangeFiles(state(), host(), command, std::string(Trim(course.Name())),
              [&] { course.SaveRecord(record); });
}

void CourseTable::Close() {
  std::vector<std::int32_t> records;
  for (int row = 1; row <= CourseGrid.rows(); ++row) {
    records.push_back(RoundToInt32(LeadingNumber(CourseGrid.text(kNumberColumn, row))));
  }
  ChangeFiles(state(), host(), "course-indexes", state().Course().ActiveProgram(),
              [&] { state().Course().RebuildCourseIndexes(records); });
  host().Unload(*this);
}

void CourseTable::OnUnload() {
  if (form_used_) host().Unload(Load<CourseForm>(host()));
}

}  // namespace golf
