// The head of the pages for those who work at the game: score, clock, state in words, and a few facts.
import { h } from './dom.js';
import { clockText, secondsLeft } from './clock.js';
import { breakText, dots } from './parts.js';
import { periodName, t } from './words.js';

function stateWords(feed, of) {
  if (feed.isLost)
    return [
      h('span', { 'aria-hidden': 'true' }, '⚠ '), t('noConnection'), ' ',
      h('span', { id: 'age' }, clockText(feed.age / 1000))
    ];
  const words = { none: 'noGame', before: 'notBegun', running: 'deskRunning' };
  return breakText(of) || t(words[of.state] ?? 'deskStopped');
}

export function deskClock(feed, {clock, state}) {
  const left = secondsLeft(clock, feed.now);
  return left === null || state === 'final' ? '' : clockText(left);
}

// As dots where the rules of the game give a number of them, else how many were taken; null where the server
// says neither.
export function timeOutsOf(teams) {
  if (teams.every(({ timeOuts: of }) => !Number.isInteger(of?.left) && !Number.isInteger(of?.taken)))
    return null;
  const isLeft = Number.isInteger(teams[0].timeOuts?.left);
  const told = ({ timeOuts: of }) => {
    if (!Number.isInteger(of?.left))
      return String(of?.taken ?? '–');
    return [dots(of.left, of.of ?? of.left + (of.taken ?? 0)), h('span', { class: 'hidden' }, of.left)];
  };
  return [t(isLeft ? 'deskTimeOutsLeft' : 'timeOutsTaken'), [told(teams[0]), ' – ', told(teams[1])]];
}

// `sides`: tag and points of the two; `of`: state, clock and rules, and what the period is called where the
// server says it; `facts`: [label, value] each.
export function deskHead(feed, {sides, of, late = '', facts}) {
  return h('header', { class: 'deskHead' },
    h('h1', null, sides[0].tag, h('span', null, `${sides[0].points} – ${sides[1].points}`), sides[1].tag),
    h('p', { id: 'clock', class: 'clock' }, deskClock(feed, of)),
    h('p', { class: 'state' }, `${of.periodWords ?? periodName(of.clock.period, of.rules)} · `,
      stateWords(feed, of), late && ` · ${late}`),
    h('dl', null, facts.filter(Boolean).map(([label, value]) => h('div', null, h('dt', null, label), h('dd', null, value)))));
}

// The clock and the age of what is shown go on without drawing all of it.
export function tickDesk(feed, of) {
  const write = (id, text) => {
    const node = document.getElementById(id);
    if (node && node.textContent !== text)
      node.textContent = text;
  };
  if (of?.clock)
    write('clock', deskClock(feed, of));
  write('age', clockText(feed.age / 1000));
}
