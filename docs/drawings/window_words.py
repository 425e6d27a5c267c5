# window_words.py - the words of a window and its roof, for the glossary.
import math

from geometry_pages import outline_ends, rectangle
from paper import INK, INNER, MARK, OPENING, OUTER, ROOF, SOFT, Panel, Svg

WOOD, GLASS, LAYER = "#e8f0f8", "#9fd3e6", "#f4e3d3"
LINE_OF_TEXT = 17


def callout(panel, point, place, words, colour=INK, anchor="start"):
    """Words at `place` (pixels), one line a text, with a thin line from them to the point."""
    x, y = place
    lines = words if isinstance(words, tuple) else (words,)
    for k, line in enumerate(lines):
        panel.svg.text(x, y + k * LINE_OF_TEXT, line, colour, anchor, 14)
    gap = {"start": -6, "end": 6, "middle": 0}[anchor]
    tip = panel.at(point)
    below = anchor == "middle" and tip[1] > y
    level = y - 5 if anchor != "middle" else y + 5 + (len(lines) - 1) * LINE_OF_TEXT if below else y - 15
    panel.svg.line(x + gap, level, *tip, colour, 0.8)
    panel.svg.circle(*tip, 2.5, colour)


def roof_in_plan(svg):
    """A gable roof from above."""
    svg.text(20, 30, "The roof from above", INK, size=16)
    plan = Panel(svg, 60, 320, 36)
    width, depth, ridge = 8.4, 7, 3.5
    plan.polygon(rectangle((0, 0), depth, width), ROOF, LAYER, 2)
    plan.line((0, ridge), (width, ridge), ROOF, 2.5)
    plan.text((width / 2, depth), "eaves", ROOF, dy=-7, anchor="middle")
    plan.text((width / 2, 0), "eaves", ROOF, dy=19, anchor="middle")
    plan.text((0.2, ridge), "ridge", ROOF, dy=-7)
    plan.line((1.3, 2.9), (1.3, 0.5), MARK, 2, arrow=True)
    plan.text((1.3, 1.9), "fall direction", MARK, dx=8, dy=4)
    plan.text((1.3, 1.3), "of this slope", MARK, dx=8, dy=4)
    plan.line((5.6, 4.1), (5.6, 6.5), MARK, 2, arrow=True)
    plan.text((5.6, 5.2), "of the other slope", MARK, dx=-8, dy=4, anchor="end")
    plan.polygon(rectangle((5.2, 1.25), 1.6, 1.3), OUTER, WOOD, 2)
    plan.measure((5.2, 1.25), (6.5, 1.25), "width", OUTER, side=-1)
    plan.text((6.5, 2.0), "outline", OUTER, dx=8, dy=4)


def roof_in_section(svg):
    """The same roof, cut across its ridge."""
    svg.text(450, 30, "The roof in section", INK, size=16)
    section = Panel(svg, 560, 300, 42)
    half, pitch = 3.7, math.radians(35)
    rise = half * math.tan(pitch)
    section.line((-2.6, 0), (2 * half + 0.5, 0), SOFT, 1, "6 3")
    section.text((2 * half + 0.5, 0), "base level, height 0", SOFT, dy=20, anchor="end")
    foot = 1.0  # height of the eaves
    eaves, ridge = (0, foot), (half, foot + rise)
    section.curve([eaves, ridge, (2 * half, foot)], ROOF, 3)
    section.text(ridge, "ridge", ROOF, dy=-10, anchor="middle")
    section.text((2 * half, foot), "eaves", ROOF, dy=18, anchor="middle")
    section.text(eaves, "eaves", ROOF, dx=8, dy=18)
    section.line(eaves, (1.9, foot), SOFT, 1, "4 3")
    section.curve([(1.5 * math.cos(t / 10 * pitch), foot + 1.5 * math.sin(t / 10 * pitch)) for t in range(11)], SOFT, 1)
    section.text((1.6, foot + 0.32), "pitch", SOFT)
    section.text((5.5, foot + 1.4), "slope", ROOF, dx=0, dy=-6)
    low, high = 1.35, 2.75

    def on_roof(x):
        return x, foot + x * math.tan(pitch)

    section.line(on_roof(low), on_roof(high), OUTER, 7)
    for x, place, words in ((low, -0.8, ("height", "lower edge")), (high, -2.2, ("upper edge height",))):
        height = on_roof(x)[1]
        section.line(on_roof(x), (place, height), OUTER, 0.8, "3 3")
        section.line((place, 0), (place, height), OUTER, 1.2, arrow=True)
        for k, line in enumerate(words):
            section.text((place, height), line, OUTER, dx=-14, dy=-7 - k * LINE_OF_TEXT)


def body_in_section(svg):
    """A window in its roof, cut along the slope: lower reveal plumb, upper one square, as `heightReference` 3."""
    top = 345
    svg.text(20, top + 25, "The window in section, along the slope", INK, size=16)
    panel = Panel(svg, 290, top + 350, 205)
    angle = math.radians(30)
    offset, length, layer, band, depth, skirt, inset = 0.35, 1.75, 0.33, 0.2, 0.2, 0.14, 0.07

    def place(along, up=0.0):
        return along * math.cos(angle) - up * math.sin(angle), along * math.sin(angle) + up * math.cos(angle)

    start, end = offset, offset + length
    low_reveal = (place(start)[0], place(start)[1] - layer / math.cos(angle))
    high_reveal = place(end, -layer)
    panel.polygon([place(-0.5), place(start), low_reveal, place(-0.5, -layer)], "none", LAYER)
    panel.polygon([place(end), place(end + 0.6), place(end + 0.6, -layer), high_reveal], "none", LAYER)
    for height, colour in ((0, ROOF), (-layer, ROOF)):
        panel.line(place(-0.5, height), place(end + 0.6, height), colour, 1.2, "6 3")
    panel.line(low_reveal, high_reveal, OPENING, 3)
    panel.line(place(start), low_reveal, MARK, 2.5)
    panel.line(place(end), high_reveal, MARK, 2.5)
    for inner, outer in ((start + band, start), (end - band, end)):
        foot, top_edge = (place(outer, skirt), place(inner, skirt)), (place(inner, skirt + depth), place(outer, skirt + depth))
        panel.polygon([*foot, *top_edge], OUTER, WOOD, 2)
        panel.line(place(outer), place(outer, skirt), OUTER, 3)
    glass = skirt + depth - inset
    panel.line(place(start + band, glass), place(end - band, glass), GLASS, 5)
    panel.dot(place(0), OPENING, 5)

    tick = 14 / 205  # distance of a measure from what it measures
    panel.measure(place(0), place(start), "", OPENING, side=1)
    panel.measure(place(end, skirt + depth), place(end - band, skirt + depth), "", OUTER, side=-1)
    panel.measure(place(start, skirt), place(start, skirt + depth), "", OUTER, side=1)
    callout(panel, place(end - band / 2, skirt + depth + tick), (565, top + 62), "frame width", OUTER, "end")
    left = 225  # where the words on the left end
    callout(panel, place(start - tick, skirt + depth / 2), (left, top + 125), "frame depth", OUTER, "end")
    callout(panel, place(start, skirt / 2), (left, top + 170), "skirt, an outer band", OUTER, "end")
    callout(panel, place(start / 2, tick), (left, top + 215), "slope offset (roofBuildUp 2)", OPENING, "end")
    callout(panel, place(start), [c + d for c, d in zip(panel.at(place(start)), (22, 10))], "lower edge", OUTER)
    callout(panel, place(0), (left, top + 260), ("anchor: the insertion", "point on the roof plane"), OPENING, "end")
    callout(panel, place((start + end) / 2, glass), (400, top + 115), "glass", "#2b7f9b", "middle")
    callout(panel, place(end), (775, top + 62), "upper edge", OUTER)
    callout(panel, place(end + 0.45), (812, top + 115), "roof plane", ROOF)
    callout(panel, place(end + 0.3, -layer / 2), (770, top + 200), ("roof layer, as thick", "as layerThickness"), ROOF)
    callout(panel, place(end + 0.1, -layer), (735, top + 265),
            ("underside: the second", "plane of roofBuildUp 0"), ROOF)
    callout(panel, place(end, -layer * 0.6), (630, top + 322), "upper reveal, here square to the roof", MARK)
    along = [(a + b) / 2 for a, b in zip(low_reveal, high_reveal)]
    callout(panel, along, (530, top + 360), "opening: the hole through the roof's construction", OPENING)
    middle = [(a + b) / 2 for a, b in zip(place(start), low_reveal)]
    callout(panel, middle, (470, top + 400), "lower reveal, here plumb", MARK)
    svg.text(20, top + 62, "body: skirt, frame and glass", OUTER, size=14)


def seen_square(svg):
    """The window in the roof plane."""
    top = 820
    svg.text(20, top + 25, "The window seen square to the roof", INK, size=16)
    panel = Panel(svg, 130, top + 330, 1)
    width, length, frame = 160, 235, 24
    panel.polygon(rectangle((0, 0), length, width), OUTER, WOOD, 2)
    panel.polygon(rectangle((frame, frame), length - 2 * frame, width - 2 * frame), INNER, "#fff", 2)
    left, right, low, high = frame, width - frame, frame, length - frame
    middle = (left + right) / 2, (low + high) / 2
    panel.curve([(left, middle[1]), (middle[0], high), (right, middle[1])], MARK, 1.5, "7 4")
    panel.curve([(right, middle[1]), (middle[0], low), (left, middle[1])], MARK, 1.5)
    panel.measure((0, 0), (0, length), "", OUTER, side=1)
    panel.text((-22, length / 2), "length", OUTER, dy=5, anchor="end")
    panel.measure((0, length), (width, length), "width", OUTER, side=1)
    for x, name in ((0, "1"), (width / 2, "0"), (width, "2")):
        panel.dot((x, 0), OPENING, 5)
        panel.text((x, 0), name, OPENING, dy=22, anchor="middle")
    panel.text((width / 2, 0), "anchors (widthAnchor)", OPENING, dy=42, anchor="middle")
    callout(panel, (width, length * 0.86), (330, top + 120), "outer outline", OUTER)
    callout(panel, (width - frame / 2, length * 0.7), (330, top + 155), ("frame, as wide", "as frameWidth"), OUTER)
    callout(panel, (right, length * 0.47), (330, top + 225), "inner outline: sash", INNER)
    callout(panel, ((middle[0] + right) / 2, (low + middle[1]) / 2), (330, top + 265), "opening symbol", MARK)


def height_references(svg):
    """How the reveals are cut, case by case."""
    top = 820
    svg.text(530, top + 25, "Height reference: lower and upper reveal", INK, size=16)
    names = (("0", "square, square"), ("1", "plumb, level"), ("2", "square, level"), ("3", "plumb, square"))
    angle, depth, length = math.radians(40), 0.45, 1.1
    slope = math.cos(angle), math.sin(angle)
    for mode, (number, words) in enumerate(names):
        panel = Panel(svg, 570 + mode % 2 * 200, top + 165 + mode // 2 * 170, 62)
        window, opening = outline_ends(mode, False, depth, length, angle)
        for line, colour in ((window, ROOF), (opening, ROOF)):
            a = line[0]
            panel.line((a[0] - slope[0] * .4, a[1] - slope[1] * .4), (a[0] + slope[0] * 1.9, a[1] + slope[1] * 1.9),
                       colour, 1, "6 3")
        panel.polygon([*window, *reversed(opening)], "none", "#f0e6dc")
        panel.line(*window, OUTER, 4)
        panel.line(*opening, OPENING, 4)
        for side in (0, 1):
            panel.line(window[side], opening[side], MARK, 2.5)
        svg.text(panel.x - 20, panel.y - 92, f"{number}: {words}", MARK, size=14)


def window_words():
    svg = Svg(920, 1215, "Words of a window and its roof")
    roof_in_plan(svg)
    roof_in_section(svg)
    body_in_section(svg)
    seen_square(svg)
    height_references(svg)
    svg.save("window-words.svg")
