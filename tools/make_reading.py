#!/usr/bin/env python3
"""Writes examples/reading/: short documents of the hardest data, each computed by the formula that its source
names, or typed from published figures. Long data go into a table beside the document."""

import calendar
import json
import math
import pathlib
from datetime import date, datetime, timedelta, timezone

FOLDER = pathlib.Path(__file__).parents[1] / "examples" / "reading"

READABLE = {"Numbers": "Exact", "Thousands": "Comma", "BarBase": "Zero", "ValueRange": "BothEnds", "Labels": "Fitted",
            "SliceLabels": "Apart", "Legend": "OnPlot", "TimeLabels": "AtTimes", "Air": "ThirdOfLine",
            "Contrast": "Kept", "Palette": "Safe"}


def text_of(value, indent=""):
    """JSON with lists of numbers in one line each."""
    inner = indent + "  "
    if isinstance(value, dict) and value:
        lines = [f"{inner}{json.dumps(key, ensure_ascii=False)}: {text_of(of, inner)}" for key, of in value.items()]
        return "{\n" + ",\n".join(lines) + f"\n{indent}}}"
    if isinstance(value, list) and any(isinstance(item, (dict, list)) for item in value):
        return "[\n" + ",\n".join(inner + text_of(item, inner) for item in value) + f"\n{indent}]"
    return json.dumps(value, ensure_ascii=False)


def write(name, kind, title, source, record, data, options="readable", **more):
    document = {"version": "1", "kind": kind, "title": title, "source": source, "options": options,
                "property": record, "data": data, **more}
    (FOLDER / f"{name}.chart.json").write_text(text_of(document) + "\n", "utf-8")


def table(name, heading, rows):
    lines = [",".join(str(cell) for cell in row) for row in [heading, *rows]]
    (FOLDER / f"{name}.csv").write_text("\n".join(lines) + "\n", "utf-8")
    return {"csv": f"{name}.csv"}


def groups(names, *components):
    return {"groups": [{"name": name, "values": list(values)} for name, *values in zip(names, *components)]}


def with_options(**more):
    return {**READABLE, **more}


SERIF = {"字体": "宋体 3.4"}
NAME_AND_PERCENT = {"ShowNameLabel": "1", "ShowPercentLabel": "1", "LabelSeparator": " "}
NO_LEGEND = {"ShowLegend": "0"}


# Pies and half pies.

def tiny_slices():
    masses = {"Jupiter": 317.83, "Saturn": 95.16, "Neptune": 17.15, "Uranus": 14.54, "Earth": 1, "Venus": 0.815,
              "Mars": 0.107, "Mercury": 0.0553}
    write("tiny-slices", "pie", "The masses of the planets, the Earth's being 1",
          "NASA: Planetary Fact Sheet, ratio to Earth values",
          {"PieBasicProp": {"ComponentName": list(masses)},
           "PieLabelProp": {**NAME_AND_PERCENT, "ShowValueLabel": "1"}, "PieLegendProp": NO_LEGEND},
          {"values": list(masses.values())})


def hundred_slices():
    divisors = [(n, sum(n % d == 0 for d in range(1, n + 1))) for n in range(1, 101)]
    write("hundred-slices", "pie", "How many divisors each of the numbers from 1 to 100 has", "counted",
          {"PieBasicProp": {"FixedWidth": "80"},
           "PieLabelProp": {"ShowNameLabel": "1", "ShowPercentLabel": "0",
                            "PieLabelTextProperty": {"字体": "Arial 2.6"}}, "PieLegendProp": NO_LEGEND},
          table("hundred-slices", ["number", "divisors"], divisors))


def long_chinese_names():
    land = {"耕地中的水田": 3139.20, "耕地中的水浇地": 3211.48, "耕地中的旱地": 6435.51, "园地中的果园": 1303.13,
            "园地中的茶园和橡胶园": 319.90, "园地中的其他园地": 394.13, "林地中的乔木林地": 19735.16,
            "林地中的竹林地": 701.97, "林地中的灌木林地": 5862.61, "林地中的其他林地": 2112.84,
            "草地中的天然牧草地": 21317.21, "草地中的人工牧草地和其他草地": 5135.80}
    write("long-chinese-names", "pie", "耕地、园地、林地和草地（万公顷）", "第三次全国国土调查主要数据公报，2021 年 8 月 25 日",
          {"PieBasicProp": {"ComponentName": list(land)},
           "PieLabelProp": {**NAME_AND_PERCENT, "PieLabelTextProperty": SERIF}, "PieLegendProp": NO_LEGEND},
          {"values": list(land.values())})


def deep_pie():
    codons = {"Leucine": 6, "Serine": 6, "Arginine": 6, "Alanine": 4, "Glycine": 4, "Proline": 4, "Threonine": 4,
              "Valine": 4, "Isoleucine": 3, "Phenylalanine": 2, "Tyrosine": 2, "Cysteine": 2, "Histidine": 2,
              "Glutamine": 2, "Asparagine": 2, "Lysine": 2, "Aspartic acid": 2, "Glutamic acid": 2, "Methionine": 1,
              "Tryptophan": 1}
    write("deep-pie", "pie", "The codons of each amino acid", "the standard genetic code, NCBI translation table 1",
          {"PieBasicProp": {"PieStyle": "3D", "FixedWidth": "70", "ComponentName": list(codons)},
           "PieLabelProp": {"ShowNameLabel": "1", "ShowValueLabel": "1", "ShowPercentLabel": "0",
                            "LabelSeparator": " "}, "PieLegendProp": NO_LEGEND},
          {"values": list(codons.values())})


def two_halves():
    names = [str(k) for k in range(15)]
    coins = [math.comb(14, k) for k in range(15)]
    dice = [math.comb(14, k) * 5 ** (14 - k) for k in range(15)]
    half = {"HalfPieBasicProp": {"FixedWidth": "80", "ComponentName": names},
            "PieLabelProp": {"ShowNameLabel": "1", "ShowPercentLabel": "1", "LabelSeparator": ": ",
                             "PieLabelTextProperty": {"字体": "Arial 3"}}}
    title = {"ShowCaption": "1", "CaptionTextProperty": {"字体": "Arial 4.2"}}
    write("two-halves", "half-pie-half-pie", "Fourteen coins and fourteen dice",
          "binomial coefficients: C(14, k) of 2^14 throws of coins, C(14, k) 5^(14 - k) of 6^14 throws of dice",
          {"TopHalf": half, "LowerHalf": half}, {"first": {"values": coins}, "second": {"values": dice}},
          with_options(Title={**title, "Caption": "How many of 14 coins show heads"},
                       SecondTitle={**title, "Caption": "How many of 14 dice show a six"}))


def half_and_bars():
    def factors(n):
        return next((1 + factors(n // p) for p in range(2, n + 1) if n % p == 0), 0)

    counts = [sum(factors(n) == k for n in range(1, 1001)) for k in range(10)]
    primes = [sum(factors(n) == 1 for n in range(start, start + 100)) for start in range(1, 1001, 100)]
    names = ["no prime factor", "one", *[f"{word}" for word in ("two", "three", "four", "five", "six", "seven", "eight", "nine")]]
    write("half-and-bars", "half-pie-histogram", "The numbers to 1000 by their prime factors, and the primes of each hundred",
          "counted",
          {"HalfPie": {"HalfPieBasicProp": {"FixedWidth": "90", "ComponentName": names},
                       "PieLabelProp": {"ShowNameLabel": "1", "ShowPercentLabel": "1"}},
           "Histogram": {"HistogramPlotProp": {"PlotWidth": "90", "PlotHeight": "40", "ShowComponentName": "0",
                                               "ComponentName": [f"{k}01 to {k + 1}00" for k in range(10)]}}},
          {"values": counts, "groups": [{"name": "", "values": primes}]})


# Bars.

ONES = ("", "one", "two", "three", "four", "five", "six", "seven", "eight", "nine", "ten", "eleven", "twelve",
        "thirteen", "fourteen", "fifteen", "sixteen", "seventeen", "eighteen", "nineteen")
TENS = ("", "", "twenty", "thirty", "forty", "fifty", "sixty", "seventy", "eighty", "ninety")


def in_words(n):
    if n < 20:
        return ONES[n]
    if n < 100:
        return TENS[n // 10] + ("-" + ONES[n % 10] if n % 10 else "")
    size, word = (1000, "thousand") if n >= 1000 else (100, "hundred")
    rest = n % size
    joint = "" if rest == 0 else " and " if rest < 100 else " "
    return f"{in_words(n // size)} {word}{joint}{in_words(rest)}"


def forty_names():
    words = [in_words(n * n) for n in range(1, 41)]
    write("forty-names", "histogram", "The letters in the names of the first forty squares", "counted",
          {"CaptionProp": {"Caption": "Letters in the names of the first forty squares"},
           "HistogramPlotProp": {"PlotWidth": "170", "PlotHeight": "50", "ShowComponentValue": "1"},
           "HistogramHorAxisProp": {"GroupNameTextProperty": {"字体": "Arial 2.8"}}},
          table("forty-names", ["square", "letters"], [(word, sum(c.isalpha() for c in word)) for word in words]),
          range={"NaturalValueRange": [0, 40, 10, 2]})


MONTHS = [calendar.month_abbr[m] for m in range(1, 13)]


def day_of_year(month, day=21):
    return date(2023, month, day).timetuple().tm_yday


def declination(day):
    return -23.44 * math.cos(math.radians(360 / 365 * (day + 10)))


def mixed_bars():
    places = {"Longyearbyen, 78.2° N": 78.2, "Ushuaia, 54.8° S": -54.8}
    heights = [[round(90 - abs(latitude - declination(day_of_year(m))), 1) for m in range(1, 13)]
               for latitude in places.values()]
    write("mixed-bars", "histogram", "How high the sun stands at noon",
          "90° less the distance of the latitude from -23.44° cos(360°/365 (day + 10)), on the 21st of each month",
          {"CaptionProp": {"Caption": "Height of the sun at noon on the 21st"},
           "HistogramVerAxisProp": {"VerCaption": "degrees"},
           "HistogramPlotProp": {"PlotWidth": "170", "ShowComponentValue": "1", "ComponentName": list(places),
                                 "ComponentInfoTextProperty": {"字体": "Arial 2.2"}},
           "HistogramLegendProp": {"ShowLegend": "1", "LegendPos": "BottomCenter"}},
          groups(MONTHS, *heights), range={"NaturalValueRange": [-20, 70, 10, 2]})


def mixed_stacks():
    angles = range(0, 360, 30)
    terms = [[round(math.sin(math.radians(k * (angle + 15))) / k, 2) for angle in angles] for k in (1, 3, 5, 7)]
    write("mixed-stacks", "histogram", "A square wave's first four terms", "sin(k x) / k of k = 1, 3, 5 and 7",
          {"CaptionProp": {"Caption": "A square wave's first four terms"},
           "HistogramPlotProp": {"PlotWidth": "130", "PlotHeight": "65", "Juxtaposition": "0", "ShowComponentValue": "1",
                                 "ComponentName": ["sin x", "sin 3x / 3", "sin 5x / 5", "sin 7x / 7"],
                                 "ComponentInfoTextProperty": {"字体": "Arial 2.4"}},
           "HistogramHorAxisProp": {"HorCaption": "x"},
           "HistogramLegendProp": {"ShowLegend": "1"}},
          groups([f"{angle + 15}°" for angle in angles], *terms))


def deep_stacks():
    days = [math.radians(360 / 365 * (day_of_year(m) - 81)) for m in range(1, 13)]
    tilt = [round(9.87 * math.sin(2 * b), 1) for b in days]
    orbit = [round(-7.53 * math.cos(b) - 1.5 * math.sin(b), 1) for b in days]
    write("deep-stacks", "histogram", "Why sundials err", 
          "the equation of time: 9.87 sin 2B and -7.53 cos B - 1.5 sin B minutes, B = 360°/365 (day - 81), on the 21st",
          {"CaptionProp": {"Caption": "How many minutes a sundial is fast"},
           "HistogramPlotProp": {"PlotWidth": "120", "Juxtaposition": "0", "PieStyle": "3D", "ShowComponentValue": "1",
                                 "ComponentName": ["for the tilted axis", "for the oval orbit"],
                                 "ComponentInfoTextProperty": {"字体": "Arial 2.6"}},
           "HistogramLegendProp": {"ShowLegend": "1", "LegendPos": "TopCenter"}},
          groups(MONTHS, tilt, orbit))


def wan():
    people = {"天津市": 13866009, "海南省": 10081232, "香港特别行政区": 7474200, "宁夏回族自治区": 7202654,
              "青海省": 5923957, "西藏自治区": 3648100, "澳门特别行政区": 683218}
    write("wan", "histogram", "人口最少的省级行政区", "国家统计局：第七次全国人口普查公报（第三号），2021 年 5 月 11 日",
          {"CaptionProp": {"Caption": "人口最少的省级行政区，2020 年", "CaptionTextProperty": {"字体": "宋体 4.5"}},
           "HistogramVerAxisProp": {"VerAxisLabelTextProperty": SERIF},
           "HistogramHorAxisProp": {"GroupNameTextProperty": SERIF},
           "HistogramPlotProp": {"ShowComponentValue": "1", "ComponentInfoTextProperty": SERIF}},
          groups(people, people.values()), with_options(Thousands="Chinese"),
          range={"NaturalValueRange": [0, 15000000, 2500000, 500000]})


def log_bars():
    lives = {"Po-213": 3.706e-6, "Po-214": 1.6347e-4, "Po-216": 0.144, "Rn-220": 55.6, "Po-218": 185.8,
             "Bi-214": 1194, "Pb-212": 38257, "Rn-222": 330178, "Po-210": 11955686, "Pb-210": 7.006e8}
    write("log-bars", "histogram", "Half-lives in the series of decay", "NUBASE2020, Chinese Physics C 45 (2021) 030001",
          {"CaptionProp": {"Caption": "Half-lives (seconds)"},
           "HistogramVerAxisProp": {"MajorScaleStyle": "outer"},
           "HistogramPlotProp": {"LogarithmScale": "1", "PlotWidth": "170", "PlotHeight": "70",
                                 "ShowComponentValue": "1"}},
          groups(lives, lives.values()), with_options(MaxDecimals="7"), range={"LogarithmValueRange": [1e-6, 1e10]})


def one_value():
    write("one-value", "histogram", "The speed of light", "Bureau international des poids et mesures: The International System of Units, 2019",
          {"CaptionProp": {"Caption": "The speed of light (m/s)"},
           "HistogramPlotProp": {"PlotWidth": "60", "ShowComponentValue": "1"}},
          groups(["in vacuum"], [299792458]))


def negative_alone():
    points = {"Helium": -268.93, "Neon": -246.05, "Argon": -185.85, "Krypton": -153.42, "Xenon": -108.1, "Radon": -61.7}
    write("negative-alone", "histogram", "Where the noble gases boil", "CRC Handbook of Chemistry and Physics, 97th edition (2016), section 4",
          {"CaptionProp": {"Caption": "Boiling points of the noble gases (°C)"},
           "HistogramPlotProp": {"ShowComponentValue": "1"}},
          groups(points, points.values()))


def print_bars():
    solids = {"Tetrahedron": (4, 4, 6), "Cube": (6, 8, 12), "Octahedron": (8, 6, 12), "Dodecahedron": (12, 20, 30),
              "Icosahedron": (20, 12, 30)}
    write("print-bars", "histogram", "The five regular solids", "Euclid: Elements, book XIII",
          {"CaptionProp": {"Caption": "The five regular solids"},
           "HistogramPlotProp": {"PieStyle": "3D", "PlotWidth": "150", "ShowComponentValue": "1",
                                 "ComponentName": ["faces", "vertices", "edges"]},
           "HistogramLegendProp": {"ShowLegend": "1"}},
          groups(solids, *zip(*solids.values())), with_options(Palette="Print"),
          range={"NaturalValueRange": [0, 35, 5, 1]})


def dark_bars():
    def shares(numbers):
        digits = [str(number)[0] for number in numbers]
        return [digits.count(str(d)) for d in range(1, 10)]

    fibonacci = [1, 1]
    while len(fibonacci) < 1000:
        fibonacci.append(fibonacci[-1] + fibonacci[-2])
    factorials = [math.factorial(n) for n in range(1, 1001)]
    sets = {"Powers of 2": shares([2 ** n for n in range(1, 1001)]), "Fibonacci numbers": shares(fibonacci),
            "Factorials": shares(factorials), "Squares": shares([n * n for n in range(1, 1001)])}
    write("dark-bars", "histogram", "First digits", "counted over the first 1000 of each",
          {"CaptionProp": {"Caption": "How many of 1000 numbers begin with 1, 2 ... 9"},
           "HistogramPlotProp": {"Juxtaposition": "0", "PlotHeight": "80", "ShowComponentValue": "1",
                                 "ComponentName": [str(d) for d in range(1, 10)],
                                 "ComponentColor": ["#FF10243F", "#FF1C3D66", "#FF28568E", "#FF3B6FB6", "#FF6E97CC",
                                                    "#FF9DB9DD", "#FF4A2545", "#FF7A3B6E", "#FFB98BB0"]},
           "HistogramLegendProp": {"ShowLegend": "1"}},
          groups(sets, *zip(*sets.values())), with_options(Palette="Record"),
          range={"NaturalValueRange": [0, 1000, 250, 50]})


# Lines.

def quarter_step():
    rows = [(t, round(math.exp(-t / 20) * math.cos(math.radians(15 * t)), 4)) for t in range(0, 73)]
    write("quarter-step", "curve", "A swing that dies away", "e^(-t / 20) cos 15° t",
          {"CaptionProp": {"Caption": "A swing that dies away"}, "CurvePlotProp": {"CurveName": ["swing"]},
           "CurveHorAxisProp": {"HorCaption": "t"}},
          table("quarter-step", ["t", "swing"], rows), range={"NaturalValueRange": [-0.75, 1, 0.25, 0.05]})


def millions():
    rows = [(n, round(1e6 * 1.05 ** n)) for n in range(51)]
    write("millions", "curve", "A million at five per cent", "1,000,000 · 1.05^n",
          {"CaptionProp": {"Caption": "A million at five per cent a year"}, "CurveHorAxisProp": {"HorCaption": "years"}},
          table("millions", ["year", "sum"], rows), range={"NaturalValueRange": [0, 12500000, 2500000, 500000]})


def log_curves():
    powers = (6, 3, 1, -1, -4)
    rows = [(x, *(f"{x ** power:.6g}" for power in powers)) for x in range(1, 32)]
    write("log-curves", "curve", "Powers", "x^6, x^3, x, 1/x and 1/x^4",
          {"CaptionProp": {"Caption": "Powers of x"}, "CurvePlotProp": {"LogarithmScale": "1", "PlotHeight": "70"},
           "CurveHorAxisProp": {"HorCaption": "x"}},
          table("log-curves", ["x", "x⁶", "x³", "x", "1/x", "1/x⁴"], rows), range={"LogarithmValueRange": [1e-6, 1e9]})


def day_length(day, latitude):
    cosine = -math.tan(math.radians(latitude)) * math.tan(math.radians(declination(day)))
    return round(24 / math.pi * math.acos(max(-1, min(1, cosine))), 2)


def ten_years():
    places = {"Reykjavík": 64.1, "Beijing": 39.9, "Quito": -0.2}
    first = date(2015, 1, 1)
    days = [first + timedelta(n) for n in range((date(2025, 1, 1) - first).days)]
    rows = [((day - date(1970, 1, 1)).days, *(day_length(day.timetuple().tm_yday, at) for at in places.values()))
            for day in days]
    write("ten-years", "curve", "Ten years of days",
          "24/π arccos(-tan latitude tan declination) hours, declination -23.44° cos(360°/365 (day of the year + 10))",
          {"CaptionProp": {"Caption": "Hours of daylight"}, "CurvePlotProp": {"PlotWidth": "150"},
           "CurveVerAxisProp": {"VerCaption": "hours"}},
          table("ten-years", ["days since 1970", *places], rows), with_options(TimeUnit="Days"))


def one_day():
    start = int(datetime(2024, 6, 21, tzinfo=timezone.utc).timestamp())
    latitude, slope = math.radians(39.9), math.radians(declination(173))

    def height(minute):
        turn = math.radians((minute - 720) / 4)
        return math.degrees(math.asin(math.sin(latitude) * math.sin(slope)
                                      + math.cos(latitude) * math.cos(slope) * math.cos(turn)))

    rows = [(start + 60 * minute, round(height(minute), 2)) for minute in range(1441)]
    write("one-day", "curve", "One day of minutes",
          "arcsin(sin φ sin δ + cos φ cos δ cos(hour angle)) at φ = 39.9°, δ = 23.4°, 21 June 2024, local solar time",
          {"CaptionProp": {"Caption": "Height of the sun over Beijing, 21 June 2024"},
           "CurveVerAxisProp": {"VerCaption": "degrees"}, "CurvePlotProp": {"PlotWidth": "130"}},
          table("one-day", ["seconds since 1970", "height of the sun"], rows), with_options(TimeUnit="Seconds"))


def twenty_curves():
    rates = [k / 2 for k in range(1, 21)]
    rows = [(year, *(round(100 * (1 + rate / 100) ** year, 1) for rate in rates)) for year in range(31)]
    write("twenty-curves", "curve", "Twenty rates of interest", "100 (1 + rate)^years",
          {"CaptionProp": {"Caption": "100 at twenty rates of interest"}, "CurvePlotProp": {"PlotHeight": "75"},
           "CurveHorAxisProp": {"HorCaption": "years"}, "CurveLegendProp": {"LegendPos": "BottomCenter"}},
          table("twenty-curves", ["years", *(f"{rate:g} % a year" for rate in rates)], rows))


def forty_entries():
    # The partitions of n into k parts: those with a part 1, and those that lose 1 of each part.
    parts = [[0] * 41 for _ in range(41)]
    parts[0][0] = 1
    for n in range(1, 41):
        for k in range(1, n + 1):
            parts[n][k] = parts[n - 1][k - 1] + parts[n - k][k]
    names = ["40 alone", *(f"{k} parts" for k in range(2, 41))]
    write("forty-entries", "pie", "The partitions of 40 by the number of their parts", "p(n, k) = p(n - 1, k - 1) + p(n - k, k)",
          {"PieBasicProp": {"FixedWidth": "70", "ComponentName": names},
           "PieLabelProp": {"ShowPercentLabel": "0"}, "PieLegendProp": {"ShowLegend": "1"}},
          {"values": parts[40][1:]})


def print_lines():
    def legendre(order, x):
        before, now = 1.0, x
        for n in range(1, order):
            before, now = now, ((2 * n + 1) * x * now - n * before) / (n + 1)
        return now

    rows = [(f"{n / 50:g}", *(f"{legendre(order, n / 50):.4f}" for order in range(1, 7))) for n in range(-50, 51)]
    write("print-lines", "curve", "Legendre's polynomials", "(n + 1) P(n + 1) = (2n + 1) x P(n) - n P(n - 1)",
          {"CaptionProp": {"Caption": "Legendre's polynomials"}, "CurvePlotProp": {"PlotHeight": "70"},
           "CurveHorAxisProp": {"HorCaption": "x"}},
          table("print-lines", ["x", *(f"P{order}" for order in range(1, 7))], rows), with_options(Palette="Print"))


FOLDER.mkdir(exist_ok=True)
for make in (tiny_slices, hundred_slices, long_chinese_names, deep_pie, two_halves, half_and_bars, forty_names,
             mixed_bars, mixed_stacks, deep_stacks, wan, log_bars, one_value, negative_alone, print_bars, dark_bars,
             quarter_step, millions, log_curves, ten_years, one_day, twenty_curves, forty_entries, print_lines):
    make()
