# test_drawings_of_all_kinds.py - a window comes into drawings of every kind and goes again, and nothing else changes.
import io
import itertools

import ezdxf
import ezdxf.recover
import pytest
import readers

VERSIONS = ("R12", "R2000", "R2004", "R2007", "R2010", "R2013", "R2018")
ROOF = [(0, 0, 3), (8, 0, 3), (8, 4, 6), (0, 4, 6)]  # metres
AT = ("--at", "4,1")
METRES = 6  # $INSUNITS


def new_document(version, units=METRES):
    document = ezdxf.new(version)
    document.header["$INSUNITS"] = units
    document.layers.add("ROOF", color=1)
    space = document.modelspace()
    space.add_3dface(ROOF, dxfattribs={"layer": "ROOF"})
    space.add_text("note 0.1").set_xdata("ACAD", [(1000, "kept"), (1071, -70000)])
    return document


def written(document, binary=False):
    stream = io.BytesIO() if binary else io.StringIO()
    document.write(stream, fmt="bin" if binary else "asc")
    return stream.getvalue() if binary else document.encode(stream.getvalue())


def of_code_page(version, page, layer):
    document = new_document(version)
    document.encoding = page
    document.layers.add(layer)
    document.modelspace().add_line((0, 0, 0), (1, 0, 0), dxfattribs={"layer": layer})
    return written(document)


def with_objects(version):
    document = new_document(version)
    document.rootdict.add_xrecord("FOREIGN").reset([(1, "kept"), (70, 7)])
    document.groups.new("FOREIGN").extend(document.modelspace())
    document.layouts.new("Sheet")
    return written(document)


def with_block(version):
    document = new_document(version)
    document.blocks.new("TREE").add_circle((0, 0), 1)
    document.modelspace().add_blockref("TREE", (20, 0))
    return written(document)


def with_dictionary_data(version):
    """Extended data at the end of the root dictionary and of the groups' one, as older programs write it."""
    data = b"1001\nACAD\n1000\nTREAT_AS_HARD\n1070\n0\n"
    objects, rest = written(new_document(version)).replace(b"\r\n", b"\n").split(b"  2\nOBJECTS\n")
    first, second, others = rest.split(b"  0\nDICTIONARY\n", 2)[0], *rest.split(b"  0\nDICTIONARY\n", 2)[1:]
    return objects + b"  2\nOBJECTS\n" + first + b"  0\nDICTIONARY\n" + second + data + b"  0\nDICTIONARY\n" + others


def replaced(version, old, new):
    content = written(new_document(version)).replace(b"\r\n", b"\n")
    assert old in content
    return content.replace(old, new, 1)


def with_handle_twice(version):
    document = new_document(version)
    face, text = document.modelspace()
    return replaced(version, f"  5\n{text.dxf.handle}\n".encode(), f"  5\n{face.dxf.handle}\n".encode())


# By name: the bytes of a drawing.
DRAWINGS = {
    **{f"{version}-{'binary' if binary else 'text'}-{'metres' if units else 'unitless'}":
       lambda version=version, binary=binary, units=units: written(new_document(version, units), binary)
       for version, binary, units in itertools.product(VERSIONS, (False, True), (METRES, 0))},
    **{f"{version}-{page}": lambda version=version, page=page, layer=layer: of_code_page(version, page, layer)
       for version in ("R12", "R2000", "R2010")
       for page, layer in (("cp1250", "\u0158EZ"), ("cp1251", "\u041a\u0420\u042b\u0428\u0410"), ("cp932", "\u5c4b\u6839"))},
    **{f"{version}-objects": lambda version=version: with_objects(version) for version in VERSIONS[1:]},
    **{f"{version}-block": lambda version=version: with_block(version) for version in ("R12", "R2018")},
    **{f"{version}-dictionary-data": lambda version=version: with_dictionary_data(version) for version in ("R2000", "R2018")},
    "damaged-layer-without-entry": lambda: replaced("R2000", b"  8\nROOF\n", b"  8\nMISSING\n"),
    "damaged-handle-twice": lambda: with_handle_twice("R2000"),
    "comment-in-the-roof": lambda: replaced("R2000", b"AcDbFace\n", b"AcDbFace\n999\na comment\n"),
    "damaged-dangling-entry": lambda: replaced("R2000", b"  3\nACAD_GROUP\n", b"  3\nFOREIGN\n350\nFFFF\n  3\nACAD_GROUP\n"),
    "crlf": lambda: replaced("R2000", b"", b"").replace(b"\n", b"\r\n"),
    "bytes-behind-the-end": lambda: written(new_document("R12")) + b"\0\0 trash\n",
    "entities-only": lambda: b"0\nSECTION\n2\nENTITIES\n0\n3DFACE\n8\n0\n" + b"".join(
        b"%d\n%g\n" % (10 * axis + corner, point[axis - 1]) for corner, point in enumerate(ROOF) for axis in (1, 2, 3))
        + b"0\nENDSEC\n0\nEOF\n",
}


def errors_of(teskarlt, path):
    return teskarlt("check", path, "--json").json["errors"]


def audit_of(path):
    """How much ezdxf finds wrong; None where it cannot read the drawing at all."""
    try:
        _, auditor = ezdxf.recover.readfile(path)
    except (ezdxf.DXFError, OSError, ValueError, KeyError):
        return None
    return len(auditor.errors) + len(auditor.fixes)


def is_as_before(before, after):
    """Nothing but table entries and the handle seed came; a drawing without tables has got its first ones in front."""
    return readers.without_records(after) == readers.without_records(before) or after.endswith(before)


def come_and_go(teskarlt, path, at, units):
    """Inserts, lists, changes and erases a window; what other readers find wrong never grows."""
    before, errors, audit = path.read_bytes(), errors_of(teskarlt, path), audit_of(path)

    def look():
        assert errors_of(teskarlt, path) <= errors
        found = audit_of(path)
        assert audit is None or found is not None and found <= audit
    assert teskarlt("insert", path, *at, *units).status == 0
    look()
    [window] = teskarlt("list", path, "--json", *units).json["windows"]
    number = str(window["number"])
    assert teskarlt("edit", path, number, "--set", "width=0.78", *units).status == 0
    look()
    assert teskarlt("erase", path, number).status == 0
    look()
    assert is_as_before(before, path.read_bytes())


def test_there_are_enough_drawings():
    assert len(DRAWINGS) >= 40


@pytest.mark.many
@pytest.mark.parametrize("name", DRAWINGS)
def test_window_comes_into_a_drawing_and_goes(teskarlt, tmp_path, name):
    path = tmp_path / "drawing.dxf"
    path.write_bytes(DRAWINGS[name]())
    come_and_go(teskarlt, path, AT, ("--units", "m"))
