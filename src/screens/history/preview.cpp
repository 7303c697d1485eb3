#include "screens/history/preview.h"

#include <utility>

#include "history/transactions.h"
#include "outlets/record_kinds.h"
#include "screens/history/change_preview.h"

namespace golf {

void ConfirmPreview(SharedState& state, ScreenHost& host, const PreviewNotes& notes) {
  const RecordKinds kinds = MakeRecordKinds(state);
  ChangeTable table = TableOfHeldChanges(state, kinds);
  AddLeftOut(table, notes.left_out);
  const std::string note = notes.ended_by == nullptr
                               ? "Nothing has been changed yet."
                               : "The run ends early: " + notes.ended_by->description();
  if (!Load<ChangePreview>(host).Show(ChangeListUse::kPreview, std::move(table), note)) {
    throw PreviewClosed();
  }
  state.transactions->EndPreview();
}

}  // namespace golf
