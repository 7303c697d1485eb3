#define NOMINMAX
#include "support/stepped_program.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <stdexcept>
#include <utility>

#include "support/processes_windows.h"

namespace golf {
namespace {

constexpr const char* kChanges[] = {"NtCreateFile", "NtWriteFile", "NtSetInformationFile",
                                    "NtFlushBuffersFile"};
constexpr const char* kReads[] = {"NtReadFile", "NtQueryInformationFile", "NtQueryDirectoryFile",
                                  "NtQueryFullAttributesFile"};
// Each of these functions begins with this instruction: mov r10, rcx.
constexpr unsigned char kFirst[] = {0x4C, 0x8B, 0xD1};
constexpr unsigned char kBreakpoint[] = {0xCC};
// Returns the code of a share that has gone: mov eax, 0xC00000C9; ret.
constexpr unsigned char kFailure[] = {0xB8, 0xC9, 0x00, 0x00, 0xC0, 0xC3};

void* SystemFunction(const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), name));
}

class Debugger {
 public:
  Debugger(const PROCESS_INFORMATION& process, const std::function<AtCall(int)>& at_call)
      : process_(process), at_call_(at_call) {}

  // Handles the events of the process until it ends or is disturbed. A disturbed process continues
  // without a debugger, since Wine does not handle C++ exceptions properly under a debugger.
  void Run() {
    DebugSetProcessKillOnExit(FALSE);
    DEBUG_EVENT event{};
    do {
      if (!WaitForDebugEvent(&event, INFINITE)) throw std::runtime_error("cannot debug");
      const bool handled = event.dwDebugEventCode != EXCEPTION_DEBUG_EVENT || IsHandled(event);
      const HANDLE file = event.dwDebugEventCode == CREATE_PROCESS_DEBUG_EVENT
                              ? event.u.CreateProcessInfo.hFile
                          : event.dwDebugEventCode == LOAD_DLL_DEBUG_EVENT ? event.u.LoadDll.hFile
                                                                           : nullptr;
      if (file != nullptr) CloseHandle(file);
      ContinueDebugEvent(event.dwProcessId, event.dwThreadId,
                         handled ? DBG_CONTINUE : DBG_EXCEPTION_NOT_HANDLED);
    } while (event.dwDebugEventCode != EXIT_PROCESS_DEBUG_EVENT && !is_disturbed_);
    if (is_disturbed_) DebugActiveProcessStop(process_.dwProcessId);
  }

 private:
  bool IsHandled(const DEBUG_EVENT& event) {
    const EXCEPTION_RECORD& record = event.u.Exception.ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_BREAKPOINT) return false;
    if (!std::exchange(ready_, true)) {  // the first one is the system's own
      for (const char* name : kChanges) {
        CheckForm(name);
        Patch(name, kBreakpoint);
      }
      return true;
    }
    const AtCall action = at_call_(++calls_);
    is_disturbed_ = action == AtCall::kLoseDrive || action == AtCall::kCloseConsole;
    if (action == AtCall::kKill) TerminateProcess(process_.hProcess, kKilledCode);
    if (action == AtCall::kLoseDrive) LoseDrive();
    if (action == AtCall::kCloseConsole) CloseConsole();
    const HANDLE thread = OpenThread(THREAD_ALL_ACCESS, FALSE, event.dwThreadId);
    Continue(thread, record.ExceptionAddress);
    CloseHandle(thread);
    return true;
  }

  void LoseDrive() {
    for (const char* name : kChanges) Patch(name, kFailure);
    for (const char* name : kReads) Patch(name, kFailure);
  }

  void CloseConsole() {
    for (const char* name : kChanges) Patch(name, kFirst);
    CloseHandle(CreateRemoteThread(process_.hProcess, nullptr, 0, ConsoleEventRoutine(),
                                   reinterpret_cast<void*>(DWORD64{CTRL_CLOSE_EVENT}), 0, nullptr));
  }

  static void CheckForm(const char* name) {
    const auto* function = static_cast<const unsigned char*>(SystemFunction(name));
    if (function == nullptr || !std::equal(std::begin(kFirst), std::end(kFirst), function)) {
      throw std::runtime_error("the functions of the system have another form");
    }
  }

  // Replaces the first bytes of a system function.
  void Patch(const char* name, std::span<const unsigned char> code) {
    void* const function = SystemFunction(name);
    WriteProcessMemory(process_.hProcess, function, code.data(), code.size(), nullptr);
    FlushInstructionCache(process_.hProcess, function, code.size());
  }

  // Does what the replaced instruction does. A disturbed program calls the function again.
  void Continue(HANDLE thread, void* function) const {
    CONTEXT context{};
    context.ContextFlags = CONTEXT_CONTROL | CONTEXT_INTEGER;
    GetThreadContext(thread, &context);
    context.R10 = context.Rcx;
    context.Rip = reinterpret_cast<DWORD64>(function) + (is_disturbed_ ? 0 : std::size(kFirst));
    SetThreadContext(thread, &context);
  }

  const PROCESS_INFORMATION& process_;
  const std::function<AtCall(int)>& at_call_;
  bool ready_ = false;
  bool is_disturbed_ = false;
  int calls_ = 0;
};

}  // namespace

Ended RunStepped(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::function<AtCall(int call)>& at_call) {
  const PROCESS_INFORMATION process =
      StartProgramIn(folder, program, words, "", DEBUG_ONLY_THIS_PROCESS);
  Debugger(process, at_call).Run();
  return EndOf(folder, process);
}

}  // namespace golf
