#include "teams/TeamList.h"

#include "appearance/Fields.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QListWidget>

namespace hooptab {

TeamList::TeamList(const QString& listName, const QString& separator, QWidget* parent)
    : QWidget(parent), m_separator(separator), m_search(new QLineEdit(this)), m_list(new QListWidget(this)) {
  m_list->setObjectName(listName);
  m_list->setUniformItemSizes(true);
  m_list->setSpacing(1);
  m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setAccessibleNumber(*m_list, Text::TeamList);
  m_search->setObjectName(QString(listName).replace(QStringLiteral("lst"), QStringLiteral("txtSEARCH")));
  m_search->setClearButtonEnabled(true);
  setAccessibleNumber(*m_search, Text::SearchTeams);
  setToolTipNumber(*m_search, Text::SearchTeams);
  setPlaceholderNumber(*m_search, Text::SearchTeams);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(m_search);
  layout->addWidget(m_list, 1);

  connect(m_search, &QLineEdit::textChanged, this, &TeamList::search);
  connect(m_search, &QLineEdit::returnPressed, m_list, [this] { m_list->setFocus(Qt::OtherFocusReason); });
  whenSelected(*m_list, [this] { takeSelection(); });
}

// By selection: the mere focus makes the first row the current one.
void TeamList::takeSelection() {
  const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
  if (selected.isEmpty()) // Ctrl and a click; a team that was chosen stays so
    return setPosition(m_position);
  if (selected.first().row() == m_position)
    return;
  m_position = selected.first().row();
  emit chosen(m_position);
}

void TeamList::fill(QListWidgetItem& item, const TeamEntry& team) const {
  item.setText(toQt(team.abbreviation) + m_separator + toQt(team.category));
  item.setData(TeamRole::Abbreviation, toQt(team.abbreviation));
  item.setData(TeamRole::Category, toQt(team.category));
  item.setData(TeamRole::Name, toQt(team.name));
  item.setData(TeamRole::Colour, team.colour);
  item.setData(TeamRole::Players, static_cast<int>(team.players));
}

void TeamList::setTeams(const std::vector<TeamEntry>& teams) {
  const QSignalBlocker quiet(m_list);
  m_list->clear();
  for (const TeamEntry& team : teams)
    fill(*new QListWidgetItem(m_list), team);
  m_position = -1;
  search(m_search->text());
}

void TeamList::setTeam(int position, const TeamEntry& team) {
  if (QListWidgetItem* item = m_list->item(position))
    fill(*item, team);
}

int TeamList::position() const {
  return m_position;
}

void TeamList::setPosition(int position) {
  const QSignalBlocker quiet(m_list->selectionModel());
  m_position = position;
  m_list->clearSelection();
  m_list->setCurrentRow(position);
  QListWidgetItem* item = m_list->item(position);
  if (item == nullptr)
    return;
  if (item->isHidden())
    m_search->clear();
  m_list->scrollToItem(item);
}

void TeamList::search(const QString& text) {
  for (int position = 0; position < m_list->count(); ++position) {
    QListWidgetItem* item = m_list->item(position);
    const QString name = item->data(TeamRole::Name).toString();
    item->setHidden(!item->text().contains(text, Qt::CaseInsensitive) &&
                    !name.contains(text, Qt::CaseInsensitive));
  }
}

} // namespace hooptab
