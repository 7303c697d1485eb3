#include "app/application.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "app/demo/demo_folder.h"
#include "app/tools.h"
#include "core/entry.h"
#include "history/record_changes.h"
#include "outlets/file_kinds.h"
#include "outlets/record_references.h"
#include "scoring/player/player_class.h"
#include "scoring/stroke_control.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "screens/about.h"
#include "screens/courses/course_form.h"
#include "screens/courses/course_table.h"
#include "screens/courses/course_tee.h"
#include "screens/courses/deleted_courses.h"
#include "screens/history/change_preview.h"
#include "screens/history/interrupted_run.h"
#include "screens/history/transfer_history.h"
#include "screens/menu/recent_folders.h"
#include "screens/menu/transfer_menu.h"
#include "screens/outlets/check_data.h"
#include "screens/outlets/export_data.h"
#include "screens/results/grid_sort_screen.h"
#include "screens/results/results_screen.h"
#include "screens/results/team_layout_builder.h"
#include "screens/results/team_layout_list.h"
#include "screens/results/team_results_screen.h"
#include "screens/rosters/load_roster.h"
#include "screens/rosters/load_rosters.h"
#include "screens/tip_box.h"
#include "screens/transfers/kv_courses_to_qb.h"
#include "screens/transfers/kv_to_qb.h"
#include "screens/transfers/kv_to_zd.h"
#include "screens/transfers/qb_to_kv.h"
#include "screens/transfers/zd_to_kv.h"
#include "screens/transfers/zd_to_qb.h"
#include "stores/course/course_class.h"
#include "stores/kelvane/kelvane_buffers.h"
#include "stores/quenby/program_class.h"
#include "stores/zandel/zandel_buffers.h"

namespace golf {
namespace {

// Creates new store objects, which replace the old ones. The buffers of Kelvane and Zandel are
// created only once.
void MakeStoreObjects(SharedState& state, StoreObjects& objects) {
  objects.SpareCourse = std::make_shared<CourseClass>(state);
  objects.Course = std::make_shared<CourseClass>(state);
  objects.Program = std::make_shared<ProgramClass>(state);
  objects.TournamentRecord = objects.Tournament = std::make_shared<TournamentClass>(state);
  objects.PlayerRecords = objects.Player = std::make_shared<PlayerClass>(state);
  objects.Team1Records = objects.Team1 = std::make_shared<TeamClass>(state);
  objects.Team2 = std::make_shared<TeamClass>(state);
  objects.ESC = std::make_shared<ESCClass>();
  if (!objects.Kelvane) objects.Kelvane = std::make_shared<KelvaneBuffers>();
  if (!objects.Zandel) objects.Zandel = std::make_shared<ZandelBuffers>();
}

// Opens the files that a transfer has open when it opens the manager of Quenby's rosters.
void OpenForLoadRosters(SharedState& state) {
  state.StoreDataPath = state.QBDataPath;
  state.Program().OpenRosterListFile();
  state.Player().OpenRosterFile();
}

std::size_t RecordLengthOf(std::string_view file) {
  const auto layout = LayoutOfFile(FileNameOf(file));
  return layout ? layout->length : 0;
}

template <class AnyScreen>
std::shared_ptr<Screen> Make(const ScreenContext& context) {
  return std::make_shared<AnyScreen>(context);
}

std::shared_ptr<Screen> MakeMenu(const ScreenContext& context) {
  return std::make_shared<TransferMenu>(context,
                                        [&host = context.host](const std::string& utf8_folder) {
                                          CreateDemoFolder(utf8_folder, host.Now());
                                        });
}

}  // namespace

Application::Application(std::unique_ptr<Platform> platform)
    : platform_(std::move(platform)),
      held_(*platform_),
      state_(held_, MakeStoreObjects),
      transactions_(held_, [this] { return state_.Now(); },
                    {.length = RecordLengthOf,
                     .references_to_free = [this](std::string_view file,
                                                  const std::vector<std::int64_t>& records) {
                       return ReferencesToFreeRecords(state_, file, records);
                     }}) {
  state_.transactions = &transactions_;
}

ScreenCatalogue Application::Screens() {
  return {{"TransferMenu", MakeMenu},
          {"About", Make<About>},
          {"TipBox", Make<TipBox>},
          {"GridSort", Make<GridSort>},
          {"ChangePreview", Make<ChangePreview>},
          {"InterruptedRun", Make<InterruptedRun>},
          {"LoadRoster", Make<LoadRoster>},
          {"LoadRosters", Make<LoadRosters>},
          {"CourseTable", Make<CourseTable>},
          {"CourseForm", Make<CourseForm>},
          {"CourseTee", Make<CourseTee>},
          {"DeletedCourses", Make<DeletedCourses>},
          {"TransferHistory", Make<TransferHistory>},
          {"Results", Make<Results>},
          {"RecentFolders", Make<RecentFolders>},
          {"CheckData", Make<CheckData>},
          {"ExportData", Make<ExportData>},
          {"TeamResults", Make<TeamResults>},
          {"TeamLayouts", Make<TeamLayouts>},
          {"XReportsCustomTeamResults", Make<XReportsCustomTeamResults>},
          {"KVCoursestoQB", Make<KVCoursestoQB>},
          {"KVtoQB", Make<KVtoQB>},
          {"KVtoZD", Make<KVtoZD>},
          {"QBtoKV", Make<QBtoKV>},
          {"ZDtoKV", Make<ZDtoKV>},
          {"ZDtoQB", Make<ZDtoQB>}};
}

void Application::Start(DateValue now, const RegionalOverrides& overrides) {
  RegionalForms forms = platform_->Regional();
  if (overrides.short_date) forms.short_date = *overrides.short_date;
  if (overrides.long_time) forms.long_time = *overrides.long_time;
  if (!state_.Now) state_.Now = [now] { return now; };
  PrepareStart(state_, forms, now);
}

bool CanOpenScreen(const ScreenHost& host, std::string_view name) {
  constexpr std::string_view kOpenedByOthers[] = {"TipBox", "GridSort", "CourseForm", "CourseTee",
                                                  "ChangePreview"};
  const bool by_others = std::find(std::begin(kOpenedByOthers), std::end(kOpenedByOthers), name) !=
                         std::end(kOpenedByOthers);
  return !by_others && host.HasScreen(name);
}

void OpenScreen(SharedState& state, ScreenHost& host, std::string_view name,
                std::string_view word) {
  if (!CanOpenScreen(host, name)) {
    throw NumberedError(ErrorNumber::kBadCall, "There is no screen " + std::string(name) + ".");
  }
  if (name == "CourseTable") return ShowCourseTable(state, host, word);
  if (name == "XReportsCustomTeamResults") {
    return OpenTeamLayoutBuilder(state, host, word == "new" ? "" : std::string(word));
  }
  // These screens change nothing, so they also do not finish an interrupted run.
  if (name == "About" || name == "CheckData" || name == "ExportData")
    return host.ShowModal(host.Load(name));
  if (name == "LoadRosters") OpenForLoadRosters(state);
  OpenTransfer(state, host, name, word);
}

}  // namespace golf
