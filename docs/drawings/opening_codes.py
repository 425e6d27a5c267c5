# opening_codes.py - the marks of the opening codes, for the page about catalogues.
from paper import INK, MARK, OUTER, SOFT, Panel, Svg

WIDTH, LENGTH = 1.0, 1.4  # of each window, and what lies between two
STEP = 1.75
SCALE = 74
LEFT, RIGHT, TOP, BOTTOM = (0, LENGTH / 2), (WIDTH, LENGTH / 2), (WIDTH / 2, LENGTH), (WIDTH / 2, 0)
CORNERS = LOW_LEFT, HIGH_LEFT, HIGH_RIGHT, LOW_RIGHT = (0, 0), (0, LENGTH), (WIDTH, LENGTH), (WIDTH, 0)
# A code, what it means in two lines, and its dashed and solid marks.
CODES = [
    ("BO", "hinges at the top", "opens outward", [], [(LOW_LEFT, TOP, LOW_RIGHT)]),
    ("CI", "at the bottom", "opens inward", [(HIGH_LEFT, BOTTOM, HIGH_RIGHT)], []),
    ("D", "pivots in the middle", "upper half inward", [(LEFT, TOP, RIGHT)], [(RIGHT, BOTTOM, LEFT)]),
    ("EOL", "left, seen from inside", "opens outward", [], [(LOW_LEFT, RIGHT, HIGH_LEFT)]),
    ("EIR", "right, seen from inside", "opens inward", [(HIGH_RIGHT, LEFT, LOW_RIGHT)], []),
    ("-", "fixed glazing", "in a catalogue", [], []),
]


def opening_codes():
    svg = Svg(840, 215, "Opening codes and their marks")
    for place, (code, words, more, dashed, solid) in enumerate(CODES):
        window = Panel(svg, 42 + place * STEP * SCALE, 130, SCALE)
        window.polygon(CORNERS, OUTER)
        for marks, dash in ((dashed, "7 5"), (solid, "")):
            for mark in marks:
                window.curve(mark, MARK, dash=dash)
        for line, text, size, colour in ((22, code, 16, INK), (42, words, 12, INK), (59, more, 12, INK)):
            window.text((WIDTH / 2, 0), text, colour, dy=line, anchor="middle", size=size)
    svg.text(420, 207, "Seen from above, with the eaves below: left and right are the other way round than from inside.",
             SOFT, "middle", 12)
    svg.save("opening-codes.svg")
