// The half court with the basket on top, as the shooter sees it, and the shots on it: ● made, ✕ missed.
import { svg } from './dom.js';

const kRadius = 2.7;
const kArm = 2.3;
let lines = null;

export async function loadCourt() {
  lines = await (await fetch('/court.json')).json();
}

// From the court's units to the picture's: the left of the shooter stands left.
function placeOf([x, y]) {
  const { length, width } = lines;
  return [Math.min(Math.max(width - y, 2), width - 2), Math.min(Math.max(x, 2), length - 2)];
}

function markOf(play) {
  const [x, y] = placeOf(play.place);
  if (play.made)
    return svg('circle', { class: 'in', cx: x, cy: y, r: kRadius });
  const cross = `M${x - kArm} ${y - kArm}l${2 * kArm} ${2 * kArm}m0 ${-2 * kArm}l${-2 * kArm} ${2 * kArm}`;
  return svg('g', null, svg('path', { class: 'halo', d: cross }), svg('path', { class: 'off', d: cross }));
}

// `shots` have places; `label` says in words what is seen.
export function courtPicture(shots, label) {
  if (!lines)
    return null;
  const { length, width, paths, rim, backboard } = lines;
  const marks = [...shots].sort((one, other) => Number(other.made) - Number(one.made)).map(markOf);
  return svg('svg', { class: 'court', viewBox: `-1 -1 ${width + 2} ${length + 2}`, role: 'img', 'aria-label': label },
    svg('g', { class: 'lines', transform: `matrix(0 1 -1 0 ${width} 0)` },
      paths.map((d) => svg('path', { d })),
      svg('path', { d: `M${backboard.x} ${backboard.from}V${backboard.to}` }),
      svg('circle', { class: 'rim', cx: rim.x, cy: rim.y, r: rim.radius })),
    marks);
}
