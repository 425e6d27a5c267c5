# test_roofs.py - the drawings that the other tests start from are sound themselves.
import math

import ezdxf
import pytest
import readers
from roofs import VARIETY, Roof


@pytest.mark.parametrize("version", ["R12", "R2000"])
def test_other_programs_read_the_drawing(tmp_path, version):
    path = tmp_path / "roof.dxf"
    handle = Roof(version=version).save(path)
    face, = readers.audited(path).modelspace()
    assert (face.dxf.handle, face.dxf.layer) == (handle, "ROOF")
    assert [entity["EntityHandle"] for entity in readers.gdal_entities(path)] == [handle]


def test_corners_survive_the_file_exactly(tmp_path):
    for roof in VARIETY:
        path = tmp_path / "roof.dxf"
        roof.save(path)
        face, = readers.audited(path).modelspace()
        assert [tuple(corner) for corner in face.wcs_vertices()] == roof.corners


def test_height_agrees_with_the_corners():
    for roof in VARIETY:
        for x, y, z in roof.corners:
            assert math.isclose(roof.height(x, y), z, rel_tol=1e-9, abs_tol=1e-6)


def test_roof_falls_where_it_says():
    x, y, z = Roof(direction=0, centre=(0, 0, 0), pitch=45, units="m").point(up=-2)
    assert (x, round(y, 12), round(z, 12)) == (2, 0, -2)


def test_warped_face_is_left_out_and_told(teskarlt, tmp_path):
    path = tmp_path / "warped.dxf"
    drawing = ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 4
    space = drawing.modelspace()
    warped = space.add_3dface([(0, 0, 0), (4000, 0, 0), (4000, 3000, 2160), (0, 3000, 2000)], dxfattribs={"layer": "0"})
    space.add_3dface([(0, 0, 0), (4000, 0, 0), (4000, 3000, 2000), (0, 3000, 2000)])
    drawing.saveas(path)
    answer = teskarlt.done("roofs", path, "--json")
    assert len(answer.json["roofs"]) == 1
    [told] = answer.json["warped"]
    assert (told["face"], told["layer"]) == (warped.dxf.handle, "0") and 0.03 < told["offPlane"] < 0.04
    assert answer.stderr == (f"teskarlt: note: 1 face is left out, not being planar: a corner of {warped.dxf.handle} "
                             f"lies {told['offPlane']:.3f} m off its plane; --all lists it\n")


ROOF = [(0, 0, 3), (8, 0, 3), (8, 4, 6), (0, 4, 6)]


def drawing_in_metres(path, *faces):
    """A drawing with a 3D face for each list of corners; gives their handles."""
    drawing = ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 6
    handles = [drawing.modelspace().add_3dface(corners).dxf.handle for corners in faces]
    drawing.saveas(path)
    return handles


def test_wall_that_is_not_quite_upright_takes_no_window_and_is_listed_on_demand(teskarlt, tmp_path):
    path = tmp_path / "walls.dxf"
    wall = [(100, 100, 3), (104, 100.001, 3), (104, 100, 7), (100, 100, 7)]
    lean = [(0, 0, 7), (8, 0, 7), (8, 0.5, 20), (0, 0.5, 20)]
    roof, _, leaning = drawing_in_metres(path, ROOF, wall, lean)
    for place in ("4,1", "4,0.25"):
        assert teskarlt.done("insert", path, "--at", place, "--set", "length=0.2", "--set", "width=0.2", "--dry-run",
                             "--set", "frameWidth=0.05", "--json").json["face"] == roof
    assert [listed["faces"] for listed in teskarlt.done("roofs", path, "--json").json["roofs"]] == [[roof]]
    assert leaning not in teskarlt.done("roofs", path).stdout
    assert "steeper than 85 degrees" in teskarlt.done("roofs", path, "--all").stdout
    answer = teskarlt("insert", path, "--at", "4,0.25", "--roof-face", leaning)
    assert answer.status == 1 and "87.8 degrees steep" in answer.stderr


def polylines_in_metres(path, *faces):
    """An R12 drawing with a closed 3D polyline for each list of corners."""
    drawing = ezdxf.new("R12")
    for corners in faces:
        drawing.modelspace().add_polyline3d(corners, close=True)
    drawing.saveas(path)


def test_far_wall_with_an_upright_edge_does_not_lie_over_the_roof(teskarlt, tmp_path):
    path = tmp_path / "walls.dxf"
    polylines_in_metres(path, ROOF, [(100, 100, 3), (104, 100.001, 3), (104, 100, 7), (100, 100, 7)])
    answer = teskarlt.done("insert", path, "--at", "4,1", "--units", "m", "--json").json
    assert math.isclose(answer["place"][2], 3.75, abs_tol=1e-9)


def test_roof_that_is_a_little_uneven_takes_the_window_and_not_its_ceiling(teskarlt, tmp_path):
    path = tmp_path / "ceiling.dxf"
    uneven = [(0, 0, 3), (8, 0, 3.01), (8, 4, 6), (0, 4, 6)]
    roof, _ = drawing_in_metres(path, uneven, [(x, y, y / 4) for x, y, _ in uneven])
    answer = teskarlt.done("insert", path, "--at", "4,1", "--json").json
    assert answer["face"] == roof and answer["warnings"] == [] and math.isclose(answer["place"][2], 3.75, abs_tol=0.01)
    assert teskarlt.done("check", path, "--json").json["findings"] == []


def test_roof_that_is_too_uneven_does_not_let_the_window_fall_onto_its_ceiling(teskarlt, tmp_path):
    path = tmp_path / "ceiling.dxf"
    uneven = [(0, 0, 3), (8, 0, 3.2), (8, 4, 6), (0, 4, 6)]
    roof, ceiling = drawing_in_metres(path, uneven, [(x, y, y / 4) for x, y, _ in uneven])
    before = path.read_bytes()
    answer = teskarlt("insert", path, "--at", "4,1")
    assert answer.status == 1 and f"{roof} of layer 0, is not planar: a corner lies 41 mm off its plane" in answer.stderr
    assert path.read_bytes() == before
    assert teskarlt.done("insert", path, "--at", "4,1", "--roof-face", ceiling, "--json").json["face"] == ceiling


def test_window_lies_on_triangles_and_the_sliver_between_them(teskarlt, tmp_path):
    path = tmp_path / "triangles.dxf"
    low, middle, high = (0, 0, 3), (4, 2.003, 4.503), (8, 4, 6)  # the middle is 0.8 mm too high
    drawing_in_metres(path, [low, (8, 0, 3), high, high], [low, high, middle, middle], [low, middle, (0, 4, 6), (0, 4, 6)],
                      [middle, high, (0, 4, 6), (0, 4, 6)])
    for place in ("2,0.8", "4,2.0015"):
        answer = teskarlt.done("insert", path, "--at", place, "--strict", "--json").json
        assert abs(answer["pitch"] - math.degrees(math.atan(0.75))) < 0.02
    assert "2 windows fit" in teskarlt.done("refit", path, "--dry-run").stdout


def triangles(rows, columns, at):
    """A grid of fields with a diagonal each, without the one in the middle; `at` gives a corner's point."""
    faces = []
    for i in range(columns):
        for j in range(rows):
            if (i, j) != (columns // 2, rows // 2):
                a, b, c, d = at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1)
                faces += [(a, b, c, c), (a, c, d, d)]
    return faces


def test_triangles_in_one_plane_are_one_roof_with_its_hole(teskarlt, tmp_path):
    path = tmp_path / "grid.dxf"
    # Rises by 0.6 for every 0.8 in the plan: each field is 1 by 1 in the slope. It falls to the west.
    faces = triangles(3, 5, lambda i, j: (0.8 * j, -i, 2 + 0.6 * j))
    drawing_in_metres(path, *faces, [(0, -9, 3), (1, -9, 3), (1, -8, 3), (0, -8, 3)])
    answer = teskarlt.done("roofs", path, "--json")
    [roof] = answer.json["roofs"]
    assert (roof["roof"], roof["compass"], roof["entities"], len(roof["faces"])) == ("R1", "W", {"3DFACE": 28}, 28)
    assert math.isclose(roof["fallDirection"], 180) and math.isclose(roof["pitch"], math.degrees(math.atan(0.75)))
    assert math.isclose(roof["area"], 14) and math.isclose(roof["eavesHeight"], 2) and math.isclose(roof["ridgeHeight"], 3.8)
    assert [len(ring) for ring in roof["outline"]] == [4, 4]
    assert [flat["roof"] for flat in answer.json["flat"]] == ["R2"]
    assert answer.stderr == "teskarlt: note: 1 flat surface is left out; --all lists it\n"


def test_roof_keeps_its_name_when_windows_come_and_takes_them_by_it(teskarlt, tmp_path):
    path = tmp_path / "roofs.dxf"
    above = [(x, y, z + 1) for x, y, z in ROOF]
    lower, _ = drawing_in_metres(path, ROOF, above)
    before = teskarlt.done("roofs", path).stdout
    answer = teskarlt.done("insert", path, "--at", "4,1", "--on", "r1", "--json").json
    assert (answer["roof"], answer["face"]) == ("R1", lower) and math.isclose(answer["place"][2], 3.75)
    assert teskarlt.done("roofs", path).stdout == before
    jobs = tmp_path / "jobs.jsonl"
    jobs.write_text('{"at": [2, 1], "on": "R2"}\n')
    [window] = teskarlt.done("insert", path, "--jobs", jobs, "--json").json["windows"]
    assert window["roof"] == "R2" and math.isclose(window["place"][2], 4 + 0.75)


def test_list_of_all_shows_the_roof_of_each_face(teskarlt, tmp_path):
    path = tmp_path / "roofs.dxf"
    left, right = ([(x + dx, y, z) for x, y, z in ROOF] for dx in (0, 8))
    one, two, wall = drawing_in_metres(path, left, right, [(0, 0, 7), (8, 0, 7), (8, 0.5, 20), (0, 0.5, 20)])
    faces = teskarlt.done("roofs", path, "--all", "--json").json["faces"]
    assert [(face["face"], face["roof"]) for face in faces] == [(one, "R1"), (two, "R1"), (wall, None)]
    lines = teskarlt.done("roofs", path, "--all").stdout.splitlines()
    assert lines[1].split()[:2] == ["R1", "0"] and lines[-1].endswith("none: steeper than 85 degrees")
