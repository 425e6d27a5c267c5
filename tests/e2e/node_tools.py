# node_tools.py - programs from npm that pages and models are checked with, as node/package-lock.json names them.
import fcntl
import functools
import json
import pathlib
import shutil
import subprocess

import pytest
from conftest import ROOT

LISTS = pathlib.Path(__file__).parent / "node"
FOLDER = ROOT / "build" / "e2e-node"


@functools.cache
def folder():
    """Where the tools lie; fetched when there are none, or others. Skips the test where there is no npm."""
    if not shutil.which("npm"):
        pytest.skip("needs npm")
    FOLDER.mkdir(parents=True, exist_ok=True)
    with open(FOLDER / "lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)  # tests run side by side
        wanted, stamp = (LISTS / "package-lock.json").read_bytes(), FOLDER / "fetched"
        if not stamp.exists() or stamp.read_bytes() != wanted:
            for path in LISTS.iterdir():
                shutil.copy(path, FOLDER)
            subprocess.run(["npm", "ci", "--ignore-scripts", "--silent", "--no-progress"], cwd=FOLDER, check=True)
            stamp.write_bytes(wanted)
    return FOLDER


def findings_of_model(path):
    """What the validator of glTF says against a model: a list of messages, errors and warnings alike."""
    shutil.copy(LISTS / "validate.mjs", folder())
    done = subprocess.run(["node", folder() / "validate.mjs", path], capture_output=True, text=True, check=True)
    return [f"{found['pointer']}: {found['message']}" for found in json.loads(done.stdout) if found["severity"] < 2]


def findings_of_page(browser):
    """What axe-core finds wrong with the page as it is shown: the rule, and the elements."""
    browser.evaluate((folder() / "node_modules" / "axe-core" / "axe.min.js").read_text() + ";0")
    return browser.evaluate("axe.run().then(({ violations }) => violations.map(({ id, nodes }) => "
                            "[id, ...nodes.map(({ html, failureSummary }) => html + ' ' + failureSummary)].join(' ')))")
