#include "court/frmCOULEURS.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtView.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace hooptab {

namespace {

// Made and missed shots in every zone, so that one sees whether marks stand out from it.
const std::vector<CourtMark> kSampleMarks = {
    {{30, 92}, true},  {{62, 110}, false},  {{50, 48}, true}, {{84, 128}, false},
    {{118, 92}, true}, {{106, 164}, false}, {{20, 6}, true},  {{98, 34}, false},
};

// The whole button in its colour, flat: what is chosen is what is seen.
void showColour(QPushButton& button, std::uint32_t stored) {
  const QColor colour = colourOf(stored);
  button.setStyleSheet(
      QStringLiteral(
          "QPushButton { background: %1; color: %2; border: 1px solid palette(dark); border-radius: 4px;"
          " padding: 6px 14px; }"
          "QPushButton:hover { border-color: palette(text); }"
          "QPushButton:focus { border: 3px solid palette(link); padding: 4px 12px; outline: none; }")
          .arg(colour.name(), textOn(colour).name()));
}

} // namespace

frmCOULEURS::frmCOULEURS(Settings& settings, const Texts& texts, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_texts(texts), m_dialogs(dialogs),
      m_choice(CourtColourChoice::of(settings)) {
  setObjectName(QStringLiteral("frmCOULEURS"));
  setModal(true);
  setTextNumber(*this, Text::ColourSettings);

  auto* choices = new QVBoxLayout;
  choices->setSpacing(12);
  choices->addWidget(makeColours());
  choices->addWidget(makeLabels());
  choices->addStretch();
  auto* parts = new QHBoxLayout;
  parts->setSpacing(16);
  parts->addLayout(choices);
  parts->addWidget(makePreview(), 1);

  QPushButton* defaults = makeButton("cmdDEFAUT", Text::DefaultColours, Text::DefaultsToolTip);
  QPushButton* applies = makeButton("cmdAPPLIQUER", Text::Apply, Text::ApplyToCourts);
  QPushButton* closes = makeButton("cmdFERMER", Text::CloseButton, Text::CloseMiscellaneous);
  applies->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(defaults);
  buttons->addStretch();
  buttons->addWidget(applies);
  buttons->addWidget(closes);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->setSpacing(14);
  layout->addLayout(parts, 1);
  layout->addLayout(buttons);

  connect(defaults, &QPushButton::clicked, this, [this] {
    m_choice.colours = kFirstColours;
    m_asSet->setChecked(false);
    showColours();
  });
  connect(applies, &QPushButton::clicked, this, &frmCOULEURS::apply);
  connect(closes, &QPushButton::clicked, this, &frmCOULEURS::reject);
  auto* language = new QShortcut(QKeySequence(Qt::Key_F12), this);
  connect(language, &QShortcut::activated, this, &frmCOULEURS::languageAsked);
  selectOnFocus(*this);
  showLabels();
  relabelWindow();
  m_colours.front().button->setFocus();
}

QWidget* frmCOULEURS::makeColours() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, Text::Colours);
  auto* rows = new QGridLayout(group);
  rows->setColumnStretch(0, 1);
  rows->setHorizontalSpacing(16);
  addColour(*rows, "cmdCOULEUR2PTS", Text::TwoPointZone, &ChosenColours::twoPoints);
  addColour(*rows, "cmdCOULEUR3PTS", Text::ThreePointZone, &ChosenColours::threePoints);
  addColour(*rows, "cmdCOULEURBOX", Text::Box, &ChosenColours::box);
  addColour(*rows, "cmdCOULEURBUT", Text::ButtonColour, &ChosenColours::buttons);
  m_asSet = new QCheckBox(this);
  m_asSet->setObjectName(QStringLiteral("chkASSET"));
  m_asSet->setChecked(Theme::courtStrength() == CourtStrength::AsSet);
  setTextNumber(*m_asSet, Text::AsSet);
  connect(m_asSet, &QCheckBox::toggled, this, &frmCOULEURS::showColours);
  rows->addWidget(m_asSet, rows->rowCount(), 0, 1, 2);
  rows->addWidget(makePresets(), rows->rowCount(), 0, 1, 2);
  return group;
}

// A court in one click.
QWidget* frmCOULEURS::makePresets() {
  struct Preset {
    const char* name;
    Text text;
    QColor twoPoints, box, threePoints, buttons;
  };
  const Preset presets[] = {
      {"cmdMAPLE",
       Text::Maple,
       {0xEB, 0xD3, 0xAC},
       {0xC9, 0x8B, 0x63},
       {0xDC, 0xE6, 0xEE},
       {0x5B, 0x7A, 0x99}},
      {"cmdSLATE",
       Text::Slate,
       {0xDC, 0xE3, 0xEA},
       {0x9D, 0xB2, 0xC6},
       {0xF4, 0xF6, 0xF8},
       {0x5B, 0x7A, 0x99}},
      {"cmdPAPER",
       Text::PaperTheme,
       {0xFF, 0xFF, 0xFE},
       {0xE6, 0xE6, 0xE6},
       {0xFF, 0xFF, 0xFF},
       {0x80, 0x80, 0x80}},
  };
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const Preset& preset : presets) {
    auto* button = new QPushButton(row);
    button->setObjectName(QLatin1String(preset.name));
    button->setAutoDefault(false);
    setTextNumber(*button, preset.text);
    connect(button, &QPushButton::clicked, this, [this, preset] {
      m_choice.colours = {storedColour(preset.twoPoints), storedColour(preset.box),
                          storedColour(preset.threePoints), storedColour(preset.buttons)};
      m_asSet->setChecked(true);
      showColours();
    });
    layout->addWidget(button);
  }
  return row;
}

CourtStrength frmCOULEURS::strength() const {
  return m_asSet->isChecked() ? CourtStrength::AsSet : CourtStrength::Calm;
}

void frmCOULEURS::addColour(QGridLayout& rows, const char* name, Text text,
                            std::uint32_t ChosenColours::*colour) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  button->setMinimumWidth(120);
  const int row = rows.rowCount();
  rows.addWidget(captionFor(*button, text), row, 0);
  setToolTipNumber(*button, Text::ChooserTitle);
  rows.addWidget(button, row, 1);
  connect(button, &QPushButton::clicked, this, [this, colour] { chooseColour(colour); });
  m_colours.push_back({button, colour});
}

QWidget* frmCOULEURS::makeLabels() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, Text::UserDefinedStatistics);
  auto* rows = new QGridLayout(group);
  rows->setColumnStretch(2, 1);
  addLabel(*rows, 0, "txtSTATU1", Text::FirstLabel);
  addLabel(*rows, 1, "txtSTATU2", Text::SecondLabel);
  return group;
}

void frmCOULEURS::addLabel(QGridLayout& rows, std::size_t which, const char* name, Text text) {
  auto* prefix = new PlainLabel(toQt(CourtColourChoice::prefix(which)), this);
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  field->setMinimumWidth(180);
  limitField(*field, m_texts, CourtColourChoice::kLongestLabel);
  const auto row = static_cast<int>(which);
  rows.addWidget(captionFor(*field, text), row, 0);
  setToolTipNumber(*field, Text::LabelToolTip);
  rows.addWidget(prefix, row, 1);
  rows.addWidget(field, row, 2);
  connect(field, &QLineEdit::textEdited, this,
          [this, which](const QString& typed) { m_choice.label[which] = fromQt(typed); });
  m_labels[which] = field;
}

QWidget* frmCOULEURS::makePreview() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, Text::Preview);
  m_court = new CourtView(this);
  m_court->setObjectName(QStringLiteral("court"));
  m_court->setMinimumSize(230, 365);
  setAccessibleNumber(*m_court, Text::CourtName);
  m_sample = new QPushButton(this);
  m_sample->setObjectName(QStringLiteral("cmdEXEMPLE"));
  // To be looked at only.
  m_sample->setFocusPolicy(Qt::NoFocus);
  m_sample->setAutoDefault(false);
  setAccessibleNumber(*m_sample, Text::SampleToolTip);
  setToolTipNumber(*m_sample, Text::SampleToolTip);
  auto* layout = new QVBoxLayout(group);
  layout->addWidget(m_court, 1);
  layout->addWidget(m_sample, 0, Qt::AlignHCenter);
  return group;
}

QPushButton* frmCOULEURS::makeButton(const char* name, Text text, Text toolTip) {
  auto* button = new QPushButton(this);
  button->setObjectName(QLatin1String(name));
  setTextNumber(*button, text);
  setToolTipNumber(*button, toolTip);
  return button;
}

void frmCOULEURS::relabelWindow() {
  // Colours and the sample are no captions: an Alt key would be a letter in a number.
  for (const ColourButton& colour : m_colours)
    colour.button->setText({});
  m_sample->setText({});
  relabel(*this, m_texts);
  giveMnemonics(*this);
  m_sample->setText(caption(m_texts, Text::SampleButton));
  QStringList toolTips;
  for (const CourtMark& mark : kSampleMarks)
    toolTips << caption(m_texts, mark.isMade ? Text::Made : Text::Missed);
  m_court->setMarks(kSampleMarks, toolTips);
  showColours();
}

void frmCOULEURS::chooseColour(std::uint32_t ChosenColours::*colour) {
  const QColor chosen =
      m_dialogs.chooseColour(this, caption(m_texts, Text::ChooserTitle), colourOf(m_choice.colours.*colour));
  if (!chosen.isValid())
    return;
  m_choice.colours.*colour = storedColour(chosen);
  m_asSet->setChecked(true); // a colour that was chosen is the colour that is seen
  showColours();
}

void frmCOULEURS::showLabels() {
  for (const std::size_t which : {0U, 1U})
    m_labels[which]->setText(toQt(m_choice.label[which]));
}

void frmCOULEURS::showColours() {
  const ChosenColours& colours = m_choice.colours;
  for (const ColourButton& shown : m_colours) {
    showColour(*shown.button, colours.*shown.colour);
    shown.button->setText(colourOf(colours.*shown.colour).name().toUpper());
  }
  showColour(*m_sample, colours.buttons);
  m_court->setColours(wornCourt(colours, strength()));
}

bool frmCOULEURS::apply() {
  switch (m_choice.problem()) {
  case CourtColourChoice::Problem::SameColours:
    m_dialogs.warn(this, caption(m_texts, Text::WarningTitle), caption(m_texts, Text::ThreeDifferentColours));
    return false;
  case CourtColourChoice::Problem::None: break;
  }
  const bool isOnDisk = m_choice.save(m_settings);
  m_choice = CourtColourChoice::of(m_settings);
  showLabels();
  Theme::setCourtStrength(strength());
  emit applied();
  relabelWindow(); // what is applied may relabel the whole program, which takes the Alt keys away
  if (!isOnDisk)
    m_dialogs.warn(this, caption(m_texts, Text::WarningTitle),
                   toQt(m_texts.withPlaceholder(Text::NotSaved, m_settings.path())));
  return true;
}

void frmCOULEURS::reject() {
  if ((m_choice != CourtColourChoice::of(m_settings) || strength() != Theme::courtStrength())) {
    const SaveChoice answer =
        m_dialogs.askToSave(this, windowTitle(), caption(m_texts, Text::AskToSaveColours));
    if (answer == SaveChoice::Stay || (answer == SaveChoice::Save && !apply()))
      return;
  }
  QDialog::reject();
}

} // namespace hooptab
