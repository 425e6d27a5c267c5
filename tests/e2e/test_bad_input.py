# test_bad_input.py - bad input gets one clear sentence and a status, and loses nothing.
import json
import os
import shutil
import stat
import subprocess

import pytest
from roofs import Roof

INSERT = ("--at", "2500,1200")


def refused(answer, *parts, status=1):
    """One sentence on standard error that holds all the parts; nothing on standard output."""
    assert answer.status == status, answer
    assert answer.stdout == ""
    assert answer.stderr.count("\n") == 1, answer.stderr
    for part in parts:
        assert part in answer.stderr, answer.stderr


def test_drawing_that_does_not_exist(teskarlt, tmp_path):
    refused(teskarlt("insert", tmp_path / "none.dxf", *INSERT), "none.dxf")
    assert not (tmp_path / "none.dxf").exists()


def text_of(*groups):
    return "".join(f"{code:>3}\n{value}\n" for code, value in groups)


ENTITIES = ((0, "SECTION"), (2, "ENTITIES"))
DAMAGED = {
    "empty": (b"", "empty"),
    "blank": (b"\n\n", None),
    "no drawing": (b"Dear Sir,\nplease find a house enclosed.\n", None),
    "dwg": (b"AC1032\x00\x00\x00\x00\x00\x03" + bytes(200), "DXF"),
    "binary": (b"AutoCAD Binary DXF\r\n\x1a\x00" + bytes(50), "byte 70:"),
    "bad group code": (text_of(*ENTITIES).encode() + b"abc\n3DFACE\n", ":5:"),
    "cut in a pair": (text_of(*ENTITIES).encode() + b"  0\n", None),
    "cut short": (text_of(*ENTITIES, (0, "LINE"), (8, "0")).encode(), None),
    "no entities": (text_of((0, "SECTION"), (2, "HEADER"), (9, "$INSUNITS"), (70, 4), (0, "ENDSEC"), (0, "EOF")).encode(),
                    "ENTITIES"),
}


@pytest.mark.parametrize("damage", DAMAGED)
def test_damaged_drawing(teskarlt, tmp_path, damage):
    content, part = DAMAGED[damage]
    path = tmp_path / "damaged.dxf"
    path.write_bytes(content)
    for command in (("insert", path, *INSERT), ("roofs", path), ("list", path)):
        refused(teskarlt(*command), "damaged.dxf", *([part] if part else []))
    assert path.read_bytes() == content


@pytest.mark.parametrize("options, parts", [
    (["--at", "99999,99999"], ["--at 99999,99999", "no roof face", "the roofs lie within"]),
    (["--at", "nan,1"], ["--at nan,1"]),
    (["--at", "1"], ["--at 1"]),
    (["--at", "2500,1200", "--on", "XYZ"], ["--on XYZ"]),
    (["--at", "2500,1200", "--roof", "0,0,0", "1,0,0", "2,0,0"], ["one line"]),
    (["--at", "2500,1200", "--roof", "0,0,0", "1000,0,0", "0,0,1000"], ["vertical"]),
    (["--at", "2500,1200", "--roof", "0,0", "1000,0,0", "0,0,1000"], ["--roof 0,0"]),
    ([], ["--at"]),
    ([*INSERT, "--set", "width=0"], ["width", "greater than 0", "not 0"]),
    ([*INSERT, "--set", "width=-1"], ["width", "not -1"]),
    ([*INSERT, "--set", "length=inf"], ["length", "inf"]),
    ([*INSERT, "--set", "frameDepth=nan"], ["frameDepth", "nan"]),
    ([*INSERT, "--set", "frameWidth=0.5"], ["frameWidth", "0.47", "not 0.5"]),
    ([*INSERT, "--set", "colour=red"], ["colour=red", "no such field"]),
    ([*INSERT, "--set", "width"], ["--set width", "FIELD=VALUE"]),
    ([*INSERT, "--set", "pickOffset=1e308"], ["pickOffset", "10000"]),
    (["--roof-face", "100", "--set", "insertionPoint=1e308,0,0"], ["farther away than numbers reach"]),
    ([*INSERT, "--roof-face", "100", "--set", "roofPlanePoints=0,0,0;1,0,0;0,1,1"], ["roofPlanePoints", "--on"]),
    ([*INSERT, "--roof", "0,0,0", "1,0,0", "0,1,1", "--set", "roofPlanePoints=0,0,0;1,0,0;0,1,1"],
     ["roofPlanePoints", "--roof"]),
    ([*INSERT, "--set", "openingCode=XYZ"], ["openingCode", "XYZ"]),
    ([*INSERT, "--set", "openingCode=DDDDDDDDDDD"], ["openingCode", "11", "10"]),
    ([*INSERT, "--set", "text1=" + "x" * 200], ["text1", "200", "199"]),
    ([*INSERT, "--set", "text2=" + "漢" * 29], ["text2", "203", "199"]),
    ([*INSERT, "--set", "markerValue=0"], ["markerValue"]),
    ([*INSERT, "--set", "pitch=20"], ["pitch 20"]),
    ([*INSERT, "--units", "parsec"], ["parsec"]),
    ([*INSERT, "--set", "lowerEdgeHeight=99"], ["leave the roof face", "passes the ridge by", "the highest lower edge is 5.398 m"]),
    ([*INSERT, "--set", "skirtHeight=1e305"], ["skirtHeight", "10000"]),
    (["--at", "2500,3900"], ["leave the roof face"]),
], ids=str)
def test_refused_request(teskarlt, house, options, parts):
    before = house.read_bytes()
    refused(teskarlt("insert", house, *options), *parts)
    assert house.read_bytes() == before


def test_flat_roof_with_an_infinite_opening(teskarlt, tmp_path):
    path = tmp_path / "flat.dxf"
    Roof(pitch=0).save(path)
    before = path.read_bytes()
    refused(teskarlt("insert", path, "--at", "0,0"), "heightReference 1", "layerThickness 0.1", "infinitely long")
    assert path.read_bytes() == before


def test_drawing_without_a_unit(teskarlt, tmp_path, house):
    path = tmp_path / "unitless.dxf"
    path.write_bytes(house.read_bytes().replace(b"$INSUNITS\n 70\n     4\n", b"$INSUNITS\n 70\n     0\n")
                     .replace(b"$INSUNITS\n 70\n4\n", b"$INSUNITS\n 70\n0\n"))
    assert path.read_bytes() != house.read_bytes()
    refused(teskarlt("insert", path, *INSERT), "$INSUNITS", "--units")
    teskarlt.done("insert", path, *INSERT, "--units", "mm")
    assert teskarlt.done("list", path, "--json").json["units"] == "mm"  # by the window
    refused(teskarlt("edit", path, "1", "--set", "width=1", "--units", "m"), "holds windows drawn in millimetres")


@pytest.mark.parametrize("arguments", [(), ("insert",), ("fly", "house.dxf"), ("insert", "house.dxf", "--wings"),
                                       ("insert", "a.dxf", "b.dxf"), ("insert", "a.dxf", "--at", "1,1", "-o", ""), ("new", "x.dxf", "--dxf-version", "R99")], ids=str)
def test_wrong_usage_has_a_status_of_its_own(teskarlt, arguments, tmp_path):
    answer = teskarlt(*arguments, cwd=tmp_path)
    assert answer.status == 2
    assert answer.stdout == "" and answer.stderr != ""
    assert not (tmp_path / "x.dxf").exists()


@pytest.mark.parametrize("arguments", [("--help",), ("--version",), ("insert", "--help"), ("insert", "--fields")], ids=str)
def test_help_is_no_failure(teskarlt, arguments):
    answer = teskarlt.done(*arguments)
    assert answer.stdout != "" and answer.stderr == ""


@pytest.mark.parametrize("missing", ["BREVANTA.CRX", "BREVANTA_D.CRX", "Brevanta_d.tkr"])
@pytest.mark.parametrize("damage", ["missing", "not loadable"])
def test_module_that_cannot_be_loaded_is_named_with_its_folder(teskarlt, house, tmp_path, missing, damage):
    folder = tmp_path / "installed"
    shutil.copytree(teskarlt.folder, folder)
    (folder / missing).unlink()
    if damage == "not loadable":
        (folder / missing).write_bytes(b"not a module")
    teskarlt.path = folder / teskarlt.path.name
    before = house.read_bytes()
    refused(teskarlt("insert", house, *INSERT), "cannot load", missing, "installed")
    assert house.read_bytes() == before


@pytest.mark.parametrize("foreign", ["BREVANTA.CRX", "BREVANTA_D.CRX"])
def test_module_without_its_exports_is_refused(teskarlt, house, tmp_path, foreign):
    folder = tmp_path / "installed"
    shutil.copytree(teskarlt.folder, folder)
    shutil.copy(folder / "Brevanta_d.tkr", folder / foreign)
    teskarlt.path = folder / teskarlt.path.name
    refused(teskarlt("insert", house, *INSERT), foreign, "has no export")


def test_answer_that_cannot_be_printed_is_a_failure(teskarlt, house):
    if teskarlt.windows:
        pytest.skip("there is no full device")
    done = subprocess.run(["sh", "-c", '"$0" roofs "$1" > /dev/full', teskarlt.path, house], capture_output=True, text=True)
    assert done.returncode == 1
    assert done.stderr.endswith("\nteskarlt: the answer cannot be printed: No space left on device\n")


def test_answer_about_a_file_name_that_is_no_utf8(teskarlt, house, tmp_path):
    if teskarlt.windows:
        pytest.skip("file names are UTF-16")
    name = os.fsencode(tmp_path) + b"/\xff.dxf"
    shutil.copy(house, name)
    done = subprocess.run([teskarlt.path, "insert", name, *INSERT, "--json"], capture_output=True, text=True)
    assert done.returncode == 0, done.stderr
    assert json.loads(done.stdout)["file"].endswith("/\ufffd.dxf")


def test_folder_of_the_program_is_named_in_its_own_letters(teskarlt, house, tmp_path):
    folder = tmp_path / "Müller"
    shutil.copytree(teskarlt.folder, folder)
    teskarlt.path = folder / teskarlt.path.name
    teskarlt.done("insert", house, *INSERT)
    (folder / "BREVANTA_D.CRX").unlink()
    refused(teskarlt("insert", house, *INSERT), "Müller", "BREVANTA_D.CRX")


def test_program_under_another_name_says_so(teskarlt, house, tmp_path):
    folder = tmp_path / "installed"
    shutil.copytree(teskarlt.folder, folder)
    renamed = folder / ("OTHER.EXE" if teskarlt.windows else "other")
    (folder / teskarlt.path.name).rename(renamed)
    teskarlt.path = renamed
    refused(teskarlt("insert", house, *INSERT), "must be called teskarlt")


def test_folder_where_the_result_should_go(teskarlt, house, tmp_path):
    (tmp_path / "folder.dxf").mkdir()
    refused(teskarlt("insert", house, *INSERT, "-o", tmp_path / "folder.dxf"), "folder.dxf")
    refused(teskarlt("insert", house, *INSERT, "-o", tmp_path / "none" / "out.dxf"), "out.dxf")
    assert sorted(path.name for path in tmp_path.iterdir()) == ["data", "folder.dxf", "house.dxf"]


def test_read_only_drawing_is_not_replaced(teskarlt, house, tmp_path):
    before = house.read_bytes()
    house.chmod(stat.S_IRUSR)
    if os.access(house, os.W_OK) and not teskarlt.windows:  # the superuser may write everything
        shutil.copy(house, tmp_path / "kept.dxf")
        assert house.read_bytes() == before
        return
    refused(teskarlt("insert", house, *INSERT), "house.dxf")
    assert house.read_bytes() == before


def test_full_disk_leaves_the_drawing_as_it_was(teskarlt, house, tmp_path):
    if teskarlt.windows:
        pytest.skip("a full folder is made by mounting")
    folder = tmp_path / "full"
    folder.mkdir()
    if os.system(f"mount -t tmpfs -o size=160k tmpfs {folder} 2>/dev/null") != 0:
        pytest.skip("mounting is not allowed here")
    try:
        drawing = folder / "house.dxf"
        drawing.write_bytes(house.read_bytes())
        (folder / "ballast").write_bytes(bytes(160 * 1024 - drawing.stat().st_size - 30 * 1024))
        refused(teskarlt("insert", drawing, *INSERT), "house.dxf")
        assert drawing.read_bytes() == house.read_bytes()
        assert sorted(path.name for path in folder.iterdir()) == ["ballast", "house.dxf"]
    finally:
        os.system(f"umount {folder}")


@pytest.mark.parametrize("option", ["-o", "--window", "--catalogue"])
def test_empty_name_is_wrong_usage(teskarlt, house, option):
    before = house.read_bytes()
    assert teskarlt("insert", house, *INSERT, option, "").status == 2
    assert house.read_bytes() == before


def test_file_named_without_a_folder_is_replaced(teskarlt, house):
    before = house.read_bytes()
    teskarlt.done("insert", "house.dxf", *INSERT, cwd=house.parent)
    assert house.read_bytes() != before


def test_unit_that_contradicts_the_header_is_refused_unless_forced(teskarlt, house, tmp_path):
    order = ["insert", house, "--at", "2500,1200", "--roof", "0,0,0", "9,0,0", "0,9,9", "-o", tmp_path / "out.dxf"]
    refused(teskarlt(*order, "--units", "m"), "$INSUNITS 4", "--force-units")
    assert not (tmp_path / "out.dxf").exists()
    answer = teskarlt.done(*order, "--units", "m", "--force-units")
    assert "warning" in answer.stderr and "$INSUNITS 4" in answer.stderr


@pytest.mark.parametrize("command", [("roofs",), ("list",), ("refit", "--dry-run"), ("preview", "-o", "plan.svg")])
def test_no_command_takes_another_unit_than_the_drawings(teskarlt, house, tmp_path, command):
    refused(teskarlt(command[0], house, *command[1:], "--units", "cm", cwd=tmp_path), "says that its unit is millimetres")


def test_text_that_is_too_long_for_its_drawing_names_its_field(teskarlt, tmp_path):
    path = tmp_path / "new.dxf"
    teskarlt.done("new", path, "--dxf-version", "R2018")
    before = path.read_bytes()
    refused(teskarlt("insert", path, "--roof", "0,0,0", "9000,0,0", "0,9000,9000", "--at", "0,0", "--set",
                     "text1=" + "ř" * 100), "text1", "200 bytes", "199")
    assert path.read_bytes() == before
