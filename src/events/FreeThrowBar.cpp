#include "events/FreeThrowBar.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/EventWords.h"
#include "keypad/QtKeys.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr int kGap = 4;
constexpr int kBandMargin = 3;
constexpr double kMarkRadius = 6;
constexpr Qt::Key kMade = Qt::Key_M;
constexpr Qt::Key kMissed = Qt::Key_X;

} // namespace

// As charts and lists have them: a filled circle, a cross.
class ThrowMark : public QAbstractButton {
 public:
  ThrowMark(bool isMade, QWidget* parent) : QAbstractButton(parent), m_isMade(isMade) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
  }
  void setState(bool isNext, bool isChosen) {
    setEnabled(isNext);
    m_isChosen = isChosen;
    update();
  }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton)
      emit pressed();
  }
  void paintEvent(QPaintEvent*) override {
    constexpr double kFaint = 0.25;
    const Look& look = Theme::look();
    const QColor colour = m_isMade ? look.made : look.missed;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() || m_isChosen ? 1 : kFaint);
    painter.setPen(underMouse() && isEnabled() ? look.accent : look.edge);
    painter.setBrush(m_isChosen ? colour : look.surface);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kMarkRadius, kMarkRadius);
    const QColor ink = m_isChosen ? textOn(colour) : colour;
    const double half = Theme::measure()(6, 8);
    const QPointF middle = QRectF(rect()).center();
    if (m_isMade) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(ink);
      painter.drawEllipse(middle, half, half);
      return;
    }
    painter.setPen(QPen(ink, half / 2, Qt::SolidLine, Qt::RoundCap));
    for (const double turn : {-1.0, 1.0})
      painter.drawLine(middle + QPointF(-half, -half * turn), middle + QPointF(half, half * turn));
  }

 private:
  bool m_isMade;
  bool m_isChosen = false;
};

std::vector<DetailChip> foulChips(const Texts& texts) {
  std::vector<DetailChip> chips;
  for (const KindWord& kind : detailKinds(EventCode::SPF))
    chips.push_back({detail_key::kKind, std::string(kind.value), toQt(std::string(kind.value)),
                     toQt(texts.text(kind.text))});
  return chips;
}

FreeThrowBar::FreeThrowBar(const Texts& texts, QWidget* parent) : Bubble(parent), m_texts(texts) {
  setObjectName(QStringLiteral("FreeThrows"));
  m_title = new PlainLabel(this);
  setTextNumber(*m_title, Text::ThrowsTitle);
  Theme::setType(*m_title, Type::Name);
  m_shooter = new PlainLabel(this);
  m_shooter->setObjectName(QStringLiteral("lblSHOOTER"));
  m_shooter->setAutoFillBackground(true);
  m_shooter->setMargin(kBandMargin);
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  auto* counts = new QHBoxLayout;
  counts->setSpacing(kGap);
  for (int place = 0; place < FoulThrows::kMost; ++place) {
    Throw& one = m_throws[static_cast<std::size_t>(place)];
    one.number = new PlainLabel(this);
    one.number->setObjectName(QStringLiteral("lblTHROW(%1)").arg(place));
    one.number->setAlignment(Qt::AlignCenter);
    one.made = makeMark(place, true);
    one.missed = makeMark(place, false);
    grid->addWidget(one.number, 0, place);
    grid->addWidget(one.made, 1, place);
    grid->addWidget(one.missed, 2, place);
    auto* awarded = new QPushButton(QStringLiteral("× %1").arg(place + 1), this);
    awarded->setObjectName(QStringLiteral("cmdAWARDED(%1)").arg(place));
    awarded->setCheckable(true);
    awarded->setFocusPolicy(Qt::NoFocus);
    setToolTipNumber(*awarded, Text::HowManyThrows);
    setAccessibleNumber(*awarded, Text::HowManyThrows);
    connect(awarded, &QPushButton::pressed, this, [this, awarded, place] {
      awarded->setDown(false);
      emit awardedAsked(place + 1);
      emit clicked();
    });
    counts->addWidget(awarded);
    m_awarded[static_cast<std::size_t>(place)] = awarded;
  }
  m_kinds = new DetailChips(this);
  connect(m_kinds, &DetailChips::chosen, this, [this](std::string_view, const std::string& kind) {
    emit kindAsked(kind);
    emit clicked();
  });
  m_close = new QPushButton(this);
  m_close->setObjectName(QStringLiteral("cmdNOTHROWS"));
  m_close->setFocusPolicy(Qt::NoFocus);
  setTextNumber(*m_close, Text::NoMoreThrows);
  setToolTipNumber(*m_close, Text::NoMoreThrowsHint);
  connect(m_close, &QPushButton::pressed, this, [this] {
    m_close->setDown(false);
    emit closeAsked();
    emit clicked();
  });
  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(kGap);
  layout->addWidget(m_title);
  layout->addWidget(m_shooter);
  layout->addLayout(grid);
  layout->addLayout(counts);
  layout->addWidget(m_kinds);
  layout->addWidget(m_close);
  hide();
  qApp->installEventFilter(this);
}

FreeThrowBar::~FreeThrowBar() {
  qApp->removeEventFilter(this);
}

// It is the next throw that a press records: one that was taken is corrected in the list of events.
ThrowMark* FreeThrowBar::makeMark(int place, bool isMade) {
  auto* mark = new ThrowMark(isMade, this);
  mark->setObjectName(QStringLiteral("%1(%2)").arg(
      isMade ? QStringLiteral("cmdMADE") : QStringLiteral("cmdMISSED"), QString::number(place)));
  setToolTipNumber(*mark, isMade ? Text::ThrowMadeHint : Text::ThrowMissedHint);
  setAccessibleNumber(*mark, isMade ? Text::ThrowMadeHint : Text::ThrowMissedHint);
  connect(mark, &QAbstractButton::pressed, this, [this, isMade] {
    emit thrown(isMade);
    emit clicked();
  });
  return mark;
}

void FreeThrowBar::applyMeasure(int panel) {
  const int width = widthFor(panel);
  const Measure& measure = Theme::measure();
  const int third = (width - (FoulThrows::kMost - 1) * kGap) / FoulThrows::kMost;
  m_shooter->setFixedWidth(width);
  for (const Throw& one : m_throws) {
    one.number->setFixedWidth(third);
    one.made->setFixedSize(third, measure(40, 50));
    one.missed->setFixedSize(third, measure(34, 44));
  }
  for (QPushButton* awarded : m_awarded)
    awarded->setFixedSize(third, measure(27, 34));
  const std::vector<DetailChip> kinds = foulChips(m_texts);
  m_kinds->offer(kinds, static_cast<int>(kinds.size()), width);
}

void FreeThrowBar::open(const LiveGame& game, const FoulThrows& throws, const QRect& panel,
                        const QRect& room) {
  relabel(*this, m_texts);
  applyMeasure(panel.width());
  const auto team = throws.team();
  const RosterPlayer* who = game.game().roster[team].player(throws.shooter());
  const QString name = who == nullptr ? QString() : toQt(who->jersey + ' ' + familyName(who->name));
  const QColor colour = colourOf(game.game().details.teamColour[team]);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, textOn(colour));
  m_shooter->setPalette(colours);
  m_shooter->setText(
      m_shooter->fontMetrics().elidedText(name, Qt::ElideRight, m_shooter->width() - 2 * kBandMargin));
  m_shooter->setToolTip(name);
  for (std::size_t place = 0; place < m_throws.size(); ++place)
    m_throws[place].number->setText(QString::number(place + 1));
  m_kinds->setVisible(throws.hasKinds());
  showThrows(throws);
  if (!throws.isOpen())
    return;
  stand(panel, room);
  raise();
  show();
}

void FreeThrowBar::stand(const QRect& panel, const QRect& room) {
  placeBeside(panel, room);
}

void FreeThrowBar::showThrows(const FoulThrows& throws) {
  if (!throws.isOpen()) {
    hide();
    return;
  }
  const std::size_t taken = throws.taken().size();
  for (std::size_t place = 0; place < m_throws.size(); ++place) {
    const Throw& one = m_throws[place];
    const bool isOne = static_cast<int>(place) < throws.awarded();
    const bool isTaken = place < taken;
    one.made->setState(place == taken && isOne, isTaken && throws.taken()[place]);
    one.missed->setState(place == taken && isOne, isTaken && !throws.taken()[place]);
    one.number->setEnabled(isOne);
    m_awarded[place]->setChecked(static_cast<int>(place) + 1 == throws.awarded());
    m_awarded[place]->setEnabled(place + 1 >= taken);
  }
  m_kinds->choose(detail_key::kKind, throws.kind());
}

void FreeThrowBar::takeKey(int key) {
  if (key == Qt::Key_Escape)
    emit closeAsked();
  else
    emit thrown(key == kMade);
}

// Their letters alone begin no line of the recorder as it is at first: they are free while nothing is typed.
// The kinds have none here, for others do: a rebound without a number is the team's.
bool FreeThrowBar::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  auto* const widget = qobject_cast<QWidget*>(watched);
  if ((type != QEvent::KeyPress && type != QEvent::ShortcutOverride) || widget == nullptr || !isVisible() ||
      widget->window() != window() || QApplication::activePopupWidget() != nullptr ||
      isTextField(QApplication::focusWidget()) || (m_isTyping && m_isTyping()))
    return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  const bool isOurs = key.key() == kMade || key.key() == kMissed || key.key() == Qt::Key_Escape;
  if (!isOurs || key.modifiers() != Qt::NoModifier)
    return false;
  event->accept();
  if (type == QEvent::KeyPress && !key.isAutoRepeat())
    takeKey(key.key());
  return true;
}

} // namespace hooptab
