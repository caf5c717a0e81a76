"""Many who ask for a game every other second, each on a connection that stays: what a page does that holds no stream."""

import asyncio
import time


class Viewers:
    """How many were answered, how many not, and how long it took each time (seconds)."""

    def __init__(self, port, host, path="/api/game?parts=score", every=1.5):
        self.port = port
        self.every = every
        self.request = (f"GET {path} HTTP/1.1\r\nHost: {host}\r\n\r\n").encode()
        self.times = []
        self.failures = 0
        self.connected = 0

    async def watch(self, begin, end):
        """One viewer, who begins so many seconds late."""
        await asyncio.sleep(begin)
        try:
            reader, writer = await asyncio.open_connection("127.0.0.1", self.port)
        except OSError:
            self.failures += 1
            return
        self.connected += 1
        try:
            while time.monotonic() < end:
                asked = time.monotonic()
                writer.write(self.request)
                head = (await reader.readuntil(b"\r\n\r\n")).decode("latin-1").lower()
                length = int(head.partition("content-length:")[2].partition("\r\n")[0])
                await reader.readexactly(length)
                if " 200 " not in head.partition("\r\n")[0]:
                    self.failures += 1
                self.times.append(time.monotonic() - asked)
                await asyncio.sleep(max(0, asked + self.every - time.monotonic()))
        except (OSError, ValueError, asyncio.IncompleteReadError):
            self.failures += 1
        finally:
            writer.close()

    async def _all(self, count, seconds):
        end = time.monotonic() + seconds
        await asyncio.gather(*(self.watch(at * self.every / count, end) for at in range(count)))

    def run(self, count, seconds):
        asyncio.run(self._all(count, seconds))
        return self
