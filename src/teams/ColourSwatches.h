// A row of team colours to choose from with one press. One stop of the Tab key; the arrow keys lead through.
#pragma once

#include <QColor>
#include <QWidget>

#include <vector>

class QAbstractButton;

namespace hooptab {

class ColourSwatches : public QWidget {
  Q_OBJECT
 public:
  explicit ColourSwatches(QWidget* parent = nullptr);

  void showColour(const QColor& colour); // marks it, when it is one of them

 signals:
  void chosen(const QColor& colour);

 private:
  std::vector<QAbstractButton*> m_swatches;
};

} // namespace hooptab
