#!/usr/bin/python3
"""viewers_behind_proxy.py BUILD [VIEWERS] [SECONDS]: how many watch through nginx, and what the server itself is asked.

Each viewer asks every one and a half seconds, as a page does that may hold no stream; the game goes on meanwhile.
"""

import pathlib
import sys
import tempfile
import threading
import time

import browser_places


def cpu_seconds(process):
    """Of all its threads."""
    import os
    fields = pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def measure(count, seconds):
    from games import GrowingGame
    from nginx import Nginx
    from support import Server, samples
    from viewers import Viewers
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as own:
        game = GrowingGame(samples()[1], pathlib.Path(own, "measured.GAM"))
        game.write(100)
        server = Server(game.path)
        nginx = Nginx(folder, server.port, may_stream=False)
        try:
            is_over = threading.Event()

            def play():
                while not is_over.wait(2) and game.count < len(game):
                    game.write(game.count + 1)

            player = threading.Thread(target=play)
            player.start()
            begun, used = time.monotonic(), cpu_seconds(server.process.pid)
            viewers = Viewers(nginx.port, nginx.name).run(count, seconds)
            took, used = time.monotonic() - begun, cpu_seconds(server.process.pid) - used
            is_over.set()
            player.join()
            asked = nginx.asked()
        finally:
            nginx.stop()
            server.stop()
    passed = sum(was_asked for _, _, was_asked in asked)
    print(f"{viewers.connected} viewers for {took:.0f} s: {len(asked) / took:.0f} requests a second to nginx, "
          f"{passed / took:.2f} to the server ({100 * used / took:.1f} % of a core); {viewers.failures} without an answer; "
          f"answered within {1000 * browser_places.share(viewers.times, 0.5):.0f} ms (median), "
          f"{1000 * browser_places.share(viewers.times, 0.95):.0f} ms (95 of 100)")


def main():
    if len(sys.argv) not in (2, 3, 4):
        sys.exit(__doc__)
    browser_places.use(sys.argv[1])
    count, seconds = (int(word) for word in (*sys.argv[2:], *("5000", "20")[len(sys.argv) - 2:]))
    measure(count, seconds)


if __name__ == "__main__":
    main()
