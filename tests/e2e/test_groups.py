# test_groups.py - the entities of a window form one named group of the drawing.
import ezdxf
import pytest
import readers
import windows
from roofs import Roof


def sorted_handles(entities):
    return sorted((entity.dxf.handle for entity in entities), key=lambda handle: int(handle, 16))


def groups(path):
    """Name of each group and the handles of its members, as ezdxf reads an audited drawing."""
    return {name: sorted_handles(group) for name, group in readers.audited(path).groups}


def handles(path):
    return sorted_handles(windows.window_entities(readers.audited(path)))


@pytest.fixture
def grouped(teskarlt, house):
    """The house with two windows."""
    teskarlt.done("insert", house, "--at", "2500,1200")
    teskarlt.done("insert", house, "--at", "4800,1200")
    return house


def test_each_window_is_one_selectable_group(grouped):
    drawing = readers.audited(grouped)
    assert groups(grouped) == {"BREVANTA_1": handles(grouped)[:33], "BREVANTA_2": handles(grouped)[33:]}
    group = drawing.groups.get("BREVANTA_1")
    assert (group.dxf.description, group.dxf.unnamed, group.dxf.selectable) == ("Roof window 1", 0, 1)
    assert group.dxf.owner == drawing.rootdict["ACAD_GROUP"].dxf.handle


def test_entities_tell_their_group_of_changes(grouped):
    drawing = readers.audited(grouped)
    for name, group in drawing.groups:
        assert all(entity.get_reactors() == [group.dxf.handle] for entity in group)


def test_changed_window_keeps_its_group(teskarlt, grouped):
    before = readers.audited(grouped).groups.get("BREVANTA_1").dxf.handle
    other = groups(grouped)["BREVANTA_2"]
    teskarlt.done("edit", grouped, "1", "--set", "width=0.78")
    assert readers.audited(grouped).groups.get("BREVANTA_1").dxf.handle == before
    assert groups(grouped) == {"BREVANTA_1": handles(grouped)[:33], "BREVANTA_2": other}


def test_erased_window_takes_its_group_along(teskarlt, house, tmp_path):
    empty, output = tmp_path / "empty.dxf", tmp_path / "out.dxf"
    teskarlt.done("insert", house, "--at", "2500,1200", "-o", empty)
    teskarlt.done("erase", empty, "1")
    assert groups(empty) == {}
    teskarlt.done("insert", empty, "--at", "2500,1200", "-o", output)
    before = empty.read_bytes()
    teskarlt.done("erase", output, "2")
    changed, came = readers.line_changes(before, output.read_bytes())
    assert (len(changed), came) == (2, 2)  # the handle seed, and the number that is not given again


def test_group_of_the_user_gets_the_changed_window(teskarlt, grouped):
    drawing = ezdxf.readfile(grouped)
    mine = drawing.groups.new("MINE")
    mine.extend([*drawing.groups.get("BREVANTA_1"), drawing.modelspace()[0]])
    drawing.saveas(grouped)
    teskarlt.done("edit", grouped, "1", "--set", "width=0.78")
    after = groups(grouped)
    assert len(after["BREVANTA_1"]) == 33
    assert set(after["MINE"]) == {*after["BREVANTA_1"], readers.audited(grouped).modelspace()[0].dxf.handle}
    teskarlt.done("erase", grouped, "1")
    assert len(groups(grouped)["MINE"]) == 1


def test_name_that_is_taken_gets_a_number(teskarlt, house):
    drawing = ezdxf.readfile(house)
    drawing.groups.new("Brevanta_1").extend([drawing.modelspace()[0]])
    drawing.saveas(house)
    teskarlt.done("insert", house, "--at", "2500,1200")
    assert set(groups(house)) == {"Brevanta_1", "BREVANTA_1_2"}


def test_window_from_before_the_groups_gets_one_when_it_is_changed(teskarlt, grouped):
    drawing = ezdxf.readfile(grouped)
    group = drawing.groups.get("BREVANTA_1")
    for entity in group:
        entity.discard_reactor_handle(group.dxf.handle)
    drawing.groups.delete("BREVANTA_1")
    drawing.saveas(grouped)
    teskarlt.done("edit", grouped, "1", "--set", "width=0.78")
    assert set(groups(grouped)) == {"BREVANTA_1", "BREVANTA_2"}


def without_section(text, name):
    begin = text.index(f"  0\nSECTION\n  2\n{name}\n")
    return text[:begin] + text[text.index("ENDSEC\n", begin) + len("ENDSEC\n"):]


def test_drawing_without_objects_gets_their_section(teskarlt, house):
    house.write_text(without_section(house.read_text(), "OBJECTS"))
    teskarlt.done("insert", house, "--at", "2500,1200")
    assert groups(house) == {"BREVANTA_1": handles(house)}
    assert house.read_text().endswith("  0\nENDSEC\n  0\nEOF\n")


def test_drawing_without_the_dictionary_of_groups_gets_one(teskarlt, house):
    text = house.read_text()
    begin = text.index("  3\nACAD_GROUP\n350\nD\n")
    text = text[:begin] + text[text.index("  0\nENDSEC", begin):]
    house.write_text(text)
    teskarlt.done("insert", house, "--at", "2500,1200")
    assert groups(house) == {"BREVANTA_1": handles(house)}


def test_old_drawing_gets_no_group(teskarlt, tmp_path):
    drawing = tmp_path / "roof.dxf"
    Roof(version="R12").save(drawing)
    teskarlt.done("insert", drawing, "--at", "0,0", "--units", "mm")
    assert b"GROUP" not in drawing.read_bytes()


def test_refused_window_leaves_no_group(teskarlt, house, tmp_path):
    jobs = tmp_path / "jobs.jsonl"
    jobs.write_text('{"at": [2500, 1200], "set": {"width": 99}}\n{"at": [4800, 1200]}\n')
    assert teskarlt("insert", house, "--jobs", jobs, "--keep-going").status == 3
    assert groups(house) == {"BREVANTA_1": handles(house)}
