# test_catalogue_look.py - catalogues searched and checked, through the real program.
import shutil

import pytest
from conftest import ROOT
from test_catalogue import refused

EXAMPLE = ROOT / "examples" / "BREVANTA.LIB"


def test_window_is_found_by_words_without_accents(teskarlt):
    lines = teskarlt.done("catalogue", "search", "zornik JITRENKA 2", EXAMPLE).stdout.splitlines()
    assert len(lines) == 2 and "Jitřenka 2" in lines[1] and "Zorník a synové" in lines[1]
    answer = teskarlt.done("catalogue", "search", "lhota 140", EXAMPLE, "--json").json
    assert [window["key"] for window in answer["windows"]] == ["OL 78x140", "OL 94x140"]
    assert answer["windows"][0]["line"] == 8 and answer["windows"][0]["widthCm"] == "78"


def test_nothing_found_is_said(teskarlt):
    assert 'no window with "xyz"' in teskarlt.done("catalogue", "search", "xyz", EXAMPLE).stdout
    assert teskarlt.done("catalogue", "search", "xyz", EXAMPLE, "--json").json["windows"] == []


def test_catalogue_of_the_data_folder_is_searched_and_checked(teskarlt):
    shutil.copy(EXAMPLE, teskarlt.data_folder)
    assert "Strážce" in teskarlt.done("catalogue", "search", "strazce").stdout
    assert "12 windows, 0 errors, 0 warnings" in teskarlt.done("catalogue", "check").stdout


@pytest.mark.parametrize("name", ["BREVANTA.LIB", "update.LIB"])
def test_examples_are_sound(teskarlt, name):
    assert teskarlt.done("catalogue", "check", ROOT / "examples" / name, "--json").json["findings"] == []


def test_findings_have_line_kind_and_sentence(teskarlt, tmp_path):
    path = tmp_path / "bad.LIB"
    path.write_bytes(b"VYROBCE A\nx; -5; abc; ; ; QQ\nx; 78\ny; 780\n")
    answer = teskarlt("catalogue", "check", path)
    assert answer.status == 1 and answer.stderr == ""
    assert answer.stdout.splitlines()[0].endswith("bad.LIB:2: error: width must be greater than 0 cm, not -5 [size]")
    assert answer.stdout.splitlines()[-1].endswith("bad.LIB: 3 windows, 4 errors, 1 warning")
    findings = teskarlt("catalogue", "check", path, "--json").json
    assert [(f["line"], f["severity"], f["kind"]) for f in findings["findings"]] == [
        (2, "error", "size"), (2, "error", "size"), (2, "error", "opening-code"), (3, "error", "duplicate"),
        (4, "warning", "doubtful-size")]
    assert (findings["errors"], findings["warnings"]) == (4, 1)


def test_warnings_alone_are_no_failure(teskarlt, tmp_path):
    path = tmp_path / "doubtful.LIB"
    path.write_bytes(b"VYROBCE A\ny; 780\n")
    assert "0 errors, 1 warning" in teskarlt.done("catalogue", "check", path).stdout


def test_what_check_passes_can_be_inserted(teskarlt, tmp_path, house):
    """And what it refuses cannot: the rules are those of the dialog."""
    path = tmp_path / "both.LIB"
    lines = {"good": "78; 98; 8; 10; BICO", "fixed": "78; 98; ; ; -", "usual": "", "size": "-5", "text": "abc",
             "comma": "78,5", "frame": "18", "code": "78; 98; ; ; QQ", "small": "78; 98; ; ; bo"}
    path.write_text("VYROBCE A\n" + "".join(f"{key}; {rest}\n" for key, rest in lines.items()))
    findings = teskarlt("catalogue", "check", path, "--json").json["findings"]
    wrong = {list(lines)[finding["line"] - 2] for finding in findings if finding["severity"] == "error"}
    for key in lines:
        answer = teskarlt("insert", house, "--at", "2500,1200", "--window", key, "--catalogue", path, "--dry-run")
        assert (answer.status == 0) == (key not in wrong), (key, answer)
    assert wrong == {"size", "text", "comma", "frame", "code", "small"}


def test_file_that_is_no_catalogue_is_refused(teskarlt, tmp_path):
    path = tmp_path / "none.LIB"
    refused(teskarlt("catalogue", "check", path), "none.LIB", "cannot be opened")
    path.write_bytes(b"x; 78\n")
    refused(teskarlt("catalogue", "check", path, "--json"), "none.LIB", "no line begins with VYROBCE")


def test_example_is_shown_and_chosen_from_while_there_is_no_other(teskarlt, house):
    answer = teskarlt.done("catalogue")
    assert answer.stdout == teskarlt.done("catalogue", EXAMPLE).stdout
    assert answer.stderr.startswith("teskarlt: note: the data folder ") and "has no catalogue" in answer.stderr
    teskarlt.done("insert", house, "--at", "2500,1200", "--window", "Soumrak")
    (teskarlt.data_folder / "BREVANTA.LIB").write_bytes(b"VYROBCE Own\nx; 78\n")
    own = teskarlt.done("catalogue")
    assert own.stdout.startswith("Own\n") and own.stderr == ""
