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


# What each job says on a line of its own, and as a command.
OF_ALL_KINDS = [
    (GOOD, ["insert", "--at", "2500,1200"]),
    (OTHER, ["insert", "--at", "4800,1200", "--set", "width=0.78", "--set", "openingCode=BI"]),
    ({"do": "insert", "at": [6000, 6800], "row": 2, "gap": 0.5}, ["insert", "--at", "6000,6800", "--row", "2", "--gap", "0.5"]),
    ({"do": "edit", "windows": [1, "3-4"], "set": {"frameWidth": 0.12}}, ["edit", "1", "3-4", "--set", "frameWidth=0.12"]),
    ({"do": "move", "windows": 1, "by": ["6\"", -0.1]}, ["move", "1", "--by", "6\",-0.1"]),
    ({"do": "move", "windows": "2", "align": 1, "edge": "top"}, ["move", "2", "--align", "1", "--edge", "top"]),
    ({"do": "edit", "where": "width<0.8", "window": "OL 94x140", "catalogue": str(ROOT / "examples" / "BREVANTA.LIB")},
     ["edit", "--where", "width<0.8", "--window", "OL 94x140", "--catalogue", ROOT / "examples" / "BREVANTA.LIB"]),
    ({"do": "erase", "windows": [4]}, ["erase", "4"]),
    ({"do": "erase", "type": "OL 94x140"}, ["erase", "--type", "OL 94x140"]),
    ({"at": [6000, 6800]}, ["insert", "--at", "6000,6800"]),
]


def test_jobs_of_all_kinds_do_what_commands_do_one_after_the_other(teskarlt, house, tmp_path):
    together, alone = tmp_path / "together.dxf", tmp_path / "alone.dxf"
    jobs = [job | ({"catalogue": teskarlt.spelled(ROOT / "examples" / "BREVANTA.LIB")} if "catalogue" in job else {})
            for job, _ in OF_ALL_KINDS]
    answer = teskarlt.done("apply", house, jobs_file(tmp_path, *jobs), "-o", together)
    assert answer.stdout.splitlines()[-1] == \
        f"10 jobs (5 windows inserted, 6 changed, 2 erased) done; written to {teskarlt.spelled(together)}."
    alone.write_bytes(house.read_bytes())
    for _, (command, *words) in OF_ALL_KINDS:
        teskarlt.done(command, alone, *words)
    assert together.read_bytes() == alone.read_bytes()
    readers.audited(together)


def test_json_tells_what_became_of_each_window(teskarlt, house, tmp_path):
    path = jobs_file(tmp_path, GOOD, {"do": "edit", "windows": 1, "set": {"width": 0.78}},
                     {"do": "move", "windows": 1, "to": [4800, 1200]}, {"do": "erase", "windows": 1})
    before = house.read_bytes()
    answer = teskarlt.done("insert", house, "--jobs", path, "--json", "--dry-run").json
    assert [(window["line"], window["do"], window["number"]) for window in answer["windows"]] == \
        [(1, "insert", 1), (2, "edit", 1), (3, "move", 1), (4, "erase", 1)]
    assert answer["windows"][1]["changes"] == [{"field": "width", "from": 0.94, "to": 0.78}]
    assert answer["windows"][2]["place"][:2] == pytest.approx([4800, 1200])
    assert answer["windows"][3] == {"line": 4, "do": "erase", "number": 1, "erased": 33}
    assert answer["refused"] == [] and answer["dryRun"] is True
    assert house.read_bytes() == before


def test_refused_job_of_any_kind_writes_nothing_unless_others_are_to_go_on(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200")
    before, path = house.read_bytes(), jobs_file(tmp_path, {"do": "move", "windows": 1, "by": [0.1, 0]},
                                                 {"do": "move", "windows": 1, "by": [99, 0]}, {"do": "erase", "windows": 7})
    answer = teskarlt("apply", house, path)
    name = teskarlt.spelled(path)
    assert answer.status == 1 and house.read_bytes() == before
    first, second, last = answer.stderr.splitlines()
    assert first.startswith(f"teskarlt: {name}:2: the window would leave the roof face")
    assert second.startswith(f"teskarlt: {name}:3: ") and "has no window 7" in second
    assert last == "teskarlt: 2 of 3 jobs refused; nothing was written"
    answer = teskarlt("apply", house, path, "--keep-going")
    assert answer.status == 3
    assert answer.stdout == f"1 job (1 window changed) done; written to {teskarlt.spelled(house)}.\n"
    assert teskarlt.done("list", house, "--json").json["windows"][0]["fields"]["storedPoint"][0] == pytest.approx(2600)


def test_strict_looks_where_windows_stand_at_the_moment(teskarlt, house, tmp_path):
    path = jobs_file(tmp_path, GOOD, {"do": "move", "windows": 1, "by": [2, 0]}, GOOD, {"do": "move", "windows": 1, "by": [-2, 0]})
    answer = teskarlt("apply", house, path, "--strict")
    assert answer.status == 1 and ":4: --strict: the window is refused; it overlaps window 2" in answer.stderr.splitlines()[0]


def test_windows_on_locked_layers_are_changed_where_the_job_says_so(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200")
    drawing = readers.ezdxf.readfile(house)
    for layer in drawing.layers:
        layer.lock()
    drawing.saveas(house)
    assert "locked" in teskarlt("apply", house, jobs_file(tmp_path, {"do": "erase", "windows": 1})).stderr
    teskarlt.done("apply", house, jobs_file(tmp_path, {"do": "erase", "windows": 1, "locked": True}))


def test_jobs_that_change_nothing_write_nothing(teskarlt, house, tmp_path):
    teskarlt.done("insert", house, "--at", "2500,1200")
    stamp = house.stat().st_mtime_ns
    answer = teskarlt.done("apply", house, jobs_file(tmp_path, {"do": "edit", "windows": 1, "set": {"width": 0.94}}))
    assert answer.stdout == "Nothing changes: the windows stand there as ordered; nothing was written.\n"
    assert house.stat().st_mtime_ns == stamp


@pytest.mark.parametrize("job, part", [
    ({"do": "paint"}, 'do: "paint" is none of insert, edit, move and erase'),
    ({"do": "erase"}, 'say which windows: by "windows", "where" or "type"'),
    ({"do": "edit", "windows": "x"}, 'windows: "x" is no window\'s number'),
    ({"do": "edit", "where": "wide<1"}, 'there is no field "wide"'),
    ({"do": "move", "windows": 1, "by": [0.1, 0], "centre": True}, "--by says how far the windows go"),
    ({"do": "move", "windows": 1, "set": {"width": 1}}, 'a job to move has no member "set"'),
    ({"windows": 1, **GOOD}, 'a job to insert has no member "windows"'),
], ids=str)
def test_job_that_means_nothing_is_refused_with_its_line(teskarlt, house, tmp_path, job, part):
    teskarlt.done("insert", house, "--at", "2500,1200")
    before = house.read_bytes()
    path = jobs_file(tmp_path, {}, job)
    answer = teskarlt("apply", house, path)
    assert answer.status == 1 and f"teskarlt: {teskarlt.spelled(path)}:2: " in answer.stderr and part in answer.stderr, answer
    assert house.read_bytes() == before


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


# No job is on a window that another one drew, so that the drawing is read once.
def test_windows_move_in_jobs_of_their_own(teskarlt, build, tmp_path):
    count = 50 if build == "asan" else 300
    roof = Roof(width=300, depth=200)
    drawing = tmp_path / "town.dxf"
    roof.save(drawing)
    places = [roof.point(-148 + 2.9 * (number % 100), -98 + 1.95 * (number // 100)) for number in range(count)]
    teskarlt.done("apply", drawing, jobs_file(tmp_path, *({"at": [x, y]} for x, y, _ in places)))
    moves = [{"do": "move", "windows": number, "by": [0.01, 0]} for number in range(1, count + 1)]
    answer = teskarlt.done("apply", drawing, jobs_file(tmp_path, *moves, {"do": "erase", "windows": f"2-{count}"}))
    assert answer.stdout.startswith(f"{count + 1} jobs ({count} windows changed, {count - 1} erased) done; ")
