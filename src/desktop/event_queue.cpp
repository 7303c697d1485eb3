#include "desktop/event_queue.h"

#include <utility>

namespace golf {

void EventQueue::Add(std::function<void()> event) {
  events_.push_back(std::move(event));
  CallAfter([this] { Run(); });
}

void EventQueue::Run() {
  const wxRecursionGuard guard(running_);
  while (!guard.IsInside() && !events_.empty()) {
    const auto event = std::move(events_.front());
    events_.pop_front();
    event();
  }
}

}  // namespace golf
