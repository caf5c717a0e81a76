// The words of the pages in the viewer's language, and how numbers are told in it. `?lang=` counts and is
// remembered, then what was chosen before, then what the browser prefers.

const asked = new URLSearchParams(location.search).get('lang');
const kLanguages = ['en', 'fr'];

export function remembered(name) {
  try {
    return localStorage.getItem(name);
  } catch {
    return null;
  }
}

export function remember(name, value) {
  try {
    localStorage.setItem(name, value);
  } catch {
    // Nothing is kept in a private window; the page does without.
  }
}

if (kLanguages.includes(asked))
  remember('lang', asked);

function preferred() {
  const kept = remembered('lang');
  if (kLanguages.includes(asked))
    return asked;
  if (kLanguages.includes(kept))
    return kept;
  return navigator.language?.toLowerCase().startsWith('fr') ? 'fr' : 'en';
}

export let lang = preferred();
let words = {};
let ordinals;
const numbers = new Map();

export async function loadWords() {
  const answer = await fetch(`/words/${lang}.json`);
  words = await answer.json();
  ordinals = new Intl.PluralRules(lang, { type: 'ordinal' });
  document.documentElement.lang = lang;
}

export async function changeLanguage(to) {
  lang = to;
  remember('lang', to);
  numbers.clear();
  await loadWords();
}

// A text with its places XXX, YYY and ZZZ filled; the name itself where the program has no such word.
export function t(name, ...values) {
  const text = words[name] ?? name;
  return text.replace(/XXX|YYY|ZZZ/g, (place) => {
    const value = values[place.charCodeAt(0) - 88];
    return value === undefined ? place : String(value);
  });
}

// 5th, 5e
export function ordinal(number) {
  const forms = t('ordinals').split(' ');
  const at = ['one', 'two', 'few'].indexOf(ordinals.select(number));
  return (forms[at] ?? forms.at(-1)).replace('XXX', String(number));
}

// With so many decimals, as the language writes them.
export function number(value, decimals = 0) {
  if (!numbers.has(decimals))
    numbers.set(decimals, new Intl.NumberFormat(lang, { minimumFractionDigits: decimals,
                                                        maximumFractionDigits: decimals }));
  return numbers.get(decimals).format(value).replace('-', '−');
}

export function signed(value) {
  return value > 0 ? `+${value}` : value < 0 ? `−${-value}` : '0';
}

export function percent(made, of) {
  return of ? t('percent', Math.round((100 * made) / of)) : '–';
}

// A period in few letters: 4th, QT4; 2nd half; OT1.
export function periodName(period, rules) {
  const regular = rules?.periods ?? 4;
  if (period > regular)
    return t('overtime', period - regular);
  if (regular === 2)
    return t('half', period, ordinal(period));
  return t('period', lang === 'fr' ? period : ordinal(period)); // French numbers its periods
}

// A day as the language writes it; what is no day stays as it stands.
export function dayName(day) {
  if (!/^\d{4}-\d\d-\d\d$/.test(day))
    return day;
  return new Intl.DateTimeFormat(lang, { dateStyle: 'long', timeZone: 'UTC' }).format(new Date(day));
}
