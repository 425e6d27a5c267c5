# conftest.py - the fixtures of the end-to-end tests: the program under test and folders with drawings.
import collections
import pathlib
import shutil
import sys

import pytest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "examples"))

from program import Program  # noqa: E402


def pytest_addoption(parser):
    parser.addoption("--build", default="linux", help="the preset whose teskarlt is tested; windows: under Wine")


def pytest_configure(config):
    config.addinivalue_line("markers", "many: every eighth case is enough under Wine, where each start takes long")


def belongs_to(build, item, cases):
    """Tests without the program are the same for every build; they run once, with the native one. `cases` counts the
    cases of the tests that are marked so."""
    if build != "linux" and "teskarlt" not in item.fixturenames:
        return False
    if build == "windows" and item.get_closest_marker("many"):
        cases[item.function] += 1
        return cases[item.function] % 8 == 1
    return True


def pytest_collection_modifyitems(config, items):
    cases = collections.Counter()
    belong = [belongs_to(config.getoption("--build"), item, cases) for item in items]
    config.hook.pytest_deselected(items=[item for item, does in zip(items, belong) if not does])
    items[:] = [item for item, does in zip(items, belong) if does]


@pytest.fixture(scope="session")
def build(request):
    return request.config.getoption("--build")


@pytest.fixture
def teskarlt(build, tmp_path):
    """The program under test, with an empty data folder: teskarlt("list", path, "--json").json"""
    data_folder = tmp_path / "data"
    data_folder.mkdir()
    program = Program(ROOT, build, data_folder)
    assert program.path.exists(), f"{program.path} has not been built"
    return program


@pytest.fixture
def house(tmp_path):
    """A copy of the example drawing."""
    return pathlib.Path(shutil.copy(ROOT / "examples" / "house.dxf", tmp_path))
