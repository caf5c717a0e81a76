// The parts of the bench's page below its head: three tiles, the five, those who rest, and why.
import { h, svg } from './dom.js';
import { pips } from './parts.js';
import { headWord } from './screens.js';
import { signed, t } from './words.js';

const kBar = 100; // of the widest one, in the units of its drawing

function tile(id, { title, figure, lines, alarm }) {
  return h('section', { id, class: alarm ? 'tile alarm' : 'tile', 'aria-labelledby': `${id}Title` },
    h('h2', { id: `${id}Title` },
      alarm && h('span', { class: 'mark', role: 'img', 'aria-label': t('benchAlarm') }, '▲ '), title),
    figure && h('p', { class: 'figure' }, figure),
    h('ul', null, (lines ?? []).map((line) => h('li', { class: 'line' }, line))));
}

// They never change place.
export function tiles(board) {
  return h('div', { class: 'tiles' }, tile('run', board.run), tile('since', board.sinceTimeOut),
    tile('trouble', board.foulTrouble));
}

// Scrolls by itself where it is wider than the page.
function region(id, label, table) {
  return h(
    'div', { id: `${id}Scroll`, class: 'scroll', role: 'region', tabindex: '0', 'aria-label': label }, table);
}

function foulCell(player, limit) {
  return h('td', { class: 'foulCell' },
    limit > 0 ? [pips(player.fouls, limit), h('span', { class: 'hidden' }, player.fouls)] : player.fouls);
}

function difference(player, isKnown = true) {
  const value = isKnown ? player.plusMinus : null;
  return h('td', { class: value > 0 ? 'more' :
      value < 0                     ? 'less' :
                                      null },
    value === null ? '–' : signed(value));
}

function heads(stayWord) {
  const head = (text) => h('th', { scope: 'col' }, text);
  return h('thead', null,
    h('tr', null, h('th', { scope: 'col' }, h('span', { class: 'hidden' }, t('screenNumber'))),
      h('th', { scope: 'col', class: 'name' }, t('player')), head(t('fouls')), head(headWord('min')),
      head('+/−'), head(headWord('pts')), head(stayWord)));
}

// 9:28 as on all other pages.
const timeText = (time) => time.replace(/^0(?=\d:)/, '');

function stayCell(player) {
  if (player.out)
    return h('td', { class: 'gone' }, t('out'));
  const isLong = player.long;
  return h('td', { class: isLong ? 'long' : 'stay' },
    isLong && h('span', { role: 'img', 'aria-label': t('benchLong') }, '▲ '), timeText(player.stay));
}

function playerRow(player, limit, isOnCourt) {
  const isUnused = !player.played && !isOnCourt;
  const kind = isUnused ? 'unused' : isOnCourt && player.trouble ? 'inTrouble' : null;
  return h('tr', { class: kind, 'data-key': player.number },
    h('td', { class: 'number' }, h('span', null, player.number)),
    h('th', { scope: 'row', class: 'name' }, player.name || player.number), foulCell(player, limit),
    h('td', null, isUnused ? '–' : timeText(player.minutes)), difference(player, !isUnused),
    h('td', null, isUnused ? '–' : player.points), stayCell(player));
}

function playerTable(id, title, players, board, isOnCourt) {
  return region(id, title,
    h('table', { class: id }, h('caption', null, h('h2', null, title)),
      heads(t(isOnCourt ? 'benchOnFor' : 'benchRested')),
      h('tbody', null, players.map((player) => playerRow(player, board.foulLimit, isOnCourt)))));
}

// Two bars that grow from the middle; the number stands beside them.
function bars({ ourLength, theirLength }, most) {
  const ours = (kBar * ourLength) / most;
  const bar = (kind, x, width) =>
    svg('svg', { viewBox: `0 0 ${kBar} 10`, preserveAspectRatio: 'none', 'aria-hidden': 'true' },
      svg('rect', { class: kind, x, y: 0, width, height: 10 }));
  return [bar('ours', kBar - ours, ours), bar('theirs', 0, (kBar * theirLength) / most)];
}

function factors(board) {
  const most = Math.max(0.01, ...board.factors.flatMap((factor) => [factor.ourLength, factor.theirLength]));
  return h('section', { 'aria-labelledby': 'whyTitle' },
    h('h2', { id: 'whyTitle' }, t('benchWhy', board.us.name, board.them.name)),
    h('p', { class: 'factorsOf' }, board.factorsOf),
    h('ul', { class: 'factors' }, board.factors.map((factor) => {
      const [ours, theirs] = bars(factor, most);
      return h('li', { class: factor.costsMost ? 'most' : null },
        h('span', { class: 'what' }, factor.name,
          factor.costsMost && h('span', { class: 'hidden' }, ` (${t('benchCostsMost')})`)),
        h('b', null, factor.ours), ours, theirs, h('b', null, factor.theirs));
    })));
}

function fiveRow(five) {
  return h('tr', { class: five.now ? 'now' : null },
    h('th', { scope: 'row', class: 'lineUp' }, five.numbers,
      five.now && [h('span', { 'aria-hidden': 'true' }, ' ●'), ` ${t('benchNow')}`]),
    h('td', null, timeText(five.minutes)), difference(five),
    h('td', { class: five.hasNet ? null : 'few' }, five.net.replace('-', '−')));
}

function fives(board) {
  const head = (text) => h('th', { scope: 'col' }, text);
  return region('fives', t('benchFives'),
    h('table', { class: 'fives' }, h('caption', null, h('h2', null, t('benchFives'))),
      h('thead', null,
        h('tr', null, h('th', { scope: 'col', class: 'lineUp' }, t('benchLineUp')), head(headWord('min')),
          head('+/−'), head(t('benchNet')))),
      h('tbody', null, board.fives.map(fiveRow))));
}

function theirFive(board) {
  const limit = board.foulLimit;
  return region('theirs', t('benchTheirFive', board.them.name),
    h('table', { class: 'theirs' }, h('caption', null, h('h2', null, t('benchTheirFive', board.them.name))),
      h('thead', { class: 'hidden' }, h('tr', null, [t('player'), headWord('pts'),
        t('fouls')].map((text) => h('th', { scope: 'col' }, text)))),
      h('tbody', null,
        board.theirFive.map(
          (player) => h('tr', null,
            h('th', { scope: 'row', class: 'name' }, h('b', null, player.number), ' ', player.name),
            h('td', null, t('playerPoints', player.points)), foulCell(player, limit))))));
}

export function benchTables(board) {
  return h('main', null,
    h('div', null, playerTable('onCourt', t('benchOnCourt', board.us.name), board.five, board, true),
      board.thisFive && h('p', { class: 'thisFive' }, board.thisFive),
      playerTable('reserves', t('benchReserves'), board.bench, board, false)),
    h('div', null, factors(board), fives(board), theirFive(board)));
}
