#include "shell/Arguments.h"

#include <gtest/gtest.h>

namespace hooptab {
namespace {

Arguments parse(const std::vector<std::string>& words) {
  return parseArguments(words, "/home/coach/games");
}

TEST(Arguments, WithoutWordsAskForNothing) {
  const Arguments none = parse({});
  EXPECT_EQ(none.folder, std::nullopt);
  EXPECT_EQ(none.colourScheme, std::nullopt);
  EXPECT_TRUE(none.games.empty());
  EXPECT_FALSE(none.asksForHelp);
  EXPECT_EQ(none.error, "");
}

TEST(Arguments, OptionsAndGamesComeInAnyOrder) {
  const Arguments all = parse({"A B.GAM", "--folder", "../program", "--dark", "/tmp/c.gam", "--light"});
  EXPECT_EQ(all.error, "");
  EXPECT_EQ(all.folder, "/home/coach/program");
  EXPECT_EQ(all.colourScheme, ColourScheme::Light) << "the last one counts";
  EXPECT_EQ(all.games, (std::vector<std::string>{"/home/coach/games/A B.GAM", "/tmp/c.gam"}));
  EXPECT_EQ(parse({"--folder=/x/./y"}).folder, "/x/y");
  EXPECT_TRUE(parse({"--version"}).asksForVersion);
  EXPECT_TRUE(parse({"--help"}).asksForHelp);
  EXPECT_TRUE(parse({"--rehearsal"}).isRehearsal);
}

TEST(Arguments, BehindTwoDashesEveryWordIsAGame) {
  const Arguments games = parse({"--", "--dark", "-x.GAM"});
  EXPECT_EQ(games.colourScheme, std::nullopt);
  EXPECT_EQ(games.games, (std::vector<std::string>{"/home/coach/games/--dark", "/home/coach/games/-x.GAM"}));
}

TEST(Arguments, AReportIsTakenWithItsOptions) {
  const Arguments all =
      parse({"--report", "scorecard", "-o", "x/box.pdf", "--lang=fr", "--paper", "letter", "A.GAM"});
  EXPECT_EQ(all.error, "");
  ASSERT_TRUE(all.report);
  EXPECT_EQ(all.report->kind, "scorecard");
  EXPECT_EQ(all.report->format, "pdf") << "the ending of the file";
  EXPECT_EQ(all.report->output, "/home/coach/games/x/box.pdf");
  EXPECT_EQ(all.report->source, "/home/coach/games/A.GAM");
  EXPECT_EQ(all.report->language, Language::French);
  EXPECT_TRUE(all.report->isLetter);
  EXPECT_EQ(parse({"--report=roster", "--team=LYNX-AAA", "-o", "a", "--format", "csv"}).report->format,
            "csv");
  EXPECT_FALSE(parse({"A.GAM"}).report);
  for (const std::vector<std::string>& wrong :
       std::vector<std::vector<std::string>>{{"--report", "scorecard"},
                                             {"-o", "x.pdf"},
                                             {"--report"},
                                             {"--report", "a", "-o", "b", "1.GAM", "2.GAM"},
                                             {"--report", "a", "-o", "b", "--lang", "de"},
                                             {"--report", "a", "-o", "b", "--paper=a5"}})
    EXPECT_NE(parse(wrong).error, "") << wrong.size();
}

TEST(Arguments, WrongUseIsNamed) {
  for (const char* unknown : {"--drak", "-d", "--folders", "--dark=1"})
    EXPECT_EQ(parse({unknown}).error, std::string("unknown option ") + unknown);
  EXPECT_NE(parse({"--folder"}).error, "");
  EXPECT_NE(parse({"--folder="}).error, "");
  EXPECT_NE(parse({"--folder", ""}).error, "");
}

} // namespace
} // namespace hooptab
