#include "appearance/relabel.h"
#include "events/FollowUpBar.h"
#include "keypad/KeyCodes.h"
#include "keypad/KeyField.h"
#include "keypad/QtKeys.h"
#include "keypad/frmConfiguration.h"
#include "live/frmLIVE.h"
#include "recording/ManualTime.h"
#include "support/FaultyFileSystem.h"
#include "support/ScriptedDialogs.h"
#include "support/TemporaryFolder.h"
#include "support/TextGame.h"

#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <fstream>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

constexpr auto kPad = Qt::KeypadModifier;

KeyPress pressOf(int key, Qt::KeyboardModifiers modifiers) {
  return keyPressOf(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(QtKeysTest, EveryKeyHasItsVirtualKeyCodeWithNumLockOnAndOff) {
  const struct {
    int key;
    Qt::KeyboardModifiers modifiers;
    int code;
  } cases[] = {
      {Qt::Key_0, kPad, 96},
      {Qt::Key_9, kPad, 105},
      {Qt::Key_0, Qt::NoModifier, 48},
      {Qt::Key_Insert, kPad, 45},
      {Qt::Key_End, kPad, 35},
      {Qt::Key_Down, kPad, 40},
      {Qt::Key_PageDown, kPad, 34},
      {Qt::Key_Left, kPad, 37},
      {Qt::Key_Clear, kPad, 12},
      {Qt::Key_Right, kPad, 39},
      {Qt::Key_Home, kPad, 36},
      {Qt::Key_Up, kPad, 38},
      {Qt::Key_PageUp, kPad, 33},
      {Qt::Key_Delete, kPad, 46},
      {Qt::Key_Period, kPad, 110},
      {Qt::Key_Comma, kPad, 110},
      {Qt::Key_Plus, kPad, 107},
      {Qt::Key_Plus, Qt::NoModifier, 187},
      {Qt::Key_Minus, kPad, 109},
      {Qt::Key_Minus, Qt::NoModifier, 189},
      {Qt::Key_Asterisk, kPad, 106},
      {Qt::Key_Slash, kPad, 111},
      {Qt::Key_Enter, kPad, 13},
      {Qt::Key_Return, Qt::NoModifier, 13},
      {Qt::Key_Backspace, Qt::NoModifier, 8},
      {Qt::Key_NumLock, kPad, 144},
      {Qt::Key_NumLock, Qt::NoModifier, 144},
      {Qt::Key_A, Qt::ShiftModifier, 65},
      {Qt::Key_F1, Qt::NoModifier, 112},
      {Qt::Key_A, Qt::ControlModifier, 0},
      {Qt::Key_1, Qt::AltModifier | kPad, 0},
      {Qt::Key_Shift, Qt::ShiftModifier, 0},
      {Qt::Key_Exclam, Qt::ShiftModifier, 0},
  };
  for (const auto& c : cases) {
    const KeyPress press = pressOf(c.key, c.modifiers);
    EXPECT_EQ(press.code, c.code) << c.key;
    EXPECT_EQ(press.isKeypad, c.modifiers.testFlag(kPad)) << c.key;
  }
  for (int code = 1; code < 256; ++code) {
    const QtKey key = qtKeyOf(code);
    if (key.key != Qt::Key_unknown) {
      EXPECT_EQ(pressOf(key.key, key.isKeypad ? Qt::KeyboardModifiers(kPad) : Qt::NoModifier).code, code);
    }
  }
  for (const std::string& text : firstKeypadKeyTexts())
    EXPECT_NE(qtKeyOf(keys::code(text)).key, Qt::Key_unknown) << text;
}

class LiveKeysTest : public testing::Test {
 protected:
  void SetUp() override {
    settings.keypadIsActive = true;
    settings.asksRebounds = true;
    const std::string path = folder.path("keys.GAM");
    std::ofstream(path) << textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n");
    ASSERT_EQ(window.open(toQt(path)), frmLIVE::Opening::Opened);
    KeypadSetup quiet;
    quiet.sounds = false;
    window.setKeypad(quiet);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    window.setFocus();
  }
  // "129<": keys of the keypad as they are printed, "<" Backspace, "E" Enter.
  void pad(std::string_view keys) {
    for (const char key : keys) {
      QWidget* focus = QApplication::focusWidget();
      switch (key) {
      case '<': QTest::keyClick(focus, Qt::Key_Backspace); break;
      case 'E': QTest::keyClick(focus, Qt::Key_Enter, kPad); break;
      default: QTest::keyClick(focus, static_cast<Qt::Key>(key), kPad);
      }
    }
    letNumberBeTaken();
  }
  void letNumberBeTaken() {
    if (followUp().isOpen())
      QTest::qWait(FollowUpBar::kMayGoOn + 50);
  }
  // So that the clock is not turned twice by what looks like one press.
  static void pause() { QTest::qWait(ToggleGuard::kAfterToggle + 10); }
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  std::string lines() {
    const std::string text = folder.read("keys.GAM");
    std::string result;
    const std::size_t begin = text.find("1=10:00,ARRET");
    for (const char byte : text.substr(text.find('\n', begin) + 1))
      result += byte == '\n' ? std::string("|") : byte == '\r' ? std::string() : std::string(1, byte);
    return result.substr(0, result.find("[") == std::string::npos ? result.size() : result.find("["));
  }
  QLabel& label(const char* name) { return *window.findChild<QLabel*>(QLatin1String(name)); }
  FollowUpBar& followUp() { return *window.findChild<FollowUpBar*>(); }
  bool isDisplayed() { return label("lblACTION").isVisible(); }

  TemporaryFolder folder;
  FileSystem disk;
  cinifile store{disk};
  Settings settings{store, folder.path()};
  Texts texts;
  ScriptedDialogs dialogs;
  ManualTime time;
  frmLIVE window{store, settings, texts, dialogs, time};
};

TEST_F(LiveKeysTest, RecordsAndShowsIt) {
  EXPECT_FALSE(isDisplayed());
  pad("129");
  EXPECT_EQ(label("txtACTION").text(), QStringLiteral("129"));
  EXPECT_TRUE(label("lblACTION").text().contains(QStringLiteral("12 Dana Dunn")));
  pad("<");
  EXPECT_EQ(lines(), "2=10:00,SPF,0-12|");
  EXPECT_TRUE(label("lblACTION").text().startsWith(QStringLiteral("✓ PAN 12")));
  EXPECT_FALSE(label("txtACTION").isVisible());
  pad("129-");
  EXPECT_TRUE(label("lblACTION").text().contains(QStringLiteral("PAN has one")));
  EXPECT_EQ(lines(), "2=10:00,SPF,0-12|");
  pad("+");
  EXPECT_FALSE(isDisplayed());
  // On the bench: recorded, and said.
  pad("09<");
  EXPECT_EQ(lines(), "2=10:00,SPF,0-12|3=10:00,SPF,0-0|");
  EXPECT_TRUE(label("lblACTION").text().contains(toQt(texts.text(Text::NotOnCourt))));
}

TEST_F(LiveKeysTest, TheClockAndTheKeypadComeBeforeAnyButtonAndNeverInATextField) {
  pad("E");
  EXPECT_TRUE(window.isRunning());
  pause();
  press(Qt::Key_Space);
  EXPECT_FALSE(window.isRunning());
  auto* button = window.findChild<QPushButton*>(QStringLiteral("cmdOUTALL(0)"));
  button->setFocus();
  pause();
  press(Qt::Key_Return);
  EXPECT_TRUE(window.isRunning());
  EXPECT_EQ(QApplication::focusWidget(), button);
  pause();
  press(Qt::Key_Space);
  EXPECT_FALSE(window.isRunning());

  const std::string before = lines();
  auto* clock = window.findChild<QLabel*>(QStringLiteral("lblTEMPS"));
  QTest::mouseDClick(clock, Qt::LeftButton);
  auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  ASSERT_NE(field, nullptr);
  pad("129");
  press(Qt::Key_F);
  EXPECT_TRUE(field->text().startsWith(QStringLiteral("129")));
  EXPECT_FALSE(isDisplayed());
  press(Qt::Key_Escape);
  EXPECT_EQ(lines(), before);
  EXPECT_FALSE(window.isRunning());
}

TEST_F(LiveKeysTest, AHeldKeyCountsOnceAndOfASwitchedOffKeypadTheLineIsLeft) {
  QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Enter, kPad, QString(), true);
  QApplication::sendEvent(&window, &repeated);
  EXPECT_FALSE(window.isRunning());
  QKeyEvent digit(QEvent::KeyPress, Qt::Key_1, kPad, QStringLiteral("1"), true);
  QApplication::sendEvent(&window, &digit);
  EXPECT_FALSE(isDisplayed());
  pad("12");
  settings.keypadIsActive = false;
  window.keypadSwitched();
  EXPECT_FALSE(isDisplayed());
  pad("129<E");
  press(Qt::Key_Return);
  EXPECT_EQ(lines(), "");
  EXPECT_FALSE(isDisplayed() || window.isRunning());
  for (const Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_2, Qt::Key_Return, Qt::Key_1, Qt::Key_5})
    press(key);
  letNumberBeTaken();
  EXPECT_EQ(lines(), "2=10:00,GFG,0-12|3=10:00,SA,0-15|") << "six keys";
  press(Qt::Key_4);
  press(Qt::Key_Question);
  EXPECT_TRUE(lines().ends_with("SA,0-15,?=1|")) << "other keys are what they were: " << lines();
  press(Qt::Key_Escape);
  EXPECT_FALSE(isDisplayed());
  press(Qt::Key_Space);
  EXPECT_TRUE(window.isRunning());
}

TEST_F(LiveKeysTest, SeveralAtOnceAreTypedAsTheirNumbers) {
  press(Qt::Key_F4);
  auto* several = window.findChild<QDialog*>(QStringLiteral("frmSUBST"));
  ASSERT_NE(several, nullptr);
  ASSERT_TRUE(QTest::qWaitFor([&] { return several->isAncestorOf(QApplication::focusWidget()); }));
  pad("10");
  press(Qt::Key_0); // or 00
  press(Qt::Key_Tab);
  EXPECT_EQ(label("lblTYPEDWORDS").text(), QStringLiteral("0 Fay Ford: comes in"));
  pad("<99");
  press(Qt::Key_Return);
  EXPECT_TRUE(several->isVisible()) << "what is red is not passed over";
  EXPECT_EQ(label("lblTYPEDWORDS").text(), toQt(texts.withPlaceholder(Text::NobodyHereHasNumber, "99")));
  pad("<</");
  EXPECT_EQ(label("lblTYPEDTEAM").text(), QStringLiteral("OLY"));
  press(Qt::Key_Space);
  EXPECT_TRUE(window.isRunning()) << "the clock's key still";
  pad("0");
  press(Qt::Key_Return); // takes the number and confirms
  EXPECT_FALSE(several->isVisible());
  EXPECT_NE(lines().find("IN-00-04-05-12-15,IN-03-07-08-11-22|"), std::string::npos) << lines();
}

TEST_F(LiveKeysTest, FollowUpsAreAnsweredByTheWholeNumberAndSkippedByGoingOn) {
  pad(".42<");
  ASSERT_TRUE(followUp().isOpen());
  pad("1"); // 10, 12 and 15
  pad("2");
  EXPECT_FALSE(followUp().isOpen());
  EXPECT_EQ(lines(), "2=10:00,GFG,0-4|3=10:00,SA,0-12|");
  // A number is typed to its end: nothing of it is left over for the next input.
  pad("..42<22");
  EXPECT_FALSE(followUp().isOpen());
  EXPECT_FALSE(label("txtACTION").isVisible());
  EXPECT_TRUE(lines().ends_with("5=10:00,SDR,1-22|")) << lines();
  // Number and confirm key of the team that takes it.
  pad("..42<1-");
  EXPECT_TRUE(lines().ends_with("6=10:00,GFGA,0-4|")) << "1 fits several of both teams";
  ASSERT_TRUE(followUp().isOpen());
  pad("1-");
  EXPECT_TRUE(lines().ends_with("7=10:00,SDR,1-11|"));

  // Skipped: clear, confirm with nothing typed, Esc; the clock and an action are carried out.
  for (const char* key : {"+", "<"}) {
    pad(".42<");
    ASSERT_TRUE(followUp().isOpen());
    pad(key);
    EXPECT_FALSE(followUp().isOpen()) << key;
    EXPECT_FALSE(label("txtACTION").isVisible());
  }
  EXPECT_TRUE(lines().ends_with("9=10:00,GFG,0-4|"));
  pad(".42<");
  pad(".52<");
  ASSERT_TRUE(followUp().isOpen()) << "of the second shot";
  EXPECT_TRUE(lines().ends_with("10=10:00,GFG,0-4|11=10:00,GFG,0-5|"));
  pad("E");
  EXPECT_FALSE(followUp().isOpen());
  EXPECT_FALSE(window.isRunning()) << "Enter is the question's";
  pad("E");
  EXPECT_TRUE(window.isRunning());
}

TEST_F(LiveKeysTest, BothZerosOfADoubleZeroBelongToTheAnswer) {
  pad("4*<00/<");
  pad(".52<00");
  EXPECT_FALSE(followUp().isOpen());
  EXPECT_FALSE(label("txtACTION").isVisible()) << "0 and a team key would take everybody out";
  EXPECT_TRUE(lines().ends_with("4=10:00,SA,0-00|")) << lines();
  pad(".52<0<");
  EXPECT_TRUE(lines().ends_with("6=10:00,SA,0-00|")) << lines();
}

TEST_F(LiveKeysTest, EnterIsGoingOnWithTheKeypadSwitchedOffToo) {
  pad(".42<");
  ASSERT_TRUE(followUp().isOpen());
  settings.keypadIsActive = false;
  press(Qt::Key_Return);
  EXPECT_FALSE(followUp().isOpen());
  EXPECT_FALSE(window.isRunning());
  EXPECT_EQ(lines(), "2=10:00,GFG,0-4|");
}

TEST_F(LiveKeysTest, ALineOfTheMainKeyboardRecordsForBothTeams) {
  for (const Qt::Key key : {Qt::Key_1, Qt::Key_2, Qt::Key_1, Qt::Key_X, Qt::Key_Return})
    press(key);
  press(Qt::Key_Escape); // the rebound
  press(Qt::Key_7);
  press(Qt::Key_F);
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(lines(), "2=10:00,GFTA,0-12|3=10:00,SPF,1-7|");
  // The number of the rebound is taken with its last digit; an Enter behind it ends the line.
  const auto rebound = [this] {
    for (const Qt::Key key : {Qt::Key_4, Qt::Key_1, Qt::Key_X, Qt::Key_Return, Qt::Key_1, Qt::Key_2})
      press(key);
    letNumberBeTaken();
    EXPECT_FALSE(followUp().isOpen());
  };
  rebound();
  EXPECT_TRUE(lines().ends_with("5=10:00,SOR,0-12|")) << lines();
  press(Qt::Key_Return);
  EXPECT_FALSE(window.isRunning());
  press(Qt::Key_Return);
  EXPECT_TRUE(window.isRunning()) << "the next one is the clock's";
  rebound();
  pause();
  pad("E");
  EXPECT_FALSE(window.isRunning()) << "that of the keypad ends no line";
  rebound();
  QTest::qWait(1100);
  press(Qt::Key_Return);
  EXPECT_TRUE(window.isRunning()) << "too late for a habit";
  press(Qt::Key_Return);
  KeypadSetup french;
  french.letters.bind(static_cast<std::size_t>(KeypadAction::PF), 'P');
  window.setKeypad(french);
  press(Qt::Key_7);
  press(Qt::Key_P);
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_TRUE(lines().ends_with(",SPF,1-7|")) << "another letter acts at once";
}

TEST_F(LiveKeysTest, TheCheatSheetShowsTheKeysInUseAndTakesNone) {
  KeypadSetup setup;
  setup.letters.bind(static_cast<std::size_t>(KeypadAction::PF), 'P');
  setup.keys.bind(KeypadAction::PF, 144);
  window.setKeypad(setup);
  auto* sheet = window.findChild<QWidget*>(QStringLiteral("KeySheet"));
  press(Qt::Key_F1);
  ASSERT_TRUE(sheet->isVisible());
  EXPECT_TRUE(window.rect().contains(sheet->geometry()));
  EXPECT_EQ(label("lblLETTERS").textFormat(), Qt::RichText) << "else the marks of its table are read out";
  EXPECT_TRUE(label("lblLETTERS").text().contains(QStringLiteral("<b>P</b>")));
  EXPECT_FALSE(label("lblLETTERS").text().contains(QStringLiteral("<b>F</b>")));
  EXPECT_TRUE(
      sheet->findChild<QPushButton*>(QStringLiteral("key(144)"))->text().endsWith(QStringLiteral("PF")));
  texts.setLanguage(Language::French);
  window.relabelWindow();
  EXPECT_TRUE(label("lblLETTERS").text().contains(QStringLiteral("faute personnelle")));
  pad("E");
  EXPECT_TRUE(window.isRunning() && sheet->isVisible());
  press(Qt::Key_Escape);
  EXPECT_FALSE(sheet->isVisible());
  press(Qt::Key_F1);
  press(Qt::Key_F1);
  EXPECT_FALSE(sheet->isVisible());
}

class ConfigurationTest : public testing::Test {
 protected:
  void SetUp() override {
    folder.write("CONFIG.INI",
                 "[CONFIGURATION]\r\nCLOCK=13-ENTER\r\nOK0=8-BACK\r\nPF=105-9-PAGEUP\r\nTF=spare\r\n");
    settings.read();
    KeypadSetup setup;
    setup.keys = KeypadAssignment(settings.keypadKeyTexts);
    window = std::make_unique<frmConfiguration>(setup, settings, texts, dialogs);
    window->show();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  }
  KeyField& box(KeypadAction action) {
    return *window->findChild<KeyField*>(QStringLiteral("txtTOUCHE(%1)").arg(static_cast<int>(action)));
  }
  QPushButton& button(const char* name) { return *window->findChild<QPushButton*>(QLatin1String(name)); }
  QString text(int number) { return toQt(texts.text(number)); }

  TemporaryFolder folder;
  FaultyFileSystem disk;
  cinifile store{disk};
  Texts texts;
  Settings settings{store, folder.path()};
  ScriptedDialogs dialogs;
  std::unique_ptr<frmConfiguration> window;
};

TEST_F(ConfigurationTest, ABoxTakesTheKeyAndSavingWritesWhatWasBound) {
  QSignalSpy applied(window.get(), &frmConfiguration::applied);
  EXPECT_EQ(box(KeypadAction::CLOCK).text(), QStringLiteral("13-ENTER"));
  EXPECT_EQ(box(KeypadAction::TF).text(), QStringLiteral("spare"));
  const struct {
    KeypadAction action;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* text;
  } cases[] = {
      {KeypadAction::All, Qt::Key_0, kPad, "96-0-INS"},
      {KeypadAction::IN, Qt::Key_Insert, kPad, "45-0-INS"},
      {KeypadAction::ST, Qt::Key_PageDown, kPad, "34-3-HOME"},
      {KeypadAction::OUT, Qt::Key_H, {}, "72-"},
      {KeypadAction::OK0, Qt::Key_Enter, kPad, "13-ENTER"},
      {KeypadAction::CLOCK, Qt::Key_Backspace, {}, "8-BACK"},
  };
  for (const auto& c : cases) {
    QTest::keyClick(&box(c.action), c.key, c.modifiers);
    EXPECT_EQ(box(c.action).text(), QLatin1String(c.text));
  }
  for (const Qt::Key kept : {Qt::Key_Space, Qt::Key_F5, Qt::Key_Shift})
    QTest::keyClick(&box(KeypadAction::U1), kept);
  EXPECT_TRUE(box(KeypadAction::U1).text().isEmpty());
  ASSERT_TRUE(window->isVisible()) << "no key has closed it";
  EXPECT_EQ(applied.count(), 0);
  QTest::mouseClick(&button("Command1"), Qt::LeftButton);
  EXPECT_EQ(applied.count(), 1);
  EXPECT_EQ(folder.read("CONFIG.INI"),
            "[CONFIGURATION]\r\nCLOCK=8-BACK\r\nOK0=13-ENTER\r\nPF=105-9-PAGEUP\r\nTF=spare\r\n"
            "ST=34-3-HOME\r\nIN=45-0-INS\r\nOUT=72-\r\nAll=96-0-INS\r\n")
      << "a box that was never bound is left as it was";
  EXPECT_EQ(window->saved().keys.actionOf(13), KeypadAction::OK0);
  QTest::mouseClick(&button("Command2"), Qt::LeftButton);
  EXPECT_FALSE(window->isVisible());
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(ConfigurationTest, AKeyBoundTwiceIsShownAtOnceAndMustBeSolved) {
  const std::string before = folder.read("CONFIG.INI");
  QTest::keyClick(&box(KeypadAction::BS), Qt::Key_9, kPad);
  EXPECT_FALSE(button("Command1").isEnabled());
  auto* notice = window->findChild<QLabel*>(QStringLiteral("lblNOTICE"));
  EXPECT_TRUE(notice->isVisible());
  EXPECT_EQ(notice->text(), text(Text::KeysTwice));
  EXPECT_EQ(box(KeypadAction::BS).palette(), box(KeypadAction::PF).palette());
  EXPECT_NE(box(KeypadAction::BS).palette(), box(KeypadAction::CLOCK).palette());
  dialogs.nextSaveChoice = SaveChoice::Save;
  QTest::mouseClick(&button("Command2"), Qt::LeftButton);
  EXPECT_TRUE(window->isVisible()) << "it cannot be saved";
  EXPECT_EQ(folder.read("CONFIG.INI"), before);
  // With the picture of the keypad.
  box(KeypadAction::PF).setFocus();
  QTest::mouseClick(&button("key(103)"), Qt::LeftButton);
  EXPECT_EQ(box(KeypadAction::PF).text(), QStringLiteral("103-7-HOME"));
  EXPECT_TRUE(button("Command1").isEnabled());
  EXPECT_FALSE(notice->isVisible());
  QTest::keyClick(&box(KeypadAction::A), Qt::Key_1, kPad);
  EXPECT_EQ(notice->text(), text(Text::KeyBeginsNoShot));
  EXPECT_TRUE(button("Command1").isEnabled());
}

TEST_F(ConfigurationTest, DefaultsLettersAndUnsavedChanges) {
  window->findChild<QTabWidget*>()->setCurrentIndex(1);
  auto* miss = window->findChild<KeyField*>(QStringLiteral("txtLETTRE(17)"));
  ASSERT_NE(miss, nullptr);
  QTest::keyClick(miss, Qt::Key_7, kPad);
  EXPECT_EQ(miss->text(), QStringLiteral("X")) << "letters alone";
  QTest::keyClick(miss, Qt::Key_F);
  EXPECT_FALSE(button("Command1").isEnabled()) << "the letter of the foul";
  QTest::keyClick(miss, Qt::Key_Q);
  EXPECT_TRUE(button("Command1").isEnabled());
  dialogs.nextSaveChoice = SaveChoice::Stay;
  QTest::keyClick(miss, Qt::Key_Escape);
  EXPECT_TRUE(window->isVisible());
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].text, text(Text::AskToSaveKeys));
  QTest::mouseClick(&button("Command1"), Qt::LeftButton);
  EXPECT_EQ(window->saved().letters.letter(LetterAssignment::kMiss), 'Q');

  QTest::mouseClick(&button("cmdDEFAUT"), Qt::LeftButton);
  EXPECT_EQ(miss->text(), QStringLiteral("X"));
  EXPECT_EQ(box(KeypadAction::TF).text(), QStringLiteral("102-6-RIGHT"));
  dialogs.nextSaveChoice = SaveChoice::Discard;
  window->reject();
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(window->saved().letters.letter(LetterAssignment::kMiss), 'Q');
  EXPECT_EQ(settings.keypadKeyTexts[5], "spare");
}

TEST_F(ConfigurationTest, AFullDiskIsSaidAndTheKeysHoldAllTheSame) {
  QTest::keyClick(&box(KeypadAction::CLR), Qt::Key_Plus, kPad);
  disk.failAt = disk.calls;
  disk.staysBroken = true;
  QTest::mouseClick(&button("Command1"), Qt::LeftButton);
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_EQ(dialogs.shown[0].kind, ScriptedDialogs::Kind::Warn);
  EXPECT_EQ(window->saved().keys.actionOf(107), KeypadAction::CLR);
}

} // namespace
} // namespace hooptab
