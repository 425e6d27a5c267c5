# architecture.py - the arrows of who may include whom, as floors: each part stands above all that it may include.
import sys

from paper import HERE, INK, OUTER, SOFT, Svg

sys.path.insert(0, str(HERE.parents[1] / "tests" / "rules"))
from test_includes import PARTS  # noqa: E402 (the one table of the arrows)

WIDTH, SIDE, FLOOR_HEIGHT, BOX_HEIGHT = 920, 12, 82, 42
GAP, LANE = 14, 10  # between boxes; as wide as an arrow that passes a floor
TEXT_WIDTH, BOX_MARGIN = 6.4, 18  # of a letter at size 12; of both sides of a box's words
SWEEPS = 24
# Colours of the areas that a part's folder begins with.
AREAS = (("programs/teskarlt/", "the command-line program", "#e8f0f8"),
         ("programs/common/", "the modules, and what all share of them", "#fbeedd"),
         ("", "libraries and systems", "#eef3e8"))


def arrows():
    """What each part may include, without what follows from the other arrows."""
    allowed = {name: set(parts) for name, (_, parts) in PARTS.items()}
    for parts in allowed.values():
        if "platform" in parts:
            parts.add("heap")  # a part of platform

    def reached(name):
        return set().union(*({part} | reached(part) for part in allowed[name]))

    return {name: parts - set().union(*map(reached, parts)) for name, parts in allowed.items()}


def floors(direct):
    """The floor of each part, 0 the lowest: one above the highest that it may include."""
    found = {}

    def floor(name):
        if name not in found:
            found[name] = 1 + max(map(floor, direct[name]), default=-1)
        return found[name]

    for name in direct:
        floor(name)
    return found


class Place:
    """A part on its floor, or the lane of an arrow that passes the floor."""

    def __init__(self, floor, name="", folder=""):
        self.floor, self.name, self.folder = floor, name, folder
        self.above, self.below, self.x = [], [], 0.0
        letters = max(len(name) * 1.35, len(short(folder)) * 0.9)
        self.width = letters * TEXT_WIDTH + BOX_MARGIN if name else LANE


def short(folder):
    """The folder as its box shows it."""
    for root in ("programs/teskarlt/", "programs/common/"):
        folder = folder.replace(root, "")
    return folder if folder.endswith("/") else f"{folder}.*"


def house():
    """The floors with their places, joined from floor to floor."""
    direct = arrows()
    used = {name for name in direct if direct[name]} | set().union(*direct.values())
    floor_of = floors({name: parts for name, parts in direct.items() if name in used})
    parts = {name: Place(floor_of[name], name, PARTS[name][0]) for name in direct if name in used}
    built = [[] for _ in range(max(floor_of.values()) + 1)]
    for part in parts.values():
        built[part.floor].append(part)
    for name, part in parts.items():
        for target in sorted(direct[name]):
            upper = part
            for floor in range(part.floor - 1, parts[target].floor - 1, -1):
                lower = parts[target] if floor == parts[target].floor else Place(floor)
                if lower.name == "":
                    built[floor].append(lower)
                upper.below.append(lower)
                lower.above.append(upper)
                upper = lower
    return built


def spread(floor):
    """Puts the places of a floor side by side, in their order, as near as can be to where they want to be."""
    for a, b in zip(floor, floor[1:]):
        b.x = max(b.x, a.x + (a.width + b.width) / 2 + GAP)
    edge = WIDTH - SIDE
    for place in reversed(floor):
        place.x = min(place.x, edge - place.width / 2)
        edge = place.x - place.width / 2 - GAP
    edge = SIDE
    for place in floor:
        place.x = max(place.x, edge + place.width / 2)
        edge = place.x + place.width / 2 + GAP


def crossings(built):
    """How often arrows cross."""
    count = 0
    for floor in built:
        lines = [(k, other.x) for k, place in enumerate(floor) for other in place.below]
        count += sum((a[0] - b[0]) * (a[1] - b[1]) < 0 for i, a in enumerate(lines) for b in lines[:i])
    return count


def arrange(built):
    """Orders each floor by the middle of what its places are joined to, up and down in turn; keeps the best order."""
    for floor in built:
        spread(floor)
    best = None
    for sweep in range(SWEEPS):
        upwards = sweep % 2 == 0
        for floor in built if upwards else reversed(built):
            for place in floor:
                near = place.below if upwards else place.above
                near = near or place.above + place.below
                place.x = sum(other.x for other in near) / len(near)
            floor.sort(key=lambda place: place.x)
            spread(floor)
        state = crossings(built), [list(floor) for floor in built], [[place.x for place in floor] for floor in built]
        best = min(best or state, state, key=lambda state: state[0])
    for floor, places, xs in zip(built, best[1], best[2]):
        floor[:] = places
        for place, x in zip(places, xs):
            place.x = x


def draw_arrow(svg, upper, lower, y):
    """From the foot of the upper place to the head of the lower one."""
    points = [(upper.x, y - BOX_HEIGHT / 2 - FLOOR_HEIGHT + BOX_HEIGHT), (lower.x, y - BOX_HEIGHT / 2)]
    (x1, y1), (x2, y2) = points
    svg.parts.append(f'<path d="M{x1:.1f},{y1:.1f} C{x1:.1f},{y1 + 24:.1f} {x2:.1f},{y2 - 26:.1f} {x2:.1f},{y2:.1f}" '
                     f'stroke="{SOFT}" fill="none" stroke-width="1.2"/>')
    if lower.name:
        svg.polygon([(x2, y2), (x2 - 4, y2 - 9), (x2 + 4, y2 - 9)], SOFT, SOFT, 0)
    else:
        svg.line(x2, y2, x2, y2 + BOX_HEIGHT, SOFT, 1.2)


def move_to_side(built):
    """Puts the house on the right, so that the legend has room on the left."""
    room = WIDTH - SIDE - max(place.x + place.width / 2 for floor in built for place in floor)
    for place in (place for floor in built for place in floor):
        place.x += room


def draw_legend(svg):
    for number, (_, words, colour) in enumerate(AREAS):
        y = SIDE + 8 + number * 28
        svg.polygon([(SIDE, y), (SIDE + 30, y), (SIDE + 30, y + 18), (SIDE, y + 18)], OUTER, colour)
        svg.text(SIDE + 40, y + 14, words)


def draw_box(svg, place, y):
    colour = next(colour for root, _, colour in AREAS if place.folder.startswith(root))
    left, right, top, foot = (place.x - place.width / 2, place.x + place.width / 2, y - BOX_HEIGHT / 2,
                              y + BOX_HEIGHT / 2)
    svg.polygon([(left, top), (right, top), (right, foot), (left, foot)], OUTER, colour)
    svg.text(place.x, y - 3, place.name, INK, "middle", 14)
    svg.text(place.x, y + 14, short(place.folder), SOFT, "middle", 11)


def architecture():
    built = house()
    arrange(built)
    move_to_side(built)
    svg = Svg(WIDTH, len(built) * FLOOR_HEIGHT - FLOOR_HEIGHT + BOX_HEIGHT + 2 * SIDE, "Who may include whom")
    draw_legend(svg)
    for number, floor in enumerate(built):
        y = svg.height - SIDE - BOX_HEIGHT / 2 - number * FLOOR_HEIGHT
        for place in floor:
            for upper in place.above:
                draw_arrow(svg, upper, place, y)
            if place.name:
                draw_box(svg, place, y)
    svg.save("architecture.svg")
