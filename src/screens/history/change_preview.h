#pragma once

#include <string>
#include <vector>

#include "forms/screen_host.h"
#include "screens/history/change_rows.h"

namespace golf {

// Says what a list of changes is shown for. This decides about the captions and the button that
// goes on.
enum class ChangeListUse {
  kPreview,    // the operator decides whether to transfer
  kPastRun,    // the operator only reads
  kConflicts,  // the operator decides whether to undo the rest of a run
};

// Lists changes field by field. The operator can filter, sort, copy and save the list.
class ChangePreview : public Screen {
 public:
  static constexpr const char* kName = "ChangePreview";

  explicit ChangePreview(const ScreenContext& context);

  Button* LeaveButton() override { return &CloseButton; }

  // Shows a table and returns when the operator has closed the screen. Returns true if the operator
  // has chosen to go on. `note` is a sentence above the list, or empty.
  bool Show(ChangeListUse use, ChangeTable table, const std::string& note);

  Label CountsLabel{"CountsLabel"};
  Label NoteLabel{"NoteLabel"};
  Label FilterLabel{"FilterLabel", "&Find"};
  TextBox FilterBox{"FilterBox"};
  Label KindLabel{"KindLabel", "S&how"};
  ComboBox KindList{"KindList"};
  Grid ChangeList;
  Button CopyButton{"CopyButton", "C&opy"};
  Button SaveButton{"SaveButton", "Save as CS&V..."};
  Button TransferNowButton{"TransferNowButton", "&Transfer now"};
  Button CloseButton{"CloseButton", "Close"};

  // These are the columns of the list.
  static constexpr int kTitleColumn = 1;
  static constexpr int kFieldColumn = 2;
  static constexpr int kBeforeColumn = 3;
  static constexpr int kAfterColumn = 4;

 private:
  void SetUse(ChangeListUse use);
  // Contains a row of the table with its texts in capitals, in which the filter searches.
  struct Line {
    ChangeRow row;
    std::string searched;
  };
  bool IsWanted(const Line& line, const std::string& wanted) const;
  void FillList();
  void SortBy(int column);

  std::vector<Line> lines_;
  int sorted_by_ = 0;  // a column, or 0 for the order of the changes
  bool descending_ = false;
  bool goes_on_ = false;
};

}  // namespace golf
