# wine.py - Wine for the tests of a build folder: a prefix of its own, one server for all programs.
import os
import subprocess

SERVER_RUNS_ALREADY = 2  # a run that was stopped left it behind

_started = {}


def environment(build):
    """The variables that Windows programs run with here; starts the server at the first call."""
    env = {**os.environ, "WINEPREFIX": str(build / "wine"), "WINEDEBUG": "-all", "LC_ALL": "C.UTF-8",
           "WINEDLLOVERRIDES": "mscoree,mshtml="}  # no offers to install .NET and a browser
    if build not in _started:
        _started[build] = env
        quiet = {"env": env, "stdin": subprocess.DEVNULL, "stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL}
        # The server stays only where the folder is there before it. Without it every program starts and ends one of
        # its own, which takes seconds and now and then meets the next program half way.
        (build / "wine").mkdir(parents=True, exist_ok=True)
        if subprocess.run(["wineserver", "-p"], **quiet).returncode not in (0, SERVER_RUNS_ALREADY):
            raise RuntimeError("Wine's server does not start")
        # Makes the prefix when there is none, and keeps the server's first start out of the tests' time.
        subprocess.run(["wine", "wineboot", "--init"], **quiet, timeout=300)
    return env


def stop(build):
    """Ends the server when it was started here."""
    if build in _started:
        subprocess.run(["wineserver", "-k"], env=_started.pop(build), stdin=subprocess.DEVNULL)
