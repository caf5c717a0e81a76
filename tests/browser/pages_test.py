"""The pages of finished sample games, in every size and language: whole, in words, and with the numbers of the command line."""

import re
import unittest

import shown
from games import ENCODING, replace_file
from support import LANGUAGES, SIZES, Browser, BrowserCase, Server, box, samples, wait_until

# Each page, and what stands on it once it is drawn.
PAGES = {
    "/": ".half .points", "/box": "table.box tfoot", "/plays": "li.play", "/shots": "svg.court .in",
    "/flow": "main svg", "/bench?team=1": ".tiles .figure", "/announcer": "ol.cards li", "/hall": ".score",
    "/overlay": "#overlay > *",
}
OF_FOLDER = {"/games": "ul.games .points", "/season": "table.players tbody tr"}
NO_WORDS_AT_ALL = ("/overlay",)  # names and figures alone, most of the time
WITHOUT_SWITCHES = ("/hall", "/overlay")  # nobody touches them

# What is wider than the window, but for what scrolls inside of a part of its own, and what is hidden from eyes on purpose.
TOO_WIDE = """
const width = document.documentElement.clientWidth;
const isInside = (node) => {
  for (let at = node; at && at !== document.body; at = at.parentElement) {
    const style = getComputedStyle(at);
    if (style.clipPath !== 'none' || (at !== node && style.overflowX !== 'visible'))
      return true;
  }
  return false;
};
const wide = [...document.body.querySelectorAll('*')].filter((node) => {
  const place = node.getBoundingClientRect();
  return place.width > 0 && (place.right > width + 1 || place.left < -1) && !isInside(node);
}).map((node) => `${node.nodeName}.${node.getAttribute('class')} ${node.textContent.slice(0, 30)}`);
if (document.documentElement.scrollWidth > width)
  wide.push(`the page: ${document.documentElement.scrollWidth} of ${width}`);
return wide;
"""

# All that is read or read aloud.
WORDS = """
const names = ['aria-label', 'title', 'alt', 'placeholder'];
return [document.title, document.body.innerText, ...[...document.querySelectorAll('*')].flatMap((node) =>
  names.map((name) => node.getAttribute(name)).filter(Boolean))].join('\\n');
"""

NO_WORDS = re.compile(r"undefined|\bnull\b|\bNaN\b|\[object|\bXXX\b|\bYYY\b|\bZZZ\b")


class Pages(BrowserCase):
    def check_whole(self, page):
        self.assertEqual([], self.browser.complaints(), page)
        self.assertEqual([], self.browser.run("return window.missingWords"), page)
        self.assertIsNone(NO_WORDS.search(self.browser.run(WORDS)), page)

    def check_page(self, address, page, ready):
        """In all sizes and languages."""
        said = {}
        for language in LANGUAGES:
            mark = "&" if "?" in page else "?"
            self.browser.open(f"{address}{page}{mark}lang={language}", ready, SIZES[0])
            with self.subTest(page=page, language=language):
                self.assertEqual(language, self.browser.run("return document.documentElement.lang"))
                self.check_whole(page)
            for size in SIZES:
                self.browser.resize(size)
                with self.subTest(page=page, language=language, size=size):
                    self.assertEqual([], self.browser.run(TOO_WIDE))
            said[language] = self.browser.run(WORDS)
        if page not in NO_WORDS_AT_ALL:
            self.assertNotEqual(said["en"], said["fr"])

    def test_pages_of_a_game(self):
        server = self.serve(samples()[0])
        for page, ready in PAGES.items():
            self.check_page(server.address, page, ready)

    def test_pages_of_a_folder(self):
        server = self.serve(samples()[0].parent)
        for page, ready in OF_FOLDER.items():
            self.check_page(server.address, page, ready)

    def test_language_and_look_are_switched_and_kept(self):
        server = self.serve(samples()[0])
        for page, ready in PAGES.items():
            if page in WITHOUT_SWITCHES:
                continue
            with self.subTest(page=page):
                self.browser.open(f"{server.address}/", PAGES["/"])
                self.browser.run("localStorage.clear()")
                self.browser.open(server.address + page, ready, SIZES[1])
                before = self.browser.run(
                    "return [document.documentElement.lang, document.documentElement.dataset.look]")
                ground = "return getComputedStyle(document.body).backgroundColor"
                colour = self.browser.run(ground)
                self.browser.click("#language")
                self.browser.click("#look")
                self.browser.wait_for(f"html[lang={'fr' if before[0] == 'en' else 'en'}]")
                self.assertNotEqual(before[1], self.browser.run("return document.documentElement.dataset.look"))
                self.assertNotEqual(colour, self.browser.run(ground))
                after = self.browser.run("return [document.documentElement.lang, document.documentElement.dataset.look]")
                self.browser.open(server.address + page, ready)
                self.assertEqual(after, self.browser.run(
                    "return [document.documentElement.lang, document.documentElement.dataset.look]"))
                self.check_whole(page)

    def test_numbers_are_those_of_the_box_score(self):
        for path in samples()[1:4]:
            with self.subTest(game=path.name):
                self.check_numbers(self.serve(path).address, box(path))

    def check_numbers(self, address, game):
        self.browser.open(f"{address}/?lang=en", PAGES["/"], SIZES[0])
        wanted = shown.score_wanted(game)
        found = shown.score(self.browser)
        self.assertEqual(wanted, {name: found[name] for name in wanted})
        for team, cells in zip(game["teams"], found["periods"]):
            played = len(team["periods"])
            self.assertEqual([*team["periods"], team["points"]], cells[:played + 1])
        for side, team in enumerate(game["teams"]):
            self.browser.open(f"{address}/box?lang=en#{side}")
            self.browser.driver.refresh()
            self.browser.wait_for(f"#pick-{side}[aria-pressed=true]")
            self.assertEqual(shown.box_wanted(team), shown.box_shown(self.browser))
        self.check_plays(address, game)
        self.check_shots(address, game)

    def check_plays(self, address, game):
        self.browser.open(f"{address}/plays?lang=en", PAGES["/plays"])
        shown.open_all_periods(self.browser)
        sums = self.browser.texts("details.period > summary b")
        wanted = ["–".join(map(str, score)) for score in zip(*(team["periods"] for team in game["teams"]))]
        self.assertEqual(wanted[::-1], sums)
        self.browser.click("#kind-baskets")
        for side, team in enumerate(game["teams"]):
            marks = self.browser.texts(f"li.play.side{side} .mark.made")
            self.assertEqual(team["points"], sum(int(mark) for mark in marks))
            for player in team["players"]:
                if player["PTS"] == 0:
                    continue
                self.browser.run("const who = document.getElementById('who'); who.value = arguments[0];"
                                 " who.dispatchEvent(new Event('change'))", f"{side}-{player['number']}")
                own = self.browser.run(
                    "return [...document.querySelectorAll(`li.play.side${arguments[0]}`)].filter((line) =>"
                    " line.querySelector('.what > b').textContent.split(' ')[0] === arguments[1]).map((line) =>"
                    " Number(line.querySelector('.mark').textContent)).reduce((one, other) => one + other, 0)",
                    side, player["number"])
                self.assertEqual(player["PTS"], own, player["name"])
            self.browser.run("const who = document.getElementById('who'); who.value = '';"
                             " who.dispatchEvent(new Event('change'))")

    def check_shots(self, address, game):
        self.browser.open(f"{address}/shots?lang=en", PAGES["/shots"])
        for side, team in enumerate(game["teams"]):
            self.browser.click(f"#side-{side}")
            self.browser.wait_for(f"#side-{side}[aria-pressed=true]")
            made, tried = shown.field_goals(team)
            legend = self.browser.texts("[data-key=chart] .legend b")
            self.assertEqual([made, tried - made], [int(text.split()[-1]) for text in legend])
            zones = [text.split("/") for text in self.browser.texts("table.zones tbody tr > td:nth-child(2)")]
            self.assertEqual([made, tried], [sum(int(zone[at]) for zone in zones) for at in (0, 1)])

    def test_a_folder_lists_its_games(self):
        folder = samples()[0].parent
        server = self.serve(folder)
        self.browser.open(f"{server.address}/", OF_FOLDER["/games"], SIZES[0])
        listed = sorted(tuple(text) for text in self.browser.run(
            "return [...document.querySelectorAll('ul.games .pair')].map((pair) =>"
            " [pair.querySelector('b').textContent, pair.querySelector('.points').textContent])"))
        wanted = sorted((team["abb"], str(team["points"])) for path in samples() for team in box(path)["teams"])
        self.assertEqual(wanted, listed)
        self.browser.click("ul.games a")
        self.browser.wait_for(PAGES["/"])
        self.assertIn("/g/", self.browser.driver.current_url)

    def test_names_are_text(self):
        """Whoever made the file may have written markup into it."""
        script = "<script>window.owned=1</script>"
        image = "\"><img src=x onerror=\"window.owned=1\">"
        path = self.folder / "markup.GAM"
        text = samples()[0].read_text(ENCODING)
        text = re.sub(r"(?m)^(EQUIPE0(?:ABB|NOM))=.*$", lambda found: f"{found[1]}={image}", text)
        text = re.sub(r"(?m)^(EQUIPE1(?:ABB|NOM)|ENDROIT|COMPETITION)=.*$", lambda found: f"{found[1]}={script}", text)
        text = re.sub(r"(?m)^(\d+=\d),[^,\n]*$", lambda found: f"{found[1]},{image}{script}", text)
        replace_file(path, text)
        server = self.serve(path)
        for page, ready in PAGES.items():
            with self.subTest(page=page):
                self.browser.open(f"{server.address}{page}{'&' if '?' in page else '?'}lang=en", ready, SIZES[2])
                self.assertIsNone(self.browser.run("return window.owned ?? null"))
                self.assertEqual(0, len(self.browser.all("img, body script")))
                self.assertIn("<img src=x" if page != "/box" else image, self.browser.run(WORDS))
                self.assertEqual([], self.browser.complaints())


class Visit(unittest.TestCase):
    def test_a_visitor_goes_from_page_to_page(self):
        """What a page holds of the browser's few connections has to be let go when it is left."""
        browser = Browser(keeps_pages=True)
        self.addCleanup(browser.close)
        server = Server(samples()[0])
        self.addCleanup(server.stop)
        browser.open(f"{server.address}/", PAGES["/"])
        for page in ("/box", "/plays", "/shots", "/flow", "/", "/box", "/plays", "/shots"):
            with self.subTest(page=page):
                browser.click(f"nav.pages a[href='{page}']")
                wait_until(f"{page} is there", lambda: browser.driver.current_url.endswith(page))
                browser.wait_for(PAGES[page])


if __name__ == "__main__":
    unittest.main()
