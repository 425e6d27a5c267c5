#!/usr/bin/python3
# make_house.py - writes house.dxf, the example drawing: a house with three kinds of roofs, in millimetres.
"""Usage: make_house.py [FILE]   (default: house.dxf beside this script)

South is towards -y, heights are above the ground floor. Good places for windows, in plan (drawing units):

    ROOF_SOUTH   35 degrees, falls south    2500,1200   4800,1200   11300,1500
    ROOF_NORTH   35 degrees, falls north    1500,6800   6000,6800   10000,6500
    ROOF_DORMER  10 degrees, falls south    7600,1600    9200,1600
    ROOF_ANNEX   15 degrees, falls east    14000,3000   14000,5000
"""
import math
import pathlib
import sys

from plain_dxf import Drawing

LENGTH, DEPTH = 12000, 8000    # outside of the walls, x and y
WALL, THICKNESS = 3400, 300    # where the roof meets the long walls; plan of the walls
RIDGE = DEPTH / 2
EAVES, VERGE = 500, 400        # overhang of the main roof over the long walls and the gables
MAIN_SLOPE = math.tan(math.radians(35))

DORMER_WEST, DORMER_EAST, DORMER_FRONT = 6800, 10000, 1000
DORMER_HEIGHT, DORMER_EAVES, DORMER_VERGE = 5300, 300, 200
DORMER_SLOPE = math.tan(math.radians(10))
# Where the dormer's roof runs into the main roof.
DORMER_BACK = (DORMER_HEIGHT - WALL - DORMER_FRONT * DORMER_SLOPE) / (MAIN_SLOPE - DORMER_SLOPE)

ANNEX_END, ANNEX_SOUTH, ANNEX_NORTH, ANNEX_HEIGHT, ANNEX_EAVES = 15000, 1500, 6500, 3300, 300
ANNEX_SLOPE = math.tan(math.radians(15))

CHIMNEY = (3000, 3600, 4500, 5100, 7200)  # west, east, south, north, top

COLOURS = {"ROOF_SOUTH": 1, "ROOF_NORTH": 1, "ROOF_DORMER": 30, "ROOF_ANNEX": 30, "WALLS": 9, "CHIMNEY": 12,
           "OPENINGS": 5, "PLAN": 8}


def main_roof(x, y):
    return x, y, WALL + (RIDGE - abs(y - RIDGE)) * MAIN_SLOPE


def dormer_roof(x, y):
    return x, y, DORMER_HEIGHT + (y - DORMER_FRONT) * DORMER_SLOPE


def annex_roof(x, y):
    return x, y, ANNEX_HEIGHT - (x - LENGTH) * ANNEX_SLOPE


def rectangle(surface, west, east, south, north):
    """The corners of a plan rectangle on a surface, in order around it."""
    return [surface(x, y) for x, y in ((west, south), (east, south), (east, north), (west, north))]


def ground(x, y):
    return x, y, 0


def wall(drawing, start, end, top):
    """A wall from the ground between two plan points; `top` gives the upper edge there."""
    drawing.face("WALLS", ground(*start), ground(*end), top(*end), top(*start))


def add_roofs(drawing):
    west, east = -VERGE, LENGTH + VERGE
    # The south face is cut out for the dormer, which leaves four faces of one plane.
    for part in ((west, DORMER_WEST, -EAVES, RIDGE), (DORMER_EAST, east, -EAVES, RIDGE),
                 (DORMER_WEST, DORMER_EAST, -EAVES, DORMER_FRONT),
                 (DORMER_WEST, DORMER_EAST, DORMER_BACK, RIDGE)):
        drawing.face("ROOF_SOUTH", *rectangle(main_roof, *part))
    drawing.face("ROOF_NORTH", *rectangle(main_roof, west, east, RIDGE, DEPTH + EAVES))
    drawing.face("ROOF_DORMER", *rectangle(dormer_roof, DORMER_WEST - DORMER_VERGE, DORMER_EAST + DORMER_VERGE,
                                           DORMER_FRONT - DORMER_EAVES, DORMER_BACK))
    drawing.face("ROOF_ANNEX", *rectangle(annex_roof, LENGTH, ANNEX_END + ANNEX_EAVES, ANNEX_SOUTH - ANNEX_EAVES,
                                          ANNEX_NORTH + ANNEX_EAVES))


def add_walls(drawing):
    wall(drawing, (0, 0), (LENGTH, 0), main_roof)
    wall(drawing, (LENGTH, DEPTH), (0, DEPTH), main_roof)
    for x in (0, LENGTH):  # a gable is two faces, split under the ridge
        wall(drawing, (x, 0), (x, RIDGE), main_roof)
        wall(drawing, (x, RIDGE), (x, DEPTH), main_roof)
    wall(drawing, (LENGTH, ANNEX_SOUTH), (ANNEX_END, ANNEX_SOUTH), annex_roof)
    wall(drawing, (ANNEX_END, ANNEX_SOUTH), (ANNEX_END, ANNEX_NORTH), annex_roof)
    wall(drawing, (ANNEX_END, ANNEX_NORTH), (LENGTH, ANNEX_NORTH), annex_roof)


def add_dormer_walls(drawing):
    front = [(DORMER_WEST, DORMER_FRONT), (DORMER_EAST, DORMER_FRONT)]
    drawing.face("WALLS", main_roof(*front[0]), main_roof(*front[1]), dormer_roof(*front[1]), dormer_roof(*front[0]))
    for x in (DORMER_WEST, DORMER_EAST):
        drawing.face("WALLS", main_roof(x, DORMER_FRONT), dormer_roof(x, DORMER_FRONT), main_roof(x, DORMER_BACK))


def add_chimney(drawing):
    west, east, south, north, top = CHIMNEY
    corners = [(west, south), (east, south), (east, north), (west, north)]
    for start, end in zip(corners, corners[1:] + corners[:1]):
        drawing.face("CHIMNEY", main_roof(*start), main_roof(*end), (*end, top), (*start, top))
    drawing.face("CHIMNEY", *((x, y, top) for x, y in corners))


def add_openings(drawing):
    """Door and windows of the walls, as outlines."""
    def front(y, left, right, low, high):
        drawing.outline("OPENINGS", (left, y, low), (right, y, low), (right, y, high), (left, y, high))

    def gable(x, left, right, low, high):
        drawing.outline("OPENINGS", (x, left, low), (x, right, low), (x, right, high), (x, left, high))

    front(0, 5400, 6500, 0, 2100)
    for left in (1000, 3000, 7600, 9600):
        front(0, left, left + 1400, 900, 2300)
    for left in (1000, 4800, 9600):
        front(DEPTH, left, left + 1400, 900, 2300)
    for left in (7200, 8600):
        front(DORMER_FRONT, left, left + 1000, 4300, 5100)
    for left in (1500, 5100):
        gable(0, left, left + 1400, 900, 2300)
    gable(0, 3300, 4700, 4000, 5200)
    gable(ANNEX_END, 2500, 5500, 0, 2100)


def add_plan(drawing):
    """Outer and inner side of the walls, ridge and edges of the roofs, on the ground."""
    inset = THICKNESS
    for area in ((0, LENGTH, 0, DEPTH), (inset, LENGTH - inset, inset, DEPTH - inset),
                 (LENGTH, ANNEX_END, ANNEX_SOUTH, ANNEX_NORTH),
                 (LENGTH, ANNEX_END - inset, ANNEX_SOUTH + inset, ANNEX_NORTH - inset),
                 (-VERGE, LENGTH + VERGE, -EAVES, DEPTH + EAVES)):
        drawing.outline("PLAN", *rectangle(ground, *area))
    drawing.line("PLAN", ground(-VERGE, RIDGE), ground(LENGTH + VERGE, RIDGE))


def house():
    drawing = Drawing(units="mm")
    for name, colour in COLOURS.items():
        drawing.layer(name, colour)
    for add in (add_roofs, add_walls, add_dormer_walls, add_chimney, add_openings, add_plan):
        add(drawing)
    return drawing


if __name__ == "__main__":
    here = pathlib.Path(__file__).resolve().parent
    house().save(sys.argv[1] if len(sys.argv) > 1 else here / "house.dxf")
