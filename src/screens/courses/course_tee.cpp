#include "screens/courses/course_tee.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

#include "core/number_text.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kNine = 9;
constexpr int kLastFirstHole = 64;
constexpr std::size_t kNameLength = 7;

double NumberIn(const TextBox& box) { return LeadingNumber(box.text()); }

HoleValues ValuesOf(const HoleControls<TextBox>& boxes) {
  HoleValues values{};
  for (std::size_t i = 0; i < boxes.size(); ++i) values[i] = NumberIn(boxes[i]);
  return values;
}

// Returns the exact sum as text. The record rounds it when it is stored.
std::string SumText(double sum) {
  return FormatNumber(sum, sum == std::floor(sum) ? "0" : "0.0###");
}

void ShowSums(const HoleControls<TextBox>& boxes, Label& out, Label& in, Label& total) {
  double sums[2] = {0, 0};
  for (std::size_t i = 0; i < boxes.size(); ++i) sums[i / kNine] += NumberIn(boxes[i]);
  out.SetCaption(SumText(sums[0]));
  in.SetCaption(SumText(sums[1]));
  total.SetCaption(SumText(sums[0] + sums[1]));
}

}  // namespace

CourseTee::CourseTee(const ScreenContext& context) : Screen(kName, context) {
  SetCaption("Edit Tee");
  for (int number = 1; number <= kLastFirstHole; ++number) {
    FrontHoleNumber.AddItem(std::to_string(number));
    BackHoleNumber.AddItem(std::to_string(number));
  }
  for (const char* unit : {"Yards", "Meters"}) YardsOrMeters.AddItem(unit);
  PlaceControls();
  ConnectEntries();
  OKButton.SetDefault(true);
  CancelButton.SetCancel(true);
  ActiveTee.on_click = [this] { ShowActive(); };
  YardsOrMeters.on_click = [this] { YardOrMeter.SetCaption(YardsOrMeters.text()); };
  Timer1.on_timer = [this] { SetUp(); };
  OKButton.on_click = [this] { Accept(); };
  CancelButton.on_click = [this] { Cancel(); };
  Help.on_click = [this] {
    host().Ask(Box{.title = "Edit Tee",
                   .text = "Enter the tee as it stands on the scorecard. The focus moves on by "
                           "itself behind a length of three figures and behind a par.\r"
                           "Handicap 1 is the hole where the first stroke is given; without "
                           "handicaps leave 0.",
                   .icon = BoxIcon::kInformation,
                   .window_help = name()});
  };
}

void CourseTee::PlaceControls() {
  const auto hold_nine = [&](Frame& frame, ComboBox& first_number, std::size_t first) {
    Add({&frame});
    AddInto(frame, {&first_number});
    for (HoleControls<TextBox>* boxes : {&FYardage, &FPar, &FHandicap}) {
      for (std::size_t i = first; i < first + kNine; ++i) AddInto(frame, {&(*boxes)[i]});
    }
    for (HoleControls<Label>* labels : {&HoleNumber, &FSequence}) {
      for (std::size_t i = first; i < first + kNine; ++i) AddInto(frame, {&(*labels)[i]});
    }
  };
  Add({&FCourse, &FHoles, &ActiveTee, &TeeFrame});
  AddInto(TeeFrame, {&FTeeName, &FTeeNameAbv, &YardsOrMeters, &FMensRating, &FMensSlope,
                     &FLadiesRating, &FLadiesSlope, &YardOrMeter});
  hold_nine(FrontNineFrame, FrontHoleNumber, 0);
  AddInto(FrontNineFrame, {&FYardOut, &FParOut});
  hold_nine(BackNineFrame, BackHoleNumber, kNine);
  AddInto(BackNineFrame, {&FYardIn, &FParIn});
  Add({&TotalFrame});
  AddInto(TotalFrame, {&FYardTotal, &FParTotal});
  Add({&Timer1, &OKButton, &CancelButton, &Help});
}

void CourseTee::ConnectEntries() {
  FTeeName.on_leave = [this] {
    LeaveTeeName();
    ShowNotes(&FTeeName);
  };
  FTeeNameAbv.on_leave = [this] { ShowNotes(&FTeeNameAbv); };
  for (RatingBox* box : {&FMensRating, &FLadiesRating}) {
    box->on_leave = [this, box] {
      box->RatingValue();
      ShowNotes(box);
    };
  }
  for (SlopeBox* box : {&FMensSlope, &FLadiesSlope}) {
    box->on_leave = [this, box] {
      box->SlopeValue();
      ShowNotes(box);
    };
  }
  ConnectNine(FrontHoleNumber, 0);
  ConnectNine(BackHoleNumber, kNine);
  constexpr double kShortHole = 99;
  constexpr double kNever = 1e300;
  for (std::size_t hole = 0; hole < FYardage.size(); ++hole) {
    ConnectHole(FYardage, hole, kShortHole);
    ConnectHole(FPar, hole, 0);
    ConnectHole(FHandicap, hole, kNever);
  }
}

// Makes the numbers of a nine's other holes follow the number that is chosen for its first hole.
void CourseTee::ConnectNine(ComboBox& first_number, std::size_t first_hole) {
  HoleNumber[first_hole].SetVisible(false);
  first_number.on_click = [this, &first_number, first_hole] {
    const auto first = static_cast<std::size_t>(LeadingNumber(first_number.text()));
    for (std::size_t i = 1; i < kNine; ++i) {
      HoleNumber[first_hole + i].SetCaption(std::to_string(first + i));
    }
  };
}

void CourseTee::ConnectHole(HoleControls<TextBox>& boxes, std::size_t hole, double moves_on_above) {
  TextBox& box = boxes[hole];
  box.on_enter = [&box] { box.SelectFirst(box.text().size()); };
  box.on_change = [this, &box, &boxes, hole, moves_on_above] {
    if (focus() != &box) return;  // the operator is not typing
    Control* next = NumberIn(box) > moves_on_above ? NextAfter(boxes, hole) : nullptr;
    if (next != nullptr) {
      MoveFocus(next);  // on_leave shows the totals
    } else {
      ShowTotals();
    }
  };
  box.on_leave = [this, &box] {
    ShowTotals();
    ShowNotes(&box);
  };
}

Control* CourseTee::NextAfter(const HoleControls<TextBox>& boxes, std::size_t hole) {
  const bool ninth = hole + 1 == kNine;
  if (ninth && &boxes == &FPar) return &FHandicap[0];
  if (hole + 1 == boxes.size()) return nullptr;
  if (ninth && !BackNineFrame.IsShown()) return &FPar[0];
  return const_cast<TextBox*>(&boxes[hole + 1]);
}

void CourseTee::ShowHolesPlayed() {
  const bool front_only = FHoles.caption() == "9F";
  const bool back_only = FHoles.caption() == "9B";
  FrontNineFrame.SetVisible(!back_only);
  BackNineFrame.SetVisible(!front_only);
  TotalFrame.SetVisible(!front_only && !back_only);
}

void CourseTee::ShowOnly() {
  is_view_ = true;
  SetCaption("Tee");
  for (Control* entries : std::initializer_list<Control*>{&ActiveTee, &TeeFrame, &FrontNineFrame,
                                                          &BackNineFrame, &TotalFrame}) {
    entries->SetEnabled(false);
  }
  for (Button* button : {&OKButton, &Help}) button->SetVisible(false);
  CancelButton.SetCaption("Close");
}

void CourseTee::SetUp() {
  ShowHolesPlayed();
  ShowTotals();
  FTeeName.SetEnabled(true);
  MoveFocus(&OKButton);
  ShowActive();
  Timer1.SetInterval(0);
}

void CourseTee::ShowActive() {
  for (Frame* frame : {&TeeFrame, &FrontNineFrame, &BackNineFrame, &TotalFrame}) {
    frame->SetEnabled(ActiveTee.value() && !is_view_);
  }
  if (ActiveTee.value()) return;
  for (Control* entry : Entries()) entry->SetNote("");
}

void CourseTee::ShowTotals() {
  ShowSums(FYardage, FYardOut, FYardIn, FYardTotal);
  ShowSums(FPar, FParOut, FParIn, FParTotal);
}

void CourseTee::LeaveTeeName() {
  FTeeName.SetText(FTeeName.text().substr(0, kNameLength));
  const std::string& old_name = FTeeName.tag();
  const std::string name = FTeeName.text();
  const bool had_name = !old_name.empty() && old_name != "NoName";
  if (had_name && !EqualIgnoringCase(Trim(name), Trim(old_name))) {
    const std::string answer =
        host().Ask(InputBox{.title = "Change tee name?",
                            .text = "Type YES if you want to change the name of this tee from " +
                                    old_name + " to " + name + ".",
                            .default_answer = "No"});
    if (!MeansYes(answer)) FTeeName.SetText(old_name);
  }
  if (FTeeNameAbv.text().empty()) FTeeNameAbv.SetText(FTeeName.text().substr(0, 1));
}

int CourseTee::HoleNumFlag() const {
  const double holes = LeadingNumber(FHoles.caption());
  return static_cast<int>(FHoles.caption() == "9B" ? -holes : holes);
}

std::vector<TeeFault> CourseTee::FaultsOfHoles() const {
  const CourseClass& course = state().Course();
  return HoleFaults(ValuesOf(FPar), ValuesOf(FHandicap), HolesPlayed(HoleNumFlag()),
                    course.RequirePars, course.RequireHoleHandicaps);
}

std::string CourseTee::Entered() const {
  std::string entered = ActiveTee.value() ? "active" : "";
  for (const Control* control : controls()) {
    if (auto* text = dynamic_cast<const TextBox*>(control)) entered += '\n' + text->text();
    if (auto* list = dynamic_cast<const List*>(control)) entered += '\n' + list->text();
  }
  return entered;
}

std::optional<BoxButton> CourseTee::AnswerIfUnchanged() const {
  return Entered() == unchanged_ ? std::optional(BoxButton::kYes) : std::nullopt;
}

std::string CourseTee::OddEntries() const {
  if (!ActiveTee.value()) return {};
  const int holes = HolesRated(HoleNumFlag());
  const HoleValues handicaps = ValuesOf(FHandicap);
  const bool some =
      std::any_of(handicaps.begin(), handicaps.end(), [](double h) { return h != 0; });
  std::vector<TeeFault> odd;
  for (auto& fault :
       {NameFault(FTeeName.text(), FTeeNameAbv.text()),
        RatingFault(FMensRating.EnteredRating(), holes, 0),
        RatingFault(FLadiesRating.EnteredRating(), holes, 1),
        SlopeFault(FMensSlope.EnteredSlope(), 0), SlopeFault(FLadiesSlope.EnteredSlope(), 1)}) {
    if (fault) odd.push_back(*fault);
  }
  const auto of_holes =
      HoleFaults(ValuesOf(FPar), handicaps, HolesPlayed(HoleNumFlag()), true, some);
  odd.insert(odd.end(), of_holes.begin(), of_holes.end());
  return DescribeFaults(odd);
}

std::vector<std::pair<Control*, TeeFault>> CourseTee::Faults() {
  std::vector<std::pair<Control*, TeeFault>> faults;
  const auto add = [&faults](Control& control, std::optional<TeeFault> fault) {
    if (fault) faults.emplace_back(&control, std::move(*fault));
  };
  const int holes = HolesRated(HoleNumFlag());
  for (TextBox* box : std::initializer_list<TextBox*>{&FTeeName, &FTeeNameAbv}) {
    add(*box, NameFault(box->text(), box->text()));
  }
  add(FMensRating, RatingFault(FMensRating.RatingValue(), holes, 0));
  add(FLadiesRating, RatingFault(FLadiesRating.RatingValue(), holes, 1));
  for (SlopeBox* box : {&FMensSlope, &FLadiesSlope}) add(*box, SlopeFault(box->SlopeValue()));
  for (TeeFault& fault : FaultsOfHoles()) {
    auto& boxes = fault.field == TeeField::kPar ? FPar : FHandicap;
    add(boxes[static_cast<std::size_t>(fault.hole) - 1], std::move(fault));
  }
  return faults;
}

std::vector<Control*> CourseTee::Entries() {
  std::vector<Control*> entries;
  for (Control* control : controls()) {
    if (dynamic_cast<TextBox*>(control) != nullptr) entries.push_back(control);
  }
  return entries;
}

// Updates the notes of all entries. An entry that has lost the focus shows its fault until the
// operator has corrected it. `left` is the control that has just lost the focus.
void CourseTee::ShowNotes(const Control* left) {
  const auto faults = ActiveTee.value() ? Faults() : std::vector<std::pair<Control*, TeeFault>>();
  for (Control* entry : Entries()) {
    if (entry != left && entry->note().empty()) continue;
    const auto fault = std::find_if(faults.begin(), faults.end(),
                                    [entry](const auto& known) { return known.first == entry; });
    entry->SetNote(fault == faults.end() ? "" : fault->second.text);
  }
}

// The focus moves first, so that the event handler on_leave of the focused entry runs also when the
// operator presses Enter.
void CourseTee::Accept() {
  MoveFocus(&OKButton);
  if (!ActiveTee.value()) return Finish();
  if (!NameAccepted() || !RatingsAccepted()) return;
  if (!FMensSlope.SlopeValid() || !FLadiesSlope.SlopeValid()) return;
  if (!HolesAccepted()) return;
  ShowStrokeSequence();
  if (FHoles.caption() == "9B") CopyBackNineToFront();
  Finish();
}

void CourseTee::Finish() {
  SetTag("OK");
  host().Hide(*this);
}

bool CourseTee::NameAccepted() {
  const auto fault = NameFault(FTeeName.text(), FTeeNameAbv.text());
  TextBox& empty = Trim(FTeeName.text()).empty() ? FTeeName : FTeeNameAbv;
  if (fault) ShowFault(*this, host(), empty, *fault);
  return !fault;
}

bool CourseTee::RatingsAccepted() {
  const int holes = HolesRated(HoleNumFlag());
  if (FMensRating.RatingValid(holes, 0) && FLadiesRating.RatingValid(holes, 1)) return true;
  if (state().Course().RequireRatingandSlope) return false;
  const BoxButton answer = host().Ask(Box{.title = "Enter rating?",
                                          .text = "Do you want to enter the rating?",
                                          .buttons = {BoxButton::kYes, BoxButton::kNo}});
  if (answer != BoxButton::kNo) return false;
  host().Ask(Box{.title = "Notice",
                 .text = "Since you have choosen not to enter a rating, handicaps may not "
                         "calculate correctly"});
  return true;
}

bool CourseTee::HolesAccepted() {
  const std::vector<TeeFault> faults = FaultsOfHoles();
  if (faults.empty()) return true;
  const TeeFault& first = faults.front();
  auto& boxes = first.field == TeeField::kPar ? FPar : FHandicap;
  ShowFault(*this, host(), boxes[static_cast<std::size_t>(first.hole) - 1], first);
  return false;
}

void CourseTee::ShowStrokeSequence() {
  std::size_t n = 0;
  for (const int hole : StrokeSequence(ValuesOf(FHandicap), HolesPlayed(HoleNumFlag()))) {
    FSequence[n++].SetCaption(std::to_string(hole));
  }
}

// Copies holes 10 to 18 to holes 1 to 9. A course with only a back nine stores its holes in both
// nines.
void CourseTee::CopyBackNineToFront() {
  FrontHoleNumber.Select(BackHoleNumber.index());
  for (std::size_t i = 0; i < kNine; ++i) {
    for (HoleControls<TextBox>* boxes : {&FYardage, &FPar, &FHandicap}) {
      (*boxes)[i].SetText((*boxes)[i + kNine].text());
    }
    if (i > 0) HoleNumber[i].SetCaption(HoleNumber[i + kNine].caption());
  }
}

void CourseTee::Cancel() {
  if (!is_view_ && !FTeeName.text().empty()) {
    const BoxButton answer = host().Ask(Box{.title = "Cancel",
                                            .text = "Cancel changes?",
                                            .buttons = {BoxButton::kYes, BoxButton::kNo},
                                            .window_default = 1,
                                            .window_answer = AnswerIfUnchanged()});
    if (answer == BoxButton::kNo) return;
  }
  SetTag("CANCEL");
  host().Hide(*this);
}

}  // namespace golf
