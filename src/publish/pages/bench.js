// The bench's page: for who has three seconds, then ten. What a team is told comes in words from the server.
import { base, h, paint } from './dom.js';
import { wearTeamColours } from './colour.js';
import { lang, loadWords, remember, remembered, t } from './words.js';
import { wearLook } from './look.js';
import { keepDrawing } from './screens.js';
import { deskHead, tickDesk, timeOutsOf } from './desk.js';
import { switches } from './switches.js';
import { BenchFeed } from './bench-feed.js';
import { benchTables, tiles } from './bench-parts.js';

const page = document.getElementById('bench');
let names = [];
let rules = null; // of the game: they name the periods
let feed = null;
let team = chosenTeam();

function chosenTeam() {
  const asked = new URLSearchParams(location.search).get('team');
  const kept = remembered(`bench${base}`);
  return [asked, kept].find((value) => value === '0' || value === '1') ?? '';
}

function choose(to) {
  team = to;
  remember(`bench${base}`, to);
  const query = new URLSearchParams(location.search);
  query.set('team', to);
  history.replaceState(null, '', `?${query}`);
  if (feed)
    feed.change(team, lang);
  else
    follow();
  draw();
}

function changed() {
  feed?.change(team, lang);
  draw();
}

function tag(of, side) {
  return h('span', { class: `tag side${side}` }, of.name);
}

function head(board) {
  const { us, them } = board;
  return deskHead(feed, {
    sides: [{ tag: tag(us, 0), points: us.points }, { tag: tag(them, 1), points: them.points }],
    of: {...board, rules },
    facts: [
      [t('deskTeamFouls'), `${us.fouls} – ${them.fouls}`],
      us.foulWords && [t('benchNextFoul'), h('span', { class: us.bonus ? 'bad' : null }, us.foulWords)],
      timeOutsOf([us, them])
    ],
  });
}

function wearColours(board) {
  // Who reads this page is `us`: the first of the two.
  wearTeamColours([board.us, board.them]);
}

function choice() {
  return h('main', { class: 'choice' }, h('h1', null, t('benchWhich')),
    h('div', { class: 'buttons' },
      names.map((name, side) => h('button',
                  { id: `bench${side}`, type: 'button', onclick: () => choose(String(side)) }, name))));
}

function notice(text, canTry) {
  return h('main', { class: 'choice' }, h('h1', null, t('benchTitle')), h('p', { role: 'alert' }, text),
    canTry &&
      h('div', { class: 'buttons' },
        h('button', { id: 'again', type: 'button', onclick: () => feed.ask() }, t('benchAgain'))));
}

function content() {
  if (team === '')
    return choice();
  if (feed.refusal)
    return notice(t({ 401: 'benchLocked', 403: 'benchClosed', 429: 'benchWait', 404: 'noGame' }[feed.refusal]), true);
  const { board } = feed;
  if (!board)
    return notice(feed.isLost ? t('noConnection') : '', false);
  if (board.state === 'none' || !board.us)
    return notice(t('noGame'), false);
  wearColours(board);
  return [head(board), tiles(board), benchTables(board)];
}

function draw() {
  const isLost = Boolean(feed?.isLost && feed.board);
  document.title = feed?.board?.us ? `${feed.board.us.name} · ${t('benchTitle')}` : t('benchTitle');
  page.className = isLost ? 'bench lost' : 'bench';
  const others = feed?.board?.us &&
    h('button', { id: 'other', type: 'button', onclick: () => choose(team === '0' ? '1' : '0') },
      t('benchOther', names[team === '0' ? 1 : 0]));
  paint(page, h('p', { class: 'hidden', role: 'alert' }, isLost ? t('noConnection') : ''), content(),
    h('footer', { class: 'deskFoot' }, others, switches(changed)));
}

// The buttons name the teams; without a game they stay visitors and home.
async function askForNames() {
  names = [t('screenVisitors'), t('screenHome')];
  try {
    const game = await (await fetch(`${base}/api/game?parts=score`)).json();
    rules = game.rules;
    names = names.map((name, side) => game.teams?.[side]?.abb || name);
  } catch {
    return;
  }
  draw();
}

function follow() {
  feed = new BenchFeed(team, lang, draw);
  feed.start();
  keepDrawing(feed, draw, () => tickDesk(feed, feed.board));
}

wearLook();
await loadWords();
askForNames();
if (team !== '')
  follow();
draw();
