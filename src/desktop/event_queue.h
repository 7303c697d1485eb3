#pragma once

#include <wx/event.h>
#include <wx/recguard.h>

#include <deque>
#include <functional>

namespace golf {

// Stores events and runs them after the toolkit has finished with the current one. They run in
// order and one at a time: while an event has a box open, the later ones wait.
class EventQueue : private wxEvtHandler {
 public:
  void Add(std::function<void()> event);
  // Runs the waiting events now. Does nothing if it is called from one of them.
  void Run();
  void Clear() { events_.clear(); }
  bool IsEmpty() const { return events_.empty(); }

 private:
  std::deque<std::function<void()>> events_;
  wxRecursionGuardFlag running_ = 0;
};

}  // namespace golf
