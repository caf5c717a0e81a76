// The court of a player's panel: shows his field goals and says where it was pressed. Over a line, where no
// shot counts, the pointer forbids and a press only flashes.
#pragma once

#include "court/CourtPicture.h"
#include "court/ZoneMap.h"
#include "recording/LivePanel.h"

#include <QPixmap>
#include <QTimer>
#include <QWidget>

#include <optional>
#include <vector>

namespace hooptab {

class Settings;

class MiniCourt : public QWidget {
  Q_OBJECT
 public:
  explicit MiniCourt(const Settings& settings, QWidget* parent = nullptr);

  void applyColours(); // of the settings
  void setPlaysRight(bool playsRight);
  void setMarks(const std::vector<LivePanel::ShotMark>& shots);
  QSize sizeHint() const override;
  [[nodiscard]] double pixelsOfUnit() const; // of the court

 signals:
  // In whole units of the picture as it is shown, turned round or not.
  void pressed(QPointF place, bool isMade);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] QRectF pictureRect() const;
  // The place under a position; none beside the court.
  [[nodiscard]] std::optional<court::Place> placeAt(const QPointF& position) const;
  [[nodiscard]] bool countsAt(const std::optional<court::Place>& place) const;
  [[nodiscard]] QPixmap courtPixmap() const;

  const Settings& m_settings;
  CourtColours m_colours;
  ZoneMap m_zones;
  std::vector<LivePanel::ShotMark> m_shots;
  bool m_playsRight = false;
  QPixmap m_court; // drawn again when it is null or the size has changed
  QTimer m_flash;  // active while a refused press flashes
};

} // namespace hooptab
