#include "appearance/TableContent.h"
#include "court/CourtView.h"
#include "game/EventListModel.h"
#include "insight/FlowPanel.h"
#include "review/CompactWidths.h"
#include "review/ComparisonBars.h"
#include "review/frmVIEW.h"
#include "scorecard/BoxTable.h"
#include "scorecard/FrozenTableView.h"
#include "support/WindowRoom.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolButton>
#include <filesystem>

#include "support/ViewedGame.h"

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using Mode = frmVIEW::RefreshMode;
using Page = frmVIEW::Page;
using Fatal = QAbstractItemModelTester::FailureReportingMode;

constexpr int kPoints = 7; // columns of the table, from 0
constexpr int kFieldGoalsMade = 8;

// The window on a small game that grows; its models are watched the whole time.
class ScorecardWindowTest : public WindowTest<frmVIEW> {
 protected:
  void SetUp() override {
    QApplication::clipboard()->clear();
    show(game.file.path());
    watchModels();
  }
  void show(const std::string& path) {
    window = std::make_unique<frmVIEW>(game.store, settings, texts);
    ASSERT_EQ(window->open(toQt(path)), GameFileProblem::None);
    window->showPage(Page::AllColumns);
    window->resize(1350, 640);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  }
  void watchModels() {
    for (auto* view : {&find<QTableView>("lvwSTAT(0)"), &find<QTableView>("lvwSTAT(1)"),
                       &find<QTableView>("lvwLEAGUE"), &find<QTableView>("lvwBOX(0)"), &events()}) {
      auto* proxy = qobject_cast<QAbstractProxyModel*>(view->model());
      new QAbstractItemModelTester(proxy, Fatal::Fatal, proxy);
      new QAbstractItemModelTester(proxy->sourceModel(), Fatal::Fatal, proxy);
    }
  }
  FrozenTableView& table(int view) const {
    return find<FrozenTableView>(view == 0 ? "lvwSTAT(0)" : view == 1 ? "lvwSTAT(1)" : "lvwLEAGUE");
  }
  QTableView& events() const { return find<QTableView>("lvwEVENT"); }
  QTimer& timer() const { return find<QTimer>("TimerCoach"); }
  QLabel& notice() const { return find<QLabel>("lblNOTICE"); }
  std::size_t marks() const { return find<CourtView>("courtstat").marks().size(); }

  static QString cell(const QTableView& view, int row, int column) {
    return view.model()->index(row, column).data().toString();
  }
  static int rowOf(const QTableView& view, const char* text, int column = 0) {
    for (int row = 0; row < view.model()->rowCount(); ++row) {
      if (cell(view, row, column) == QLatin1String(text))
        return row;
    }
    return -1;
  }
  static Qt::CheckState check(const QTableView& view, int row) {
    return static_cast<Qt::CheckState>(view.model()->index(row, 0).data(Qt::CheckStateRole).toInt());
  }
  static void setCheck(const QTableView& view, int row, Qt::CheckState state) {
    view.model()->setData(view.model()->index(row, 0), state, Qt::CheckStateRole);
  }
  // The store trusts a file's stamp only some time after its last change; so does the refresh.
  void settleFile() const {
    fs::last_write_time(game.file.path(), fs::file_time_type::clock::now() - std::chrono::seconds(10));
  }
  void tick() const { emit timer().timeout({}); }
  void insert(const std::string& before, const std::string& line) {
    ASSERT_EQ(
        game.file.change({{EventChange::Kind::Add, 1, std::to_string(game.file.nextNumber()), line, before}}),
        GameFileProblem::None);
  }

  ViewedGame game;
};

TEST_F(ScorecardWindowTest, ShowsTheGameAsItIs) {
  EXPECT_EQ(window->windowTitle(), QStringLiteral("LYNX 4 - 3 PUMA"));
  QStringList shown;
  for (const char* label : {"lblSCORE(0)", "lblPOINTS(1,1)", "lblFOULS(0,1)", "lblLEAD(0)", "lbltemps"})
    shown << find<QLabel>(label).text();
  for (const char* field : {"txtENDROIT", "txtTYPEPARTIE", "txtBONUSAPRES"})
    shown << find<QLineEdit>(field).text();
  EXPECT_EQ(fromQt(shown.join(u'|')), "4|3|2|00:20|09:00|Main gym|Season|2");
  EXPECT_EQ(find<QComboBox>("cmbTEAM").count(), 2);
  ASSERT_EQ(table(0).model()->rowCount(), 5);
  EXPECT_EQ(cell(table(0), 0, 0), QStringLiteral("4")) << "the roster's order, not a sort";
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("4"));
  EXPECT_TRUE(table(0).isVisible());
  EXPECT_FALSE(table(1).isVisible());
  EXPECT_EQ(marks(), 3U);
  find<QComboBox>("cmbTEAM").setCurrentIndex(1);
  EXPECT_EQ(table(0).model()->rowCount(), 3);
  EXPECT_EQ(marks(), 1U);
}

TEST_F(ScorecardWindowTest, TheColumnsStandInTheirDisplayOrder) {
  const QHeaderView& header = *table(0).horizontalHeader();
  for (int place = 0; place < boxColumnCount(); ++place)
    EXPECT_EQ(header.logicalIndex(place), boxDisplayOrder()[static_cast<std::size_t>(place)] - 1) << place;
  EXPECT_TRUE(table(0).isColumnHidden(kTimeSortColumn - 1));
  EXPECT_FALSE(table(0).isColumnHidden(kFieldGoalsMade));
  window->setHidesMadeAttempted(true);
  EXPECT_TRUE(table(0).isColumnHidden(kFieldGoalsMade));
  EXPECT_FALSE(table(0).isColumnHidden(kPoints));
  window->setByLine(true);
  EXPECT_TRUE(table(1).isVisible());
  EXPECT_TRUE(table(1).isColumnHidden(kFieldGoalsMade)) << "both tables";
  window->setHidesMadeAttempted(false);
  EXPECT_FALSE(table(1).isColumnHidden(kFieldGoalsMade));
}

TEST_F(ScorecardWindowTest, AnotherFontFindsRoomInEveryColumn) {
  QFont larger = window->font();
  larger.setPointSizeF(larger.pointSizeF() * 1.5);
  window->setFont(larger);
  larger.setBold(true);
  const QFontMetrics metrics(larger);
  for (const int view : {0, 1}) {
    const QAbstractItemModel& rows = *table(view).model();
    const auto* frozen = table(view).findChild<QTableView*>(QStringLiteral("frozen"));
    EXPECT_EQ(frozen->font().pointSizeF(), larger.pointSizeF());
    for (int column = 0; column < rows.columnCount(); ++column) {
      if (table(view).isColumnHidden(column))
        continue;
      QStringList words(rows.headerData(column, Qt::Horizontal).toString());
      for (int row = 0; row < rows.rowCount(); ++row)
        words << cell(table(view), row, column);
      for (const QString& word : words)
        EXPECT_GE(table(view).columnWidth(column), metrics.horizontalAdvance(word)) << fromQt(word);
    }
    EXPECT_EQ(frozen->columnWidth(1), table(view).columnWidth(1));
  }
}

TEST_F(ScorecardWindowTest, TheTotalStaysLastWhateverTheSort) {
  for (const int view : {0, 1, 2}) {
    window->setByLine(view == 1);
    window->setShowsLeagueSheet(view == 2);
    const auto isText = [&](int column) { return column == 1 || (view < 2 && boxColumnIsText(column + 1)); };
    const QAbstractItemModel& rows = *table(view).model();
    const int last = rows.rowCount() - 1;
    for (int column = 0; column < rows.columnCount(); ++column) {
      for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        table(view).sortByColumn(column, order);
        EXPECT_TRUE(rows.index(last, 0).data(BoxScoreModel::TotalRole).toBool())
            << view << ' ' << column << ' ' << order;
        for (int row = 1; row < last && !isText(column); ++row) {
          const double before = rows.index(row - 1, column).data(BoxScoreModel::SortRole).toDouble();
          const double after = rows.index(row, column).data(BoxScoreModel::SortRole).toDouble();
          EXPECT_TRUE(order == Qt::AscendingOrder ? before <= after : before >= after)
              << view << ' ' << column;
        }
      }
    }
    table(view).clearSort();
    EXPECT_EQ(cell(table(view), 0, 0), view == 1 ? QStringLiteral("1") : QStringLiteral("4"));
  }
}

TEST_F(ScorecardWindowTest, ALeaguesSheetStandsInThePlaceOfThePlayers) {
  const auto line = [&](int row) {
    QStringList cells;
    for (int column = 0; column < table(2).model()->columnCount(); ++column)
      cells << cell(table(2), row, column);
    return fromQt(cells.join(u' '));
  };
  game.add(1, 530, {",XDR,0", ",XTV,0", ",XCF,0,K=C"});
  window->refresh();
  window->setByLine(true);
  find<QToolButton>("cmdLEAGUE").click();
  EXPECT_FALSE(window->isByLine());
  ASSERT_TRUE(table(2).isVisible());
  ASSERT_EQ(table(2).model()->rowCount(), 6);
  EXPECT_EQ(line(2), "12 Cleo Carter 00:00 1 1 100.0% 1 1 100.0% 0 0 0.0% 0 0 0.0% 0 0 0 0 0 0 0 0 2 0 2");
  EXPECT_EQ(line(4), " Team / Coach  0 0 0.0% 0 0 0.0% 0 0 0.0% 0 0 0.0% 0 1 1 0 1 0 0 0 1 0 0");
  EXPECT_EQ(line(5), " TOTAL 01:40 2 3 66.7% 2 2 100.0% 0 1 0.0% 0 0 0.0% 0 1 1 0 1 0 0 0 3 0 4");
  EXPECT_FALSE(table(2).model()->index(0, 0).data(Qt::CheckStateRole).isValid());

  game.add(1, 520, {",GF3,0-12,110,90", ",XOR,0"});
  table(2).selectRow(2);
  window->refresh();
  EXPECT_TRUE(line(4).ends_with("1 1 2 0 1 0 0 0 1 0 0")) << line(4);
  ASSERT_EQ(table(2).selectionModel()->selectedRows().size(), 1);
  find<QComboBox>("cmbTEAM").setCurrentIndex(1);
  EXPECT_EQ(line(2), " Team / Coach  0 0 0.0% 0 0 0.0% 0 0 0.0% 0 0 0.0% 0 0 0 0 0 0 0 0 0 0 0")
      << "where a team did nothing, too";
  window->setHidesMadeAttempted(true);
  texts.setLanguage(Language::French);
  window->relabelWindow();
  find<QToolButton>("cmdCOPY").click();
  EXPECT_EQ(fromQt(QApplication::clipboard()->text().section(u'\n', 0, 0)),
            "No\tNom du joueur\tTemps\tFG%\t2P%\t3P%\tFT%\tOR\tDR\tTR\tAst\tTO\tST\tBS\tCS\tPF\tFP\tPTS");

  window->setByLine(true);
  EXPECT_TRUE(table(1).isVisible());
  EXPECT_FALSE(find<QToolButton>("cmdLEAGUE").isChecked());
}

TEST_F(ScorecardWindowTest, AClickOnTheFrozenHeaderSortsAndOnAFrozenCheckBoxTurnsTheMark) {
  auto* frozen = table(0).findChild<QTableView*>(QStringLiteral("frozen"));
  const QHeaderView& header = *frozen->horizontalHeader();
  const QPoint name(header.sectionViewportPosition(1) + 20, header.height() / 2);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, name);
  EXPECT_EQ(table(0).horizontalHeader()->sortIndicatorSection(), 1);
  EXPECT_EQ(cell(table(0), 0, 1), QStringLiteral("Ann Able"));
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, name);
  EXPECT_EQ(cell(table(0), 0, 1), QStringLiteral("Dana Dunn"));
  table(0).clearSort();
  const QRect first = frozen->visualRect(frozen->model()->index(0, 0));
  QTest::mouseClick(frozen->viewport(), Qt::LeftButton, {}, {first.left() + 10, first.center().y()});
  EXPECT_EQ(check(table(0), 0), Qt::Unchecked);
  EXPECT_EQ(marks(), 2U);
}

TEST_F(ScorecardWindowTest, NumberAndNameStayInSightWhileTheRestScrolls) {
  window->resize(900, 640);
  auto* frozen = table(0).findChild<QTableView*>(QStringLiteral("frozen"));
  table(0).horizontalScrollBar()->setValue(table(0).horizontalScrollBar()->maximum());
  ASSERT_GT(table(0).horizontalScrollBar()->value(), 0);
  EXPECT_LT(table(0).columnViewportPosition(1), 0);
  EXPECT_EQ(frozen->columnViewportPosition(0), 0);
  EXPECT_TRUE(frozen->isColumnHidden(2));
  EXPECT_TRUE(frozen->isAncestorOf(table(0).childAt(20, 10))) << "its header lies over the scrolled one";
  EXPECT_EQ(frozen->rowViewportPosition(2), table(0).rowViewportPosition(2));
  // Going left by key brings a column to the right of the frozen ones.
  table(0).setFocus();
  table(0).setCurrentIndex(table(0).model()->index(0, 42));
  table(0).setCurrentIndex(table(0).model()->index(0, 2));
  QTest::keyClick(&table(0), Qt::Key_Right);
  EXPECT_GE(table(0).visualRect(table(0).currentIndex()).left(), frozen->width());
}

TEST_F(ScorecardWindowTest, TheFirstPageHasBothTeamsWithWhoDidNotPlay) {
  frmVIEW fresh(game.store, settings, texts);
  ASSERT_EQ(fresh.open(toQt(game.file.path())), GameFileProblem::None);
  fresh.resize(1600, 686);
  fresh.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&fresh));
  const auto& visitors = *fresh.findChild<QTableView*>(QStringLiteral("lvwBOX(0)"));
  const auto& home = *fresh.findChild<QTableView*>(QStringLiteral("lvwBOX(1)"));
  ASSERT_TRUE(visitors.isVisible() && home.isVisible());
  EXPECT_EQ(visitors.verticalScrollBar()->maximum(), 0) << "all rows are in sight";
  EXPECT_EQ(visitors.horizontalScrollBar()->maximum(), 0) << "and all columns";
  EXPECT_EQ(cell(visitors, 3, 2), QStringLiteral("Dana Dunn"));
  EXPECT_EQ(cell(visitors, 3, 3), toQt(texts.text(Text::DidNotPlay)));
  EXPECT_EQ(cell(visitors, 3, 4), QString());
  EXPECT_EQ(cell(home, 0, 4), QStringLiteral("3"));
  table(0).setFocus();
  fresh.grab();
}

TEST_F(ScorecardWindowTest, APeriodShowsItselfEverywhereButInTheHead) {
  game.add(2, 590, {",GF3,0-5,110,90", ",GFG,1-8,20,20"});
  window->refresh();
  auto& chip = find<QAbstractButton>("cmdSTRETCH");
  EXPECT_FALSE(chip.isVisible());
  find<QAbstractButton>("cmdPERIOD(2)").click();
  EXPECT_EQ(fromQt(chip.text()), "Period 2: LYNX 3–2 PUMA");
  EXPECT_EQ(find<QLabel>("lblSCORE(0)").text(), QStringLiteral("7")) << "the head is of the whole game";
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("3"));
  EXPECT_EQ(cell(find<QTableView>("lvwBOX(0)"), 4, 4), QStringLiteral("3"));
  EXPECT_EQ(marks(), 1U);
  EXPECT_EQ(events().model()->rowCount(), 2);
  events().setCurrentIndex(events().model()->index(0, 0));
  EXPECT_TRUE(find<CourtView>("courtstat").marks()[0].isHighlighted) << "of its own places in the list";
  game.add(2, 500, {",GFT,0-5"});
  window->refresh();
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("4")) << "and stays through a new reading";
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(chip.isVisible());
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("8"));
  EXPECT_TRUE(find<QAbstractButton>("cmdWHOLE").isChecked());
  EXPECT_GT(events().model()->rowCount(), 3);
}

TEST_F(ScorecardWindowTest, AStretchOfTheFlowIsShownUntilAnEventOutsideOfItIsAskedFor) {
  auto& flow = *window->findChild<FlowPanel*>();
  window->showPage(Page::Flow);
  EXPECT_FALSE(find<QToolButton>("cmdBOX").isVisible());
  emit flow.stretchChosen(Stretch{1, 560, 1, 540});
  auto& chip = find<QAbstractButton>("cmdSTRETCH");
  EXPECT_EQ(fromQt(chip.text()), "Period 1, 09:20 to 09:00: LYNX 2–0 PUMA");
  EXPECT_FALSE(find<QAbstractButton>("cmdWHOLE").isChecked());
  find<QToolButton>("cmdBOX").click();
  EXPECT_TRUE(find<QTableView>("lvwBOX(0)").isVisible());
  emit flow.eventAsked(3);
  EXPECT_FALSE(chip.isVisible());
  EXPECT_TRUE(events().isVisible());
  EXPECT_EQ(events().currentIndex().row(), 3);
}

TEST_F(ScorecardWindowTest, ColumnsAreChosenMovedAndRemembered) {
  window->showPage(Page::Game);
  const auto heads = [](const frmVIEW& view) {
    const QAbstractItemModel& rows = *view.findChild<QTableView*>(QStringLiteral("lvwBOX(0)"))->model();
    QStringList result;
    for (int column = 3; column < rows.columnCount(); ++column)
      result << rows.headerData(column, Qt::Horizontal).toString();
    return result;
  };
  const FormulaReader twicePoints = [](std::string_view) {
    return FormulaReading{[](const RatedNumbers& of) { return std::optional(2.0 * of.box.points()); }, {}};
  };
  settings.ownRating = {"2 * PTS", "Mine"};
  window->setFormulaReader(twicePoints);
  const QStringList usual = heads(*window);
  find<QToolButton>("cmdCOLUMNS").click();
  auto& list = find<QListWidget>("lvwCOLUMNS");
  ASSERT_TRUE(list.isVisible());
  list.item(0)->setCheckState(Qt::Unchecked);
  list.item(list.count() - 1)->setCheckState(Qt::Checked);
  list.setCurrentRow(1);
  find<QToolButton>("cmdDOWN").click();
  const QStringList chosen = heads(*window);
  EXPECT_EQ(chosen.first(2), (QStringList{QStringLiteral("2P"), QStringLiteral("PTS")}));
  EXPECT_EQ(chosen.last(), QStringLiteral("Mine"));
  EXPECT_EQ(chosen.size(), usual.size());
  frmVIEW next(game.store, settings, texts);
  next.setFormulaReader(twicePoints);
  next.restoreArrangement(window->arrangement());
  ASSERT_EQ(next.open(toQt(game.file.path())), GameFileProblem::None);
  EXPECT_EQ(heads(next), chosen);
  find<QToolButton>("cmdUSUAL").click();
  EXPECT_EQ(heads(*window), usual);
}

TEST_F(ScorecardWindowTest, AColumnKeepsTheWidthToWhichItsEdgeIsDragged) {
  window->showPage(Page::Game);
  window->resize(1800, 700); // more than the columns need
  QCoreApplication::processEvents();
  auto& box = find<QTableView>("lvwBOX(0)");
  const auto& other = find<QTableView>("lvwBOX(1)");
  QHeaderView& head = *box.horizontalHeader();
  const int before = box.columnWidth(5);
  const int beside = box.columnWidth(6);
  const QPoint edge(head.sectionViewportPosition(5) + before - 1, head.height() / 2);
  QTest::mousePress(head.viewport(), Qt::LeftButton, {}, edge);
  QTest::mouseMove(head.viewport(), edge + QPoint(23, 0));
  QTest::mouseRelease(head.viewport(), Qt::LeftButton, {}, edge + QPoint(23, 0));
  EXPECT_EQ(box.columnWidth(5), before + 23);
  EXPECT_EQ(other.columnWidth(5), before + 23) << "both boxes have the same columns";
  EXPECT_EQ(box.columnWidth(6), beside);
  window->refresh();
  EXPECT_EQ(box.columnWidth(5), before + 23);
  frmVIEW next(game.store, settings, texts);
  next.restoreArrangement(window->arrangement());
  ASSERT_EQ(next.open(toQt(game.file.path())), GameFileProblem::None);
  EXPECT_EQ(next.findChild<QTableView*>(QStringLiteral("lvwBOX(0)"))->columnWidth(5), before + 23);
  QTest::mouseDClick(head.viewport(), Qt::LeftButton, {}, edge + QPoint(23, 0));
  EXPECT_LT(box.columnWidth(5), before) << "as wide as it needs, without the room that was left";
  EXPECT_TRUE(widthsOfText("MIN=12,PTS,=900,3P=x,2P=1100,").size() == 1) << "only what can be a width";
}

TEST_F(ScorecardWindowTest, ShotsAndComparisonsFollowTheirChoices) {
  window->showPage(Page::Shots);
  const auto drawn = [&](const char* court) { return find<CourtView>(court).marks().size(); };
  EXPECT_EQ(drawn("courtSHOTS(0)"), 3U);
  find<QComboBox>("cmbPLAYER(0)").setCurrentIndex(3); // number 12
  EXPECT_EQ(drawn("courtSHOTS(0)"), 1U);
  EXPECT_EQ(drawn("courtSHOTS(1)"), 1U);
  find<QToolButton>("cmdZONES").click();
  auto& average = find<QComboBox>("cmbAVERAGE");
  EXPECT_TRUE(average.isVisible());
  auto& noSeason = find<QLabel>("lblNOSEASON");
  EXPECT_FALSE(noSeason.isVisible());
  average.setCurrentIndex(2); // the team's own season
  EXPECT_TRUE(noSeason.isVisible()) << "says how to get one";
  std::vector<std::optional<Side>> asked;
  window->setSeasonShots([&](const GameDetails&, std::optional<Side> team) {
    asked.push_back(team);
    return std::optional<ShotSums>(std::in_place);
  });
  window->lookAtSeason();
  EXPECT_FALSE(noSeason.isVisible());
  EXPECT_EQ(asked, (std::vector<std::optional<Side>>{Side::Visitor, Side::Home}));

  window->showPage(Page::Compare);
  const auto compared = [&](const char* words) {
    const TableContent content = find<ComparisonBars>("picCOMPARED").tableContent();
    for (const TableContent::Row& row : content.rows) {
      if (row.cells[0].text == QLatin1String(words))
        return fromQt(row.cells[1].text + u' ' + row.cells[2].text);
    }
    return std::string();
  };
  EXPECT_EQ(compared("From the bench"), "2 0");
  find<QComboBox>("cmbCOMPARE").setCurrentIndex(1);
  EXPECT_EQ(compared("Points scored"), "2 3");
  find<QComboBox>("cmbCOMPARE").setCurrentIndex(2);
  EXPECT_EQ(compared("Points scored"), "2 0") << "the halves";
}

TEST_F(ScorecardWindowTest, CheckMarksChangeTheChart) {
  setCheck(table(0), rowOf(table(0), "12"), Qt::Unchecked);
  EXPECT_EQ(marks(), 2U);
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("2"));
  EXPECT_EQ(check(table(0), 4), Qt::PartiallyChecked);
  find<QToolButton>("cmdALL").click();
  EXPECT_EQ(marks(), 3U);
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("4"));
  find<QToolButton>("cmdSELECTED").click();
  EXPECT_EQ(marks(), 2U);
  setCheck(table(0), 4, Qt::Checked);
  EXPECT_EQ(check(table(0), rowOf(table(0), "12")), Qt::Checked);
  EXPECT_EQ(marks(), 3U);
  setCheck(table(0), 4, Qt::Unchecked);
  EXPECT_EQ(check(table(0), 4), Qt::Unchecked);
  EXPECT_EQ(marks(), 0U);
  EXPECT_EQ(cell(table(0), 4, kPoints), QStringLiteral("0"));
  setCheck(table(0), 4, Qt::Checked);
  // By key: the rows that are selected.
  table(0).setFocus();
  table(0).setCurrentIndex(table(0).model()->index(0, kPoints));
  QTest::keyClick(&table(0), Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&table(0), Qt::Key_Space);
  EXPECT_EQ(check(table(0), 0), Qt::Unchecked);
  EXPECT_EQ(check(table(0), 1), Qt::Unchecked);
  EXPECT_EQ(marks(), 1U);
}

TEST_F(ScorecardWindowTest, ARefreshKeepsSelectionSortScrollAndChecks) {
  for (int clock = 539; clock > 480; --clock)
    game.add(1, clock, {",STO,0-4"});
  window->refresh();
  window->resize(900, 560);
  table(0).sortByColumn(kPoints, Qt::DescendingOrder);
  setCheck(table(0), rowOf(table(0), "5"), Qt::Unchecked);
  table(0).selectRow(rowOf(table(0), "12"));
  table(0).horizontalScrollBar()->setValue(200);
  window->showPage(Page::Events);
  events().selectRow(5);
  events().verticalScrollBar()->setValue(40);
  QSignalSpy resets(table(0).model(), &QAbstractItemModel::modelReset);
  QSignalSpy eventResets(events().model(), &QAbstractItemModel::modelReset);
  const QString chosen = cell(events(), 5, EventListModel::Action);

  game.add(1, 470, {",GF3,0-12,110,90", ",GF3,0-99,110,90"});
  window->refresh();
  EXPECT_EQ(table(0).model()->rowCount(), 6) << "the jersey of nobody is among the others";
  EXPECT_EQ(resets.count() + eventResets.count(), 0);
  EXPECT_EQ(cell(table(0), 0, 0), QStringLiteral("12"));
  EXPECT_EQ(cell(table(0), 0, kPoints), QStringLiteral("5"));
  ASSERT_EQ(table(0).selectionModel()->selectedRows().size(), 1);
  EXPECT_EQ(table(0).selectionModel()->selectedRows()[0].row(), 0);
  EXPECT_EQ(check(table(0), rowOf(table(0), "5")), Qt::Unchecked);
  EXPECT_EQ(table(0).horizontalScrollBar()->value(), 200);
  EXPECT_EQ(events().verticalScrollBar()->value(), 40);
  EXPECT_EQ(events().currentIndex().row(), 5);
  EXPECT_EQ(cell(events(), 5, EventListModel::Action), chosen);
  // Whoever looks at the end goes on looking at the end.
  events().scrollToBottom();
  game.add(1, 460, {",STO,0-4", ",STO,0-4", ",STO,0-4"});
  window->refresh();
  EXPECT_EQ(events().verticalScrollBar()->value(), events().verticalScrollBar()->maximum());
}

TEST_F(ScorecardWindowTest, TheEventListFollowsEveryKindOfChange) {
  const int count = events().model()->rowCount();
  EXPECT_EQ(cell(events(), 3, EventListModel::Score), QStringLiteral("2-0"));
  EXPECT_EQ(cell(events(), 4, EventListModel::Score), QString()) << "a miss changes no score";
  EXPECT_EQ(cell(events(), 3, EventListModel::Clock), QStringLiteral("09:50"));
  events().setCurrentIndex(events().model()->index(6, 0)); // the assist
  const QString chosen = cell(events(), 6, EventListModel::Action);
  ASSERT_EQ(game.file.setDeleted({{1, "4"}}, true), GameFileProblem::None);
  window->refresh();
  EXPECT_EQ(events().model()->rowCount(), count);
  EXPECT_TRUE(
      events().model()->index(3, EventListModel::Action).data(Qt::FontRole).value<QFont>().strikeOut());
  EXPECT_EQ(cell(events(), 5, EventListModel::Score), QStringLiteral("0-3"));
  EXPECT_EQ(find<QLabel>("lblSCORE(0)").text(), QStringLiteral("2"));
  insert("5", "09:45,STO,0-4");
  window->refresh();
  EXPECT_EQ(events().model()->rowCount(), count + 1);
  EXPECT_EQ(events().currentIndex().row(), 7) << "moved on with its event";
  EXPECT_EQ(cell(events(), 7, EventListModel::Action), chosen);

  find<QLineEdit>("txtSEARCH").setText(QStringLiteral("cleo"));
  EXPECT_GT(events().model()->rowCount(), 0);
  EXPECT_LT(events().model()->rowCount(), count);
  for (int row = 0; row < events().model()->rowCount(); ++row)
    EXPECT_TRUE(cell(events(), row, EventListModel::Action).contains(QStringLiteral("Cleo")));
}

TEST_F(ScorecardWindowTest, AChosenShotStandsOutInTheChart) {
  events().setCurrentIndex(events().model()->index(4, 0));
  const auto& drawn = find<CourtView>("courtstat").marks();
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_FALSE(drawn[0].isHighlighted);
  EXPECT_TRUE(drawn[1].isHighlighted);
  insert("4", "09:55,STO,0-4");
  window->refresh();
  ASSERT_EQ(drawn.size(), 3U);
  EXPECT_FALSE(drawn[0].isHighlighted);
  EXPECT_TRUE(drawn[1].isHighlighted) << "the same shot, though it is another place in the list";
}

// Lines are numbered as they first come on court.
TEST_F(ScorecardWindowTest, ALineStaysItselfWhenAnotherComesBeforeIt) {
  const auto rowOfLine = [&](const char* jerseys) { return rowOf(table(1), jerseys, 1); };
  window->setByLine(true);
  setCheck(table(1), rowOfLine("5-12"), Qt::Unchecked);
  table(1).selectRow(rowOfLine("5-12"));
  insert("8", "09:35" + stopText("IN-04-12", "IN-07-08"));
  insert("8", "09:32,STO,0-4");
  window->refresh();
  ASSERT_EQ(table(1).model()->rowCount(), 4);
  EXPECT_EQ(check(table(1), rowOfLine("5-12")), Qt::Unchecked);
  EXPECT_EQ(check(table(1), rowOfLine("4-12")), Qt::Checked);
  ASSERT_EQ(table(1).selectionModel()->selectedRows().size(), 1);
  EXPECT_EQ(table(1).selectionModel()->selectedRows()[0].row(), rowOfLine("5-12"));
}

TEST_F(ScorecardWindowTest, TimedModesReadAgainAndRestartTheirPeriod) {
  QSignalSpy states(window.get(), &frmVIEW::commandStateChanged);
  for (const Mode mode : {Mode::Every10, Mode::Every30, Mode::Every60}) {
    window->setRefreshMode(mode);
    EXPECT_TRUE(timer().isActive());
    EXPECT_EQ(timer().interval(), static_cast<int>(mode) * 1000);
  }
  EXPECT_EQ(states.count(), 3);
  window->setRefreshMode(Mode::Every30);
  QTest::qWait(40);
  window->setRefreshMode(Mode::Every30);
  EXPECT_GT(timer().remainingTime(), 29'980) << "the same mode again starts its period anew";

  game.add(1, 530, {",GFT,1-8"});
  EXPECT_EQ(find<QLabel>("lblSCORE(1)").text(), QStringLiteral("3"));
  tick();
  EXPECT_EQ(find<QLabel>("lblSCORE(1)").text(), QStringLiteral("4"));

  window->setRefreshMode(Mode::Manual);
  EXPECT_FALSE(timer().isActive());
  game.add(1, 520, {",GFT,1-8"});
  EXPECT_EQ(find<QLabel>("lblSCORE(1)").text(), QStringLiteral("4"));
  window->refresh();
  EXPECT_EQ(find<QLabel>("lblSCORE(1)").text(), QStringLiteral("5"));
}

TEST_F(ScorecardWindowTest, ATickOnAnUnchangedFileDoesNothing) {
  settleFile();
  window->refresh();
  QLabel& score = find<QLabel>("lblSCORE(0)");
  score.setText(QStringLiteral("untouched"));
  tick();
  EXPECT_EQ(score.text(), QStringLiteral("untouched"));
  game.add(1, 500, {",GFT,0-4"});
  tick();
  EXPECT_EQ(score.text(), QStringLiteral("5"));
}

TEST_F(ScorecardWindowTest, AFileThatIsGoneOrBrokenKeepsWhatWasShownAndSaysSo) {
  const std::string path = game.file.path();
  const std::string whole = game.folder.read("seen.GAM");
  fs::remove(path);
  tick();
  EXPECT_TRUE(notice().isVisible());
  EXPECT_EQ(notice().text(), toQt(texts.withPlaceholder(Text::FileIsGone, "seen.GAM")));
  EXPECT_EQ(find<QLabel>("lblSCORE(0)").text(), QStringLiteral("4"));
  EXPECT_EQ(table(0).model()->rowCount(), 5);
  EXPECT_EQ(marks(), 3U);

  game.folder.write("seen.GAM", "not a game");
  tick();
  EXPECT_TRUE(notice().isVisible());
  EXPECT_NE(notice().text(), toQt(texts.withPlaceholder(Text::FileIsGone, "seen.GAM")));
  EXPECT_EQ(find<QLabel>("lblSCORE(0)").text(), QStringLiteral("4"));
  window->relabelWindow();
  EXPECT_TRUE(notice().isVisible()) << "a language switch is no recovery";
  game.folder.write("seen.GAM", whole);
  game.add(1, 500, {",GFT,0-4"});
  tick();
  EXPECT_FALSE(notice().isVisible());
  EXPECT_EQ(find<QLabel>("lblSCORE(0)").text(), QStringLiteral("5"));
}

TEST_F(ScorecardWindowTest, NothingIsShownOfAFileThatIsRefused) {
  frmVIEW other(game.store, settings, texts);
  EXPECT_EQ(other.open(toQt(game.folder.path("missing.GAM"))), GameFileProblem::Absent);
  EXPECT_EQ(other.open(toQt(game.folder.write("bad.GAM", "[DETAILS]\r\nVERSION=1.0\r\n"))),
            GameFileProblem::InvalidFormat);
  EXPECT_TRUE(other.path().isEmpty());
  other.refresh();
  other.setByLine(true);
  other.relabelWindow();
  EXPECT_EQ(other.findChild<QTableView*>(QStringLiteral("lvwSTAT(0)"))->model()->rowCount(), 0);
}

TEST_F(ScorecardWindowTest, AnotherLanguageChangesThreeHeadersAndTheWords) {
  const QAbstractItemModel& rows = *table(0).model();
  const auto headers = [&] {
    QStringList result;
    for (int column = 0; column < boxColumnCount(); ++column)
      result << rows.headerData(column, Qt::Horizontal).toString();
    return result;
  };
  const QStringList english = headers();
  const QString foul = cell(events(), 7, EventListModel::Action);
  const QString hint = rows.headerData(kFieldGoalsMade, Qt::Horizontal, Qt::ToolTipRole).toString();
  EXPECT_TRUE(
      rows.headerData(30, Qt::Horizontal, Qt::ToolTipRole).toString().contains(QStringLiteral("Charges")));
  texts.setLanguage(Language::French);
  window->relabelWindow();
  const QStringList french = headers();
  QList<int> changed;
  for (int column = 0; column < boxColumnCount(); ++column) {
    if (english[column] != french[column])
      changed << column + 1;
  }
  EXPECT_EQ(changed, (QList<int>{2, 3, 34}));
  EXPECT_NE(cell(events(), 7, EventListModel::Action), foul);
  EXPECT_NE(rows.headerData(kFieldGoalsMade, Qt::Horizontal, Qt::ToolTipRole).toString(), hint);
  EXPECT_EQ(find<QLineEdit>("txtTYPEPARTIE").text(), toQt(texts.text(Text::Season)));
}

TEST_F(ScorecardWindowTest, CopiesTheColumnsThatAreShownInTheirOrder) {
  QSignalSpy reports(window.get(), &frmVIEW::reported);
  window->setHidesMadeAttempted(true);
  table(0).setFocus();
  QTest::keyClick(&table(0), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split(u'\n');
  ASSERT_EQ(lines.size(), 7) << "headers, five rows, the end of the last line";
  const QStringList header = lines[0].split(u'\t');
  EXPECT_EQ(header.size(), boxColumnCount() - 1 - 16)
      << "the sort key, and made and attempted of eight kinds";
  EXPECT_EQ(header[0], QStringLiteral("No"));
  EXPECT_EQ(header[2], QStringLiteral("Pos"));
  EXPECT_FALSE(header.contains(QStringLiteral("FGM")));
  EXPECT_EQ(lines[1].split(u'\t')[1], QStringLiteral("Ann Able"));
  EXPECT_EQ(reports.count(), 1);
  table(0).selectAll();
  table(0).selectionModel()->select(table(0).model()->index(0, 0),
                                    QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
  EXPECT_EQ(tableText(tableContent(table(0), TableExtent::Selected)).count(u'\n'), 5);
}

// What no program of ours writes, but what a file may hold.
class OddGameTest : public ScorecardWindowTest {
 protected:
  void SetUp() override {}
  static std::string details() {
    return "[DETAILS]\nVERSION=2.0\nNBREPERIODE=4\nDUREE=10\nEQUIPE0ABB=A\nEQUIPE1ABB=B\nTYPE=77\n";
  }
};

TEST_F(OddGameTest, TenThousandEventsHundredLinesAndTwentyPlayersOpen) {
  std::string text = details() + "[0]\r\n";
  for (int jersey = 10; jersey < 30; ++jersey)
    text += std::to_string(jersey) + "=0,Player " + std::to_string(jersey) + "\r\n";
  text += "[1]\r\n7=1,Somebody\r\n[PERIODE1]\r\n";
  for (int event = 1; event <= 10'000; ++event) {
    text += std::to_string(event) + "=";
    const std::string jersey = std::to_string(10 + event % 20);
    const std::string clock = "0" + std::to_string(9 - event / 1'200) + ":" + std::to_string(10 + event % 50);
    switch (event % 5) {
    case 0: text += clock + ",ARRET,IN-10-11-12-13-" + std::to_string(14 + event / 5 % 110) + ",IN-07"; break;
    case 1: text += clock + ",GFG,0-" + jersey + ",900,-4"; break;
    case 2: text += clock + ",XYZ,0-" + jersey; break;
    case 3: text += "E" + clock + ",SPF,0-" + jersey; break;
    default: text += "what is this?"; break;
    }
    text += "\r\n";
  }
  show(game.folder.write("odd.GAM", text));
  EXPECT_EQ(events().model()->rowCount(), 10'000);
  EXPECT_EQ(table(0).model()->rowCount(), 17) << "fifteen, the others, the total";
  window->setByLine(true);
  EXPECT_EQ(table(1).model()->rowCount(), 102) << "a hundred lines, the others, the total";
  EXPECT_TRUE(cell(events(), 3, EventListModel::Action).contains(QStringLiteral("what is this?")));
  find<QLineEdit>("txtSEARCH").setText(QStringLiteral("what is"));
  EXPECT_EQ(events().model()->rowCount(), 2'000);
  window->grab();
}

// In the room that the smallest screen leaves of the program's window.
TEST_F(OddGameTest, TwoRostersOfTwelveStandOnOneScreenAndOfFifteenScroll) {
  for (const int players : {12, 15}) {
    std::string text = details();
    for (const char* section : {"[0]\n", "[1]\n"}) {
      text += section;
      for (int jersey = 1; jersey <= players; ++jersey)
        text += std::to_string(jersey) + "=1,Somebody " + std::to_string(jersey) + "\n";
    }
    show(game.folder.write("full.GAM", text));
    window->showPage(Page::Game);
    window->resize(1600, 686);
    QCoreApplication::processEvents();
    const int scroll = find<QTableView>("lvwBOX(1)").verticalScrollBar()->maximum();
    EXPECT_TRUE(players == 12 ? scroll == 0 : scroll > 0) << players << ' ' << scroll;
    EXPECT_LE(window->minimumSizeHint().width(), 1024) << "no wider than a small screen";
  }
}

TEST_F(OddGameTest, AGameWithoutAnythingOpens) {
  show(game.folder.write("empty.GAM", details()));
  watchModels();
  EXPECT_EQ(events().model()->rowCount(), 0);
  EXPECT_EQ(find<QLineEdit>("txtTYPEPARTIE").text(), toQt(texts.text(Text::OtherType)));
  window->setByLine(true);
  EXPECT_EQ(table(1).model()->rowCount(), 1);
  for (const Page page :
       {Page::Game, Page::AllColumns, Page::Flow, Page::Shots, Page::Compare, Page::Events, Page::Details}) {
    window->showPage(page);
    window->grab();
  }
  find<QComboBox>("cmbCOMPARE").setCurrentIndex(1);
  EXPECT_TRUE(find<ComparisonBars>("picCOMPARED").tableContent().rows.empty()) << "nobody has played";
}

TEST_F(OddGameTest, ACountThatLeftItsRangeIsNamed) {
  std::string text = details() + "[0]\r\n4=0,Ann Able\r\n[1]\r\n7=1,Somebody\r\n[PERIODE1]\r\n";
  for (int event = 1; event <= 33'000; ++event)
    text += std::to_string(event) + "=09:00,STO,0-4\r\n";
  show(game.folder.write("long.GAM", text));
  EXPECT_TRUE(notice().isVisible());
  EXPECT_TRUE(notice().text().contains(QStringLiteral("long.GAM")));
  EXPECT_TRUE(notice().text().contains(QStringLiteral("TO")));
}

} // namespace
} // namespace hooptab
