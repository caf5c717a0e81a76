// One step of what the user did to a game's totals, to be taken back and made again whole.
#pragma once

#include "game/Side.h"
#include "totals/ManualTotals.h"

#include <QUndoCommand>

namespace hooptab {

class TotalsChange : public QUndoCommand {
 public:
  // The totals, which must outlive it, have changed already; `team` is the one that was shown.
  TotalsChange(ManualTotals& totals, ManualTotals before, Side team, const QString& words)
      : QUndoCommand(words), m_totals(totals), m_before(std::move(before)), m_after(totals), m_team(team) {}

  Side team() const { return m_team; }
  void undo() override { m_totals = m_before; }
  void redo() override { m_totals = m_after; }

 private:
  ManualTotals& m_totals;
  ManualTotals m_before;
  ManualTotals m_after;
  Side m_team;
};

} // namespace hooptab
