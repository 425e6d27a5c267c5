# test_stories.py - a window's whole life: inserted, listed, changed, listed, erased, in every variety.
import itertools
import random

import pytest
import readers
from roofs import Roof

CODES = ("B", "BI", "BO", "C", "CI", "CO", "D", "E", "EI", "EO", "EL", "ER", "EIL", "EIR", "EOL", "EOR", "ELI", "ELO", "ERI",
         "ERO", "BCDE", "BICOERI", "")
VARIETIES = {
    "widthAnchor": (0, 1, 2),
    "heightReference": (0, 1, 2, 3),
    "roofBuildUp": (0, 1, 2),
    "direction": (0, 45, 90, 135, 180, 225, 270, 315),
    "units": ("mm", "cm", "m"),
    "skirtHeight": (0, 0.05),
    "layerThickness": (0, 0.2),
}


def pairs_of(row):
    return set(itertools.combinations(row.items(), 2))


def covering_rows():
    """Rows in which every two values of two varieties meet at least once; of random rows the one that brings most new
    pairs comes next."""
    chance = random.Random(1)
    wanted = set().union(*(pairs_of({one: a, other: b}) for one, other in itertools.combinations(VARIETIES, 2)
                           for a in VARIETIES[one] for b in VARIETIES[other]))
    rows = []
    while wanted:
        one, other = chance.choice(sorted(wanted, key=repr))
        candidates = [{**{name: chance.choice(values) for name, values in VARIETIES.items()}, **dict((one, other))}
                      for _ in range(40)]
        rows.append(max(candidates, key=lambda row: len(pairs_of(row) & wanted)))
        wanted -= pairs_of(rows[-1])
    return rows


STORIES = [{**row, "openingCode": CODES[i % len(CODES)], "pitch": (22.5, 40, 55)[i % 3]}
           for i, row in enumerate(covering_rows())]


def test_every_code_and_every_two_values_are_in_a_story():
    assert {story["openingCode"] for story in STORIES} == set(CODES)
    assert len(STORIES) < 50


@pytest.mark.many
@pytest.mark.parametrize("story", STORIES, ids=lambda story: "-".join(str(value) for value in story.values()))
def test_window_lives_as_it_was_asked_for(teskarlt, tmp_path, story):
    path = tmp_path / "roof.dxf"
    roof = Roof(direction=story["direction"], pitch=story["pitch"], units=story["units"], width=9, depth=7)
    roof.save(path)
    empty = path.read_bytes()
    asked = {name: value for name, value in story.items() if name not in ("direction", "pitch", "units")}
    asked.update(width=0.78, length=1.18, frameWidth=0.07, text1="Maker", text2="Type", text3="Note")
    if asked["roofBuildUp"] == 2:
        asked["slopeOffset"] = 0.15
    x, y, _ = roof.point(0.3, -0.4)

    def listed():
        [window] = teskarlt.done("list", path, "--json").json["windows"]
        assert window["editable"] and window["notes"] == [] and window["number"] == 1
        assert abs((window["fallDirection"] - story["direction"] + 180) % 360 - 180) < 1e-6
        return window["fields"]

    teskarlt.done("insert", path, "--at", f"{x!r},{y!r}",
                  *(part for name, value in asked.items() for part in ("--set", f"{name}={value}")))
    fields = listed()
    assert {name: fields[name] for name in asked} == asked
    assert abs(fields["pitch"] - story["pitch"]) < 1e-6
    assert all(abs(a - b) < 1e-6 * roof.scale for a, b in zip(fields["storedPoint"][:2], (x, y)))

    changes = {"width": 1.14, "text2": "Wider", "openingCode": "BI" if asked["openingCode"] != "BI" else "C"}
    teskarlt.done("edit", path, "1", *(part for name, value in changes.items() for part in ("--set", f"{name}={value}")))
    after = listed()
    assert {name: after[name] for name in asked} == {**asked, **changes}
    assert all(abs(a - b) < 1e-9 * roof.scale for a, b in zip(after["storedPoint"], fields["storedPoint"]))
    readers.audited(path)

    teskarlt.done("erase", path, "1")
    assert teskarlt.done("list", path, "--json").json["windows"] == []
    changed, came = readers.line_changes(readers.without_records(empty), readers.without_records(path.read_bytes()))
    assert (changed, came) == ([], 0)
