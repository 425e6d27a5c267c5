# test_row.py - windows inserted in rows along the eaves and in columns up the slope.
import math

import pytest
import readers
import windows
from roofs import Roof

WIDTH, LENGTH = 0.78, 0.98  # metres
SIZE = ("--set", f"width={WIDTH}", "--set", f"length={LENGTH}")


def places(teskarlt, path):
    return [window["fields"]["storedPoint"] for window in teskarlt.done("list", path, "--json").json["windows"]]


@pytest.mark.parametrize("direction", [0, 45, 120, 211.3, 270])
@pytest.mark.parametrize("words, across, up", [
    (["--row", "4", "--spacing", "1.2"], [0, 1.2, 2.4, 3.6], [0, 0, 0, 0]),
    (["--row", "3", "--gap", "0.1", "--row-from", "centre"], [-0.88, 0, 0.88], [0, 0, 0]),
    (["--row", "2", "--gap", "0.1", "--row-from", "right"], [-0.88, 0], [0, 0]),
    (["--row", "2", "--spacing", "1.5", "--column"], [0, 0], [0, 1.5]),
    (["--row", "3", "--gap", "0.02", "--column", "--row-from", "centre"], [0, 0, 0], [-1, 0, 1]),
    (["--row", "2", "--gap", "0.02", "--column", "--row-from", "top"], [0, 0], [-1, 0]),
], ids=str)
def test_windows_of_a_row_stand_where_they_should(teskarlt, tmp_path, direction, words, across, up):
    roof, path = Roof(direction=direction, pitch=40, width=12), tmp_path / "roof.dxf"
    roof.save(path)
    x, y, _ = roof.point()
    answer = teskarlt.done("insert", path, "--at", f"{x!r},{y!r}", *SIZE, *words)
    assert answer.stdout.splitlines()[-1].startswith(f"{len(across)} windows: ")
    readers.audited(path)
    found = places(teskarlt, path)
    assert len(found) == len(across)
    for place, right, slope in zip(found, across, up):
        assert math.dist(place, roof.point(right, slope * math.cos(math.radians(40)))) < 1e-6


def test_json_lists_the_windows_of_a_row(teskarlt, house):
    answer = teskarlt.done("insert", house, "--at", "2500,1200", "--row", "3", "--spacing", "1.8", "--json").json
    assert [window["number"] for window in answer["windows"]] == [1, 2, 3]
    assert [window["place"][0] for window in answer["windows"]] == pytest.approx([2500, 4300, 6100], abs=1e-6)


def test_row_that_does_not_fit_leaves_the_drawing(teskarlt, house):
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--at", "2500,1200", "--row", "9", "--spacing", "2")
    assert answer.status == 1 and "of the row, at 6500,1200: the window would leave the roof face" in answer.stderr
    assert house.read_bytes() == before


def test_rows_are_jobs_too(teskarlt, house):
    jobs = '{"at": [2500, 1200], "row": 3, "spacing": 1.8}\n{"at": [6000, 6800], "row": 2, "column": false}\n' \
           '{"at": [2500, 1200], "row": 99}\n{"at": [14000, 4000]}\n'
    answer = teskarlt("insert", house, "--jobs", "-", "--gap", "0.5", "--keep-going", "--json", stdin=jobs)
    assert answer.status == 3
    assert [window["line"] for window in answer.json["windows"]] == [1, 1, 1, 2, 2]
    assert [refusal["line"] for refusal in answer.json["refused"]] == [3, 4]
    assert "--row N says of how many windows" in answer.json["refused"][1]["message"]
    assert [window["number"] for window in answer.json["windows"]] == [1, 2, 3, 4, 5]
    readers.audited(house)


@pytest.mark.parametrize("words, status, part", [
    (["--row", "3"], 1, "by either --spacing"),
    (["--spacing", "1.2"], 1, "--row N says of how many windows"),
    (["--row", "3", "--spacing", "1.2", "--gap", "1"], 2, "--gap"),
    (["--row", "0", "--gap", "1"], 1, "--row 0: the number of windows in a row is from 1 to 1000"),
    (["--row", "3", "--gap", "1", "--row-from", "top"], 1, "is its left, centre or right"),
    (["--row", "3", "--spacing", "0.5"], 1, "0.94 m each, would overlap 0.5 m apart; say a longer one, or --gap 0"),
    (["--row", "3", "--spacing", "2", "--lengths", "ft"], 1, "would overlap 2'-0\" apart"),
], ids=str)
def test_row_that_means_nothing_is_refused(teskarlt, house, words, status, part):
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--at", "2500,1200", *words)
    assert answer.status == status and part in answer.stderr, answer
    assert house.read_bytes() == before


# 100 inches stand left, in the drawing of 400 inches; the fifth window stands 4 times 100 inches to the right.
def test_point_of_a_refused_window_is_told_in_the_drawings_unit(teskarlt, tmp_path):
    path = tmp_path / "inches.dxf"
    drawing = readers.ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 1
    drawing.modelspace().add_3dface([(0, 0, 0), (400, 0, 0), (400, 200, 200), (0, 200, 200)])
    drawing.saveas(path)
    answer = teskarlt("insert", path, "--at", "100,50", "--row", "5", "--spacing", "100\"")
    assert answer.status == 1 and "window 4 of the row, at 400,50: the window would leave" in answer.stderr


# Three windows of 0.78 by 0.98 m, 1.2 m apart, cover 3.18 by 0.98 m, as a column 0.78 by 3.38 m. Their lower edge lies up
# the slope from the eaves or, where it is negative, from the ridge.
@pytest.mark.parametrize("direction", [0, 70, 200])
@pytest.mark.parametrize("words, left, bottom", [
    (["--spacing", "1.2", "--from-eaves", "0.5", "--centre"], 6 - 3.18 / 2, 0.5),
    (["--spacing", "1.2", "--from-ridge", "0.5", "--from-verge", "0.4"], 0.4, -0.5 - 0.98),
    (["--gap", "0.42", "--from-eaves", "1", "--from-right-verge", "0.4"], 12 - 0.4 - 3.18, 1),
    (["--spacing", "1.2", "--column", "--from-eaves", "0.5", "--centre"], 6 - 0.39, 0.5),
    (["--spacing", "1.2", "--column", "--from-ridge", "0.3", "--from-verge", "1"], 1, -0.3 - 3.38),
], ids=str)
def test_words_place_all_windows_of_a_row_together(teskarlt, tmp_path, direction, words, left, bottom):
    roof, path = Roof(direction=direction, pitch=40, width=12), tmp_path / "roof.dxf"
    roof.save(path)
    slope = math.cos(math.radians(40))  # in the plan, of 1 m up
    teskarlt.done("insert", path, "--on", "R1", "--row", "3", *SIZE, *words)
    low = bottom if bottom > 0 else roof.depth / slope + bottom
    corners = windows.outline(readers.audited(path))
    for number in range(3):
        right, up = (0, 1.2 * number) if "--column" in words else (1.2 * number, 0)
        expected = roof.point(left + right - 6, (low + up) * slope - roof.depth / 2)
        assert math.dist(corners[4 * number], expected) < 1e-6
