#!/usr/bin/env python3
"""Writes src/engine/runtime/CaseTable.h: letters and simple case mappings of the units below U+10000.

    python3 tools/MakeCaseTable.py > src/engine/runtime/CaseTable.h

str.upper() and str.lower() give the full mapping. Where that has more than one character, the simple mapping is the
title case where that has one character (Greek with iota below), and for the lower case of U+0130 the letter i;
elsewhere there is none, and the unit stays.
"""
import unicodedata

UNITS = [u for u in range(0x10000) if not 0xD800 <= u <= 0xDFFF]


def simple_upper(unit):
    for mapped in (chr(unit).upper(), chr(unit).title()):
        if len(mapped) == 1:
            return ord(mapped) if ord(mapped) < 0x10000 else unit
    return unit


def simple_lower(unit):
    mapped = chr(unit).lower()
    if unit == 0x130:
        return 0x69
    return ord(mapped) if len(mapped) == 1 and ord(mapped) < 0x10000 else unit


def mapping_ranges(mapping):
    """Ranges of units that move by the same distance, each or every second unit."""
    ranges = []
    for unit in UNITS:
        distance = mapping(unit) - unit
        if distance == 0:
            continue
        if ranges:
            first, last, step, previous = ranges[-1]
            if previous == distance and unit - last == (step or unit - last) and unit - last <= 2:
                ranges[-1] = (first, unit, unit - last, distance)
                continue
        ranges.append((unit, unit, 0, distance))
    return [(first, last, step or 1, distance) for first, last, step, distance in ranges]


def letter_ranges():
    ranges = []
    for unit in UNITS:
        if not unicodedata.category(chr(unit)).startswith("L"):
            continue
        if ranges and ranges[-1][1] == unit - 1:
            ranges[-1] = (ranges[-1][0], unit)
        else:
            ranges.append((unit, unit))
    return ranges


def write(name, kind, rows):
    rows = list(rows)
    print(f"inline constexpr std::array<{kind}, {len(rows)}> {name} = {{{{")
    line = "   "
    for row in rows:
        text = " {" + ", ".join(row) + "},"
        if len(line) + len(text) > 120:
            print(line)
            line = "   "
        line += text
    print(line)
    print("}};\n")


def mapping_rows(mapping):
    return [(f"0x{a:04X}", f"0x{b:04X}", str(step), str(d)) for a, b, step, d in mapping_ranges(mapping)]


print(f"""#pragma once

// Written by tools/MakeCaseTable.py from Unicode {unicodedata.unidata_version}; change that, not this.

#include <array>
#include <cstdint>

namespace Tessellon {{

// clang-format off

/// Each unit from the first to the last, or every second one, moves by the distance.
struct CaseRange {{
    char16_t First;
    char16_t Last;
    std::uint16_t Step;
    std::int32_t Distance;
}};

struct LetterRange {{
    char16_t First;
    char16_t Last;
}};
""")
write("upperCaseRanges", "CaseRange", mapping_rows(simple_upper))
write("lowerCaseRanges", "CaseRange", mapping_rows(simple_lower))
write("letterRanges", "LetterRange", [(f"0x{a:04X}", f"0x{b:04X}") for a, b in letter_ranges()])
print("// clang-format on\n\n} // namespace Tessellon")
