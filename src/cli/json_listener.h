#pragma once

#include <string>

#include "cli/json_text.h"
#include "forms/headless_host.h"

namespace golf {

// Writes every event of a run as a line of JSON. Also reports faults and errors on standard error.
class JsonListener : public HostListener {
 public:
  void OnOpen(const Screen& screen) override;
  void OnClose(const Screen& screen) override;
  void OnMessage(const Box& box, BoxButton answer) override;
  void OnInput(const InputBox& box, const std::string& answer) override;
  void OnFont(std::string_view title, const Font& current, const Font& answer) override;
  void OnTip(const TipView& tip, const std::string& answer) override;
  void OnBeep() override;
  void OnStart(const std::string& program, const std::string& arguments) override;
  void OnInstall(const std::string& utf8_folder) override;
  void OnError(const NumberedError& error) override;
  void OnFault(const NumberedError& fault) override;
  void OnNotice(const std::string& text) override;
  void OnEnd() override;

  // Sets the number of the script line that causes the next events, or 0 if there is no script.
  void SetLine(int line) { line_ = line; }

 private:
  int line_ = 0;
};

}  // namespace golf
