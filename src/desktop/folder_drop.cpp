#include "desktop/folder_drop.h"

#include <wx/dnd.h>

#include <utility>

namespace golf {
namespace {

class FolderTarget : public wxFileDropTarget {
 public:
  explicit FolderTarget(std::function<void(const std::string&)> open) : open_(std::move(open)) {}

 private:
  bool OnDropFiles(wxCoord, wxCoord, const wxArrayString& paths) override {
    if (paths.empty()) return false;
    open_(paths[0].utf8_string());
    return true;
  }

  std::function<void(const std::string&)> open_;
};

}  // namespace

void AcceptFolders(wxWindow& window, std::function<void(const std::string& utf8_path)> open) {
  window.SetDropTarget(new FolderTarget(std::move(open)));
}

}  // namespace golf
