# test_refit.py - windows follow a roof that was moved or made steeper.
import math

import ezdxf
import pytest
import readers
import windows
from roofs import Roof

ROOFS = [Roof(direction=direction, units=units) for direction in (0, 70, 135, 200, 270, 315) for units in ("mm", "m")]
PLACES = ((-1.5, -0.7), (1.2, 0.3))


def face_corners(roof):
    return [tuple(corner) for corner in roof.corners]


def change_roof(path, roof):
    """The drawing's roof becomes another one."""
    drawing = ezdxf.readfile(path)
    [face] = drawing.modelspace().query('3DFACE[layer=="ROOF"]')
    for n, corner in enumerate(face_corners(roof)):
        face.dxf.set(f"vtx{n}", corner)
    drawing.saveas(path)


def insert(teskarlt, path, roof, *settings):
    for place in PLACES:
        x, y, _ = roof.point(*place)
        teskarlt.done("insert", path, "--at", f"{x!r},{y!r}", *(part for text in settings for part in ("--set", text)))


def listed(teskarlt, path):
    return sorted(teskarlt.done("list", path, "--json").json["windows"], key=lambda window: window["number"])


def shapes(path, number):
    return [windows.points(entity) for entity in windows.window_entities(readers.audited(path))
            if entity.get_xdata("TK_LT_ELEM")[-1].value == number]


def steeper(roof):
    return Roof(direction=roof.direction, pitch=48, units=roof.units, centre=(0, 0, 3.4))


@pytest.mark.many
@pytest.mark.parametrize("settings", [(), ("roofBuildUp=2", "widthAnchor=1"), ("roofBuildUp=0", "heightReference=2")],
                         ids=",".join)
@pytest.mark.parametrize("roof", ROOFS, ids=str)
def test_refitted_windows_are_those_that_would_be_inserted_now(teskarlt, tmp_path, roof, settings):
    path, fresh = tmp_path / "old.dxf", tmp_path / "fresh.dxf"
    roof.save(path)
    insert(teskarlt, path, roof, *settings)
    change_roof(path, steeper(roof))
    answer = teskarlt.done("refit", path, "--json").json
    assert [window["number"] for window in answer["windows"]] == [1, 2] and answer["problems"] == []
    assert all(abs(window["pitch"]["from"] - 35) < 1e-6 and abs(window["pitch"]["to"] - 48) < 1e-6
               and window["shift"] < 1e-9 for window in answer["windows"])
    steeper(roof).save(fresh)
    insert(teskarlt, fresh, steeper(roof), *settings)
    for number in (1, 2):
        expected, actual = shapes(fresh, number), shapes(path, number)
        assert len(expected) == len(actual) == 33
        for one, other in zip(expected, actual):
            assert all(windows.distance(a, b) < 1e-6 * roof.scale for a, b in zip(one, other))
    before = path.read_bytes()
    assert "2 windows fit as they are" in teskarlt.done("refit", path).stdout
    assert path.read_bytes() == before


@pytest.mark.parametrize("roof", ROOFS, ids=str)
def test_height_of_the_lower_edge_stays_where_that_is_asked(teskarlt, tmp_path, roof):
    path = tmp_path / "old.dxf"
    roof.save(path)
    insert(teskarlt, path, roof)
    before = listed(teskarlt, path)
    change_roof(path, Roof(direction=roof.direction, pitch=30, units=roof.units))
    answer = teskarlt.done("refit", path, "--keep", "height", "--json").json
    after = listed(teskarlt, path)
    for one, other, told in zip(before, after, answer["windows"]):
        assert abs(one["fields"]["lowerEdgeHeight"] - other["fields"]["lowerEdgeHeight"]) < 1e-9
        up = (one["fields"]["lowerEdgeHeight"] - 3) / math.tan(math.radians(30))
        place = roof.point(PLACES[one["number"] - 1][0], up)
        assert windows.distance(other["fields"]["storedPoint"][:2], place[:2]) < 1e-6 * roof.scale
        assert abs(told["rise"]) < 1e-9 and told["shift"] > 0.01


def test_dry_run_lists_what_would_change_and_writes_nothing(teskarlt, tmp_path):
    path = tmp_path / "old.dxf"
    Roof().save(path)
    insert(teskarlt, path, Roof())
    change_roof(path, Roof(centre=(0, 0, 3.5)))
    before = path.read_bytes()
    answer = teskarlt.done("refit", path, "2", "--dry-run")
    assert path.read_bytes() == before
    table = answer.stdout.splitlines()
    assert table[1].split()[0] == "2" and table[1].split()[2:] == ["35.00", "35.00", "0.000", "0.500"]
    assert table[2] == "1 window would be refitted; nothing was written (dry run)."


def test_window_that_fits_keeps_its_bytes_when_others_are_refitted(teskarlt, house):
    teskarlt.done("insert", house, "--at", "14000,4000")
    teskarlt.done("insert", house, "--at", "2500,1200")
    before = [entity.dxf.handle for entity in windows.window_entities(readers.audited(house))][:33]
    drawing = ezdxf.readfile(house)
    for face in drawing.modelspace().query('3DFACE[layer=="ROOF_SOUTH"]'):
        face.translate(0, 0, 200)
    drawing.saveas(house)
    answer = teskarlt.done("refit", house, "--json").json
    assert [window["number"] for window in answer["windows"]] == [2] and answer["fitting"] == 1
    entities = windows.window_entities(readers.audited(house))
    assert [entity.dxf.handle for entity in entities][:33] == before


@pytest.fixture
def without_roof(teskarlt, tmp_path):
    """A roof that was raised and of which a part was cut off: one window has no face any more."""
    path = tmp_path / "old.dxf"
    Roof().save(path)
    insert(teskarlt, path, Roof())
    change_roof(path, Roof(centre=(2, 0, 3.5), width=5))
    return path


def test_window_without_a_roof_stays_and_the_others_are_refitted(teskarlt, without_roof):
    before = shapes(without_roof, 1)
    answer = teskarlt.done("refit", without_roof)
    assert answer.stderr == ("teskarlt: note: window 1: it stays where it is: "
                             "no roof face that falls its way lies over or under its place\n")
    assert "1 window refitted" in answer.stdout and "1 window has no roof face of its own." in answer.stdout
    assert shapes(without_roof, 1) == before
    first, second = listed(teskarlt, without_roof)
    assert abs(second["fields"]["lowerEdgeHeight"] - first["fields"]["lowerEdgeHeight"]
               - (1.0 * math.tan(math.radians(35)) + 0.5)) < 1e-6


def test_window_on_a_given_plane_over_a_face_stays(teskarlt, house):
    teskarlt.done("insert", house, "--at", "2500,1200", "--roof", "0,0,9000", "5000,0,9000", "0,4000,12000")
    before = house.read_bytes()
    answer = teskarlt.done("refit", house, "--json")
    [staying] = answer.json["staying"]
    assert staying["number"] == 1 and "m under it, and --reach is 1.000 m" in staying["message"]
    assert answer.json["windows"] == [] and house.read_bytes() == before


@pytest.fixture
def with_problem(teskarlt, tmp_path):
    """A roof that was raised, and a window on it of which a line was deleted."""
    path = tmp_path / "old.dxf"
    Roof().save(path)
    insert(teskarlt, path, Roof())
    change_roof(path, Roof(centre=(0, 0, 3.5)))
    drawing = ezdxf.readfile(path)
    drawing.modelspace().delete_entity(windows.window_entities(drawing)[-1])  # of window 2
    drawing.saveas(path)
    return path


def test_window_that_cannot_be_refitted_is_told_and_nothing_is_written(teskarlt, with_problem):
    before = with_problem.read_bytes()
    answer = teskarlt("refit", with_problem)
    assert answer.status == 1 and with_problem.read_bytes() == before
    assert "teskarlt: window 2: it cannot be changed: it has 17 faces and 15 lines" in answer.stderr
    assert "teskarlt: 1 of the windows cannot be refitted; nothing was written\n" in answer.stderr
    assert "1 window could be refitted; nothing was written." in answer.stdout


def test_others_are_refitted_where_the_user_wants_to_go_on(teskarlt, with_problem):
    answer = teskarlt("refit", with_problem, "--keep-going")
    assert answer.status == 3 and "1 window refitted" in answer.stdout


def test_window_that_leaves_its_smaller_roof_is_told(teskarlt, tmp_path):
    path = tmp_path / "old.dxf"
    Roof().save(path)
    insert(teskarlt, path, Roof())
    change_roof(path, Roof(width=3))
    answer = teskarlt("refit", path, "1")
    assert answer.status == 1 and "window 1: it passes the left verge by 0.470 m; move it or make it smaller" in answer.stderr


def test_unknown_window_and_unknown_wish_are_refused(teskarlt, house):
    assert "no roof window" in teskarlt("refit", house, "7").stderr
    assert teskarlt("refit", house, "--keep", "pitch").status == 2
    assert "holds no roof window" in teskarlt.done("refit", house).stdout


def test_nearest_of_several_faces_is_taken(teskarlt, tmp_path):
    path = tmp_path / "roofs.dxf"
    drawing = ezdxf.new("R2000")
    drawing.header["$INSUNITS"] = 4
    lower, upper = (drawing.modelspace().add_3dface(face_corners(Roof(centre=(0, 0, z)))) for z in (3, 8))
    drawing.saveas(path)
    teskarlt.done("insert", path, "--at", "0,0", "--roof-face", lower.dxf.handle)
    drawing = ezdxf.readfile(path)
    drawing.entitydb[lower.dxf.handle].translate(0, 0, 1000)
    drawing.saveas(path)
    [window] = teskarlt.done("refit", path, "--json").json["windows"]
    assert window["face"] == lower.dxf.handle and abs(window["rise"] - 1) < 1e-9


def test_floor_is_no_roof_for_a_window_with_a_pitch(teskarlt, tmp_path):
    path, roof = tmp_path / "roof.dxf", Roof()
    roof.save(path)
    teskarlt.done("insert", path, "--at", "0,0", "--set", "heightReference=0")
    drawing = ezdxf.readfile(path)
    [face] = drawing.modelspace().query("3DFACE[layer=='ROOF']")
    face.translate(0, 0, 2500)
    drawing.modelspace().add_3dface([(x, y, 3000) for x, y, _ in roof.corners])
    drawing.saveas(path)
    [window] = teskarlt.done("refit", path, "--reach", "3", "--json").json["windows"]
    assert abs(window["pitch"]["to"] - 35) < 1e-6 and abs(window["rise"] - 2.5) < 1e-9
    drawing = ezdxf.readfile(path)
    drawing.modelspace().delete_entity(drawing.entitydb[face.dxf.handle])
    drawing.saveas(path)
    assert "no roof face that falls its way" in teskarlt("refit", path).stderr


def test_file_written_though_nothing_is_refitted_is_answered(teskarlt, house, tmp_path):
    output = tmp_path / "out.dxf"
    assert teskarlt.done("refit", house, "-o", output, "--json").json["file"] == teskarlt.spelled(output)
    assert output.read_bytes() == house.read_bytes()


def test_number_given_twice_counts_once(teskarlt, tmp_path):
    path = tmp_path / "old.dxf"
    Roof().save(path)
    insert(teskarlt, path, Roof())
    change_roof(path, Roof(centre=(0, 0, 3.5)))
    assert len(teskarlt.done("refit", path, "1", "1", "--json").json["windows"]) == 1
    assert [window["number"] for window in listed(teskarlt, path)] == [1, 2]


def test_refitted_window_that_overlaps_another_is_warned_of_or_refused(teskarlt, tmp_path):
    path, roof = tmp_path / "old.dxf", Roof()
    roof.save(path)
    insert(teskarlt, path, roof)
    drawing = ezdxf.readfile(path)
    ends = [roof.point(*place) for place in PLACES]
    for entity in windows.window_entities(drawing):
        if entity.get_xdata("TK_LT_ELEM")[-1].value == 2:
            entity.translate(ends[0][0] - ends[1][0] + 300, ends[0][1] - ends[1][1], 900)
    drawing.saveas(path)
    before = path.read_bytes()
    refused = teskarlt("refit", path, "--reach", "2", "--strict")
    assert refused.status == 1 and "it overlaps window 1" in refused.stderr and path.read_bytes() == before
    answer = teskarlt.done("refit", path, "--reach", "2", "--json")
    overlap = "it overlaps window 1 by 0.640 m; the nearest free place is 0.640 m to the right"  # 0.94 - 0.3
    assert answer.stderr == f"teskarlt: warning: window 2: {overlap}\n"
    assert answer.json["windows"][0]["warnings"] == [overlap]
