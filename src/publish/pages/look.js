// Light or dark: as the address says, else as it was chosen before, else as the device likes it.
import { remember, remembered } from './words.js';

const kLooks = ['light', 'dark'];
const asked = new URLSearchParams(location.search).get('look');
if (kLooks.includes(asked))
  remember('look', asked);

export const dark = matchMedia('(prefers-color-scheme: dark)');

export function look() {
  const kept = kLooks.includes(asked) ? asked : remembered('look');
  return kLooks.includes(kept) ? kept : dark.matches ? 'dark' : 'light';
}

export function wearLook() {
  document.documentElement.dataset.look = look();
}
