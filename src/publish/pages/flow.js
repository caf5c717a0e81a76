// How the game went: the margin, the runs with their times, and who was ahead how long.
import { h } from './dom.js';
import { number, periodName, t } from './words.js';
import { begin } from './frame.js';
import { clockText } from './clock.js';
import { abbOf, scoreText, sidesOf, smallHead, tag } from './parts.js';
import { curve } from './curve.js';

let redraw = () => {};

// The period and the clock when so much had been played.
function momentOf(game, elapsed) {
  const { periods, hasTime } = game.flow;
  const period = periods.findLast((one) => one.begin < elapsed) ?? periods[0];
  if (!period)
    return null;
  return { period: periodName(period.number, game.rules),
           clock: hasTime ? clockText(period.full - (elapsed - period.begin)) : '' };
}

// From the first to the last score of a run; two periods are both named.
function stretch(game, run) {
  const [from, to] = [run.from, run.to].map((step) => momentOf(game, game.flow.steps[step]?.[0] ?? 0));
  if (!from || !to)
    return '';
  const last = from.period === to.period ? to.clock : `${to.period} ${to.clock}`;
  return [`${from.period} ${from.clock}`.trim(), last.trim()].filter(Boolean).join(' – ');
}

function chart(game) {
  const order = sidesOf(game);
  const width = Math.max(280, Math.min(document.getElementById('main').clientWidth - 24, 744));
  const height = Math.round(Math.min(Math.max(width * 0.72, 260), 420));
  const names = order.map((side) => abbOf(game, side));
  const periodNames = game.flow.periods.map((period) => periodName(period.number, game.rules));
  const score = scoreText(game, game.teams.map((team) => team.points));
  const label = `${t('flowPage')} – ${names[0]} ${score} ${names[1]}`;
  return h('section', { 'data-key': 'chart' }, h('h2', null, t('flowPage')),
    curve(game.flow, { width, height, order, names, periodNames, label }),
    h('p', { class: 'legend' }, h('span', null, h('b', null, 'T'), ` ${t('timeOuts')}`),
      h('span', null, h('b', null, '▬'), ` ${t('runsTitle')}`)));
}

function runs(game) {
  if (!game.flow.runs.length)
    return null;
  return h('section', { 'data-key': 'runs' }, h('h2', null, t('runsTitle')),
    h('table', null, h('caption', { class: 'hidden' }, t('runsTitle')),
      h('thead', { class: 'hidden' }, h('tr', null, ['team', 'points', 'periodLabel'].map((name) => h('th', { scope: 'col' }, t(name))))),
      h('tbody', null, [...game.flow.runs].reverse().map((run) => h('tr', null, h('th', { scope: 'row' }, tag(game, run.team)),
        h('td', { class: 'key' }, `${run.points}–0`), h('td', null, stretch(game, run)))))));
}

function inLead(game) {
  const seconds = game.lead?.seconds ?? [];
  const total = seconds.reduce((sum, value) => sum + Math.max(0, value), 0);
  if (!game.flow.hasTime || total <= 0)
    return null;
  const [left, right] = sidesOf(game);
  const part = (kind, value, words) => h('span', { class: kind, vars: { '--grow': Math.max(0, value) } },
    value / total > 0.08 && h('b', null, clockText(value)), h('span', { class: 'hidden' }, ` ${words} ${clockText(value)}`));
  return h('section', { 'data-key': 'lead' }, h('h2', null, t('timeInLead')),
    h('p', { class: 'lead' }, part(`side${left}`, seconds[left], abbOf(game, left)), part('tied', seconds[2], t('tied')),
      part(`side${right}`, seconds[right], abbOf(game, right))));
}

function leadCell(game, side) {
  const lead = game.teams[side].biggestLead;
  if (!lead?.points)
    return h('td', null, '–');
  const [minutes, seconds] = (lead.clock ?? '').split(':').map(Number);
  const clock = game.flow.hasTime && Number.isFinite(seconds) ? ` ${clockText(60 * minutes + seconds)}` : '';
  return h('td', null, h('b', null, lead.points), h('small', null, ` ${periodName(lead.period, game.rules)}${clock}`));
}

function figures(game) {
  const sides = sidesOf(game);
  const both = (name, value) => h('tr', null, h('th', { scope: 'row' }, t(name)),
                                  h('td', { colspan: 2, class: 'both' }, number(value)));
  return h('section', { 'data-key': 'figures' }, h('h2', null, t('statistics')),
    h('table', null, h('caption', { class: 'hidden' }, t('statistics')),
      h('thead', null, h('tr', null, h('th', { scope: 'col' }, h('span', { class: 'hidden' }, t('statistics'))),
        sides.map((side) => h('th', { scope: 'col' }, abbOf(game, side))))),
      h('tbody', null,
        h('tr', null, h('th', { scope: 'row' }, t('biggestLead')), sides.map((side) => leadCell(game, side))),
        h('tr', null, h('th', { scope: 'row' }, t('biggestRun')),
          sides.map((side) => h('td', { class: 'key' }, game.teams[side].biggestRun?.points || '–'))),
        both('leadChanges', game.leadChanges ?? 0), both('timesTied', game.timesTied ?? 0))));
}

function draw(feed) {
  const { game } = feed;
  if (!game.flow?.steps?.length)
    return [smallHead(feed), h('p', { class: 'empty' }, t('nothing'))];
  return [smallHead(feed), chart(game), runs(game), inLead(game), figures(game)];
}

({ redraw } = await begin({ page: 'flow', draw }));
addEventListener('resize', () => redraw());
