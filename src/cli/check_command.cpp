#include <algorithm>
#include <iostream>
#include <vector>

#include "app/application.h"
#include "cli/commands.h"
#include "cli/json_listener.h"
#include "cli/json_text.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "outlets/checkup/checkup.h"
#include "outlets/checkup/finding_list.h"
#include "screens/file_changes.h"

namespace golf {
namespace {

void RequireKnownCodes(const CheckRequest& request) {
  for (const std::string& code : request.only) {
    const bool is_known = std::ranges::any_of(
        FindingKinds(), [&](const FindingKind& kind) { return kind.name == code; });
    if (!is_known) throw Refusal("There is no finding " + code + "; docs/check.md lists them.");
  }
}

void KeepWanted(std::vector<Finding>& findings, const CheckRequest& request) {
  const Severity least = SeverityOfName(request.severity).value_or(Severity::kNote);
  std::erase_if(findings, [&](const Finding& finding) {
    const FindingKind& kind = KindOf(finding.code);
    const bool is_named =
        request.only.empty() || std::ranges::find(request.only, kind.name) != request.only.end();
    return kind.severity < least || !is_named;
  });
}

void WriteJson(const Finding& finding) {
  const FindingKind& kind = KindOf(finding.code);
  WriteJsonLine({{"code", kind.name},
                 {"severity", NameOf(kind.severity)},
                 {"file", JsonText(finding.file)},
                 {"record", finding.record > 0 ? Json(finding.record) : Json(nullptr)},
                 {"title", JsonText(finding.title)},
                 {"text", JsonText(finding.text)},
                 {"effect", kind.effect},
                 {"advice", kind.advice}});
}

// Writes the findings of one code in one file.
void WriteCode(std::span<const Finding> findings) {
  const FindingKind& kind = KindOf(findings.front().code);
  std::cout << "  " << NameOf(kind.severity) << ' ' << kind.name << ": " << kind.effect
            << "\n    What to do: " << kind.advice << '\n';
  for (const Finding& finding : findings) {
    const std::string where = PlainCell(PlaceInFile(finding));
    std::cout << "    " << where << (where.empty() ? "" : ": ") << PlainCell(finding.text) << '\n';
  }
}

// Calls `each` with each range of findings that follow each other and are alike.
template <class Alike, class Each>
void ForEachRange(std::span<const Finding> findings, const Alike& alike, const Each& each) {
  while (!findings.empty()) {
    const auto end = std::ranges::find_if_not(
        findings, [&](const Finding& finding) { return alike(findings.front(), finding); });
    const auto count = static_cast<std::size_t>(end - findings.begin());
    each(findings.first(count));
    findings = findings.subspan(count);
  }
}

void WriteForPeople(std::vector<Finding>& findings) {
  const FindingCounts counts(findings);
  std::cout << (findings.empty() ? "Nothing was found." : counts.Text() + ".") << '\n';
  const auto same_file = [](const Finding& a, const Finding& b) { return a.file == b.file; };
  const auto same_code = [](const Finding& a, const Finding& b) { return a.code == b.code; };
  ForEachRange(findings, same_file, [&](std::span<const Finding> of_file) {
    std::cout << '\n'
              << PlainCell(of_file.front().file) << ": " << FindingCounts(of_file).Text() << '\n';
    std::vector<Finding> by_code(of_file.begin(), of_file.end());
    SortByKind(by_code);
    ForEachRange(std::span<const Finding>(by_code), same_code, WriteCode);
  });
}

// Writes the indexes of the libraries anew, as a run of the history.
void Repair(const Options& options, SharedState& state, HeadlessHost& host) {
  const std::vector<const CourseLibrary*> libraries = LibrariesToRepair(FindingsByFile(state));
  if (libraries.empty()) return;
  host.Operate([&] {
    ChangeFiles(state, host, "check-repair", "course indexes", [&] {
      for (const CourseLibrary* library : libraries) RebuildCourseIndexes(state, *library);
    });
  });
  if (options.json) return;
  for (const CourseLibrary* library : libraries) {
    std::cout << "The course indexes of " << library->sibling << " were written anew.\n";
  }
  std::cout << '\n';
}

}  // namespace

ExitCode RunCheck(const Options& options, const CheckRequest& request) {
  RequireKnownCodes(request);
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  HostListener quiet;
  HeadlessHost host(state, Application::Screens(), quiet);
  host.clock = ClockOf(options);
  if (request.repair) {
    try {
      Repair(options, state, host);
    } catch (const ClickEnded& ended) {
      NoteProblem(ended.error.Report());
      return ExitCodeOf(ended.error);
    }
    if (const auto lost = CloseFiles(state.files)) return ExitCodeOf(*lost);
  }
  std::vector<Finding> findings = FindingsByFile(state);
  KeepWanted(findings, request);
  if (options.json) {
    for (const Finding& finding : findings) WriteJson(finding);
  } else {
    WriteForPeople(findings);
  }
  return FindingCounts(findings).HasWarning() ? ExitCode::kRefused : ExitCode::kDone;
}

}  // namespace golf
