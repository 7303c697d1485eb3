#include "history/held_content.h"

namespace golf {

void ReadHeld(HeldChanges& changes, const HistoryPaths& paths, const HeldReader& reader) {
  const ChangeGroups& groups = changes.groups();
  for (ChangeGroup group = 1; group <= groups.Count(); ++group) {
    reader.group(groups.Root(group), groups.Title(group));
  }
  for (const HeldDeletion& deletion : changes.deletions()) {
    reader.file({.fate = FileFate::kDeleted,
                 .path = paths.Name(deletion.path),
                 .old_length = deletion.length,
                 .new_length = 0,
                 .kept_as = {}});
  }
  for (const auto& file : changes.files()) {
    if (!file->HasNetChange()) continue;
    reader.file({.fate = file->is_created() ? FileFate::kCreated : FileFate::kChanged,
                 .path = paths.Name(file->path()),
                 .old_length = file->old_length(),
                 .new_length = file->length(),
                 .kept_as = {}});
    const std::size_t length =
        reader.record_length ? reader.record_length(paths.Name(file->path())) : 0;
    file->ForEach(length, [&](HeldPlace place, std::string_view code) {
      place.group = groups.Root(place.group);
      reader.place(place, code);
    });
  }
}

}  // namespace golf
