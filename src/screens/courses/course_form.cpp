#include "screens/courses/course_form.h"

#include <utility>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"
#include "screens/courses/course_tee.h"
#include "stores/course/course_library.h"
#include "stores/course/tee_rules.h"

namespace golf {
namespace {

constexpr const char* kHeadings[] = {
    "Active", "Tee", "Men's Rating", "Men's Slope", "Ladies' Rating", "Ladies' Slope"};
constexpr int kTeeColumn = 2;
constexpr int kOptionFlags[] = {18, 9, -9};  // the HoleNumFlag of each option
constexpr std::int16_t kUnslopedCourse = 113;
constexpr int kTooFlat = 50;

// Links a text box to the text of a course that it edits.
struct CourseText {
  TextBox CourseForm::*box;
  std::string (CourseClass::*get)() const;
  void (CourseClass::*set)(std::string_view);
};

constexpr CourseText kTexts[] = {
    {&CourseForm::FCourseName, &CourseClass::Name, &CourseClass::SetName},
    {&CourseForm::FAddress1, &CourseClass::Address1, &CourseClass::SetAddress1},
    {&CourseForm::FAddress2, &CourseClass::Address2, &CourseClass::SetAddress2},
    {&CourseForm::FCity, &CourseClass::City, &CourseClass::SetCity},
    {&CourseForm::FState, &CourseClass::State, &CourseClass::SetState},
    {&CourseForm::FZipcode, &CourseClass::Zipcode, &CourseClass::SetZipcode},
    {&CourseForm::FPhone, &CourseClass::Phone, &CourseClass::SetPhone},
    {&CourseForm::FGolfPro, &CourseClass::GolfPro, &CourseClass::SetGolfPro},
};

bool IsAbove(const std::string& number, double limit) { return LeadingNumber(number) > limit; }

}  // namespace

CourseForm::CourseForm(const ScreenContext& context) : Screen(kName, context) {
  Add({&FCourseNum});
  for (const CourseText& text : kTexts) Add({&(this->*text.box)});
  Add({&HolesFrame});
  for (std::size_t i = 0; i < FHoleNum.size(); ++i) {
    AddInto(HolesFrame, {&FHoleNum[i]});
    FHoleNum[i].on_click = [this, i] { ChooseHoles(i); };
  }
  Add({&grid1, &EditTeeButton, &OKButton, &CancelButton, &Help});
  for (Label& label : lblLabels) Add({&label});
  grid1.SetHidden(0, true);
  for (int column = 1; column <= grid1.columns(); ++column) {
    grid1.SetHeading(column, kHeadings[column - 1]);
    grid1.LockColumn(column, true);
    grid1.SetCentred(column, column != kTeeColumn);
  }
  grid1.LockColumn(0, true);
  grid1.SetRows(kShownTees);
  OKButton.SetDefault(true);
  CancelButton.SetCancel(true);
  grid1.on_row_change = [this] { ShowEditCaption(); };
  grid1.on_double_click = [this] { EditTee(); };
  EditTeeButton.on_click = [this] { EditTee(); };
  OKButton.on_click = [this] { Accept(); };
  CancelButton.on_click = [this] { Cancel(); };
  Help.on_click = [this] {
    host().Ask(Box{.title = "Course",
                   .text = "Enter the course, choose its number of holes, and edit its tees. A "
                           "course is saved with at least one active tee; from then on its number "
                           "of holes stays as it is.",
                   .icon = BoxIcon::kInformation,
                   .window_help = name()});
  };
}

void CourseForm::BeginAdd() {
  SetCaption("Add Course");
  FCourseNum.SetCaption("");
  for (const CourseText& text : kTexts) (this->*text.box).SetText("");
  ChooseHoles(course().Allow18HoleCourses ? 0 : 1);
  Begin();
}

void CourseForm::BeginEdit(std::int32_t number) {
  SetCaption("Edit Course");
  FCourseNum.SetCaption(std::to_string(number));
  for (const CourseText& text : kTexts) (this->*text.box).SetText((course().*text.get)());
  const int flag = course().HoleNumFlag();
  ChooseHoles(flag == 9 ? 1 : flag == -9 ? 2 : 0);
  Begin();
}

void CourseForm::BeginView(std::int32_t number) {
  is_view_ = true;
  BeginEdit(number);
  SetCaption("Course");
  for (const CourseText& text : kTexts) (this->*text.box).SetReadOnly(true);
  for (Button* button : {&OKButton, &Help}) button->SetVisible(false);
  CancelButton.SetCaption("Close");
}

std::string CourseForm::Entered() const {
  std::string entered = std::to_string(HoleNumFlag());
  for (const CourseText& text : kTexts) entered += '\n' + (this->*text.box).text();
  return entered;
}

std::optional<BoxButton> CourseForm::AnswerIfUnchanged() const {
  const bool unchanged = unsaved_tee_ == 0 && !tee_changed_ && Entered() == unchanged_;
  return unchanged ? std::optional(BoxButton::kYes) : std::nullopt;
}

void CourseForm::Begin() {
  SetTag("");
  unchanged_ = Entered();
  tee_changed_ = false;
  unsaved_tee_ = 0;
  for (OptionButton& option : FHoleNum) option.SetVisible(true);
  ShowTees();
  grid1.SetActiveRow(1);
  MoveFocus(&FCourseName);
}

void CourseForm::CopyToRecord() {
  for (const CourseText& text : kTexts) (course().*text.set)((this->*text.box).text());
  course().SetHoleNumFlag(HoleNumFlag());
}

void CourseForm::ChooseHoles(std::size_t option) {
  for (std::size_t i = 0; i < FHoleNum.size(); ++i) FHoleNum[i].SetValue(i == option);
}

int CourseForm::HoleNumFlag() const {
  for (std::size_t i = 0; i < FHoleNum.size(); ++i) {
    if (FHoleNum[i].value()) return kOptionFlags[i];
  }
  return kOptionFlags[0];
}

void CourseForm::OnActivate() {
  ShowTees();
  ShowHoles();
  ShowEditCaption();
}

void CourseForm::ShowTees() {
  grid1.SetRepainting(false);
  for (int tee = 1; tee <= kShownTees; ++tee) {
    const std::string letter(Trim(course().TeeNameAbv(int{tee})));
    const std::string cells[] = {std::to_string(tee),
                                 course().ActiveTees(tee) ? "Yes" : "No",
                                 course().TeeName(int{tee}) + " - " + letter,
                                 course().Rating(tee, 0),
                                 course().slope(tee, 0),
                                 course().Rating(tee, 1),
                                 course().slope(tee, 1)};
    for (int column = 0; column <= grid1.columns(); ++column) {
      grid1.SetText(column, tee, cells[column]);
    }
  }
  grid1.SetRepainting(true);
}

// Lets the operator choose the number of holes only while no tee is active.
void CourseForm::ShowHoles() {
  bool any_active = false;
  for (int tee = 1; tee <= kShownTees; ++tee) any_active |= course().ActiveTees(tee);
  HolesFrame.SetEnabled(!any_active && !is_view_);
  if (any_active) return;
  FHoleNum[0].SetVisible(course().Allow18HoleCourses);
  for (const auto nine : {std::size_t{1}, std::size_t{2}}) {
    FHoleNum[nine].SetVisible(course().Allow9HoleCourses);
  }
}

void CourseForm::ShowEditCaption() {
  EditTeeButton.SetCaption((is_view_ ? "Show " : "Edit ") + course().TeeName(grid1.active_row()) +
                           " tee");
}

void CourseForm::EditTee() {
  const auto screen = Load<CourseTee>(host()).shared_from_this();
  auto& tee_screen = dynamic_cast<CourseTee&>(*screen);
  tee_screen_used_ = true;
  tee_ = grid1.active_row();
  tee_screen.SetCaption("Edit Tee");
  if (is_view_) tee_screen.ShowOnly();
  tee_screen.SetTag("");
  tee_screen.FHoles.SetCaption(HolesText(HoleNumFlag()));
  tee_screen.ShowHolesPlayed();
  tee_screen.FCourse.SetCaption(FCourseName.text());
  if (std::exchange(unsaved_tee_, 0) != tee_) FillTee(tee_screen);
  tee_screen.Timer1.SetInterval(1);
  host().ShowModal(tee_screen);
  if (tee_screen.tag() == "OK") {
    unsaved_tee_ = tee_;
    const std::string before(course().Stored().Bytes());
    SaveTeeData(tee_screen);
    if (course().Stored().Bytes() != before) tee_changed_ = true;
    unsaved_tee_ = 0;
  }
  OnActivate();
}

// Corrects slopes of 50 or less of a tee that has a rating. Sets the ladies' slope to 113 if the
// men's slope is too low: the group that is set is one too high. Raises error 9 if the ladies'
// slope is too low, since there is no third group. Nothing is saved then.
void CourseForm::MendSlopes(int tee) {
  const auto too_flat = [&](int group) {
    return IsAbove(course().Rating(tee, group), 0) &&
           !IsAbove(course().slope(tee, group), kTooFlat);
  };
  if (too_flat(0)) course().Setslope(tee, 1, kUnslopedCourse);
  if (too_flat(1)) {
    throw NumberedError(ErrorNumber::kSubscript,
                        "The ladies' slope of tee " + std::to_string(tee) + ", " +
                            course().TeeName(int{tee}) + ", is " + course().slope(tee, 1) +
                            ". Edit the tee and enter a slope of 55 to 155 before you save.");
  }
}

void CourseForm::Accept() {
  if (Trim(FCourseName.text()).empty()) {
    host().Ask(Box{.title = "Need more info.", .text = "Course name required!"});
    return;
  }
  const int first_hole = HolesPlayed(HoleNumFlag()).first;
  bool any_active = false;
  int pars = 0;
  int handicaps = 0;
  for (int tee = 1; tee <= kShownTees; ++tee) {
    any_active |= course().ActiveTees(tee);
    MendSlopes(tee);
    if (IsAbove(course().HolePar(tee, first_hole), 0)) pars |= 1 << tee;
    if (IsAbove(course().HoleHandicap(tee, first_hole), 0)) handicaps |= 1 << tee;
  }
  course().SetParsFlag(pars);
  course().SetHandicapFlag(handicaps);
  if (any_active) {
    SetTag("OK");
    host().Hide(*this);
    return;
  }
  host().Ask(Box{.title = "Notice",
                 .text = "At least one tee must be active before the course can be saved. Edit at "
                         "least one teebox and activate it.  OR click CANCEL to not save the "
                         "course."});
}

void CourseForm::Cancel() {
  if (!is_view_ && !FCourseName.text().empty()) {
    const BoxButton answer = host().Ask(Box{.title = "CANCEL",
                                            .text = "Cancel changes?",
                                            .buttons = {BoxButton::kYes, BoxButton::kNo},
                                            .window_default = 1,
                                            .window_answer = AnswerIfUnchanged()});
    if (answer == BoxButton::kNo) return;
  }
  SetTag("CANCEL");
  host().Hide(*this);
}

void CourseForm::OnUnload() {
  if (tee_screen_used_) host().Unload(Load<CourseTee>(host()));
}

}  // namespace golf
