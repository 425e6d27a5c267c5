# test_catalogue.py - catalogues shown, merged and chosen from, through the real programs.
import shutil
import subprocess
import threading

import pytest

TARGET = "A line of the owner's\nVYROBCE Alfa\nA1; 78; 98; 8; 10; BI; Small\nA2; 94; 140\n\nVYROBCE Běla\nB1; 114;140\nA1; 50; 60\n"
SOURCE = "VYROBCE Alfa\nA1; 1; 1\nA3; 66; 98; 6; 10; D; Nové okno\nVYROBCE Gama\nG1; 55; 78\n"
MERGED = ("A line of the owner's\nVYROBCE Alfa\nA1; 78; 98; 8; 10; BI; Small\nA2; 94; 140\nA3; 66; 98; 6; 10; D; Nové okno\n\n"
          "VYROBCE Běla\nB1; 114;140\nA1; 50; 60\nVYROBCE Gama\nG1; 55; 78\n")


def write(path, text, build):
    """A catalogue with the line ends of the program's system, in the Czech code page."""
    line_end = "\r\n" if build == "windows" else "\n"
    path.write_bytes(text.replace("\n", line_end).encode("cp1250"))
    return path


def read(path):
    return path.read_bytes().decode("cp1250").replace("\r\n", "\n")


@pytest.fixture
def catalogues(tmp_path, build):
    """A target in a folder of its own, and a source."""
    (tmp_path / "catalogues").mkdir()
    return (write(tmp_path / "catalogues" / "BREVANTA.LIB", TARGET, build),
            write(tmp_path / "update.LIB", SOURCE, build))


def test_merge_adds_what_the_target_has_not(teskarlt, catalogues):
    target, source = catalogues
    answer = teskarlt.done("merge", source, target, "--json").json
    assert read(target) == MERGED
    assert (answer["taken"], answer["alreadyThere"], answer["newSections"], answer["total"]) == (2, 1, 1, 6)
    assert sorted(path.name for path in target.parent.iterdir()) == ["BREVANTA.LIB"]


def test_merging_twice_is_merging_once(teskarlt, catalogues):
    target, source = catalogues
    teskarlt.done("merge", source, target)
    answer = teskarlt.done("merge", source, target, "--json").json
    assert read(target) == MERGED
    assert (answer["taken"], answer["alreadyThere"]) == (0, 3)


def test_folder_stands_for_the_catalogue_in_it(teskarlt, catalogues):
    target, source = catalogues
    teskarlt.done("merge", source, target.parent)
    assert read(target) == MERGED


def test_without_a_target_the_data_folder_is_meant(teskarlt, catalogues):
    target, source = catalogues
    shutil.copy(target, teskarlt.data_folder)
    teskarlt.done("merge", source)
    assert read(teskarlt.data_folder / "BREVANTA.LIB") == MERGED
    assert read(target) == TARGET


def refused(answer, *parts):
    assert answer.status == 1, answer
    assert answer.stdout == "" and answer.stderr.count("\n") == 1, answer
    for part in parts:
        assert part in answer.stderr, answer.stderr


@pytest.mark.parametrize("content, part", [(b"", "empty"), (b"VYROBCE A\nx\0y; 1\n", "NUL"), (b"A1; 78; 98\n", "VYROBCE")],
                         ids=["empty", "binary", "no section"])
def test_file_that_is_no_catalogue_is_refused(teskarlt, catalogues, content, part):
    target, source = catalogues
    for damaged in (source, target):
        before = {path: path.read_bytes() for path in catalogues}
        damaged.write_bytes(content)
        refused(teskarlt("merge", source, target), damaged.name, part)
        assert damaged.read_bytes() == content
        for path in catalogues:
            path.write_bytes(before[path])


def test_missing_files_are_named(teskarlt, catalogues, tmp_path):
    target, source = catalogues
    refused(teskarlt("merge", tmp_path / "none.LIB", target), "none.LIB")
    refused(teskarlt("merge", source, tmp_path / "none.LIB"), "none.LIB", "no catalogue to merge into")
    refused(teskarlt("merge", source), "BREVANTA.LIB", "no catalogue to merge into")
    assert read(target) == TARGET


def test_missing_data_folder_is_named(teskarlt, catalogues, tmp_path):
    refused(teskarlt("merge", catalogues[1], env={"TESKAR_DATA": tmp_path / "nowhere"}), "nowhere", "does not exist")


def test_source_and_target_must_be_different_files(teskarlt, catalogues, tmp_path):
    target, _ = catalogues
    refused(teskarlt("merge", target, target), "the same file")
    if not teskarlt.windows:
        (tmp_path / "link.LIB").symlink_to(target)
        refused(teskarlt("merge", tmp_path / "link.LIB", target), "the same file")
    assert read(target) == TARGET


def test_line_longer_than_the_module_reads_is_warned_of(teskarlt, catalogues, build):
    target, source = catalogues
    write(source, SOURCE + "G2; " + "9" * 300 + "\n", build)
    answer = teskarlt.done("merge", source, target)
    assert "warning" in answer.stderr and "254" in answer.stderr


def test_windows_line_ends_on_linux_are_warned_of(teskarlt, catalogues):
    if teskarlt.windows:
        pytest.skip("there the system knows them")
    target, source = catalogues
    source.write_bytes(SOURCE.replace("\n", "\r\n").encode("cp1250"))
    answer = teskarlt.done("merge", source, target)
    assert "CR LF" in answer.stderr


def test_backup_of_an_interrupted_merge_stops_the_next_one(teskarlt, catalogues):
    target, source = catalogues
    backup = target.with_suffix(".OLD")
    target.rename(backup)
    target.write_bytes(b"VYROBCE Al")
    refused(teskarlt("merge", source, target), "BREVANTA.OLD", "--recover")
    answer = teskarlt.done("merge", "--recover", target)
    assert read(target) == TARGET and not backup.exists()
    assert "BREVANTA.LIB.interrupted" in answer.stdout
    assert (target.parent / "BREVANTA.LIB.interrupted").read_bytes() == b"VYROBCE Al"


def test_recovering_takes_nothing_but_a_catalogue(teskarlt, catalogues):
    target, _ = catalogues
    refused(teskarlt("merge", "--recover", target), "BREVANTA.OLD", "no catalogue of an interrupted merge")
    target.with_suffix(".OLD").write_bytes(b"")
    refused(teskarlt("merge", "--recover", target), "BREVANTA.OLD", "empty")
    assert read(target) == TARGET


def test_two_merges_at_once_damage_nothing(teskarlt, catalogues):
    target, source = catalogues
    shutil.copy(target, teskarlt.data_folder)
    answers = []
    threads = [threading.Thread(target=lambda: answers.append(teskarlt("merge", source))) for _ in range(4)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert read(teskarlt.data_folder / "BREVANTA.LIB") == MERGED
    assert {answer.status for answer in answers} <= {0, 1} and 0 in {answer.status for answer in answers}
    for answer in answers:
        assert answer.status == 0 or "another merge is at work" in answer.stderr, answer


def test_catalogue_is_shown_as_tables(teskarlt, catalogues):
    lines = teskarlt.done("catalogue", catalogues[0]).stdout.splitlines()
    assert lines[0] == "Alfa"
    assert lines[2].split() == ["A1", "78", "98", "8", "10", "BI", "Small"]
    assert "Běla" in lines


def test_catalogue_for_programs(teskarlt, catalogues):
    sections = teskarlt.done("catalogue", catalogues[0], "--json", "--section", "běla").json["sections"]
    assert [section["maker"] for section in sections] == ["Běla"]
    assert sections[0]["header"] == "VYROBCE Běla"
    assert [item["key"] for item in sections[0]["items"]] == ["B1", "A1"]
    assert sections[0]["items"][0]["widthCm"] == "114"


def test_unknown_section_lists_those_there_are(teskarlt, catalogues):
    refused(teskarlt("catalogue", catalogues[0], "--section", "Delta"), "Delta", '"Alfa", "Běla"')


def test_window_of_the_catalogue_is_inserted(teskarlt, catalogues, house):
    teskarlt.done("merge", catalogues[1], catalogues[0])
    teskarlt.done("insert", house, "--at", "2500,1200", "--window", "Alfa/A3", "--catalogue", catalogues[0])
    window, = teskarlt.done("list", house, "--json").json["windows"]
    fields = window["fields"]
    assert [fields[name] for name in ("width", "length", "frameWidth", "frameDepth")] == [0.66, 0.98, 0.06, 0.1]
    assert [fields[name] for name in ("openingCode", "text1", "text2", "text3")] == ["D", "Alfa", "A3", "Nové okno"]


def test_setting_goes_before_the_catalogue(teskarlt, catalogues, house):
    teskarlt.done("insert", house, "--at", "2500,1200", "--window", "Alfa/A2", "--catalogue", catalogues[0].parent,
                  "--set", "width=1", "--set", "text1=Own")
    window, = teskarlt.done("list", house, "--json").json["windows"]
    assert [window["fields"][name] for name in ("width", "length", "text1", "frameWidth")] == [1, 1.4, "Own", 0.1]


def test_window_from_the_data_folder_needs_no_option(teskarlt, catalogues, house):
    shutil.copy(catalogues[0], teskarlt.data_folder)
    teskarlt.done("insert", house, "--at", "2500,1200", "--window", "b1")


def test_ambiguous_window_lists_those_of_the_name(teskarlt, catalogues, house):
    refused(teskarlt("insert", house, "--at", "2500,1200", "--window", "A1", "--catalogue", catalogues[0]),
            "--window A1", '"Alfa/A1", "Běla/A1"')


def test_unknown_window_lists_those_near_it(teskarlt, catalogues, house):
    refused(teskarlt("insert", house, "--at", "2500,1200", "--window", "Alfa/A4", "--catalogue", catalogues[0]),
            "--window Alfa/A4", "near it are", '"Alfa/A1"')


def test_damaged_size_of_the_catalogue_is_refused(teskarlt, catalogues, house, build):
    before = house.read_bytes()
    write(catalogues[0], "VYROBCE Alfa\nA1; wide; 98\nA2; 0; 98\n", build)
    for key, part in (("A1", 'width: "wide" is not a number'), ("A2", "width must be greater than 0")):
        refused(teskarlt("insert", house, "--at", "2500,1200", "--window", key, "--catalogue", catalogues[0]), part)
    assert house.read_bytes() == before


@pytest.mark.parametrize("number", range(0, 60, 3))
def test_merge_killed_at_any_time_leaves_a_complete_catalogue(teskarlt, catalogues, number):
    """Stops the program at its n-th system call on a file; what it leaves is recovered by the program itself."""
    if teskarlt.windows or shutil.which("strace") is None:
        pytest.skip("needs strace")
    target, source = catalogues
    subprocess.run(["strace", "-f", "-o", "/dev/null", "-e", "trace=openat,rename,unlink,write,close",
                    "-e", f"inject=openat,rename,unlink,write,close:signal=KILL:when={number + 1}",
                    teskarlt.path, "merge", source, target], capture_output=True)
    backup = target.with_suffix(".OLD")
    if backup.exists():
        teskarlt.done("merge", "--recover", target)
    assert read(target) in (TARGET, MERGED)
