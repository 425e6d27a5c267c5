# geometry_pages.py - the drawings of docs/frames.md and docs/geometry.md.
"""Each drawing is computed by the formulas that its page explains, so a wrong formula shows."""
import math

from paper import INK, INNER, MARK, OPENING, OUTER, ROOF, SOFT, Panel, Svg


def frames():
    """Left the plan of a fitted roof with both frames, right its section in the local frame."""
    svg = Svg(920, 440, "World and local frame of a fitted roof")
    plan = Panel(svg, 60, 380, 38)
    p1, p2, p3 = (2.2, 2.0), (7.2, 1.0), (6.4, 5.2)
    uphill = math.radians(100)  # direction of ascent in the plan
    y_axis = (math.cos(uphill), math.sin(uphill))
    x_axis = (y_axis[1], -y_axis[0])
    plan.line((0, 0), (9.2, 0), SOFT, arrow=True)
    plan.line((0, 0), (0, 8.6), SOFT, arrow=True)
    plan.text((9.2, 0), "world x", SOFT, dx=-50, dy=20)
    plan.text((0, 8.6), "world y", SOFT, dx=8, dy=6)
    plan.polygon([p1, p2, p3], ROOF, "#f4e3d3")
    for p, name, dx, dy in ((p1, "p1", -26, 5), (p2, "p2", 10, 12), (p3, "p3: above the local origin", 12, 22)):
        plan.dot(p, ROOF)
        plan.text(p, name, ROOF, dx=dx, dy=dy)
    for axis, name, length in ((x_axis, "local x", 2.2), (y_axis, "local y: the roof rises", 2.6)):
        end = (p3[0] + axis[0] * length, p3[1] + axis[1] * length)
        plan.line(p3, end, OUTER, 2.5, arrow=True)
        plan.text(end, name, OUTER, dx=8, dy=2)
    start = (3.1, 3.9)
    end = (start[0] - y_axis[0] * 1.9, start[1] - y_axis[1] * 1.9)
    plan.line(start, end, MARK, 2, arrow=True)
    plan.text(start, "normal, seen from above", MARK, dx=-105, dy=-14)
    svg.text(40, 30, "Plan (world)", INK, size=16)

    section = Panel(svg, 560, 320, 38)
    pitch = math.radians(35)
    section.line((-0.4, 0), (8.4, 0), OUTER, arrow=True)
    section.line((0, -1.2), (0, 6.6), OUTER, arrow=True)
    section.text((8.4, 0), "local y", OUTER, dx=-30, dy=20)
    section.text((0, 6.6), "z", OUTER, dx=8, dy=6)
    base = (-0.3, 0.9)
    top = (base[0] + 8 * math.cos(pitch), base[1] + 8 * math.sin(pitch))
    section.line(base, top, ROOF, 3)
    foot = (base[0] + 5 * math.cos(pitch), base[1] + 5 * math.sin(pitch))
    tip = (foot[0] - 1.9 * math.sin(pitch), foot[1] + 1.9 * math.cos(pitch))
    section.line(foot, tip, MARK, 2, arrow=True)
    section.text(tip, "localNormal = (0, -sin a, cos a)", MARK, dx=-80, dy=-10)
    level = (base[0] + 3, base[1])
    section.line(base, level, SOFT, 1, "4 3")
    section.curve([(base[0] + 1.6 * math.cos(t / 10 * pitch), base[1] + 1.6 * math.sin(t / 10 * pitch))
                   for t in range(11)], SOFT, 1)
    section.text((base[0] + 1.75, base[1] + 0.35), "a", SOFT)
    cut = (0, base[1] + 0.3 * math.tan(pitch))
    section.dot(cut, ROOF)
    section.text(cut, "p3 is (0, 0, its own height)", ROOF, dx=14, dy=72)
    section.line(cut, (0.45, base[1] - 1.35), ROOF, 0.8)
    svg.text(540, 30, "Section along the slope (local)", INK, size=16)
    svg.save("frames.svg")


def rectangle(start, length, width):
    (x, y) = start
    return [(x, y), (x, y + length), (x + width, y + length), (x + width, y)]


def anchors():
    """The outer and inner outline seen square to the roof, for each anchor and direction of the width."""
    svg = Svg(920, 330, "Outlines by anchor")
    width, length, frame = 94, 140, 12
    cases = ((0, 1, 110), (1, 1, 235), (1, -1, 510), (2, 1, 680), (2, -1, 855))
    for anchor, side, place in cases:
        panel = Panel(svg, place, 250, 1)
        w, outer_x, inner_x = side, 0.0, side * frame
        halves = {0: 1, 1: 0}.get(anchor, 2)
        for _ in range(halves):
            inner_x -= width / 2
            outer_x -= width / 2
            if w == -1:
                inner_x += 2 * frame
        if halves:
            w = 1
        panel.polygon(rectangle((outer_x, 0), length, w * width), OUTER, "#e8f0f8", 2)
        panel.polygon(rectangle((inner_x, frame), length - 2 * frame, w * (width - 2 * frame)), INNER, "#fff", 2)
        panel.line((outer_x - 20, 0), (outer_x + w * width + 20 * w, 0), SOFT, 1, "3 3")
        for k, corner in enumerate(rectangle((outer_x, 0), length, w * width)):
            inward = (1 if corner[0] == outer_x else -1) * (1 if w > 0 else -1)
            panel.text(corner, str(k), OUTER, dx=-9 * inward - 4, dy=-6 if corner[1] else 16, size=12)
        panel.dot((0, 0), OPENING, 5)
        panel.text((0, 0), "P", OPENING, dx=-4, dy=22)
        middle = (outer_x + w * width / 2, 0)
        panel.text(middle, f"widthAnchor {anchor}", INK, dy=48, anchor="middle")
        panel.text(middle, f"widthSide {side}", INK, dy=66, anchor="middle", size=13)
    last = Panel(svg, 855, 250, 1)
    last.text((0, 150), "inner outline 2 F off centre", OPENING, dx=20, dy=-12, anchor="end", size=12)
    up = Panel(svg, 20, 250, 1)
    up.line((0, 0), (0, 120), SOFT, 1.5, arrow=True)
    up.text((0, 130), "up", SOFT, dx=-7)
    svg.text(20, 30, "Outlines in the roof plane, seen square to it", INK, size=16)
    svg.text(20, 56, "outer outline (corners 0 to 3)", OUTER)
    svg.text(260, 56, "inner outline, F inside", INNER)
    svg.text(450, 56, "P: insertion point", OPENING)
    svg.save("anchors.svg")


def outline_ends(mode, second_plane, depth, length, angle):
    """The window's and the opening's ends (y, z) by the rules of the outline computation, P = (0, 0)."""
    sine, cosine, tangent = math.sin(angle), math.cos(angle), math.tan(angle)
    e1 = depth * tangent if mode in (1, 3) else 0
    e2 = depth / tangent if mode in (1, 2) else 0
    dy, dz = (0, depth / cosine) if mode in (1, 3) else (-depth * sine, depth * cosine)
    outer, opening = (0, 0), (0, 0)
    if second_plane:
        outer = (dy, dz)
    else:
        opening = (-dy, -dz)
    def up(p, d):
        return p[0] + d * cosine, p[1] + d * sine
    return (outer, up(outer, length)), (opening, up(opening, length + e1 + e2))


def references():
    """Sections along the slope: how the reveals of the opening run for each height reference."""
    svg = Svg(920, 700, "Opening by height reference")
    angle, depth, length = math.radians(40), 0.55, 1.4
    names = ("lower square, upper square", "lower plumb, upper level", "lower square, upper level",
             "lower plumb, upper square")
    for row, second_plane in enumerate((False, True)):
        for mode in range(4):
            panel = Panel(svg, 62 + mode * 220, 270 + row * 345, 78)
            window, opening = outline_ends(mode, second_plane, depth, length, angle)
            slope = (math.cos(angle), math.sin(angle))
            for line, colour in ((window, ROOF), (opening, SOFT)):
                a, b = line[0], line[0]
                panel.line((a[0] - slope[0] * .4, a[1] - slope[1] * .4), (b[0] + slope[0] * 2.0, b[1] + slope[1] * 2.0),
                           colour, 1, "6 3")
            panel.polygon([window[0], window[1], opening[1], opening[0]], "none", "#f0e6dc")
            panel.line(*window, OUTER, 4)
            panel.line(*opening, OPENING, 4)
            for end in (0, 1):
                panel.line(window[end], opening[end], MARK, 2)
            panel.dot((0, 0), INK, 5)
            panel.text((0, 0), "P", INK, dx=8 if second_plane else -16, dy=20 if second_plane else -2)
            if mode == 0:
                panel.measure(window[1], opening[1], "D")
            title = Panel(svg, 40 + mode * 220, 112 + row * 318, 1)
            title.text((0, 0), f"heightReference {mode}", INK)
            title.text((0, 0), names[mode], MARK, dy=18, size=13)
    svg.text(20, 30, "Sections along the slope: window, opening and reveals for a layer of thickness D", INK, size=16)
    svg.text(20, 56, "window (outer outline)", OUTER)
    svg.text(200, 56, "opening", OPENING)
    svg.text(280, 56, "reveals", MARK)
    svg.text(360, 56, "roof plane and plane below the layer, D apart (dashed)", SOFT)
    svg.text(20, 84, "roofBuildUp 1 or 2: the window lies at P, the opening below it", INK, size=15)
    svg.text(20, 402, "roofBuildUp 0: P lies on the second plane with the opening, the window above it", INK, size=15)
    svg.save("references.svg")


def build_ups():
    """Sections along the slope: where the anchor lies for each build-up, and which edges the record's heights mean."""
    svg = Svg(940, 400, "Anchor and edges by build-up")
    angle, depth, length, offset = math.radians(40), 0.5, 1.5, 0.45
    slope = (math.cos(angle), math.sin(angle))
    titles = ("0: on the second plane", "1: plain", "2: with a slope offset")
    for build_up, title in enumerate(titles):
        panel = Panel(svg, 160 + build_up * 305, 320, 88)
        start = (slope[0] * offset, slope[1] * offset) if build_up == 2 else (0, 0)
        window, opening = ([(y + start[0], z + start[1]) for y, z in ends]
                           for ends in outline_ends(0, build_up == 0, depth, length, angle))
        for (y, z), colour in ((window[0], ROOF), (opening[0], SOFT)):
            panel.line((y - slope[0] * .6, z - slope[1] * .6), (y + slope[0] * 1.7, z + slope[1] * 1.7), colour, 1, "6 3")
        panel.polygon([*window, *reversed(opening)], "none", "#f0e6dc")
        panel.line(*window, OUTER, 4)
        panel.line(*opening, OPENING, 4)
        for end in (0, 1):
            panel.line(window[end], opening[end], MARK, 2)
        left = -1.5
        for (y, z), name, colour in ((window[0], "frame", OUTER), (window[1], "frame", OUTER),
                                     ((0, 0), "lowerEdgeHeight", INK), (opening[1], "upperEdgeHeight", OPENING)):
            if name == "frame" and build_up == 1 and (y, z) == (0, 0):
                continue  # the anchor's height
            panel.line((y, z), (left, z), colour, 0.8, "3 3")
            panel.text((left, z), name, colour, dy=-4, size=12)
        panel.dot((0, 0), INK, 5)
        panel.text((0, 0), "P", INK, dx=-18, dy=20)
        if build_up == 2:
            panel.measure((0, 0), window[0], "", SOFT, side=-1)
            panel.text((0.1, 0), "slopeOffset", SOFT, dx=-4, dy=34, size=12)
        svg.text(30 + build_up * 305, 90, f"roofBuildUp {title}", INK)
    svg.text(20, 30, "Where the anchor P lies, and which edges the heights of the record mean", INK, size=16)
    svg.text(20, 56, "frame: the height that is drawn", OUTER)
    svg.text(250, 56, "opening", OPENING)
    svg.text(330, 56, "reveals, here square (heightReference 0)", MARK)
    svg.text(640, 56, "roof plane and underside (dashed)", ROOF)
    svg.save("build-ups.svg")


def arcs():
    """Fractions along an arc in both directions."""
    svg = Svg(920, 400, "Fractions along an arc")
    for i, (direction, name) in enumerate(((1, "counterClockwise 1"), (0, "counterClockwise 0"))):
        panel = Panel(svg, 230 + i * 460, 215, 120)
        start, end = math.radians(-20), math.radians(160)
        if direction == 0:
            sweep = -((start - end) % (2 * math.pi))
        else:
            sweep = (end - start) % (2 * math.pi)

        def point(fraction, radius=1.0):
            t = start + sweep * fraction
            return radius * math.cos(t), radius * math.sin(t)

        panel.curve([point(k / 60) for k in range(61)], OUTER, 3)
        panel.curve([point(1 + k / 60) for k in range(61)], SOFT, 1, "4 3")
        for fraction in (0, .25, .5, .75, 1, 1.5):
            panel.dot(point(fraction), OUTER if fraction <= 1 else SOFT)
            x, y = point(fraction, 1.2)
            panel.text((x, y), f"{fraction:g}", OUTER if fraction <= 1 else SOFT, dy=5, anchor="middle")
        for fraction, word in ((0, "start"), (1, "end")):
            x, y = point(fraction, 1.42)
            panel.text((x, y), word, INK, dy=5, anchor="middle")
        panel.dot((0, 0), INK, 3)
        panel.text((0, 0), "centre", INK, dx=9, dy=-4)
        q = point(.625, .62)
        panel.line((0, 0), point(.625), MARK, 1, "3 3")
        panel.dot(q, MARK)
        panel.text(q, "q: 0.625", MARK, dx=8, dy=16)
        panel.line(point(.1, .8), point(.16, .8), SOFT, 1.5, arrow=True)
        svg.text(230 + i * 460, 388, name, INK, "middle")
    svg.text(20, 30, "Fractions: 0 at the start, 1 at the end, above 1 beyond it", INK, size=16)
    svg.save("arcs.svg")
