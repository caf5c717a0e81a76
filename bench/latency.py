#!/usr/bin/python3
"""latency.py BUILD [NUMBER]: from an event in the game's file to the pixels of the page for spectators.

The server reads the file, the page gets the change by its stream. The time ends with the first frame behind the change, by the
wall clock of the machine, which both sides have.
"""

import pathlib
import sys
import tempfile
import time

import browser_places

# Resolves to when the frame was painted that shows another score: a frame's callback comes before its painting, the next
# one's behind it.
NEXT = """
window.painted = null;
const watch = new MutationObserver(() => {
  if (![...document.querySelectorAll('.half .points')].some((node, side) => node.textContent !== before[side]))
    return;
  watch.disconnect();
  requestAnimationFrame(() => requestAnimationFrame(() => { window.painted = Date.now(); }));
});
const before = [...document.querySelectorAll('.half .points')].map((node) => node.textContent);
watch.observe(document.querySelector('.halves'), { subtree: true, childList: true, characterData: true });
"""


def measure(number):
    from games import GrowingGame
    from support import Browser, Server, samples, wait_until
    times = []
    with tempfile.TemporaryDirectory() as folder:
        game = GrowingGame(samples()[1], pathlib.Path(folder, "measured.GAM"))
        baskets = [at for at, (_, _, line) in enumerate(game.events) if ",GF" in line and line.split(",")[1][-1] != "A"]
        game.write(baskets[0])
        server = Server(game.path)
        browser = Browser()
        try:
            browser.open(f"{server.address}/", ".half .points", (390, 844))
            for at in baskets[1:number + 1]:
                # All but the basket itself, and time for it to arrive.
                game.write(at)
                time.sleep(0.4)
                browser.run(NEXT)
                written = time.time()
                game.write(at + 1)
                painted = wait_until("the new score", lambda: browser.run("return window.painted"))
                times.append(painted - 1000 * written)
        finally:
            browser.close()
            server.stop()
    return times


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    browser_places.use(sys.argv[1])
    times = measure(int(sys.argv[2]) if len(sys.argv) == 3 else 50)
    print(f"{len(times)} baskets from the file to the page's pixels: median {browser_places.share(times, 0.5):.0f} ms, "
          f"95 of 100 within {browser_places.share(times, 0.95):.0f} ms, longest {max(times):.0f} ms")


if __name__ == "__main__":
    main()
