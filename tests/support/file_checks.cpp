#include "support/file_checks.h"

#include <set>

#include "outlets/file_kinds.h"
#include "support/bytes.h"

namespace golf {

testing::AssertionResult SameFile(std::string_view file_name, const std::string& bytes,
                                  const std::string& expected) {
  if (bytes == expected) return testing::AssertionSuccess();
  auto failure = testing::AssertionFailure()
                 << file_name << " has " << bytes.size() << " bytes, expected " << expected.size();
  const auto layout = LayoutOfFile(file_name.substr(file_name.find_last_of('/') + 1));
  if (!layout) return failure << "; it has no layout to tell where they differ";
  constexpr int kMostShown = 8;
  int shown = 0;
  for (std::size_t start = 0; start < std::max(bytes.size(), expected.size());
       start += layout->length) {
    const std::size_t number = start / layout->length + 1;
    const std::string left = RecordAt(bytes, number, layout->length);
    const std::string right = RecordAt(expected, number, layout->length);
    for (const Field& field : layout->fields) {
      for (std::size_t at = field.offset; at < field.offset + field.Size(); at += field.width) {
        if (left.compare(at, field.width, right, at, field.width) == 0) continue;
        if (++shown > kMostShown) return failure << "\n  and more";
        failure << "\n  record " << number << ", " << field.name << " at " << at << ": "
                << testing::PrintToString(ReadFieldValue(field, left, at)) << ", expected "
                << testing::PrintToString(ReadFieldValue(field, right, at));
      }
    }
  }
  return failure;
}

namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;

// Returns 0 for a file without records.
std::size_t LengthOf(const std::string& name) {
  const auto layout = LayoutOfFile(name.substr(name.find_last_of('/') + 1));
  return layout ? layout->length : 0;
}

Files FilesOfRecords(const TempFolder& folder) {
  Files files = folder.Files();
  std::erase_if(files, [](const auto& file) { return LengthOf(file.first) == 0; });
  return files;
}

// Returns an empty text for a missing file.
std::string BytesOf(const Files& files, const std::string& name) {
  const auto file = files.find(name);
  return file == files.end() ? "" : file->second;
}

// Returns the numbers of the records that differ.
std::set<std::size_t> Differing(const std::string& bytes, const std::string& others,
                                std::size_t length) {
  std::set<std::size_t> differing;
  for (std::size_t record = 1; record <= bytes.size() / length; ++record) {
    const bool same = RecordAt(bytes, record, length) == RecordAt(others, record, length);
    if (!same) differing.insert(record);
  }
  return differing;
}

class FaultWalk {
 public:
  FaultWalk(TestInstall& install, const std::function<void()>& run,
            const std::vector<std::string>& together)
      : install_(install), run_(run), together_(together), before_(install.folder.Files()) {
    RunFromStart({});
    after_ = FilesOfRecords(install_.folder);
    events_ = install_.events();
    for (const std::string& name : together_) {
      EXPECT_NE(BytesOf(after_, name), BytesOf(before_, name)) << name;
    }
  }

  // Returns false if the run ends before the fault.
  bool Fail(const Fault& fault) {
    const int error = RunFromStart(fault);
    const bool failed = install_.platform->Failed();
    const bool noted = !install_.host->faults().empty();
    if (failed && noted && error == 0) ++carried_on_;
    const Files files = FilesOfRecords(install_.folder);
    EXPECT_TRUE(error != 0 || noted || install_.events() != events_ || files == after_);
    CheckRecords(files);
    for (const auto& [name, bytes] : before_) {
      if (LengthOf(name) == 0) install_.folder.Write(name, bytes);  // with the operator's choices
    }
    install_.Restart();
    run_();
    const Files complete = FilesOfRecords(install_.folder);
    for (const auto& [name, bytes] : after_) {
      EXPECT_TRUE(SameFile(name, BytesOf(complete, name), bytes));
    }
    return failed;
  }
  int carried_on() const { return carried_on_; }

 private:
  // Returns the number of the error that ends the run.
  int RunFromStart(const std::optional<Fault>& fault) {
    // Windows does not delete open files.
    install_.host.reset();
    install_.application.reset();
    for (const auto& entry : fs::directory_iterator(install_.folder.Path())) {
      fs::remove_all(entry);
    }
    for (const auto& [name, bytes] : before_) install_.folder.Write(name, bytes);
    install_.Restart();
    if (fault) install_.platform->Fail(*fault);
    return ClickErrorOf(run_);
  }

  void CheckRecords(const Files& files) const {
    std::set<std::set<std::size_t>> changed_together;
    for (const auto& [name, bytes] : files) {
      const auto changed = Differing(bytes, BytesOf(before_, name), LengthOf(name));
      for (const std::size_t record : Differing(bytes, BytesOf(after_, name), LengthOf(name))) {
        EXPECT_FALSE(changed.contains(record))
            << name << ": record " << record << " is new and wrong";
      }
      const bool is_together =
          std::find(together_.begin(), together_.end(), name) != together_.end();
      if (is_together) changed_together.insert(changed);
    }
    EXPECT_LE(changed_together.size(), 1u) << testing::PrintToString(changed_together);
  }

  TestInstall& install_;
  const std::function<void()>& run_;
  const std::vector<std::string>& together_;
  Files before_, after_;
  std::vector<std::string> events_;  // of a complete run
  int carried_on_ = 0;
};

}  // namespace

int WalkReadFaults(TestInstall& install, const std::function<void()>& run,
                   const std::vector<std::string>& together) {
  FaultWalk walk(install, run, together);
  for (int nth = 1;; ++nth) {
    SCOPED_TRACE(nth);
    const auto error = nth % 2 == 0 ? ErrorNumber::kDeviceFault : ErrorNumber::kPathAccess;
    if (!walk.Fail({.error = error, .nth = nth, .only = Operation::kRead})) break;
  }
  return walk.carried_on();
}

}  // namespace golf
