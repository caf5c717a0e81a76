// The shot chart with its switches: selected or all players, shot by shot or by zone; below it what is drawn,
// in numbers. Which shots these are is decided elsewhere.
#pragma once

#include "appearance/ShownPicture.h"
#include "game/EventWords.h"
#include "scorecard/ScorecardView.h"

#include <QStringList>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <vector>

class QLabel;
class QToolButton;

namespace hooptab {

class CourtView;
class Settings;

class ShotChartPanel : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  ShotChartPanel(const Settings& settings, const Texts& texts, QWidget* parent = nullptr);

  void showShots(std::vector<Shot> shots, const Game& game, const EventWords& words);
  // The shot of an event that is chosen elsewhere stands out.
  void highlight(std::optional<std::uint32_t> event);
  void applyColours();

  bool hasPicture() const override { return true; } // the court
  QSize pictureSize() const override { return {640, 430}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override;

 signals:
  void scopeChosen(ScorecardView::Scope scope);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QToolButton* addChoice(const char* name, bool isChecked);
  void showMarks();
  void showZones();
  void showNumbers();

  const Settings& m_settings;
  const Texts& m_texts;
  std::vector<Shot> m_shots;
  std::vector<Shot> m_placed; // those that are drawn, in the order of the marks
  QStringList m_toolTips;
  std::optional<std::uint32_t> m_highlighted;
  QToolButton* m_checked;
  QToolButton* m_all;
  QToolButton* m_byShot;
  QToolButton* m_byZone;
  CourtView* m_court;
  QLabel* m_numbers;
  QLabel* m_withoutPlace;
};

} // namespace hooptab
