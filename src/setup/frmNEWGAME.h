// The window in which a game is set up: two sides with their players, the game and its rules. Lays out and
// forwards; what holds is decided by NewGame. Accepted once the game file is written; opening it is the
// caller's work, and so is keeping the choices for the next time.
#pragma once

#include "setup/NewGame.h"

#include <QButtonGroup>
#include <QDialog>

#include <functional>

class QComboBox;
class QDateEdit;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace hooptab {

class Dialogs;
class SidePanel;

class frmNEWGAME : public QDialog {
  Q_OBJECT
 public:
  // Takes the file of a game for writing, before the user is asked whether it may be replaced. Returns who
  // records it elsewhere; empty when it was taken, or cannot be locked at all.
  using Claim = std::function<QString(const QString& path)>;

  // Everything must outlive the window.
  frmNEWGAME(TeamStore& teams, Settings& settings, const Texts& texts, Dialogs& dialogs, Claim claim,
             const LastChoices& last, QWidget* parent = nullptr);

  // After success: the file made, and what the next game begins with.
  const QString& path() const { return m_path; }
  LastChoices choices() const { return m_game.choices(); }

  void relabelWindow(); // the language has changed
  void accept() override;

 signals:
  void languageAsked();

 private:
  QWidget* makeGameFields();
  QWidget* makeRuleFields();
  QLayout* makeButtons();
  // The label stands in a row of its own; placing the field is the caller's.
  QLineEdit* addField(QGridLayout& layout, const char* name, int text, std::string& target,
                      const std::function<bool(const std::string&)>& fits = fitsInValue);
  void fillChoices();
  void showRules();
  void showMainTeam();
  void showAcceptance();
  void focusOn(int problem);

  const Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  Claim m_claim;
  NewGame m_game;
  QString m_path;

  SidePanel* m_sides[2];
  QButtonGroup m_mainTeam;
  QLineEdit* m_date;
  QDateEdit* m_picker;
  QComboBox* m_type;
  QComboBox* m_input;
  QLineEdit* m_minutes;
  QLineEdit* m_periods;
  QLineEdit* m_bonus;
  QLineEdit* m_personalFouls;
  QLineEdit* m_technicalFouls;
  QLabel* m_missing;
  QPushButton* m_ok;
};

} // namespace hooptab
