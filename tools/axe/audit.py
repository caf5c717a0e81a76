#!/usr/bin/python3
"""audit.py BUILD [AXE.MIN.JS]: what somebody could not see, reach or have read aloud on the pages; see README.md."""

import os
import pathlib
import sys

SOURCE = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(SOURCE / "tests/browser"))

PAGES = {
    "/": ".half .points", "/box": "table.box tfoot", "/plays": "li.play", "/shots": "svg.court .in", "/flow": "main svg",
    "/bench?team=1": ".tiles .figure", "/announcer": "ol.cards li", "/hall": ".score", "/overlay": "#overlay > *",
}
OF_FOLDER = {"/games": "ul.games .points", "/season": "table.players tbody tr"}
SIZES = ((390, 844), (1920, 1080))
LOOKS = ("light", "dark")

OWN = r"""
const found = [];
const name = (node) => `${node.nodeName.toLowerCase()}${node.id ? '#' + node.id : ''}${node.getAttribute('class') ?
  '.' + node.getAttribute('class').trim().replaceAll(' ', '.') : ''} "${node.textContent.trim().replace(/\s+/g, ' ').slice(0, 30)}"`;
const parse = (text) => {
  const parts = text.match(/[\d.]+/g).map(Number);
  return text.startsWith('rgb') ? [...parts.slice(0, 3), parts[3] ?? 1] : [0, 0, 0, 0];
};
const over = (top, below) => top.slice(0, 3).map((value, at) => value * top[3] + below[at] * (1 - top[3]));
const luminance = (colour) => colour.slice(0, 3).map((value) => value / 255).map((value) =>
  value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4)
  .reduce((sum, value, at) => sum + value * [0.2126, 0.7152, 0.0722][at], 0);
const ratio = (one, other) => {
  const [low, high] = [luminance(one), luminance(other)].sort((a, b) => a - b);
  return (high + 0.05) / (low + 0.05);
};
const grounds = (node) => {
  const layers = [];
  for (let at = node; at; at = at.parentElement) {
    const colour = parse(getComputedStyle(at).backgroundColor);
    if (colour[3] > 0)
      layers.push(colour);
    if (colour[3] === 1)
      break;
  }
  return layers.reverse().reduce((below, top) => over(top, below), [255, 255, 255]);
};
const isHidden = (node) => {
  for (let at = node; at; at = at.parentElement) {
    const style = getComputedStyle(at);
    if (style.clipPath !== 'none' || style.visibility === 'hidden' || style.display === 'none' || at.getAttribute('aria-hidden') === 'true')
      return true;
  }
  const place = node.getBoundingClientRect();
  return place.width === 0 || place.height === 0 || place.bottom < 0;
};
let lowest = 99;
for (const node of document.body.querySelectorAll('*')) {
  if (node.closest('svg, noscript, script') || isHidden(node))
    continue;
  if ([...node.childNodes].some((kid) => kid.nodeType === 3 && kid.data.trim())) {
    const style = getComputedStyle(node);
    const ground = grounds(node);
    const is = ratio(over(parse(style.color), ground), ground);
    const size = parseFloat(style.fontSize);
    const least = size >= 24 || (size >= 18.66 && Number(style.fontWeight) >= 700) ? 3 : 4.5;
    lowest = Math.min(lowest, is);
    if (is < least - 0.005)
      found.push(`contrast ${is.toFixed(2)} of ${name(node)}`);
  }
}
for (const node of document.querySelectorAll('button, select, input, textarea, a[href], summary, [tabindex="0"]')) {
  if (isHidden(node))
    continue;
  const labels = (node.getAttribute('aria-labelledby') ?? '').split(' ').map((id) => document.getElementById(id)?.textContent ?? '').join('');
  const ownText = node.matches('select, input') ? [...(node.labels ?? [])].map((label) => label.textContent).join('') : node.textContent;
  if (!(node.getAttribute('aria-label') ?? '').trim() && !labels.trim() && !ownText.trim() && !node.title)
    found.push(`no name: ${name(node)}`);
  if (node.matches('[tabindex="0"]') || (node.matches('a') && getComputedStyle(node).display === 'inline'))
    continue;
  const { width, height } = node.getBoundingClientRect();
  if (width < 43.5 || height < 43.5)
    found.push(`${Math.round(width)}x${Math.round(height)} px to press: ${name(node)}`);
}
for (const table of document.querySelectorAll('table'))
  if (!table.caption?.textContent.trim())
    found.push(`no caption: ${name(table)}`);
if (!/^(en|fr)$/.test(document.documentElement.lang))
  found.push(`language: "${document.documentElement.lang}"`);
if (!document.title.trim())
  found.push('no title');
for (const one of ['main', 'h1'])
  if (document.querySelectorAll(one).length !== 1)
    found.push(`${document.querySelectorAll(one).length} of <${one}>`);
return [found, lowest];
"""

AXE = """
const done = arguments[0];
axe.run(document, { runOnly: ['wcag2a', 'wcag2aa', 'wcag21a', 'wcag21aa', 'wcag22aa', 'best-practice'] }).then((result) =>
  done(result.violations.map((one) => `axe ${one.impact} ${one.id}: ${one.help} (${one.nodes.length}: ` +
    `${one.nodes.slice(0, 3).map((node) => node.target.join(' ')).join(', ')})`)), (error) => done(['axe: ' + error]));
"""


def audit(browser, address, pages, axe):
    """How many faults there are; each is told once, with where it is seen."""
    told = {}
    for page, ready in pages.items():
        lowest = 99
        for look in LOOKS:
            mark = "&" if "?" in page else "?"
            browser.open(f"{address}{page}{mark}lang=en&look={look}", ready, SIZES[0])
            for size in SIZES:
                browser.resize(size)
                found, least = browser.run(OWN)
                lowest = min(lowest, least)
                if axe:
                    browser.run(axe)
                    found += browser.driver.execute_async_script(AXE)
                for fault in found:
                    told.setdefault((page, fault), []).append(f"{look} {size[0]}")
        print(f"{page}: lowest contrast of a text {lowest:.2f}")
    for (page, fault), places in told.items():
        print(f"{page}  {fault}  [{', '.join(places)}]")
    return len(told)


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    build = pathlib.Path(sys.argv[1]).resolve()
    os.environ["HOOPTAB_CLI"] = str(build / "bin/hooptab-cli")
    os.environ["HOOPTAB_SAMPLES"] = str(build / "share/hooptab/samples")
    axe = pathlib.Path(sys.argv[2]).read_text("utf-8") if len(sys.argv) == 3 else ""
    from support import Browser, Server, samples
    browser = Browser()
    faults = 0
    try:
        for path, pages in ((samples()[1], PAGES), (samples()[0].parent, OF_FOLDER)):
            server = Server(path)
            faults += audit(browser, server.address, pages, axe)
            server.stop()
    finally:
        browser.close()
    print(f"{faults} faults")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
