# test_several.py - several windows changed and erased at once, all or none.
import pytest
import readers
import windows


def listed(teskarlt, path):
    return {window["number"]: window["fields"] for window in teskarlt.done("list", path, "--json").json["windows"]}


@pytest.fixture
def five(teskarlt, house):
    """The house with windows 1 to 5; 2 and 4 are 0.78 m wide and of the type SMALL."""
    for number, at in enumerate(("2000,1200", "4000,1200", "6000,1200", "8000,1200", "14000,4000"), 1):
        small = ("--set", "width=0.78", "--set", "text2=SMALL") if number in (2, 4) else ()
        teskarlt.done("insert", house, "--at", at, "--set", "text1=Maker", *small)
    return house


@pytest.mark.parametrize("selection, numbers", [
    (["1", "3", "5"], {1, 3, 5}), (["2-4"], {2, 3, 4}), (["5", "1-2", "2"], {1, 2, 5}), (["3-99"], {3, 4, 5}),
    (["--where", "width<0.8"], {2, 4}), (["--where", "width >= 0.8 and markerValue!=3"], {1, 5}),
    (["--type", "small"], {2, 4}), (["--type", "Maker/SMALL", "1-3"], {2}),
], ids=str)
def test_selected_windows_are_changed_and_the_others_stay(teskarlt, five, selection, numbers):
    before = listed(teskarlt, five)
    answer = teskarlt.done("edit", five, *selection, "--set", "frameDepth=0.05")
    assert answer.stdout.splitlines()[-1] == f"{len(numbers)} of {len(numbers)} window{'s'[:len(numbers) > 1]} " \
                                             f"changed; written to {teskarlt.spelled(five)}."
    after = listed(teskarlt, five)
    for number, fields in before.items():
        assert after[number] == (fields | {"frameDepth": 0.05} if number in numbers else fields)
    assert len(windows.window_entities(readers.audited(five))) == 5 * 33


def test_each_window_has_a_line_and_json_a_list(teskarlt, five):
    answer = teskarlt.done("edit", five, "1-2", "--set", "width=0.78", "--dry-run")
    assert answer.stdout.splitlines() == ["Window 1: width: 0.94 m -> 0.78 m", "Window 2: nothing changes",
                                          "1 of 2 windows would be changed; nothing was written (dry run)."]
    answer = teskarlt.done("edit", five, "1-2", "--set", "width=0.78", "--json").json
    assert [window["number"] for window in answer["windows"]] == [1, 2]
    assert [window["changes"] for window in answer["windows"]] == [[{"field": "width", "from": 0.94, "to": 0.78}], []]


def test_one_refused_window_keeps_all_from_being_changed(teskarlt, five):
    before = five.read_bytes()
    answer = teskarlt("edit", five, "1-5", "--set", "length=4.4")
    assert answer.status == 1 and answer.stderr.startswith("teskarlt: window 1: the window would leave the roof face")
    assert five.read_bytes() == before


def test_selected_windows_are_erased(teskarlt, five):
    answer = teskarlt.done("erase", five, "1", "4-9")
    assert answer.stdout.splitlines()[-1].startswith("3 windows with 99 entities erased; written to ")
    assert set(listed(teskarlt, five)) == {2, 3}
    answer = teskarlt.done("erase", five, "--where", "width<0.8", "--json").json
    assert answer["windows"] == [{"number": 2, "erased": 33}]
    assert len(windows.window_entities(readers.audited(five))) == 33


@pytest.mark.parametrize("arguments, status, part", [
    ([], 2, "say which windows: by NUMBER, --where or --type"),
    (["4-"], 2, "4- is no window's number, nor a range as 4-9"),
    (["7-9"], 1, "has no window from 7 to 9"),
    (["--where", "wide<1"], 1, 'there is no field "wide"'),
    (["--where", "text1<1"], 1, "text1 is a text"),
    (["--where", "width>3"], 1, "none of the windows of"),
], ids=str)
@pytest.mark.parametrize("command", ["edit", "erase"])
def test_selection_that_means_nothing_is_refused(teskarlt, five, command, arguments, status, part):
    before = five.read_bytes()
    answer = teskarlt(command, five, *arguments)
    assert answer.status == status and part in answer.stderr and answer.stderr.count("\n") == 1, answer
    assert five.read_bytes() == before


def test_erasing_all_windows_gives_the_drawing_back(teskarlt, house, tmp_path):
    path = tmp_path / "out.dxf"
    teskarlt.done("insert", house, "--at", "2000,1200", "-o", path)
    once = path.read_bytes()
    for at in ("4000,1200", "6000,1200"):
        teskarlt.done("insert", path, "--at", at)
    teskarlt.done("erase", path, "2-3")
    changed, came = readers.line_changes(once, path.read_bytes())
    assert len(changed) <= 1 and came <= 5  # the handle seed, and the number that is not given again
