#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "app/application.h"
#include "forms/headless_host.h"
#include "support/error_of.h"
#include "support/failing_platform.h"
#include "support/temp_folder.h"

namespace golf {

// Writes down what a host tells, a line for each event.
class RecordingListener : public HostListener {
 public:
  std::vector<std::string> events;

  void OnOpen(const Screen& screen) override { events.push_back("open " + screen.name()); }
  void OnClose(const Screen& screen) override { events.push_back("close " + screen.name()); }
  void OnMessage(const Box& box, BoxButton answer) override;
  void OnInput(const InputBox& box, const std::string& answer) override;
  void OnTip(const TipView& tip, const std::string& answer) override;
  void OnBeep() override { events.push_back("beep"); }
  void OnStart(const std::string& program, const std::string& arguments) override;
  void OnError(const NumberedError& error) override;
  void OnProgress(const Progress& progress) override {
    if (on_progress) on_progress(progress);
  }
  void OnEnd() override { events.push_back("end"); }

  std::function<void(const Progress&)> on_progress;
  std::function<void()> on_tip;  // while the message is up
};

// The whole program without a display, over an install in a temporary folder whose file operations
// can be made to fail.
class TestInstall {
 public:
  // Folders kvdata, qbdata and zddata are made unless they are not wanted.
  explicit TestInstall(bool with_folders = true);

  // Starts the program anew on the same folder.
  void Restart();
  // Opens a screen. `drive` works each one that comes up, until none is left.
  void Open(const char* screen, std::function<void(Screen&)> drive, const char* word = "");
  // The last box that was answered; empty with none.
  std::string LastMessage() const;

  SharedState& state() { return application->state(); }
  std::vector<std::string>& events() { return listener.events; }

  TempFolder folder;
  RecordingListener listener;
  FailingPlatform* platform = nullptr;  // owned by the application
  std::unique_ptr<Application> application;
  std::unique_ptr<HeadlessHost> host;

 private:
  std::unique_ptr<Platform> real_;
};

// Whether an event came, as RecordingListener writes it down; or one that begins so.
bool Told(const TestInstall& install, const std::string& event);
bool ToldBeginning(const TestInstall& install, const std::string& beginning);

// The number of the error that ends a click of `action`; 0 if none does.
template <class Action>
int ClickErrorOf(Action&& action) {
  return ErrorOf([&] {
    try {
      action();
    } catch (const ClickEnded& ended) {
      throw ended.error;
    }
  });
}

// Lets each call to the system fail in a run of its own: `run(n)` asks for the fault of the n-th,
// and says whether it has come.
void ForEachFault(const std::function<bool(int)>& run);

// The operator's choice from a list of rosters; false on any other screen.
template <class Picker>
bool PickRoster(HeadlessHost& host, Screen& screen, int row) {
  auto* picker = dynamic_cast<Picker*>(&screen);
  if (picker == nullptr) return false;
  picker->grid1.SetActiveRow(row);
  host.Press(screen, "LoadButton");
  return true;
}

}  // namespace golf
