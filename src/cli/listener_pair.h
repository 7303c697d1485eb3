#pragma once

#include "forms/headless_host.h"

namespace golf {

// Passes each event to two listeners, in this order.
class ListenerPair : public HostListener {
 public:
  ListenerPair(HostListener& first, HostListener& second) : both_{&first, &second} {}

  void OnOpen(const Screen& screen) override {
    for (HostListener* one : both_) one->OnOpen(screen);
  }
  void OnClose(const Screen& screen) override {
    for (HostListener* one : both_) one->OnClose(screen);
  }
  void OnMessage(const Box& box, BoxButton answer) override {
    for (HostListener* one : both_) one->OnMessage(box, answer);
  }
  void OnInput(const InputBox& box, const std::string& answer) override {
    for (HostListener* one : both_) one->OnInput(box, answer);
  }
  void OnFont(std::string_view title, const Font& current, const Font& answer) override {
    for (HostListener* one : both_) one->OnFont(title, current, answer);
  }
  void OnTip(const TipView& tip, const std::string& answer) override {
    for (HostListener* one : both_) one->OnTip(tip, answer);
  }
  void OnBeep() override {
    for (HostListener* one : both_) one->OnBeep();
  }
  void OnStart(const std::string& program, const std::string& arguments) override {
    for (HostListener* one : both_) one->OnStart(program, arguments);
  }
  void OnInstall(const std::string& utf8_folder) override {
    for (HostListener* one : both_) one->OnInstall(utf8_folder);
  }
  void OnError(const NumberedError& error) override {
    for (HostListener* one : both_) one->OnError(error);
  }
  void OnFault(const NumberedError& fault) override {
    for (HostListener* one : both_) one->OnFault(fault);
  }
  void OnNotice(const std::string& text) override {
    for (HostListener* one : both_) one->OnNotice(text);
  }
  void OnProgress(const Progress& progress) override {
    for (HostListener* one : both_) one->OnProgress(progress);
  }
  void OnEnd() override {
    for (HostListener* one : both_) one->OnEnd();
  }

 private:
  HostListener* both_[2];
};

}  // namespace golf
