#include "live/PlayerPanel.h"

#include "appearance/Theme.h"
#include "events/MiniCourt.h"
#include "events/StatButton.h"
#include "events/StatControls.h"
#include "live/LiveRoom.h"

namespace hooptab {
namespace {

// Slot 3 of team 0 as it is recorded; slot 4 stays empty.
class PlayerPanelTest : public LiveRoom<> {
 protected:
  void SetUp() override {
    settings.statisticLabel[1] = "U2-Deflection";
    GameDetails details;
    details.personalFoulLimit = 2;
    details.statisticLabel[0] = "U1-Charge";
    const std::string path = folder.path("panel.GAM");
    makeGame(path, "4=0,A\n5=1,B\n6=1,C\n7=1,Deborah Dunn-Dickinson of the Long Names\n", details);
    ASSERT_EQ(live.open(path), GameFileProblem::None);
    ASSERT_TRUE(live.setOnCourt({0b11110, 0}));
    for (PlayerPanel* panel : {&full, &empty}) {
      panel->applyColours();
      panel->showGame(live);
      relabel(*panel, texts);
      panel->resize(panel->sizeHint());
      panel->show();
      ASSERT_TRUE(QTest::qWaitForWindowExposed(panel));
    }
  }
  std::string text(auto... names) const { return textOf(full, names...); }
  // Where units of the shown court lie in its widget.
  static QPoint onCourt(const QWidget& court, double x, double y) {
    return {static_cast<int>((x + 0.5) * court.width() / court::kLength),
            static_cast<int>((y + 0.5) * court.height() / court::kWidth)};
  }

  LiveGame live{store, time};
  PlayerPanel full{{Side::Visitor, 3}, settings, texts};
  PlayerPanel empty{{Side::Visitor, 4}, settings, texts};
};

TEST_F(PlayerPanelTest, ShowsThePlayerAndEveryCount) {
  EXPECT_EQ(text("lblID(3)", "lblNO(3)"), "4|7");
  EXPECT_TRUE(text("lblNom(3)").ends_with("…")) << "cut";
  EXPECT_TRUE(find<QLabel>(full, "lblNom(3)").toolTip().endsWith(QStringLiteral("Long Names")));
  EXPECT_EQ(text("lblTOTpct(3)"), "0.0%");
  ASSERT_TRUE(live.recordShot(Side::Visitor, 4, EventCode::GFG, true, {{20, 90}}));
  ASSERT_TRUE(live.recordShot(Side::Visitor, 4, EventCode::GF3, true, {{110, 90}}));
  ASSERT_TRUE(live.recordShot(Side::Visitor, 4, EventCode::GDK, false));
  for (const EventKind& kind : eventKinds()) {
    if (!kind.isShot) {
      ASSERT_TRUE(live.recordAction(Side::Visitor, 4, kind.code));
    }
  }
  full.showGame(live);
  const std::pair<const char*, const char*> expected[] = {
      {"lblFG(3)", "1"},         {"lblFGA(3)", "1"},   {"lblFGpts(3)", "2"}, {"lblF3(3)", "1"},
      {"lblF3a(3)", "1"},        {"lblF3pts(3)", "3"}, {"lblDK(3)", "0"},    {"lblDKA(3)", "1"},
      {"lblDKpts(3)", "0"},      {"lblFTa(3)", "0"},   {"lblTOT(3)", "2"},   {"lblTOTa(3)", "3"},
      {"lblTOTpct(3)", "66.7%"}, {"lblPTS(3)", "5"},   {"lblA(3)", "1"},     {"lblBS(3)", "1"},
      {"lblDRB(3)", "1"},        {"lblORB(3)", "1"},   {"lblFAUTE(3)", "1"}, {"lblTFAUTE(3)", "1"},
      {"lblST(3)", "1"},         {"lblTO(3)", "1"},    {"lblAUTRE(3)", "1"}, {"lblAUTRE2(3)", "1"}};
  for (const auto& [name, count] : expected)
    EXPECT_EQ(text(name), count) << name;
  live.start();
  time.now += 61;
  live.tick();
  full.showTime(live);
  EXPECT_EQ(text("lblTIME(3)"), "01:01");
  EXPECT_EQ(find(full, "cmdBUTU1(3)").toolTip(), QStringLiteral("Charge"));
  EXPECT_EQ(find(full, "cmdBUTU2(3)").toolTip(), QStringLiteral("Deflection")) << "the game has none";
}

TEST_F(PlayerPanelTest, FoulsAreMarkedBySignAndColour) {
  const auto fillOfButton = [&] {
    return find(full, "cmdBUTF(3)").grab().toImage().pixelColor(4, find(full, "cmdBUTF(3)").height() - 5);
  };
  const auto pips = [&] { return full.grab().toImage(); };
  const QColor usual = fillOfButton();
  const QImage none = pips();
  ASSERT_TRUE(live.recordAction(Side::Visitor, 4, EventCode::SPF));
  full.showGame(live);
  EXPECT_EQ(fillOfButton(), Theme::look().warningGround);
  EXPECT_NE(pips(), none);
  ASSERT_TRUE(live.recordAction(Side::Visitor, 4, EventCode::SPF));
  full.showGame(live);
  EXPECT_EQ(fillOfButton(), Theme::missed());
  ASSERT_TRUE(live.undo());
  ASSERT_TRUE(live.undo());
  full.showGame(live);
  EXPECT_EQ(fillOfButton(), usual);
  EXPECT_EQ(pips(), none);
}

TEST_F(PlayerPanelTest, TextOnButtonsStandsOutFromTheirColour) {
  for (const QColor& colour : {QColor(Qt::black), QColor(Qt::white), QColor(Qt::red), QColor(255, 255, 0)}) {
    settings.buttonColour = storedColour(colour);
    full.applyColours();
    QWidget& button = find(full, "cmdBUTST(3)");
    const QColor face = button.grab().toImage().pixelColor(button.width() / 2, 2);
    const QLabel& count = find<QLabel>(full, "lblST(3)");
    EXPECT_GE(contrast(count.palette().color(count.foregroundRole()), face), kReadable)
        << colour.name().toStdString();
  }
}

// One stop of the Tab key; inside, the arrows lead where they point.
TEST_F(PlayerPanelTest, ArrowsLeadThroughTheButtons) {
  int stops = 0;
  for (const auto* button : full.findChildren<StatButton*>())
    stops += button->focusPolicy() == Qt::TabFocus ? 1 : 0;
  EXPECT_EQ(stops, 1);
  full.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&full));
  find(full, "cmdBUTF(3)").setFocus();
  const auto go = [&](Qt::Key key) {
    QTest::keyClick(QApplication::focusWidget(), key);
    return QApplication::focusWidget()->objectName().toStdString();
  };
  EXPECT_EQ(go(Qt::Key_Right), "cmdBUTTF(3)");
  EXPECT_EQ(go(Qt::Key_Right), "cmdBUTTF(3)") << "there is nothing";
  EXPECT_EQ(go(Qt::Key_Down), "cmdBUTDRB(3)");
  EXPECT_EQ(go(Qt::Key_Left), "cmdBUTORB(3)");
  for (int row = 0; row < 3; ++row)
    go(Qt::Key_Down);
  EXPECT_EQ(go(Qt::Key_Down), "cmdBUTPB(3)") << "the shots below";
  EXPECT_EQ(find(full, "cmdBUTPB(3)").focusPolicy(), Qt::TabFocus);
  EXPECT_EQ(find(full, "cmdBUTF(3)").focusPolicy(), Qt::NoFocus);
}

TEST_F(PlayerPanelTest, ButtonsSayWhatTheyRecordWhenTheyArePressed) {
  QSignalSpy shots(&full, &PlayerPanel::shotPressed);
  QSignalSpy actions(&full, &PlayerPanel::actionPressed);
  const auto lastKind = [](QSignalSpy& spy) { return spy.last().at(1).value<EventCode>(); };
  for (const ShotControls& controls : kShotControls) {
    if (controls.button == nullptr)
      continue; // the court
    const std::string name = std::string(controls.button) + "(3)";
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
      const qsizetype before = shots.count();
      QTest::mousePress(&find(full, name), button);
      ASSERT_EQ(shots.count(), before + 1) << name;
      QTest::mouseRelease(&find(full, name), button);
      EXPECT_EQ(shots.count(), before + 1) << name;
      EXPECT_EQ(*static_cast<const Slot*>(shots.last().at(0).constData()), Slot(Side::Visitor, 3));
      EXPECT_EQ(lastKind(shots), controls.code) << name;
      EXPECT_EQ(shots.last().at(2).toBool(), button == Qt::LeftButton);
    }
  }
  for (const ActionControls& controls : kActionControls) {
    const std::string name = std::string(controls.button) + "(3)";
    const qsizetype before = actions.count();
    QTest::mouseClick(&find(full, name), Qt::RightButton);
    EXPECT_EQ(actions.count(), before) << name;
    QTest::mousePress(&find(full, name), Qt::LeftButton);
    ASSERT_EQ(actions.count(), before + 1) << name;
    QTest::mouseRelease(&find(full, name), Qt::LeftButton);
    EXPECT_EQ(lastKind(actions), controls.code) << name;
  }
  const qsizetype before = actions.count();
  QTest::mouseClick(&find(full, "cmdBUTST(3)"), Qt::LeftButton);
  QTest::mouseDClick(&find(full, "cmdBUTST(3)"), Qt::LeftButton);
  EXPECT_EQ(actions.count(), before + 2) << "two fast presses";
  QTest::keyClick(&find(full, "cmdBUTST(3)"), Qt::Key_Space, Qt::ControlModifier);
  EXPECT_EQ(actions.count(), before + 3);
}

TEST_F(PlayerPanelTest, TheCourtSaysWhereItWasPressedAndRefusesLines) {
  QSignalSpy places(&full, &PlayerPanel::courtPressed);
  QWidget& court = find(full, "CourtJ(3)");
  const auto press = [&](double x, double y, Qt::MouseButton button) {
    const qsizetype before = places.count();
    QTest::mousePress(&court, button, {}, onCourt(court, x, y));
    EXPECT_EQ(places.count(), before + 1);
    QTest::mouseRelease(&court, button, {}, onCourt(court, x, y));
    return places.last().at(2).toBool();
  };
  const auto isNear = [&](double x, double y) {
    const QPointF place = places.last().at(1).toPointF();
    return std::abs(place.x() - x) <= 3 && std::abs(place.y() - y) <= 3 &&
           place.x() == std::floor(place.x()) && place.y() == std::floor(place.y());
  };
  EXPECT_TRUE(press(30, 100, Qt::LeftButton));
  EXPECT_TRUE(isNear(30, 100));
  EXPECT_FALSE(press(110, 180, Qt::RightButton));
  EXPECT_TRUE(isNear(110, 180));
  press(60, 60, Qt::LeftButton);
  QTest::mouseDClick(&court, Qt::LeftButton, {}, onCourt(court, 60, 60));
  EXPECT_EQ(places.count(), 4);
  // Along a straight way out of the box, some pixels are line, and there the pointer forbids.
  const auto refusedOnTheWay = [&] {
    int refused = 0;
    for (int x = court.width() / 2; x < court.width() - 3; ++x) {
      const qsizetype before = places.count();
      const QPoint position(x, court.height() / 2);
      QTest::mouseMove(&court, position);
      QTest::mouseClick(&court, Qt::LeftButton, {}, position);
      const bool isRefused = places.count() == before;
      EXPECT_EQ(court.cursor().shape() == Qt::ForbiddenCursor, isRefused) << x;
      refused += isRefused ? 1 : 0;
    }
    return refused;
  };
  const int refused = refusedOnTheWay();
  EXPECT_GE(refused, 1);
  EXPECT_LE(refused, 6);
  full.setPlaysRight(true);
  EXPECT_EQ(refusedOnTheWay(), 0) << "the box lies at the other end now";
  press(30, 100, Qt::LeftButton);
  EXPECT_TRUE(isNear(30, 100)) << "as shown, whichever side it is";
}

TEST_F(PlayerPanelTest, AnEmptyPanelIsAFrameAndSaysNothing) {
  QSignalSpy shots(&empty, &PlayerPanel::shotPressed);
  QSignalSpy actions(&empty, &PlayerPanel::actionPressed);
  QSignalSpy places(&empty, &PlayerPanel::courtPressed);
  for (const auto* widget : full.findChildren<QWidget*>()) {
    const QPoint place = widget->mapTo(&full, widget->rect().center());
    QTest::mouseClick(empty.windowHandle(), Qt::LeftButton, {}, place);
  }
  EXPECT_EQ(shots.count() + actions.count() + places.count(), 0);
  EXPECT_FALSE(find(empty, "CourtJ(4)").isVisible());
  EXPECT_EQ(empty.accessibleName(), toQt(texts.text(Text::Nobody)));
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 4));
  full.showGame(live);
  EXPECT_FALSE(find(full, "CourtJ(3)").isVisible());
  ASSERT_TRUE(live.toggleOnCourt(Side::Visitor, 4));
  full.showGame(live);
  EXPECT_TRUE(find(full, "CourtJ(3)").isVisible());
}

} // namespace
} // namespace hooptab
