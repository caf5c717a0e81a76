// The criteria by which games are selected: team, type, place, input, position and dates. Holds what the user
// has chosen; what it means, and when it takes effect, is decided elsewhere.
#pragma once

#include "season/SeasonDesk.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QGridLayout;
class QPushButton;

namespace hooptab {

class CriteriaPanel : public QWidget {
  Q_OBJECT

 public:
  explicit CriteriaPanel(const Texts& texts, QWidget* parent = nullptr);

  SeasonChoice choice() const;
  // Offers what the desk's folder holds, shows the criteria in force, and what can be done at present.
  void showDesk(const SeasonDesk& desk);
  void showWhatIsOffered(const SeasonDesk& desk, bool isBusy);
  void relabelPanel();
  void leaveOutWrong(); // as if the user had asked for it
  // What is chosen, for the next time; a team that is not offered is none.
  QByteArray kept() const;
  void restore(const QByteArray& kept);

 signals:
  void changed();
  void applyAsked();
  void generateAsked();

 private:
  QComboBox* addChoice(const char* name, Text text, int width);

  const Texts& m_texts;
  QGridLayout* m_grid;
  QComboBox* m_team;
  QComboBox* m_type;
  QComboBox* m_where;
  QComboBox* m_input;
  QComboBox* m_position;
  QCheckBox* m_withDate;
  std::array<QDateEdit*, 2> m_dates;
  QCheckBox* m_countOnce;
  QCheckBox* m_leaveOutWrong;
  QPushButton* m_apply;
  QPushButton* m_generate;
  bool m_hasDates = false; // the dates show the season's own, until the user changes them
};

} // namespace hooptab
