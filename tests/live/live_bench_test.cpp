#include "events/FollowUpBar.h"
#include "events/JerseyButton.h"
#include "events/frmSUBST.h"
#include "live/BenchPanel.h"
#include "live/LiveRoom.h"
#include "live/RosterStrip.h"

#include <QBoxLayout>
#include <QMenu>
#include <QShortcut>
#include <QToolButton>

namespace hooptab {
namespace {

using Players = std::vector<std::pair<Side, int>>; // team, player

class BenchTest : public LiveRoom<> {
 protected:
  void SetUp() override {
    GameDetails details;
    details.personalFoulLimit = 2;
    details.abbreviation[Side::Visitor] = "PAN";
    details.name[Side::Visitor] = "Pandas";
    details.name[Side::Home] = "Olives";
    details.teamColour[Side::Visitor] = 255; // red
    const std::string path = folder.path("bench.GAM");
    makeGame(path,
             "1=0,Ann Able\n12=1,Bea Baker\n30=2,Cleo Carter\n31=2,Dana Dunn\n45=1,Eve Ellis\n6=1,Fay Ford\n",
             details);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
    ASSERT_TRUE(live.setOnCourt({kFive, kFive}));
  }
  static JerseyButton& jersey(const QWidget& form, int index) {
    return find<JerseyButton>(form, jerseyButtonName(index));
  }
  // The answer comes with the press; the release is for the next press to be one.
  static void press(QWidget& widget, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(&widget, button);
    QTest::mouseRelease(&widget, button);
  }

  LiveGame live{store, time};
};

class BenchPanelTest : public BenchTest {
 protected:
  void SetUp() override {
    BenchTest::SetUp();
    panel.showGame(live);
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(&panel.strip(Side::Visitor));
    layout->addWidget(&panel.strip(Side::Home));
    layout->addWidget(&panel);
    window.resize(1100, 200);
    showActive(window);
    QObject::connect(&panel, &BenchPanel::toggled,
                     [this](Side team, int player) { toggled.emplace_back(team, player); });
    QObject::connect(&panel, &BenchPanel::selected,
                     [this](Side team, int player) { selected.emplace_back(team, player); });
  }
  QWidget window;
  BenchPanel& panel = *new BenchPanel(texts, &window, new QWidget, &window);
  Players toggled;
  Players selected;
};

TEST_F(BenchPanelTest, ShowsWhoIsOnCourtSelectedAndFouledOut) {
  EXPECT_TRUE(jersey(window, 0).look().isFilled);
  EXPECT_EQ(jersey(window, 0).look().colour, QColor(255, 0, 0));
  EXPECT_FALSE(jersey(window, 5).look().isFilled) << "on the bench";
  EXPECT_EQ(jersey(window, 20).text().toStdString(), "6") << "of the home team";
  const QPoint place = jersey(window, 15).mapTo(&window, QPoint());
  EXPECT_TRUE(jersey(window, 6).isHidden()) << "no such player";
  EXPECT_EQ(jersey(window, 0).toolTip().toStdString(), "1 Ann Able, on court\nCenter · PF 0 · TF 0 · 00:00");
  live.start();
  time.now += 65;
  panel.showTime(live);
  EXPECT_TRUE(jersey(window, 0).toolTip().endsWith(QLatin1String("01:05")));
  live.recordAction(Side::Visitor, 6, EventCode::SPF);
  live.recordAction(Side::Visitor, 6, EventCode::SPF);
  texts.setLanguage(Language::French);
  panel.relabelPanel();
  EXPECT_TRUE(jersey(window, 5).look().isFouledOut);
  EXPECT_TRUE(jersey(window, 5).accessibleName().contains(QLatin1String("exclu pour fautes")));
  EXPECT_EQ(jersey(window, 15).mapTo(&window, QPoint()), place) << "nothing moves";
}

TEST_F(BenchPanelTest, APressSelectsAndInSubstitutionModePutsInOrOut) {
  press(jersey(window, 16));
  EXPECT_EQ(selected, (Players{{Side::Home, 2}}));
  EXPECT_EQ(textOf(panel, "lblNO", "lblNom"), "12|Bea Baker");
  EXPECT_TRUE(jersey(window, 16).look().isSelected);
  panel.clearSelection();
  EXPECT_FALSE(jersey(window, 16).look().isSelected);
  QTest::keyClick(&panel, Qt::Key_F6);
  ASSERT_TRUE(panel.isSubstituting());
  QTest::mousePress(&jersey(window, 5), Qt::LeftButton);
  EXPECT_EQ(toggled, (Players{{Side::Visitor, 6}})) << "before the release";
  QTest::mouseRelease(&jersey(window, 5), Qt::LeftButton);
  press(jersey(window, 0));
  QTest::mouseDClick(&jersey(window, 0), Qt::LeftButton); // the second press of a double click
  EXPECT_EQ(toggled, (Players{{Side::Visitor, 6}, {Side::Visitor, 1}, {Side::Visitor, 1}}));
  press(jersey(window, 1), Qt::RightButton);
  EXPECT_EQ(toggled.size(), 3U);
  EXPECT_EQ(selected.size(), 2U) << "one and nobody: nothing was selected in substitution mode";
  QSignalSpy allOut(&panel, &BenchPanel::allOutAsked);
  find<QPushButton>(window, "cmdOUTALL(1)").click();
  ASSERT_EQ(allOut.size(), 1);
  EXPECT_EQ(allOut[0][0].value<Side>(), Side::Home);
}

TEST_F(BenchPanelTest, APlayerOfTheBenchIsGivenHisFoulsHere) {
  std::vector<std::string> asked;
  QObject::connect(&panel, &BenchPanel::actionAsked, [&](Side team, int player, EventCode kind) {
    asked.push_back(std::to_string(numberOf(team)) + "-" + std::to_string(player) + " " +
                    std::string(kindOf(kind)->text));
  });
  const auto& strip = find<QWidget>(panel, "picSELECTED");
  const int height = panel.height();
  press(jersey(window, 16));
  EXPECT_FALSE(strip.isVisible()) << "who is on court has his panel";
  press(jersey(window, 20));
  EXPECT_TRUE(strip.isVisible());
  EXPECT_EQ(panel.height(), height) << "nothing moves";
  press(find<QToolButton>(panel, "cmdSELTF"));
  press(find<QToolButton>(panel, "cmdSELPF"));
  const QList<QAction*> actions = find<QToolButton>(panel, "cmdSELMORE").menu()->actions();
  ASSERT_EQ(actions.size(), 8) << "all actions but the fouls";
  actions[0]->trigger();
  EXPECT_EQ(asked, (std::vector<std::string>{"1-6 STF", "1-6 SPF", "1-6 SA"}));
  ASSERT_TRUE(live.setOnCourt({kFive, 0b1111100U}));
  panel.showGame(live);
  EXPECT_FALSE(strip.isVisible()) << "he came on court";
  panel.clearSelection();
  EXPECT_EQ(textOf(panel, "lblNO"), "");
}

TEST_F(BenchPanelTest, SeveralAtOnceAsksOnceAndEscapeNever) {
  std::vector<OnCourt> asked;
  QObject::connect(&panel, &BenchPanel::onCourtAsked, [&](OnCourt onCourt) { asked.push_back(onCourt); });
  for (const bool confirms : {false, true}) {
    QTest::keyClick(&panel, Qt::Key_F4);
    auto* form = dynamic_cast<frmSUBST*>(QApplication::activeModalWidget());
    ASSERT_NE(form, nullptr);
    const auto& accept = find<QPushButton>(*form, "cmdOK");
    EXPECT_FALSE(accept.isEnabled());
    press(jersey(*form, 20)); // comes first: six for a moment
    EXPECT_EQ(textOf(*form, "lblCOUNT(1)"), "6/5");
    EXPECT_FALSE(accept.isEnabled());
    press(jersey(*form, 15));
    EXPECT_EQ(jersey(*form, 15).look().move, JerseyButton::Move::Leaves);
    EXPECT_EQ(jersey(*form, 20).look().move, JerseyButton::Move::Comes);
    QTest::keyClick(form, confirms ? Qt::Key_Return : Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  }
  EXPECT_EQ(asked, std::vector{(OnCourt{kFive, 0b1111100U})});
}

class FollowUpTest : public BenchTest {
 protected:
  void SetUp() override {
    BenchTest::SetUp();
    window.resize(700, 500);
    elsewhere.setGeometry(600, 460, 80, 30);
    showActive(window);
    elsewhere.setFocus();
    QObject::connect(&bar, &FollowUpBar::chosen, [this](const FollowUpQuestion::Answer& who, EventCode code) {
      answers += code == EventCode::SA ? "A" : code == EventCode::SOR ? "O" : "D";
      answers += std::to_string(numberOf(who.team)) + std::to_string(who.player) + (who.comesIn ? "+" : "");
    });
    QObject::connect(&bar, &FollowUpBar::closed, [this] { answers += "."; });
    QObject::connect(&elsewhere, &QPushButton::pressed, [this] { answers += bar.isOpen() ? "!" : "b"; });
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_4}) {
      auto* shortcut = new QShortcut(key, &window);
      QObject::connect(shortcut, &QShortcut::activated, [this] { answers += bar.isOpen() ? "!" : "s"; });
    }
  }
  void askAssist() {
    bar.ask(live, live.followUps(Side::Visitor, 1, EventCode::GFG, true, true), {Side::Visitor, 1}, {},
            room());
  }
  void askRebound() {
    bar.ask(live, live.followUps(Side::Home, 1, EventCode::GFG, false, true), {Side::Home, 1}, {}, room());
  }
  QRect room() const { return {window.mapToGlobal(QPoint(0, 0)), window.size()}; }
  // When it has been open for long enough.
  static void pressLater(QWidget& widget) {
    QTest::qWait(FollowUpBar::kDeafFor + 20);
    press(widget);
    QTest::qWait(FollowUpBar::kSecondPress); // so that the next press is none that slipped
  }
  void type(std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys)
      QTest::keyClick(&elsewhere, key);
    if (bar.isOpen())
      QTest::qWait(FollowUpBar::kMayGoOn + 50);
  }
  std::string taken() { return std::exchange(answers, {}); }

  QWidget window;
  QPushButton elsewhere{&window};
  FollowUpBar bar{texts, &window};
  std::string answers; // closed '.', A, O, D with the slot, then what happened elsewhere
};

TEST_F(FollowUpTest, IsAnsweredByAClickThatIsMeant) {
  askAssist();
  const auto& assist = find<QWidget>(bar, "Assist");
  ASSERT_TRUE(assist.isVisible());
  EXPECT_EQ(jersey(assist, 0).text().toStdString(), "12") << "without the shooter";
  press(jersey(assist, 3)); // the second press of a hand that has not seen it
  EXPECT_EQ(taken(), "");
  EXPECT_EQ(textOf(bar, "lblREASON"), "That was too soon after it opened: click again.");
  QTest::qWait(FollowUpBar::kDeafFor + 20);
  press(jersey(assist, 3));
  EXPECT_EQ(taken(), ".A05");
  EXPECT_FALSE(bar.isVisible());
  elsewhere.move(bar.pos() + jersey(assist, 3).mapTo(&bar, jersey(assist, 3).rect().center()) -
                 elsewhere.rect().center());
  press(elsewhere);
  EXPECT_EQ(taken(), "") << "a second press in the same place is none on what lies below";
  press(elsewhere);
  EXPECT_EQ(taken(), "b");
  askRebound();
  const auto& rebound = find<QWidget>(bar, "frmRebound");
  EXPECT_TRUE(rebound.isVisible() && !assist.isVisible());
  EXPECT_EQ(textOf(bar, "lblTYPEREBOND(0)"), "Off. Rebound Olives");
  pressLater(jersey(rebound, 1));
  askRebound();
  pressLater(jersey(rebound, 5));
  EXPECT_EQ(taken(), ".O12.D01");
  bar.ask(live, live.followUps(Side::Visitor, 6, EventCode::GFG, true, true), {Side::Visitor, 6}, {}, room());
  EXPECT_TRUE(jersey(assist, 4).isVisible()) << "of one who is not on court all five are offered";
  pressLater(find<QPushButton>(bar, "cmdNOASS"));
  EXPECT_EQ(taken(), ".");
  bar.ask(live, {}, {Side::Visitor, 1}, {}, room());
  EXPECT_FALSE(bar.isOpen()) << "nobody to choose";
}

TEST_F(FollowUpTest, IsAnsweredByTheJerseysNumber) {
  askAssist();
  type({Qt::Key_4, Qt::Key_5}); // the shortcut of the window stays quiet
  EXPECT_EQ(taken(), ".A05");
  askAssist();
  type({Qt::Key_3, Qt::Key_9, Qt::Key_Return, Qt::Key_Backspace, Qt::Key_1});
  EXPECT_EQ(taken(), ".A04") << "39 is nobody's, and stayed until it was taken back";
  askRebound();
  type({Qt::Key_1, Qt::Key_2, Qt::Key_Right, Qt::Key_Return});
  EXPECT_EQ(taken(), ".O12");
  askAssist();
  type({Qt::Key_4, Qt::Key_5, Qt::Key_9});
  EXPECT_EQ(taken(), "") << "459 is not 45";
  EXPECT_EQ(textOf(bar, "lblREASON"), "Nobody here has number 459.");
  type({Qt::Key_Backspace, Qt::Key_4, Qt::Key_Space, Qt::Key_Escape});
  EXPECT_EQ(taken(), "!.");
  askAssist();
  QTest::keyClick(&elsewhere, Qt::Key_4);
  QTest::keyClick(&elsewhere, Qt::Key_5);
  press(elsewhere);
  EXPECT_EQ(taken(), ".A05b") << "going on does not forget it";
  askAssist();
  type({Qt::Key_6, Qt::Key_Return});
  EXPECT_EQ(taken(), "");
  EXPECT_EQ(textOf(bar, "lblREASON"), "6 is on the bench: assist all the same, or put him in");
  pressLater(find<QPushButton>(bar, "cmdCOMESIN"));
  EXPECT_EQ(taken(), ".A06+");
  askRebound();
  type({Qt::Key_Escape});
  askRebound();
  type({Qt::Key_Return});
  EXPECT_EQ(taken(), "..");
}

TEST_F(FollowUpTest, AnythingElsewhereClosesItAndHappensButForTheClock) {
  askAssist();
  press(elsewhere);
  EXPECT_EQ(taken(), ".b");
  askAssist();
  type({Qt::Key_Shift, Qt::Key_1, Qt::Key_Space});
  EXPECT_EQ(taken(), "!") << "the clock's key goes to the clock, and the question stays";
  EXPECT_EQ(textOf(find<QWidget>(bar, "Assist"), "lblTYPED"), "1_");
  type({Qt::Key_Escape, Qt::Key_4, Qt::Key_Escape});
  EXPECT_EQ(taken(), ".ss") << "its keys are free again";
  askAssist();
  QTest::qWait(FollowUpBar::kDeafFor + 20);
  press(*bar.findChild<QLabel*>());
  EXPECT_TRUE(bar.isOpen()) << "a click between its buttons";
  askRebound(); // the next shot
  EXPECT_EQ(taken(), ".");
  window.hide();
  type({Qt::Key_4, Qt::Key_5});
  press(elsewhere);
  EXPECT_TRUE(bar.isOpen()) << "a window that goes behind another comes back with its question";
  EXPECT_EQ(std::exchange(answers, {}).find('A'), std::string::npos) << "nobody saw whom they gave it to";
  bar.hide();
  EXPECT_EQ(taken(), ".");
}

TEST_F(FollowUpTest, StandsBesideTheShooter) {
  for (const int left : {0, 220, 480}) {
    const QRect panel(window.mapToGlobal(QPoint(left, 10)), QSize(210, 300));
    bar.ask(live, live.followUps(Side::Visitor, 1, EventCode::GFG, false, true), {Side::Visitor, 1}, panel,
            room());
    const QRect place(bar.mapToGlobal(QPoint(0, 0)), bar.size());
    EXPECT_TRUE(window.rect().contains(bar.geometry())) << left;
    constexpr int kEdge = 5; // of a panel, beside its buttons: as far as the arrow reaches
    EXPECT_FALSE(place.intersects(panel.adjusted(kEdge, 0, -kEdge, 0))) << left;
  }
}

} // namespace
} // namespace hooptab
