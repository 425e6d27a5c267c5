# test_placing.py - windows that are placed by words lie where the roof's own numbers say.
import json
import math

import ezdxf
import pytest
import readers
import windows
from roofs import FAR, Roof
from test_placement import close

WIDTH, LENGTH = 0.94, 1.4  # metres, the defaults
ROOFS = [*(Roof(direction=direction, pitch=40) for direction in (270, 0, 33, 180, 300)),
         Roof(direction=120, units="m", centre=FAR), Roof(direction=10, pitch=20, units="cm"),
         Roof(direction=75, units="in"), Roof(direction=220, units="ft", centre=(30, -20, 4))]


def slope_point(roof, right, up):
    """Metres from the left edge and, along the slope, from the eaves."""
    return roof.point(right - roof.width / 2, up * math.cos(math.radians(roof.pitch)) - roof.depth / 2)


def slope(roof):
    return roof.depth / math.cos(math.radians(roof.pitch))


def check_corners(drawing, roof, left, bottom):
    """Compares the frame with one whose lower left corner lies there."""
    expected = [slope_point(roof, left + dx, bottom + dy) for dx, dy in ((0, 0), (0, LENGTH), (WIDTH, LENGTH), (WIDTH, 0))]
    assert all(close(*pair, roof) for pair in zip(windows.outline(drawing), expected))


@pytest.mark.parametrize("roof", ROOFS, ids=str)
def test_words_are_measured_on_the_roof(teskarlt, tmp_path, roof):
    sill = roof.centre[2] - roof.depth / 2 * math.tan(math.radians(roof.pitch)) + 1.5 * math.sin(math.radians(roof.pitch))
    for words, left, bottom in (
            (("--from-eaves", "1.2", "--from-verge", "0.6"), 0.6, 1.2),
            (("--from-ridge", "0.5", "--from-right-verge", "0.7"), roof.width - 0.7 - WIDTH, slope(roof) - 0.5 - LENGTH),
            (("--sill", repr(sill), "--centre"), roof.width / 2 - WIDTH / 2, 1.5)):
        source, output = tmp_path / "roof.dxf", tmp_path / "out.dxf"
        roof.save(source)
        teskarlt.done("insert", source, "--on", "R1", *words, "--strict", "-o", output)
        check_corners(readers.audited(output), roof, left, bottom)


@pytest.mark.parametrize("build_up", ["0", "1", "2"])
def test_words_mean_the_drawn_frame_whatever_the_build_up(teskarlt, tmp_path, build_up):
    roof, path = Roof(direction=100), tmp_path / "roof.dxf"
    roof.save(path)
    teskarlt.done("insert", path, "--on", "R1", "--from-eaves", "1", "--from-verge", "0.5", "--set", f"roofBuildUp={build_up}",
                  "--set", "layerThickness=0.2", "--set", "slopeOffset=0.3", "--set", "widthAnchor=2")
    check_corners(readers.audited(path), roof, 0.5, 1)


def test_row_of_windows_in_line_and_between_in_jobs(teskarlt, tmp_path):
    roof, path, jobs = Roof(direction=200), tmp_path / "roof.dxf", tmp_path / "jobs.jsonl"
    roof.save(path)
    jobs.write_text("\n".join(map(json.dumps, (
        {"on": "R1", "from-eaves": 1, "from-verge": 0.5},
        {"on": "R1", "align": 1, "edge": "bottom", "from-right-verge": 0.5},
        {"on": "R1", "between": [1, 2]},
        {"on": "R1", "align": 1, "edge": "axis", "from-ridge": 0.2}))))
    teskarlt.done("insert", path, "--jobs", jobs, "--json")
    lines = windows.outline(ezdxf.readfile(path))
    for number, (left, bottom) in enumerate(((0.5, 1), (roof.width - 0.5 - WIDTH, 1), (roof.width / 2 - WIDTH / 2, 1),
                                             (0.5, slope(roof) - 0.2 - LENGTH))):
        assert close(lines[4 * number], slope_point(roof, left, bottom), roof)


def test_edit_moves_a_window_by_words_and_keeps_what_they_do_not_say(teskarlt, tmp_path):
    roof, path = Roof(direction=60), tmp_path / "roof.dxf"
    roof.save(path)
    teskarlt.done("insert", path, "--on", "R1", "--from-eaves", "1", "--from-verge", "0.5")
    teskarlt.done("edit", path, "1", "--from-ridge", "0.4")
    check_corners(readers.audited(path), roof, 0.5, slope(roof) - 0.4 - LENGTH)
    teskarlt.done("edit", path, "1", "--centre")
    check_corners(readers.audited(path), roof, roof.width / 2 - WIDTH / 2, slope(roof) - 0.4 - LENGTH)


def test_refused_words_change_nothing(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    Roof().save(path)
    before = path.read_bytes()
    for words, message in (
            (("--from-eaves", "1"), "say how far along the eaves"),
            (("--from-eaves", "1", "--sill", "3", "--centre"), "--from-eaves and --sill both say"),
            (("--from-eaves", "-1", "--centre"), "--from-eaves -1: a distance is not negative"),
            (("--from-eaves", "x", "--centre"), "--from-eaves x"),
            (("--from-eaves", "1", "--between", "1", "2"), "--between 1: the drawing shows no window"),
            (("--from-eaves", "9", "--centre"), "above or below its roof"),
            (("--eaves", "0,0", "9,0", "--centre"), "leave --on and --roof out"),
            (("--align", "1", "--edge", "left"), "--edge left: the edges to align are top, bottom and axis")):
        answer = teskarlt("insert", path, "--on", "R1", *words)
        assert answer.status == 1 and message in answer.stderr
    assert path.read_bytes() == before


def only_lines(path):
    """A roof drawn in plan alone, in centimetres: eaves from (500, 100) to the north-east, 10 m long."""
    drawing = ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 5
    drawing.modelspace().add_line((500, 100), (1300, 700))
    drawing.saveas(path)


def test_points_of_a_roof_drawn_in_plan_are_in_its_unit(teskarlt, tmp_path):
    path = tmp_path / "feet.dxf"
    drawing = ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 2
    drawing.saveas(path)
    teskarlt.done("insert", path, "--eaves", "0,0", "30,0", "--rises-to", "0,1", "--pitch", "45", "--eaves-height", "3.048",
                  "--sill", "3.6576", "--over", "10,-5")
    corners = windows.outline(readers.audited(path))
    middle = [(a + b) / 2 for a, b in zip(corners[0], corners[3])]
    assert all(math.isclose(*pair, rel_tol=1e-9) for pair in zip(middle, (10, 2, 12)))


# Up the slope from the eaves, 30 degrees, to the left of (0.8, 0.6): 0.866 of the way in the plan, half of it in height.
LEFT = (-0.6, 0.8)


@pytest.mark.parametrize("side", [1, -1])
def test_roof_that_is_only_drawn_in_plan_takes_windows_by_its_eaves(teskarlt, tmp_path, side):
    path = tmp_path / "plan.dxf"
    only_lines(path)
    rises = () if side == 1 else ("--rises-to", "900,0")
    teskarlt.done("insert", path, "--eaves", "500,100", "1300,700", "--pitch", "30", "--eaves-height", "2.5", *rises,
                  "--from-eaves", "2", "--centre")
    corners = windows.outline(readers.audited(path))
    middle = [(a + b) / 2 for a, b in zip(corners[0], corners[3])]
    away = 200 * math.cos(math.radians(30)) * side
    assert all(map(math.isclose, middle, (900 + away * LEFT[0], 400 + away * LEFT[1], 250 + 100)))
    assert math.isclose(corners[1][2], 250 + 100 + 70)


def test_jobs_give_the_plane_by_its_ridge(teskarlt, tmp_path):
    path, jobs = tmp_path / "plan.dxf", tmp_path / "jobs.jsonl"
    only_lines(path)
    jobs.write_text(json.dumps({"ridge": [[500, 100], [1300, 700]], "pitch": 30, "ridge-height": 7, "from-ridge": 1,
                                "centre": True}))
    teskarlt.done("insert", path, "--jobs", jobs)
    corners = windows.outline(readers.audited(path))
    middle = [(a + b) / 2 for a, b in zip(corners[1], corners[2])]
    away = 100 * math.cos(math.radians(30))
    assert all(map(math.isclose, middle, (900 + away * LEFT[0], 400 + away * LEFT[1], 700 - 50)))


def test_window_beside_a_roof_that_is_only_drawn_in_plan_is_told(teskarlt, tmp_path):
    path = tmp_path / "plan.dxf"
    only_lines(path)
    roof = ("--eaves", "500,100", "1300,700", "--pitch", "30", "--eaves-height", "2.5")
    answer = teskarlt("insert", path, *roof, "--from-eaves", "2", "--from-verge", "9.5", "--strict")
    assert answer.status == 1 and "it passes the right verge by 0.440 m" in answer.stderr  # the eaves is 10 m long
    assert teskarlt.done("insert", path, *roof, "--from-eaves", "2", "--from-verge", "9", "--strict").stderr == ""
