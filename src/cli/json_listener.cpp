#include "cli/json_listener.h"

#include "cli/problems.h"

namespace golf {
namespace {

Json Event(std::string_view kind) { return {{"event", kind}}; }

}  // namespace

void JsonListener::OnOpen(const Screen& screen) {
  Json event = Event("open");
  event["screen"] = screen.name();
  WriteJsonLine(event);
}

void JsonListener::OnClose(const Screen& screen) {
  Json event = Event("close");
  event["screen"] = screen.name();
  WriteJsonLine(event);
}

void JsonListener::OnMessage(const Box& box, BoxButton answer) {
  Json event = Event("message");
  event["title"] = JsonText(box.title);
  event["text"] = JsonText(box.text);
  event["icon"] = NameOf(box.icon);
  event["buttons"] = Json::array();
  for (const BoxButton button : box.buttons) event["buttons"].push_back(NameOf(button));
  event["default"] = NameOf(box.buttons.at(box.default_button));
  event["answer"] = NameOf(answer);
  WriteJsonLine(event);
}

void JsonListener::OnInput(const InputBox& box, const std::string& answer) {
  Json event = Event("input");
  event["title"] = JsonText(box.title);
  event["text"] = JsonText(box.text);
  event["default"] = JsonText(box.default_answer);
  event["answer"] = JsonText(answer);
  WriteJsonLine(event);
}

void JsonListener::OnFont(std::string_view title, const Font& current, const Font& answer) {
  Json event = Event("font");
  event["title"] = JsonText(title);
  event["default"] = JsonText(DescribeFont(current));
  event["answer"] = JsonText(DescribeFont(answer));
  WriteJsonLine(event);
}

void JsonListener::OnTip(const TipView& tip, const std::string& answer) {
  Json event = Event("tip");
  event["type"] = tip.type;
  event["title"] = JsonText(tip.title);
  event["text"] = JsonText(tip.text);
  event["answer"] = JsonText(answer);
  WriteJsonLine(event);
}

void JsonListener::OnBeep() { WriteJsonLine(Event("beep")); }

void JsonListener::OnStart(const std::string& program, const std::string& arguments) {
  Json event = Event("start");
  event["program"] = JsonText(program);
  event["arguments"] = JsonText(arguments);
  WriteJsonLine(event);
}

void JsonListener::OnInstall(const std::string& utf8_folder) {
  Json event = Event("install");
  event["folder"] = utf8_folder;
  WriteJsonLine(event);
}

void JsonListener::OnError(const NumberedError& error) {
  Json event = Event("error");
  event["number"] = error.number();
  event["source"] = JsonText(error.source());
  event["description"] = JsonText(error.description());
  if (line_ > 0) event["line"] = line_;
  WriteJsonLine(event);
  NoteProblem(error.Report());
}

void JsonListener::OnFault(const NumberedError& fault) { NoteProblem(fault.Report()); }

void JsonListener::OnNotice(const std::string& text) { NoteProblem(text); }

void JsonListener::OnEnd() { WriteJsonLine(Event("end")); }

}  // namespace golf
