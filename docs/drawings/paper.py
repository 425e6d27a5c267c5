# paper.py - what the drawings of the pages are made on: SVG, and panels with axes of their own.
import math
import pathlib

HERE = pathlib.Path(__file__).resolve().parent
INK, SOFT, ROOF, OUTER, INNER, OPENING, MARK = "#222", "#888", "#b5651d", "#1f5fa8", "#5aa0d8", "#c0392b", "#2e7d32"


class Panel:
    """A part of a drawing with its own axes: x to the right, y upwards, in units of `scale` pixels."""

    def __init__(self, svg, x, y, scale):
        self.svg, self.x, self.y, self.scale = svg, x, y, scale

    def at(self, p):
        return self.x + p[0] * self.scale, self.y - p[1] * self.scale

    def line(self, a, b, colour=INK, width=1.5, dash="", arrow=False):
        (x1, y1), (x2, y2) = self.at(a), self.at(b)
        self.svg.line(x1, y1, x2, y2, colour, width, dash)
        if arrow:
            turn = math.atan2(y2 - y1, x2 - x1)
            tips = [(x2 + 10 * math.cos(turn + math.pi + s), y2 + 10 * math.sin(turn + math.pi + s)) for s in (-.35, .35)]
            self.svg.polygon([(x2, y2), *tips], colour, colour, 0)

    def polygon(self, points, colour=INK, fill="none", width=1.5, dash=""):
        self.svg.polygon([self.at(p) for p in points], colour, fill, width, dash)

    def curve(self, points, colour=INK, width=1.5, dash=""):
        for a, b in zip(points, points[1:]):
            self.line(a, b, colour, width, dash)

    def dot(self, p, colour=INK, radius=4):
        self.svg.circle(*self.at(p), radius, colour)

    def text(self, p, words, colour=INK, dx=0, dy=0, anchor="start", size=14):
        x, y = self.at(p)
        self.svg.text(x + dx, y + dy, words, colour, anchor, size)

    def measure(self, a, b, words, colour=SOFT, side=1):
        """A thin line with end ticks beside a to b, and the words in its middle."""
        length = math.dist(a, b)
        nx, ny = -(b[1] - a[1]) / length * side, (b[0] - a[0]) / length * side
        gap = 14 / self.scale
        c, d = (a[0] + nx * gap, a[1] + ny * gap), (b[0] + nx * gap, b[1] + ny * gap)
        self.line(c, d, colour, 1)
        for end in (c, d):
            self.line((end[0] - nx * 4 / self.scale, end[1] - ny * 4 / self.scale),
                      (end[0] + nx * 4 / self.scale, end[1] + ny * 4 / self.scale), colour, 1)
        middle = ((c[0] + d[0]) / 2 + nx * 12 / self.scale, (c[1] + d[1]) / 2 + ny * 12 / self.scale)
        self.text(middle, words, colour, dy=5, anchor="middle", size=13)


class Svg:
    folder = HERE  # where drawings are saved

    def __init__(self, width, height, title):
        self.width, self.height, self.title, self.parts = width, height, title, []

    def line(self, x1, y1, x2, y2, colour, width, dash=""):
        dashes = f' stroke-dasharray="{dash}"' if dash else ""
        self.parts.append(f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" stroke="{colour}" '
                          f'stroke-width="{width}"{dashes}/>')

    def polygon(self, points, colour, fill="none", width=1.5, dash=""):
        where = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        dashes = f' stroke-dasharray="{dash}"' if dash else ""
        self.parts.append(f'<polygon points="{where}" stroke="{colour}" fill="{fill}" stroke-width="{width}"{dashes}/>')

    def circle(self, x, y, radius, colour):
        self.parts.append(f'<circle cx="{x:.1f}" cy="{y:.1f}" r="{radius}" fill="{colour}"/>')

    def text(self, x, y, words, colour=INK, anchor="start", size=14):
        words = words.replace("&", "&amp;").replace("<", "&lt;")
        self.parts.append(f'<text x="{x:.1f}" y="{y:.1f}" fill="{colour}" text-anchor="{anchor}" '
                          f'font-size="{size}">{words}</text>')

    def save(self, name):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}" height="{self.height}" '
                f'viewBox="0 0 {self.width} {self.height}" font-family="sans-serif">\n<title>{self.title}</title>\n'
                f'<rect width="{self.width}" height="{self.height}" fill="#fff"/>')
        (self.folder / name).write_text("\n".join([head, *self.parts, "</svg>\n"]))
