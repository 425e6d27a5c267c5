# test_undo.py - drawings that --backup keeps, and the way back to them.
import pytest
import readers

AT = ("--at", "2500,1200")


def beside(path, ending):
    return path.with_name(path.name + ending)


def refused(answer, *parts):
    assert answer.status == 1 and answer.stdout == "" and answer.stderr.count("\n") == 1, answer
    for part in parts:
        assert part in answer.stderr


@pytest.fixture
def with_window(teskarlt, house):
    teskarlt.done("insert", house, *AT)
    return house


@pytest.mark.parametrize("command", [
    ("insert", "--at", "4800,1200"), ("edit", "1", "--set", "width=0.78"), ("erase", "1"),
    ("insert", "--jobs", "-"), ("edit", "--where", "width>0.5", "--set", "width=0.78"),
], ids=lambda command: " ".join(command[:2]))
def test_every_command_that_writes_can_be_undone(teskarlt, with_window, command):
    before = with_window.read_bytes()
    stdin = '{"at": [4800, 1200]}' if "--jobs" in command else None
    answer = teskarlt.done(command[0], with_window, *command[1:], "--backup", stdin=stdin)
    assert f"and what it was to {teskarlt.spelled(beside(with_window, '.bak'))}." in answer.stdout
    after = with_window.read_bytes()
    assert after != before and beside(with_window, ".bak").read_bytes() == before
    readers.audited(with_window)
    teskarlt.done("undo", with_window)
    assert with_window.read_bytes() == before
    assert not beside(with_window, ".bak").exists() and not beside(with_window, ".undo").exists()


def test_second_undo_says_that_there_is_nothing_to_undo(teskarlt, with_window):
    teskarlt.done("erase", with_window, "1", "--backup")
    teskarlt.done("undo", with_window)
    before = with_window.read_bytes()
    refused(teskarlt("undo", with_window), "there is nothing to undo")
    assert with_window.read_bytes() == before


def test_drawing_that_something_else_changed_is_left(teskarlt, with_window):
    teskarlt.done("edit", with_window, "1", "--set", "width=0.78", "--backup")
    teskarlt.done("edit", with_window, "1", "--set", "width=0.6")
    before = with_window.read_bytes()
    refused(teskarlt("undo", with_window), "it was changed since", "house.dxf.bak")
    assert with_window.read_bytes() == before
    teskarlt.done("edit", with_window, "1", "--set", "width=0.78")  # as the command had left it
    teskarlt.done("undo", with_window)


def test_output_that_is_new_needs_no_backup(teskarlt, with_window, tmp_path):
    output = tmp_path / "out.dxf"
    answer = teskarlt.done("erase", with_window, "1", "-o", output, "--backup", "--json").json
    assert answer["backup"] is None and not beside(output, ".bak").exists()
    answer = teskarlt.done("insert", with_window, "--at", "4800,1200", "-o", output, "--backup", "--json").json
    assert answer["backup"] == teskarlt.spelled(beside(output, ".bak"))
    assert not beside(with_window, ".bak").exists()


def test_refused_command_keeps_the_backup_of_the_one_before(teskarlt, with_window):
    before = with_window.read_bytes()
    teskarlt.done("edit", with_window, "1", "--set", "width=0.78", "--backup")
    refused(teskarlt("edit", with_window, "1", "--set", "width=0", "--backup"), "width must be greater than 0")
    teskarlt.done("edit", with_window, "1", "--set", "width=0.6", "--backup", "--dry-run")
    teskarlt.done("undo", with_window)
    assert with_window.read_bytes() == before


def test_undo_can_be_tried_dry(teskarlt, with_window):
    teskarlt.done("erase", with_window, "1", "--backup")
    after = with_window.read_bytes()
    answer = teskarlt.done("undo", with_window, "--dry-run", "--json").json
    assert answer == {"version": 1, "file": None, "dryRun": True}
    assert with_window.read_bytes() == after and beside(with_window, ".bak").exists()
