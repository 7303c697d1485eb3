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
  virtual void OnError(const NumberedError&) {}
  virtual void OnFault(const NumberedError&) {}
  virtual void OnNotice(const std::string& /*text*/) {}
  virtual void OnProgress(const Progress&) {}
  virtual void OnEnd() {}
};

// Thrown when a numbered error has ended a click. It is not a NumberedError, so no screen handles
// it.
struct ClickEnded {
  NumberedError error;
};

// A host that draws nothing. A queue answers its boxes, and its user works the screens through
// their controls. It serves scripts, the commands of the command line, and tests.
class HeadlessHost : public HostBase {
 public:
  HeadlessHost(SharedState& state, ScreenCatalogue catalogue, HostListener& listener)
      : HostBase(state, std::move(catalogue)), listener_(listener) {}

  // Works a modal screen in place of the operator until the screen closes. If the screen is still
  // open afterwards, the host presses its leave button, and then unloads it if it must.
  std::function<void(Screen&)> drive;
  // Returns the present moment.
  std::function<DateValue()> clock;
  // True: programs are really started. False: a start only opens the program's file.
  bool starts_programs = false;

  // Queues the answer to the next box with exactly this title, or, with `always`, to all boxes with
  // it for which no other answer is queued. The answer is the name of a button, the text for an
  // input box, or the description of a font.
  void QueueAnswer(std::string title, std::string answer, bool always = false);

  // Presses a button of a screen as the operator would. Error 5 if the screen has no such button or
  // the operator cannot reach it.
  void Press(Screen& screen, std::string_view button);

  // Leaves a screen as the operator would, its open panel first. Returns false if no button could
  // be pressed.
  bool Leave(Screen& screen);

  // Returns the last answer to a message box with this title. Nothing if there was none.
  std::optional<BoxButton> AnswerTo(std::string_view title) const;

  // Describes the first queued answer that did not fit its box; empty if all did. Such a box takes
  // its default answer, so the run does not stop halfway. An answer with `always` is not reported.
  const std::string& bad_answer() const { return bad_answer_; }

  void Show(Screen& screen) override;
  void Beep() override { listener_.OnBeep(); }
  void SetPointer(Pointer) override {}
  void Notify(const std::string& text) override { listener_.OnNotice(text); }
  void Report(const Progress& progress) override { listener_.OnProgress(progress); }
  void NoteFault(const NumberedError& fault) override;
  void StartProgram(const std::string& path, const std::string& arguments) override;
  DateValue Now() override { return clock(); }
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
};

}  // namespace golf
