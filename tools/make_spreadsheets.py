#!/usr/bin/env python3
"""Writes the tables in examples/spreadsheets/, and what a chart of each has to show.

    python3 tools/make_spreadsheets.py

Every table has another of the forms in which people have theirs. What they say is counted or computed here,
but for the shop's figures, which are made up and say so. tests/data/spreadsheets/values.json has the same
values as plain numbers. Needs python3-openpyxl and python3-odf; zip archives and data bases differ from run to
run in their times alone.
"""

import datetime
import json
import pathlib
import sqlite3
from math import acos, asin, atan2, comb, cos, degrees, factorial, pi, radians, sin, sqrt

import odf.opendocument
import odf.table
import odf.text
import openpyxl

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDER = ROOT / "examples" / "spreadsheets"
VALUES = ROOT / "tests" / "data" / "spreadsheets" / "values.json"
expected = {}


def keep(name, *series, times=None):
    """What the chart shows: a list for each column, the times of a line chart beside them."""
    expected[name] = {"series": [list(one) for one in series]}
    if times is not None:
        expected[name]["times"] = list(times)


def write(name, lines, encoding="utf-8", end="\n"):
    (FOLDER / name).write_bytes("".join(line + end for line in lines).encode(encoding))


def joined(rows, separator=","):
    return [separator.join(str(cell) for cell in row) for row in rows]


def primes_below(limit):
    return [n for n in range(2, limit) if all(n % d for d in range(2, int(sqrt(n)) + 1))]


# The Sun, to a hundredth of a degree.

TILT = radians(23.439)
J2000 = datetime.datetime(2000, 1, 1, 12)


def sun_longitude(moment):
    days = (moment - J2000) / datetime.timedelta(days=1)
    anomaly = radians(357.528 + 0.9856003 * days)
    return (280.460 + 0.9856474 * days + 1.915 * sin(anomaly) + 0.020 * sin(2 * anomaly)) % 360


def declination(moment):
    """In radians."""
    return asin(sin(TILT) * sin(radians(sun_longitude(moment))))


def moment_of(longitude, after):
    """When the Sun next stands at an ecliptic longitude, in universal time."""
    step = datetime.timedelta(days=1)
    moment = after
    while step > datetime.timedelta(seconds=1):
        while (sun_longitude(moment + step) - longitude) % 360 > 180:
            moment += step
        step /= 2
    return moment


def daylight(latitude, moment):
    """Hours from sunrise to sunset, refraction included."""
    phi, delta = radians(latitude), declination(moment)
    cosine = (sin(radians(-0.833)) - sin(phi) * sin(delta)) / (cos(phi) * cos(delta))
    return 24 / pi * acos(cosine)


def noon(year, month, day):
    return datetime.datetime(year, month, day, 12)


def equation_of_time(moment):
    """Minutes by which a sundial is ahead of the clock."""
    days = (moment - J2000) / datetime.timedelta(days=1)
    mean = 280.460 + 0.9856474 * days
    longitude = radians(sun_longitude(moment))
    ascension = degrees(atan2(cos(TILT) * sin(longitude), cos(longitude)))
    return 4 * ((mean - ascension + 180) % 360 - 180)


def last_digits():
    primes = [prime for prime in primes_below(1000) if prime > 10]
    rows = [(f"ends in {digit}", sum(prime % 10 == digit for prime in primes)) for digit in (1, 3, 7, 9)]
    write("last-digits.csv", ["Last digit,Primes from 10 to 1000"] + joined(rows))
    keep("last-digits.csv", [count for _, count in rows])


def dice():
    ways = [(total, 6 - abs(total - 7)) for total in range(2, 13)]
    write("dice.csv", ["\ufeffSum of two dice,Ways"] + joined(ways), end="\r\n")
    keep("dice.csv", [count for _, count in ways])


def day_length():
    months = "Januar Februar März April Mai Juni Juli August September Oktober November Dezember".split()
    hours = [[round(daylight(latitude, noon(2025, month + 1, 15)), 2) for month in range(12)]
             for latitude in (48.1, 59.9)]
    rows = [(name, *(f"{column[i]:.2f}".replace(".", ",") for column in hours)) for i, name in enumerate(months)]
    write("tageslaenge.txt", ["\ufeffMonatsmitte\tMünchen\tOslo"] + joined(rows, "\t"), "utf-16-le", "\r\n")
    keep("tageslaenge.txt", *hours)


def seasons():
    moments = [moment_of(0, datetime.datetime(2025, 3, 1))]
    for longitude in (90, 180, 270, 0):
        moments.append(moment_of(longitude, moments[-1] + datetime.timedelta(days=10)))
    lengths = [round((b - a) / datetime.timedelta(days=1), 1) for a, b in zip(moments, moments[1:])]
    write("siji.csv", ["季节,天数"] + joined(zip(("春季", "夏季", "秋季", "冬季"), lengths)), "gb18030", "\r\n")
    keep("siji.csv", lengths)


def cubes():
    german = str.maketrans(",.", ".,")
    edges = range(5, 30, 5)
    columns = [edge ** 3 for edge in edges], [round(pi / 6 * edge ** 3, 1) for edge in edges]
    rows = [(f"{edge} cm", *(f"{column[i]:,.1f}".translate(german) for column in columns))
            for i, edge in enumerate(edges)]
    write("wuerfel.csv", ["Kante;Würfel;Kugel darin"] + joined(rows, ";"), end="\r\n")
    keep("wuerfel.csv", *columns)


def interest():
    years = range(0, 21)
    columns = [[round(1000 * (1 + rate / 100) ** year, 1) for year in years] for rate in (2, 3, 5)]
    rows = [(year, *(f'"{column[year]:,.1f}"' for column in columns)) for year in years]
    write("interest.csv", ["Years,2 % a year,3 % a year,5 % a year"] + joined(rows))
    keep("interest.csv", *columns, times=years)


def factorials():
    numbers = range(1, 11)
    write("factorielles.csv",
          ["n;n!"] + [f"{n};{factorial(n):,}".replace(",", "\u202f") for n in numbers])
    keep("factorielles.csv", [factorial(n) for n in numbers])


def sixes():
    throws = range(1, 13)
    chances = [round(100 * (1 - (5 / 6) ** n), 1) for n in throws]
    write("a-six.csv", ["Throws,At least one six"] + [f"{n},{chance}%" for n, chance in zip(throws, chances)])
    keep("a-six.csv", chances, times=throws)


def doubled_cent():
    days = range(1, 31)
    dollars = [2 ** (day - 1) / 100 for day in days]
    write("doubled-cent.csv", ["Day,A cent doubled"] + [f'{day},"${sum_:,.2f}"' for day, sum_ in zip(days, dollars)])
    keep("doubled-cent.csv", dollars, times=days)


def polygonal_numbers():
    names = {3: "triangular", 4: "square", 5: "pentagonal", 6: "hexagonal"}
    numbers = range(1, 13)
    columns = [[((corners - 2) * n * n - (corners - 4) * n) // 2 for n in numbers] for corners in names]
    write("polygonal.csv", ["sep=;", "n;" + ";".join(names.values())] + joined(zip(numbers, *columns), ";"))
    keep("polygonal.csv", *columns, times=numbers)


def pascal():
    rows = [(k, comb(12, k)) for k in range(13)]
    write("pascal.csv", ["Row 12 of Pascal's triangle,", ",", "k,Ways to choose k of 12"] + joined(rows))
    keep("pascal.csv", [ways for _, ways in rows])


def sundial():
    dates = [datetime.date(2025, month, day) for month, day in (
        (1, 3), (1, 19), (2, 11), (3, 2), (3, 28), (4, 15), (5, 1), (5, 14), (6, 13), (7, 8), (7, 26), (8, 20),
        (9, 1), (9, 30), (10, 17), (11, 3), (11, 22), (12, 10), (12, 25))]
    minutes = [round(equation_of_time(noon(date.year, date.month, date.day)), 1) for date in dates]
    write("sundial.csv", ["Date,Sundial ahead of the clock (minutes)"] + joined(zip(dates, minutes)))
    keep("sundial.csv", minutes, times=[(date - dates[0]).days for date in dates])


def city_days():
    dates = [datetime.date(2024, month, day) for month in range(1, 13) for day in (5, 20)]
    columns = [[round(daylight(latitude, noon(2024, date.month, date.day)), 1) for date in dates]
               for latitude in (39.9, 1.3)]
    rows = [(f"{date.year}/{date.month}/{date.day}", *values) for date, *values in zip(dates, *columns)]
    write("daylight-2024.csv", ["Date,Beijing,Singapore"] + joined(rows))
    keep("daylight-2024.csv", *columns, times=[(date - dates[0]).days for date in dates])


def solar_terms():
    moment = datetime.datetime(2025, 1, 1)
    dates, heights = [], []
    for i in range(24):
        longitude = (285 + 15 * i) % 360
        moment = moment_of(longitude, moment)
        dates.append((moment + datetime.timedelta(hours=8)).date())
        heights.append(round(degrees(asin(sin(TILT) * sin(radians(longitude)))), 1))
    rows = [(f"{date.year}年{date.month}月{date.day}日", height) for date, height in zip(dates, heights)]
    write("jieqi.csv", ["节气日期,太阳赤纬（度）"] + joined(rows))
    keep("jieqi.csv", heights, times=[(date - dates[0]).days for date in dates])


def sun_height():
    hours = range(0, 25, 2)
    phi, delta = radians(39.9), TILT
    heights = [round(degrees(asin(sin(phi) * sin(delta) + cos(phi) * cos(delta) * cos(pi / 12 * (hour - 12)))), 1)
               for hour in hours]
    start = datetime.datetime(2025, 6, 21)
    rows = [((start + datetime.timedelta(hours=hour)).strftime("%Y-%m-%d %H:%M"), height)
            for hour, height in zip(hours, heights)]
    write("sun-height.csv", ["Sun time,Height of the sun"] + joined(rows))
    keep("sun-height.csv", heights, times=hours)


def throw():
    times = [i / 4 for i in range(9)]
    heights = [round(1.5 + 9.1 * t - 9.81 / 2 * t * t, 2) for t in times]
    write("throw.csv", ["Seconds,Height in metres"] + joined(zip(times, heights)))
    keep("throw.csv", heights, times=times)


def shop():
    rows = [("North", 120, 135), ("South", 98, 87), ("East", 143, 160), ("West", 76, 101)]
    write("shop.csv", ["Region (made up),2023,2024"] + joined(rows))
    keep("shop.csv", *list(zip(*rows))[1:])


def zones():
    shares = [round(100 * share, 2) for share in (1 - cos(TILT), cos(TILT) - sin(TILT), sin(TILT))]
    write("zones.csv", joined(zip(("Polar zones", "Temperate zones", "Tropics"), shares)))
    keep("zones.csv", shares)


def solids():
    names = ("Tetrahedron", "Cube", "Octahedron", "Dodecahedron", "Icosahedron")
    rows = {"Corners": (4, 8, 6, 20, 12), "Edges": (6, 12, 12, 30, 30), "Faces": (4, 6, 8, 12, 20)}
    assert all(corners - edges + faces == 2 for corners, edges, faces in zip(*rows.values()))
    write("solids.csv", joined([("Solid", *names)] + [(name, *counts) for name, counts in rows.items()]))
    keep("solids.csv", *rows.values())


def prime_gaps():
    primes = primes_below(100_000)
    counts = {}
    for a, b in zip(primes, primes[1:]):
        counts[b - a] = counts.get(b - a, 0) + 1
    write("prime-gaps.csv", ["Gap,Primes below 100000"] + [f"gap {gap},{counts[gap]}" for gap in sorted(counts)])
    most = sorted(sorted(counts, key=counts.get, reverse=True)[:7])
    keep("prime-gaps.csv", [counts[gap] for gap in most] + [sum(counts.values()) - sum(map(counts.get, most))])


def profit():
    rows = [("Q1 2023", "12"), ("Q2 2023", "(5)"), ("Q3 2023", "\u22123"), ("Q4 2023", "8"), ("Q1 2024", "15"),
            ("Q2 2024", "-2")]
    write("profit.csv", ["Quarter,Profit (made up)"] + joined(rows))
    keep("profit.csv", [12, -5, -3, 8, 15, -2])


def poker():
    hands = comb(52, 5)
    rows = [("straight", 10 * 4 ** 5 - 40), ("flush", 4 * comb(13, 5) - 40), ("full house", 13 * 4 * 12 * 6),
            ("four of a kind", 13 * 48), ("straight flush", 40)]
    chances = [float(f"{count / hands:.2g}") for _, count in rows]
    write("poker.csv", ["Hand,Chance"] + [f"{name},{chance:f}".rstrip("0")
                                           for (name, _), chance in zip(rows, chances)])
    keep("poker.csv", chances)


def planets():
    """By Kepler's third law from the distance in astronomical units."""
    rows = {"Mercury": 0.387, "Venus": 0.723, "Earth": 1.0, "Mars": 1.524, "Jupiter": 5.203, "Saturn": 9.537,
            "Uranus": 19.19, "Neptune": 30.07}
    days = [round(365.25 * distance ** 1.5) for distance in rows.values()]
    write("planets.csv", ["Planet,Days round the Sun"] + joined(zip(rows, days)))
    keep("planets.csv", days)


def year_of_days():
    dates = [datetime.date(2025, month, 1) for month in range(1, 13)] + [datetime.date(2026, 1, 1)]
    cities = {"Beijing": 39.9, "Helsinki": 60.2}
    columns = [[round(daylight(latitude, noon(date.year, date.month, date.day)), 1) for date in dates]
               for latitude in cities.values()]
    book = openpyxl.Workbook()
    book.active.title = "Notes"
    book.active.append(["Hours from sunrise to sunset, computed for the latitudes"])
    for city, latitude in cities.items():
        book.active.append([city, latitude])
    sheet = book.create_sheet("Daylight")
    sheet.append(["Date", *cities])
    for date, *hours in zip(dates, *columns):
        sheet.append([date, *hours])
        sheet.cell(sheet.max_row, 1).number_format = "dd.mm.yyyy"
    book.save(FOLDER / "daylight.xlsx")
    keep("daylight.xlsx", *columns, times=[(date - dates[0]).days for date in dates])


def fibonacci():
    numbers = [1, 1]
    while len(numbers) < 12:
        numbers.append(numbers[-1] + numbers[-2])
    book = odf.opendocument.OpenDocumentSpreadsheet()
    sheet = odf.table.Table(name="Fibonacci")

    def row(*cells):
        line = odf.table.TableRow()
        for cell in cells:
            kind = dict(valuetype="float", value=cell) if isinstance(cell, int) else dict(valuetype="string")
            box = odf.table.TableCell(**kind)
            box.addElement(odf.text.P(text=str(cell)))
            line.addElement(box)
        sheet.addElement(line)

    row("n", "Fibonacci number")
    for n, number in enumerate(numbers, 1):
        row(n, number)
    book.spreadsheet.addElement(sheet)
    book.save(FOLDER / "fibonacci.ods")
    keep("fibonacci.ods", numbers)


def prime_base():
    path = FOLDER / "primes.db"
    path.unlink(missing_ok=True)
    primes = primes_below(1000)
    with sqlite3.connect(path) as base:
        base.execute("create table primes (p integer primary key)")
        base.executemany("insert into primes values (?)", [(p,) for p in primes])
    keep("primes.db", [sum(1 for p in primes if p // 100 == hundred) for hundred in range(10)])


FOLDER.mkdir(exist_ok=True)
VALUES.parent.mkdir(exist_ok=True)
for make in (last_digits, dice, day_length, seasons, cubes, interest, factorials, sixes, doubled_cent,
             polygonal_numbers, pascal, sundial, city_days, solar_terms, sun_height, throw, shop, zones, solids,
             prime_gaps, profit, poker, planets, year_of_days, fibonacci, prime_base):
    make()
VALUES.write_text("{\n" + ",\n".join(f"  {json.dumps(name)}: {json.dumps(shown)}"
                                      for name, shown in expected.items()) + "\n}\n", "utf-8")
