"""Tags of windows in the plan: drawn by mark, taken along by whatever changes windows, known to check."""
import ezdxf
import pytest

from readers import audited
from roofs import Roof

APPLICATION = "TK_LT_TAG"


def parts(path, number=None):
    """The entities of tags, of all windows or of one."""
    found = [entity for entity in ezdxf.readfile(path).modelspace() if entity.has_xdata(APPLICATION)]
    return [entity for entity in found
            if number is None or entity.get_xdata(APPLICATION).get_first_value(1071) == number]


def texts(path):
    return {entity.get_xdata(APPLICATION).get_first_value(1071): entity.dxf.text
            for entity in parts(path) if entity.dxftype() == "TEXT"}


def place(path, number):
    return next(entity for entity in parts(path, number) if entity.dxftype() == "TEXT").dxf.align_point


@pytest.fixture
def tagged(teskarlt, house):
    for x, mark in ((2500, "KITCHEN"), (4500, None)):
        teskarlt.done("insert", house, "--at", f"{x},1200", *(("--mark", mark) if mark else ()))
    answer = teskarlt.done("mark", house, "--tags")
    assert answer.stdout == f"2 tags drawn; written to {teskarlt.spelled(house)}.\n"
    return house


def test_tags_bear_marks_or_numbers_and_marks_stay(teskarlt, tagged):
    assert texts(tagged) == {1: "KITCHEN", 2: "W02"}
    windows = teskarlt.done("list", tagged, "--json").json["windows"]
    assert [window["mark"] for window in windows] == ["KITCHEN", None]
    audited(tagged)
    assert {entity.dxf.layer for entity in parts(tagged)} == {"ROOF_WINDOW_TAGS"}
    assert {entity.dxf.height for entity in parts(tagged) if entity.dxftype() == "TEXT"} == {200}


def test_tags_leave_all_else_to_the_byte(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200")
    before = house.read_bytes()
    teskarlt.done("mark", house, "--tags")
    assert teskarlt.done("mark", house, "--no-tags", "--json").json["tags"] == 1

    def entities(text):
        return text[text.index(b"ENTITIES"):text.index(b"ENDSEC", text.index(b"ENTITIES"))]

    assert entities(house.read_bytes()) == entities(before)


def test_no_roof_or_window_comes_of_tags(teskarlt, tagged):
    with_tags = [teskarlt.done(command, tagged, "--json").json for command in ("roofs", "list", "schedule")]
    teskarlt.done("mark", tagged, "--no-tags")
    assert [teskarlt.done(command, tagged, "--json").json for command in ("roofs", "list", "schedule")] == with_tags


@pytest.mark.parametrize("version", ["R12", "R2000", "R2004", "R2007", "R2018"])
@pytest.mark.parametrize("shape, count", [("circle", 3), ("box", 6), ("none", 2)])
def test_tags_are_sound_in_every_version(teskarlt, tmp_path, version, shape, count):
    path, roof = tmp_path / "roof.dxf", Roof()
    drawing = ezdxf.new(version)
    if version != "R12":
        drawing.header["$INSUNITS"] = 4
    drawing.modelspace().add_3dface(roof.corners)
    drawing.saveas(path)
    at = ",".join(repr(value) for value in roof.point(0, 0)[:2])
    teskarlt.done("insert", path, "--at", at, "--units", "mm", "--mark", "Küche Ω")
    teskarlt.done("mark", path, "--tags", "--tag-shape", shape, "--tag-height", "0.15", "--units", "mm")
    audited(path)
    assert len(parts(path)) == count
    teskarlt.done("edit", path, "1", "--set", "width=0.78", "--units", "mm")
    teskarlt.done("mark", path, "1", "--mark", "bath")
    audited(path)
    assert texts(path) == {1: "bath"}
    teskarlt.done("erase", path, "1")
    audited(path)
    assert parts(path) == []


def test_tag_goes_with_its_window(teskarlt, tagged):
    before = place(tagged, 1)
    other = place(tagged, 2)
    teskarlt.done("move", tagged, "1", "--by", "0,1")
    assert place(tagged, 1).y > before.y + 500
    assert place(tagged, 2) == other
    teskarlt.done("erase", tagged, "1")
    assert texts(tagged) == {2: "W02"}


def test_tag_moved_by_hand_stays(teskarlt, tagged):
    drawing = ezdxf.readfile(tagged)
    for entity in drawing.modelspace():
        if entity.has_xdata(APPLICATION):
            entity.translate(0, -2500, 0)
    drawing.saveas(tagged)
    before = place(tagged, 1)
    teskarlt.done("move", tagged, "1", "--by", "0,1")
    assert place(tagged, 1).isclose(before)
    circle, = (entity for entity in parts(tagged, 1) if entity.dxftype() == "CIRCLE")
    leader, = (entity for entity in parts(tagged, 1) if entity.dxftype() == "LINE")
    assert circle.dxf.center.isclose(before)
    distance = (leader.dxf.start - circle.dxf.center).vec2.magnitude
    assert distance == pytest.approx(circle.dxf.radius)


def test_text_follows_the_mark(teskarlt, tagged):
    teskarlt.done("edit", tagged, "2", "--mark", "BATH")
    assert texts(tagged) == {1: "KITCHEN", 2: "BATH"}
    teskarlt.done("mark", tagged, "--clear", "1")
    assert texts(tagged) == {1: "W01", 2: "BATH"}
    answer = teskarlt.done("mark", tagged, "--tags", "--mark", "{run}", "--json").json
    assert [window["to"] for window in answer["windows"]] == ["1", "2"]
    assert answer["tags"] == 2 and texts(tagged) == {1: "1", 2: "2"}


def test_nothing_changes_where_tags_stand(teskarlt, tagged):
    before = tagged.read_bytes()
    answer = teskarlt.done("mark", tagged, "--tags")
    assert answer.stdout == "Nothing changes: the windows have their tags; nothing was written.\n"
    answer = teskarlt.done("mark", tagged, "--no-tags", "--dry-run")
    assert answer.stdout.startswith("2 tags would be taken away; nothing was written")
    assert tagged.read_bytes() == before


def test_check_names_tags_that_say_the_wrong_thing(teskarlt, tagged):
    drawing = ezdxf.readfile(tagged)
    for entity in drawing.modelspace():
        if entity.has_xdata(APPLICATION) and entity.dxftype() == "TEXT" and entity.dxf.text == "W02":
            entity.dxf.text = "W09"
    drawing.saveas(tagged)
    findings = [finding["message"] for finding in teskarlt.done("check", tagged, "--json").json["findings"]
                if finding["kind"] == "window-tag"]
    assert findings == [
        "the tag of window 2 reads W09, and the window is called W02; teskarlt mark --tags rewrites it"]
    teskarlt.done("mark", tagged, "--tags")
    assert texts(tagged) == {1: "KITCHEN", 2: "W02"}


def test_undo_brings_the_tag_back(teskarlt, tagged):
    before = tagged.read_bytes()
    teskarlt.done("erase", tagged, "1", "--backup")
    teskarlt.done("undo", tagged)
    assert tagged.read_bytes() == before


@pytest.mark.parametrize("options, status, reason", [
    (("--tags", "--tag-height", "0"), 1, "--tag-height 0: a text has a height"),
    (("--tags", "--tag-height", "-1"), 1, "--tag-height -1: a distance is not negative"),
    (("--tag-height", "0.2"), 2, "--tags"), (("--tags", "--no-tags"), 2, "--no-tags"),
    (("--tags", "--tag-shape", "star"), 2, "star"), (("--tags", "9"), 1, "9")])
def test_orders_that_cannot_be_meant_are_refused(teskarlt, tagged, options, status, reason):
    before = tagged.read_bytes()
    answer = teskarlt("mark", tagged, *options)
    assert answer.status == status and reason in answer.stderr
    assert tagged.read_bytes() == before
