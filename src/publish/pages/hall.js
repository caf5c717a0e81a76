// The screen of a hall. Nobody touches it: it draws itself anew after each change, and finds back by itself.
import { asksDirect, Feed } from './feed.js';
import { h, paint } from './dom.js';
import { teamLooks } from './colour.js';
import { dayName, loadWords, periodName, t } from './words.js';
import { abbOf, personText, sidesOf, tag, wordsOf } from './parts.js';
import { 
  clockPlace,
  headWord,
  keepDrawing,
  kRunTold,
  pointsInAll,
  shortPerson,
  timeOutsLeft
 } from './screens.js';

const kGround = '#000000';
const kText = '#ffffff';
const kSpare = 0.96; // of the room a text takes that was too long
const feed = new Feed(true, asksDirect());
const hall = document.getElementById('hall');
const order = new URLSearchParams(location.search).get('order') === 'home' ? 'home' : '';

function wearColours(teams) {
  teamLooks(teams, kGround, kText).forEach((look, side) => {
    document.documentElement.style.setProperty(`--team${side}`, look.surface);
    document.documentElement.style.setProperty(`--on${side}`, look.on);
  });
}

function notice(title, ...lines) {
  return h('main', { class: 'notice' }, title, lines.filter(Boolean).map((line) => h('p', null, line)));
}

function beforeTheGame(game) {
  const { date, place, competition, round } = game.details ?? {};
  const [left, right] = sidesOf(game);
  const teams = [left, right].map(
    (side) => h('span', { class: `tag side${side}` }, game.teams[side].name || abbOf(game, side)));
  return notice(h('div', { class: 'teams' }, teams), [competition, round].filter(Boolean).join(' · '),
    [date && dayName(date), place].filter(Boolean).join(' · '));
}

function fiveTable(game, side) {
  const team = game.teams[side];
  const five = (team.players ?? []).filter((player) => player.onCourt);
  const limit = game.rules.foulLimit;
  return h('table', null, h('caption', { class: 'hidden' }, t('onCourt')),
    h('thead', null,
      h('tr', null, h('th', { scope: 'col' }, h('span', { class: 'hidden' }, t('player'))),
        h('th', { scope: 'col' }, headWord('pts')), h('th', { scope: 'col' }, t('fouls')))),
    h('tbody', null,
      five.map((player) => h('tr', null, h('th', { scope: 'row' }, shortPerson(player)),
                 h('td', { class: 'points' }, player.PTS),
                 h('td', { class: limit > 0 && player.PF >= limit - 1 ? 'stands' : '' }, player.PF)))));
}

function sideOf(game, side) {
  const team = game.teams[side];
  return h('section', { class: 'side' }, h('h2', { class: `side${side}` }, abbOf(game, side)),
    h('p', { class: 'score' }, team.points), fiveTable(game, side));
}

function counts(game, left, right) {
  const fouls = (side, where) =>
    h('span', { class: where }, game.teams[side].shootsBonus && h('span', { class: 'bonus' }, t('bonus')),
      h('b', null, game.teams[side].foulsNow));
  const rests = (side, where) => h('span', { class: where }, timeOutsLeft(game.teams[side].timeOuts));
  const hasRests = [left, right].some((side) => Number.isInteger(game.teams[side].timeOuts?.left));
  const row = (of, word) =>
    h('div', { class: 'counts' }, of(left, 'left'), h('span', { class: 'what' }, word), of(right, 'right'));
  return [row(fouls, t('fouls')), hasRests && row(rests, t('timeOuts'))];
}

// Large as long as it fits: a long name or three digits take a smaller type, both scores the same.
function fit() {
  const fitted = (nodes) => {
    const least = Math.min(1, ...nodes.map((node) => node.clientWidth / node.scrollWidth));
    for (const node of nodes)
      if (least < 1)
        node.style.fontSize =
          `${Math.floor(kSpare * least * Number.parseFloat(getComputedStyle(node).fontSize))}px`;
  };
  const all = (selector) => [...document.querySelectorAll(selector)];
  fitted(all('.score'));
  fitted(all('.side h2'));
  fitted(all('.periods tbody th'));
  for (const node of all('.clock, .period, .side tbody th, .last'))
    fitted([node]);
}

function runOf(game) {
  const isTold = game.run && game.run.points >= kRunTold;
  return h(
    'div', { class: 'run' }, isTold && [tag(game, game.run.team), h('b', null, `${game.run.points}–0`),
      h('span', null, t('runPoints', game.run.points))]);
}

function periodTable(game, left, right) {
  const count = Math.max(...game.teams.map((team) => team.periods.length), 1);
  // Regular periods and one overtime fit; of more the last ones are told.
  const first = Math.max(0, count - 5);
  const told = Array.from({ length: count - first }, (none, at) => first + at);
  return h('table', { class: 'periods' }, h('caption', { class: 'hidden' }, t('byPeriod')),
    h('thead', null,
      h('tr', null, h('td'), told.map((at) => h('th', { scope: 'col' }, periodName(at + 1, game.rules))))),
    h('tbody', null,
      [left, right].map((side) => h('tr', null, h('th', { scope: 'row' }, abbOf(game, side)),
                          told.map((at) => h('td', null, game.teams[side].periods[at] ?? '–'))))));
}

function stateWords(game) {
  if (feed.isLost)
    return t('noConnection');
  return game.state === 'stopped' ? t('clockStopped') : '';
}

function middle(game, left, right) {
  const { text, isWords } = clockPlace(feed);
  const stands = feed.isLost || game.state !== 'running' ? ' stands' : '';
  return h('section', { class: 'middle' },
    h('p', { class: 'period' }, periodName(game.clock.period, game.rules)),
    h('p', { id: 'clock', class: `clock${isWords ? ' words' : ''}${stands}` }, text),
    h('p', { class: 'state stands' }, stateWords(game)),
    game.state !== 'final' && [counts(game, left, right), runOf(game)], periodTable(game, left, right));
}

function lastBasket(game) {
  const play = (game.plays ?? []).findLast(({ made }) => made);
  if (!play)
    return h('footer', { class: 'last' });
  const words = [personText(play.number, play.name), wordsOf(play), pointsInAll(play)].filter(Boolean);
  return h('footer', { class: 'last' }, play.team === null ? null : tag(game, play.team),
    h('b', null, `+${play.points}`), h('span', null, words.join(' · ')));
}

function draw() {
  const { game } = feed;
  document.title = t('hallTitle');
  hall.className = 'hall';
  if (!game)
    return paint(hall, notice(feed.isLost ? t('noConnection') : ''));
  if (order)
    game.order = order;
  if (game.state === 'none' || !game.teams?.length)
    return paint(hall, notice(t('noGame')));
  wearColours(game.teams);
  if (game.state === 'before')
    return paint(hall, beforeTheGame(game));
  const [left, right] = sidesOf(game);
  hall.classList.toggle('three', game.teams.some(({ points }) => points > 99));
  paint(hall, h('h1', { class: 'hidden' }, t('hallTitle')), sideOf(game, left), middle(game, left, right),
    sideOf(game, right), lastBasket(game));
  return fit();
}

await loadWords();
feed.listen(draw);
feed.start();
draw();
keepDrawing(feed, draw, () => {
  const clock = document.getElementById('clock');
  if (!clock || !feed.game)
    return;
  const { text } = clockPlace(feed);
  if (clock.textContent === text)
    return;
  const isLonger = clock.textContent.length !== text.length;
  clock.textContent = text;
  if (isLonger)
    draw();
});
addEventListener('resize', draw);
