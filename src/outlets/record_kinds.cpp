#include "outlets/record_kinds.h"

#include <memory>

#include "core/text.h"
#include "history/record_changes.h"
#include "outlets/file_kinds.h"
#include "outlets/install_reader.h"
#include "outlets/record_references.h"
#include "outlets/record_titles.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

// Returns the course library of an index, such as "qbdata/qbcrs.dat" for "qbdata/18CRSQB.INX".
// Returns an empty text if the file is not a course index.
std::string LibraryOfIndex(std::string_view file) {
  constexpr std::string_view kIndex = ".INX";
  constexpr std::size_t kProgram = 2;
  const std::string name = UpperCase(FileNameOf(file));
  if (!name.ends_with(kIndex) || name.size() < kIndex.size() + kProgram) return {};
  const std::string program = name.substr(name.size() - kIndex.size() - kProgram, kProgram);
  if (FindCourseLibrary(program) == nullptr) return {};
  return std::string(file.substr(0, file.size() - name.size())) + CourseFileName(program);
}

}  // namespace

RecordKinds MakeRecordKinds(SharedState& state) {
  const auto reader = std::make_shared<InstallReader>(state);
  return {
      .layout_of = LayoutOfFile,
      .title_of =
          [reader](std::string_view file, std::int64_t record, std::string_view bytes) {
            return TitleOfRecord(*reader, file, record, bytes);
          },
      .name_in = [reader](
                     std::string_view file, std::int64_t record,
                     std::string_view bytes) { return NameInRecord(*reader, file, record, bytes); },
      .derived_from = LibraryOfIndex,
      .for_each_reference =
          [&state](std::string_view file, const EachReference& each) {
            InstallReader now(state);
            ForEachReference(now, file, each);
          },
      .referrer_name = [reader](const RecordId& from) { return NameOfReferrer(*reader, from); }};
}

}  // namespace golf
