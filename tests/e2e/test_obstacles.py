# test_obstacles.py - what stands on a roof is in a window's way: chimneys, dormers, panels, other programs' windows.
import json
import math

import ezdxf
import pytest

# A roof of 10 m by 8 m in the plan that rises 3 in 4 from the x axis: 10 m up the slope. Without other wishes a window is
# 0.94 m wide and 1.4 m long, in the plan 1.12 m, and its point is the middle of its lower edge.
RISE, SLOPE = 0.75, 1.25
WIDTH, DEPTH = 940, 1400 / SLOPE


def height(y):
    return RISE * y


def drawing_with_roof():
    drawing = ezdxf.new("R2000", units=4)
    for layer in ("ROOF", "CHIMNEY", "DORMER", "WINDOWS", "WALLS"):
        drawing.layers.add(layer)
    drawing.modelspace().add_3dface([(0, 0, 0), (10000, 0, 0), (10000, 8000, 6000), (0, 8000, 6000)], {"layer": "ROOF"})
    return drawing


def walls(low, high, west, east, south, north):
    corners = [(west, south), (east, south), (east, north), (west, north)]
    for (x, y), (u, v) in zip(corners, corners[1:] + corners[:1]):
        yield [(x, y, low), (u, v, low), (u, v, high), (x, y, high)]


def chimney_of_faces(drawing):
    for wall in walls(0, 6000, 4600, 5000, 3000, 3400):
        drawing.modelspace().add_3dface(wall, {"layer": "CHIMNEY"})


def chimney_of_mesh(drawing):
    mesh = drawing.modelspace().add_mesh({"layer": "CHIMNEY"})
    with mesh.edit_data() as data:
        for wall in walls(0, 6000, 4600, 5000, 3000, 3400):
            data.add_face(wall)


def chimney_in_block(drawing):
    block = drawing.blocks.new("CHIMNEY")
    for wall in walls(-3, 3, -0.2, 0.2, -0.2, 0.2):
        block.add_3dface(wall, {"layer": "0"})
    scale = {"xscale": 1000, "yscale": 1000, "zscale": 1000}
    drawing.modelspace().add_blockref("CHIMNEY", (4800, 3200, 3000), {"layer": "CHIMNEY", **scale})


def chimney_of_polyface(drawing):
    from ezdxf.render import MeshBuilder
    builder = MeshBuilder()
    for wall in walls(0, 6000, 4600, 5000, 3000, 3400):
        builder.add_face(wall)
    builder.render_polyface(drawing.modelspace(), {"layer": "CHIMNEY"})


@pytest.mark.parametrize("chimney", [chimney_of_faces, chimney_of_mesh, chimney_in_block, chimney_of_polyface])
def test_chimney_of_every_kind_is_in_the_way(teskarlt, tmp_path, chimney):
    path = tmp_path / "roof.dxf"
    drawing = drawing_with_roof()
    chimney(drawing)
    drawing.saveas(path)
    # The frame reaches from x = 4230 to 5170 around the chimney; 4600 is left when it ends there, 0.57 m to the left.
    before = path.read_bytes()
    answer = teskarlt("insert", path, "--at", "4700,2800", "--strict")
    assert answer.status == 1 and path.read_bytes() == before
    assert "of layer CHIMNEY by 0.570 m; the nearest free place is 0.570 m to the left" in answer.stderr
    assert teskarlt.done("insert", path, "--at", f"{4700 - 570},2800", "--strict").stderr == ""
    assert teskarlt.done("check", path, "--json").json["warnings"] == 0


def dormer(drawing):
    """4 m wide from y = 2 m on, with a level roof 3.5 m high that ends in the slope at y = 4.667 m."""
    space, top = drawing.modelspace(), 3500
    end = top / RISE
    space.add_3dface([(3000, 2000, top), (7000, 2000, top), (7000, end, top), (3000, end, top)], {"layer": "DORMER"})
    space.add_3dface([(3000, 2000, 1500), (7000, 2000, 1500), (7000, 2000, top), (3000, 2000, top)], {"layer": "DORMER"})
    for x in (3000, 7000):
        space.add_3dface([(x, 2000, 1500), (x, end, top), (x, 2000, top), (x, 2000, top)], {"layer": "DORMER"})


def test_dormer_covers_the_roof_under_it_too(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    drawing = drawing_with_roof()
    dormer(drawing)
    drawing.saveas(path)
    answer = teskarlt.done("insert", path, "--on", "R1", "--at", "5000,2500")
    assert "of layer DORMER by" in answer.stderr
    # Above it: its roof ends at y = 4667.
    assert teskarlt.done("insert", path, "--at", "5000,4700").stderr == ""
    # Below it, the frame's upper edge comes to its front.
    assert teskarlt.done("insert", path, "--at", f"5000,{2000 - DEPTH!r}").stderr == ""
    answer = teskarlt.done("insert", path, "--at", f"2000,{2100 - DEPTH!r}", "--set", "width=3")
    assert "of layer DORMER by 0.125 m; the nearest free place is 0.125 m down the slope" in answer.stderr


def test_window_of_another_program_is_in_the_way(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    drawing = drawing_with_roof()
    block = drawing.blocks.new("SKYLIGHT")
    for wall in walls(-50, 80, -500, 500, 0, 1000):
        block.add_3dface(wall)
    insert = drawing.modelspace().add_blockref("SKYLIGHT", (0, 0, 0), {"layer": "WINDOWS"})
    insert.transform(ezdxf.math.Matrix44.x_rotate(math.atan(RISE)) @ ezdxf.math.Matrix44.translate(6000, 3000, height(3000)))
    drawing.saveas(path)
    assert "of layer WINDOWS by" in teskarlt.done("insert", path, "--at", "6400,3200", "--dry-run").stderr
    assert teskarlt.done("insert", path, "--at", f"{6500 + WIDTH / 2 + 1!r},3200").stderr == ""


def test_house_walls_under_its_roof_are_not_in_the_way(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    drawing = drawing_with_roof()
    for wall in walls(-3000, height(500), 500, 9500, 500, 7900):
        drawing.modelspace().add_3dface(wall, {"layer": "WALLS"})
    drawing.saveas(path)
    for x in (600, 5000, 9400):
        assert teskarlt.done("insert", path, "--at", f"{x},900").stderr == ""


def test_example_house_refuses_a_window_in_its_chimney(teskarlt, house):
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--at", "3300,5600", "--strict")
    assert answer.status == 1 and "of layer CHIMNEY by 0.770 m; the nearest free place is 0.770 m to the left" in answer.stderr
    assert house.read_bytes() == before


def test_clearance_is_asked_for_by_words_jobs_check_and_refit(teskarlt, tmp_path):
    path, jobs = tmp_path / "roof.dxf", tmp_path / "jobs.jsonl"
    drawing = drawing_with_roof()
    chimney_of_faces(drawing)
    drawing.saveas(path)
    place = 4600 - 100 - WIDTH / 2  # 0.1 m to the left of the chimney
    near = "it comes nearer than its clearance of 0.200 m to face"
    jobs.write_text(json.dumps({"at": [place, 2800], "clearance": 0.2}))
    assert near in teskarlt.done("insert", path, "--jobs", jobs, "--dry-run").stderr
    assert near in teskarlt("insert", path, "--at", f"{place},2800", "--clearance", "0.2", "--strict").stderr
    assert teskarlt.done("insert", path, "--at", f"{place},2800").stderr == ""
    assert teskarlt.done("check", path, "--json").json["warnings"] == 0
    findings = teskarlt.done("check", path, "--clearance", "0.2", "--json").json["findings"]
    assert [near in finding["message"] for finding in findings] == [True]
    assert near in teskarlt.done("edit", path, "1", "--set", "length=1.5", "--clearance", "0.2").stderr
    raised = ezdxf.readfile(path)
    roof = raised.modelspace().query("3DFACE[layer=='ROOF']").first
    roof.translate(0, 0, 100)
    raised.saveas(path)
    answer = teskarlt.done("refit", path, "--clearance", "8\"", "--lengths", "ft")
    assert "it comes nearer than its clearance of 8\" to faces 35, 37 and 38 of layer CHIMNEY, ~3 15/16\" away" in answer.stderr


def test_point_on_the_top_of_a_chimney_is_told_as_such(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    drawing = drawing_with_roof()
    chimney_of_faces(drawing)
    drawing.modelspace().add_3dface([(4600, 3000, 6000), (5000, 3000, 6000), (5000, 3400, 6000), (4600, 3400, 6000)],
                                    {"layer": "CHIMNEY"})
    drawing.saveas(path)
    answer = teskarlt("insert", path, "--at", "4800,3200")
    assert answer.status == 1 and answer.stderr == (
        "teskarlt: the point lies on R2, which is flat: face 39 of layer CHIMNEY; --on R1 takes the roof under it\n")
    assert "of layer CHIMNEY by" in teskarlt("insert", path, "--at", "4800,3200", "--on", "R1", "--strict").stderr


def test_windows_of_a_row_keep_a_clearance_to_each_other(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    drawing_with_roof().saveas(path)
    row = ("insert", path, "--on", "R1", "--from-eaves", "1", "--centre", "--row", "3", "--gap", "0.1", "--clearance", "0.2")
    answer = teskarlt(*row, "--strict")
    assert answer.status == 1 and "it comes nearer than its clearance of 0.200 m to window 1, 0.100 m away" in answer.stderr
    assert teskarlt.done(*row[:-1], "0.1", "--strict").stderr == ""


def test_negative_clearance_is_refused(teskarlt, house):
    for command in (("insert", house, "--at", "2500,1200"), ("check", house), ("refit", house)):
        answer = teskarlt(*command, "--clearance=-0.1")
        assert answer.status == 1 and answer.stderr == "teskarlt: --clearance -0.1: a distance is not negative\n"
