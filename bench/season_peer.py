"""What a script would do: every game of a folder through configparser, points and attempts summed by player."""
import configparser
import pathlib
import sys

POINTS = {"GFG": 2, "GF3": 3, "GFT": 1, "GLG": 2, "GLD": 2, "GPB": 2, "GDK": 2}
sums = {}
games = 0
for path in sorted(pathlib.Path(sys.argv[1]).glob("*.GAM")):
    game = configparser.ConfigParser(interpolation=None, strict=False, delimiters=("=",))
    game.optionxform = str
    game.read(path, encoding="cp1252")
    details = game["DETAILS"]
    if details.get("TERMINE") != "1" or details.get("VERSION") != "2.0":
        continue
    games += 1
    teams = [details.get(f"EQUIPE{side}ABB", "") + "-" + details.get(f"EQUIPE{side}CAT", "") for side in "01"]
    for section in game.sections():
        if not section.startswith("PERIODE"):
            continue
        for line in game[section].values():
            fields = line.split(",")
            if line.startswith("E") or len(fields) < 3 or fields[1][:3] not in POINTS:
                continue
            side, _, jersey = fields[2].partition("-")
            player = sums.setdefault((teams[int(side)], jersey), [0, 0])
            player[0] += POINTS[fields[1]] if fields[1] in POINTS else 0
            player[1] += 1
print("games", games, "players", len(sums))
