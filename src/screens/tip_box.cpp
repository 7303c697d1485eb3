#include "screens/tip_box.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "core/text.h"

namespace golf {
namespace {

constexpr std::size_t kKeyLength = 30;

// Describes the appearance and the behaviour of the box for one type of message.
struct TipKind {
  int type;
  std::string_view caption;
  bool question;
  bool has_button;
  bool offers_memory;
  std::string_view memory_text;
  bool modal;
  bool on_top;
};

constexpr std::string_view kNoticeMemory = "&Don't show this notice again.";
constexpr std::string_view kQuestionMemory =
    "&Don't ask this question again. (Yes will be assumed)";

constexpr TipKind kKinds[] = {
    {TipBox::kModelessNoButton, "Notice", false, false, false, "", false, true},
    {TipBox::kModelessNotice, "Notice", false, true, true, kNoticeMemory, false, false},
    {TipBox::kNotice, "Notice", false, true, true, kNoticeMemory, true, true},
    {TipBox::kLastingNotice, "Notice", false, true, false, kNoticeMemory, true, true},
    {TipBox::kQuestion, "Question", true, true, true, kQuestionMemory, true, true},
    {TipBox::kLastingQuestion, "Question", true, true, false, kQuestionMemory, true, true},
};
constexpr TipKind kTip{0, "Tip", false, true, true, "&Don't show this tip again.", false, false};

const TipKind* KindOf(int type) {
  const auto found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                  [type](const TipKind& kind) { return kind.type == type; });
  return found == std::end(kKinds) ? nullptr : found;
}

}  // namespace

TipBox::TipBox(const ScreenContext& context) : Screen(kName, context) {
  Add({&Title, &Message, &ShowMessage, &OKButton, &YesButton, &NoButton, &Picture1, &Image1[0],
       &Image1[1]});
  for (Label& image : Image1) image.SetParent(Picture1);
  Message.SetReadOnly(true);
  OKButton.on_click = [this] { Answer("OK"); };
  YesButton.on_click = [this] { Answer("YES"); };
  NoButton.on_click = [this] { Answer("NO"); };
}

std::size_t TipBox::Find() const {
  const std::string_view key = std::string_view(Title.caption()).substr(0, kKeyLength);
  const auto found = std::find_if(titles_.begin(), titles_.end(), [key](const Remembered& entry) {
    return EqualIgnoringCase(entry.title, key);
  });
  return found == titles_.end() ? 0 : static_cast<std::size_t>(found - titles_.begin()) + 1;
}

void TipBox::SetMessageText(std::string text) {
  Message.SetText(std::move(text));
  ShowMessage.SetValue(false);
  title_index_ = Find();
  if (title_index_ > 0 && titles_[title_index_ - 1].dont_show && type_ != kLastingNotice &&
      type_ != kLastingQuestion) {
    if (type_ == kQuestion) answer_ = "YES";
    type_ = 0;
    return;
  }
  Prepare();
  const TipKind* kind = KindOf(type_);
  if (kind == nullptr) return;
  if (kind->modal) {
    host().ShowModal(*this);
  } else {
    host().Show(*this);
  }
}

void TipBox::Prepare() {
  const TipKind* known = KindOf(type_);
  const TipKind& kind = known == nullptr ? kTip : *known;
  SetCaption(std::string(kind.caption));
  ShowMessage.SetCaption(std::string(kind.memory_text));
  ShowMessage.SetVisible(kind.offers_memory);
  OKButton.SetVisible(kind.has_button && !kind.question);
  YesButton.SetVisible(kind.question);
  NoButton.SetVisible(kind.question);
  if (known != nullptr) {
    Image1[0].SetVisible(!kind.question);
    Image1[1].SetVisible(kind.question);
  }
  always_on_top_ = kind.on_top;
  view_ = {type_, caption(), Title.caption(), Message.text(), {}};
  for (Button* button : {&NoButton, &YesButton, &OKButton}) {
    if (button->visible()) view_.buttons.push_back(button);
  }
}

void TipBox::OnActivate() {
  // The focus is on the button No of a question, so Enter means No.
  if (!view_.buttons.empty()) MoveFocus(view_.buttons.front());
}

Button* TipBox::LeaveButton() { return view_.buttons.empty() ? nullptr : view_.buttons.front(); }

void TipBox::Answer(std::string answer) {
  answer_ = std::move(answer);
  if (title_index_ == 0) {
    titles_.push_back({Title.caption().substr(0, kKeyLength)});
    title_index_ = titles_.size();
  }
  titles_[title_index_ - 1].dont_show = ShowMessage.value();
  type_ = 0;
  host().Hide(*this);
}

TipBox& SharedTipBox(ScreenHost& host) { return Load<TipBox>(host); }

}  // namespace golf
