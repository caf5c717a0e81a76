// The details of an event as boxes, one below the other in a layout of the window's own. What can be chosen
// is DetailChoices'.
#pragma once

#include "game/DetailChoices.h"

#include <QObject>

#include <string>
#include <utility>
#include <vector>

class QComboBox;
class QGridLayout;
class QWidget;

namespace hooptab {

class DetailBoxes : public QObject {
  Q_OBJECT
 public:
  static constexpr int kMostRows = 3;

  // In rows of the layout from that one on, which nothing else is in; behind `before` in the order of the
  // tabs.
  DetailBoxes(QGridLayout& layout, int firstRow, QWidget& before, QWidget& window);

  // What was chosen stays where it still can be. Their captions wait for relabel().
  void show(const std::vector<DetailChoice>& choices);
  // Keys and values of those that are not as the event holds them.
  [[nodiscard]] std::vector<std::pair<std::string, std::string>> changes() const;

 signals:
  void changed();

 private:
  struct Box {
    std::string key;
    QString held;
    QWidget* caption = nullptr;
    QComboBox* values = nullptr;
  };
  [[nodiscard]] Box makeBox(const DetailChoice& choice) const;

  QGridLayout& m_layout;
  int m_firstRow;
  QWidget& m_before;
  QWidget& m_window;
  std::vector<Box> m_boxes;
};

} // namespace hooptab
