#include "desktop/operator.h"

#include <gtest/gtest.h>
#include <wx/app.h>
#include <wx/evtloop.h>
#include <wx/msgdlg.h>

#include <cstdio>
#include <cstdlib>

namespace golf {
namespace {

constexpr int kTick = 5;                       // milliseconds
constexpr std::chrono::seconds kPatience{60};  // for a slow machine, with sanitizers

}  // namespace

Operator::Operator() : deadline_(std::chrono::steady_clock::now() + kPatience) {
  Register();
  Start(kTick);
}

Operator::~Operator() { Unregister(); }

wxWindow* Operator::Find(const std::string& name) {
  for (wxWindow* window : wxTopLevelWindows) {
    if (!window->IsShown()) continue;
    wxWindow* found = wxWindow::FindWindowByName(name, window);
    if (found != nullptr && found->IsShownOnScreen()) return found;
  }
  return nullptr;
}

void Operator::When(std::string what, std::function<bool()> condition,
                    std::function<void()> action) {
  steps_.push_back({std::move(what), std::move(condition), std::move(action)});
}

// The window system has the widget on the display once it feels the pointer.
bool Operator::PointAt(const std::string& name) {
  wxWindow* widget = Find(name);
  if (widget == nullptr || !widget->IsEnabled()) return false;
  if (target_ != widget) {
    target_ = widget;
    felt_ = false;
    widget->Bind(wxEVT_MOTION, [this](wxMouseEvent& event) {
      event.Skip();
      felt_ = true;
    });
  }
  if (!felt_) MoveOver(*widget);
  return felt_;
}

// Never twice to the same point, which the window system would not tell.
void Operator::MoveOver(const wxWindow& widget) {
  nudge_ = 1 - nudge_;
  const wxSize size = widget.GetSize();
  simulator_.MouseMove(widget.ClientToScreen(wxPoint(size.x / 2 + nudge_, size.y / 2)));
}

void Operator::Press(const std::string& name) {
  When(
      "press " + name, [this, name] { return PointAt(name); },
      [this] {
        target_ = nullptr;
        simulator_.MouseClick();
      });
}

void Operator::Answer(const std::string& title, const std::string& text, int key) {
  When(
      "box " + title, [this] { return !dialogs_.empty() && dialogs_.back() != nullptr; },
      [=, this] {
        const auto& box = dynamic_cast<wxMessageDialog&>(*dialogs_.back());
        EXPECT_EQ(box.GetTitle().utf8_string(), title);
        EXPECT_EQ(box.GetMessage().utf8_string(), text);
        TypeNow(key);
      });
  Await("end of box " + title, [this] { return dialogs_.empty() || dialogs_.back() == nullptr; });
}

void Operator::Type(const std::string& name, int key) {
  When(
      "type into " + name,
      [name] {
        const wxWindow* widget = Find(name);
        return widget != nullptr && widget->IsEnabled();
      },
      [this, key] { TypeNow(key); });
}

void Operator::Do(std::function<void()> action) {
  When(
      "action", [] { return true; }, [action] { wxTheApp->CallAfter(action); });
}

void Operator::ClickNow(const std::string& name) {
  const wxWindow* widget = Find(name);
  ASSERT_NE(widget, nullptr) << name;
  MoveOver(*widget);
  simulator_.MouseClick();
}

void Operator::RunProgram() {
  wxTheApp->OnRun();
  EXPECT_TRUE(steps_.empty()) << "left over: " << steps_.front().what;
}

void Operator::RunUntil(const std::string& what, std::function<bool()> condition) {
  wxEventLoop loop;
  When(what, std::move(condition), [&] { loop.Exit(); });
  loop.Run();
}

void Operator::Notify() {
  if (std::chrono::steady_clock::now() > deadline_) {
    std::fprintf(stderr, "the operator waits in vain: %s\n",
                 steps_.empty() ? "end of the program" : steps_.front().what.c_str());
    std::_Exit(EXIT_FAILURE);
  }
  if (steps_.empty() || !steps_.front().condition()) return;
  const Step step = std::move(steps_.front());
  steps_.pop_front();
  step.action();
}

// A screen's dialog stands as null between the boxes.
int Operator::Enter(wxDialog* dialog) {
  dialogs_.push_back(dynamic_cast<wxMessageDialog*>(dialog));
  return wxID_NONE;
}

void Operator::Exit(wxDialog*) { dialogs_.pop_back(); }

}  // namespace golf
