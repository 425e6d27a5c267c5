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
    warped = space.add_3dface([(0, 0, 0), (4000, 0, 0), (4000, 3000, 2040), (0, 3000, 2000)], dxfattribs={"layer": "0"})
    space.add_3dface([(0, 0, 0), (4000, 0, 0), (4000, 3000, 2000), (0, 3000, 2000)])
    drawing.saveas(path)
    answer = teskarlt.done("roofs", path, "--json")
    assert len(answer.json["roofs"]) == 1
    [told] = answer.json["warped"]
    assert (told["face"], told["layer"]) == (warped.dxf.handle, "0") and 0.01 < told["offPlane"] < 0.02
    assert answer.stderr == (f"teskarlt: note: face {warped.dxf.handle} of layer 0 is left out: it is not planar; "
                             f"a corner lies {told['offPlane']:.3f} m off\n")
