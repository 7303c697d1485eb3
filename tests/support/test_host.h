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

// Records the events of a host, a line for each.
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
  std::function<void()> on_tip;  // called while the message is shown
};

// The whole program without a display on an install in a temporary folder. Its calls to the system
// can be made to fail.
class TestInstall {
 public:
  // Makes the folders kvdata, qbdata and zddata unless `with_folders` is false.
  explicit TestInstall(bool with_folders = true);

  // Starts the program again on the same folder.
  void Restart();
  // Deletes the history, so that each run of a loop makes the same calls.
  void ForgetHistory();
  // Opens a screen. `drive` works each screen that opens, until none is left.
  void Open(const char* screen, std::function<void(Screen&)> drive, const char* word = "");
  // Returns the last box that was answered. Empty if there was none.
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

// True if an event came, as RecordingListener records it, or one with this beginning.
bool Told(const TestInstall& install, const std::string& event);
bool ToldBeginning(const TestInstall& install, const std::string& beginning);

// Returns the number of the error that ends a click of `action`, or 0 if none does.
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

// Runs `run(n)` with the fault at the n-th call to the system, for n from 1, until it returns that
// the fault has not occurred.
void ForEachFault(const std::function<bool(int)>& run);

// Chooses from a list of rosters as the operator. Returns false on any other screen.
template <class Picker>
bool PickRoster(HeadlessHost& host, Screen& screen, int row) {
  auto* picker = dynamic_cast<Picker*>(&screen);
  if (picker == nullptr) return false;
  picker->grid1.SetActiveRow(row);
  host.Press(screen, "LoadButton");
  return true;
}

}  // namespace golf
