#include "formula/frmRATING.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "formula/FormulaCheck.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace hooptab {

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kFormulaWidth = 520;
constexpr std::size_t kLongestName = 8; // bytes of the code page

// What a good player does in a game.
RatedNumbers sampleLine() {
  RatedNumbers line;
  line.box.seconds = 28 * 60 + 30;
  for (const auto& [counter, count] : {std::pair(Counter::FGM, 6),
                                       {Counter::FGA, 11},
                                       {Counter::F3M, 2},
                                       {Counter::F3A, 5},
                                       {Counter::FTM, 3},
                                       {Counter::FTA, 4},
                                       {Counter::Ast, 5},
                                       {Counter::OR, 2},
                                       {Counter::DR, 6},
                                       {Counter::ST, 1},
                                       {Counter::BS, 1},
                                       {Counter::TO, 3},
                                       {Counter::PF, 2}})
    line.box.counters.counts[static_cast<std::size_t>(counter)] = count;
  line.extras = PlayerExtras{4, 1};
  line.plusMinus = 7;
  return line;
}

// "21 PTS, 8 TR, 5 AST, 3 TO": enough to reckon a short formula oneself.
QString sampleWords(const RatedNumbers& line) {
  return QStringLiteral("%1 PTS, %2 TR, %3 AST, %4 TO")
      .arg(line.box.points())
      .arg(line.box.rebounds())
      .arg(line.box.counters[Counter::Ast])
      .arg(line.box.counters[Counter::TO]);
}

} // namespace

frmRATING::frmRATING(Settings& settings, const FormulaReader& reader, const Texts& texts, Dialogs& dialogs,
                     QWidget* parent)
    : QDialog(parent), m_settings(settings), m_reader(reader), m_texts(texts), m_dialogs(dialogs),
      m_formula(new QLineEdit(toQt(settings.ownRating.formula), this)),
      m_name(new QLineEdit(toQt(settings.ownRating.name), this)), m_names(new PlainLabel(this)),
      m_example(new PlainLabel(this)) {
  setObjectName(QStringLiteral("frmRATING"));
  setModal(true);
  setTextNumber(*this, Text::OwnRatingGroup);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kGap);
  layout->addLayout(makeFields());
  layout->addStretch();
  layout->addLayout(makeButtons());
  connect(m_formula, &QLineEdit::textChanged, this, &frmRATING::showReading);
  auto* language = new QShortcut(QKeySequence(Qt::Key_F12), this);
  connect(language, &QShortcut::activated, this, &frmRATING::languageAsked);
  selectOnFocus(*this);
  relabelWindow();
  m_formula->setFocus();
}

QLayout* frmRATING::makeFields() {
  m_formula->setObjectName(QStringLiteral("txtFORMULE"));
  m_formula->setMinimumWidth(kFormulaWidth);
  m_name->setObjectName(QStringLiteral("txtTITRE"));
  limitField(*m_name, m_texts, kLongestName);
  m_example->setObjectName(QStringLiteral("lblEXEMPLE"));
  m_names->setObjectName(QStringLiteral("lblNOMS"));
  for (QLabel* label : {m_example, m_names}) {
    label->setWordWrap(true);
    label->setMinimumWidth(kFormulaWidth);
  }
  auto* hint = captionFor(*m_formula, Text::OwnRatingHint);
  hint->setWordWrap(true);
  auto* name = new QHBoxLayout;
  name->addWidget(captionFor(*m_name, Text::OwnRatingName));
  name->addWidget(m_name);
  name->addStretch();
  auto* fields = new QVBoxLayout;
  fields->setSpacing(kGap);
  fields->addWidget(hint);
  fields->addWidget(m_formula);
  fields->addWidget(m_example);
  fields->addWidget(m_names);
  fields->addLayout(name);
  return fields;
}

QLayout* frmRATING::makeButtons() {
  m_save = new QPushButton(this);
  m_save->setObjectName(QStringLiteral("cmdENREGISTRER"));
  m_save->setDefault(true);
  setTextNumber(*m_save, Text::Save);
  auto* cancel = new QPushButton(this);
  cancel->setObjectName(QStringLiteral("cmdANNULER"));
  setTextNumber(*cancel, Text::Cancel);
  connect(m_save, &QPushButton::clicked, this, &frmRATING::save);
  connect(cancel, &QPushButton::clicked, this, &frmRATING::reject);
  auto* row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(m_save);
  row->addWidget(cancel);
  return row;
}

void frmRATING::relabelWindow() {
  relabel(*this, m_texts);
  giveMnemonics(*this);
  QStringList names;
  for (const RatingName& name : ratingNames())
    names << toQt(name.name);
  for (const FormulaFunction& function : formulaFunctions())
    names << toQt(function.name) + QStringLiteral("( )");
  m_names->setText(
      toQt(m_texts.withPlaceholder(Text::OwnRatingNames, fromQt(names.join(QStringLiteral(" "))))));
  showReading();
}

void frmRATING::showReading() {
  const FormulaReading reading = m_reader(fromQt(m_formula->text()));
  const std::optional<double> value = ownRatingOf(reading.rating, sampleLine());
  m_save->setEnabled(!reading.problem);
  if (reading.problem)
    m_example->setText(toQt(wordsOf(*reading.problem, m_texts)));
  else if (!reading.rating)
    m_example->clear();
  else if (!value)
    m_example->setText(caption(m_texts, Text::OwnRatingNoNumber));
  else
    m_example->setText(toQt(m_texts.withPlaceholder(
        Text::OwnRatingExample, fromQt(sampleWords(sampleLine())) + " → " + ownRatingText(value))));
  const bool isGood = !reading.problem && (value || !reading.rating);
  QPalette palette = this->palette();
  palette.setColor(QPalette::WindowText, isGood ? Theme::muted() : Theme::missed());
  m_example->setPalette(palette);
}

void frmRATING::save() {
  const OwnRatingChoice choice = {fromQt(m_formula->text().trimmed()), fromQt(m_name->text().trimmed())};
  if (!m_settings.saveOwnRating(choice))
    m_dialogs.warn(this, caption(m_texts, Text::WarningTitle),
                   toQt(m_texts.withPlaceholder(Text::NotSaved, m_settings.path())));
  accept();
}

} // namespace hooptab
