// The fields of one player below the team's table, with a line that says what Add/Save will do. Keeps what
// was typed; adding, deleting and asking are the team editor's.
#pragma once

#include "teams/TeamSheet.h"

#include <QWidget>

#include <array>

class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace hooptab {

class PlayerEditor : public QWidget {
  Q_OBJECT
 public:
  // Both must outlive it.
  PlayerEditor(const TeamSheet& sheet, const Texts& texts, QWidget* parent = nullptr);

  PlayerFields fields() const;
  void show(const PlayerFields& fields);
  void type(const PlayerFields& fields); // as the user would
  // Whether something was typed since fields were shown, and not taken away again.
  bool isChanged() const;
  void setHasTeam(bool hasTeam); // without one nothing is announced
  void setEditable(bool isEditable);
  void focusNumber();
  void focusOn(TeamSheet::Problem problem); // the field that it is about
  void relabelPanel();

 signals:
  void addAsked();
  void clearAsked();
  void deleteAsked();

 private:
  QLineEdit* addField(QGridLayout& layout, int column, const char* name, Text text);
  void showAnnouncement();

  const TeamSheet& m_sheet;
  const Texts& m_texts;
  PlayerFields m_shown;
  bool m_hasTeam = false;
  QLineEdit* m_number;
  QComboBox* m_position;
  std::array<QLineEdit*, 5> m_free = {}; // name, height, weight, age, grade
  QLabel* m_announcement;
  std::array<QPushButton*, 2> m_changing = {}; // Add/Save and Delete
};

} // namespace hooptab
