# pictures.py - what an independent program reads from a picture.
import dataclasses
import subprocess
import tempfile


@dataclasses.dataclass
class Pixels:
    width: int
    height: int
    values: bytes  # red, green, blue, row by row

    def at(self, x, y):
        place = 3 * (round(y) * self.width + round(x))
        return tuple(self.values[place:place + 3])

    def all(self):
        return list(zip(self.values[::3], self.values[1::3], self.values[2::3]))

    def share(self, condition):
        """How much of the picture meets a condition on red, green and blue."""
        return sum(condition(*pixel) for pixel in self.all()) / (self.width * self.height)


def is_red(red, green, blue):
    return red > green + 50 and red > blue + 50


def difference(a, b):
    """The share of pixels that differ visibly."""
    pairs = zip(a.all(), b.all())
    return sum(max(abs(p - q) for p, q in zip(one, other)) > 12 for one, other in pairs) / (a.width * a.height)


def decoded(png, *bands):
    """Kind, width, height, depth and values of these bands of a PNG file (bytes) as GDAL decodes it."""
    with tempfile.TemporaryDirectory() as folder:
        with open(f"{folder}/in.png", "wb") as file:
            file.write(png)
        chosen = [word for band in bands for word in ("-b", str(band))]
        subprocess.run(["gdal_translate", "-q", "-of", "PNM", *chosen, f"{folder}/in.png", f"{folder}/out.ppm"], check=True)
        with open(f"{folder}/out.ppm", "rb") as file:
            return header(file)


def pixels(png):
    """The colours of a PNG file."""
    kind, width, height, depth, values = decoded(png, 1, 2, 3)
    assert (kind, depth) == (b"P6", 255)
    return Pixels(width, height, values)


def alpha(png):
    """How much of the ground each pixel of a PNG file hides, up to 255, row by row."""
    kind, _, _, depth, values = decoded(png, 4)
    assert (kind, depth) == (b"P5", 255)
    return values


def header(file):
    """Kind, width, height, depth and the rest of a PNM file."""
    kind, numbers = file.readline().strip(), []
    while len(numbers) < 3:
        numbers += [int(word) for word in file.readline().split(b"#")[0].split()]
    return (kind, *numbers, file.read())


def of_svg(path):
    """A vector picture as librsvg draws it."""
    done = subprocess.run(["rsvg-convert", str(path)], capture_output=True, check=True)
    return pixels(done.stdout)
