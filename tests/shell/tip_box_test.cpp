#include "screens/tip_box.h"

#include "support/test_host.h"

namespace golf {
namespace {

class TipBoxTest : public testing::Test {
 protected:
  void ShowMessage(int type, const std::string& title, const std::string& text) {
    tip.SetMessageType(type);
    tip.SetMessageTitle(title);
    tip.SetMessageText(text);
  }

  TestInstall install;
  TipBox& tip = SharedTipBox(*install.host);
};

TEST_F(TipBoxTest, RemembersByTitle) {
  constexpr bool kTicked = true, kNotTicked = false;
  const std::string long_title = "A title of which thirty charac";
  // Each entry is a message, the action of the operator, and the expected result.
  const struct {
    int type;
    std::string title;
    bool tick;
    std::string answer;
    bool shown;
    std::string result;
  } kMessages[] = {
      {10, "Q", kTicked, "No", true, "NO"},
      {10, "q", kNotTicked, "No", false, "YES"},  // Yes is assumed, also after another answer
      {1, "N", kTicked, "OK", true, "OK"},
      {11, "Other", kNotTicked, "No", true, "NO"},
      {1, "N", kNotTicked, "OK", false, "NO"},  // the last answer is kept
      {2, "N", kNotTicked, "OK", true, "OK"},   // always shown, and the tick is cleared
      {1, "N", kNotTicked, "OK", true, "OK"},
      {11, "Q", kNotTicked, "Yes", true, "YES"},
      {10, "Q", kNotTicked, "No", true, "NO"},
      {1, long_title + "ters count", kTicked, "OK", true, "OK"},
      {1, UpperCase(long_title) + " and no more", kNotTicked, "OK", false, "OK"},
  };
  for (const auto& message : kMessages) {
    install.events().clear();
    install.listener.on_event = [&] { tip.ShowMessage.Choose(message.tick); };
    if (message.shown) install.host->QueueAnswer(message.title, message.answer);
    ShowMessage(message.type, message.title, "text");
    EXPECT_EQ(!install.events().empty(), message.shown) << message.title;
    EXPECT_EQ(tip.ResultReturned(), message.result) << message.title;
    EXPECT_FALSE(install.host->IsShown(tip));
  }
}

TEST_F(TipBoxTest, EnterAnswersAQuestionWithNo) {
  install.listener.on_event = [&] {
    EXPECT_EQ(tip.focus(), &tip.NoButton);
    EXPECT_FALSE(tip.OKButton.visible());
    EXPECT_TRUE(tip.is_question());
    EXPECT_TRUE(tip.always_on_top());
  };
  ShowMessage(TipBox::kQuestion, "Cancel Transfer?", "Sure?");
  EXPECT_EQ(install.events(), std::vector<std::string>({"tip 10 [Cancel Transfer?] Sure? -> NO"}));
  EXPECT_EQ(tip.ResultReturned(), "NO");
}

TEST_F(TipBoxTest, ModelessMessagesReturnAtOnce) {
  ShowMessage(TipBox::kModelessNotice, "Busy", "Working");
  EXPECT_TRUE(install.host->IsShown(tip));
  EXPECT_FALSE(tip.always_on_top());
  tip.OKButton.Click();
  EXPECT_FALSE(install.host->IsShown(tip));
  ShowMessage(7, "Tip", "Unseen");  // an unknown type
  EXPECT_FALSE(install.host->IsShown(tip));
  EXPECT_EQ(tip.MessageText(), "Unseen");
  EXPECT_EQ(tip.caption(), "Tip");
}

}  // namespace
}  // namespace golf
