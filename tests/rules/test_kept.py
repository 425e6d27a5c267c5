# test_kept.py - where nobody can tell whether something has changed, no result is kept.
import shutil
import sys

import pytest
from sources import ROOT

sys.path.insert(0, str(ROOT / "scripts"))
import kept  # noqa: E402


@pytest.fixture(autouse=True)
def forget_digests():
    kept.digest_of_sources.cache_clear()
    yield
    kept.digest_of_sources.cache_clear()


@pytest.mark.skipif(not shutil.which("git") or not (ROOT / ".git").exists(), reason="needs git and a clone")
def test_results_are_kept_under_the_name_of_their_suite():
    assert kept.key("linux", []).startswith("linux-")


def test_nothing_is_kept_without_git(monkeypatch, tmp_path):
    monkeypatch.setenv("PATH", str(tmp_path))
    assert kept.key("linux", []) is None


def test_nothing_is_kept_outside_of_a_clone(monkeypatch, tmp_path):
    monkeypatch.setattr(kept, "ROOT", tmp_path)
    assert kept.key("linux", []) is None
