// The window in which a game is shared on the network: on or off, at which address, with what delay and
// names. Shows the address as text and for a phone's camera, and how many follow. What is chosen is told at
// once; who shares is somebody else.
#pragma once

#include "publish/ShareChoice.h"
#include "publish/WebNetworks.h"
#include "settings/Texts.h"

#include <QDialog>

#include <optional>
#include <vector>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace hooptab {

class QrPicture;

class frmSHARE : public QDialog {
  Q_OBJECT
 public:
  // Whom names are remembered for; `areMinors`: then numbers alone are offered first, and it is said.
  struct Players {
    std::string categories;
    bool areMinors = false;
  };
  // `texts` must outlive it.
  frmSHARE(const ShareChoice& choice, std::vector<WebNetwork> networks, const Players& players,
           const Texts& texts, QWidget* parent = nullptr);

  [[nodiscard]] ShareChoice choice() const;
  // What has come of it: shared at that port, or not.
  void showShared(std::optional<std::uint16_t> port);
  void showViewers(int viewers);
  void showProblem(const QString& words); // empty: none

 signals:
  void switched(bool on);
  void feedChosen(); // delay, names or order

 private:
  void addFields();
  void addAddress();
  void addRow(QWidget& field, Text words);
  void fillNetworks(const std::string& chosen);
  void showAddress();
  void warn();
  void showNames(const Players& players);

  const Texts& m_texts;
  std::vector<WebNetwork> m_networks;
  std::optional<std::uint16_t> m_port; // while it is shared
  QGridLayout* m_grid = nullptr;
  QCheckBox* m_switch = nullptr;
  QComboBox* m_network = nullptr;
  QSpinBox* m_portField = nullptr;
  QSpinBox* m_delay = nullptr;
  QComboBox* m_names = nullptr;
  QComboBox* m_first = nullptr;
  QLineEdit* m_pass = nullptr;
  QLabel* m_minors = nullptr;
  QComboBox* m_page = nullptr;
  QLineEdit* m_address = nullptr;
  QPushButton* m_copy = nullptr;
  QrPicture* m_picture = nullptr;
  QLabel* m_viewers = nullptr;
  QLabel* m_problem = nullptr;
};

} // namespace hooptab
