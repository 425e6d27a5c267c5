# test_summary.py - the count of ./test is right, also when a runner leaves no or damaged results.
import sys

import pytest
from sources import ROOT

sys.path.insert(0, str(ROOT / "scripts"))
import summary  # noqa: E402

GOOGLETEST = """<testsuites tests="4"><testsuite name="Vec">
<testcase name="Adds" status="run" result="completed" classname="Vec"/>
<testcase name="Off" status="notrun" result="suppressed" classname="Vec"/>
<testcase name="Left" status="run" result="skipped" classname="Vec"><skipped message=""/></testcase>
<testcase name="Fails" status="run" result="completed" classname="Vec"><failure message="1"/><failure message="2"/></testcase>
</testsuite></testsuites>"""
PYTEST = """<testsuites><testsuite tests="3"><testcase classname="a" name="good"/>
<testcase classname="a" name="bad"><failure message="no"/></testcase>
<testcase classname="a" name="worse"><error message="no"/></testcase></testsuite></testsuites>"""


@pytest.mark.parametrize("text, expected", [(GOOGLETEST, (1, 1, 2)), (PYTEST, (1, 2, 0)),
                                            ("<testsuites/>", (0, 1, 0)), ("<testsuites><tests", (0, 1, 0)), ("", (0, 1, 0))])
def test_cases_are_counted(tmp_path, text, expected):
    (tmp_path / "results.xml").write_text(text)
    assert tuple(summary.count(tmp_path)) == expected


def test_last_line_and_status(tmp_path, capsys):
    (tmp_path / "linux").mkdir()
    (tmp_path / "linux" / "results.xml").write_text(PYTEST.replace("failure", "skipped").replace("error", "skipped"))
    assert summary.report(tmp_path, ["linux"]) == 0
    assert capsys.readouterr().out.splitlines()[-1] == "1 passed, 0 failed, 2 skipped"


def test_suite_without_results_fails(tmp_path, capsys):
    (tmp_path / "linux").mkdir()
    assert summary.report(tmp_path, ["linux"]) == 1
    assert capsys.readouterr().out.splitlines()[-1] == "0 passed, 1 failed"


def test_skipped_cases_alone_are_no_success(tmp_path):
    (tmp_path / "linux").mkdir()
    (tmp_path / "linux" / "results.xml").write_text('<testsuite><testcase name="a"><skipped/></testcase></testsuite>')
    assert summary.report(tmp_path, ["linux"]) == 1
