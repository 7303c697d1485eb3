#pragma once

#include <map>
#include <string>

#include "desktop/screen_panel.h"

namespace golf {

class About;
class ChangePreview;
class CheckData;
class CourseForm;
class CourseTable;
class CourseTee;
class DeletedCourses;
class ExportData;
class GridSort;
class InterruptedRun;
class KVCoursestoQB;
class KVtoQB;
class KVtoZD;
class LoadRoster;
class LoadRosters;
class QBtoKV;
class RecentFolders;
class Results;
class TeamLayouts;
class TeamResults;
class TipBox;
class TransferHistory;
class TransferMenu;
class XReportsCustomTeamResults;
class ZDtoKV;
class ZDtoQB;

// Says where a window opens. kDialog opens in the centre of its parent window, and
// kDialogOverOpener at the parent's top left corner.
enum class WindowKind { kMain, kDialog, kDialogOverOpener };

// Says how the window of a screen is created.
struct View {
  WindowKind kind;
  void (*fill)(ScreenPanel&, Screen&);
  bool grows = false;  // true if the operator can resize the window
};
// Maps the names of screens to their views.
using ViewCatalogue = std::map<std::string, View, std::less<>>;

ViewCatalogue Views();

void FillTransferMenu(ScreenPanel& panel, TransferMenu& screen);
void FillAbout(ScreenPanel& panel, About& screen);
void FillTipBox(ScreenPanel& panel, TipBox& screen);
void FillChangePreview(ScreenPanel& panel, ChangePreview& screen);
void FillTransferHistory(ScreenPanel& panel, TransferHistory& screen);
void FillInterruptedRun(ScreenPanel& panel, InterruptedRun& screen);
void FillDeletedCourses(ScreenPanel& panel, DeletedCourses& screen);
void FillResults(ScreenPanel& panel, Results& screen);
void FillRecentFolders(ScreenPanel& panel, RecentFolders& screen);
void FillCheckData(ScreenPanel& panel, CheckData& screen);
void FillExportData(ScreenPanel& panel, ExportData& screen);
void FillTeamResults(ScreenPanel& panel, TeamResults& screen);
void FillTeamLayouts(ScreenPanel& panel, TeamLayouts& screen);
void FillTeamLayoutBuilder(ScreenPanel& panel, XReportsCustomTeamResults& screen);
void FillGridSort(ScreenPanel& panel, GridSort& screen);
void FillLoadRoster(ScreenPanel& panel, LoadRoster& screen);
void FillLoadRosters(ScreenPanel& panel, LoadRosters& screen);
void FillCourseTable(ScreenPanel& panel, CourseTable& screen);
void FillCourseForm(ScreenPanel& panel, CourseForm& screen);
void FillCourseTee(ScreenPanel& panel, CourseTee& screen);
void FillKVtoQB(ScreenPanel& panel, KVtoQB& screen);
void FillKVtoZD(ScreenPanel& panel, KVtoZD& screen);
void FillQBtoKV(ScreenPanel& panel, QBtoKV& screen);
void FillZDtoKV(ScreenPanel& panel, ZDtoKV& screen);
void FillZDtoQB(ScreenPanel& panel, ZDtoQB& screen);
void FillKVCoursestoQB(ScreenPanel& panel, KVCoursestoQB& screen);

}  // namespace golf
