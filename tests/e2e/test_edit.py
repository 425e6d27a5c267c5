# test_edit.py - windows changed and taken out again, through the module's own command.
import shutil

import pytest
import readers
import windows
from roofs import Roof

AT = ("--at", "2500,1200")


def refused(answer, *parts):
    assert answer.status == 1, answer
    assert answer.stdout == "" and answer.stderr.count("\n") == 1, answer
    for part in parts:
        assert part in answer.stderr, answer.stderr


def listed(teskarlt, path):
    return teskarlt.done("list", path, "--json").json["windows"]


@pytest.fixture
def with_windows(teskarlt, house):
    """The house with three windows."""
    for at in ("2500,1200", "4800,1200", "14000,4000"):
        teskarlt.done("insert", house, "--at", at, "--set", "text1=Maker")
    return house


def test_changed_window_keeps_its_number_and_what_was_not_changed(teskarlt, with_windows):
    before = listed(teskarlt, with_windows)[1]["fields"]
    teskarlt.done("edit", with_windows, "2", "--set", "width=1.2", "--set", "openingCode=B")
    found = listed(teskarlt, with_windows)
    assert sorted(window["number"] for window in found) == [1, 2, 3]
    after = next(window for window in found if window["number"] == 2)
    assert (after["faces"], after["lines"]) == (17, 14)
    changed = {name for name in before if before[name] != after["fields"][name]}
    assert changed == {"width", "openingCode"}


def test_window_that_is_changed_to_nothing_new_is_the_same(teskarlt, with_windows, tmp_path):
    output = tmp_path / "out.dxf"
    teskarlt.done("edit", with_windows, "1", "-o", output)
    points = [[windows.points(entity) for entity in windows.window_entities(readers.audited(path))]
              for path in (with_windows, output)]
    assert sorted(points[0]) == sorted(points[1])


@pytest.mark.parametrize("settings", [
    {}, {"skirtHeight": 0.05}, {"bodyAsFaces": 0}, {"drawOpeningSymbol": 0}, {"drawOpeningSymbol": 0, "bodyAsFaces": 0},
    {"roofBuildUp": 2, "slopeOffset": 0.25}, {"roofBuildUp": 2, "slopeOffset": 0.25, "drawOpeningSymbol": 0},
    {"roofBuildUp": 0, "heightReference": 2, "layerThickness": 0.2}, {"roofBuildUp": 0, "heightReference": 3},
    {"widthAnchor": 1}, {"widthAnchor": 2}, {"lowerEdgeHeight": 4.0}, {"openingCode": "EIR"}, {"heightReference": 0},
], ids=str)
def test_every_kind_of_window_survives_an_edit(teskarlt, tmp_path, settings):
    roof = Roof(direction=70, pitch=40)
    first, second = tmp_path / "first.dxf", tmp_path / "second.dxf"
    roof.save(first)
    x, y, _ = roof.point()
    options = [part for name, value in settings.items() for part in ("--set", f"{name}={value}")]
    teskarlt.done("insert", first, "--at", f"{x!r},{y!r}", *(option.replace("=4.0", "=3.2") for option in options))
    teskarlt.done("edit", first, "1", "-o", second)
    expected, actual = ([windows.points(entity) for entity in windows.window_entities(readers.audited(path))]
                        for path in (first, second))
    assert len(actual) == len(expected)
    for one, other in zip(expected, actual):
        for a, b in zip(one, other):
            assert windows.distance(a, b) < 1e-6


def test_window_can_be_moved(teskarlt, with_windows):
    teskarlt.done("edit", with_windows, "2", "--at", "6000,6800")
    window = next(window for window in listed(teskarlt, with_windows) if window["number"] == 2)
    assert [round(value, 6) for value in window["fields"]["storedPoint"][:2]] == [6000, 6800]


def test_height_of_an_edge_moves_the_window(teskarlt, with_windows):
    teskarlt.done("edit", with_windows, "1", "--set", "lowerEdgeHeight=4.6")
    window = next(window for window in listed(teskarlt, with_windows) if window["number"] == 1)
    assert abs(window["fields"]["storedPoint"][2] - 4600) < 1e-6


@pytest.mark.parametrize("options, parts", [
    (["9"], ["no window 9"]),
    (["2", "--set", "width=0"], ["width must be greater than 0"]),
    (["2", "--set", "markerValue=7"], ["the window keeps its number 2"]),
    (["2", "--at", "2500,3900"], ["leave the roof face"]),
], ids=str)
def test_refused_edit_leaves_the_drawing(teskarlt, with_windows, options, parts):
    before = with_windows.read_bytes()
    refused(teskarlt("edit", with_windows, *options), *parts)
    assert with_windows.read_bytes() == before


def test_window_whose_entities_are_missing_is_not_changed(teskarlt, with_windows):
    drawing = readers.ezdxf.readfile(with_windows)
    face = next(entity for entity in windows.window_entities(drawing) if entity.dxftype() == "3DFACE")
    drawing.modelspace().delete_entity(face)
    drawing.saveas(with_windows)
    refused(teskarlt("edit", with_windows, "1", "--set", "width=1"), "window 1 cannot be changed", "16 faces")


def test_erased_window_leaves_the_drawing_as_it_was_before(teskarlt, house, tmp_path):
    once, twice = tmp_path / "once.dxf", tmp_path / "twice.dxf"
    teskarlt.done("insert", house, *AT, "-o", once)
    teskarlt.done("insert", once, "--at", "4800,1200", "-o", twice)
    teskarlt.done("erase", twice, "2")
    changed, came = readers.line_changes(once.read_bytes(), twice.read_bytes())
    assert len(changed) <= 1 and came <= 5  # the handle seed, and the number that is not given again


def test_erasing_tells_what_went_and_the_others_stay(teskarlt, with_windows):
    answer = teskarlt.done("erase", with_windows, "2", "--json").json
    assert (answer["number"], answer["erased"]) == (2, 33)
    assert [window["number"] for window in listed(teskarlt, with_windows)] == [1, 3]
    readers.audited(with_windows)


def test_edit_tells_what_changed_with_both_values(teskarlt, with_windows):
    answer = teskarlt.done("edit", with_windows, "2", "--set", "width=1.2", "--set", "text1=Other", "--dry-run")
    assert answer.stdout.splitlines()[3:] == ["width: 0.94 m -> 1.2 m", 'text1: "Maker" -> "Other"']
    changes = teskarlt.done("edit", with_windows, "2", "--set", "width=1.2", "--json").json["changes"]
    assert changes == [{"field": "width", "from": 0.94, "to": 1.2}]


def test_edit_that_changes_nothing_writes_nothing_and_says_so(teskarlt, with_windows, tmp_path):
    before, output = with_windows.read_bytes(), tmp_path / "out.dxf"
    answer = teskarlt.done("edit", with_windows, "1", "--set", "text1=Maker")
    assert answer.stdout.splitlines()[2:] == ["Nothing changes: it stands there as ordered; nothing was written."]
    answer = teskarlt.done("edit", with_windows, "1", "--json").json
    assert answer["changes"] == [] and answer["file"] is None
    assert with_windows.read_bytes() == before
    teskarlt.done("edit", with_windows, "1", "-o", output)
    assert output.read_bytes() == before


@pytest.mark.parametrize("direction", range(0, 360, 45))
def test_edit_changes_nothing_unasked_wherever_the_roof_falls_to(teskarlt, tmp_path, direction):
    roof, path = Roof(direction=direction), tmp_path / "roof.dxf"
    roof.save(path)
    x, y, _ = roof.point(0.3, -0.2)
    teskarlt.done("insert", path, "--at", f"{x!r},{y!r}", "--set", "text1=Maker")
    before = path.read_bytes()
    assert teskarlt.done("edit", path, "1", "--set", "text1=Maker", "--json").json["changes"] == []
    assert path.read_bytes() == before
    changes = teskarlt.done("edit", path, "1", "--set", "width=1.14", "--json").json["changes"]
    assert changes == [{"field": "width", "from": 0.94, "to": 1.14}]


def test_windows_are_listed_by_their_numbers_after_an_edit_too(teskarlt, with_windows):
    teskarlt.done("edit", with_windows, "1", "--set", "text1=first\nsecond")
    assert [window["number"] for window in listed(teskarlt, with_windows)] == [1, 2, 3]
    table = teskarlt.done("list", with_windows).stdout.splitlines()
    assert [line.split()[0] for line in table] == ["number", "1", "2", "3"]
    assert table[1].endswith("  first second")


@pytest.mark.parametrize("number", ["2", "3"])
def test_number_of_an_erased_window_is_not_given_again(teskarlt, with_windows, number):
    teskarlt.done("erase", with_windows, number)
    readers.audited(with_windows)
    assert teskarlt.done("insert", with_windows, "--at", "2500,1200", "--json").json["number"] == 4


def test_numbers_are_not_given_again_when_all_windows_are_gone(teskarlt, with_windows):
    for number in ("3", "1", "2"):
        teskarlt.done("erase", with_windows, number)
    assert teskarlt.done("insert", with_windows, "--at", "2500,1200", "--json").json["number"] == 4


def test_erasing_dry_writes_nothing(teskarlt, with_windows):
    before = with_windows.read_bytes()
    assert "nothing was written" in teskarlt.done("erase", with_windows, "2", "--dry-run").stdout
    assert with_windows.read_bytes() == before


def test_unknown_window_is_not_erased(teskarlt, with_windows, house):
    before = with_windows.read_bytes()
    refused(teskarlt("erase", with_windows, "9"), "no window 9")
    assert with_windows.read_bytes() == before


def test_number_that_two_windows_bear_is_refused(teskarlt, with_windows):
    drawing = readers.ezdxf.readfile(with_windows)
    for entity in windows.window_entities(drawing):
        if entity.get_xdata("TK_LT_ELEM")[-1].value == 3:
            tags = [(tag.code, 1 if tag.code == 1071 else tag.value) for tag in entity.get_xdata("TK_LT_ELEM")]
            entity.set_xdata("TK_LT_ELEM", tags)
    drawing.saveas(with_windows)
    refused(teskarlt("erase", with_windows, "1"), "2 windows with the number 1")


def test_story_of_a_window(teskarlt, house, tmp_path):
    path = tmp_path / "story.dxf"
    shutil.copy(house, path)
    teskarlt.done("insert", path, *AT)
    assert [window["number"] for window in listed(teskarlt, path)] == [1]
    teskarlt.done("edit", path, "1", "--set", "length=1.6")
    assert listed(teskarlt, path)[0]["fields"]["length"] == 1.6
    teskarlt.done("erase", path, "1")
    assert listed(teskarlt, path) == []
