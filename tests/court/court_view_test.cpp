#include "court/CourtView.h"

#include <QSignalSpy>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>

namespace hooptab {
namespace {

using Turn = CourtPicture::Turn;

class CourtViewTest : public testing::Test {
 protected:
  void SetUp() override {
    view.setColours({QColor(0xCE, 0xBD, 0x8A), QColor(0x9A, 0x9A, 0x9A), QColor(0xFF, 0xFF, 0x80)});
    view.setMarks(marks, toolTips);
    view.resize(300, 460);
    view.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QTest::mouseMove(&view, QPoint(2, 2)); // a move to where the pointer is already would be none
  }

  static QList<int> placesOf(const QSignalSpy& hovered) {
    QList<int> places;
    for (const QList<QVariant>& arguments : hovered)
      places << arguments[0].toInt();
    return places;
  }
  // Where a mark is drawn, read off the picture.
  QPoint drawn(const CourtMark& mark) {
    view.setMarks({}, {});
    const QImage plain = view.grab().toImage();
    view.setMarks({mark}, {});
    const QImage marked = view.grab().toImage();
    QRect changed;
    for (int y = 0; y < plain.height(); ++y) {
      for (int x = 0; x < plain.width(); ++x) {
        if (plain.pixel(x, y) != marked.pixel(x, y))
          changed |= QRect(x, y, 1, 1);
      }
    }
    view.setMarks(marks, toolTips);
    return changed.center();
  }

  const std::vector<CourtMark> marks = {{{30, 60}, true}, {{90, 100}, false}, {{60, 160}, true}};
  const QStringList toolTips = {QStringLiteral("first"), QStringLiteral("second"), QStringLiteral("third")};
  CourtView view;
};

TEST_F(CourtViewTest, FindsAMarkWhereItIsDrawnAtAnySize) {
  for (const QSize size : {QSize(110, 175), QSize(160, 160), QSize(300, 460), QSize(900, 700)}) {
    for (const Turn turn : {Turn::BaselineLeft, Turn::BaselineTop}) {
      view.resize(size);
      view.setTurn(turn);
      for (std::size_t i = 0; i < marks.size(); ++i)
        EXPECT_EQ(view.markAt(drawn(marks[i])), static_cast<int>(i))
            << size.width() << " x " << size.height();
      EXPECT_EQ(view.markAt({1, 1}), -1);
    }
  }
}

TEST_F(CourtViewTest, SaysWhichMarkThePointerIsAtAndWhenItLeaves) {
  QSignalSpy hovered(&view, &CourtView::markHovered);
  const QPoint first = drawn(marks[0]);
  const QPoint second = drawn(marks[1]);
  QTest::mouseMove(&view, first);
  QTest::mouseMove(&view, first + QPoint(1, 1)); // still the same: not said again
  QTest::mouseMove(&view, second);
  QTest::mouseMove(&view, QPoint(view.width() - 2, 2));
  EXPECT_EQ(placesOf(hovered), (QList<int>{0, 1, -1}));
}

TEST_F(CourtViewTest, ForgetsAMarkThatIsTakenAway) {
  const QPoint second = drawn(marks[1]);
  QTest::mouseMove(&view, second);
  QSignalSpy hovered(&view, &CourtView::markHovered);
  std::vector<CourtMark> more = marks;
  more.push_back({{50, 50}, false});
  view.setMarks(more, toolTips + QStringList(QStringLiteral("fourth")));
  EXPECT_EQ(hovered.count(), 0); // the same shot stands at the same place
  view.setMarks({marks[0]}, {toolTips[0]});
  EXPECT_EQ(placesOf(hovered), QList<int>{-1});
}

TEST_F(CourtViewTest, LetsTheArrowKeysGoThroughTheMarks) {
  view.setFocus();
  QSignalSpy hovered(&view, &CourtView::markHovered);
  for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left})
    QTest::keyClick(&view, key);
  EXPECT_EQ(placesOf(hovered), (QList<int>{0, 1, 2, 0, 2}));
  EXPECT_EQ(view.accessibleDescription(), QStringLiteral("third"));
  view.setMarks({}, {});
  QTest::keyClick(&view, Qt::Key_Right); // nothing to go to
  EXPECT_EQ(hovered.last()[0].toInt(), -1);
}

TEST_F(CourtViewTest, ShowsMarksOrZones) {
  const QImage withMarks = view.grab().toImage();
  view.setZones({{court::ChartZone::Top, QStringLiteral("2/5"), QStringLiteral("40.0%"), 1}});
  EXPECT_EQ(view.grab().toImage(), withMarks); // until they are asked for
  const QPoint first = drawn(marks[0]);
  view.showZones();
  EXPECT_NE(view.grab().toImage(), withMarks);
  EXPECT_EQ(view.markAt(first), -1);
  view.showMarks();
  EXPECT_EQ(view.grab().toImage(), withMarks);
}

TEST_F(CourtViewTest, NamesTheMarkOrTheZoneUnderThePointer) {
  view.setZones({{court::ChartZone::Top, QStringLiteral("2/5"), QStringLiteral("40.0%"), 1,
                  QStringLiteral("Top 2/5")}});
  const QPoint top = drawn({court::chartZoneLabel(court::ChartZone::Top), true});
  const QPoint second = drawn(marks[1]);
  QTest::mouseMove(&view, second);
  EXPECT_EQ(QToolTip::text(), QStringLiteral("second"));
  view.showZones();
  QTest::mouseMove(&view, top);
  EXPECT_EQ(QToolTip::text(), QStringLiteral("Top 2/5"));
}

TEST_F(CourtViewTest, KeepsTheShapeOfTheCourtInItsHints) {
  const QSize upright = view.sizeHint();
  EXPECT_EQ(view.heightForWidth(upright.width()), upright.height());
  view.setTurn(Turn::BaselineTop);
  EXPECT_EQ(view.sizeHint(), upright.transposed());
}

} // namespace
} // namespace hooptab
