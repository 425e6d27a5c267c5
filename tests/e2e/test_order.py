# test_order.py - the example's script from a house to an order, whose results other programs read.
import json
import shlex
import shutil
import struct
import xml.etree.ElementTree as ElementTree

import openpyxl
import pytest
import readers
from conftest import ROOT

SCRIPT = ROOT / "examples" / "order.sh"
COMMANDS = [line for line in SCRIPT.read_text().splitlines() if line.startswith("teskarlt ")]
MARKS = ["R1-1", "R1-2", "R2-1"]


@pytest.fixture
def folder(teskarlt, tmp_path):
    """Where the script ran."""
    for name in ("house.dxf", "windows.jsonl"):
        shutil.copy(ROOT / "examples" / name, tmp_path)
    for command in COMMANDS:
        teskarlt.done(*shlex.split(command)[1:], cwd=tmp_path)
    return tmp_path


def test_readme_shows_the_script():
    assert len(COMMANDS) == 6
    assert "\n".join(f"    {command}" for command in COMMANDS) in (ROOT / "README.md").read_text()


def test_drawing_shows_the_marks(folder):
    texts = readers.audited(folder / "order.dxf").modelspace().query('TEXT[layer=="ROOF_WINDOW_TAGS"]')
    assert sorted(text.dxf.text for text in texts) == MARKS


def test_workbook_orders_each_window_once(folder):
    head, *rows, total = openpyxl.load_workbook(folder / "order.xlsx").active.iter_rows(values_only=True)
    quantity, width, length, opening = (head.index(name) for name in ("Quantity", "Width mm", "Length mm", "Opening"))
    assert {(row[width], row[length], row[opening]): row[quantity] for row in rows} == {
        (940, 1400, "centre-pivot"): 1, (780, 1400, "top-hung, opens inward"): 1, (1140, 1180, "centre-pivot"): 1}
    assert total[quantity] == 3


def test_plan_is_a_sheet_that_names_each_window_beside_it_once(folder):
    plan = ElementTree.parse(folder / "order.svg").getroot()
    assert (plan.get("width"), plan.get("height")) == ("420mm", "297mm")
    texts = ["".join(text.itertext()).strip() for text in plan.iter("{http://www.w3.org/2000/svg}text")]
    assert {"Example house", "1:50", "2026-05-04"} <= set(texts)
    for mark in MARKS:
        assert texts.count(mark) == 2  # beside the window, and in the schedule


def test_page_and_model_know_the_windows(folder):
    page = (folder / "order.html").read_text(encoding="utf-8")
    data = (folder / "order.glb").read_bytes()
    length, = struct.unpack_from("<I", data, 12)
    names = {node.get("name") for node in json.loads(data[20:20 + length])["nodes"]}
    for mark in MARKS:
        assert mark in page and mark in names
