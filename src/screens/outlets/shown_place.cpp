#include "screens/outlets/shown_place.h"

#include <string>
#include <variant>

#include "outlets/checkup/finding_list.h"
#include "outlets/checkup/finding_place.h"
#include "screens/courses/course_form.h"
#include "screens/file_changes.h"
#include "screens/rosters/roster_tools.h"

namespace golf {
namespace {

class PlaceShower {
 public:
  PlaceShower(SharedState& state, ScreenHost& host, const Finding& finding)
      : state_(state), host_(host), finding_(finding) {}

  void operator()(const CoursePlace& place) const {
    OpenCourseLibrary(state_, *place.library);
    state_.Course().GetRecord(place.course);
    const auto screen = Load<CourseForm>(host_).shared_from_this();
    dynamic_cast<CourseForm&>(*screen).BeginView(place.course);
    host_.ShowModal(*screen);
    host_.Unload(*screen);
  }
  void operator()(const KelvaneRosterPlace& place) const {
    ShowKelvaneRosters(state_, host_, RosterUse::kView, place.name);
  }
  void operator()(const QuenbyRosterPlace& place) const {
    ShowQuenbyRosters(state_, host_, RosterUse::kView, place.roster);
  }
  void operator()(std::monostate) const {
    const std::string place = PlaceInFile(finding_);
    host_.Ask(Box{.title = "Check the data",
                  .text = finding_.text + "\r\rThis is in the file " + finding_.file + "." +
                          (place.empty() ? "" : "\r" + place),
                  .icon = BoxIcon::kInformation});
  }

 private:
  SharedState& state_;
  ScreenHost& host_;
  const Finding& finding_;
};

}  // namespace

void ShowPlaceOf(SharedState& state, ScreenHost& host, const Finding& finding) {
  ThenCloseFiles(state,
                 [&] { std::visit(PlaceShower(state, host, finding), PlaceOf(state, finding)); });
}

}  // namespace golf
