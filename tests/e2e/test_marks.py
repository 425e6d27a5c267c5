"""Marks of windows: given at insertion, by edit and by mark, kept in every version of drawings, known to list and check."""
import json

import ezdxf
import pytest
from ezdxf.lldxf.encoding import decode_dxf_unicode

from roofs import Roof


@pytest.fixture
def marked(teskarlt, house):
    for x, mark in ((2500, "W01"), (4000, "Küche"), (5500, None)):
        options = ("--mark", mark) if mark else ()
        teskarlt.done("insert", house, "--at", f"{x},1200", *options)
    return house


def marks(teskarlt, path):
    return [window["mark"] for window in teskarlt.done("list", path, "--json").json["windows"]]


def test_marks_are_told_by_insert_and_list(teskarlt, house):
    answer = teskarlt.done("insert", house, "--at", "2500,1200", "--mark", "W{number:02}", "--json").json
    assert answer["mark"] == "W01"
    assert teskarlt.done("insert", house, "--at", "5000,1200", "--mark", "W{number:02}").stdout.startswith(
        "Window 2 (W02): ")
    assert marks(teskarlt, house) == ["W01", "W02"]
    assert teskarlt.done("list", house).stdout.splitlines()[0].split()[:2] == ["number", "mark"]


def test_windows_without_marks_are_listed_as_before(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    assert marks(teskarlt, house) == [None]
    assert "mark" not in teskarlt.done("list", house).stdout


@pytest.mark.parametrize("version", ["R12", "R2000", "R2004", "R2007", "R2018"])
def test_mark_is_kept_in_every_version(teskarlt, tmp_path, version):
    path, roof = tmp_path / "roof.dxf", Roof()
    drawing = ezdxf.new(version)
    if version != "R12":
        drawing.header["$INSUNITS"] = 4
    drawing.modelspace().add_3dface(roof.corners)
    drawing.saveas(path)
    at = ",".join(repr(value) for value in roof.point(0, 0)[:2])
    teskarlt.done("insert", path, "--at", at, "--units", "mm", "--mark", "Küche Ω")
    assert marks(teskarlt, path) == ["Küche Ω"]
    read = ezdxf.readfile(path)
    assert not read.audit().errors
    parts = [entity for entity in read.modelspace() if entity.has_xdata("TK_LT_ELEM")]
    texts = {decode_dxf_unicode(part.get_xdata("TK_LT_MARK")[0].value) for part in parts}
    assert len(parts) == 33 and texts == {"Küche Ω"}
    teskarlt.done("mark", path, "--clear")
    assert not any(entity.has_xdata("TK_LT_MARK") for entity in ezdxf.readfile(path).modelspace())


def test_mark_marks_all_or_some_windows(teskarlt, marked):
    answer = teskarlt.done("mark", marked, "--unmarked", "--mark", "{roof}-{run}", "--json").json
    assert answer["windows"] == [{"number": 3, "from": None, "to": "R1-1"}]
    assert marks(teskarlt, marked) == ["W01", "Küche", "R1-1"]
    assert teskarlt.done("mark", marked).stdout == (
        f"Window 2: Küche -> W02\nWindow 3: R1-1 -> W03\n2 windows marked; written to {teskarlt.spelled(marked)}.\n")
    before = marked.read_bytes()
    assert teskarlt.done("mark", marked).stdout.startswith("Nothing changes: the windows are marked so;")
    assert teskarlt.done("mark", marked, "2", "--mark", "B", "--dry-run").stdout.startswith("Window 2: W02 -> B\n")
    assert marked.read_bytes() == before


def test_only_marks_change_by_mark(teskarlt, marked):
    before = marked.read_bytes().splitlines()
    teskarlt.done("mark", marked, "1", "--mark", "X")
    after = marked.read_bytes().splitlines()
    assert len(before) == len(after)
    assert {(a, b) for a, b in zip(before, after) if a != b} == {(b"W01", b"X")}


def test_mark_that_is_taken_is_refused(teskarlt, marked):
    before = marked.read_bytes()
    for command in (("insert", marked, "--at", "1200,1200", "--mark", "Küche"), ("edit", marked, "1", "--mark", "Küche"),
                    ("mark", marked, "1", "--mark", "Küche")):
        answer = teskarlt(*command)
        assert answer.status == 1
        assert answer.stderr == "teskarlt: --mark: window 2 bears the mark Küche already; {run} in it counts\n"
    assert marked.read_bytes() == before


def test_edit_keeps_or_changes_the_mark(teskarlt, marked):
    teskarlt.done("edit", marked, "1", "--set", "width=0.78")
    teskarlt.done("move", marked, "1", "--by", "0,0.2")
    assert marks(teskarlt, marked)[0] == "W01"
    answer = teskarlt.done("edit", marked, "1", "--mark", "A1", "--json").json
    assert answer["changes"] == [{"field": "mark", "from": "W01", "to": "A1"}]
    assert "mark: A1 -> A2" in teskarlt.done("edit", marked, "1", "--mark", "A2").stdout
    assert "Nothing changes" in teskarlt.done("edit", marked, "1", "--mark", "A2").stdout


def test_jobs_mark_windows(teskarlt, house, tmp_path):
    jobs = tmp_path / "jobs.jsonl"
    jobs.write_text("\n".join(json.dumps(job) for job in (
        {"at": [2000, 1200], "row": 2, "gap": 0.5, "mark": "row {run}"}, {"at": [6000, 1200]},
        {"do": "edit", "windows": 2, "mark": "last"})), encoding="utf-8")
    teskarlt.done("apply", house, jobs)
    assert marks(teskarlt, house) == ["row 1", "last", None]


def test_check_names_a_mark_of_two_windows(teskarlt, marked):
    drawing = ezdxf.readfile(marked)
    for entity in drawing.modelspace():
        if entity.has_xdata("TK_LT_MARK"):
            entity.set_xdata("TK_LT_MARK", [(1000, "W01")])
    drawing.saveas(marked)
    findings = teskarlt.done("check", marked, "--json").json["findings"]
    assert [finding["message"] for finding in findings if finding["kind"] == "window-mark"] == [
        "window 2 bears the mark W01 of window 1, too; teskarlt mark gives it one of its own"]
    teskarlt.done("mark", marked)
    assert marks(teskarlt, marked) == ["W01", "W02", "W03"]


@pytest.mark.parametrize("mark, reason", [("W{name}", "{name} stands for nothing"), ("W{", "a brace stands alone"),
                                          ("{type}", "window 1 has no type to be named by")])
def test_pattern_that_cannot_be_filled_is_refused(teskarlt, house, mark, reason):
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--at", "2500,1200", "--mark", mark)
    assert answer.status == 1 and reason in answer.stderr
    assert house.read_bytes() == before
