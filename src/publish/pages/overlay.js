// What a stream lays over its picture. The address says which parts, where, how large; what it says wrongly
// counts as not said. A part comes and goes by itself; nobody touches the page.
import { asksDirect, Feed } from './feed.js';
import { epochOf } from './apply.js';
import { paint } from './dom.js';
import { teamLooks } from './colour.js';
import { loadWords } from './words.js';
import { keepDrawing, clockPlace } from './screens.js';
import { board, bug, lowerThird, tab } from './overlay-parts.js';

const kParts = ['bug', 'last', 'lower', 'board'];
const kPlaces = ['bl', 'br', 'tl', 'tr', 'bc'];
const kLastFor = 5000;
const kLowerFor = 8000;
const kMostNews = 3; // baskets at once
const kScoreAloneAfter = 60000; // without a connection
const kWidestBoard = 1.4;

const query = new URLSearchParams(location.search);
const asked = (name, pattern) => (pattern.test(query.get(name) ?? '') ? query.get(name) : '');
const ranged = (name, pattern, least, most, usual) => {
  const value = asked(name, pattern);
  return value !== '' && Number(value) >= least && Number(value) <= most ? Number(value) : usual;
};
const named = (query.get('show') ??
  '').split(',').filter((part, at, all) => kParts.includes(part) && all.indexOf(part) === at);
const parts = named.length ? named : kParts;
const isAlone = parts.length === 1;
const place = kPlaces.includes(query.get('at')) ? query.get('at') : 'bl';
const scale = ranged('scale', /^\d(\.\d{1,3})?$/, 0.5, 2, 1);
const delay = ranged('delay', /^\d{1,2}$/, 0, 60, 0) * 1000;
const player = asked('player', /^[01]-\d{1,3}$/);
const order = query.get('order') === 'home' ? 'home' : '';

const overlay = document.getElementById('overlay');
const feed = new Feed(true, asksDirect());
const known = new Set(); // plays that were there before, or have had their time on the picture
let gameShown = ''; // which one
let waiting = []; // games whose time has not come, with a delay
let last = null; // the play whose tab is shown
let lower = null; // who is told of, "0-12"
const timers = {};

// The game as it is shown: late where a delay was asked for.
const shown = {
  game: null,
  get now() {
    return feed.now - delay;
  },
  get isLost() {
    return feed.isLost;
  },
};

function forAWhile(name, time, forget) {
  clearTimeout(timers[name]);
  timers[name] = setTimeout(() => {
    forget();
    draw();
  }, time);
}

// A basket or a disqualification that was not there before. What stood in the game at first is no news, nor
// is what came while there was no connection.
function takeNews(game) {
  const plays = game.plays ?? [];
  const basket = plays.findLast((play) => play.made);
  const foul = plays.findLast((play) => play.out);
  const name = [epochOf(game.id), game.details?.date, ...(game.teams ?? []).map((team) => team.abb)].join();
  if (name !== gameShown)
    known.clear();
  const isNews =
    name === gameShown && plays.filter((play) => play.made && !known.has(play.id)).length <= kMostNews;
  gameShown = name;
  if (isNews && basket && !known.has(basket.id)) {
    last = basket.id;
    forAWhile('last', kLastFor, () => (last = null));
  }
  if (isNews && foul && foul.team !== null && !known.has(`${foul.id} out`)) {
    lower = `${foul.team}-${foul.number}`;
    forAWhile('lower', kLowerFor, () => (lower = null));
  }
  for (const play of plays) {
    known.add(play.id);
    if (play.out)
      known.add(`${play.id} out`);
  }
}

function wearColours(teams) {
  teamLooks(teams, '#0c1015', '#ffffff').forEach((look, side) => {
    document.documentElement.style.setProperty(`--team${side}`, look.surface);
    document.documentElement.style.setProperty(`--on${side}`, look.on);
  });
}

const has = (part) => parts.includes(part);

// The board has the score with it, and stands alone.
const isBoardTime = (game) => has('board') && (isAlone || ['break', 'final'].includes(game.state));

function partsNow(game) {
  if (isBoardTime(game))
    return [board(shown)];
  const basket =
    has('last') && (game.plays ?? []).findLast((play) => play.made && (isAlone || play.id === last));
  const who = has('lower') && (player || lower);
  return [
    basket && tab(game, basket), who && lowerThird(game, who),
    has('bug') && bug(shown, feed.age > kScoreAloneAfter)
  ];
}

function draw() {
  const { game } = shown;
  overlay.className = place;
  if (game && order)
    game.order = order;
  if (!game || ['none', 'before'].includes(game.state) || game.teams?.length !== 2)
    return paint(overlay);
  wearColours(game.teams);
  document.documentElement.style.fontSize = `${isBoardTime(game) ? Math.min(scale, kWidestBoard) : scale}vw`;
  return paint(overlay, partsNow(game));
}

function show(game) {
  shown.game = game;
  takeNews(game);
  draw();
}

function showWhatIsDue() {
  const due = waiting.filter(({ at }) => at <= Date.now());
  waiting = waiting.filter(({ at }) => at > Date.now());
  for (const { game } of due)
    show(game);
}

let isScoreAlone = false;
await loadWords();
feed.listen(() => {
  if (!feed.game)
    return;
  if (delay)
    waiting.push({ at: Date.now() + delay, game: structuredClone(feed.game) });
  else
    show(feed.game);
});
feed.start();
keepDrawing(feed, draw, () => {
  showWhatIsDue();
  const clock = document.getElementById('clock');
  const isOld = feed.age > kScoreAloneAfter;
  if (isOld !== isScoreAlone) {
    isScoreAlone = isOld;
    draw();
  } else if (clock && shown.game && clock.textContent !== clockPlace(shown).text) {
    clock.textContent = clockPlace(shown).text;
  }
});
