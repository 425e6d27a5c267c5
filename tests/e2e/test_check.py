# test_check.py - drawings checked for what strict programs refuse, the program's own ones above all.
import re

import ezdxf
import pytest
from conftest import ROOT
from roofs import Roof

AT = ("--at", "0,0")
SETTINGS = ({}, {"openingCode": "BI", "text1": "Mračno"}, {"drawOpeningSymbol": 0},
            {"skirtHeight": 0.05}, {"bodyAsFaces": 0}, {"openingCode": "EIRD"})
GOLDEN = sorted(path.parent for path in (ROOT / "tests" / "golden").glob("*/command.txt"))


def options(settings):
    return [part for name, value in settings.items() for part in ("--set", f"{name}={value}")]


def kinds(answer):
    return [(finding["severity"], finding["kind"]) for finding in answer.json["findings"]]


def sound(teskarlt, path):
    assert teskarlt.done("check", path).stdout == f"{teskarlt.spelled(path)}: 0 errors, 0 warnings\n"


@pytest.fixture
def with_window(teskarlt, tmp_path):
    """A roof with one window, and its text."""
    path = tmp_path / "roof.dxf"
    Roof(centre=(0, 0, 3)).save(path)
    teskarlt.done("insert", path, *AT)
    return path


def damage(path, change):
    """Changes the drawing's text, in its code page."""
    text = path.read_bytes().decode("cp1250")
    changed = change(text)
    assert changed != text
    path.write_bytes(changed.encode("cp1250"))


def window_entities(text):
    return [part for part in re.split(r"(?m)^(?=  0$)", text) if "TKBRVA" in part]


@pytest.mark.parametrize("version", ["R12", "R2000", "R2018"])
def test_new_drawing_and_its_windows_are_sound(teskarlt, tmp_path, version):
    path = tmp_path / "new.dxf"
    teskarlt.done("new", path, "--dxf-version", version)
    sound(teskarlt, path)
    for number, settings in enumerate(SETTINGS):
        teskarlt.done("insert", path, "--at", f"{2000 * number},0", "--roof", "0,0,3000", "8000,0,3000",
                      "0,5000,6500", *options(settings))
        sound(teskarlt, path)
    teskarlt.done("edit", path, "1", "--set", "width=1.2")
    sound(teskarlt, path)
    teskarlt.done("erase", path, "2")
    sound(teskarlt, path)


@pytest.mark.parametrize("units", ["mm", "cm", "m"])
@pytest.mark.parametrize("version", ["R12", "R2000"])
def test_windows_in_drawings_of_others_are_sound(teskarlt, tmp_path, version, units):
    path = tmp_path / "roof.dxf"
    Roof(version=version, units=units, direction=70).save(path)
    sound(teskarlt, path)
    teskarlt.done("insert", path, *AT, "--units", units)
    sound(teskarlt, path)


def test_example_house_is_sound(teskarlt, house):
    sound(teskarlt, house)
    teskarlt.done("insert", house, "--at", "2500,1200")
    sound(teskarlt, house)


@pytest.mark.parametrize("case", GOLDEN, ids=lambda case: case.name)
def test_stored_results_have_no_finding_that_their_inputs_did_not_have(teskarlt, case):
    before, after = (kinds(teskarlt.done("check", case / name, "--json")) for name in ("input.dxf", "expected.dxf"))
    assert after == before


def test_findings_are_printed_with_their_lines_and_counted(teskarlt, tmp_path):
    path = tmp_path / "bad.dxf"
    path.write_text("0\nSECTION\n2\nENTITIES\n0\nPOINT\n5\n2F\n8\nATTIC\n10\n1,5\n20\n0\n0\nENDSEC\n0\nEOF\n")
    answer = teskarlt("check", path)
    assert (answer.status, answer.stderr) == (1, "")
    assert answer.stdout == (
        '1. line 10: warning: the layer "ATTIC" is not in the table LAYER; it is used here [layer-undefined, handle 2F]\n'
        '2. line 12: error: "1,5" is not a finite number (group 10) [real-value, handle 2F]\n'
        f"{teskarlt.spelled(path)}: 1 error, 1 warning\n")


def test_json_says_the_same(teskarlt, tmp_path):
    path = tmp_path / "bad.dxf"
    path.write_text("0\nSECTION\n2\nENTITIES\n0\nPOINT\n5\n2F\n8\n0\n10\n1,5\n20\n0\n0\nENDSEC\n0\nEOF\n")
    answer = teskarlt("check", path, "--json")
    assert answer.status == 1
    assert answer.json == {
        "version": 1, "file": teskarlt.spelled(path), "errors": 1, "warnings": 0,
        "findings": [{"number": 1, "line": 12, "severity": "error", "kind": "real-value",
                      "message": '"1,5" is not a finite number (group 10)', "handle": "2F"}]}


def test_findings_in_a_binary_drawing_come_with_the_offsets_of_their_tags(teskarlt, tmp_path):
    path = tmp_path / "attic.dxf"
    drawing = ezdxf.new("R2000")
    for layer in ("ATTIC", "CELLAR"):
        drawing.modelspace().add_point((1, 2), dxfattribs={"layer": layer})
    drawing.saveas(path, fmt="bin")
    findings = teskarlt("check", path, "--json").json["findings"]
    assert [finding["kind"] for finding in findings] == ["layer-undefined"] * 2
    content = path.read_bytes()
    for finding, layer in zip(findings, (b"ATTIC", b"CELLAR")):
        assert content[finding["byte"]:].startswith(b"\x08\0" + layer + b"\0")
    assert f'1. byte {findings[0]["byte"]}: error: ' in teskarlt("check", path).stdout


def test_warnings_alone_are_no_failure(teskarlt, with_window):
    with with_window.open("ab") as file:
        file.write(b"rubbish")
    answer = teskarlt("check", with_window, "--json")
    assert (answer.status, kinds(answer)) == (0, [("warning", "bytes-behind-eof")])


def test_of_one_kind_a_thousand_are_listed_and_all_are_counted(teskarlt, tmp_path):
    path = tmp_path / "bad.dxf"
    path.write_text("0\nSECTION\n2\nENTITIES\n" + "0\nPOINT\n8\n0\n10\nx\n20\n0\n" * 1234 + "0\nENDSEC\n0\nEOF\n")
    lines = teskarlt("check", path).stdout.splitlines()
    assert len(lines) == 1002
    assert lines[-2:] == ["and 234 more [real-value]", f"{teskarlt.spelled(path)}: 1234 errors, 0 warnings"]


def test_window_that_lost_an_entity_is_an_error(teskarlt, with_window):
    damage(with_window, lambda text: text.replace(window_entities(text)[20], ""))
    answer = teskarlt("check", with_window, "--json")
    assert (answer.status, kinds(answer)) == (1, [("error", "window-entities"), ("error", "group-member")])
    assert answer.json["findings"][0]["message"] == (
        "window 1: it has 17 faces and 15 lines, and should have 0, 17 or 21 faces and 16 lines")


def test_second_window_with_the_same_number_is_an_error(teskarlt, with_window):
    teskarlt.done("insert", with_window, "--at", "1500,0", "--set", "width=0.7")
    damage(with_window, lambda text: re.sub(r"(TKBRVA\n1071\n *)2\n", r"\g<1>1\n", text))
    answer = teskarlt("check", with_window, "--json")
    assert (answer.status, kinds(answer)) == (1, [("error", "window-number")])


def test_application_that_was_taken_from_the_table_is_an_error(teskarlt, with_window):
    damage(with_window, lambda text: text.replace("\n  2\nTK_LT_ELEM\n", "\n  2\nSOMETHING\n"))
    answer = teskarlt("check", with_window, "--json")
    assert (answer.status, kinds(answer)) == (1, [("error", "application-undefined")])


def test_file_that_is_no_drawing_is_refused(teskarlt, tmp_path):
    path = tmp_path / "picture.dxf"
    path.write_bytes(b"\x89PNG\r\n\x1a\n")
    for file, message in ((path, "PNG picture"), (tmp_path / "none.dxf", "none.dxf")):
        answer = teskarlt("check", file)
        assert answer.status == 1 and answer.stdout == "" and answer.stderr.count("\n") == 1, answer
        assert message in answer.stderr


def test_wrong_usage_has_a_status_of_its_own(teskarlt):
    assert teskarlt("check").status == 2
    assert "Examples:\n  teskarlt check house.dxf\n" in teskarlt.done("check", "--help").stdout
