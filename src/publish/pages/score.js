// The score and what just happened; below it the periods and who scores most. The small part of the game is
// enough for it.
import { base, h } from './dom.js';
import { dayName, periodName, t } from './words.js';
import { begin } from './frame.js';
import { abbOf, isTold, personText, playRow, playsWithGone, scoreHead, sidesOf, tag } from './parts.js';

const kPlays = 4;
const kLeftOut = ['substitution', 'other']; // what tells little by itself

function details(game) {
  const { date = '', time = '', place = '', competition = '', round = '' } = game.details ?? {};
  const lines = [game.teams.every((team) => team.name) &&
                 sidesOf(game).map((side) => game.teams[side].name).join(' – '),
                 [date && dayName(date), time].filter(Boolean).join(', '), place,
                 [competition, round].filter(Boolean).join(', ')];
  return h('section', { class: 'details', 'data-key': 'details' }, h('h2', { class: 'hidden' }, t('notBegun')),
           lines.filter(Boolean).map((line) => h('p', null, line)));
}

function lastPlays(feed) {
  const told = playsWithGone(feed).filter((play) => isTold(play) && !kLeftOut.includes(play.kind));
  if (!told.length)
    return null;
  return h('section', { class: 'rows', 'data-key': 'plays' }, h('h2', null, t('lastPlays')),
    h('ol', { class: 'plays', reversed: true }, told.slice(-kPlays).reverse().map((play) => playRow(feed, play))),
    h('p', { class: 'all' }, h('a', { href: `${base}/plays` }, t('allPlays'))));
}

// What is left stands in the head while there is a game to play.
function timeOutsTaken(game) {
  const isLeftTold = game.teams.every((team) => typeof team.timeOuts?.left === 'number');
  if (game.state !== 'final' && isLeftTold)
    return null;
  const taken = sidesOf(game).map((side) => `${abbOf(game, side)} ${game.teams[side].timeOuts?.taken ?? 0}`);
  return h('p', { class: 'legend' }, `${t('timeOutsTaken')} – ${taken.join(' · ')}`);
}

function byPeriod(game) {
  const played = Math.max(...game.teams.map((team) => team.periods.length));
  const periods = Array.from({ length: Math.max(played, game.rules?.periods ?? 0) }, (_, at) => at + 1);
  return h('section', { 'data-key': 'periods' }, h('h2', null, t('byPeriod')),
    h('div', { class: 'scroll', tabindex: '0', role: 'region', 'aria-label': t('byPeriod') },
      h('table', null, h('caption', { class: 'hidden' }, t('byPeriod')),
        h('thead', null, h('tr', null, h('th', { scope: 'col' }, t('team')),
          periods.map((period) => h('th', { scope: 'col' }, periodName(period, game.rules))),
          h('th', { scope: 'col' }, t('total')))),
        h('tbody', null, sidesOf(game).map((side) => h('tr', null, h('th', { scope: 'row' }, tag(game, side)),
          periods.map((period) => h('td', null, game.teams[side].periods[period - 1] ?? '')),
          h('td', { class: 'key' }, game.teams[side].points)))))),
    timeOutsTaken(game));
}

function scorers(game) {
  const rows = sidesOf(game).flatMap((side) => (game.teams[side].scorers ?? []).map((scorer) => h('tr', null,
    h('td', null, tag(game, side)), h('th', { scope: 'row' }, personText(scorer.number, scorer.name)),
    h('td', { class: 'key' }, scorer.points))));
  if (!rows.length)
    return null;
  return h('section', { 'data-key': 'scorers' }, h('h2', null, t('topScorers')),
    h('table', { class: 'scorers' }, h('caption', { class: 'hidden' }, t('topScorers')),
      h('thead', { class: 'hidden' }, h('tr', null, ['team', 'player', 'points'].map((name) =>
        h('th', { scope: 'col' }, t(name))))),
      h('tbody', null, rows)));
}

function draw(feed) {
  const { game } = feed;
  return [scoreHead(feed), game.state === 'before' ? details(game) : lastPlays(feed),
          game.state !== 'before' && byPeriod(game), game.state !== 'before' && scorers(game)];
}

await begin({ page: 'score', isWhole: false, draw });
