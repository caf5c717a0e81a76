#include "teams/TeamColours.h"

#include "appearance/Theme.h"

#include <QAbstractItemView>

namespace hooptab {

namespace {

QColor mixed(const QColor& one, const QColor& other, double shareOfOther) {
  const auto channel = [shareOfOther](int a, int b) {
    return static_cast<int>(a * (1 - shareOfOther) + b * shareOfOther);
  };
  return {channel(one.red(), other.red()), channel(one.green(), other.green()),
          channel(one.blue(), other.blue())};
}

} // namespace

void showTeamColour(QAbstractItemView& view, const QColor& colour) {
  const QColor text = textOn(colour);
  QPalette palette = view.palette();
  palette.setColor(QPalette::Base, colour);
  palette.setColor(QPalette::AlternateBase, colour);
  palette.setColor(QPalette::Text, text);
  // The selection is the other way round: readable on any colour, and never lost in one.
  palette.setColor(QPalette::Highlight, mixed(text, colour, 0.15));
  palette.setColor(QPalette::HighlightedText, textOn(text));
  palette.setColor(QPalette::PlaceholderText, mixed(text, colour, 0.3)); // also the frame of check marks
  palette.setColor(QPalette::Mid, mixed(colour, text, 0.3));
  view.setPalette(palette);
}

} // namespace hooptab
