"""The pages behind nginx, with the configuration that is packaged."""

import base64
import http.client
import ssl
import tempfile
import unittest

import shown
from games import GrowingGame
from nginx import Nginx
from support import BrowserCase, box, samples, tool, wait_until_same
from viewers import Viewers

VIEWERS = 500
SECONDS = 6
PHRASE = "tip off"
NAME = "game.example.org"


class Proxy(BrowserCase):
    # The proxy's name leads here, and its certificate is of its own making.
    browser_options = (f"--host-resolver-rules=MAP {NAME} 127.0.0.1", "--ignore-certificate-errors")

    def set_up(self, may_stream, options=("--pass", PHRASE)):
        self.game = GrowingGame(samples()[1], self.folder / "proxied.GAM")
        self.game.write(len(self.game) // 2)
        server = self.serve(self.game.path, options=options)
        folder = tempfile.TemporaryDirectory(prefix="hooptab-nginx-")
        self.addCleanup(folder.cleanup)
        self.nginx = Nginx(folder.name, server.port, may_stream)
        self.addCleanup(self.nginx.stop)
        self.address = f"http://{NAME}:{self.nginx.port}"
        return server

    def ask(self, path, host=NAME, headers=None, safe=False):
        connection = http.client.HTTPConnection("127.0.0.1", self.nginx.safe_port if safe else self.nginx.port, timeout=10)
        self.addCleanup(connection.close)
        connection.connect()
        if safe:
            trust = ssl.create_default_context(cafile=self.nginx.folder / "certificate.pem")
            connection.sock = trust.wrap_socket(connection.sock, server_hostname=NAME)
        connection.request("GET", path, headers={"Host": host, **(headers or {})})
        answer = connection.getresponse()
        return answer.status, answer.read(), answer.headers

    def check_pages_follow(self):
        self.browser.open(f"{self.address}/?lang=en", ".half .points", (390, 844))
        for more in (20, 40):
            self.game.write(self.game.count + more)
            wanted = shown.score_wanted(box(self.game.path))
            wait_until_same(self, wanted, lambda: {
                name: value for name, value in shown.score(self.browser).items() if name in wanted})
        for page, ready in (("/box", "table.box tfoot"), ("/plays", "li.play"), ("/shots", "svg.court .in")):
            self.browser.open(self.address + page, ready)
            self.assertEqual([], self.browser.run("return window.missingWords"))
        return self.nginx.asked()

    def test_streams_go_through(self):
        self.set_up(may_stream=True)
        asked = self.check_pages_follow()
        self.assertEqual([], self.browser.complaints())
        games = [line for line in asked if line[0] == "/api/game?parts=score"]
        self.assertLessEqual(len(games), 3, "who holds a stream does not ask again and again")

    def test_pages_ask_where_streams_are_refused(self):
        self.set_up(may_stream=False)
        asked = self.check_pages_follow()
        streams = [status for address, status, _ in asked if address.startswith("/events")]
        self.assertEqual({404}, set(streams))

    def test_many_who_ask_are_one_for_the_server(self):
        self.set_up(may_stream=False)
        viewers = Viewers(self.nginx.port, NAME).run(VIEWERS, SECONDS)
        self.assertEqual((VIEWERS, 0), (viewers.connected, viewers.failures))
        asked = self.nginx.asked()
        self.assertGreaterEqual(len(asked), VIEWERS * 2)
        passed = sum(was_asked for _, _, was_asked in asked)
        self.assertLessEqual(passed, 2 * SECONDS)
        self.assertGreaterEqual(passed, SECONDS // 2, "what viewers get grows old")

    def test_nobody_gets_past_the_cache(self):
        self.set_up(may_stream=False)
        for number in range(40):
            self.assertEqual(200, self.ask(f"/api/game?parts=score&more={number}")[0])
        self.assertLessEqual(sum(was_asked for _, _, was_asked in self.nginx.asked()), 4)

    def test_old_numbers_while_the_server_is_gone(self):
        server = self.set_up(may_stream=False)
        before = self.ask("/api/game?parts=score")
        server.kill()
        for _ in range(3):
            self.assertEqual((200, before[1]), self.ask("/api/game?parts=score")[:2])

    def test_the_bench_through_tls_and_pass_phrase_alone(self):
        self.set_up(may_stream=False)
        status, _, headers = self.ask("/bench")
        self.assertEqual((301, f"https://{NAME}:{self.nginx.safe_port}/bench"), (status, headers["Location"]))
        word = base64.b64encode(f"coach:{PHRASE}".encode()).decode()
        for path in ("/api/bench?team=0", "/bench"):
            self.assertEqual(301, self.ask(path)[0])
            self.assertEqual(401, self.ask(path, safe=True)[0])
            status, _, headers = self.ask(path, safe=True, headers={"Authorization": f"Basic {word}"})
            self.assertEqual((200, "no-store"), (status, headers["Cache-Control"]))
            self.assertEqual(401, self.ask(path, safe=True)[0], "what was private has been kept")

    def test_the_bench_is_closed_without_a_pass_phrase(self):
        """Though the proxy asks from the machine for which it would be open."""
        self.set_up(may_stream=False, options=())
        self.assertEqual(403, self.ask("/bench", safe=True)[0])
        self.assertEqual(403, self.ask("/api/bench?team=0", safe=True, headers={"X-Forwarded-For": ""})[0])

    def test_other_names_get_nothing(self):
        self.set_up(may_stream=False)
        with self.assertRaises(http.client.RemoteDisconnected):
            self.ask("/", host="stranger.example.net")


if __name__ == "__main__":
    tool("nginx")
    tool("openssl")
    unittest.main()
