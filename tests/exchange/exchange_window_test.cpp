// Import and export as they are used: made-up files of other systems through the window into a folder, and a
// game out of it again.
#include "exchange/frmEXPORT.h"
#include "exchange/frmIMPORT.h"

#include "exchange/MadeGame.h"
#include "exchange/RowTable.h"
#include "support/WindowRoom.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QTabWidget>
#include <filesystem>

namespace hooptab {
namespace {

using namespace Qt::StringLiterals;

enum Column { kFiles, kFormat, kDate, kVisitors, kHome, kScore, kOfficial, kState };

class ImportWindowTest : public WindowTest<frmIMPORT> {
 protected:
  void SetUp() override {
    std::filesystem::create_directories(folder.path("games"));
    settings.lastGameFolder = folder.path("games");
    window = std::make_unique<frmIMPORT>(disk, settings, texts, dialogs);
    window->resize(1200, 700);
    showActive(*window);
  }
  std::string put(GameFormat format, const ForeignGame& game, const std::string& stem) {
    const std::vector<ExportedFile> files = exportAs(format, game, stem);
    for (const ExportedFile& file : files)
      folder.write(file.name, file.content);
    return folder.path(files.front().name);
  }
  void add(const std::vector<std::string>& paths) {
    QStringList list;
    for (const std::string& path : paths)
      list << toQt(path);
    dialogs.nextFiles = list;
    click("cmdADDFILES");
    wait();
  }
  void wait() const {
    ASSERT_TRUE(QTest::qWaitFor([this] { return !window->isBusy(); }, 60000));
  }
  RowTable& table() const { return find<RowTable>("tblGAMES"); }
  QString cell(int row, int column) const { return table().model()->index(row, column).data().toString(); }
  QStringList column(int column) const {
    QStringList cells;
    for (int row = 0; row < table().model()->rowCount(); ++row)
      cells << cell(row, column);
    return cells;
  }
  bool isEnabled(const char* name) const { return find<QPushButton>(name).isEnabled(); }
};

TEST_F(ImportWindowTest, TakesTheCheckedGamesInOnceAndPassesOverWhatIsNoGame) {
  EXPECT_FALSE(isEnabled("cmdIMPORT") || isEnabled("cmdOPEN") || isEnabled("cmdTEAMS"));
  find<QLineEdit>("txtDATE").setText(u"2026-03-02"_s); // for the second, whose format has none
  add({put(GameFormat::BbGame, madeGame(1), "a"), folder.write("b.json", "{}"),
       put(GameFormat::LiveStats, madeGame(2), "c"), folder.path("gone.json")});
  EXPECT_EQ(cell(2, kDate), u"2026-03-02"_s);
  EXPECT_EQ(column(kScore), (QStringList{u"2 - 0"_s, QString(), u"4 - 0"_s, QString()}));
  EXPECT_EQ(cell(0, kState), text(Text::StateNew));
  EXPECT_TRUE(cell(1, kState).contains(text(Text::NoKnownFormat))) << fromQt(cell(1, kState));
  EXPECT_FALSE(table().model()->index(1, 0).flags().testFlag(Qt::ItemIsUserCheckable));
  table().selectRow(2);
  QTest::keyClick(&table(), Qt::Key_Space); // not this one

  QSignalSpy opened(window.get(), &frmIMPORT::gameAsked);
  QTest::mouseDClick(&find<QPushButton>("cmdIMPORT"), Qt::LeftButton);
  QTest::mouseClick(&find<QPushButton>("cmdIMPORT"), Qt::LeftButton);
  wait();
  EXPECT_TRUE(folder.holds("games/2026-03-01 PAN-OLY.GAM"));
  EXPECT_FALSE(folder.holds("games/2026-03-02 PAN-OLY.GAM"));
  EXPECT_EQ(cell(0, kState), text(Text::StateImported));
  EXPECT_EQ(cell(2, kState), text(Text::StateNew));
  EXPECT_FALSE(isEnabled("cmdIMPORT")) << "nothing that is checked is left";
  QTest::keyClick(&table(), Qt::Key_Return);
  EXPECT_EQ(opened.size(), 0) << "the row in front is not in the folder";
  table().selectRow(0);
  QTest::keyClick(&table(), Qt::Key_Return);
  ASSERT_EQ(opened.size(), 1);
  EXPECT_EQ(opened[0][0].toString(), toQt(folder.path("games/2026-03-01 PAN-OLY.GAM")));

  QSignalSpy teams(window.get(), &frmIMPORT::teamsAsked);
  click("cmdTEAMS");
  EXPECT_TRUE(QTest::qWaitFor([&] { return teams.size() == 1; }));
  EXPECT_FALSE(window->isBusy()) << "nobody is asked while there is work under way";
}

TEST_F(ImportWindowTest, ReplacesAfterAQuestionAloneAndTellsWhatStandsInTheWay) {
  folder.write("games/2026-03-01 PAN-OLY.GAM", "mine");
  add({put(GameFormat::BbGame, madeGame(), "a")});
  EXPECT_EQ(cell(0, kState), text(Text::StateOtherThere));
  find<QCheckBox>("chkALL").click();
  EXPECT_FALSE(isEnabled("cmdIMPORT"));
  find<QCheckBox>("chkREPLACE").click();
  click("cmdIMPORT");
  EXPECT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(folder.read("games/2026-03-01 PAN-OLY.GAM"), "mine");
  dialogs.nextAnswer = true;
  click("cmdIMPORT");
  wait();
  EXPECT_NE(folder.read("games/2026-03-01 PAN-OLY.GAM"), "mine");

  find<QLineEdit>("txtFOLDER").setText(toQt(folder.path("nowhere")));
  emit find<QLineEdit>("txtFOLDER").editingFinished();
  wait();
  EXPECT_EQ(cell(0, kState), text(Text::StateNew)) << "seen anew in another folder";
  click("cmdIMPORT");
  EXPECT_FALSE(window->isBusy());
  EXPECT_TRUE(find<QWidget>("stpNOTICE").isVisible());
  find<QLineEdit>("txtDATE").setText(u"2026-02-30"_s);
  click("cmdIMPORT");
  EXPECT_TRUE(find<QWidget>("stpNOTICE").findChild<QLabel*>()->text().contains(u"2026-02-30"_s));
}

TEST_F(ImportWindowTest, AsksWhichFileBelongsAndKeepsJoinedNames) {
  ForeignGame game = madeGame();
  const std::string rows = put(GameFormat::NbaLive, game, "a");
  const std::string box = folder.path("a-boxscore.json");
  const std::string copy = folder.write("copy.json", folder.read("a-boxscore.json"));
  add({rows, box, copy});
  EXPECT_EQ(cell(0, kState), text(Text::StateTwoWays));
  auto& which = find<QComboBox>("cmbWHICH");
  ASSERT_TRUE(which.isVisible());
  which.setCurrentIndex(1);
  click("cmdTAKEFILE");
  wait();
  EXPECT_EQ(cell(0, kFiles), u"a-playbyplay.json, copy.json"_s);

  game.teams[Side::Visitor].players[0].name = "A. ABLE";
  game.date = "2026-03-09";
  add({put(GameFormat::BbGame, game, "c")});
  find<QTabWidget>("tabs").setCurrentIndex(1);
  const auto* names = find<RowTable>("tblNAMES").model();
  ASSERT_EQ(names->rowCount(), 1);
  EXPECT_EQ(names->index(0, 2).data().toString(), u"A. ABLE"_s);
  click("cmdSAVENAMES");
  wait();
  EXPECT_EQ(folder.read("games/NOMS.INI"), "[PAN]\r\nA. ABLE=Ann Able\r\n");
  ASSERT_EQ(names->rowCount(), 1) << "can be taken back";
  find<RowTable>("tblNAMES").selectRow(0);
  QTest::keyClick(&find<RowTable>("tblNAMES"), Qt::Key_Space);
  click("cmdSAVENAMES");
  wait();
  EXPECT_EQ(folder.read("games/NOMS.INI").find("ABLE"), std::string::npos);
}

TEST(ImportTableTest, TenThousandRowsAreSortedByWhatTheyShow) {
  const Texts texts;
  RowTable table("table", Text::GamesTitle, {{Text::Team}, {Text::Score, 5, true}}, texts, nullptr);
  RowSource rows;
  rows.count = 10000;
  rows.text = [](int row, int column) {
    return column == 0 ? u"T"_s + QString::number(row) : QString::number(10000 - row);
  };
  table.show(std::move(rows));
  EXPECT_EQ(table.model()->index(0, 0).data().toString(), u"T0"_s);
  table.sortByColumn(1, Qt::AscendingOrder);
  EXPECT_EQ(table.model()->index(0, 1).data().toString(), u"1"_s);
  table.selectRow(10000 - 9);
  EXPECT_EQ(table.currentIndex().row(), 8) << "as numbers, not as letters";
}

class ExportWindowTest : public WindowTest<frmEXPORT> {
 protected:
  void open(const std::string& kind, const std::string& to) {
    Game game = gameOfText(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-,IN-\n2=09:00,GFG,0-4,30,100\n"));
    game.path = folder.path("A.1.GAM");
    window = std::make_unique<frmEXPORT>(GameToExport{counted(game), ProfileText()}, gameFormatKinds(),
                                         frmEXPORT::Choice{kind, to}, disk, texts, dialogs);
    showActive(*window);
  }
};

TEST_F(ExportWindowTest, ShowsItsFilesAndReplacesNoneUnasked) {
  open("euroleague", folder.path());
  auto& files = find<QListWidget>("lstFILES");
  EXPECT_EQ(files.count(), 3);
  find<QComboBox>("cmbFORMAT").setCurrentIndex(3);
  ASSERT_EQ(files.count(), 1);
  EXPECT_EQ(files.item(0)->text(), u"A.1.xml"_s);
  folder.write("A.1.xml", "mine");
  click("cmdEXPORT");
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_TRUE(dialogs.shown[0].text.contains(u"A.1.xml"_s));
  EXPECT_EQ(folder.read("A.1.xml"), "mine");
  EXPECT_TRUE(window->isVisible());
  find<QLineEdit>("txtFOLDER").setText(toQt(folder.path("nowhere")));
  click("cmdEXPORT");
  EXPECT_EQ(dialogs.shown.back().kind, ScriptedDialogs::Kind::Complain);
  find<QLineEdit>("txtFOLDER").setText(toQt(folder.path()));
  dialogs.nextAnswer = true;
  click("cmdEXPORT");
  EXPECT_EQ(window->result(), QDialog::Accepted);
  EXPECT_NE(folder.read("A.1.xml").find("<bbgame"), std::string::npos);
  EXPECT_EQ(window->choice().kind, "bbgame");
}

} // namespace
} // namespace hooptab
