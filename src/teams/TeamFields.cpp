#include "teams/TeamFields.h"

#include "appearance/Fields.h"
#include "appearance/LanguageLocale.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/codepage.h"
#include "teams/ColourSwatches.h"
#include "teams/TeamBand.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpressionValidator>

namespace hooptab {

namespace {

constexpr int kRulesInARow = 3;
constexpr int kSwatch = 16;

// Fields of the rules, by their order in the record.
constexpr struct {
  const char* name;
  Text text;
  std::string TeamRecord::*rule;
  int digits; // minutes are those of a clock that shows mm:ss
} kRules[] = {
    {"txtDUREE", Text::MinutesPerPeriod, &TeamRecord::minutesPerPeriod, 2},
    {"txtNBREPERIODE", Text::PeriodCount, &TeamRecord::periods, 3},
    {"txtBONUS", Text::BonusAfter, &TeamRecord::bonus, 3},
    {"txtPF", Text::FoulLimit, &TeamRecord::personalFoulLimit, 3},
    {"txtTF", Text::TechnicalLimit, &TeamRecord::technicalFoulLimit, 3},
};

} // namespace

TeamFields::TeamFields(const TeamStore& teams, const Texts& texts, QWidget* parent)
    : Card(parent), m_teams(teams), m_texts(texts), m_band(new TeamBand(this)) {
  m_save = iconButton("cmdSAVEEQUIPE", Text::Save, Text::SaveTeam, "savemanual", this);
  m_save->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
  m_band->addButton(*m_save);

  auto* left = new QVBoxLayout;
  left->addLayout(makeNames());
  left->addLayout(makeColour());
  m_isMain = new QCheckBox(this);
  m_isMain->setObjectName(QStringLiteral("chkMAIN"));
  setTextNumber(*m_isMain, Text::MainTeamKeypad);
  setToolTipNumber(*m_isMain, Text::MainTeamKeypad);
  left->addWidget(m_isMain);
  m_line = new QFrame(this);
  m_line->setFrameShape(QFrame::VLine);
  m_line->setForegroundRole(QPalette::Mid);
  m_line->setFrameShadow(QFrame::Plain);
  m_groups = new QHBoxLayout;
  m_groups->addLayout(left, 1);
  m_groups->addWidget(m_line);
  m_groups->addLayout(makeRules());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_band);
  layout->addLayout(m_groups);

  connect(m_save, &QPushButton::clicked, this, &TeamFields::saveAsked);
  connect(m_otherColour, &QPushButton::clicked, this, &TeamFields::colourAsked);
  connect(m_swatches, &ColourSwatches::chosen, this, &TeamFields::setColour);
}

QLineEdit* TeamFields::addField(QGridLayout& layout, int row, int column, const char* name, Text text) {
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  QLabel* label = captionFor(*field, text);
  label->setForegroundRole(QPalette::PlaceholderText);
  layout.addWidget(label, 2 * row, column);
  layout.addWidget(field, 2 * row + 1, column);
  connect(field, &QLineEdit::returnPressed, this, &TeamFields::saveAsked);
  return field;
}

QLayout* TeamFields::makeNames() {
  auto* names = new QGridLayout;
  m_abbreviation = addField(*names, 0, 0, "txtABB", Text::TeamNameQuestion);
  m_category = addField(*names, 0, 1, "txtCATEGORIE", Text::Level);
  m_name = addField(*names, 0, 2, "txtNOMEQUIPE", Text::FullName);
  names->setColumnStretch(2, 1);
  limitField(*m_abbreviation, m_texts, kLongestAbbreviation);
  for (const auto& [field, part] :
       {std::pair(m_category, &TeamRecord::category), {m_name, &TeamRecord::name}}) {
    const auto fits = [this, part = part](const std::string& text) {
      TeamRecord typed = record();
      typed.*part = text;
      return fitsInValue(teamValue(typed, m_teams.settings().statisticLabel));
    };
    limitField(*field, fits, m_texts);
  }
  for (QLineEdit* field : {m_abbreviation, m_name})
    connect(field, &QLineEdit::textChanged, this,
            [this] { m_band->showTeam(m_abbreviation->text(), m_name->text()); });
  return names;
}

QLayout* TeamFields::makeColour() {
  m_swatches = new ColourSwatches(this);
  m_otherColour = iconButton("cmdCOUL", Text::Colour, Text::TeamBackground, "theme", this);
  m_contrast = new PlainLabel(this);
  m_contrast->setObjectName(QStringLiteral("lblCONTRAST"));
  m_contrast->setForegroundRole(QPalette::PlaceholderText);
  m_contrast->setWordWrap(true);
  auto* colour = new QHBoxLayout;
  colour->addWidget(m_swatches);
  colour->addWidget(m_otherColour);
  colour->addWidget(m_contrast, 1);
  return colour;
}

QLayout* TeamFields::makeRules() {
  auto* rules = new QGridLayout;
  for (std::size_t i = 0; i < m_rules.size(); ++i) {
    m_rules[i] = addField(*rules, static_cast<int>(i) / kRulesInARow, static_cast<int>(i) % kRulesInARow,
                          kRules[i].name, kRules[i].text);
    m_rules[i]->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("\\d{0,%1}").arg(kRules[i].digits)), m_rules[i]));
  }
  rules->setRowStretch(rules->rowCount(), 1); // on a level with the names
  return rules;
}

TeamRecord TeamFields::record() const {
  TeamRecord record;
  record.abbreviation = fromQt(m_abbreviation->text());
  record.category = fromQt(m_category->text());
  record.name = fromQt(m_name->text());
  for (std::size_t i = 0; i < m_rules.size(); ++i)
    record.*kRules[i].rule = fromQt(m_rules[i]->text());
  record.isMain = m_isMain->isChecked();
  record.storedColour = m_colour;
  return record;
}

void TeamFields::show(const TeamRecord& record) {
  fill(record, true);
}

void TeamFields::clear() {
  fill({}, false);
}

void TeamFields::fill(const TeamRecord& record, bool isTeam) {
  m_hasTeam = isTeam;
  // Bare texts, past the limits.
  m_abbreviation->setText(toQt(record.abbreviation));
  m_category->setText(toQt(record.category));
  m_name->setText(toQt(record.name));
  for (QLineEdit* field : {m_category, m_name})
    field->setCursorPosition(0); // the beginning of a long one is in sight
  for (std::size_t i = 0; i < m_rules.size(); ++i)
    m_rules[i]->setText(toQt(record.*kRules[i].rule));
  m_isMain->setChecked(record.isMain);
  m_colour = record.colour();
  showColour();
}

void TeamFields::setEditable(bool isEditable) {
  m_save->setEnabled(isEditable);
  m_otherColour->setEnabled(isEditable);
  m_swatches->setEnabled(isEditable);
}

void TeamFields::takeStoredForm() {
  for (QLineEdit* field : {m_category, m_abbreviation, m_name})
    field->setText(toQt(codepage::storedForm(withoutCommas(fromQt(field->text())))));
}

void TeamFields::focusAbbreviation() {
  m_abbreviation->setFocus(Qt::OtherFocusReason);
}

void TeamFields::focusName() {
  m_name->setFocus(Qt::OtherFocusReason);
}

QColor TeamFields::colour() const {
  return colourOf(m_colour);
}

void TeamFields::setColour(const QColor& colour) {
  m_colour = storedColour(colour);
  showColour();
}

void TeamFields::showColour() {
  const QColor shown = colour();
  m_band->setColour(m_hasTeam ? shown : QColor());
  m_swatches->showColour(m_hasTeam ? shown : QColor());
  const QColor text = textOn(shown);
  const QLocale locale = localeOf(m_texts.language());
  const QString measured = locale.toString(contrast(text, shown), 'f', 1);
  const Text words = text == QColor(Qt::white) ? Text::WhiteText : Text::BlackText;
  m_contrast->setText(m_hasTeam ? toQt(m_texts.withPlaceholder(words, fromQt(measured))) : QString());
  QPixmap swatch(kSwatch, kSwatch);
  swatch.fill(shown);
  m_otherColour->setIcon(swatch);
  emit coloured();
}

void TeamFields::applyMeasure() {
  const Measure& measure = Theme::measure();
  const int side = measure(14);
  m_groups->setContentsMargins(side, measure(8), side, measure(8));
  m_groups->setSpacing(measure(14));
  m_band->applyMeasure();
  m_abbreviation->setMinimumWidth(measure(96));
  m_category->setMinimumWidth(measure(80));
  m_name->setMinimumWidth(measure(140));
  for (QLineEdit* field : m_rules)
    field->setMinimumWidth(measure(56));
  for (QGridLayout* fields : findChildren<QGridLayout*>())
    fields->setVerticalSpacing(measure(2));
  showColour();
}

void TeamFields::place(int room) {
  const QMargins margins = m_groups->contentsMargins();
  int need = margins.left() + margins.right();
  for (int i = 0; i < m_groups->count(); ++i)
    need += m_groups->itemAt(i)->minimumSize().width() + (i > 0 ? m_groups->spacing() : 0);
  const bool fits = need <= room;
  m_groups->setDirection(fits ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  m_line->setFrameShape(fits ? QFrame::VLine : QFrame::HLine);
}

} // namespace hooptab
