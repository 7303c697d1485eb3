#define NOMINMAX
#include "support/stepped_program.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "support/processes_windows.h"

namespace golf {
namespace {

constexpr const char* kChanges[] = {"NtCreateFile", "NtWriteFile", "NtSetInformationFile",
                                    "NtFlushBuffersFile"};
constexpr const char* kReads[] = {"NtReadFile", "NtQueryInformationFile", "NtQueryDirectoryFile",
                                  "NtQueryFullAttributesFile"};
constexpr DWORD64 kNameDeleted = 0xC00000C9;  // what the system returns if the share has gone
// Each of these functions begins with this instruction: mov r10, rcx.
constexpr unsigned char kFirst[] = {0x4C, 0x8B, 0xD1};

void* SystemFunction(const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), name));
}

class Debugger {
 public:
  Debugger(const PROCESS_INFORMATION& process, const std::function<AtCall(int)>& at_call)
      : process_(process), at_call_(at_call) {}

  // Handles the events of the process until it ends.
  void Run() {
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
    } while (event.dwDebugEventCode != EXIT_PROCESS_DEBUG_EVENT);
  }

 private:
  bool IsHandled(const DEBUG_EVENT& event) {
    const EXCEPTION_RECORD& record = event.u.Exception.ExceptionRecord;
    if (record.ExceptionCode != EXCEPTION_BREAKPOINT) return false;
    if (!std::exchange(ready_, true)) {  // the first one is the system's own
      for (const char* name : kChanges) Break(SystemFunction(name));
      return true;
    }
    Act(at_call_(++calls_));
    const HANDLE thread = OpenThread(THREAD_ALL_ACCESS, FALSE, event.dwThreadId);
    Continue(thread, record.ExceptionAddress);
    CloseHandle(thread);
    return true;
  }

  void Act(AtCall action) {
    if (action == AtCall::kKill) TerminateProcess(process_.hProcess, kKilledCode);
    if (action == AtCall::kLoseDrive && !std::exchange(drive_lost_, true)) {
      for (const char* name : kReads) Break(SystemFunction(name));
    }
    // The system runs this function in a new thread for each event of the console.
    if (action == AtCall::kCloseConsole) {
      auto* const deliver = reinterpret_cast<LPTHREAD_START_ROUTINE>(
          reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernelbase"), "CtrlRoutine")));
      CloseHandle(CreateRemoteThread(process_.hProcess, nullptr, 0, deliver,
                                     reinterpret_cast<void*>(DWORD64{CTRL_CLOSE_EVENT}), 0,
                                     nullptr));
    }
  }

  // Replaces the first instruction of a function by a breakpoint.
  void Break(void* function) {
    const unsigned char breakpoint = 0xCC;
    if (function == nullptr || !std::equal(std::begin(kFirst), std::end(kFirst),
                                           static_cast<const unsigned char*>(function))) {
      throw std::runtime_error("the functions of the system have another form");
    }
    WriteProcessMemory(process_.hProcess, function, &breakpoint, 1, nullptr);
    FlushInstructionCache(process_.hProcess, function, 1);
  }

  // Does what the replaced instruction does, or lets the call fail.
  void Continue(HANDLE thread, void* function) const {
    CONTEXT context{};
    context.ContextFlags = CONTEXT_CONTROL | CONTEXT_INTEGER;
    GetThreadContext(thread, &context);
    const bool opens = function == SystemFunction(kChanges[0]);  // and has no handle yet
    if (drive_lost_ && (opens || IsOnDrive(reinterpret_cast<HANDLE>(context.Rcx)))) {
      context.Rax = kNameDeleted;
      ReadProcessMemory(process_.hProcess, reinterpret_cast<void*>(context.Rsp), &context.Rip,
                        sizeof context.Rip, nullptr);
      context.Rsp += sizeof context.Rip;
    } else {
      context.R10 = context.Rcx;
      context.Rip = reinterpret_cast<DWORD64>(function) + std::size(kFirst);
    }
    SetThreadContext(thread, &context);
  }

  // Returns true if the handle of the program is that of a file in the folder "i".
  bool IsOnDrive(HANDLE file) const {
    HANDLE own = nullptr;
    if (!DuplicateHandle(process_.hProcess, file, GetCurrentProcess(), &own, 0, FALSE,
                         DUPLICATE_SAME_ACCESS)) {
      return false;
    }
    wchar_t path[MAX_PATH] = {};
    GetFinalPathNameByHandleW(own, path, MAX_PATH, 0);
    CloseHandle(own);
    return std::wstring_view(path).find(L"\\i\\") != std::wstring_view::npos;
  }

  const PROCESS_INFORMATION& process_;
  const std::function<AtCall(int)>& at_call_;
  bool ready_ = false;
  bool drive_lost_ = false;
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
