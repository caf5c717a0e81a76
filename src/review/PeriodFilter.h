// Which part of the game a window shows: the whole of it, or one period; and a chip that names the stretch
// that is chosen, here or elsewhere, with its score, and ends the choice. Only asks; whoever owns the game
// decides and shows it again.
#pragma once

#include "insight/Stretch.h"
#include "scorecard/Scoreboard.h"

#include <QWidget>

#include <optional>
#include <vector>

class QHBoxLayout;

namespace hooptab {

class SegmentButton;
class StretchChip;

class PeriodFilter : public QWidget {
  Q_OBJECT

 public:
  explicit PeriodFilter(const Texts& texts, QWidget* parent = nullptr);

  void showPeriods(const Scoreboard& board);
  // Nothing: the whole game; `words` say which stretch it is.
  void showStretch(const std::optional<Stretch>& stretch, const QString& words);

 signals:
  void asked(const std::optional<hooptab::Stretch>& stretch);

 private:
  [[nodiscard]] static Stretch stretchOf(std::size_t period);

  const Texts& m_texts;
  StretchChip* m_chip;
  SegmentButton* m_whole;
  std::vector<SegmentButton*> m_periods;
};

} // namespace hooptab
