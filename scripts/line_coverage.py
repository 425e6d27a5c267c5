# line_coverage.py - the lines that the unit tests reach: counts them by folder and names those that are missing.
"""A build of its own counts, without optimisation and sanitizers; with a warm compiler cache it costs little more than
one more run of the tests. Counting in the build with sanitizers would spare that, but a program that is built anew finds
the counts of the one before it and says so on standard error, which tests compare. What the end-to-end tests reach does
not count: a folder's own tests shall."""
import collections
import json
import subprocess
import xml.etree.ElementTree as ElementTree

# Per cent of a folder's lines that must be reached. Lines that nothing can reach carry a mark with the reason:
# GCOVR_EXCL_LINE.
DEMANDED = {
    "Library": 100,
    "Library16": 100,
    "programs/common/brevanta/arx": 95,
    "programs/common/brevanta/dialog": 95,
    "programs/common/brevanta/window": 95,
    "programs/teskarlt/catalogue": 95,
    "programs/teskarlt/drawing": 95,
    "programs/teskarlt/dxf": 95,
    "programs/teskarlt/check": 95,
    "programs/teskarlt/preview": 95,
    "programs/teskarlt/schedule": 95,
    "programs/teskarlt/windows": 95,
    # Tested through the program, by the end-to-end tests: these shares are only shown.
    "programs/teskarlt/commands": 0,
    "programs/teskarlt/modules": 0,
    "programs/teskarlt/terminal": 0,
}

Lines = collections.namedtuple("Lines", "reached missing")  # numbers


def forget(build):
    """Throws away the counts that a build folder holds of earlier runs, and what it holds of objects that it had once."""
    commands = [entry["command"].split() for entry in json.loads((build / "compile_commands.json").read_text())]
    objects = {build / command[command.index("-o") + 1] for command in commands}
    for counts in [*build.rglob("*.gcda"), *build.rglob("*.gcno")]:
        if counts.suffix == ".gcda" or counts.with_suffix(".o") not in objects:
            counts.unlink()


def count(root, build):
    """What gcovr makes of the counts of a build folder: the lines by file, or None with its words printed."""
    report = build / "coverage.json"
    report.unlink(missing_ok=True)
    filters = [option for folder in DEMANDED for option in ("--filter", f"{root}/{folder}/")]
    # In the objects of the tests lie inline functions of what they test.
    folders = [build / name for name in ("programs", "Library", "Library16", "tests")]
    done = subprocess.run(["gcovr", "--root", root, *filters, "--json", report, "-j", "2", *folders], cwd=root,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode != 0 or not report.exists():
        print(done.stdout.decode(errors="replace"))
        return None
    return {file["file"]: lines_of(file) for file in json.loads(report.read_text())["files"]}


def lines_of(file):
    counted = [line for line in file["lines"] if not line.get("gcovr/noncode") and not line.get("gcovr/excluded")]
    return Lines([line["line_number"] for line in counted if line["count"] > 0],
                 [line["line_number"] for line in counted if line["count"] == 0])


def ranges(numbers):
    """Ascending line numbers for people: 3, 7-9."""
    runs = []
    for number in numbers:
        if runs and number == runs[-1][1] + 1:
            runs[-1][1] = number
        else:
            runs.append([number, number])
    return ", ".join(str(first) if first == last else f"{first}-{last}" for first, last in runs)


def judge(folder, files):
    """The share of the folder's lines that were reached, and what is missing, a line a file."""
    within = {name: lines for name, lines in files.items() if name.startswith(folder + "/")}
    reached = sum(len(lines.reached) for lines in within.values())
    missing = sum(len(lines.missing) for lines in within.values())
    share = 100.0 * reached / (reached + missing) if reached + missing else 0.0
    return share, [f"  {name}: {ranges(lines.missing)}" for name, lines in sorted(within.items()) if lines.missing]


def report(files, results):
    """Prints every folder's share, and for those that reach less than is demanded what is missing; leaves a result
    file with a case a folder."""
    suite = ElementTree.Element("testsuite", name="coverage")
    for folder, demanded in DEMANDED.items():
        share, missing = judge(folder, files)
        case = ElementTree.SubElement(suite, "testcase", classname="coverage", name=folder)
        print(f"{folder}: {share:.1f} % of the lines, {demanded} % demanded")
        if share < demanded:
            print("\n".join(missing))
            failure = ElementTree.SubElement(case, "failure", message=f"{share:.1f} %, {demanded} % demanded")
            failure.text = "\n".join(missing)
    ElementTree.ElementTree(suite).write(results / "coverage.xml")
