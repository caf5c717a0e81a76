// Where a team or a player shot from, and how well.
import { h } from './dom.js';
import { number, percent, periodName, t } from './words.js';
import { begin } from './frame.js';
import { abbOf, isShot, personText, sidesOf, smallHead } from './parts.js';
import { courtPicture, loadCourt } from './court.js';

const kZones = [
  ['zoneRim', ['underBasket']], ['zonePaint', ['paint']],
  ['zoneMidRange', ['midRangeLeft', 'midRangeCentre', 'midRangeRight']],
  ['zoneCorner', ['leftCorner', 'rightCorner']], ['zoneArc', ['leftWing', 'top', 'rightWing']],
];
const kFew = 3;
const kClose = ['layupLeft', 'layupRight', 'putBack', 'dunk'];
const chosen = { side: null, who: '', period: '' };
let redraw = () => {};

function choose(name, value) {
  chosen[name] = value;
  if (name === 'side')
    chosen.who = '';
  redraw();
}

function option(value, text, name) {
  return h('option', { value, selected: chosen[name] === value }, text);
}

function filters(game) {
  const periods = [...new Set((game.plays ?? []).map((play) => play.period))].sort((one, other) => one - other);
  return h('div', { 'data-key': 'filters' },
    h('div', { class: 'picks' }, sidesOf(game).map((side) => h('button',
      { type: 'button', id: `side-${side}`, 'aria-pressed': String(chosen.side === side),
        onclick: () => choose('side', side) }, abbOf(game, side)))),
    h('div', { class: 'picks' },
      h('select', { id: 'who', 'aria-label': t('player'), onchange: (event) => choose('who', event.target.value) },
        option('', t('allPlayers'), 'who'),
        (game.teams[chosen.side].players ?? []).filter((player) => player.played && player.number).map((player) =>
          option(player.number, personText(player.number, player.name), 'who'))),
      h('select', { id: 'period', 'aria-label': t('periodLabel'),
                    onchange: (event) => choose('period', event.target.value) },
        option('', t('wholeGame'), 'period'),
        periods.map((period) => option(String(period), periodName(period, game.rules), 'period')))));
}

function row(name, shots, isKept) {
  const made = shots.filter((play) => play.made);
  if (!shots.length && !isKept)
    return null;
  const points = made.reduce((total, play) => total + play.points, 0);
  const each = shots.length ? number(points / shots.length, 2) : '–';
  return h('tr', { class: shots.length < kFew ? 'few' : '' }, h('th', { scope: 'row' }, name),
           h('td', null, `${made.length}/${shots.length}`), h('td', null, percent(made.length, shots.length)),
           h('td', { class: 'key' }, each));
}

function table(shots) {
  const rows = kZones.map(([name, zones]) => row(t(name), shots.filter((play) => zones.includes(play.zone)), true));
  const without = shots.filter((play) => !play.zone);
  const isClose = (play) => kClose.includes(play.kind);
  rows.push(row(t('closeShots'), without.filter(isClose)),
            row(t('noPlace'), without.filter((play) => !isClose(play))));
  return h('div', { class: 'scroll', tabindex: '0', role: 'region', 'aria-label': t('zone') },
    h('table', { class: 'zones' }, h('caption', { class: 'hidden' }, t('zone')),
    h('thead', null, h('tr', null, [t('zone'), t('madeTried').replace('/', '/\u200b'), '%', t('pointsPerShot')].map((head) =>
      h('th', { scope: 'col' }, head)))),
    h('tbody', null, rows)));
}

function draw(feed) {
  const { game } = feed;
  chosen.side ??= sidesOf(game)[0];
  const shots = (game.plays ?? []).filter((play) => isShot(play) && play.kind !== 'freeThrow' &&
    play.team === chosen.side && (!chosen.who || play.number === chosen.who) &&
    (!chosen.period || play.period === Number(chosen.period)));
  const made = shots.filter((play) => play.made).length;
  const legend = [`${t('made')} ${made}`, `${t('missed')} ${shots.length - made}`, percent(made, shots.length)];
  const head = [smallHead(feed), filters(game)];
  if (!shots.length)
    return [...head, h('p', { class: 'empty' }, t('nothing'))];
  return [...head,
    h('section', { 'data-key': 'chart' }, h('h2', { class: 'hidden' }, t('shotsPage')),
      courtPicture(shots.filter((play) => play.place), `${abbOf(game, chosen.side)} – ${legend.join(', ')}`),
      h('p', { class: 'legend' }, h('b', { class: 'good' }, `● ${legend[0]}`), h('b', { class: 'bad' }, `✕ ${legend[1]}`),
        h('span', null, legend[2]))),
    h('section', { 'data-key': 'zones' }, h('h2', { class: 'hidden' }, t('zone')), table(shots))];
}

({ redraw } = await begin({ page: 'shots', draw }));
loadCourt().then(redraw);
