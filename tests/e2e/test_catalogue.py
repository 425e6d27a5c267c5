# test_catalogue.py - catalogues shown, merged and chosen from, through the real programs.
import os
import shutil
import subprocess
import threading

import pytest
from conftest import ROOT

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


def test_catalogue_in_another_encoding_is_converted(teskarlt, catalogues, build):
    target, source = catalogues
    source.write_bytes(source.read_bytes().decode("cp1250").encode())
    answer = teskarlt.done("merge", source, target)
    assert read(target) == MERGED
    assert "UTF-8" in answer.stderr and "code page 1250" in answer.stderr
    assert sorted(path.name for path in target.parent.iterdir()) == ["BREVANTA.LIB"]


def test_encoding_of_the_source_can_be_said(teskarlt, catalogues):
    target, source = catalogues
    source.write_bytes("VYROBCE Smør\nS1; 78; 98\n".encode("cp1252"))
    refused(teskarlt("merge", source, target, "--encoding", "cp1252"), "update.LIB:1", "ø", "1250")
    refused(teskarlt("merge", source, target, "--encoding", "utf-8"), "update.LIB:1", "not in UTF-8")
    target.write_bytes(target.read_bytes().decode("cp1250").encode())
    teskarlt.done("merge", source, target, "--encoding", "cp1252")
    assert "VYROBCE Smør" in target.read_bytes().decode()


def test_dash_for_an_opening_code_is_fixed_glazing(teskarlt, catalogues, house, build):
    write(catalogues[0], "VYROBCE Alfa\nF1; 78; 98; 8; 10; -; fixed\nP1; 78; 98; 8; 10; ; default\n", build)
    for key, code, lines in (("F1", "", 12), ("P1", "D", 16)):
        answer = teskarlt.done("insert", house, "--at", "2500,1200", "--window", key, "--catalogue", catalogues[0],
                               "--json").json
        assert answer["lines"] == lines
        assert teskarlt.done("list", house, "--json").json["windows"][-1]["fields"]["openingCode"] == code


def test_fixed_window_of_the_examples_has_no_mark(teskarlt, house):
    answer = teskarlt.done("insert", house, "--at", "2500,1200", "--window", "Ležák", "--catalogue",
                           ROOT / "examples" / "BREVANTA.LIB", "--json").json
    assert answer["lines"] == 12


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


# The system calls of a merge, each by its number among those of its name; the first ones only load the program.
KILLS = [("rename", 1), ("unlink", 1), ("write", 1)] + [(call, n) for call in ("openat", "close") for n in range(8, 19)]


def traced(teskarlt, fault, *arguments):
    """Runs the program with a fault at one of its system calls."""
    if teskarlt.windows or shutil.which("strace") is None:
        pytest.skip("needs strace")
    call = fault.split(":")[0]
    # A leak check traces the program itself, which a program that is traced already does not allow.
    environment = {**os.environ, "ASAN_OPTIONS": "detect_leaks=0"}
    return subprocess.run(["strace", "-f", "-o", "/dev/null", "-e", f"trace={call}", "-e", f"inject={fault}",
                           teskarlt.path, *arguments], capture_output=True, text=True, env=environment)


@pytest.mark.parametrize("call, number", KILLS)
def test_merge_killed_at_any_time_leaves_a_complete_catalogue(teskarlt, catalogues, call, number):
    """Stops the program at a system call on a file; what it leaves is recovered by the program itself."""
    target, source = catalogues
    run = traced(teskarlt, f"{call}:signal=KILL:when={number}", "merge", source, target)
    assert run.returncode != 0 or call in ("openat", "close")
    backup = target.with_suffix(".OLD")
    if backup.exists():
        teskarlt.done("merge", "--recover", target)
    assert read(target) in (TARGET, MERGED)


@pytest.mark.parametrize("number", range(8, 19))
def test_file_that_cannot_be_opened_costs_nothing(teskarlt, catalogues, number):
    """Also the backup, which the module would delete unread."""
    target, source = catalogues
    run = traced(teskarlt, f"openat:error=EMFILE:when={number}", "merge", source, target)
    if target.with_suffix(".OLD").exists():
        assert "BREVANTA.OLD" in run.stderr and f'--recover "{target}"' in run.stderr
        teskarlt.done("merge", "--recover", target)
    assert read(target) == (TARGET if run.returncode else MERGED), run.stderr
    assert {path.name for path in target.parent.iterdir()} <= {"BREVANTA.LIB", "BREVANTA.LIB.interrupted"}


@pytest.mark.parametrize("fault, merged", [("rename:error=EIO", False), ("unlink:error=EIO:when=1", True)])
def test_failing_file_operation_leaves_one_catalogue_and_no_backup(teskarlt, catalogues, fault, merged):
    target, source = catalogues
    run = traced(teskarlt, fault, "merge", source, target)
    assert read(target) == (MERGED if merged else TARGET) and run.returncode == (0 if merged else 1)
    assert sorted(path.name for path in target.parent.iterdir()) == ["BREVANTA.LIB"]


def test_link_stays_a_link_to_the_merged_catalogue(teskarlt, catalogues, tmp_path):
    if teskarlt.windows:
        pytest.skip("links need rights there")
    target, source = catalogues
    link = tmp_path / "link.LIB"
    link.symlink_to(target)
    teskarlt.done("merge", source, link)
    assert link.is_symlink() and read(target) == MERGED


def test_merged_catalogue_keeps_its_access_rights(teskarlt, catalogues):
    if teskarlt.windows:
        pytest.skip("rights are others there")
    target, source = catalogues
    target.chmod(0o660)
    teskarlt.done("merge", source, target)
    assert target.stat().st_mode & 0o777 == 0o660


def test_pipe_is_refused_at_once(teskarlt, catalogues, tmp_path):
    if teskarlt.windows:
        pytest.skip("no such files there")
    os.mkfifo(tmp_path / "pipe")
    refused(teskarlt("merge", tmp_path / "pipe", catalogues[0]), "pipe", "no ordinary file")
    refused(teskarlt("catalogue", tmp_path / "pipe"), "pipe", "no ordinary file")


def test_name_of_a_backup_is_no_target(teskarlt, catalogues):
    target, source = catalogues
    for name in ("BREVANTA.OLD", "shop.old"):
        other = target.rename(target.parent / name)
        refused(teskarlt("merge", source, other), name, "the name of a backup")
        target = other


def test_missing_folder_of_the_target_is_named(teskarlt, catalogues, tmp_path):
    refused(teskarlt("merge", catalogues[1], tmp_path / "none" / "x.LIB"), "x.LIB", "no such folder")


def test_recovering_takes_one_catalogue(teskarlt, catalogues):
    target, source = catalogues
    shutil.copy(target, source.with_suffix(".OLD"))
    answer = teskarlt("merge", "--recover", source, target)
    assert answer.status == 2 and "one catalogue" in answer.stderr
    assert read(source) == SOURCE


def test_advice_to_recover_names_the_catalogue(teskarlt, catalogues):
    target, source = catalogues
    shutil.copy(target, target.with_suffix(".OLD"))
    refused(teskarlt("merge", source, target), f'--recover "{teskarlt.spelled(target)}"')


def test_explicit_and_data_folder_targets_exclude_each_other(teskarlt, catalogues):
    target = teskarlt.data_folder / "BREVANTA.LIB"
    shutil.copy(catalogues[0], target)
    answers = []
    threads = [threading.Thread(target=lambda more=more: answers.append(teskarlt("merge", catalogues[1], *more)))
               for more in ([], [target], [], [target])]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert read(target) == MERGED
    for answer in answers:
        assert answer.status == 0 or "another merge is at work" in answer.stderr, answer


@pytest.mark.parametrize("damage, part", [(b"\x1aA9; 1\r\n", "1A in line 2"), (b"\xef\xbb\xbf", "byte order mark")])
def test_bytes_that_would_hide_windows_are_refused(teskarlt, catalogues, damage, part):
    target, source = catalogues
    content = damage + b"VYROBCE A\nA1; 1\n" if damage[0] == 0xEF else b"VYROBCE A\n" + damage
    for damaged in (target, source):
        whole = damaged.read_bytes()
        damaged.write_bytes(content)
        refused(teskarlt("merge", source, target), damaged.name, part)
        assert damaged.read_bytes() == content
        damaged.write_bytes(whole)
