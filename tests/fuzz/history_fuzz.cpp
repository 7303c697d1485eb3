// Uses arbitrary bytes as a history file. The target reads the file, lists it, recovers from it and
// undoes it. If the lowest bit of the first byte is 0, the bytes after the second one are the whole
// file. If it is 1, they are the portions of the file, and the target adds the header, the marks
// and the checksums. The other bits of the first byte select these marks. The second byte selects
// the operator's choice. A NumberedError is a valid result. Any other exception ends the program.

#include <zlib.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "history/undo.h"
#include "support/memory_platform.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace golf {
namespace {

constexpr const char* kRun = "transfer-history/000001-20240513-120000.run";

void AppendFixed(std::string& to, std::size_t number) {
  for (int shift = 0; shift < 32; shift += 8) to += static_cast<char>(number >> shift);
}

// Makes a history file. A portion in `portions` consists of its kind, its length in two bytes, and
// its bytes.
std::string FileOf(std::string_view portions, unsigned marks) {
  std::string file = "Golf Transfer history 1\r\n";
  for (unsigned mark = 1; mark <= kMarks; ++mark) {
    file.resize(mark * kMarkSize, '\0');
    if ((marks >> (mark - 1) & 1) == 0) continue;
    file += "Golf Transfer mark " + std::to_string(mark) + "\r\n";
    file.resize((mark + 1) * kMarkSize, ' ');
  }
  file.resize(static_cast<std::size_t>(kContentStart), '\0');
  while (portions.size() >= 3) {
    const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(portions[at]); };
    const std::size_t size = byte(1) + 256U * byte(2);
    const std::string_view bytes = portions.substr(3, size);
    const std::string summed = std::string(portions.substr(0, 1)).append(bytes);
    file += portions[0];
    AppendFixed(file, bytes.size());
    AppendFixed(file,
                crc32_z(0, reinterpret_cast<const unsigned char*>(summed.data()), summed.size()));
    file += bytes;
    portions.remove_prefix(3 + bytes.size());
  }
  return file;
}

RecordKinds Kinds() {
  return {
      .layout_of = [](std::string_view) { return std::nullopt; },
      .title_of = [](std::string_view, std::int64_t, std::string_view) { return std::string(); },
      .name_in = [](std::string_view, std::int64_t, std::string_view) { return std::string(); },
      .derived_from = [](std::string_view) { return std::string(); },
      .for_each_reference = [](std::string_view, const EachReference&) {},
      .referrer_name = [](const RecordId&) { return std::string(); }};
}

template <class Action>
void Try(Action&& action) {
  try {
    action();
  } catch (const NumberedError&) {
  }
}

void Walk(const std::string& file, RecoveryChoice choice) {
  MemoryPlatform disk;
  for (const char* name : {"qbdata/a", "qbdata/b"}) disk.Bytes(name) = std::string(5000, 'o');
  disk.Bytes(kRun) = file;
  HeldPlatform held(disk);
  Transactions transactions(held, [] { return DateFromCivil({2024, 5, 13}); });
  HistoryFolder& folder = transactions.history();
  Try([&] {
    const auto history = folder.Open(folder.List().at(0), FileAccess::kReadOnly);
    bool whole = false;
    Try([&] {
      history->Read({.place = [](const HistoryPlace& place) {
        for (const ChangedBytes& run : place.changed) {
          if (run.at + run.size > static_cast<std::size_t>(place.End() - place.offset))
            std::abort();
        }
      }});
      whole = true;
    });
    if (whole != history->IsWhole()) std::abort();
    Try([&] { history->CountChanges(); });
  });
  Try([&] { transactions.IsUnfinished(); });
  Try([&] { transactions.Recover(); });
  Try([&] { transactions.Recover(choice); });
  Try([&] {
    for (const HistoryRun& run : ListRuns(folder).runs) {
      HoldUndo(held, folder, transactions, Kinds(), run);
      transactions.Commit("");
    }
  });
}

}  // namespace
}  // namespace golf

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  constexpr std::array kChoices = {golf::RecoveryChoice::kFinish, golf::RecoveryChoice::kPutBack,
                                   golf::RecoveryChoice::kLeave, golf::RecoveryChoice::kByItself};
  const std::string rest(data + 2, data + size);
  const bool is_file = (data[0] & 1) == 0;
  golf::Walk(is_file ? rest : golf::FileOf(rest, data[0] >> 1U), kChoices[data[1] % 4]);
  return 0;
}
