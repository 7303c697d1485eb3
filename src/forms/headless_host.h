#pragma once

#include <functional>
#include <list>
#include <string>

#include "forms/host_base.h"

namespace golf {

// What a host without a display tells of a run, in the order in which it happens.
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

// A numbered error has ended a click. Not a NumberedError itself: no handler of a screen takes it.
struct ClickEnded {
  NumberedError error;
};

// A host that draws nothing: boxes are answered from a queue, and whoever drives it works the
// screens through their controls. Serves scripts, the commands of the command line, and tests.
class HeadlessHost : public HostBase {
 public:
  HeadlessHost(SharedState& state, ScreenCatalogue catalogue, HostListener& listener)
      : HostBase(state, std::move(catalogue)), listener_(listener) {}

  // What the operator does on a modal screen until it is gone. A screen that is still there
  // afterwards is left by its button, and taken away if that does not help.
  std::function<void(Screen&)> drive;
  // The present moment, for Now.
  std::function<DateValue()> clock;
  // Programs are really started; otherwise a start only fails where the program is not there.
  bool starts_programs = false;

  // Answers the next box with just this title, or every one that has no other answer queued: a
  // button's name, the text for an input box, a font's description.
  void QueueAnswer(std::string title, std::string answer, bool always = false);

  // Presses a button of a screen as the operator would. Error 5 where the screen has no such button
  // or the operator could not reach it.
  void Press(Screen& screen, std::string_view button);

  // Leaves a screen as the operator would: an open panel first. False where no button could be
  // pressed.
  bool Leave(Screen& screen);

  // The last answer to a box with this title; nothing if none came.
  std::optional<BoxButton> AnswerTo(std::string_view title) const;

  // What is wrong with an answer that was queued for one box, if it did not fit it; empty with
  // none. Such a box took its default, so that a run does not stop halfway.
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
  // What was copied last.
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
  bool answer_stands_ = false;  // the last one that was taken
  std::string bad_answer_;
  std::map<std::string, BoxButton, std::less<>> answered_;  // by title
  std::string copied_;
};

}  // namespace golf
