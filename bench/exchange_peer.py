"""What a script would do: both files of one game through json.load, nothing made of them; by the processor's time, as the benchmark. exchange_peer.py PLACE/ID"""
import json
import sys
import time

ROUNDS = 50
times = []
for _ in range(ROUNDS):
    start = time.process_time()
    for part in ("playbyplay", "boxscore"):
        with open(f"{sys.argv[1]}-{part}.json", encoding="utf-8") as file:
            json.load(file)
    times.append(time.process_time() - start)
middle = sorted(times)[ROUNDS // 2]
print(f"{middle * 1000:.2f} ms a game, {60 / middle:.0f} games a minute")
