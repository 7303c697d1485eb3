#pragma once

#include <wx/event.h>
#include <wx/recguard.h>

#include <deque>
#include <functional>

namespace golf {

// Events that wait until the toolkit has finished with the present one. They run in order and one
// at a time: while an event has a box open, the later ones wait.
class EventQueue : private wxEvtHandler {
 public:
  void Add(std::function<void()> event);
  // Runs the waiting events now. Does nothing within one of them.
  void Run();
  void Clear() { events_.clear(); }
  bool IsEmpty() const { return events_.empty(); }

 private:
  std::deque<std::function<void()>> events_;
  wxRecursionGuardFlag running_ = 0;
};

}  // namespace golf
