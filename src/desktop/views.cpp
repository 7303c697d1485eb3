#include "desktop/views.h"

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

namespace golf {
namespace {

template <class AnyScreen, void (*kFill)(ScreenPanel&, AnyScreen&)>
void Fill(ScreenPanel& panel, Screen& screen) {
  kFill(panel, dynamic_cast<AnyScreen&>(screen));
}

}  // namespace

ViewCatalogue Views() {
  return {
      {"TransferMenu", {WindowKind::kMain, Fill<TransferMenu, FillTransferMenu>, true}},
      {"About", {WindowKind::kDialog, Fill<About, FillAbout>, true}},
      {"TipBox", {WindowKind::kDialog, Fill<TipBox, FillTipBox>}},
      {"GridSort", {WindowKind::kDialog, Fill<GridSort, FillGridSort>}},
      {"ChangePreview", {WindowKind::kDialog, Fill<ChangePreview, FillChangePreview>, true}},
      {"InterruptedRun", {WindowKind::kDialog, Fill<InterruptedRun, FillInterruptedRun>}},
      {"TransferHistory", {WindowKind::kDialog, Fill<TransferHistory, FillTransferHistory>, true}},
      {"LoadRoster", {WindowKind::kDialog, Fill<LoadRoster, FillLoadRoster>, true}},
      {"LoadRosters", {WindowKind::kDialogOverOpener, Fill<LoadRosters, FillLoadRosters>, true}},
      {"CourseTable", {WindowKind::kDialog, Fill<CourseTable, FillCourseTable>, true}},
      {"CourseForm", {WindowKind::kDialog, Fill<CourseForm, FillCourseForm>}},
      {"CourseTee", {WindowKind::kDialog, Fill<CourseTee, FillCourseTee>}},
      {"DeletedCourses", {WindowKind::kDialog, Fill<DeletedCourses, FillDeletedCourses>, true}},
      {"Results", {WindowKind::kDialog, Fill<Results, FillResults>, true}},
      {"RecentFolders", {WindowKind::kDialog, Fill<RecentFolders, FillRecentFolders>, true}},
      {"CheckData", {WindowKind::kDialog, Fill<CheckData, FillCheckData>, true}},
      {"ExportData", {WindowKind::kDialog, Fill<ExportData, FillExportData>, true}},
      {"TeamResults", {WindowKind::kDialog, Fill<TeamResults, FillTeamResults>, true}},
      {"TeamLayouts", {WindowKind::kDialog, Fill<TeamLayouts, FillTeamLayouts>, true}},
      {"XReportsCustomTeamResults",
       {WindowKind::kDialog, Fill<XReportsCustomTeamResults, FillTeamLayoutBuilder>, true}},
      {"KVtoQB", {WindowKind::kDialog, Fill<KVtoQB, FillKVtoQB>, true}},
      {"KVtoZD", {WindowKind::kDialog, Fill<KVtoZD, FillKVtoZD>, true}},
      {"QBtoKV", {WindowKind::kDialog, Fill<QBtoKV, FillQBtoKV>, true}},
      {"ZDtoKV", {WindowKind::kDialog, Fill<ZDtoKV, FillZDtoKV>, true}},
      {"ZDtoQB", {WindowKind::kDialog, Fill<ZDtoQB, FillZDtoQB>, true}},
      {"KVCoursestoQB", {WindowKind::kDialog, Fill<KVCoursestoQB, FillKVCoursestoQB>}}};
}

}  // namespace golf
