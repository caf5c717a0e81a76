#include "studies/LeaderRow.h"

#include "appearance/TeamTag.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "studies/RowList.h"
#include "studies/StandingsDelegate.h"

namespace hooptab {

void drawTagLeft(QPainter& painter, QRect& area, const SeasonTeam& team, const QColor& ground) {
  const QRect tag(area.left(), area.center().y() - teamTagHeight() / 2, teamTagWidth(), teamTagHeight());
  drawTeamTag(painter, tag, toQt(team.abbreviation), seasonTeamColour(team), ground);
  area.setLeft(tag.right() + Theme::measure()(12));
}

void drawLeader(QPainter& painter, QRect area, const Leader& leader, const SeasonTeam& team, int valueRoom,
                LeaderWeight weight, const QColor& ground) {
  const Look& look = Theme::look();
  const bool isForemost = weight == LeaderWeight::Foremost;
  painter.setFont(Theme::font(Type::Body));
  writeLeft(painter, area, Theme::measure()(20, 24), QString::number(leader.rank), look.muted);
  painter.setFont(Theme::font(isForemost ? Type::Count : Type::Body, QFont::Bold));
  writeRight(painter, area, valueRoom, toQt(leader.value), look.ink);
  QRect tag(area.right() - teamTagWidth() - Theme::measure()(8), area.top(), teamTagWidth(), area.height());
  area.setRight(tag.left() - Theme::measure()(6));
  drawTagLeft(painter, tag, team, ground);
  painter.setFont(Theme::font(Type::Body, isForemost ? QFont::Bold : QFont::Normal));
  writeLeft(painter, area, area.width(), toQt(leader.row->name), look.ink);
}

} // namespace hooptab
