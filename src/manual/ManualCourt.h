// The court of manual entry: shows shots and says where a new one was placed. Over a line, where no shot
// counts, the pointer forbids and a press only flashes.
#pragma once

#include "court/CourtView.h"
#include "game/CourtClick.h"

#include <QTimer>

#include <optional>

namespace hooptab {

class ManualCourt : public CourtView {
  Q_OBJECT
 public:
  explicit ManualCourt(const Settings& settings, QWidget* parent = nullptr);

  void applyColours(); // of the settings

 signals:
  void pressed(EventCode kind, int x, int y, bool isMade); // whole units of the court

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] std::optional<CourtClick> clickAt(const QPointF& position) const;

  const Settings& m_settings;
  ZoneMap m_zones;
  QTimer m_flash; // active while a refused press flashes
};

} // namespace hooptab
