// The names of players that may be one player's, and those that were joined before: a row each, with a check
// mark and the name to write. Only shows them and takes what is chosen.
#pragma once

#include "exchange/NameJoins.h"
#include "exchange/PlayerNames.h"
#include "settings/Texts.h"

#include <QWidget>

#include <vector>

class QPushButton;

namespace hooptab {

class RowTable;

class NamesPanel : public QWidget {
  Q_OBJECT
 public:
  NamesPanel(const Texts& texts, QWidget* parent); // texts must outlive it

  void show(const NameJoins& kept, const std::vector<NameProposal>& proposals);
  using QWidget::show;
  [[nodiscard]] NameJoins chosen() const; // those that are kept, with what was changed
  [[nodiscard]] std::size_t count() const { return m_names.size(); }
  void setSaving(bool isOn); // false while there is work under way
  void relabelPanel();
  void fitToFont();

 signals:
  void saveAsked();

 private:
  struct Name {
    NameProposal proposal;
    bool isOn = true;
  };

  NameJoins m_kept;
  std::vector<Name> m_names;
  RowTable* m_table;
  QPushButton* m_save;
};

} // namespace hooptab
