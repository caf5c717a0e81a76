// The flow of a game and the rotation of both teams on one time axis, to look at and to take a stretch from:
// with the mouse by dragging over the chart or by a click on a stay, with the keys play by play. Whose window
// it is in decides what a stretch shows.
#pragma once

#include "appearance/ShownPicture.h"
#include "game/CountedGame.h"
#include "insight/FlowDrawing.h"
#include "insight/FlowLayout.h"
#include "insight/FlowPalette.h"
#include "insight/RotationLayout.h"
#include "insight/Stretch.h"
#include "insight/WinProbability.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace hooptab {

class FlowCanvas : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  explicit FlowCanvas(const Texts& texts, QWidget* parent = nullptr); // the texts must outlive it

  void showGame(std::shared_ptr<const CountedGame> counted);
  void showStretch(const std::optional<Stretch>& stretch);
  void showChances(bool areShown);
  void relabelCanvas();
  [[nodiscard]] bool hasTime() const { return m_drawing.flow.hasTime && m_drawing.emptyWords.empty(); }

  [[nodiscard]] bool hasPicture() const override;
  [[nodiscard]] QSize pictureSize() const override;
  void paintPicture(QPainter& painter, const QRectF& area) const override;

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 signals:
  void stretchChosen(const hooptab::Stretch& stretch);
  void stretchCleared();
  void eventAsked(std::size_t event); // its place in the game's list

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Span {
    int from = 0;
    int to = 0;
  };
  struct Tip {
    std::string head;
    std::string words;
    QPointF at; // beside which it stands
  };
  struct Places { // of both charts
    QRectF plot;
    RotationLayout rotation;
    double left = 0; // as far as names and sums may reach
    double right = 0;
  };
  [[nodiscard]] bool hasRotation() const;
  [[nodiscard]] FlowType type() const;
  [[nodiscard]] QRectF chartCard() const;
  [[nodiscard]] QRectF plot() const;
  [[nodiscard]] double chanceAxisWidth() const; // 0 while it is not shown
  [[nodiscard]] FlowLayout timeLayout() const { return {m_drawing.flow, plotOf(plot())}; }
  [[nodiscard]] static FlowLayout::Plot plotOf(const QRectF& box) {
    return {box.left(), box.top(), box.width(), box.height()};
  }
  [[nodiscard]] double rowHeight() const;
  [[nodiscard]] RotationLayout rotation() const;
  [[nodiscard]] const Stay* stayAt(QPointF place) const;
  [[nodiscard]] double rowBottomOf(const Stay& stay) const;
  [[nodiscard]] std::optional<Span> shownSpan() const;
  [[nodiscard]] std::optional<Tip> tip() const;
  void paintCharts(QPainter& painter, const FlowPalette& palette, const Places& places,
                   const std::optional<Span>& span) const;
  void paintFigures(QPainter& painter) const;
  void paintSpan(QPainter& painter, const Span& span) const;
  void paintTip(QPainter& painter, const Tip& tip) const;
  void paintPlay(QPainter& painter) const;
  void pointAt(std::optional<std::size_t> play);
  void choose(int from, int to);
  [[nodiscard]] std::size_t playBeside(int steps) const;
  void goTo(std::size_t play, bool marks);

  const Texts& m_texts;
  std::shared_ptr<const CountedGame> m_counted;
  FlowDrawing m_drawing;
  PerSide<std::vector<RotationRow>> m_rows;
  std::vector<FlowPlay> m_plays;
  std::vector<WinStep> m_chances;
  bool m_showsChances = false;
  std::optional<Stretch> m_stretch;
  std::optional<std::size_t> m_play; // pointed at
  std::optional<Stay> m_stay;        // the same, of the rotation
  std::optional<Span> m_drag;
  bool m_isReachedByKey = false; // else the focus needs no frame
  std::optional<int> m_mark;     // where a stretch begins that is chosen with the keys
};

} // namespace hooptab
