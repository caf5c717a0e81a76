// The games that are served, with their scores; each leads to its own pages.
import { h, paint } from './dom.js';
import { changeLanguage, dayName, lang, loadWords, periodName, t } from './words.js';
import { clockText } from './clock.js';
import { wearLook } from './look.js';
import { breakText, sidesOf } from './parts.js';

const kEvery = 5000;

async function asked(address) {
  const answer = await fetch(address);
  if (!answer.ok)
    throw new Error(String(answer.status));
  return answer.json();
}

function stateText(game) {
  if (game.state === 'none')
    return t('noGame');
  if (game.state === 'before')
    return [t('notBegun'), game.date && dayName(game.date)].filter(Boolean).join(' · ');
  const words = breakText(game);
  if (words)
    return words;
  const clock = [periodName(game.clock.period, game.rules), clockText(game.clock.seconds)].filter(Boolean).join(' ');
  return game.state === 'running' ? `● ${clock}` : clock;
}

function addressOf(name) {
  return name ? `/g/${encodeURIComponent(name)}/` : '/';
}

function entry({ name, game }) {
  const hasTeams = game?.teams?.length === 2;
  return h('li', { 'data-key': name }, h('a', { id: `game-${name}`, href: addressOf(name) },
    hasTeams ? sidesOf(game).map((side) => h('span', { class: 'pair' },
      h('b', null, game.teams[side].abb || game.teams[side].name), h('span', { class: 'points' }, game.teams[side].points)))
      : h('b', null, name),
    h('span', { class: 'state' }, game ? stateText(game) : t('noConnection'))));
}

let entries = null;
let isLost = false;

function draw() {
  document.title = `${t('games')} · HOOPTAB`;
  const other = lang === 'fr' ? 'en' : 'fr';
  paint(document.body,
    h('header', { class: 'top' }, h('p', { class: isLost ? 'state lost' : 'state' }, isLost && `⚠ ${t('noConnection')}`),
      h('button', { id: 'language', class: 'link', type: 'button', lang: other,
                    onclick: () => changeLanguage(other).then(draw) }, t('otherLanguage'))),
    h('main', { id: 'main' }, h('h1', null, t('games')),
      entries && (entries.length ? h('ul', { class: 'games' }, entries.map(entry)) : h('p', { class: 'empty' }, t('noGame')))));
}

// A game that is played, with its clock; of others the list says enough.
async function whole(one) {
  const isPlayed = !['before', 'final'].includes(one.state);
  try {
    return { name: one.name, game: isPlayed ? await asked(`${addressOf(one.name)}api/game?parts=score`) : one };
  } catch {
    return { name: one.name, game: null };
  }
}

async function refresh() {
  try {
    const list = await asked('/api/games');
    entries = await Promise.all(list.map(whole));
    isLost = false;
  } catch {
    isLost = true;
  }
  draw();
}

wearLook();
await loadWords();
await refresh();
setInterval(() => document.visibilityState === 'visible' && refresh(), kEvery);
