#!/usr/bin/env python3
"""Writes src/penlode/text/Gb18030Table.inc, the tables behind the narrow encoding.

    python3 tools/make_gb18030_table.py            writes the file
    python3 tools/make_gb18030_table.py --check    says whether the committed file is up to date

The source is Python's own "gb18030" codec, whose two-byte area is the one of GB 18030-2000, brought up to
GB 18030-2022 by the exchanges listed below. Both editions map the Basic Multilingual Plane one to one: what
has no pair of bytes has a four-byte form, numbered in the order of the code points; an exchange swaps the
places of a private-use character and of the real one that has replaced it.
"""

import pathlib
import sys

TARGET = pathlib.Path(__file__).resolve().parent.parent / "src" / "penlode" / "text" / "Gb18030Table.inc"
TRAILS = [*range(0x40, 0x7F), *range(0x80, 0xFF)]
PAIRS = [bytes((lead, trail)) for lead in range(0x81, 0xFF) for trail in TRAILS]
PER_LINE = 38

# pair of bytes: (its character in the 2000 edition, its character since)
EXCHANGES = {
    # GB 18030-2005
    0xA8BC: (0xE7C7, 0x1E3F),
    # GB 18030-2022
    0xA6D9: (0xE78D, 0xFE10),
    0xA6DA: (0xE78E, 0xFE12),
    0xA6DB: (0xE78F, 0xFE11),
    0xA6DC: (0xE790, 0xFE13),
    0xA6DD: (0xE791, 0xFE14),
    0xA6DE: (0xE792, 0xFE15),
    0xA6DF: (0xE793, 0xFE16),
    0xA6EC: (0xE794, 0xFE17),
    0xA6ED: (0xE795, 0xFE18),
    0xA6F3: (0xE796, 0xFE19),
    0xFE59: (0xE81E, 0x9FB4),
    0xFE61: (0xE826, 0x9FB5),
    0xFE66: (0xE82B, 0x9FB6),
    0xFE67: (0xE82C, 0x9FB7),
    0xFE6D: (0xE832, 0x9FB8),
    0xFE7E: (0xE843, 0x9FB9),
    0xFE90: (0xE854, 0x9FBA),
    0xFEA0: (0xE864, 0x9FBB),
}

# Pairs that some editions of the codec read as characters outside the plane; by both standards they are these.
PRIVATE_USE = {0xFE51: 0xE816, 0xFE52: 0xE817, 0xFE53: 0xE818, 0xFE6C: 0xE831, 0xFE76: 0xE83B, 0xFE91: 0xE855}


def pairs_of_2000():
    settled = {pair: old for pair, (old, _) in EXCHANGES.items()} | PRIVATE_USE
    return [settled.get(int.from_bytes(pair, "big")) or ord(pair.decode("gb18030")) for pair in PAIRS]


def four_byte_forms(pairs):
    taken = set(pairs)
    plane = [*range(0x80, 0xD800), *range(0xE000, 0x10000)]
    return [character for character in plane if character not in taken]


def exchanged(characters):
    places = dict(EXCHANGES.values()) | {new: old for old, new in EXCHANGES.values()}
    return [places.get(character, character) for character in characters]


def runs_of(characters):
    """(number of the first form, its character) of every stretch of successive characters."""
    return [
        (number, character)
        for number, character in enumerate(characters)
        if number == 0 or character != characters[number - 1] + 1
    ]


def checked(pairs, forms):
    assert len(pairs) == 126 * 190 and len(forms) == 39420
    everything = sorted(pairs + forms)
    assert everything == [*range(0x80, 0xD800), *range(0xE000, 0x10000)]
    for pair, (old, new) in EXCHANGES.items():
        index = PAIRS.index(pair.to_bytes(2, "big"))
        assert pairs[index] == new and old in forms


def rows(items, per_line):
    for start in range(0, len(items), per_line):
        yield ",".join(items[start : start + per_line]) + ",\n"


def table():
    before = pairs_of_2000()
    pairs, forms = exchanged(before), exchanged(four_byte_forms(before))
    checked(pairs, forms)
    runs = runs_of(forms)
    text = "// Written by tools/make_gb18030_table.py from GB 18030-2022; not to be edited.\n\n"
    text += "// The characters of the pairs 8140 to FEFE: 190 for every lead byte, by trail byte.\n"
    text += f"constexpr std::array<char16_t, {len(pairs)}> kPairs{{\n"
    text += "".join(rows([f"0x{character:04X}" for character in pairs], PER_LINE))
    text += "};\n\n// Where the four-byte forms, counted from 81308130, start a new stretch of characters.\n"
    text += f"constexpr std::array<FourByteRun, {len(runs)}> kFourByteRuns{{{{\n"
    text += "".join(rows([f"{{{number},0x{character:04X}}}" for number, character in runs], 16))
    return text + "}};\n"


def main():
    if sys.argv[1:] == ["--check"]:
        current = TARGET.read_text(encoding="ascii") == table()
        print(f"{TARGET.name} is {'up to date' if current else 'out of date'}")
        return 0 if current else 1
    TARGET.write_text(table(), encoding="ascii", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
