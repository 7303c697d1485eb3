#include "shell/tip_box.h"

#include <gtest/gtest.h>

#include "support/test_host.h"

namespace golf {
namespace {

constexpr bool kTicked = true;
constexpr bool kNotTicked = false;

// A message, what the operator does with it, and what comes of it.
struct Message {
  int type;
  std::string title;
  bool tick;
  std::string answer;
  bool shown;
  std::string result;
};

class TipBoxTest : public testing::Test {
 protected:
  void Show(const std::vector<Message>& messages) {
    for (const Message& message : messages) {
      install.events().clear();
      TipBox& tip = SharedTipBox(*install.host);
      install.listener.on_tip = [&] { tip.ShowMessage.Choose(message.tick); };
      if (message.shown) install.host->QueueAnswer(message.title, message.answer);
      tip.SetMessageType(message.type);
      tip.SetMessageTitle(message.title);
      tip.SetMessageText("text");
      EXPECT_EQ(!install.events().empty(), message.shown) << message.title;
      EXPECT_EQ(tip.ResultReturned(), message.result) << message.title;
      EXPECT_FALSE(install.host->IsShown(tip));
    }
  }

  TestInstall install;
};

TEST_F(TipBoxTest, RemembersByTitle) {
  const std::string long_title = "A title of which thirty charac";
  Show({
      {10, "Q", kTicked, "No", true, "NO"},
      {10, "q", kNotTicked, "No", false, "YES"},  // Yes is assumed, whatever was answered
      {1, "N", kTicked, "OK", true, "OK"},
      {11, "Other", kNotTicked, "No", true, "NO"},
      {1, "N", kNotTicked, "OK", false, "NO"},  // the last answer stays
      {2, "N", kNotTicked, "OK", true, "OK"},   // shown all the same, and the tick is gone
      {1, "N", kNotTicked, "OK", true, "OK"},
      {11, "Q", kNotTicked, "Yes", true, "YES"},
      {10, "Q", kNotTicked, "No", true, "NO"},
      {1, long_title + "ters count", kTicked, "OK", true, "OK"},
      {1, UpperCase(long_title) + " and no more", kNotTicked, "OK", false, "OK"},
  });
}

TEST_F(TipBoxTest, EnterAnswersAQuestionWithNo) {
  TipBox& tip = SharedTipBox(*install.host);
  install.listener.on_tip = [&] {
    EXPECT_EQ(tip.focus(), &tip.NoButton);
    EXPECT_FALSE(tip.OKButton.visible());
    EXPECT_TRUE(tip.is_question());
    EXPECT_TRUE(tip.always_on_top());
  };
  tip.SetMessageType(TipBox::kQuestion);
  tip.SetMessageTitle("Cancel Transfer?");
  tip.SetMessageText("Sure?");
  EXPECT_EQ(install.events(), std::vector<std::string>({"tip 10 [Cancel Transfer?] Sure? -> NO"}));
  EXPECT_EQ(tip.ResultReturned(), "NO");
}

TEST_F(TipBoxTest, ModelessMessagesReturnAtOnce) {
  TipBox& tip = SharedTipBox(*install.host);
  tip.SetMessageType(TipBox::kModelessNotice);
  tip.SetMessageTitle("Busy");
  tip.SetMessageText("Working");
  EXPECT_TRUE(install.host->IsShown(tip));
  EXPECT_FALSE(tip.always_on_top());
  tip.OKButton.Click();
  EXPECT_FALSE(install.host->IsShown(tip));
  tip.SetMessageType(7);  // a type without a meaning
  tip.SetMessageText("Unseen");
  EXPECT_FALSE(install.host->IsShown(tip));
  EXPECT_EQ(tip.MessageText(), "Unseen");
  EXPECT_EQ(tip.caption(), "Tip");
}

}  // namespace
}  // namespace golf
