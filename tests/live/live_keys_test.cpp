#include "events/FollowUpBar.h"
#include "keypad/KeyCodes.h"
#include "keypad/KeyField.h"
#include "keypad/QtKeys.h"
#include "keypad/frmConfiguration.h"
#include "live/LiveRoom.h"
#include "live/frmLIVE.h"
#include "support/FaultyFileSystem.h"
#include "support/TextGame.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTabWidget>

namespace hooptab {
namespace {

constexpr auto kPad = Qt::KeypadModifier;

KeyPress pressOf(int key, Qt::KeyboardModifiers modifiers) {
  return keyPressOf(QKeyEvent(QEvent::KeyPress, key, modifiers));
}

TEST(QtKeysTest, EveryKeyHasItsVirtualKeyCodeWithNumLockOnAndOff) {
  using Codes = std::vector<std::pair<int, int>>;
  const Codes ofKeypad = {{Qt::Key_0, 96},      {Qt::Key_9, 105},      {Qt::Key_Insert, 45},
                          {Qt::Key_End, 35},    {Qt::Key_Down, 40},    {Qt::Key_PageDown, 34},
                          {Qt::Key_Left, 37},   {Qt::Key_Clear, 12},   {Qt::Key_Right, 39},
                          {Qt::Key_Home, 36},   {Qt::Key_Up, 38},      {Qt::Key_PageUp, 33},
                          {Qt::Key_Delete, 46}, {Qt::Key_Period, 110}, {Qt::Key_Comma, 110},
                          {Qt::Key_Plus, 107},  {Qt::Key_Minus, 109},  {Qt::Key_Asterisk, 106},
                          {Qt::Key_Slash, 111}, {Qt::Key_Enter, 13},   {Qt::Key_NumLock, 144}};
  const Codes others = {{Qt::Key_0, 48},      {Qt::Key_Plus, 187},    {Qt::Key_Minus, 189},
                        {Qt::Key_Return, 13}, {Qt::Key_Backspace, 8}, {Qt::Key_NumLock, 144},
                        {Qt::Key_F1, 112}};
  const auto expectCodes = [](const Codes& codes, Qt::KeyboardModifiers modifiers) {
    for (const auto& [key, code] : codes) {
      EXPECT_EQ(pressOf(key, modifiers).code, code) << key;
      EXPECT_EQ(pressOf(key, modifiers).isKeypad, modifiers.testFlag(kPad)) << key;
    }
  };
  expectCodes(ofKeypad, kPad);
  expectCodes(others, {});
  expectCodes({{Qt::Key_A, 65}, {Qt::Key_Shift, 0}, {Qt::Key_Exclam, 0}}, Qt::ShiftModifier);
  expectCodes({{Qt::Key_A, 0}}, Qt::ControlModifier);
  expectCodes({{Qt::Key_1, 0}}, Qt::AltModifier | kPad);
  for (int code = 1; code < 256; ++code) {
    const QtKey key = qtKeyOf(code);
    if (key.key != Qt::Key_unknown)
      expectCodes({{key.key, code}}, key.isKeypad ? kPad : Qt::NoModifier);
  }
  for (const std::string& text : firstKeypadKeyTexts())
    EXPECT_NE(qtKeyOf(keys::code(text)).key, Qt::Key_unknown) << text;
}

class LiveKeysTest : public LiveRoom<> {
 protected:
  void SetUp() override {
    settings.keypadIsActive = true;
    settings.asksRebounds = true;
    const std::string path = folder.write(
        "keys.GAM", textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n"));
    ASSERT_EQ(window.open(toQt(path)), frmLIVE::Opening::Opened);
    KeypadSetup quiet;
    quiet.sounds = false;
    window.setKeypad(quiet);
    showActive(window);
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
    std::string text = folder.read("keys.GAM");
    text = text.substr(text.find('\n', text.find("1=10:00,ARRET")) + 1);
    std::erase(text, '\r');
    std::ranges::replace(text, '\n', '|');
    return text.substr(0, text.find('['));
  }
  QLabel& label(const char* name) { return find<QLabel>(window, name); }
  FollowUpBar& followUp() { return *window.findChild<FollowUpBar*>(); }
  bool isDisplayed() { return label("lblACTION").isVisible(); }

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
  pad("09<"); // on the bench
  EXPECT_EQ(lines(), "2=10:00,SPF,0-12|3=10:00,SPF,0-0|");
  EXPECT_TRUE(label("lblACTION").text().contains(toQt(texts.text(Text::NotOnCourt))));
}

TEST_F(LiveKeysTest, TheClockAndTheKeypadComeBeforeAnyButtonAndNeverInATextField) {
  pad("E");
  EXPECT_TRUE(window.isRunning());
  pause();
  press(Qt::Key_Space);
  EXPECT_FALSE(window.isRunning());
  auto* button = &find<QPushButton>(window, "cmdOUTALL(0)");
  button->setFocus();
  pause();
  press(Qt::Key_Return);
  EXPECT_TRUE(window.isRunning());
  EXPECT_EQ(QApplication::focusWidget(), button);
  pause();
  press(Qt::Key_Space);
  EXPECT_FALSE(window.isRunning());
  const std::string before = lines();
  QTest::mouseDClick(&label("lblTEMPS"), Qt::LeftButton);
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
  auto* several = &find(window, "frmSUBST");
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
  pad("..42<22");
  EXPECT_FALSE(followUp().isOpen() || label("txtACTION").isVisible());
  EXPECT_TRUE(lines().ends_with("5=10:00,SDR,1-22|")) << lines();
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

TEST_F(LiveKeysTest, BothZerosOfADoubleZeroBelongToTheAnswerAndEnterEndsItWithTheKeypadSwitchedOffToo) {
  pad("4*<00/<");
  pad(".52<00");
  EXPECT_FALSE(followUp().isOpen() || label("txtACTION").isVisible())
      << "0 and a team key would take everybody out";
  EXPECT_TRUE(lines().ends_with("4=10:00,SA,0-00|")) << lines();
  pad(".52<0<");
  EXPECT_TRUE(lines().ends_with("6=10:00,SA,0-00|")) << lines();
  pad(".52<");
  ASSERT_TRUE(followUp().isOpen());
  settings.keypadIsActive = false;
  press(Qt::Key_Return);
  EXPECT_FALSE(followUp().isOpen() || window.isRunning());
  EXPECT_TRUE(lines().ends_with("6=10:00,SA,0-00|7=10:00,GFG,0-5|")) << lines();
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
  auto* sheet = &find(window, "KeySheet");
  press(Qt::Key_F1);
  ASSERT_TRUE(sheet->isVisible());
  EXPECT_TRUE(window.rect().contains(sheet->geometry()));
  EXPECT_EQ(label("lblLETTERS").textFormat(), Qt::RichText) << "else the marks of its table are read out";
  EXPECT_TRUE(label("lblLETTERS").text().contains(QStringLiteral("<b>P</b>")));
  EXPECT_FALSE(label("lblLETTERS").text().contains(QStringLiteral("<b>F</b>")));
  EXPECT_TRUE(find<QPushButton>(*sheet, "key(144)").text().endsWith(QStringLiteral("PF")));
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

class ConfigurationTest : public LiveRoom<FaultyFileSystem> {
 protected:
  void SetUp() override {
    folder.write("CONFIG.INI",
                 "[CONFIGURATION]\r\nCLOCK=13-ENTER\r\nOK0=8-BACK\r\nPF=105-9-PAGEUP\r\nTF=spare\r\n");
    settings.read();
    KeypadSetup setup;
    setup.keys = KeypadAssignment(settings.keypadKeyTexts);
    window = std::make_unique<frmConfiguration>(setup, settings, texts, dialogs);
    showActive(*window);
  }
  KeyField& box(KeypadAction action) {
    return find<KeyField>(*window, QStringLiteral("txtTOUCHE(%1)").arg(static_cast<int>(action)));
  }
  QPushButton& button(const char* name) { return find<QPushButton>(*window, name); }

  std::unique_ptr<frmConfiguration> window;
};

TEST_F(ConfigurationTest, ABoxTakesTheKeyAndSavingWritesWhatWasBound) {
  QSignalSpy applied(window.get(), &frmConfiguration::applied);
  EXPECT_EQ(box(KeypadAction::CLOCK).text(), QStringLiteral("13-ENTER"));
  EXPECT_EQ(box(KeypadAction::TF).text(), QStringLiteral("spare"));
  const std::tuple<KeypadAction, Qt::Key, Qt::KeyboardModifiers, const char*> cases[] = {
      {KeypadAction::All, Qt::Key_0, kPad, "96-0-INS"},
      {KeypadAction::IN, Qt::Key_Insert, kPad, "45-0-INS"},
      {KeypadAction::ST, Qt::Key_PageDown, kPad, "34-3-HOME"},
      {KeypadAction::OUT, Qt::Key_H, {}, "72-"},
      {KeypadAction::OK0, Qt::Key_Enter, kPad, "13-ENTER"},
      {KeypadAction::CLOCK, Qt::Key_Backspace, {}, "8-BACK"}};
  for (const auto& [action, key, modifiers, text] : cases) {
    QTest::keyClick(&box(action), key, modifiers);
    EXPECT_EQ(box(action).text(), QLatin1String(text));
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
  auto* notice = &find<QLabel>(*window, "lblNOTICE");
  EXPECT_TRUE(notice->isVisible());
  EXPECT_EQ(notice->text(), text(Text::KeysTwice));
  EXPECT_EQ(box(KeypadAction::BS).palette(), box(KeypadAction::PF).palette());
  EXPECT_NE(box(KeypadAction::BS).palette(), box(KeypadAction::CLOCK).palette());
  dialogs.nextSaveChoice = SaveChoice::Save;
  QTest::mouseClick(&button("Command2"), Qt::LeftButton);
  EXPECT_TRUE(window->isVisible()) << "it cannot be saved";
  EXPECT_EQ(folder.read("CONFIG.INI"), before);
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
  auto* miss = &find<KeyField>(*window, "txtLETTRE(17)");
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
