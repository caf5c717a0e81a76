// A court with shots of one team below a line that names it and counts them: shot by shot, or in sums by
// zone.
#pragma once

#include "appearance/ShownPicture.h"
#include "scorecard/ShotChart.h"

#include <QWidget>

#include <vector>

class QLabel;

namespace hooptab {

class CourtView;
class ElidedLabel;
class Settings;

class TeamCourt : public QWidget, public ShownPicture {
  Q_OBJECT

 public:
  // The court is named "courtNAME(0)".
  TeamCourt(const QString& name, Side team, const Settings& settings, const Texts& texts,
            QWidget* parent = nullptr);

  // `counted` is the game that the shots are of.
  void showShots(const QString& title, const std::vector<Shot>& shots, const CountedGame& counted);
  CourtView& court() { return *m_court; }
  void applyColours();
  bool hasPicture() const override { return true; } // the court
  QSize pictureSize() const override { return {640, 430}; }
  void paintPicture(QPainter& painter, const QRectF& area) const override;
  // It fills the room that it gets.
  bool hasHeightForWidth() const override { return false; }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  const Settings& m_settings;
  const Texts& m_texts;
  ElidedLabel* m_title;
  QLabel* m_counts;
  CourtView* m_court;
};

} // namespace hooptab
