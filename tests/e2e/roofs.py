# roofs.py - drawings of single roof faces in any direction, pitch, unit and place.
import dataclasses
import math

from plain_dxf import UNITS_PER_METRE, Drawing

FULL_PRECISION = 20  # decimals, more than a coordinate has


@dataclasses.dataclass(frozen=True)
class Roof:
    """A rectangular roof face. `direction` is where it falls to, in degrees counter-clockwise from the x axis; sizes and
    the centre are metres, `width` across the slope and `depth` along it in plan."""

    direction: float = 270
    pitch: float = 35
    units: str = "mm"
    centre: tuple = (0.0, 0.0, 3.0)
    width: float = 8.0
    depth: float = 5.0
    version: str = "R2000"

    @property
    def scale(self):
        """Drawing units in a metre."""
        return UNITS_PER_METRE[self.units]

    def point(self, across=0.0, up=0.0):
        """A point of the roof in drawing units: metres in plan from the centre, to the right seen from below the eaves
        and up the slope."""
        fall = math.radians(self.direction)
        down = (math.cos(fall), math.sin(fall))
        right = (-down[1], down[0])
        x, y = (self.centre[axis] + across * right[axis] - up * down[axis] for axis in (0, 1))
        return tuple(value * self.scale for value in (x, y, self.centre[2] + up * math.tan(math.radians(self.pitch))))

    def height(self, x, y):
        """The roof's height at a plan point, all in drawing units."""
        fall = math.radians(self.direction)
        along = (x - self.centre[0] * self.scale) * math.cos(fall) + (y - self.centre[1] * self.scale) * math.sin(fall)
        return self.centre[2] * self.scale - along * math.tan(math.radians(self.pitch))

    @property
    def corners(self):
        right, up = self.width / 2, self.depth / 2
        return [self.point(*corner) for corner in ((-right, -up), (right, -up), (right, up), (-right, up))]

    def save(self, path):
        """Writes the face on layer ROOF into a drawing of its own; gives its handle."""
        drawing = Drawing(self.units, self.version, digits=FULL_PRECISION)
        drawing.layer("ROOF", 1)
        handle = drawing.face("ROOF", *self.corners)
        drawing.save(path)
        return handle

    def __str__(self):
        return f"{self.direction:g}deg-pitch{self.pitch:g}-{self.units}-at{self.centre[0] / 1000:g}km"


DIRECTIONS = (0, 45, 90, 135, 180, 225, 270, 315, 12.5, 211.3)
PITCHES = (5, 22.5, 35, 45, 60)
FAR = (500_000.0, -300_000.0, 250.0)  # metres, as in national grids
VARIETY = [*(Roof(direction=direction) for direction in DIRECTIONS),
           *(Roof(pitch=pitch, direction=30) for pitch in PITCHES),
           *(Roof(units=units, direction=200, centre=centre) for units in UNITS_PER_METRE
             for centre in ((0.0, 0.0, 0.0), (12.5, -7.25, 6.0), FAR))]
