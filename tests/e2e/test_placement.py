# test_placement.py - a window lies where the user put it, in drawing coordinates.
import math

import pytest
import readers
import windows
from roofs import FAR, VARIETY, Roof

WIDTH, LENGTH = 0.94, 1.4  # metres, the defaults


def inserted(teskarlt, roof, folder, *options, across=0.3, up=-0.4):
    """Inserts a window at a point of the roof; gives the point and the drawing with the window."""
    source, output = folder / "roof.dxf", folder / "out.dxf"
    roof.save(source)
    x, y, z = roof.point(across, up)
    teskarlt.done("insert", source, "--at", f"{x!r},{y!r}", "-o", output, *options)
    return (x, y, z), readers.audited(output)


def close(actual, expected, roof):
    """Equal within a hundredth of a micrometre, and two units in the last place of far coordinates."""
    largest = max(abs(value) for value in (*actual, *expected))
    bound = 1e-8 * roof.scale + 4 * math.ulp(largest)
    return all(abs(a - b) <= bound for a, b in zip(actual, expected))


@pytest.mark.parametrize("roof", VARIETY, ids=str)
def test_anchor_lies_exactly_at_the_point(teskarlt, tmp_path, roof):
    point, drawing = inserted(teskarlt, roof, tmp_path)
    corner0, corner1, corner2, corner3 = windows.outline(drawing)
    middle_of_lower_edge = tuple((a + b) / 2 for a, b in zip(corner0, corner3))
    assert close(middle_of_lower_edge, point, roof)


@pytest.mark.parametrize("roof", VARIETY, ids=str)
def test_outline_lies_in_the_roof_and_has_the_windows_size(teskarlt, tmp_path, roof):
    _, drawing = inserted(teskarlt, roof, tmp_path)
    corners = windows.outline(drawing)
    for x, y, z in corners:
        assert close((x, y, z), (x, y, roof.height(x, y)), roof)
    corner0, corner1, corner2, corner3 = corners
    ulps = 8 * math.ulp(max(abs(value) for corner in corners for value in corner))
    for a, b, length in ((corner0, corner1, LENGTH), (corner1, corner2, WIDTH), (corner2, corner3, LENGTH),
                         (corner3, corner0, WIDTH)):
        assert math.isclose(windows.distance(a, b), length * roof.scale, abs_tol=1e-8 * roof.scale + ulps)
    assert corner1[2] > corner0[2]


@pytest.mark.parametrize("anchor, left, right", [(0, -0.47, 0.47), (1, 0.0, 0.94), (2, -0.94, 0.0)])
def test_width_anchor_says_where_the_point_lies_in_the_width(teskarlt, tmp_path, anchor, left, right):
    roof = Roof(direction=30, units="m")
    _, drawing = inserted(teskarlt, roof, tmp_path, "--set", f"widthAnchor={anchor}", across=0, up=0)
    corner0, _, _, corner3 = windows.outline(drawing)
    assert close(corner0, roof.point(left), roof)
    assert close(corner3, roof.point(right), roof)


@pytest.mark.parametrize("field, edge", [("lowerEdgeHeight", 0), ("upperEdgeHeight", 1)])
def test_height_moves_the_window_along_the_slope(teskarlt, tmp_path, field, edge):
    roof = Roof(direction=100, units="cm")
    point, drawing = inserted(teskarlt, roof, tmp_path, "--set", f"{field}=2.9")
    corners = windows.outline(drawing)
    assert math.isclose(corners[edge][2], 290, abs_tol=1e-6)
    # Straight up or down the slope: the middle of the lower edge keeps its place across it.
    middle = [(a + b) / 2 for a, b in zip(corners[0], corners[3])]
    fall = math.radians(100)
    right = (-math.sin(fall), math.cos(fall))
    assert math.isclose(sum(r * (m - p) for r, m, p in zip(right, middle, point)), 0, abs_tol=1e-6)


def test_far_from_the_origin_the_window_is_the_one_of_the_origin_moved(teskarlt, tmp_path):
    (tmp_path / "near").mkdir()
    (tmp_path / "far").mkdir()
    near, far = Roof(direction=200, centre=(0, 0, 250)), Roof(direction=200, centre=FAR)
    _, near_drawing = inserted(teskarlt, near, tmp_path / "near")
    _, far_drawing = inserted(teskarlt, far, tmp_path / "far")
    shift = [(f - n) * far.scale for f, n in zip(far.centre, near.centre)]
    pairs = list(zip(windows.window_entities(near_drawing), windows.window_entities(far_drawing)))
    assert len(pairs) == windows.FACES + windows.LINES
    for near_entity, far_entity in pairs:
        for a, b in zip(windows.points(near_entity), windows.points(far_entity)):
            moved = [value + offset for value, offset in zip(a, shift)]
            assert math.dist(moved, b) <= 8 * math.ulp(5e8)


@pytest.mark.parametrize("reference", [0, 1, 2, 3])
def test_second_plane_puts_the_frame_into_the_roof(teskarlt, tmp_path, reference):
    roof = Roof(direction=300, units="m")
    _, drawing = inserted(teskarlt, roof, tmp_path, "--set", "roofBuildUp=0", "--set", f"heightReference={reference}",
                          "--set", "layerThickness=0.2")
    for x, y, z in windows.outline(drawing):
        assert close((x, y, z), (x, y, roof.height(x, y)), roof)


def test_three_points_stand_for_a_roof(teskarlt, tmp_path):
    roof = Roof(direction=140)
    source, output = tmp_path / "roof.dxf", tmp_path / "out.dxf"
    roof.save(source)
    corners = [",".join(map(repr, corner)) for corner in roof.corners[:3]]
    x, y, _ = roof.point()
    teskarlt.done("insert", source, "--roof", *corners, "--at", f"{x!r},{y!r}", "-o", output)
    corner0, _, _, corner3 = windows.outline(readers.audited(output))
    assert close([(a + b) / 2 for a, b in zip(corner0, corner3)], roof.point(), roof)


def test_uppermost_roof_over_the_point_is_taken(teskarlt, tmp_path, house):
    output = tmp_path / "out.dxf"
    faces = {face["face"]: face["layer"] for face in teskarlt.done("roofs", house, "--all", "--json").json["faces"]}
    answer = teskarlt.done("insert", house, "--at", "7600,1600", "-o", output, "--json").json
    assert faces[answer["face"]] == "ROOF_DORMER"


@pytest.mark.parametrize("build_up", [0, 1, 2])
def test_heights_that_are_told_are_those_of_the_drawn_frame(teskarlt, tmp_path, build_up):
    roof, path = Roof(direction=100, units="cm"), tmp_path / "roof.dxf"
    roof.save(path)
    x, y, _ = roof.point()
    answer = teskarlt.done("insert", path, "--at", f"{x!r},{y!r}", "--json", "--set", f"roofBuildUp={build_up}", "--set",
                           "layerThickness=0.2", "--set", "lowerEdgeHeight=2.9", "--set", "slopeOffset=0.3").json
    corners = windows.outline(readers.audited(path))
    [listed] = teskarlt.done("list", path, "--json").json["windows"]
    for told in (answer["frame"], listed["frame"]):
        assert math.isclose(told["lowerEdge"], corners[0][2] / 100, abs_tol=1e-9)
        assert math.isclose(told["upperEdge"], corners[1][2] / 100, abs_tol=1e-9)
    assert answer["lowerEdgeHeight"] == listed["fields"]["lowerEdgeHeight"] == 2.9
    # With the default height reference the layer lies plumb below the frame's lower edge.
    pitch = math.radians(roof.pitch)
    above = {0: 0.2 / math.cos(pitch), 1: 0, 2: 0.3 * math.sin(pitch)}[build_up]
    assert math.isclose(answer["frame"]["lowerEdge"], 2.9 + above, abs_tol=1e-9)
