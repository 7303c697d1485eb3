#pragma once

#include "core/left_out.h"
#include "core/numbered_error.h"
#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Is thrown when the operator closes a preview without transferring. It is not a NumberedError, so
// that no run continues after it.
class PreviewClosed {};

// Contains what a preview shows besides the changes.
struct PreviewNotes {
  LeftOut left_out = {};
  const NumberedError* ended_by = nullptr;  // the error that ended the run, or null
};

// Shows what the held changes of a preview would change. If the operator wants the transfer, ends
// the preview, so that the next commit applies the changes. Throws PreviewClosed otherwise.
void ConfirmPreview(SharedState& state, ScreenHost& host, const PreviewNotes& notes);

}  // namespace golf
