#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "stores/course/course_class.h"

namespace golf {

class CourseTee;

// Edits one course: its texts, its number of holes, and its tees. It uses the current record of the
// shared Course object. Tees change in that record at once, while the texts stay in the controls
// until CopyToRecord. The screen hides with the tag "OK" or "CANCEL", and the caller that opened it
// saves the record.
class CourseForm : public Screen {
 public:
  static constexpr const char* kName = "CourseForm";

  explicit CourseForm(const ScreenContext& context);

  // BeginAdd clears the controls for a new course. BeginEdit fills them from the current record.
  // BeginView fills them, too, and locks them until the screen is unloaded.
  void BeginAdd();
  void BeginEdit(std::int32_t number);
  void BeginView(std::int32_t number);
  // Copies the texts and the number of holes into the current record.
  void CopyToRecord();

  void OnActivate() override;
  void OnUnload() override;
  Button* LeaveButton() override { return &CancelButton; }

  Label FCourseNum{"FCourseNum"};
  TextBox FCourseName{"FCourseName"};
  TextBox FAddress1{"FAddress1"};
  TextBox FAddress2{"FAddress2"};
  TextBox FCity{"FCity"};
  TextBox FState{"FState"};
  TextBox FZipcode{"FZipcode"};
  TextBox FPhone{"FPhone"};
  TextBox FGolfPro{"FGolfPro"};
  Frame HolesFrame{"HolesFrame", "Holes"};
  std::array<OptionButton, 3> FHoleNum{OptionButton("FHoleNum", "&18 holes"),
                                       OptionButton("FHoleNum", "9 holes, &front nine"),
                                       OptionButton("FHoleNum", "9 holes, &back nine")};
  Grid grid1{"grid1", 6};
  Button EditTeeButton{"EditTeeButton", "Edit tee"};
  Button OKButton{"OKButton", "&OK"};
  Button CancelButton{"CancelButton", "Cancel"};
  Button Help{"Help", "&Help"};
  std::array<Label, 9> lblLabels{
      Label("lblLabels", "Course number"), Label("lblLabels", "Name"),
      Label("lblLabels", "Address"),       Label("lblLabels", "Address 2"),
      Label("lblLabels", "City"),          Label("lblLabels", "State"),
      Label("lblLabels", "Zip code"),      Label("lblLabels", "Phone"),
      Label("lblLabels", "Golf pro")};

 private:
  CourseClass& course() const { return state().Course(); }
  void Begin();
  // Returns everything that the operator can change on this screen.
  std::string Entered() const;
  // Returns Yes if nothing has been changed since the screen was opened.
  std::optional<BoxButton> AnswerIfUnchanged() const;
  void ChooseHoles(std::size_t option);
  int HoleNumFlag() const;
  void ShowTees();
  void ShowHoles();
  void ShowEditCaption();
  void EditTee();
  void FillTee(CourseTee& screen);
  // Copies the entries of the tee screen into the current record. Raises error 6 and leaves the
  // record unchanged if a number does not fit into it.
  void SaveTeeData(CourseTee& screen);
  void MendSlopes(int tee);
  void Accept();
  void Cancel();

  int tee_ = 1;          // the tee being edited
  int unsaved_tee_ = 0;  // the tee whose entries could not be stored and are still on its screen
  bool tee_screen_used_ = false;
  bool is_view_ = false;      // the operator can change nothing
  bool tee_changed_ = false;  // true if the operator has changed a tee in the record
  std::string unchanged_;     // what the controls contained at first
};

}  // namespace golf
