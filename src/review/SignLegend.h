// What the signs of a chart mean: each sign in its colour, its words behind it, in one line.
#pragma once

#include <QColor>
#include <QString>
#include <QWidget>

#include <vector>

namespace hooptab {

class SignLegend : public QWidget {
 public:
  struct Sign {
    QString sign; // empty: words alone
    QColor colour = {};
    QString words = {};
  };

  explicit SignLegend(QWidget* parent = nullptr);
  void showSigns(std::vector<Sign> signs);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<Sign> m_signs;
};

} // namespace hooptab
