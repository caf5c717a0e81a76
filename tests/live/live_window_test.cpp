// The live window as a whole, under hands that slip, disks that fail and games that come and go.
#include "appearance/GameHold.h"
#include "events/JerseyButton.h"
#include "events/frmSUBST.h"
#include "game/EventListModel.h"
#include "live/BenchPanel.h"
#include "live/LiveRoom.h"
#include "live/frmLIVE.h"
#include "support/FaultyFileSystem.h"

#include <QAction>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QTableView>
#include <QToolButton>
#include <fstream>

namespace hooptab {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class LiveWindowTest : public LiveRoom<FaultyFileSystem> {
 protected:
  void SetUp() override {
    settings.asksRebounds = false;
    fs::create_directory(folder.path("stick"));
    makeGame(path);
    open(path);
    show();
    EXPECT_TRUE(asksFives);
    for (const int index : {0, 1, 2, 3, 4, 15, 16, 17, 18, 19}) {
      if (!find<BenchPanel>("picBENCH").isSubstituting())
        key(Qt::Key_F6);
      press(jerseyButtonName(index));
      key(Qt::Key_F6);
    }
  }
  static void makeGame(const std::string& where) {
    LiveRoom::makeGame(where, "4=0,Ann\n5=1,Bea\n10=2,Cleo\n12=2,Dot\n15=1,Eve\n20=1,Fay\n");
  }
  void open(const std::string& game) { ASSERT_EQ(window->open(toQt(game)), frmLIVE::Opening::Opened); }
  // A game that was left while its clock ran.
  void openAgain(const std::string& game) {
    window = std::make_unique<frmLIVE>(store, settings, texts, dialogs, time);
    open(game);
    show();
    ASSERT_TRUE(find("picLOSTSTOP").isVisible());
  }
  void show() {
    window->resize(1366, 700);
    window->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
    // A game that has not begun asks for both of them.
    QCoreApplication::processEvents();
    const auto asked = window->findChildren<frmSUBST*>();
    for (frmSUBST* several : asked)
      several->reject();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    asksFives = !asked.isEmpty();
    showActive(*window);
  }
  template <class Widget = QWidget>
  Widget& find(QAnyStringView name) {
    return LiveRoom::find<Widget>(*window, name);
  }
  void press(QAnyStringView name, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(&find(name), button);
  }
  void key(Qt::Key code) { QTest::keyClick(window.get(), code); }
  // Presses the court where it counts, or on a line, as its pointer says.
  void pressCourt(const char* name, bool onLine) {
    QWidget& picture = find(name);
    for (int x = 8; x < picture.width() - 8; ++x) {
      const QPoint place(x, picture.height() / 2);
      QMouseEvent move(QEvent::MouseMove, place, picture.mapToGlobal(place), Qt::NoButton, {}, {});
      QApplication::sendEvent(&picture, &move);
      if ((picture.cursor().shape() == Qt::ForbiddenCursor) == onLine)
        return QTest::mouseClick(&picture, Qt::LeftButton, {}, place);
    }
    FAIL() << "no such place";
  }
  void pressWith(const char* name, Qt::MouseButton button, Qt::MouseButtons down, quint64 moment,
                 int below = 0) {
    QWidget& widget = find(name);
    const QPointF place = widget.rect().center() + QPoint(0, below);
    QMouseEvent press(QEvent::MouseButtonPress, place, widget.mapToGlobal(place), button, down, {});
    press.setTimestamp(moment);
    QApplication::sendEvent(&widget, &press);
  }
  // When the clock's key or button is no second press any more.
  void toggleClock() {
    QTest::qWait(ToggleGuard::kAfterToggle + 10);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  }
  std::string label(auto... names) { return textOf(*window, names...); }
  std::string events(int period = 1) { return eventsOf(path, period); }
  // The events of a period on disk behind those that put the fives on court: clock and code.
  std::string eventsOf(const std::string& where, int period = 1) {
    ProfileStore own{plain};
    std::string text;
    int number = 0;
    const PeriodLines lines = linesOfFile(own, where)[period];
    for (const auto& [key, line] : lines) {
      if (period == 1 && ++number <= 2)
        continue;
      text += (text.empty() ? "" : " ") + line.substr(0, line.find(",IN"));
    }
    return text;
  }

  bool asksFives = false;
  FileSystem plain;
  std::string path = folder.path("stick/A.GAM");
  std::unique_ptr<frmLIVE> window = std::make_unique<frmLIVE>(store, settings, texts, dialogs, time);
};

TEST_F(LiveWindowTest, EveryPressCountsAndNoSlipDoes) {
  // The display's clock, which a test moves on by half a second with each click, tells a double press.
  const auto pressTwice = [this](const char* name) {
    static quint64 now = 1'000'000;
    now += 10'000;
    for (const quint64 moment : {now, now + 120})
      pressWith(name, Qt::LeftButton, Qt::LeftButton, moment);
  };
  pressTwice("cmdBUTF(0)");
  EXPECT_EQ(events(), "10:00,SPF,0-4");
  EXPECT_EQ(label("lblSAID"), "Two presses at one spot: counted once.");
  key(Qt::Key_F2);
  EXPECT_EQ(events(), "10:00,SPF,0-4 10:00,SPF,0-4");
  pressTwice("cmdBUTFT(1)");
  EXPECT_EQ(events(), "10:00,SPF,0-4 10:00,SPF,0-4 10:00,GFT,0-5 10:00,GFT,0-5") << "free throws";
  pressTwice("cmdBUTLUG(5)");
  EXPECT_TRUE(find("Assist").isVisible()) << "and the question of the first one stays";
  key(Qt::Key_Escape);
  press("cmdBUTFT(1)", Qt::RightButton);
  EXPECT_TRUE(events().ends_with(" 10:00,GFT,0-5 10:00,GLG,1-4 10:00,GFTA,0-5")) << events();
  const std::string before = events();
  press("cmdBUTF(0)", Qt::RightButton);
  for (const char* name : {"cmdBUTFT(0)", "CourtJ(0)", "cmdJERSEY(0)"})
    pressWith(name, Qt::RightButton, Qt::LeftButton | Qt::RightButton, 0, 10); // both buttons at once
  pressCourt("CourtJ(0)", true);
  EXPECT_EQ(events(), before);
  pressCourt("CourtJ(0)", false);
  EXPECT_TRUE(events().starts_with(before + " 10:00,GF")) << events();
}

TEST_F(LiveWindowTest, GoingOnClosesAFollowUpAsNobodyAndHappens) {
  pressCourt("CourtJ(5)", false);
  ASSERT_TRUE(find("Assist").isVisible());
  press("cmdBUTST(1)");
  EXPECT_FALSE(find("Assist").isVisible());
  toggleClock();
  pressCourt("CourtJ(6)", false);
  toggleClock();
  EXPECT_FALSE(window->isRunning()) << "the whistle comes while one types";
  EXPECT_TRUE(find("Assist").isVisible());
  toggleClock();
  EXPECT_FALSE(window->isRunning()) << "and nobody starts before he has answered";
  EXPECT_EQ(label("lblREASON"), "Answer first (Esc: nobody); then the clock can start.");
  pressCourt("CourtJ(7)", false);
  pressCourt("CourtJ(8)", false); // the next shot, whose question is a new one
  window->hide(); // a game that another start of the program hands over comes up and goes behind
  window->show();
  EXPECT_TRUE(find("Assist").isVisible());
  key(Qt::Key_Escape);
  EXPECT_FALSE(find("Assist").isVisible());
  const std::string found = events();
  EXPECT_EQ(found.find(",SA"), std::string::npos) << found;
  for (const char* event : {",SST,0-5 ", "1-5,", "10:00,DEPART ", "10:00,ARRET ", "1-10,", "1-12,"})
    EXPECT_NE(found.find(event), std::string::npos) << event << " in " << found;
}

TEST_F(LiveWindowTest, SpaceIsTheClocksOnceAPress) {
  auto& allOut = find<QPushButton>("cmdOUTALL(0)");
  allOut.setFocus();
  ASSERT_TRUE(allOut.hasFocus());
  QTest::keyClick(&allOut, Qt::Key_Space);
  EXPECT_TRUE(window->isRunning());
  QTest::keyClick(&allOut, Qt::Key_Space); // within a moment
  EXPECT_TRUE(window->isRunning() && find("lblSAID").isVisible());
  for (int repeat = 0; repeat < 3; ++repeat)
    QTest::simulateEvent(&allOut, true, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
  EXPECT_TRUE(window->isRunning());
  EXPECT_EQ(events(), "10:00,DEPART") << "and nobody has left the court";
  time.now += 7;
  toggleClock();
  EXPECT_EQ(events(), "10:00,DEPART 09:53,ARRET");
  EXPECT_FALSE(find("lblSAID").isVisible());
}

TEST_F(LiveWindowTest, ClosingWhileTheClockRunsIsAskedAndStopsIt) {
  press("cmdSTART");
  time.now += 75;
  dialogs.nextAnswer = false;
  EXPECT_FALSE(window->close());
  window->gameOver();
  EXPECT_TRUE(window->isRunning());
  EXPECT_EQ(dialogs.shown.size(), 2U);
  dialogs.nextAnswer = true;
  EXPECT_TRUE(window->close());
  EXPECT_EQ(events(), "10:00,DEPART 08:45,ARRET");
  // Half a minute later.
  std::string text = folder.read("stick/A.GAM");
  const std::size_t mark = text.find(' ', text.find("QUITTE="));
  const std::size_t end = text.find('\r', mark);
  text.replace(mark + 1, end - mark - 1, std::to_string(std::stoll(text.substr(mark + 1, end - mark)) - 30));
  folder.write("stick/A.GAM", text);
  openAgain(path);
  press("cmdRUNONCLOCK");
  const std::string clock = label("lblTEMPS");
  EXPECT_TRUE(clock == "08:15" || clock == "08:14") << clock;
  EXPECT_FALSE(find("picLOSTSTOP").isVisible());
}

TEST_F(LiveWindowTest, ABenchPlayersShotComesWithItsRepair) {
  press(jerseyButtonName(5));
  press("cmdSELSHOT");
  ASSERT_TRUE(find("picBENCHSHOT").isVisible());
  QTest::mouseClick(&LiveRoom::find(find("picBENCHSHOT"), "cmdBUTDK"), Qt::LeftButton);
  EXPECT_EQ(events(), "10:00,GDK,0-20");
  EXPECT_FALSE(find("picBENCHSHOT").isVisible());
  EXPECT_TRUE(find("cmdJERSEY(4)").isVisible()) << "all five can have assisted";
  key(Qt::Key_5); // the answer is an event of its own, and leaves what is offered
  EXPECT_TRUE(QTest::qWaitFor([this] { return events() == "10:00,GDK,0-20 10:00,SA,0-5"; }));
  EXPECT_NE(label("lblSAID").find("20 Fay was not on court"), std::string::npos) << label("lblSAID");
  key(Qt::Key_F2);
  EXPECT_TRUE(QTest::qWaitFor([this] { return window->findChild<QWidget*>(QStringLiteral("frmSUBST")); }));
}

TEST_F(LiveWindowTest, AFolderThatIsGoneForAWhileLosesNothing) {
  press("cmdSTART");
  fs::rename(folder.path("stick"), folder.path("pulled"));
  for (const char* name : {"cmdBUTF(0)", "cmdBUTDRB(5)", "cmdBUTTO(2)"}) {
    ++time.now;
    press(name);
  }
  EXPECT_TRUE(find("lblNOTONDISK").isVisible());
  EXPECT_EQ(find("lblNOTONDISK").toolTip(), toQt(texts.withPlaceholder(Text::WhyPlaceGone, path)));
  EXPECT_EQ(label("lblFAUTE(0)"), "1") << "input goes on";
  toggleClock();
  dialogs.nextAnswer = false;
  EXPECT_FALSE(window->mayClose()) << "not without a question";
  EXPECT_EQ(dialogs.shown.back().kind, ScriptedDialogs::Kind::Ask);
  fs::rename(folder.path("pulled"), folder.path("stick"));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !find("lblNOTONDISK").isVisible(); }));
  EXPECT_EQ(events(), "10:00,DEPART 09:59,SPF,0-4 09:58,SDR,1-4 09:57,STO,0-10 09:57,ARRET");
}

TEST_F(LiveWindowTest, AWriteThatFailsAnywhereInABurstLeavesTheOrder) {
  std::string expected;
  bool hasFailed = true;
  for (int call = 0; hasFailed; ++call) {
    SCOPED_TRACE(call);
    disk.hasFailed = false;
    disk.failAt = disk.calls + call;
    for (const char* name : {"cmdBUTF(0)", "cmdBUTST(5)", "cmdBUTTO(2)"})
      press(name);
    hasFailed = disk.hasFailed;
    disk.failAt = -1;
    ASSERT_TRUE(window->mayClose());
    expected += (expected.empty() ? "" : " ") + std::string("10:00,SPF,0-4 10:00,SST,1-4 10:00,STO,0-10");
    ASSERT_EQ(events(), expected);
    ASSERT_LT(call, 200);
  }
  EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(LiveWindowTest, TheLanguageChangesWhileTheClockRuns) {
  press("cmdSTART");
  press(jerseyButtonName(5));
  texts.setLanguage(Language::French);
  window->relabelWindow();
  EXPECT_TRUE(window->isRunning());
  EXPECT_EQ(find<QAbstractButton>("cmdSTART").text(), QStringLiteral("ARRÊT"));
  EXPECT_EQ(label("lblNom"), "Fay");
  time.now += 3;
  press("cmdSELTF");
  toggleClock();
  EXPECT_EQ(events(), "10:00,DEPART 09:57,STF,0-20 09:57,ARRET");
  EXPECT_EQ(label("lblNO"), "") << "a player is selected for one action";
}

TEST_F(LiveWindowTest, AnotherGameWaitsForTheFirst) {
  const std::string other = folder.path("B.GAM");
  makeGame(other);
  press("cmdSTART");
  time.now += 20;
  toggleClock();
  fs::rename(folder.path("stick"), folder.path("pulled"));
  press("cmdBUTF(0)");
  press(jerseyButtonName(5));
  EXPECT_EQ(window->open(toQt(other)), frmLIVE::Opening::Refused) << "the user has not given the rest up";
  EXPECT_EQ(window->path(), toQt(path));
  fs::rename(folder.path("pulled"), folder.path("stick"));
  const QString sides = find<QToolButton>("cmdCOUL(0)").text();
  press("cmdSWITCH");
  ASSERT_NE(find<QToolButton>("cmdCOUL(0)").text(), sides);
  open(other);
  EXPECT_EQ(events(), "10:00,DEPART 09:40,ARRET 09:40,SPF,0-4");
  EXPECT_FALSE(folder.holds("stick/A.GAM.lock"));
  EXPECT_TRUE(folder.holds("B.GAM.lock"));
  EXPECT_EQ(label("lblNO", "lblTEMPS"), "|10:00");
  EXPECT_EQ(find<QToolButton>("cmdCOUL(0)").text(), sides) << "a game begins with its own sides";
  GameLock elsewhere;
  ASSERT_EQ(elsewhere.acquire(plain, path), GameLock::Outcome::Held);
  window->hold().setPatience(400ms, 50ms);
  ASSERT_EQ(window->open(toQt(path)), frmLIVE::Opening::Opened) << "for reading";
  EXPECT_NE(label("lblREADONLY").find(std::to_string(QCoreApplication::applicationPid())), std::string::npos);
  const std::string before = eventsOf(path);
  press("cmdBUTTF(0)");
  EXPECT_EQ(eventsOf(path), before);
  ProfileStore theirs{plain};
  GameFile file(theirs, path);
  ASSERT_EQ(file.append(1, 500, file.nextNumber(), {",GF3,1-4,60,80"}), GameFileProblem::None);
  EXPECT_TRUE(QTest::qWaitFor([&] { return label("lblPTS1") == "3"; }, 8000)) << "it follows the file";
  // Its lock stands still, so it is offered, refused, and taken when it has stood still once more.
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialogs.shown.back().kind == ScriptedDialogs::Kind::Ask; }, 5000));
  EXPECT_TRUE(find("lblREADONLY").isVisible());
  dialogs.nextAnswer = true;
  fs::last_write_time(path + ".lock", fs::file_time_type::clock::now());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !find("lblREADONLY").isVisible(); }, 5000));
  EXPECT_FALSE(elsewhere.isStillOurs());
  press("cmdBUTTF(0)");
  EXPECT_EQ(eventsOf(path), before + " 08:20,GF3,1-4,60,80 08:20,STF,0-4");
}

TEST_F(LiveWindowTest, TellsWhatOthersDidToTheFileAndWhoHasTakenIt) {
  std::ofstream(path, std::ios::app) << "99=10:00,SST,1-5\r\n";
  press("cmdBUTFT(0)");
  EXPECT_TRUE(find("picFOREIGN").isVisible());
  press("cmdDISMISS");
  EXPECT_FALSE(find("picFOREIGN").isVisible());
  fs::remove(path);
  EXPECT_TRUE(QTest::qWaitFor([&] { return find("picFOREIGN").isVisible(); }, 8000)) << "without a click";
  EXPECT_TRUE(fs::exists(path));
  LockFile thief(path + ".lock");
  ASSERT_EQ(thief.takeOver(thief.look()), LockFile::Outcome::Held);
  const std::string before = folder.read("stick/A.GAM");
  press("cmdBUTFT(0)");
  EXPECT_EQ(folder.read("stick/A.GAM"), before);
  EXPECT_TRUE(find("lblNOTONDISK").isVisible());
  EXPECT_TRUE(folder.holds("A.GAM.rescue"));
  EXPECT_EQ(label("lblPTS0"), "2") << "and it is counted all the same";
  dialogs.nextAnswer = true;
  window.reset();
  EXPECT_TRUE(thief.isStillOurs()) << "whoever has lost a lock removes none";
}

// A clock of three-digit minutes would be written into lines that nobody understands.
TEST_F(LiveWindowTest, PeriodsThatNoClockShowsAreRefused) {
  const std::string longest = folder.path("long.GAM");
  makeGame(longest);
  for (const std::string minutes : {"100", "99999999", "99"}) {
    const bool isShown = minutes == "99";
    ASSERT_EQ(GameFile(store, longest).setDetails({{"DUREE", minutes}}), GameFileProblem::None);
    EXPECT_EQ(window->open(toQt(longest)), isShown ? frmLIVE::Opening::Opened : frmLIVE::Opening::Refused);
    EXPECT_EQ(window->path() == toQt(longest), isShown);
  }
  ASSERT_EQ(dialogs.shown.size(), 2U);
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("100")));
}

TEST_F(LiveWindowTest, ACountThatIsTooLargeIsNamed) {
  const std::string many = folder.path("many.GAM");
  makeGame(many);
  ProfileBatch batch;
  GameFile::planLines(1, std::vector<std::string>(32'768, "10:00,STO,0-4"), batch);
  batch.set("DETAILS", "TERMINE", "0");
  ASSERT_TRUE(store.write(many, batch).isOnDisk());
  open(many);
  ASSERT_EQ(dialogs.shown.size(), 1U);
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("many.GAM")));
  EXPECT_TRUE(dialogs.shown[0].text.contains(QStringLiteral("4 TO"))) << dialogs.shown[0].text.toStdString();
  press("cmdBUTF(0)");
  EXPECT_EQ(dialogs.shown.size(), 1U);
}

// Where no lock file can be made (its name would be too long), and where the file is protected.
TEST_F(LiveWindowTest, WhatCannotBeWrittenOpensForReading) {
  press("cmdBUTFT(0)");
  const std::string longName = std::string(250, 'x') + ".GAM";
  fs::copy_file(path, folder.path(longName));
  fs::copy_file(path, folder.path("protected.GAM"));
  fs::permissions(folder.path("protected.GAM"), fs::perms::owner_read | fs::perms::others_read);
  for (const std::string& name : {longName, std::string("protected.GAM")}) {
    SCOPED_TRACE(name.size());
    const std::string before = folder.read(name);
    open(folder.path(name));
    EXPECT_FALSE(folder.holds("stick/A.GAM.lock"));
    const auto& reading = find<QLabel>("lblREADONLY");
    EXPECT_TRUE(reading.isVisible());
    EXPECT_LE(reading.fontMetrics().horizontalAdvance(reading.text()), reading.width());
    EXPECT_EQ(label("lblPTS0", "lblNom(0)"), "1|Ann");
    EXPECT_FALSE(find("cmdSTART").isEnabled() || find("cmdBUTF(0)").isEnabled() ||
                 find("CourtJ(0)").isEnabled() || find("cmdSUBST").isEnabled() ||
                 find("cmdOUTALL(0)").isEnabled() || find("UpDoPERIOD(0)").isEnabled());
    press("cmdBUTF(0)");
    press("CourtJ(0)");
    key(Qt::Key_Space);
    press(jerseyButtonName(5));
    EXPECT_FALSE(find("picSELECTED").isVisible());
    window->gameOver();
    EXPECT_TRUE(dialogs.shown.back().text.contains(toQt(name)));
    EXPECT_EQ(folder.read(name), before);
  }
  open(path);
  EXPECT_FALSE(find("lblREADONLY").isVisible());
  press("cmdBUTF(0)");
  EXPECT_EQ(events(), "10:00,GFT,0-4 10:00,SPF,0-4");
}

TEST_F(LiveWindowTest, AfterACrashOneClickTakesEitherClock) {
  press("cmdSTART");
  time.now += 90;
  press("cmdBUTF(0)");
  const std::string copy = folder.path("crashed.GAM");
  const auto findCrashed = [&](std::chrono::seconds ago) {
    fs::copy_file(path, copy, fs::copy_options::overwrite_existing);
    fs::last_write_time(copy, fs::file_time_type::clock::now() - ago);
    openAgain(copy);
    EXPECT_FALSE(window->isRunning());
    EXPECT_EQ(label("lblTEMPS", "lblNom(0)"), "08:30|Ann");
    window->findChild<QAction*>(QStringLiteral("cmdFILTER"))->trigger();
    QLabel& notOnDisk = find<QLabel>("lblNOTONDISK");
    notOnDisk.show();
    EXPECT_LE(window->minimumSizeHint().height(), 645) << "768 lines would cut off what is below";
    notOnDisk.hide();
  };
  findCrashed(32s);
  EXPECT_TRUE(find<QPushButton>("cmdLASTCLOCK").text().endsWith(QStringLiteral("08:30")));
  press("cmdRUNONCLOCK");
  EXPECT_FALSE(find("picLOSTSTOP").isVisible());
  const std::string clock = label("lblTEMPS");
  EXPECT_TRUE(clock == "07:58" || clock == "07:57") << clock;
  EXPECT_EQ(eventsOf(copy), "10:00,DEPART 08:30,SPF,0-4 " + clock + ",ARRET");
  findCrashed(32s);
  press("cmdLASTCLOCK");
  EXPECT_FALSE(find("picLOSTSTOP").isVisible());
  EXPECT_EQ(eventsOf(copy), "10:00,DEPART 08:30,SPF,0-4 08:30,ARRET");
  for (const auto ago : {2h, -2h}) { // the period is over; the file is of tomorrow
    findCrashed(ago);
    EXPECT_FALSE(find("cmdRUNONCLOCK").isVisible());
    press("cmdSTART");
    EXPECT_FALSE(find("picLOSTSTOP").isVisible());
    EXPECT_EQ(eventsOf(copy), "10:00,DEPART 08:30,SPF,0-4 08:30,ARRET 08:30,DEPART");
  }
}

TEST_F(LiveWindowTest, TheBenchActsByClickAndDropAndAllAtOnce) {
  press(jerseyButtonName(5));
  press("cmdSELTF");
  EXPECT_EQ(events(), "10:00,STF,0-20");
  press(jerseyButtonName(5));
  key(Qt::Key_Escape);
  EXPECT_EQ(label("lblNO"), "");
  const auto drop = [this](const char* player, const char* panel) {
    QMimeData data;
    data.setData(playerMimeType(), player);
    const QWidget& target = find(panel);
    const QPoint place = target.mapTo(window.get(), target.rect().center());
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window.get(), &event);
  };
  QMimeData ofAnotherProgram;
  ofAnotherProgram.setData(QStringLiteral("application/x-hooptab-player-0"), "0-6");
  QDragEnterEvent stranger({10, 10}, Qt::CopyAction, &ofAnotherProgram, Qt::LeftButton, {});
  stranger.ignore();
  QApplication::sendEvent(window.get(), &stranger);
  EXPECT_FALSE(stranger.isAccepted()) << "there the entry is somebody else's";
  for (const char* wrong : {"1-6", "0-99", "", "0-", "-1-1", "2-3", "nonsense"})
    drop(wrong, "fraPLAYER(0)");
  EXPECT_EQ(events(), "10:00,STF,0-20");
  press(jerseyButtonName(5)); // as a drag begins
  drop("0-6", "fraPLAYER(0)");
  EXPECT_EQ(events(), "10:00,STF,0-20 10:00,ARRET");
  EXPECT_EQ(label("lblNO", "lblNom(4)", "lblNom(0)"), "|Fay|Bea");
  press("cmdOUTALL(1)");
  EXPECT_EQ(label("lblID(5)"), "0");
  EXPECT_FALSE(find("cmdOUTALL(1)").isEnabled());
}

TEST_F(LiveWindowTest, TheClocksKeyIsTheClocksWhileSeveralAreChosen) {
  press("cmdSEVERAL");
  QWidget& several = find("frmSUBST");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&several));
  const auto jersey = [&](int player) {
    return &LiveRoom::find<JerseyButton>(several, jerseyButtonName(player));
  };
  QTest::mouseClick(jersey(0), Qt::LeftButton);
  QTest::mouseClick(jersey(5), Qt::LeftButton);
  jersey(1)->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_TRUE(window->isRunning());
  EXPECT_TRUE(jersey(1)->isChecked()) << "the key presses nobody";
  time.now += 3;
  QTest::keyClick(&several, Qt::Key_Return);
  EXPECT_EQ(events(), "10:00,DEPART 09:57,ARRET 09:57,DEPART");
  EXPECT_EQ(label("lblNom(4)"), "Fay");
}

TEST_F(LiveWindowTest, FreeThrowsAfterTheBuzzerGoToTheEndedPeriod) {
  press("cmdSTART");
  time.now += 600;
  ASSERT_TRUE(QTest::qWaitFor([this] { return label("lblPERIOD") == "2"; }));
  ASSERT_TRUE(find("picPERIODEND").isVisible());
  find<QLineEdit>("txtSCORE(0)").setText(QStringLiteral("0"));
  find<QLineEdit>("txtSCORE(1)").setText(QStringLiteral("2"));
  EXPECT_EQ(label("lblCOMPARED"), ": 2 more on the scoreboard.");
  EXPECT_TRUE(find("cmdCARDEVENTS").isVisible() && !find("cmdCARDANOTHER").isVisible());
  press("cmdCARDSAME"); // a slip of the hand, or of the eye
  EXPECT_EQ(label("lblCOMPARED"), "The same score as on the scoreboard.");
  EXPECT_FALSE(find("cmdNEXT").isEnabled());
  press("cmdSTART"); // by reflex
  EXPECT_FALSE(window->isRunning());
  EXPECT_TRUE(find("lblSAID").isVisible());
  time.now += 4;
  EXPECT_TRUE(QTest::qWaitFor([this] { return find("cmdNEXT").isEnabled(); }));
  key(Qt::Key_Escape);
  EXPECT_FALSE(find("picPERIODEND").isVisible());
  key(Qt::Key_F3);
  EXPECT_EQ(label("lblTEMPS"), "00:00");
  key(Qt::Key_F3);
  EXPECT_EQ(label("lblTEMPS"), "00:00") << "there is nothing to return to";
  press("cmdBUTFT(0)");
  toggleClock();
  EXPECT_EQ(label("lblTEMPS"), "10:00");
  time.now += 4;
  EXPECT_TRUE(QTest::qWaitFor([this] { return find("cmdNEXT").isEnabled(); }));
  press("cmdNEXT");
  EXPECT_EQ(events(), "10:00,DEPART 00:00,ARRET 00:00,GFT,0-4");
  EXPECT_EQ(events(2), "10:00,DEPART");
}

TEST_F(LiveWindowTest, AnEventIsCorrectedByAPlayersHeadHisNumberOrOneKey) {
  press("cmdBUTFT(0)");
  auto& list = find<QTableView>("lvwEVENT");
  const QPoint newest = list.visualRect(list.model()->index(0, EventListModel::Action)).center();
  QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, newest);
  ASSERT_TRUE(find("picCORRECTION").isVisible());
  press("lblNom(1)");
  EXPECT_EQ(events(), "10:00,GFT,0-5");
  press("cmdBUTF(6)"); // anything else ends it, and happens
  EXPECT_FALSE(find("picCORRECTION").isVisible());
  EXPECT_EQ(events(), "10:00,GFT,0-5 10:00,SPF,1-5");
  window->setFocus();
  for (const Qt::Key key : {Qt::Key_F11, Qt::Key_1, Qt::Key_2})
    QTest::keyClick(QApplication::focusWidget(), key);
  EXPECT_EQ(events(), "10:00,GFT,0-5 10:00,SPF,1-12");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(find("picCORRECTION").isVisible());
  press("cmdBUTFT(0)");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F11, Qt::ShiftModifier);
  EXPECT_TRUE(events().ends_with(" 10:00,GFTA,0-4"));
}

TEST_F(LiveWindowTest, WhoIsSelectedComesIntoAnEmptyPlace) {
  press("cmdOUTALL(0)");
  ASSERT_EQ(label("lblID(2)"), "0");
  press(jerseyButtonName(5));
  press("fraPLAYER(2)");
  EXPECT_EQ(label("lblNom(0)"), "Fay") << "in order of the roster";
  window->restoreArrangement("rows-change places-stay");
  press(jerseyButtonName(4));
  press("fraPLAYER(3)");
  EXPECT_EQ(label("lblNom(3)", "lblNom(0)"), "Eve|Fay") << "where places stay";
}

TEST_F(LiveWindowTest, TheWindowOfTheBenchComesBackAsItWasLeft) {
  window->switchBench();
  QWidget& bench = find("frmBENCH");
  bench.resize(811, 533);
  QTest::mouseClick(&find<QToolButton>("cmdBENCHTEAM(1)"), Qt::LeftButton);
  window->switchBench();
  EXPECT_TRUE(bench.isVisible()) << "pressed twice, as quickly as a double press";
  const int usual = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(0);
  bench.showMinimized();
  window->switchBench();
  EXPECT_TRUE(bench.isVisible() && !bench.isMinimized());
  window->switchBench();
  EXPECT_FALSE(bench.isVisible());
  QApplication::setDoubleClickInterval(usual);
  const QByteArray left = window->arrangement();
  window = std::make_unique<frmLIVE>(store, settings, texts, dialogs, time);
  open(path);
  window->restoreArrangement(left);
  window->switchBench();
  EXPECT_EQ(find("frmBENCH").size(), QSize(811, 533));
  EXPECT_TRUE(find<QToolButton>("cmdBENCHTEAM(1)").isChecked());
}

} // namespace
} // namespace hooptab
