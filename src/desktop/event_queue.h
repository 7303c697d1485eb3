#pragma once

#include <wx/event.h>
#include <wx/recguard.h>

#include <deque>
#include <functional>

namespace golf {

// Events that wait until the toolkit is done with what it has in hand. They run in their order, one
// at a time: while one has a box open, those behind it wait until that is answered.
class EventQueue : private wxEvtHandler {
 public:
  void Add(std::function<void()> event);
  // Runs what waits now.
  void Run();
  void Clear() { events_.clear(); }
  bool IsEmpty() const { return events_.empty(); }

 private:
  std::deque<std::function<void()>> events_;
  wxRecursionGuardFlag running_ = 0;
};

}  // namespace golf
