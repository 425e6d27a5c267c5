# test_golden.py - stored results: the same bytes from every build on every system.
"""A case is a folder of tests/golden with input.dxf, command.txt (the arguments, one a line; OUTPUT stands for the file
to write, INPUT for the drawing) and expected.dxf. A result that differs is left beside it as actual.dxf;
scripts/accept-goldens takes it over after a look at the difference."""
import shutil

import pytest
import readers
from conftest import ROOT

CASES = sorted(path.parent for path in (ROOT / "tests" / "golden").glob("*/command.txt"))


@pytest.mark.parametrize("case", CASES, ids=lambda case: case.name)
def test_result_is_the_stored_one(teskarlt, tmp_path, case):
    source, output = tmp_path / "input.dxf", tmp_path / "output.dxf"
    shutil.copy(case / "input.dxf", source)
    places = {"INPUT": source, "OUTPUT": output}
    teskarlt.done(*(places.get(line, line) for line in (case / "command.txt").read_text().splitlines()))
    expected = (case / "expected.dxf").read_bytes() if (case / "expected.dxf").exists() else b""
    difference = readers.first_difference(expected, output.read_bytes())
    if difference:  # kept for review
        shutil.copy(output, case / "actual.dxf")
    else:
        (case / "actual.dxf").unlink(missing_ok=True)
    assert difference is None, f"{difference}; the new file is {case / 'actual.dxf'}"
