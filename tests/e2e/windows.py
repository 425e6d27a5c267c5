# windows.py - what the drawing of an inserted window is expected to hold.
import math

FACES, LINES = 17, 16  # of a window with the opening code D and without a skirt


def window_entities(drawing):
    """The entities of roof windows, as ezdxf reads them."""
    return [entity for entity in drawing.modelspace() if entity.has_xdata("TK_LT_ELEM")]


def points(entity):
    """The corners or end points of an entity."""
    if entity.dxftype() == "LINE":
        return [tuple(entity.dxf.start), tuple(entity.dxf.end)]
    return [tuple(corner) for corner in entity.wcs_vertices()]


def outline(drawing):
    """The corners of the frame's outer outline: the ends of the lines on the outline's layer."""
    lines = [entity for entity in window_entities(drawing) if entity.dxf.layer == "ROOF_WINDOW_OUTLINE"]
    return [tuple(line.dxf.start) for line in lines]


def distance(a, b):
    return math.dist(a, b)
