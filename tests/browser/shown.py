"""What the pages show, read from them at one moment, and what they have to show by `hooptab-cli box --json`."""

KINDS = ("FG", "F3", "LL", "LR", "PB", "DK")  # shots from the field
POINTS = {"F3": 3, "FT": 1}

SCORE = """
const text = (node) => node.textContent.trim();
const table = [...document.querySelectorAll('[data-key=periods] tbody tr')].map((row) =>
  [...row.querySelectorAll('td')].map(text));
return { points: [...document.querySelectorAll('.half .points')].map((node) => Number(text(node))),
         teams: [...document.querySelectorAll('.half h3')].map(text),
         periods: table.map((row) => row.filter((cell) => cell !== '').map(Number)) };
"""

BOX = """
const text = (node) => node.textContent.trim();
const heads = [...document.querySelectorAll('table.box thead th abbr')].map(text);
const own = (node) => [...node.childNodes].filter((kid) => kid.nodeType === 3).map((kid) => kid.data).join('');
const row = (line) => [...line.querySelectorAll('td')].map(text);
return { heads,
         points: [...document.querySelectorAll('.strip .points')].map((node) => Number(text(node))),
         players: [...document.querySelectorAll('table.box tbody tr[data-key^=p]')].map((line) =>
           [own(line.querySelector('.number')).replace('*', ''), own(line.querySelector('.full')).trim(), row(line)]),
         total: row(document.querySelector('table.box tfoot tr')) };
"""

BENCH = """
const text = (node) => node.textContent.trim();
const row = (line) => [text(line.querySelector('td.number')),
  text(line.querySelector('.foulCell')), ...[...line.querySelectorAll('td')].slice(2, 5).map(text)];
return { points: text(document.querySelector('h1 > span:nth-child(2)')).split('–').map(Number),
         players: [...document.querySelectorAll('#onCourtScroll tbody tr, #reservesScroll tbody tr')].map(row) };
"""

PLAYS = """
return [...document.querySelectorAll('li.play')].map((line) =>
  [line.dataset.key, line.className, line.textContent.trim().replace(/\\s+/g, ' ')]);
"""


def score(browser):
    return browser.run(SCORE) if browser.all(".half .points") else None


def score_wanted(game):
    """The last cell of a line is the sum, and how many time-outs were taken follows where there are no rules of them."""
    return {"points": [team["points"] for team in game["teams"]], "teams": [team["abb"] for team in game["teams"]]}


def minutes(seconds):
    return f"{seconds // 60}:{seconds % 60:02}"


def signed(value):
    return f"+{value}" if value > 0 else f"−{-value}" if value < 0 else "0"


def made(row, kinds):
    return f"{sum(row[kind + 'M'] for kind in kinds)}/{sum(row[kind + 'A'] for kind in kinds)}"


def has_played(player):
    counts = ("A", "FTA", "Ast", "BS", "ST", "TO", "OR", "DR", "PF", "TF")
    return player["seconds"] > 0 or any(player[name] for name in counts)


def box_cells(player):
    """In the order of the page's columns."""
    return [minutes(player["seconds"]), str(player["PTS"]), signed(player["plusMinus"] or 0), str(player["PF"]),
            str(player["OR"] + player["DR"]), str(player["Ast"]), made(player, KINDS), made(player, ("F3",)),
            made(player, ("FT",)), *(str(player[name]) for name in ("OR", "DR", "TO", "ST", "BS")),
            str(player["rating"]).replace("-", "−")]


def box_wanted(team):
    return {player["number"]: (player["name"], box_cells(player)) for player in team["players"] if has_played(player)}


def box_shown(browser):
    """Of those who have a line of figures; who did not play has one cell of words."""
    shown = browser.run(BOX) if browser.all("table.box tfoot") else None
    if not shown:
        return None
    return {number: (name, cells) for number, name, cells in shown["players"] if len(cells) > 1}


def bench_wanted(team):
    return {player["number"]: [str(player["PF"] + player["TF"]), minutes(player["seconds"]),
                               signed(player["plusMinus"] or 0), str(player["PTS"])]
            for player in team["players"] if has_played(player)}


def bench_shown(browser):
    """Of those who have played: the others have a dash for their minutes."""
    shown = browser.run(BENCH) if browser.all("#reservesScroll tbody") else None
    if not shown:
        return None
    return {number: [cells[0], cells[1].removeprefix("0") if len(cells[1]) == 5 else cells[1], *cells[2:]]
            for number, *cells in shown["players"] if cells[1] != "–"}


def plays(browser):
    return browser.run(PLAYS)


def open_all_periods(browser):
    browser.run("for (const period of document.querySelectorAll('details.period:not([open]) > summary')) period.click()")


def field_goals(team):
    """Made and tried, of all kinds."""
    return [sum(player[kind + suffix] for player in team["players"] for kind in KINDS) for suffix in "MA"]
