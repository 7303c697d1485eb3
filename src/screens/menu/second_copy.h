#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Windows keeps a user's own copies of the files that an old program must not change, such as those
// below C:\Program Files. The siblings then read and write these copies, and the files of the
// install stay as they were. Only the operator knows which of the two are right.

// Returns a text that shows both places, with the number of files and the date of the newest one.
// Returns an empty text if there is only one place.
std::string SecondCopyText(SharedState& state);

// True if there are two places and the operator has not chosen the install's own files yet.
bool IsPlaceToBeChosen(SharedState& state, ScreenHost& host);

// Is the part of the menu that lets the operator choose between the two places.
class SecondCopy {
 public:
  explicit SecondCopy(const ScreenContext& context);

  // Shows the choice if it must be made.
  void Refresh();

  Frame PlacesFrame{"PlacesFrame"};
  Label PlacesLabel{"PlacesLabel", "There are two copies of this data"};
  Label PlacesText{"PlacesText"};
  Button UseFolderButton{"UseFolderButton", "&Use the files of this folder"};
  Button UseCopiesButton{"UseCopiesButton", "Use &my copies"};

 private:
  void UseFolder();

  ScreenContext context_;
};

}  // namespace golf
