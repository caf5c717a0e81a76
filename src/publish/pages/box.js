// The box score, one team at a time or both compared. The address keeps which.
import { h } from './dom.js';
import { percent, signed, t } from './words.js';
import { begin } from './frame.js';
import { clockText } from './clock.js';
import { abbOf, sidesOf, smallHead, versus } from './parts.js';

const kShotKinds = ['FG', 'F3', 'LL', 'LR', 'PB', 'DK'];
// With the sign of minus, not a hyphen; nothing before what is above zero.
const signedDown = (value) => (value < 0 ? `−${-value}` : value);
const sum = (row, suffix, kinds = kShotKinds) => kinds.reduce((total, kind) => total + row[kind + suffix], 0);
const made = (row, kinds) => `${sum(row, 'M', kinds)}/${sum(row, 'A', kinds)}`;

// The column's name, its explanation, what a row shows, and whether it adds up to the team's. The heads stand
// in one text, in this order, apart from the sign of plus and minus.
const kColumns = [
  ['min', '', (row) => clockText(row.seconds), false],
  ['pts', 'points', (row) => row.PTS, true],
  ['plusMinus', 'plusMinusLong', (row) => (row.plusMinus === null ? '' : signed(row.plusMinus)), false],
  ['pf', 'personalFouls', (row) => row.PF, true],
  ['reb', 'rebounds', (row) => row.OR + row.DR, true],
  ['ast', 'assists', (row) => row.Ast, true],
  ['fg', 'fieldGoals', (row) => made(row), true],
  ['three', 'threePoints', (row) => made(row, ['F3']), true],
  ['ft', 'freeThrows', (row) => made(row, ['FT']), true],
  ['or', 'offensiveRebounds', (row) => row.OR, true],
  ['dr', 'defensiveRebounds', (row) => row.DR, true],
  ['to', 'turnovers', (row) => row.TO, true],
  ['st', 'steals', (row) => row.ST, true],
  ['bs', 'blocks', (row) => row.BS, true],
  ['eff', 'efficiency', (row) => signedDown(row.rating), true],
];
const kCounts = [...kShotKinds, 'FT'].flatMap((kind) => [`${kind}M`, `${kind}A`])
  .concat(['PTS', 'Ast', 'BS', 'ST', 'TO', 'OR', 'DR', 'PF', 'TF', 'rating']);

let view = ['#0', '#1', '#compared'].includes(location.hash) ? location.hash.slice(1) : null;
let redraw = () => {};

function choose(to) {
  view = to;
  history.replaceState(null, '', `#${to}`);
  redraw();
}

function picks(game) {
  const pick = (name, text) => h('button', { type: 'button', id: `pick-${name}`, 'aria-pressed': String(view === name),
                                             onclick: () => choose(name) }, text);
  return h('div', { class: 'picks', 'data-key': 'picks' },
           sidesOf(game).map((side) => pick(String(side), abbOf(game, side))), pick('compared', t('teamsCompared')));
}

export function totalsOf(team) {
  const totals = Object.fromEntries(kCounts.map((name) =>
    [name, team.players.reduce((total, player) => total + (player[name] ?? 0), 0)]));
  for (const name of ['OR', 'DR', 'TO'])
    totals[name] += team.teamRow?.[name] ?? 0;
  return { ...totals, PTS: team.points };
}

function inOrder(game, team) {
  const isOver = game.state === 'final';
  const isOn = (player) => !isOver && player.onCourt;
  return [...team.players].sort((one, other) => isOn(other) - isOn(one) || other.played - one.played ||
    (other.seconds ?? 0) - (one.seconds ?? 0));
}

function isInTrouble(game, player) {
  const limit = game.rules?.foulLimit ?? 0;
  return player.out || (limit > 0 && player.PF + player.TF >= limit - 1);
}

function nameCell(game, player) {
  const isOn = game.state !== 'final' && player.onCourt;
  return h('th', { scope: 'row', class: 'who' },
    h('span', { class: isOn ? 'number on' : 'number' }, player.number, player.starter && '*',
      isOn && h('span', { class: 'hidden' }, ` ${t('onCourt')}`)),
    h('span', { class: 'full' }, player.name || (player.entry === 0 ? '–' : ''),
      player.out && h('b', { class: 'bad' }, ` ${t('out')}`)));
}

function playerRow(game, columns, player) {
  if (!player.played)
    return h('tr', { 'data-key': `p${player.entry}` }, nameCell(game, player),
             h('td', { class: 'absent', colspan: columns.length }, t('didNotPlay')));
  return h('tr', { 'data-key': `p${player.entry}` }, nameCell(game, player), columns.map(([name, , value]) =>
    h('td', { class: name === 'pts' ? 'key' : name === 'pf' && isInTrouble(game, player) ? 'key bad' : '' },
      value(player))));
}

// Rebounds and turnovers of the team itself, where there are any.
function teamRow(columns, team) {
  const row = team.teamRow ?? {};
  const own = { ...Object.fromEntries(kCounts.map((name) => [name, 0])), OR: row.OR ?? 0, DR: row.DR ?? 0,
                TO: row.TO ?? 0 };
  if (!own.OR && !own.DR && !own.TO)
    return null;
  const told = ['reb', 'or', 'dr', 'to'];
  return h('tr', { 'data-key': 'own' }, h('th', { scope: 'row', class: 'who' }, t('team')),
           columns.map(([name, , value]) => h('td', null, told.includes(name) ? value(own) || '' : '')));
}

function headsOf() {
  const words = t('boxHeads').split(' ');
  return new Map(kColumns.map(([name]) => [name, name === 'plusMinus' ? '+/−' : words.shift()]));
}

function box(game, side) {
  const team = game.teams[side];
  const hasTime = team.players.some((player) => player.seconds > 0);
  const columns = kColumns.filter(([name]) => (name !== 'min' || hasTime) &&
    (name !== 'plusMinus' || team.players.some((player) => player.plusMinus !== null)));
  const totals = totalsOf(team);
  const heads = headsOf();
  const onScroll = (event) => edge(event.currentTarget);
  return h('section', { 'data-key': `box${side}` },
    h('h2', null, team.name || abbOf(game, side)),
    h('div', { class: 'scroll', id: 'box-scroll', tabindex: '0', role: 'region', 'aria-label': t('boxPage'),
               onscroll: onScroll },
      h('table', { class: 'box' }, h('caption', { class: 'hidden' }, `${t('boxPage')} · ${abbOf(game, side)}`),
        h('thead', null, h('tr', null, h('th', { scope: 'col', class: 'who' }, t('player')),
          columns.map(([name, long]) => h('th', { scope: 'col' }, h('abbr', { title: long ? t(long) : null }, heads.get(name)))))),
        h('tbody', null, inOrder(game, team).map((player) => playerRow(game, columns, player)), teamRow(columns, team)),
        h('tfoot', null, h('tr', { class: 'total' }, h('th', { scope: 'row', class: 'who' }, t('total')),
          columns.map(([, , value, isSummed]) => h('td', null, isSummed ? value(totals) : '')))))),
    h('p', { class: 'legend' }, game.state !== 'final' && h('span', null, h('span', { class: 'number on' }, '7'),
      ` ${t('onCourt')}`), h('span', null, `* ${t('starter')}`)));
}

function edge(region) {
  region.classList.toggle('more', region.scrollLeft + region.clientWidth < region.scrollWidth - 2);
}

const kRates = [['fieldGoals', kShotKinds], ['threePoints', ['F3']], ['freeThrows', ['FT']]];
const kCompared = [
  ['rebounds', (team, totals) => totals.OR + totals.DR], ['offensiveRebounds', (team, totals) => totals.OR],
  ['assists', (team, totals) => totals.Ast], ['turnovers', (team, totals) => totals.TO, true],
  ['steals', (team, totals) => totals.ST], ['blocks', (team, totals) => totals.BS],
  ['personalFouls', (team, totals) => totals.PF, true], ['paint', (team) => team.paint],
  ['fromTurnovers', (team) => team.fromTurnovers], ['secondChance', (team) => team.secondChance],
  ['fastBreak', (team) => team.fastBreak], ['benchPoints', (team) => team.bench],
];

function compared(game) {
  const sides = sidesOf(game);
  const totals = game.teams.map(totalsOf);
  const rates = kRates.map(([name, kinds]) => {
    const [m, a] = ['M', 'A'].map((suffix) => sides.map((side) => sum(totals[side], suffix, kinds)));
    return versus(game, t(name), m.map((value, at) => (a[at] ? (100 * value) / a[at] : 0)),
                  m.map((value, at) => [percent(value, a[at]), ' ', h('small', null, `${value}/${a[at]}`)]), 100);
  });
  const counts = kCompared.map(([name, of, isLess]) => {
    const values = sides.map((side) => of(game.teams[side], totals[side]) ?? null);
    return values.includes(null) ? null :
      versus(game, t(name), values, values, 1.25 * Math.max(...values), isLess ?? false);
  });
  return h('section', { 'data-key': 'compared' },
    h('table', { class: 'versus' }, h('caption', { class: 'hidden' }, t('teamsCompared')),
      h('thead', { class: 'hidden' }, h('tr', null, h('th', { scope: 'col' }, abbOf(game, sides[0])),
        h('th', { scope: 'col' }, t('statistics')), h('th', { scope: 'col' }, abbOf(game, sides[1])))),
      h('tbody', null, rates, counts)));
}

function draw(feed) {
  const { game } = feed;
  view ??= String(sidesOf(game)[0]);
  setTimeout(() => {
    const region = document.getElementById('box-scroll');
    if (region)
      edge(region);
  });
  return [smallHead(feed), picks(game), view === 'compared' ? compared(game) : box(game, Number(view))];
}

({ redraw } = await begin({ page: 'box', draw }));
