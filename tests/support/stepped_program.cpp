#define NOMINMAX
#include "support/stepped_program.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

#include "support/processes_windows.h"

namespace golf {
namespace {

constexpr const char* kChanges[] = {"NtCreateFile", "NtWriteFile", "NtSetInformationFile",
                                    "NtFlushBuffersFile"};
// Each of these functions begins with this instruction: mov r10, rcx.
constexpr unsigned char kFirst[] = {0x4C, 0x8B, 0xD1};

void* SystemFunction(const char* name) {
  return reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), name));
}

class Debugger {
 public:
  Debugger(const PROCESS_INFORMATION& process, const std::function<bool(int)>& kills_before)
      : process_(process), kills_before_(kills_before) {}

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
    const HANDLE thread = OpenThread(THREAD_ALL_ACCESS, FALSE, event.dwThreadId);
    Skip(thread, record.ExceptionAddress);
    CloseHandle(thread);
    if (kills_before_(++calls_)) TerminateProcess(process_.hProcess, kKilledCode);
    return true;
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

  // Does what the replaced instruction does.
  static void Skip(HANDLE thread, void* function) {
    CONTEXT context{};
    context.ContextFlags = CONTEXT_CONTROL | CONTEXT_INTEGER;
    GetThreadContext(thread, &context);
    context.R10 = context.Rcx;
    context.Rip = reinterpret_cast<DWORD64>(function) + std::size(kFirst);
    SetThreadContext(thread, &context);
  }

  const PROCESS_INFORMATION& process_;
  const std::function<bool(int)>& kills_before_;
  bool ready_ = false;
  int calls_ = 0;
};

}  // namespace

Ended RunStepped(const TempFolder& folder, const std::string& program, const std::string& words,
                 const std::function<bool(int call)>& kills_before) {
  const PROCESS_INFORMATION process =
      StartProgramIn(folder, program, words, "", DEBUG_ONLY_THIS_PROCESS);
  Debugger(process, kills_before).Run();
  return EndOf(folder, process);
}

}  // namespace golf
