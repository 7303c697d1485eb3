#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
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

  void OnOpen(const Screen& screen) override { Add("open " + screen.name()); }
  void OnClose(const Screen& screen) override { Add("close " + screen.name()); }
  void OnMessage(const Box& box, BoxButton answer) override {
    Add("message [" + box.title + "] " + box.text + " -> " + std::string(NameOf(answer)));
  }
  void OnInput(const InputBox& box, const std::string& answer) override {
    Add("input [" + box.title + "] " + box.text + " -> " + answer);
  }
  void OnTip(const TipView& tip, const std::string& answer) override {
    Add("tip " + std::to_string(tip.type) + " [" + tip.title + "] " + tip.text + " -> " + answer);
  }
  void OnNotice(const std::string& text) override { Add("notice " + text); }
  void OnBeep() override { Add("beep"); }
  void OnStart(const std::string& program, const std::string& arguments) override {
    Add("start " + program.substr(program.find_last_of("/\\") + 1) + "|" + arguments);
  }
  void OnInstall(const std::string& utf8_folder) override { Add("install " + utf8_folder); }
  void OnError(const NumberedError& error) override {
    Add("error " + std::to_string(error.number()));
  }
  void OnProgress(const Progress& progress) override {
    if (on_progress) on_progress(progress);
  }
  void OnEnd() override { Add("end"); }

  std::function<void(const Progress&)> on_progress;
  std::function<void()> on_event;  // called at each event, while its box is still shown

 private:
  void Add(std::string event) {
    events.push_back(std::move(event));
    if (on_event) on_event();
  }
};

// The whole program without a display on an install in a temporary folder. Its calls to the system
// can be made to fail.
class TestInstall {
 public:
  // Makes the folders kvdata, qbdata and zddata unless `with_folders` is false.
  explicit TestInstall(bool with_folders = true) {
    for (const char* name : {"kvdata", "qbdata", "zddata"}) {
      if (with_folders) folder.MakeFolder(name);
    }
    Restart();
  }

  // Starts the program again on the same folder.
  void Restart() {
    host.reset();
    auto failing = std::make_unique<FailingPlatform>(*real_);
    platform = failing.get();
    application = std::make_unique<Application>(std::move(failing));
    application->Start(DateFromCivil({2024, 5, 13}), {});
    host = std::make_unique<HeadlessHost>(state(), Application::Screens(), listener);
    host->clock = [] { return DateFromCivil({2024, 5, 13}); };
    listener.events.clear();
  }
  // Opens a screen. `drive` works each screen that opens, until none is left.
  void Open(const char* screen, std::function<void(Screen&)> drive, const char* word = "") {
    host->drive = std::move(drive);
    host->Operate([&] { OpenScreen(state(), *host, screen, word); });
  }
  // Returns the last box that was answered. Empty if there was none.
  std::string LastMessage() const {
    for (auto event = listener.events.rbegin(); event != listener.events.rend(); ++event) {
      if (event->starts_with("message")) return *event;
    }
    return "";
  }

  SharedState& state() { return application->state(); }
  std::vector<std::string>& events() { return listener.events; }

  TempFolder folder;
  RecordingListener listener;
  FailingPlatform* platform = nullptr;  // owned by the application
  std::unique_ptr<Application> application;
  std::unique_ptr<HeadlessHost> host;

 private:
  std::unique_ptr<Platform> real_ = MakePlatform(folder.Path());
};

// Returns a line for each golfer, score or course that the runs have left out. Omits the
// descriptions of errors.
inline std::string LeftOutLines(const TestInstall& install) {
  std::string lines;
  install.host->left_out().ForEach([&lines](std::string_view title, std::string_view reason) {
    lines.append(title).append(": ").append(reason.substr(0, reason.find(": "))).append("\n");
  });
  return lines;
}

// Returns the counts that the runs have noted, such as "ADDED 3, UPDATED 1".
inline std::string Counts(const TestInstall& install) {
  std::string counts;
  for (const auto& [name, count] : install.host->counts()) {
    counts += (counts.empty() ? "" : ", ") + name + " " + std::to_string(count);
  }
  return counts;
}

// True if an event came, as RecordingListener records it, or one with this beginning.
inline bool ToldBeginning(const TestInstall& install, const std::string& beginning) {
  const auto& events = install.listener.events;
  return std::any_of(events.begin(), events.end(),
                     [&](const std::string& event) { return event.starts_with(beginning); });
}
inline bool Told(const TestInstall& install, const std::string& event) {
  const auto& events = install.listener.events;
  return std::find(events.begin(), events.end(), event) != events.end();
}

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
