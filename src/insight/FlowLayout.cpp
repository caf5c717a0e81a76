#include "insight/FlowLayout.h"

#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr int kMostLines = 6; // beside that of a level score

int stepsUpTo(int margin, int step) {
  return std::max(1, (margin + step - 1) / step);
}

// 1, 2, 5, 10, 20, ...
int nextStep(int step) {
  int leading = step;
  while (leading >= 10)
    leading /= 10;
  return leading == 2 ? step / 2 * 5 : step * 2;
}

} // namespace

std::vector<FlowPlay> playsOf(const MarginFlow& flow) {
  std::vector<FlowPlay> plays;
  for (const MarginFlow::Step& step : flow.steps)
    plays.push_back({step.event, step.at, step.score});
  for (const MarginFlow::TimeOut& timeOut : flow.timeOuts) {
    const auto behind = std::ranges::upper_bound(flow.steps, timeOut.event, {}, &MarginFlow::Step::event);
    plays.push_back({timeOut.event, timeOut.at,
                     behind == flow.steps.begin() ? PerSide<int>() : std::prev(behind)->score});
  }
  std::ranges::sort(plays, {}, &FlowPlay::event);
  return plays;
}

FlowLayout::FlowLayout(const MarginFlow& flow, Plot plot) : m_flow(flow), m_plot(plot) {
  int up = 0;
  int down = 0;
  for (const MarginFlow::Step& step : flow.steps) {
    up = std::max(up, step.margin());
    down = std::max(down, -step.margin());
  }
  while (stepsUpTo(up, m_step) + stepsUpTo(down, m_step) > kMostLines)
    m_step = nextStep(m_step);
  m_top = stepsUpTo(up, m_step) * m_step;
  m_bottom = -stepsUpTo(down, m_step) * m_step;
}

double FlowLayout::x(int at) const {
  return m_plot.left + m_plot.width * at / std::max(1, m_flow.length());
}

double FlowLayout::y(int margin) const {
  return m_plot.top + m_plot.height * (m_top - margin) / (m_top - m_bottom);
}

int FlowLayout::timeAt(double x) const {
  const double share = m_plot.width > 0 ? (x - m_plot.left) / m_plot.width : 0;
  return static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * m_flow.length()));
}

std::vector<int> FlowLayout::gridLines() const {
  std::vector<int> lines;
  for (int margin = m_top; margin >= m_bottom; margin -= m_step)
    lines.push_back(margin);
  return lines;
}

std::vector<int> FlowLayout::labels(double least) const {
  const double distance = y(0) - y(m_step);
  const int every = std::max(1, static_cast<int>(std::ceil(least / std::max(distance, 1.0))));
  std::vector<int> lines = gridLines();
  std::erase_if(lines, [&](int margin) { return margin / m_step % every != 0; });
  return lines;
}

std::vector<FlowLayout::Bracket> FlowLayout::brackets(double textWidth) const {
  std::vector<const MarginFlow::Run*> bySize;
  for (const MarginFlow::Run& run : m_flow.runs)
    bySize.push_back(&run);
  std::ranges::stable_sort(bySize, std::greater(), &MarginFlow::Run::points);
  std::vector<Bracket> kept;
  const auto halfOf = [&](const Bracket& each) { return std::max(each.right - each.left, textWidth) / 2; };
  const auto middleOf = [](const Bracket& each) { return (each.left + each.right) / 2; };
  for (const MarginFlow::Run* run : bySize) {
    const Bracket next = {run, x(m_flow.steps[run->first].at), x(m_flow.steps[run->last].at)};
    const bool isFree = std::ranges::all_of(kept, [&](const Bracket& other) {
      return std::abs(middleOf(next) - middleOf(other)) >= halfOf(next) + halfOf(other);
    });
    if (isFree)
      kept.push_back(next);
  }
  std::ranges::sort(kept, {}, &Bracket::left);
  return kept;
}

double FlowLayout::textPlace(Side team, double width, double height) const {
  constexpr int kPlaces = 24;
  const auto hides = [&](double left) {
    double from = m_plot.left;
    double curve = y(0);
    const auto isHidden = [&](double to) {
      const bool isBeyond =
          team == Side::Visitor ? curve < m_plot.top + height : curve > m_plot.bottom() - height;
      return isBeyond && from < left + width && to > left;
    };
    for (const MarginFlow::Step& step : m_flow.steps) {
      const double to = x(step.at);
      if (isHidden(to))
        return true;
      from = to;
      curve = y(step.margin());
    }
    return isHidden(m_plot.right());
  };
  for (int place = 0; place < kPlaces; ++place) {
    const double left = m_plot.left + (m_plot.width - width) * place / (kPlaces - 1);
    if (!hides(left))
      return left;
  }
  return m_plot.left;
}

std::vector<int> FlowLayout::timeOutRows(double width, double from, double to) const {
  std::vector<int> rows;
  std::vector<double> ends; // of the last one in each row
  for (const MarginFlow::TimeOut& timeOut : m_flow.timeOuts) {
    const double left = x(timeOut.at) - width / 2;
    std::size_t row = left < to && left + width > from ? 1 : 0;
    while (row < ends.size() && left < ends[row])
      ++row;
    ends.resize(std::max(ends.size(), row + 1), m_plot.left - width);
    ends[row] = left + width;
    rows.push_back(static_cast<int>(row));
  }
  return rows;
}

std::optional<std::size_t> FlowLayout::playAt(const std::vector<FlowPlay>& plays, int at) {
  if (plays.empty())
    return std::nullopt;
  const auto behind = std::ranges::upper_bound(plays, at, {}, &FlowPlay::at);
  const auto place = static_cast<std::size_t>(behind - plays.begin());
  if (behind == plays.begin() || behind == plays.end())
    return place == 0 ? 0 : place - 1;
  if (behind->at - at >= at - plays[place - 1].at)
    return place - 1;
  // The last of those at the next time.
  const auto last = std::ranges::upper_bound(plays, behind->at, {}, &FlowPlay::at);
  return static_cast<std::size_t>(last - plays.begin()) - 1;
}

} // namespace hooptab
