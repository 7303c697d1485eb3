#pragma once

#include <array>
#include <string>
#include <vector>

#include "forms/screen_host.h"

namespace golf {

// Is a message box that the operator can switch off for each title. It is not shown again for that
// title until the process ends. A caller sets MessageType, MessageTitle and MessageText in this
// order; SetMessageText shows the message. SharedTipBox returns the only TipBox of the process,
// which is hidden but never unloaded.
class TipBox : public Screen {
 public:
  static constexpr const char* kName = "TipBox";

  // These are the types of messages. Any other type sets the text and shows nothing.
  static constexpr int kModelessNoButton = -1;  // the caller hides it
  static constexpr int kModelessNotice = 0;
  static constexpr int kNotice = 1;
  static constexpr int kLastingNotice = 2;  // always shown
  static constexpr int kQuestion = 10;
  static constexpr int kLastingQuestion = 11;

  static constexpr int kModelessWidth = 4335;  // the width for kModelessNoButton, in 1/1440 inch

  explicit TipBox(const ScreenContext& context);

  void SetMessageType(int type) {
    type_ = type;
    golfer_.clear();
  }
  void SetMessageTitle(std::string title) { Title.SetCaption(std::move(title)); }
  void SetMessageText(std::string text);
  // Sets the golfer whom the message concerns, after the type. The box shows him in a line of its
  // own. Scripts do not see it.
  void SetGolfer(std::string golfer) { golfer_ = std::move(golfer); }
  const std::string& golfer() const { return golfer_; }
  const std::string& MessageText() const { return Message.text(); }
  // Returns the last answer to a message: "OK", "YES" or "NO".
  const std::string& ResultReturned() const { return answer_; }

  Button* LeaveButton() override;
  const TipView* Tip() const override { return &view_; }
  void OnActivate() override;

  bool always_on_top() const { return always_on_top_; }
  bool is_question() const { return Image1[1].visible(); }

  Label Title{"Title"};
  TextBox Message{"Message"};
  CheckBox ShowMessage{"ShowMessage"};
  Button OKButton{"OKButton", "&OK"};
  Button YesButton{"YesButton", "&Yes"};
  Button NoButton{"NoButton", "&No"};
  // The box shows one of two pictures: Image1[0] for a notice, Image1[1] for a question.
  Frame Picture1{"Picture1"};
  std::array<Label, 2> Image1{Label("Image1"), Label("Image1")};

 private:
  struct Remembered {
    std::string title;  // the first 30 characters
    bool dont_show = false;
  };

  std::size_t Find() const;
  void Prepare();
  void Answer(std::string answer);

  int type_ = 0;
  std::vector<Remembered> titles_;
  std::size_t title_index_ = 0;  // the entry of the current message, from 1; 0 if it has none yet
  std::string answer_;
  std::string golfer_;
  bool always_on_top_ = false;
  TipView view_;
};

// Returns the tip box of this process.
TipBox& SharedTipBox(ScreenHost& host);

}  // namespace golf
