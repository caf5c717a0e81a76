#include "shell/Refusals.h"

#include "settings/Texts.h"

#include <gtest/gtest.h>
#include <set>

namespace hooptab {
namespace {

TEST(Refusals, EveryProblemHasATextAndAFileThatWasChosenIsNamed) {
  using enum GameFileProblem;
  const Texts texts;
  for (const GameFileProblem problem :
       {Absent, Unreadable, TooLarge, InvalidFormat, WriteFailed, UnknownEvent})
    EXPECT_FALSE(texts.text(refusalText(problem)).empty());
  for (const GameFileProblem problem : {Absent, Unreadable, TooLarge, WriteFailed})
    for (const Language language : {Language::English, Language::French})
      EXPECT_NE(texts.text(refusalText(problem), language).find("XXX"), std::string_view::npos);
  const std::set<Text> different = {refusalText(Unreadable), refusalText(TooLarge),
                                    refusalText(InvalidFormat), refusalText(WriteFailed)};
  EXPECT_EQ(different.size(), 4U);
  EXPECT_EQ(refusalText(InvalidFormat), Text::NotAGame);
  EXPECT_EQ(refusalText(None), Text::None);
}

} // namespace
} // namespace hooptab
