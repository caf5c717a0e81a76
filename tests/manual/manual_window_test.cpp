// Manual entry as it is used: with clicks and keys on the window, and what stands in the file afterwards.
#include "manual/OpenManualGame.h"

#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <filesystem>

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using Kind = ScriptedDialogs::Kind;

class ManualWindowTest : public OpenManualGame {
 protected:
  void clickRow(int slot) const {
    QTest::mouseClick(&table(), Qt::LeftButton, {}, nameOf(slot).geometry().center());
  }
  void press(const char* button, Qt::MouseButton with = Qt::LeftButton, int times = 1) const {
    for (int time = 0; time < times; ++time)
      QTest::mouseClick(&find<QPushButton>(button), with);
  }
  void keys(const QString& text) const { QTest::keyClicks(&table(), text); }
  void key(Qt::Key code, Qt::KeyboardModifiers modifiers = {}) const {
    QTest::keyClick(&table(), code, modifiers);
  }
  // On the court, in its units.
  void placeShot(double x, double y, Qt::MouseButton with) const {
    auto& court = find<CourtView>("Court");
    for (int column = 0; column < court.width(); ++column) {
      const auto place = court.placeAt(QPointF(column, court.height() / 2));
      if (!place || place->x < x + 0.5)
        continue;
      for (int row = 0; row < court.height(); ++row) {
        const auto spot = court.placeAt(QPointF(column, row));
        if (spot && spot->y >= y + 0.5)
          return QTest::mouseClick(&court, with, {}, QPoint(column, row));
      }
    }
    ADD_FAILURE() << "no such place on the court";
  }
  std::vector<std::string> lines() {
    std::vector<std::string> found;
    const PeriodLines lines = linesOfFile(store, path)[1];
    for (const auto& [number, line] : lines)
      found.push_back(line);
    return found;
  }
};

TEST_F(ManualWindowTest, CountsWithBothMouseButtonsForThePlayerThatWasChosen) {
  EXPECT_EQ(shown("lblID"), "0");
  EXPECT_FALSE(find<QPushButton>("cmdBUTFT(0)").isEnabled()) << "nobody is chosen";
  clickRow(2);
  EXPECT_EQ(shown("lblID"), "2");
  press("cmdBUTFT(0)", Qt::LeftButton, 3);
  press("cmdBUTFT(1)");
  press("cmdBUTFT(0)", Qt::RightButton);
  EXPECT_EQ(shown("lblFT(2)", "lblFTa(2)", "lblFT(1)", "lblSCORE(0)", "lblPTS(0)"), "2|3||2|2")
      << "no count is blank";
  EXPECT_FALSE(find<QPushButton>("cmdBUTA").isVisible());
  press("cmdNEXT");
  EXPECT_FALSE(find<QPushButton>("cmdBUTFT(0)").isVisible());
  const std::pair<const char*, const char*> actions[] = {
      {"cmdBUTA", "lblA(2)"},      {"cmdBUTBS", "lblBS(2)"},     {"cmdBUTDRB", "lblDRB(2)"},
      {"cmdBUTORB", "lblORB(2)"},  {"cmdBUTST", "lblST(2)"},     {"cmdBUTTO", "lblTO(2)"},
      {"cmdBUTF", "lblFAUTE(2)"},  {"cmdBUTTF", "lblTFAUTE(2)"}, {"cmdBUTU1", "lblAUTRE(2)"},
      {"cmdBUTU2", "lblAUTRE2(2)"}};
  for (const auto& [button, label] : actions) {
    EXPECT_TRUE(find<QPushButton>(button).isVisible()) << button;
    press(button, Qt::LeftButton, 2);
    press(button, Qt::RightButton);
    EXPECT_EQ(shown(label), "1") << button;
  }
  press("cmdBUTA", Qt::RightButton, 3);
  EXPECT_EQ(shown("lblA(2)"), "");
  press("cmdNEXT");
  EXPECT_TRUE(find<QPushButton>("cmdBUTDK(0)").isVisible()) << "page 1 again";
  window->save();
  EXPECT_EQ(lines(),
            (std::vector<std::string>{"00:00,SU1,0-5", "00:00,SU2,0-5", "00:00,SBS,0-5", "00:00,SDR,0-5",
                                      "00:00,SPF,0-5", "00:00,SST,0-5", "00:00,STF,0-5", "00:00,STO,0-5",
                                      "00:00,SOR,0-5", "00:00,GFT,0-5", "00:00,GFT,0-5", "00:00,GFTA,0-5"}));
}

TEST_F(ManualWindowTest, IsFilledInByKeyboardLikeASpreadsheet) {
  EXPECT_TRUE(table().hasFocus());
  key(Qt::Key_Down);
  EXPECT_EQ(shown("lblID"), "1") << "the first player, on his first cell";
  keys(QStringLiteral("12"));
  key(Qt::Key_Tab);
  EXPECT_EQ(shown("lblFG(1)", "lblFGA(1)"), "12|12");
  keys(QStringLiteral("5"));
  key(Qt::Key_Tab);
  EXPECT_EQ(shown("lblFGA(1)"), "12") << "fewer attempts than made";
  EXPECT_NE(shown("lblHINT"), "");
  keys(QStringLiteral("20"));
  key(Qt::Key_Right);
  EXPECT_EQ(shown("lblFGA(1)", "lblHINT"), "20|");
  keys(QStringLiteral("3"));
  key(Qt::Key_Return);
  EXPECT_EQ(shown("lblF3(1)", "lblID"), "3|2");
  keys(QStringLiteral("7"));
  key(Qt::Key_Escape);
  EXPECT_EQ(shown("lblF3(2)"), "");
  keys(QStringLiteral("++-"));
  EXPECT_EQ(shown("lblF3(2)"), "1");
  keys(QStringLiteral("43"));
  key(Qt::Key_Backspace);
  key(Qt::Key_Up);
  EXPECT_EQ(shown("lblF3(2)"), "4");
  key(Qt::Key_Delete);
  EXPECT_EQ(shown("lblF3(1)"), "");
  for (int cell = 0; cell < 3; ++cell)
    key(Qt::Key_Left);
  EXPECT_EQ(shown("lblID"), "1") << "no cell before the first";
  key(Qt::Key_PageDown);
  for (int cell = 0; cell < 10; ++cell)
    key(Qt::Key_Tab);
  EXPECT_EQ(shown("lblID"), "2") << "Tab goes on to the next player";
  keys(QStringLiteral("6"));
  key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(shown("lblA(2)", "lblID"), "6|1");
  keys(QStringLiteral("2")); // still being typed when it is saved
  window->save();
  Game game;
  ASSERT_EQ(GameFile(store, path).read(game), GameFileProblem::None);
  const GameState counted = tallied(game);
  const Counters& counts = counted.players[Side::Visitor][1].counters;
  EXPECT_EQ((std::vector<int>{counts[Counter::FGA], counts[Counter::F3A], counts[Counter::S2]}),
            (std::vector{20, 3, 2}));
  EXPECT_EQ(counted.points(Side::Visitor), 12 * 2 + 4 * 3);
  EXPECT_TRUE(game.details.isFinished);
}

TEST_F(ManualWindowTest, PlacesReviewsAndDeletesShots) {
  auto& list = find<QListWidget>("fsSHOT");
  placeShot(20, 100, Qt::LeftButton);
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(shown("lblHINT"), texts.text(Text::ChoosePlayer));
  clickRow(1);
  placeShot(20, 100, Qt::LeftButton);
  placeShot(120, 100, Qt::LeftButton);
  placeShot(60, 70, Qt::RightButton);
  ASSERT_EQ(list.count(), 3) << "two-pointers first";
  EXPECT_EQ(list.currentRow(), 1) << "the newest one is selected";
  EXPECT_TRUE(list.item(1)->text().startsWith(QStringLiteral("✕"))) << fromQt(list.item(1)->text());
  EXPECT_EQ(shown("lblFG(1)", "lblFGA(1)", "lblF3(1)", "lblSCORE(0)"), "1|2|1|5");
  placeShot(court::units(1.0), court::kThreePointSideY, Qt::LeftButton);
  EXPECT_EQ(list.count(), 3) << "on a line";
  key(Qt::Key_Home);
  window->save();
  EXPECT_EQ(lines(), (std::vector<std::string>{"00:00,GFG,0-4,20,100", "00:00,GFGA,0-4,60,70",
                                               "00:00,GF3,0-4,120,100"}));
  press("CmdDELSHOT");
  EXPECT_EQ(shown("lblFGA(1)"), "1");
  list.setFocus();
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_EQ(list.count(), 1);
  clickRow(2);
  EXPECT_EQ(list.count(), 0) << "another player's";
  EXPECT_FALSE(find<QPushButton>("CmdDELSHOT").isEnabled());
  window->save();
  EXPECT_EQ(lines(), (std::vector<std::string>{"00:00,GF3,0-4,120,100"}));
}

TEST_F(ManualWindowTest, SwitchesTheTeamClearsItOnlyWhenAskedAndChecksTheFinalScore) {
  clickRow(1);
  press("cmdBUTFT(0)", Qt::LeftButton, 2);
  QTest::keyClick(&find<QComboBox>("cmbTEAM"), Qt::Key_Down);
  EXPECT_EQ(shown("lblID", "lblFT(1)"), "0|");
  clickRow(5);
  press("cmdBUTDK(0)");
  EXPECT_EQ(shown("lblSCORE(1)"), "2");
  EXPECT_FALSE(find<QLabel>("lblFINAL(1)").isVisible());
  find<QLineEdit>("txtFINAL(1)").setFocus();
  QTest::keyClicks(&find<QLineEdit>("txtFINAL(1)"), QStringLiteral("5"));
  EXPECT_NE(shown("lblFINAL(1)").find(texts.withPlaceholder(Text::PointsMissing, "3")), std::string::npos);
  QTest::keyClick(&find<QLineEdit>("txtFINAL(1)"), Qt::Key_Backspace);
  QTest::keyClicks(&find<QLineEdit>("txtFINAL(1)"), QStringLiteral("2"));
  EXPECT_NE(shown("lblFINAL(1)").find(texts.text(Text::PointsAgree)), std::string::npos);
  press("cmdZERO");
  EXPECT_EQ(shown("lblDK(5)"), "1") << "the answer was no";
  dialogs.nextAnswer = true;
  press("cmdZERO");
  ASSERT_EQ(dialogs.shown.size(), 2u);
  EXPECT_TRUE(dialogs.shown[1].text.contains(QStringLiteral("OLY")));
  EXPECT_EQ(shown("lblDK(5)"), "");
  clickRow(4);
  press("cmdBUTPB(1)");
  window->save();
  EXPECT_EQ(lines(), (std::vector<std::string>{"00:00,GFT,0-4", "00:00,GFT,0-4", "00:00,GPBA,1-11"}));
}

TEST_F(ManualWindowTest, TakesEveryChangeBackAndMakesItOnceMore) {
  auto& undo = find<QPushButton>("cmdUNDO");
  auto& redo = find<QPushButton>("cmdREDO");
  EXPECT_FALSE(undo.isEnabled() || redo.isEnabled());
  clickRow(2);
  press("cmdBUTFT(0)", Qt::LeftButton, 2);
  placeShot(40, 80, Qt::LeftButton);
  find<QComboBox>("cmbTEAM").setCurrentIndex(1);
  dialogs.nextAnswer = true;
  press("cmdZERO");
  EXPECT_FALSE(redo.isEnabled());
  key(Qt::Key_Z, Qt::ControlModifier); // the clearing of the other team
  press("cmdUNDO");                    // the shot: its team is shown again
  EXPECT_EQ(find<QComboBox>("cmbTEAM").currentIndex(), 0);
  EXPECT_EQ(shown("lblFT(2)", "lblSCORE(0)"), "2|2");
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(shown("lblFT(2)"), "1");
  key(Qt::Key_Y, Qt::ControlModifier);
  press("cmdREDO");
  EXPECT_EQ(shown("lblSCORE(0)"), "4") << "with the shot";
  press("cmdUNDO", Qt::LeftButton, 3);
  EXPECT_FALSE(undo.isEnabled() || window->isWindowModified());
  clickRow(1);
  press("cmdBUTFT(0)");
  EXPECT_FALSE(redo.isEnabled()) << "what was taken back is gone";
}

TEST_F(ManualWindowTest, LosesNothingWithoutAQuestion) {
  EXPECT_TRUE(window->agreesToClose());
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_TRUE(fs::exists(path + ".lock"));
  clickRow(1);
  key(Qt::Key_9);
  EXPECT_FALSE(window->agreesToClose()) << "what is being typed counts";
  EXPECT_TRUE(window->isWindowModified());
  ASSERT_EQ(dialogs.shown.size(), 1u);
  EXPECT_EQ(dialogs.shown[0].kind, Kind::AskToSave);
  dialogs.nextSaveChoice = SaveChoice::Discard;
  EXPECT_TRUE(window->agreesToClose());
  EXPECT_TRUE(lines().empty());
  // The disk takes nothing for a while.
  fs::permissions(path, fs::perms::owner_read);
  dialogs.nextSaveChoice = SaveChoice::Save;
  EXPECT_FALSE(window->agreesToClose());
  EXPECT_TRUE(find<QLabel>("lblNOTONDISK").isVisible());
  EXPECT_EQ(fromQt(find<QLabel>("lblNOTONDISK").toolTip()),
            texts.withPlaceholder(Text::WhyNotPermitted, path));
  EXPECT_EQ(dialogs.shown.back().kind, Kind::Ask);
  QSignalSpy saved(window.get(), &frmMANUAL::saved);
  fs::permissions(path, fs::perms::owner_all);
  EXPECT_TRUE(saved.wait(10000));
  EXPECT_FALSE(find<QLabel>("lblNOTONDISK").isVisible());
  EXPECT_EQ(lines().size(), 9u);
  EXPECT_TRUE(window->agreesToClose());
}

TEST_F(ManualWindowTest, KeepsStrangeLinesWithANoticeAndOnlyReadsAGameThatIsOpenElsewhere) {
  EXPECT_FALSE(find<QLabel>("lblNOTICE").isVisible());
  const std::string strange =
      folder.write("B.GAM", textOfGame("[PERIODE1]\n1=00:00,SA,0-4\n2=00:00,SA,0-99\n", "INPUTTYPE=1\n"));
  ASSERT_TRUE(window->open(toQt(strange)));
  EXPECT_TRUE(find<QLabel>("lblNOTICE").isVisible());
  EXPECT_NE(shown("lblNOTICE").find(": 1"), std::string::npos) << shown("lblNOTICE");
  EXPECT_FALSE(fs::exists(path + ".lock"));
  frmMANUAL second(store, settings, texts, dialogs);
  ASSERT_TRUE(second.open(toQt(strange)));
  EXPECT_TRUE(second.findChild<QLabel*>(QStringLiteral("lblNOTONDISK"))
                  ->text()
                  .contains(QString::number(QCoreApplication::applicationPid())));
  EXPECT_FALSE(second.findChild<QPushButton*>(QStringLiteral("cmdFORM"))->isEnabled());
  EXPECT_FALSE(window->open(toQt(folder.path("NONE.GAM"))));
  EXPECT_EQ(window->problem(), GameFileProblem::Absent);
  EXPECT_EQ(fromQt(window->path()), strange);
  fs::permissions(path, fs::perms::owner_read);
  ASSERT_TRUE(window->open(toQt(path)));
  EXPECT_EQ(shown("lblNOTONDISK"), texts.withPlaceholder(Text::ForReadingOnly, path)) << "for reading";
  clickRow(1);
  keys(QStringLiteral("5+"));
  placeShot(20, 100, Qt::LeftButton);
  EXPECT_FALSE(find<QPushButton>("cmdBUTFT(0)").isEnabled());
  EXPECT_EQ(shown("lblSCORE(0)"), "0");
  fs::permissions(path, fs::perms::owner_all);
  ASSERT_TRUE(window->open(toQt(strange)));
  EXPECT_FALSE(find<QLabel>("lblNOTONDISK").isVisible());
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_EQ(shown("lblNOTICE"), texts.withPlaceholder(Text::LinesBeside, "1"));
  EXPECT_NE(fromQt(find<QPushButton>("cmdBUTF").toolTip()), texts.text(Text::PFCount, Language::English));
}

TEST_F(ManualWindowTest, WhatOthersWriteGivesWayToTotalsThatAreSaved) {
  clickRow(1);
  keys(QStringLiteral("9"));
  window->save();
  const std::string ours = folder.read("A.GAM");
  folder.write("A.GAM", ours + "77=00:00,SA,0-4\r\n");
  window->writePending();
  EXPECT_EQ(lines().size(), 9u);
  EXPECT_NE(folder.read("A.GAM.1").find("77=00:00,SA,0-4"), std::string::npos);
  fs::remove(path);
  window->writePending();
  EXPECT_EQ(folder.read("A.GAM"), ours);
  EXPECT_TRUE(window->writeCopy(toQt(folder.path("COPY.GAM"))));
  EXPECT_EQ(folder.read("COPY.GAM"), ours);
}

} // namespace
} // namespace hooptab
