#include <gmock/gmock.h>

#include "scenario/login_scripts.h"
#include "thoroughness.h"

namespace {

// The bytes of a session, however they are cut, say the same.
class LoginReplay : public testing::TestWithParam<Script> {
 protected:
  void ExpectSame(const Played& played, const std::string& how) {
    SCOPED_TRACE(how);
    EXPECT_EQ(played.answers, whole.answers);
    EXPECT_EQ(played.rawView, whole.rawView);
    EXPECT_EQ(played.ending.loginText, whole.ending.loginText);
    EXPECT_EQ(played.ending.flags, whole.ending.flags);
    EXPECT_EQ(played.ending.title, whole.ending.title);
    EXPECT_EQ(played.ending.txtNode, whole.ending.txtNode);
    EXPECT_EQ(played.ending.asked, whole.ending.asked);
  }

  const Played whole = Play(GetParam());
};

TEST_P(LoginReplay, CutAtAnyByteGivesTheSameResult) {
  const std::size_t bytes = TextOf(GetParam()).size();
  for (std::size_t at = 1; at < bytes && !HasFailure(); at += kOneOf)
    ExpectSame(Play(CutAt(GetParam(), at)), "cut at " + std::to_string(at));
}

// Long enough for whatever else may be waiting to go on.
TEST_P(LoginReplay, RestOfASecondAtAnyByteGivesTheSameResult) {
  const std::size_t bytes = TextOf(GetParam()).size();
  for (std::size_t at = 1; at < bytes && !HasFailure(); at += kOneOf)
    ExpectSame(Play(CutAt(GetParam(), at), platform::Milliseconds{1000}),
               "rest at " + std::to_string(at));
}

TEST_P(LoginReplay, SingleBytesGiveTheSameResult) {
  ExpectSame(Play(InSingleBytes(GetParam())), "single bytes");
}

INSTANTIATE_TEST_SUITE_P(Dialects, LoginReplay, testing::ValuesIn(LoginScripts()),
                         [](const auto& each) { return each.param.name; });

}  // namespace
