// A list of teams with a search field above it: typing in the field leaves the teams that contain the text,
// in their full name, too; typing in the list goes to the team that begins with it. Positions are those of
// the whole list, whatever is shown.
#pragma once

#include "teams/TeamStore.h"

#include <QWidget>

class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace hooptab {

// What an entry of the list holds beside its text.
struct TeamRole {
  enum : int { Abbreviation = Qt::UserRole, Category, Name, Colour, Players };
};

class TeamList : public QWidget {
  Q_OBJECT
 public:
  // `listName` is the object name of the list ("lstequipes(0)"); `separator` stands between abbreviation and
  // category.
  TeamList(const QString& listName, const QString& separator, QWidget* parent = nullptr);

  void setTeams(const std::vector<TeamEntry>& teams); // nothing is chosen afterwards; emits nothing
  void setTeam(int position, const TeamEntry& team);
  int position() const; // of the team chosen; -1 for none
  // Chooses without emitting; -1 for none. A team that the search hides is shown again.
  void setPosition(int position);
  QListWidget& list() const { return *m_list; }

 signals:
  void chosen(int position); // by the user; -1 never

 private:
  void takeSelection();
  void search(const QString& text);
  void fill(QListWidgetItem& item, const TeamEntry& team) const;

  QString m_separator;
  int m_position = -1;
  QLineEdit* m_search;
  QListWidget* m_list;
};

} // namespace hooptab
