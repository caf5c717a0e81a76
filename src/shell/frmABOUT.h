// Says what the program is: name, version, purpose, the Qt it runs with and the licence.
#pragma once

#include "settings/Texts.h"

#include <QDialog>

namespace hooptab {

class frmABOUT : public QDialog {
  Q_OBJECT

 public:
  explicit frmABOUT(const Texts& texts, QWidget* parent = nullptr);
};

} // namespace hooptab
