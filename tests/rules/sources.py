# sources.py - the files that the checks look at.
import pathlib

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CODE_FOLDERS = ("platform", "Library", "Library16", "programs", "tests", "benchmarks")


def files(folders, *endings):
    """Files below the folders that exist, whose names end so, as paths relative to the root."""
    found = (path for folder in folders for path in (ROOT / folder).rglob("*"))
    return sorted(path.relative_to(ROOT) for path in found if path.name.endswith(endings) and path.is_file())


def code():
    return files(CODE_FOLDERS, ".cpp", ".h")
