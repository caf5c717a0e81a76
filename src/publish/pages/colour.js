// A team's colour in its two forms: as a surface with black or white text on it, and as an ink, which reads
// on the page. Where the inks of both teams are alike the second one wears the colour of the text.

const kInkContrast = 4.7;
const kAlike = 60; // distance in RGB
const kEnough = 0.55;

function channels(colour) {
  const hex = /^#?([0-9a-f]{6})$/i.exec((colour ?? '').trim())?.[1] ?? '808080';
  return [0, 2, 4].map((at) => parseInt(hex.slice(at, at + 2), 16));
}

function hexOf(rgb) {
  return `#${rgb.map((value) => Math.round(value).toString(16).padStart(2, '0')).join('')}`;
}

function luminance(rgb) {
  const [r, g, b] = rgb.map((value) => value / 255)
    .map((value) => (value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4));
  return 0.2126 * r + 0.7152 * g + 0.0722 * b;
}

function contrast(one, other) {
  const [darker, lighter] = [luminance(one), luminance(other)].sort((a, b) => a - b);
  return (lighter + 0.05) / (darker + 0.05);
}

export function textOn(colour) {
  const rgb = channels(colour);
  return contrast([0, 0, 0], rgb) >= contrast([255, 255, 255], rgb) ? '#000000' : '#ffffff';
}

function toHsl([red, green, blue]) {
  const [r, g, b] = [red / 255, green / 255, blue / 255];
  const most = Math.max(r, g, b);
  const least = Math.min(r, g, b);
  const light = (most + least) / 2;
  const range = most - least;
  if (range === 0)
    return [0, 0, light];
  const saturation = range / (1 - Math.abs(2 * light - 1));
  const hue = most === r ? ((g - b) / range + 6) % 6 : most === g ? (b - r) / range + 2 : (r - g) / range + 4;
  return [hue * 60, saturation, light];
}

function fromHsl(hue, saturation, light) {
  const most = saturation * Math.min(light, 1 - light);
  return [0, 8, 4].map((offset) => {
    const place = (offset + hue / 30) % 12;
    return 255 * (light - most * Math.max(-1, Math.min(place - 3, 9 - place, 1)));
  });
}

export function inkOn(colour, ground) {
  const [hue, saturation, light] = toHsl(channels(colour));
  const strong = saturation < 0.1 ? saturation : Math.max(saturation, kEnough);
  const page = channels(ground);
  const step = luminance(page) > 0.18 ? -0.02 : 0.02;
  for (let at = light; at >= 0 && at <= 1; at += step)
    if (contrast(fromHsl(hue, strong, at), page) >= kInkContrast)
      return hexOf(fromHsl(hue, strong, at));
  return textOn(ground);
}

function areAlike(one, other) {
  return Math.hypot(...channels(one).map((value, at) => value - channels(other)[at])) < kAlike;
}

// `surface`, `on` and `ink` of both teams on this ground.
export function teamLooks(teams, ground, text) {
  const looks = teams.map(({ colour }) => ({ surface: hexOf(channels(colour)), on: textOn(colour),
                                             ink: inkOn(colour, ground) }));
  if (looks.length === 2 && areAlike(looks[0].ink, looks[1].ink))
    looks[1] = { surface: hexOf(channels(text)), on: textOn(text), ink: hexOf(channels(text)) };
  return looks;
}

// Gives the page --team0, --on0, --ink0 and those of team 1; classes side0 and side1 wear them.
export function wearTeamColours(teams) {
  const root = document.documentElement;
  const page = getComputedStyle(root);
  const looks = teamLooks(teams, page.getPropertyValue('--raised'), page.getPropertyValue('--ink'));
  looks.forEach((look, side) => {
    root.style.setProperty(`--team${side}`, look.surface);
    root.style.setProperty(`--on${side}`, look.on);
    root.style.setProperty(`--ink${side}`, look.ink);
  });
}
