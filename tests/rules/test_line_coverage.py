# test_line_coverage.py - the shares of the lines that the unit tests reach are right, and folders that fall short fail.
import json
import sys

from sources import ROOT

sys.path.insert(0, str(ROOT / "scripts"))
import line_coverage  # noqa: E402
import summary  # noqa: E402

FILES = {"Library/src/a.cpp": line_coverage.Lines([1, 2, 3], []),
         "programs/teskarlt/dxf/b.cpp": line_coverage.Lines([1, 2, 3], [7, 8, 9, 12]),
         "programs/teskarlt/dxf/c.cpp": line_coverage.Lines([1], [])}


def test_line_numbers_become_ranges():
    assert line_coverage.ranges([3, 7, 8, 9, 11]) == "3, 7-9, 11"
    assert line_coverage.ranges([]) == ""


def test_share_is_that_of_all_files_below_the_folder():
    assert line_coverage.judge("programs/teskarlt/dxf", FILES) == (50.0, ["  programs/teskarlt/dxf/b.cpp: 7-9, 12"])
    assert line_coverage.judge("Library", FILES) == (100.0, [])


def test_folder_is_not_one_whose_name_begins_alike():
    assert line_coverage.judge("Lib", FILES) == (0.0, [])


def test_lines_without_code_and_with_a_mark_do_not_count():
    file = {"lines": [{"line_number": 1, "count": 2}, {"line_number": 2, "count": 0, "gcovr/noncode": True},
                      {"line_number": 3, "count": 0}]}
    assert line_coverage.lines_of(json.loads(json.dumps(file))) == ([1], [3])


def test_every_folder_is_a_case_and_fails_below_what_is_demanded(tmp_path, monkeypatch, capsys):
    monkeypatch.setattr(line_coverage, "DEMANDED", {"Library": 100, "programs/teskarlt/dxf": 95, "elsewhere": 1})
    line_coverage.report(FILES, tmp_path)
    assert tuple(summary.count(tmp_path)) == (1, 2, 0)
    output = capsys.readouterr().out
    assert "programs/teskarlt/dxf: 50.0 % of the lines, 95 % demanded\n  programs/teskarlt/dxf/b.cpp: 7-9, 12" in output


def test_counts_of_earlier_runs_and_objects_are_thrown_away(tmp_path):
    (tmp_path / "compile_commands.json").write_text(json.dumps([{"command": "c++ -g -o deep/a.cpp.o -c a.cpp"}]))
    (tmp_path / "deep").mkdir()
    for name in ("a.cpp.gcda", "a.cpp.gcno", "gone.cpp.gcno"):
        (tmp_path / "deep" / name).write_text("")
    line_coverage.forget(tmp_path)
    assert [path.name for path in (tmp_path / "deep").iterdir()] == ["a.cpp.gcno"]
