#include "support/test_host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace golf {

void RecordingListener::OnMessage(const Box& box, BoxButton answer) {
  events.push_back("message [" + box.title + "] " + box.text + " -> " +
                   std::string(NameOf(answer)));
}

void RecordingListener::OnInput(const InputBox& box, const std::string& answer) {
  events.push_back("input [" + box.title + "] " + box.text + " -> " + answer);
}

void RecordingListener::OnTip(const TipView& tip, const std::string& answer) {
  events.push_back("tip " + std::to_string(tip.type) + " [" + tip.title + "] " + tip.text + " -> " +
                   answer);
  if (on_tip) on_tip();
}

void RecordingListener::OnStart(const std::string& program, const std::string& arguments) {
  events.push_back("start " + program.substr(program.find_last_of("/\\") + 1) + "|" + arguments);
}

void RecordingListener::OnError(const NumberedError& error) {
  events.push_back("error " + std::to_string(error.number()));
}

TestInstall::TestInstall(bool with_folders) : real_(MakePlatform(folder.Path())) {
  if (with_folders) {
    for (const char* name : {"kvdata", "qbdata", "zddata"}) folder.MakeFolder(name);
  }
  Restart();
}

void TestInstall::Restart() {
  host.reset();
  auto failing = std::make_unique<FailingPlatform>(*real_);
  platform = failing.get();
  application = std::make_unique<Application>(std::move(failing));
  application->Start(DateFromCivil({2024, 5, 13}), {});
  host = std::make_unique<HeadlessHost>(state(), Application::Screens(), listener);
  host->clock = [] { return DateFromCivil({2024, 5, 13}); };
  listener.events.clear();
}

void TestInstall::ForgetHistory() { std::filesystem::remove_all(folder.Path("transfer-history")); }

void TestInstall::Open(const char* screen, std::function<void(Screen&)> drive, const char* word) {
  host->drive = std::move(drive);
  host->Operate([&] { OpenScreen(state(), *host, screen, word); });
}

std::string TestInstall::LastMessage() const {
  const auto& events = listener.events;
  const auto message = std::find_if(events.rbegin(), events.rend(),
                                    [](const auto& e) { return e.starts_with("message"); });
  return message == events.rend() ? "" : *message;
}

bool Told(const TestInstall& install, const std::string& event) {
  const auto& events = install.listener.events;
  return std::find(events.begin(), events.end(), event) != events.end();
}

bool ToldBeginning(const TestInstall& install, const std::string& beginning) {
  const auto& events = install.listener.events;
  return std::any_of(events.begin(), events.end(),
                     [&](const std::string& event) { return event.starts_with(beginning); });
}

void ForEachFault(const std::function<bool(int)>& run) {
  constexpr int kMost = 500;  // a run has fewer calls
  for (int nth = 1; nth < kMost; ++nth) {
    SCOPED_TRACE(nth);
    if (!run(nth)) return;
  }
  ADD_FAILURE() << "the faults do not end";
}

}  // namespace golf
