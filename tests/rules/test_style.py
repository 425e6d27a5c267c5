# test_style.py - format of the sources, first lines, lengths, and the shell scripts.
import subprocess

from sources import ROOT, code, files

MAXIMAL_LINES = 600


def run(*command):
    return subprocess.run([*map(str, command)], cwd=ROOT, capture_output=True, text=True)


def test_code_is_formatted():
    done = run("clang-format", "--dry-run", "-Werror", *code())
    assert done.returncode == 0, done.stderr


def test_each_file_says_what_it_is():
    """The first line is: // Name - what it is."""
    assert [str(path) for path in code() if not (ROOT / path).read_text().startswith(f"// {path.name} - ")] == []


def test_no_file_is_long():
    lengths = {str(path): (ROOT / path).read_text().count("\n") for path in code()}
    assert {path: length for path, length in lengths.items() if length > MAXIMAL_LINES} == {}


def test_shell_scripts_are_sound():
    scripts = [path for path in files(("scripts",), "") if (ROOT / path).read_bytes().startswith(b"#!/usr/bin/env bash")]
    done = run("shellcheck", "run", "test", ".ci/run", *scripts)
    assert done.returncode == 0, done.stdout
