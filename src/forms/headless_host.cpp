#include "forms/headless_host.h"

#include <algorithm>
#include <utility>

#include "core/code_page.h"
#include "core/text.h"

namespace golf {

void HeadlessHost::QueueAnswer(std::string title, std::string answer, bool always) {
  // An answer with `always` replaces the previous one for the same title.
  if (always) {
    std::erase_if(answers_, [&](const QueuedAnswer& q) { return q.always && q.title == title; });
  }
  answers_.push_back({std::move(title), std::move(answer), always});
}

const std::string* HeadlessHost::NextAnswer(std::string_view title) {
  const auto find = [&](bool always) {
    return std::find_if(answers_.begin(), answers_.end(), [&](const QueuedAnswer& queued) {
      return queued.title == title && queued.always == always;
    });
  };
  const auto once = find(false);
  answer_stands_ = once == answers_.end();
  if (!answer_stands_) {
    taken_ = std::move(once->answer);
    answers_.erase(once);
    return &taken_;
  }
  const auto standing = find(true);
  return standing == answers_.end() ? nullptr : &standing->answer;
}

void HeadlessHost::Press(Screen& screen, std::string_view name) {
  Operate(screen, [&] {
    auto* button = dynamic_cast<Button*>(screen.FindControl(name));
    if (button == nullptr || !button->IsReachable()) {
      throw NumberedError(ErrorNumber::kBadCall, "The button " + std::string(name) + " of " +
                                                     screen.name() + " cannot be pressed.");
    }
    button->Click();
  });
}

bool HeadlessHost::Leave(Screen& screen) {
  bool pressed = false;
  const auto press = [&](const Button* button) {
    if (button == nullptr || !IsShown(screen)) return;
    Operate(screen, *button, [&] {
      pressed = true;
      button->Click();
    });
  };
  press(screen.PanelLeaveButton());
  press(screen.LeaveButton());
  return pressed;
}

void HeadlessHost::NoteFault(const NumberedError& fault) {
  HostBase::NoteFault(fault);
  listener_.OnFault(fault);
}

void HeadlessHost::StartProgram(const std::string& path, const std::string& arguments) {
  listener_.OnStart(path, arguments);
  Platform& platform = state().files.platform();
  if (starts_programs) return platform.StartProgram(path, arguments);
  platform.Open(path, FileAccess::kReadOnly);
}

void HeadlessHost::OpenInBrowser(const std::string& utf8_path) {
  listener_.OnStart(TextFromUtf8(utf8_path), "");
}

void HeadlessHost::EndProcess() {
  HostBase::EndProcess();
  listener_.OnEnd();
  ForgetScreens();
}

void HeadlessHost::Show(Screen& screen) {
  HostBase::Show(screen);
  if (const TipView* tip = screen.Tip()) listener_.OnTip(*tip, "");
}

void HeadlessHost::Open(Screen& screen) {
  if (screen.Tip() == nullptr) listener_.OnOpen(screen);
}

void HeadlessHost::RunModal(Screen& screen) {
  if (const TipView* tip = screen.Tip()) return AnswerTip(screen, *tip);
  if (drive) drive(screen);
  if (IsShown(screen)) Leave(screen);
  if (IsShown(screen)) Unload(screen);
}

void HeadlessHost::AnswerTip(Screen& screen, const TipView& tip) {
  const std::vector<Button*>& buttons = tip.buttons;
  if (buttons.empty()) return Hide(screen);
  Button* pressed = buttons.front();
  if (const std::string* answer = NextAnswer(tip.title)) {
    const auto named = std::find_if(buttons.begin(), buttons.end(), [&](Button* button) {
      return EqualIgnoringCase(button->name(), *answer + "Button");
    });
    if (named == buttons.end()) NoteBadAnswer(tip.title, *answer);
    if (named != buttons.end()) pressed = *named;
  }
  const std::string name = UpperCase(pressed->name());
  listener_.OnTip(tip, name.substr(0, name.find("BUTTON")));
  pressed->Click();
  if (IsShown(screen)) Hide(screen);
}

void HeadlessHost::NoteBadAnswer(std::string_view title, std::string_view answer) {
  // An answer with `always` need not fit every box of its title.
  if (!bad_answer_.empty() || answer_stands_) return;
  bad_answer_ =
      "\"" + std::string(answer) + "\" does not answer the box \"" + std::string(title) + "\".";
}

void HeadlessHost::Close(Screen& screen) {
  if (screen.Tip() == nullptr) listener_.OnClose(screen);
}

BoxButton HeadlessHost::ShowBox(const Box& box) {
  BoxButton answer = box.buttons.at(box.default_button);
  if (const std::string* queued = NextAnswer(box.title)) {
    const auto button = ButtonNamed(box, *queued);
    if (!button) NoteBadAnswer(box.title, *queued);
    answer = button.value_or(answer);
  }
  answered_[box.title] = answer;
  listener_.OnMessage(box, answer);
  return answer;
}

std::optional<BoxButton> HeadlessHost::AnswerTo(std::string_view title) const {
  const auto answered = answered_.find(title);
  return answered == answered_.end() ? std::nullopt : std::optional(answered->second);
}

std::string HeadlessHost::ShowInputBox(const InputBox& box) {
  const std::string* queued = NextAnswer(box.title);
  const std::string answer = queued == nullptr ? box.default_answer : *queued;
  listener_.OnInput(box, answer);
  return answer;
}

std::string HeadlessHost::ShowPathChoice(const std::string& title, const std::string& current) {
  return ShowInputBox({.title = title, .text = "Path", .default_answer = current});
}

std::string HeadlessHost::ShowFolderChoice(const std::string& title,
                                           const std::string& utf8_current) {
  return Utf8FromText(ShowPathChoice(title, TextFromUtf8(utf8_current)));
}

Font HeadlessHost::ShowFontChoice(std::string_view title, const Font& current) {
  Font answer = current;
  if (const std::string* queued = NextAnswer(title)) {
    const auto font = ParseFont(*queued);
    if (!font) NoteBadAnswer(title, *queued);
    answer = font.value_or(answer);
  }
  listener_.OnFont(title, current, answer);
  return answer;
}

void HeadlessHost::ErrorEndsClick(const NumberedError& error) {
  listener_.OnError(error);
  throw ClickEnded{error};
}

}  // namespace golf
