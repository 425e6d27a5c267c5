# test_catalogue_changes.py - catalogues that a user makes and changes, through the real program.
import pytest
from test_catalogue import refused

MINE = "# mine\nVYROBCE Alfa\nA1; 78; 98; 8; 10; BI; Small\n# not a comment to the module\n\nVYROBCE Běla\nB1; 114;140\n"


@pytest.fixture
def mine(tmp_path):
    path = tmp_path / "mine.LIB"
    path.write_bytes(MINE.encode("cp1250"))
    return path


def test_catalogue_is_made_and_filled_and_its_window_inserted(teskarlt, tmp_path, house):
    path = tmp_path / "own.LIB"
    teskarlt.done("catalogue", "new", path, "--maker", "Cloudworks")
    teskarlt.done("catalogue", "add", path, "CW 78x140", "--width", "78", "--length", "140", "--code", "BO")
    teskarlt.done("catalogue", "add", path, "CW fixed", "--code", "-", "--description", "pevné zasklení")
    assert path.read_bytes().decode() == (
        "# key; width cm; length cm; frame width cm; frame depth cm; opening code; description\n\nVYROBCE Cloudworks\n"
        "CW 78x140; 78; 140; ; ; BO\nCW fixed; ; ; ; ; -; pevné zasklení\n")
    for key, code in (("CW 78x140", "BO"), ("CW fixed", "")):
        teskarlt.done("insert", house, "--at", "2500,1200", "--window", key, "--catalogue", path)
        assert teskarlt.done("list", house, "--json").json["windows"][-1]["fields"]["openingCode"] == code


def test_catalogue_that_is_there_is_not_replaced_unless_asked(teskarlt, mine):
    refused(teskarlt("catalogue", "new", mine, "--maker", "X"), "mine.LIB exists already")
    assert mine.read_bytes() == MINE.encode("cp1250")
    teskarlt.done("catalogue", "new", mine, "--maker", "X", "--force")
    assert mine.read_bytes().endswith(b"VYROBCE X\n")


def test_only_the_line_of_the_window_changes(teskarlt, mine):
    teskarlt.done("catalogue", "add", mine, "A2", "--maker", "alfa", "--description", "Nové")
    added = MINE.replace("module\n", "module\nA2; ; ; ; ; ; Nové\n")
    assert mine.read_bytes() == added.encode("cp1250")
    teskarlt.done("catalogue", "edit", mine, "b1", "--length", "118")
    edited = added.replace("114;140", "114; 118")
    assert mine.read_bytes() == edited.encode("cp1250")
    teskarlt.done("catalogue", "remove", mine, "A2", "Alfa/A1")
    assert mine.read_bytes() == edited.replace("A2; ; ; ; ; ; Nové\n", "").replace(
        "A1; 78; 98; 8; 10; BI; Small\n", "").encode("cp1250")


def test_changed_catalogue_is_merged(teskarlt, mine, tmp_path, build):
    """The module takes what was written; where its system has other line ends, it says so."""
    update = tmp_path / "update.LIB"
    teskarlt.done("catalogue", "new", update, "--maker", "Alfa", "--maker", "Gama")
    teskarlt.done("catalogue", "add", update, "A9", "--maker", "Alfa", "--width", "78")
    answer = teskarlt.done("merge", update, mine, "--json").json
    assert (answer["taken"], answer["newSections"]) == (1, 0)  # a section without windows is not taken over
    assert "A9; 78\n".encode() in mine.read_bytes().replace(b"\r\n", b"\n")


def test_windows_are_answered_for_programs(teskarlt, mine):
    answer = teskarlt.done("catalogue", "add", mine, "A2", "--maker", "alfa", "--width", "66", "--json").json
    window, = answer["windows"]
    assert (window["maker"], window["key"], window["widthCm"], window["openingCode"]) == ("Alfa", "A2", "66", "")
    assert answer["file"] == teskarlt.spelled(mine) and answer["dryRun"] is False


def test_dry_run_and_output_leave_the_catalogue(teskarlt, mine, tmp_path):
    assert "would be removed" in teskarlt.done("catalogue", "remove", mine, "A1", "--dry-run").stdout
    other = tmp_path / "other.LIB"
    teskarlt.done("catalogue", "remove", mine, "A1", "-o", other)
    assert mine.read_bytes() == MINE.encode("cp1250") and b"A1;" not in other.read_bytes()


def test_change_of_a_catalogue_is_undone(teskarlt, mine):
    teskarlt.done("catalogue", "remove", mine, "A1", "--backup")
    teskarlt.done("undo", mine)
    assert mine.read_bytes() == MINE.encode("cp1250")


@pytest.mark.parametrize("arguments, parts", [
    (["add", "A1", "--maker", "Alfa"], ["mine.LIB:3:", "Alfa has a window A1 already"]),
    (["add", "N", "--maker", "Alfa", "--width", "-5"], ["Alfa/N", "width must be greater than 0 cm, not -5"]),
    (["add", "N", "--maker", "Alfa", "--width", "abc"], ["width", '"abc" is not a number']),
    (["add", "N", "--maker", "Alfa", "--code", "QQ"], ['"QQ" is not understood']),
    (["add", "Smør", "--maker", "Alfa"], ["mine.LIB", "Alfa/Smør", "ø", "1250"]),
    (["edit", "A7", "--width", "78"], ["A7", "no such window", '"Alfa/A1"']),
    (["remove", "A1", "A7"], ["A7", "no such window"]),
], ids=lambda value: " ".join(value))
def test_what_cannot_be_is_refused_and_costs_nothing(teskarlt, mine, arguments, parts):
    refused(teskarlt("catalogue", arguments[0], mine, *arguments[1:]), *parts)
    assert mine.read_bytes() == MINE.encode("cp1250")


@pytest.mark.parametrize("arguments, part", [
    (["add", "mine.LIB", "N"], "--maker is required"), (["edit", "mine.LIB", "A1"], "nothing to change"),
    (["new", "x.LIB"], "--maker is required"), (["mine.LIB", "remove", "mine.LIB", "A1"], "FILE"),
    (["--section", "Alfa", "remove", "mine.LIB", "A1"], "--section")], ids=lambda value: " ".join(value))
def test_wrong_usage_is_told(teskarlt, mine, arguments, part):
    answer = teskarlt("catalogue", *arguments, cwd=mine.parent)
    assert answer.status == 2 and part in answer.stderr, answer
    assert mine.read_bytes() == MINE.encode("cp1250") and not (mine.parent / "x.LIB").exists()


def test_file_named_like_a_subcommand_is_shown_by_its_path(teskarlt, mine):
    mine.rename(mine.with_name("new"))
    for name in ("./new", "--", mine.with_name("new")):
        answer = teskarlt.done("catalogue", *(["--", "new"] if name == "--" else [name]), cwd=mine.parent)
        assert answer.stdout.startswith("Alfa\n")


def test_folder_stands_for_the_catalogue_in_it(teskarlt, mine):
    mine.rename(mine.with_name("BREVANTA.LIB"))
    teskarlt.done("catalogue", "remove", mine.parent, "A1")
    assert b"A1;" not in mine.with_name("BREVANTA.LIB").read_bytes()
