#include "core/shared_state.h"

#include <exception>
#include <utility>

#include "core/numbered_error.h"

namespace golf {

SharedState::SharedState(Platform& platform, StoreFactory factory)
    : files(platform), factory_(std::move(factory)) {}

void SharedState::InitSharedObjects() {
  std::exception_ptr unwritten;
  try {
    files.CloseAll();
  } catch (const NumberedError&) {
    unwritten = std::current_exception();
  }
  factory_(*this, objects_);
  if (unwritten) std::rethrow_exception(unwritten);
}

}  // namespace golf
