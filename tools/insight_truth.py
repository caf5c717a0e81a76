#!/usr/bin/env python3
"""Holds what the events say (points by origin, biggest lead and run, lead changes, ties, plus/minus, index, game score) against what
other systems published of the same games: imports each real file, and prints the numbers that differ, then sums by kind.
  tools/insight_truth.py hooptab-cli FOLDER...     folders as ../shared/exchange has them: fls, nba-cdn, bbgame, euroleague"""
import collections
import json
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

SIDES = ("visitors", "home")


def of_fls(path):
    teams = json.loads(path.read_text(encoding="utf-8-sig"))["tm"]
    game = {"teams": []}
    for team in (teams["2"], teams["1"]):
        total = lambda key: int(team["tot_" + key])
        game["teams"].append({
            "score": int(team["score"]), "paint": total("sPointsInThePaint"), "fromTurnovers": total("sPointsFromTurnovers"),
            "secondChance": total("sPointsSecondChance"), "bench": total("sBenchPoints"), "fastBreak": total("sPointsFastBreak"),
            "biggestLead": total("sBiggestLead"), "biggestRun": total("sBiggestScoringRun"),
            "players": {player["shirtNumber"]: {"plusMinus": player["sPlusMinusPoints"], "gameScore": player["eff_3"]}
                        for player in team["pl"].values() if player.get("sMinutes", "0:00") != "0:00"}})
    return game


def of_nba(path):
    source = json.loads(path.read_text())["game"]
    game = {"teams": []}
    for team in (source["awayTeam"], source["homeTeam"]):
        numbers = team["statistics"]
        game["teams"].append({
            "score": team["score"], "paint": numbers["pointsInThePaint"], "fromTurnovers": numbers["pointsFromTurnovers"],
            "secondChance": numbers["pointsSecondChance"], "bench": numbers["benchPoints"], "fastBreak": numbers["pointsFastBreak"],
            "biggestLead": numbers["biggestLead"], "biggestRun": numbers["biggestScoringRun"],
            "players": {player["jerseyNum"]: {"plusMinus": int(player["statistics"]["plusMinusPoints"])}
                        for player in team["players"] if player["played"] == "1"}})
    game["leadChanges"] = source["homeTeam"]["statistics"]["leadChanges"]
    game["timesTied"] = source["homeTeam"]["statistics"]["timesTied"]
    return game


def of_bbgame(path):
    root = xml.parse(path).getroot()
    game = {"teams": [], "leadChanges": 0, "timesTied": 0}
    for team in sorted(root.findall("team"), key=lambda team: team.get("vh") == "H"):
        special = team.find("totals/special")
        game["teams"].append({
            "score": int(team.find("linescore").get("score")), "paint": int(special.get("pts_paint")),
            "fromTurnovers": int(special.get("pts_to")), "secondChance": int(special.get("pts_ch2")),
            "bench": int(special.get("pts_bench")), "fastBreak": int(special.get("pts_fastb")),
            "biggestLead": int(special.get("large_lead")), "players": {}})
        game["leadChanges"] += int(special.get("leads"))
        game["timesTied"] += int(special.get("ties"))
    return game


def of_euroleague(path):
    game = {"teams": []}
    for team in reversed(json.loads(path.read_text())["Stats"]):
        players = {}
        for player in team["PlayersStats"]:
            if player["Minutes"] != "DNP":
                players[player["Dorsal"].strip()] = {"plusMinus": player["Plusminus"], "index": player["Valuation"]}
        game["teams"].append({"score": team["totr"]["Points"], "players": players})
    return game


READERS = {"fls": ("*.json", of_fls), "nba-cdn": ("*-boxscore.json", of_nba), "bbgame": ("*.xml", of_bbgame),
           "euroleague": ("*-boxscore.json", of_euroleague)}


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    program = sys.argv[1]
    kinds = collections.defaultdict(lambda: [0, 0, 0, 0])  # compared, equal, our sum, theirs
    with tempfile.TemporaryDirectory() as target:
        for folder in map(pathlib.Path, sys.argv[2:]):
            pattern, reader = READERS[folder.name]
            into = pathlib.Path(target) / folder.name
            into.mkdir()
            subprocess.run([program, "import", folder, "--to", into], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            ours = {}
            for game in into.glob("*.GAM"):
                box = json.loads(subprocess.run([program, "box", "--json", game], capture_output=True, text=True).stdout)
                ours[tuple(team["points"] for team in box["teams"])] = (game, box)
            for path in sorted(folder.glob(pattern)):
                official = reader(path)
                found = ours.get(tuple(team["score"] for team in official["teams"]))
                if found is None:
                    print(f"{path.name}: was not imported with its score")
                    continue
                compare(program, path.name, official, *found, kinds)
    print(f"{'':15}{'compared':>9}{'equal':>7}{'ours':>7}{'theirs':>7}")
    for kind, numbers in kinds.items():
        print(f"{kind:15}{numbers[0]:9}{numbers[1]:7}{numbers[2]:7.0f}{numbers[3]:7.0f}")


def compare(program, name, official, game, box, kinds):
    def hold(kind, where, ours, theirs):
        numbers = kinds[kind]
        equal = abs(ours - theirs) < 0.051
        for i, added in enumerate((1, int(equal), ours, theirs)):
            numbers[i] += added
        if not equal:
            print(f"{name}: {where} {kind}: {ours}, published {theirs}")

    for side, (team, published) in enumerate(zip(box["teams"], official["teams"])):
        for kind, theirs in published.items():
            if kind in ("score", "players"):
                continue
            ours = team[kind]
            if isinstance(ours, dict):
                ours = ours["points"]
            hold(kind, SIDES[side], ours or 0, theirs)
        rates = {}
        for player in team["players"]:
            rates[player["number"]] = player
        by_number = lambda jersey: next((p for n, p in rates.items() if n == jersey or (n.isdigit() and jersey.isdigit() and
                                         int(n) == int(jersey) and len(set(m for m in rates if m.isdigit() and int(m) == int(n))) == 1)), None)
        for jersey, published_player in published["players"].items():
            player = by_number(jersey)
            if player is None:
                print(f"{name}: {SIDES[side]} have no {jersey}")
                continue
            for kind, theirs in published_player.items():
                ours = player["plusMinus"] if kind == "plusMinus" else rate(program, game, side, player["number"], kind)
                hold(kind, f"{SIDES[side]} {jersey}", ours, theirs)
    for kind in ("leadChanges", "timesTied"):
        if kind in official:
            hold(kind, "game", box[kind], official[kind])


def rate(program, game, side, jersey, kind):
    player = f"{side}-{jersey}"
    compared = subprocess.run([program, "compare", "--json", game, player, player], capture_output=True, text=True).stdout
    return json.loads(compared)[0][kind]


main()
