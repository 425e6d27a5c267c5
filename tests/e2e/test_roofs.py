# test_roofs.py - the drawings that the other tests start from are sound themselves.
import math

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
