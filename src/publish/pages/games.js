// The games that are served, with their scores; each leads to its own pages.
import { h, paint } from './dom.js';
import { changeLanguage, dayName, lang, loadWords, periodName, t } from './words.js';
import { wearLook } from './look.js';

const kEvery = 5000;

async function asked(address) {
  const answer = await fetch(address);
  if (!answer.ok)
    throw new Error(String(answer.status));
  return answer.json();
}

function stateText({ state, date, period }) {
  const day = date && dayName(date);
  const words = { none: t('noGame'), before: t('notBegun'), final: t('final'), running: `● ${periodName(period)}` }[state];
  return [words ?? periodName(period), state !== 'running' && day].filter(Boolean).join(' · ');
}

// What is played stands first, then what is to come, then the latest of what has been.
function inOrder(games) {
  const rankOf = ({ state }) => (state === 'final' ? 2 : state === 'before' ? 1 : 0);
  return [...games].sort((one, other) => rankOf(one) - rankOf(other) ||
    (rankOf(one) === 2 ? other.date.localeCompare(one.date) : one.date.localeCompare(other.date)));
}

function addressOf(name) {
  return name ? `/g/${encodeURIComponent(name)}/` : '/';
}

function entry(game) {
  return h('li', { 'data-key': game.name }, h('a', { id: `game-${game.name}`, href: addressOf(game.name) },
    game.teams.map((team) => h('span', { class: 'pair' }, h('b', null, team.abb || team.name),
      game.state !== 'before' && h('span', { class: 'points' }, team.points))),
    h('span', { class: 'state' }, stateText(game))));
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

async function refresh() {
  try {
    entries = inOrder(await asked('/api/games'));
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
