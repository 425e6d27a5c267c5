# test_layers.py - windows on layers that are locked, frozen or switched off.
import ezdxf
import pytest
import readers
import windows

AT = ("--at", "2500,1200")
JOB = '{"at": [2500, 1200]}\n'


def layer_of(path):
    """The layer of the first entity of a window."""
    return windows.window_entities(readers.audited(path))[0].dxf.layer


def change_layer(path, name, change):
    drawing = ezdxf.readfile(path)
    layer = drawing.layers.get(name) if name in drawing.layers else drawing.layers.add(name)
    getattr(layer, change)()
    drawing.saveas(path)


@pytest.fixture
def with_window(teskarlt, house):
    teskarlt.done("insert", house, *AT)
    return house


@pytest.mark.parametrize("command", [("edit", "1", "--set", "width=1.2"), ("erase", "1")], ids=lambda c: c[0])
@pytest.mark.parametrize("change, state, advice", [("lock", "locked", "unlock it"), ("freeze", "frozen", "thaw it")])
def test_window_on_a_closed_layer_is_changed_only_when_the_user_insists(
        teskarlt, with_window, command, change, state, advice):
    name = layer_of(with_window)
    change_layer(with_window, name, change)
    before = with_window.read_bytes()
    verb, *rest = command
    answer = teskarlt(verb, with_window, *rest)
    assert answer.status == 1 and answer.stderr == (
        f'teskarlt: window 1 lies on the layer "{name}", which is {state}; {advice} in the CAD program, '
        "or give --locked\n")
    assert with_window.read_bytes() == before
    teskarlt.done(verb, with_window, *rest, "--locked")
    assert with_window.read_bytes() != before


def test_window_on_a_layer_that_is_off_is_erased(teskarlt, with_window):
    change_layer(with_window, layer_of(with_window), "off")
    teskarlt.done("erase", with_window, "1")


@pytest.mark.parametrize("change, warning", [
    ("lock", "locked; it must be unlocked before the window can be changed"),
    ("freeze", "frozen; what was drawn on it is not to be seen"),
    ("off", "switched off; what was drawn on it is not to be seen"),
])
@pytest.mark.parametrize("with_jobs", [False, True], ids=["one", "jobs"])
def test_insertion_onto_a_closed_layer_is_done_and_warned_of(
        teskarlt, house, with_window, tmp_path, change, warning, with_jobs):
    name = layer_of(with_window)
    teskarlt.done("erase", house, "1")
    change_layer(house, name, change)
    jobs = tmp_path / "jobs.jsonl"
    jobs.write_text(JOB)
    answer = teskarlt("insert", house, *(("--jobs", jobs) if with_jobs else AT))
    assert answer.status == 0
    assert answer.stderr == f'teskarlt: warning: the layer "{name}" is {warning}\n'
    assert len(teskarlt.done("list", house, "--json").json["windows"]) == 1
