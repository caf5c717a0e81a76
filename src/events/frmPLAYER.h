// A player who is added to a team in mid-game: his number, and his name if it is known. What stands against
// it is said below the fields, which stay as they were typed.
#pragma once

#include <QDialog>

#include <functional>
#include <string>

class QLabel;
class QLineEdit;

namespace hooptab {

class Texts;

class frmPLAYER : public QDialog {
  Q_OBJECT
 public:
  // `add` says what stands against it, or nothing. `texts` must outlive the window.
  using Add = std::function<QString(const std::string& jersey, const std::string& name)>;
  frmPLAYER(const QString& team, Add add, const Texts& texts, QWidget* parent = nullptr);

  void accept() override;

 private:
  Add m_add;
  QLineEdit* m_jersey;
  QLineEdit* m_name;
  QLabel* m_problem;
};

} // namespace hooptab
