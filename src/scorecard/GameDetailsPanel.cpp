#include "scorecard/GameDetailsPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "settings/ChoiceTexts.h"

#include <QGridLayout>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace hooptab {

namespace {

constexpr int kGap = 16;

void setField(QLineEdit& field, const QString& text) {
  field.setText(text);
  field.setCursorPosition(0);
  field.setToolTip(text);
}

// 0 is no limit.
QString limitText(int limit) {
  return limit > 0 ? QString::number(limit) : QStringLiteral("–");
}

} // namespace

GameDetailsPanel::GameDetailsPanel(QWidget* parent) : QWidget(parent), m_layout(new QGridLayout(this)) {
  m_layout->setContentsMargins(10, 8, 10, 8);
  m_layout->setVerticalSpacing(2);
  m_layout->setHorizontalSpacing(8);
  m_date = addField("txtDATE", Text::Date, 0, 0);
  m_type = addField("txtTYPEPARTIE", Text::GameType, 1, 0);
  m_place = addField("txtENDROIT", Text::Location, 2, 0);
  m_statistician = addField("txtSAISIEPAR", Text::Statistician, 3, 0);
  m_periods = addField("txtNBPER", Text::PeriodCount, 0, 3);
  m_minutes = addField("txtMINPER", Text::MinutesPerPeriod, 1, 3);
  m_bonus = addField("txtBONUSAPRES", Text::BonusAfter, 2, 3);
  m_personalFouls = addField("txtPFMAX", Text::FoulLimit, 3, 3);
  m_technicalFouls = addField("txtTFMAX", Text::TechnicalLimit, 4, 3);

  auto* caption = new PlainLabel(this);
  caption->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*caption, Text::GameNotes);
  m_notes = new QPlainTextEdit(this);
  m_notes->setObjectName(QStringLiteral("txtNOTES"));
  m_notes->setReadOnly(true);
  m_notes->setTabChangesFocus(true);
  setAccessibleNumber(*m_notes, Text::GameNotes);
  caption->setBuddy(m_notes);
  m_layout->addWidget(caption, 0, 6);
  m_layout->addWidget(m_notes, 1, 6, 5, 1);
  m_layout->setColumnMinimumWidth(2, kGap);
  m_layout->setColumnMinimumWidth(5, kGap);
  m_layout->setColumnStretch(1, 3);
  m_layout->setColumnStretch(4, 1);
  m_layout->setColumnStretch(6, 4);
  m_layout->setRowStretch(5, 1);
}

QLineEdit* GameDetailsPanel::addField(const char* name, Text text, int row, int column) {
  auto* label = new PlainLabel(this);
  label->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*label, text);
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  field->setReadOnly(true);
  field->setFrame(false);
  field->setStyleSheet(QStringLiteral("background: transparent")); // to be read, not to be filled in
  setAccessibleNumber(*field, text);
  label->setBuddy(field);
  m_layout->addWidget(label, row, column);
  m_layout->addWidget(field, row, column + 1);
  return field;
}

void GameDetailsPanel::showDetails(const GameDetails& details, const Texts& texts) {
  setField(*m_type, caption(texts, textBehind(kFirstGameTypeText, gameTypeOf(details.type))));
  setField(*m_date, toQt(details.date));
  setField(*m_place, toQt(details.place));
  setField(*m_statistician, toQt(details.statistician));
  setField(*m_periods, limitText(details.periods));
  setField(*m_minutes, limitText(details.minutesPerPeriod));
  setField(*m_bonus, limitText(details.bonus));
  setField(*m_personalFouls, limitText(details.personalFoulLimit));
  setField(*m_technicalFouls, limitText(details.technicalFoulLimit));
  const QString notes = toQt(details.notes);
  if (m_notes->toPlainText() != notes)
    m_notes->setPlainText(notes);
}

} // namespace hooptab
