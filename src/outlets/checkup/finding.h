#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace golf {

// Lists the severities in ascending order. A note needs no action.
enum class Severity { kNote, kWarning, kError };

// Returns "note", "warning" or "error".
std::string_view NameOf(Severity severity);
// Returns nothing if there is no severity of this name.
std::optional<Severity> SeverityOfName(std::string_view name);

// Lists what a check-up can find. The rows of FindingKinds have this order.
enum class FindingCode {
  kFileUnreadable,
  kFileHeld,
  kFileMissing,
  kFileLength,
  kFileSizes,
  kRunInterrupted,
  kIndexMissing,
  kIndexCount,
  kIndexNowhere,
  kIndexStale,
  kCourseLinkNowhere,
  kCourseLinkWrong,
  kCourseTwice,
  kTeeRule,
  kIdTwice,
  kIdDiffers,
  kGolferTwice,
  kGolferWithoutId,
  kGolferOnNoRoster,
  kRosterMissing,
  kHalfWaits,
  kHistoryCount,
  kHistoryOrder,
  kScoreDate,
  kScoreValue,
  kScoreCourse,
  kScoreCourseDeleted,
  kScoreTee,
  kEntryNoGolfer,
  kEntryTwice,
  kEntryTeam,
  kEntryTee,
  kEntryScore,
  kTeamFull,
  kTournamentCount,
  kTournamentDate,
  kTournamentCourse,
  kTournamentTee,
  kPostedNotFound,
  kFoundNotPosted,
  kLeagueEvent,
  kLeagueSubstitutes,
  kLeagueTeam,
  kLeagueScore,
  kLeagueDate,
  kLeagueCourse,
  kNameSpelling,
  kNameCut,
};

// Describes a code for people. All texts are English sentences or parts of one, in ASCII.
struct FindingKind {
  FindingCode code;
  std::string_view name;  // as in the output, such as "index-stale"
  Severity severity;
  std::string_view effect;  // what the finding can lead to
  std::string_view advice;  // what to do, and in which program
};

std::span<const FindingKind> FindingKinds();
const FindingKind& KindOf(FindingCode code);

// Describes one finding. All texts are in code page 1252.
struct Finding {
  FindingCode code;
  std::string file;         // relative to the install folder, with "/"
  std::int64_t record = 0;  // from 1; 0 for a whole file
  std::string title;        // of the golfer, course, roster or league; can be empty
  std::string text;         // a sentence
};

using EachFinding = std::function<void(const Finding&)>;

}  // namespace golf
