# test_town.py - the roofs of a real town take windows, and right ones.
import functools
import json
import math
import pathlib
import tempfile

import ezdxf
import pytest
import town
import windows

WIDTH, LENGTH = 0.55, 0.78  # metres
LEAST_DONE = 0.98  # of the roofs that have room
MOST_TILTED = 0.3  # degrees between glass and roof
MOST_OFF = 0.03  # metres from the foot to the roof


@functools.lru_cache
def roofs():
    with tempfile.TemporaryDirectory() as folder:
        return list(town.roofs_with_room(town.drawing("town_polylines_r12", pathlib.Path(folder) / "town.dxf")))


def anchor(roof, middle):
    """Where the window's lower edge lies when its middle lies over that of the circle."""
    down = LENGTH / 2 * math.cos(math.radians(roof.pitch))
    steep = math.hypot(roof.a, roof.b)
    return [middle[0] - roof.a / steep * down, middle[1] - roof.b / steep * down]


def inserted(teskarlt, path, jobs_file, *options):
    """Inserts a window into each roof that has room; gives the program's answer."""
    jobs_file.write_text("".join(json.dumps({"at": anchor(*place)}) + "\n" for place in roofs()))
    sizes = (f"width={WIDTH}", f"length={LENGTH}", "frameWidth=0.05")
    return teskarlt("insert", path, "--jobs", jobs_file, "--keep-going", "--json", "--units", "m",
                    *(part for size in sizes for part in ("--set", size)), *options)


def by_number(drawing):
    """The entities of each window."""
    found = {}
    for entity in windows.window_entities(drawing):
        found.setdefault(entity.get_xdata("TK_LT_ELEM")[-1].value, []).append(entity)
    return found


def area_vector(face):
    """A vector square to the face, as long as twice the area of its first triangle."""
    a, b, c, *_ = windows.points(face)
    u, v = ([q - p for p, q in zip(a, other)] for other in (b, c))
    return [u[(n + 1) % 3] * v[(n + 2) % 3] - u[(n + 2) % 3] * v[(n + 1) % 3] for n in range(3)]


def glass_of(entities):
    """The largest face of a window."""
    return max((entity for entity in entities if entity.dxftype() == "3DFACE"), key=lambda face: math.hypot(*area_vector(face)))


def tilt(face, roof):
    """Degrees between a face and the roof's best fit."""
    square = area_vector(face)
    across = [square[(n + 1) % 3] * roof.normal[(n + 2) % 3] - square[(n + 2) % 3] * roof.normal[(n + 1) % 3] for n in range(3)]
    return math.degrees(math.asin(math.hypot(*across) / math.hypot(*square)))


def is_right(entities, roof):
    foot = [tuple(entity.dxf.start) for entity in entities if entity.dxf.layer == "ROOF_WINDOW_OUTLINE"]
    return (len(foot) == 4 and all(roof.covers(*point[:2]) for point in foot)
            and max(abs(roof.distance(point)) for point in foot) <= MOST_OFF
            and tilt(glass_of(entities), roof) <= MOST_TILTED)


@pytest.mark.parametrize("name", ["town_polylines_r12", "town_3dface_r2000", "town_mesh_r2010", "town_blocks_r2000"])
def test_roofs_with_room_take_windows_that_lie_on_them(teskarlt, tmp_path, name):
    path = town.drawing(name, tmp_path / "town.dxf")
    answer = inserted(teskarlt, path, tmp_path / "jobs.jsonl", "--strict").json
    drawn = by_number(ezdxf.readfile(path))
    right = [window for window in answer["windows"] if is_right(drawn[window["number"]], roofs()[window["line"] - 1][0])]
    assert len(right) == len(answer["windows"]) >= LEAST_DONE * len(roofs()) > 100, answer["refused"]


def test_windows_of_the_town_fit_where_they_stand(teskarlt, tmp_path):
    path = town.drawing("town_3dface_r2000", tmp_path / "town.dxf")
    count = len(inserted(teskarlt, path, tmp_path / "jobs.jsonl").json["windows"])
    assert "window" not in " ".join(finding["message"] for finding in teskarlt("check", path, "--json").json["findings"])
    assert teskarlt.done("refit", path, "--dry-run", "--json").json["fitting"] == count


def slope_area(surface):
    """The area of a polygon in its plane, from that of its plan."""
    ox, oy, _ = surface.corners[0]
    doubled = sum((a[0] - ox) * (b[1] - oy) - (b[0] - ox) * (a[1] - oy) for a, b in surface.edges)
    return abs(doubled) / 2 / surface.normal[2]


def test_roofs_of_the_town_are_listed_with_their_outlines(teskarlt, tmp_path):
    path = town.drawing("town_3dface_r2000", tmp_path / "town.dxf")
    listed = teskarlt.done("roofs", path, "--json", "--units", "m").json["roofs"]
    assert not any(len(roof["faces"]) == 1 and len(roof["outline"]) > 1 for roof in listed)
    for roof in listed:
        ox, oy, _ = roof["outline"][0][0]  # far from the origin, products lose their last digits
        plan = sum((a[0] - ox) * (b[1] - oy) - (b[0] - ox) * (a[1] - oy)
                   for ring in roof["outline"] for a, b in zip(ring, ring[1:] + ring[:1])) / 2
        assert math.isclose(plan / math.cos(math.radians(roof["pitch"])), roof["area"], rel_tol=1e-4), roof["roof"]
    alone = [(surface, place) for surface, place in roofs() if slope_area(surface) > 10]
    for surface, (x, y) in alone[:40]:
        over = [roof for roof in listed if any(town.Surface(ring).covers(x, y) for ring in roof["outline"])
                and abs(town.Surface(roof["outline"][0]).height(x, y) - surface.height(x, y)) < 0.1]
        assert any(roof["area"] > 0.98 * slope_area(surface) for roof in over)
