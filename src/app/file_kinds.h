#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/field.h"

namespace golf {

// A kind of file that a sibling keeps.
struct FileKind {
  std::string_view name;  // in capitals; "*" at the start stands for anything
  LayoutInfo layout;
};

std::span<const FileKind> FileKinds();

// The layout of a sibling's file by its name, without folder and in any case; nothing for a name
// that no sibling uses.
std::optional<LayoutInfo> LayoutOfFile(std::string_view file_name);

}  // namespace golf
