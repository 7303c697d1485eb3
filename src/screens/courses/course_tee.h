#pragma once

#include <array>
#include <string>
#include <utility>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/courses/rating_box.h"

namespace golf {

template <class AnyControl>
using HoleControls = std::array<AnyControl, kCourseHoles>;

// The scorecard of one tee. Its opener fills the controls, sets FHoles to "18", "9F" or "9B",
// starts Timer1 and shows it; it hides with the tag "OK" or "CANCEL". Nothing is written here.
class CourseTee : public Screen {
 public:
  static constexpr const char* kName = "CourseTee";

  explicit CourseTee(const ScreenContext& context);

  // The frames that FHoles asks for. Before the window is made: it has the size of what is seen.
  void ShowHolesPlayed();

  Button* LeaveButton() override { return &CancelButton; }

  Label FCourse{"FCourse"};
  Label FHoles{"FHoles"};
  CheckBox ActiveTee{"ActiveTee", "&Active tee"};
  Frame TeeFrame{"TeeFrame"};
  TextCombo FTeeName{"FTeeName",
                     {"Black", "Blue", "Gold", "Green", "Red", "Silver", "White", "Yellow"}};
  TextBox FTeeNameAbv{"FTeeNameAbv"};
  RatingBox FMensRating{"FMensRating", *this, {state(), host()}};
  SlopeBox FMensSlope{"FMensSlope", *this, {state(), host()}};
  RatingBox FLadiesRating{"FLadiesRating", *this, {state(), host()}};
  SlopeBox FLadiesSlope{"FLadiesSlope", *this, {state(), host()}};
  ComboBox YardsOrMeters{"YardsOrMeters"};
  Label YardOrMeter{"YardOrMeter"};
  Frame FrontNineFrame{"FrontNineFrame"};
  ComboBox FrontHoleNumber{"FrontHoleNumber"};
  Frame BackNineFrame{"BackNineFrame"};
  ComboBox BackHoleNumber{"BackHoleNumber"};
  HoleControls<Label> HoleNumber =
      Holes<Label>("HoleNumber");  // but of holes 1 and 10, which are chosen
  HoleControls<TextBox> FYardage = Holes<TextBox>("FYardage");
  HoleControls<TextBox> FPar = Holes<TextBox>("FPar");
  HoleControls<TextBox> FHandicap = Holes<TextBox>("FHandicap");
  HoleControls<Label> FSequence = Holes<Label>("FSequence");
  Label FYardOut{"FYardOut"};
  Label FParOut{"FParOut"};
  Label FYardIn{"FYardIn"};
  Label FParIn{"FParIn"};
  Frame TotalFrame{"TotalFrame"};
  Label FYardTotal{"FYardTotal"};
  Label FParTotal{"FParTotal"};
  Timer Timer1{"Timer1"};
  Button OKButton{"OKButton", "&OK"};
  Button CancelButton{"CancelButton", "Cancel"};
  Button Help{"Help", "&Help"};

 private:
  template <class AnyControl, std::size_t... kHoles>
  static HoleControls<AnyControl> Holes(const char* name, std::index_sequence<kHoles...>) {
    return {(static_cast<void>(kHoles), AnyControl(name))...};
  }
  template <class AnyControl>
  static HoleControls<AnyControl> Holes(const char* name) {
    return Holes<AnyControl>(name, std::make_index_sequence<kCourseHoles>());
  }

  void PlaceControls();
  void TieEntries();
  void TieNine(ComboBox& first_number, std::size_t first_hole);
  void TieHole(HoleControls<TextBox>& boxes, std::size_t hole, double moves_on_above);

  void SetUp();
  void ShowActive();
  void ShowTotals();
  void LeaveTeeName();
  Control* NextAfter(const HoleControls<TextBox>& boxes, std::size_t hole);

  // What is wrong now, each with the control that holds it.
  std::vector<std::pair<Control*, TeeFault>> Faults();
  void ShowNotes(const Control* left);
  std::vector<Control*> Entries();

  void Accept();
  void Finish();
  bool NameAccepted();
  bool RatingsAccepted();
  bool HolesAccepted();
  void ShowStrokeSequence();
  void CopyBackNineToFront();
  void Cancel();
  int HoleNumFlag() const;  // by FHoles
  std::vector<TeeFault> FaultsOfHoles() const;
};

}  // namespace golf
