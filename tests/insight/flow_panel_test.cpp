// The page of a game's flow: a stretch by mouse and keys, and the plays that one can go to.
#include "insight/FlowPanel.h"

#include "insight/FlowCanvas.h"
#include "insight/MarginChart.h"
#include "support/TextGame.h"
#include "support/WindowRoom.h"

#include <QCheckBox>
#include <QImage>
#include <QSignalSpy>

namespace hooptab {
namespace {

std::shared_ptr<const CountedGame> played(const std::string& details = {}) {
  return counted(gameOfText(textOfGame(
      "[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07-08-11-22\n2=10:00,DEPART\n3=09:00,GFG,0-4\n"
      "4=05:00,GF3,1-3\n5=02:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n6=02:00,DEPART\n"
      "7=00:00,ARRET,IN-00-05-10-12-15,IN-03-07-08-11-22\n",
      details)));
}

class FlowPanelTest : public WindowTest<FlowPanel> {
 protected:
  void SetUp() override {
    window = std::make_unique<FlowPanel>(texts);
    window->resize(1350, 620);
    window->showGame(played());
    showActive(*window);
    canvas = &find<FlowCanvas>("picFLOW");
  }
  // As a share of the time axis, which lies between the names and the minutes.
  QPoint chartAt(double share) const {
    return {static_cast<int>(150 + share * (canvas->width() - 150 - 105)), 100};
  }
  static Stretch chosenIn(const QSignalSpy& spy) { return spy.at(0).at(0).value<Stretch>(); }

  FlowCanvas* canvas = nullptr;
};

TEST_F(FlowPanelTest, DraggingChoosesAStretchAndEscapeClearsIt) {
  const QSignalSpy chosen(window.get(), &FlowPanel::stretchChosen);
  const QSignalSpy cleared(window.get(), &FlowPanel::stretchCleared);
  QTest::mouseClick(canvas, Qt::LeftButton, {}, chartAt(0.5));
  EXPECT_EQ(chosen.size(), 0);
  QTest::mousePress(canvas, Qt::LeftButton, {}, chartAt(0.75));
  QTest::mouseMove(canvas, chartAt(0.25)); // leftwards as well
  QTest::mouseRelease(canvas, Qt::LeftButton, {}, chartAt(0.25));
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_NEAR(chosenIn(chosen).fromClock, 450, 2);
  EXPECT_NEAR(chosenIn(chosen).toClock, 150, 2);
  QTest::keyClick(canvas, Qt::Key_Escape);
  QTest::keyClick(canvas, Qt::Key_Escape);
  EXPECT_EQ(cleared.size(), 1);
}

TEST_F(FlowPanelTest, AClickOnAStayChoosesIt) {
  const QSignalSpy chosen(window.get(), &FlowPanel::stretchChosen);
  // Number 00 came on with two minutes to go: the first row of all, below the chart and a head.
  for (int y = 200; y < canvas->height() && chosen.isEmpty(); y += 4)
    QTest::mouseClick(canvas, Qt::LeftButton, {}, {chartAt(0.9).x(), y});
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosenIn(chosen), (Stretch{1, 120, 1, 0}));
}

TEST_F(FlowPanelTest, TheKeysGoFromPlayToPlayAndTakeAStretch) {
  const QSignalSpy chosen(window.get(), &FlowPanel::stretchChosen);
  const QSignalSpy asked(window.get(), &FlowPanel::eventAsked);
  canvas->setFocus();
  QTest::keyClick(canvas, Qt::Key_Right);
  QTest::keyClick(canvas, Qt::Key_Right);
  EXPECT_TRUE(canvas->accessibleDescription().contains(QStringLiteral("2–3")));
  QTest::keyClick(canvas, Qt::Key_Return);
  ASSERT_EQ(asked.size(), 1);
  EXPECT_EQ(asked.at(0).at(0).value<std::size_t>(), 3U);
  QTest::keyClick(canvas, Qt::Key_Left);
  QTest::keyClick(canvas, Qt::Key_Right, Qt::ShiftModifier);
  QTest::keyClick(canvas, Qt::Key_Return);
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(chosenIn(chosen), (Stretch{1, 540, 1, 300}));
}

TEST_F(FlowPanelTest, WithoutTimeThereIsNoStretchAndOfTotalsNothingAtAll) {
  const QSignalSpy chosen(window.get(), &FlowPanel::stretchChosen);
  window->showGame(played("DUREE=0\n"));
  QTest::mousePress(canvas, Qt::LeftButton, {}, chartAt(0.2));
  QTest::mouseMove(canvas, chartAt(0.9));
  QTest::mouseRelease(canvas, Qt::LeftButton, {}, chartAt(0.9));
  EXPECT_EQ(chosen.size(), 0);
  EXPECT_FALSE(find<QCheckBox>("chkCHANCES").isVisible());
  window->showGame(played("INPUTTYPE=1\n"));
  EXPECT_EQ(canvas->accessibleDescription(), text(Text::NoOrderInTotals));
  EXPECT_FALSE(canvas->hasPicture());
  MarginChart small(texts);
  small.showGame(played());
  EXPECT_TRUE(small.accessibleDescription().contains(QStringLiteral("OLY")));
}

TEST_F(FlowPanelTest, TheChancesAreDrawnWhenTheyAreAskedFor) {
  const QImage before = canvas->grab().toImage();
  find<QCheckBox>("chkCHANCES").click();
  EXPECT_NE(canvas->grab().toImage(), before);
}

} // namespace
} // namespace hooptab
