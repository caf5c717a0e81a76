// The parts of the overlay: score bug, last basket, lower third, board.
import { h } from './dom.js';
import { clockText } from './clock.js';
import { abbOf, breakText, pips, sidesOf } from './parts.js';
import { percent, periodName, t } from './words.js';
import { clockPlace, headWord, shortPerson, timeOutsLeft } from './screens.js';

const kScorers = 2; // of each team, on the board

function isWide(game) {
  return game.teams.some(({ points }) => points > 99);
}

function underName(game, side) {
  const team = game.teams[side];
  const limit = game.rules.bonusFouls;
  return h('div', { class: 'under' },
    h('span', { class: 'fouls' }, t('fouls'), ' ',
      limit > 0 ? [pips(team.foulsNow, limit), h('span', { class: 'hidden' }, team.foulsNow)] :
                  team.foulsNow),
    team.shootsBonus ? h('span', { class: 'bonus' }, t('bonus')) :
                       h('span', null, timeOutsLeft(team.timeOuts)));
}

// `isScoreAlone`: what else it has is too old to be shown.
export function bug(shown, isScoreAlone) {
  const { game } = shown;
  const isBare = isScoreAlone || game.state === 'final';
  const { text, isWords } = clockPlace(shown);
  const period = periodName(game.clock.period, game.rules);
  const stands = game.state === 'running' && !shown.isLost ? '' : ' stands';
  return h('div', { class: 'panel bug', 'data-key': 'bug' },
    sidesOf(game).map(
      (side) => h('div', { class: 'team' }, h('span', { class: `name side${side}` }, abbOf(game, side)),
        h('span', { class: isWide(game) ? 'score three' : 'score' }, game.teams[side].points),
        !isBare && underName(game, side))),
    !isScoreAlone &&
      h('div', { class: 'time' },
        h('span', { id: 'clock', class: `clock${isWords ? ' words' : ''}${stands}` }, text),
        text !== period && h('span', { class: 'period' }, period)));
}

export function tab(game, play) {
  const more = [
    play.total > 0 && t('screenPoints', play.total),
    play.with?.kind === 'assist' && t('withAssist', shortPerson(play.with))
  ];
  return h('div', { class: 'panel tab', 'data-key': `tab-${play.id}` },
    h('span', { class: `plus side${play.team}` }, `+${play.points}`),
    h('p', null, shortPerson(play) || abbOf(game, play.team),
      h('small', null, more.filter(Boolean).join(' · '))));
}

// "0-12": the player of that team with this number, as it is written or else as a number.
function playerOf(game, asked) {
  const side = Number(asked[0]);
  const number = asked.slice(2);
  const players = game.teams[side].players ?? [];
  const player = players.find((one) => one.number === number) ??
    players.find((one) => one.number !== '' && Number(one.number) === Number(number));
  return { side, player };
}

export function lowerThird(game, asked) {
  const { side, player } = playerOf(game, asked);
  if (!player)
    return null;
  const of = game.teams[side].name || abbOf(game, side);
  const limit = game.rules.foulLimit;
  const told = (label, value, kind) => h('div', null, h('dt', null, label), h('dd', { class: kind }, value));
  return h('div', { class: 'panel lower', 'data-key': `lower-${asked}` },
    h('span', { class: `jersey side${side}` }, player.number),
    h('div', { class: 'who' }, h('p', { class: 'name' }, player.name || of),
      h('p', { class: 'of' }, player.name ? of : '', player.name && player.out && ' · ',
        player.out && h('b', null, t('out'))),
      h('dl', null, told(headWord('pts'), player.PTS),
        told(headWord('fg'), `${player.M - player.FTM}/${player.A - player.FTA}`),
        told(headWord('reb'), player.OR + player.DR), told(headWord('ast'), player.Ast),
        told(t('fouls'), player.PF, limit > 0 && player.PF >= limit ? 'limit' : null),
        game.rules.periodSeconds > 0 && told(headWord('min'), clockText(player.seconds)))));
}

function sumOf(team, ...keys) {
  return (team.players ?? [])
    .reduce((sum, player) => keys.reduce((all, key) => all + (player[key] ?? 0), sum), 0);
}

function shotsOf(team, made, of, lessMade, lessOf) {
  return {
    made: sumOf(team, made) - (lessMade ? sumOf(team, lessMade) : 0),
    of: sumOf(team, of) - (lessOf ? sumOf(team, lessOf) : 0)
  };
}

// [words, of both teams what is compared and what is told, whether less is better]
function comparisons(game) {
  const rows = [];
  const add = (word, valueOf, textOf = valueOf, isLessBetter = false) => {
    const values = game.teams.map(valueOf);
    if (values.every((value) => value !== null && value !== undefined))
      rows.push({ word, values, texts: game.teams.map(textOf), isLessBetter });
  };
  const share = ({ made, of }) => (of ? made / of : 0);
  const counts = ({ made, of }) => `${made}/${of}`;
  const goals = (team) => shotsOf(team, 'M', 'A', 'FTM', 'FTA');
  const threes = (team) => shotsOf(team, 'F3M', 'F3A');
  const throws = (team) => shotsOf(team, 'FTM', 'FTA');
  add('fieldGoals', (team) => share(goals(team)), (team) => percent(goals(team).made, goals(team).of));
  add('threePoints', (team) => share(threes(team)), (team) => counts(threes(team)));
  add('freeThrows', (team) => share(throws(team)), (team) => counts(throws(team)));
  add('rebounds', (team) => sumOf(team, 'OR', 'DR') + (team.teamRow?.OR ?? 0) + (team.teamRow?.DR ?? 0));
  add('assists', (team) => sumOf(team, 'Ast'));
  add('turnovers', (team) => sumOf(team, 'TO') + (team.teamRow?.TO ?? 0), undefined, true);
  add('paint', (team) => team.paint);
  add('biggestLead', (team) => team.biggestLead?.points);
  return rows;
}

function versusTable(game) {
  const sides = sidesOf(game);
  const cell = ({ values, texts, isLessBetter }, side) => {
    const isBetter = texts[side] !== texts[1 - side] && values[side] > values[1 - side] !== isLessBetter;
    return h('td', { class: isBetter ? 'better' : null }, texts[side]);
  };
  return h('table', { class: 'versus' }, h('caption', { class: 'hidden' }, t('teamsCompared')),
    h('tbody', null,
      comparisons(game).map((row) => h('tr', null, cell(row, sides[0]),
                              h('th', { scope: 'row' }, t(row.word)), cell(row, sides[1])))));
}

function periodTable(game) {
  const periods =
    Array.from({ length: Math.max(...game.teams.map((team) => team.periods.length), 1) }, (_, at) => at);
  return h('table', null, h('caption', { class: 'hidden' }, t('byPeriod')),
    h('thead', null,
      h('tr', null, h('td'), periods.map((at) => h('th', { scope: 'col' }, periodName(at + 1, game.rules))),
        h('th', { scope: 'col' }, t('total')))),
    h('tbody', null,
      sidesOf(game).map((side) => h('tr', null, h('th', { scope: 'row' }, abbOf(game, side)),
                          periods.map((at) => h('td', null, game.teams[side].periods[at] ?? '–')),
                          h('td', null, h('b', null, game.teams[side].points))))));
}

function scorerTable(game) {
  const best = sidesOf(game).flatMap((side) => [...(game.teams[side].players ?? [])]
                                                 .filter((player) => player.PTS > 0)
                                                 .sort((one, other) => other.PTS - one.PTS)
                                                 .slice(0, kScorers)
                                                 .map((player) => ({ player, side })));
  return h('table', { class: 'scorers' }, h('caption', null, t('topScorers')),
    h('tbody', null,
      best.map(({ player, side }) => h('tr', null, h('th', { scope: 'row' }, shortPerson(player)),
                 h('td', null, abbOf(game, side)), h('td', null, h('b', null, player.PTS))))));
}

export function board({game}) {
  const [left, right] = sidesOf(game);
  const name = (side) => h('h2', { class: `team side${side}` }, game.teams[side].name || abbOf(game, side));
  return h('div', { class: 'panel board', 'data-key': 'board' },
    h('h1', null, breakText(game) || periodName(game.clock.period, game.rules)),
    h('header', null, name(left),
      h('p', { class: 'scores' }, h('span', null, game.teams[left].points),
        h('span', null, game.teams[right].points)),
      name(right)),
    h('div', { class: 'halves' }, h('div', null, periodTable(game), scorerTable(game)), versusTable(game)));
}
