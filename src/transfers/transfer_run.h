#pragma once

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "core/shared_state.h"
#include "forms/screen_host.h"

namespace golf {

// Runs a transfer of a screen: alone in its install (error 70 if another process runs one, with
// nothing changed) and with the operator's input held off. After an error that the run does not
// take itself all files are closed, the shared objects are new, the screen has opened again what
// its load opens, and the error goes on.
void RunTransfer(Screen& screen, SharedState& state, ScreenHost& host,
                 const std::function<void()>& run);

// How a screen looks while its run copies: the pointer is busy and the button away, if there is
// one. In whatever way the run ends, the screen looks as before and the labels are empty.
class CopyingLook {
 public:
  CopyingLook(ScreenHost& host, std::initializer_list<Label*> progress, Button* hidden = nullptr);
  CopyingLook(const CopyingLook&) = delete;
  CopyingLook& operator=(const CopyingLook&) = delete;
  ~CopyingLook();

 private:
  ScreenHost& host_;
  std::vector<Label*> progress_;
  Button* hidden_;
};

// A count of 16 bits, one higher. Error 6 above 32767.
void CountUp(std::int16_t& counter);

// The fault of somebody whom a run leaves out, since a record of his cannot be read. `who` begins a
// sentence, such as "Ann Smith" or "The golfer at place 7".
NumberedError LeftOut(const std::string& who, const NumberedError& why);

// Reads for a run that leaves out whom it cannot read: a failed read is told as the fault of
// `who()`, and the result is false. Any other error goes on.
template <class Statement, class Who>
bool ReadOrLeaveOut(ScreenHost& host, Statement&& statement, Who&& who) {
  try {
    statement();
    return true;
  } catch (const ReadError& error) {
    host.TellFault(LeftOut(who(), error));
    return false;
  }
}

}  // namespace golf
