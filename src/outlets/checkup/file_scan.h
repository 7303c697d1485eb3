#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "core/numbered_error.h"
#include "core/progress.h"
#include "core/record.h"
#include "outlets/checkup/finding.h"
#include "outlets/install_reader.h"
#include "outlets/record_files.h"

namespace golf {

// Reads the files of an install for the check-up and reports findings. A file that cannot be read
// is a finding and does not end the check-up.
class FileScan : public RecordFiles {
 public:
  // `each` gets the findings in the order in which they are added. `report` may be null.
  FileScan(SharedState& state, EachFinding each, ReportProgress report);

  void Add(FindingCode code, const std::string& file, std::int64_t record, std::string title,
           std::string text);

  // True if a finding says that the file is missing, unreadable or cut. Other findings about its
  // records would then follow from that one.
  bool IsDamaged(const std::string& file) const { return damaged_.contains(file); }

  // Calls `each` with the number, from 1, and the content of every whole record of a file. Returns
  // the number of whole records. Returns nothing if the file is missing or a read fails.
  // Adds findings for a file that is unreadable, has a wrong length, or is missing although it is
  // required.
  template <class Layout, class Each>
  std::optional<std::int64_t> ForEach(const std::string& file, bool is_required, Each each) {
    try {
      auto open = Open(file);
      if (open == nullptr) {
        if (is_required) AddMissing(file);
        return std::nullopt;
      }
      RecordReader reader(std::move(open), Layout::kLength);
      if (reader.rest() != 0) AddLength(file, reader.rest(), Layout::kLength);
      for (std::string_view bytes = reader.Next(); !bytes.empty(); bytes = reader.Next()) {
        Advance(file, bytes.size());
        each(reader.number(), RecordOf<Layout>(bytes));
      }
      return reader.count();
    } catch (const NumberedError& error) {
      AddError(file, error);
      return std::nullopt;
    }
  }

  // Reports the progress again with the text `doing`.
  void Report(std::string_view doing);

 private:
  // Reports that bytes of a file have been read.
  void Advance(const std::string& file, std::size_t bytes);
  void AddMissing(const std::string& file);
  void AddLength(const std::string& file, std::size_t rest, std::size_t length);
  void AddError(const std::string& file, const NumberedError& error);

  EachFinding each_;
  ReportProgress report_;
  Progress progress_;  // in bytes
  std::set<std::string> damaged_;
};

}  // namespace golf
