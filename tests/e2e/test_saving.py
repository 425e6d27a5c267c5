# test_saving.py - what a save adds to drawings of other programs, and what is left of it when it is cut off or fails.
import resource
import signal
import subprocess
import time

import ezdxf
import pytest
import readers
import windows
from roofs import Roof

AT = ("--at", "2500,1200")
HARD = [(1000, "TREAT_AS_HARD"), (1070, 0)]
ENDINGS = ("SIGINT", "SIGTERM", "SIGHUP", "SIGXCPU")


def dictionaries_with_data(path, version, has_groups=True):
    """A roof in a drawing whose dictionaries carry extended data, as many of R13 do."""
    drawing = ezdxf.new(version)
    drawing.header["$INSUNITS"] = 4
    drawing.modelspace().add_3dface(Roof().corners)
    if not has_groups:
        drawing.rootdict.discard("ACAD_GROUP")
    for entity in drawing.objects:
        if entity.dxftype() == "DICTIONARY":
            entity.set_xdata("ACAD", HARD)
    drawing.saveas(path)
    return path


def objects(path):
    """The objects of a drawing, each a list of its tags."""
    lines = path.read_text().splitlines()
    tags = list(zip(map(int, lines[::2]), lines[1::2]))
    found = []
    for tag in tags[tags.index((2, "OBJECTS")) + 1:]:
        if tag[0] == 0:
            found.append([])
        found[-1].append(tag)
    return found


@pytest.mark.parametrize("version", ["R2000", "R2018"])
def test_extended_data_of_dictionaries_stay_at_their_end(teskarlt, tmp_path, version):
    path = dictionaries_with_data(tmp_path / "roof.dxf", version)
    teskarlt.done("insert", path, "--at", "0,0")
    for tags in objects(path):
        codes = [code for code, _ in tags]
        first = next((place for place, code in enumerate(codes) if code >= 1000), len(codes))
        assert all(code >= 1000 for code in codes[first:]), tags
    drawing = readers.audited(path)
    assert "BREVANTA_1" in drawing.groups
    assert drawing.rootdict["ACAD_GROUP"].get_xdata("ACAD") == HARD


def test_dictionary_of_groups_that_leads_nowhere_is_told(teskarlt, house):
    text = house.read_bytes()
    entry = text.index(b"ACAD_GROUP\n350\n") + len(b"ACAD_GROUP\n350\n")
    house.write_bytes(text[:entry] + b"FFF" + text[text.index(b"\n", entry):])
    answer = teskarlt.done("insert", house, *AT)
    assert "note: " in answer.stderr and "ACAD_GROUP led to FFF" in answer.stderr
    assert "BREVANTA_1" in ezdxf.readfile(house).groups


def test_drawing_of_which_the_model_space_has_no_handle(teskarlt, house):
    drawing = ezdxf.readfile(house)
    owner = drawing.modelspace().layout_key
    record = b"BLOCK_RECORD\n  5\n" + owner.encode() + b"\n"
    text = house.read_bytes()
    assert record in text
    house.write_bytes(text.replace(record, b"BLOCK_RECORD\n"))
    assert teskarlt("insert", house, *AT).status == 0
    naming = b"330\n" + owner.encode() + b"\n"
    assert house.read_bytes().count(naming) == text.count(naming) + windows.FACES + windows.LINES


def lines_of(path, count):
    """A roof beside so many lines that saving the drawing takes a while."""
    Roof().save(path)
    text = path.read_bytes()
    line = b"  0\nLINE\n  8\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 11\n1.0\n 21\n1.0\n 31\n0.0\n"
    end = text.index(b"  0\nENDSEC", text.index(b"ENTITIES"))
    path.write_bytes(text[:end] + line * count + text[end:])
    return path


def temporary_files(folder):
    return [path for path in folder.iterdir() if path.suffix == ".tmp"]


@pytest.mark.parametrize("ending", ENDINGS)
def test_program_that_is_ended_leaves_no_temporary_file(teskarlt, tmp_path, ending):
    if teskarlt.windows:
        pytest.skip("there are no signals")
    path = lines_of(tmp_path / "roof.dxf", 600_000)
    before = path.stat().st_mtime_ns
    number = getattr(signal, ending)
    # Whoever starts the tests may ignore signals (nohup), which programs inherit.
    program = subprocess.Popen([teskarlt.path, "insert", path, "--at", "0,0"], stdout=subprocess.DEVNULL,
                               preexec_fn=lambda: signal.signal(number, signal.SIG_DFL))
    while not temporary_files(tmp_path) and program.poll() is None:
        time.sleep(0.001)
    program.send_signal(number)
    assert program.wait() == -number
    assert temporary_files(tmp_path) == []
    assert path.stat().st_mtime_ns == before


def test_program_that_may_not_write_so_much_leaves_no_temporary_file(teskarlt, tmp_path):
    if teskarlt.windows:
        pytest.skip("there is no such limit")
    path = lines_of(tmp_path / "roof.dxf", 100_000)
    before, most = path.read_bytes(), 1_000_000
    program = subprocess.run([teskarlt.path, "insert", path, "--at", "0,0"], capture_output=True,
                             preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (most, most)))
    assert program.returncode == -signal.SIGXFSZ
    assert temporary_files(tmp_path) == [] and path.read_bytes() == before


def test_signal_that_is_ignored_stays_ignored(teskarlt, tmp_path):
    if teskarlt.windows:
        pytest.skip("there are no signals")
    path = lines_of(tmp_path / "roof.dxf", 300_000)
    program = subprocess.Popen(["nohup", teskarlt.path, "insert", path, "--at", "0,0"], stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    while not temporary_files(tmp_path) and program.poll() is None:
        time.sleep(0.001)
    program.send_signal(signal.SIGHUP)
    assert program.wait() == 0
    assert len(teskarlt("list", path, "--json").json["windows"]) == 1


@pytest.mark.parametrize("output", ["> /dev/full", ">&-", "| true"])
def test_answer_that_is_lost_after_the_drawing_was_written_has_a_status_of_its_own(teskarlt, house, output):
    if teskarlt.windows:
        pytest.skip("there is no full device")
    command = f'{{ "$0" insert "$1" --at 2500,1200; echo $? > "$1.status"; }} {output}'
    done = subprocess.run(["bash", "-c", command, teskarlt.path, house], capture_output=True, text=True)
    if output == "| true" and done.stderr == "":
        pytest.skip("the reader was still there")
    assert house.with_suffix(".dxf.status").read_text() == "3\n"
    assert done.stderr.startswith("teskarlt: ") and done.stderr.endswith("; the file is written\n")
    assert len(windows.window_entities(readers.audited(house))) == windows.FACES + windows.LINES


def test_nothing_is_printed_into_the_drawing_by_a_program_without_its_streams(teskarlt, house):
    if teskarlt.windows:
        pytest.skip("streams have no numbers")
    subprocess.run(["bash", "-c", '"$0" insert "$1" --at 2500,1200 <&- >&- 2>&-', teskarlt.path, house], check=False)
    assert len(windows.window_entities(readers.audited(house))) == windows.FACES + windows.LINES


def test_lines_that_end_with_a_carriage_return_alone_are_refused_by_that_name(teskarlt, house):
    house.write_bytes(house.read_bytes().replace(b"\r\n", b"\n").replace(b"\n", b"\r"))
    for command in (("insert", house, *AT), ("check", house)):
        answer = teskarlt(*command)
        assert answer.status == 1 and "end with a carriage return alone" in answer.stderr
