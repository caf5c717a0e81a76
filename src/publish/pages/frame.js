// What stands around every page for spectators: the state in words, language, look, the banner while the
// connection is lost, the pages' bar, and the one live region. A page gives what it draws.
import { base, h, paint, svg } from './dom.js';
import { changeLanguage, lang, loadWords, remember, t } from './words.js';
import { dark, look, wearLook } from './look.js';
import { clockText, tick } from './clock.js';
import { wearTeamColours } from './colour.js';
import { Feed } from './feed.js';
import { abbOf, breakText, sidesOf } from './parts.js';

const kSayEvery = 10000;
const kPages = [
  ['score', '/', 'M3 5h18v14H3zM12 5v14M6 9h3M15 9h3'],
  ['box', '/box', 'M4 5h16M4 10h16M4 14.5h16M4 19h16M9 5v14'],
  ['plays', '/plays', 'M4 6h.01M8 6h12M4 12h.01M8 12h12M4 18h.01M8 18h12'],
  ['shots', '/shots', 'M5 20V11a7 7 0 0 1 14 0v9M10 20v-6h4v6'],
  ['flow', '/flow', 'M3 18l6-6 4 4 8-10'],
];
const kMoon = 'M20 14.5A8.5 8.5 0 1 1 9.5 4a7 7 0 0 0 10.5 10.5z';
const kSun = 'M12 8a4 4 0 1 0 0 8 4 4 0 0 0 0-8zM12 2v3M12 19v3M2 12h3M19 12h3M5 5l2 2M17 17l2 2M5 19l2-2M17 7l2-2';

function icon(path) {
  return svg('svg', { viewBox: '0 0 24 24', class: 'icon', 'aria-hidden': 'true' }, svg('path', { d: path }));
}

function stateLine(feed) {
  const { game } = feed;
  if (feed.isLost)
    return h('p', { class: 'state lost' }, h('span', { 'aria-hidden': 'true' }, '⚠ '), t('noConnection'));
  if (!game || game.state === 'none')
    return h('p', { class: 'state' });
  const late = game.delay > 0 && game.state !== 'final' && ` · ${t('late', game.delay)}`;
  if (game.state === 'running')
    return h('p', { class: 'state live' }, h('span', { 'aria-hidden': 'true' }, '● '), t('live'), late);
  const words = game.state === 'before' ? t('notBegun') : breakText(game) || t('clockStopped');
  const isPaused = game.state === 'stopped';
  return h('p', { class: 'state' }, isPaused && h('span', { 'aria-hidden': 'true' }, '❚❚ '), words, late);
}

class Frame {
  #page;
  #draw;
  #parts = {};
  #said = 0;
  #saying = null;
  #points = null;
  #wearing = '';

  constructor(page, feed, draw) {
    this.#page = page;
    this.#draw = draw;
    this.feed = feed;
    const part = (name, node) => (this.#parts[name] = node);
    document.body.append(
      part('skip', h('a', { class: 'skip', href: '#main' })),
      part('top', h('header', { class: 'top' })), part('banner', h('div', { class: 'banner', role: 'alert' })),
      part('main', h('main', { id: 'main', tabindex: '-1' })), part('nav', h('nav', { class: 'pages' })),
      part('said', h('p', { class: 'hidden', 'aria-live': 'polite' })));
    dark.addEventListener('change', () => this.#changeLook(look()));
  }

  #changeLook(to) {
    document.documentElement.dataset.look = to;
    this.#wearing = '';
    this.draw();
  }

  #switchLook() {
    const to = document.documentElement.dataset.look === 'dark' ? 'light' : 'dark';
    remember('look', to);
    this.#changeLook(to);
  }

  async #switchLanguage() {
    await changeLanguage(lang === 'fr' ? 'en' : 'fr');
    this.draw();
  }

  #drawTop() {
    const isDark = document.documentElement.dataset.look === 'dark';
    const { top, banner } = this.#parts;
    const { feed } = this;
    top.classList.toggle('lost', feed.isLost);
    paint(top, stateLine(feed),
      base && h('a', { id: 'games', href: '/games' }, t('games')),
      h('button', { id: 'language', class: 'link', type: 'button', lang: lang === 'fr' ? 'en' : 'fr',
                    onclick: () => this.#switchLanguage() }, t('otherLanguage')),
      h('button', { id: 'look', class: 'sign', type: 'button', 'aria-label': t('darkLook'),
                    'aria-pressed': String(isDark), onclick: () => this.#switchLook() },
        icon(isDark ? kSun : kMoon)));
    const hasAge = feed.isLost && feed.game;
    const [before, behind] = t('numbersOld').split('XXX');
    const age = h('span', { 'aria-live': 'off' }, clockText(feed.age / 1000));
    paint(banner, feed.isLost && h('p', null, hasAge && [before, age, behind, ' '], t('tryingAgain')));
    document.body.classList.toggle('lost', feed.isLost);
  }

  #drawNav() {
    const { nav, skip } = this.#parts;
    paint(skip, t('toContent'));
    paint(nav, kPages.map(([name, path, drawing]) =>
      h('a', { href: base + path, 'aria-current': name === this.#page ? 'page' : null },
        icon(drawing), h('span', null, t(`${name}Page`)))));
  }

  draw() {
    const { game } = this.feed;
    this.#drawTop();
    this.#drawNav();
    const hasTeams = game?.teams?.length === 2;
    if (hasTeams && this.#wearing !== game.teams.map((team) => team.colour).join()) {
      this.#wearing = game.teams.map((team) => team.colour).join();
      wearTeamColours(game.teams);
    }
    if (!game)
      return;
    if (game.state === 'none' || !hasTeams) {
      document.title = 'HOOPTAB';
      paint(this.#parts.main, h('h1', { class: 'hidden' }, 'HOOPTAB'), h('p', { class: 'empty' }, t('noGame')));
      return;
    }
    const [left, right] = sidesOf(game);
    const heading = `${abbOf(game, left)} ${game.teams[left].points}–${game.teams[right].points} ${abbOf(game, right)}`;
    document.title = game.state === 'before' ? `${abbOf(game, left)} – ${abbOf(game, right)}` : heading;
    paint(this.#parts.main,
      h('h1', { class: 'hidden' }, `${abbOf(game, left)} – ${abbOf(game, right)} · ${t(`${this.#page}Page`)}`),
      this.#draw(this.feed));
  }

  // Each second while there is something to count up.
  beat() {
    if (this.feed.isLost || document.body.classList.contains('lost'))
      this.#drawTop();
  }

  // A sentence for who listens, only when the score has changed, and never two within ten seconds.
  say(corrections) {
    const { game } = this.feed;
    if (!game?.teams || game.teams.length !== 2)
      return;
    const points = game.teams.map((team) => team.points).join();
    const hasChanged = this.#points !== null && this.#points !== points;
    this.#points = points;
    if (!hasChanged)
      return;
    const isCorrection = corrections.length > 0;
    clearTimeout(this.#saying);
    this.#saying = setTimeout(() => {
      this.#said = Date.now();
      const text = sidesOf(this.feed.game)
        .map((side) => `${abbOf(this.feed.game, side)} ${this.feed.game.teams[side].points}`).join(', ');
      this.#parts.said.textContent = isCorrection ? t('correctionSaid', text) : text;
    }, Math.max(0, this.#said + kSayEvery - Date.now()));
  }
}

// Sets a page up. `isWhole`: it needs players, flow and all plays; `isQuiet`: nothing is said of changes.
export async function begin({ page, isWhole = true, isQuiet = false, draw }) {
  wearLook();
  await loadWords();
  const feed = new Feed(isWhole);
  const frame = new Frame(page, feed, draw);
  feed.listen((_, corrections) => {
    if (!isQuiet)
      frame.say(corrections);
    frame.draw();
  });
  frame.draw();
  tick(feed);
  setInterval(() => frame.beat(), 1000);
  feed.start();
  return { feed, redraw: () => frame.draw() };
}
