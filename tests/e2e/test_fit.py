# test_fit.py - windows that overlap another or do not lie on a roof face.
import math

import ezdxf
import pytest
from roofs import VARIETY, Roof

WIDTH, LENGTH = 0.94, 1.4  # metres, of a window without other wishes


def at(roof, across, up):
    x, y, _ = roof.point(across, up)
    return "--at", f"{x!r},{y!r}"


def windows_of(teskarlt, path, roof):
    return teskarlt.done("list", path, "--units", roof.units, "--json").json["windows"]


SETTINGS = [(), ("widthAnchor=1",), ("widthAnchor=2",), ("roofBuildUp=2",), ("roofBuildUp=0",),
            ("roofBuildUp=0", "heightReference=2")]


@pytest.mark.parametrize("roof, settings", [(roof, SETTINGS[i % len(SETTINGS)]) for i, roof in enumerate(VARIETY)],
                         ids=str)
def test_windows_side_by_side_may_touch_and_not_overlap(teskarlt, tmp_path, roof, settings):
    path = tmp_path / "roof.dxf"
    roof.save(path)
    options = [part for setting in settings for part in ("--set", setting)]
    up, row = -0.6, LENGTH * math.cos(math.radians(roof.pitch))
    places = [(-1, up), (-1 + WIDTH, up), (-1, up + row), (-1 - WIDTH, up - row)]
    for place in places:
        assert teskarlt.done("insert", path, *at(roof, *place), *options).stderr == ""
    answer = teskarlt("insert", path, *at(roof, -1 + WIDTH - 0.01, up + row - 0.01), *options, "--strict")
    assert answer.status == 1 and answer.stderr == (
        "teskarlt: --strict: the window is refused; it overlaps windows 1, 2, 3 by 0.950 m; the nearest free place is "
        "0.950 m to the right\n")
    assert len(windows_of(teskarlt, path, roof)) == len(places)


def test_overlap_is_warned_of_and_told_to_programs(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    answer = teskarlt.done("insert", house, "--at", "2700,1300", "--json")
    overlap = "it overlaps window 1 by 0.740 m; the nearest free place is 0.740 m to the right"  # 0.94 - 0.2
    assert answer.stderr == f"teskarlt: warning: window 2: {overlap}\n"
    assert answer.json["warnings"] == [overlap]
    findings = teskarlt.done("check", house, "--json").json["findings"]
    assert [(finding["severity"], finding["kind"], finding["message"]) for finding in findings] == [
        ("warning", "window-misfit", f"window 2: {overlap}")]


def test_refused_window_leaves_the_drawing(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    before = house.read_bytes()
    for command in (("insert", house, "--at", "2700,1300"), ("insert", house, "--at", "2500,1200", "--dry-run")):
        assert teskarlt(*command, "--strict").status == 1
        assert house.read_bytes() == before


def test_edit_that_makes_windows_overlap_is_warned_of_or_refused(teskarlt, house):
    for place in ("2500,1200", "3500,1200"):
        teskarlt.done("insert", house, "--at", place)
    before = house.read_bytes()
    answer = teskarlt("edit", house, "1", "--set", "width=1.14", "--strict")
    assert answer.status == 1 and "it overlaps window 2" in answer.stderr
    assert house.read_bytes() == before
    answer = teskarlt.done("edit", house, "1", "--set", "width=1.14")
    assert answer.stderr == (
        "teskarlt: warning: window 1: it overlaps window 2 by 0.040 m; the nearest free place is 0.040 m to the left\n")
    assert teskarlt.done("edit", house, "1", "--set", "width=1").stderr == ""


def test_window_on_a_roof_over_another_does_not_overlap(teskarlt, tmp_path):
    path = tmp_path / "roofs.dxf"
    lower, upper = Roof(), Roof(centre=(0, 0, 4), width=4, depth=3)
    drawing = ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 4
    faces = [drawing.modelspace().add_3dface(roof.corners) for roof in (lower, upper)]
    drawing.saveas(path)
    for face in faces:
        assert teskarlt.done("insert", path, "--at", "0,0", "--roof-face", face.dxf.handle).stderr == ""


def test_jobs_that_overlap_are_warned_of_or_refused(teskarlt, house, tmp_path):
    jobs = tmp_path / "jobs.jsonl"
    jobs.write_text('{"at": [2500, 1200]}\n{"at": [2600, 1200]}\n{"at": [4800, 1200]}\n')
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--jobs", jobs, "--strict")
    assert answer.status == 1 and "jobs.jsonl:2: --strict: the window is refused; it overlaps window 1" in answer.stderr
    assert house.read_bytes() == before
    answer = teskarlt("insert", house, "--jobs", jobs, "--strict", "--keep-going", "--json")
    assert [window["number"] for window in answer.json["windows"]] == [1, 2]
    teskarlt.done("erase", house, "1")
    teskarlt.done("erase", house, "2")
    assert teskarlt.done("insert", house, "--jobs", jobs).stderr == (
        f"teskarlt: {teskarlt.spelled(jobs)}:2: warning: window 4: it overlaps window 3 by 0.840 m; "
        "the nearest free place is 0.840 m to the right\n")


def test_window_that_leaves_its_face_is_found(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    drawing = ezdxf.readfile(house)
    for face in drawing.modelspace().query('3DFACE[layer=="ROOF_SOUTH"]'):
        corners = [ezdxf.math.Vec3(face.dxf.get(f"vtx{n}")) for n in range(4)]
        left = min(corner.x for corner in corners)
        for n, corner in enumerate(corners):
            if corner.x == left:
                face.dxf.set(f"vtx{n}", (2500, corner.y, corner.z))
    drawing.saveas(house)
    findings = teskarlt.done("check", house, "--json").json["findings"]
    assert [finding["message"] for finding in findings if finding["kind"] == "window-misfit"] == [
        "window 1: it passes the left verge by 0.470 m"]


def test_window_with_a_second_plane_of_its_own_is_not_measured_by_its_roof(teskarlt, tmp_path):
    path, roof = tmp_path / "roof.dxf", Roof()
    roof.save(path)
    points = ";".join(",".join(repr(value) for value in (x, y, z - 150 - 0.05 * y)) for x, y, z in roof.corners[:3])
    answer = teskarlt.done("insert", path, "--at", "0,0", "--set", "roofBuildUp=0", "--set", f"secondPlanePoints={points}")
    assert answer.stderr == ""
    assert teskarlt.done("check", path, "--json").json["findings"] == []
    before = path.read_bytes()
    assert "1 window fits as it is" in teskarlt.done("refit", path).stdout
    assert path.read_bytes() == before


def test_many_copies_in_one_place_are_not_all_named(teskarlt, house, tmp_path):
    jobs = tmp_path / "jobs.jsonl"
    jobs.write_text('{"at": [2500, 1200]}\n' * 13)
    answer = teskarlt.done("insert", house, "--jobs", jobs, "--json")
    warning, = answer.json["windows"][-1]["warnings"]
    assert warning.startswith("it overlaps windows 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 and 2 more by 0.940 m; ")
