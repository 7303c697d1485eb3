#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "core/field.h"

namespace golf {

// Describes a kind of file of Kelvane, Quenby or Zandel.
struct FileKind {
  std::string_view name;  // in capitals; "*" at the start matches any text
  LayoutInfo layout;
};

std::span<const FileKind> FileKinds();

// Returns the layout of a file of Kelvane, Quenby or Zandel by its name, without a folder and
// without regard to case. Returns nothing for any other name.
std::optional<LayoutInfo> LayoutOfFile(std::string_view file_name);

}  // namespace golf
