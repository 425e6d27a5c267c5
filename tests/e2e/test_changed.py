# test_changed.py - windows that another CAD program moved, turned, mirrored, scaled and copied.
import math

import ezdxf
import pytest
import readers
import windows
from ezdxf.math import Matrix44
from roofs import Roof

ROOF = Roof(direction=250, pitch=40)
MIRROR_X = Matrix44.scale(-1, 1, 1)
CODES = {"E": "ER", "ER": "EL", "EIL": "EIR", "EOR": "EOL", "ELI": "ERI", "BE": "BER", "D": "D"}


def of_window(drawing, number):
    return [entity for entity in windows.window_entities(drawing)
            if entity.get_xdata("TK_LT_ELEM")[-1].value == number]


def transform(path, matrix, with_description, number=1, with_roof=True):
    """What a CAD program does to the window, and to the roof under it; some move the description's points along."""
    drawing = ezdxf.readfile(path)
    entities = of_window(drawing, number)
    for entity in entities:
        tags = entity.get_xdata("TK_LT_DESC")
        entity.transform(matrix)
        entity.set_xdata("TK_LT_DESC", [(tag.code, matrix.transform(tag.value)) if with_description and tag.code == 1011
                                        else (tag.code, tag.value) for tag in tags])
    if with_roof:
        for face in drawing.modelspace().query('3DFACE[layer=="ROOF"]'):
            face.transform(matrix)
    drawing.saveas(path)


def listed(teskarlt, path):
    return teskarlt.done("list", path, "--json").json["windows"]


def shapes(path):
    return [windows.points(entity) for entity in windows.window_entities(readers.audited(path))]


def assert_same_place(before, after, tolerance):
    """Every entity lies where one lay before, whichever way round its points run."""
    def key(points):
        return sorted(tuple(round(value, 2) for value in point) for point in points)
    assert len(before) == len(after)
    for one, other in zip(sorted(before, key=key), sorted(after, key=key)):
        for a, b in zip(sorted(one), sorted(other)):
            assert windows.distance(a, b) < tolerance, (one, other)


@pytest.fixture
def path(teskarlt, tmp_path):
    path = tmp_path / "roof.dxf"
    ROOF.save(path)
    return path


def insert(teskarlt, path, **settings):
    x, y, _ = ROOF.point(0.4, 0.3)
    teskarlt.done("insert", path, "--at", f"{x!r},{y!r}",
                  *(part for name, value in settings.items() for part in ("--set", f"{name}={value}")))


MATRICES = {
    "moved": Matrix44.translate(3000, -2000, 500),
    "turned": Matrix44.z_rotate(math.radians(75)),
    "mirrored": MIRROR_X,
    "mirrored along y": Matrix44.scale(1, -1, 1),
    "moved and turned": Matrix44.z_rotate(2.0) @ Matrix44.translate(1e6, 2e6, 0),
    "doubled": Matrix44.scale(2, 2, 2),
    "steeper": Matrix44.scale(1, 1, 1.3),
}
KINDS = [
    {}, {"widthAnchor": 1, "openingCode": "EIR"}, {"widthAnchor": 2, "openingCode": "E", "bodyAsFaces": 0},
    {"roofBuildUp": 2, "slopeOffset": 0.25, "skirtHeight": 0.05}, {"drawOpeningSymbol": 0, "heightReference": 3},
    {"roofBuildUp": 0, "heightReference": 2, "layerThickness": 0.2}, {"roofBuildUp": 0, "heightReference": 3},
    {"drawOpeningSymbol": 0, "bodyAsFaces": 0, "heightReference": 0}, {"bodyAsFaces": 0, "skirtHeight": 0.04},
]


@pytest.mark.many
@pytest.mark.parametrize("with_description", [False, True], ids=["description-left", "points-moved-along"])
@pytest.mark.parametrize("change", MATRICES)
@pytest.mark.parametrize("settings", KINDS, ids=str)
def test_changed_window_stays_where_it_stands_when_it_is_edited(
        teskarlt, path, settings, change, with_description):
    if change == "steeper" and settings.get("drawOpeningSymbol") == 0 and "bodyAsFaces" in settings:
        pytest.skip("only the opening tells the length, and it was cut for another pitch")
    insert(teskarlt, path, **settings)
    transform(path, MATRICES[change], with_description)
    before = shapes(path)
    [window] = listed(teskarlt, path)
    assert window["editable"], window["notes"]
    answer = teskarlt.done("edit", path, "1", "--set", "text1=Seen")
    # What is drawn of the opening depends on the layer's thickness, and the glass lies at a depth of its own:
    # neither grows with a window that was scaled.
    if change in ("doubled", "steeper"):
        [after] = listed(teskarlt, path)
        for field in ("width", "length"):
            assert abs(after["fields"][field] - window["fields"][field]) < 1e-6
        assert windows.distance(after["fields"]["storedPoint"], window["fields"]["storedPoint"]) < 1e-2
        assert "note: window 1: " in answer.stderr
    else:
        assert_same_place(before, shapes(path), 1e-2)
    [after] = listed(teskarlt, path)
    assert after["notes"] == [] and not after["mirrored"] and after["fields"]["text1"] == "Seen"


@pytest.mark.parametrize("code", CODES)
def test_mirrored_window_has_its_hinges_on_the_other_side(teskarlt, path, code):
    insert(teskarlt, path, openingCode=code, widthAnchor=1)
    transform(path, MIRROR_X, False)
    [window] = listed(teskarlt, path)
    assert window["mirrored"] and "it was mirrored" in window["notes"]
    assert (window["fields"]["openingCode"], window["fields"]["widthAnchor"]) == (CODES[code], 2)
    assert window["sources"]["widthAnchor"] == "geometry"


def test_scaled_window_has_the_sizes_that_are_drawn(teskarlt, path):
    insert(teskarlt, path, skirtHeight=0.05)
    transform(path, Matrix44.scale(2, 2, 2), False)
    [window] = listed(teskarlt, path)
    sizes = {"width": 1.88, "length": 2.8, "frameWidth": 0.2, "frameDepth": 0.16, "skirtHeight": 0.1}
    assert {name: window["fields"][name] for name in sizes} == sizes
    assert all(window["sources"][name] == "geometry" for name in sizes)
    assert "it is 1.88 m wide in the drawing and 0.94 m by its description" in window["notes"]


def test_window_listed_where_it_was_moved_to(teskarlt, path):
    insert(teskarlt, path)
    [before] = listed(teskarlt, path)
    transform(path, Matrix44.translate(1000, 2000, 300), False)
    [after] = listed(teskarlt, path)
    x, y, z = before["fields"]["storedPoint"]
    assert windows.distance(after["fields"]["storedPoint"], (x + 1000, y + 2000, z + 300)) < 1e-6
    assert abs(after["fields"]["lowerEdgeHeight"] - before["fields"]["lowerEdgeHeight"] - 0.3) < 1e-9
    assert after["notes"] == ["it stands 2.256 m from the place in its description"]
    assert "window 1: it stands 2.256 m" in teskarlt.done("list", path).stdout


SHEAR = Matrix44([1, 0, 0, 0, 0.5, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1])


@pytest.mark.parametrize("matrix, why", [
    (SHEAR, "no rectangle"),
    (Matrix44.x_rotate(math.radians(30)), "not horizontal"),
    (Matrix44.axis_rotate((math.cos(math.radians(160)), math.sin(math.radians(160)), 0), math.radians(-80)),
     "upside down"),
    (Matrix44.scale(0, 1, 1), "squeezed to a line|upright|no rectangle"),
], ids=["sheared", "tilted", "upside-down", "squeezed"])
def test_what_is_no_roof_window_any_more_is_listed_and_can_only_be_erased(teskarlt, path, matrix, why):
    insert(teskarlt, path)
    transform(path, matrix, False)
    [window] = listed(teskarlt, path)
    assert not window["editable"] and window["fields"]["width"] == 0.94
    assert any(part in window["notes"][-1] for part in why.split("|")), window["notes"]
    before = path.read_bytes()
    answer = teskarlt("edit", path, "1", "--set", "text1=x")
    assert answer.status == 1 and any(part in answer.stderr for part in why.split("|"))
    assert path.read_bytes() == before
    teskarlt.done("erase", path, "1")
    assert listed(teskarlt, path) == []


@pytest.mark.parametrize("part", [-1, 0, 16, 17, 25, 28], ids=["outline", "wall", "pane", "frame", "mark", "other-mark"])
def test_window_whose_parts_were_moved_apart_is_not_changed(teskarlt, path, part):
    insert(teskarlt, path)
    drawing = ezdxf.readfile(path)
    entity = of_window(drawing, 1)[part]
    tags = list(entity.get_xdata("TK_LT_DESC"))
    entity.translate(0, 0, 100)
    entity.set_xdata("TK_LT_DESC", tags)
    drawing.saveas(path)
    answer = teskarlt("edit", path, "1", "--set", "text1=x")
    assert answer.status == 1 and "its parts were moved apart" in answer.stderr


def test_leaning_body_is_told(teskarlt, path):
    insert(teskarlt, path)
    transform(path, MATRICES["steeper"], False)
    assert "its body is not square to its roof" in listed(teskarlt, path)[0]["notes"]


def test_skirt_of_a_window_without_faces_is_kept(teskarlt, path):
    insert(teskarlt, path, bodyAsFaces=0, skirtHeight=0.04)
    [window] = listed(teskarlt, path)
    assert (window["fields"]["skirtHeight"], window["sources"]["skirtHeight"]) == (0.04, "geometry")


def copy(path, offset, number=1, with_description=False, times=1):
    drawing = ezdxf.readfile(path)
    space = drawing.modelspace()
    for time in range(1, times + 1):
        matrix = Matrix44.translate(*(time * value for value in offset))
        for entity in of_window(drawing, number)[:33]:
            twin = entity.copy()
            space.add_entity(twin)
            tags = list(twin.get_xdata("TK_LT_DESC"))
            twin.transform(matrix)
            twin.set_xdata("TK_LT_DESC", [(tag.code, matrix.transform(tag.value)) if with_description and tag.code == 1011
                                          else (tag.code, tag.value) for tag in tags])
    drawing.saveas(path)


@pytest.mark.parametrize("with_description", [False, True], ids=["description-left", "points-moved-along"])
def test_copies_get_numbers_of_their_own(teskarlt, house, with_description):
    for at in ("2500,1200", "14000,4000"):
        teskarlt.done("insert", house, "--at", at)
    copy(house, (1800, 0, 0), with_description=with_description, times=2)
    found = listed(teskarlt, house)
    assert [window["number"] for window in found] == [1, 1, 1, 2]
    assert [round(window["fields"]["storedPoint"][0]) for window in found] == [2500, 4300, 6100, 14000]
    assert "renumber" in found[2]["notes"][-1]
    refusal = teskarlt("edit", house, "1", "--set", "width=1")
    assert refusal.status == 1 and "3 windows with the number 1" in refusal.stderr and "renumber" in refusal.stderr
    before = shapes(house)
    answer = teskarlt.done("renumber", house, "--json").json
    assert [(change["from"], change["to"], change["entities"]) for change in answer["windows"]] == [(1, 3, 33), (1, 4, 33)]
    assert [window["number"] for window in listed(teskarlt, house)] == [1, 2, 3, 4]
    assert shapes(house) == before
    teskarlt.done("edit", house, "4", "--set", "width=0.8")
    teskarlt.done("erase", house, "3")
    assert [window["number"] for window in listed(teskarlt, house)] == [1, 2, 4]


def test_renumbering_dry_or_where_nothing_is_to_do_writes_nothing(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    before = house.read_bytes()
    assert "a number of its own" in teskarlt.done("renumber", house).stdout
    assert house.read_bytes() == before
    copy(house, (1800, 0, 0))
    before = house.read_bytes()
    answer = teskarlt("renumber", house, "--dry-run")
    assert answer.status == 0 and "nothing was written" in answer.stdout
    assert house.read_bytes() == before


def test_file_written_though_nothing_is_renumbered_is_answered(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    answer = teskarlt.done("renumber", house, "-o", output, "--json").json
    assert answer["windows"] == [] and answer["file"] == teskarlt.spelled(output)
    assert output.read_bytes() == house.read_bytes()


def test_renumbering_changes_nothing_but_the_numbers(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200")
    copy(house, (1800, 0, 0))
    output = tmp_path / "out.dxf"
    assert teskarlt("renumber", house, "-o", output).status == 0
    before, after = (path.read_bytes().split(b"\n") for path in (house, output))
    changed = [(one.strip(), other.strip()) for one, other in zip(before, after) if one != other]
    assert len(before) == len(after) and changed == [(b"1", b"2")] * 33


def test_half_a_window_is_listed_with_what_is_missing_and_can_be_erased(teskarlt, path):
    insert(teskarlt, path)
    drawing = ezdxf.readfile(path)
    for entity in of_window(drawing, 1)[:5]:
        drawing.modelspace().delete_entity(entity)
    drawing.saveas(path)
    [window] = listed(teskarlt, path)
    assert window["notes"] == [
        "it cannot be changed: it has 12 faces and 16 lines, and should have 0, 17 or 21 faces and 16 lines"]
    assert teskarlt.done("erase", path, "1", "--json").json["erased"] == 28


def test_part_of_a_copy_is_not_erased_with_its_model(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    copy(house, (1800, 0, 0))
    drawing = ezdxf.readfile(house)
    drawing.modelspace().delete_entity(of_window(drawing, 1)[-1])
    drawing.saveas(house)
    before = house.read_bytes()
    answer = teskarlt("erase", house, "1")
    assert answer.status == 1 and "34 faces and 31 lines" in answer.stderr and house.read_bytes() == before


def test_fragment_keeps_the_number_of_its_window(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    drawing = ezdxf.readfile(house)
    of_window(drawing, 1)[3].translate(0, 0, 50)  # its description goes along
    drawing.saveas(house)
    before = house.read_bytes()
    assert [window["notes"][0] for window in listed(teskarlt, house)][1] == (
        "its number is that of a window before it, of which it may be a part")
    assert teskarlt("renumber", house).status == 0 and house.read_bytes() == before


def test_other_entities_with_a_windows_data_are_no_parts_of_it(teskarlt, path):
    insert(teskarlt, path)
    drawing = ezdxf.readfile(path)
    model = of_window(drawing, 1)[0]
    text = drawing.modelspace().add_text("note")
    for application in ("TK_LT_ELEM", "TK_LT_DESC"):
        text.set_xdata(application, list(model.get_xdata(application)))
    drawing.saveas(path)
    assert [(window["faces"], window["lines"], window["notes"]) for window in listed(teskarlt, path)] == [(17, 16, [])]
    assert [finding["kind"] for finding in teskarlt("check", path, "--json").json["findings"]] == ["window-foreign-data"]
    teskarlt.done("erase", path, "1")
    assert len(ezdxf.readfile(path).modelspace().query("TEXT")) == 1


@pytest.mark.parametrize("with_description", [False, True], ids=["description-left", "points-moved-along"])
def test_pitch_is_the_one_that_is_drawn(teskarlt, path, with_description):
    insert(teskarlt, path)
    transform(path, MATRICES["steeper"], with_description)
    [window] = listed(teskarlt, path)
    expected = math.degrees(math.atan(1.3 * math.tan(math.radians(ROOF.pitch))))
    assert abs(window["fields"]["pitch"] - expected) < 1e-6 and window["sources"]["pitch"] == "geometry"
    assert f"its pitch is {expected:.2f} degrees in the drawing and 40.00 by its description" in window["notes"]


def test_renumbering_tells_where_the_copies_stand(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    copy(house, (1800, 0, 0))
    assert "Window 1 at 4300.000,1200.000: has the number 2." in teskarlt.done("renumber", house).stdout


def test_window_that_leaves_its_face_can_still_be_changed(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    transform(house, Matrix44.translate(4100, 0, 0), True, with_roof=False)
    answer = teskarlt.done("edit", house, "1", "--set", "text1=a")
    assert "% of it lie outside its roof face" in answer.stderr
