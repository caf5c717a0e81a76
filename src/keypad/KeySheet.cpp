#include "keypad/KeySheet.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "keypad/KeyCodes.h"
#include "keypad/KeypadPicture.h"
#include "keypad/QtKeys.h"
#include "storage/Placeholders.h"

#include <QGridLayout>
#include <QMouseEvent>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kWidth = 860;

QString row(const QString& left, const QString& right) {
  return QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>")
      .arg(left.toHtmlEscaped(), right.toHtmlEscaped());
}

} // namespace

std::string wordsOfAction(KeypadAction action, const Texts& texts) {
  constexpr Text kWords[] = {Text::ClockKey,         Text::MainTeamKey,  Text::SecondaryTeamKey,
                             Text::ClearKey,         Text::PersonalFoul, Text::TechnicalFoul,
                             Text::BlockedShot,      Text::Steal,        Text::DefensiveRebound,
                             Text::OffensiveRebound, Text::Turnover,     Text::Assist,
                             Text::ComesIn,          Text::Leaves,       Text::AllOut,
                             Text::OtherOne,         Text::OtherTwo};
  static_assert(std::size(kWords) == kKeypadActions);
  return std::string(texts.text(kWords[static_cast<std::size_t>(action)]));
}

KeySheet::KeySheet(const Texts& texts, QWidget* parent) : QFrame(parent), m_texts(texts) {
  setObjectName(QStringLiteral("KeySheet"));
  setFrameShape(QFrame::Box);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
  const auto text = [this](Text which) {
    auto* label = new PlainLabel(this);
    label->setWordWrap(true);
    setTextNumber(*label, which);
    return label;
  };
  auto* title = text(Text::KeysTitle);
  Theme::setType(*title, Type::Title);
  m_off = text(Text::KeypadIsOff);
  m_picture = new KeypadPicture(this);
  m_picture->setAttribute(Qt::WA_TransparentForMouseEvents);
  m_letters = new PlainLabel(this);
  m_letters->setTextFormat(Qt::RichText); // of our own texts and letters alone
  m_letters->setObjectName(QStringLiteral("lblLETTERS"));
  m_letters->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  m_letters->setWordWrap(true);

  auto* grid = new QGridLayout(this);
  grid->setHorizontalSpacing(24);
  grid->addWidget(title, 0, 0);
  auto* howToClose = text(Text::HowToClose);
  howToClose->setWordWrap(false);
  grid->addWidget(howToClose, 0, 1, Qt::AlignRight);
  grid->addWidget(m_off, 1, 0, 1, 2);
  int place = 0;
  for (const Text head : {Text::OnKeypad, Text::OnMainKeyboard}) {
    auto* label = text(head);
    Theme::setType(*label, Type::Body, QFont::Bold);
    grid->addWidget(label, 2, place++);
  }
  grid->addWidget(m_picture, 3, 0, Qt::AlignTop | Qt::AlignHCenter);
  grid->addWidget(m_letters, 3, 1);
  grid->addWidget(text(Text::FollowUps), 4, 0, 1, 2);
  grid->addWidget(text(Text::SeveralAtOnce), 5, 0, 1, 2);
  auto* league = new PlainLabel(this); // its keys are in no table of letters
  league->setObjectName(QStringLiteral("lblLEAGUE"));
  league->setWordWrap(true);
  m_league = league;
  grid->addWidget(league, 6, 0, 1, 2);
  Theme::setType(*m_off, Type::Body, QFont::Bold);
  hide();
}

void KeySheet::showSetup(const KeypadSetup& setup, bool keypadIsActive) {
  relabel(*this, m_texts);
  m_off->setVisible(!keypadIsActive);
  QPalette red = palette();
  red.setColor(QPalette::WindowText, Theme::missed());
  m_off->setPalette(red);
  m_picture->showKeys(setup, m_texts);
  m_league->setText(toQt(withPlaceholders(m_texts.text(Text::LeagueKeys), "Ctrl+← →", "Ctrl+↑")));
  const auto sentence = [this](Text which, const QString& part) {
    return toQt(m_texts.withPlaceholder(which, fromQt(part)));
  };
  const auto letter = [&setup](std::size_t what) { return QString(QLatin1Char(setup.letters.letter(what))); };
  QStringList rows;
  for (std::size_t what = LetterAssignment::kFirst; what < LetterAssignment::kMiss; ++what)
    rows << row(letter(what), toQt(wordsOfAction(static_cast<KeypadAction>(what), m_texts)));
  rows << row(letter(LetterAssignment::kMiss), caption(m_texts, Text::MissedShot));
  const auto ofShots = [this](const QString& words) {
    return toQt(
        withPlaceholders(m_texts.text(Text::SubjectAndWords), m_texts.text(Text::Shots), fromQt(words)));
  };
  const auto exchange = [this](const QString& out, const QString& in) {
    return toQt(withPlaceholders(m_texts.text(Text::ExchangeHint), fromQt(out), fromQt(in)));
  };
  const auto escaped = [](const QStringList& lines) {
    return lines.join(QLatin1Char('\n')).toHtmlEscaped().replace(u'\n', QLatin1String("<br>"));
  };
  const KeypadAssignment& bound = setup.keys;
  const QStringList line = {caption(m_texts, Text::LineForm),
                            ofShots(sentence(Text::LineShot, letter(LetterAssignment::kMiss))),
                            exchange(letter(static_cast<std::size_t>(KeypadAction::OUT)),
                                     letter(static_cast<std::size_t>(KeypadAction::IN)))};
  QStringList keypad = {caption(m_texts, Text::KeypadForm),
                        ofShots(sentence(Text::KeypadShot, keyName(bound.code(KeypadAction::A), m_texts)))};
  const int out = bound.code(KeypadAction::OUT);
  const int in = bound.code(KeypadAction::IN);
  const auto isMiddleKey = [](int code) { return code != 0 && !keys::digit(code, true); };
  if (isMiddleKey(out) && isMiddleKey(in))
    keypad << exchange(keyName(out, m_texts), keyName(in, m_texts));
  // Two columns of letters side by side.
  QString table = QStringLiteral("<p>%1</p><table><tr><td><table>").arg(escaped(line));
  const qsizetype half = (rows.size() + 1) / 2;
  table += rows.mid(0, half).join(QString()) + QLatin1String("</table></td><td width=24></td><td><table>") +
           rows.mid(half).join(QString()) + QLatin1String("</table></td></tr></table>");
  table += QStringLiteral("<p>%1</p><p>%2</p>")
               .arg(caption(m_texts, Text::LineKeys).toHtmlEscaped(),
                    caption(m_texts, Text::ShotKinds).toHtmlEscaped());
  table += QStringLiteral("<p><b>%1</b><br>%2</p>")
               .arg(caption(m_texts, Text::OnKeypad).toHtmlEscaped(), escaped(keypad));
  m_letters->setText(table);

  const int width = std::min(kWidth, parentWidget()->width());
  resize(width, std::min(layout()->totalHeightForWidth(width), parentWidget()->height()));
  move((parentWidget()->width() - this->width()) / 2, (parentWidget()->height() - height()) / 2);
  raise();
  show();
}

void KeySheet::mousePressEvent(QMouseEvent* event) {
  event->accept();
  hide();
}

} // namespace hooptab
