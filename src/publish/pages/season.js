// A season's teams, games and players. The figures are the server's; sorting and choosing happens here.
import { base, h, paint } from './dom.js';
import { loadWords, number, remember, remembered, t } from './words.js';
import { isFew, kColumns, valueOf } from './season-columns.js';
import { wearLook } from './look.js';
import { headWord } from './screens.js';
import { switches } from './switches.js';

const kGamesShown = 8;
const page = document.getElementById('season');
let season = null;
let trouble = '';
const shown = {
  team: '',
  sort: 'PTS',
  isDown: true,
  isTotal: remembered('seasonTotals') === '1',
  allGames: false
};

const percentOf = (wins, games) => (games ? t('percent', Math.round((100 * wins) / games)) : '–');
const decimal = (text) =>
  (Number.isFinite(Number.parseFloat(text)) ? number(Number.parseFloat(text), 1) : '–');
const balance = (team, hasTies) =>
  (hasTies ? [team.wins, team.losses, team.ties] : [team.wins, team.losses]).join('–');

function region(id, label, table) {
  return h('div', { id, class: 'scroll', role: 'region', tabindex: '0', 'aria-label': label }, table);
}

function teamTable() {
  const teams = [...season.teams].sort((one, other) => (other.wins + other.ties / 2) / (other.games || 1) -
        (one.wins + one.ties / 2) / (one.games || 1) ||
      (other.points - other.pointsAgainst) - (one.points - one.pointsAgainst));
  const hasTies = season.teams.some(({ ties }) => ties > 0);
  const heads = [
    hasTies ? 'seasonBalanceTies' : 'seasonBalance', 'seasonWinShare', 'seasonFor', 'seasonAgainst',
    'seasonNet', 'seasonPace'
  ];
  return h('section', { 'aria-labelledby': 'teamsTitle' }, h('h2', { id: 'teamsTitle' }, t('seasonTeams')),
    region('teamsScroll', t('seasonTeams'),
      h('table', null, h('caption', { class: 'hidden' }, t('seasonTeams')),
        h('thead', null,
          h('tr', null, h('th', { scope: 'col' }, t('team')),
            heads.map((name) => h('th', { scope: 'col' }, t(name))))),
        h('tbody', null,
          teams.map((team) => h('tr', null, h('th', { scope: 'row' }, team.team),
                      h('td', { class: 'key' }, balance(team, hasTies)),
                      h('td', null, percentOf(team.wins + team.ties / 2, team.games)),
                      h('td', null, team.games ? number(team.points / team.games, 1) : '–'),
                      h('td', null, team.games ? number(team.pointsAgainst / team.games, 1) : '–'),
                      h('td', null, signedDecimal(team.netRating)), h('td', null, decimal(team.pace))))))));
}

function signedDecimal(text) {
  const value = Number.parseFloat(text);
  return Number.isFinite(value) ? (value > 0 ? '+' : '') + number(value, 1) : '–';
}

function gameTable() {
  const games = season.games.filter((game) => !shown.team || [game.visitor, game.home].includes(shown.team))
                  .sort((one, other) => other.date.localeCompare(one.date));
  const listed = shown.allGames ? games : games.slice(0, kGamesShown);
  const side = (name, points, isWinner) => [h('td', { class: isWinner ? 'team key' : 'team' }, name),
    h('td', { class: isWinner ? 'key' : '' }, points)];
  return h('section', { 'aria-labelledby': 'gamesTitle' }, h('h2', { id: 'gamesTitle' }, t('seasonGames')),
    region('gamesScroll', t('seasonGames'),
      h('table', { class: 'games' }, h('caption', { class: 'hidden' }, t('seasonGames')),
        h('thead', null,
          h('tr', null, h('th', { scope: 'col' }, t('seasonDate')),
            h('th', { scope: 'colgroup', colspan: '2' }, t('screenVisitors')),
            h('th', { scope: 'colgroup', colspan: '2' }, t('screenHome')))),
        h('tbody', null,
          listed.map((game) => h('tr', null, h('th', { scope: 'row' }, game.date),
                       side(game.visitor, game.visitorPoints, game.visitorPoints > game.homePoints),
                       side(game.home, game.homePoints, game.homePoints > game.visitorPoints)))))),
    games.length > kGamesShown &&
      h('button', {
        id: 'allGames',
        type: 'button',
        'aria-expanded': String(shown.allGames),
        onclick: () => show({ allGames: !shown.allGames })
      },
        shown.allGames ? t('seasonFewerGames') : t('seasonAllGames', games.length)));
}

// Behind all others come those with too few attempts for a share, and last who has no such figure at all,
// whichever way it is sorted.
function rankOf({ player, value }) {
  return value === null ? 2 : isFew(player, shown.sort, season) ? 1 : 0;
}

function playersShown() {
  const way = shown.isDown ? 1 : -1;
  return season.players.filter((player) => !shown.team || player.team === shown.team)
    .map((player) => ({ player, value: valueOf(player, shown.sort, shown.isTotal) }))
    .sort((one, other) => rankOf(one) - rankOf(other) || way * (other.value - one.value))
    .map(({ player }) => player);
}

function cell(player, column) {
  const value = valueOf(player, column.key, shown.isTotal);
  const text = value === null ? '–' : column.show(value, shown.isTotal);
  const isPale = value !== null && isFew(player, column.key, season);
  return h('td', { class: column.key === shown.sort ? (isPale ? 'key few' : 'key') : isPale ? 'few' : null }, text);
}

function headOf({ word, head: name, sign = '' }) {
  return (word ? t(word) : name ? headWord(name) : '') + sign;
}

function head(column) {
  const isSorted = column.key === shown.sort;
  const mark = isSorted ? h('span', { 'aria-hidden': 'true' }, shown.isDown ? ' ▾' : ' ▴') : null;
  return h('th', { scope: 'col', 'aria-sort': isSorted ? (shown.isDown ? 'descending' : 'ascending') : null },
    h('button', {
      id: `sort-${column.key}`,
      type: 'button',
      title: t(column.long),
      onclick: () => show({ sort: column.key, isDown: isSorted ? !shown.isDown : true })
    },
      headOf(column), mark));
}

function playerTable() {
  const players = playersShown();
  const isMarked = !shown.isTotal && players.some((player) => player.perGame.underMinimum);
  return h('section', { 'aria-labelledby': 'playersTitle' },
    h('h2', { id: 'playersTitle' }, t('seasonPlayers')),
    h('div', { class: 'picks' },
      h('select',
        { id: 'team', 'aria-label': t('team'), onchange: (event) => show({ team: event.target.value }) },
        h('option', { value: '', selected: shown.team === '' }, t('seasonEveryTeam')),
        season.teams.map(({ team }) => h('option', { value: team, selected: shown.team === team }, team))),
      ['', '1'].map((total) => h('button', {
        id: `total${total}`,
        type: 'button',
        'aria-pressed': String(shown.isTotal === (total === '1')),
        onclick: () => {
          remember('seasonTotals', total);
          show({ isTotal: total === '1' });
        }
      },
                      t(total ? 'seasonTotals' : 'seasonPerGame')))),
    region('playersScroll', t('seasonPlayers'),
      h('table', { class: 'players' },
        h('caption', { class: 'hidden' }, t(shown.isTotal ? 'seasonTotals' : 'seasonPerGame'), ' · ',
          t('seasonSorted', t(kColumns.find(({ key }) => key === shown.sort).long))),
        h('thead', null, h('tr', null, h('th', { scope: 'col' }, t('player')), kColumns.map(head))),
        h('tbody', null,
          players.map(
            (player) => h('tr', null,
              h('th', { scope: 'row' }, h('span', { class: 'name' }, `${player.number} ${player.name}`),
                h('small', null, player.team, !shown.isTotal && player.perGame.underMinimum ? ' *' : '')),
              kColumns.map((column) => cell(player, column))))))),
    h('p', { class: 'legend' }, t('seasonFew')),
    isMarked && h('p', { class: 'legend' }, t('seasonUnderMinimum')),
    !players.length && h('p', null, t('seasonNobody')));
}

function draw() {
  const parts = trouble  ? [h('p', { role: 'alert' }, trouble)] :
    !season              ? [h('p', null, t('seasonLoading'))] :
    !season.teams.length ? [h('p', null, t('seasonEmpty'))] :
                           [teamTable(), playerTable(), gameTable()];
  document.title = t('seasonTitle');
  paint(page, h('header', { class: 'top' }, h('h1', null, t('seasonTitle')), switches(draw)),
    h('main', null, parts));
}

function show(change) {
  Object.assign(shown, change);
  const query = new URLSearchParams(location.search);
  for (const [name, value] of [['team', shown.team], ['sort', shown.sort === 'PTS' ? '' : shown.sort]])
    value ? query.set(name, value) : query.delete(name);
  history.replaceState(null, '', query.size ? `?${query}` : location.pathname);
  draw();
}

async function load() {
  try {
    const answer = await fetch(`${base}/api/season`);
    if (answer.status === 404)
      trouble = t('seasonNotServed');
    else if (!answer.ok)
      throw new Error(String(answer.status));
    else
      season = await answer.json();
  } catch {
    trouble = t('noConnection');
  }
  if (season && !season.teams.some(({ team }) => team === shown.team))
    shown.team = '';
  draw();
}

const query = new URLSearchParams(location.search);
shown.team = query.get('team') ?? '';
if (kColumns.some(({ key }) => key === query.get('sort')))
  shown.sort = query.get('sort');
wearLook();
await loadWords();
draw();
load();
