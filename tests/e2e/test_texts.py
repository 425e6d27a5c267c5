# test_texts.py - texts of every language in drawings of every version and code page.
import json
import shutil

import ezdxf
import pytest
import readers
from conftest import ROOT
from windows import window_entities

TEXTS = ["Příliš žluťoučký kůň", "Dachgeschoß Süd", "окно мансардное", "παράθυρο στέγης", "天窓", "🏠 90°",
         "a^b ^J \\U+0159 \\P {x}", "  blanks  ", "Ã©", "\u00ad\u0080\uffff", "two\nlines"]
PAGES = {"R12": ["ANSI_1250", "ANSI_1252", "dos850", "UNDEFINED"],
         "R2000": ["ANSI_1250", "ANSI_1252", "ANSI_932", "ANSI_949", "ANSI_1253", "UNDEFINED", "ANSI_4711", None],
         "R2018": ["ANSI_1250", "ANSI_1252", "UNDEFINED", "ANSI_4711"]}
AT = ("--at", "0,0", "--roof", "0,0,0", "9000,0,0", "0,9000,9000")


def drawing_with_page(teskarlt, path, version, page):
    """An empty drawing whose header names the code page, or none."""
    teskarlt.done("new", path, "--dxf-version", version)
    variable = b"  9\n$DWGCODEPAGE\n  3\n%s\n"
    content = path.read_bytes()
    assert variable % b"ANSI_1250" in content
    path.write_bytes(content.replace(variable % b"ANSI_1250", variable % page.encode() if page else b""))
    return path


def insert_all(teskarlt, path, jobs):
    lines = "".join(json.dumps({"at": [0, 0], **job}) + "\n" for job in jobs)
    teskarlt.done("insert", path, *AT[2:], "--jobs", "-", stdin=lines)


def texts_in(teskarlt, path):
    return [window["fields"]["text1"] for window in teskarlt.done("list", path, "--json").json["windows"]]


@pytest.mark.many
@pytest.mark.parametrize("version, page", [(version, page) for version, pages in PAGES.items() for page in pages])
def test_any_text_goes_in_and_comes_back(teskarlt, tmp_path, version, page):
    path = drawing_with_page(teskarlt, tmp_path / "roof.dxf", version, page)
    insert_all(teskarlt, path, [{"set": {"text1": text}} for text in TEXTS])
    assert texts_in(teskarlt, path) == TEXTS
    for number in range(1, len(TEXTS) + 1):
        teskarlt.done("edit", path, str(number), "--set", "width=0.78")
    assert sorted(texts_in(teskarlt, path)) == sorted(TEXTS)


@pytest.mark.parametrize("version", PAGES)
def test_other_programs_read_the_same_texts(teskarlt, tmp_path, version):
    path = drawing_with_page(teskarlt, tmp_path / "roof.dxf", version, "ANSI_1252")
    asked = ["Střešní okno", "天窓 ☃"]
    insert_all(teskarlt, path, [{"set": {"text1": text}} for text in asked])
    entities = window_entities(readers.audited(path))
    texts = {tag.value for entity in entities for tag in entity.get_xdata("TK_LT_DESC") if tag.code == 1000}
    assert set(asked) <= {ezdxf.lldxf.encoding.decode_dxf_unicode(text) for text in texts}


@pytest.mark.parametrize("page", ["UNDEFINED", "ANSI_4711"])
def test_unknown_code_page_is_taken_for_the_western_one_with_a_warning(teskarlt, tmp_path, page):
    path = drawing_with_page(teskarlt, tmp_path / "roof.dxf", "R2000", page)
    assert teskarlt.done("insert", path, *AT).stderr == ""
    answer = teskarlt.done("insert", path, *AT, "--set", "text1=Süd")
    assert f'the code page "{page}" is not known' in answer.stderr and "ANSI_1252" in answer.stderr
    assert "Süd".encode("cp1252") in path.read_bytes()


def test_text_that_no_window_can_hold_concerns_its_window_alone(teskarlt, house):
    for text in ("first", "second"):
        teskarlt.done("insert", house, "--at", "2500,1200", "--set", f"text1={text}")
    house.write_bytes(house.read_bytes().replace(b"\nfirst\n", b"\n" + b"x" * 230 + b"\n"))
    first, second = teskarlt.done("list", house, "--json").json["windows"]
    assert not first["editable"] and "text1 takes 230 bytes" in first["notes"][-1]
    assert second["editable"] and second["notes"] == []
    assert teskarlt("check", house).status == 0
    teskarlt.done("edit", house, "2", "--set", "width=0.78")
    assert "text1 takes 230 bytes" in teskarlt("edit", house, "1", "--set", "width=0.78").stderr


@pytest.mark.parametrize("version, page", [("R12", "ANSI_1252"), ("R12", "dos850"), ("R2000", "ANSI_1252"),
                                           ("R2000", "UNDEFINED"), ("R2018", "ANSI_1252")])
def test_example_catalogue_works_in_a_drawing_of_any_other_program(teskarlt, tmp_path, version, page):
    path = drawing_with_page(teskarlt, tmp_path / "roof.dxf", version, page)
    shutil.copy(ROOT / "examples" / "BREVANTA.LIB", teskarlt.data_folder)
    sections = teskarlt.done("catalogue", "--json").json["sections"]
    items = [(section["maker"], item) for section in sections for item in section["items"]]
    insert_all(teskarlt, path, [{"window": f"{maker}/{item['key']}"} for maker, item in items])
    assert texts_in(teskarlt, path) == [maker for maker, _ in items]
