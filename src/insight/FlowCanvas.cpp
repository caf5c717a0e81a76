#include "insight/FlowCanvas.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "game/EventWords.h"
#include "insight/GameWalk.h"
#include "insight/MarginPainter.h"
#include "insight/RotationPainter.h"
#include "insight/SignedText.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

namespace hooptab {

namespace {

constexpr double kFirstGutter = 150; // names and figures
constexpr double kFirstGutterWide = 200;
constexpr double kLastGutter = 105;
constexpr double kLastGutterWide = 140;
constexpr int kLeastRow = 13;
constexpr int kLeastDrag = 4;
constexpr int kPictureChart = 240; // heights of a picture that is saved
constexpr int kPictureRow = 18;

int px(double narrow, double wide) {
  return Theme::measure()(static_cast<int>(narrow), static_cast<int>(wide));
}
int px(double both) {
  return px(both, both);
}

void paintCard(QPainter& painter, const QRectF& box, const QWidget& widget) {
  QStyleOption option;
  option.initFrom(&widget);
  option.rect = box.toRect();
  widget.style()->drawPrimitive(QStyle::PE_FrameGroupBox, &option, &painter, &widget);
}

double leftGutter() {
  return px(kFirstGutter, kFirstGutterWide);
}
double rightGutter() {
  return px(kLastGutter, kLastGutterWide);
}
double chartHeight() {
  return px(190, 260);
}
double leastChart() {
  return px(150);
}
double cardGap() {
  return px(7, 10);
}

} // namespace

FlowCanvas::FlowCanvas(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  setObjectName(QStringLiteral("picFLOW"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void FlowCanvas::showGame(std::shared_ptr<const CountedGame> counted) {
  m_counted = std::move(counted);
  m_rows = m_counted == nullptr ? PerSide<std::vector<RotationRow>>() : rotationRows(*m_counted);
  relabelCanvas();
}

void FlowCanvas::relabelCanvas() {
  m_drawing = m_counted == nullptr ? FlowDrawing() : flowDrawing(m_counted->game, m_texts);
  m_plays = playsOf(m_drawing.flow);
  m_chances = m_counted == nullptr ? std::vector<WinStep>()
                                   : winProbabilityOf(m_drawing.flow, m_counted->game.details);
  m_stay.reset();
  m_drag.reset();
  if (m_play && *m_play >= m_plays.size())
    m_play.reset();
  setAccessibleName(caption(m_texts, Text::ScoreDifference));
  setAccessibleDescription(
      toQt(m_drawing.emptyWords.empty() ? inOneLine(flowSummary(m_drawing, m_texts)) : m_drawing.emptyWords));
  updateGeometry();
  update();
}

void FlowCanvas::showStretch(const std::optional<Stretch>& stretch) {
  m_stretch = stretch;
  update();
}

void FlowCanvas::showChances(bool areShown) {
  m_showsChances = areShown;
  update();
}

bool FlowCanvas::hasRotation() const {
  return !m_rows[Side::Visitor].empty() || !m_rows[Side::Home].empty();
}

FlowType FlowCanvas::type() const {
  return {Theme::font(Type::Small), Theme::font(Type::Small, QFont::Bold), px(10, 12) / 10.0};
}

QSize FlowCanvas::sizeHint() const {
  return {px(900, 1200), px(600, 860)};
}

QSize FlowCanvas::minimumSizeHint() const {
  const auto rows = static_cast<int>(m_rows[Side::Visitor].size() + m_rows[Side::Home].size());
  const double below = hasRotation() ? (rows + 2) * px(kLeastRow) + cardGap() + px(4) : 0;
  return {px(520), static_cast<int>(leastChart() + below)};
}

// Rows as the look has them where there is room, else as low as they can be read.
double FlowCanvas::rowHeight() const {
  const auto rows = static_cast<double>(m_rows[Side::Visitor].size() + m_rows[Side::Home].size() + 2);
  const double room = (height() - chartHeight() - cardGap() - px(4)) / rows;
  return std::clamp(std::floor(room), static_cast<double>(px(kLeastRow)), static_cast<double>(px(18, 24)));
}

RotationLayout FlowCanvas::rotation() const {
  const double row = rowHeight();
  return {{{m_rows[Side::Visitor].size(), m_rows[Side::Home].size()}},
          chartCard().bottom() + cardGap() + px(1),
          row,
          row};
}

QRectF FlowCanvas::chartCard() const {
  const auto rows = static_cast<double>(m_rows[Side::Visitor].size() + m_rows[Side::Home].size() + 2);
  const double below = hasRotation() ? rows * rowHeight() + cardGap() + px(4) : 0;
  return {0, 0, static_cast<double>(width()),
          std::clamp(height() - below, leastChart(), chartHeight() * 1.8)};
}

QRectF FlowCanvas::plot() const {
  const QFontMetricsF text(Theme::font(Type::Small));
  return chartCard().adjusted(leftGutter(), text.height() + px(8), -rightGutter() - chanceAxisWidth(),
                              -text.height() - px(6));
}

double FlowCanvas::chanceAxisWidth() const {
  if (!m_showsChances || m_chances.empty())
    return 0;
  const FlowType type = this->type();
  return MarginPainter(m_drawing, FlowPalette(Theme::look(), {}), type, MarginPainter::Detail::Full)
      .chanceAxisWidth();
}

const Stay* FlowCanvas::stayAt(QPointF place) const {
  const FlowLayout time = timeLayout();
  if (!hasRotation() || place.x() < time.plot().left || place.x() > time.plot().right())
    return nullptr;
  const auto row = rotation().rowAt(place.y());
  return row ? RotationLayout::stayAt(m_rows[row->team][row->row], time.timeAt(place.x())) : nullptr;
}

double FlowCanvas::rowBottomOf(const Stay& stay) const {
  const auto& rows = m_rows[stay.team];
  const auto row = std::ranges::find(rows, stay.player, &RotationRow::player);
  return rotation().rowTop(stay.team, static_cast<std::size_t>(row - rows.begin()) + 1);
}

std::optional<FlowCanvas::Span> FlowCanvas::shownSpan() const {
  if (m_drag)
    return Span{std::min(m_drag->from, m_drag->to), std::max(m_drag->from, m_drag->to)};
  if (!m_stretch || m_counted == nullptr || !hasTime())
    return std::nullopt;
  const ElapsedTime elapsed(m_counted->game);
  const auto& periods = m_drawing.flow.periods;
  const auto first =
      std::ranges::lower_bound(periods, m_stretch->fromPeriod, {}, &MarginFlow::Period::number);
  const int from = first == periods.end() ? m_drawing.flow.length()
                   : m_stretch->fromClock >= Stretch::kPeriodBegin || first->number != m_stretch->fromPeriod
                       ? first->begin
                       : elapsed.at(m_stretch->fromPeriod, m_stretch->fromClock);
  // A period of the stretch that has no events ends where the one before it does.
  const auto behind = std::ranges::upper_bound(periods, m_stretch->toPeriod, {}, &MarginFlow::Period::number);
  if (behind == periods.begin())
    return std::nullopt;
  const MarginFlow::Period& last = *std::prev(behind);
  const int to = last.number == m_stretch->toPeriod ? elapsed.at(last.number, m_stretch->toClock) : last.end;
  return Span{std::max(from, 0), std::min(to, m_drawing.flow.length())};
}

std::optional<FlowCanvas::Tip> FlowCanvas::tip() const {
  if (m_counted == nullptr)
    return std::nullopt;
  const Game& game = m_counted->game;
  const EventWords words(game, m_texts);
  const FlowLayout time = timeLayout();
  if (m_stay) {
    const RosterPlayer* player = game.roster[m_stay->team].player(m_stay->player);
    const Stretch stretch = stretchBetween(game, m_stay->from, m_stay->to);
    const ElapsedTime elapsed(game);
    const auto clock = [&](int at) { return Module1::clockText(elapsed.at(m_stay->period, 0) - at); };
    const std::string fromTo =
        withPlaceholders(m_texts.text(Text::StretchFromTo), clock(m_stay->from), clock(m_stay->to));
    const std::string name = player == nullptr ? "" : player->jersey + ' ' + player->name + " · ";
    return Tip{
        name + signedText(m_stay->plusMinus),
        withPlaceholders(m_texts.text(Text::StretchInPeriod), words.periodText(stretch.fromPeriod), fromTo),
        {time.x(m_stay->from), rowBottomOf(*m_stay)}};
  }
  if (!m_play)
    return std::nullopt;
  const FlowPlay& play = m_plays[*m_play];
  std::string when = words.clock(play.event) + " · " + std::to_string(play.score[Side::Visitor]) + "–" +
                     std::to_string(play.score[Side::Home]);
  return Tip{
      withPlaceholders(m_texts.text(Text::FlowTip), words.periodText(game.events[play.event].period), when),
      words.words(play.event),
      {time.x(play.at), time.plot().top}};
}

void FlowCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const FlowPalette palette(Theme::look(), m_drawing.colours);
  paintCard(painter, chartCard(), *this);
  if (!hasPicture())
    return MarginPainter(m_drawing, palette, type(), MarginPainter::Detail::Full).paint(painter, chartCard());
  const double below = chartCard().bottom() + cardGap();
  if (hasRotation())
    paintCard(painter, QRectF(0, below, width(), rotation().bottom() - below + px(3)), *this);
  paintCharts(painter, palette, {plot(), rotation(), 0, static_cast<double>(width())}, shownSpan());
  paintFigures(painter);
  paintPlay(painter);
  if (const auto tip = this->tip())
    paintTip(painter, *tip);
  if (hasFocus() && m_isReachedByKey) {
    painter.setPen(QPen(Theme::accent(), px(2)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(chartCard().adjusted(1, 1, -1, -1), px(7), px(7));
  }
}

void FlowCanvas::paintCharts(QPainter& painter, const FlowPalette& palette, const Places& places,
                             const std::optional<Span>& span) const {
  const FlowType type = this->type();
  const MarginPainter chart(m_drawing, palette, type, MarginPainter::Detail::Full);
  const FlowLayout time = chart.layout(places.plot);
  chart.paintGrid(painter, places.plot);
  if (hasRotation()) {
    const GameDetails& details = m_counted->game.details;
    PerSide<std::string> titles;
    for (const Side team : kSides)
      titles[team] = details.name[team].empty() ? m_drawing.teams[team] : details.name[team];
    RotationPainter(m_rows, time, palette, type)
        .paint(painter, places.rotation,
               {places.left, places.right, titles, std::string(m_texts.text(Text::MinutesShort))});
    QPen dashed(palette.look.edge, 1, Qt::CustomDashLine, Qt::FlatCap);
    dashed.setDashPattern({2, 3});
    painter.setPen(dashed);
    for (std::size_t i = 1; i < m_drawing.flow.periods.size(); ++i) {
      const double x = time.x(m_drawing.flow.periods[i].begin);
      painter.drawLine(QPointF(x, places.rotation.headTop(Side::Visitor)),
                       QPointF(x, places.rotation.bottom()));
    }
  }
  if (span)
    paintSpan(painter, *span);
  chart.paintCurve(painter, places.plot);
  chart.paintResult(painter, places.plot, places.plot.right() + chanceAxisWidth(), places.right - px(6));
  if (m_showsChances && !m_chances.empty())
    chart.paintChances(painter, places.plot, m_chances);
}

bool FlowCanvas::hasPicture() const {
  return m_counted != nullptr && m_drawing.emptyWords.empty();
}

QSize FlowCanvas::pictureSize() const {
  const auto rows = static_cast<int>(m_rows[Side::Visitor].size() + m_rows[Side::Home].size() + 2);
  return {px(1100), px(kPictureChart) + (hasRotation() ? rows * px(kPictureRow) : 0)};
}

void FlowCanvas::paintPicture(QPainter& painter, const QRectF& area) const {
  const double line = QFontMetricsF(Theme::font(Type::Small)).height();
  const auto lines = static_cast<double>(m_rows[Side::Visitor].size() + m_rows[Side::Home].size() + 2);
  const double below = hasRotation() ? lines * px(kPictureRow) : 0; // all of it, whatever stands above
  const QRectF chart(area.left(), area.top(), area.width(), area.height() - below);
  const RotationLayout rows({{m_rows[Side::Visitor].size(), m_rows[Side::Home].size()}}, chart.bottom(),
                            px(kPictureRow), px(kPictureRow));
  const QRectF plot =
      chart.adjusted(leftGutter(), line + px(8), -rightGutter() - chanceAxisWidth(), -line - px(8));
  paintCharts(painter, FlowPalette(lookOf(ColourScheme::Light), m_drawing.colours),
              {plot, rows, area.left(), area.right()}, std::nullopt);
}

void FlowCanvas::paintFigures(QPainter& painter) const {
  const Look& look = Theme::look();
  const QFont head = Theme::font(Type::Body, QFont::Bold);
  const double left = px(10);
  const QRectF room(left, plot().top(), leftGutter() - left - px(26), plot().height());
  double y = room.top();
  const auto line = [&](const QFont& font, const QColor& colour, const QString& words) {
    constexpr int kFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
    painter.setFont(font);
    painter.setPen(colour);
    const QRectF taken =
        painter.boundingRect(QRectF(room.left(), y, room.width(), room.height()), kFlags, words);
    if (taken.bottom() > room.bottom() + px(4))
      return; // half a line would only disturb
    painter.drawText(taken, kFlags, words);
    y += taken.height() + px(2);
  };
  line(head, look.ink, toQt(m_texts.text(Text::ScoreDifference)));
  for (const std::string& part : flowSummary(m_drawing, m_texts))
    line(Theme::font(Type::Small), look.muted, toQt(part));
}

void FlowCanvas::paintSpan(QPainter& painter, const Span& span) const {
  const FlowLayout time = timeLayout();
  const double left = time.x(span.from);
  const double right = time.x(span.to);
  QColor veil = Theme::accent();
  veil.setAlphaF(0.08F);
  const auto band = [&](double top, double bottom) {
    painter.fillRect(QRectF(left, top, right - left, bottom - top), veil);
    painter.setPen(QPen(Theme::accent(), 1.5));
    for (const double x : {left, right})
      painter.drawLine(QPointF(x, top), QPointF(x, bottom));
  };
  band(time.plot().top, time.plot().bottom());
  if (hasRotation())
    band(rotation().headTop(Side::Visitor), rotation().bottom());
}

void FlowCanvas::paintPlay(QPainter& painter) const {
  if (!m_play)
    return;
  const FlowPlay& play = m_plays[*m_play];
  const FlowLayout time = timeLayout();
  const double x = time.x(play.at);
  painter.setPen(QPen(Theme::look().ink, 1));
  painter.drawLine(QPointF(x, time.plot().top), QPointF(x, time.plot().bottom()));
  painter.setPen(QPen(Theme::look().ink, 2));
  painter.setBrush(Theme::look().surface);
  painter.drawEllipse(QPointF(x, time.y(play.margin())), px(4), px(4));
}

void FlowCanvas::paintTip(QPainter& painter, const Tip& tip) const {
  const FlowType type = this->type();
  const Look& look = Theme::look();
  const QString head = toQt(tip.head);
  const double most = width() / 2.0;
  const QString words = type.metrics().elidedText(toQt(tip.words), Qt::ElideRight, most);
  const double line = type.metrics().height() + px(2);
  const QSizeF size(
      std::max(type.strongMetrics().horizontalAdvance(head), type.metrics().horizontalAdvance(words)) +
          px(20),
      2 * line + px(10));
  const bool fitsRight = tip.at.x() + px(10) + size.width() < width();
  const double top = std::min(tip.at.y() + px(4), height() - size.height());
  const double left = tip.at.x() + (fitsRight ? px(10) : -px(10) - size.width());
  const QRectF box(QPointF(std::max(0.0, left), top), size);
  painter.setPen(Qt::NoPen);
  painter.setBrush(look.plate);
  painter.drawRoundedRect(box, px(4), px(4));
  painter.setPen(look.plateText);
  const auto write = [&](const QFont& font, const QString& text, double from) {
    painter.setFont(font);
    painter.drawText(QPointF(box.left() + px(10), from + QFontMetricsF(font).ascent()), text);
  };
  write(type.strong, head, box.top() + px(6));
  write(type.text, words, box.top() + px(6) + line);
}

void FlowCanvas::pointAt(std::optional<std::size_t> play) {
  if (play == m_play)
    return;
  m_play = play;
  update();
}

void FlowCanvas::choose(int from, int to) {
  m_drag.reset();
  m_mark.reset();
  if (from == to || m_counted == nullptr)
    return update();
  const Stretch stretch = stretchBetween(m_counted->game, std::min(from, to), std::max(from, to));
  showStretch(stretch);
  emit stretchChosen(stretch);
}

void FlowCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !hasTime())
    return;
  const QPointF place = event->position();
  if (const Stay* stay = stayAt(place)) {
    const Span span{stay->from, stay->to}; // the stay goes when the owner shows the game anew
    return choose(span.from, span.to);
  }
  if (chartCard().contains(place)) {
    const int at = timeLayout().timeAt(place.x());
    m_drag = Span{at, at};
    update();
  }
}

void FlowCanvas::mouseMoveEvent(QMouseEvent* event) {
  const QPointF place = event->position();
  const FlowLayout time = timeLayout();
  if (m_drag) {
    m_drag->to = time.timeAt(place.x());
    update();
  }
  const Stay* stay = m_drag ? nullptr : stayAt(place);
  const std::optional<Stay> pointed = stay == nullptr ? std::nullopt : std::optional(*stay);
  if (pointed != m_stay) {
    m_stay = pointed;
    update();
  }
  setCursor(stay != nullptr ? Qt::PointingHandCursor : Qt::ArrowCursor);
  const bool isOnChart =
      chartCard().contains(place) && place.x() >= time.plot().left && place.x() <= time.plot().right();
  pointAt(isOnChart && m_drawing.emptyWords.empty() ? FlowLayout::playAt(m_plays, time.timeAt(place.x()))
                                                    : std::nullopt);
}

void FlowCanvas::mouseReleaseEvent(QMouseEvent*) {
  if (!m_drag)
    return;
  const FlowLayout time = timeLayout();
  const Span drag = *m_drag;
  if (std::abs(time.x(drag.to) - time.x(drag.from)) < kLeastDrag) { // a click means the play alone
    m_drag.reset();
    return update();
  }
  choose(drag.from, drag.to);
}

void FlowCanvas::mouseDoubleClickEvent(QMouseEvent*) {
  if (m_play)
    emit eventAsked(m_plays[*m_play].event);
}

void FlowCanvas::leaveEvent(QEvent*) {
  m_stay.reset();
  if (!hasFocus())
    m_play.reset();
  update();
}

void FlowCanvas::focusInEvent(QFocusEvent* event) {
  m_isReachedByKey = event->reason() != Qt::MouseFocusReason;
  update();
}

void FlowCanvas::focusOutEvent(QFocusEvent*) {
  m_mark.reset();
  m_drag.reset();
  m_play.reset();
  update();
}

std::size_t FlowCanvas::playBeside(int steps) const {
  const std::size_t last = m_plays.size() - 1;
  if (!m_play)
    return steps > 0 ? 0 : last;
  return static_cast<std::size_t>(std::clamp(static_cast<int>(*m_play) + steps, 0, static_cast<int>(last)));
}

// With a mark the way from there is the stretch that Enter chooses.
void FlowCanvas::goTo(std::size_t play, bool marks) {
  if (marks && !m_mark)
    m_mark = m_play ? m_plays[*m_play].at : 0;
  if (!marks)
    m_mark.reset();
  m_stay.reset();
  m_drag = m_mark && hasTime() ? std::optional(Span{*m_mark, m_plays[play].at}) : std::nullopt;
  pointAt(play);
  update();
  if (const auto words = tip()) {
    setAccessibleDescription(toQt(words->head + ". " + words->words));
    QAccessibleEvent told(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
  }
}

void FlowCanvas::keyPressEvent(QKeyEvent* event) {
  m_isReachedByKey = true;
  const bool marks = event->modifiers().testFlag(Qt::ShiftModifier);
  const bool hasPlays = !m_plays.empty() && m_drawing.emptyWords.empty();
  switch (event->key()) {
  case Qt::Key_Left:
  case Qt::Key_Right:
    if (hasPlays)
      return goTo(playBeside(event->key() == Qt::Key_Right ? 1 : -1), marks);
    break;
  case Qt::Key_Home:
  case Qt::Key_End:
    if (hasPlays)
      return goTo(event->key() == Qt::Key_End ? m_plays.size() - 1 : 0, marks);
    break;
  case Qt::Key_Return:
  case Qt::Key_Enter:
    if (m_drag)
      return choose(m_drag->from, m_drag->to);
    if (m_play)
      emit eventAsked(m_plays[*m_play].event);
    return;
  case Qt::Key_Escape:
    if (m_drag) {
      m_drag.reset();
      m_mark.reset();
      return update();
    }
    if (m_stretch) {
      showStretch(std::nullopt);
      emit stretchCleared();
      return;
    }
    break;
  default: break;
  }
  QWidget::keyPressEvent(event);
}

} // namespace hooptab
