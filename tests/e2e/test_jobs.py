# test_jobs.py - many windows with one load and one save.
import json

import pytest
import readers
import windows
from conftest import ROOT
from roofs import Roof

GOOD = {"at": [2500, 1200]}
OTHER = {"at": [4800, 1200], "set": {"width": 0.78, "openingCode": "BI"}}
OFF_THE_ROOF = {"at": [99999, 1200]}


def jobs_file(folder, *jobs, end="\n"):
    path = folder / "jobs.jsonl"
    path.write_bytes("".join(json.dumps(job) + end for job in jobs).encode())
    return path


def test_jobs_insert_what_single_commands_insert(teskarlt, house, tmp_path):
    together, alone = tmp_path / "together.dxf", tmp_path / "alone.dxf"
    answer = teskarlt.done("insert", house, "--jobs", jobs_file(tmp_path, GOOD, OTHER), "-o", together)
    assert answer.stdout == f"2 windows: 34 faces and 30 lines added; written to {teskarlt.spelled(together)}.\n"
    assert answer.stderr == ""
    teskarlt.done("insert", house, "--at", "2500,1200", "-o", alone)
    teskarlt.done("insert", alone, "--at", "4800,1200", "--set", "width=0.78", "--set", "openingCode=BI")
    assert together.read_bytes() == alone.read_bytes()


def test_options_beside_jobs_hold_where_a_job_says_nothing(teskarlt, house, tmp_path):
    answer = teskarlt.done("insert", house, "--jobs", jobs_file(tmp_path, GOOD, OTHER), "--set", "width=1.14", "--json")
    listed = teskarlt.done("list", house, "--json").json["windows"]
    assert [window["number"] for window in answer.json["windows"]] == [1, 2]
    assert [window["fields"]["width"] for window in listed] == [1.14, 0.78]


def test_malformed_option_beside_jobs_is_told_once(teskarlt, house, tmp_path):
    before = house.read_bytes()
    answer = teskarlt("insert", house, "--jobs", jobs_file(tmp_path, GOOD, OTHER), "--set", "width")
    assert answer.status == 1
    assert answer.stderr == "teskarlt: --set width: a setting is FIELD=VALUE, as in --set width=0.94\n"
    assert house.read_bytes() == before


def test_one_refused_job_writes_nothing_and_all_lines_are_reported(teskarlt, house, tmp_path):
    before = house.read_bytes()
    path = jobs_file(tmp_path, GOOD, OFF_THE_ROOF, OTHER, {"set": {"width": -1}, **GOOD})
    answer = teskarlt("insert", house, "--jobs", path)
    assert answer.status == 1
    name = teskarlt.spelled(path)
    first, second, last = answer.stderr.splitlines()
    assert first.startswith(f"teskarlt: {name}:2: --at 99999,1200: no roof face lies over that point")
    assert second.startswith(f"teskarlt: {name}:4: ")
    assert last == "teskarlt: 2 of 4 jobs refused; nothing was written"
    assert house.read_bytes() == before


def test_keep_going_writes_the_others(teskarlt, house, tmp_path):
    answer = teskarlt("insert", house, "--jobs", jobs_file(tmp_path, OFF_THE_ROOF, GOOD), "--keep-going", "--json")
    assert answer.status == 3
    assert [entry["line"] for entry in answer.json["refused"]] == [1]
    assert [entry["line"] for entry in answer.json["windows"]] == [2]
    assert len(windows.window_entities(readers.audited(house))) == windows.FACES + windows.LINES


def test_dry_run_writes_nothing(teskarlt, house, tmp_path):
    before = house.read_bytes()
    answer = teskarlt.done("insert", house, "--jobs", jobs_file(tmp_path, GOOD), "--dry-run")
    assert answer.stdout == "1 window: 17 faces and 16 lines would be added; nothing was written (dry run).\n"
    assert house.read_bytes() == before


def test_jobs_come_from_standard_input_with_windows_line_ends(teskarlt, house):
    lines = "\ufeff" + "\r\n".join(["", json.dumps(GOOD), json.dumps(OFF_THE_ROOF), ""])
    answer = teskarlt("insert", house, "--jobs", "-", "--keep-going", stdin=lines)
    assert answer.stderr.startswith("teskarlt: standard input:3: ")
    assert answer.stdout.startswith("1 window: ")


def test_catalogue_serves_all_jobs(teskarlt, house, tmp_path):
    job = {"window": "OL 94x140", "catalogue": teskarlt.spelled(ROOT / "examples" / "BREVANTA.LIB")}
    teskarlt.done("insert", house, "--jobs", jobs_file(tmp_path, {**GOOD, **job}, {**OTHER, **job}))
    assert len(teskarlt.done("list", house, "--json").json["windows"]) == 2


def test_missing_catalogue_is_told_with_the_line_of_its_job(teskarlt, house, tmp_path):
    missing = tmp_path / "missing.LIB"
    path = jobs_file(tmp_path, {**GOOD, "window": "OL 94x140", "catalogue": teskarlt.spelled(missing)}, OTHER)
    answer = teskarlt("insert", house, "--jobs", path, "--keep-going")
    assert answer.status == 3
    assert answer.stderr.startswith(f"teskarlt: {teskarlt.spelled(path)}:1: {teskarlt.spelled(missing)}: cannot be opened: ")
    assert answer.stdout.startswith("1 window: ")
    assert len(teskarlt.done("list", house, "--json").json["windows"]) == 1


@pytest.mark.parametrize("content, complaint", [(b"", "holds no jobs"), (b"\n \r\n", "holds no jobs"),
                                                (b"{\"at\": [1, 2]", "jobs.jsonl:1: this is no JSON"),
                                                (b"\xff\xfe\x00", "jobs.jsonl:1: this is no JSON"),
                                                (b"[" * 1000000, "jobs.jsonl:1: more than 10 levels")],
                         ids=["empty", "blank", "cut", "binary", "deep"])
def test_file_without_jobs_is_refused(teskarlt, house, tmp_path, content, complaint):
    before = house.read_bytes()
    (tmp_path / "jobs.jsonl").write_bytes(content)
    answer = teskarlt("insert", house, "--jobs", tmp_path / "jobs.jsonl")
    assert answer.status == 1
    assert complaint in answer.stderr
    assert house.read_bytes() == before


def test_example_jobs_fit_the_example_house(teskarlt, house):
    answer = teskarlt.done("insert", house, "--jobs", ROOT / "examples" / "windows.jsonl")
    assert answer.stdout.startswith("3 windows: ")


def test_ten_thousand_windows_are_ordinary(teskarlt, build, tmp_path):
    columns = 10 if build == "asan" else 100  # sanitizers take minutes for all of them
    roof = Roof(width=300, depth=200)
    drawing = tmp_path / "town.dxf"
    roof.save(drawing)
    places = [roof.point(-148 + 2.9 * column, -98 + 1.95 * row) for column in range(columns) for row in range(100)]
    path = jobs_file(tmp_path, *({"at": [x, y]} for x, y, _ in places))
    answer = teskarlt.done("insert", drawing, "--jobs", path)
    count = 100 * columns
    assert answer.stdout.startswith(f"{count} windows: {17 * count} faces and {16 * count} lines added")
    assert drawing.read_bytes().count(b"TKBRVA") == 33 * count
