#include "keypad/frmConfiguration.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "keypad/KeyCodes.h"
#include "keypad/KeyField.h"
#include "keypad/KeySheet.h"
#include "keypad/KeypadPicture.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QPushButton>
#include <QShortcut>
#include <QTabWidget>

namespace hooptab {

namespace {

constexpr int kKeyWidth = 130;
constexpr int kLetterWidth = 48;
constexpr int kLetterColumns = 2;
constexpr int kGap = 4;
constexpr int kMargin = 14;

} // namespace

frmConfiguration::frmConfiguration(const KeypadSetup& setup, Settings& settings, const Texts& texts,
                                   Dialogs& dialogs, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_texts(texts), m_dialogs(dialogs), m_saved(setup),
      m_setup(setup) {
  setObjectName(QStringLiteral("frmConfiguration"));
  setModal(true);
  setTextNumber(*this, Text::KeypadTitle);
  auto* pages = new QTabWidget(this);
  pages->addTab(makeKeys(), {});
  pages->addTab(makeLetters(), {});
  m_notice = noticeLabel(this);
  m_notice->setObjectName(QStringLiteral("lblNOTICE"));
  m_notice->setWordWrap(true);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(pages, 1);
  layout->addWidget(makeOptions());
  layout->addWidget(m_notice);
  layout->addLayout(makeButtons());
  auto* language = new QShortcut(QKeySequence(Qt::Key_F12), this);
  connect(language, &QShortcut::activated, this, &frmConfiguration::languageAsked);
  relabelWindow();
  m_keys.front()->setFocus();
}

QWidget* frmConfiguration::makeKeys() {
  auto* page = new QWidget(this);
  setTabTextNumber(*page, Text::KeysPage);
  auto* instruction = new PlainLabel(page);
  instruction->setWordWrap(true);
  setTextNumber(*instruction, Text::KeypadInstruction);
  auto* boxes = new QGridLayout;
  boxes->setVerticalSpacing(kGap);
  boxes->setColumnStretch(0, 1);
  for (std::size_t place = 0; place < kKeypadActions; ++place) {
    const auto action = static_cast<KeypadAction>(place);
    auto* field = new KeyField(QStringLiteral("txtTOUCHE(%1)").arg(place), page);
    field->setFixedWidth(kKeyWidth);
    const int row = static_cast<int>(place);
    boxes->addWidget(captionFor(*field, wordsOf(action).hint), row, 0);
    setToolTipNumber(*field, Text::FieldHint);
    boxes->addWidget(field, row, 1);
    connect(field, &KeyField::keyPressed, this, [this, action](int code) { bind(action, code); });
    connect(field, &KeyField::focused, this, [this, action] {
      m_current = action;
      m_picture->showKeys(m_setup, m_texts, m_current);
    });
    m_keys[place] = field;
  }
  m_picture = new KeypadPicture(page);
  connect(m_picture, &KeypadPicture::keyClicked, this, [this](int code) {
    if (m_current)
      bind(*m_current, code);
  });
  auto* parts = new QHBoxLayout;
  parts->setSpacing(2 * kMargin);
  parts->addLayout(boxes, 1);
  parts->addWidget(m_picture, 0, Qt::AlignCenter);
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(instruction);
  layout->addLayout(parts);
  layout->addStretch();
  return page;
}

QWidget* frmConfiguration::makeLetters() {
  auto* page = new QWidget(this);
  setTabTextNumber(*page, Text::LettersPage);
  auto* instruction = new PlainLabel(page);
  instruction->setWordWrap(true);
  setTextNumber(*instruction, Text::LetterInstruction);
  auto* boxes = new QGridLayout;
  boxes->setHorizontalSpacing(kMargin);
  boxes->setColumnStretch(2 * kLetterColumns, 1);
  constexpr int kRows = static_cast<int>(LetterAssignment::kCount + 1) / kLetterColumns;
  for (std::size_t place = 0; place < LetterAssignment::kCount; ++place) {
    const std::size_t what = place + LetterAssignment::kFirst;
    auto* field = new KeyField(QStringLiteral("txtLETTRE(%1)").arg(what), page);
    field->setFixedWidth(kLetterWidth);
    field->setAlignment(Qt::AlignCenter);
    auto* words = new PlainLabel(page);
    words->setBuddy(field);
    const int row = static_cast<int>(place) % kRows;
    const int column = 2 * (static_cast<int>(place) / kRows);
    boxes->addWidget(words, row, column);
    boxes->addWidget(field, row, column + 1);
    connect(field, &KeyField::keyPressed, this, [this, what](int code) {
      if (keys::isLetter(code))
        m_setup.letters.bind(what, static_cast<char>(code));
      showSetup();
    });
    m_letters[place] = field;
    m_letterCaptions[place] = words;
  }
  auto* layout = new QVBoxLayout(page);
  layout->addWidget(instruction);
  layout->addLayout(boxes);
  layout->addStretch();
  return page;
}

QWidget* frmConfiguration::makeOptions() {
  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  const auto addOption = [&](const char* name, Text text, bool KeypadSetup::*option) {
    auto* box = new QCheckBox(row);
    box->setObjectName(QLatin1String(name));
    setTextNumber(*box, text);
    connect(box, &QCheckBox::toggled, this, [this, option](bool on) {
      m_setup.*option = on;
      showSetup();
    });
    layout->addWidget(box);
    return box;
  };
  m_flashes = addOption("chkECLAIR", Text::FlashOption, &KeypadSetup::flashes);
  m_sounds = addOption("chkSON", Text::SoundOption, &KeypadSetup::sounds);
  layout->addStretch();
  return row;
}

QLayout* frmConfiguration::makeButtons() {
  const auto button = [this](const char* name, Text text, Text hint) {
    auto* made = new QPushButton(this);
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false); // Enter is a key that is bound here
    setTextNumber(*made, text);
    setToolTipNumber(*made, hint);
    return made;
  };
  QPushButton* defaults = button("cmdDEFAUT", Text::Defaults, Text::DefaultsHint);
  m_save = button("Command1", Text::Save, Text::SaveHint);
  QPushButton* close = button("Command2", Text::CloseButton, Text::CloseHint);
  connect(defaults, &QPushButton::clicked, this, [this] {
    m_setup = KeypadSetup();
    showSetup();
  });
  connect(m_save, &QPushButton::clicked, this, &frmConfiguration::save);
  connect(close, &QPushButton::clicked, this, &frmConfiguration::reject);
  auto* row = new QHBoxLayout;
  row->addWidget(defaults);
  row->addStretch();
  row->addWidget(m_save);
  row->addWidget(close);
  return row;
}

QString frmConfiguration::wordsOfLetter(std::size_t what) const {
  return what == LetterAssignment::kMiss ? caption(m_texts, Text::MissedShot)
                                         : toQt(wordsOfAction(static_cast<KeypadAction>(what), m_texts));
}

void frmConfiguration::relabelWindow() {
  relabel(*this, m_texts);
  giveMnemonics(*this);
  for (std::size_t place = 0; place < LetterAssignment::kCount; ++place) {
    const QString words = wordsOfLetter(place + LetterAssignment::kFirst);
    m_letterCaptions[place]->setText(withoutMnemonic(words));
    const QString hint = toQt(m_texts.withPlaceholder(Text::LetterFor, fromQt(words)));
    m_letters[place]->setToolTip(hint);
    m_letters[place]->setAccessibleName(hint);
  }
  showSetup();
}

void frmConfiguration::bind(KeypadAction action, int code) {
  m_setup.keys.bind(action, code);
  showSetup();
}

void frmConfiguration::showSetup() {
  for (std::size_t place = 0; place < kKeypadActions; ++place) {
    const auto action = static_cast<KeypadAction>(place);
    m_keys[place]->showKey(toQt(m_setup.keys.text(action)), m_setup.isTwice(action));
  }
  for (std::size_t place = 0; place < LetterAssignment::kCount; ++place) {
    const std::size_t what = place + LetterAssignment::kFirst;
    m_letters[place]->showKey(QString(QLatin1Char(m_setup.letters.letter(what))),
                              m_setup.isLetterTwice(what));
  }
  m_flashes->setChecked(m_setup.flashes);
  m_sounds->setChecked(m_setup.sounds);
  m_picture->showKeys(m_setup, m_texts, m_current);
  const bool canBeSaved = m_setup.canBeSaved();
  m_save->setEnabled(canBeSaved);
  showNotice(canBeSaved);
}

void frmConfiguration::showNotice(bool canBeSaved) {
  const bool losesShots = keys::digit(m_setup.keys.code(KeypadAction::A), true).has_value();
  m_notice->setText(!canBeSaved  ? caption(m_texts, Text::KeysTwice)
                    : losesShots ? caption(m_texts, Text::KeyBeginsNoShot)
                                 : QString());
  m_notice->setVisible(!canBeSaved || losesShots);
}

bool frmConfiguration::save() {
  if (!m_setup.canBeSaved())
    return false;
  const bool isOnDisk = m_settings.saveKeypadKeyTexts(m_setup.keys.texts());
  m_saved = m_setup;
  emit applied();
  if (!isOnDisk)
    m_dialogs.warn(this, caption(m_texts, Text::WarningTitle),
                   toQt(m_texts.withPlaceholder(Text::NotSaved, m_settings.path())));
  return true;
}

void frmConfiguration::reject() {
  if (m_setup != m_saved) {
    const SaveChoice answer = m_dialogs.askToSave(this, windowTitle(), caption(m_texts, Text::AskToSaveKeys));
    if (answer == SaveChoice::Stay || (answer == SaveChoice::Save && !save()))
      return;
  }
  QDialog::reject();
}

} // namespace hooptab
