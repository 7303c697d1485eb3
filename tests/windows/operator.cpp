// golf_operator PROGRAM INSTALL end-session
//
// ends the session of the operator in the preview of a transfer, and again in the menu. It ends the
// program each time, as the system does, and returns 0 if the program has agreed both times.
//
// golf_operator PROGRAM INSTALL [HELD] acts as an operator of the desktop program. It starts the
// program in the same way as Quenby, opens the course transfer from the menu, and runs the
// transfer. It prints the box of the transfer in the form of the command line, and closes the menu.
// It presses the buttons of the program's windows. It keeps the file HELD open with an exclusive
// lock until it ends itself. It returns the exit code of the program.

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

constexpr ULONGLONG kPatience = 60000;  // milliseconds
constexpr DWORD kTick = 10;

std::string TextOf(HWND window) {
  char text[1024] = "";
  GetWindowTextA(window, text, sizeof text);
  return text;
}

std::string ClassOf(HWND window) {
  char name[256] = "";
  GetClassNameA(window, name, sizeof name);
  return name;
}

// Returns the caption of a button without the "&" of its access key and without blanks at its end.
std::string CaptionOf(HWND button) {
  std::string caption = TextOf(button);
  caption.erase(std::remove(caption.begin(), caption.end(), '&'), caption.end());
  return caption.substr(0, caption.find_last_not_of(' ') + 1);
}

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
  reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  return TRUE;
}

std::vector<HWND> ChildrenOf(HWND window) {
  std::vector<HWND> children;
  EnumChildWindows(window, Collect, reinterpret_cast<LPARAM>(&children));
  return children;
}

class Operator {
 public:
  explicit Operator(const std::string& command) : deadline_(GetTickCount64() + kPatience) {
    STARTUPINFOA start{};
    start.cb = sizeof start;
    std::string line = command;
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                        &program_)) {
      throw std::runtime_error("cannot start " + command);
    }
  }
  Operator(const Operator&) = delete;
  Operator& operator=(const Operator&) = delete;
  // Ends the program if it is still running, which means that the test has failed.
  ~Operator() { TerminateProcess(program_.hProcess, 99); }

  // Waits for the window of the program with this title.
  HWND Await(const std::string& title) {
    HWND found = nullptr;
    Until(title, [&] { return (found = Find(title)) != nullptr; });
    return found;
  }

  // Presses a button as soon as it is enabled.
  void Press(const std::string& title, const std::string& caption) {
    HWND button = nullptr;
    Until(title + ": " + caption, [&] {
      const HWND window = Find(title);
      button = nullptr;
      for (const HWND child : ChildrenOf(window)) {
        if (ClassOf(child) == "Button" && CaptionOf(child) == caption) button = child;
      }
      return button != nullptr && IsWindowVisible(button) && IsWindowEnabled(button) &&
             IsWindowEnabled(window);
    });
    SetForegroundWindow(Find(title));
    PostMessageA(button, BM_CLICK, 0, 0);
  }

  void AwaitGone(const std::string& title) {
    Until("end of " + title, [&] { return Find(title) == nullptr; });
  }

  // Ends the program at once.
  void Kill() { TerminateProcess(program_.hProcess, 0); }

  DWORD AwaitEnd() {
    if (WaitForSingleObject(program_.hProcess, kPatience) != WAIT_OBJECT_0) {
      throw std::runtime_error("the program does not end");
    }
    DWORD code = 0;
    GetExitCodeProcess(program_.hProcess, &code);
    return code;
  }

 private:
  HWND Find(const std::string& title) const {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    for (const HWND window : windows) {
      DWORD process = 0;
      GetWindowThreadProcessId(window, &process);
      if (process == program_.dwProcessId && IsWindowVisible(window) && TextOf(window) == title) {
        return window;
      }
    }
    return nullptr;
  }

  void Until(const std::string& what, const std::function<bool()>& condition) {
    while (!condition()) {
      const bool ended = WaitForSingleObject(program_.hProcess, kTick) == WAIT_OBJECT_0;
      if (ended || GetTickCount64() > deadline_) {
        throw std::runtime_error((ended ? "the program ended before: " : "waits in vain: ") + what);
      }
    }
  }

  PROCESS_INFORMATION program_{};
  ULONGLONG deadline_;
};

void Print(HWND box) {
  std::printf("%s\n", TextOf(box).c_str());
  for (const HWND child : ChildrenOf(box)) {
    std::string text = ClassOf(child) == "Static" ? TextOf(child) : "";
    text.erase(text.find_last_not_of("\r\n") + 1);
    if (!text.empty()) std::printf("%s\n", text.c_str());
  }
}

DWORD Work(const std::string& program, const std::string& install, const char* held) {
  const HANDLE file = held == nullptr ? INVALID_HANDLE_VALUE
                                      : CreateFileA(held, GENERIC_READ | GENERIC_WRITE, 0, nullptr,
                                                    OPEN_EXISTING, 0, nullptr);
  if (held != nullptr && file == INVALID_HANDLE_VALUE) throw std::runtime_error("cannot hold");
  Operator user("\"" + program + "\" --install \"" + install + "\" QB");
  const std::string screen = "Transfer COURSES from Kelvane to Quenby";
  const std::string box = held == nullptr ? "Course transfer complete." : "Golf Transfer";
  user.Press("Transfer Menu", "Transfer COURSES to QB");
  user.Press(screen, "Transfer Courses");
  Print(user.Await(box));
  user.Press(box, "OK");
  if (held != nullptr) user.Press(screen, "Cancel");
  user.AwaitGone(screen);
  user.Press("Transfer Menu", "Close");
  return user.AwaitEnd();
}

// Ends the session as the system does. The main window is that of the menu.
void EndSession(Operator& user) {
  const HWND menu = user.Await("Transfer Menu");
  if (SendMessageA(menu, WM_QUERYENDSESSION, 0, 0) == 0) {
    throw std::runtime_error("the program refuses the end of the session");
  }
  SendMessageA(menu, WM_ENDSESSION, TRUE, 0);
  user.Kill();
  user.AwaitEnd();
}

DWORD EndSessions(const std::string& command) {
  {
    Operator user(command);
    user.Press("Transfer Menu", "Transfer COURSES to QB");
    user.Press("Transfer COURSES from Kelvane to Quenby", "Preview...");
    user.Await("What would change");
    EndSession(user);
  }
  Operator user(command);
  EndSession(user);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) return 2;
  try {
    const bool ends_session = argc > 3 && std::string(argv[3]) == "end-session";
    if (ends_session) {
      return static_cast<int>(
          EndSessions("\"" + std::string(argv[1]) + "\" --install \"" + argv[2] + "\" QB"));
    }
    return static_cast<int>(Work(argv[1], argv[2], argc > 3 ? argv[3] : nullptr));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 98;
  }
}
