// Copies a tee of the current course to and from the screen that edits it.

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "core/text.h"
#include "screens/courses/course_form.h"
#include "screens/courses/course_tee.h"

namespace golf {
namespace {

constexpr int kFirstHoles[] = {1, 10};

template <class AnyControl>
AnyControl& At(HoleControls<AnyControl>& controls, int hole) {
  return controls[static_cast<std::size_t>(hole) - 1];
}

// Links a label of the tee screen to the total of the course that it shows.
struct TeeTotal {
  Label CourseTee::*label;
  void (CourseClass::*set)(int, double);
};

constexpr TeeTotal kTotals[] = {{&CourseTee::FYardOut, &CourseClass::SetYardOut},
                                {&CourseTee::FYardIn, &CourseClass::SetYardIn},
                                {&CourseTee::FYardTotal, &CourseClass::SetYardTotal},
                                {&CourseTee::FParOut, &CourseClass::SetParOut},
                                {&CourseTee::FParIn, &CourseClass::SetParIn},
                                {&CourseTee::FParTotal, &CourseClass::SetParTotal}};

// Describes what the operator enters for each hole: the text boxes, and the word for them in
// messages.
struct HoleEntry {
  HoleControls<TextBox> CourseTee::*boxes;
  const char* name;
};

constexpr HoleEntry kHoleEntries[] = {{&CourseTee::FYardage, "length"},
                                      {&CourseTee::FPar, "par"},
                                      {&CourseTee::FHandicap, "handicap"}};

void CheckFits(const std::string& number, const std::string& name) {
  try {
    RoundToInt16(LeadingNumber(number));
  } catch (const NumberedError& error) {
    if (!error.Is(ErrorNumber::kOverflow)) throw;
    throw NumberedError(ErrorNumber::kOverflow, "The " + name + ", " + number +
                                                    ", is too large to be stored. Edit the tee "
                                                    "again: what you entered is still there.");
  }
}

// Raises error 6 if a number does not fit into the record.
void CheckNumbersFit(CourseTee& screen) {
  for (const HoleEntry& entry : kHoleEntries) {
    for (int hole = 1; hole <= kCourseHoles; ++hole) {
      CheckFits(At(screen.*entry.boxes, hole).text(),
                std::string(entry.name) + " of hole " + std::to_string(hole));
    }
  }
  for (const TeeTotal& total : kTotals) CheckFits((screen.*total.label).caption(), "sum");
}

}  // namespace

void CourseForm::FillTee(CourseTee& screen) {
  for (Control* control : screen.controls()) control->SetNote("");
  screen.ActiveTee.SetValue(course().ActiveTees(tee_));
  const std::string name = course().TeeName(tee_);
  screen.FTeeName.SetText(name);
  screen.FTeeName.SetTag(name);
  screen.FTeeNameAbv.SetText(std::string(Trim(course().TeeNameAbv(tee_))));
  screen.FMensRating.SetRatingValue(LeadingNumber(course().Rating(tee_, 0)));
  screen.FLadiesRating.SetRatingValue(LeadingNumber(course().Rating(tee_, 1)));
  screen.FMensSlope.SetSlopeValue(LeadingNumber(course().slope(tee_, 0)));
  screen.FLadiesSlope.SetSlopeValue(LeadingNumber(course().slope(tee_, 1)));
  for (const int hole : kFirstHoles) {
    ComboBox& first = hole == 1 ? screen.FrontHoleNumber : screen.BackHoleNumber;
    first.Select(static_cast<int>(LeadingNumber(course().HoleNumber(tee_, hole))) - 1);
  }
  for (int hole = 1; hole <= kCourseHoles; ++hole) {
    At(screen.HoleNumber, hole).SetCaption(std::string(Trim(course().HoleNumber(tee_, hole))));
    At(screen.FYardage, hole).SetText(course().HoleYard(tee_, hole));
    At(screen.FPar, hole).SetText(course().HolePar(tee_, hole));
    At(screen.FHandicap, hole).SetText(course().HoleHandicap(tee_, hole));
    // This shows the stored value, so that saving does not change a sequence that the screen does
    // not calculate again.
    At(screen.FSequence, hole)
        .SetCaption(std::to_string(course().Stored().Get<"StrkSqnc">(tee_, hole)));
  }
  screen.YardsOrMeters.Select(course().YardsOrMeters() == "Meters" ? 1 : 0);
  screen.NoteUnchanged();
}

void CourseForm::SaveTeeData(CourseTee& screen) {
  CheckNumbersFit(screen);
  course().SetActiveTees(tee_, screen.ActiveTee.value());
  course().SetRating(tee_, 0, screen.FMensRating.RatingValue());
  course().SetRating(tee_, 1, screen.FLadiesRating.RatingValue());
  course().Setslope(tee_, 0, screen.FMensSlope.SlopeValue());
  course().Setslope(tee_, 1, screen.FLadiesSlope.SlopeValue());
  const bool named = !screen.FTeeName.text().empty();
  course().SetTeeName(tee_, named ? screen.FTeeName.text() : "NoName");
  course().SetTeeNameAbv(tee_, named ? screen.FTeeNameAbv.text() : "N");
  for (int hole = 1; hole <= kCourseHoles; ++hole) {
    const std::string number = hole == kFirstHoles[0]   ? screen.FrontHoleNumber.text()
                               : hole == kFirstHoles[1] ? screen.BackHoleNumber.text()
                                                        : At(screen.HoleNumber, hole).caption();
    course().SetHoleNumber(tee_, hole, LeadingNumber(number));
    course().SetHoleYard(tee_, hole, LeadingNumber(At(screen.FYardage, hole).text()));
    course().SetHolePar(tee_, hole, LeadingNumber(At(screen.FPar, hole).text()));
    course().SetHoleHandicap(tee_, hole, LeadingNumber(At(screen.FHandicap, hole).text()));
    course().SetStrkSqnc(tee_, hole, LeadingNumber(At(screen.FSequence, hole).caption()));
  }
  for (const TeeTotal& total : kTotals) {
    (course().*total.set)(tee_, LeadingNumber((screen.*total.label).caption()));
  }
  course().SetYardsOrMeters(screen.YardsOrMeters.text());
}

}  // namespace golf
