// Reports without a window: what is written for which words on the command line, and what is refused.
#include "shell/ReportRun.h"

#include "catalogue/SeasonFolder.h"
#include "report/SeasonReports.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

class ReportRunTest : public testing::Test {
 protected:
  ReportRunTest() {
    const std::string events = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=09:00,GFG,0-4,40,50\n"
                               "3=08:00,SPF,1-3\n4=00:00,ARRET,IN-,IN-\n";
    games.addGame("first.GAM", "2026-10-02", events);
    games.addGame("second.GAM", "2026-10-09", events);
    (void)program.write("CONFIG.INI", "[CONFIGURATION]\nLANGUE=0\n[TEAM]\n1=PAN,A ,Pandas,,,10,4,5,5,2,1,0\n"
                                      "[1]\n4=0,Ann Able,,,,,\n");
    request.source = games.folder().path();
  }
  int made(const std::string& kind, const std::string& format) {
    request.kind = kind;
    request.format = format;
    if (request.output.empty())
      request.output = reports.path("out." + format);
    return makeReport(request, program.path());
  }
  std::size_t written() const {
    return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(reports.path()), {}));
  }

  SeasonFolder games;
  TemporaryFolder program, reports;
  ReportRequest request;
};

TEST_F(ReportRunTest, EveryKindIsWrittenInEveryFormThatItHas) {
  std::vector<std::string> kinds = {"sheet",        "scorecard", "scorecard-lines", "league",
                                    "play-by-play", "roster",    "forms",           "blank-forms"};
  for (const SeasonReportName& report : seasonReports())
    kinds.emplace_back(report.word);
  for (const std::string& kind : kinds) {
    const bool isForm = kind.ends_with("forms");
    const bool isOfGame =
        kind == "sheet" || kind.starts_with("scorecard") || kind == "league" || kind == "play-by-play";
    request.source = isOfGame ? games.folder().path("first.GAM") : games.folder().path();
    request.team = "PAN-A";
    request.player = kind.starts_with("line") ? "4-5-10-12-15" : "4";
    for (const char* format : {"pdf", "xlsx", "csv", "html"}) {
      request.output.clear();
      const bool isMade = made(kind, format) == 0;
      EXPECT_EQ(isMade, !isForm || std::string_view(format) == "pdf") << kind << ' ' << format;
      EXPECT_EQ(std::filesystem::exists(request.output), isMade) << kind << ' ' << format;
      std::filesystem::remove(request.output);
    }
  }
}

TEST_F(ReportRunTest, EachGameOfAFolderGetsItsReport) {
  games.add("broken.GAM", "no game at all");
  request.output = reports.path();
  EXPECT_EQ(made("scorecard", "pdf"), 1) << "one of them is no game";
  EXPECT_EQ(written(), 2U) << "the others are reported all the same";
  request.output = reports.path("missing");
  EXPECT_EQ(made("scorecard", "pdf"), 2);
}

TEST_F(ReportRunTest, SeveralGamesGoToOneFile) {
  request.games = {games.folder().path("first.GAM"), games.folder().path("second.GAM")};
  EXPECT_EQ(made("sheet", "pdf"), 0);
  request.games.clear();
  games.add("broken.GAM", "no game at all");
  request.output = reports.path("folder.xlsx");
  EXPECT_EQ(made("sheet", "xlsx"), 1) << "one of them is no game";
  EXPECT_EQ(written(), 2U) << "the others are written all the same";
  request.output = reports.path("missing");
  EXPECT_EQ(made("sheet", "pdf"), 2) << "a folder that is missing is no file";
  request.games = {games.folder().path("broken.GAM"), games.folder().path("gone.GAM")};
  request.output = reports.path("none.pdf");
  EXPECT_EQ(made("sheet", "pdf"), 1);
  EXPECT_EQ(made("sheet", "html"), 2);
  EXPECT_EQ(written(), 2U);
}

TEST_F(ReportRunTest, WhatCannotBeMadeIsRefusedAndNothingIsWritten) {
  EXPECT_EQ(made("player", "pdf"), 2) << "whose performance?";
  EXPECT_EQ(made("scout", "pdf"), 2) << "of which team?";
  request.player = "99";
  EXPECT_EQ(made("player", "pdf"), 2) << "nobody wears it";
  games.addGame("third.GAM", "2026-10-16", "1=09:00,SPF,0-4\n", "EQUIPE0ABB=FOX\n");
  request.player = "4";
  EXPECT_EQ(made("player", "pdf"), 2) << "two teams have a 4";
  request.team = "PAN-A";
  EXPECT_EQ(made("player", "pdf"), 0);
  std::filesystem::remove(request.output);
  EXPECT_EQ(made("of-nothing", "pdf"), 2);
  EXPECT_EQ(made("leaders", "doc"), 2);
  request.reader = "FOX-B";
  EXPECT_EQ(made("scout", "pdf"), 2) << "for whose coach?";
  request.team = "FOX-B";
  EXPECT_EQ(made("leaders", "pdf"), 2);
  request.team.clear();
  request.source = program.path();
  EXPECT_EQ(made("leaders", "pdf"), 1) << "a folder without games";
  request.source = program.path("CONFIG.INI");
  EXPECT_EQ(made("scorecard", "pdf"), 1);
  EXPECT_EQ(written(), 0U);
}

} // namespace
} // namespace hooptab
