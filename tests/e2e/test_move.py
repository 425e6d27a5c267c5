# test_move.py - windows moved in their roofs and onto others.
import math

import pytest
import readers
import windows
from roofs import Roof

TOLERANCE = 1e-6  # of a drawing unit


def middles(path):
    """The middles of the entities of all windows."""
    return [[sum(p[axis] for p in points) / len(points) for axis in range(3)]
            for points in map(windows.points, windows.window_entities(readers.audited(path)))]


@pytest.mark.parametrize("direction", [0, 70, 135, 200, 270])
@pytest.mark.parametrize("units", ["mm", "m"])
def test_every_entity_moves_along_the_eaves_and_up_the_slope(teskarlt, tmp_path, direction, units):
    roof, path = Roof(direction=direction, pitch=40, units=units), tmp_path / "roof.dxf"
    roof.save(path)
    x, y, _ = roof.point(-1, -1)
    teskarlt.done("insert", path, "--at", f"{x!r},{y!r}")
    before = middles(path)
    across, up = 1.25, 0.6  # metres along the roof
    teskarlt.done("move", path, "1", "--by", f"{across},{up}")
    a, b = roof.point(), roof.point(across, up * math.cos(math.radians(40)))
    for one, other in zip(before, middles(path), strict=True):
        moved = [value + b[axis] - a[axis] for axis, value in enumerate(one)]
        assert math.dist(moved, other) < TOLERANCE * roof.scale


def test_move_there_and_back_gives_the_same_places(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    before = middles(house)
    teskarlt.done("move", house, "1", "--by", "-0.5,0.25")
    teskarlt.done("move", house, "1", "--by", "0.5,-0.25")
    for one, other in zip(before, middles(house), strict=True):
        assert math.dist(one, other) < 1e-6


def test_several_windows_move_or_none(teskarlt, house):
    for at in ("2500,1200", "4800,1200", "6100,1200"):
        teskarlt.done("insert", house, "--at", at)
    teskarlt.done("move", house, "1-3", "--by", "0.1,0", "--backup")
    places = [w["fields"]["storedPoint"][0] for w in teskarlt.done("list", house, "--json").json["windows"]]
    assert places == pytest.approx([2600, 4900, 6200], abs=1e-6)
    before = house.read_bytes()
    answer = teskarlt("move", house, "1-3", "--by", "9,0")
    assert answer.status == 1 and "window 1: the window would leave the roof face" in answer.stderr
    assert house.read_bytes() == before
    teskarlt.done("undo", house)
    places = [w["fields"]["storedPoint"][0] for w in teskarlt.done("list", house, "--json").json["windows"]]
    assert places == pytest.approx([2500, 4800, 6100], abs=1e-6)


def test_window_moves_to_a_point_of_another_roof(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200", "--set", "text1=Maker")
    answer = teskarlt.done("move", house, "1", "--to", "6000,6800", "--json").json
    assert answer["place"][:2] == pytest.approx([6000, 6100], abs=1e-6)
    fields = teskarlt.done("list", house, "--json").json["windows"][0]["fields"]
    assert fields["text1"] == "Maker" and fields["width"] == 0.94


@pytest.mark.parametrize("arguments, status, part", [
    (["1"], 2, "say where the windows go: --by or --to"),
    (["--by", "0.2,0"], 2, "say which windows"),
    (["1", "--by", "0.2,0", "--to", "1,1"], 2, "--by"),
    (["1", "--by", "0.2"], 1, "--by 0.2: a move is two finite numbers"),
    (["1-2", "--to", "4000,1200"], 1, "2 windows cannot all stand at the point 4000,1200"),
    (["7", "--by", "1,0"], 1, "has no window 7"),
], ids=str)
def test_move_that_means_nothing_is_refused(teskarlt, house, arguments, status, part):
    for at in ("2500,1200", "4800,1200"):
        teskarlt.done("insert", house, "--at", at)
    before = house.read_bytes()
    answer = teskarlt("move", house, *arguments)
    assert answer.status == status and part in answer.stderr, answer
    assert house.read_bytes() == before
