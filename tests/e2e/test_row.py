# test_row.py - windows inserted in rows along the eaves and in columns up the slope.
import math

import pytest
import readers
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
    assert answer.status == 1 and "of the row: the window would leave the roof face" in answer.stderr
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
    (["--row", "3", "--spacing", "0.5"], 1, "would overlap; say --spacing 0.94 or more"),
], ids=str)
def test_row_that_means_nothing_is_refused(teskarlt, house, words, status, part):
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--at", "2500,1200", *words)
    assert answer.status == status and part in answer.stderr, answer
    assert house.read_bytes() == before
