#include "screens/transfers/screen_run.h"

#include <algorithm>

#include "core/resume_next.h"
#include "screens/history/preview.h"
#include "screens/tip_box.h"

namespace golf {
namespace {

class InputHeldOff {
 public:
  explicit InputHeldOff(ScreenHost& host) : host_(host) { host_.BeginRun(); }
  InputHeldOff(const InputHeldOff&) = delete;
  InputHeldOff& operator=(const InputHeldOff&) = delete;
  ~InputHeldOff() { host_.EndRun(); }

 private:
  ScreenHost& host_;
};

// Replaces several blanks by one. An entry of a list has many blanks before the number at its end.
std::string WithSingleBlanks(std::string text) {
  const auto both_blank = [](char a, char b) { return a == ' ' && b == ' '; };
  text.erase(std::unique(text.begin(), text.end(), both_blank), text.end());
  return text;
}

// Returns the report as the history stores it: the log, and then what was left out.
std::string StoredText(const RunReport& report) {
  std::string text = report.log;
  report.left_out.ForEachLine(
      [&text](std::string_view line) { text.append(line).append(kReportLineEnd); });
  return text;
}

}  // namespace

void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host, RunEnding ending,
                 const std::function<void()>& run) {
  const ChangingClick click(state, host);
  if (!click.IsAllowed()) return;
  if (ending == RunEnding::kPreview) state.transactions->BeginPreview();
  const InputHeldOff held_off(host);
  const auto open_again = [&] {
    // Ignores errors here, since the operator must see the error that ended the run.
    const ResumeNext anyway(nullptr);
    anyway([&] { state.InitSharedObjects(); });
    anyway([&] { screen.OpenAgain(); });
  };
  try {
    run();
  } catch (const NumberedError&) {
    open_again();
    throw;
  } catch (const PreviewClosed&) {
    state.transactions->EndClick();
    open_again();
  } catch (...) {
    // The run was stopped. Drops the held changes before the screen reads the files.
    state.transactions->EndClick();
    open_again();
    throw;
  }
}

ScreenRun::ScreenRun(SharedState& state, ScreenHost& host, RunLook look, RunTitle title)
    : state_(state), transactions_(*state.transactions), host_(host), look_(std::move(look)) {
  if (look_.button != nullptr) button_before_ = look_.button->visible();
  if (look_.message != nullptr) message_before_ = look_.message->text();
  title.about = WithSingleBlanks(std::move(title.about));
  transactions_.Begin(std::move(title));
}

ScreenRun::~ScreenRun() {
  if (begun_) {
    for (Label* label : {look_.working, look_.count}) {
      if (label != nullptr) label->SetCaption("");
    }
    if (look_.hides_button) look_.button->SetVisible(true);
    host_.SetPointer(Pointer::kNormal);
  }
  if (committed_) return;
  if (look_.button != nullptr) look_.button->SetVisible(button_before_);
  if (look_.message != nullptr) look_.message->SetText(message_before_);
}

void ScreenRun::Commit(const RunReport& report, const NumberedError* ended_by,
                       const CommitRetry& retry) {
  const std::string text = StoredText(report);
  if (transactions_.IsPreview()) {
    host_.SetPointer(Pointer::kNormal);
    if (look_.previewed_later) {
      transactions_.Commit(text);
      committed_ = true;
      return;
    }
    const HeldChanges* const held = transactions_.held().held();
    const bool refused = report.end == RunEnd::kRefused && ended_by == nullptr;
    if (refused && (held == nullptr || !held->HasNetChange())) {
      committed_ = true;  // nothing needs a commit, and the operator has seen the reason
      return;
    }
    ConfirmPreview(state_, host_, {.left_out = report.left_out, .ended_by = ended_by});
  }
  while (true) {
    try {
      transactions_.Commit(text);
      committed_ = true;
      return host_.NoteLeftOut(report.left_out);
    } catch (const CommitFailed& error) {
      if (!error.interrupted() && retry && retry(*this, error)) continue;
      transactions_.Drop();
      throw;
    }
  }
}

void ScreenRun::Begin() {
  begun_ = true;
  if (look_.hides_button) look_.button->SetVisible(false);
  if (look_.begin) look_.begin();
  host_.SetPointer(Pointer::kBusy);
}

void ScreenRun::Report(const Progress& progress) {
  transactions_.CheckStopped();
  if (look_.working != nullptr && !progress.doing.empty()) {
    look_.working->SetCaption(std::string(progress.doing));
  }
  if (look_.count != nullptr) look_.count->SetCaption(std::to_string(progress.done));
  const bool shown = look_.working != nullptr;
  host_.Report({progress.done, progress.total,
                shown ? std::string_view(look_.working->caption()) : std::string_view()});
}

// Sets the normal pointer although the run continues, as operators expect.
void ScreenRun::NoteFault(const NumberedError& fault) {
  host_.SetPointer(Pointer::kNormal);
  host_.NoteFault(fault);
}

void ScreenRun::Group(std::string_view title) {
  group_ = title;
  transactions_.BeginGroup(title);
}

std::string ScreenRun::GolferOf(std::string_view question) const {
  return question.find(group_) == std::string_view::npos ? group_ : std::string();
}

BoxButton ScreenRun::Ask(const Box& box) {
  const auto& buttons = box.buttons;
  const bool is_question =
      std::find(buttons.begin(), buttons.end(), BoxButton::kYes) != buttons.end();
  if (!is_question) return host_.Ask(box);
  Box question = box;
  question.window_golfer = GolferOf(box.text);
  return host_.Ask(question);
}

bool ScreenRun::AskAgain(const std::string& title, const std::string& text,
                         const std::string& log) {
  if (look_.shows_log) look_.message->SetText(log);
  TipBox& box = SharedTipBox(host_);
  box.SetMessageType(TipBox::kLastingQuestion);
  box.SetMessageTitle(title);
  box.SetGolfer(GolferOf(text));
  box.SetMessageText(text);
  return box.ResultReturned() == "YES";
}

}  // namespace golf
