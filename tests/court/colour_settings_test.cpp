#include "appearance/Theme.h"
#include "court/CourtView.h"
#include "court/frmCOULEURS.h"
#include "storage/codepage.h"
#include "support/FaultyFileSystem.h"
#include "support/WindowRoom.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalSpy>

namespace hooptab {
namespace {

using Kind = ScriptedDialogs::Kind;
using Shown = std::vector<ScriptedDialogs::Shown>;

constexpr const char* kOldFile =
    "[CONFIGURATION]\r\nCOULEUR2PTS=1\r\nCOULEURBOX=2\r\nCOULEUR3PTS=3\r\nCOULEURBUT=255\r\n"
    "STATU1=U1-Charges taken all season\r\nSTATU2=Deflections\r\nLANGUE=0\r\n";

class ColourSettingsTest : public WindowTest<frmCOULEURS, FaultyFileSystem> {
 protected:
  void SetUp() override { start(kOldFile); }

  void start(const char* file) {
    window.reset();
    folder.write("CONFIG.INI", file);
    settings.read();
    window = std::make_unique<frmCOULEURS>(settings, texts, dialogs);
    window->show();
  }
  void choose(const char* button, const QColor& colour) {
    dialogs.nextColour = colour;
    click(button);
  }
  void type(const char* field, const char* text) {
    auto* edit = &find<QLineEdit>(field);
    edit->selectAll();
    for (const QChar letter : QString::fromUtf8(text)) { // QTest types no accents
      QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, letter);
      QCoreApplication::sendEvent(edit, &press);
    }
  }
  QString shown(const char* field) { return find<QLineEdit>(field).text(); }
  QString onButton(const char* name) { return find<QPushButton>(name).text(); }
};

TEST_F(ColourSettingsTest, ApplyWritesWhatWasChosenAndNothingElse) {
  QSignalSpy applied(window.get(), &frmCOULEURS::applied);
  choose("cmdCOULEUR2PTS", QColor(1, 2, 3));
  EXPECT_EQ(dialogs.lastColour, QColor(1, 0, 0)) << "the colour there is offered";
  choose("cmdCOULEURBOX", QColor(0, 255, 0));
  choose("cmdCOULEUR3PTS", QColor(0, 0, 255));
  choose("cmdCOULEURBUT", QColor(Qt::white));
  choose("cmdCOULEURBUT", QColor()); // cancelled
  type("txtSTATU2", "Tip, élan ");
  EXPECT_EQ(settings.twoPointColour, 1U) << "nothing is taken over before Apply";
  EXPECT_EQ(applied.count(), 0);
  click("cmdAPPLIQUER");
  EXPECT_EQ(
      codepage::toUtf8(folder.read("CONFIG.INI")),
      "[CONFIGURATION]\r\nCOULEUR2PTS=197121\r\nCOULEURBOX=65280\r\nCOULEUR3PTS=16711680\r\n"
      "COULEURBUT=16777215\r\nSTATU1=U1-Charges taken all season\r\nSTATU2=U2-Tip  élan\r\nLANGUE=0\r\n");
  EXPECT_EQ(settings.buttonColour, 16777215U);
  EXPECT_EQ(settings.statisticLabel[1], "U2-Tip  élan");
  EXPECT_EQ(shown("txtSTATU2"), QStringLiteral("Tip  élan"));
  EXPECT_EQ(applied.count(), 1);
  EXPECT_TRUE(window->isVisible());
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(ColourSettingsTest, ALabelIsShownWithoutItsPrefixAndNeverSavedWithoutIt) {
  EXPECT_EQ(shown("txtSTATU1"), QStringLiteral("Charges taken all season")) << "longer than can be typed";
  EXPECT_EQ(shown("txtSTATU2"), QStringLiteral("Deflections"));
  type("txtSTATU1", "");
  QTest::keyClick(&find<QLineEdit>("txtSTATU1"), Qt::Key_Delete);
  type("txtSTATU2", "123456789 123456789 123");
  click("cmdAPPLIQUER");
  EXPECT_EQ(settings.statisticLabel[0], "U1-");
  EXPECT_EQ(settings.statisticLabel[1], "U2-123456789 123456789");
  type("txtSTATU1", "U1-");
  EXPECT_EQ(shown("txtSTATU1"), QStringLiteral("U1-"));
  click("cmdAPPLIQUER");
  EXPECT_EQ(settings.statisticLabel[0], "U1-U1-") << "what looks like the prefix is part of the label";
}

TEST_F(ColourSettingsTest, ZonesOfOneColourAreRefusedWholly) {
  const QColor first(1, 0, 0), second(2, 0, 0), third(3, 0, 0);
  type("txtSTATU1", "Dives");
  for (const auto& [button, taken, own] :
       {std::tuple("cmdCOULEUR2PTS", second, first), std::tuple("cmdCOULEURBOX", third, second),
        std::tuple("cmdCOULEUR3PTS", first, third)}) {
    SCOPED_TRACE(button);
    dialogs.shown.clear();
    choose(button, taken);
    click("cmdAPPLIQUER");
    EXPECT_EQ(dialogs.shown,
              (Shown{{Kind::Warn, text(Text::WarningTitle), text(Text::ThreeDifferentColours)}}));
    EXPECT_EQ(folder.read("CONFIG.INI"), kOldFile);
    choose(button, own);
  }
  dialogs.shown.clear();
  choose("cmdCOULEURBUT", first); // buttons may have the colour of a zone
  click("cmdAPPLIQUER");
  EXPECT_TRUE(dialogs.shown.empty());
  EXPECT_EQ(settings.buttonColour, 1U);
}

TEST_F(ColourSettingsTest, DefaultsComeBackInTheWindowAndLabelsStay) {
  click("cmdDEFAUT");
  EXPECT_EQ(onButton("cmdCOULEUR2PTS"), QStringLiteral("#CEBD8A"));
  EXPECT_EQ(folder.read("CONFIG.INI"), kOldFile);
  click("cmdAPPLIQUER");
  settings.read();
  EXPECT_EQ(CourtColourChoice::of(settings).colours, kFirstColours);
  EXPECT_EQ(shown("txtSTATU1"), QStringLiteral("Charges taken all season"));
}

TEST_F(ColourSettingsTest, ThePictureFollowsEachChoiceAtOnce) {
  auto* court = &find<CourtView>("court");
  auto* sample = &find<QPushButton>("cmdEXEMPLE");
  const auto holds = [](QWidget* widget, const QColor& colour) {
    const QImage picture = widget->grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        count += picture.pixelColor(x, y) == colour ? 1 : 0;
    return count > picture.width() * picture.height() / 20;
  };
  const QColor orange(250, 140, 20);
  for (const char* zone : {"cmdCOULEUR2PTS", "cmdCOULEURBOX", "cmdCOULEUR3PTS"}) {
    SCOPED_TRACE(zone);
    click("cmdDEFAUT");
    EXPECT_FALSE(holds(court, orange));
    choose(zone, orange);
    EXPECT_TRUE(holds(court, orange));
  }
  EXPECT_FALSE(holds(sample, orange));
  choose("cmdCOULEURBUT", orange);
  EXPECT_TRUE(holds(sample, orange));
}

TEST_F(ColourSettingsTest, ClosingAsksOnlyAboutChanges) {
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(dialogs.shown.empty());
  const Shown question = {{Kind::AskToSave, text(Text::ColourSettings), text(Text::AskToSaveColours)}};
  start(kOldFile);
  type("txtSTATU1", "Dives");
  dialogs.nextSaveChoice = SaveChoice::Stay;
  EXPECT_FALSE(window->close());
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_EQ(dialogs.shown.size(), 2U);
  EXPECT_TRUE(window->isVisible());
  dialogs.shown.clear();
  dialogs.nextSaveChoice = SaveChoice::Discard;
  click("cmdFERMER");
  EXPECT_EQ(dialogs.shown, question);
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(folder.read("CONFIG.INI"), kOldFile);
  start(kOldFile);
  choose("cmdCOULEURBOX", QColor(1, 0, 0));
  dialogs.nextSaveChoice = SaveChoice::Save;
  EXPECT_FALSE(window->close()) << "what cannot be applied keeps the window open";
  choose("cmdCOULEURBOX", QColor(9, 0, 0));
  EXPECT_TRUE(window->close());
  EXPECT_EQ(settings.boxColour, 9U);
}

TEST_F(ColourSettingsTest, WhatTheDiskDoesNotTakeIsToldAndWrittenLater) {
  choose("cmdCOULEURBUT", QColor(7, 0, 0));
  disk.failAt = disk.calls;
  disk.staysBroken = true;
  QSignalSpy applied(window.get(), &frmCOULEURS::applied);
  click("cmdAPPLIQUER");
  const QString told = toQt(texts.withPlaceholder(Text::NotSaved, folder.path("CONFIG.INI")));
  EXPECT_EQ(dialogs.shown, (Shown{{Kind::Warn, text(Text::WarningTitle), told}}));
  EXPECT_EQ(applied.count(), 1);
  EXPECT_EQ(settings.buttonColour, 7U);
  EXPECT_TRUE(window->close()) << "kept, so nothing is lost";
  disk.failAt = -1;
  EXPECT_TRUE(settings.retry());
  EXPECT_NE(folder.read("CONFIG.INI").find("COULEURBUT=7\r\n"), std::string::npos);
}

TEST_F(ColourSettingsTest, FollowsTheLanguageAndKeepsWhatIsTyped) {
  type("txtSTATU1", "Dives");
  QSignalSpy asked(window.get(), &frmCOULEURS::languageAsked);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QTest::keyClick(window.get(), Qt::Key_F12);
  EXPECT_EQ(asked.count(), 1);
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Configuration des couleurs"));
  EXPECT_EQ(onButton("cmdAPPLIQUER"), QStringLiteral("App&liquer")) << "with an Alt key of this language";
  EXPECT_EQ(shown("txtSTATU1"), QStringLiteral("Dives"));
  EXPECT_EQ(onButton("cmdCOULEURBUT"), QStringLiteral("#FF0000")) << "no Alt key in a colour's number";
}

} // namespace
} // namespace hooptab
