#include "appearance/Theme.h"
#include "live/LiveRoom.h"
#include "live/NowStrip.h"
#include "live/SideSwitch.h"
#include "live/frmGAMEOVER.h"
#include "live/frmOVERTIME.h"
#include "scoreboard/ScorePanel.h"
#include "support/TextGame.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSpinBox>
#include <cerrno>

namespace hooptab {
namespace {

class ScorePanelTest : public LiveRoom<> {
 protected:
  void open(const std::string& periods, const std::string& details = {}, bool hasTime = true) {
    std::string game = textOfGame(periods, "BONUS=2\n" + details);
    if (!hasTime)
      game.replace(game.find("DUREE=10"), 8, "DUREE=0");
    ASSERT_EQ(live.open(folder.write("panel.GAM", game)), GameFileProblem::None);
    panel.showGame(live);
    panel.resize(276, panel.height());
    sides.showGame(live);
    sides.move(0, panel.height());
    around.resize(300, panel.height() + 40);
    showActive(around);
  }
  template <typename T = QLabel>
  T* find(const char* name) {
    return around.findChild<T*>(QLatin1String(name));
  }
  QAbstractButton* button(const char* name) { return find<QAbstractButton>(name); }
  std::string text(auto... names) { return textOf(around, names...); }
  void press(const char* name) { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }

  LiveGame live{store, time};
  QWidget around;
  ScorePanel& panel = *new ScorePanel(texts, &around);
  SideSwitch& sides = *new SideSwitch(texts, &around);
};

TEST_F(ScorePanelTest, ShowsScoreFoulsAndLead) {
  open("[PERIODE1]\n1=10:00,DEPART\n2=09:00,GFG,0-4,1,1\n3=08:00,SPF,1-3\n4=08:00,STF,1-3\n"
       "5=07:30,ARRET,IN-,IN-\n",
       "EQUIPE0COL=255\n");
  EXPECT_EQ(text("lblPTS0", "lblFTE0", "lblFTE1", "lblBONUS(0)", "lblBONUS(1)"),
            "2|0|2|2 to give|PAN shoot 2");
  EXPECT_EQ(find("lblFTE1")->palette().color(QPalette::WindowText), Theme::missed());
  EXPECT_NE(find("lblFTE0")->palette().color(QPalette::WindowText), Theme::missed());
  EXPECT_TRUE(find("lblFTE1")->toolTip().contains(toQt(texts.text(Text::InBonus))));
  EXPECT_EQ(text("txtPOSTemps(0)", "txtPOSNb(0)", "txtPOSTemps(2)"), "01:30|×1|01:00");
  EXPECT_EQ(find<QWidget>("pictTEAM(0)")->grab().toImage().pixelColor(50, 55), QColor(255, 0, 0));
  EXPECT_EQ(button("cmdCOUL(0)")->text(), QStringLiteral("◂ PAN"));
  // Only what the clock changes.
  live.start();
  panel.showGame(live);
  EXPECT_EQ(button("cmdSTART")->text(), QStringLiteral("STOP"));
  EXPECT_FALSE(button("cmdTEMPS(0)")->isEnabled() || button("UpDoPERIOD(0)")->isEnabled());
  time.now += 20;
  panel.showTime(live);
  EXPECT_EQ(text("lblTEMPS", "txtPOSTemps(0)"), "07:10|01:50");
  live.recordShot(Side::Home, 1, EventCode::GF3, true);
  panel.showGame(live);
  time.now += 5;
  panel.showTime(live);
  EXPECT_EQ(text("txtPOSTemps(0)", "txtPOSTemps(1)"), "01:50|00:05") << "the lead has changed";
}

TEST_F(ScorePanelTest, AsksForWhatIsPressed) {
  open("[PERIODE2]\n1=05:00,SPF,0-4\n", "EQUIPE0COL=255\nEQUIPE1COL=65280\n");
  QSignalSpy start(&panel, &ScorePanel::startAsked);
  QSignalSpy period(&panel, &ScorePanel::periodAsked);
  QSignalSpy clock(&panel, &ScorePanel::clockAsked);
  QSignalSpy colour(&panel, &ScorePanel::colourAsked);
  QSignalSpy switches(&sides, &SideSwitch::asked);
  QSignalSpy back(&panel, &ScorePanel::returnAsked);
  QTest::mousePress(button("cmdSTART"), Qt::LeftButton);
  EXPECT_EQ(start.size(), 1);
  QTest::mouseRelease(button("cmdSTART"), Qt::LeftButton);
  EXPECT_EQ(start.size(), 1);
  press("UpDoPERIOD(0)");
  press("UpDoPERIOD(1)");
  EXPECT_EQ(period.takeFirst().at(0), 3);
  EXPECT_EQ(period.takeFirst().at(0), 1);
  press("cmdTEMPS(0)");
  press("cmdTEMPS(1)");
  EXPECT_EQ(clock.takeFirst().at(0), 301);
  EXPECT_EQ(clock.takeFirst().at(0), 299);
  press("cmdCOUL(1)");
  press("lblPTS0"); // a click that went astray
  press("pictTEAM(1)");
  QTest::mouseClick(find<QWidget>("pictTEAM(0)"), Qt::RightButton);
  ASSERT_EQ(colour.size(), 2);
  EXPECT_EQ(colour[0].at(0).value<Side>(), Side::Home);
  EXPECT_EQ(colour[1].at(0).value<Side>(), Side::Visitor);
  const QString right = QStringLiteral("▸");
  EXPECT_TRUE(button("cmdCOUL(1)")->text().endsWith(right));
  EXPECT_EQ(text("lblSWITCH"), "◂PAN");
  const auto colourAt = [&](double share) { // of the little court's width
    const QImage court = find<QWidget>("picSWITCH")->grab().toImage();
    return court.pixelColor(static_cast<int>(court.width() * share), court.height() / 4);
  };
  const QColor visitors(255, 0, 0);
  EXPECT_EQ(colourAt(0.25), visitors);
  EXPECT_NE(colourAt(0.75), visitors);
  press("cmdSWITCH");
  press("picSWITCH");
  EXPECT_EQ(switches.size(), 2);
  QTest::mouseClick(find<QWidget>("picSWITCH"), Qt::RightButton);
  EXPECT_EQ(switches.size(), 2);
  panel.setSides(true, true);
  EXPECT_LT(find<QWidget>("pictTEAM(0)")->x(), find<QWidget>("pictTEAM(1)")->x()) << "asked to stay";
  panel.setSides(true, false);
  sides.setSides(true, false);
  EXPECT_GT(find<QWidget>("pictTEAM(0)")->x(), find<QWidget>("pictTEAM(1)")->x());
  EXPECT_EQ(text("lblSWITCH"), "◂OLY");
  EXPECT_EQ(colourAt(0.75), visitors);
  EXPECT_TRUE(button("cmdCOUL(0)")->text().endsWith(right));
  EXPECT_FALSE(button("cmdCOUL(1)")->text().endsWith(right));
  EXPECT_FALSE(button("cmdRETURN")->isVisible());
  live.start();
  time.now += 300;
  live.tick();
  panel.showGame(live);
  EXPECT_EQ(text("lblPERIOD"), "3");
  EXPECT_FALSE(button("cmdTEMPS(0)")->isEnabled()) << "the clock is full";
  ASSERT_TRUE(button("cmdRETURN")->isVisible());
  press("cmdRETURN");
  EXPECT_EQ(back.size(), 1);
}

// Offered between the halves, until it is done or the game goes on; never in another break.
TEST_F(ScorePanelTest, OffersTheSidesAtHalfTime) {
  const auto offers = [this] {
    return button("cmdSWITCH")->palette().color(QPalette::Button) == Theme::look().warningGround &&
           button("cmdSWITCH")->toolTip().startsWith(toQt(texts.text(Text::HalfTime)));
  };
  open("[PERIODE1]\n1=00:00,ARRET,IN-,IN-\n");
  EXPECT_FALSE(offers()) << "after one of four";
  open("[PERIODE2]\n1=05:00,SPF,0-4\n2=00:00,ARRET,IN-,IN-\n");
  EXPECT_TRUE(offers());
  sides.setSides(true, false);
  EXPECT_FALSE(offers());
  sides.showGame(live);
  EXPECT_FALSE(offers()) << "once";
  ASSERT_TRUE(live.returnToEndedPeriod());
  sides.showGame(live);
  EXPECT_FALSE(offers());
  live.start(); // the close once more
  sides.showGame(live);
  EXPECT_TRUE(offers());
  time.now += 4;
  live.start();
  sides.showGame(live);
  EXPECT_FALSE(offers()) << "the second half has begun";
}

TEST_F(ScorePanelTest, TakesAClockTypedAndLeavesItAlone) {
  open("[PERIODE1]\n1=05:00,SPF,0-4\n");
  QSignalSpy clock(&panel, &ScorePanel::clockAsked);
  auto* field = find<QLineEdit>("txtTEMPS");
  around.setFocus();
  const auto type = [&](const char* typed, Qt::Key end) {
    QTest::mouseDClick(find("lblTEMPS"), Qt::LeftButton);
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClicks(field, QLatin1String(typed));
    QTest::keyClick(field, end);
    return field->isVisible();
  };
  EXPECT_FALSE(type("7:05", Qt::Key_Return));
  ASSERT_EQ(clock.size(), 1);
  EXPECT_EQ(clock.takeFirst().at(0), 425);
  EXPECT_EQ(QApplication::focusWidget(), &around) << "and not a button, which Space would press";
  EXPECT_TRUE(type("10:01", Qt::Key_Return)) << "more than the period";
  EXPECT_TRUE(type("475", Qt::Key_Return)) << "75 seconds";
  EXPECT_FALSE(type("3:00", Qt::Key_Escape));
  EXPECT_FALSE(type("3:00", Qt::Key_Tab));
  EXPECT_EQ(clock.size(), 0);
  live.start();
  panel.showGame(live);
  QTest::mouseDClick(find("lblTEMPS"), Qt::LeftButton);
  EXPECT_FALSE(field->isVisible()) << "the clock runs";
}

TEST_F(ScorePanelTest, WithoutTimeOffersNoClock) {
  open("[PERIODE1]\n1=00:00,SPF,0-4\n", {}, false);
  EXPECT_EQ(text("lblTEMPS", "txtPOSTemps(2)"), "--:--|--:--");
  for (const char* name : {"cmdSTART", "cmdTEMPS(0)", "cmdTEMPS(1)"}) {
    EXPECT_FALSE(button(name)->isEnabled()) << name;
    EXPECT_EQ(button(name)->toolTip(), toQt(texts.text(Text::NoTime)).trimmed()) << name;
  }
  EXPECT_TRUE(button("UpDoPERIOD(0)")->isEnabled());
}

TEST_F(ScorePanelTest, SaysInWordsWhatIsShownAndNotOnDiskInTheLanguageInUse) {
  open("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03\n2=09:00,GDK,0-4\n"
       "3=08:00,ARRET,IN-04-05-10-12-15,IN-03\n");
  NowStrip strip(texts);
  strip.showGame(live);
  EXPECT_EQ(strip.toolTip(), QStringLiteral("PAN 4 5 10 12 15 together 02:00 +2 (2–0)\n"
                                            "OLY 3 together 02:00 −2 (0–2)\nRun PAN 2–0\n"
                                            "Best five PAN 4 5 10 12 15 +2"));
  const auto* said = strip.findChild<QLabel*>(QStringLiteral("lblDISK"));
  PendingWrites pending;
  for (int change = 0; change < 3; ++change)
    pending.add();
  pending.refuse({StorageError::Call::Write, ENOSPC, "/stick/A.GAM"}, 0);
  strip.showDisk(pending);
  EXPECT_EQ(said->text(), QStringLiteral("Saved ✕"));
  EXPECT_EQ(said->palette().color(QPalette::WindowText), Theme::missed());
  texts.setLanguage(Language::French);
  relabel(panel, texts);
  panel.relabelPanel();
  relabel(strip, texts);
  strip.relabelStrip();
  EXPECT_TRUE(said->toolTip().contains(QStringLiteral("disque : 3")));
  EXPECT_EQ(said->accessibleDescription(), QStringLiteral("Raison : le disque est plein (/stick/A.GAM)."));
  EXPECT_TRUE(said->toolTip().endsWith(said->accessibleDescription()));
  EXPECT_EQ(button("cmdSTART")->text(), QStringLiteral("DÉPART"));
  pending.clear();
  strip.showDisk(pending);
  EXPECT_EQ(said->text(), QStringLiteral("Sauvegardé ✓"));
}

QString captionOf(QDialog& dialog, const char* name) {
  return dialog.findChild<QAbstractButton*>(QLatin1String(name))->text().remove(u'&');
}

using Overtime = LiveRoom<>;

TEST_F(Overtime, TakesMinutesAndFouls) {
  GameDetails details;
  details.minutesPerPeriod = 10;
  frmOVERTIME dialog(details, texts);
  EXPECT_EQ(textOf(dialog, "lblTEMPS"), "10:00");
  find<QSpinBox>(dialog, "UpDown1").setValue(5);
  EXPECT_EQ(textOf(dialog, "lblTEMPS"), "05:00");
  EXPECT_FALSE(dialog.keepsFouls());
  find<QCheckBox>(dialog, "Check1").click();
  find<QAbstractButton>(dialog, "cmdOK").click();
  EXPECT_EQ(dialog.result(), QDialog::Accepted);
  EXPECT_EQ(dialog.minutes(), 5);
  EXPECT_TRUE(dialog.keepsFouls());
  frmOVERTIME left(details, texts);
  left.show();
  QTest::keyClick(&left, Qt::Key_Escape);
  EXPECT_FALSE(left.isVisible());
  EXPECT_EQ(left.result(), QDialog::Rejected);
  details.minutesPerPeriod = 120;
  EXPECT_EQ(frmOVERTIME(details, texts).minutes(), 99);
}

class GameOver : public LiveRoom<> {
 protected:
  using Choice = frmGAMEOVER::Choice;
  GameOver() { details.notes = "Before"; }
  GameDetails details;
};

TEST_F(GameOver, ClosesOrContinuesWithTheNotesOnOneLine) {
  frmGAMEOVER closing(details, texts, dialogs);
  EXPECT_EQ(captionOf(closing, "cmd1"), toQt(texts.text(Text::SaveAndClose)));
  EXPECT_EQ(captionOf(closing, "cmd2"), toQt(texts.text(Text::SaveAndContinue)));
  auto* notes = &find<QPlainTextEdit>(closing, "txtNOTES");
  EXPECT_EQ(notes->toPlainText(), QStringLiteral("Before"));
  notes->setPlainText(QStringLiteral("One\ntwo"));
  find<QAbstractButton>(closing, "cmd1").click();
  EXPECT_EQ(closing.choice(), Choice::Close);
  EXPECT_EQ(closing.notes(), "One two");
  frmGAMEOVER going(details, texts, dialogs);
  find<QAbstractButton>(going, "cmd2").click();
  EXPECT_EQ(going.choice(), Choice::Continue);
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(GameOver, ReopensAFinishedGame) {
  details.isFinished = true;
  texts.setLanguage(Language::French);
  frmGAMEOVER reopening(details, texts, dialogs);
  EXPECT_EQ(captionOf(reopening, "cmd1"), QStringLiteral("Ouvrir la partie"));
  EXPECT_EQ(captionOf(reopening, "cmd2"), QStringLiteral("Fermer"));
  QTest::keyClicks(&find<QPlainTextEdit>(reopening, "txtNOTES"), QStringLiteral("x"));
  EXPECT_EQ(reopening.notes(), "Before");
  find<QAbstractButton>(reopening, "cmd1").click();
  EXPECT_EQ(reopening.choice(), Choice::Reopen);
  frmGAMEOVER closing(details, texts, dialogs);
  find<QAbstractButton>(closing, "cmd2").click();
  EXPECT_EQ(closing.choice(), Choice::None);
}

TEST_F(GameOver, LosesNoNotesWithoutAWord) {
  const std::tuple<bool, SaveChoice, Choice, bool> cases[] = {
      {false, SaveChoice::Stay, Choice::None, false},
      {true, SaveChoice::Save, Choice::Continue, false},
      {true, SaveChoice::Discard, Choice::None, false},
      {true, SaveChoice::Stay, Choice::None, true}};
  for (const auto& [isChanged, answer, expected, stays] : cases) {
    dialogs.shown.clear();
    dialogs.nextSaveChoice = answer;
    frmGAMEOVER dialog(details, texts, dialogs);
    dialog.show();
    if (isChanged)
      QTest::keyClicks(&find<QPlainTextEdit>(dialog, "txtNOTES"), QStringLiteral("!"));
    if (answer == SaveChoice::Discard)
      dialog.close(); // the box of the window
    else
      QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_EQ(dialogs.shown.size(), isChanged ? 1U : 0U);
    EXPECT_EQ(dialog.choice(), expected);
    EXPECT_EQ(dialog.isVisible(), stays);
    EXPECT_EQ(dialog.notes(), isChanged ? "Before!" : "Before");
  }
}

TEST_F(GameOver, TakesNoMoreNotesThanTheFileGivesBack) {
  frmGAMEOVER dialog(details, texts, dialogs);
  auto* notes = &find<QPlainTextEdit>(dialog, "txtNOTES");
  notes->setPlainText(QString(253, u'é'));
  notes->moveCursor(QTextCursor::End);
  QTest::keyClicks(notes, QStringLiteral("ab"));
  EXPECT_EQ(notes->toPlainText(), QString(253, u'é') + u'a');
  EXPECT_EQ(textOf(dialog, "lblLENGTH"), "254 of 254");
  QTest::keyClick(notes, Qt::Key_Backspace);
  EXPECT_EQ(notes->toPlainText().size(), 253) << "the cursor stays where it was";
  notes->insertPlainText(QStringLiteral("much too long"));
  EXPECT_EQ(notes->toPlainText(), QString(253, u'é'));
}

} // namespace
} // namespace hooptab
