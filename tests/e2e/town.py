# town.py - the roofs of a real town, and the places on them that have room for a window: by other means than the program's.
import dataclasses
import gzip
import math
import pathlib

import ezdxf

FOLDER = pathlib.Path(__file__).resolve().parent / "town"
FREE = 0.75  # metres around a place in the plan that belong to one roof, with nothing over them
STEP = 0.2  # metres between the places that are tried


def drawing(name, path):
    """Unpacks a drawing of the town."""
    path.write_bytes(gzip.decompress((FOLDER / f"{name}.dxf.gz").read_bytes()))
    return path


@dataclasses.dataclass
class Surface:
    """A polygon and its best-fit plane z = a (x - x0) + b (y - y0) + z0, by least squares."""

    corners: list

    def __post_init__(self):
        count = len(self.corners)
        self.middle = [sum(corner[axis] for corner in self.corners) / count for axis in range(3)]
        xs, ys, zs = ([corner[axis] - self.middle[axis] for corner in self.corners] for axis in range(3))
        xx, xy, yy = (sum(map(float.__mul__, *pair)) for pair in ((xs, xs), (xs, ys), (ys, ys)))
        xz, yz = (sum(map(float.__mul__, *pair)) for pair in ((xs, zs), (ys, zs)))
        determinant = xx * yy - xy * xy
        self.is_upright = determinant < 1e-6 * max(xx, yy) ** 2
        self.a, self.b = (0, 0) if self.is_upright else ((xz * yy - yz * xy) / determinant, (yz * xx - xz * xy) / determinant)
        self.box = [extreme(corner[axis] for corner in self.corners) for extreme in (min, max) for axis in (0, 1)]

    @property
    def pitch(self):
        return math.degrees(math.atan(math.hypot(self.a, self.b)))

    @property
    def normal(self):
        length = math.sqrt(self.a ** 2 + self.b ** 2 + 1)
        return (-self.a / length, -self.b / length, 1 / length)

    @property
    def edges(self):
        return zip(self.corners, self.corners[1:] + self.corners[:1])

    def height(self, x, y):
        return self.middle[2] + self.a * (x - self.middle[0]) + self.b * (y - self.middle[1])

    def distance(self, point):
        """How far the point lies off the plane, square to it."""
        return (point[2] - self.height(*point[:2])) * self.normal[2]

    def covers(self, x, y):
        inside = False
        for (ax, ay, _), (bx, by, _) in self.edges:
            if (ay > y) != (by > y) and x < ax + (y - ay) / (by - ay) * (bx - ax):
                inside = not inside
        return inside

    def from_edge(self, x, y):
        """The distance from the polygon's edges, in the plan."""
        return min(from_segment(x, y, a, b) for a, b in self.edges)

    def touches(self, x, y, radius):
        low_x, low_y, high_x, high_y = self.box
        if not (low_x - radius < x < high_x + radius and low_y - radius < y < high_y + radius):
            return False
        return self.covers(x, y) or self.from_edge(x, y) < radius


def from_segment(x, y, a, b):
    dx, dy = b[0] - a[0], b[1] - a[1]
    length = dx * dx + dy * dy
    along = 0 if length == 0 else max(0, min(1, ((x - a[0]) * dx + (y - a[1]) * dy) / length))
    return math.hypot(x - a[0] - along * dx, y - a[1] - along * dy)


def surfaces(path):
    """The closed polylines of a drawing, with their layers."""
    return [(line.dxf.layer, Surface([tuple(vertex.dxf.location) for vertex in line.vertices]))
            for line in ezdxf.readfile(path).modelspace().query("POLYLINE")]


def free_place(roof, others):
    """The middle of a free circle on the roof, as far from its edges as one that is tried; None where there is none."""
    low_x, low_y, high_x, high_y = roof.box
    near = [other for other in others if other.box[0] < high_x and low_x < other.box[2]
            and other.box[1] < high_y and low_y < other.box[3]]
    best = None
    for i in range(1, int((high_x - low_x) / STEP) + 1):
        for j in range(1, int((high_y - low_y) / STEP) + 1):
            x, y = low_x + i * STEP, low_y + j * STEP
            if not roof.covers(x, y) or (room := roof.from_edge(x, y)) < (best[0] if best else FREE):
                continue
            if not any(is_over(other, roof, x, y) for other in near):
                best = room, x, y
    return best and best[1:]


def is_over(other, roof, x, y):
    """Whether a part of the other surface lies over or in the circle."""
    return other.touches(x, y, FREE) and (other.is_upright or max(
        other.height(*place) - roof.height(*place) for place in around(x, y)) > -0.05)


def around(x, y):
    return [(x, y), *((x + FREE * math.cos(turn), y + FREE * math.sin(turn)) for turn in map(math.radians, range(0, 360, 30)))]


def roofs_with_room(path):
    """The sloped roofs that have room, each with the middle of a free circle."""
    found = surfaces(path)
    roofs = [surface for layer, surface in found if layer == "ROOF"]
    everything = [surface for _, surface in found]
    for roof in roofs:
        if roof.is_upright or not 1 < roof.pitch < 85:
            continue
        place = free_place(roof, [other for other in everything if other is not roof])
        if place:
            yield roof, place
