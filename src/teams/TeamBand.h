// The head of the team editor: abbreviation and full name on the team's colour.
#pragma once

#include <QWidget>

class QBoxLayout;

namespace hooptab {

class ElidedLabel;

class TeamBand : public QWidget {
  Q_OBJECT
 public:
  explicit TeamBand(QWidget* parent = nullptr);

  void showTeam(const QString& abbreviation, const QString& name);
  void setColour(const QColor& colour); // also when the look is another
  void addButton(QWidget& button);      // at the right

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor m_colour;
  ElidedLabel* m_abbreviation;
  ElidedLabel* m_name;
  QBoxLayout* m_layout;
};

} // namespace hooptab
