// All plays, newest first, a period at a time. Only open periods are drawn.
import { h } from './dom.js';
import { periodName, t } from './words.js';
import { begin } from './frame.js';
import { abbOf, isFoul, isShot, isTold, personText, playRow, playsWithGone, scoreText, sidesOf, smallHead } from './parts.js';

const kKinds = {
  all: isTold, baskets: (play) => isShot(play) && play.made, fouls: isFoul,
  substitutions: (play) => play.kind === 'substitution',
};
const chosen = { kind: 'all', who: '', period: '' };
const opened = new Map(); // what the reader opened and shut, by period
let redraw = () => {};

function choose(name, value) {
  chosen[name] = value;
  redraw();
}

function has(play, who) {
  if (!who)
    return true;
  const [side, jersey] = [Number(who[0]), who.slice(2)];
  if (!jersey)
    return play.team === side || play.with?.team === side || play.in?.[side]?.length > 0;
  return (play.team === side && play.number === jersey) ||
    (play.with?.team === side && play.with.number === jersey) ||
    Boolean(play.in?.[side]?.includes(jersey) || play.outs?.[side]?.includes(jersey));
}

function option(value, text, name) {
  return h('option', { value, selected: chosen[name] === value }, text);
}

function filters(game, periods) {
  return h('div', { 'data-key': 'filters' },
    h('div', { class: 'picks' }, Object.keys(kKinds).map((kind) => h('button',
      { type: 'button', id: `kind-${kind}`, 'aria-pressed': String(chosen.kind === kind),
        onclick: () => choose('kind', kind) }, t(kind)))),
    h('div', { class: 'picks' },
      h('select', { id: 'who', 'aria-label': t('player'), onchange: (event) => choose('who', event.target.value) },
        option('', t('allPlayers'), 'who'),
        sidesOf(game).map((side) => h('optgroup', { label: abbOf(game, side) },
          option(`${side}-`, abbOf(game, side), 'who'),
          (game.teams[side].players ?? []).filter((player) => player.played && player.number).map((player) =>
            option(`${side}-${player.number}`, personText(player.number, player.name), 'who'))))),
      h('select', { id: 'period', 'aria-label': t('periodLabel'),
                    onchange: (event) => choose('period', event.target.value) },
        option('', t('wholeGame'), 'period'),
        periods.map((period) => option(String(period), periodName(period, game.rules), 'period')))));
}

function scoreOf(game, period) {
  const points = game.teams.map((team) => team.periods[period - 1] ?? 0);
  return scoreText(game, points);
}

function periodRows(feed, period, plays, isLatest) {
  const { game } = feed;
  const isNarrowed = chosen.who !== '' || chosen.kind !== 'all' || chosen.period !== '';
  const isOpen = opened.get(period) ?? (isLatest || isNarrowed);
  const turn = (event) => {
    event.preventDefault();
    opened.set(period, !isOpen);
    redraw();
  };
  return h('details', { 'data-key': `period-${period}`, class: 'period', open: isOpen },
    h('summary', { id: `summary-${period}`, onclick: turn }, h('h2', null, periodName(period, game.rules)),
      h('b', null, scoreOf(game, period))),
    isOpen && h('ol', { class: 'plays', reversed: true }, plays.reverse().map((play) => playRow(feed, play))));
}

function draw(feed) {
  const { game } = feed;
  const plays = playsWithGone(feed);
  const periods = [...new Set(plays.map((play) => play.period))].sort((one, other) => other - one);
  const shown = plays.filter((play) => kKinds[chosen.kind](play) && has(play, chosen.who) &&
    (!chosen.period || play.period === Number(chosen.period)));
  const rows = periods.map((period) => [period, shown.filter((play) => play.period === period)])
    .filter(([, own]) => own.length > 0).map(([period, own]) => periodRows(feed, period, own, period === periods[0]));
  return [smallHead(feed), plays.length > 0 && filters(game, periods),
          h('div', { class: 'rows', 'data-key': 'rows' }, rows),
          rows.length === 0 && h('p', { class: 'empty' }, t('nothing'))];
}

({ redraw } = await begin({ page: 'plays', isQuiet: true, draw }));
