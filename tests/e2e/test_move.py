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
    assert answer.status == 1 and "window 2: the window would leave the roof face" in answer.stderr
    assert house.read_bytes() == before
    teskarlt.done("undo", house)
    places = [w["fields"]["storedPoint"][0] for w in teskarlt.done("list", house, "--json").json["windows"]]
    assert places == pytest.approx([2500, 4800, 6100], abs=1e-6)


def test_window_moves_to_a_point_of_another_roof(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200", "--set", "text1=Maker")
    answer = teskarlt.done("move", house, "1", "--to", "6000,6800", "--json").json
    assert answer["place"][:2] == pytest.approx([6000, 6800], abs=1e-6)
    fields = teskarlt.done("list", house, "--json").json["windows"][0]["fields"]
    assert fields["text1"] == "Maker" and fields["width"] == 0.94


# 10 by 5 m at 45 degrees; windows at 100 and 200 inches move 0.254 m, which are 10 inches, to the right.
def test_windows_in_inches_move_by_metres_and_are_told_in_inches(teskarlt, tmp_path):
    drawing, path = readers.ezdxf.new("R2000"), tmp_path / "inches.dxf"
    drawing.header["$INSUNITS"] = 1
    drawing.modelspace().add_3dface([(0, 0, 0), (400, 0, 0), (400, 200, 200), (0, 200, 200)])
    drawing.saveas(path)
    for at in ("100,50", "200,50"):
        teskarlt.done("insert", path, "--at", at)
    answer = teskarlt.done("move", path, "1-2", "--by", "0.254,0", "--dry-run")
    assert "storedPoint: 100,50,50 -> 110,50,50" in answer.stdout.splitlines()[0]
    windows_moved = teskarlt.done("move", path, "1-2", "--by", "0.254,0", "--json").json["windows"]
    assert [window["place"] for window in windows_moved] == [pytest.approx([x, 50, 50]) for x in (110, 210)]
    row = ("--row", "2", "--spacing", "1.524", "--column")  # 60 inches up the slope
    row_windows = teskarlt.done("insert", path, "--at", "300,50", *row, "--json").json["windows"]
    assert row_windows[1]["place"] == pytest.approx([300, 50 + 60 / math.sqrt(2), 50 + 60 / math.sqrt(2)])


def test_roof_at_the_new_place_can_be_named(teskarlt, tmp_path):
    drawing, path = readers.ezdxf.new("R2000"), tmp_path / "two.dxf"
    drawing.header["$INSUNITS"] = 6
    for height in (0, 3):  # one roof over the other
        drawing.modelspace().add_3dface([(0, 0, height), (9, 0, height), (9, 4, height + 3), (0, 4, height + 3)])
    drawing.saveas(path)
    teskarlt.done("insert", path, "--at", "2,1")
    lower = min(teskarlt.done("roofs", path, "--json").json["roofs"], key=lambda roof: roof["eavesHeight"])
    answer = teskarlt.done("move", path, "1", "--to", "5,1", "--on", lower["roof"], "--json").json
    assert answer["place"] == pytest.approx([5, 1, 0.75])


# Frames of 0.94 by 1.4 m on a roof whose slope is 40 degrees steep.
def test_words_say_where_a_window_moves(teskarlt, tmp_path):
    roof, path = Roof(direction=70, pitch=40), tmp_path / "roof.dxf"
    roof.save(path)
    x, y, _ = roof.point()
    teskarlt.done("insert", path, "--at", f"{x!r},{y!r}")
    teskarlt.done("move", path, "1", "--on", "R1", "--from-eaves", "1.2", "--from-verge", "0.6")
    in_plan = math.cos(math.radians(40))
    def corner(left, bottom):
        return roof.point(left - roof.width / 2, bottom * in_plan - roof.depth / 2)
    assert math.dist(windows.outline(readers.audited(path))[0], corner(0.6, 1.2)) < TOLERANCE * roof.scale
    teskarlt.done("move", path, "1", "--from-right-verge", "2'", "--from-eaves", "4", "--lengths", "ft")
    left, bottom = roof.width - 2 * 0.3048 - 0.94, 4 * 0.3048
    assert math.dist(windows.outline(readers.audited(path))[0], corner(left, bottom)) < TOLERANCE * roof.scale
    teskarlt.done("move", path, "1", "--by", "-1'-6\",0.5", "--lengths", "ft")
    corners = windows.outline(readers.audited(path))
    assert math.dist(corners[0], corner(left - 1.5 * 0.3048, bottom + 0.5 * 0.3048)) < TOLERANCE * roof.scale


@pytest.mark.parametrize("arguments, status, part", [
    (["1"], 2, "say where the windows go: --by or --to"),
    (["1", "--by", "0.2,0", "--centre"], 2, "--by says how far the windows go"),
    (["1", "--to", "99999,1"], 1, "--to 99999,1: no roof face lies over that point"),
    (["--by", "0.2,0"], 2, "say which windows"),
    (["1", "--by", "0.2,0", "--to", "1,1"], 2, "--by"),
    (["1", "--by", "0.2"], 1, "--by 0.2: a move is two lengths"),
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
