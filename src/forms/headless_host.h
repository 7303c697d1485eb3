#pragma once

#include <functional>
#include <list>
#include <string>

#include "forms/host_base.h"

namespace golf {

// Receives the events of a host without a display, in the order in which they happen.
class HostListener {
 public:
  virtual ~HostListener() = default;

  virtual void OnOpen(const Screen&) {}
  virtual void OnClose(const Screen&) {}
  virtual void OnMessage(const Box&, BoxButton /*answer*/) {}
  virtual void OnInput(const InputBox&, const std::string& /*answer*/) {}
  virtual void OnFont(std::string_view /*title*/, const Font& /*current*/, const Font& /*answer*/) {
  }
  virtual void OnTip(const TipView&, const std::string& /*answer*/) {}
  virtual void OnBeep() {}
  virtual void OnStart(const std::string& /*program*/, const std::string& /*arguments*/) {}
  virtual void OnInstall(const std::string& /*utf8_folder*/) {}
  virtual void OnError(const NumberedError&) {}
  virtual void OnFault(const NumberedError&) {}
  virtual void OnNotice(const std::string& /*text*/) {}
  virtual void OnProgress(const Progress&) {}
  virtual void OnEnd() {}
};

// Is thrown when a numbered error has ended an event. It is not a NumberedError, so that no screen
// catches it.
struct ClickEnded {
  NumberedError error;
};

// Implements a host that draws nothing. It answers boxes from a queue, and its caller operates the
// screens through their controls. Scripts, the commands of the command line and tests use it.
class HeadlessHost : public HostBase {
 public:
  HeadlessHost(SharedState& state, ScreenCatalogue catalogue, HostListener& listener)
      : HostBase(state, std::move(catalogue)), listener_(listener) {}

  // Operates a modal screen in place of the operator. The host calls it when the screen opens. If
  // the screen is still open when it returns, the host presses the leave button. If the screen is
  // open even then, the host unloads it.
  std::function<void(Screen&)> drive;
  // Returns the current date and time.
  std::function<DateValue()> clock;
  // True if StartProgram starts programs. If false, StartProgram only opens the program's file,
  // which raises an error if it cannot be read.
  bool starts_programs = false;

  // Queues the answer to the next box with exactly this title. With `always`, the answer applies to
  // all boxes with this title for which no other answer is queued. The answer is the name of a
  // button, the text for an input box, or the description of a font.
  void QueueAnswer(std::string title, std::string answer, bool always = false);

  // Presses a button of a screen as the operator would. Raises error 5 if the screen has no such
  // button or the operator cannot reach it.
  void Press(Screen& screen, std::string_view button);

  // Presses the leave button of the screen's open panel, and then the one of the screen. Returns
  // false if neither could be pressed.
  bool Leave(Screen& screen);

  // Returns the last answer to a message box with this title, or nothing if no such box was shown.
  std::optional<BoxButton> AnswerTo(std::string_view title) const;

  // Describes the first queued answer that did not fit its box; empty if all did. The host gives
  // such a box its default answer and continues. Answers with `always` are not reported.
  const std::string& bad_answer() const { return bad_answer_; }

  void Show(Screen& screen) override;
  void Beep() override { listener_.OnBeep(); }
  void SetPointer(Pointer) override {}
  void Notify(const std::string& text) override { listener_.OnNotice(text); }
  void Report(const Progress& progress) override { listener_.OnProgress(progress); }
  void NoteLeftOut(const LeftOut& left_out) override { left_out_.Append(left_out); }
  // Returns what all runs so far have left out.
  const LeftOut& left_out() const { return left_out_; }
  void NoteFault(const NumberedError& fault) override;
  void StartProgram(const std::string& path, const std::string& arguments) override;
  // Reports the page to the listener as a start, but never starts a browser.
  void OpenInBrowser(const std::string& utf8_path) override;
  DateValue Now() override { return clock(); }
  // Reports the folder to the listener, but goes on with the same install.
  void OpenInstall(const std::string& utf8_folder) override { listener_.OnInstall(utf8_folder); }
  void EndProcess() override;
  void CopyText(const std::string& text) override { copied_ = text; }
  // Returns the text that was copied last.
  const std::string& copied() const { return copied_; }

 protected:
  void Open(Screen& screen) override;
  void RunModal(Screen& screen) override;
  void Close(Screen& screen) override;
  BoxButton ShowBox(const Box& box) override;
  std::string ShowInputBox(const InputBox& box) override;
  // These show an input box in place of the dialog.
  std::string ShowPathChoice(const std::string& title, const std::string& current) override;
  std::string ShowFolderChoice(const std::string& title, const std::string& utf8_current) override;
  Font ShowFontChoice(std::string_view title, const Font& current) override;
  void ErrorEndsClick(const NumberedError& error) override;

 private:
  struct QueuedAnswer {
    std::string title;
    std::string answer;
    bool always;
  };

  const std::string* NextAnswer(std::string_view title);
  void AnswerTip(Screen& screen, const TipView& tip);
  void NoteBadAnswer(std::string_view title, std::string_view answer);

  HostListener& listener_;
  std::list<QueuedAnswer> answers_;
  std::string taken_;
  bool answer_stands_ = false;  // the last answer taken was queued with `always`
  std::string bad_answer_;
  std::map<std::string, BoxButton, std::less<>> answered_;  // by title
  std::string copied_;
  LeftOut left_out_;
};

}  // namespace golf
