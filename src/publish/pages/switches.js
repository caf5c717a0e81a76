// Language and look, as two buttons for pages without the spectators' head.
import { h } from './dom.js';
import { dark, wearLook } from './look.js';
import { changeLanguage, lang, remember, t } from './words.js';

dark.addEventListener('change', wearLook);

function isDark() {
  return document.documentElement.dataset.look === 'dark';
}

// `redraw` is called once the page has the other language or look.
export function switches(redraw) {
  return h('div', { class: 'switches' },
    h('button', {
      id: 'language',
      class: 'link',
      type: 'button',
      lang: lang === 'fr' ? 'en' : 'fr',
      onclick: async () => {
        await changeLanguage(lang === 'fr' ? 'en' : 'fr');
        redraw();
      }
    },
      t('otherLanguage')),
    h('button', {
      id: 'look',
      class: 'link',
      type: 'button',
      'aria-pressed': String(isDark()),
      onclick: () => {
        document.documentElement.dataset.look = isDark() ? 'light' : 'dark';
        remember('look', document.documentElement.dataset.look);
        redraw();
      }
    },
      t('darkLook')));
}
