// What a check has found in the game of a scorecard: one line above it, which opens into a list. Whoever
// picks a finding is led to its event. Hidden where nothing was found.
#pragma once

#include "settings/Texts.h"

#include <QFrame>

class QListWidget;
class QListWidgetItem;
class QToolButton;

namespace hooptab {

class ElidedLabel;
class Scorecard;

class CheckStrip : public QFrame {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit CheckStrip(const Texts& texts, QWidget* parent = nullptr);

  // Open or closed, it stays so while the game is read anew.
  void showFindings(const Scorecard& card);
  void applyColours();

 signals:
  void eventAsked(std::size_t event); // its place in the game

 private:
  void open(bool isOpen);
  void lead(const QListWidgetItem* item);

  const Texts& m_texts;
  ElidedLabel* m_counts;
  QToolButton* m_show;
  QListWidget* m_list;
};

} // namespace hooptab
