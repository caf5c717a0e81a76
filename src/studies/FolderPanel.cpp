#include "studies/FolderPanel.h"

#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

namespace hooptab {

FolderPanel::FolderPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_folder(new QLineEdit(this)), m_withSubfolders(new QCheckBox(this)),
      m_browse(iconButton("cmdDIR", Text::BrowseFolders, Text::BrowseFolders, "vwopen", this)),
      m_read(new QToolButton(this)), m_listed(new PlainLabel(this)), m_notRead(new QToolButton(this)),
      m_progressText(new PlainLabel(this)), m_progress(new QProgressBar(this)),
      m_cancel(iconButton("cmdCANCEL", Text::CancelReading, Text::CancelReading, "clear", this)) {
  constexpr int kBarWidth = 160;
  m_folder->setObjectName(QStringLiteral("txtDIR"));
  m_withSubfolders->setObjectName(QStringLiteral("chkSUBFOLDERS"));
  setTextNumber(*m_withSubfolders, Text::WithSubfolders);
  setToolTipNumber(*m_withSubfolders, Text::WithSubfolders);
  m_read->setObjectName(QStringLiteral("cmdREAD"));
  m_read->setIcon(icon(QStringLiteral("vwrefresh")));
  setToolTipNumber(*m_read, Text::ReadAgain);
  setAccessibleNumber(*m_read, Text::ReadAgain);
  m_listed->setObjectName(QStringLiteral("lblGAMES"));
  m_notRead->setObjectName(QStringLiteral("cmdNOTREAD"));
  m_notRead->setAutoRaise(true);
  m_notRead->hide();
  m_progressText->setObjectName(QStringLiteral("lblPROGRESS"));
  m_progress->setObjectName(QStringLiteral("progress"));
  m_progress->setFixedWidth(kBarWidth);
  m_progress->setTextVisible(false);
  for (QWidget* part : {static_cast<QWidget*>(m_progressText), static_cast<QWidget*>(m_progress),
                        static_cast<QWidget*>(m_cancel)}) { // nothing moves when work begins and ends
    QSizePolicy policy = part->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    part->setSizePolicy(policy);
  }

  auto* first = new QHBoxLayout;
  first->addWidget(captionFor(*m_folder, Text::GamesFolder));
  first->addWidget(m_folder, 1);
  first->addWidget(m_browse);
  first->addWidget(m_withSubfolders);
  first->addWidget(m_read);
  auto* second = new QHBoxLayout;
  second->addWidget(m_listed);
  second->addWidget(m_notRead);
  second->addStretch();
  second->addWidget(m_progressText);
  second->addWidget(m_progress);
  second->addWidget(m_cancel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addLayout(first);
  layout->addLayout(second);
  limitField(*m_folder, texts);
  endProgress();

  connect(m_browse, &QPushButton::clicked, this, &FolderPanel::browseAsked);
  connect(m_folder, &QLineEdit::returnPressed, this, &FolderPanel::readAsked);
  connect(m_read, &QToolButton::clicked, this, &FolderPanel::readAsked);
  connect(m_withSubfolders, &QCheckBox::clicked, this, &FolderPanel::readAsked);
  connect(m_cancel, &QPushButton::clicked, this, &FolderPanel::cancelAsked);
  connect(m_notRead, &QToolButton::clicked, this, &FolderPanel::notReadAsked);
}

QString FolderPanel::folder() const {
  return m_folder->text();
}

bool FolderPanel::withSubfolders() const {
  return m_withSubfolders->isChecked();
}

void FolderPanel::showFolder(const QString& folder, bool withSubfolders) {
  m_folder->setText(folder);
  m_withSubfolders->setChecked(withSubfolders);
}

void FolderPanel::showCounts(const QString& listed, const QString& notRead) {
  m_listed->setText(listed);
  m_notRead->setText(notRead);
  m_notRead->setVisible(!notRead.isEmpty());
}

void FolderPanel::showProgress(const QString& text, int done, int most) {
  m_progressText->setText(text);
  m_progress->setRange(0, most);
  m_progress->setValue(done);
  for (QWidget* part : {static_cast<QWidget*>(m_progressText), static_cast<QWidget*>(m_progress),
                        static_cast<QWidget*>(m_cancel)})
    part->show();
  for (QWidget* part : {static_cast<QWidget*>(m_browse), static_cast<QWidget*>(m_read),
                        static_cast<QWidget*>(m_withSubfolders)})
    part->setEnabled(false);
  m_folder->setReadOnly(true);
}

void FolderPanel::endProgress() {
  for (QWidget* part : {static_cast<QWidget*>(m_progressText), static_cast<QWidget*>(m_progress),
                        static_cast<QWidget*>(m_cancel)})
    part->hide();
  for (QWidget* part : {static_cast<QWidget*>(m_browse), static_cast<QWidget*>(m_read),
                        static_cast<QWidget*>(m_withSubfolders)})
    part->setEnabled(true);
  m_folder->setReadOnly(false);
}

} // namespace hooptab
