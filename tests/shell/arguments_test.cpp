#include "shell/Arguments.h"

#include "resources/tables.h"

#include <gtest/gtest.h>
#include <map>

namespace hooptab {
namespace {

Arguments parse(const std::vector<std::string>& words) {
  return parseArguments(words, "/home/coach/games");
}

TEST(Arguments, WithoutWordsAskForNothing) {
  const Arguments none = parse({});
  EXPECT_FALSE(none.folder || none.colourScheme || none.asksForHelp || none.wrong);
  EXPECT_TRUE(none.games.empty());
}

TEST(Arguments, OptionsAndGamesComeInAnyOrderAndGamesAloneBehindTwoDashes) {
  const Arguments all = parse({"A B.GAM", "--folder", "../program", "--dark", "/tmp/c.gam", "--light"});
  EXPECT_FALSE(all.wrong);
  EXPECT_EQ(all.folder, "/home/coach/program");
  EXPECT_EQ(all.colourScheme, ColourScheme::Light) << "the last one counts";
  EXPECT_EQ(all.games, (std::vector<std::string>{"/home/coach/games/A B.GAM", "/tmp/c.gam"}));
  EXPECT_EQ(parse({"--folder=/x/./y"}).folder, "/x/y");
  EXPECT_TRUE(parse({"--version"}).asksForVersion);
  EXPECT_TRUE(parse({"--help"}).asksForHelp);
  EXPECT_TRUE(parse({"--rehearsal"}).isRehearsal);
  EXPECT_EQ(parse({"--lang", "fr"}).language, Language::French);
  EXPECT_FALSE(parse({"--lang", "fr"}).wrong || parse({"--lang", "fr"}).report);
  const Arguments games = parse({"--", "--dark", "-x.GAM"});
  EXPECT_EQ(games.colourScheme, std::nullopt);
  EXPECT_EQ(games.games, (std::vector<std::string>{"/home/coach/games/--dark", "/home/coach/games/-x.GAM"}));
}

TEST(Arguments, AReportIsTakenWithItsOptionsAndNothingByHalves) {
  const Arguments all =
      parse({"--report", "scorecard", "-o", "x/box.pdf", "--lang=fr", "--paper", "letter", "A.GAM"});
  EXPECT_FALSE(all.wrong);
  ASSERT_TRUE(all.report);
  EXPECT_EQ(all.report->kind, "scorecard");
  EXPECT_EQ(all.report->format, "pdf") << "the ending of the file";
  EXPECT_EQ(all.report->output, "/home/coach/games/x/box.pdf");
  EXPECT_EQ(all.report->source, "/home/coach/games/A.GAM");
  EXPECT_EQ(all.report->language, Language::French);
  EXPECT_TRUE(all.report->isLetter);
  EXPECT_EQ(parse({"--report=roster", "--team=LYNX-AAA", "-o", "a", "--format", "csv"}).report->format,
            "csv");
  EXPECT_EQ(parse({"--report", "sheet", "-o", "b.pdf", "1.GAM", "/2.GAM"}).report->games,
            (std::vector<std::string>{"/home/coach/games/1.GAM", "/2.GAM"}));
  EXPECT_FALSE(parse({"A.GAM"}).report);
  using Words = std::vector<std::string>;
  for (const Words& wrong : std::vector<Words>{{"--report", "scorecard"},
                                               {"-o", "x.pdf"},
                                               {"--report"},
                                               {"--report", "a", "-o", "b", "1.GAM", "2.GAM"},
                                               {"--report", "a", "-o", "b", "--lang", "de"},
                                               {"--report", "a", "-o", "b", "--paper=a5"},
                                               {"--folder"},
                                               {"--folder="},
                                               {"--folder", ""}})
    EXPECT_TRUE(parse(wrong).wrong) << testing::PrintToString(wrong);
}

TEST(Arguments, WrongUseIsNamedInTheLanguageThatIsAskedFor) {
  Texts texts;
  for (const char* unknown : {"--drak", "-d", "--folders", "--dark=1"})
    EXPECT_EQ(inWords(parse({unknown}).wrong, texts), std::string("there is no option ") + unknown);
  EXPECT_EQ(inWords(parse({"--lang", "YYY"}).wrong, texts), "--lang cannot be YYY");
  texts.setLanguage(languageOf({"--bad", "--lang=fr"}, Language::English));
  EXPECT_EQ(inWords(parse({"--bad", "--lang=fr"}).wrong, texts), "il n'y a pas d'option --bad");
  EXPECT_EQ(languageOf({"--lang", "xx", "--", "--lang", "fr"}, Language::English), Language::English);
}

// Every word that is typed stands on both pages, and as often.
TEST(UsagePages, NameTheSameOptionsInBothLanguages) {
  for (const UsagePage& page : {programUsage(), commandLineUsage()}) {
    const auto options = [](std::string_view text) {
      std::map<std::string, int> found;
      for (std::size_t at = text.find("--"); at != std::string_view::npos; at = text.find("--", at + 2))
        ++found[std::string(text.substr(at, text.find_first_not_of("abcdefghijklmnopqrstuvwxyz-", at) - at))];
      return found;
    };
    EXPECT_EQ(options(page.english), options(page.french));
    EXPECT_GT(options(page.english).size(), 8U);
  }
}

} // namespace
} // namespace hooptab
