#pragma once

namespace golf {

// Describes something that an operator does on a screen of the demonstration install and that
// changes files.
struct Deed {
  const char* name;    // of its run in the history
  const char* script;  // its lines
};

inline constexpr Deed kDeeds[] = {
    {"courses-kv-to-qb", "open KVCoursestoQB\nclick TransferCourses"},
    {"golfers-kv-to-qb",
     "open KVtoQB\nclick SourceButton\nrow grid1 1\nclick LoadButton\n"
     "click DestButton\nrow grid1 3\nclick LoadButton\n"
     "answer \"Update Handicaps?\" YES\nclick TransferButton"},
    {"golfers-kv-to-zd",
     "open KVtoZD\nclick FindZDButton\npick LeagueList 00021\nclick OKLEague\n"
     "click FindKVMButton\nrow grid1 1\nclick LoadButton\n"
     "answer Question Yes\nclick TransferButton"},
    {"golfers-zd-to-qb",
     "open ZDtoQB\nclick SourceButton\npick LeagueList 00011\nclick OKLEague\n"
     "click DestButton\nrow grid1 3\nclick LoadButton\n"
     "check TransferSubs on\nclick TransferButton"},
    {"scores-qb-to-kv",
     "open QBtoKV\nclick DestButton\nrow grid1 1\nclick LoadButton\n"
     "select TournamentList 0\nselect RoundList 0\n"
     "answer Continue Yes\nclick TransferButton"},
    {"scores-zd-to-kv",
     "open ZDtoKV\nclick SourceButton\npick LeagueList 00021\nclick OKLEague\n"
     "select EventList 0\nclick DestButton\nrow grid1 1\nclick LoadButton\n"
     "click TransferButton"},
    {"new-kv-roster",
     "open LoadRoster\nanswer \"New Roster\" Yes\nclick NewButton\n"
     "set NewRosterName Seniors\nclick OK2Button"},
    {"delete-kv-roster",
     "open LoadRoster\nrow grid1 2\nanswer \"DELETE Roster?\" YES\nclick DeleteButton"},
    {"save-qb-roster",
     "open LoadRosters\nanswer \"New Roster\" Yes\nclick NewButton\n"
     "set Text1(0) Seniors\nclick AddEditRosterOK"},
    {"delete-qb-roster",
     "open LoadRosters\nrow grid1 2\nanswer \"DELETE Roster?\" YES\nclick DeleteButton"},
    {"edit-course",
     "open CourseTable kv\nrow CourseGrid 1\nclick EditCourseButton\n"
     "set FCourseName \"Zebra Links\"\nclick OKButton"},
    {"delete-course",
     "open CourseTable kv\nrow CourseGrid 1\nanswer \"DELETE COURSE?\" YES\n"
     "click DeleteCourseButton"},
    {"save-layout",
     "open XReportsCustomTeamResults new\nset ReportName \"Best ball\"\nclick SaveButton"},
};

}  // namespace golf
