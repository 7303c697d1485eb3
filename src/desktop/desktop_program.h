#pragma once

#include <memory>
#include <string>

#include "app/application.h"
#include "desktop/desktop_host.h"

namespace golf {

// Shows the windows of one install at a time.
class DesktopProgram {
 public:
  // `user` must exist as long as this object.
  explicit DesktopProgram(UserProfile& user) : user_(user) {}

  // Shows the menu of the install in this folder, closes the windows of the install before, and
  // finishes an interrupted run of the new one. An empty folder means the folder of the program.
  // `word` is the word of the sibling that started the program. Raises error 76 if the folder does
  // not exist; the windows then stay as they are.
  void Open(const std::string& utf8_folder, const std::string& word);

  // Closes all windows.
  void Close();

  // Return the application and the host of the shown install. Open must have succeeded.
  Application& application() { return *application_; }
  DesktopHost& host() { return *host_; }
  bool IsOpen() const { return host_ != nullptr; }

 private:
  UserProfile& user_;
  std::unique_ptr<Application> application_;
  std::unique_ptr<DesktopHost> host_;  // uses application_
};

}  // namespace golf
