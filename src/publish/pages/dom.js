// Makes nodes, never markup: what a text holds stays text. `paint` brings a part of the page to a new state
// by changing what differs, so that focus, scrolling and open lists outlive a change of the score.

// '' or '/g/NAME': where the game stands whose pages these are.
export const base = /^\/g\/[^/]+/.exec(location.pathname)?.[0] ?? '';

const kHandlers = ['onclick', 'onchange', 'oninput', 'ontoggle', 'onscroll'];
const kSvg = 'http://www.w3.org/2000/svg';

function fill(node, props, kids) {
  for (const [name, value] of Object.entries(props ?? {})) {
    if (value === undefined || value === null || value === false)
      continue;
    if (kHandlers.includes(name))
      node[name] = value;
    else if (name === 'vars') // custom properties, through CSSOM: the policy forbids style attributes
      for (const [key, to] of Object.entries(value))
        node.style.setProperty(key, to);
    else
      node.setAttribute(name, value === true ? '' : String(value));
  }
  node.append(...kids.flat(Infinity).filter((kid) => kid !== null && kid !== undefined && kid !== false));
  return node;
}

export function h(tag, props, ...kids) {
  return fill(document.createElement(tag), props, kids);
}

export function svg(tag, props, ...kids) {
  return fill(document.createElementNS(kSvg, tag), props, kids);
}

function keyOf(node) {
  return node.nodeType === 1 ? node.id || node.getAttribute('data-key') : '';
}

function morphAttributes(have, want) {
  for (const { name } of [...have.attributes])
    if (!want.hasAttribute(name) && name !== 'style')
      have.removeAttribute(name);
  for (const { name, value } of want.attributes)
    if (name !== 'style' && have.getAttribute(name) !== value)
      have.setAttribute(name, value);
  if (have.style.cssText !== want.style.cssText)
    have.style.cssText = want.style.cssText;
  for (const name of kHandlers)
    if (have[name] !== want[name])
      have[name] = want[name];
}

function morph(have, want) {
  if (have.nodeType !== 1) {
    if (have.data !== want.data)
      have.data = want.data;
    return;
  }
  morphAttributes(have, want);
  const value = want.nodeName === 'SELECT' ? want.value : null;
  morphKids(have, want);
  if (value !== null && have.value !== value)
    have.value = value;
}

function morphKids(host, fresh) {
  const wanted = new Set([...fresh.childNodes].map(keyOf));
  const keyed = new Map([...host.childNodes].filter(keyOf).map((kid) => [keyOf(kid), kid]));
  let at = host.firstChild;
  const skipUnwanted = () => {
    while (at && keyOf(at) && !wanted.has(keyOf(at))) {
      const gone = at;
      at = at.nextSibling;
      gone.remove();
    }
  };
  for (const want of [...fresh.childNodes]) {
    skipUnwanted();
    const key = keyOf(want);
    const have = key ? keyed.get(key) : at && !keyOf(at) ? at : null;
    if (!have || have.nodeName !== want.nodeName) {
      host.insertBefore(want, at);
      continue;
    }
    if (have === at)
      at = at.nextSibling;
    else
      host.insertBefore(have, at);
    morph(have, want);
  }
  while (at) {
    const gone = at;
    at = at.nextSibling;
    gone.remove();
  }
}

// The children of `host` become these.
export function paint(host, ...kids) {
  const focused = document.activeElement?.id;
  const fresh = host.cloneNode(false);
  fill(fresh, null, kids);
  morphKids(host, fresh);
  if (focused && document.activeElement?.id !== focused)
    document.getElementById(focused)?.focus({ preventScroll: true });
}
