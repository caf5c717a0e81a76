// The minimum that players must meet to lead in averages, as three numbers beside a table.
#pragma once

#include "season/Qualification.h"
#include "settings/Texts.h"

#include <QWidget>

#include <array>

class QSpinBox;

namespace hooptab {

class MinimumBox : public QWidget {
  Q_OBJECT

 public:
  explicit MinimumBox(QWidget* parent = nullptr);

  Qualification minimum() const;
  void showMinimum(const Qualification& minimum); // says nothing
  void relabelBox(const Texts& texts);            // what stands within the fields

 signals:
  void minimumChanged(const Qualification& minimum);

 private:
  std::array<QSpinBox*, 3> m_fields; // games, minutes, attempts
};

} // namespace hooptab
