#include "screens/courses/deleted_courses.h"

#include <string>

#include "core/number_text.h"
#include "core/text.h"
#include "screens/courses/library_opening.h"
#include "screens/file_changes.h"
#include "stores/course/course_class.h"

namespace golf {

DeletedCourses::DeletedCourses(const ScreenContext& context)
    : Screen(kName, context), CourseList("CourseList", kCityColumn) {
  SetCaption("Deleted courses");
  Add({&LibraryLabel, &LibraryList, &ListLabel, &CourseList, &NoteLabel, &RestoreButton,
       &ExitButton});
  CourseList.MakeList({"Number", "Course Name", "# of holes", "City"});
  ExitButton.SetCancel(true);
  LibraryList.on_click = [this] { OpenLibrary(); };
  CourseList.on_double_click = [this] { Restore(); };
  RestoreButton.on_click = [this] { Restore(); };
  ExitButton.on_click = [this] { host().Unload(*this); };
}

void DeletedCourses::OnActivate() {
  if (!libraries_.empty()) return;
  int chosen = 0;
  for (const CourseLibrary& library : kCourseLibraries) {
    if (!state().files.FileExists(CourseFilePath(state(), library))) continue;
    if (EqualIgnoringCase(tag(), library.program)) chosen = static_cast<int>(libraries_.size());
    libraries_.push_back(&library);
    LibraryList.AddItem(std::string(library.sibling));
  }
  if (libraries_.empty()) return FillList();
  LibraryList.Select(chosen);
}

void DeletedCourses::OpenLibrary() {
  is_open_ = false;
  const auto index = static_cast<std::size_t>(LibraryList.index());
  try {
    is_open_ = OpenUnlessHeld(state(), host(), *libraries_[index]);
    FillList();
  } catch (const NumberedError&) {
    is_open_ = false;
    FillList();
    throw;
  }
}

// A deleted course keeps its record and its name. A record without a name was never a course.
void DeletedCourses::FillList() {
  CourseClass& course = state().Course();
  CourseList.SetRepainting(false);
  CourseList.SetRows(0);
  const std::int32_t length = is_open_ ? course.CourseFileLength() : 0;
  int row = 0;
  for (std::int32_t record = 1; record <= length; ++record) {
    course.GetRecord(record);
    if (course.activeflag() != 0 || IsBlankText(course.Name())) continue;
    CourseList.SetRows(++row);
    CourseList.SetText(kNumberColumn, row, std::to_string(record));
    CourseList.SetText(kNameColumn, row, std::string(Trim(course.Name())));
    CourseList.SetText(kHolesColumn, row, HolesText(course.HoleNumFlag()));
    CourseList.SetText(kCityColumn, row, std::string(Trim(course.City())));
  }
  CourseList.SetRepainting(true);
  if (row > 0) CourseList.SetActiveRow(1);
  RestoreButton.SetEnabled(row > 0);
  NoteLabel.SetCaption(row > 0    ? "A restored course keeps its number."
                       : is_open_ ? "This library contains no deleted courses."
                                  : "There is no open library.");
}

// Asks whether to restore the course in the buffer.
bool DeletedCourses::IsWanted(const CourseLibrary& library) {
  const CourseClass& course = state().Course();
  const std::string sibling(library.sibling);
  std::string text = "Restore the course " + std::string(Trim(course.Name())) + " in " + sibling +
                     "'s course library?\r\rClose " + sibling +
                     " before you go on. The menu History can undo this.";
  if (&library == &kQuenbyCourses && course.KVCourseNum() > 0) {
    text +=
        "\r\rThis course was transferred from Kelvane. If it is deleted in Kelvane, the next "
        "transfer of courses deletes it here again.";
  }
  return host().Ask(Box{.title = "Restore course",
                        .text = std::move(text),
                        .icon = BoxIcon::kQuestion,
                        .buttons = {BoxButton::kYes, BoxButton::kNo},
                        .default_button = 1}) == BoxButton::kYes;
}

void DeletedCourses::Restore() {
  const int row = CourseList.active_row();
  if (row == 0) return;
  CourseClass& course = state().Course();
  const std::int32_t record = RoundToInt32(LeadingNumber(CourseList.text(kNumberColumn, row)));
  course.GetRecord(record);
  if (!IsWanted(*libraries_[static_cast<std::size_t>(LibraryList.index())])) return;
  const std::string name = course.Name();
  bool is_same = true;
  ChangeFilesOrNone(state(), host(), "restore-course", std::string(Trim(name)), [&] {
    course.GetRecord(record);
    is_same = course.activeflag() == 0 && course.Name() == name;
    if (!is_same) return;
    course.Setactiveflag(1);
    course.SaveRecord(record);
    course.RebuildCourseIndexes(course.ActiveCoursesByName());
  });
  if (!is_same) {
    host().Ask(Box{.title = "Restore course",
                   .text = "Another program has changed this course meanwhile. It was not "
                           "restored.",
                   .icon = BoxIcon::kStop});
  }
  FillList();
}

void DeletedCourses::OnUnload() { state().Course().CloseCourseFile(); }

}  // namespace golf
