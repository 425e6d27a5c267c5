# test_preview.py - pictures, pages and models of drawings, read by programs that nobody here wrote.
import base64
import json
import re
import shutil
import subprocess
import xml.etree.ElementTree as ElementTree

import ezdxf
import node_tools
import pictures
import pytest
import readers
from conftest import ROOT
from ezdxf.enums import TextEntityAlignment
from plain_dxf import Drawing
from test_bad_input import refused

SVG = "{http://www.w3.org/2000/svg}"
INKSCAPE = "{http://www.inkscape.org/namespaces/inkscape}"
VIEWS = ["plan", "iso", "south", "north", "east", "west"]
GOLDEN = ROOT / "tests" / "golden"
# Small pictures of each stored drawing: what is stored as expected-NAME, and how it is made.
GOLDEN_PICTURES = {"plan.svg": ["--width", "400"], "south.svg": ["--view", "south", "--width", "400"],
                   "iso.png": ["--width", "200"]}


@pytest.fixture
def windowed(teskarlt, house):
    """The example house with a window on its south side."""
    teskarlt.done("insert", house, "--at", "2500,1200")
    return house


def same_picture(stored, made):
    """Whether two files show the same; a compressor may write the same pixels in other bytes."""
    if stored.suffix != ".png":
        return stored.read_bytes() == made.read_bytes()
    return pictures.pixels(stored.read_bytes()) == pictures.pixels(made.read_bytes())


def compare(stored, made):
    """Compares a file with the stored one; one that differs is left beside it for review."""
    beside = stored.with_name(stored.name.replace("expected", "actual"))
    if stored.exists() and same_picture(stored, made):
        beside.unlink(missing_ok=True)
        return
    shutil.copy(made, beside)
    pytest.fail(f"the picture is not the stored one; the new one is {beside}")


@pytest.mark.parametrize("name", GOLDEN_PICTURES)
@pytest.mark.parametrize("case", sorted(path.parent for path in GOLDEN.glob("*/expected.dxf")), ids=lambda case: case.name)
def test_picture_of_a_stored_drawing_is_the_stored_one(teskarlt, tmp_path, case, name):
    teskarlt.done("preview", case / "expected.dxf", "-o", tmp_path / name, *GOLDEN_PICTURES[name])
    compare(case / f"expected-{name}", tmp_path / name)


@pytest.mark.parametrize("view", VIEWS)
def test_vector_picture_is_well_formed_and_shows_the_roof(teskarlt, windowed, tmp_path, view):
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--view", view)
    tree = ElementTree.parse(tmp_path / "out.svg").getroot()
    layers = {group.get(f"{INKSCAPE}label") for group in tree.iter(f"{SVG}g")} - {None}
    assert {"ROOF_SOUTH", "WALLS", "ROOF_WINDOW_BODY"} <= layers
    drawn = pictures.of_svg(tmp_path / "out.svg")
    assert drawn.width == 1000
    assert len(set(drawn.all())) > 20


def test_plan_has_title_and_scale_bar(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg")
    text = (tmp_path / "out.svg").read_text()
    for part in (">house</text>", ">Plan, 1 roof window</text>", ">2 m</text>"):
        assert part in text


def test_dashed_lines_of_a_window_are_dashed(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--window", "1")
    text = (tmp_path / "out.svg").read_text()
    assert ">house, window 1</text>" in text
    assert len(re.findall(r'stroke-dasharray="[\d.]+,[\d.]+"', text)) == 2


def test_scale_bar_is_true(teskarlt, tmp_path):
    drawing = Drawing(units="cm")
    drawing.line("A", (0, 0, 0), (1000, 0, 0))
    drawing.line("A", (0, 0, 0), (0, 500, 0))
    teskarlt.done("preview", drawing.save(tmp_path / "in.dxf"), "-o", tmp_path / "out.svg", "--width", "1064")
    bar = ElementTree.parse(tmp_path / "out.svg").getroot().find(f"{SVG}g[@id='scale-bar']")
    assert [text.text for text in bar.iter(f"{SVG}text")] == ["0", "1", "2 m"]
    assert float(bar.find(f"{SVG}rect").get("width")) == 200  # 10 m are 1000 pixels


def test_isometric_picture_hides_what_lies_behind(teskarlt, tmp_path):
    """A red board before a blue one, whichever comes first in the file."""
    made = []
    for order in (("RED", "BLUE"), ("BLUE", "RED")):
        drawing = Drawing(units="m")
        boards = {"RED": (-4, 2), "BLUE": (0, 3)}  # y and half of the size: south of it is before it
        for name in order:
            drawing.layer(name, {"RED": 1, "BLUE": 5}[name])
            y, half = boards[name]
            drawing.face(name, (-half, y, -half), (half, y, -half), (half, y, half), (-half, y, half))
        path = drawing.save(tmp_path / "in.dxf")
        teskarlt.done("preview", path, "-o", tmp_path / "out.png", "--view", "south", "--width", "200")
        made.append(pictures.pixels((tmp_path / "out.png").read_bytes()))
    for picture in made:
        assert pictures.is_red(*picture.at(100, picture.height / 2))
        assert not pictures.is_red(*picture.at(20, picture.height / 2))


def test_picture_zooms_to_a_window(teskarlt, windowed, tmp_path):
    shares = []
    for options in ([], ["--window", "1"]):
        teskarlt.done("preview", windowed, "-o", tmp_path / "out.png", "--width", "300", *options)
        picture = pictures.pixels((tmp_path / "out.png").read_bytes())
        shares.append(picture.share(lambda red, green, blue: blue > red + 25 and green > red + 5))  # the pane
    assert shares[1] > 10 * shares[0] > 0


def test_only_the_asked_layers_are_shown(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--layer", "walls", "--layer", "CHIMNEY")
    tree = ElementTree.parse(tmp_path / "out.svg").getroot()
    layers = {group.get(f"{INKSCAPE}label") for group in tree.iter(f"{SVG}g")} - {None}
    assert layers == {"WALLS", "CHIMNEY"}


def test_model_is_read_by_another_program(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "house.glb")
    done = subprocess.run(["assimp", "info", str(tmp_path / "house.glb")], capture_output=True, text=True, check=True)
    low, high = (tuple(map(float, re.findall(r"-?[\d.]+", line))) for line in
                 re.findall(r"(?:Minimum|Maximum) point\s+(.*)", done.stdout))
    # The roof from verge to the annex's eaves, the ground to the chimney, in metres with y up.
    assert [round(b - a, 3) for a, b in zip(low, high)] == [15.7, 7.2, 9]
    assert re.search(r"Meshes:\s+[1-9]", done.stdout)
    for layer in ("ROOF_SOUTH", "ROOF_WINDOW_BODY"):
        assert layer in done.stdout


def model_of(path):
    """The JSON of a binary glTF file."""
    content = path.read_bytes()
    length = int.from_bytes(content[12:16], "little")
    return json.loads(content[20:20 + length])


def test_model_keeps_to_its_format(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "house.glb")
    assert node_tools.findings_of_model(tmp_path / "house.glb") == []


def test_validator_finds_what_is_wrong(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "house.glb")
    content = (tmp_path / "house.glb").read_bytes()
    (tmp_path / "wrong.glb").write_bytes(content.replace(b'"mode":4', b'"mode":9'))
    assert node_tools.findings_of_model(tmp_path / "wrong.glb") != []


def test_model_has_a_node_for_each_window_with_its_values(teskarlt, windowed, tmp_path):
    """The second window has no mark and is called by its number."""
    teskarlt.done("mark", windowed, "--mark", "Bath")
    teskarlt.done("insert", windowed, "--at", "6000,1200", "--set", "width=0.78")
    teskarlt.done("preview", windowed, "-o", tmp_path / "house.glb")
    listed = teskarlt.done("schedule", windowed, "--json").json["windows"]
    model = model_of(tmp_path / "house.glb")
    nodes = {node["name"]: node for node in model["nodes"] if "children" in node}
    assert nodes.keys() == {"Bath", "W02"}
    for window in listed:
        values = {name: value for name, value in window.items() if value is not None and name != "quantity"}
        assert nodes[window["mark"]]["extras"] == values
    assert nodes["W02"]["extras"]["width"] == 0.78


def test_frames_and_panes_of_a_model_are_told_apart(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "house.glb")
    model = model_of(tmp_path / "house.glb")
    children = [model["nodes"][child] for node in model["nodes"] for child in node.get("children", [])]
    materials = {node["name"]: {model["materials"][primitive["material"]]["name"]
                                for primitive in model["meshes"][node["mesh"]]["primitives"]} for node in children}
    assert materials["ROOF_WINDOW_BODY"] == {"frame", "glass", "line"}
    assert {name for name, found in materials.items() if "surface" in found} == set()


def test_page_holds_the_schedule_that_the_program_makes(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "house.html")
    teskarlt.done("schedule", windowed, "--bom", "-o", tmp_path / "house.csv")
    csv = re.search(r'id="csv">([^<]*)<', (tmp_path / "house.html").read_text()).group(1)
    assert base64.b64decode(csv) == (tmp_path / "house.csv").read_bytes()


def test_page_holds_the_model(teskarlt, windowed, tmp_path):
    for name in ("house.glb", "house.html"):
        teskarlt.done("preview", windowed, "-o", tmp_path / name)
    model = re.search(r'id="model" data-window="">([^<]*)<', (tmp_path / "house.html").read_text()).group(1)
    assert base64.b64decode(model) == (tmp_path / "house.glb").read_bytes()


def test_format_overrides_the_ending(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "picture", "--format", "png", "--width", "100")
    assert (tmp_path / "picture").read_bytes().startswith(b"\x89PNG")


def test_what_is_not_shown_is_said(teskarlt, tmp_path):
    drawing = Drawing()
    drawing.line("A", (0, 0, 0), (1000, 500, 0))
    path = drawing.save(tmp_path / "in.dxf")
    text = path.read_text().replace("  0\nLINE", "  0\nTEXT\n  8\nA\n 40\n250\n  1\nHello\n  0\nLINE")
    path.write_text(text)
    answer = teskarlt.done("preview", path, "-o", tmp_path / "out.png", "--width", "100")
    assert answer.stderr == "teskarlt: not shown: 1 TEXT\n"


def test_plan_shows_texts_and_hatches(teskarlt, tmp_path):
    """Written by another library: texts of all kinds, in blocks too, and a level hatch."""
    document = ezdxf.new("R2010")
    space = document.modelspace()
    space.add_line((0, 0), (20, 10))
    space.add_text("K\u00fcche 12,5 m\u00b2", height=0.5, rotation=90).set_placement((5, 5), align=TextEntityAlignment.MIDDLE_CENTER)
    space.add_mtext(r"{\fArial|b1;Bath}\P\H0.7x;h = 2,50", dxfattribs={"char_height": 0.4, "insert": (1, 9)})
    block = document.blocks.new("DOOR")
    block.add_text("D", height=0.2)
    block.add_attdef("NO", (0, 1), height=0.2)
    space.add_blockref("DOOR", (10, 2), dxfattribs={"xscale": 2, "yscale": 2, "rotation": 30}).add_auto_attribs({"NO": "D 17"})
    hatch = space.add_hatch(color=1)
    hatch.paths.add_polyline_path([(12, 1), (18, 1), (18, 4), (12, 4)], is_closed=True)
    document.saveas(tmp_path / "in.dxf")
    answer = teskarlt.done("preview", tmp_path / "in.dxf", "-o", tmp_path / "out.svg")
    assert "TEXT" not in answer.stderr and "HATCH" not in answer.stderr
    texts = {text.text: text for text in ElementTree.parse(tmp_path / "out.svg").getroot().iter(f"{SVG}text")}
    assert {"K\u00fcche 12,5 m\u00b2", "Bath", "h = 2,50", "D", "D 17"} <= texts.keys()
    assert texts["K\u00fcche 12,5 m\u00b2"].get("transform").startswith("matrix(0 -1 1 0 ")
    assert texts["D"].get("transform").startswith("matrix(0.866 -0.5 0.5 0.866 ")
    assert float(texts["D"].get("font-size")) / float(texts["Bath"].get("font-size")) == pytest.approx(1, abs=0.01)
    assert 'fill-opacity="0.2"' in (tmp_path / "out.svg").read_text()


def test_holes_of_roofs_stay_open(teskarlt, tmp_path):
    """A red roof of ten metres with a hole of four in its middle, as polylines and as a hatch."""
    squares = [[(low, low), (high, low), (high, high), (low, high)] for low, high in ((0, 10), (3, 7))]
    for kind in ("polylines", "hatch"):
        path = tmp_path / f"{kind}.dxf"
        document = ezdxf.new("R2010")
        space = document.modelspace()
        if kind == "hatch":
            hatch = space.add_hatch(color=1, dxfattribs={"extrusion": (0, -0.6, 0.8)})
            for square in squares:
                hatch.paths.add_polyline_path(square, is_closed=True)
        else:
            for square in squares:
                space.add_polyline3d([(x, y, y) for x, y in square], close=True, dxfattribs={"color": 1})
        document.saveas(path)
        teskarlt.done("preview", path, "-o", tmp_path / "out.png", "--view", "plan", "--width", "200")
        picture = pictures.pixels((tmp_path / "out.png").read_bytes())
        assert pictures.is_red(*picture.at(40, picture.height / 2)), kind
        assert not pictures.is_red(*picture.at(100, picture.height / 2)), kind


def names_in(path):
    """The names of roofs in a vector picture, with their places."""
    group = ElementTree.parse(path).getroot().find(f"{SVG}g[@id='roof-names']")
    return {text.text: (float(text.get("x")), float(text.get("y"))) for text in group}


def test_roofs_bear_their_names_where_they_are_seen(teskarlt, windowed, tmp_path):
    """The layers of the house say which roof is which; its plan is 15.7 m wide, from 0.4 m west of the origin."""
    listed = {roof["roof"]: roof for roof in teskarlt.done("roofs", windowed, "--json").json["roofs"]}
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--roofs")
    names = names_in(tmp_path / "out.svg")
    assert names.keys() == listed.keys()
    for name, (x, y) in names.items():
        corners = [corner for ring in listed[name]["outline"] for corner in ring]
        lows, highs = ([extreme(corner[axis] for corner in corners) for axis in (0, 1)] for extreme in (min, max))
        scale = 936 / 15700  # pixels a millimetre
        assert lows[0] < (x - 32) / scale - 400 < highs[0], name
    assert names["R2"][1] < names["R1"][1]  # R2 is the northern one


def test_only_what_faces_the_viewer_bears_a_name(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--roofs", "--view", "south")
    assert {"R1", "R3"} <= names_in(tmp_path / "out.svg").keys() and "R2" not in names_in(tmp_path / "out.svg")


def test_names_stand_in_pictures_of_pixels(teskarlt, windowed, tmp_path):
    def is_ink(red, green, blue):
        return abs(red - 29) + abs(green - 58) + abs(blue - 79) < 12
    shares = []
    for options in ([], ["--roofs"]):
        teskarlt.done("preview", windowed, "-o", tmp_path / "out.png", "--width", "600", *options)
        shares.append(pictures.pixels((tmp_path / "out.png").read_bytes()).share(is_ink))
    assert shares[1] > shares[0] + 0.0003


def test_picture_zooms_to_a_roof(teskarlt, windowed, tmp_path):
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--on", "r3")
    assert "R3" in names_in(tmp_path / "out.svg") and ">house, roof R3</text>" in (tmp_path / "out.svg").read_text()
    refused(teskarlt("preview", windowed, "-o", tmp_path / "out.svg", "--on", "R9"), "no roof with the name R9")


def test_names_without_room_are_counted(teskarlt, windowed, tmp_path):
    answer = teskarlt.done("preview", windowed, "-o", tmp_path / "out.svg", "--roofs", "--width", "100")
    assert "3 roofs have no room for their names in this picture" in answer.stderr


def test_picture_has_the_size_that_was_asked_for(teskarlt, windowed, tmp_path):
    for size in ((640, 360), (300, 500)):
        teskarlt.done("preview", windowed, "-o", tmp_path / "out.png", "--size", "{}x{}".format(*size))
        picture = pictures.pixels((tmp_path / "out.png").read_bytes())
        assert (picture.width, picture.height) == size
        assert picture.share(pictures.is_red) > 0.05


def test_windows_bear_their_tags(teskarlt, windowed, tmp_path):
    """The tag is seen from the south, where the window faces, and not from the north."""
    def is_ink(red, green, blue):
        return abs(red - 29) + abs(green - 58) + abs(blue - 79) < 12
    shares = {}
    for view in ("south", "north"):
        for options in ((), ("--tags",)):
            teskarlt.done("preview", windowed, "-o", tmp_path / "out.png", "--width", "800", "--view", view, *options)
            picture = pictures.pixels((tmp_path / "out.png").read_bytes())
            shares[view, bool(options)] = sum(is_ink(*pixel) for pixel in picture.all())
    assert shares["south", True] > shares["south", False] + 20
    assert shares["north", True] == shares["north", False]


def test_tags_without_room_are_counted(teskarlt, windowed, tmp_path):
    answer = teskarlt.done("preview", windowed, "-o", tmp_path / "out.png", "--tags", "--width", "100")
    assert "1 window has no room for its tag in this picture" in answer.stderr


def test_transparent_picture_has_alpha(teskarlt, windowed, tmp_path):
    """Around the house nothing, the house as it is in a picture with a ground."""
    for name, options in (("plain", []), ("clear", ["--transparent"])):
        teskarlt.done("preview", windowed, "-o", tmp_path / f"{name}.png", "--size", "200x200", *options)
    plain, clear = (pictures.pixels((tmp_path / f"{name}.png").read_bytes()) for name in ("plain", "clear"))
    alpha = pictures.alpha((tmp_path / "clear.png").read_bytes())
    assert alpha[0] == 0 and set(alpha) >= {0, 255}
    opaque = [place for place, value in enumerate(alpha) if value == 255]
    plain, clear = plain.all(), clear.all()
    assert len(opaque) > 4000 and [plain[place] for place in opaque] == [clear[place] for place in opaque]


WRONG_USAGE = {"size of a page": ["-o", "out.html", "--size", "300x300"], "size and width": ["-o", "out.png", "--size", "300x300", "--width", "300"],
               "size that is none": ["-o", "out.png", "--size", "300"], "transparent plan": ["-o", "out.svg", "--transparent"], "tags of a plan": ["-o", "out.svg", "--tags"],
               "no format": ["-o", "out.jpg"], "view of a page": ["-o", "out.html", "--view", "iso"],
               "names in a model": ["-o", "out.glb", "--roofs"], "roof and window": ["-o", "out.svg", "--on", "R1", "--window", "1"],
               "width of a model": ["-o", "out.glb", "--width", "500"], "unknown view": ["-o", "out.svg", "--view", "up"],
               "no output": []}


@pytest.mark.parametrize("case", WRONG_USAGE)
def test_wrong_usage(teskarlt, house, tmp_path, case):
    answer = teskarlt("preview", house, *WRONG_USAGE[case], cwd=tmp_path)
    assert (answer.status, answer.stdout) == (2, ""), answer
    assert not list(tmp_path.glob("out.*"))


def test_missing_window_and_layer_are_refused(teskarlt, windowed, tmp_path):
    output = tmp_path / "out.svg"
    refused(teskarlt("preview", windowed, "-o", output, "--window", "9"), "number 9")
    refused(teskarlt("preview", windowed, "-o", output, "--layer", "CELLAR"), '"CELLAR"')
    refused(teskarlt("preview", tmp_path / "none.dxf", "-o", output), "none.dxf")
    refused(teskarlt("preview", windowed, "-o", tmp_path / "no folder" / "out.svg"), "no folder")
    assert not output.exists()


def test_drawing_is_not_changed(teskarlt, windowed, tmp_path):
    before = windowed.read_bytes()
    teskarlt.done("preview", windowed, "-o", tmp_path / "out.png", "--width", "100")
    assert readers.first_difference(before, windowed.read_bytes()) is None
