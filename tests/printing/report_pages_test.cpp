// Pages, files and the preview, on games as they are and on one whose every text is as long as it can be.
#include "printing/Printers.h"
#include "printing/ReportFiles.h"
#include "printing/ReportLayout.h"
#include "printing/ReportOutput.h"
#include "printing/ReportPainter.h"
#include "printing/frmprint.h"
#include "report/BoxReport.h"
#include "report/GameReports.h"
#include "report/GameSheet.h"
#include "report/ReportText.h"
#include "report/SeasonReports.h"
#include "report/TeamReports.h"

#include "catalogue/SeasonFolder.h"
#include "report/ReportGame.h"
#include "season/SeasonColumns.h"
#include "support/FaultyFileSystem.h"
#include "support/SharedGames.h"
#include "support/WindowRoom.h"

#include <QAction>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPrinter>
#include <QProcess>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStandardPaths>
#include <QToolButton>
#include <algorithm>
#include <map>
#include <regex>
#include <set>

namespace hooptab {
namespace {

constexpr PageFormat kA4 = {Paper::A4, PageTurn::AsItFits};

std::string output(const char* program, const QStringList& arguments) {
  QProcess process;
  process.start(QLatin1String(program), arguments);
  return process.waitForFinished(20000) ? process.readAllStandardOutput().toStdString() : std::string();
}
bool isMissing(const char* program) {
  return QStandardPaths::findExecutable(QLatin1String(program)).isEmpty();
}

class ReportPagesTest : public WindowRoom<> {
 protected:
  Report scorecard(const Game& game) {
    return scorecardReport(counted(game), ScorecardView(texts), settings, texts);
  }
  // What pdftotext reads of a report.
  std::string pdfText(const Report& report) {
    const std::string path = folder.write("report.pdf", reportPdf(report, kA4));
    const std::string text =
        output("pdftotext", {QStringLiteral("-layout"), toQt(path), QStringLiteral("-")});
    return std::regex_replace(text, std::regex("\uFB01"), "fi"); // as the font writes these letters
  }
  // What stands behind a name in all lines in which at least so many words follow it.
  static std::string behind(const std::string& name, const std::string& text, int words) {
    std::string all;
    for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
      const std::string line = text.substr(at, text.find('\n', at) - at).substr(name.size());
      const std::string single = std::regex_replace(line, std::regex(" +"), " ");
      all += std::ranges::count(single, ' ') >= words ? single : "";
    }
    return all;
  }
  std::vector<Report> everyReport() {
    const Game shorter = crowdedGame(1); // a list of events needs no counters of three digits
    ScorecardView byLine(texts);
    byLine.setView(BoxView::Lines);
    const Game game = crowdedGame();
    TeamRecord team;
    team.abbreviation = team.category = std::string(100, 'W');
    std::vector<TeamPlayer> players(40);
    for (TeamPlayer& player : players) {
      player.number = "888";
      player.record.name = player.record.height = player.record.grade = std::string(60, 'W');
    }
    SeasonFolder games;
    games.add("a.GAM", crowdedText(1));
    const SeasonStatistics season = games.statistics();
    const auto ofSeason = [&](SeasonReport which, SeasonId chosen) {
      return seasonReport(which, season, {season.teams().front().team, chosen, {}}, settings, texts);
    };
    const SeasonId player = season.players().front().id;
    return {ofSeason(SeasonReport::TeamDetail, player),
            ofSeason(SeasonReport::LeadersPerMinute, player),
            ofSeason(SeasonReport::Player, player),
            ofSeason(SeasonReport::PlayerSheet, player),
            ofSeason(SeasonReport::Scout, player),
            ofSeason(SeasonReport::LineOther, season.lines().front().id),
            scorecard(game),
            gameSheet({game, tallied(game)}, texts),
            scorecardReport(counted(game), byLine, settings, texts),
            playByPlayReport({shorter, tallied(shorter)}, texts),
            rosterReport(team, players, texts),
            rosterReport(team, {}, texts)};
  }
};

// Whatever the paper: all texts on the page, none on another one.
TEST_F(ReportPagesTest, NothingLeavesThePageAndNothingOverlaps) {
  for (const Report& report : everyReport()) {
    for (const Paper paper : {Paper::A4, Paper::Letter}) {
      for (const PageTurn turn : {PageTurn::AsItFits, PageTurn::Portrait, PageTurn::Landscape}) {
        ReportLayout layout(report, {paper, turn});
        layout.finish();
        const QRectF body = layout.body().adjusted(-1, -1, 1, 1);
        for (const ReportPage& page : layout.pages()) {
          EXPECT_FALSE(page.isEmpty());
          for (const PageText& text : page.texts)
            EXPECT_TRUE(body.contains(text.box)) << text.text.toStdString();
          for (const PagePicture& picture : page.pictures)
            EXPECT_TRUE(body.contains(picture.box));
          for (const PageLine& line : page.lines)
            EXPECT_TRUE(body.contains(line.from) && body.contains(line.to));
          for (std::size_t i = 0; i < page.texts.size(); ++i) {
            const QRectF box = page.texts[i].box.adjusted(1, 1, -1, -1);
            for (std::size_t other = 0; other < i; ++other)
              ASSERT_FALSE(box.intersects(page.texts[other].box))
                  << page.texts[i].text.toStdString() << " on " << page.texts[other].text.toStdString();
            for (const PagePicture& picture : page.pictures)
              ASSERT_FALSE(box.intersects(picture.box));
          }
        }
      }
    }
  }
}

TEST_F(ReportPagesTest, EveryRowStandsOnceInEachPartOfAWideTable) {
  // 300 rows of 60 columns in groups, with the name repeated.
  Report report;
  ReportTable table;
  table.title = "T";
  table.columns.push_back({"Name", "Name", {}, true, true});
  table.groups.push_back({"", 1});
  for (int group = 0; group < 12; ++group) {
    table.groups.push_back({"G" + std::to_string(group), 5});
    for (int column = 0; column < 5; ++column)
      table.columns.push_back(
          {"C" + std::to_string(group * 5 + column), "C" + std::to_string(group * 5 + column)});
  }
  for (int row = 0; row < 300; ++row) {
    ReportRow& line = table.rows.emplace_back();
    line.cells.push_back(textCell("R" + std::to_string(row)));
    for (int column = 0; column < 60; ++column)
      line.cells.push_back(numberCell(row * 100 + column));
  }
  table.rows.back().emphasis = ReportRow::Emphasis::Total;
  report.blocks.push_back(std::move(table));
  ReportLayout layout(report, kA4);
  layout.step();
  EXPECT_FALSE(layout.isDone()) << "the first page does not wait for the others";
  layout.finish();
  std::map<QString, int> found;
  std::size_t parts = 0;
  for (const ReportPage& page : layout.pages()) {
    std::size_t numbers = 0;
    for (const PageText& text : page.texts) {
      ++found[text.text];
      numbers += text.text[0].isDigit() ? 1U : 0U;
    }
    parts += found[QStringLiteral("R0")] > static_cast<int>(parts) ? 1U : 0U;
    EXPECT_GE(numbers, 2U) << "a total does not stand alone";
  }
  EXPECT_GE(parts, 2U);
  for (int row = 0; row < 300; ++row) {
    EXPECT_EQ(found[QStringLiteral("R%1").arg(row)], static_cast<int>(parts)) << row;
    for (int column = 0; column < 60; ++column)
      ASSERT_EQ(found[QString::number(row * 100 + column)], 1) << row << ' ' << column;
  }
}

// What pdftotext reads of the page is what the box score says, in both languages.
TEST_F(ReportPagesTest, ThePdfSaysWhatTheBoxScoreSays) {
  if (isMissing("pdftotext"))
    GTEST_SKIP() << "no pdftotext";
  Game game;
  ASSERT_EQ(GameFile(store, realOrSampleGames().front().string()).read(game), GameFileProblem::None);
  const GameState state = tallied(game);
  ScorecardView view(texts);
  view.show(counted(game));
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    const std::string text = pdfText(scorecard(game));
    EXPECT_NE(text.find(texts.text(Text::Scorecard)), std::string::npos);
    for (const Side team : kSides) {
      for (const BoxRow& row : boxRows({game, state}, team, BoxView::Players, texts)) {
        // The row may stand in parts that follow each other. Kinds of shots that nobody tried are left out.
        const ReportTable table = boxTable({game, state}, team, view, settings, texts);
        std::set<std::string> untried;
        std::size_t first = 0;
        for (const ReportColumnGroup& group : table.groups) {
          for (std::size_t i = first; group.isUnused && i < first + group.columns; ++i)
            untried.insert(table.columns[i].name);
          first += group.columns;
        }
        std::string cells;
        for (const int column : boxDisplayOrder()) {
          const std::string_view name = boxColumns()[static_cast<std::size_t>(column - 1)].name;
          if (untried.contains(std::string(name))) {
            EXPECT_TRUE(boxCell(row, column) == "0" || boxCell(row, column) == "0.0%") << name;
          } else if (column != kTimeSortColumn && name != "No" && name != "Name")
            cells += (cells.empty() ? "" : " ") + boxCell(row, column);
        }
        const std::string printed = behind(row.name, text, 10); // in rows of a box, not among leaders
        EXPECT_NE(printed.find(cells), std::string::npos) << cells << "\n" << printed;
      }
    }
  }
}

// The tables of a season stand one below the other, each in parts: all numbers of a row follow each other.
TEST_F(ReportPagesTest, ThePdfSaysWhatTheTablesOfTheSeasonSay) {
  if (isMissing("pdftotext"))
    GTEST_SKIP() << "no pdftotext";
  SeasonFolder games;
  const std::string kinds =
      "2=09:00,GFG,0-4,40,50\n3=08:00,GF3,0-5,100,90\n4=07:00,GLG,1-3\n5=06:50,GLD,1-3\n"
      "6=06:40,GPBA,1-7\n7=06:30,GDK,0-10\n8=06:20,GFT,0-4\n9=06:10,SDR,1-8\n";
  for (const char* day : {"2026-10-02", "2026-10-09", "2026-10-16"})
    games.addGame(std::string(day) + ".GAM", day,
                  "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n" + kinds + "10=00:00,ARRET,IN-,IN-\n");
  const SeasonStatistics season = games.statistics();
  for (const Language language : {Language::English, Language::French}) {
    texts.setLanguage(language);
    for (const SeasonReport which : {SeasonReport::PlayerShots, SeasonReport::PlayerOther}) {
      const Report report = seasonReport(which, season, {}, settings, texts);
      const std::string text = pdfText(report);
      for (const SeasonRow& row : season.players()) {
        std::string cells;
        for (const SeasonView table : kSeasonViews) {
          for (const ReportColumn& column : std::get<ReportTable>(report.blocks.front()).columns) {
            if (!column.isRepeated)
              cells += ' ' + seasonCell(row, seasonColumn(column.name).index, table, texts);
          }
        }
        EXPECT_EQ(behind(row.name, text, 0), cells) << row.name;
      }
    }
  }
}

// Fifteen players each: all of them stand on the one page, on the smaller paper as well.
TEST_F(ReportPagesTest, AGameOfTwoFullRostersStandsOnOnePage) {
  std::string text = "[DETAILS]\nVERSION=2.0\nEQUIPE0ABB=PAN\nEQUIPE1ABB=OLY\nNBREPERIODE=4\nDUREE=10\n";
  std::string events = "[PERIODE1]\n";
  for (int team = 0; team < 2; ++team) {
    text += '[' + std::to_string(team) + "]\n";
    for (int player = 0; player < 15; ++player) {
      const std::string jersey = std::to_string(100 + 100 * team + player);
      text += jersey + "=1,Somebody With A Name " + jersey + "\n";
      events += jersey + "=05:00,GFG," + std::to_string(team) + '-' + jersey + ",40,50\n";
    }
  }
  const Game game = gameOfText(text + events);
  const Report report = gameSheet({game, tallied(game)}, texts);
  for (const Paper paper : {Paper::A4, Paper::Letter}) {
    ReportLayout layout(report, {paper, PageTurn::Landscape}); // which such a report does not follow
    layout.finish();
    ASSERT_EQ(layout.pages().size(), 1U);
    EXPECT_LT(layout.size().width(), layout.size().height());
    std::set<QString> names;
    for (const PageText& each : layout.pages().front().texts) {
      EXPECT_TRUE(layout.body().adjusted(-1, -1, 1, 1).contains(each.box)) << each.text.toStdString();
      if (each.text.startsWith(QStringLiteral("Somebody With A Name")))
        names.insert(each.text);
    }
    EXPECT_EQ(names.size(), 30U);
  }
}

TEST_F(ReportPagesTest, APlayersPageOfALongSeasonIsStillOne) {
  SeasonFolder games;
  for (int game = 10; game < 45; ++game)
    games.addGame(std::to_string(game) + ".GAM", "2026-10-01",
                  "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=09:00,GFG,0-4,40," +
                      std::to_string(game) + "\n3=00:00,ARRET,IN-,IN-\n");
  const SeasonStatistics season = games.statistics();
  const Report report = seasonReport(SeasonReport::PlayerSheet, season,
                                     {std::nullopt, season.players().front().id, {}}, settings, texts);
  ReportLayout layout(report, {Paper::Letter, PageTurn::AsItFits});
  layout.finish();
  ASSERT_EQ(layout.pages().size(), 1U);
  for (const PageText& each : layout.pages().front().texts)
    EXPECT_TRUE(layout.body().adjusted(-1, -1, 1, 1).contains(each.box)) << each.text.toStdString();
}

// Sixteen players with long names, sentences and line-ups: the last player is left out and that is said, and
// what room is left is ruled.
TEST_F(ReportPagesTest, AScoutingSheetIsOnePageAndSaysWhatItLeavesOut) {
  SeasonFolder games;
  for (int game = 0; game < 4; ++game) {
    std::string text = "[DETAILS]\nVERSION=2.0\nEQUIPE0ABB=PAN\nEQUIPE1ABB=OLY\nNBREPERIODE=4\nDUREE=10\n"
                       "TERMINE=1\nDATE=2026-10-0" +
                       std::to_string(game + 1) + "\n[0]\n";
    std::string events = "[PERIODE1]\n0=10:00,ARRET,IN-100-101-102-103-104,IN-\n";
    for (int player = game; player < game + 14; ++player) {
      const std::string jersey = std::to_string(100 + player);
      text += jersey + "=1,Somebody With A Name " + jersey + "\n";
      for (int each = 0; each < 5; ++each)
        events += std::to_string(player * 5 + each + 1) + "=05:00,GF3,0-" + jersey + ",100,90\n";
    }
    games.add(std::to_string(game) + ".GAM", text + events + "99=00:00,ARRET,IN-,IN-\n");
  }
  const SeasonStatistics season = games.statistics();
  const Report report =
      seasonReport(SeasonReport::Scout, season, {season.teams().front().team, {}, {}}, settings, texts);
  std::size_t ruled[2] = {};
  for (const Paper paper : {Paper::A4, Paper::Letter}) {
    ReportLayout layout(report, {paper, PageTurn::AsItFits});
    layout.finish();
    ASSERT_EQ(layout.pages().size(), 1U);
    const ReportPage& page = layout.pages().front();
    const auto count = [&](const char* words) {
      return std::ranges::count_if(page.texts,
                                   [&](const PageText& text) { return text.text.contains(toQt(words)); });
    };
    EXPECT_EQ(count("Somebody With A Name"), 15);
    EXPECT_EQ(count("first 15 of 17"), 1);
    for (const PageText& each : page.texts)
      EXPECT_TRUE(layout.body().adjusted(-1, -1, 1, 1).contains(each.box)) << each.text.toStdString();
    for (std::size_t i = 1; i < page.lines.size(); ++i)
      ruled[paper == Paper::Letter ? 1 : 0] += page.lines[i].from.x() == layout.body().left() ? 1U : 0U;
  }
  EXPECT_GT(ruled[0], ruled[1]) << "the longer paper has more lines to write on";
}

// What nobody tried takes no room, but stands in files; leaders stand below each other.
TEST_F(ReportPagesTest, ReportsTakeNoMoreRoomThanTheyNeed) {
  const auto textsOf = [](const Report& report) {
    ReportLayout layout(report, kA4);
    layout.finish();
    std::vector<PageText> found;
    for (const ReportPage& page : layout.pages())
      found.insert(found.end(), page.texts.begin(), page.texts.end());
    return found;
  };
  const auto holds = [](const std::vector<PageText>& page, const char* words) {
    return std::ranges::any_of(page, [&](const PageText& text) { return text.text.contains(toQt(words)); });
  };
  const std::vector<PageText> crowded = textsOf(scorecard(crowdedGame()));
  EXPECT_TRUE(holds(crowded, "(2/2)"));
  EXPECT_FALSE(holds(crowded, "/3)"));
  const Report few =
      scorecard(gameOfText(textOfGame("[PERIODE1]\n1=09:00,GFG,0-4,40,50\n2=08:00,GDKA,1-3\n")));
  const std::vector<PageText> page = textsOf(few);
  EXPECT_TRUE(holds(page, "FGM"));
  EXPECT_TRUE(holds(page, "DKM")) << "one that was missed was tried";
  EXPECT_FALSE(holds(page, "LLM"));
  EXPECT_NE(reportCsv(few).front().bytes.find("LLM"), std::string::npos);
  SeasonFolder games;
  games.addGame("a.GAM", "2026-10-02",
                "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=09:00,GFG,0-4,40,50\n3=08:00,GF3,0-5\n"
                "4=07:00,SPF,1-3\n5=06:00,STO,1-3\n6=05:00,SA,1-3\n7=00:00,ARRET,IN-,IN-\n");
  std::set<int> edges;
  for (const PageText& text :
       textsOf(seasonReport(SeasonReport::LeadersTotal, games.statistics(), {}, settings, texts))) {
    if (text.font == PageFont::BoldBody)
      edges.insert(static_cast<int>(text.box.left()));
  }
  EXPECT_GE(edges.size(), 3U);
  EXPECT_LE(edges.size(), 5U);
}

// The disk fails at the n-th call: the old file stands whole, or the new one.
TEST_F(ReportPagesTest, AFailedWriteLeavesTheOldFileWhole) {
  const std::vector<ReportFile> contents = {{"", "new bytes"}};
  const std::string path = folder.path("report.pdf");
  int failures = 0;
  for (int call = 0;; ++call) {
    (void)folder.write("report.pdf", "old");
    FaultyFileSystem faulty;
    faulty.failAt = call;
    faulty.error = ENOSPC;
    const std::string failed = writeFiles(faulty, path, contents);
    const std::string now = folder.read("report.pdf");
    EXPECT_TRUE(now == "old" || now == "new bytes") << call << now;
    if (!faulty.hasFailed)
      break;
    if (now == "old") {
      EXPECT_EQ(failed, path) << call;
      ++failures;
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
      EXPECT_EQ(entry.path().filename(), "report.pdf") << "nothing half written is left";
  }
  EXPECT_GE(failures, 4);
  EXPECT_EQ(writeFiles(disk, folder.path("missing/x.pdf"), contents), folder.path("missing/x.pdf"));
  EXPECT_EQ(pathOf("/a.b/box.csv", " Points"), "/a.b/box Points.csv");
  EXPECT_EQ(pathOf("/a.b/box", " Points"), "/a.b/box Points");
}

// As a printer sets them: no notes alone on a page, no row or two, and no page left empty for a long table.
TEST_F(ReportPagesTest, LongTablesFillTheirPagesAndKeepTheirNotes) {
  for (std::size_t rows = 20; rows < 120; ++rows) {
    Report report;
    report.title = "T";
    ReportTable table;
    table.columns = {{"N", "N", {}, true, true}, {"P", "P"}};
    for (std::size_t i = 0; i < rows; ++i)
      table.rows.push_back({{textCell("row"), numberCell(1)}});
    report.blocks.emplace_back(table);
    report.blocks.emplace_back(ReportParagraph{ReportParagraph::Style::Note, "one note"});
    report.blocks.emplace_back(ReportParagraph{ReportParagraph::Style::Note, "another note"});
    ReportLayout layout(report, kA4);
    layout.finish();
    for (const ReportPage& page : layout.pages()) {
      const auto count = std::ranges::count(page.texts, QStringLiteral("row"), &PageText::text);
      EXPECT_GE(count, 3) << rows << " rows";
    }
  }
}

// Forms printed and looked at as a scanner does: marks and filled digits are black, cells are empty.
TEST_F(ReportPagesTest, APrintedFormHasItsMarksAndDigitsWhereTheLayoutSays) {
  TeamRecord team;
  team.abbreviation = "LYNX";
  std::vector<TeamPlayer> players(2);
  players[0].number = "00";
  players[1].number = "47";
  players[1].record.name = std::string(60, 'W');
  const Report report = preparedForms(team, players, texts);
  for (const Paper paper : {Paper::A4, Paper::Letter}) {
    ReportLayout layout(report, {paper, PageTurn::AsItFits});
    layout.finish();
    ASSERT_EQ(layout.pages().size(), 1U);
    constexpr double kDotsPerMillimetre = 300 / 25.4;
    const double scale = 300 / kUnitsPerInch;
    QImage image((layout.size() * scale).toSize(), QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintPage(painter, layout, 0);
    painter.end();
    const QPointF origin((image.width() / kDotsPerMillimetre - FormLayout::kWidth) / 2,
                         (image.height() / kDotsPerMillimetre - FormLayout::kHeight) / 2);
    EXPECT_GE(std::min(origin.x(), origin.y()), 5);
    const auto isBlack = [&](const FormRect& rect) {
      const QPointF centre =
          (origin + QPointF(rect.x + rect.width / 2, rect.y + rect.height / 2)) * kDotsPerMillimetre;
      return qGray(image.pixel(centre.toPoint())) < 128;
    };
    const FormLayout form;
    EXPECT_FALSE(isBlack(form.marks()[0])) << "the upper left mark is hollow";
    for (const std::size_t mark : {1U, 2U, 3U})
      EXPECT_TRUE(isBlack(form.marks()[mark]));
    std::array<bool, FormIdentifier::kBits> bits = {};
    std::ranges::transform(form.identifier(), bits.begin(), isBlack);
    const auto identifier = FormIdentifier::ofBits(bits);
    ASSERT_TRUE(identifier);
    EXPECT_EQ(identifier->team, FormIdentifier::teamNumber("LYNX", ""));
    for (const FormCell& cell : form.cells()) {
      const char* const jersey = cell.player == 0 ? "00" : cell.player == 1 ? "47" : "";
      EXPECT_EQ(isBlack(cell.rect), FormLayout::isDigitOf(cell, jersey));
    }
  }
}

class ScriptedPrinters : public Printers {
 public:
  QString file; // the printer prints into it; empty: the user cancels
  int from = 0;
  int to = 0;
  int asked = 0;
  bool isInstalled = true;
  bool hasAny() override { return isInstalled; }
  std::unique_ptr<QPrinter> choose(QWidget*, const QPageLayout&, int pages) override {
    asked = pages;
    if (file.isEmpty())
      return nullptr;
    auto printer = std::make_unique<QPrinter>();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(file);
    if (from > 0)
      printer->setFromTo(from, to);
    return printer;
  }
};

class PreviewTest : public ReportPagesTest {
 protected:
  void SetUp() override {
    window = std::make_unique<frmprint>(texts, dialogs, printers, output);
    window->resize(1000, 700);
    window->offer(
        {{[this] { return std::string(texts.text(Text::Scorecard)); }, [this] { return scorecard(game); }},
         {[] { return std::string("events"); },
          [this] {
            return playByPlayReport({shorter, tallied(shorter)}, texts);
          }},
         {[] { return std::string("forms"); }, [this] { return blankForms(texts); }}});
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }
  template <class Widget>
  Widget& find(const char* name) {
    return ReportPagesTest::find<Widget>(*window, name);
  }
  int pages() { return find<QSpinBox>("txtPAGE").maximum(); }
  void waitForPages() {
    int before = 0;
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return std::exchange(before, pages()) == pages() && pages() > 1; }, 20000));
  }
  // Files and printers are served on another thread.
  void waitForOutput() {
    ASSERT_TRUE(QTest::qWaitFor([&] { return !output.isBusy(); }, 30000));
  }
  void clickAndWait(const char* name) {
    find<QPushButton>(name).click();
    waitForOutput();
  }

  const Game game = crowdedGame();
  const Game shorter = crowdedGame(1);
  ScriptedPrinters printers;
  ReportOutput output{texts, dialogs, disk};
  std::unique_ptr<frmprint> window;
};

TEST_F(PreviewTest, ShowsPagesAndGoesThroughThem) {
  waitForPages();
  auto& page = find<QSpinBox>("txtPAGE");
  find<QToolButton>("cmdLAST").click();
  EXPECT_EQ(page.value(), pages());
  find<QToolButton>("cmdFIRST").click();
  EXPECT_EQ(page.value(), 1);
  page.setValue(2);
  find<QToolButton>("cmdNEXT").click();
  EXPECT_EQ(page.value(), 3);
  find<QToolButton>("cmdFACING").setChecked(true);
  find<QComboBox>("cmbZOOM").setCurrentIndex(4);
  emit find<QComboBox>("cmbZOOM").activated(4);
  EXPECT_EQ(find<QComboBox>("cmbZOOM").currentText(), QStringLiteral("100%"));
  const QByteArray arrangement = window->arrangement();
  frmprint other(texts, dialogs, printers, output);
  other.restoreArrangement(arrangement);
  EXPECT_EQ(other.arrangement(), arrangement);
  other.restoreArrangement("nonsense");
  EXPECT_EQ(other.arrangement(), arrangement);
}

TEST_F(PreviewTest, TheTitleIsTheUsersAndTheRestFollowsTheLanguage) {
  auto& title = find<QLineEdit>("txtTITLE");
  EXPECT_EQ(title.text(), toQt(texts.text(Text::Scorecard)));
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_EQ(title.text(), toQt(texts.text(Text::Scorecard)));
  title.setFocus();
  title.selectAll();
  QTest::keyClicks(&title, QStringLiteral("Final of the cup"));
  texts.setLanguage(Language::English);
  window->relabelWindow();
  EXPECT_EQ(title.text(), QStringLiteral("Final of the cup"));
  dialogs.nextFileToSave = toQt(folder.path("x.html"));
  find<QAction>("mnuHTML").trigger();
  waitForOutput();
  EXPECT_NE(folder.read("x.html").find("<h1>Final of the cup</h1>"), std::string::npos);
  find<QComboBox>("cmbREPORT").setCurrentIndex(1);
  EXPECT_EQ(title.text(), toQt(texts.text(Text::PlayByPlay)));
}

TEST_F(PreviewTest, SavesEveryFormAndAsksBeforeItReplaces) {
  QSignalSpy reported(&output, &ReportOutput::reported);
  for (const char* ending : {"XLSX", "CSV", "HTML", "PNG"}) {
    dialogs.nextFileToSave = toQt(folder.path(std::string("box.") + ending));
    find<QAction>((std::string("mnu") + ending).c_str()).trigger();
    waitForOutput();
    EXPECT_TRUE(folder.holds(std::string("box.") + ending)) << ending;
  }
  EXPECT_EQ(reported.size(), 4);
  (void)folder.write("box.pdf", "mine");
  dialogs.nextFileToSave = toQt(folder.path("box.pdf"));
  clickAndWait("cmdPDF");
  EXPECT_EQ(folder.read("box.pdf"), "mine") << "asked, and answered with No";
  EXPECT_EQ(dialogs.shown.back().kind, ScriptedDialogs::Kind::Ask);
  dialogs.nextAnswer = true;
  clickAndWait("cmdPDF");
  EXPECT_EQ(folder.read("box.pdf").substr(0, 5), "%PDF-");
  dialogs.nextFileToSave = toQt(folder.path("missing/box.pdf"));
  clickAndWait("cmdPDF");
  EXPECT_EQ(dialogs.shown.back().kind, ScriptedDialogs::Kind::Complain);
  find<QComboBox>("cmbREPORT").setCurrentIndex(2);
  EXPECT_FALSE(find<QAction>("mnuCSV").isEnabled()) << "a form has no table";
  EXPECT_TRUE(find<QPushButton>("cmdPDF").isEnabled());
}

TEST_F(PreviewTest, PrintsTheChosenPagesAndTellsWhenThePrinterRefuses) {
  clickAndWait("cmdPRINT");
  EXPECT_GT(printers.asked, 1) << "all pages are counted before the printer is chosen";
  EXPECT_TRUE(dialogs.shown.empty()) << "cancelled";
  printers.file = toQt(folder.path("printed.pdf"));
  printers.from = 2;
  printers.to = 3;
  clickAndWait("cmdPRINT");
  EXPECT_TRUE(dialogs.shown.empty());
  const std::string pdf = folder.read("printed.pdf");
  const std::regex page("/Type\\s*/Page[^s]");
  EXPECT_EQ(std::distance(std::sregex_iterator(pdf.begin(), pdf.end(), page), {}), 2);
  printers.file = toQt(folder.path("missing/printed.pdf"));
  clickAndWait("cmdPRINT");
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].title, toQt(texts.text(Text::PrinterError)));
  EXPECT_EQ(dialogs.shown[0].text, toQt(texts.text(Text::NotPrinted)));
  printers.isInstalled = false;
  printers.asked = 0;
  clickAndWait("cmdPRINT");
  EXPECT_EQ(dialogs.shown.back().text, toQt(texts.text(Text::NoPrinter)));
  EXPECT_EQ(printers.asked, 0);
}

} // namespace
} // namespace hooptab
