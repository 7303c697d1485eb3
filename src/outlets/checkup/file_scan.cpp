#include "outlets/checkup/file_scan.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace golf {

FileScan::FileScan(SharedState& state, EachFinding each, ReportProgress report)
    : RecordFiles(state), each_(std::move(each)), report_(std::move(report)) {
  if (report_) progress_.total = LengthOfAll();
}

void FileScan::Report(std::string_view doing) {
  if (!report_) return;
  progress_.doing = doing;
  report_(progress_);
}

// The total does not contain the file outside the three folders.
void FileScan::Advance(const std::string& file, std::size_t bytes) {
  progress_.done = std::min(progress_.done + static_cast<std::int64_t>(bytes), progress_.total);
  Report(file);
}

void FileScan::Add(FindingCode code, const std::string& file, std::int64_t record,
                   std::string title, std::string text) {
  constexpr FindingCode kDamages[] = {FindingCode::kFileUnreadable, FindingCode::kFileHeld,
                                      FindingCode::kFileMissing, FindingCode::kFileLength};
  if (std::ranges::find(kDamages, code) != std::end(kDamages)) damaged_.insert(file);
  each_({code, file, record, std::move(title), std::move(text)});
}

void FileScan::AddMissing(const std::string& file) {
  Add(FindingCode::kFileMissing, file, 0, "", "The file does not exist.");
}

void FileScan::AddLength(const std::string& file, std::size_t rest, std::size_t length) {
  Add(FindingCode::kFileLength, file, 0, "",
      "The file ends with " + std::to_string(rest) + " bytes that are no whole record of " +
          std::to_string(length) + ".");
}

void FileScan::AddError(const std::string& file, const NumberedError& error) {
  const bool is_held = error.Is(ErrorNumber::kPermissionDenied);
  Add(is_held ? FindingCode::kFileHeld : FindingCode::kFileUnreadable, file, 0, "",
      is_held ? "Another program has the file open." : error.description());
}

}  // namespace golf
