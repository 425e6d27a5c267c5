# test_roof_kinds.py - a roof drawn with each kind of entities takes a window that lies in its plane.
import math

import ezdxf
import pytest
import windows
from ezdxf.math import OCS, Vec3

# Metres: 8 x 5 in the plan, rising by 3 towards +y: z = 2 + 0.6 y.
LOW, RISE, WIDTH, DEPTH = 2, 0.6, 8, 5
CORNERS = [Vec3(x, y, LOW + RISE * y) for x, y in ((0, 0), (WIDTH, 0), (WIDTH, DEPTH), (0, DEPTH))]
LENGTH = math.hypot(1, RISE)
NORMAL = (0, -RISE / LENGTH, 1 / LENGTH)
AT = "4,1"
SIZE = ("--set", "width=0.78", "--set", "length=1.18")


def height(x, y):
    return LOW + RISE * y


def off_plane(point, plane=height, normal=NORMAL):
    return abs(point[2] - plane(point[0], point[1])) * normal[2]


def new_drawing(version="R2010"):
    drawing = ezdxf.new(version)
    drawing.header["$INSUNITS"] = 6
    return drawing


def insert(teskarlt, path, *options, at=AT):
    """Inserts a window and gives the program's answer, with the outline that was drawn."""
    answer = teskarlt.done("insert", path, "--units", "m", "--at", at, *SIZE, "--strict", "--json", *options).json
    return answer, windows.outline(ezdxf.readfile(path))


def expect_in_plane(outline, plane=height, normal=NORMAL):
    assert len(outline) == 4 and max(off_plane(point, plane, normal) for point in outline) < 1e-9


def in_object_plane(points):
    """Corners in the coordinates of the plane of the roof, and their elevation in it."""
    ocs = OCS(NORMAL)
    local = [ocs.from_wcs(point) for point in points]
    return [(point.x, point.y) for point in local], local[0].z


def add_mesh(space):
    with space.add_mesh().edit_data() as mesh:
        mesh.vertices, mesh.faces = [tuple(corner) for corner in CORNERS], [(0, 1, 2, 3)]


def add_polyface(space):
    space.add_polyface().append_faces([CORNERS])


def add_polygon_mesh(space):
    mesh = space.add_polymesh((2, 2))
    for (row, column), corner in zip(((0, 0), (0, 1), (1, 1), (1, 0)), CORNERS):
        mesh.set_mesh_vertex((row, column), corner)


def add_lwpolyline(space, closed=True):
    points, elevation = in_object_plane(CORNERS)
    space.add_lwpolyline(points if closed else [*points, points[0]], close=closed,
                         dxfattribs={"elevation": elevation, "extrusion": NORMAL})


def add_polyline_2d(space):
    points, elevation = in_object_plane(CORNERS)
    space.add_polyline2d(points, close=True, dxfattribs={"elevation": (0, 0, elevation), "extrusion": NORMAL})


def add_solid(space, kind="add_solid"):
    points, elevation = in_object_plane(CORNERS)
    getattr(space, kind)([(*points[n], elevation) for n in (0, 1, 3, 2)], dxfattribs={"extrusion": NORMAL})


def add_hatch(space, edges=False):
    points, elevation = in_object_plane(CORNERS)
    hatch = space.add_hatch(dxfattribs={"elevation": (0, 0, elevation), "extrusion": NORMAL})
    if not edges:
        hatch.paths.add_polyline_path(points, is_closed=True)
        return
    path = hatch.paths.add_edge_path()
    for start, end in zip(points, points[1:] + points[:1]):
        path.add_line(start, end)


KINDS = {"3DFACE": lambda space: space.add_3dface(CORNERS),
         "MESH": add_mesh,
         "POLYFACE MESH": add_polyface,
         "POLYGON MESH": add_polygon_mesh,
         "3D POLYLINE": lambda space: space.add_polyline3d(CORNERS, close=True),
         "3D POLYLINE, first point repeated": lambda space: space.add_polyline3d([*CORNERS, CORNERS[0]]),
         "2D POLYLINE": add_polyline_2d,
         "LWPOLYLINE": add_lwpolyline,
         "LWPOLYLINE, first point repeated": lambda space: add_lwpolyline(space, closed=False),
         "SOLID": add_solid,
         "TRACE": lambda space: add_solid(space, "add_trace"),
         "HATCH": add_hatch,
         "HATCH, edges": lambda space: add_hatch(space, edges=True)}


@pytest.mark.many
@pytest.mark.parametrize("kind", KINDS)
def test_roof_of_each_kind_takes_a_window(teskarlt, tmp_path, kind):
    path = tmp_path / "roof.dxf"
    drawing = new_drawing()
    KINDS[kind](drawing.modelspace())
    drawing.saveas(path)
    expect_in_plane(insert(teskarlt, path)[1])
    roof, = teskarlt.done("roofs", path, "--json").json["roofs"]
    assert math.isclose(roof["area"], WIDTH * DEPTH * LENGTH, rel_tol=1e-9)
    assert math.isclose(roof["pitch"], math.degrees(math.atan(RISE)), rel_tol=1e-9)


# --- Drawings as people write them: entities alone, without handles ---

def tags(text):
    """"CODE VALUE|CODE VALUE" as the lines of a file."""
    return "".join("\n".join(tag.split(" ", 1)) + "\n" for tag in text.split("|"))


def written(path, entities, blocks=""):
    """A drawing of entities, and blocks where there are any."""
    sections = [("BLOCKS", blocks)] * bool(blocks) + [("ENTITIES", entities)]
    path.write_text("".join(f"0\nSECTION\n2\n{name}\n{tags(content)}0\nENDSEC\n" for name, content in sections) + "0\nEOF\n")
    return path


def plan(points):
    return "|".join(f"10 {x}|20 {y}" for x, y in points)


# A plane that falls towards +x by 0.75: the direction (0.6, 0, 0.8). By the arbitrary axis rule its x axis is +y and its
# y axis (-0.8, 0, 0.6), so (a, b) at the elevation 10 is (6 - 0.8 b, a, 8 + 0.6 b).
TILT = "210 0.6|220 0|230 0.8"
SQUARE = [(0, 0), (6, 0), (6, 5), (0, 5)]  # in the drawing x 2 to 6, y 0 to 6, z 8 to 11


def falling(x, _y):
    return 8 + 0.75 * (6 - x)


def corner_tags(points, first=10):
    """The corners of a face, with their heights."""
    return "|".join(f"{first + n} {x}|{first + 10 + n} {y}|{first + 20 + n} {z}" for n, (x, y, z) in enumerate(points))


FALLING = [(6, 0, 8), (6, 6, 8), (2, 6, 11), (2, 0, 11)]


def vertices(flags, points=FALLING):
    return "|".join(f"0 VERTEX|8 R|10 {x}|20 {y}|30 {z}|70 {flags}" for x, y, z in points)


def light_polyline(elevation, tilt="210 0|220 0|230 1"):
    return f"0 LWPOLYLINE|100 AcDbEntity|8 R|100 AcDbPolyline|90 4|70 1|38 {elevation}|{plan(SQUARE)}|{tilt}"


WRITTEN = {
    "3DFACE": f"0 3DFACE|8 R|{corner_tags(FALLING)}",
    "MESH": "0 MESH|100 AcDbEntity|8 R|100 AcDbSubDMesh|71 2|72 0|91 0|92 4|" + "|".join(f"10 {x}|20 {y}|30 {z}" for x, y, z in FALLING)
            + "|93 5|90 4|90 0|90 1|90 2|90 3|94 0|95 0|90 0",
    "POLYFACE MESH": f"0 POLYLINE|8 R|66 1|70 64|71 4|72 1|{vertices(192)}|0 VERTEX|8 R|10 0|20 0|30 0|70 128|71 1|72 2|73 3|74 4"
                     "|0 SEQEND|8 R",
    "POLYGON MESH": f"0 POLYLINE|8 R|66 1|70 16|71 2|72 2|{vertices(64, [FALLING[n] for n in (0, 1, 3, 2)])}|0 SEQEND|8 R",
    "3D POLYLINE": f"0 POLYLINE|8 R|66 1|70 9|{vertices(32)}|0 SEQEND|8 R",
    "2D POLYLINE": f"0 POLYLINE|8 R|66 1|70 1|10 0|20 0|30 10|{TILT}|"
                   + "|".join(f"0 VERTEX|8 R|10 {a}|20 {b}|30 10" for a, b in SQUARE) + "|0 SEQEND|8 R",
    "LWPOLYLINE": light_polyline(10, TILT),
    "SOLID": f"0 SOLID|8 R|{corner_tags([(*SQUARE[n], 10) for n in (0, 1, 3, 2)])}|{TILT}",
    "TRACE": f"0 TRACE|8 R|{corner_tags([(*SQUARE[n], 10) for n in (0, 1, 3, 2)])}|{TILT}",
    "HATCH": f"0 HATCH|100 AcDbEntity|8 R|100 AcDbHatch|10 0|20 0|30 10|{TILT}|2 SOLID|70 1|71 0|91 1|92 2|72 0|73 1|93 4|{plan(SQUARE)}|97 0|75 0|76 1|98 0",
}


@pytest.mark.many
@pytest.mark.parametrize("kind", WRITTEN)
def test_roof_written_by_hand_takes_a_window(teskarlt, tmp_path, kind):
    path = written(tmp_path / "roof.dxf", WRITTEN[kind])
    answer, outline = insert(teskarlt, path, at="4.5,3")
    assert answer["face"] == "N1"
    expect_in_plane(outline, falling, (0.6, 0, 0.8))


# --- Blocks ---

def block_of(drawing, name="HOUSE", base=(0, 0, 0), unit=1.0):
    """A block with the roof, drawn in parts of a metre: metres / unit."""
    block = drawing.blocks.new(name, base_point=Vec3(base) / unit)
    block.add_3dface([(Vec3(base) + corner) / unit for corner in CORNERS], dxfattribs={"layer": "0"})
    return block


FAR = Vec3(2683000, 1247000, 400)  # in a national grid


def test_block_in_millimetres_stands_in_a_national_grid(teskarlt, tmp_path):
    path = tmp_path / "block.dxf"
    drawing = new_drawing()
    block_of(drawing, base=FAR, unit=0.001)
    scales = {"xscale": 0.001, "yscale": 0.001, "zscale": 0.001}
    insertion = drawing.modelspace().add_blockref("HOUSE", FAR, dxfattribs=scales)
    drawing.saveas(path)
    answer, outline = insert(teskarlt, path, at=f"{FAR.x + 4},{FAR.y + 1}")
    assert answer["face"].split(".")[0] == insertion.dxf.handle
    assert max(off_plane(Vec3(point) - FAR) for point in outline) < 1e-6


def test_nested_block_turned_scaled_and_mirrored_in_rows_and_columns(teskarlt, tmp_path):
    path = tmp_path / "blocks.dxf"
    drawing = new_drawing()
    block_of(drawing)
    row = drawing.blocks.new("ROW")
    row.add_blockref("HOUSE", (0, 0), dxfattribs={"xscale": -1, "column_count": 2, "row_count": 3, "column_spacing": 20,
                                                  "row_spacing": 30})
    drawing.modelspace().add_blockref("ROW", (100, 200, 7), dxfattribs={"rotation": 90, "xscale": 2, "yscale": 2, "zscale": 2})
    drawing.saveas(path)
    # The copy in column 2, row 3: (x, y) of the house comes to (20 - x, 60 + y), twice as large, turned to
    # (100 - 2 (60 + y), 200 + 2 (20 - x)); its height is 7 + 2 (2 + 0.6 y).
    answer, outline = insert(teskarlt, path, at=f"{100 - 2 * 61},{200 + 2 * 16}")
    assert answer["face"].split(".")[1].endswith("-6")
    expect_in_plane(outline, lambda x, y: 7 + 2 * (2 + 0.6 * ((100 - x) / 2 - 60)))


def test_tilted_block_takes_a_window(teskarlt, tmp_path):
    path = written(tmp_path / "tilted.dxf", f"0 INSERT|8 0|2 B|10 0|20 0|30 10|{TILT}",
                   f"0 BLOCK|8 0|2 B|70 0|10 0|20 0|30 0|3 B|{light_polyline(0)}|0 ENDBLK|8 0")
    answer, outline = insert(teskarlt, path, at="4.5,3")
    assert answer["face"] == "N1.N1"
    expect_in_plane(outline, falling, (0.6, 0, 0.8))


# --- Holes ---

HOLE = [Vec3(x, y, height(x, y)) for x, y in ((3, 1), (5, 1), (5, 4), (3, 4))]


def test_window_does_not_stand_over_a_hole(teskarlt, tmp_path):
    for kind in ("polylines", "hatch"):
        path = tmp_path / f"{kind}.dxf"
        drawing = new_drawing()
        space = drawing.modelspace()
        if kind == "polylines":
            space.add_polyline3d(CORNERS, close=True)
            space.add_polyline3d(HOLE, close=True)
        else:
            hatch = space.add_hatch(dxfattribs={"elevation": (0, 0, in_object_plane(CORNERS)[1]), "extrusion": NORMAL})
            for ring in (CORNERS, HOLE):
                hatch.paths.add_polyline_path(in_object_plane(ring)[0], is_closed=True)
        drawing.saveas(path)
        assert "no roof face lies over" in teskarlt("insert", path, "--at", "4,2", *SIZE).stderr
        assert teskarlt("insert", path, "--at", "2.7,2", *SIZE).status == 1  # half of it over the hole
        expect_in_plane(insert(teskarlt, path, at="1.5,2")[1])


def test_ring_that_is_filled_is_no_hole(teskarlt, tmp_path):
    path = tmp_path / "filled.dxf"
    drawing = new_drawing()
    drawing.modelspace().add_polyline3d(CORNERS, close=True)
    drawing.modelspace().add_polyline3d(HOLE, close=True)
    drawing.modelspace().add_3dface(HOLE)
    drawing.saveas(path)
    expect_in_plane(insert(teskarlt, path, at="4,2")[1])


# --- Bad drawings ---

def test_what_cannot_be_read_is_told_with_a_remedy(teskarlt, tmp_path):
    entities = ["0 3DSOLID|8 R", "0 3DSOLID|8 R", "0 REGION|8 R", "0 ACAD_PROXY_ENTITY|8 R", "0 INSERT|8 R|2 OTHER|10 0|20 0",
                "0 INSERT|8 R|2 LOOP|10 0|20 0", "0 INSERT|8 R|2 GONE|10 0|20 0", "0 INSERT|8 R|2 LOOP|10 0|20 0|41 0"]
    path = written(tmp_path / "unread.dxf", "|".join(entities),
                   "0 BLOCK|8 0|2 OTHER|70 4|10 0|20 0|1 other.dxf|0 ENDBLK|8 0|"
                   "0 BLOCK|8 0|2 LOOP|70 0|10 0|20 0|0 INSERT|8 0|2 LOOP|10 0|20 0|0 ENDBLK|8 0")
    told = teskarlt("insert", path, "--at", AT, "--units", "m").stderr
    for words in ("2 3DSOLID", "1 REGION", "1 ACAD_PROXY_ENTITY", "explode them into faces, or give the plane by --roof",
                  "1 INSERT of an attached drawing", "bind the other drawing", "1 INSERT of a missing block",
                  "1 INSERT of a block that contains itself", "1 INSERT with a scale of 0"):
        assert words in told
    looked = teskarlt.done("roofs", path, "--json")
    assert looked.json["unread"]["3DSOLID"] == 2 and "2 3DSOLID" in looked.stderr


def test_faces_of_a_mesh_count_as_one_entity(teskarlt, tmp_path):
    path = tmp_path / "mesh.dxf"
    drawing = new_drawing()
    with drawing.modelspace().add_mesh().edit_data() as mesh:
        mesh.vertices = [tuple(corner) for corner in (*CORNERS, CORNERS[1] + Vec3(4, 0, 0), CORNERS[2] + Vec3(4, 0, 0))]
        mesh.faces = [(0, 1, 2, 3), (1, 4, 5, 2)]
    drawing.saveas(path)
    roof, = teskarlt.done("roofs", path, "--json").json["roofs"]
    assert roof["entities"] == {"MESH": 1} and [name.split(".")[1] for name in sorted(roof["faces"])] == ["1", "2"]


@pytest.mark.parametrize("corners", [[(0, 0, 2), (8, 0, 2), (0, 5, 5), (8, 5, 5)], [(0, 0, 2), (8, 0, 2), (4, 0, 2), (2, 0, 2)],
                                     [(0, 0, 2), (8, 0, 2), (8, 5, 5), (0, 5, 9)]],
                         ids=["crossing itself", "without area", "warped"])
def test_bad_faces_take_no_window(teskarlt, tmp_path, corners):
    path = tmp_path / "bad.dxf"
    drawing = new_drawing()
    drawing.modelspace().add_polyline3d(corners, close=True)
    drawing.saveas(path)
    before = path.read_bytes()
    answer = teskarlt("insert", path, "--at", "4,2.5", *SIZE)
    assert answer.status == 1 and answer.stderr.count("\n") == 1 and path.read_bytes() == before


def test_wall_is_told_by_its_name_and_listed(teskarlt, tmp_path):
    path = tmp_path / "walls.dxf"
    drawing = new_drawing()
    drawing.modelspace().add_3dface(CORNERS)
    wall = drawing.modelspace().add_3dface([(0, 0, 0), (8, 0, 0), (8, 0, 2), (0, 0, 2)]).dxf.handle
    drawing.saveas(path)
    told = teskarlt("insert", path, "--on", wall, "--at", AT, *SIZE)
    assert told.status == 1 and f"--on {wall}: that face of " in told.stderr
    assert "walls.dxf is a wall, vertical, and no roof" in told.stderr
    listed, = teskarlt.done("roofs", path, "--all", "--json").json["steep"]
    assert (listed["face"], listed["pitch"], listed["fallDirection"], listed["area"]) == (wall, 90, None, 16)
    assert "none: vertical" in teskarlt.done("roofs", path, "--all").stdout


def test_outline_that_cancels_itself_is_told(teskarlt, tmp_path):
    path = tmp_path / "crossed.dxf"
    drawing = new_drawing()
    drawing.modelspace().add_polyline3d([CORNERS[n] for n in (0, 1, 3, 2)], close=True)
    drawing.saveas(path)
    for answer in (teskarlt("insert", path, "--at", AT, *SIZE), teskarlt.done("roofs", path)):
        assert "1 3D POLYLINE that crosses or retraces itself is not read: draw its corners in their order" in answer.stderr


def test_every_copy_in_a_long_row_takes_a_window(teskarlt, tmp_path):
    path = tmp_path / "row.dxf"
    drawing = new_drawing()
    block_of(drawing)
    drawing.modelspace().add_blockref("HOUSE", (0, 0), dxfattribs={"column_count": 1500, "column_spacing": 10})
    drawing.saveas(path)
    answer, outline = insert(teskarlt, path, at="14994,1")
    assert answer["face"].split(".")[0].endswith("-1500")
    expect_in_plane(outline)
