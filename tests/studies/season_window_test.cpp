#include "catalogue/SeasonFolder.h"
#include "court/CourtView.h"
#include "season/SeriesView.h"
#include "studies/SavedViews.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QClipboard>
#include <QDateEdit>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QSpinBox>
#include <filesystem>

#include "SeasonWindow.h"

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using Fatal = QAbstractItemModelTester::FailureReportingMode;

constexpr int kGames = 24;
constexpr int kPoints = 10; // columns of the season tables, from 0
constexpr int kTime = 2;

// The window on a folder of simulated games, one of them twice, with a file that is no game.
class SeasonWindowTest : public SeasonWindow {
 protected:
  static void SetUpTestSuite() {
    s_season = std::make_unique<TemporaryFolder>();
    writeGames(*s_season, kGames, 11);
    fs::copy_file(s_season->path("3.GAM"), s_season->path("copy.GAM"));
    (void)s_season->write("broken.GAM", "no game");
    fs::create_directory(s_season->path("more"));
    fs::copy_file(s_season->path("5.GAM"), s_season->path("more/5.GAM"));
  }
  static void TearDownTestSuite() { s_season.reset(); }

  void SetUp() override {
    settings.lastGameFolder = s_season->path();
    makeWindow();
    for (SeasonTableView* table : window->findChildren<SeasonTableView*>())
      new QAbstractItemModelTester(&table->content(), Fatal::Fatal, &table->content());
  }
  using SeasonWindow::read;
  void read() {
    window->readFolder();
    EXPECT_TRUE(window->isBusy());
    wait();
  }
  void readAndGenerate() {
    read();
    generate();
  }
  void choose(const char* name, const QString& entry) {
    auto& choice = find<QComboBox>(name);
    ASSERT_GE(choice.findText(entry), 0) << name << fromQt(entry);
    choice.setCurrentIndex(choice.findText(entry));
  }
  QString currentPage() const {
    const auto& tabs = find<QTabWidget>("tabs");
    return tabs.tabText(tabs.currentIndex()).remove(u'&');
  }

  static inline std::unique_ptr<TemporaryFolder> s_season;
};

TEST_F(SeasonWindowTest, ListsTheGamesOfAFolder) {
  read();
  EXPECT_EQ(rows("lvwGAMES"), kGames + 1);
  EXPECT_EQ(find<QLabel>("lblGAMES").text(), QStringLiteral("25 of 25 games"));
  EXPECT_TRUE(find<QLabel>("lblPROGRESS").text().contains(QStringLiteral("26"))) << "files found";
  EXPECT_EQ(find<QComboBox>("lstequipes").count(), 5) << "all, and four teams";
  EXPECT_EQ(find<QToolButton>("cmdNOTREAD").text(), QStringLiteral("1 file was not read"));
  find<QToolButton>("cmdNOTREAD").click();
  ASSERT_EQ(rows("lvwNOTREAD"), 1);
  EXPECT_TRUE(table("lvwNOTREAD").isVisible());
  EXPECT_TRUE(cell("lvwNOTREAD", 0, 0).endsWith(QStringLiteral("broken.GAM")));
  EXPECT_EQ(cell("lvwNOTREAD", 0, 1), caption(texts, Text::NoHooptabGame));
  find<QCheckBox>("chkSUBFOLDERS").click();
  wait();
  EXPECT_EQ(rows("lvwGAMES"), kGames + 2);
}

TEST_F(SeasonWindowTest, HiddenColumnsOfTheListSortLikeTheOthers) {
  read();
  SeasonTableView& games = table("lvwGAMES");
  ASSERT_EQ(games.model()->columnCount(), 17);
  for (int column = 9; column < 17; ++column)
    EXPECT_TRUE(games.isColumnHidden(column)) << column;
  EXPECT_TRUE(cell("lvwGAMES", 0, 9).endsWith(QStringLiteral(".GAM")));
  for (int column = 0; column < 17; ++column) {
    games.model()->sort(column, Qt::DescendingOrder);
    const QVariant first = games.model()->index(0, column).data(SnapshotModel::kSortRole);
    const QVariant last = games.model()->index(kGames, column).data(SnapshotModel::kSortRole);
    if (first.userType() == QMetaType::Double)
      EXPECT_GE(first.toDouble(), last.toDouble()) << column;
    else
      EXPECT_GE(QString::localeAwareCompare(first.toString(), last.toString()), 0) << column;
  }
  games.model()->sort(-1, Qt::AscendingOrder);
  EXPECT_LE(cell("lvwGAMES", 0, 0), cell("lvwGAMES", kGames, 0)) << "unsorted: by date";
}

TEST_F(SeasonWindowTest, CriteriaNarrowTheListWhenTheyAreApplied) {
  read();
  EXPECT_FALSE(find<QPushButton>("cmdFILTER").isEnabled()) << "nothing was changed";
  const QString team = find<QComboBox>("lstequipes").itemText(1);
  choose("lstequipes", team);
  EXPECT_EQ(rows("lvwGAMES"), kGames + 1) << "not yet";
  click("cmdFILTER");
  const int ofTeam = rows("lvwGAMES");
  EXPECT_GT(ofTeam, 0);
  EXPECT_LT(ofTeam, kGames);
  for (int row = 0; row < ofTeam; ++row)
    EXPECT_TRUE(cell("lvwGAMES", row, 2).contains(u'-')) << "the team's own result: W 87-80";
  choose("lstOU", caption(texts, Text::AtHome));
  click("cmdFILTER");
  const int atHome = rows("lvwGAMES");
  choose("lstOU", caption(texts, Text::Away));
  click("cmdFILTER");
  EXPECT_EQ(atHome + rows("lvwGAMES"), ofTeam);
  choose("lstOU", caption(texts, Text::All));
  choose("lstequipes", caption(texts, Text::All));
  find<QCheckBox>("chkCOPIES").click();
  click("cmdFILTER");
  EXPECT_EQ(rows("lvwGAMES"), kGames);

  auto& from = find<QDateEdit>("DTdu(0)");
  EXPECT_FALSE(from.isEnabled());
  find<QCheckBox>("chkdate").click();
  EXPECT_TRUE(from.isEnabled());
  EXPECT_EQ(from.text(), cell("lvwGAMES", 0, 0)) << "the season's first day";
  from.setDate(QDate::fromString(cell("lvwGAMES", 10, 0), Qt::ISODate));
  click("cmdFILTER");
  EXPECT_LE(rows("lvwGAMES"), kGames - 9);
  EXPECT_GT(rows("lvwGAMES"), 0);
  from.setDate(QDate(2040, 1, 1));
  click("cmdFILTER");
  EXPECT_EQ(rows("lvwGAMES"), 0);
  EXPECT_FALSE(find<QPushButton>("cmdGENERATE").isEnabled());
}

TEST_F(SeasonWindowTest, GeneratesTheTablesInTheirInstances) {
  readAndGenerate();
  EXPECT_EQ(currentPage(), QStringLiteral("Players"));
  EXPECT_TRUE(find<QLabel>("lblPROGRESS").text().contains(QStringLiteral("25 Games Selected")));
  const int columns = static_cast<int>(seasonColumns().size());
  for (const char* name :
       {"lvwSTATjoueurs(0)", "lvwSTATjoueurs(1)", "lvwSTATjoueurs(2)", "lvwSTATjoueurs(3)"}) {
    EXPECT_EQ(table(name).model()->columnCount(), columns + 3) << name;
    EXPECT_EQ(table(name).horizontalHeader()->visualIndex(columns + 1), 2) << "the team, beside the name";
    EXPECT_TRUE(table(name).isColumnHidden(54)) << name;
    EXPECT_EQ(rows(name), rows("lvwSTATjoueurs(0)")) << name;
  }
  EXPECT_TRUE(cell("lvwSTATlignes(0)", 0, 1).contains(u',')) << "its players by name";
  const int ofLines = columns - 2; // lines have no positions
  EXPECT_EQ(table("lvwSTATlignes(0)").model()->columnCount(), ofLines + 3);
  EXPECT_TRUE(cell("lvwSTATlignes(0)", 0, ofLines + 1).contains(u'-')) << "its team";
  EXPECT_GT(rows("lvwSTATlignes(2)"), rows("lvwSTATjoueurs(0)"));
  // By rank: the most points first; and each instance the same row divided.
  const double total = cell("lvwSTATjoueurs(0)", 0, kPoints).toDouble();
  const double games = cell("lvwSTATjoueurs(0)", 0, 3).toDouble();
  EXPECT_GE(total, cell("lvwSTATjoueurs(0)", 1, kPoints).toDouble());
  EXPECT_NEAR(cell("lvwSTATjoueurs(1)", 0, kPoints).toDouble(), total / games, 0.051);
  EXPECT_EQ(cell("lvwSTATjoueurs(2)", 0, kTime), QStringLiteral("--"));
  EXPECT_EQ(cell("lvwSTATjoueurs(0)", 0, 52), QStringLiteral("1"));
  QWidget& page = *find<QTabWidget>("tabs").currentWidget();
  auto& warning = *page.findChild<QLabel*>(QStringLiteral("lblMINWarning"));
  EXPECT_FALSE(warning.isVisible());
  table("lvwSTATjoueurs(0)").setCurrentIndex(table("lvwSTATjoueurs(0)").model()->index(2, 0));
  page.findChild<QToolButton*>(QStringLiteral("cmdPERMINUTE"))->click();
  EXPECT_TRUE(warning.isVisible());
  EXPECT_EQ(table("lvwSTATjoueurs(2)").currentRow(), 2) << "the player stays chosen";
  // Short rows bear a star, and only they.
  bool hasStar = false;
  for (int row = 0; row < rows("lvwSTATlignes(2)"); ++row) {
    const bool isShort = cell("lvwSTATlignes(0)", row, kTime).split(u':').first().toInt() < 10;
    hasStar = hasStar || isShort;
    EXPECT_EQ(cell("lvwSTATlignes(2)", row, 1).endsWith(u'*'), isShort) << row;
    EXPECT_FALSE(cell("lvwSTATlignes(0)", row, 1).endsWith(u'*'));
  }
  EXPECT_TRUE(hasStar);
}

TEST_F(SeasonWindowTest, TellsWhenStatisticsAreOfAnotherSelection) {
  readAndGenerate();
  auto& notice = find<QLabel>("lblNOTICE");
  EXPECT_FALSE(notice.isVisible());
  choose("lstequipes", find<QComboBox>("lstequipes").itemText(2));
  click("cmdFILTER");
  EXPECT_TRUE(notice.isVisible());
  EXPECT_TRUE(notice.text().contains(QStringLiteral("25")));
  const int all = rows("lvwSTATjoueurs(0)");
  generate();
  EXPECT_FALSE(notice.isVisible());
  EXPECT_LT(rows("lvwSTATjoueurs(0)"), all) << "the team's own players";
}

TEST_F(SeasonWindowTest, ShowsAPlayerGameByGame) {
  readAndGenerate();
  const QString name = cell("lvwSTATjoueurs(0)", 0, 1);
  const int games = cell("lvwSTATjoueurs(0)", 0, 3).toInt();
  emit table("lvwSTATjoueurs(0)").rowAsked(0);
  wait();
  EXPECT_EQ(currentPage(), QStringLiteral("Player or Line"));
  EXPECT_EQ(find<QLabel>("lblNom").text(), name);
  EXPECT_TRUE(find<QLabel>("jGAME").text().contains(QString::number(games)));
  EXPECT_EQ(rows("lvwRESULTS"), games);
  ASSERT_EQ(rows("lvwRECORD"), 22);
  EXPECT_EQ(cell("lvwRECORD", 0, 0), QStringLiteral("PT"));
  int most = 0;
  for (int row = 0; row < games; ++row)
    most = std::max(most, cell("lvwRESULTS", row, 11).toInt());
  EXPECT_EQ(cell("lvwRECORD", 0, 1), QString::number(most));
  EXPECT_FALSE(cell("lvwRECORD", 0, 2).isEmpty()) << "and where";
  auto& picture = find<SeriesView>("picGAMES");
  ASSERT_EQ(static_cast<int>(picture.drawing().values.size()), games);
  EXPECT_EQ(*std::ranges::max_element(picture.drawing().values), most);
  EXPECT_TRUE(picture.drawing().title.contains(QStringLiteral("Points")));
  const auto high = [&](int row) {
    const QVariant ground = table("lvwRESULTS").model()->index(row, 11).data(Qt::BackgroundRole);
    return ground.value<QBrush>().color() == Theme::look().seasonHigh;
  };
  for (int row = 0; row < games; ++row)
    EXPECT_EQ(high(row), cell("lvwRESULTS", row, 11).toInt() == most) << row;
  ASSERT_EQ(rows("lvwAVERAGES"), 3);
  EXPECT_EQ(cell("lvwAVERAGES", 0, 9), cell("lvwSTATjoueurs(1)", 0, kPoints));
  ASSERT_EQ(rows("lvwONOFF"), 6);
  EXPECT_NEAR(cell("lvwONOFF", 0, 1).toDouble() - cell("lvwONOFF", 0, 2).toDouble(),
              cell("lvwONOFF", 0, 3).replace(QChar(0x2212), u'-').toDouble(), 0.11);
  EXPECT_TRUE(dynamic_cast<ShownPicture&>(find<QWidget>("picHEXAGONS")).hasPicture());
  QSignalSpy opened(window.get(), &frmSTATS::gameAsked);
  emit table("lvwRESULTS").rowAsked(0);
  QTest::keyClick(&picture, Qt::Key_Right);
  QTest::keyClick(&picture, Qt::Key_Return);
  ASSERT_EQ(opened.size(), 2);
  EXPECT_EQ(opened[0][0], opened[1][0]) << "both are the first game";
  EXPECT_TRUE(fs::exists(fromQt(opened[0][0].toString())));

  emit table("lvwSTATlignes(0)").rowAsked(0);
  wait();
  EXPECT_EQ(find<QTabWidget>("personTabs").tabText(2), caption(texts, Text::LineRecords));
  EXPECT_FALSE(find<QWidget>("picSHOTS").findChild<CourtView*>()->isVisible()) << "no shots are kept by line";
}

TEST_F(SeasonWindowTest, OpensAGameByDoubleClickAndByEnter) {
  read();
  QSignalSpy opened(window.get(), &frmSTATS::gameAsked);
  find<QTabWidget>("tabs").setCurrentIndex(1);
  SeasonTableView& games = table("lvwGAMES");
  games.model()->sort(0, Qt::DescendingOrder);
  const QPoint place = games.visualRect(games.model()->index(1, 1)).center();
  QTest::mouseClick(games.viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(games.viewport(), Qt::LeftButton, {}, place);
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened[0][0].toString(), cell("lvwGAMES", 1, 9)) << "of the order shown";
  games.setFocus();
  QTest::keyClick(&games, Qt::Key_Return);
  EXPECT_EQ(opened.size(), 2);
}

TEST_F(SeasonWindowTest, ShowsTheStandingsOfTheGamesAsSoonAsTheyAreRead) {
  read();
  EXPECT_EQ(currentPage(), QStringLiteral("Standings"));
  ASSERT_EQ(rows("lvwSTANDINGS"), 4);
  const auto games = [this] {
    int sum = 0;
    for (int row = 0; row < rows("lvwSTANDINGS"); ++row)
      sum += cell("lvwSTANDINGS", row, 3).toInt();
    return sum;
  };
  EXPECT_LT(games(), 2 * (kGames + 1)) << "without practice";
  find<QCheckBox>("chkPRACTICE").click();
  EXPECT_EQ(games(), 2 * (kGames + 1));
  find<QToolButton>("cmdFILTERS").click();
  find<QLineEdit>("lvwSTANDINGSfilters(0)").setText(QStringLiteral("<3"));
  EXPECT_EQ(rows("lvwSTANDINGS"), 2);
  find<QToolButton>("cmdFILTERS").click();
  EXPECT_GE(cell("lvwSTANDINGS", 0, 6).toDouble(), cell("lvwSTANDINGS", 3, 6).toDouble());
  auto& last = find<QListWidget>("lvwLASTGAMES");
  QSignalSpy opened(window.get(), &frmSTATS::gameAsked);
  emit last.itemActivated(last.item(0));
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened[0][0].toString(), cell("lvwGAMES", kGames, 9)) << "the last of the list";
  generate();
  auto& leaders = find<QListWidget>("lvwBOARD(0)");
  ASSERT_EQ(leaders.count(), 3);
  EXPECT_TRUE(leaders.item(0)->text().contains(cell("lvwSTATjoueurs(1)", 0, 1)));
  emit table("lvwSTANDINGS").rowAsked(1);
  EXPECT_EQ(currentPage(), QStringLiteral("Team"));
  EXPECT_TRUE(find<QComboBox>("lstTEAM").currentText().startsWith(cell("lvwSTANDINGS", 1, 1)));
}

TEST_F(SeasonWindowTest, FindsEventsOfTheSelectedGames) {
  read();
  auto& field = find<QLineEdit>("txtSEARCHEVENTS");
  const auto search = [&](const char* text) {
    field.setText(QLatin1String(text));
    emit field.returnPressed();
    wait();
  };
  search("nonsense");
  EXPECT_EQ(currentPage(), QStringLiteral("Search"));
  EXPECT_TRUE(find<QLabel>("lblUNDERSTOOD").text().contains(QStringLiteral("nonsense")));
  search("3P made last minute");
  const int found = rows("lvwFOUND");
  ASSERT_GT(found, 0);
  QSignalSpy opened(window.get(), &frmSTATS::gameAsked);
  emit table("lvwFOUND").rowAsked(0);
  ASSERT_EQ(opened.size(), 1);
  choose("lstequipes", find<QComboBox>("lstequipes").itemText(1));
  click("cmdFILTER");
  search("3P made last minute");
  EXPECT_LT(rows("lvwFOUND"), found) << "of the selected games alone";
}

TEST_F(SeasonWindowTest, FiltersTypedAboveTheColumnsHoldRowsBack) {
  readAndGenerate();
  const int all = rows("lvwSTATjoueurs(1)");
  auto& field = find<QLineEdit>("lvwSTATjoueurs(1)filters(10)");
  EXPECT_FALSE(field.isVisible());
  find<QToolButton>("cmdFILTERS").click();
  field.setText(QStringLiteral(">10"));
  const int some = rows("lvwSTATjoueurs(1)");
  EXPECT_GT(some, 0);
  EXPECT_LT(some, all);
  table("lvwSTATjoueurs(1)").model()->sort(kPoints, Qt::AscendingOrder);
  EXPECT_GT(cell("lvwSTATjoueurs(1)", 0, kPoints).toDouble(), 9.9);
  const QString first = cell("lvwSTATjoueurs(1)", 0, 1);
  const int source = table("lvwSTATjoueurs(1)").content().sourceRow(0);
  find<QToolButton>("cmdFILTERS").click();
  EXPECT_EQ(rows("lvwSTATjoueurs(1)"), all) << "hidden fields hold nothing back";
  EXPECT_EQ(cell("lvwSTATjoueurs(1)", table("lvwSTATjoueurs(1)").content().shownRow(source), 1), first);
}

TEST_F(SeasonWindowTest, TheGamesForOneFileAreThoseShownOrSelected) {
  EXPECT_TRUE(window->chosenGames().empty());
  read();
  const int all = rows("lvwGAMES");
  ASSERT_GE(all, 3);
  table("lvwGAMES").selectRow(1);
  EXPECT_EQ(std::ssize(window->chosenGames()), all) << "a row that is only the current one";
  table("lvwGAMES").setSelectionMode(QAbstractItemView::MultiSelection);
  table("lvwGAMES").selectRow(2);
  const auto chosen = window->chosenGames();
  ASSERT_EQ(chosen.size(), 2U);
  EXPECT_EQ(toQt(chosen[0]->date), cell("lvwGAMES", 1, 0));
}

TEST_F(SeasonWindowTest, AViewIsKeptUnderItsName) {
  readAndGenerate();
  const QString team = find<QComboBox>("lstequipes").itemText(2);
  choose("lstequipes", team);
  click("cmdFILTER");
  generate();
  find<QTabWidget>("tabs").setCurrentIndex(4);
  find<QToolButton>("cmdFILTERS").click();
  find<QLineEdit>("lvwGAMESfilters(2)").setText(QStringLiteral("W"));
  const int wins = rows("lvwGAMES");
  emit find<SavedViews>("cmdVIEWS").keepAsked(QStringLiteral("Wins & more"));
  const QByteArray kept = window->arrangement();
  makeWindow();
  window->restoreArrangement(kept);
  read();
  EXPECT_GT(rows("lvwGAMES"), wins);
  const SavedViews::Views& views = find<SavedViews>("cmdVIEWS").views();
  ASSERT_EQ(views.keys(), QStringList(QStringLiteral("Wins & more")));
  emit find<SavedViews>("cmdVIEWS").viewAsked(views.first());
  wait();
  EXPECT_EQ(rows("lvwGAMES"), wins);
  EXPECT_EQ(find<QComboBox>("lstequipes").currentText(), team);
  EXPECT_EQ(currentPage(), QStringLiteral("Leaders"));
  EXPECT_NE(window->statistics(), nullptr) << "what the page shows is made";
}

TEST_F(SeasonWindowTest, ShowsLeadersAndATeam) {
  readAndGenerate();
  ASSERT_GE(rows("lvwLEADERS"), 10);
  EXPECT_EQ(cell("lvwLEADERS", 0, 3), cell("lvwSTATjoueurs(0)", 0, 1)) << "points are shown first";
  EXPECT_EQ(cell("lvwLEADERS", 0, 5), cell("lvwSTATjoueurs(0)", 0, kPoints));
  table("lvwFIRST").setCurrentIndex(table("lvwFIRST").model()->index(0, 0));
  EXPECT_TRUE(cell("lvwLEADERS", 0, 5).contains(u':')) << "the time played";
  EXPECT_EQ(cell("lvwFIRST", 0, 1), cell("lvwLEADERS", 0, 3));

  auto& teams = find<QComboBox>("lstTEAM");
  EXPECT_EQ(teams.count(), 4);
  const auto& margins = find<SeriesView>("picMARGINS").drawing();
  int wins = 0;
  for (const auto& margin : margins.values)
    wins += *margin > 0 ? 1 : 0;
  EXPECT_TRUE(find<QLabel>("lblBALANCE").text().startsWith(QString::number(wins) + QStringLiteral(" win")));
  EXPECT_EQ(rows("lvwTEAMGAMES"), static_cast<int>(margins.values.size()));
  EXPECT_EQ(cell("lvwSPLITS", 1, 1), QString::number(wins)) << "games won";
  const int fives = rows("lvwTOGETHER");
  find<QComboBox>("lstTOGETHER").setCurrentIndex(2);
  EXPECT_EQ(cell("lvwTOGETHER", 0, 0).count(u','), 1) << "pairs";
  EXPECT_NE(rows("lvwTOGETHER"), fives);
  auto& readers = find<QComboBox>("lstSCOUTFOR");
  EXPECT_EQ(readers.count(), 4) << "nobody, and the three others";
  EXPECT_EQ(window->readingTeam(), std::nullopt);
  readers.setCurrentIndex(readers.findText(teams.itemText(2)));
  QSignalSpy scouting(window.get(), &frmSTATS::scoutAsked);
  click("cmdSCOUT");
  EXPECT_EQ(scouting.size(), 1);
  const QString title = margins.title;
  teams.setCurrentIndex(1);
  EXPECT_EQ(readers.currentText(), teams.itemText(2)) << "for whom it was chosen";
  EXPECT_NE(window->readingTeam(), window->shownTeam());
  EXPECT_NE(find<SeriesView>("picMARGINS").drawing().title, title);
}

TEST_F(SeasonWindowTest, LeadersAreCardsWhoseNamesOpenAPlayer) {
  settings.ownRating = {"twice", "HEART"};
  window->setFormulaReader([](std::string_view) {
    return FormulaReading{[](const RatedNumbers& of) { return std::optional(2.0 * of.box.points()); }};
  });
  readAndGenerate();
  find<QTabWidget>("tabs").setCurrentIndex(4);
  auto& points = find<QListWidget>("lvwCARD(0)");
  ASSERT_EQ(points.count(), 5);
  EXPECT_TRUE(points.isVisible());
  EXPECT_FALSE(table("lvwLEADERS").isVisible());
  const QString best = cell("lvwSTATjoueurs(0)", 0, 1);
  EXPECT_TRUE(points.item(0)->text().contains(best));
  QTest::mouseClick(points.viewport(), Qt::LeftButton, {}, points.visualItemRect(points.item(0)).center());
  wait();
  EXPECT_EQ(currentPage(), QStringLiteral("Player or Line"));
  EXPECT_EQ(find<QLabel>("lblNom").text(), best);

  const SeasonTableView& players = table("lvwSTATjoueurs(0)");
  const int own = players.model()->columnCount() - 1;
  EXPECT_EQ(players.model()->headerData(own, Qt::Horizontal).toString(), QStringLiteral("HEART"));
  EXPECT_FALSE(players.isColumnHidden(own));
  EXPECT_EQ(cell("lvwSTATjoueurs(0)", 0, own),
            QStringLiteral("%1.0").arg(2 * cell("lvwSTATjoueurs(0)", 0, kPoints).toInt()));
  settings.ownRating = {};
  window->setFormulaReader({});
  EXPECT_TRUE(players.isColumnHidden(own));
}

TEST_F(SeasonWindowTest, TheMinimumDecidesWhoLeadsAndIsKept) {
  readAndGenerate();
  find<QTabWidget>("tabs").setCurrentIndex(4);
  QWidget& page = *find<QTabWidget>("tabs").currentWidget();
  page.findChild<QToolButton*>(QStringLiteral("cmdPERGAME"))->click();
  const auto set = [&](const char* name, int value) { find<QSpinBox>(name).setValue(value); };
  const int before = rows("lvwLEADERS");
  ASSERT_GT(before, 0);
  set("txtMINGAMES", 0);
  EXPECT_TRUE(find<QLabel>("lblMINIMUM").text().contains(QStringLiteral("0% of the games")));
  EXPECT_GE(rows("lvwLEADERS"), before);
  EXPECT_FALSE(cell("lvwSTATjoueurs(1)", 0, 1).endsWith(u'*')) << "nobody is under no minimum";
  set("txtMINMINUTES", 48);
  page.findChild<QToolButton*>(QStringLiteral("cmdPERFORTY"))->click();
  EXPECT_EQ(rows("lvwLEADERS"), 0) << "nobody plays whole games";
  EXPECT_TRUE(cell("lvwSTATjoueurs(3)", 0, 1).endsWith(u'*'));
  EXPECT_FALSE(table("lvwLEADERS").isVisible());
  page.findChild<QToolButton*>(QStringLiteral("cmdASTABLE"))->click();
  EXPECT_TRUE(table("lvwLEADERS").isVisible());
  const QByteArray kept = window->arrangement();
  makeWindow();
  window->restoreArrangement(kept);
  EXPECT_TRUE(find<QToolButton>("cmdASTABLE").isChecked());
  EXPECT_FALSE(find<QCheckBox>("chkPRACTICE").isChecked());
  EXPECT_EQ(find<QSpinBox>("txtMINMINUTES").value(), 48);
  EXPECT_EQ(find<QSpinBox>("txtMINATTEMPTS").value(), 2);
}

TEST_F(SeasonWindowTest, CancelStopsGenerateAndHomeNeedsATeam) {
  read();
  EXPECT_FALSE(find<QComboBox>("lstOU").isEnabled());
  choose("lstequipes", find<QComboBox>("lstequipes").itemText(1));
  EXPECT_TRUE(find<QComboBox>("lstOU").isEnabled());
  find<QPushButton>("cmdGENERATE").click();
  texts.setLanguage(Language::French); // while the other thread works: it has its own
  find<QPushButton>("cmdCANCEL").click();
  wait();
  EXPECT_EQ(window->statistics(), nullptr);
  EXPECT_TRUE(find<QLabel>("lblNOTICE").isVisible());
}

TEST_F(SeasonWindowTest, EveryTableCanBeCopied) {
  readAndGenerate();
  QSignalSpy reports(window.get(), &ChildWindow::reported);
  find<QToolButton>("cmdCOPY").click();
  const QStringList lines = QApplication::clipboard()->text().split(u'\n');
  EXPECT_EQ(lines.size(), rows("lvwSTATjoueurs(0)") + 2) << "headers, rows, and the last line's end";
  EXPECT_EQ(lines[0].split(u'\t').size(), std::ssize(seasonColumns()) + 1)
      << "all but the hidden one, points on court, and the team";
  EXPECT_TRUE(lines[1].contains(cell("lvwSTATjoueurs(0)", 0, 1)));
  EXPECT_EQ(reports.size(), 1);
}

TEST_F(SeasonWindowTest, ReadingCanBeCancelled) {
  read();
  window->readFolder();
  click("cmdCANCEL");
  wait();
  EXPECT_EQ(rows("lvwGAMES"), kGames + 1) << "what was read before stays";
  EXPECT_TRUE(find<QPushButton>("cmdGENERATE").isEnabled());
  window->readFolder();
  window.reset(); // while it reads: nothing is left behind
}

TEST_F(SeasonWindowTest, SaysWhatIsWrongWithAFolder) {
  const TemporaryFolder empty;
  dialogs.nextFolder = toQt(empty.path());
  click("cmdDIR");
  wait();
  EXPECT_EQ(find<QLineEdit>("txtDIR").text(), toQt(empty.path()));
  EXPECT_EQ(find<QLabel>("lblPROGRESS").text(), toQt(texts.withPlaceholder(Text::LoadingGames, "0")));
  EXPECT_TRUE(find<QLabel>("lblNOTICE").text().contains(toQt(empty.path())));
  EXPECT_FALSE(find<QPushButton>("cmdGENERATE").isEnabled());
  read(empty.path("gone"));
  EXPECT_TRUE(find<QLabel>("lblNOTICE").text().contains(QStringLiteral("does not exist")));
  EXPECT_EQ(rows("lvwGAMES"), 0);
  dialogs.nextFolder.clear(); // the user cancels
  click("cmdDIR");
  EXPECT_FALSE(window->isBusy());
}

TEST_F(SeasonWindowTest, SpeaksTheOtherLanguageAtOnce) {
  readAndGenerate();
  table("lvwSTATjoueurs(0)").model()->sort(1, Qt::AscendingOrder);
  const QString first = cell("lvwSTATjoueurs(0)", 0, 1);
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_EQ(currentPage(), QStringLiteral("Joueurs"));
  EXPECT_EQ(table("lvwSTATjoueurs(0)").model()->headerData(1, Qt::Horizontal).toString(),
            caption(texts, Text::PlayerName));
  EXPECT_EQ(cell("lvwSTATjoueurs(0)", 0, 1), first) << "sorted as before";
  EXPECT_EQ(find<QLabel>("lblGAMES").text(), QStringLiteral("25 des 25 parties"));
  EXPECT_EQ(find<QComboBox>("lstequipes").itemText(0), caption(texts, Text::All));
  EXPECT_EQ(find<QComboBox>("lstequipes").count(), 5);
  window->applyColours();
}

TEST_F(SeasonWindowTest, FolderAndColumnWidthsAreRemembered) {
  const TemporaryFolder other;
  read();
  table("lvwGAMES").setColumnWidth(8, 333);
  read(other.path(), true);
  const QByteArray left = window->arrangement();
  makeWindow();
  window->restoreArrangement(left);
  EXPECT_EQ(find<QLineEdit>("txtDIR").text(), toQt(other.path()));
  EXPECT_TRUE(find<QCheckBox>("chkSUBFOLDERS").isChecked());
  EXPECT_EQ(table("lvwGAMES").columnWidth(8), 333);
  window->restoreArrangement("of an older program"); // is no harm
}

TEST_F(SeasonWindowTest, AsksBeforeAGameThatCannotBeRightEntersTheTotals) {
  SeasonFolder season;
  const std::string events = "1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=09:00,GFG,0-4,30,100\n";
  season.addGame("cut.GAM", "2026-01-01", events, "EVENUM=3\n");
  season.addGame("whole.GAM", "2026-01-02", events, "EVENUM=3\nNBREPERIODE=1\n");
  read(season.folder().path());
  ASSERT_EQ(rows("lvwGAMES"), 2);
  dialogs.nextAnswer = true;
  generate();
  generate(); // asked once
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("cut.GAM"))) << fromQt(dialogs.shown[0].text);
  EXPECT_EQ(cell("lvwSTATjoueurs(0)", 0, kPoints), QStringLiteral("4"));
  read(season.folder().path());
  dialogs.nextAnswer = false;
  generate();
  EXPECT_TRUE(find<QCheckBox>("chkWRONG").isChecked());
  EXPECT_EQ(rows("lvwGAMES"), 1);
  EXPECT_EQ(cell("lvwSTATjoueurs(0)", 0, kPoints), QStringLiteral("2"));
}

TEST(SeasonTableViewTest, SortsTextsAsTheLanguageDoesAndNumbersAndKeepsTheOrderOfEqualOnes) {
  const QStringList lines =
      QStringLiteral("05-07,04-11-12-23-45 *,04-11-12-23-45,04-07-12-23-45,05").split(u',');
  const QStringList names = QStringLiteral("Zoé,émile,Eve,04-07,émile").split(u',');
  SeasonTableView table(QStringLiteral("mixed"), 1);
  table.showColumns({{.header = QStringLiteral("Line"), .isText = true},
                     {.header = QStringLiteral("Name"), .isText = true},
                     {.header = QStringLiteral("Points")}});
  TableRows rows;
  rows.count = static_cast<int>(lines.size());
  rows.text = [&](int row, int column) {
    return column == 0 ? lines[row] : column == 1 ? names[row] : QString::number(row % 2);
  };
  rows.sortValue = [](int row, int) -> double { return row % 2; };
  table.showRows(rows);
  const auto sorted = [&](int column, Qt::SortOrder order) {
    table.sortByColumn(column, order);
    QList<int> sources;
    for (int row = 0; row < table.model()->rowCount(); ++row)
      sources << table.content().sourceRow(row);
    return sources;
  };
  table.setCurrentIndex(table.model()->index(3, 0));
  EXPECT_EQ(sorted(0, Qt::AscendingOrder), (QList<int>{3, 2, 1, 4, 0}));
  EXPECT_EQ(sorted(0, Qt::DescendingOrder), (QList<int>{0, 4, 1, 2, 3}));
  EXPECT_EQ(sorted(1, Qt::AscendingOrder), (QList<int>{3, 1, 4, 2, 0}));
  EXPECT_EQ(sorted(2, Qt::DescendingOrder), (QList<int>{1, 3, 0, 2, 4}));
  EXPECT_EQ(table.currentRow(), 3) << "the row stays chosen wherever it goes";
}

} // namespace
} // namespace hooptab
