// The margin through the game as steps: up while the left team leads, down while the right one does, each in
// its ink; time-outs as T, runs as bars. Knows the numbers of the flow and no page.
import { svg } from './dom.js';

const kLeft = 34;
const kTop = 62;   // room for the team's name, its time-outs and its runs
const kBottom = 70;
const kMostTicks = 6;
const kLabel = 34; // what the words of a run take

// Margins by time, from the left team's side; a point for each score.
export function marginsOf(flow, left) {
  return flow.steps.map(([at, visitors, home]) => [at, left === 0 ? visitors - home : home - visitors]);
}

export function endOf(flow) {
  return Math.max(1, ...flow.periods.map((period) => Math.max(period.end, flow.hasTime ? period.begin + period.full : 0)),
                  ...flow.steps.map(([at]) => at));
}

// Where what has been played ends; the rest of a running period is to come.
function playedTo(flow) {
  return Math.max(0, ...flow.periods.map((period) => period.end), ...flow.steps.map(([at]) => at));
}

function stepPath(margins, x, y, to) {
  let d = `M${x(0)} ${y(0)}`;
  for (const [at, margin] of margins)
    d += `H${x(at)}V${y(margin)}`;
  return `${d}H${x(to)}`;
}

function tickOf(range) {
  return [1, 2, 5, 10, 20, 50].find((step) => range / step <= kMostTicks) ?? 100;
}

// `names` of both teams, `periods` named in order, `words` for the legend, `order` of the sides.
export function curve(flow, { width, height, order, names, periodNames, label }) {
  const margins = marginsOf(flow, order[0]);
  const up = Math.max(4, ...margins.map(([, margin]) => margin));
  const down = Math.max(4, ...margins.map(([, margin]) => -margin));
  const end = endOf(flow);
  const right = width - 6;
  const bottom = height - kBottom;
  const round = (value) => Math.round(value * 10) / 10;
  const x = (at) => round(kLeft + ((right - kLeft) * at) / end);
  const y = (margin) => round(kTop + ((bottom - kTop) * (up - margin)) / (up + down));
  const to = playedTo(flow);
  const line = stepPath(margins, x, y, to);
  const area = `${line}V${y(0)}H${x(0)}z`;
  const half = (at, from, until, side) => [
    svg('clipPath', { id: `half${at}` }, svg('rect', { x: kLeft, y: from, width: right - kLeft, height: Math.max(0, until - from) })),
    svg('path', { class: `area side${side}`, d: area, 'clip-path': `url(#half${at})` })];
  const step = tickOf(up + down);
  const ticks = [];
  for (let at = -Math.floor(down / step) * step; at <= up; at += step)
    ticks.push(svg('path', { class: at === 0 ? 'zero' : 'grid', d: `M${kLeft} ${y(at)}H${right}` }),
               svg('text', { class: 'tick', x: kLeft - 5, y: y(at) + 4 }, Math.abs(at)));
  const text = (kind, at, from, words) => svg('text', { class: kind, x: at, y: from }, words);
  const isUp = (side) => side === order[0];
  const timeOuts = flow.timeOuts.filter(([, side]) => side === 0 || side === 1).map(([at, side]) => [
    svg('path', { class: 'break', d: `M${x(at)} ${kTop}V${bottom}` }),
    text(`mid side${side}`, x(at), isUp(side) ? kTop - 26 : bottom + 34, 'T')]);
  const written = [-kLabel, -kLabel]; // where the last label of each side stands: none lies on another
  const runs = flow.runs.map((run) => {
    const [from, until] = [x(flow.steps[run.from]?.[0] ?? 0), x(flow.steps[run.to]?.[0] ?? 0)];
    const isAbove = isUp(run.team);
    const middle = Math.min(Math.max((from + until) / 2, kLeft + 12), right - 12);
    const hasRoom = middle - written[run.team] >= kLabel;
    if (hasRoom)
      written[run.team] = middle;
    return [svg('rect', { class: `bar side${run.team}`, x: from, y: isAbove ? kTop - 6 : bottom + 3,
                          width: Math.max(3, until - from), height: 4 }),
            hasRoom && text(`mid side${run.team}`, middle, isAbove ? kTop - 10 : bottom + 20, `${run.points}–0`)];
  });
  const periods = flow.periods.map((period, at) => {
    const until = flow.periods[at + 1]?.begin ?? end;
    return [at > 0 && svg('path', { class: 'grid', d: `M${x(period.begin)} ${kTop}V${bottom}` }),
            text('mid', (x(period.begin) + x(until)) / 2, bottom + 50, periodNames[at])];
  });
  return svg('svg', { class: 'curve', viewBox: `0 0 ${width} ${height}`, width, height, role: 'img', 'aria-label': label },
    ticks, periods, half(0, 0, y(0), order[0]), half(1, y(0), height, order[1]),
    svg('path', { class: 'steps', d: line }), timeOuts, runs,
    text(`side${order[0]} whose`, kLeft, 16, `▲ ${names[0]}`), text(`side${order[1]} whose`, kLeft, height - 3, `▼ ${names[1]}`));
}
