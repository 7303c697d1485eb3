// The second header needs the first one.
// clang-format off
#include <windows.h>
#include <restartmanager.h>
// clang-format on

#include <array>

#include "core/code_page.h"
#include "core/file_holders.h"

namespace golf {
namespace {

// The library of the Restart Manager. It is loaded only when it is needed, since a system may lack
// it.
class RestartManager {
 public:
  RestartManager()
      : library_(LoadLibraryExW(L"rstrtmgr.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32)) {
    Find("RmStartSession", start);
    Find("RmRegisterResources", add);
    Find("RmGetList", list);
    Find("RmEndSession", end);
  }
  RestartManager(const RestartManager&) = delete;
  RestartManager& operator=(const RestartManager&) = delete;
  ~RestartManager() {
    if (library_ != nullptr) FreeLibrary(library_);
  }

  bool IsUsable() const { return start && add && list && end; }

  decltype(&RmStartSession) start = nullptr;
  decltype(&RmRegisterResources) add = nullptr;
  decltype(&RmGetList) list = nullptr;
  decltype(&RmEndSession) end = nullptr;

 private:
  template <class Function>
  void Find(const char* name, Function& function) {
    if (library_ == nullptr) return;
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(library_, name)));
  }

  HMODULE library_;
};

std::string TextFromSystem(const wchar_t* wide) {
  std::array<char, 4 * (CCH_RM_MAX_APP_NAME + 1)> utf8{};
  WideCharToMultiByte(CP_UTF8, 0, wide, -1, utf8.data(), utf8.size(), nullptr, nullptr);
  return TextFromUtf8(utf8.data());
}

}  // namespace

std::vector<std::string> ProgramsHolding(const std::wstring& path) {
  const RestartManager manager;
  std::array<wchar_t, CCH_RM_SESSION_KEY + 1> key{};
  DWORD session = 0;
  if (!manager.IsUsable() || manager.start(&session, 0, key.data()) != ERROR_SUCCESS) return {};
  std::array<RM_PROCESS_INFO, 32> programs{};
  const wchar_t* file = path.c_str();
  UINT needed = 0;
  UINT count = programs.size();
  DWORD reasons = RmRebootReasonNone;
  const bool known =
      manager.add(session, 1, &file, 0, nullptr, 0, nullptr) == ERROR_SUCCESS &&
      manager.list(session, &needed, &count, programs.data(), &reasons) == ERROR_SUCCESS;
  manager.end(session);
  std::vector<std::string> names;
  for (UINT i = 0; known && i < count; ++i) {
    if (programs[i].Process.dwProcessId == GetCurrentProcessId()) continue;
    const std::string name = TextFromSystem(programs[i].strAppName);
    if (!name.empty()) names.push_back(name);
  }
  return names;
}

}  // namespace golf
