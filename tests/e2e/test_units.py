# test_units.py - drawings in feet, inches and other units that no whole number of makes a metre.
import math
import re

import ezdxf
import pytest
import readers
import windows

# $INSUNITS, and the name of the unit for --units, with its length in metres by definition.
UNITS = {"in": (1, 0.0254), "ft": (2, 0.3048), "us-ft": (21, 1200 / 3937), "yd": (10, 0.9144), "km": (7, 1000.0),
         "um": (13, 1e-6), "mil": (9, 0.0000254), "m": (6, 1.0)}
PITCH = math.radians(30)
WIDTH, LENGTH, FRAME, DEPTH, GLASS = 0.94, 1.4, 0.1, 0.08, 0.02  # metres: the defaults, and how deep the glass lies
PLACE = (4.0, 1.5)  # metres in plan; the eaves are the x axis


def roof(path, unit, version="R2000"):
    """A roof of 8 by 4 m in plan that rises from the x axis, made with ezdxf."""
    number, metres = UNITS[unit]
    drawing = ezdxf.new(version)
    if version != "R12":
        drawing.header["$INSUNITS"] = number
    drawing.layers.add("ROOF")
    high = 4.0 * math.tan(PITCH)
    corners = [(0, 0, 0), (8, 0, 0), (8, 4, high), (0, 4, high)]
    drawing.modelspace().add_3dface([tuple(c / metres for c in corner) for corner in corners],
                                    dxfattribs={"layer": "ROOF"})
    drawing.saveas(path)


def at(unit):
    return ",".join(repr(value / UNITS[unit][1]) for value in PLACE)


def in_roof(across, up, above=0.0):
    """A point of the window in metres: from its anchor across and up the slope, and square above the roof."""
    x, y = PLACE
    sine, cosine = math.sin(PITCH), math.cos(PITCH)
    return (x + across, y + up * cosine - above * sine, y * math.tan(PITCH) + up * sine + above * cosine)


def near(drawn, metres, unit):
    return all(abs(a * UNITS[unit][1] - b) < 1e-8 for a, b in zip(drawn, metres))


@pytest.mark.parametrize("unit", UNITS)
def test_window_lies_where_the_roof_says(teskarlt, tmp_path, unit):
    path = tmp_path / "roof.dxf"
    roof(path, unit)
    teskarlt.done("insert", path, "--at", at(unit))
    drawing = readers.audited(path)
    corners = [in_roof(-WIDTH / 2, 0), in_roof(-WIDTH / 2, LENGTH), in_roof(WIDTH / 2, LENGTH), in_roof(WIDTH / 2, 0)]
    for drawn, expected in zip(windows.outline(drawing), corners, strict=True):
        assert near(drawn, expected, unit), (drawn, expected)
    glass = next(entity for entity in windows.window_entities(drawing) if entity.dxf.get("color") == 4)
    pane = [in_roof(side * (WIDTH / 2 - FRAME), up, DEPTH - GLASS) for side, up in
            ((-1, FRAME), (-1, LENGTH - FRAME), (1, LENGTH - FRAME), (1, FRAME))]
    for drawn, expected in zip(windows.points(glass), pane, strict=True):
        assert near(drawn, expected, unit), (drawn, expected)


@pytest.mark.parametrize("unit", UNITS)
def test_description_is_in_drawing_units(teskarlt, tmp_path, unit):
    path = tmp_path / "roof.dxf"
    roof(path, unit)
    teskarlt.done("insert", path, "--at", at(unit))
    metres = UNITS[unit][1]
    data = windows.window_entities(readers.audited(path))[0].get_xdata("TK_LT_DESC")
    values = {code: [value for c, value in data if c == code] for code in (1011, 1040, 1041, 1042)}
    assert math.isclose(values[1041][0] * metres, WIDTH, rel_tol=1e-12)
    assert math.isclose(values[1042][0] * metres, FRAME, rel_tol=1e-12)
    length, depth, lower, rotation, _, layer, pitch = values[1040]
    assert [round(value * metres, 9) for value in (length, depth, layer)] == [LENGTH, DEPTH, 0.1]
    assert math.isclose(lower * metres, PLACE[1] * math.tan(PITCH), rel_tol=1e-9)
    assert math.isclose(pitch, 30, rel_tol=1e-9) and rotation == 0
    assert near(values[1011][0], in_roof(0, 0), unit)


@pytest.mark.parametrize("unit", ["in", "us-ft"])
def test_window_comes_and_goes(teskarlt, tmp_path, unit):
    path, options = tmp_path / "roof.dxf", ("--units", unit)
    roof(path, unit, "R12")
    before = path.read_bytes()
    teskarlt.done("insert", path, "--at", at(unit), *options)
    [window] = teskarlt.done("list", path, *options, "--json").json["windows"]
    assert math.isclose(window["fields"]["width"], WIDTH) and window["notes"] == []
    assert near(window["fields"]["storedPoint"], in_roof(0, 0), unit)
    inserted = path.read_bytes()
    assert "Nothing changes" in teskarlt.done("edit", path, "1", *options).stdout
    assert path.read_bytes() == inserted
    teskarlt.done("edit", path, "1", "--set", "width=1.2", *options)
    teskarlt.done("edit", path, "1", "--set", "width=0.94", *options)
    teskarlt.done("erase", path, "1")
    assert readers.without_records(path.read_bytes()) == readers.without_records(before)


def test_windows_tell_inches_where_the_header_does_not(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    roof(path, "in", "R12")
    teskarlt.done("insert", path, "--at", at("in"), "--units", "in")
    assert teskarlt.done("list", path, "--json").json["units"] == "in"
    refused = teskarlt("edit", path, "1", "--set", "width=1", "--units", "mm")
    assert refused.status == 1 and "holds windows drawn in inches" in refused.stderr


def test_unit_is_proposed_by_the_size_of_the_roof(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    roof(path, "ft", "R12")
    refused = teskarlt("insert", path, "--at", at("ft"))
    assert refused.status == 1
    assert re.search(r"a roof of 26\.2 by 13\.1: (feet|metres)\? say --units (ft|m)", refused.stderr), refused.stderr


def test_strict_and_misfits_speak_metres_in_inches_too(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    roof(path, "in")
    teskarlt.done("insert", path, "--at", at("in"))
    answer = teskarlt.done("insert", path, "--at", at("in"), "--set", "width=1.1", "--json").json
    assert answer["warnings"] == ["it overlaps window 1 by 1.020 m; the nearest free place is 1.020 m to the left"]
    assert math.isclose(answer["unitFactor"], 1 / 0.0254)
    assert near(answer["place"], in_roof(0, 0), "in")


def test_commands_that_look_need_no_unit(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    roof(path, "in", "R12")
    answer = teskarlt.done("roofs", path, "--json")
    assert answer.json["units"] is None and answer.json["unitFactor"] is None
    area = 8 * 4 / math.cos(PITCH) / 0.0254 ** 2
    [listed] = answer.json["roofs"]
    assert math.isclose(listed["area"], area, rel_tol=1e-9)
    assert math.isclose(listed["ridgeHeight"], 4 * math.tan(PITCH) / 0.0254, rel_tol=1e-9)
    assert answer.stderr.count("lengths are in drawing units") == 1 and "say --units" in answer.stderr
    heading = teskarlt.done("roofs", path).stdout.splitlines()[0]
    assert "area" in heading and "m2" not in heading and "eaves m" not in heading
    for command in (["list", path, "--json"], ["check", path], ["preview", path, "-o", tmp_path / "plan.svg"]):
        teskarlt.done(*command)
    assert teskarlt.done("list", path, "--json").json["units"] is None


@pytest.mark.parametrize("unit", ["in", "m"])
def test_lengths_are_said_and_read_in_feet_and_inches(teskarlt, tmp_path, unit):
    path = tmp_path / "roof.dxf"
    roof(path, unit)
    answer = teskarlt.done("insert", path, "--at", at(unit), "--set", "width=3'-1 1/2\"", "--set", "length=46.5\"",
                           "--lengths", "ft")
    assert answer.stdout.startswith("Window 1: 3'-1 1/2\" x 3'-10 1/2\" on ")
    [window] = teskarlt.done("list", path, "--json").json["windows"]
    assert math.isclose(window["fields"]["width"], 37.5 * 0.0254)
    lines = teskarlt.done("list", path, "--lengths", "ft").stdout.splitlines()
    assert "width ft-in" in lines[0] and "3'-1 1/2\"" in lines[1]
    answer = teskarlt.done("edit", path, "1", "--set", "width=3.25", "--lengths", "ft")
    assert "width: 3'-1 1/2\" -> 3'-3\"" in answer.stdout
    assert "sq ft" in teskarlt.done("roofs", path, "--lengths", "ft").stdout


def test_jobs_take_feet_and_inches(teskarlt, tmp_path):
    path, jobs = tmp_path / "roof.dxf", tmp_path / "jobs.jsonl"
    roof(path, "ft")
    x, y = (value / 0.3048 for value in PLACE)
    job = f'{{"at": [{x}, {y}], "set": {{"width": "2\'-6\\"", "length": 4}}'
    jobs.write_text(job + ', "lengths": "ft"}\n', encoding="ascii")
    teskarlt.done("insert", path, "--jobs", jobs, "--dry-run")
    jobs.write_text(job + '}\n', encoding="ascii")
    teskarlt.done("insert", path, "--jobs", jobs, "--lengths", "ft")
    [window] = teskarlt.done("list", path, "--json").json["windows"]
    assert math.isclose(window["fields"]["width"], 2.5 * 0.3048)
    assert math.isclose(window["fields"]["length"], 4 * 0.3048)


def test_malformed_feet_are_explained(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    roof(path, "ft")
    refused = teskarlt("insert", path, "--at", at("ft"), "--set", "width=3'x\"")
    assert refused.status == 1 and "5'-4 1/2\"" in refused.stderr
