# test_paper.py - plans to scale on paper: printed by a browser, measured in the pages, and read as text.
import base64
import re
import subprocess
import xml.etree.ElementTree as ElementTree

import pictures
import pytest
from browser import Browser
from conftest import ROOT
from plain_dxf import Drawing
from program import Program
from test_bad_input import refused

SVG = "{http://www.w3.org/2000/svg}"
PIXELS = 10  # a millimetre, of printed pages as pictures
MARKS = [(2500, "W01"), (5000, "W02"), (7500, "W03")]


@pytest.fixture
def windowed(teskarlt, house):
    """The example house with three windows on its south side."""
    for x, mark in MARKS:
        teskarlt.done("insert", house, "--at", f"{x},1200", "--mark", mark)
    return house


@pytest.fixture(scope="module")
def browser(tmp_path_factory):
    running = Browser(tmp_path_factory.mktemp("profile"))
    yield running
    running.close()


def printed(browser, path):
    """The one page that a browser prints of a picture, as pixels."""
    browser.open(path)
    pdf = path.with_suffix(".pdf")
    pdf.write_bytes(base64.b64decode(browser.call("Page.printToPDF", preferCSSPageSize=True, marginTop=0, marginBottom=0,
                                                  marginLeft=0, marginRight=0)["data"]))
    subprocess.run(["pdftoppm", "-r", str(25.4 * PIXELS), str(pdf), str(path.with_suffix(""))], check=True)
    pages = list(path.parent.glob(f"{path.stem}-*.ppm"))
    assert len(pages) == 1
    with open(pages[0], "rb") as file:
        _, width, height, _, values = pictures.header(file)
    return pictures.Pixels(width, height, values)


def extent_of_red(page):
    """How far red lines reach across and down the page, in millimetres."""
    places = [divmod(i, page.width) for i, pixel in enumerate(page.all()) if pictures.is_red(*pixel)]
    rows, columns = zip(*places)
    return ((max(columns) - min(columns)) / PIXELS, (max(rows) - min(rows)) / PIXELS)


def words(path):
    """The texts of a picture, by the group that they stand in."""
    root = ElementTree.parse(path).getroot()
    return {group.get("id"): [text.text for text in group.iter(f"{SVG}text")] for group in root.iter(f"{SVG}g")}


def test_printed_length_is_the_length_to_scale(tmp_path, browser):
    """12 m by 6 m at 1:50 are 240 by 120 mm, and a stroke is 0.18 mm wide."""
    drawing = Drawing(units="m")
    drawing.layer("RED", 1)
    drawing.line("RED", (0, 0, 0), (12, 0, 0))
    drawing.line("RED", (12, 0, 0), (12, 6, 0))
    program = Program(ROOT, "linux", tmp_path)
    program.done("preview", drawing.save(tmp_path / "in.dxf"), "-o", tmp_path / "plan.svg", "--scale", "50", "--paper", "A3")
    page = printed(browser, tmp_path / "plan.svg")
    assert (page.width, page.height) == pytest.approx((4200, 2970), abs=4)  # the browser's pages have whole pixels, of 0.26 mm
    assert extent_of_red(page) == pytest.approx((240.18, 120.18), abs=0.25)


def test_plan_has_tags_dimensions_falls_and_schedule(teskarlt, windowed, tmp_path):
    answer = teskarlt.done("preview", windowed, "-o", tmp_path / "plan.svg", "--scale", "50", "--paper", "A2",
                           "--project", "House <1>", "--title", "Attic", "--date", "2026-05-04")
    assert answer.stdout.endswith("plan.svg written, 1:50 on A2.\n")
    found = words(tmp_path / "plan.svg")
    assert sorted(found["tags"]) == [mark for _, mark in MARKS]
    listed = teskarlt.done("schedule", windowed, "--json").json["windows"]
    for window in listed:
        assert f"{window['toEaves']:.3f}" in found["dimensions"]
    roofs = [roof for roof in teskarlt.done("roofs", windowed, "--json").json["roofs"] if roof["pitch"] > 1]
    assert sorted(text.split()[0] for text in found["falls"]) == sorted(roof["roof"] for roof in roofs)
    assert {"House <1>", "Attic", "2026-05-04", "1:50", "A2", "house.dxf (mm)"} <= set(found["title-block"])
    assert [text for text in found["schedule"] if re.fullmatch(r"W\d\d", text)] == [mark for _, mark in MARKS]
    assert "N" in found["legend"] and "2 m" in found["scale-bar"]


def test_lengths_in_feet(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "plan.svg", "--paper", "A2", "--lengths", "ft")
    found = words(tmp_path / "plan.svg")
    assert all("'" in text or '"' in text for text in found["dimensions"])
    assert found["scale-bar"][-1].endswith(" ft")


def test_scale_is_the_largest_usual_one_where_paper_alone_is_said(teskarlt, windowed, tmp_path):
    """The house is 15.7 m wide and 9 m deep with its roof: 157 by 90 mm at 1:100, where A4 has room for 255 by 145."""
    answer = teskarlt.done("preview", windowed, "-o", tmp_path / "plan.svg", "--paper", "a4")
    assert answer.stdout.endswith("written, 1:75 on A4.\n")


def test_plan_without_room_is_refused_with_what_would_do(teskarlt, windowed, tmp_path):
    refused(teskarlt("preview", windowed, "-o", tmp_path / "plan.svg", "--scale", "20", "--paper", "A4"),
            "house.dxf: at 1:20 the plan takes 785 x", "1:75 fits on it; 1:20 fits on A1")
    assert not (tmp_path / "plan.svg").exists()


def test_drawing_of_unknown_unit_is_refused(teskarlt, tmp_path):
    drawing = Drawing(version="R12")
    drawing.line("A", (0, 0, 0), (12, 5, 0))
    path = drawing.save(tmp_path / "in.dxf")
    refused(teskarlt("preview", path, "-o", tmp_path / "plan.svg", "--scale", "50"), "unit")
    teskarlt.done("preview", path, "-o", tmp_path / "plan.svg", "--scale", "50", "--units", "m")


def test_plan_zooms_to_a_roof_and_to_a_window(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "plan.svg", "--paper", "A3", "--window", "2")
    assert words(tmp_path / "plan.svg")["tags"] == ["W02"]
    teskarlt.done("preview", windowed, "-o", tmp_path / "plan.svg", "--paper", "A3", "--on", "R2")
    assert "Plan of roof R2" in words(tmp_path / "plan.svg")["title-block"]


WRONG_USAGE = {"other format": ["-o", "out.png", "--scale", "50"], "other view": ["-o", "out.svg", "--paper", "A4", "--view", "south"],
               "pixels": ["-o", "out.svg", "--scale", "50", "--width", "500"], "unknown paper": ["-o", "out.svg", "--paper", "B9"],
               "no scale": ["-o", "out.svg", "--scale", "0"], "title without paper": ["-o", "out.svg", "--title", "Attic"],
               "upright without paper": ["-o", "out.svg", "--portrait"]}


@pytest.mark.parametrize("case", WRONG_USAGE)
def test_wrong_usage(teskarlt, house, tmp_path, case):
    answer = teskarlt("preview", house, *WRONG_USAGE[case], cwd=tmp_path)
    assert (answer.status, answer.stdout) == (2, ""), answer
    assert not list(tmp_path.glob("out.*"))
