#include <filesystem>
#include <iostream>
#include <memory>
#include <optional>
#include <utility>

#include "cli/commands.h"
#include "cli/field_text.h"
#include "cli/history_command.h"
#include "cli/json_text.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/utf8_path.h"
#include "core/code_page.h"
#include "outlets/file_kinds.h"

namespace golf {
namespace {

constexpr int kNumber = 1;

struct FoundFile {
  std::unique_ptr<Application> application;
  std::string path;
  std::optional<std::string> folder;  // its own folder, UTF-8; nothing if below the install
};

// Finds the file by the path as given, or else below the install folder. Ignores the case of its
// name. Raises Refusal if there is no such file.
FoundFile FindFile(const Options& options, const std::string& file) {
  namespace fs = std::filesystem;
  const fs::path named = PathFromUtf8(file).make_preferred();
  Options beside = options;
  beside.install = Utf8FromPath(named.has_parent_path() ? named.parent_path() : fs::path("."));
  const std::pair<const Options&, std::string> places[] = {{beside, Utf8FromPath(named.filename())},
                                                           {options, Utf8FromPath(named)}};
  for (const auto& [place, name] : places) {
    std::error_code error;
    if (place.install && !fs::is_directory(PathFromUtf8(*place.install), error)) continue;
    FoundFile found{StartApplication(place), TextFromUtf8(name), {}};
    if (&place == &beside) found.folder = beside.install;
    SharedState& state = found.application->state();
    found.path.insert(0, state.ProgramPath);
    if (state.files.FileExists(found.path)) return found;
  }
  throw Refusal("There is no file " + file + ".");
}

// Reports an unfinished run of the install that contains the file. If the file was found by its own
// path, also checks the folder above, since an install has its files in subfolders.
void NoteUnfinishedAround(const Options& options, const FoundFile& found) {
  NoteUnfinished(found.application->state());
  if (!found.folder) return;
  Options above = options;
  above.install = Utf8FromPath(PathFromUtf8(*found.folder) / "..");
  NoteUnfinished(StartApplication(above)->state());
}

LayoutInfo LayoutOf(const std::string& file) {
  const std::string name = Utf8FromPath(PathFromUtf8(file).filename());
  const auto layout = LayoutOfFile(TextFromUtf8(name));
  if (name.find_first_of("*?") != std::string::npos) {
    throw Refusal("There is no file " + file + ".");
  }
  if (!layout) throw Refusal(name + " is not the name of a file of the three programs.");
  return *layout;
}

// Returns the first and the last record to show of the file that is open as number kNumber.
std::pair<std::int64_t, std::int64_t> RecordsOf(FileTable& files, const DumpRequest& request,
                                                std::size_t length) {
  const std::int64_t count = files.CountTruncated(kNumber, length);
  const std::int64_t rest = files.Length(kNumber) - count * static_cast<std::int64_t>(length);
  if (rest != 0) {
    NoteProblem("The file ends with " + std::to_string(rest) + " bytes that are no whole record.");
  }
  if (!request.record) return {1, count};
  if (*request.record >= 1 && *request.record <= count) return {*request.record, *request.record};
  throw Refusal("There is no record " + std::to_string(*request.record) + "; the file holds " +
                std::to_string(count) + ".");
}

void WriteCsvHeading(const LayoutInfo& layout) {
  std::cout << "record";
  for (const Field& field : layout.fields) {
    for (const std::string& name : ElementNames(field)) std::cout << ',' << CsvValue(name);
  }
  std::cout << '\n';
}

void WriteCsvRecord(const LayoutInfo& layout, std::int64_t number, std::string_view record) {
  std::cout << number;
  for (const Field& field : layout.fields) {
    for (const std::string& text : ElementTexts(field, record)) std::cout << ',' << CsvValue(text);
  }
  std::cout << '\n';
}

void WriteJsonRecord(const LayoutInfo& layout, std::int64_t number, std::string_view record) {
  Json object = {{"record", number}};
  for (const Field& field : layout.fields) object[FieldLabel(field)] = FieldJson(field, record);
  WriteJsonLine(object);
}

void WritePlainRecord(const LayoutInfo& layout, std::int64_t number, std::string_view record) {
  std::cout << "Record " << number << '\n';
  for (const Field& field : layout.fields) {
    for (const auto& [label, text] : PlainLines(field, record)) {
      std::cout << "  " << label << std::string(label.size() < 20 ? 20 - label.size() : 1, ' ')
                << text << '\n';
    }
  }
}

}  // namespace

ExitCode RunDump(const Options& options, const DumpRequest& request) {
  const LayoutInfo layout = LayoutOf(request.file);
  const FoundFile found = FindFile(options, request.file);
  FileTable& files = found.application->state().files;
  files.gate().RefuseChanges();
  NoteUnfinishedAround(options, found);
  files.Open(kNumber, found.path, layout.length);
  const auto [first, last] = RecordsOf(files, request, layout.length);
  const auto write = request.csv    ? WriteCsvRecord
                     : options.json ? WriteJsonRecord
                                    : WritePlainRecord;
  if (request.bom) std::cout << kByteOrderMark;
  if (request.csv) WriteCsvHeading(layout);
  std::string record(layout.length, '\0');
  for (std::int64_t number = first; number <= last; ++number) {
    files.ReadBytes(kNumber, number, record);
    write(layout, number, record);
  }
  return ExitCode::kDone;
}

}  // namespace golf
