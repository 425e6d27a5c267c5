# test_modules.py - the program's files and the files that it may open change while it runs.
import os
import shutil
import subprocess
import time

import ezdxf
import pytest
from windows import FACES, LINES, window_entities

JOB = b'{"at": [2500, 1200]}\n'


def layers(path):
    return {entity.dxf.layer for entity in window_entities(ezdxf.readfile(path))}


@pytest.mark.parametrize("number", range(1, 25))
def test_file_that_cannot_be_opened_leaves_no_half_window(teskarlt, house, tmp_path, number):
    """No descriptor is left at one moment: the window is whole, on its layers, or refused."""
    if teskarlt.windows or shutil.which("strace") is None:
        pytest.skip("needs strace")
    before, out = house.read_bytes(), tmp_path / "out.dxf"
    # A leak check traces the program itself, which a program that is traced already does not allow.
    run = subprocess.run(["strace", "-f", "-o", "/dev/null", "-e", "trace=openat", "-e",
                          f"inject=openat:error=EMFILE:when={number}", teskarlt.path, "insert", house, "--at",
                          "2500,1200", "-o", out], capture_output=True, text=True,
                         env={**os.environ, "ASAN_OPTIONS": "detect_leaks=0"})
    assert house.read_bytes() == before
    if run.returncode == 0:
        assert layers(out) == {"ROOF_WINDOW_BODY", "ROOF_WINDOW_SYMBOL", "ROOF_WINDOW_OUTLINE"}
    else:
        assert not out.exists() and run.stderr != ""


def started(path, house):
    """The program at work, waiting for its jobs."""
    program = subprocess.Popen([path, "insert", house, "--jobs", "-"], stdin=subprocess.PIPE, stderr=subprocess.PIPE)
    deadline = time.monotonic() + 60
    while b"BREVANTA.CRX" not in open(f"/proc/{program.pid}/maps", "rb").read():
        assert program.poll() is None and time.monotonic() < deadline
        time.sleep(0.01)
    return program


def replace(folder, _):
    """As an update does: a new file under a name that is in use."""
    for path in list(folder.iterdir()):
        new = folder / "new"
        shutil.copy(path, new)
        new.rename(path)


def remove(folder, _):
    shutil.rmtree(folder)


def move(folder, elsewhere):
    folder.rename(elsewhere)


@pytest.mark.parametrize("change", [replace, remove, move])
def test_files_of_the_program_may_change_while_it_runs(teskarlt, house, tmp_path, change):
    if teskarlt.windows:
        pytest.skip("there the system refuses it")
    folder = shutil.copytree(teskarlt.folder, tmp_path / "installed")
    program = started(folder / teskarlt.path.name, house)
    change(folder, tmp_path / "elsewhere")
    _, error = program.communicate(JOB)
    assert program.returncode == 0, error
    assert len(window_entities(ezdxf.readfile(house))) == FACES + LINES


def test_string_module_without_layer_names_is_refused(teskarlt, house, tmp_path):
    folder = shutil.copytree(teskarlt.folder, tmp_path / "installed")
    shutil.copy(folder / "BREVANTA.CRX", folder / "Brevanta_d.tkr")
    teskarlt.path = folder / teskarlt.path.name
    answer = teskarlt("insert", house, "--at", "2500,1200")
    assert answer.status == 1
    assert "Brevanta_d.tkr is not the string module: it has no string 57" in answer.stderr
