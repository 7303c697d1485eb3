#include "outlets/install_reader.h"

#include "history/transactions.h"

namespace golf {

bool InstallReader::ReadBytes(std::string_view file, std::int64_t record, std::span<char> into) {
  if (record < 1) return false;
  try {
    auto open = files_.find(file);
    if (open == files_.end()) {
      const std::string path = state_.transactions->history().paths().Path(file);
      open = files_.emplace(std::string(file), platform_.Open(path, FileAccess::kReadOnly)).first;
    }
    const auto length = static_cast<std::int64_t>(into.size());
    return open->second->ReadAt((record - 1) * length, into) == into.size();
  } catch (const NumberedError&) {
    Close(file);
    return false;
  }
}

void InstallReader::Close(std::string_view file) {
  if (const auto open = files_.find(file); open != files_.end()) files_.erase(open);
}

}  // namespace golf
