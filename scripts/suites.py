#!/usr/bin/python3
# suites.py - builds the presets and runs the suites of tests; called by ./test.
"""Each suite leaves JUnit or GoogleTest XML files in build/results/<suite>; the summary counts those."""
import argparse
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import time

import kept
import line_coverage
import summary
import wine

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build"
RESULTS = BUILD / "results"
TEST_TIME_LIMIT = 600  # seconds for one test program
TIDY_MINUTES_IN_CI = 12
PYTEST = ["/usr/bin/python3", "-m", "pytest", "-q", "-p", "no:cacheprovider"]
SANITIZER_OPTIONS = {"ASAN_OPTIONS": "detect_leaks=1:detect_stack_use_after_return=1",
                     "UBSAN_OPTIONS": "print_stacktrace=1"}


def say(text):
    print(text, flush=True)


def run_logged(command, log):
    """Runs a build step; shows the end of its output only when it fails. True when it went well."""
    log.parent.mkdir(parents=True, exist_ok=True)
    with open(log, "ab") as output:
        status = subprocess.run(command, cwd=ROOT, stdin=subprocess.DEVNULL, stdout=output,
                                stderr=subprocess.STDOUT).returncode
    if status != 0:
        lines = log.read_text(errors="replace").splitlines()
        errors = [line for line in lines if "error" in line.lower()]
        say("\n".join(errors[:20] + ["..."] + lines[-20:]))
        say(f"{' '.join(command)} failed with status {status}; all of its output is in {log.relative_to(ROOT)}")
    return status == 0


def build(preset):
    """Configures and builds a preset, once a run."""
    if preset not in build.done:
        log = BUILD / f"{preset}.log"
        log.unlink(missing_ok=True)
        build.done[preset] = (run_logged(["cmake", "--preset", preset], log) and
                              run_logged(["cmake", "--build", "--preset", preset], log))
    return build.done[preset]


build.done = {}


def environment(preset):
    """What the programs of a preset need around them."""
    if preset == "windows":
        return wine.environment(BUILD)
    return {**os.environ, **(SANITIZER_OPTIONS if preset == "asan" else {})}


def unit_tests(preset, results):
    """The GoogleTest programs that ctest knows; one that leaves no cases behind, or fails after them, counts as failed."""
    if not build(preset):
        return summary.write_failure(results, "build", f"preset {preset} does not build")
    folder, made = BUILD / preset, BUILD / preset / "results"
    shutil.rmtree(made, ignore_errors=True)
    made.mkdir()
    (folder / "ctest.xml").unlink(missing_ok=True)
    done = subprocess.run(["ctest", "--test-dir", folder, "--output-on-failure", "--no-tests=error",
                           "--timeout", str(TEST_TIME_LIMIT), "-j", str(os.cpu_count()),
                           "--output-junit", folder / "ctest.xml"], env=environment(preset),
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode != 0:
        say(done.stdout.decode(errors="replace"))
    for program in summary.cases(folder / "ctest.xml"):
        name = program.get("name")
        xml = made / f"{name}.xml"
        if not summary.cases(xml):
            summary.write_failure(results, name, "the program ended without results")
            continue
        shutil.copy(xml, results)
        if summary.outcome(program) == "failed" and all(summary.outcome(case) != "failed"
                                                        for case in summary.cases(xml)):
            summary.write_failure(results, name, "the program failed outside of its tests")


def coverage(results):
    """The unit tests in the build that counts the lines that they reach, and whether those are enough."""
    if build("coverage"):
        line_coverage.forget(BUILD / "coverage")
    unit_tests("coverage", results)
    files = line_coverage.count(ROOT, BUILD / "coverage")
    if files is None:
        return summary.write_failure(results, "coverage", "the lines cannot be counted")
    line_coverage.report(files, results)


def pytest(folder, results, options=(), env=None):
    xml = results / "pytest.xml"
    subprocess.run([*PYTEST, str(ROOT / "tests" / folder), f"--junitxml={xml}", *options], cwd=ROOT,
                   stdin=subprocess.DEVNULL, env={**(env or os.environ), "PYTHONDONTWRITEBYTECODE": "1"})
    if not xml.exists():
        summary.write_failure(results, folder, "pytest ended without results")


def end_to_end(preset, results):
    if not build(preset):
        return summary.write_failure(results, "build", f"preset {preset} does not build")
    pytest("e2e", results, ["--build", preset, "-n", str(os.cpu_count())], environment(preset))


def rules(results):
    """Rules that the sources and the built modules keep."""
    for preset in ("linux", "windows"):
        build(preset)
    pytest("rules", results)


def tidy(results):
    if not build("linux") or not build("windows"):
        return summary.write_failure(results, "build", "clang-tidy needs both builds")
    # On a machine that has checked nothing before, all sources take longer than a run may; the next one goes on there.
    limit = ["--minutes", str(TIDY_MINUTES_IN_CI)] if os.environ.get("CI") else []
    subprocess.run([ROOT / "scripts" / "tidy", "--junitxml", results / "tidy.xml", *limit], stdin=subprocess.DEVNULL)
    if not (results / "tidy.xml").exists():
        summary.write_failure(results, "tidy", "clang-tidy ended without results")


class Suite:
    """`run` puts result files into the folder that it is given. The results depend on the programs of `presets` and the
    sources alone."""

    def __init__(self, run, *presets):
        self.run, self.presets = run, presets


SUITES = {
    "linux": Suite(lambda results: unit_tests("linux", results), "linux"),
    "e2e": Suite(lambda results: end_to_end("linux", results), "linux"),
    "rules": Suite(rules, "linux", "windows"),
    "windows": Suite(lambda results: unit_tests("windows", results), "windows"),
    "e2e-windows": Suite(lambda results: end_to_end("windows", results), "windows"),
    "asan": Suite(lambda results: unit_tests("asan", results), "asan"),
    "coverage": Suite(coverage, "coverage"),
    "e2e-asan": Suite(lambda results: end_to_end("asan", results), "asan"),
    "tidy": Suite(tidy, "linux", "windows"),
}
QUICK = ["linux", "e2e"]


def arguments():
    parser = argparse.ArgumentParser(prog="./test", description="Builds everything and runs every test.")
    parser.add_argument("suites", nargs="*", metavar="SUITE", help=", ".join(SUITES))
    parser.add_argument("--quick", action="store_true", help="native build only: " + " ".join(QUICK))
    parser.add_argument("--anew", action="store_true", help="run also what passed before and has not changed since")
    parser.add_argument("--list", action="store_true", help="show the suites")
    given = parser.parse_args()
    unknown = [name for name in given.suites if name not in SUITES]
    if unknown:
        parser.error(f"no such suite: {' '.join(unknown)} (there are: {' '.join(SUITES)})")
    return given


def run_suite(name, is_kept):
    """Runs a suite, or takes its results from an earlier run of the same programs and sources."""
    say(f"== {name}")
    started = time.monotonic()
    suite, results = SUITES[name], RESULTS / name
    results.mkdir(parents=True)
    all_built = all([build(preset) for preset in suite.presets])
    key = kept.key(name, suite.presets) if all_built else None
    if is_kept and key and kept.restore(key, results):
        say(f"{name}: {summary.line(summary.count(results))}, kept from an earlier run of the same")
        return
    suite.run(results)
    if key and not os.environ.get("CI"):  # where clang-tidy may not have reached all sources
        kept.keep(key, results)
    say(f"{name}: {summary.line(summary.count(results))} in {time.monotonic() - started:.0f} s")


def main():
    given = arguments()
    if given.list:
        print("\n".join(SUITES))
        return 0
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped"))  # by way of what ends Wine's server
    chosen = given.suites or (QUICK if given.quick else list(SUITES))
    shutil.rmtree(RESULTS, ignore_errors=True)
    try:
        for name in chosen:
            run_suite(name, is_kept=not given.anew)
    finally:
        wine.stop(BUILD)
    return summary.report(RESULTS, chosen)


if __name__ == "__main__":
    sys.exit(main())
