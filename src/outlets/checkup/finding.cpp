#include "outlets/checkup/finding.h"

#include <algorithm>
#include <iterator>

namespace golf {
namespace {

constexpr std::string_view kSeverities[] = {"note", "warning", "error"};

constexpr std::string_view kRestore =
    "Restore the file from a backup, or ask the vendor of the program to repair it.";
constexpr std::string_view kRepairIndex =
    "Run check --repair, or open and close the course library in the program.";

using enum FindingCode;
using enum Severity;

constexpr FindingKind kKinds[] = {
    {kFileUnreadable, "file-unreadable", kError,
     "Transfers from or to the file are refused, and its data was not checked.",
     "Check the disk and the permissions of the file. Restore it from a backup if it stays "
     "unreadable."},
    {kFileHeld, "file-held", kError,
     "Transfers from or to the file are refused, and its data was not checked.",
     "Close the program that has the file open, and check again."},
    {kFileMissing, "file-missing", kWarning,
     "The program creates the file empty when it is opened the next time, so its data seem gone.",
     "Restore the file from a backup before you open the program."},
    {kFileLength, "file-length", kError,
     "The incomplete record at the end is ignored or overwritten.", kRestore},
    {kFileSizes, "file-sizes", kError,
     "The records of the files no longer belong together, so data of some golfers are missing.",
     kRestore},
    {kRunInterrupted, "run-interrupted", kError,
     "A transfer was interrupted, so the files may contain a part of its changes.",
     "Start any transfer, which finishes or puts back the run, or use recover."},
    {kIndexMissing, "index-missing", kWarning, "The program shows no courses.", kRepairIndex},
    {kIndexCount, "index-count", kError,
     "The program lists too few courses, or stops with an error.", kRepairIndex},
    {kIndexNowhere, "index-nowhere", kError,
     "The program lists a course that does not exist, or stops with an error.", kRepairIndex},
    {kIndexStale, "index-stale", kWarning,
     "The program does not list all courses, or lists them in a wrong order.", kRepairIndex},
    {kCourseLinkNowhere, "course-link-nowhere", kWarning,
     "Scores of the course are posted without a course.",
     "Transfer the courses again. Correct the course in Quenby if the link stays."},
    {kCourseLinkWrong, "course-link-wrong", kWarning,
     "Scores of the course can be posted to another course.",
     "Compare both courses, and transfer the courses again."},
    {kCourseTwice, "course-twice", kWarning, "A transfer can use the wrong one of the two courses.",
     "Rename one of the courses, or delete it if nobody played it."},
    {kTeeRule, "tee-rule", kNote, "Handicaps and stroke allowances of this tee can be wrong.",
     "Correct the tee in the course library of the program."},
    {kIdTwice, "id-twice", kError, "A transfer writes the data of one golfer to the other.",
     "Give one of the golfers a new ID number in the program."},
    {kIdDiffers, "id-differs", kNote,
     "A transfer that matches golfers by ID number adds the golfer again, or does not find him.",
     "Give the golfer the same ID number in both programs if it is the same golfer."},
    {kGolferTwice, "golfer-twice", kWarning,
     "The scores of one golfer are divided between two records.",
     "Delete one of the two records in the program if they are the same golfer."},
    {kGolferWithoutId, "golfer-without-id", kNote,
     "Transfers that match golfers by ID number leave the golfer out.",
     "Give the golfer an ID number in the program."},
    {kGolferOnNoRoster, "golfer-on-no-roster", kNote, "Only \"Show ALL Rosters\" shows the golfer.",
     "Add the golfer to a roster in Quenby if he still plays."},
    {kRosterMissing, "roster-missing", kWarning, "No roster of Quenby shows the golfer.",
     "Add the golfer to a roster in Quenby."},
    {kHalfWaits, "half-waits", kNote,
     "A score of nine holes is not in the history until another nine is posted.",
     "Post the other nine holes in Kelvane."},
    {kHistoryCount, "history-count", kError,
     "Scores that are not counted are overwritten by the next one, and do not count for the "
     "handicap.",
     "Correct the golfer's scores in Kelvane."},
    {kHistoryOrder, "history-order", kWarning, "The handicap is worked out from the wrong scores.",
     "Correct the date of the score in Kelvane, or enter the score again."},
    {kScoreDate, "score-date", kWarning, "The handicap is worked out from the wrong scores.",
     "Correct the date of the score in Kelvane."},
    {kScoreValue, "score-value", kWarning, "The handicap is wrong.",
     "Correct the score in Kelvane."},
    {kScoreCourse, "score-course", kWarning, "The score has no course.",
     "Enter the score again in Kelvane, with its course."},
    {kScoreCourseDeleted, "score-course-deleted", kNote,
     "Kelvane shows the score without the name of its course.",
     "Restore the course in Kelvane if the name is needed."},
    {kScoreTee, "score-tee", kNote, "Kelvane shows the score without the name of its tee.",
     "Activate the tee in Kelvane if its name is needed."},
    {kEntryNoGolfer, "entry-no-golfer", kWarning,
     "The entry counts in the tournament, but has no name and no handicap.",
     "Delete the entry in Quenby, or restore the golfer."},
    {kEntryTwice, "entry-twice", kWarning, "The golfer counts twice in the tournament.",
     "Delete one of the entries in Quenby."},
    {kEntryTeam, "entry-team", kWarning, "The golfer plays for a team that does not exist.",
     "Put the golfer on a team in Quenby."},
    {kEntryTee, "entry-tee", kWarning, "Quenby puts the golfer on the first tee of the round.",
     "Choose the tee of the golfer in Quenby."},
    {kEntryScore, "entry-score", kWarning, "The results of the round are wrong.",
     "Correct the score in Quenby."},
    {kTeamFull, "team-full", kNote, "Team results leave out some of the golfers.",
     "Take golfers off the team in Quenby."},
    {kTournamentCount, "tournament-count", kWarning,
     "Quenby uses the nearest possible number the next time.",
     "Correct the settings of the tournament in Quenby."},
    {kTournamentDate, "tournament-date", kWarning,
     "Scores of the round are posted with the present date.",
     "Set the date of the round in Quenby."},
    {kTournamentCourse, "tournament-course", kWarning, "Scores cannot be worked out for the round.",
     "Choose the course of the round in Quenby."},
    {kTournamentTee, "tournament-tee", kWarning,
     "Handicaps of the golfers who play the tee cannot be worked out.",
     "Choose another tee for the round in Quenby."},
    {kPostedNotFound, "posted-not-found", kNote,
     "Quenby takes the score for transferred, so it is not transferred again by default.",
     "Transfer the scores of the round again, and answer Yes for the golfer."},
    {kFoundNotPosted, "found-not-posted", kNote,
     "The next score transfer of the round posts the score a second time.",
     "Compare the golfer's scores in Kelvane before you transfer the round."},
    {kLeagueEvent, "league-event", kWarning,
     "Scores of a later event are overwritten, or are posted too early.",
     "Set the current event of the league in Zandel."},
    {kLeagueSubstitutes, "league-substitutes", kError,
     "A transfer of the substitutes reads records that do not exist.", kRestore},
    {kLeagueTeam, "league-team", kWarning, "The course of the golfer's score is not known.",
     "Correct the team of the golfer in Zandel."},
    {kLeagueScore, "league-score", kWarning, "The score is not transferred to Kelvane.",
     "Correct the score in Zandel."},
    {kLeagueDate, "league-date", kWarning, "Scores of the event are posted with a wrong date.",
     "Correct the date of the event in Zandel."},
    {kLeagueCourse, "league-course", kWarning, "Scores of the event are posted without a course.",
     "Choose the course of the event in Zandel."},
    {kNameSpelling, "name-spelling", kWarning,
     "A transfer by name misses the golfer and adds him a second time.",
     "Spell the name in both programs in the same way."},
    {kNameCut, "name-cut", kNote,
     "Quenby cuts the first name, so each transfer from Zandel adds the golfer again.",
     "Shorten the first name in Zandel to 11 characters."},
};

static_assert(std::ranges::all_of(kKinds,
                                  [](const FindingKind& kind) {
                                    return &kind == &kKinds[static_cast<std::size_t>(kind.code)];
                                  }),
              "the rows must have the order of FindingCode");

}  // namespace

std::string_view NameOf(Severity severity) {
  return kSeverities[static_cast<std::size_t>(severity)];
}

std::optional<Severity> SeverityOfName(std::string_view name) {
  const auto found = std::find(std::begin(kSeverities), std::end(kSeverities), name);
  if (found == std::end(kSeverities)) return std::nullopt;
  return static_cast<Severity>(found - std::begin(kSeverities));
}

std::span<const FindingKind> FindingKinds() { return kKinds; }

const FindingKind& KindOf(FindingCode code) { return kKinds[static_cast<std::size_t>(code)]; }

}  // namespace golf
