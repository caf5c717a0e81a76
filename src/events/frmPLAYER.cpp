#include "events/frmPLAYER.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace hooptab {

frmPLAYER::frmPLAYER(const QString& team, Add add, const Texts& texts, QWidget* parent)
    : QDialog(parent), m_add(std::move(add)), m_jersey(new QLineEdit(this)), m_name(new QLineEdit(this)),
      m_problem(new PlainLabel(this)) {
  setObjectName(QStringLiteral("frmPLAYER"));
  m_jersey->setObjectName(QStringLiteral("txtJERSEY"));
  m_jersey->setMaxLength(3);
  m_jersey->setFixedWidth(Theme::measure()(64, 80));
  m_name->setObjectName(QStringLiteral("txtPLAYER"));
  m_name->setMinimumWidth(Theme::measure()(260, 320));
  m_problem->setObjectName(QStringLiteral("lblPROBLEM"));
  m_problem->setForegroundRole(QPalette::BrightText);
  m_problem->setWordWrap(true);
  m_problem->setMinimumHeight(2 * m_problem->fontMetrics().height()); // nothing moves when it speaks
  auto* fields = new QGridLayout;
  fields->addWidget(captionFor(*m_jersey, Text::Jersey), 0, 0);
  fields->addWidget(captionFor(*m_name, Text::NameMayBeEmpty), 0, 1);
  fields->addWidget(m_jersey, 1, 0);
  fields->addWidget(m_name, 1, 1);
  auto* answer = new QPushButton(this);
  answer->setObjectName(QStringLiteral("cmdADD"));
  answer->setDefault(true);
  setTextNumber(*answer, Text::Add);
  auto* cancel = new QPushButton(this);
  cancel->setObjectName(QStringLiteral("cmdCANCEL"));
  cancel->setAutoDefault(false);
  setTextNumber(*cancel, Text::Cancel);
  connect(answer, &QPushButton::clicked, this, &frmPLAYER::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  auto* answers = new QHBoxLayout;
  answers->addStretch();
  answers->addWidget(answer);
  answers->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(fields);
  layout->addWidget(m_problem);
  layout->addLayout(answers);
  relabel(*this, texts);
  setWindowTitle(QStringLiteral("%1 – %2").arg(caption(texts, Text::AddPlayer), asTitle(team)));
}

void frmPLAYER::accept() {
  const QString problem = m_add(fromQt(m_jersey->text()), fromQt(m_name->text()));
  if (problem.isEmpty())
    return QDialog::accept();
  m_problem->setText(problem);
  m_jersey->setFocus();
  m_jersey->selectAll();
}

} // namespace hooptab
