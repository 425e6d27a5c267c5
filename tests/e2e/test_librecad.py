# test_librecad.py - an independent CAD program opens what teskarlt writes and plots it where it belongs.
import pytest

import readers
import windows
from roofs import Roof

DOTS = 2  # how far a plotted point may lie from its place: the page is rounded to dots


def plotted_place(point, roof, strokes):
    """Where a point of the drawing lies on the page, when the roof's corners are the outermost that is plotted."""
    place = []
    for axis in (0, 1):
        ends = [end[axis] for stroke in strokes for end in stroke]
        corners = [corner[axis] for corner in roof.corners]
        share = (point[axis] - min(corners)) / (max(corners) - min(corners))
        place.append(min(ends) + share * (max(ends) - min(ends)))
    return tuple(place)


@pytest.mark.parametrize("version", ["R12", "R2000"])
@pytest.mark.parametrize("direction", [270, 30])
def test_window_is_plotted_in_its_place(teskarlt, tmp_path, version, direction):
    roof = Roof(version=version, direction=direction)
    source, output = tmp_path / "roof.dxf", tmp_path / "window.dxf"
    roof.save(source)
    x, y, _ = roof.point()
    teskarlt.done("insert", source, "--at", f"{x},{y}", "--units", "mm", "-o", output)
    bare, strokes = (readers.librecad_plot(path, tmp_path) for path in (source, output))
    assert len(strokes) >= len(bare) + windows.LINES
    ends = {end for stroke in strokes for end in stroke}
    for corner in windows.outline(readers.audited(output)):
        expected = plotted_place(corner, roof, strokes)
        assert min(windows.distance(expected, end) for end in ends) <= DOTS


def test_erased_window_leaves_the_plot_as_it_was(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    teskarlt.done("insert", house, "--at", "2500,1200", "-o", output)
    with_window = readers.librecad_plot(output, tmp_path)
    teskarlt.done("erase", output, "1")
    assert readers.librecad_plot(output, tmp_path) == readers.librecad_plot(house, tmp_path) != with_window


@pytest.mark.parametrize("version", ["R12", "R2000", "R2018"])
def test_new_drawing_with_a_window_opens(teskarlt, tmp_path, version):
    drawing = tmp_path / "new.dxf"
    teskarlt.done("new", drawing, "--dxf-version", version)
    teskarlt.done("insert", drawing, "--at", "2,1", "--roof", "0,0,3", "4,0,3", "0,4,6")
    assert len(readers.librecad_plot(drawing, tmp_path)) >= windows.LINES
