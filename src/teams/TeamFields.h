// The fields of one team: names, colour and rules, under a band in its colour. Keeps what was typed; saving
// and asking are the team editor's.
#pragma once

#include "appearance/Card.h"
#include "teams/TeamStore.h"

#include <array>

class QBoxLayout;
class QCheckBox;
class QColor;
class QFrame;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace hooptab {

class ColourSwatches;
class TeamBand;

class TeamFields : public Card {
  Q_OBJECT
 public:
  // Both must outlive it.
  TeamFields(const TeamStore& teams, const Texts& texts, QWidget* parent);

  [[nodiscard]] TeamRecord record() const; // as it is typed
  void show(const TeamRecord& record);     // of a longer one from a file changed by hand everything
  void clear();                            // there is no team
  void setEditable(bool isEditable);
  void takeStoredForm(); // the names become what the file will hold of them
  void focusAbbreviation();
  void focusName();

  [[nodiscard]] QColor colour() const;
  [[nodiscard]] bool hasTeam() const { return m_hasTeam; }
  void setColour(const QColor& colour);

  void showColour(); // again, with the words of the language in use
  void applyMeasure();
  // Names and rules stand beside each other, or below where they need more than this room.
  void place(int room);

 signals:
  void saveAsked();
  void colourAsked(); // another one than those that are offered
  void coloured();    // `colour` has changed, or is shown again

 private:
  void fill(const TeamRecord& record, bool isTeam);
  QLineEdit* addField(QGridLayout& layout, int row, int column, const char* name, Text text);
  QLayout* makeNames();
  QLayout* makeColour();
  QLayout* makeRules();

  const TeamStore& m_teams;
  const Texts& m_texts;
  bool m_hasTeam = false;
  std::uint32_t m_colour = kDefaultTeamColour;
  TeamBand* m_band;
  QLineEdit* m_abbreviation = nullptr;
  QLineEdit* m_category = nullptr;
  QLineEdit* m_name = nullptr;
  std::array<QLineEdit*, 5> m_rules = {}; // minutes, periods, bonus, personal and technical fouls
  QPushButton* m_save = nullptr;
  QPushButton* m_otherColour = nullptr;
  QCheckBox* m_isMain = nullptr;
  ColourSwatches* m_swatches = nullptr;
  QLabel* m_contrast = nullptr; // of the text on the team's colour
  QFrame* m_line = nullptr;     // between names and rules
  QBoxLayout* m_groups = nullptr;
};

} // namespace hooptab
