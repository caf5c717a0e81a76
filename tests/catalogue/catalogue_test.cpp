// What a scan lists, what it leaves out and why, and how criteria narrow it.
#include "catalogue/SeasonFolder.h"
#include "season/GameColumns.h"
#include "storage/CalendarDay.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace hooptab;
namespace fs = std::filesystem;

namespace {

const std::string kStart = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n";

std::vector<std::string> namesOf(const GameCatalogue& catalogue, const std::vector<std::size_t>& places) {
  std::vector<std::string> names;
  for (const std::size_t place : places)
    names.push_back(fs::path(catalogue.games()[place].path).filename());
  return names;
}
std::vector<std::string> allNames(const GameCatalogue& catalogue) {
  return namesOf(catalogue, catalogue.select({}));
}
using Names = std::vector<std::string>;

TEST(CalendarDay, IsADayOfTheCalendarOrNothing) {
  EXPECT_EQ(calendarDay("1970-01-01"), 0);
  EXPECT_EQ(calendarDay("2024-02-29"), 19782);
  for (const char* text : {"", "2023-02-29", "2024-13-01", "2024-00-10", "2024-1-1", "01/02/2024",
                           "2024-04-31", "2024-04-10 ", "yyyy-mm-dd", "-024-04-10"})
    EXPECT_EQ(calendarDay(text), std::nullopt) << text;
}

TEST(Catalogue, ListsFinishedGamesInOrderOfDateThenName) {
  SeasonFolder season;
  season.addGame("b.GAM", "2026-01-02", kStart);
  season.addGame("a.gam", "2026-01-02", kStart + "2=09:00,GFG,0-4,1,1\n");
  season.addGame("c.Gam", "2025-12-31", kStart);
  season.addGame("never.GAM", "soon", kStart);
  season.addGame("a.GAM.old", "2026-01-01", kStart); // another kind of file
  const GameCatalogue& catalogue = season.scan();
  EXPECT_EQ(allNames(catalogue), (Names{"c.Gam", "a.gam", "b.GAM", "never.GAM"}));
  EXPECT_TRUE(catalogue.skipped().empty());
  ASSERT_EQ(catalogue.teams().size(), 2U);
  EXPECT_EQ(catalogue.teams()[0].key, "PAN-A");
  EXPECT_EQ(catalogue.teams()[1].name, "OLY-A") << "without a full name the key stands for it";
}

TEST(Catalogue, SaysOfEachFileThatIsLeftOutWhy) {
  SeasonFolder season;
  season.addGame("good.GAM", "2026-01-02", kStart);
  season.add("live.GAM", textOfGame("[PERIODE1]\n" + kStart)); // no TERMINE: being recorded
  season.addGame("left.GAM", "2026-01-02", kStart, "TERMINE=0\n");
  season.add("other.GAM", "[DETAILS]\nVERSION=2.00\nTERMINE=1\n");
  season.add("empty.GAM", "");
  season.add("photo.jpg", ""); // passed by unread
  season.add("good.GAM.lock", "");
  season.add("noise.GAM", std::string("\0\xFF\x1A[DET", 7));
  fs::create_directory(season.folder().path("folder.GAM"));
  fs::create_symlink("nowhere", season.folder().path("dangling.GAM"));
  const std::string closed = season.folder().write("closed.GAM", "[DETAILS]\nVERSION=2.0\nTERMINE=1\n");
  fs::resize_file(season.folder().write("huge.GAM", "x"), 17 * 1024 * 1024);
  fs::permissions(closed, fs::perms::none);
  const GameCatalogue& catalogue = season.scan();
  EXPECT_EQ(season.outcome(), ScanOutcome::Done);
  std::map<std::string, SkipReason> reasons;
  for (const SkippedFile& file : catalogue.skipped())
    reasons[fs::path(file.path).filename()] = file.reason;
  std::map<std::string, SkipReason> expected = {
      {"live.GAM", SkipReason::NotFinished},   {"left.GAM", SkipReason::NotFinished},
      {"other.GAM", SkipReason::OtherVersion}, {"empty.GAM", SkipReason::OtherVersion},
      {"noise.GAM", SkipReason::OtherVersion}, {"huge.GAM", SkipReason::TooLarge},
  };
  if (::geteuid() != 0) // nothing is closed to root
    expected["closed.GAM"] = SkipReason::Unreadable;
  else
    reasons.erase("closed.GAM");
  EXPECT_EQ(reasons, expected);
  ASSERT_FALSE(catalogue.games().empty());
  EXPECT_EQ(catalogue.games()[0].date, "2026-01-02");
}

TEST(Catalogue, SubfoldersAreEnteredOnRequestAndOnceHoweverLinksLead) {
  SeasonFolder season;
  fs::create_directories(season.folder().path("sub/deeper"));
  fs::create_directory_symlink("..", season.folder().path("sub/up"));
  fs::create_directory_symlink(season.folder().path(), season.folder().path("sub/deeper/circle"));
  fs::create_directory_symlink("sub", season.folder().path("again"));
  season.addGame("top.GAM", "2026-01-01", kStart);
  season.addGame("sub/deeper/low.GAM", "2026-01-02", kStart + "2=09:00,SA,0-4\n");
  EXPECT_EQ(allNames(season.scan()), (Names{"top.GAM"}));
  EXPECT_EQ(allNames(season.scan(2, true)), (Names{"top.GAM", "low.GAM"}));
}

TEST(Catalogue, FoldersThatAreNoneLeaveWhatWasThere) {
  TemporaryFolder folder;
  SeasonFolder season;
  season.addGame("one.GAM", "2026-01-01", kStart);
  FileSystem files;
  GameCatalogue catalogue(files);
  const TaskWatch watch;
  ASSERT_EQ(catalogue.scan({season.folder().path()}, watch), ScanOutcome::Done);
  EXPECT_EQ(watch.progress(), (TaskWatch::Progress{1, 1})) << "read and found";
  EXPECT_EQ(catalogue.scan({folder.path("missing")}, watch), ScanOutcome::FolderMissing);
  EXPECT_EQ(catalogue.scan({season.folder().path("one.GAM")}, watch), ScanOutcome::FolderMissing);
  watch.cancel();
  EXPECT_EQ(catalogue.scan({folder.path()}, watch), ScanOutcome::Cancelled);
  EXPECT_EQ(catalogue.games().size(), 1U);
  EXPECT_EQ(catalogue.scan({folder.path()}), ScanOutcome::Done);
  EXPECT_TRUE(catalogue.games().empty());
}

TEST(Catalogue, TwoFilesOfOneGameAreFoundAndCountedOnceOnRequest) {
  const std::string events = kStart + "2=09:00,GFG,0-4,1,1\n3=08:00,SPF,1-7\n";
  SeasonFolder season;
  season.addGame("a.GAM", "2026-01-01", events);
  season.addGame("b.GAM", "2026-01-01", events, "ENDROIT=Elsewhere\n"); // a detail makes no other game
  season.addGame("day.GAM", "2026-01-02", events);
  season.addGame("event.GAM", "2026-01-01", kStart + "2=09:00,GFG,0-4,1,1\n3=08:00,ESPF,1-7\n");
  season.addGame("deleted.GAM", "2026-01-01", kStart + "2=09:00,GFG,0-4,1,1\n3=E08:00,SPF,1-7\n");
  season.addGame("x.GAM", "2026-01-03", "");
  season.addGame("y.GAM", "2026-01-03", ""); // nothing tells them apart, nor that they are one
  const GameCatalogue& catalogue = season.scan();
  EXPECT_EQ(catalogue.copies(), 1U);
  ASSERT_TRUE(catalogue.games()[1].copyOf.has_value());
  EXPECT_EQ(catalogue.games()[*catalogue.games()[1].copyOf].path, season.folder().path("a.GAM"));
  EXPECT_EQ(catalogue.select({}).size(), 7U);
  GameCriteria once;
  once.countsCopiesOnce = true;
  EXPECT_EQ(namesOf(catalogue, catalogue.select(once)),
            (Names{"a.GAM", "deleted.GAM", "event.GAM", "day.GAM", "x.GAM", "y.GAM"}));
}

TEST(Catalogue, GamesThatCannotBeRightAreToldAndLeftOutOnRequest) {
  SeasonFolder season;
  season.addGame("cut.GAM", "2026-01-01", kStart + "2=09:00,GFG,0-4,30,100\n", "EVENUM=3\n");
  season.addGame("whole.GAM", "2026-01-02", kStart + "2=09:00,GFG,0-4,30,100\n", "EVENUM=3\nNBREPERIODE=1\n");
  const GameCatalogue& catalogue = season.scan();
  EXPECT_EQ(catalogue.wrongGames(), 1U);
  EXPECT_EQ(catalogue.whyWrong(catalogue.games()[0], Texts()), "The game is finished after 1 of 4 periods");
  EXPECT_EQ(catalogue.whyWrong(catalogue.games()[1], Texts()), "");
  GameCriteria right;
  right.leavesOutWrong = true;
  EXPECT_EQ(namesOf(catalogue, catalogue.select(right)), Names{"whole.GAM"});
}

TEST(Catalogue, AGameThatIsCutIsTheSameGame) {
  std::string events = kStart;
  for (int i = 3; i < 40; ++i)
    events += std::to_string(i) + "=09:00,GFT,0-" + (i % 2 == 0 ? "4" : "5") + "\n";
  SeasonFolder season;
  season.addGame("a-cut.GAM", "2026-01-01", events.substr(0, events.find("30=")), "SUPP0=U1-Deflections\n");
  season.addGame("whole.GAM", "2026-01-01", events, "SUPP0=U1-Charges\n");
  const GameCatalogue& catalogue = season.scan();
  ASSERT_EQ(catalogue.games().size(), 2U);
  EXPECT_EQ(catalogue.games()[0].copyOf, 1U) << "the fullest stands for both";
  EXPECT_FALSE(catalogue.games()[1].copyOf.has_value());
  GameCriteria once;
  once.countsCopiesOnce = true;
  EXPECT_EQ(namesOf(catalogue, catalogue.select(once)), (Names{"whole.GAM"}));
  const SeasonStatistics statistics(catalogue, catalogue.select({}), {});
  EXPECT_EQ(statistics.labels()[0], "Deflections / Charges");
  EXPECT_EQ(statistics.lines()[0].players, "4 Able, 5 Baker, 10 Carter, 12 Dunn, 15 Ellis");
}

TEST(Catalogue, EachCriterionNarrowsAndWhatIsEmptyAcceptsAll) {
  SeasonFolder season;
  season.addGame("away.GAM", "2026-01-01", kStart, "TYPE=2\n");
  season.addGame("notime.GAM", "2026-01-05", kStart, "TYPE=3\nDUREE=0\n");
  season.addGame("manual.GAM", "2026-01-10", kStart, "TYPE=0\nINPUTTYPE=1\n");
  season.addGame("undated.GAM", "2026-02-30", kStart, "TYPE=2\n");
  season.addGame("home.GAM", "2026-01-03", kStart, "TYPE=2\nEQUIPE0ABB=OLY\nEQUIPE1ABB=PAN\n");
  const GameCatalogue& catalogue = season.scan();
  const auto chosen = [&](auto set) {
    GameCriteria criteria;
    set(criteria);
    return namesOf(catalogue, catalogue.select(criteria));
  };
  using Where = GameCriteria::Where;
  EXPECT_EQ(chosen([](GameCriteria&) {}).size(), 5U);
  EXPECT_EQ(chosen([](GameCriteria& c) { c.team = "PAN-A"; }).size(), 5U);
  EXPECT_EQ(chosen([](GameCriteria& c) { c.team = "PAN"; }), Names());
  EXPECT_EQ(chosen([](GameCriteria& c) { c.team = "PAN-A", c.where = Where::Home; }), (Names{"home.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.team = "OLY-A", c.where = Where::Away; }), (Names{"home.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.where = Where::Home; }).size(), 5U) << "whose home?";
  EXPECT_EQ(chosen([](GameCriteria& c) { c.type = 3; }), (Names{"notime.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.input = InputKind::Manual; }), (Names{"manual.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.input = InputKind::LiveWithoutTime; }), (Names{"notime.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.fromDay = calendarDay("2026-01-03"); }),
            (Names{"home.GAM", "notime.GAM", "manual.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.toDay = calendarDay("2026-01-03"); }),
            (Names{"away.GAM", "home.GAM"}));
  EXPECT_EQ(chosen([](GameCriteria& c) { c.type = 2, c.fromDay = c.toDay = calendarDay("2026-01-01"); }),
            (Names{"away.GAM"}));
}

TEST(GameList, ShowsTheGameAndItsResultForATeamOrForAll) {
  SeasonFolder season;
  season.addGame("g.GAM", "2026-01-01",
                 kStart + "2=10:00,DEPART\n3=09:00,GFG,0-4,1,1\n4=08:00,GFT,1-7\n5=07:00,GF3,1-7,1,1\n"
                          "6=06:30,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n",
                 "TYPE=3\nENDROIT=Old Hall\nEQUIPE0ID=4\nEQUIPE1ID=7\nEQUIPE0NOM=Panthers\n");
  season.addGame("tie.GAM", "2026-01-02", kStart, "INPUTTYPE=1\n");
  season.addGame("odd.GAM", "2026-01-03", kStart, "INPUTTYPE=5\nTYPE=77\n");
  const GameCatalogue& catalogue = season.scan();
  const Texts texts;
  const auto row = [&](std::size_t game, std::optional<SeasonId> team) {
    Names cells;
    for (const GameColumn& column : gameColumns())
      cells.push_back(gameCell(catalogue, catalogue.games()[game], column.index, team, texts));
    return cells;
  };
  EXPECT_EQ(row(0, std::nullopt),
            (Names{"2026-01-01", "Play-off", "OLY-A", "Panthers", "2", "OLY-A", "4", "Live", "Old Hall",
                   season.folder().path("g.GAM"), "4-7", "0", "120", "0", "60", "1", "30"}));
  EXPECT_EQ(row(0, catalogue.teamOf("PAN-A"))[2], "L 2-4");
  EXPECT_EQ(row(0, catalogue.teamOf("OLY-A"))[2], "W 4-2");
  EXPECT_EQ(row(1, std::nullopt)[2], "T");
  EXPECT_EQ(row(1, catalogue.teamOf("OLY-A"))[2], "T 0-0");
  EXPECT_EQ(row(1, std::nullopt)[7], "Manual");
  EXPECT_EQ(row(2, std::nullopt)[7], "");
  EXPECT_EQ(row(2, std::nullopt)[1], "Other");
}

} // namespace
