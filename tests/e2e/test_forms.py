# test_forms.py - text and binary drawings of all versions are edited without touching what they hold besides.
import re

import ezdxf
import pytest
import readers
from roofs import Roof

VERSIONS = ("R12", "R2000", "R2018")
FORMS = ("lf", "crlf", "binary")
SENTINEL = b"AutoCAD Binary DXF\r\n\x1a\0"
AT = ("--at", "0,0")


@pytest.fixture(params=[(version, form) for version in VERSIONS for form in FORMS],
                ids=lambda param: "-".join(param))
def drawing(request, tmp_path):
    """A roof beside other entities in millimetres, written by ezdxf."""
    version, form = request.param
    path = tmp_path / "roof.dxf"
    document = ezdxf.new(version)
    document.header["$INSUNITS"] = 4
    space = document.modelspace()
    document.layers.add("ROOF", color=1)
    space.add_text("\u0159ez 0.1" if version == "R2018" else "cut 0.1")
    space.add_3dface(Roof().corners, dxfattribs={"layer": "ROOF"})
    space.add_circle((0.1, 1 / 3), 1e-7).set_xdata("ACAD", [(1000, "a"), (1071, -70000), (1004, b"\x00\x0a\xff")])
    if form == "binary":
        document.saveas(path, fmt="bin")
        assert path.read_bytes().startswith(SENTINEL)
    else:
        document.saveas(path)
        text = path.read_bytes().replace(b"\r\n", b"\n")
        path.write_bytes(text.replace(b"\n", b"\r\n") if form == "crlf" else text)
    return path


def test_window_that_is_erased_again_leaves_every_other_byte(teskarlt, drawing):
    before = drawing.read_bytes()
    teskarlt.done("insert", drawing, *AT, "--units", "mm")
    assert readers.without_records(drawing.read_bytes()) != readers.without_records(before)
    teskarlt.done("erase", drawing, "1")
    assert readers.without_records(drawing.read_bytes()) == readers.without_records(before)
    assert readers.TABLES.search(before) and drawing.read_bytes().startswith(before[:22])


def test_inserted_window_is_read_by_another_program(teskarlt, drawing):
    teskarlt.done("insert", drawing, *AT, "--units", "mm", "--set", "text1=Maker")
    space = readers.audited(drawing).modelspace()
    faces = [entity for entity in space if entity.dxftype() == "3DFACE" and entity.has_xdata("TK_LT_ELEM")]
    assert len(faces) > 5
    assert "Maker" in [tag.value for tag in faces[0].get_xdata("TK_LT_DESC")]
    assert space.query("CIRCLE").first.get_xdata("ACAD")[-2] == (1071, -70000)


def test_window_is_listed_changed_and_drawn(teskarlt, drawing, tmp_path):
    teskarlt.done("insert", drawing, *AT, "--units", "mm")
    teskarlt.done("edit", drawing, "1", "--units", "mm", "--set", "width=1.2")
    [window] = teskarlt.done("list", drawing, "--units", "mm", "--json").json["windows"]
    assert window["fields"]["width"] == 1.2
    assert len(teskarlt.done("roofs", drawing, "--units", "mm", "--json").json["roofs"]) == 1
    picture = tmp_path / "plan.svg"
    teskarlt.done("preview", drawing, "--units", "mm", "-o", picture)
    assert "<svg" in picture.read_text()


def test_binary_drawing_gets_what_its_text_gets(teskarlt, tmp_path):
    paths = {form: tmp_path / f"{form}.dxf" for form in ("asc", "bin")}
    document = ezdxf.new("R2000")
    document.header["$INSUNITS"] = 4
    document.modelspace().add_3dface(Roof().corners)
    for form, path in paths.items():
        document.saveas(path, fmt=form)
        teskarlt.done("insert", path, *AT)
    texts = [[(entity.dxftype(), entity.dxf.handle, entity.dxfattribs(), entity.xdata and entity.xdata.data)
              for entity in readers.audited(path).modelspace()] for path in paths.values()]
    assert texts[0] == texts[1]


def test_binary_drawing_that_is_cut_short_is_refused_with_the_place(teskarlt, tmp_path):
    path = tmp_path / "cut.dxf"
    ezdxf.new("R2000").saveas(path, fmt="bin")
    content = path.read_bytes()
    for size in (23, len(content) // 2, len(content) - 1):
        path.write_bytes(content[:size])
        answer = teskarlt("list", path)
        assert answer.status == 1 and re.search(r"byte \d+: the file is cut short", answer.stderr), answer
