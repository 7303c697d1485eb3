// The properties and the icon that Windows shows for the files of both programs.

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "outlets/help/help_page.h"

namespace golf {
namespace {

std::string VersionNumber(DWORD high, DWORD low) {
  return std::to_string(HIWORD(high)) + "." + std::to_string(LOWORD(high)) + "." +
         std::to_string(HIWORD(low));
}

// Returns the texts in the first language of the file, as the Explorer shows them, and the two
// versions in numbers.
std::map<std::string, std::string> PropertiesOf(const std::string& program) {
  std::vector<char> block(GetFileVersionInfoSizeA(program.c_str(), nullptr));
  if (!GetFileVersionInfoA(program.c_str(), 0, static_cast<DWORD>(block.size()), block.data())) {
    return {};
  }
  const auto at = [&block](const std::string& path) {
    void* value = nullptr;
    UINT size = 0;
    return VerQueryValueA(block.data(), path.c_str(), &value, &size) && size > 0 ? value : nullptr;
  };
  const auto* language = static_cast<const WORD*>(at("\\VarFileInfo\\Translation"));
  const auto* numbers = static_cast<const VS_FIXEDFILEINFO*>(at("\\"));
  if (language == nullptr || numbers == nullptr) return {};
  char folder[32];
  std::snprintf(folder, sizeof folder, "\\StringFileInfo\\%04X%04X\\", language[0], language[1]);
  std::map<std::string, std::string> properties{
      {"file", VersionNumber(numbers->dwFileVersionMS, numbers->dwFileVersionLS)},
      {"product", VersionNumber(numbers->dwProductVersionMS, numbers->dwProductVersionLS)}};
  for (const char* const name : {"CompanyName", "FileDescription", "FileVersion", "LegalCopyright",
                                 "OriginalFilename", "ProductName", "ProductVersion"}) {
    const void* text = at(std::string(folder) + name);
    properties[name] = text == nullptr ? "missing" : static_cast<const char*>(text);
  }
  return properties;
}

TEST(ResourcesTest, PropertiesShowTheVersionAndTheCopyrightLineOfAbout) {
  const std::map<std::string, std::string> programs{{GOLF_CLI, "Golf Transfer, command line"},
                                                    {GOLF_PROGRAM, "Golf Transfer"}};
  const std::string version(ProgramVersion());
  for (const auto& [program, description] : programs) {
    const std::map<std::string, std::string> expected{
        {"file", version},
        {"product", version},
        {"CompanyName", "Golf Transfer"},
        {"FileDescription", description},
        {"FileVersion", version},
        {"LegalCopyright", std::string(ProgramCopyright())},
        {"OriginalFilename", std::filesystem::path(program).filename().string()},
        {"ProductName", "Golf Transfer"},
        {"ProductVersion", version}};
    EXPECT_EQ(PropertiesOf(program), expected) << program;
  }
}

// Returns the bytes of a resource.
std::string Resource(HMODULE program, const char* name, const char* kind) {
  const HRSRC place = FindResourceA(program, name, kind);
  if (place == nullptr) return {};
  const void* bytes = LockResource(LoadResource(program, place));
  return {static_cast<const char*>(bytes), SizeofResource(program, place)};
}

// Returns the width of a picture of the icon after Windows has read it, or 0.
int WidthOf(std::string picture) {
  auto* bytes = reinterpret_cast<BYTE*>(picture.data());
  const HICON icon = CreateIconFromResourceEx(bytes, static_cast<DWORD>(picture.size()), TRUE,
                                              0x30000, 0, 0, LR_DEFAULTCOLOR);
  ICONINFO parts{};
  BITMAP bitmap{};
  if (icon == nullptr || !GetIconInfo(icon, &parts)) return 0;
  GetObjectA(parts.hbmColor, sizeof bitmap, &bitmap);
  DestroyIcon(icon);
  return bitmap.bmWidth;
}

TEST(ResourcesTest, TheIconHasEverySizeThatWindowsShows) {
  for (const char* const program : {GOLF_CLI, GOLF_PROGRAM}) {
    const HMODULE module = LoadLibraryExA(program, nullptr, LOAD_LIBRARY_AS_DATAFILE);
    ASSERT_NE(module, nullptr) << program;
    std::string group = Resource(module, "golf_transfer", RT_GROUP_ICON);
    ASSERT_FALSE(group.empty()) << program;
    for (const int size : {16, 20, 24, 32, 40, 48, 64, 128, 256}) {
      const int id = LookupIconIdFromDirectoryEx(reinterpret_cast<BYTE*>(group.data()), TRUE, size,
                                                 size, LR_DEFAULTCOLOR);
      const std::string picture = Resource(module, MAKEINTRESOURCEA(id), RT_ICON);
      EXPECT_EQ(WidthOf(picture), size) << program;
      EXPECT_EQ(picture.starts_with("\x89PNG"), size == 256) << program << " " << size;
    }
    FreeLibrary(module);
  }
}

}  // namespace
}  // namespace golf
