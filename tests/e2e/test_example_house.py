# test_example_house.py - the example drawing is what its script makes, and other programs read it without complaint.
import math
import re
import subprocess

import ezdxf.math
import make_house
import readers
from conftest import ROOT

HOUSE = ROOT / "examples" / "house.dxf"
ROOF_PITCHES = {"ROOF_SOUTH": 35, "ROOF_NORTH": 35, "ROOF_DORMER": 10, "ROOF_ANNEX": 15}
WINDOW = 0.94 * 1.4  # square metres


def roof_faces():
    drawing = readers.audited(HOUSE)
    return [face for face in drawing.modelspace().query("3DFACE") if face.dxf.layer in ROOF_PITCHES]


def normal_and_area(face):
    a, b, c, d = face.wcs_vertices()
    cross = (c - a).cross(d - b)
    return cross.normalize(), cross.magnitude / 2 / 1e6


def test_script_gives_the_stored_bytes(tmp_path):
    made = tmp_path / "house.dxf"
    subprocess.run([ROOT / "examples" / "make_house.py", made], check=True)
    assert readers.first_difference(HOUSE.read_bytes(), made.read_bytes()) is None


def test_audit_finds_nothing():
    drawing = readers.audited(HOUSE)
    assert (drawing.dxfversion, drawing.encoding, drawing.units) == ("AC1015", "cp1250", 4)


def test_gdal_reads_every_entity():
    assert len(readers.gdal_entities(HOUSE)) == len(readers.audited(HOUSE).modelspace())


def test_handles_are_unique_and_below_the_seed():
    found = readers.handles(HOUSE)
    seed, *numbers = [int(handle, 16) for handle in found]  # the seed of the header comes first
    assert len(set(numbers)) == len(numbers) and max(numbers) < seed


def test_every_layer_in_use_is_declared():
    drawing = readers.audited(HOUSE)
    assert {entity.dxf.layer for entity in drawing.modelspace()} <= {layer.dxf.name for layer in drawing.layers}


def test_roof_faces_have_the_stated_pitch():
    for face in roof_faces():
        normal, _ = normal_and_area(face)
        assert math.isclose(math.degrees(math.acos(abs(normal.z))), ROOF_PITCHES[face.dxf.layer], abs_tol=1e-6)


def test_faces_of_the_main_roof_lie_in_one_plane():
    south = [face for face in roof_faces() if face.dxf.layer == "ROOF_SOUTH"]
    plane = ezdxf.math.Plane.from_3p(*south[0].wcs_vertices()[:3])
    assert len(south) == 4
    assert all(plane.distance_to(corner) < 1e-5 for face in south for corner in face.wcs_vertices())


def test_recommended_points_leave_room_for_a_window():
    """Each point of the script's table lies on a face of its roof with room on all sides."""
    rows = re.findall(r"^ +(ROOF_\w+) .*?((?: +\d+,\d+)+)$", make_house.__doc__, re.M)
    assert {layer for layer, _ in rows} == set(ROOF_PITCHES)
    for layer, points in rows:
        for x, y in (map(int, point.split(",")) for point in points.split()):
            boxes = [ezdxf.math.BoundingBox2d(face.wcs_vertices()) for face in roof_faces() if face.dxf.layer == layer]
            assert any(box.inside((x - 500, y - 500)) and box.inside((x + 500, y + 500)) for box in boxes), (layer, x, y)


def test_a_roof_face_is_several_windows_large():
    assert max(normal_and_area(face)[1] for face in roof_faces() if face.dxf.layer == "ROOF_DORMER") > 5 * WINDOW
