#include "teams/PlayerEditor.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "settings/ChoiceTexts.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>

namespace hooptab {

namespace {

constexpr int kGap = 8;
constexpr int kLongestPosition = 8; // letters, of its name
constexpr int kButtonRow = 36;

constexpr struct {
  const char* name;
  Text text;
  std::string PlayerFields::*part;
  int stretch;
} kFreeTexts[] = {
    {"txtJOUEURNOM", Text::PlayerName, &PlayerFields::name, 5},
    {"txtGRANDEUR", Text::Height, &PlayerFields::height, 2},
    {"txtPOIDS", Text::Weight, &PlayerFields::weight, 2},
    {"txtAGE", Text::Age, &PlayerFields::age, 1},
    {"txtGRADE", Text::Grade, &PlayerFields::grade, 2},
};

} // namespace

PlayerEditor::PlayerEditor(const TeamSheet& sheet, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_sheet(sheet), m_texts(texts), m_number(nullptr), m_position(nullptr),
      m_announcement(new PlainLabel(this)) {
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setHorizontalSpacing(kGap);
  layout->setVerticalSpacing(2);
  m_number = addField(*layout, 0, "txtJOUEURNO", Text::Number);
  // A validator, which lets a longer number from a file changed by hand be shown whole.
  m_number->setValidator(
      new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d{0,3}")), m_number));
  m_position = new QComboBox(this); // behind the number: the tab key goes in the order of making
  m_position->setObjectName(QStringLiteral("cmbPOSITION"));
  m_position->setMinimumContentsLength(kLongestPosition);
  layout->addWidget(captionFor(*m_position, Text::Position), 0, 1);
  setToolTipNumber(*m_position, Text::NoPositionChosen);
  layout->addWidget(m_position, 1, 1);
  layout->setColumnStretch(0, 1);
  layout->setColumnStretch(1, 1);
  for (std::size_t i = 0; i < m_free.size(); ++i) {
    const auto& [name, text, part, stretch] = kFreeTexts[i];
    const int column = static_cast<int>(i) + 2;
    m_free[i] = addField(*layout, column, name, text);
    layout->setColumnStretch(column, stretch);
    const auto fits = [this, part = part](const std::string& typed) {
      PlayerFields whole = fields();
      whole.*part = typed;
      return TeamSheet::fits(whole);
    };
    limitField(*m_free[i], fits, m_texts);
  }

  m_announcement->setObjectName(QStringLiteral("lblANNOUNCE"));
  m_announcement->setWordWrap(true);
  auto* add = iconButton("cmdAJOUTERJOUEUR", Text::AddOrSave, Text::AddOrSavePlayer, "", this);
  auto* clear = iconButton("cmdCLEAR", Text::ClearKey, Text::ClearPlayer, "clear", this);
  auto* remove = iconButton("cmdEFFACER", Text::DeletePlayer, Text::DeletePlayer, "delete", this);
  add->setDefault(true); // in the accent
  m_changing = {add, remove};
  auto* last = new QHBoxLayout;
  last->setSpacing(kGap);
  last->addWidget(add);
  last->addWidget(m_announcement, 1);
  last->addWidget(clear);
  last->addWidget(remove);
  layout->setRowMinimumHeight(2, kButtonRow);
  layout->addLayout(last, 2, 0, 1, 7);

  connect(add, &QPushButton::clicked, this, &PlayerEditor::addAsked);
  connect(clear, &QPushButton::clicked, this, &PlayerEditor::clearAsked);
  connect(remove, &QPushButton::clicked, this, &PlayerEditor::deleteAsked);
  connect(m_position, &QComboBox::currentIndexChanged, this, &PlayerEditor::showAnnouncement);
  auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
  escape->setContext(Qt::WidgetWithChildrenShortcut);
  connect(escape, &QShortcut::activated, this, &PlayerEditor::clearAsked);
}

QLineEdit* PlayerEditor::addField(QGridLayout& layout, int column, const char* name, Text text) {
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  layout.addWidget(captionFor(*field, text), 0, column);
  layout.addWidget(field, 1, column);
  connect(field, &QLineEdit::returnPressed, this, &PlayerEditor::addAsked);
  connect(field, &QLineEdit::textChanged, this, &PlayerEditor::showAnnouncement);
  return field;
}

PlayerFields PlayerEditor::fields() const {
  PlayerFields typed;
  typed.number = fromQt(m_number->text());
  if (m_position->currentIndex() >= 0)
    typed.position = m_position->currentData().toInt();
  for (std::size_t i = 0; i < m_free.size(); ++i)
    typed.*kFreeTexts[i].part = m_free[i] == nullptr ? std::string() : fromQt(m_free[i]->text());
  return typed;
}

void PlayerEditor::show(const PlayerFields& fields) {
  type(fields);
  m_shown = this->fields();
  showAnnouncement();
}

void PlayerEditor::type(const PlayerFields& fields) {
  m_number->setText(toQt(fields.number));
  m_position->setCurrentIndex(fields.position ? m_position->findData(*fields.position) : -1);
  for (std::size_t i = 0; i < m_free.size(); ++i)
    m_free[i]->setText(toQt(fields.*kFreeTexts[i].part));
}

bool PlayerEditor::isChanged() const {
  const PlayerFields typed = fields();
  return typed != m_shown && typed != PlayerFields();
}

void PlayerEditor::setHasTeam(bool hasTeam) {
  m_hasTeam = hasTeam;
  showAnnouncement();
}

void PlayerEditor::setEditable(bool isEditable) {
  for (QPushButton* button : m_changing)
    button->setEnabled(isEditable);
}

void PlayerEditor::focusNumber() {
  m_number->setFocus(Qt::OtherFocusReason);
  m_number->selectAll();
}

void PlayerEditor::focusOn(TeamSheet::Problem problem) {
  if (problem == TeamSheet::Problem::NoJersey)
    focusNumber();
  else if (problem == TeamSheet::Problem::NoPosition)
    m_position->setFocus(Qt::OtherFocusReason);
  else
    m_free[0]->setFocus(Qt::OtherFocusReason);
}

void PlayerEditor::showAnnouncement() {
  const PlayerFields typed = fields();
  const bool conflicts = TeamSheet::isRefused(m_sheet.target(typed).effect);
  const bool says = m_hasTeam && typed != m_shown;
  const QString words = says ? toQt(m_sheet.announcement(typed, m_texts)) : QString();
  m_announcement->setText(conflicts && says ? QStringLiteral("⚠ ") + words : words);
  m_announcement->setForegroundRole(conflicts ? QPalette::BrightText : QPalette::WindowText);
}

void PlayerEditor::relabelPanel() {
  {
    const QSignalBlocker quiet(m_position);
    const QVariant chosen = m_position->currentData();
    m_position->clear();
    for (const int index : offeredChoices(kFirstPositionText, m_texts))
      m_position->addItem(toQt(choiceName(kFirstPositionText, index, m_texts)), index);
    m_position->setCurrentIndex(chosen.isValid() ? m_position->findData(chosen) : -1);
  }
  showAnnouncement();
}

} // namespace hooptab
