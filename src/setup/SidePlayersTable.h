// The table of a side's players: fifteen rows fit into its wished-for height, a double click or F2 steps a
// position, Space checks, and Enter does nothing, so that it never presses the window's default button.
#pragma once

#include "setup/SidePlayersModel.h"

#include <QTableView>

namespace hooptab {

class SidePlayersTable : public QTableView {
  Q_OBJECT
 public:
  SidePlayersTable(SidePlayersModel& model, const QString& name, QWidget* parent = nullptr);

  void fitColumns(); // to the language in use
  QSize sizeHint() const override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fitRows();
  bool isOnCheckMark(const QPoint& place) const;

  SidePlayersModel& m_model;
};

} // namespace hooptab
