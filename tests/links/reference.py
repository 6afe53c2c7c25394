#!/usr/bin/python3
"""The points around random instants of track files, computed apart from the program under test.

Usage: reference.py FOLDER SEED OUT.tsv SYNTHETIC_FOLDER

Reads every track file below FOLDER, GPX by the reader below, the others as gpsbabel shows them in GPX, and two tracks
across the 180 degree meridian that it writes to SYNTHETIC_FOLDER. For each it chooses whole seconds: within, at the
ends and outside, in the largest gaps, on points, next to them, on both sides of the meridian. A line of the output is

    file  seconds since 1970  preceding  next  time-weighted

the last three being the positions that may be right (several points may have one date), "latitude,longitude,elevation"
separated by ";", "-" for none. Files that cannot be read are named on standard error.
"""
import datetime
import os
import random
import re
import subprocess
import sys
import xml.etree.ElementTree as ElementTree
from fractions import Fraction

GPSBABEL = {".nmea": "nmea", ".kml": "kml", ".tcx": "gtrnctr", ".fit": "garmin_fit", ".igc": "igc", ".csv": "unicsv"}
TIME = re.compile(r"(\d{4})-(\d\d)-(\d\d)(?:[Tt ](\d\d):(\d\d)(?::(\d\d)(?:[.,](\d+))?)?)?(Z|z|[+-]\d\d(?::?\d\d)?)?$")


def milliseconds(text):
    """Of a GPX time, since 1970; none for what is no time."""
    match = TIME.match((text or "").strip())
    if not match:
        return None
    year, month, day, hour, minute, second, fraction, zone = match.groups()
    try:
        date = datetime.date(int(year), int(month), int(day))
    except ValueError:
        return None
    seconds = (date - datetime.date(1970, 1, 1)).days * 86400
    seconds += int(hour or 0) * 3600 + int(minute or 0) * 60 + int(second or 0)
    if zone and zone not in "Zz":
        digits = zone[1:].replace(":", "").ljust(4, "0")
        seconds -= int(zone[0] + "1") * (int(digits[:2]) * 3600 + int(digits[2:]) * 60)
    return seconds * 1000 + int((fraction or "0")[:3].ljust(3, "0"))


def points_of_gpx(stream):
    """(milliseconds, latitude, longitude, elevation or none) of every dated track point with a position."""
    points = []
    path = []
    for event, element in ElementTree.iterparse(stream, events=("start", "end")):
        name = element.tag.rsplit("}", 1)[-1]
        if event == "start":
            path.append(name)
            continue
        path.pop()
        if name != "trkpt" or path != ["gpx", "trk", "trkseg"]:
            continue
        own = {child.tag.rsplit("}", 1)[-1]: child.text for child in element}
        when = milliseconds(own.get("time"))
        latitude, longitude = (element.get(key, "").strip() for key in ("lat", "lon"))
        if when is not None and latitude and longitude:
            try:
                elevation = Fraction((own.get("ele") or "").strip())
            except ValueError:
                elevation = None
            points.append((when, Fraction(latitude), Fraction(longitude), elevation))
        element.clear()
    return points


def points_of(path):
    extension = os.path.splitext(path)[1].lower()
    if extension == ".gpx":
        with open(path, "rb") as stream:
            return points_of_gpx(stream)
    if extension not in GPSBABEL:
        return None
    command = ["gpsbabel", "-t", "-i", GPSBABEL[extension], "-f", path, "-o", "gpx", "-F", "-"]
    run = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, env={**os.environ, "TZ": "UTC"})
    with run.stdout as stream:
        points = points_of_gpx(stream)
    if run.wait() != 0:
        raise ValueError("gpsbabel cannot read it")
    return points


def instants(points, chance):
    """Whole seconds worth asking for."""
    dates = sorted({point[0] for point in points})
    first, last = dates[0] // 1000, -(-dates[-1] // 1000)
    chosen = {first - 1, first, first + 1, last - 1, last, last + 1, first - 86400, last + 86400}
    chosen.update(chance.randint(first, last) for _ in range(20))
    for date in chance.sample(dates, min(10, len(dates))):
        chosen.update((date // 1000 - 1, date // 1000, date // 1000 + 1))
    gaps = sorted(zip(dates, dates[1:]), key=lambda gap: gap[0] - gap[1])[:5]
    crossings = [(a[0], b[0]) for a, b in zip(points, points[1:]) if abs(a[2] - b[2]) > 180 and a[0] < b[0]][:20]
    for begin, end in gaps + crossings:
        chosen.update(begin // 1000 + offset for offset in (0, 1))
        chosen.update(end // 1000 + offset for offset in (-1, 0))
        chosen.update(chance.randint(begin // 1000, end // 1000) for _ in range(3))
    return sorted(chosen)


def text(points):
    def number(value):
        return "" if value is None else repr(float(value))
    return ";".join(sorted({",".join(map(number, point[1:])) for point in points})) or "-"


def between(preceding, following, instant):
    """The positions that divide the way from a preceding to a following point as the instant divides the time."""
    weight = Fraction(instant - preceding[0][0], following[0][0] - preceding[0][0])
    weighted = []
    for p in preceding:
        for n in following:
            mixed = [None if a is None or b is None else a + (b - a) * weight for a, b in zip(p[1:], n[1:])]
            weighted.append((instant, *mixed))
    return weighted


def write_crossings(folder):
    """Two tracks across the meridian, eastward and westward, with a gap."""
    for name, sign in (("eastward.gpx", 1), ("westward.gpx", -1)):
        lines = []
        for i in range(40):
            longitude = Fraction(1795, 10) + Fraction(i, 40) if i < 20 else Fraction(-180) + Fraction(i - 20, 40)
            time = datetime.datetime(2014, 6, 1, 12) + datetime.timedelta(seconds=30 * i + (600 if i > 30 else 0))
            lines.append(f'<trkpt lat="{float(Fraction(-17) + Fraction(i, 1000))}" lon="{float(sign * longitude)}">'
                         f'<ele>{i * 1.5}</ele><time>{time.isoformat()}Z</time></trkpt>')
        with open(os.path.join(folder, name), "w") as out:
            out.write('<gpx version="1.1" xmlns="http://www.topografix.com/GPX/1/1"><trk><trkseg>' +
                      "".join(lines) + "</trkseg></trk></gpx>")


def main():
    folder, seed, output, synthetic = sys.argv[1:]
    write_crossings(synthetic)
    files = sorted(os.path.join(where, name) for root in (folder, synthetic)
                   for where, _, names in os.walk(root) for name in names)
    with open(output, "w") as out:
        for path in files:
            try:
                points = points_of(path)
            except (ElementTree.ParseError, ValueError, ZeroDivisionError) as problem:
                print(f"reference: {path}: {problem}", file=sys.stderr)
                continue
            if not points:
                continue
            by_date = {}
            for point in points:
                by_date.setdefault(point[0], []).append(point)
            dates = sorted(by_date)
            chance = random.Random(seed + os.path.basename(path))
            for second in instants(points, chance):
                before = [date for date in dates if date < second * 1000]
                after = [date for date in dates if date >= second * 1000]
                preceding = by_date[before[-1]] if before else []
                following = by_date[after[0]] if after else []
                weighted = between(preceding, following, second * 1000) if preceding and following else []
                out.write("\t".join((path, str(second), text(preceding), text(following), text(weighted))) + "\n")


if __name__ == "__main__":
    main()
