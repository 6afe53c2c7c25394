#!/usr/bin/python3
"""Positions between track points: waymark-cli beside `exiftool -geotag` and `gpscorrelate`.

Usage: compare-tools.py WAYMARK_CLI PHOTO.jpg TRACK.gpx... [--seed N]

Dates copies of the photo within the tracks (between points, on points, in gaps, at the ends, across the 180 degree
meridian), has each program geotag them, and prints how far the others' positions lie from ours, by kind of instant.
"""
import argparse
import datetime
import importlib.util
import json
import math
import os
import random
import shutil
import subprocess
import tempfile

spec = importlib.util.spec_from_file_location("reference", os.path.join(os.path.dirname(__file__), "reference.py"))
reference = importlib.util.module_from_spec(spec)
spec.loader.exec_module(reference)


def kinds_of(points, chance):
    """{whole second: kind}"""
    dates = [point[0] for point in points]
    result = {}
    pairs = [(a, b) for a, b in zip(points, points[1:]) if b[0] - a[0] >= 2000]
    for a, b in chance.sample(pairs, min(40, len(pairs))):
        second = chance.randint(a[0] // 1000 + 1, (b[0] - 1) // 1000)
        gap = (b[0] - a[0]) / 1000
        kind = "across 180°" if abs(a[2] - b[2]) > 180 else "gap > 30 min" if gap > 1800 else "between points"
        result[second] = kind
    for a, b in pairs:
        if abs(a[2] - b[2]) > 180:
            result[(a[0] + b[0]) // 2000] = "across 180°"
    for date in chance.sample(dates, min(10, len(dates))):
        if date % 1000 == 0:
            result[date // 1000] = "on a point"
    for offset in (-60, -3600):
        result[dates[0] // 1000 + offset] = f"{-offset} s before the track"
    for offset in (60, 3600):
        result[-(-dates[-1] // 1000) + offset] = f"{offset} s after the track"
    return result


def metres(a, b):
    (la, lo), (lb, lp) = a, b
    mean = math.radians((la + lb) / 2)
    east = (lo - lp + 180) % 360 - 180
    return math.hypot(math.radians(la - lb), math.radians(east) * math.cos(mean)) * 6371000


def positions(folder):
    """{file: (latitude, longitude)}; exiftool prints a number of many digits as text."""
    run = subprocess.run(["exiftool", "-n", "-j", "-GPSLatitude", "-GPSLongitude", folder], capture_output=True)
    return {os.path.basename(row["SourceFile"]): (float(row["GPSLatitude"]), float(row["GPSLongitude"]))
            for row in json.loads(run.stdout) if {"GPSLatitude", "GPSLongitude"} <= row.keys()}


def compare(arguments, track, table):
    with open(track, "rb") as stream:
        points = reference.points_of_gpx(stream)
    if len(points) < 2 or any(a[0] >= b[0] for a, b in zip(points, points[1:])):
        print(f"{track}: not in the order of time; left out")
        return
    kinds = kinds_of(points, random.Random(f"{arguments.seed}{track}"))
    with tempfile.TemporaryDirectory() as work:
        dated = os.path.join(work, "dated")
        os.mkdir(dated)
        with open(os.path.join(work, "dates.csv"), "w") as table_of_dates:
            table_of_dates.write("SourceFile,DateTimeOriginal\n")
            for second in kinds:
                name = f"{second}.jpg"
                shutil.copyfile(arguments.photo, os.path.join(dated, name))
                date = datetime.datetime(1970, 1, 1) + datetime.timedelta(seconds=second)
                table_of_dates.write(f"./{name},{date:%Y:%m:%d %H:%M:%S}\n")
        subprocess.run(["exiftool", "-q", "-overwrite_original", "-gps:all=", "-xmp:all=", "-csv=../dates.csv", "."],
                       cwd=dated)
        found = {}
        for name, command in {
            "exiftool": ["exiftool", "-q", "-q", "-overwrite_original", "-geotag", track,
                         "-geotime<${DateTimeOriginal}+00:00"],
            "gpscorrelate": ["gpscorrelate", "--no-mtime", "-z", "0:00", "-g", track],
        }.items():
            copies = os.path.join(work, name)
            shutil.copytree(dated, copies)
            files = [copies] if name == "exiftool" else [os.path.join(copies, file) for file in os.listdir(copies)]
            subprocess.run(command + files, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            found[name] = positions(copies)
        run = subprocess.run([arguments.program, "--json", "--library", ":memory:", "--settings",
                              os.path.join(work, "settings"), "geotag", "--track", track, "--time-zone", "Z",
                              "--no-time", "--time-weighted", "--no-place", "--dry-run", dated], capture_output=True)
        ours = {os.path.basename(photo["path"]): (float(photo["latitude"]), float(photo["longitude"]))
                for photo in json.loads(run.stdout)["photos"] if "latitude" in photo}
    for second, kind in kinds.items():
        name = f"{second}.jpg"
        for program, theirs in found.items():
            counts = table.setdefault((kind, program), {"same": 0, "apart": [], "only ours": 0, "only theirs": 0})
            if name in ours and name in theirs:
                distance = metres(ours[name], theirs[name])
                if distance < 0.5:
                    counts["same"] += 1
                else:
                    counts["apart"].append(distance)
            elif name in ours:
                counts["only ours"] += 1
            elif name in theirs:
                counts["only theirs"] += 1


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("program")
    parser.add_argument("photo")
    parser.add_argument("tracks", nargs="+")
    parser.add_argument("--seed", default="1")
    arguments = parser.parse_args()
    table = {}
    for track in arguments.tracks:
        compare(arguments, os.path.abspath(track), table)
    for (kind, program), counts in sorted(table.items()):
        apart = counts["apart"]
        farthest = f" (to {max(apart):.1f} m)" if apart else ""
        print(f"{kind:26s} {program:13s} within 0.5 m {counts['same']:4d}, apart {len(apart):4d}{farthest}, "
              f"only ours {counts['only ours']:4d}, only theirs {counts['only theirs']:4d}")


if __name__ == "__main__":
    main()
