"""Pages that stay open while a game's file grows: after each change they show what the command line counts of it."""

import json
import unittest
import urllib.request

import shown
from games import GrowingGame
from support import BrowserCase, box, samples, wait_until, wait_until_same

STOPS = 12
LOST = 6   # seconds without a word from the server
BACK = 2   # seconds in which a page is right again
SIZE = (1024, 768)


class Follow(BrowserCase):
    def setUp(self):
        self.game = GrowingGame(samples()[1], self.folder / "followed.GAM")
        self.game.write_to_stop(len(self.game) // 3)
        self.server = self.serve(self.game.path)
        self.windows = {}

    def open(self, page, ready):
        window = self.browser.open_window(f"{self.server.address}{page}", ready, SIZE)
        self.windows[page] = window
        return window

    def tearDown(self):
        first, *others = self.browser.driver.window_handles
        for window in others:
            self.browser.switch(window)
            self.browser.driver.close()
        self.browser.switch(first)

    def open_three(self):
        self.open("/?lang=en", ".half .points")
        self.open("/box?lang=en#0", "table.box tfoot")
        self.open("/bench?team=1&lang=en", ".tiles .figure")

    def at(self, page):
        self.browser.switch(self.windows[page])

    def check_numbers(self, seconds=20):
        """Of the three pages, against the file as it is now."""
        game = box(self.game.path)
        wanted = shown.score_wanted(game)

        def score():
            found = shown.score(self.browser)
            return found and {name: found[name] for name in wanted}

        self.at("/?lang=en")
        wait_until_same(self, wanted, score, seconds)
        self.at("/box?lang=en#0")
        wait_until_same(self, shown.box_wanted(game["teams"][0]), lambda: shown.box_shown(self.browser), seconds)
        self.at("/bench?team=1&lang=en")
        wait_until_same(self, shown.bench_wanted(game["teams"][1]), lambda: shown.bench_shown(self.browser), seconds)

    def check_plays(self, seconds=20):
        """The page that was open all the time shows what one shows that has just been opened, and nothing twice."""
        old = self.browser.driver.current_window_handle
        new = self.browser.open_window(f"{self.server.address}/plays?lang=en", "li.play", SIZE)
        wait_until("two pages of the plays show the same", lambda: self.plays_of(old) == self.plays_of(new), seconds)
        self.browser.switch(new)
        self.browser.driver.close()
        self.browser.switch(old)
        keys = [key for key, _, _ in shown.plays(self.browser)]
        self.assertEqual(sorted(set(keys)), sorted(keys))

    def plays_of(self, window):
        """Without what is told of a correction for a while."""
        self.browser.switch(window)
        shown.open_all_periods(self.browser)
        return self.browser.run(
            "return [...document.querySelectorAll('li.play:not(.gone)')].map((line) => {"
            " const own = line.cloneNode(true); own.querySelector('.corrected')?.remove();"
            " return own.textContent.trim().replace(/\\s+/g, ' '); })")

    def test_three_pages_follow_a_game_to_its_end(self):
        self.open_three()
        first = self.game.count
        for stop in range(1, STOPS + 1):
            self.game.write_to_stop(first + (len(self.game) - first) * stop // STOPS)
            with self.subTest(events=self.game.count):
                self.check_numbers()
        for window in self.windows.values():
            self.browser.switch(window)
            self.assertEqual([], self.browser.complaints())

    def marked(self, kind):
        """The rows that tell of a correction, each with its words."""
        return self.browser.run(
            "return [...document.querySelectorAll('li.play.marked')].filter((line) =>"
            " line.classList.contains('gone') === arguments[0]).map((line) =>"
            " [line.dataset.key, line.textContent.replace(/\\s+/g, ' ').trim()])", kind == "deleted")

    def word(self, name):
        with urllib.request.urlopen(f"{self.server.address}/words/en.json") as answer:
            return json.load(answer)[name].split("XXX")[0].strip()

    def test_corrections_are_shown_as_such(self):
        self.open("/plays?lang=en", "li.play")
        shown.open_all_periods(self.browser)
        basket = self.game.find(r",GFT,[01]-", last=False)  # nobody else has part in it
        self.game.correct(basket, self.game.events[basket][2].replace(",GFT,", ",GFTA,"))
        found = wait_until("the corrected play", lambda: self.marked("changed"))
        self.assertEqual(1, len(found), found)
        self.assertIn(self.word("correctedWas"), found[0][1])
        self.check_plays()

        rebound = self.game.find(r",SDR,[01]-")
        before = [key for key, _, _ in shown.plays(self.browser)]
        self.game.delete(rebound)
        gone = wait_until("the deleted play, struck through", lambda: self.marked("deleted"))
        self.assertIn(self.word("deleted"), gone[0][1])
        self.assertIn(gone[0][0], before)
        self.check_plays()

        place = self.game.find(r",STO,")
        clock, _, player = self.game.events[place][2].split(",")[:3]
        self.game.insert(place, f"{clock},SOR,{player}")
        added = wait_until("the play that was put in", lambda: [
            row for row in self.marked("added") if self.word("addedLater") in row[1]])
        self.assertEqual(1, len(added))
        self.assertNotIn(added[0][0], before)
        self.check_plays()

    def is_lost(self):
        return bool(self.browser.all("[role=alert] p, body.lost, .bench.lost"))

    def check_all_lost(self):
        for page, window in self.windows.items():
            self.browser.switch(window)
            wait_until(f"{page} says that the connection is lost", self.is_lost, LOST + 14)
            self.assertIn(self.word_of_loss, self.browser.text())

    def check_back(self):
        """Each page within the time that is promised after the server is there again, all of them asked in turn."""
        self.check_numbers(BACK)
        for page, window in self.windows.items():
            self.browser.switch(window)
            wait_until(f"{page} says no more that the connection is lost", lambda: not self.is_lost())
        self.at("/plays?lang=en")
        self.check_plays()

    def lose(self, leave, come_back):
        self.open_three()
        self.open("/plays?lang=en", "li.play")
        self.word_of_loss = self.word("noConnection")
        leave()
        self.game.write_to_stop(self.game.count + 40)
        self.check_all_lost()
        come_back()
        self.check_back()
        self.game.write_to_stop(self.game.count + 25)
        self.check_numbers()

    def test_a_network_that_stalls(self):
        self.lose(self.server.hold, self.server.go_on)

    def test_a_server_that_is_started_again(self):
        self.lose(self.server.kill, self.server.start)


if __name__ == "__main__":
    unittest.main()
