#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "core/file_table.h"
#include "support/error_of.h"
#include "support/failing_platform.h"
#include "support/temp_folder.h"

namespace golf {

// A file table over a platform that can fail, on a real, empty install folder.
class FilesTest : public testing::Test {
 protected:
  // Returns the path of a file. Its name is text, with "/" after folders on every system.
  std::string At(std::string name) const {
    std::replace(name.begin(), name.end(), '/', platform.Separator());
    return platform.ProgramFolder() + name;
  }

  std::string Read(int number, std::int64_t record, std::size_t size) {
    std::string bytes(size, '?');
    files.ReadBytes(number, record, bytes);
    return bytes;
  }

  TempFolder folder;
  std::unique_ptr<Platform> real = MakePlatform(folder.Path());
  FailingPlatform platform{*real};
  FileTable files{platform};
};

}  // namespace golf
