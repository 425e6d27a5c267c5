# test_docs.py - the pages name files, links and names that exist, and their drawings are those that the script makes.
import functools
import re
import subprocess
import sys

import pytest

from sources import CODE_FOLDERS, ROOT, files
from test_includes import INCLUDE_ROOTS, PARTS

PAGES = [*ROOT.glob("*.md"), *(ROOT / "docs").rglob("*.md")]
SOURCE_ENDINGS = (".h", ".cpp", ".py", ".cmake", ".md", ".mjs")
SOURCE_FOLDERS = (*CODE_FOLDERS, "cmake", "docs", "examples", "external", "scripts")
MADE = ("build/", "examples/out/")  # by the build and by ./run, so not in the repository
SPAN = re.compile(r"`([^`\n]+)`")
LINK = re.compile(r"\]\(([^)\s]+)\)")
CODE_BLOCK = re.compile(r"^(?:    |\t)[^\n]*$|^```.*?^```$", re.M | re.S)
PATH = re.compile(r"[\w.][\w./-]*")
# A name of the sources: capitals or an underscore inside, or words joined by "::".
NAME = re.compile(r"(?:[a-z]+::)*(?:[A-Z][a-z0-9]+(?:[A-Z][A-Za-z0-9]*)+|[a-z]+[A-Z]\w*|[A-Z]+_[A-Z_]+)")


def name_of(page):
    return str(page.relative_to(ROOT))


def prose(page):
    return CODE_BLOCK.sub("", page.read_text())


def words_in_code(page):
    """Words of what stands in backticks and in blocks of code."""
    text = page.read_text()
    spans = SPAN.findall(prose(page))
    return {word for part in [*spans, *CODE_BLOCK.findall(text)] for word in re.split(r"[\s=(){},:;'\"]+", part) if word}


def is_below(path):
    """Whether the path is there: from the root, from a folder that includes start from, or from beneath `.../`."""
    if path.startswith(".../"):
        return any((ROOT / "programs").rglob(path.removeprefix(".../").rstrip("/")))
    return any((ROOT / folder / path).exists() for folder in INCLUDE_ROOTS)


def looks_like_path(word):
    """Whether the word is named like a source or a folder, or begins with a folder of the repository."""
    if not PATH.fullmatch(word) or word.startswith(MADE):
        return False
    return word.endswith((*SOURCE_ENDINGS, "/")) or ("/" in word and is_below(word.split("/")[0]))


@functools.cache
def names_of_files():
    return {path.name for path in [*ROOT.glob("*.*"), *files(SOURCE_FOLDERS, *SOURCE_ENDINGS)]}


def is_missing(word):
    return looks_like_path(word) and not is_below(word) and word not in names_of_files()


@functools.cache
def names_of_sources():
    sources = files(SOURCE_FOLDERS, ".h", ".cpp", ".py", ".cmake", ".txt", ".js")
    return set().union(*(re.findall(r"\w+", (ROOT / path).read_text()) for path in sources))


def anchors(page):
    """What links can name in a page: its headings in small letters, with dashes for blanks."""
    headings = re.findall(r"^#+ (.+)$", page.read_text(), re.M)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


def is_broken(page, link):
    path, _, anchor = link.partition("#")
    target = (page.parent / path).resolve() if path else page
    return not target.exists() or (anchor != "" and anchor not in anchors(target))


@pytest.mark.parametrize("page", PAGES, ids=name_of)
def test_paths_exist(page):
    assert sorted(filter(is_missing, words_in_code(page))) == []


def test_architecture_names_every_part():
    told = words_in_code(ROOT / "docs" / "ARCHITECTURE.md")
    folders = {folder for folder, _ in PARTS.values()}
    assert sorted(folder for folder in folders if not told & {folder, folder + ".h", folder + ".cpp"}) == []


@pytest.mark.parametrize("page", PAGES, ids=name_of)
def test_links_lead_somewhere(page):
    links = [link for link in LINK.findall(prose(page)) if "://" not in link]
    assert [link for link in links if is_broken(page, link)] == []


@pytest.mark.parametrize("page", PAGES, ids=name_of)
def test_names_are_those_of_the_sources(page):
    names = {span for span in SPAN.findall(prose(page)) if NAME.fullmatch(span)}
    assert sorted(name for name in names if not set(name.split("::")) <= names_of_sources()) == []


def test_drawings_are_as_their_script_makes_them(tmp_path):
    """Otherwise make them anew: /usr/bin/python3 docs/drawings/draw.py"""
    folder = ROOT / "docs" / "drawings"
    subprocess.run([sys.executable, folder / "draw.py", tmp_path], check=True)
    made = {path.name: path.read_text() for path in tmp_path.iterdir()}
    stored = {path.name: path.read_text() for path in folder.glob("*.svg")}
    assert sorted(made) == sorted(stored)
    assert [name for name in made if made[name] != stored[name]] == []


def test_every_picture_is_shown():
    linked = {(page.parent / link).resolve() for page in PAGES for link in LINK.findall(page.read_text())}
    pictures = [ROOT / path for path in files(("docs",), ".svg", ".png")]
    assert [str(path) for path in pictures if path not in linked] == []
