# test_kept.py - what users and other programs gave the entities of a window stays with them when it is edited.
import ezdxf
import pytest
import readers
import windows
from roofs import Roof

APPLICATION = "FOREIGN"
DATA = [(1000, "mine"), (1070, 7)]


@pytest.fixture
def touched(teskarlt, tmp_path):
    """A drawing with a window, and the handles of a face, the pane, a mark and a line of its outline."""
    path, roof = tmp_path / "roof.dxf", Roof()
    roof.save(path)
    x, y, _ = roof.point()
    teskarlt.done("insert", path, "--at", f"{x!r},{y!r}", "--set", "openingCode=BI")
    drawing = ezdxf.readfile(path)
    entities = windows.window_entities(drawing)
    drawing.layers.add("MINE")
    drawing.linetypes.add("HIDDEN2", [1.0, 0.5, -0.5])
    drawing.appids.add(APPLICATION)
    chosen = [entities[index] for index in (3, 16, 25, -1)]
    for entity in chosen:
        entity.dxf.layer, entity.dxf.color, entity.dxf.linetype = "MINE", 1, "HIDDEN2"
        entity.set_xdata(APPLICATION, DATA)
    chosen[0].new_extension_dict().add_dictionary_var("KEY", "value")
    drawing.groups.new("HALF").extend(chosen)
    drawing.modelspace().set_redraw_order([(entity.dxf.handle, "FFFF") for entity in chosen])
    drawing.saveas(path)
    return path, [entity.dxf.handle for entity in chosen]


@pytest.mark.parametrize("change", ["width=1.2", "skirtHeight=0.05", "text1=x", "openingCode=BIC"])
def test_what_a_user_gave_survives_an_edit(teskarlt, touched, change):
    path, handles = touched
    teskarlt.done("edit", path, "1", "--set", change)
    drawing = readers.audited(path)
    for handle in handles:
        entity = drawing.entitydb[handle]
        assert (entity.dxf.layer, entity.dxf.color, entity.dxf.linetype) == ("MINE", 1, "HIDDEN2")
        assert [tuple(tag) for tag in entity.get_xdata(APPLICATION)] == DATA
        assert entity.has_xdata("TK_LT_ELEM") and entity.has_xdata("TK_LT_DESC")
    assert {entity.dxf.handle for entity in drawing.groups.get("HALF")} == set(handles)
    assert drawing.entitydb[handles[0]].has_extension_dict
    assert {handle for handle, _ in drawing.modelspace().get_redraw_order()} == set(handles)
    [window] = teskarlt.done("list", path, "--json").json["windows"]
    assert window["notes"] == [] and window["editable"]
    assert teskarlt("check", path).status == 0


def test_part_that_is_no_more_goes(teskarlt, touched):
    path, handles = touched
    teskarlt.done("edit", path, "1", "--set", "bodyAsFaces=0")
    drawing = readers.audited(path)
    assert [handle in drawing.entitydb for handle in handles] == [False, False, True, True]


def test_edit_there_and_back_gives_the_same_bytes(teskarlt, touched):
    path, _ = touched
    teskarlt.done("edit", path, "1", "--set", "width=1.2")
    teskarlt.done("edit", path, "1", "--set", "width=0.94")
    before = path.read_bytes()
    teskarlt.done("edit", path, "1", "--set", "width=1.2")
    teskarlt.done("edit", path, "1", "--set", "width=0.94")
    assert path.read_bytes() == before


def test_refitted_window_keeps_it_too(teskarlt, touched):
    path, handles = touched
    drawing = ezdxf.readfile(path)
    [face] = drawing.modelspace().query('3DFACE[layer=="ROOF"]')
    face.translate(0, 0, 500)
    drawing.saveas(path)
    teskarlt.done("refit", path)
    drawing = readers.audited(path)
    assert all(drawing.entitydb[handle].dxf.layer == "MINE" for handle in handles)
