# test_insert.py - what an inserted window leaves in the drawing, and that nothing else changes.
import json

import ezdxf
import pytest
import readers
import windows
from roofs import DIRECTIONS, Roof

CZECH = "Střešní okno Příklad č. 7"


def insert(teskarlt, source, output, *options):
    return teskarlt.done("insert", source, "--at", "2500,1200", "-o", output, *options)


def test_window_has_its_faces_and_lines_on_their_layers(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    insert(teskarlt, house, output)
    entities = windows.window_entities(readers.audited(output))
    kinds = [(entity.dxftype(), entity.dxf.layer, entity.dxf.get("color"), entity.dxf.get("linetype"))
             for entity in entities]
    assert kinds == [("3DFACE", "ROOF_WINDOW_BODY", None, None)] * 16 + \
        [("3DFACE", "ROOF_WINDOW_BODY", 4, None)] + \
        [("LINE", "ROOF_WINDOW_SYMBOL", None, None)] * 8 + \
        [("LINE", "ROOF_WINDOW_SYMBOL", None, "DASHED")] * 2 + \
        [("LINE", "ROOF_WINDOW_SYMBOL", None, None)] * 2 + \
        [("LINE", "ROOF_WINDOW_OUTLINE", None, None)] * 4


def test_extended_data_stands_in_the_drawing_item_for_item(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    insert(teskarlt, house, output, "--set", "text1=Maker", "--set", "text2=Second", "--set", "text3=Third",
           "--set", "openingCode=BI", "--set", "rotation2=0.25", "--set", "markerValue=7")
    data = readers.gdal_extended_data(output)
    assert len(data) == 17 + 8 + 2 + 4
    blocks = {json.dumps(items) for items in data.values()}
    assert len(blocks) == 1
    items = json.loads(blocks.pop())
    assert [code for code, _ in items] == \
        [1001, 1000, 1071, 1001, 1070, 1040, 1041, 1042, 1000, 1000, 1000, 1070, 1040, 1040, 1070, 1070, 1070] + \
        [1011, 1021, 1031] * 2 + [1040] * 4 + [1011, 1021, 1031] * 6 + [1000]
    texts = [value for code, value in items if code in (1000, 1001)]
    assert texts == ["TK_LT_ELEM", "TKBRVA", "TK_LT_DESC", "Maker", "Third", "BI", "Second"]
    assert [int(value) for code, value in items if code in (1070, 1071)] == [7, 1, -1, 1, 0, 1]
    sizes = [float(value) for code, value in items if code in (1041, 1042)] + \
        [float(value) for code, value in items if code == 1040][:2]
    assert sizes == [940, 100, 1400, 80]


def test_everything_else_keeps_its_bytes(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    before = house.read_bytes()
    insert(teskarlt, house, output)
    assert house.read_bytes() == before
    changed, inserted = readers.line_changes(before, output.read_bytes())
    # The handle seed and the counts of the tables that got a record.
    assert len(changed) <= 4, changed
    assert inserted > 33 * 80


def test_without_an_output_the_drawing_itself_is_replaced(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    insert(teskarlt, house, output)
    teskarlt.done("insert", house, "--at", "2500,1200")
    assert house.read_bytes() == output.read_bytes()


def test_dry_run_writes_nothing(teskarlt, house, tmp_path):
    before = house.read_bytes()
    answer = teskarlt.done("insert", house, "--at", "2500,1200", "--dry-run")
    assert "nothing was written" in answer.stdout
    assert house.read_bytes() == before
    assert sorted(path.name for path in tmp_path.iterdir()) == ["data", "house.dxf"]


def test_handles_stay_unique_and_below_the_seed(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    insert(teskarlt, house, output)
    insert(teskarlt, output, output, "--set", "lowerEdgeHeight=4.5")
    handles = readers.handles(output)
    assert len(handles) == len(set(handles))
    seed = readers.audited(output).header["$HANDSEED"]
    assert int(seed, 16) > max(int(handle, 16) for handle in handles if handle != seed)


def test_windows_are_numbered_and_listed(teskarlt, house, tmp_path):
    for number, at in enumerate(("2500,1200", "4800,1200", "14000,4000"), start=1):
        answer = teskarlt.done("insert", house, "--at", at, "--json").json
        assert answer["number"] == number
    found = teskarlt.done("list", house, "--json").json["windows"]
    assert [window["number"] for window in found] == [1, 2, 3]
    assert all(window["complete"] and window["faces"] == 17 and window["lines"] == 16 for window in found)


def test_list_gives_back_what_was_asked_for(teskarlt, house):
    asked = {"width": 1.14, "length": 1.18, "frameWidth": 0.06, "frameDepth": 0.1, "heightReference": 3, "widthAnchor": 1,
             "layerThickness": 0.3, "text1": "Maker", "text2": "Second", "text3": CZECH, "openingCode": "EOR",
             "drawOpeningSymbol": 2, "rotation2": 0.125}
    settings = [part for field, value in asked.items() for part in ("--set", f"{field}={value}")]
    teskarlt.done("insert", house, "--at", "2500,1200", *settings)
    window, = teskarlt.done("list", house, "--json").json["windows"]
    assert {field: window["fields"][field] for field in asked} == asked
    assert abs(window["fields"]["pitch"] - 35) < 1e-9


@pytest.mark.parametrize("version", ["R12", "R2000"])
def test_czech_texts_reach_other_programs(teskarlt, tmp_path, version):
    source, output = tmp_path / "roof.dxf", tmp_path / "out.dxf"
    roof = Roof(version=version)
    roof.save(source)
    x, y, _ = roof.point()
    teskarlt.done("insert", source, "--at", f"{x},{y}", "--set", f"text1={CZECH}", "--units", "mm", "-o", output)
    block = next(iter(readers.gdal_extended_data(output).values())) if version == "R2000" else None
    entity = windows.window_entities(readers.audited(output))[0]
    texts = [tag.value for tag in entity.get_xdata("TK_LT_DESC") if tag.code == 1000]
    assert texts[0] == CZECH
    assert block is None or CZECH in [value for _, value in block]


def test_skirt_adds_a_band_of_four_faces(teskarlt, house):
    answer = teskarlt.done("insert", house, "--at", "2500,1200", "--set", "skirtHeight=0.05", "--json").json
    assert (answer["faces"], answer["lines"]) == (21, 16)


def test_window_without_faces_and_symbol_is_an_opening_with_a_cross(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    insert(teskarlt, house, output, "--set", "bodyAsFaces=0", "--set", "drawOpeningSymbol=0")
    entities = windows.window_entities(readers.audited(output))
    assert [(entity.dxftype(), entity.dxf.layer) for entity in entities] == [("LINE", "ROOF_WINDOW_OPENING")] * 7


@pytest.mark.parametrize("code, marks", [("", 0), ("B", 2), ("BI", 2), ("C", 2), ("D", 4), ("E", 2), ("ER", 2),
                                         ("BCDE", 10)])
def test_opening_code_decides_the_marks(teskarlt, house, code, marks):
    answer = teskarlt.done("insert", house, "--at", "2500,1200", "--set", f"openingCode={code}", "--json").json
    assert answer["lines"] == 8 + marks + 4


@pytest.mark.many
@pytest.mark.parametrize("roof", [Roof(direction=direction) for direction in DIRECTIONS], ids=str)
def test_tip_of_a_mark_points_to_the_hinges(teskarlt, tmp_path, roof):
    """B at the top, C at the bottom; E as seen from inside: right there is left where one looks up the slope."""
    path = tmp_path / "roof.dxf"
    roof.save(path)
    x, y, _ = roof.point()
    up, right = ([end - start for start, end in zip((x, y), roof.point(**step))] for step in ({"up": 1}, {"across": 1}))
    for code, (a, b), side in (("BO", up, 1), ("CI", up, -1), ("EOL", right, 1), ("EIR", right, -1), ("E", right, 1)):
        output = tmp_path / f"{code}.dxf"
        teskarlt.done("insert", path, "--at", f"{x!r},{y!r}", "--set", f"openingCode={code}", "-o", output)
        symbol = [entity for entity in windows.window_entities(ezdxf.readfile(output))
                  if entity.dxf.layer == "ROOF_WINDOW_SYMBOL"]
        tip, middle = symbol[-1].dxf.start, sum((line.dxf.start for line in symbol[4:8]), start=ezdxf.math.Vec3()) / 4
        assert ((tip.x - middle.x) * a + (tip.y - middle.y) * b) * side > 0, code
        assert {line.dxf.get("linetype") for line in symbol[-2:]} == {"DASHED" if code[1:2] == "I" else None}, code


@pytest.mark.parametrize("version", ["R12", "R2000", "R2018"])
@pytest.mark.parametrize("units", ["mm", "cm", "m"])
def test_new_drawing_takes_a_window(teskarlt, tmp_path, version, units):
    path = tmp_path / "new.dxf"
    teskarlt.done("new", path, "--dxf-version", version, "--units", units)
    readers.audited(path)
    teskarlt.done("insert", path, "--roof", "0,0,0", "10,0,0", "10,10,7", "--at", "0,0")
    drawing = readers.audited(path)
    assert len(windows.window_entities(drawing)) == 33
    scale = {"mm": 1000, "cm": 100, "m": 1}[units]
    corner0, _, _, corner3 = windows.outline(drawing)
    assert abs(windows.distance(corner0, corner3) - 0.94 * scale) < 1e-9 * scale
