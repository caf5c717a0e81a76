#include "live/frmGAMEOVER.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/GameDetails.h"
#include "storage/Placeholders.h"
#include "storage/cinifile.h"
#include "storage/codepage.h"

#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolTip>

#include <algorithm>

namespace hooptab {

namespace {

constexpr QSize kNotesSize(420, 130);
constexpr int kMargin = 16;
constexpr int kGap = 8;

} // namespace

frmGAMEOVER::frmGAMEOVER(const GameDetails& details, const Texts& texts, Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), m_texts(texts), m_dialogs(dialogs), m_isFinished(details.isFinished),
      m_notesBefore(details.notes), m_lastNotes(toQt(details.notes)), m_notes(new QPlainTextEdit(this)),
      m_length(new PlainLabel(this)) {
  setObjectName(QStringLiteral("frmGAMEOVER"));
  setTextNumber(*this, Text::GameOverTitle);
  setModal(true);
  m_notes->setObjectName(QStringLiteral("txtNOTES"));
  m_notes->setPlainText(m_lastNotes);
  m_notes->setTabChangesFocus(true);
  m_notes->setMinimumSize(kNotesSize);
  m_notes->setReadOnly(m_isFinished); // opening the game again leaves its notes as they were
  m_length->setObjectName(QStringLiteral("lblLENGTH"));
  m_length->setForegroundRole(QPalette::PlaceholderText);
  m_length->setAlignment(Qt::AlignRight);
  m_length->setVisible(!m_isFinished);

  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kGap);
  layout->addWidget(captionFor(*m_notes, Text::GameNotes), 0, 0);
  layout->addWidget(m_length, 0, 1);
  layout->addWidget(m_notes, 1, 0, 1, 2);
  const auto addButton = [&](const char* name, Text text, Choice choice, int column) {
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    setTextNumber(*button, text);
    setToolTipNumber(*button, text);
    connect(button, &QPushButton::clicked, this, [this, choice] { choose(choice); });
    layout->addWidget(button, 2, column);
    return button;
  };
  if (m_isFinished) {
    addButton("cmd1", Text::OpenGame, Choice::Reopen, 0);
    addButton("cmd2", Text::Close, Choice::None, 1)->setDefault(true);
  } else {
    addButton("cmd1", Text::SaveAndClose, Choice::Close, 0);
    addButton("cmd2", Text::SaveAndContinue, Choice::Continue, 1)->setDefault(true);
  }
  connect(m_notes, &QPlainTextEdit::textChanged, this, &frmGAMEOVER::limitNotes);
  relabel(*this, texts);
  giveMnemonics(*this);
  showLength();
  m_notes->moveCursor(QTextCursor::End);
  m_notes->setFocus();
}

std::string frmGAMEOVER::notes() const {
  return fromQt(m_notes->toPlainText().replace(u'\n', u' '));
}

// Refuses what the file would not give back. Notes that were too long from the beginning can be shortened.
void frmGAMEOVER::limitNotes() {
  const auto bytes = [](const std::string& text) { return codepage::fromUtf8(text).size(); };
  if (bytes(notes()) > std::max(cinifile::kLongestValue, bytes(fromQt(m_lastNotes)))) {
    const int end = m_notes->textCursor().position();
    const auto added = static_cast<int>(m_notes->toPlainText().size() - m_lastNotes.size());
    const QSignalBlocker blocker(m_notes);
    m_notes->setPlainText(m_lastNotes);
    QTextCursor cursor = m_notes->textCursor();
    cursor.setPosition(std::clamp(end - added, 0, static_cast<int>(m_lastNotes.size())));
    m_notes->setTextCursor(cursor);
    QToolTip::showText(m_notes->mapToGlobal(m_notes->cursorRect().bottomLeft()),
                       caption(m_texts, Text::NoMoreFits), m_notes);
  }
  m_lastNotes = m_notes->toPlainText();
  showLength();
}

void frmGAMEOVER::showLength() {
  const std::string bytes = std::to_string(codepage::fromUtf8(notes()).size());
  const std::string most = std::to_string(cinifile::kLongestValue);
  m_length->setText(toQt(withPlaceholders(m_texts.text(Text::CountOf), bytes, most)));
}

void frmGAMEOVER::choose(Choice choice) {
  m_choice = choice;
  if (choice == Choice::None)
    QDialog::reject();
  else
    accept();
}

void frmGAMEOVER::reject() {
  if (!m_isFinished && notes() != m_notesBefore) {
    switch (m_dialogs.askToSave(this, caption(m_texts, Text::WarningTitle),
                                caption(m_texts, Text::NotesNotSaved))) {
    case SaveChoice::Save: return choose(Choice::Continue);
    case SaveChoice::Stay: return;
    case SaveChoice::Discard: break;
    }
  }
  choose(Choice::None);
}

} // namespace hooptab
