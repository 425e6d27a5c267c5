# kept.py - results of suites that are kept between runs: as long as nothing that decides them has changed.
"""A suite that passed whole leaves its result files in the user's cache folder, under a hash of contents: the built
programs and modules, all sources, tests and examples, and the versions of all installed packages. Never by time stamps."""
import contextlib
import functools
import hashlib
import os
import pathlib
import shutil
import subprocess
import time

import summary

ROOT = pathlib.Path(__file__).resolve().parent.parent
KEPT_DAYS = 30


def folder():
    cache = os.environ.get("XDG_CACHE_HOME") or pathlib.Path.home() / ".cache"
    return pathlib.Path(cache) / "brevanta" / "results"


@functools.cache
def digest_of_sources():
    """Of every file that git knows or would take; None without git or outside of a clone."""
    digest = hashlib.sha256()
    try:
        names = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                               capture_output=True, check=True).stdout
    except (FileNotFoundError, subprocess.CalledProcessError):
        return None
    for name in sorted(name for name in names.decode().split("\0") if name):
        path = ROOT / name
        digest.update(name.encode() + (path.read_bytes() if path.is_file() else b"none"))
    return digest.digest()


@functools.cache
def digest_of_machine():
    """Of the versions of all packages."""
    return hashlib.sha256(subprocess.run(["dpkg-query", "-W"], capture_output=True).stdout).digest()


def digest_of_programs(preset):
    digest = hashlib.sha256()
    for part in ("bin", "tests", "benchmarks"):
        for path in sorted((ROOT / "build" / preset / part).rglob("*")):
            if path.is_file() and (os.access(path, os.X_OK) or path.suffix.lower() in (".exe", ".crx", ".tkr", ".arx")):
                digest.update(str(path.relative_to(ROOT)).encode() + hashlib.sha256(path.read_bytes()).digest())
    return digest.digest()


def key(suite, presets):
    """The name under which the suite's results are kept; None where nobody can tell what decides them."""
    sources = digest_of_sources()
    if sources is None:
        return None
    digest = hashlib.sha256(sources + digest_of_machine())
    for preset in presets:
        digest.update(digest_of_programs(preset))
    return f"{suite}-{digest.hexdigest()}"


def restore(name, results):
    """Puts kept results into the folder; false when there are none."""
    kept = folder() / name
    if not kept.is_dir():
        return False
    os.utime(kept)  # so that what is not used any more can be told
    shutil.copytree(kept, results, dirs_exist_ok=True)
    return True


def keep(name, results):
    """Keeps the results of a suite that passed whole, and forgets those that nobody has used for long."""
    counted = summary.count(results)
    if counted.failed or not counted.passed:
        return
    folder().mkdir(parents=True, exist_ok=True)
    for old in folder().iterdir():
        with contextlib.suppress(FileNotFoundError):  # another run has forgotten it meanwhile
            if time.time() - old.stat().st_mtime > KEPT_DAYS * 24 * 3600:
                shutil.rmtree(old, ignore_errors=True)
    half_way = folder() / f".{name}.{os.getpid()}"
    shutil.copytree(results, half_way, dirs_exist_ok=True)
    shutil.rmtree(folder() / name, ignore_errors=True)
    half_way.rename(folder() / name)
