#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/field.h"

namespace golf {

// Describes the files of one layout in the language of Kaitai Struct, from which its compiler makes
// parsers.
struct KaitaiDescription {
  std::string id;  // such as "kelvane_golfer"
  LayoutInfo layout;
  std::vector<std::string_view> files;  // the names of FileKinds
  std::string text;                     // the contents of the .ksy file

  std::string FileName() const { return id + ".ksy"; }
};

// Returns the descriptions of all files of Kelvane, Quenby and Zandel, in the order of FileKinds. A
// description has a type `record`, whose fields cover a record without gaps:
// - A field has its own name as -orig-id. Bytes without a name are called unnamed_OFFSET.
// - A table is an array in the order of the file. Its documentation contains the ranges of its
//   indexes, in the order of Field, and their order in the file.
// - Tables whose values alternate are an array of a type that contains one value of each.
std::vector<KaitaiDescription> KaitaiDescriptions();

}  // namespace golf
