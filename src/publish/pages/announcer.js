// The announcer's page: all that the last reading of the clock brought, in the order in which it is spoken,
// and below it what came before. Misses and rebounds are left out: nobody calls them.
import { asksDirect, Feed } from './feed.js';
import { h, paint } from './dom.js';
import { wearTeamColours } from './colour.js';
import { clockText } from './clock.js';
import { abbOf, personText, sidesOf, tag, wordsOf } from './parts.js';
import { loadWords, ordinal, t } from './words.js';
import { wearLook } from './look.js';
import { keepDrawing, pointsInAll, shortPerson } from './screens.js';
import { deskHead, tickDesk, timeOutsOf } from './desk.js';
import { switches } from './switches.js';

const kSpoken = ['foul', 'technical', 'benchTechnical', 'timeOut', 'substitution'];
const kBefore = 8;
const kFewCards = 3; // that have room in large type

const feed = new Feed(true, asksDirect());
const page = document.getElementById('announcer');

function isSpoken(play) {
  return play.made === true || kSpoken.includes(play.kind);
}

const isSameReading = (one, other) => one.period === other.period && one.clock === other.clock;

// Throws of one shooter that follow each other are called once.
function joined(plays) {
  const calls = [];
  for (const play of plays) {
    const before = calls.at(-1);
    const isMore = before && play.kind === 'freeThrow' && before.play.kind === 'freeThrow' &&
      isSameReading(play, before.play) && play.team === before.play.team &&
      play.number === before.play.number;
    if (isMore)
      calls[calls.length - 1] = { play, times: before.times + 1, ids: [...before.ids, play.id] };
    else
      calls.push({ play, times: 1, ids: [play.id] });
  }
  return calls;
}

function teamName(game, side) {
  return game.teams[side].name || abbOf(game, side);
}

function whoOf(game, play) {
  return personText(play.number, play.name) || (play.team === null ? '' : teamName(game, play.team));
}

// How many assists he has with this one; of an earlier one that cannot be told.
function assistsNow(game, play) {
  const { number, team } = play.with;
  const isLast = !game.plays.slice(game.plays.findIndex(({ id }) => id === play.id) + 1)
                    .some((later) => later.with?.kind === 'assist' && later.with.team === team &&
                        later.with.number === number);
  const player = isLast && game.teams[team]?.players?.find((one) => one.number === number);
  return player ? ` (${player.Ast})` : '';
}

function detailsOf(game, { play }) {
  const details = [];
  if (play.made && pointsInAll(play))
    details.push(h('b', null, pointsInAll(play)));
  if (play.with?.kind === 'assist')
    details.push(t('withAssist', personText(play.with.number, play.with.name)) + assistsNow(game, play));
  if (play.kind === 'foul' && play.fouls)
    details.push(h('b', null, t('announcerFoul', ordinal(play.fouls)), play.out && ` – ${t('out')}`));
  else if (play.out)
    details.push(h('b', null, t('out')));
  if (play.teamFouls)
    details.push(t('announcerTeamFouls', play.teamFouls));
  return details;
}

function withDots(parts) {
  return parts.flatMap((part, at) => (at ? [' · ', part] : [part]));
}

function correction(ids) {
  const mark = ids.map((id) => feed.marks.get(id)).find(Boolean);
  return mark &&
    h('p', { class: 'corrected' }, h('span', { 'aria-hidden': 'true' }, '✎ '), t('announcerCorrected'));
}

function card(game, call) {
  const { play } = call;
  return h('li', { class: play.out ? 'card alarm' : 'card', 'data-key': play.id },
    h('p', { class: 'what' }, play.team === null ? null : tag(game, play.team), ' ',
      call.times > 1 && `${call.times} × `, wordsOf(play)),
    h('p', { class: 'who' }, whoOf(game, play)), h('p', { class: 'more' }, withDots(detailsOf(game, call))),
    correction(call.ids));
}

function named(game, side, number) {
  return game.teams[side].players?.find((one) => one.number === number) ?? { number, name: '' };
}

const hasExchange = (play, side) => play.in[side].length + play.outs[side].length > 0;

// One card for each team that changes, those who come in large.
function exchangeCards(game, { play, ids }) {
  return sidesOf(game)
    .filter((side) => hasExchange(play, side))
    .map(
      (side) => h('li', { class: 'card exchange', 'data-key': `${play.id}-${side}` },
        h('p', { class: 'what' }, tag(game, side), ' ', wordsOf(play)),
        h('p', { class: 'who' },
          play.in[side].map(
            (number) => h('span', { class: 'in' }, personText(number, named(game, side, number).name)))),
        play.outs[side].length > 0 &&
          h('p', { class: 'more' },
            t('goOut', play.outs[side].map((number) => shortPerson(named(game, side, number))).join(', '))),
        correction(ids)));
}

function rowText(game, { play, times }) {
  const parts = [(times > 1 ? `${times} × ` : '') + wordsOf(play)];
  if (play.made && play.total > 0)
    parts.push(t('inAll', play.total));
  if (play.kind === 'foul' && play.fouls)
    parts[0] = t('announcerFoul', ordinal(play.fouls));
  if (play.out)
    parts[0] += ` – ${t('out')}`;
  return parts.join(' · ');
}

function exchangeText(game, play) {
  return sidesOf(game)
    .filter((side) => hasExchange(play, side))
    .map((side) => h('span', { class: 'line' }, tag(game, side), ' ', [
      play.in[side].length && t('comeIn', play.in[side].join(', ')),
      play.outs[side].length && t('goOut', play.outs[side].join(', '))
    ].filter(Boolean).join(' · ')));
}

function beforeRow(game, call) {
  const { play } = call;
  const isExchange = play.kind === 'substitution';
  return h('li', { 'data-key': play.id }, h('span', { class: 'when' }, clockText(play.clock)),
    isExchange ? h('span', null, exchangeText(game, play)) :
                 h('span', null, play.team === null ? null : tag(game, play.team), ' ',
                   h('b', null, whoOf(game, play)), ' ', rowText(game, call)));
}

function content(game) {
  const calls = joined((game.plays ?? []).filter(isSpoken));
  const last = calls.at(-1);
  if (!last)
    return h('main', null,
      h('p', { class: 'empty' }, game.state === 'before' ? t('notBegun') : t('announcerNothing')));
  const first = calls.findIndex(({ play }) => isSameReading(play, last.play));
  const now = calls.slice(first);
  const before = calls.slice(Math.max(0, first - kBefore), first).reverse();
  const cards = now.flatMap(
    (call) => (call.play.kind === 'substitution' ? exchangeCards(game, call) : [card(game, call)]));
  return h('main', null,
    h('section', { 'aria-labelledby': 'nowTitle' },
      h('h2', { id: 'nowTitle', class: 'hidden' }, t('announcerNow')),
      h('ol', { class: cards.length > kFewCards ? 'cards many' :
          cards.length === 1                    ? 'cards one' :
                                                  'cards' },
        cards)),
    before.length > 0 &&
      h('section', { 'aria-labelledby': 'beforeTitle' }, h('h2', { id: 'beforeTitle' }, t('announcerBefore')),
        h('ol', { class: 'before' }, before.map((call) => beforeRow(game, call)))));
}

function head(game) {
  const [left, right] = sidesOf(game);
  const { teams } = game;
  return deskHead(feed, {
    sides: [left, right].map((side) => ({ tag: tag(game, side), points: teams[side].points })),
    of: game,
    late: game.delay > 0 ? t('late', game.delay) : '',
    facts: [
      [t('deskTeamFouls'), `${teams[left].foulsNow} – ${teams[right].foulsNow}`],
      timeOutsOf([teams[left], teams[right]])
    ],
  });
}

function draw() {
  const { game } = feed;
  document.title = t('announcerTitle');
  const hasGame = game && game.state !== 'none' && game.teams?.length === 2;
  page.className = feed.isLost ? 'lost' : '';
  if (hasGame)
    wearTeamColours(game.teams);
  paint(page, h('p', { class: 'hidden', role: 'alert' }, feed.isLost ? t('noConnection') : ''),
    hasGame ? [head(game), content(game)] :
              h('main', null,
                h('p', { class: 'empty' },
                  game          ? t('noGame') :
                    feed.isLost ? t('noConnection') :
                                  '')),
    h('footer', { class: 'deskFoot' }, switches(draw)));
}

wearLook();
await loadWords();
feed.listen(draw);
feed.start();
draw();
keepDrawing(feed, draw, () => tickDesk(feed, feed.game));
