// The command-line program in a Windows console.

#define NOMINMAX
#include <windows.h>

#include "cli/command_line_fixture.h"

namespace golf {
namespace {

class ConsoleTest : public CommandLineTest {
 protected:
  // Runs the program in a console of its own with this code page. Returns the code page afterwards
  // and the lines that the console shows.
  std::string Shown(int page, const std::wstring& words) {
    const std::wstring line = L"\"" + Absolute(GOLF_CHILD) + L"\" console " +
                              std::to_wstring(page) + L" \"" + Absolute(GOLF_CLI) + L"\" \"" +
                              words + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    const std::string at = folder.Path();
    std::wstring changeable = line;
    EXPECT_TRUE(CreateProcessW(
        nullptr, changeable.data(), nullptr, nullptr, FALSE, CREATE_NEW_CONSOLE, nullptr,
        std::filesystem::path(std::u8string(at.begin(), at.end())).c_str(), &start, &process))
        << GetLastError();
    DWORD code = 0;
    WaitForSingleObject(process.hProcess, INFINITE);
    GetExitCodeProcess(process.hProcess, &code);
    EXPECT_EQ(code, 0u);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code == 0 ? folder.Read("screen") : "";
  }

 private:
  static std::wstring Absolute(const char* program) {
    return std::filesystem::absolute(program).wstring();
  }
};

TEST_F(ConsoleTest, NamesAreRightUnderEveryCodePage) {
  for (const int page : {437, 850, 1250, 1252, 65001}) {
    const std::string results = Shown(page, L"--install i results players --tournament 1");
    EXPECT_TRUE(results.starts_with(std::to_string(page) + "\n")) << results;
    EXPECT_NE(results.find("\nH\xC3\xB6lzer, Lena "), std::string::npos) << results;
    const std::string refused = Shown(page, L"--install i list events --league \u00C5\u20AC");
    EXPECT_NE(refused.find("no league \xC3\x85\xE2\x82\xAC."), std::string::npos) << refused;
  }
}

}  // namespace
}  // namespace golf
