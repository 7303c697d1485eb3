#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/field.h"

namespace golf {

// A kind of file that a sibling keeps.
struct FileKind {
  std::string_view name;  // in capitals; "*" at the start stands for any text
  LayoutInfo layout;
};

std::span<const FileKind> FileKinds();

// Returns the layout of a sibling's file by its name, without a folder and in any case. Nothing for
// a name that no sibling uses.
std::optional<LayoutInfo> LayoutOfFile(std::string_view file_name);

}  // namespace golf
