#include "exchange/NamesPanel.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "exchange/RowTable.h"

#include <QBoxLayout>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr int kGap = 6;
enum NameColumn { kTeam, kJersey, kName, kWritten };

} // namespace

NamesPanel::NamesPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_table(new RowTable("tblNAMES", Text::NamesTab,
                                            {{Text::Team, 14},
                                             {Text::No, 7},
                                             {Text::NameInFiles, 34},
                                             {Text::NameToWrite, 34, false, true, true}},
                                            texts, this)) {
  auto* hint = new PlainLabel(this);
  setTextNumber(*hint, Text::NamesHint);
  hint->setWordWrap(true);
  hint->setForegroundRole(QPalette::PlaceholderText);
  m_save = iconButton("cmdSAVENAMES", Text::SaveNames, Text::SaveNamesTip, "savemanual", this);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(hint, 1);
  row->addWidget(m_save, 0, Qt::AlignBottom);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(m_table, 1);
  layout->addLayout(row);
  connect(m_save, &QPushButton::clicked, this, &NamesPanel::saveAsked);
  show({}, {});
}

void NamesPanel::show(const NameJoins& kept, const std::vector<NameProposal>& proposals) {
  m_kept = kept;
  m_names.clear();
  for (const auto& [key, team] : kept.teams()) {
    for (const auto& [folded, name] : team.names)
      m_names.push_back({{team.name, {}, name.name, name.written}});
  }
  for (const NameProposal& proposal : proposals)
    m_names.push_back({proposal});
  const auto at = [this](int row) -> Name& { return m_names[static_cast<std::size_t>(row)]; };
  RowSource rows;
  rows.count = static_cast<int>(m_names.size());
  rows.text = [at](int row, int column) -> QString {
    const NameProposal& name = at(row).proposal;
    switch (column) {
    case kTeam: return toQt(name.team);
    case kJersey: return toQt(name.jersey);
    case kName: return toQt(name.name);
    default: return toQt(name.written);
    }
  };
  rows.isChecked = [at](int row) -> std::optional<bool> { return at(row).isOn; };
  rows.check = [at](int row, bool isOn) { at(row).isOn = isOn; };
  rows.type = [at](int row, const QString& text) {
    if (!text.trimmed().isEmpty())
      at(row).proposal.written = fromQt(text.trimmed());
  };
  m_table->show(std::move(rows));
}

NameJoins NamesPanel::chosen() const {
  NameJoins joins = m_kept;
  for (const Name& name : m_names)
    joins.join(name.proposal.team, name.proposal.name, name.isOn ? name.proposal.written : std::string());
  return joins;
}

void NamesPanel::setSaving(bool isOn) {
  m_save->setEnabled(isOn && !m_names.empty());
}

void NamesPanel::relabelPanel() {
  m_table->refresh();
}

void NamesPanel::fitToFont() {
  m_table->fitToFont();
}

} // namespace hooptab
