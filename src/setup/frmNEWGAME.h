// The window in which a game is set up: two sides with their players, the game and its rules. Lays out and
// forwards; what holds is decided by NewGame. Accepted once the game file is written; opening it is the
// caller's work, and so is keeping the choices for the next time.
#pragma once

#include "game/Side.h"
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

class Card;
class Dialogs;
class SidePanel;
class WarningChip;

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
  enum class Place { Left, Right, Whole }; // in a card; Right is the row of the field before

  QWidget* makeColumn();
  QWidget* makeGameFields();
  QWidget* makeRuleFields();
  QWidget* makeAnswers();
  QGridLayout* addCard(Card& card, Text title, QWidget* beside);
  QLineEdit* addField(const char* name, std::string& target,
                      const std::function<bool(const std::string&)>& fits = fitsInValue);
  void place(QGridLayout& card, QWidget& field, Text text, Place place);
  void makeRuleSets();
  void fillChoices();
  void openSheet();
  void showRules();
  void showMainTeam();
  void showRuleSet();
  void showAcceptance();
  [[nodiscard]] QString differenceWords() const;
  void focusOn(const NewGame::Objection& objection);

  const Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  Claim m_claim;
  NewGame m_game;
  QString m_path;

  PerSide<SidePanel*> m_sides;
  QButtonGroup m_mainTeam;
  QLineEdit* m_date;
  QDateEdit* m_picker;
  QComboBox* m_type;
  QComboBox* m_input;
  QComboBox* m_rules;
  QComboBox* m_level;
  QLineEdit* m_minutes;
  QLineEdit* m_periods;
  QLineEdit* m_bonus;
  QLineEdit* m_personalFouls;
  QLineEdit* m_technicalFouls;
  WarningChip* m_warning;
  QLabel* m_missing;
  QPushButton* m_ok;
};

} // namespace hooptab
